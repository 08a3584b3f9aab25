#include <zor/core/control.h>
#include <zor/core/frm_Container.h>
#include <zor/monitor/data/codec.h>
#include <zor/monitor/ui/form.h>
#include <zor/units/unit_catalogue.h>

#include <QGridLayout>
#include <QPointer>
#include <QScrollArea>
#include <QVBoxLayout>
#include <climits>

#include <algorithm>
#include <array>

namespace zor::monitor {
namespace {

/// The size that a class needs, in pixels, and the property that carries its own caption.
struct LooksRow {
    std::string_view name;
    int width;
    int height;
    std::string_view caption{};
};

constexpr std::array kLooks{
    LooksRow{"ctx_ZorTextBox", 280, 27},
    LooksRow{"ctx_ZorUpDown", 280, 27},
    LooksRow{"ctx_ZorSlider", 280, 64},
    LooksRow{"ctx_ZorComboBox", 280, 27},
    LooksRow{"ctx_ZorListBox", 280, 96},
    LooksRow{"ctx_ZorCheckBox", 280, 24, "CheckBoxCaption"},
    LooksRow{"ctx_ZorOptionButton", 280, 24, "OptionButtonCaption"},
    LooksRow{"ctx_ZorLabel", 280, 22},
    LooksRow{"ctx_ZorImage", 40, 32},
};
constexpr LooksRow kUsualLooks{"", 280, 27};
constexpr std::string_view kUsualClass = "ctx_ZorTextBox";

const LooksRow& looksOf(const core::ClassInfo& info)
{
    const auto* const row = std::ranges::find(kLooks, info.name, &LooksRow::name);
    return row == kLooks.end() ? kUsualLooks : *row;
}

QString text(const std::string& utf8) { return QString::fromStdString(utf8); }

constexpr std::int16_t kUsualDigits = 3;

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
    m_controls.clear();
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
    const int row = grid.rowCount();
    const core::ClassInfo& info = classOf(parameter);
    const bool captioned = !looksOf(info).caption.empty();
    const bool choice = captioned && info.property("EnumEntryValue") != nullptr;
    QLabel* caption = nullptr;
    const std::size_t first = m_controls.size();
    if (!captioned || choice) {
        caption = new QLabel;
        caption->setTextFormat(Qt::PlainText);
        caption->setMinimumHeight(std::min(looksOf(info).height, kUsualLooks.height));
        grid.addWidget(caption, row, 0, Qt::AlignTop);
    }
    if (!choice) {
        grid.addWidget(&addControl(parameter, info, nullptr), row, 1, Qt::AlignLeft | Qt::AlignTop);
    } else {
        auto* column = new QVBoxLayout;
        column->setSpacing(0);
        for (const Entry& entry : parameter.entries)
            column->addWidget(&addControl(parameter, info, &entry));
        grid.addLayout(column, row, 1, Qt::AlignLeft | Qt::AlignTop);
    }
    if (caption != nullptr && first < m_controls.size())
        m_captions.push_back({caption, &parameter.appearance.caption, m_controls[first].get()});
}

QWidget& GeneratedForm::addControl(const Parameter& parameter, const core::ClassInfo& info, const Entry* entry)
{
    core::ControlPtr<> control = info.create(m_container);
    control->initialiseProperties();
    prepare(*control, parameter);
    const LooksRow& looks = looksOf(info);
    if (entry != nullptr)
        putIfThere(*control, "EnumEntryValue", entry->value);
    if (!looks.caption.empty())
        m_ownCaptions.push_back({control.get(), entry != nullptr ? &entry->text : &parameter.appearance.caption});
    QWidget& widget = platform::qt::widgetOf(control->surface());
    widget.setFixedSize(looks.width, looks.height);
    m_controls.push_back(std::move(control));
    return widget;
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
    for (const auto& control : m_controls)
        controls.push_back(control.get());
    return controls;
}

void GeneratedForm::showSupport()
{
    for (const Caption& caption : m_captions)
        caption.label->setVisible(!caption.control->DeviceTypeNotSupported() &&
                                  !caption.control->DeviceVerNotSupported());
}

void GeneratedForm::translate(const std::string& language)
{
    for (const Caption& caption : m_captions)
        caption.label->setText(text(caption.text->in(language)));
    for (const OwnCaption& caption : m_ownCaptions)
        putIfThere(*caption.control, looksOf(caption.control->info()).caption, caption.text->in(language));
    for (std::size_t i = 0; i < m_tabTexts.size(); ++i) {
        const QString name = text(m_tabTexts[i]->in(language)).replace('&', "&&");
        m_widget->setTabText(static_cast<int>(i), name.isEmpty() ? QString("-") : name);
    }
}

bool isInSight(core::Control& control)
{
    const QWidget& widget = platform::qt::widgetOf(control.surface());
    return widget.isVisible() && !widget.window()->isMinimized();
}

} // namespace zor::monitor
