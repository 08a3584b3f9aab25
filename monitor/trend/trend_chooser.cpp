#include <zor/monitor/language/words.h>
#include <zor/monitor/parts/framed_marks.h>
#include <zor/monitor/parts/kept_return.h>
#include <zor/monitor/trend/trend_chooser.h>
#include <zor/platform/qt/looks.h>

#include <QDialogButtonBox>
#include <QLineEdit>
#include <QListWidget>
#include <QVBoxLayout>

namespace zor::monitor {

TrendChooser::TrendChooser(const Trend& trend, const std::string& language, QWidget* parent)
    : QDialog(parent), m_text(new QLineEdit), m_list(new QListWidget)
{
    setWindowTitle(tr("Parameters to plot"));
    m_text->setPlaceholderText(tr("Filter: parameter or tag"));
    m_text->setAccessibleName(m_text->placeholderText());
    m_text->setClearButtonEnabled(true);
    KeptReturn::on(*m_text);
    m_list->setAccessibleName(windowTitle());
    m_list->setUniformItemSizes(true);
    FramedMarks::on(*m_list);
    const std::vector<Parameter>& parameters = trend.session().file().parameters;
    for (std::size_t i = 0; i < parameters.size(); ++i) {
        if (!Trend::isPlottable(parameters[i]))
            continue;
        const QString unit = Words::unit(trend.session().shownUnit(i));
        const QString caption = QString::fromStdString(parameters[i].captionIn(language));
        auto* item = new QListWidgetItem(caption + (unit.isEmpty() ? QString() : " [" + unit + ']'), m_list);
        item->setToolTip(platform::qt::plainToolTip(parameters[i].tag));
        item->setData(Qt::UserRole, static_cast<int>(i));
        item->setFlags(item->flags() | Qt::ItemIsUserCheckable);
        item->setCheckState(trend.has(i) ? Qt::Checked : Qt::Unchecked);
    }
    if (m_list->count() > 0)
        m_list->setCurrentRow(0);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_text, &QLineEdit::textChanged, this, [this](const QString& text) { filter(text); });
    auto* column = new QVBoxLayout(this);
    column->addWidget(m_text);
    column->addWidget(m_list, 1);
    column->addWidget(buttons);
    constexpr int kWidth = 380;
    constexpr int kHeight = 420;
    resize(kWidth, kHeight);
}

std::set<std::size_t> TrendChooser::ticked() const
{
    std::set<std::size_t> parameters;
    for (int i = 0; i < m_list->count(); ++i) {
        if (m_list->item(i)->checkState() == Qt::Checked)
            parameters.insert(static_cast<std::size_t>(m_list->item(i)->data(Qt::UserRole).toInt()));
    }
    return parameters;
}

void TrendChooser::filter(const QString& text)
{
    for (int i = 0; i < m_list->count(); ++i) {
        QListWidgetItem* item = m_list->item(i);
        item->setHidden(!item->text().contains(text, Qt::CaseInsensitive) &&
                        !item->toolTip().contains(text, Qt::CaseInsensitive));
    }
    // Space would tick one that nobody sees.
    if (m_list->currentItem() == nullptr || m_list->currentItem()->isHidden()) {
        int first = 0;
        while (first < m_list->count() && m_list->item(first)->isHidden())
            ++first;
        m_list->setCurrentRow(first < m_list->count() ? first : -1);
    }
}

} // namespace zor::monitor
