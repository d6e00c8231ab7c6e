#include "document/HRFDocumentController.h"

#include "document/HRFPlaylist.h"
#include "kit/HRFApplication.h"
#include "kit/HRFAssert.h"
#include "kit/HRFUserDefaults.h"
#include "operations/HRFProgressWindowController.h"
#include "tags/HRFTagEngine.h"

#include <QFileInfo>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

HRFDocumentController *theController = nullptr;

const QString moveDestinationsKey = u"com.harrowfield.lirra.recents.moveDestinationFolderURLs"_s;
const QString recentDocumentsKey = u"com.harrowfield.lirra.recents.documentURLs"_s;
const QString startupDirectoryKey = u"com.harrowfield.lirra.startupDirectoryURL"_s;

constexpr qsizetype mostRecent = 10;

QStringList storedFolders(const QString &key)
{
    return HRFUserDefaults::standard().valueForKey(key).toStringList();
}

void moveToFront(QStringList &folders, const QString &folder)
{
    folders.removeAll(folder);
    folders.prepend(folder);
}

bool isFolder(const QString &path)
{
    return QFileInfo(path).isDir();
}

} // namespace

HRFDocumentController::HRFDocumentController()
{
    HRFRequire(!theController, "HRFDocumentController::shared");
    theController = this;
    m_recentMoveDestinations = storedFolders(moveDestinationsKey);
    m_recentMoveDestinations.removeIf([](const QString &folder) { return !isFolder(folder); });
    connect(&HRFApplication::shared(), &HRFApplication::applicationWillTerminate, this,
            &HRFDocumentController::saveRecentMoveDestinations);
}

HRFDocumentController::~HRFDocumentController()
{
    m_documents.clear();
    theController = nullptr;
}

HRFDocumentController &HRFDocumentController::shared()
{
    HRFRequire(theController, "HRFDocumentController::shared");
    return *theController;
}

HRFPlaylist &HRFDocumentController::newDocument()
{
    m_documents.push_back(std::make_unique<HRFPlaylist>(*this));
    return *m_documents.back();
}

HRFPlaylist *HRFDocumentController::currentDocument() const
{
    return m_current || m_documents.empty() ? m_current : m_documents.front().get();
}

void HRFDocumentController::removeDocument(HRFPlaylist &document)
{
    const auto found =
        std::ranges::find(m_documents, &document, &std::unique_ptr<HRFPlaylist>::get);
    if (found == m_documents.end())
        return; // it is on its way
    if (m_current == &document)
        m_current = nullptr;
    found->release()->deleteLater();
    m_documents.erase(found);
}

QStringList HRFDocumentController::recentMoveDestinationURLs() const
{
    QStringList present = m_recentMoveDestinations;
    present.removeIf([](const QString &folder) { return !isFolder(folder); });
    return present;
}

void HRFDocumentController::noteNewRecentMoveDestinationURL(const QString &folder)
{
    moveToFront(m_recentMoveDestinations, folder);
}

void HRFDocumentController::clearRecentMoveDestinations()
{
    m_recentMoveDestinations.clear();
    HRFUserDefaults::standard().setValueForKey({}, moveDestinationsKey);
}

/// Another program of the user's may have stored some, too.
void HRFDocumentController::saveRecentMoveDestinations()
{
    QStringList folders = m_recentMoveDestinations;
    for (const QString &stored : storedFolders(moveDestinationsKey))
        if (!folders.contains(stored))
            folders.append(stored);
    if (!folders.isEmpty())
        HRFUserDefaults::standard().setValueForKey(
            folders.first(std::min(mostRecent, folders.size())), moveDestinationsKey);
}

QStringList HRFDocumentController::recentDocuments() const
{
    return storedFolders(recentDocumentsKey);
}

void HRFDocumentController::noteNewRecentDocument(const QString &folder)
{
    QStringList folders = recentDocuments();
    moveToFront(folders, folder);
    HRFUserDefaults::standard().setValueForKey(folders.first(std::min(mostRecent, folders.size())),
                                               recentDocumentsKey);
}

std::optional<QString> HRFDocumentController::startupDirectoryURL()
{
    return HRFUserDefaults::standard().stringForKey(startupDirectoryKey);
}

void HRFDocumentController::setStartupDirectoryURL(const std::optional<QString> &folder)
{
    HRFUserDefaults::standard().setValueForKey(folder ? QVariant(*folder) : QVariant(),
                                               startupDirectoryKey);
}

void HRFDocumentController::openStartupDirectory()
{
    const auto folder = startupDirectoryURL();
    if (HRFPlaylist *list = folder ? currentDocument() : nullptr)
        list->importFileAtPath(HRFFileReference::fromPath(*folder));
}

const QStringList &HRFDocumentController::allowedTypesForOpenPanel()
{
    static const QStringList types = [] {
        QStringList made;
        for (const QByteArray &type : HRFTagEngine::metaDataFileTypes())
            made.append(QString::fromLatin1(type));
        made.sort();
        return made;
    }();
    return types;
}
