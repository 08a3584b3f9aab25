#include <zor/core/frm_Container.h>
#include <zor/platform/failures.h>
#include <zor/platform/qt/container.h>
#include <zor/platform/qt/operator.h>
#include <zor/platform/qt/page_dialog.h>
#include <zor/tools/zorsh/qt_stage.h>

#include <QApplication>
#include <QPalette>
#include <QWidget>

namespace zor::console {
namespace {

constexpr int kFormWidth = 1024;
constexpr int kFormHeight = 768;

class QtStage final : public Stage {
public:
    QtStage()
    {
        m_container.onPropertyChanged = [this](platform::Component& component, std::string_view name) {
            onPropertyChanged(component, name);
        };
        m_container.onMessage = [this](platform::Component&, const platform::MessageBox& box) { onMessage(box); };
        m_container.onError = [this](const std::exception_ptr& error) { m_failures.add(error); };
        m_form.resize(kFormWidth, kFormHeight);
        m_form.show();
        m_form.activateWindow();
        QtStage::settle();
    }
    ~QtStage() override { QApplication::setPalette(m_light); }
    QtStage(const QtStage&) = delete;
    QtStage& operator=(const QtStage&) = delete;

    platform::Container& container() override { return m_container; }
    platform::Operator& hands() override { return m_operator; }
    platform::PopupMenu* openMenu() override { return m_container.openMenu(); }
    void setUserMode(bool userMode) override { m_container.setUserMode(userMode); }
    void setTheme(bool isDark) override
    {
        constexpr QRgb kDark = 0xFF2B2B2B;
        QApplication::setPalette(isDark ? QPalette(QColor(kDark)) : m_light);
    }
    std::unique_ptr<platform::PageFrame> createPageFrame() override
    {
        auto frame = std::make_unique<platform::qt::PageDialog>(&m_form);
        frame->show();
        return frame;
    }
    void settle() override
    {
        QCoreApplication::processEvents();
        // Widgets that are deleted later would otherwise wait for an event loop that never runs.
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    void during(const std::function<void()>& action) override { m_failures.during(action); }

private:
    const QPalette m_light = QApplication::palette();
    platform::Failures m_failures;
    QWidget m_form;
    platform::qt::QtContainer m_container{m_form, core::pictureData};
    platform::qt::QtOperator m_operator{m_container};
};

QtMessageHandler& chained()
{
    static QtMessageHandler handler = nullptr;
    return handler;
}

/// Without a display Qt remarks that its windows cannot be raised and the like: no news to who asked for none.
void withoutRemarks(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    if (!message.startsWith("This plugin does not support") && !message.startsWith("QStandardPaths:"))
        chained()(type, context, message);
}

} // namespace

std::shared_ptr<void> startQt()
{
    chained() = qInstallMessageHandler(withoutRemarks);
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        // Qt tries the platforms of the list in turn: a display that cannot be reached is no display.
        if (qEnvironmentVariableIsSet("WAYLAND_DISPLAY"))
            qputenv("QT_QPA_PLATFORM", "wayland;xcb;offscreen");
        else
            qputenv("QT_QPA_PLATFORM", qEnvironmentVariableIsSet("DISPLAY") ? "xcb;offscreen" : "offscreen");
    }
    static int argc = 1;
    static char name[] = "zorsh";
    static char* argv[] = {name, nullptr};
    return std::make_shared<QApplication>(argc, argv);
}

std::unique_ptr<Stage> qtStage() { return std::make_unique<QtStage>(); }

} // namespace zor::console
