#include "app/HRFDebugMenu.h"

#include "app/HRFApplicationDelegate.h"
#include "kit/HRFUserDefaults.h"
#include "store/HRFAttributeManager.h"
#include "store/HRFViewConfigManager.h"

using namespace Qt::StringLiterals;

namespace {

const QString settingKey = u"lirra.general.showsDebugMenu"_s;

void dropAttributes()
{
    HRFAttributeManager::sharedManager().resetDatabase();
}

void dropViewConfigurations()
{
    HRFViewConfigManager::sharedManager().resetDatabase();
}

void dropStores()
{
    dropAttributes();
    dropViewConfigurations();
}

void resetDefaults()
{
    HRFUserDefaults::standard().removeUserValues();
}

void resetAll()
{
    dropStores();
    resetDefaults();
}

constexpr struct
{
    QLatin1StringView name{};
    const char *text = nullptr;
    void (*reset)() = nullptr;
    bool endsProgram = false; ///< a store that was reset cannot be used any more
} commands[] = {
    {"dropDatabases"_L1, QT_TRANSLATE_NOOP("HRFDebugMenu", "Drop Databases"), &dropStores, true},
    {"dropViewConfigurations"_L1, QT_TRANSLATE_NOOP("HRFDebugMenu", "Drop View Configurations"),
     &dropViewConfigurations, true},
    {"dropAttributes"_L1, QT_TRANSLATE_NOOP("HRFDebugMenu", "Drop Attributes"), &dropAttributes,
     true},
    {"resetDefaults"_L1, QT_TRANSLATE_NOOP("HRFDebugMenu", "Reset Defaults"), &resetDefaults,
     false},
    {"resetAll"_L1, QT_TRANSLATE_NOOP("HRFDebugMenu", "Reset All"), &resetAll, true},
};

} // namespace

HRFDebugMenu::HRFDebugMenu(HRFApplicationDelegate &application, QWidget *parent)
    : QMenu(tr("&Debug"), parent), m_application(application)
{
    setObjectName(u"debugMenu"_s);
    for (const auto &command : commands) {
        QAction *action = addAction(tr(command.text));
        action->setObjectName(command.name);
        connect(action, &QAction::triggered, this, [this, &command] {
            if (command.endsProgram)
                endProgramAnd(command.reset);
            else
                command.reset();
        });
    }
    connect(&HRFUserDefaults::standard(), &HRFUserDefaults::valueChanged, this,
            &HRFDebugMenu::showIfWanted);
    showIfWanted();
}

/// Work on files is finished first, and windows leave no settings behind afterwards.
void HRFDebugMenu::endProgramAnd(const std::function<void()> &reset)
{
    if (m_application.presentQuestion())
        return;
    connect(&m_application, &HRFApplicationDelegate::didTerminate, &m_application, reset);
    m_application.terminate();
}

void HRFDebugMenu::showIfWanted()
{
    menuAction()->setVisible(HRFUserDefaults::standard().boolForKey(settingKey));
}
