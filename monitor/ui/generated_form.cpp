#include <zor/core/control.h>
#include <zor/core/frm_Container.h>
#include <zor/monitor/data/codec.h>
#include <zor/monitor/session/unit_system.h>
#include <zor/monitor/ui/form.h>
#include <zor/monitor/ui/row_looks.h>

#include <QGridLayout>
#include <QScrollBar>
#include <QSplitter>
#include <QStyle>
#include <QTabBar>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace zor::monitor {
namespace {

constexpr std::string_view kUsualClass = "ctx_ZorTextBox";
constexpr int kWidestCaption = 260;
constexpr int kFrame = 4; ///< around what stands beside a caption
constexpr int kTreeWidth = 240;
constexpr std::size_t kMostTabs = 8; ///< more do not fit beside each other

QString text(const std::string& utf8) { return QString::fromStdString(utf8); }

[[nodiscard]] bool isChoice(const core::ClassInfo& info) { return info.property("EnumEntryValue") != nullptr; }

void putIfThere(core::Control& control, std::string_view name, const Variant& value)
{
    if (const core::PropertyRow* row = control.info().property(name))
        control.put(*row, value);
}

} // namespace

GeneratedForm::GeneratedForm(const ParameterFile& file, const core::ClassRegistry& classes)
    : m_classes(classes), m_whole(new QTabWidget), m_tabs(static_cast<QTabWidget*>(m_whole))
{
    m_tabs->setDocumentMode(true);
    addPages(file);
    QObject::connect(m_tabs, &QTabWidget::currentChanged, m_tabs, [this](int page) {
        if (m_hear && page >= 0)
            makePage(static_cast<std::size_t>(page));
    });
    if (m_pages.size() > kMostTabs)
        addTree();
}

GeneratedForm::~GeneratedForm()
{
    // The controls' widgets are children of the tabs; they go before those do.
    m_pages.clear();
    if (m_whole->parent() == nullptr)
        delete m_whole;
}

void GeneratedForm::addPages(const ParameterFile& file)
{
    std::unordered_map<std::string_view, std::size_t> known;
    for (const Parameter& parameter : file.parameters) {
        const LocalText& group = parameter.appearance.group;
        const auto [place, isNew] = known.emplace(group.in("en"), m_pages.size());
        if (isNew) {
            auto* area = new QScrollArea(m_tabs);
            area->setWidgetResizable(true);
            area->setFrameShape(QFrame::NoFrame);
            m_tabs->addTab(area, QString());
            // What comes into sight is brought up to date.
            QObject::connect(area->verticalScrollBar(), &QScrollBar::valueChanged, area, [this] { arrange(); });
            QObject::connect(area->verticalScrollBar(), &QScrollBar::rangeChanged, area, [this] { arrange(); });
            m_pages.push_back({&group, area, {}, {}, {}});
        }
        m_pages[place->second].parameters.push_back(&parameter);
        m_pageOf.emplace(&parameter, place->second);
    }
}

void GeneratedForm::addTree()
{
    auto* both = new QSplitter;
    m_tree = new GroupTree(*m_tabs);
    m_tree->parametersOf = [this](int page) {
        return std::span<const Parameter* const>(m_pages[static_cast<std::size_t>(page)].parameters);
    };
    m_tree->onChosen = [this](const Parameter& parameter) {
        make(parameter);
        const auto& rows = m_pages[m_pageOf.at(&parameter)].rows;
        reveal(*std::ranges::find(rows, &parameter, &Row::parameter)->controls.front());
    };
    both->addWidget(m_tree);
    both->addWidget(m_tabs);
    both->setStretchFactor(1, 1);
    both->setSizes({kTreeWidth, kWidestCaption});
    both->setChildrenCollapsible(false);
    m_whole = both;
}

void GeneratedForm::whenMade(const std::function<void(std::span<core::Control* const>)>& hear)
{
    m_hear = hear;
    m_hear(controls());
    makePage(static_cast<std::size_t>(m_tabs->currentIndex()));
}

const core::ClassInfo* GeneratedForm::foreseen(const Parameter& parameter) const
{
    const auto page = m_pageOf.find(&parameter);
    const bool toCome = page != m_pageOf.end() && m_pages[page->second].bands.empty();
    return toCome ? &classOf(parameter) : nullptr;
}

void GeneratedForm::make(const Parameter& parameter) { makePage(m_pageOf.at(&parameter)); }

void GeneratedForm::makePage(std::size_t index)
{
    Page& page = m_pages[index];
    if (!page.bands.empty())
        return;
    // In its place from the start: moving a widget into another takes the longer the more there are.
    auto* widget = new QWidget(page.area->viewport());
    auto* column = new QVBoxLayout(widget);
    while (page.rows.size() < page.parameters.size())
        addBand(page, *widget);
    column->addStretch(1);
    std::vector<core::Control*> made;
    for (const Row& row : page.rows) {
        for (const auto& control : row.controls)
            made.push_back(control.get());
    }
    m_hear(made);
    translatePage(page);
    page.area->setWidget(widget);
}

void GeneratedForm::addBand(Page& page, QWidget& widget)
{
    constexpr std::size_t kRows = 32;
    auto* band = new QWidget(&widget);
    auto* grid = new QGridLayout(band);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setColumnStretch(2, 1);
    widget.layout()->addWidget(band);
    page.bands.push_back(std::make_unique<platform::qt::QtContainer>(*band, core::pictureData));
    const std::size_t first = page.rows.size();
    for (std::size_t i = first; i < std::min(first + kRows, page.parameters.size()); ++i)
        addRow(page, *grid, *page.parameters[i]);
    page.bands.back()->setUserMode(true);
}

void GeneratedForm::addRow(Page& page, QGridLayout& grid, const Parameter& parameter)
{
    const int line = grid.rowCount();
    const core::ClassInfo& info = classOf(parameter);
    const LooksRow& looks = looksOf(info);
    const Qt::Alignment level = looks.tall ? Qt::AlignTop : Qt::AlignVCenter;
    QWidget* widget = grid.parentWidget();
    Row row{&parameter, new QLabel(widget), new QLabel(widget), {}};
    for (QLabel* label : {row.caption, row.note})
        label->setTextFormat(Qt::PlainText);
    row.caption->setWordWrap(true);
    for (QLabel* label : {row.caption, row.note})
        label->setContentsMargins(0, looks.tall ? kFrame : 0, 0, 0);
    auto* column = new QVBoxLayout;
    column->setSpacing(0);
    for (std::size_t i = 0; i < (isChoice(info) ? parameter.entries.size() : 1); ++i) {
        core::Control& control = addControl(page, row, info, isChoice(info) ? &parameter.entries[i] : nullptr);
        column->addWidget(&platform::qt::widgetOf(control.surface()), 0, Qt::AlignLeft);
    }
    auto* field = new QHBoxLayout;
    field->addLayout(column);
    field->addWidget(row.note, 0, level);
    grid.addWidget(row.caption, line, 0, level);
    grid.addLayout(field, line, 1, Qt::AlignLeft | level);
    page.rows.push_back(std::move(row));
}

core::Control& GeneratedForm::addControl(Page& page, Row& row, const core::ClassInfo& info, const Entry* entry)
{
    core::ControlPtr<> control = info.create(*page.bands.back());
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
    putIfThere(control, "OutputUnit", static_cast<std::int32_t>(formUnit(parameter, control.info())));
    putIfThere(control, "NumberOfDigits",
               appearance.digits.value_or(decimalsOf(parameter).value_or(kUsualDigits)));
}

const core::ClassInfo& GeneratedForm::classOf(const Parameter& parameter) const
{
    const core::ClassInfo* info = m_classes.find(parameter.appearance.control);
    return info != nullptr ? *info : *m_classes.find(kUsualClass);
}

std::vector<core::Control*> GeneratedForm::controls()
{
    std::vector<core::Control*> controls;
    for (const Page& page : m_pages) {
        for (const Row& row : page.rows) {
            for (const auto& control : row.controls)
                controls.push_back(control.get());
        }
    }
    return controls;
}

void GeneratedForm::mark(int page, const QIcon& icon, const QString& tip)
{
    Form::mark(page, icon, tip);
    if (m_tree != nullptr)
        m_tree->mark(page);
}

void GeneratedForm::arrange()
{
    const Page& page = m_pages[static_cast<std::size_t>(std::max(m_tabs->currentIndex(), 0))];
    for (const Row& row : page.rows) {
        bool shown = false;
        for (const auto& control : row.controls)
            shown = showIfHad(*control) || shown;
        if (row.caption->isHidden() == shown) {
            row.caption->setVisible(shown);
            row.note->setVisible(shown);
        }
        if (!shown || !isInSight(page, row))
            continue;
        for (const auto& control : row.controls)
            fitSize(*control);
        core::Control& first = *row.controls.front();
        showNote(*row.note, first, *row.parameter, !isKnown || isKnown(first), m_language);
    }
}

bool GeneratedForm::isInSight(const Page& page, const Row& row)
{
    const QWidget& sight = *page.area->viewport();
    const QWidget& first = platform::qt::widgetOf(row.controls.front()->surface());
    const QWidget& last = platform::qt::widgetOf(row.controls.back()->surface());
    return first.mapTo(&sight, QPoint()).y() < sight.height() &&
           last.mapTo(&sight, QPoint()).y() + last.height() > 0;
}

QSize GeneratedForm::wholeSize()
{
    QSize inner(0, 0);
    int scrollBar = 0;
    for (const Page& page : m_pages) {
        if (const QWidget* made = page.area->widget())
            inner = inner.expandedTo(made->sizeHint());
        inner.setHeight(std::max(inner.height(), heightOf(page)));
        scrollBar = page.area->verticalScrollBar()->sizeHint().width();
    }
    if (m_tree != nullptr)
        return inner + QSize(scrollBar + kTreeWidth, 0);
    return m_tabs->sizeHint().expandedTo(inner + QSize(scrollBar, m_tabs->tabBar()->sizeHint().height()));
}

int GeneratedForm::heightOf(const Page& page) const
{
    // What is not there yet cannot be measured.
    const int space = m_whole->style()->pixelMetric(QStyle::PM_LayoutVerticalSpacing);
    int height = 0;
    for (const Parameter* parameter : page.parameters) {
        const core::ClassInfo& info = classOf(*parameter);
        height += heightIn(info, *parameter, m_whole->font()) + std::max(space, kFrame);
    }
    return height;
}

void GeneratedForm::translate(const std::string& language)
{
    m_language = language;
    for (std::size_t i = 0; i < m_pages.size(); ++i) {
        const QString name = text(m_pages[i].title->in(language)).replace('&', "&&");
        m_tabs->setTabText(static_cast<int>(i), name.isEmpty() ? tr("General") : name);
        translatePage(m_pages[i]);
    }
    if (m_tree != nullptr)
        m_tree->renew(language);
    arrange();
}

void GeneratedForm::translatePage(const Page& page)
{
    int width = 0;
    for (const Row& row : page.rows) {
        translateRow(row);
        const int own = row.caption->fontMetrics().horizontalAdvance(row.caption->text()) + 2;
        width = std::max(width, std::min(own, kWidestCaption));
    }
    for (const Row& row : page.rows)
        row.caption->setFixedWidth(width);
}

void GeneratedForm::translateRow(const Row& row)
{
    row.caption->setText(breakable(text(row.parameter->captionIn(m_language))));
    for (std::size_t i = 0; i < row.controls.size(); ++i) {
        core::Control& control = *row.controls[i];
        if (isChoice(control.info()))
            setOwnCaption(control, text(row.parameter->entries[i].text.in(m_language)));
        else if (!looksOf(control.info()).caption.empty())
            setOwnCaption(control, {});
        else if (control.info().name == "ctx_ZorListBox")
            giveRoomForBits(control, *row.parameter, m_language);
        else if (control.info().name == "ctx_ZorComboBox")
            giveRoomForEntries(control);
    }
}

} // namespace zor::monitor
