#include <zor/pages/fields.h>
#include <zor/pages/page.h>
#include <zor/platform/error.h>
#include <zor/units/mod_Common.h>

#include <algorithm>
#include <string>
#include <utility>

namespace zor::pages {

using platform::Notice;

Page::Page(const PageInfo& info, platform::PageFrame& frame)
    : m_info(info), m_frame(frame), m_surface(frame.createSurface(*this))
{
    m_isShowing = true;
    for (const Field* field : m_info.fields)
        create(*field);
    arrange();
    updateUsable();
    m_isShowing = false;
    m_frame.setPage(this);
}

Page::~Page()
{
    setControl(nullptr);
    m_frame.setPage(nullptr);
}

const Page::Entry* Page::entry(const Field& field) const noexcept
{
    const auto at = std::ranges::find(m_entries, &field, &Entry::field);
    return at == m_entries.end() ? nullptr : &*at;
}

// --- The selection

void Page::select(std::span<core::Control* const> controls)
{
    core::Control* control = controls.empty() ? nullptr : controls.front();
    std::vector<Variant> values;
    if (control != nullptr) {
        if (std::ranges::find(m_info.controls, control->info().name) == m_info.controls.end())
            raiseError(ErrorNumber::NoSuchMember,
                       std::string(m_info.name) + " is no page of a " + std::string(control->info().name));
        for (const Entry& entry : m_entries)
            values.push_back(control->property(entry.field->property));
    }
    setControl(control);
    m_accepted = nullptr;
    m_isShowing = true;
    for (std::size_t i = 0; i < values.size(); ++i)
        show(m_entries[i], values[i]);
    m_isShowing = false;
    updateUsable();
    m_frame.setChanged(false);
}

void Page::setControl(core::Control* control)
{
    if (m_control != nullptr)
        m_control->unsubscribe(*this);
    m_control = control;
    if (m_control != nullptr)
        m_control->subscribe(*this);
}

void Page::ended(core::Control& /*control*/) noexcept
{
    setControl(nullptr);
    updateUsable();
    m_frame.setChanged(false);
}

void Page::show(Entry& entry, const Variant& value)
{
    switch (entry.field->kind) {
    case FieldKind::Text: entry.text->setText(value.toText()); break;
    case FieldKind::List: {
        const std::int32_t position = value.toInt32();
        entry.list->setCurrent(position >= 0 && position < entry.list->count() ? position : -1);
        entry.chosen = entry.list->current();
        break;
    }
    case FieldKind::Number:
        entry.spin->setValue(value.toInt32());
        entry.text->setText(std::to_string(entry.spin->value()));
        break;
    case FieldKind::Check: entry.check->setOn(value.toBoolean()); break;
    }
}

// --- Apply

// The host may destroy the control while it is told of a change, or select another one: what the page showed is
// written whole, and into no other control.
void Page::apply()
{
    if (m_control == nullptr)
        raiseError(ErrorNumber::ObjectRequired);
    const platform::Hold hold(*m_control);
    core::Control& control = *m_control;
    acceptNumbers();
    m_writes.clear();
    for (const Field* field : writeOrder()) {
        if (const Entry* at = entry(*field))
            collect(*at);
    }
    const auto writer = onWrite;
    for (const auto& [property, value] : std::exchange(m_writes, {})) {
        if (control.hasEnded())
            return;
        if (writer)
            writer(control, property, value);
        else
            control.setProperty(property, value);
    }
    if (m_control != &control)
        return;
    m_frame.setChanged(false);
    if (onApplied)
        onApplied(control);
}

/// Apply by a key leaves the focus in the field; what was typed there counts all the same.
void Page::acceptNumbers()
{
    for (const Entry& entry : m_entries) {
        if (entry.spin && entry.text->hasFocus() && m_accepted != &entry) {
            acceptNumber(entry);
            m_accepted = &entry;
        }
    }
}

void Page::collect(const Entry& entry)
{
    const Field& field = *entry.field;
    if (field.write != nullptr)
        return field.write(*this);
    switch (field.kind) {
    case FieldKind::Text: write(field.property, entry.text->text()); break;
    case FieldKind::List:
        // A value that the list does not offer stays as the host has set it.
        if (entry.list->current() >= 0)
            write(field.property, entry.list->current());
        break;
    case FieldKind::Number: write(field.property, entry.spin->value()); break;
    case FieldKind::Check: write(field.property, entry.check->isOn()); break;
    }
}

void Page::write(std::string_view property, const Variant& value) { m_writes.emplace_back(property, value); }

// --- The user of the page

platform::Spoken Page::spoken(int widget)
{
    platform::Spoken spoken;
    const int part = widget - 1;
    if (part >= 0 && part / kParts < std::ssize(m_entries) && part % kParts == kInput)
        spoken.name = m_entries[static_cast<std::size_t>(part / kParts)].field->caption;
    return spoken;
}

void Page::notice(int widget, Notice notice, platform::EventArgs /*args*/)
{
    const int part = widget - 1;
    if (m_isShowing || part < 0 || part / kParts >= std::ssize(m_entries))
        return;
    Entry& entry = m_entries[static_cast<std::size_t>(part / kParts)];
    switch (notice) {
    case Notice::Change:
        if (m_accepted == &entry)
            m_accepted = nullptr;
        m_frame.setChanged(true);
        break;
    case Notice::Click:
        if (entry.field->kind != FieldKind::List && entry.field->kind != FieldKind::Check)
            break;
        if (part % kParts != kInput)
            break;
        // What was chosen already, and is chosen again, is no change.
        if (entry.list && std::exchange(entry.chosen, entry.list->current()) == entry.list->current())
            break;
        if (entry.field->clicked != nullptr)
            entry.field->clicked(*this);
        updateUsable();
        m_frame.setChanged(true);
        break;
    case Notice::SpinUp:
    case Notice::SpinDown: entry.text->setText(std::to_string(entry.spin->value())); break;
    case Notice::LostFocus:
        if (entry.spin && std::exchange(m_accepted, nullptr) != &entry)
            acceptNumber(entry);
        break;
    default: break;
    }
}

void Page::acceptNumber(const Entry& entry)
{
    const std::optional<double> number = validNumber(std::string_view(entry.text->text()));
    if (!number)
        entry.text->setText(std::to_string(entry.spin->value()));
    else if (*number > entry.spin->maximum())
        entry.text->setText(std::to_string(entry.spin->maximum()));
    else if (*number < entry.spin->minimum())
        entry.text->setText(std::to_string(entry.spin->minimum()));
    else
        entry.spin->setValue(roundToInt32(*number));
}

bool Page::isTicked(const Field& check) const noexcept
{
    const Entry* at = entry(check);
    return at != nullptr && at->check && at->check->isOn();
}

std::int32_t Page::position(const Field& list) const noexcept
{
    const Entry* at = entry(list);
    return at == nullptr || !at->list ? -1 : at->list->current();
}

void Page::choose(const Field& list, std::int32_t position)
{
    const auto at = std::ranges::find(m_entries, &list, &Entry::field);
    if (at == m_entries.end() || !at->list)
        return;
    at->list->setCurrent(position);
    at->chosen = at->list->current();
}

void Page::updateUsable()
{
    for (const Entry& entry : m_entries) {
        const bool usable = m_control != nullptr && (entry.field->usable == nullptr || entry.field->usable(*this));
        entry.input().setEnabled(usable);
        if (entry.spin)
            entry.spin->setEnabled(usable);
        if (entry.caption)
            entry.caption->setEnabled(usable);
    }
}

} // namespace zor::pages
