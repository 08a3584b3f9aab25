#pragma once

/// The controls that the monitor shows, on real widgets.

#include <zor/core/class_info.h>
#include <zor/monitor/data/parameter_file.h>
#include <zor/platform/qt/container.h>

#include <QCoreApplication>
#include <QGridLayout>
#include <QLabel>
#include <QPointer>
#include <QTabWidget>

#include <functional>
#include <memory>
#include <utility>
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
    /// Whether the device's value of a control is known; without it, every value is.
    std::function<bool(const core::Control&)> isKnown;
    /// Follows the controls, wherever something about one in sight may have changed: a value or an edit, the text
    /// of a unit, whether the device has the parameter.
    virtual void arrange() {}
    /// The room that shows all of it.
    [[nodiscard]] virtual QSize wholeSize() { return widget().sizeHint(); }
    /// The tabs, if it has some.
    [[nodiscard]] virtual QTabWidget* tabs() { return nullptr; }
};

/// A form made from a parameter file: a tab for each group, a row for each parameter, an option button for each
/// entry. Where a program does not have the class that the file names, a text box takes its place.
class GeneratedForm final : public Form {
    Q_DECLARE_TR_FUNCTIONS(GeneratedForm)
public:
    GeneratedForm(const ParameterFile& file, const core::ClassRegistry& classes);
    ~GeneratedForm() override;

    [[nodiscard]] QWidget& widget() override { return *m_widget; }
    [[nodiscard]] std::vector<core::Control*> controls() override;
    void translate(const std::string& language) override;
    void arrange() override;
    [[nodiscard]] QSize wholeSize() override;
    [[nodiscard]] QTabWidget* tabs() override { return m_widget; }

private:
    /// A parameter on the form.
    struct Row {
        const Parameter* parameter;
        std::size_t tab;
        QLabel* caption;                          ///< left of the controls
        QLabel* note;                             ///< right of them: what they do not show themselves
        std::vector<core::ControlPtr<>> controls; ///< one, or one for each entry
    };

    void addTab(const ParameterFile& file, const LocalText& group);
    void addRow(QGridLayout& grid, const Parameter& parameter);
    core::Control& addControl(Row& row, const core::ClassInfo& info, const Entry* entry);
    void prepare(core::Control& control, const Parameter& parameter);
    void arrangeCaptions();
    [[nodiscard]] const core::ClassInfo& classOf(const Parameter& parameter) const;

    const core::ClassRegistry& m_classes;
    QTabWidget* m_widget;
    platform::qt::QtContainer m_container;
    std::vector<Row> m_rows;
    std::string m_language = "en";
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
    void translate(const std::string& language) override;
    void arrange() override;
    [[nodiscard]] QTabWidget* tabs() override;

private:
    QPointer<QWidget> m_widget;
    std::vector<std::pair<core::Control*, QWidget*>> m_veilable; ///< and what of each is veiled
};

/// Whether the operator can see a control: it lies on the tab in front of a window that is not minimised.
[[nodiscard]] bool isInSight(core::Control& control);

} // namespace zor::monitor
