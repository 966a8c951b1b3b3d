#include "app/host/UiTranslation.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>

namespace quillon_ed {

using zqbchwcx::reference::Language;

UiTranslation::~UiTranslation()
{
    QCoreApplication::removeTranslator(&moStandard);
    QCoreApplication::removeTranslator(&moWindow);
}

void UiTranslation::Set(Language language)
{
    QCoreApplication::removeTranslator(&moStandard);
    QCoreApplication::removeTranslator(&moWindow);
    const bool german = language == Language::German;
    const QLocale locale(german ? QLocale::German : QLocale::English);
    QLocale::setDefault(locale);
    const QString standard = QLibraryInfo::path(QLibraryInfo::TranslationsPath);
    if (german && moStandard.load(QStringLiteral("qtbase_de"), standard)) {
        QCoreApplication::installTranslator(&moStandard);
    }
    // The English one has the plurals only.
    const QString window =
        german ? QStringLiteral(":/i18n/quillon-ed_de.qm") : QStringLiteral(":/i18n/quillon-ed_en.qm");
    if (moWindow.load(window)) QCoreApplication::installTranslator(&moWindow);
}

} // namespace quillon_ed
