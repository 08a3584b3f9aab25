#include <zor/core/control.h>
#include <zor/core/frm_Container.h>
#include <zor/monitor/data/codec.h>
#include <zor/monitor/ui/form.h>
#include <zor/monitor/ui/row_looks.h>
#include <zor/units/unit_catalogue.h>

#include <QGridLayout>
#include <QPointer>
#include <QScrollArea>
#include <QScrollBar>
#include <QTabBar>
#include <QVBoxLayout>
#include <climits>

#include <algorithm>

namespace zor::monitor {
namespace {

constexpr std::string_view kUsualClass = "ctx_ZorTextBox";
constexpr int kWidestCaption = 260;
constexpr int kFrame = 4; ///< around what stands beside a caption

QString text(const std::string& utf8) { return QString::fromStdString(utf8); }

/// Decimals that a unit is shown with; any number without a unit.
int decimalsIn(MEAS_TYPE unit)
{
    const auto* const row = std::ranges::find(units::kUnits, unit, &units::UnitRow::unit);
    return row == units::kUnits.end() || unit == NoneU ? INT_MAX : row->decimals;
}

void putIfThere(core::Control& control, std::string_view name, const Variant& value)
{
    if (const core::PropertyRow* row = control.info().property(name))
        control.put(*row, value);
}

} // namespace

GeneratedForm::GeneratedForm(const ParameterFile& file, const core::ClassRegistry& classes)
    : m_classes(classes), m_widget(new QTabWidget), m_container(*m_widget, core::pictureData)
{
    m_widget->setDocumentMode(true);
    std::vector<std::string> groups;
    for (const Parameter& parameter : file.parameters) {
        const std::string group = parameter.appearance.group.in("en");
        if (std::ranges::find(groups, group) != groups.end())
            continue;
        groups.push_back(group);
        addTab(file, parameter.appearance.group);
    }
    m_container.setUserMode(true);
}

GeneratedForm::~GeneratedForm()
{
    // The controls' widgets are children of the tabs; they go before those do.
    m_rows.clear();
    if (m_widget->parent() == nullptr)
        delete m_widget;
}

void GeneratedForm::addTab(const ParameterFile& file, const LocalText& group)
{
    auto* page = new QWidget;
    auto* grid = new QGridLayout(page);
    for (const Parameter& parameter : file.parameters) {
        if (parameter.appearance.group.in("en") == group.in("en"))
            addRow(*grid, parameter);
    }
    grid->setRowStretch(grid->rowCount(), 1);
    grid->setColumnStretch(2, 1);
    auto* scroll = new QScrollArea;
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setWidget(page);
    m_widget->addTab(scroll, QString());
    m_tabTexts.push_back(&group);
}

void GeneratedForm::addRow(QGridLayout& grid, const Parameter& parameter)
{
    const int line = grid.rowCount();
    const core::ClassInfo& info = classOf(parameter);
    const LooksRow& looks = looksOf(info);
    const Qt::Alignment level = looks.tall ? Qt::AlignTop : Qt::AlignVCenter;
    Row row{&parameter, m_tabTexts.size(), new QLabel, new QLabel, {}};
    for (QLabel* label : {row.caption, row.note})
        label->setTextFormat(Qt::PlainText);
    row.caption->setWordWrap(true);
    for (QLabel* label : {row.caption, row.note})
        label->setContentsMargins(0, looks.tall ? kFrame : 0, 0, 0);
    auto* column = new QVBoxLayout;
    column->setSpacing(0);
    const bool choice = info.property("EnumEntryValue") != nullptr;
    for (std::size_t i = 0; i < (choice ? parameter.entries.size() : 1); ++i) {
        core::Control& control = addControl(row, info, choice ? &parameter.entries[i] : nullptr);
        column->addWidget(&platform::qt::widgetOf(control.surface()), 0, Qt::AlignLeft);
    }
    auto* field = new QHBoxLayout;
    field->addLayout(column);
    field->addWidget(row.note, 0, level);
    grid.addWidget(row.caption, line, 0, level);
    grid.addLayout(field, line, 1, Qt::AlignLeft | level);
    m_rows.push_back(std::move(row));
}

core::Control& GeneratedForm::addControl(Row& row, const core::ClassInfo& info, const Entry* entry)
{
    core::ControlPtr<> control = info.create(m_container);
    control->initialiseProperties();
    prepare(*control, *row.parameter);
    if (entry != nullptr)
        putIfThere(*control, "EnumEntryValue", entry->value);
    giveSize(*control);
    row.controls.push_back(std::move(control));
    return *row.controls.back();
}

void GeneratedForm::prepare(core::Control& control, const Parameter& parameter)
{
    const Appearance& appearance = parameter.appearance;
    control.DeviceTag(parameter.tag);
    control.DeviceTypeSupported(appearance.supported.types);
    control.DeviceMinVersionSupported(appearance.supported.minVersions);
    control.DeviceMaxVersionSupported(appearance.supported.maxVersions);
    putIfThere(control, "UnitType", static_cast<std::int32_t>(parameter.unitType));
    putIfThere(control, "DeviceUnit", static_cast<std::int32_t>(parameter.unit));
    // A unit brings its own decimals; where they are too few for the register, its numbers are shown without it.
    const std::int16_t digits = decimalsOf(parameter).value_or(kUsualDigits);
    const bool coarse = appearance.unit == parameter.unit && isInteger(parameter.location.type) &&
                        digits > decimalsIn(appearance.unit);
    putIfThere(control, "OutputUnit", static_cast<std::int32_t>(coarse ? NoneU : appearance.unit));
    putIfThere(control, "NumberOfDigits", appearance.digits.value_or(digits));
}

const core::ClassInfo& GeneratedForm::classOf(const Parameter& parameter) const
{
    const core::ClassInfo* info = m_classes.find(parameter.appearance.control);
    return info != nullptr ? *info : *m_classes.find(kUsualClass);
}

std::vector<core::Control*> GeneratedForm::controls()
{
    std::vector<core::Control*> controls;
    for (const Row& row : m_rows) {
        for (const auto& control : row.controls)
            controls.push_back(control.get());
    }
    return controls;
}

void GeneratedForm::arrange()
{
    const auto front = static_cast<std::size_t>(std::max(m_widget->currentIndex(), 0));
    for (Row& row : m_rows) {
        if (row.tab != front)
            continue;
        for (const auto& control : row.controls)
            fitSize(*control);
        if (row.controls.empty())
            continue;
        core::Control& first = *row.controls.front();
        const bool hidden = platform::qt::widgetOf(first.surface()).isHidden();
        row.caption->setHidden(hidden);
        row.note->setHidden(hidden);
        if (!hidden)
            showNote(*row.note, first, *row.parameter, !isKnown || isKnown(first), m_language);
    }
}

QSize GeneratedForm::wholeSize()
{
    QSize size = m_widget->sizeHint();
    for (int i = 0; i < m_widget->count(); ++i) {
        const auto* scroll = qobject_cast<const QScrollArea*>(m_widget->widget(i));
        const QSize bars(scroll->verticalScrollBar()->sizeHint().width(), m_widget->tabBar()->sizeHint().height());
        size = size.expandedTo(scroll->widget()->sizeHint() + bars);
    }
    return size;
}

void GeneratedForm::translate(const std::string& language)
{
    m_language = language;
    for (const Row& row : m_rows) {
        const Appearance& appearance = row.parameter->appearance;
        row.caption->setText(breakable(text(appearance.caption.in(language))));
        for (std::size_t i = 0; i < row.controls.size(); ++i) {
            core::Control& control = *row.controls[i];
            if (control.info().property("EnumEntryValue") != nullptr)
                setOwnCaption(control, text(row.parameter->entries[i].text.in(language)));
            else if (!looksOf(control.info()).caption.empty())
                setOwnCaption(control, {});
            else if (control.info().name == "ctx_ZorListBox")
                giveRoomForBits(control, *row.parameter, language);
            else if (control.info().name == "ctx_ZorComboBox")
                giveRoomForEntries(control);
        }
    }
    for (std::size_t i = 0; i < m_tabTexts.size(); ++i) {
        const QString name = text(m_tabTexts[i]->in(language)).replace('&', "&&");
        m_widget->setTabText(static_cast<int>(i), name.isEmpty() ? tr("General") : name);
    }
    arrangeCaptions();
    arrange();
}

void GeneratedForm::arrangeCaptions()
{
    std::vector<int> widths(m_tabTexts.size(), 0);
    for (const Row& row : m_rows) {
        const int width = row.caption->fontMetrics().horizontalAdvance(row.caption->text()) + 2;
        widths[row.tab] = std::max(widths[row.tab], std::min(width, kWidestCaption));
    }
    for (const Row& row : m_rows)
        row.caption->setFixedWidth(widths[row.tab]);
}

bool isInSight(core::Control& control)
{
    const QWidget& widget = platform::qt::widgetOf(control.surface());
    return widget.isVisible() && !widget.window()->isMinimized();
}

} // namespace zor::monitor
