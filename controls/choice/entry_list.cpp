#include <zor/controls/choice/entry_list.h>
#include <zor/platform/error.h>

namespace zor::controls {
namespace {

/// One element for each entry, or the one that says that there are none.
template <class T, class Read>
std::vector<T> all(std::int32_t count, Read&& read)
{
    if (count == 0)
        return {T(EntryList::kNotFound)};
    std::vector<T> list;
    list.reserve(static_cast<std::size_t>(count));
    for (std::int32_t i = 0; i < count; ++i)
        list.emplace_back(read(i));
    return list;
}

} // namespace

void EntryList::append(std::string_view text, std::int32_t value)
{
    if (m_widget.count() >= kMost)
        raiseError(ErrorNumber::Overflow);
    m_widget.append(text, value);
}

void EntryList::remove(std::int32_t value)
{
    if (const auto index = find(value))
        m_widget.remove(*index);
}

std::optional<std::int32_t> EntryList::find(std::int32_t value) const
{
    const std::int32_t count = m_widget.count();
    for (std::int32_t i = 0; i < count; ++i) {
        if (m_widget.datum(i) == value)
            return i;
    }
    return std::nullopt;
}

std::optional<std::int32_t> EntryList::currentValue() const
{
    const std::int32_t index = m_widget.current();
    return index < 0 ? std::nullopt : std::optional(m_widget.datum(index));
}

std::string EntryList::textOf(std::int32_t value) const
{
    const auto index = find(value);
    return index ? m_widget.entryText(*index) : std::string(kNotFound);
}

Variant EntryList::valueOf(std::string_view text) const
{
    const std::int32_t count = m_widget.count();
    for (std::int32_t i = 0; i < count; ++i) {
        if (m_widget.entryText(i) == text)
            return m_widget.datum(i);
    }
    return kNotFound;
}

std::vector<std::string> EntryList::texts() const
{
    return all<std::string>(m_widget.count(), [this](std::int32_t i) { return m_widget.entryText(i); });
}

std::vector<Variant> EntryList::values() const
{
    return all<Variant>(m_widget.count(), [this](std::int32_t i) { return Variant(m_widget.datum(i)); });
}

} // namespace zor::controls
