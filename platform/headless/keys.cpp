#include <zor/platform/headless/keys.h>
#include <zor/platform/headless/simple_widgets.h>
#include <zor/platform/headless/text_field.h>
#include <zor/platform/text.h>

#include <algorithm>

namespace zor::platform::headless {
namespace {

enum KeyCode : std::int16_t {
    kBack = 8,
    kPageUp = 33,
    kPageDown = 34,
    kEnd = 35,
    kHome = 36,
    kLeft = 37,
    kUp = 38,
    kRight = 39,
    kDown = 40,
    kDelete = 46,
    kF4 = 115,
};

void moveCaret(TextField& field, std::int16_t code)
{
    const std::size_t end = field.selectionStart() + field.selectionLength();
    switch (code) {
    case kHome: field.select(0, 0); break;
    case kEnd: field.select(characterCount(field.text()), 0); break;
    // The caret stands at the end of a selection.
    case kLeft: field.select(end - std::min<std::size_t>(end, 1), 0); break;
    case kRight: field.select(end + 1, 0); break;
    default: break;
    }
}

void moveHandle(HeadlessTrack& track, std::int16_t code)
{
    const std::int64_t page = pageStep({track.value(), track.minimum(), track.maximum()});
    switch (code) {
    case kLeft:
    case kDown: track.moveBy(-1); break;
    case kRight:
    case kUp: track.moveBy(1); break;
    case kPageDown: track.moveBy(-page); break;
    case kPageUp: track.moveBy(page); break;
    case kHome: track.setValue(track.minimum()); break;
    case kEnd: track.setValue(track.maximum()); break;
    default: break;
    }
}

void erase(TextField& field, bool before)
{
    if (field.selectionLength() == 0) {
        const std::size_t start = field.selectionStart();
        if (before && start == 0)
            return;
        field.select(before ? start - 1 : start, 1);
    }
    field.replaceSelection({});
}

void keyInField(TextField& field, std::int16_t code, std::int16_t press)
{
    if (isTyped(press)) {
        if (!field.isLocked())
            field.replaceSelection(characterOf(press));
    } else if (code == kBack || code == kDelete) {
        if (!field.isLocked())
            erase(field, code == kBack);
    } else if (Stepper* stepper = dynamic_cast<HeadlessTextField&>(field).stepper();
               stepper != nullptr && (code == kUp || code == kDown)) {
        stepper->step(code == kUp);
    } else {
        moveCaret(field, code);
    }
}

/// Home, End and the vertical arrows, from one entry to another.
void moveInList(EntryWidget& list, std::int16_t code)
{
    const std::int32_t last = list.count() - 1;
    const std::int32_t old = list.current();
    std::int32_t index = old;
    switch (code) {
    case kHome: index = 0; break;
    case kEnd: index = last; break;
    case kUp: index = old > 0 ? old - 1 : old; break;
    case kDown: index = std::min(old + 1, last); break;
    default: return;
    }
    // An open list shows where the keys are: the first of them only brings the operator into the list.
    if (old < 0 && dynamic_cast<ListBox*>(&list) != nullptr)
        index = 0;
    if (last >= 0)
        list.setCurrent(index);
}

} // namespace

std::string characterOf(std::int16_t code)
{
    std::string character;
    appendCharacter(character, static_cast<std::uint16_t>(code));
    return character;
}

std::int16_t codeOf(std::string_view character)
{
    constexpr char32_t kLast = 0xFF; // of the codes that a key press has
    const char32_t code = takeCharacter(character);
    return static_cast<std::int16_t>(code <= kLast ? code : U'?');
}

bool isTyped(std::int16_t ascii) { return ascii >= ' ' && (ascii < 0x7F || ascii > 0x9F); }

void pushToggle(ToggleButton& button)
{
    button.setOn(dynamic_cast<OptionButton*>(&button) != nullptr || !button.isOn());
}

void applyKey(Widget& widget, const Stroke& stroke)
{
    const auto [code, press] = stroke;
    if (auto* field = dynamic_cast<TextField*>(&widget)) {
        keyInField(*field, code, press);
    } else if (auto* track = dynamic_cast<HeadlessTrack*>(&widget)) {
        moveHandle(*track, code);
    } else if (auto* button = dynamic_cast<ToggleButton*>(&widget)) {
        if (press == ' ')
            pushToggle(*button);
    } else if (auto* combo = dynamic_cast<ComboBox*>(&widget)) {
        if (combo->isLocked())
            return;
        if (press == ' ' || code == kF4)
            dynamic_cast<HeadlessWidget&>(widget).report(Notice::DropDown);
        moveInList(*combo, code);
    } else if (auto* list = dynamic_cast<ListBox*>(&widget)) {
        if (press == ' ' && list->current() >= 0)
            list->setSelected(list->current(), !list->isSelected(list->current()));
        moveInList(*list, code);
    }
}

} // namespace zor::platform::headless
