#pragma once

/// The controls that the monitor shows, on real widgets.

#include <zor/core/class_info.h>
#include <zor/monitor/data/parameter_file.h>
#include <zor/monitor/ui/group_tree.h>
#include <zor/platform/qt/container.h>

#include <QCoreApplication>
#include <QGridLayout>
#include <QIcon>
#include <QLabel>
#include <QPointer>
#include <QScrollArea>
#include <QTabWidget>

#include <functional>
#include <memory>
#include <span>
#include <unordered_map>
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
    /// Those that there are by now.
    [[nodiscard]] virtual std::vector<core::Control*> controls() = 0;
    /// Calls with the controls that there are, and with others when they are made; from now on the page in front
    /// has its controls.
    virtual void whenMade(const std::function<void(std::span<core::Control* const>)>& hear) { hear(controls()); }
    /// The class of the control that a parameter will have when its page is made; nullptr when it has one by now,
    /// or never will.
    [[nodiscard]] virtual const core::ClassInfo* foreseen(const Parameter& /*parameter*/) const { return nullptr; }
    /// Makes the page of a parameter that has been foreseen.
    virtual void make(const Parameter& /*parameter*/) {}
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
    /// Gives a tab an icon, or none.
    virtual void mark(int page, const QIcon& icon, const QString& tip);
    /// What on it goes with nothing in a parameter file; a line each, with its place in the form's own file.
    [[nodiscard]] virtual std::vector<std::string> notes(const ParameterFile& /*file*/) const { return {}; }
    /// Brings a control into sight, with the focus in it, and marks it for a moment.
    void reveal(core::Control& control);
};

/// A form made from a parameter file: a tab for each group, or a tree of the groups when there are many; a row for
/// each parameter, an option button for each entry. Where a program does not have the class that the file names, a
/// text box takes its place. A page is made when it first comes to the front: what nobody looks at costs nothing.
class GeneratedForm final : public Form {
    Q_DECLARE_TR_FUNCTIONS(GeneratedForm)
public:
    GeneratedForm(const ParameterFile& file, const core::ClassRegistry& classes);
    ~GeneratedForm() override;

    [[nodiscard]] QWidget& widget() override { return *m_whole; }
    [[nodiscard]] std::vector<core::Control*> controls() override;
    void whenMade(const std::function<void(std::span<core::Control* const>)>& hear) override;
    [[nodiscard]] const core::ClassInfo* foreseen(const Parameter& parameter) const override;
    void make(const Parameter& parameter) override;
    void translate(const std::string& language) override;
    void arrange() override;
    [[nodiscard]] QSize wholeSize() override;
    [[nodiscard]] QTabWidget* tabs() override { return m_tabs; }
    void mark(int page, const QIcon& icon, const QString& tip) override;

private:
    /// A parameter on the form.
    struct Row {
        const Parameter* parameter;
        QLabel* caption;                          ///< left of the controls
        QLabel* note;                             ///< right of them: what they do not show themselves
        std::vector<core::ControlPtr<>> controls; ///< one, or one for each entry
    };
    /// A group.
    struct Page {
        const LocalText* title;
        QScrollArea* area;
        std::vector<const Parameter*> parameters;
        /// Once it has been made: of some rows each, for whatever is painted is compared with all beside it.
        std::vector<std::unique_ptr<platform::qt::QtContainer>> bands;
        std::vector<Row> rows;
    };

    void addPages(const ParameterFile& file);
    void addTree();
    void makePage(std::size_t index);
    void addBand(Page& page, QWidget& widget);
    void addRow(Page& page, QGridLayout& grid, const Parameter& parameter);
    core::Control& addControl(Page& page, Row& row, const core::ClassInfo& info, const Entry* entry);
    void prepare(core::Control& control, const Parameter& parameter);
    void translatePage(const Page& page);
    void translateRow(const Row& row);
    [[nodiscard]] int heightOf(const Page& page) const;
    [[nodiscard]] static bool isInSight(const Page& page, const Row& row);
    [[nodiscard]] const core::ClassInfo& classOf(const Parameter& parameter) const;

    const core::ClassRegistry& m_classes;
    QWidget* m_whole; ///< the tabs, or what holds them and the tree
    QTabWidget* m_tabs;
    GroupTree* m_tree = nullptr;
    std::vector<Page> m_pages;
    std::unordered_map<const Parameter*, std::size_t> m_pageOf;
    std::function<void(std::span<core::Control* const>)> m_hear;
    std::string m_language = "en";
};

/// A form drawn in Qt Designer. Its own texts stay as they were drawn.
class UiForm final : public Form {
public:
    /// Raises FileError for a file that is no form, that has no control of the library on it, or that names a
    /// class of the library, a property or a value that there is not.
    UiForm(const QString& file, const core::ClassRegistry& classes);
    ~UiForm() override;

    [[nodiscard]] QWidget& widget() override { return *m_widget; }
    [[nodiscard]] std::vector<core::Control*> controls() override;
    void translate(const std::string& language) override;
    void arrange() override;
    [[nodiscard]] QTabWidget* tabs() override;
    [[nodiscard]] std::vector<std::string> notes(const ParameterFile& file) const override;

private:
    /// A control in the form's file.
    struct Place {
        std::string tag;
        std::string place; ///< "FILE:LINE: "
    };
    [[nodiscard]] static std::vector<Place> placesIn(const core::ClassRegistry& classes, const QByteArray& text,
                                                     const std::string& file);

    std::vector<Place> m_places;
    QPointer<QWidget> m_widget;
    std::vector<std::pair<core::Control*, QWidget*>> m_veilable; ///< and what of each is veiled
};

/// Whether the operator can see a control: it lies on the tab in front of a window that is not minimised.
[[nodiscard]] bool isInSight(core::Control& control);

} // namespace zor::monitor
