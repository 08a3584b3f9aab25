#include <zor/monitor/language/words.h>
#include <zor/units/mod_Common.h>
#include <zor/units/unit_catalogue.h>

#include <array>

namespace zor::monitor {
namespace {

// In the order of Problem.
constexpr std::array kProblems{
    "",
    QT_TRANSLATE_NOOP("Words", "the entry is not valid"),
    QT_TRANSLATE_NOOP("Words", "the entry is not a number"),
    QT_TRANSLATE_NOOP("Words", "the device cannot hold a number of this size"),
    QT_TRANSLATE_NOOP("Words", "the number is outside the limits"),
    QT_TRANSLATE_NOOP("Words", "the text is too long for the device"),
    QT_TRANSLATE_NOOP("Words", "the device has no such characters"),
    QT_TRANSLATE_NOOP("Words", "the parameter can only be read"),
    QT_TRANSLATE_NOOP("Words", "the device has not been read yet"),
    QT_TRANSLATE_NOOP("Words", "two fields hold different values"),
    QT_TRANSLATE_NOOP("Words", "the device does not have this parameter"),
};

// In the order of WriteOutcome.
constexpr std::array kOutcomeWords{
    QT_TRANSLATE_NOOP("Words", "written and read back"),
    QT_TRANSLATE_NOOP("Words", "refused by the device"),
    QT_TRANSLATE_NOOP("Words", "not sent: no connection"),
    QT_TRANSLATE_NOOP("Words", "unconfirmed: the device did not answer; it is settled by the next read"),
    QT_TRANSLATE_NOOP("Words", "the device holds another value than was written"),
    QT_TRANSLATE_NOOP("Words", "carried out, the device says, but it could not be read back; it is "
                               "settled by the next read"),
    QT_TRANSLATE_NOOP("Words", "not written: the device has changed since the review"),
};

// In the order of Verdict.
constexpr std::array kVerdictWords{
    QT_TRANSLATE_NOOP("Words", "same"),
    QT_TRANSLATE_NOOP("Words", "different"),
    QT_TRANSLATE_NOOP("Words", "only in the file"),
    QT_TRANSLATE_NOOP("Words", "not in the file"),
    QT_TRANSLATE_NOOP("Words", "can only be read"),
    QT_TRANSLATE_NOOP("Words", "cannot be held"),
};

} // namespace

QString Words::verdict(Verdict verdict) { return tr(kVerdictWords[static_cast<std::size_t>(verdict)]); }

QString Words::verdict(const Compared& row)
{
    const QString text = verdict(row.verdict);
    const bool unfit = row.verdict == Verdict::Unfit && row.problem != Problem::None;
    return unfit ? text + ": " + problem(row.problem) : text;
}

QString Words::value(const std::string& text, MEAS_TYPE unit)
{
    const QString label = Words::unit(unit);
    const QString value = QString::fromStdString(text);
    return text.empty() || text == "?" || label.isEmpty() ? value : value + ' ' + label;
}

QString Words::problem(Problem problem) { return tr(kProblems[static_cast<std::size_t>(problem)]); }

QString Words::problem(const Change& change)
{
    const QString text = problem(change.problem);
    const QString lowest = value(change.lowest, change.unit);
    const QString highest = value(change.highest, change.unit);
    if (change.problem == Problem::TextTooLong)
        return tr("%1: %2 characters at most").arg(text, highest);
    if (!lowest.isEmpty() && !highest.isEmpty())
        return tr("%1: %2 to %3").arg(text, QString::fromStdString(change.lowest), highest);
    if (!lowest.isEmpty())
        return tr("%1: %2 or more").arg(text, lowest);
    return highest.isEmpty() ? text : tr("%1: %2 or less").arg(text, highest);
}

QString Words::outcome(const WriteResult& result, const QString& held)
{
    QString text = tr(kOutcomeWords[static_cast<std::size_t>(result.outcome)]);
    if (!held.isEmpty())
        text = tr("%1: %2").arg(text, held);
    return result.exception == 0 ? text : text + QString(" (%1)").arg(reason(result.exception, {}));
}

QString Words::reason(const Reply& reply) { return reason(reply.exception, reply.reason); }

QString Words::reason(std::uint8_t exception, const std::string& english)
{
    const auto told = [](std::string_view words) {
        return QCoreApplication::translate("reasons", std::string(words).c_str());
    };
    if (exception == 0)
        return told(english);
    const QString text = tr("exception %1").arg(exception);
    const std::string_view meaning = exceptionMeaning(exception);
    return meaning.empty() ? text : text + ": " + told(meaning);
}

QString Words::advice(const Reply& reply)
{
    const std::string advice(adviceOn(reply.fault, reply.exception));
    return advice.empty() ? QString() : QCoreApplication::translate("advice", advice.c_str());
}

QString Words::unit(MEAS_TYPE unit)
{
    const std::string identifier(fc_GetUnitID(unit));
    const QString label = QCoreApplication::translate("units", identifier.c_str());
    const std::string_view usual = fc_GetUnitLabel(unit);
    return label != QString::fromStdString(identifier)
               ? label
               : QString::fromUtf8(usual.data(), static_cast<qsizetype>(usual.size()));
}

QString Words::unitType(UNIT_TYPE type)
{
    const auto* const row = units::rowOf(type);
    return row != nullptr ? QCoreApplication::translate("units", std::string(row->displayName).c_str())
                          : QString();
}

} // namespace zor::monitor
