#pragma once

/// A property page in a dialog.

#include <zor/platform/property_page.h>
#include <zor/platform/qt/container.h>

#include <QDialog>

class QDialogButtonBox;
class QPushButton;

namespace zor::platform::qt {

/// A dialog with OK, Cancel and Apply around one page. OK applies only what was changed. An error of a write is
/// shown, and the dialog stays open. Works modal (exec) and beside other windows (show); the page is told of a
/// new selection by the program.
class PageDialog final : public QDialog, public PageFrame {
public:
    /// A dialog without a page yet.
    explicit PageDialog(QWidget* parent = nullptr);
    ~PageDialog() override;
    PageDialog(const PageDialog&) = delete;
    PageDialog& operator=(const PageDialog&) = delete;

    void setPage(PropertyPage* page) override;
    [[nodiscard]] std::unique_ptr<Surface> createSurface(WidgetListener& listener) override;
    [[nodiscard]] bool isChanged() const noexcept override { return m_changed; }
    void setChanged(bool changed) override;

    /// OK: applies what was changed, and closes when that went well.
    void accept() override;

protected:
    void showEvent(QShowEvent* event) override;

private:
    /// False when the page could not be applied; the user has been told then.
    bool apply();

    QWidget* m_area;
    QDialogButtonBox* m_buttons = nullptr;
    QPushButton* m_apply = nullptr;
    QtContainer m_container;
    PropertyPage* m_page = nullptr;
    bool m_changed = false;
};

} // namespace zor::platform::qt
