#include <zor/monitor/ui/device_list.h>
#include <zor/platform/qt/looks.h>

#include <QFileInfo>
#include <QHeaderView>
#include <QPainter>
#include <QSignalBlocker>

#include <algorithm>
#include <array>

namespace zor::monitor {
namespace {

enum ListColumn { kDevice, kState, kWhere, kParameters, kForm, kListColumns };

/// The state of a connection: what the lamp looks like, and what it means.
struct StateRow {
    QRgb color;
    const char* text;
};

constexpr std::array kLamps{
    StateRow{0xFF9E9E9E, QT_TRANSLATE_NOOP("DeviceList", "not read yet")},
    StateRow{0xFF2E9E3E, QT_TRANSLATE_NOOP("DeviceList", "answers")},
    StateRow{0xFFD03030, QT_TRANSLATE_NOOP("DeviceList", "no answer")},
};

const StateRow& stateOf(const DevicePanel& panel)
{
    if (panel.isAnswered())
        return kLamps[1];
    return kLamps[panel.session().failedRounds() > 0 ? 2 : 0];
}

QIcon lamp(QRgb color, int size)
{
    constexpr double kRatio = 4;
    constexpr double kRim = 0.2;
    QPixmap pixmap(QSize(size, size) * kRatio);
    pixmap.setDevicePixelRatio(kRatio);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QColor(color).darker());
    painter.setBrush(QColor(color));
    const double rim = size * kRim;
    painter.drawEllipse(QRectF(0, 0, size, size).adjusted(rim, rim, -rim, -rim));
    QIcon icon;
    for (const QIcon::Mode mode : {QIcon::Normal, QIcon::Selected}) // which would tint it
        icon.addPixmap(pixmap, mode);
    return icon;
}

/// A file by its name; where there is none, what takes its place.
QString fileText(const QString& file, const QString& none)
{
    return file.isEmpty() ? none : QFileInfo(file).fileName();
}

} // namespace

DeviceList::DeviceList() : m_tree(new QTreeWidget(this))
{
    setObjectName("devices");
    setWidget(m_tree);
    m_tree->setRootIsDecorated(false);
    m_tree->setUniformRowHeights(true);
    m_tree->setColumnCount(kListColumns);
    connect(m_tree, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem* item) {
        if (item != nullptr)
            onChosen(static_cast<std::size_t>(m_tree->indexOfTopLevelItem(item)));
    });
}

void DeviceList::list(std::span<const std::unique_ptr<DevicePanel>> panels, const DevicePanel& front)
{
    const QSignalBlocker quiet(m_tree);
    setWindowTitle(tr("Devices"));
    m_tree->setAccessibleName(windowTitle());
    m_tree->setHeaderLabels({tr("Device"), tr("State"), tr("Address"), tr("Parameters"), tr("Form")});
    m_tree->clear();
    for (std::size_t i = 0; i < panels.size(); ++i) {
        const DeviceEntry& entry = panels[i]->device().entry();
        auto* item = new QTreeWidgetItem(m_tree);
        item->setText(kDevice, panels[i]->name());
        item->setToolTip(kDevice, platform::qt::plainToolTip(panels[i]->name().toStdString()));
        item->setText(kParameters, fileText(entry.parameters, tr("of the demonstration")));
        item->setText(kForm, fileText(entry.form, tr("generated")));
        item->setToolTip(kParameters, entry.parameters);
        item->setToolTip(kForm, entry.form);
        renew(i, *panels[i]);
        if (panels[i].get() == &front)
            m_tree->setCurrentItem(item);
    }
    for (int column = 0; column < kListColumns; ++column)
        m_tree->resizeColumnToContents(column);
    // A long name leaves room for the state, and stands in the tooltip.
    constexpr int kMostCharacters = 24;
    const int most = kMostCharacters * m_tree->fontMetrics().averageCharWidth();
    m_tree->setColumnWidth(kDevice, std::min(m_tree->columnWidth(kDevice), most));
}

void DeviceList::renew(std::size_t index, const DevicePanel& panel)
{
    QTreeWidgetItem* item = m_tree->topLevelItem(static_cast<int>(index));
    if (item == nullptr)
        return;
    const DeviceEntry& entry = panel.device().entry();
    item->setText(kWhere, entry.isSimulated() ? tr("simulated") : entry.address);
    const StateRow& state = stateOf(panel);
    QString text = tr(state.text);
    if (panel.session().hasEdits())
        text = tr("%1, edited").arg(text);
    if (item->text(kState) == text)
        return;
    item->setText(kState, text);
    item->setIcon(kDevice, lamp(state.color, m_tree->fontMetrics().height()));
    item->setData(kDevice, Qt::AccessibleTextRole, item->text(kDevice) + ": " + text);
}

void DeviceList::choose(std::size_t index)
{
    const QSignalBlocker quiet(m_tree);
    m_tree->setCurrentItem(m_tree->topLevelItem(static_cast<int>(index)));
}

} // namespace zor::monitor
