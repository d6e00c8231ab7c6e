#include "cli/HRFFileCommands.h"

#include "cli/HRFCommandLine.h"
#include "cli/HRFFileNotes.h"
#include "cli/HRFFileReport.h"
#include "cli/HRFListRun.h"
#include "cli/HRFTagAssignment.h"
#include "cli/HRFTagPreview.h"
#include "operations/HRFTagWriteOperation.h"
#include "store/HRFMetaFile.h"
#include "store/HRFMetaTags.h"
#include "tags/HRFTagEngine.h"

#include <functional>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

QString nameOf(HRFTagKey key)
{
    return HRFTagProperties::propertyNames().at(qsizetype(key));
}

/// What a dry run says about a file, and why the file could not be saved.
struct Preview
{
    QByteArray text;
    HRFResult<void> outcome;
};

/// Prints what becomes of engines that are never saved.
void previewFiles(HRFListRun &run, const std::function<Preview(HRFTagEngine &)> &change)
{
    HRFFileNotes<Preview> previews;
    const auto note = [&](const QString &fileURL, HRFTagEngine &engine) {
        previews.put(fileURL, change(engine));
    };
    run.visitFiles(note, [&](const HRFMetaFile &record, const HRFFileReference &path) {
        const Preview preview = previews.take(record.fileURL());
        if (!preview.text.isEmpty())
            run.console().print(HRFConsole::printable(path.displayPath()).toUtf8() + '\n'
                                + preview.text);
        return preview.outcome;
    });
}

Preview previewChanges(HRFTagEngine &engine, const std::vector<HRFTagChange> &changes)
{
    HRFTagPreview preview = HRFTagPreview::of(engine, changes);
    return {preview.text(), std::move(preview.outcome)};
}

Preview previewStripping(const HRFTagEngine &engine)
{
    const QString tags = engine.strippableTags();
    return {tags.isEmpty() ? QByteArray() : u"  removes %1\n"_s.arg(tags).toUtf8(), {}};
}

void editRecords(const std::vector<HRFMetaFile *> &records,
                 const std::vector<HRFTagChange> &changes)
{
    for (const HRFMetaFile *record : records)
        for (const HRFTagChange &change : changes)
            record->tags().setValueForKey(change.value, nameOf(change.key));
}

/// Pictures are not in the records. The tags go with them, so that each file is written once.
bool writeWithArtwork(HRFPlaylist &list, const std::vector<HRFMetaFile *> &records,
                      const std::vector<HRFTagChange> &changes)
{
    QHash<QString, QVariant> values;
    for (const HRFTagChange &change : changes)
        values.insert(nameOf(change.key),
                      change.value.isValid() ? change.value : QVariant::fromValue(nullptr));
    list.enqueueOperationsForFiles(records, std::make_shared<HRFProgress>(),
                                   HRFProgressDisplayMode::AtOnce,
                                   [&](const HRFMetaFile &, std::size_t) {
                                       auto operation = std::make_shared<HRFTagWriteOperation>();
                                       operation->setChangedValues(values);
                                       return operation;
                                   });
    return !records.empty();
}

bool stripFiles(HRFPlaylist &list, const std::vector<HRFMetaFile *> &records)
{
    list.fileController().setSelectedObjects(records);
    list.stripTags();
    return !records.empty();
}

void showFiles(HRFListRun &run, const HRFCommandOptions &options)
{
    HRFFileNotes<HRFEngineFacts> notes;
    run.visitFiles(
        [&](const QString &fileURL, const HRFTagEngine &engine) {
            notes.put(fileURL, HRFEngineFacts::of(engine, options.printsFrames));
        },
        [&](const HRFMetaFile &record, const HRFFileReference &path) -> HRFResult<void> {
            const HRFEngineFacts facts = notes.take(record.fileURL());
            const HRFFileReport report(record, path, facts, options.printsFrames);
            run.console().print(options.printsJSON ? report.json() : report.text());
            return {};
        });
}

} // namespace

int HRFShowFiles(const HRFCommandOptions &options)
{
    return HRFListRun::run(options, [&](HRFListRun &run) { showFiles(run, options); });
}

int HRFSetTags(const HRFCommandOptions &options)
{
    const auto changes = HRFTagChangesFromOptions(options);
    if (!changes) {
        HRFConsole(options.isQuiet).report(changes.error());
        return HRFExitStatus::wrongUsage;
    }
    const bool hasArtwork = options.removesArtwork || !options.artworkFile.empty();
    return HRFListRun::run(options, [&](HRFListRun &run) {
        if (options.isDryRun)
            return previewFiles(
                run, [&](HRFTagEngine &engine) { return previewChanges(engine, *changes); });
        if (hasArtwork) {
            return run.changeFiles([&](HRFPlaylist &list, const HRFListRun::Records &records) {
                return writeWithArtwork(list, records, *changes);
            });
        }
        run.editFiles([&](HRFPlaylist &, const HRFListRun::Records &records) {
            editRecords(records, *changes);
        });
    });
}

int HRFStripTags(const HRFCommandOptions &options)
{
    return HRFListRun::run(options, [&](HRFListRun &run) {
        if (options.isDryRun)
            previewFiles(run, &previewStripping);
        else
            run.changeFiles(&stripFiles);
    });
}
