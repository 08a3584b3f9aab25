#include <zor/monitor/language/words.h>
#include <zor/monitor/ui/status_line.h>

#include <QLocale>
#include <QPainter>

#include <algorithm>
#include <utility>

namespace zor::monitor {
namespace {

constexpr int kMessageMilliseconds = 8000;

} // namespace

void ElidedLabel::show(const QString& text, const QString& more)
{
    if (text == this->text())
        return;
    setText(text);
    const QString below = more.isEmpty() ? QString() : "<br>" + more.toHtmlEscaped();
    setToolTip("<span>" + text.toHtmlEscaped() + below + "</span>");
}

void ElidedLabel::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    const QString shown = fontMetrics().elidedText(text(), Qt::ElideRight, contentsRect().width());
    painter.drawText(contentsRect(), static_cast<int>(Qt::AlignVCenter) | Qt::TextSingleLine, shown);
}

StatusLine::StatusLine(QStatusBar& bar) : m_bar(bar), m_state(new ElidedLabel(&bar)), m_traffic(new QLabel(&bar))
{
    m_traffic->setTextFormat(Qt::PlainText);
    // A message takes the place of what is not permanent.
    m_bar.addWidget(m_state, 1);
    m_bar.addPermanentWidget(m_traffic);
}

void StatusLine::follow(Session& session, bool simulated)
{
    if (std::exchange(m_session, &session) != &session)
        m_rounds = -1;
    m_simulated = simulated;
    m_counted = {session.link().reads().requests, session.link().writes().requests};
    m_traffic->clear();
    m_traffic->setToolTip({});
    m_clock.start();
}

void StatusLine::showRound(bool answered)
{
    if (std::exchange(m_rounds, m_session->poller().rounds()) != m_session->poller().rounds())
        m_time = QTime::currentTime();
    const bool writing = m_session->isWriting();
    if (std::exchange(m_answered, answered) != answered || writing)
        m_bar.clearMessage();
    const QString record = m_session->recordError();
    QFont font = m_bar.font();
    font.setBold(!answered || !record.isEmpty());
    m_state->setFont(font);
    QString state = connection(answered);
    if (const auto [done, all] = m_session->progress(); writing)
        state = tr("Writing %1 of %2...").arg(std::min(done + 1, all)).arg(all) + "  |  " + state;
    const bool failed = !answered && m_session->poller().rounds() > 0;
    m_state->show(record.isEmpty() ? state : tr("The record cannot be written: %1").arg(record) + "  |  " + state,
                  failed ? Words::advice(m_session->poller().failure()) : QString());
    showTraffic();
    // Who does not answer has no speed; and how the connection stands needs the room first.
    constexpr int kBetween = 4; ///< characters
    const QFontMetrics metrics = m_bar.fontMetrics();
    const int needed = metrics.horizontalAdvance(m_state->text()) + metrics.horizontalAdvance(m_traffic->text()) +
                       kBetween * metrics.horizontalAdvance('0');
    m_traffic->setVisible(answered && needed <= m_bar.width());
}

QString StatusLine::connection(bool answered) const
{
    QString device = m_simulated ? tr("Simulated device") : m_session->link().description();
    if (!m_session->deviceType().empty())
        device += QString(", %1 %2").arg(QString::fromStdString(m_session->deviceType()),
                                         QString::fromStdString(m_session->deviceVersion()));
    const QString time = m_time.toString("HH:mm:ss");
    if (answered)
        return tr("%1: connected, read at %2").arg(device, time);
    if (m_session->poller().rounds() == 0)
        return tr("%1: not read yet").arg(device);
    // What is wrong comes first, and so is not what a narrow window cuts off.
    return tr("No answer: %1 (%2, tried at %3)").arg(Words::reason(m_session->poller().failure()), device, time);
}

void StatusLine::showTraffic()
{
    constexpr qint64 kSecond = 1000;
    if (m_clock.elapsed() < kSecond)
        return;
    const double seconds = static_cast<double>(m_clock.restart()) / kSecond;
    const QLocale locale;
    const auto number = [&](double value) { return locale.toString(value, 'f', 1); };
    const std::array<const Traffic*, 2> kinds{&m_session->link().reads(), &m_session->link().writes()};
    const std::array names{tr("Reads"), tr("Writes")};
    QStringList line;
    QStringList table;
    for (std::size_t i = 0; i < kinds.size(); ++i) {
        const Traffic& traffic = *kinds[i];
        const auto now = static_cast<double>(traffic.requests - std::exchange(m_counted[i], traffic.requests));
        const QString rate = number(now / seconds);
        const QString mean = number(traffic.meanMilliseconds());
        line.append(tr("%1: %2/s, %3 ms").arg(names[i], rate, mean));
        table.append(tr("%1: %2 requests, %3 failed, round trip %4 ms on average, "
                        "%5 ms at most")
                         .arg(names[i])
                         .arg(traffic.requests)
                         .arg(traffic.failures)
                         .arg(mean, number(traffic.longestMilliseconds)));
    }
    m_traffic->setText(line.join("  |  "));
    m_traffic->setToolTip(table.join('\n'));
}

void StatusLine::say(const QString& text) { m_bar.showMessage(text, kMessageMilliseconds); }

} // namespace zor::monitor
