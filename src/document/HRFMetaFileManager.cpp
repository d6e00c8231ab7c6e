#include "document/HRFMetaFileManager.h"

#include "document/HRFPlaylist.h"
#include "kit/HRFAssert.h"
#include "kit/HRFFileReferenceTable.h"
#include "operations/HRFProgressWindowController.h"
#include "operations/HRFTagWriteOperation.h"
#include "store/HRFDataFolder.h"
#include "store/HRFMetaFile.h"
#include "store/HRFMetaTags.h"
#include "store/HRFSystemFile.h"

#include <QFileInfo>
#include <QScopedValueRollback>
#include <QUuid>

#include <cerrno>

using namespace Qt::StringLiterals;

HRFMetaFileManager::HRFMetaFileManager(HRFPlaylist &document)
    : m_document(document)
    , m_databaseName(
          u"windowSessions/%1.sqlite"_s.arg(QUuid::createUuid().toString(QUuid::WithoutBraces)))
{
    openStore();
    m_backgroundContext = newPrivateContext();
    m_fileManager.setFileExistsRecovery(HRFFileExistsRecovery::KeepBoth);
    connect(managedObjectContext().get(), &HRFMainContext::objectsDidChange, this,
            &HRFMetaFileManager::contextDidChange);
}

HRFMetaFileManager::~HRFMetaFileManager()
{
    stopImports();
}

HRFOperationQueue &HRFMetaFileManager::fileOperationQueue()
{
    static HRFOperationQueue queue;
    return queue;
}

std::set<std::shared_ptr<HRFProgress>> HRFMetaFileManager::pendingProgresses()
{
    std::set<std::shared_ptr<HRFProgress>> progresses;
    for (const auto &operation : fileOperationQueue().operations())
        if (const auto onFile = std::dynamic_pointer_cast<HRFFileOperation>(operation))
            if (auto progress = onFile->progress())
                progresses.insert(std::move(progress));
    return progresses;
}

QString HRFMetaFileManager::modelName() const
{
    return u"Lirra"_s;
}

QString HRFMetaFileManager::databaseName() const
{
    return m_databaseName;
}

void HRFMetaFileManager::resetDatabase()
{
    HRFRequire(databaseName().contains(u'/'), "[databaseName containsString:@\"/\"]");
    static bool hasWiped = false;
    if (!storeURL().isEmpty() && !std::exchange(hasWiped, true))
        HRFDataFolder::removeSessions(QFileInfo(storeURL()).path());
}

void HRFMetaFileManager::contextDidChange(const HRFContextChanges &changes)
{
    if (changes.isFromBackground)
        return; // the files say so already
    std::vector<HRFObjectChange> tags;
    std::vector<Renaming> renamed;
    for (const HRFObjectChange &change : changes.updated) {
        if (change.object->entity().name == HRFMetaTags::entityName())
            tags.push_back(change);
        const auto *info = dynamic_cast<HRFSystemFile *>(change.object);
        if (!info || !change.affects(u"fileName"_s))
            continue;
        HRFMetaFile *record = info->parentMetaFile();
        const auto file = record->url();
        const auto known =
            file ? file : HRFFileReferenceTable::lastKnownFileForURL(record->fileURL());
        if (known && known->displayName() != info->fileName())
            renamed.push_back({record, file, *known});
    }
    updateTags(tags);
    if (!m_isTakingBackRename)
        renameFiles(renamed);
}

void HRFMetaFileManager::updateTags(const std::vector<HRFObjectChange> &changes)
{
    if (changes.empty())
        return;
    const auto progress = std::make_shared<HRFProgress>(qlonglong(changes.size()));
    progress->setLocalizedDescription(tr("Writing Metadata…"));
    const auto answers = std::make_shared<HRFAppliedAnswers>();
    std::vector<std::shared_ptr<HRFTagWriteOperation>> operations;
    for (const HRFObjectChange &change : changes) {
        const HRFMetaFile &file = *static_cast<HRFMetaTags *>(change.object)->parentMetaFile();
        auto operation = HRFFileOperation::operationWithFile<HRFTagWriteOperation>(file);
        operation->setChangedValues(change.changedValues());
        operation->setAppliedAnswers(answers);
        operation->setProgress(progress);
        operation->setLast(operations.size() + 1 == changes.size());
        operations.push_back(std::move(operation));
    }
    m_document.runOperations({operations.begin(), operations.end()});
    m_writeProgress = progress;
}

void HRFMetaFileManager::renameFiles(const std::vector<Renaming> &renamings)
{
    Names names;
    names.reserve(renamings.size());
    bool areAsAsked = true;
    std::optional<HRFError> failure;
    for (const auto &[record, file, known] : renamings) {
        QString name = known.displayName();
        if (!failure) {
            const QString asked = record->fileInfo().fileName();
            const auto moved = file
                ? rename(*file, asked, record->fileURL())
                : std::unexpected(HRFFileNotFoundError(name, known.displayPath()));
            if (moved)
                name = moved->displayName();
            else
                failure = moved.error();
            areAsAsked = areAsAsked && name == asked;
        }
        names.emplace_back(record->objectID(), name);
    }
    if (failure) {
        takeBackRename();
        HRFUserInteraction::presentErrorLater(
            {.domain = failure->domain,
             .code = failure->code,
             .description = failure->description,
             .recoverySuggestion = tr("The operation was cancelled due to unresolved errors."),
             .path = failure->path,
             .underlying = std::make_shared<HRFError>(*failure)},
            &m_document);
    }
    if (!areAsAsked)
        setNames(names);
}

/// Puts right what records say; most of them have the names of their files already.
void HRFMetaFileManager::setNames(Names names)
{
    std::erase_if(names, [this](const auto &entry) {
        const auto *file = managedObjectContext()->object<HRFMetaFile>(entry.first);
        return file && file->fileInfo().fileName() == entry.second;
    });
    if (names.empty())
        return;
    m_document.performBlockInBackgroundContext([names](HRFPrivateContext &context) {
        for (const auto &[objectID, name] : names)
            if (auto *file = context.object<HRFMetaFile>(objectID))
                file->fileInfo().setFileName(name);
    });
}

HRFResult<HRFFileReference> HRFMetaFileManager::rename(const HRFFileReference &file,
                                                       const QString &name, const QString &fileURL)
{
    const bool isName =
        !name.isEmpty() && name != u"."_s && name != u".."_s && !name.contains(QChar(u'\0'));
    if (isName)
        return m_fileManager.moveItemAtURL(file, file.withDisplayName(name), fileURL);
    return std::unexpected(HRFError{
        .domain = QString::fromLatin1(HRFPOSIXErrorDomain),
        .code = EINVAL,
        .description = tr("The file “%1” cannot be called “%2”").arg(file.displayName(), name),
        .path = file.displayPath()});
}

/// What asked for the rename is undone, where it can be; the names are put right in any case.
void HRFMetaFileManager::takeBackRename()
{
    HRFMainContext &context = *managedObjectContext();
    context.processPendingChanges();
    const QScopedValueRollback isTakingBack(m_isTakingBackRename, true);
    if (context.isUndoRegistrationEnabled() && !context.isUndoingOrRedoing())
        context.undo();
}
