#include "app/HRFTranslations.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

using namespace Qt::StringLiterals;

namespace {

bool installTexts(const QLocale &language, const QString &name, const QString &folder)
{
    auto *texts = new QTranslator(qApp);
    if (texts->load(language, name, u"_"_s, folder))
        return QCoreApplication::installTranslator(texts);
    delete texts;
    return false;
}

} // namespace

void HRFTranslations::install()
{
    for (const QString &name : QLocale().uiLanguages()) {
        const QLocale language(name);
        if (language.language() == QLocale::English) // the texts in the sources
            return;
        if (!installTexts(language, u"lirra"_s, u":/lirra/translations"_s))
            continue;
        installTexts(language, u"qtbase"_s, QLibraryInfo::path(QLibraryInfo::TranslationsPath));
        return;
    }
}
