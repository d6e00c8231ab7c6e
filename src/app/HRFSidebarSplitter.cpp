#include "app/HRFSidebarSplitter.h"

#include "app/HRFSidebar.h"
#include "kit/HRFUserDefaults.h"

using namespace Qt::StringLiterals;

namespace {

const QString hiddenKey = u"lirra.display.sidebarHidden"_s;
const QString widthKey = u"lirra.display.sidebarWidth"_s;
constexpr int usualWidth = 310;

} // namespace

HRFSidebarSplitter::HRFSidebarSplitter(QWidget &view, HRFSidebar &sidebar, QWidget *parent)
    : QSplitter(parent), m_sidebar(sidebar)
{
    constexpr int plenty = 10000;
    const HRFUserDefaults &defaults = HRFUserDefaults::standard();
    setObjectName(u"splitter"_s);
    addWidget(&view);
    addWidget(&sidebar);
    setChildrenCollapsible(false);
    setStretchFactor(0, 1);
    setStretchFactor(1, 0);
    const int width = int(defaults.integerForKey(widthKey));
    setSizes({plenty, width > 0 ? width : usualWidth});
    sidebar.setVisible(!defaults.boolForKey(hiddenKey));
    connect(this, &QSplitter::splitterMoved, this, &HRFSidebarSplitter::rememberWidth);
}

bool HRFSidebarSplitter::showsSidebar() const
{
    return !m_sidebar.isHidden();
}

void HRFSidebarSplitter::setShowsSidebar(bool shows)
{
    if (!shows)
        m_sidebar.commit();
    m_sidebar.setVisible(shows);
    HRFUserDefaults::standard().setValueForKey(!shows, hiddenKey);
}

void HRFSidebarSplitter::rememberWidth() const
{
    HRFUserDefaults::standard().setValueForKey(m_sidebar.width(), widthKey);
}
