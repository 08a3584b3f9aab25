#pragma once

#include <zor/widgets/zor_control.h>

#include <QtUiPlugin/QDesignerCustomWidgetInterface>

namespace zor::designer {

/// One control in the widget box.
class ControlEntry : public QDesignerCustomWidgetInterface {
public:
    explicit ControlEntry(const WidgetClass& widgetClass) : m_class(widgetClass) {}

    [[nodiscard]] QString name() const override;
    [[nodiscard]] QString group() const override { return QStringLiteral("Zor Smart Controls"); }
    [[nodiscard]] QString toolTip() const override;
    [[nodiscard]] QString whatsThis() const override;
    [[nodiscard]] QIcon icon() const override;
    [[nodiscard]] QString includeFile() const override { return QStringLiteral("zor/widgets.h"); }
    [[nodiscard]] QString codeTemplate() const override { return {}; }
    [[nodiscard]] bool isContainer() const override { return false; }
    [[nodiscard]] QString domXml() const override;

    /// In Designer a control is created at design time. A QUiLoader initialises nothing: there it runs.
    [[nodiscard]] QWidget* createWidget(QWidget* parent) override;
    [[nodiscard]] bool isInitialized() const override { return m_inDesigner; }
    void initialize(QDesignerFormEditorInterface* core) override;

private:
    const WidgetClass& m_class;
    bool m_inDesigner = false;
};

} // namespace zor::designer
