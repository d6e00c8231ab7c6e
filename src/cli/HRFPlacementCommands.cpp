#include "cli/HRFPlacementCommands.h"

#include "cli/HRFListRun.h"
#include "cli/HRFPlacementReport.h"
#include "kit/HRFUserDefaults.h"
#include "operations/HRFMoveOperation.h"
#include "operations/HRFProgressWindowController.h"
#include "store/HRFMetaFile.h"

#include <algorithm>
#include <map>

using namespace Qt::StringLiterals;

namespace {

using PlannedFiles = HRFFileOperationCC::PlannedFiles;
using Records = HRFListRun::Records;

/// Changes of place that were read from the command line, and the run that they are for.
struct Placement
{
    HRFListRun &run;
    const HRFCommandOptions &options;
    HRFPattern pattern;
    HRFPlacementReport report;

    bool asks() const { return run.console().isInteractive(); }
    /// Nothing where the user is asked.
    std::optional<HRFFileExistsRecovery> recovery() const;
    HRFPlanAnswers answers() const;
    bool needsAnswer(const HRFPlannedFile &planned) const;
    /// Tells of the files that are refused, and leaves them out.
    HRFFilePlan withoutRefused(HRFPlaylist &list, HRFFilePlan plan, std::size_t fileCount) const;
    void preview(const std::function<HRFFilePlan(const Records &)> &makePlan) const;
};

std::optional<HRFFileExistsRecovery> Placement::recovery() const
{
    static const std::map<HRFConflictAnswer, HRFFileExistsRecovery> recoveries = {
        {HRFConflictAnswer::Stop, HRFFileExistsRecovery::Stop},
        {HRFConflictAnswer::Skip, HRFFileExistsRecovery::Skip},
        {HRFConflictAnswer::KeepBoth, HRFFileExistsRecovery::KeepBoth},
        {HRFConflictAnswer::Replace, HRFFileExistsRecovery::Replace},
    };
    const auto found = recoveries.find(options.conversion.onConflict);
    if (found != recoveries.end())
        return found->second;
    return asks() ? std::nullopt : std::optional(HRFFileExistsRecovery::Stop);
}

/// A dry run asks nothing: what would be asked about, it tells.
HRFPlanAnswers Placement::answers() const
{
    HRFPlanAnswers answers{.dotNames = options.conversion.dotNames,
                           .hasToEnd = [this] { return run.hasToEnd(); }};
    if (answers.dotNames == HRFDotPrefixCheck::noAnswer && options.isDryRun)
        answers.dotNames = HRFDotPrefixCheck::proceed;
    else if (answers.dotNames == HRFDotPrefixCheck::noAnswer && !asks())
        answers.dotNames = HRFDotPrefixCheck::cancel;
    const bool isOpen = options.isDryRun && options.conversion.onConflict == HRFConflictAnswer::Ask;
    if (const auto chosen = isOpen ? std::nullopt : recovery())
        answers.existingItem = [chosen](const HRFFileReference &, bool) { return *chosen; };
    return answers;
}

/// Whether the user would be asked about a file, or the run would stop at it.
bool Placement::needsAnswer(const HRFPlannedFile &planned) const
{
    return std::ranges::any_of(planned.warnings, [&](const HRFError &warning) {
        return HRFIsFileExistsError(warning)
            ? options.conversion.onConflict == HRFConflictAnswer::Ask
            : warning.code == HRFDotPrefixCheck::errorCode
                && options.conversion.dotNames == HRFDotPrefixCheck::noAnswer;
    });
}

HRFFilePlan Placement::withoutRefused(HRFPlaylist &list, HRFFilePlan plan,
                                      std::size_t fileCount) const
{
    const std::size_t plannedCount = plan.files.size();
    for (const HRFPlannedFile &planned : plan.files)
        if (planned.refusal)
            report.tellOfRefused(*list.fileWithID(planned.objectID), planned, options.isDryRun);
    std::erase_if(plan.files, [](const HRFPlannedFile &planned) { return bool(planned.refusal); });
    run.leaveOut(fileCount - plannedCount);
    if (plan.isCancelled)
        run.console().report(u"No further files are changed"_s);
    return plan;
}

void Placement::preview(const std::function<HRFFilePlan(const Records &)> &makePlan) const
{
    run.changeFiles([&](HRFPlaylist &list, const Records &records) {
        const HRFFilePlan plan = withoutRefused(list, makePlan(records), records.size());
        for (const HRFPlannedFile &planned : plan.files) {
            report.tellOfPlanned(*list.fileWithID(planned.objectID), planned);
            run.leaveOut(!asks() && needsAnswer(planned) ? 1 : 0);
        }
        return false;
    });
}

/// Nothing takes a place that is not as free as it was when that was planned.
HRFResult<HRFFileReference> renameFile(const HRFMetaFile &record, const HRFPlannedFile &planned)
{
    const std::optional<HRFFileReference> file = record.url();
    if (!file)
        return std::unexpected(HRFFileNotFoundError(planned.source.displayName()));
    if (*file == planned.destination)
        return *file;
    HRFFileManager manager;
    if (planned.replaces)
        manager.setFileExistsRecovery(HRFFileExistsRecovery::Replace);
    return manager.moveItemAtURL(*file, planned.destination);
}

/// Not by edits of the records: such an edit ends at the first file that cannot be renamed.
void renameFiles(const Placement &placement, HRFPlaylist &list, PlannedFiles files)
{
    for (std::size_t i = 0; i < files.size(); ++i) {
        if (placement.run.hasToEnd())
            return placement.run.leaveOut(files.size() - i);
        const HRFMetaFile &record = *list.fileWithID(files[i].objectID);
        if (const auto renamed = renameFile(record, files[i]))
            placement.report.tellOfDone(record, files[i].source, *renamed);
        else
            placement.report.tellOfFailed(record, renamed.error());
    }
}

void rename(const Placement &placement)
{
    const auto makePlan = [&](const Records &records, const HRFPlanAnswers &answers) {
        return HRFPlanRenames(records, placement.pattern, answers);
    };
    if (placement.options.isDryRun)
        return placement.preview(
            [&](const Records &records) { return makePlan(records, placement.answers()); });
    placement.run.changeFiles([&](HRFPlaylist &list, const Records &records) {
        HRFFileManager asker;
        HRFPlanAnswers answers = placement.answers();
        if (!answers.existingItem) {
            answers.existingItem = [&](const HRFFileReference &destination, bool isLast) {
                return asker.userRequestedRecoveryForFileExistsError(destination, !isLast);
            };
        }
        const HRFFilePlan plan =
            placement.withoutRefused(list, makePlan(records, answers), records.size());
        renameFiles(placement, list, plan.files);
        return false;
    });
}

std::optional<HRFFileReference> folderOf(const HRFConversionOptions &options)
{
    const auto &folder = options.targetFolder ? options.targetFolder : options.baseFolder;
    return folder.transform([](const std::string &path) {
        return HRFFileReference::fromNativePath(QByteArray::fromStdString(path));
    });
}

std::shared_ptr<HRFFileManager> makeFileManager(const Placement &placement)
{
    auto manager = std::make_shared<HRFFileManager>();
    manager->setCreateMissingDirectories(true);
    if (const auto recovery = placement.recovery())
        manager->setAppliedToAllRecovery(*recovery);
    return manager;
}

/// What is in the way is met by the operations themselves.
void moveFiles(const Placement &placement)
{
    const auto progress = std::make_shared<HRFProgress>();
    HRFProgressWindowController display(progress);
    HRFFileOperationCC::Moves moves;
    placement.run.changeFiles([&](HRFPlaylist &list, const Records &records) {
        HRFPlanAnswers answers = placement.answers();
        answers.existingItem = {};
        const HRFFilePlan plan =
            placement.withoutRefused(list,
                                     HRFPlanMoves(records, placement.pattern,
                                                  folderOf(placement.options.conversion), answers),
                                     records.size());
        if (placement.run.hasToEnd()) {
            placement.run.leaveOut(plan.files.size());
            return false;
        }
        progress->setTotalUnitCount(qlonglong(plan.files.size()));
        display.showAsSheet();
        const auto tell = [&] {
            display.dismiss();
            for (const auto &move : moves) {
                const HRFMetaFile &record = *list.fileWithID(move->objectID());
                if (move->succeeded())
                    placement.report.tellOfDone(record, move->srcURL(), move->dstURL());
                else if (const auto error = move->error())
                    placement.report.printFailure(record, *error);
            }
        };
        moves = list.fileOperationCC().movePlannedFiles(plan.files, placement.pattern.context(),
                                                        makeFileManager(placement), progress, tell);
        return true;
    });
    if (progress->isCancelled() && !placement.run.hasToEnd())
        placement.run.console().report(u"No further files are changed"_s);
}

void move(const Placement &placement)
{
    if (!placement.options.isDryRun)
        return moveFiles(placement);
    placement.preview([&](const Records &records) {
        return HRFPlanMoves(records, placement.pattern, folderOf(placement.options.conversion),
                            placement.answers());
    });
}

HRFConversionContext movingContext(const HRFCommandOptions &options)
{
    HRFConversionContext context;
    context.fileOperationCopy =
        HRFUserDefaults::standard().boolForKey(u"lirra.formatter.path.copyFiles"_s);
    // Every file gets a folder, unless it is said for this run.
    if (!options.settings.contains(u"lirra.formatter.noMatchFallbackAction"_s))
        context.fallbackAction = HRFConversionContext::fallbackUnknown;
    return context;
}

int place(const HRFCommandOptions &options, const HRFConversionContext &context,
          const HRFPatternElements &fixedElements, void (*command)(const Placement &))
{
    return HRFListRun::run(options, [&](HRFListRun &run) {
        const auto elements = fixedElements.empty()
            ? HRFElementsFromOptions(options.conversion, HRFPatternItem::attributeItems())
            : fixedElements;
        if (!elements)
            return run.refuse(elements.error());
        command({run, options, HRFPattern(*elements, context), {run, options.printsJSON}});
    });
}

} // namespace

int HRFRenameFiles(const HRFCommandOptions &options)
{
    return place(options, HRFConversionContext(), {}, &rename);
}

int HRFMoveFiles(const HRFCommandOptions &options)
{
    const HRFConversionOptions &conversion = options.conversion;
    const auto refuse = [&](const QString &problem) {
        return HRFListRun::run(options, [&](HRFListRun &run) { run.refuse(problem); });
    };
    if (conversion.targetFolder && conversion.targetFolder->empty())
        return refuse(u"--to: The folder has no name"_s);
    if (conversion.baseFolder && conversion.baseFolder->empty())
        return refuse(u"--base: The folder has no name"_s);
    if (!conversion.targetFolder && conversion.pattern.empty())
        return refuse(u"move: --pattern or --to is needed"_s);
    // Who cannot be asked may have said it on the command line.
    const auto removes = options.settings.find(u"lirra.formatter.path.removeEmptyDirectories"_s);
    if (removes != options.settings.end() && removes->second.toBool()
        && !HRFConsole(true).isInteractive())
        HRFUserDefaults::standard().setOverride(true, u"lirra.suppressed.removeEmptyDirectories"_s);
    const HRFPatternElements here{u"."_s};
    return place(options, movingContext(options),
                 conversion.targetFolder ? here : HRFPatternElements(), &move);
}
