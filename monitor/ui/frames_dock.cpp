#include <zor/monitor/language/words.h>
#include <zor/monitor/ui/frames_dock.h>
#include <zor/monitor/ui/window.h>

#include <QApplication>
#include <QBoxLayout>
#include <QClipboard>
#include <QComboBox>
#include <QDateTime>
#include <QEvent>
#include <QFileDialog>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QSaveFile>
#include <QScrollBar>
#include <QShortcut>
#include <QSplitter>
#include <QTableView>
#include <QTreeWidget>

#include <algorithm>

namespace zor::monitor {
namespace {

constexpr int kRefreshMilliseconds = 250;

QString told(std::string_view english) { return QString::fromStdString(FramesModel::word(english)); }

} // namespace

FramesDock::FramesDock(QWidget* parent) : QDockWidget(parent)
{
    setObjectName("frames");
    setAllowedAreas(Qt::BottomDockWidgetArea | Qt::TopDockWidgetArea);
    build();
    retranslate();
    m_timer.setInterval(kRefreshMilliseconds);
    connect(&m_timer, &QTimer::timeout, this, [this] { follow(); });
    connect(this, &QDockWidget::visibilityChanged, this, [this](bool visible) {
        if (visible) {
            follow();
            m_timer.start();
        } else {
            m_timer.stop();
        }
    });
}

FramesDock& FramesDock::addTo(Window& window)
{
    auto* dock = new FramesDock(&window);
    dock->toggleViewAction()->setShortcut(QKeySequence("Ctrl+Shift+F"));
    window.addDock(*dock, Qt::BottomDockWidgetArea);
    window.whenFront([dock](DevicePanel& panel) {
        dock->say = panel.say;
        dock->watch(&panel.session().link());
    });
    return *dock;
}

void FramesDock::build()
{
    auto* body = new QWidget(this);
    auto* column = new QVBoxLayout(body);
    m_failure = new QLabel(body);
    m_failure->setWordWrap(true);
    m_failure->setTextFormat(Qt::PlainText);
    m_failure->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    column->addWidget(m_failure);
    auto* line = new QHBoxLayout;
    m_text = new QLineEdit(body);
    m_text->setClearButtonEnabled(true);
    m_which = new QComboBox(body);
    m_which->addItems({"", "", ""});
    m_which->setSizeAdjustPolicy(QComboBox::AdjustToContents); // in another language, too
    line->addWidget(m_text, 1);
    line->addWidget(m_which);
    for (QPushButton** button : {&m_pause, &m_clear, &m_copy, &m_save}) {
        *button = new QPushButton(body);
        line->addWidget(*button);
    }
    m_pause->setCheckable(true);
    column->addLayout(line);
    column->addWidget(makeTables(), 1);
    setWidget(body);
    connect(m_text, &QLineEdit::textChanged, this, [this] { refilter(); });
    connect(m_which, &QComboBox::currentIndexChanged, this, [this] { refilter(); });
    connect(m_pause, &QPushButton::toggled, this, [this] { follow(); });
    connect(m_clear, &QPushButton::clicked, this, [this] { clear(); });
    connect(m_copy, &QPushButton::clicked, this, [this] { copy(); });
    connect(m_save, &QPushButton::clicked, this, [this] { save(); });
    auto* find = new QShortcut(QKeySequence::Find, this, nullptr, nullptr, Qt::WidgetWithChildrenShortcut);
    connect(find, &QShortcut::activated, this, [this] { m_text->setFocus(); });
}

QWidget* FramesDock::makeTables()
{
    auto* parts = new QSplitter(Qt::Horizontal);
    m_table = new QTableView(parts);
    m_table->setModel(&m_model);
    m_table->verticalHeader()->hide();
    m_table->verticalHeader()->setDefaultSectionSize(fontMetrics().height() * 3 / 2);
    m_table->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    m_table->horizontalHeader()->setStretchLastSection(true);
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->setTabKeyNavigation(false);
    m_table->setWordWrap(false);
    constexpr std::array<int, FramesModel::kColumns> kCharacters{14, 10, 6, 46, 11, 40};
    for (int i = 0; i < FramesModel::kColumns; ++i)
        m_table->setColumnWidth(i,
                                fontMetrics().horizontalAdvance('0') * kCharacters[static_cast<std::size_t>(i)]);
    m_fields = new QTreeWidget(parts);
    m_fields->setRootIsDecorated(false);
    m_fields->setUniformRowHeights(true);
    parts->setStretchFactor(0, 3);
    parts->setStretchFactor(1, 2);
    parts->setChildrenCollapsible(false);
    // Whoever looks at the newest goes on doing so.
    QScrollBar* bar = m_table->verticalScrollBar();
    connect(bar, &QScrollBar::valueChanged, this, [this, bar] { m_atEnd = bar->value() == bar->maximum(); });
    connect(bar, &QScrollBar::rangeChanged, this, [this] {
        if (m_atEnd)
            m_table->scrollToBottom();
    });
    connect(m_table->selectionModel(), &QItemSelectionModel::currentRowChanged, this, [this] { showFields(); });
    auto* copies = new QShortcut(QKeySequence::Copy, m_table, nullptr, nullptr, Qt::WidgetShortcut);
    connect(copies, &QShortcut::activated, this, [this] { copy(); });
    return parts;
}

void FramesDock::retranslate()
{
    setWindowTitle(tr("Frames"));
    m_text->setPlaceholderText(tr("Filter: message, unit or bytes"));
    m_text->setAccessibleName(m_text->placeholderText());
    const QStringList which{tr("All frames"), tr("Only failures"), tr("Only writes")};
    for (int i = 0; i < which.size(); ++i)
        m_which->setItemText(i, which[i]);
    m_which->setAccessibleName(tr("What is shown"));
    m_pause->setText(tr("&Pause"));
    m_clear->setText(tr("Cl&ear"));
    m_copy->setText(tr("&Copy"));
    m_save->setText(tr("&Save..."));
    m_table->setAccessibleName(tr("Frames"));
    m_fields->setAccessibleName(tr("Fields of the frame"));
    m_fields->setHeaderLabels({tr("Field"), tr("Value"), tr("Bytes")});
    m_model.retranslate();
    showFields();
    showFailure();
}

void FramesDock::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QDockWidget::changeEvent(event);
}

void FramesDock::watch(Link* link)
{
    m_link = link;
    if (m_link != nullptr)
        m_model.begin(m_link->frames(), true);
    showFailure();
}

bool FramesDock::isPaused() const { return m_pause->isChecked(); }

void FramesDock::follow()
{
    if (m_link == nullptr || isPaused())
        return;
    m_model.follow(m_link->frames());
    showFailure();
}

void FramesDock::refilter()
{
    if (m_link == nullptr)
        return;
    m_model.filter(m_text->text(), static_cast<FramesModel::Which>(m_which->currentIndex()), m_link->frames());
    showFields();
}

void FramesDock::showFields()
{
    m_fields->clear();
    const QModelIndex current = m_table->currentIndex();
    if (!current.isValid())
        return;
    const Frame& frame = *m_model.frame(current.row());
    for (const Field& field : decodeFrame(frame)) {
        QString name = told(field.name);
        if (field.index >= 0)
            name += QString(" %1").arg(field.index);
        QString value = QString::fromStdString(field.value);
        if (!field.meaning.empty())
            value += " (" + told(field.meaning) + ')';
        const auto bytes = std::span(frame.bytes).subspan(field.at, field.size);
        m_fields->addTopLevelItem(new QTreeWidgetItem({name, value, QString::fromStdString(hexOf(bytes))}));
    }
    for (int i = 0; i < m_fields->columnCount(); ++i)
        m_fields->resizeColumnToContents(i);
}

void FramesDock::showFailure()
{
    if (m_link == nullptr || m_link->lastFailure().outcome == Outcome::Answered)
        return m_failure->setText(tr("No failure so far."));
    const Reply& failure = m_link->lastFailure();
    const QString reason = Words::reason(failure);
    const std::int64_t at = m_link->lastFailureAt();
    const QString time = QDateTime::fromMSecsSinceEpoch(at).toString("HH:mm:ss");
    // What the device refuses it goes on refusing, whatever else it answers.
    const auto& frames = m_link->frames().all();
    const auto last = std::find_if(frames.rbegin(), frames.rend(),
                                   [](const auto& one) { return one->kind == Frame::Kind::Reply; });
    const bool since = failure.outcome != Outcome::Refused && last != frames.rend() && (*last)->time > at;
    m_failure->setText(since ? tr("Last failure, at %1: %2. The device has answered since.").arg(time, reason)
                             : tr("Last failure, at %1: %2. %3").arg(time, reason, Words::advice(failure)));
}

void FramesDock::clear()
{
    if (m_link != nullptr)
        m_model.begin(m_link->frames(), false);
    showFields();
}

QString FramesDock::textOf(bool selectedOnly) const
{
    QString text;
    for (int row = 0; row < m_model.rowCount(); ++row) {
        if (!selectedOnly || m_table->selectionModel()->isRowSelected(row))
            text += QString::fromStdString(lineOf(*m_model.frame(row))) + '\n';
    }
    return text;
}

void FramesDock::copy()
{
    const bool selected = m_table->selectionModel()->hasSelection();
    QApplication::clipboard()->setText(textOf(selected));
}

void FramesDock::save(QString file)
{
    if (file.isEmpty())
        file = QFileDialog::getSaveFileName(this, tr("Save frames"), "frames.txt", tr("Text files (*.txt)"));
    if (file.isEmpty())
        return;
    QSaveFile target(file);
    if (target.open(QIODevice::WriteOnly))
        target.write(textOf(false).toUtf8());
    if (target.commit())
        return say ? say(m_model.rowCount() == 1 ? tr("1 frame saved")
                                                 : tr("%1 frames saved").arg(m_model.rowCount()))
                   : void();
    auto* box = new QMessageBox(QMessageBox::Warning, windowTitle(), file + ": " + target.errorString(),
                                QMessageBox::Ok, this);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setTextFormat(Qt::PlainText);
    box->open();
}

} // namespace zor::monitor
