// The widgets of a property page: made from its fields, placed in two columns.

#include <zor/pages/page.h>

#include <algorithm>

namespace zor::pages {

using platform::Twips;
using platform::Widget;

namespace {

constexpr Twips kColumnGap = 180;
constexpr Twips kFieldWidth = 3900;
constexpr Twips kNumberWidth = 780;
constexpr Twips kSpinWidth = 270;
constexpr Twips kRowHeight = 375;
constexpr Twips kRowGap = 90;

std::string captionName(const Field& field) { return "lbl" + std::string(field.widget.substr(3)); }

} // namespace

platform::Widget& Page::Entry::input() const
{
    if (list)
        return *list;
    if (check)
        return *check;
    return *text;
}

void Page::create(const Field& field)
{
    const int number = 1 + static_cast<int>(m_entries.size()) * kParts;
    Entry& entry = m_entries.emplace_back();
    entry.field = &field;
    switch (field.kind) {
    case FieldKind::Text: entry.text = m_surface->createTextField(number + kInput); break;
    case FieldKind::List:
        entry.list = m_surface->createComboBox(number + kInput);
        for (const std::string_view item : field.items)
            entry.list->append(item, 0);
        entry.list->setCurrent(0);
        break;
    case FieldKind::Number:
        entry.text = m_surface->createTextField(number + kInput);
        entry.spin = m_surface->createSpinButton(number + kSpin);
        entry.spin->setMaximum(field.maximum);
        entry.spin->setMinimum(field.minimum);
        entry.text->setText(std::to_string(entry.spin->value()));
        break;
    case FieldKind::Check:
        entry.check = m_surface->createCheckBox(number + kInput);
        entry.check->setCaption(field.caption);
        break;
    }
    entry.input().setToolTip(field.meaning);
    if (entry.check)
        return;
    entry.caption = m_surface->createLabel(number + kCaption);
    entry.caption->setCaption(field.caption);
}

void Page::arrange()
{
    Twips column = 0;
    for (const Entry& entry : m_entries)
        column = std::max(column, entry.caption ? entry.caption->width() + kColumnGap : 0);
    Twips top = 0;
    for (const Entry& entry : m_entries) {
        if (entry.caption) {
            const Twips height = entry.caption->height();
            entry.caption->setGeometry({0, top + (kRowHeight - height) / 2, 0, height});
        }
        const bool isNumber = entry.field->kind == FieldKind::Number;
        entry.input().setGeometry({column, top, isNumber ? kNumberWidth : kFieldWidth, kRowHeight});
        if (entry.spin)
            entry.spin->setGeometry({column + kNumberWidth, top, kSpinWidth, kRowHeight});
        top += kRowHeight + kRowGap;
    }
    m_surface->setGeometry({0, 0, column + kFieldWidth, top - kRowGap});
}

Widget* Page::widget(std::string_view name) noexcept
{
    if (name == "Surface")
        return m_surface.get();
    for (const Entry& entry : m_entries) {
        if (entry.field->widget == name)
            return &entry.input();
        if (entry.spin && entry.field->spinButton == name)
            return entry.spin.get();
        if (entry.caption && captionName(*entry.field) == name)
            return entry.caption.get();
    }
    return nullptr;
}

std::vector<std::string> Page::widgetNames() const
{
    std::vector<std::string> names{"Surface"};
    for (const Entry& entry : m_entries) {
        names.emplace_back(entry.field->widget);
        if (entry.spin)
            names.emplace_back(entry.field->spinButton);
        if (entry.caption)
            names.push_back(captionName(*entry.field));
    }
    return names;
}

} // namespace zor::pages
