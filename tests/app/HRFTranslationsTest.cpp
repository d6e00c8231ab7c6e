#include "app/HRFTranslations.h"

#include "app/HRFApplicationDelegate.h"
#include "app/HRFDesktopApplication.h"
#include "app/HRFListWindow.h"
#include "kit/HRFUserDefaults.h"
#include "store/HRFAttributeManager.h"
#include "store/HRFDataFolder.h"
#include "support/HRFScriptedInteraction.h"
#include "support/HRFTestApplication.h"

#include <QKeySequence>
#include <QMenu>
#include <QMenuBar>
#include <QTranslator>

using namespace Qt::StringLiterals;

namespace {

class HRFTranslationsTest : public HRFTestWithApplication<HRFDesktopApplication>
{
protected:
    HRFTranslationsTest() : dataFolder(*HRFDataFolder::take(path(u"data"_s)))
    {
        HRFUserDefaults::standard().setFilePath(path(u"settings.ini"_s));
        HRFAttributeManager::releaseSharedManager();
    }
    void TearDown() override
    {
        HRFTestWithApplication::TearDown();
        speak(u"C"_s);
        HRFUserDefaults::standard().setFilePath({});
    }

    static void speak(const QString &language)
    {
        for (QTranslator *texts : qApp->findChildren<QTranslator *>())
            delete texts;
        QLocale::setDefault(QLocale(language));
        HRFTranslations::install();
    }
    /// Fails for every key that opens two entries of a menu, and goes on with its submenus.
    static void checkMnemonics(const QWidget &menu)
    {
        QStringList keys;
        for (const QAction *action : menu.actions()) {
            const QKeySequence key = QKeySequence::mnemonic(action->text());
            EXPECT_FALSE(!key.isEmpty() && keys.contains(key.toString()))
                << action->text().toStdString();
            keys += key.toString();
            if (action->menu())
                checkMnemonics(*action->menu());
        }
    }

    HRFScriptedInteraction user;
    std::unique_ptr<HRFDataFolder> dataFolder;
};

TEST_F(HRFTranslationsTest, speaksTheLanguageOfTheUser)
{
    const struct
    {
        QString locale;
        QString command;
        QString attribute;
        QString fact;
    } cases[] = {
        {u"de_AT"_s, u"&Bearbeiten"_s, u"Interpret"_s, u"Hauptinterpret des Titels"_s},
        {u"zh_CN"_s, u"编辑(&E)"_s, u"艺术家"_s, u"音轨的主要表演者"_s},
        {u"en_GB"_s, u"&Edit"_s, u"Artist"_s, u"Lead performer of the track"_s},
        {u"fr_FR"_s, u"&Edit"_s, u"Artist"_s, u"Lead performer of the track"_s},
    };
    for (const auto &test : cases) {
        speak(test.locale);
        EXPECT_EQ(QCoreApplication::translate("HRFListCommands", "&Edit"), test.command);
        EXPECT_EQ(HRFAttributeManager::artist().displayName(), test.attribute);
        EXPECT_EQ(HRFAttributeManager::artist().localizedDescription(), test.fact);
    }
}

TEST_F(HRFTranslationsTest, opensEveryEntryOfAMenuByAKeyOfItsOwn)
{
    for (const QString &language : {u"en"_s, u"de"_s, u"zh_CN"_s}) {
        SCOPED_TRACE(language.toStdString());
        speak(language);
        HRFApplicationDelegate application;
        checkMnemonics(*application.newList().menuBar());
    }
}

} // namespace
