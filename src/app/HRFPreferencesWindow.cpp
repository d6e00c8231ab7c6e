#include "app/HRFPreferencesWindow.h"

#include "app/HRFPreferenceControl.h"
#include "kit/HRFUserDefaults.h"

#include <QCoreApplication>
#include <QGroupBox>
#include <QPushButton>
#include <QScrollArea>
#include <QShortcut>
#include <QTabWidget>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr struct
{
    HRFPreferencePane pane;
    const char *title;
} panes[] = {
    {HRFPreferencePane::General, QT_TRANSLATE_NOOP("HRFPreferencesWindow", "General")},
    {HRFPreferencePane::Display, QT_TRANSLATE_NOOP("HRFPreferencesWindow", "Display")},
    {HRFPreferencePane::Tagging, QT_TRANSLATE_NOOP("HRFPreferencesWindow", "Tagging")},
    {HRFPreferencePane::Conversions, QT_TRANSLATE_NOOP("HRFPreferencesWindow", "Conversions")},
};

} // namespace

HRFPreferencesWindow::HRFPreferencesWindow()
{
    constexpr QSize usualSize(600, 690);
    setObjectName(u"preferencesWindow"_s);
    setWindowTitle(tr("Preferences"));
    auto *tabs = new QTabWidget(this);
    tabs->setObjectName(u"panes"_s);
    tabs->setAccessibleName(tr("Panes"));
    for (const auto &[pane, title] : panes)
        tabs->addTab(makePane(pane), tr(title));
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(tabs);
    resize(usualSize);
    connect(new QShortcut(QKeySequence::Close, this), &QShortcut::activated, this, &QWidget::close);
}

void HRFPreferencesWindow::present()
{
    show();
    raise();
    activateWindow();
}

QWidget *HRFPreferencesWindow::makePane(HRFPreferencePane pane)
{
    auto *page = new QWidget;
    auto *groups = new QWidget;
    auto *groupLayout = new QVBoxLayout(groups);
    addGroups(pane, *groupLayout);
    groupLayout->addStretch();
    // For low screens.
    auto *area = new QScrollArea(page);
    area->setFrameShape(QFrame::NoFrame);
    area->setWidgetResizable(true);
    area->setFocusPolicy(Qt::NoFocus);
    area->setWidget(groups);
    for (QWidget *ground : {area->viewport(), groups}) // that of the pane shows through
        ground->setAutoFillBackground(false);
    auto *restore = new QPushButton(tr("Restore Defaults"), page);
    restore->setObjectName(u"restoreDefaults"_s);
    restore->setAutoDefault(false);
    restore->setToolTip(tr("Take back every choice of this pane"));
    connect(restore, &QPushButton::clicked, this, [pane] { restoreDefaults(pane); });
    auto *layout = new QVBoxLayout(page);
    layout->addWidget(area);
    layout->addWidget(restore, 0, Qt::AlignRight);
    return page;
}

void HRFPreferencesWindow::addGroups(HRFPreferencePane pane, QBoxLayout &layout)
{
    constexpr int gap = 9;
    const char *title = nullptr;
    QGroupBox *group = nullptr;
    for (const HRFPreferenceRow &row : HRFPreferenceRows()) {
        if (row.pane != pane)
            continue;
        if (!group || row.group != title) {
            title = row.group;
            group = new QGroupBox(QCoreApplication::translate("HRFPreferences", title));
            (new QVBoxLayout(group))->setSpacing(gap);
            layout.addWidget(group);
        }
        group->layout()->addWidget(HRFMakePreferenceControl(row, group));
    }
}

void HRFPreferencesWindow::restoreDefaults(HRFPreferencePane pane)
{
    for (const HRFPreferenceRow &row : HRFPreferenceRows())
        if (row.pane == pane)
            HRFUserDefaults::standard().setValueForKey({}, QString::fromLatin1(row.key));
}
