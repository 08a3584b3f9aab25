#pragma once

/// Combo box and list box.

#include "platform/error.h"
#include "platform/qt/qt_widget.h"

#include <QComboBox>
#include <QListWidget>
#include <QWheelEvent>

namespace zor::platform::qt {

/// Entry texts are cut for showing only where no screen could hold them.
inline constexpr int kEntryLimit = 4096;

/// A combo box that opens for nobody while it is locked, and that the wheel turns only where it has the focus.
class LockableComboBox : public QComboBox {
public:
    explicit LockableComboBox(QWidget* parent) : QComboBox(parent) { setFocusPolicy(Qt::StrongFocus); }
    bool locked = false;
    std::function<void()> onDropDown;

    void showPopup() override
    {
        if (locked)
            return;
        if (onDropDown)
            onDropDown();
        QComboBox::showPopup();
    }

protected:
    void wheelEvent(QWheelEvent* event) override
    {
        if (hasFocus() && !locked)
            QComboBox::wheelEvent(event);
        else
            event->ignore();
    }
    void keyPressEvent(QKeyEvent* event) override
    {
        if (locked)
            event->ignore();
        else
            QComboBox::keyPressEvent(event);
    }
};

class QtComboBox final : public QtFontBase<ComboBox, LockableComboBox> {
public:
    QtComboBox(const Context& context, int number) : QtFontBase(context, number, WindowBackground)
    {
        paintColours();
        widget().onDropDown = [this] { report(Notice::DropDown); };
        QObject::connect(&widget(), &QComboBox::currentIndexChanged, &widget(), [this] {
            if (!m_changing)
                report(Notice::Click);
        });
    }

    [[nodiscard]] std::int32_t count() const override { return widget().count(); }
    void append(std::string_view text, std::int32_t datum) override
    {
        // Qt selects the first entry by itself; the control decides what is selected.
        m_changing = true;
        const int before = widget().currentIndex();
        widget().addItem(shownText(text, kEntryLimit), datum);
        widget().setCurrentIndex(before);
        m_changing = false;
        m_texts.emplace_back(text);
    }
    void remove(std::int32_t index) override
    {
        const std::int32_t old = current();
        check(index);
        m_changing = true;
        widget().removeItem(index);
        if (index == old)
            widget().setCurrentIndex(-1);
        m_changing = false;
        m_texts.erase(m_texts.begin() + index);
    }
    void clear() override
    {
        m_changing = true;
        widget().clear();
        m_changing = false;
        m_texts.clear();
    }
    [[nodiscard]] std::string entryText(std::int32_t index) const override
    {
        check(index);
        return m_texts[static_cast<std::size_t>(index)];
    }
    [[nodiscard]] std::int32_t datum(std::int32_t index) const override
    {
        check(index);
        return widget().itemData(index).toInt();
    }
    [[nodiscard]] std::int32_t current() const override { return widget().currentIndex(); }
    void setCurrent(std::int32_t index) override
    {
        if (index != -1)
            check(index);
        widget().setCurrentIndex(index);
    }
    [[nodiscard]] bool hasFocus() const override { return focusReported; }
    [[nodiscard]] bool isLocked() const override { return widget().locked; }
    void setLocked(bool locked) override { widget().locked = locked; }
    // A list without typed text has no text to select.
    [[nodiscard]] std::string selectedText() const override { return {}; }
    [[nodiscard]] bool reportsClicks() const override { return false; }

private:
    void check(std::int32_t index) const
    {
        if (index < 0 || index >= count())
            raiseError(ErrorNumber::SubscriptOutOfRange);
    }

    std::vector<std::string> m_texts;
    bool m_changing = false;
};

class QtListBox final : public QtFontBase<ListBox, QListWidget> {
public:
    QtListBox(const Context& context, int number) : QtFontBase(context, number, WindowBackground)
    {
        paintColours();
        widget().setUniformItemSizes(true);
        QObject::connect(&widget(), &QListWidget::currentRowChanged, &widget(), [this] {
            if (!m_changing)
                report(Notice::Click);
        });
        QObject::connect(&widget(), &QListWidget::itemChanged, &widget(), [this](QListWidgetItem* item) {
            if (m_changing)
                return;
            m_changing = true;
            widget().setCurrentItem(item);
            m_changing = false;
            report(Notice::Click);
        });
    }

    [[nodiscard]] std::int32_t count() const override { return widget().count(); }
    void append(std::string_view text, std::int32_t datum) override
    {
        m_changing = true;
        auto* item = new QListWidgetItem(shownText(text, kEntryLimit));
        item->setData(Qt::UserRole, datum);
        item->setFlags(item->flags() | Qt::ItemIsUserCheckable);
        item->setCheckState(Qt::Unchecked);
        widget().addItem(item);
        m_changing = false;
        m_texts.emplace_back(text);
    }
    void remove(std::int32_t index) override
    {
        const std::int32_t old = current();
        static_cast<void>(at(index));
        m_changing = true;
        delete widget().takeItem(index);
        if (index == old)
            widget().setCurrentRow(-1);
        m_changing = false;
        m_texts.erase(m_texts.begin() + index);
    }
    void clear() override
    {
        m_changing = true;
        widget().clear();
        m_changing = false;
        m_texts.clear();
    }
    [[nodiscard]] std::string entryText(std::int32_t index) const override
    {
        static_cast<void>(at(index));
        return m_texts[static_cast<std::size_t>(index)];
    }
    [[nodiscard]] std::int32_t datum(std::int32_t index) const override
    {
        return at(index).data(Qt::UserRole).toInt();
    }
    [[nodiscard]] std::int32_t current() const override { return widget().currentRow(); }
    void setCurrent(std::int32_t index) override
    {
        if (index != -1)
            static_cast<void>(at(index));
        widget().setCurrentRow(index);
    }
    [[nodiscard]] bool hasFocus() const override { return focusReported; }
    [[nodiscard]] bool isSelected(std::int32_t index) const override
    {
        return at(index).checkState() == Qt::Checked;
    }
    void setSelected(std::int32_t index, bool selected) override
    {
        at(index).setCheckState(selected ? Qt::Checked : Qt::Unchecked);
    }
    [[nodiscard]] std::int32_t selectedCount() const override
    {
        std::int32_t selected = 0;
        for (std::int32_t i = 0; i < count(); ++i)
            selected += isSelected(i) ? 1 : 0;
        return selected;
    }
    [[nodiscard]] bool reportsClicks() const override { return false; }

private:
    [[nodiscard]] QListWidgetItem& at(std::int32_t index) const
    {
        if (index < 0 || index >= count())
            raiseError(ErrorNumber::SubscriptOutOfRange);
        return *widget().item(index);
    }

    std::vector<std::string> m_texts;
    bool m_changing = false;
};

} // namespace zor::platform::qt
