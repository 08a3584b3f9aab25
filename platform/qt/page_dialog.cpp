#include <zor/platform/error.h>
#include <zor/platform/qt/looks.h>
#include <zor/platform/qt/page_dialog.h>

#include <QDialogButtonBox>
#include <QMessageBox>
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
    auto* buttons =
        new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel | QDialogButtonBox::Apply, this);
    layout->addWidget(buttons);
    m_apply = buttons->button(QDialogButtonBox::Apply);
    m_apply->setEnabled(false);
    connect(m_apply, &QPushButton::clicked, this, [this] { apply(); });
    connect(buttons, &QDialogButtonBox::accepted, this, [this] { accept(); });
    connect(buttons, &QDialogButtonBox::rejected, this, [this] { reject(); });
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
        QMessageBox box(QMessageBox::Warning, windowTitle(), {}, QMessageBox::Ok, this);
        box.setTextFormat(Qt::PlainText);
        box.setText(shownText(failureText(std::current_exception()), kLimit));
        box.exec();
        return false;
    }
}

} // namespace zor::platform::qt
