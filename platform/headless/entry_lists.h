#pragma once

/// Combo box and list box.

#include <zor/platform/error.h>
#include <zor/platform/headless/widget_base.h>

#include <string>
#include <utility>
#include <vector>

namespace zor::platform::headless {

/// Entries in the order in which they were added. An index outside the list raises SubscriptOutOfRange.
template <class Interface>
class EntryList : public FontBase<Interface> {
public:
    using FontBase<Interface>::FontBase;

    [[nodiscard]] std::int32_t count() const override { return static_cast<std::int32_t>(m_entries.size()); }
    void append(std::string_view text, std::int32_t datum) override
    {
        m_entries.push_back({std::string(text), datum, false});
    }
    void remove(std::int32_t index) override
    {
        static_cast<void>(at(index));
        m_entries.erase(m_entries.begin() + index);
        if (index == m_current)
            m_current = -1;
        else if (index < m_current)
            --m_current;
    }
    void clear() override
    {
        m_entries.clear();
        m_current = -1;
    }
    [[nodiscard]] const std::string& entryText(std::int32_t index) const override { return at(index).text; }
    [[nodiscard]] std::int32_t datum(std::int32_t index) const override { return at(index).datum; }
    [[nodiscard]] std::int32_t current() const override { return m_current; }
    void setCurrent(std::int32_t index) override
    {
        if (index != -1)
            static_cast<void>(at(index));
        if (std::exchange(m_current, index) != index)
            this->report(Notice::Click);
    }
    [[nodiscard]] bool hasFocus() const override { return this->host().focused() == this; }

protected:
    struct Entry {
        std::string text;
        std::int32_t datum;
        bool selected;
    };

    [[nodiscard]] const Entry& at(std::int32_t index) const
    {
        if (index < 0 || index >= count())
            raiseError(ErrorNumber::SubscriptOutOfRange, "entry " + std::to_string(index));
        return m_entries[static_cast<std::size_t>(index)];
    }

    std::vector<Entry> m_entries;
    std::int32_t m_current = -1;
};

class HeadlessComboBox final : public EntryList<ComboBox> {
public:
    HeadlessComboBox(Host& host, int number) : EntryList(host, number, WindowBackground) {}

    [[nodiscard]] bool isLocked() const override { return m_locked; }
    void setLocked(bool locked) override { m_locked = locked; }

private:
    bool m_locked = false;
};

class HeadlessListBox final : public EntryList<ListBox> {
public:
    HeadlessListBox(Host& host, int number) : EntryList(host, number, WindowBackground) {}

    void remove(std::int32_t index) override
    {
        m_selectedCount -= at(index).selected ? 1 : 0;
        EntryList::remove(index);
    }
    void clear() override
    {
        m_selectedCount = 0;
        EntryList::clear();
    }
    [[nodiscard]] bool isSelected(std::int32_t index) const override { return at(index).selected; }
    void setSelected(std::int32_t index, bool selected) override
    {
        if (at(index).selected == selected)
            return;
        m_entries[static_cast<std::size_t>(index)].selected = selected;
        m_selectedCount += selected ? 1 : -1;
        m_current = index;
        report(Notice::Click);
    }
    [[nodiscard]] std::int32_t selectedCount() const override { return m_selectedCount; }

private:
    std::int32_t m_selectedCount = 0;
};

} // namespace zor::platform::headless
