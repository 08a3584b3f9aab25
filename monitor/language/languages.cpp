#include <zor/monitor/language/languages.h>
#include <zor/platform/qt/qt_regional.h>

#include <QCoreApplication>
#include <QLibraryInfo>

#include <algorithm>

static void initialiseResources() { Q_INIT_RESOURCE(monitor); }

namespace zor::monitor {
namespace {

bool isKnown(const QString& code)
{
    return std::ranges::any_of(kLanguages, [&](const LanguageRow& row) { return code == row.code; });
}

} // namespace

Languages::Languages() { initialiseResources(); }

Languages::~Languages()
{
    QCoreApplication::removeTranslator(&m_own);
    QCoreApplication::removeTranslator(&m_qt);
}

QString Languages::systemLanguage()
{
    const QString code = QLocale::system().name().section('_', 0, 0);
    return isKnown(code) ? code : QString("en");
}

void Languages::use(const QString& code)
{
    QCoreApplication::removeTranslator(&m_own);
    QCoreApplication::removeTranslator(&m_qt);
    m_code = isKnown(code) ? code : QString("en");
    // The program's texts are English by themselves.
    if (m_code != "en" && m_own.load(":/monitor/zor-monitor_" + m_code + ".qm"))
        QCoreApplication::installTranslator(&m_own);
    if (m_code != "en" && m_qt.load("qtbase_" + m_code, QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(&m_qt);
    const QLocale locale = m_code == systemLanguage() ? QLocale::system() : QLocale(m_code);
    QLocale::setDefault(locale);
    platform::setRegionalSettings(platform::qt::localeRegionalSettings(locale));
}

} // namespace zor::monitor
