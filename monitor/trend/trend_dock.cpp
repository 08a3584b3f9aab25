#include <zor/monitor/language/words.h>
#include <zor/monitor/parts/framed_marks.h>
#include <zor/monitor/parts/save_dialog.h>
#include <zor/monitor/trend/trend_chooser.h>
#include <zor/monitor/trend/trend_dock.h>
#include <zor/monitor/trend/trend_export.h>
#include <zor/platform/qt/looks.h>

#include <QAction>
#include <QDate>
#include <QDateTime>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QMessageBox>
#include <QPainter>
#include <QScreen>
#include <QSplitter>
#include <QTableWidget>
#include <QToolBar>
#include <QVBoxLayout>

#include <algorithm>
#include <array>

namespace zor::monitor {
namespace {

enum Which : std::uint8_t { kChoose, kRemove, kPause, kZoomIn, kZoomOut, kShowAll, kFit, kSaveAs };

struct ActionRow {
    const char* text;
    const char* tip;
    const char* key; ///< also in the plot, where the action's key works without it
};

// In the order of Which.
constexpr std::array kTools{
    ActionRow{QT_TRANSLATE_NOOP("TrendDock", "Parameters..."),
              QT_TRANSLATE_NOOP("TrendDock", "Choose the parameters that are plotted"), "Ins"},
    ActionRow{QT_TRANSLATE_NOOP("TrendDock", "Remove"),
              QT_TRANSLATE_NOOP("TrendDock", "Remove the selected curve and what it has recorded"), "Del"},
    ActionRow{QT_TRANSLATE_NOOP("TrendDock", "Pause"),
              QT_TRANSLATE_NOOP("TrendDock", "Stop the picture; recording goes on"), "Space"},
    ActionRow{QT_TRANSLATE_NOOP("TrendDock", "Zoom in"),
              QT_TRANSLATE_NOOP("TrendDock", "Show less time; with Ctrl and the wheel, less of the values"), "+"},
    ActionRow{QT_TRANSLATE_NOOP("TrendDock", "Zoom out"),
              QT_TRANSLATE_NOOP("TrendDock", "Show more time; with Ctrl and the wheel, more of the values"), "-"},
    ActionRow{QT_TRANSLATE_NOOP("TrendDock", "All"),
              QT_TRANSLATE_NOOP("TrendDock", "Show all that has been recorded"), "Home"},
    ActionRow{QT_TRANSLATE_NOOP("TrendDock", "Fit"),
              QT_TRANSLATE_NOOP("TrendDock", "Fit the axes to the values again"), "0"},
    ActionRow{QT_TRANSLATE_NOOP("TrendDock", "Save..."),
              QT_TRANSLATE_NOOP("TrendDock", "Save the values (CSV) or the picture (PNG)"), ""},
};

enum Column : int { kName, kValue, kUnit, kColumns };

QIcon lineIcon(const QColor& color)
{
    constexpr int kWide = 16;
    constexpr int kBroad = 4;
    QPixmap pixmap(kWide, kWide);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.fillRect(0, (kWide - kBroad) / 2, kWide, kBroad, color);
    return pixmap;
}

} // namespace

TrendDock::TrendDock(const Languages& languages, QWidget* parent)
    : QDockWidget(parent), m_languages(languages), m_bar(new QToolBar), m_plot(new PlotWidget(nullptr)),
      m_head(new QLabel), m_table(new QTableWidget(0, kColumns))
{
    setObjectName("trend");
    toggleViewAction()->setShortcut(QKeySequence("Ctrl+T"));
    m_head->setTextFormat(Qt::PlainText);
    m_head->setWordWrap(true);
    m_table->verticalHeader()->hide();
    m_table->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    m_table->horizontalHeader()->setSectionResizeMode(kName, QHeaderView::Stretch);
    m_table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->setSelectionMode(QAbstractItemView::SingleSelection);
    m_table->setTabKeyNavigation(false);
    FramedMarks::on(*m_table);
    setWidget(makeBody());
    buildActions();
    m_plot->onView = [this] { showValues(); };
    connect(m_table, &QTableWidget::itemSelectionChanged, this, [this] { select(); });
    connect(m_table, &QTableWidget::itemChanged, this, [this](const QTableWidgetItem* item) {
        if (!m_filling && item->column() == kName)
            m_trend->show(static_cast<std::size_t>(item->data(Qt::UserRole).toInt()),
                          item->checkState() == Qt::Checked);
    });
    constexpr int kTick = 100;
    m_timer.setInterval(kTick);
    connect(&m_timer, &QTimer::timeout, this, [this] {
        constexpr int kRarely = 5;
        m_plot->pass();
        if (++m_ticks % kRarely == 0)
            showValues();
    });
    translate();
}

QWidget* TrendDock::makeBody()
{
    auto* side = new QWidget;
    auto* column = new QVBoxLayout(side);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(m_head);
    column->addWidget(m_table, 1);
    auto* split = new QSplitter;
    split->addWidget(m_plot);
    split->addWidget(side);
    split->setStretchFactor(0, 1);
    constexpr int kPlot = 520;
    constexpr int kList = 280;
    split->setSizes({kPlot, kList});
    split->setChildrenCollapsible(false);
    auto* whole = new QWidget;
    auto* lines = new QVBoxLayout(whole);
    lines->setContentsMargins(2, 0, 2, 2);
    lines->setSpacing(2);
    lines->addWidget(m_bar);
    lines->addWidget(split, 1);
    return whole;
}

void TrendDock::buildActions()
{
    const std::array<std::function<void()>, kTools.size()> works{
        [this] { choose(); },
        [this] { removeSelected(); },
        [this] { m_plot->pause(m_actions[kPause]->isChecked()); },
        [this] { m_plot->zoom(0.5); },
        [this] { m_plot->zoom(2); },
        [this] { m_plot->showAll(); },
        [this] { m_plot->fitValues(); },
        [this] { save(); },
    };
    for (std::size_t i = 0; i < kTools.size(); ++i) {
        m_actions.push_back(m_bar->addAction(QString()));
        connect(m_actions.back(), &QAction::triggered, this, works[i]);
    }
    m_actions[kPause]->setCheckable(true);
    // The plot has the other keys itself.
    for (const Which which : {kChoose, kRemove}) {
        m_actions[which]->setShortcut(QKeySequence(kTools[which].key));
        m_actions[which]->setShortcutContext(Qt::WidgetWithChildrenShortcut);
        addAction(m_actions[which]);
    }
}

void TrendDock::translate()
{
    setWindowTitle(tr("Trend"));
    for (std::size_t i = 0; i < kTools.size(); ++i) {
        m_actions[i]->setText(tr(kTools[i].text));
        const QString key = QKeySequence(kTools[i].key).toString(QKeySequence::NativeText);
        m_actions[i]->setToolTip(tr(kTools[i].tip) + (key.isEmpty() ? QString() : " (" + key + ')'));
    }
    m_bar->setWindowTitle(tr("Trend"));
    m_plot->setAccessibleName(tr("Plot"));
    m_plot->setAccessibleDescription(tr(
        "Arrow keys move the cursor, with Shift the time; plus and minus zoom, with Ctrl the values; 0 fits them; "
        "Home shows everything, End the present; the space bar pauses."));
    m_table->setAccessibleName(tr("Curves"));
    m_table->setHorizontalHeaderLabels({tr("Parameter"), tr("Value"), tr("Unit")});
    fill();
}

void TrendDock::changeEvent(QEvent* event)
{
    QDockWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        translate();
    else if (event->type() == QEvent::PaletteChange)
        fill();
}

void TrendDock::showEvent(QShowEvent* event)
{
    QDockWidget::showEvent(event);
    m_timer.start();
    m_plot->refresh();
}

void TrendDock::hideEvent(QHideEvent* event)
{
    QDockWidget::hideEvent(event);
    m_timer.stop();
}

// --- The curves

void TrendDock::follow(Trend* trend)
{
    if (m_trend != nullptr)
        m_trend->onCurves = nullptr;
    m_trend = trend;
    if (m_trend != nullptr)
        m_trend->onCurves = [this] {
            fill();
            m_plot->refresh();
        };
    m_plot->show(m_trend);
    fill();
}

void TrendDock::add(std::size_t parameter)
{
    if (m_trend == nullptr)
        return;
    m_trend->add(parameter);
    if (isHidden())
        appear();
    raise();
}

void TrendDock::appear()
{
    constexpr double kOfTheScreen = 0.9;
    setVisible(true);
    // The form keeps its room where the screen has some left.
    QWidget* top = parentWidget();
    if (isFloating() || top->isMaximized() || top->isFullScreen())
        return;
    const auto most = static_cast<int>(top->screen()->availableSize().height() * kOfTheScreen);
    top->resize(top->width(), std::max(top->height(), std::min(most, top->height() + sizeHint().height())));
}

void TrendDock::addTo(QMenu& menu, const Binding& binding)
{
    const Parameter* parameter = binding.parameter();
    if (m_trend == nullptr || parameter == nullptr || !Trend::isPlottable(*parameter))
        return;
    const auto index = static_cast<std::size_t>(parameter - m_trend->session().file().parameters.data());
    if (m_trend->has(index))
        menu.addAction(tr("Remove from the trend"), this, [this, index] { m_trend->remove(index); });
    else
        menu.addAction(tr("Add to the trend"), this, [this, index] { add(index); });
}

void TrendDock::choose()
{
    if (m_trend == nullptr)
        return;
    auto* dialog = new TrendChooser(*m_trend, language(), this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &QDialog::accepted, this, [this, dialog] {
        const std::set<std::size_t> ticked = dialog->ticked();
        for (std::size_t i = 0; i < m_trend->session().file().parameters.size(); ++i) {
            if (ticked.contains(i))
                m_trend->add(i);
            else if (m_trend->has(i))
                m_trend->remove(i);
        }
    });
    dialog->open();
}

void TrendDock::fill()
{
    const std::optional<std::size_t> before = selected();
    m_filling = true;
    m_table->setRowCount(0);
    for (const Curve& curve : m_trend != nullptr ? m_trend->curves() : std::vector<Curve>()) {
        const int row = m_table->rowCount();
        m_table->insertRow(row);
        const Parameter& parameter = m_trend->parameterOf(curve);
        auto* name = new QTableWidgetItem(lineIcon(curveColor(curve.color, palette())),
                                          QString::fromStdString(parameter.captionIn(language())));
        name->setToolTip(platform::qt::plainToolTip(parameter.tag));
        name->setFlags(name->flags() | Qt::ItemIsUserCheckable);
        name->setCheckState(curve.shown ? Qt::Checked : Qt::Unchecked);
        name->setData(Qt::UserRole, static_cast<int>(curve.parameter));
        m_table->setItem(row, kName, name);
        for (const int column : {kValue, kUnit})
            m_table->setItem(row, column, new QTableWidgetItem);
        m_table->item(row, kValue)->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
        if (before == curve.parameter)
            m_table->selectRow(row);
    }
    m_filling = false;
    select();
    showValues();
}

void TrendDock::showValues()
{
    m_actions[kPause]->setChecked(m_plot->isPaused());
    if (m_trend == nullptr)
        return;
    m_head->setText(head());
    m_filling = true;
    const std::int64_t at = m_plot->view().cursor.value_or(m_trend->now());
    for (int row = 0; row < m_table->rowCount(); ++row) {
        const Curve& curve = m_trend->curves()[static_cast<std::size_t>(row)];
        const std::optional<Sample> sample = curve.history.at(at);
        const QString text = sample ? m_trend->valueText(curve, sample->value, language()) : QString();
        m_table->item(row, kValue)->setText(text.isEmpty() ? QString("\u2013") : text);
        m_table->item(row, kUnit)->setText(Words::unit(m_trend->unitOf(curve)));
    }
    m_filling = false;
}

QString TrendDock::head() const
{
    const PlotView& view = m_plot->view();
    if (!view.cursor)
        return m_plot->isPaused() ? tr("Paused; values of now") : tr("Values of now");
    QString time = QLocale().toString(QDateTime::fromMSecsSinceEpoch(*view.cursor).date(), QLocale::ShortFormat) +
                   QDateTime::fromMSecsSinceEpoch(*view.cursor).toString(" HH:mm:ss.zzz");
    const WriteRecord* write = m_plot->writeAtCursor();
    if (write == nullptr)
        return time;
    return time + '\n' +
           tr("Written: %1").arg(QString::fromStdString(describeWrite(m_trend->session(), *write, language())));
}

std::optional<std::size_t> TrendDock::selected() const
{
    const QTableWidgetItem* item = m_table->item(m_table->currentRow(), kName);
    if (item == nullptr || !item->isSelected())
        return std::nullopt;
    return static_cast<std::size_t>(item->data(Qt::UserRole).toInt());
}

void TrendDock::select()
{
    if (m_filling)
        return;
    m_actions[kRemove]->setEnabled(selected().has_value());
    m_plot->emphasize(selected());
}

void TrendDock::removeSelected()
{
    if (const auto parameter = selected())
        m_trend->remove(*parameter);
}

// --- Files

QString TrendDock::saveTo(const QString& file) const
{
    return m_trend != nullptr ? saveTrend(file, *m_trend, m_plot->lastingView(), language()) : QString();
}

void TrendDock::save()
{
    const QString usual = "trend" + QDateTime::currentDateTime().toString("-yyyy-MM-dd-HHmm");
    const std::array kinds{FileKind{tr("Values (*.csv)"), "csv"}, FileKind{tr("Picture (*.png)"), "png"}};
    const QString file = askWhereToSave(this, tr("Save trend"), usual, kinds);
    if (file.isEmpty())
        return;
    const QString error = saveTo(file);
    if (error.isEmpty()) {
        if (say)
            say(tr("Trend saved: %1").arg(file));
        return;
    }
    auto* box =
        new QMessageBox(QMessageBox::Warning, tr("Save trend"), file + ": " + error, QMessageBox::Ok, this);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setTextFormat(Qt::PlainText);
    box->open();
}

} // namespace zor::monitor
