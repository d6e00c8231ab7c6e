#include "conversions/HRFFilePlan.h"

#include "conversions/HRFContainedSubPath.h"
#include "conversions/HRFConversionError.h"
#include "conversions/HRFDestinationMap.h"
#include "conversions/HRFMetaFile+Patterns.h"
#include "kit/HRFAssert.h"
#include "kit/HRFMainThread.h"
#include "operations/HRFFileOperation.h"
#include "operations/HRFFileReference+Locations.h"
#include "store/HRFMetaFile.h"
#include "store/HRFSystemFile.h"

#include <QCoreApplication>
#include <QFile>

#include <algorithm>
#include <cerrno>
#include <filesystem>

using namespace Qt::StringLiterals;
namespace fs = std::filesystem;

namespace {

QString tr(const char *text)
{
    return QCoreApplication::translate("HRFFilePlan", text);
}

/// What a plan needs of a record, which may be gone when a question is answered.
struct Draft
{
    HRFPlannedFile file{};
    QString name{};
    QString extension{};
    QString text{}; ///< what the pattern renders to; empty where that is nothing
};

enum class Work { Rename, Move, Copy };

/// The values that a pattern asks for in vain, whatever stands in for them.
std::vector<HRFError> missingValues(const HRFRecordValues &values, const HRFPattern &pattern)
{
    std::vector<HRFError> missing;
    for (const HRFPatternElement &element : pattern.items()) {
        const auto *item = std::get_if<HRFPatternItem>(&element);
        if (item && !values.valueForKeyPath(item->metadataKeyPath()).isValid())
            missing.push_back(HRFConversionError(HRFConversionErrorCode::someFilesFailed,
                                                 tr("There is no %1").arg(item->title())));
    }
    return missing;
}

std::vector<Draft> draftsOf(const std::vector<HRFMetaFile *> &files, const HRFPattern &pattern,
                            Work work)
{
    const auto render = work == Work::Rename ? &HRFFileNameForPattern : &HRFPathForPattern;
    std::vector<Draft> drafts;
    drafts.reserve(files.size());
    for (const HRFMetaFile *file : files) {
        drafts.push_back({.file = {.objectID = file->objectID(),
                                   .source = file->url().value_or(HRFFileReference()),
                                   .warnings = missingValues(*file, pattern)},
                          .name = file->fileInfo().fileName(),
                          .extension = file->fileInfo().fileExtension(),
                          .text = render(*file, pattern).value_or(QString())});
    }
    return drafts;
}

QByteArray joined(const QByteArray &folder, const QByteArray &rest)
{
    if (rest.isEmpty())
        return folder;
    return folder.endsWith('/') ? folder + rest : folder + '/' + rest;
}

/// Absolute and without "." and "..", whatever the working folder is later. Only the file system
/// knows what is above a link.
HRFFileReference standardised(const HRFFileReference &folder)
{
    std::error_code failure;
    const fs::path path = fs::absolute(folder.nativePath().toStdString(), failure);
    const bool climbs = std::ranges::find(path, fs::path("..")) != path.end();
    const fs::path place = climbs ? fs::weakly_canonical(path, failure) : path.lexically_normal();
    return failure ? folder
                   : HRFFileReference::fromNativePath(QByteArray::fromStdString(place.native()));
}

/// Settles one file after the other.
class Planner
{
public:
    Planner(Work work, const std::optional<HRFFileReference> &baseFolder,
            const HRFPlanAnswers &answers)
        : m_work(work)
        , m_baseFolder(baseFolder.transform(&standardised))
        , m_answers(answers)
        , m_dotNames(answers.dotNames)
        , m_places(work == Work::Copy ? HRFTransfer::Kind::Copy : HRFTransfer::Kind::Move)
    {
    }

    HRFFilePlan plan(std::vector<Draft> drafts)
    {
        for (const Draft &draft : drafts)
            if (!draft.file.source.isNull())
                m_places.add(draft.file.source);
        for (Draft &draft : drafts) {
            if (m_answers.hasToEnd && m_answers.hasToEnd())
                break;
            m_isLast = &draft == &drafts.back();
            if (auto settled = settle(draft); !settled)
                draft.file.refusal = settled.error();
            m_plan.files.push_back(std::move(draft.file));
            if (m_plan.isCancelled)
                break;
        }
        return std::move(m_plan);
    }

private:
    HRFResult<void> settle(Draft &draft);
    HRFResult<void> settleDots(Draft &draft);
    HRFResult<HRFFileReference> destinationOf(const Draft &draft) const;
    HRFResult<void> settlePlace(HRFPlannedFile &file);
    HRFResult<void> getOver(HRFPlannedFile &file, const HRFError &conflict);

    HRFTransfer transferOf(const HRFPlannedFile &file) const
    {
        return {m_places.kind(), file.source, file.destination};
    }
    HRFError nothingRendered(const Draft &draft) const;

    const Work m_work;
    const std::optional<HRFFileReference> m_baseFolder;
    const HRFPlanAnswers &m_answers;
    int m_dotNames;
    bool m_isLast = false;
    HRFDestinationMap m_places;
    HRFFilePlan m_plan;
};

HRFResult<void> Planner::settle(Draft &draft)
{
    HRFPlannedFile &file = draft.file;
    if (draft.text.isEmpty())
        return std::unexpected(nothingRendered(draft));
    if (const auto settled = settleDots(draft); !settled)
        return settled;
    if (file.source.isNull())
        return std::unexpected(HRFFileNotFoundError(draft.name));
    const auto destination = destinationOf(draft);
    if (!destination)
        return std::unexpected(destination.error());
    file.destination = *destination;
    return settlePlace(file);
}

HRFResult<void> Planner::settleDots(Draft &draft)
{
    if (!HRFDotPrefixCheck::isNeededFor(draft.text))
        return {};
    if (!HRFDotPrefixCheck::shouldProceed(draft.text, m_dotNames, m_answers.title)) {
        m_plan.isCancelled = true;
        if (m_work != Work::Rename)
            m_plan.files.clear(); // then nothing is moved at all
        return std::unexpected(HRFDotPrefixCheck::error());
    }
    draft.file.warnings.push_back(HRFDotPrefixCheck::error());
    // Nothing may be left of a name of dots.
    return draft.text.isEmpty() ? std::unexpected(nothingRendered(draft)) : HRFResult<void>();
}

HRFResult<HRFFileReference> Planner::destinationOf(const Draft &draft) const
{
    const HRFFileReference &source = draft.file.source;
    if (m_work == Work::Rename) {
        const HRFResult<void> isName = HRFCheckFileName(draft.text);
        if (!isName)
            return std::unexpected(isName.error());
        return source.withDisplayName(
            draft.extension.isEmpty() ? draft.text : draft.text + u'.' + draft.extension);
    }
    const HRFResult<QString> folders = HRFContainedSubPath(draft.text);
    if (!folders)
        return std::unexpected(folders.error());
    const QByteArray base = m_baseFolder.value_or(parentURL(source)).nativePath();
    const QByteArray name = source.nativePath().sliced(source.nativePath().lastIndexOf('/') + 1);
    return HRFFileReference::fromNativePath(
        joined(joined(base, QFile::encodeName(*folders)), name));
}

HRFResult<void> Planner::settlePlace(HRFPlannedFile &file)
{
    // Moving does not change the case of letters.
    if (m_work == Work::Move
        && (differInCaseAtMost(file.source, file.destination)
            || m_places.areSameButForCase(file.source, file.destination)))
        file.destination = file.source;
    if (const int failure = m_places.obstacleTo(file.destination, file.source); failure == EEXIST) {
        const auto settled = getOver(file, HRFErrorForTransfer(transferOf(file), EEXIST));
        if (!settled)
            return settled;
    } else if (failure != 0) {
        return std::unexpected(HRFErrorForTransfer(transferOf(file), failure));
    }
    m_places.take(file.destination, file.source);
    return {};
}

HRFResult<void> Planner::getOver(HRFPlannedFile &file, const HRFError &conflict)
{
    if (!m_answers.existingItem) {
        file.warnings.push_back(conflict);
        return {};
    }
    switch (m_answers.existingItem(file.destination, m_isLast)) {
    case HRFFileExistsRecovery::KeepBoth: {
        file.warnings.push_back(conflict);
        const auto [place, failure] = m_places.numberedPlaceFor(file.destination, file.source);
        file.destination = place;
        return failure == 0 ? HRFResult<void>()
                            : std::unexpected(HRFErrorForTransfer(transferOf(file), failure));
    }
    case HRFFileExistsRecovery::Replace:
        file.replaces = m_places.isReplaceable(file.destination);
        return file.replaces ? HRFResult<void>() : std::unexpected(conflict);
    case HRFFileExistsRecovery::Stop:
        m_plan.isCancelled = true;
        return std::unexpected(conflict);
    default:
        return std::unexpected(conflict);
    }
}

HRFError Planner::nothingRendered(const Draft &draft) const
{
    const QString text = m_work == Work::Rename
        ? tr("The pattern makes no name for the file “%1”")
        : tr("The pattern makes no folder for the file “%1”");
    return HRFConversionError(HRFConversionErrorCode::someFilesFailed, text.arg(draft.name),
                              tr("A value is missing or empty."));
}

} // namespace

HRFFilePlan HRFPlanRenames(const std::vector<HRFMetaFile *> &files, const HRFPattern &pattern,
                           const HRFPlanAnswers &answers)
{
    HRFRequire(HRFMainThread::isCurrent(), "HRFMainThread::isCurrent()");
    return Planner(Work::Rename, {}, answers).plan(draftsOf(files, pattern, Work::Rename));
}

HRFFilePlan HRFPlanMoves(const std::vector<HRFMetaFile *> &files, const HRFPattern &pattern,
                         const std::optional<HRFFileReference> &baseFolder,
                         const HRFPlanAnswers &answers)
{
    HRFRequire(HRFMainThread::isCurrent(), "HRFMainThread::isCurrent()");
    const Work work = pattern.context().fileOperationCopy ? Work::Copy : Work::Move;
    return Planner(work, baseFolder, answers).plan(draftsOf(files, pattern, work));
}
