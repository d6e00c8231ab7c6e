#include "app/HRFApplicationDelegate.h"

#include "app/HRFListWindow.h"
#include "app/HRFPreferencesWindow.h"
#include "document/HRFPlaylist.h"
#include "kit/HRFAssert.h"
#include "store/HRFViewConfigManager.h"

#include <algorithm>

HRFApplicationDelegate::HRFApplicationDelegate() = default;

HRFApplicationDelegate::~HRFApplicationDelegate()
{
    for (const auto &window : m_windows)
        window->document().setWindow(nullptr);
    m_windows.clear(); // before their lists
    HRFViewConfigManager::releaseSharedManager();
}

HRFListWindow &HRFApplicationDelegate::newList()
{
    HRFPlaylist &list = m_documents.newDocument();
    m_windows.push_back(std::make_unique<HRFListWindow>(list, *this));
    if (++m_listCount > 1)
        m_windows.back()->setWindowTitle(tr("Lirra %1").arg(m_listCount));
    list.setWindow(m_windows.back().get());
    m_documents.setCurrentDocument(&list);
    m_windows.back()->showWindows();
    return *m_windows.back();
}

HRFListWindow &HRFApplicationDelegate::currentWindow()
{
    const auto found = std::ranges::find_if(m_windows, [this](const auto &window) {
        return &window->document() == m_documents.currentDocument();
    });
    HRFRequire(found != m_windows.end(), "currentWindow");
    return **found;
}

void HRFApplicationDelegate::open(const std::vector<HRFFileReference> &paths)
{
    HRFListWindow &window = currentWindow();
    window.showWindows();
    if (!paths.empty())
        window.document().importFilesAtPaths(paths);
}

void HRFApplicationDelegate::showPreferences()
{
    if (!m_preferences)
        m_preferences = std::make_unique<HRFPreferencesWindow>();
    m_preferences->present();
}

void HRFApplicationDelegate::close(HRFListWindow &window)
{
    if (m_windows.size() < 2)
        return quit();
    const auto found = std::ranges::find(m_windows, &window, &std::unique_ptr<HRFListWindow>::get);
    HRFRequire(found != m_windows.end(), "window");
    HRFPlaylist &list = window.document();
    list.setWindow(nullptr);
    window.hide();
    found->release()->deleteLater(); // goes before the list, which is let go of next
    m_windows.erase(found);
    list.close();
}

bool HRFApplicationDelegate::presentQuestion()
{
    return std::ranges::any_of(m_windows,
                               [](const auto &window) { return window->presentQuestion(); });
}

void HRFApplicationDelegate::quit()
{
    if (!presentQuestion())
        terminate();
}

void HRFApplicationDelegate::terminate()
{
    Q_EMIT willTerminate();
    m_documents.terminate([this] {
        for (const auto &window : m_windows)
            window->hide();
        m_preferences.reset();
        Q_EMIT didTerminate();
    });
}
