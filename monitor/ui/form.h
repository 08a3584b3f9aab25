#pragma once

/// The controls that the monitor shows, on real widgets.

#include <zor/core/class_info.h>
#include <zor/monitor/data/parameter_file.h>
#include <zor/platform/qt/container.h>

#include <QGridLayout>
#include <QLabel>
#include <QPointer>
#include <QTabWidget>

#include <memory>
#include <vector>

namespace zor::monitor {

/// A form of controls. Its widget belongs to the form until a window takes it.
class Form {
public:
    Form() = default;
    virtual ~Form() = default;
    Form(const Form&) = delete;
    Form& operator=(const Form&) = delete;

    [[nodiscard]] virtual QWidget& widget() = 0;
    [[nodiscard]] virtual std::vector<core::Control*> controls() = 0;
    /// Shows the texts that belong to the form, not to its controls, in a language.
    virtual void translate(const std::string& language) = 0;
    /// Hides what names a parameter that the connected device does not have, as its control hides itself.
    virtual void showSupport() {}
    /// The tabs, if it has some.
    [[nodiscard]] virtual QTabWidget* tabs() { return nullptr; }
};

/// A form made from a parameter file: a tab for each group, a row for each parameter, an option button for each
/// entry. Where a program does not have the class that the file names, a text box takes its place.
class GeneratedForm final : public Form {
public:
    GeneratedForm(const ParameterFile& file, const core::ClassRegistry& classes);
    ~GeneratedForm() override;

    [[nodiscard]] QWidget& widget() override { return *m_widget; }
    [[nodiscard]] std::vector<core::Control*> controls() override;
    void translate(const std::string& language) override;
    void showSupport() override;
    [[nodiscard]] QTabWidget* tabs() override { return m_widget; }

private:
    /// A text of the form, where it comes from, and the (first) control that it names.
    struct Caption {
        QLabel* label;
        const LocalText* text;
        const core::Control* control;
    };
    /// A control whose caption is its own.
    struct OwnCaption {
        core::Control* control;
        const LocalText* text;
    };

    void addTab(const ParameterFile& file, const LocalText& group);
    void addRow(QGridLayout& grid, const Parameter& parameter);
    QWidget& addControl(const Parameter& parameter, const core::ClassInfo& info, const Entry* entry);
    void prepare(core::Control& control, const Parameter& parameter);
    [[nodiscard]] const core::ClassInfo& classOf(const Parameter& parameter) const;

    const core::ClassRegistry& m_classes;
    QTabWidget* m_widget;
    platform::qt::QtContainer m_container;
    std::vector<core::ControlPtr<>> m_controls;
    std::vector<Caption> m_captions;
    std::vector<OwnCaption> m_ownCaptions;
    std::vector<const LocalText*> m_tabTexts;
};

/// A form drawn in Qt Designer. Its own texts stay as they were drawn.
class UiForm final : public Form {
public:
    /// Raises FileError, or the form reader's FormError, for a file that is no form or has no control of the
    /// library on it.
    UiForm(const QString& file, const core::ClassRegistry& classes);
    ~UiForm() override;

    [[nodiscard]] QWidget& widget() override { return *m_widget; }
    [[nodiscard]] std::vector<core::Control*> controls() override;
    void translate(const std::string& /*language*/) override {}
    [[nodiscard]] QTabWidget* tabs() override;

private:
    QPointer<QWidget> m_widget;
};

/// Whether the operator can see a control: it lies on the tab in front of a window that is not minimised.
[[nodiscard]] bool isInSight(core::Control& control);

} // namespace zor::monitor
