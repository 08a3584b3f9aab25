#include <zor/platform/error.h>
#include <zor/platform/qt/looks.h>
#include <zor/platform/qt/page_dialog.h>

#include <QDialogButtonBox>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QVBoxLayout>

#include <exception>

namespace zor::platform::qt {

PageDialog::PageDialog(QWidget* parent) : QDialog(parent), m_area(new QWidget(this)), m_container(*m_area, {})
{
    auto* layout = new QVBoxLayout(this);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    constexpr int kAboveButtons = 14;
    layout->setSpacing(kAboveButtons);
    layout->addWidget(m_area);
    m_buttons =
        new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel | QDialogButtonBox::Apply, this);
    layout->addWidget(m_buttons);
    m_apply = m_buttons->button(QDialogButtonBox::Apply);
    m_apply->setEnabled(false);
    connect(m_apply, &QPushButton::clicked, this, [this] { apply(); });
    connect(m_buttons, &QDialogButtonBox::accepted, this, [this] { accept(); });
    connect(m_buttons, &QDialogButtonBox::rejected, this, [this] { reject(); });
}

void PageDialog::showEvent(QShowEvent* event)
{
    QDialog::showEvent(event);
    // The fields come first, though the page makes them after the buttons.
    QWidget* first = nullptr;
    QWidget* last = nullptr;
    for (QWidget* next = nextInFocusChain(); next != this; next = next->nextInFocusChain()) {
        if (!m_area->isAncestorOf(next) || (next->focusPolicy() & Qt::TabFocus) == 0 || !next->isEnabled())
            continue;
        first = first == nullptr ? next : first;
        last = next;
    }
    if (first == nullptr)
        return;
    for (QAbstractButton* button : m_buttons->buttons()) {
        setTabOrder(last, button);
        last = button;
    }
    first->setFocus();
}

PageDialog::~PageDialog() = default;

void PageDialog::setPage(PropertyPage* page)
{
    constexpr int kLimit = 200;
    m_page = page;
    if (m_page == nullptr)
        return;
    setWindowTitle(shownText(m_page->caption(), kLimit));
    m_area->setFixedSize(m_container.scale().pixels(m_page->surface().geometry()).size());
}

std::unique_ptr<Surface> PageDialog::createSurface(WidgetListener& listener)
{
    return m_container.createSurface(listener, 0, 0);
}

void PageDialog::setChanged(bool changed)
{
    m_changed = changed;
    m_apply->setEnabled(changed);
}

void PageDialog::accept()
{
    if (!m_changed || apply())
        QDialog::accept();
}

bool PageDialog::apply()
{
    if (m_page == nullptr)
        return true;
    try {
        m_page->apply();
        return true;
    } catch (...) {
        constexpr int kLimit = 1000;
        // Who deletes the dialog while the box is open deletes the box with it.
        const QPointer box = new QMessageBox(QMessageBox::Warning, windowTitle(), {}, QMessageBox::Ok, this);
        box->setTextFormat(Qt::PlainText);
        box->setText(shownText(failureText(std::current_exception()), kLimit));
        box->exec();
        delete box;
        return false;
    }
}

} // namespace zor::platform::qt
