#include "cli/HRFFileCommands.h"

#include "cli/HRFCommandLine.h"
#include "cli/HRFFileNotes.h"
#include "cli/HRFFileReport.h"
#include "cli/HRFListRun.h"
#include "cli/HRFTagAssignment.h"
#include "cli/HRFValueText.h"
#include "operations/HRFTagWriteOperation.h"
#include "store/HRFMetaFile.h"
#include "store/HRFMetaTags.h"
#include "tags/HRFTagEngine.h"

#include <functional>
#include <map>

using namespace Qt::StringLiterals;

namespace {

QString nameOf(HRFTagKey key)
{
    return HRFTagProperties::propertyNames().at(qsizetype(key));
}

QString shownValue(const QVariant &value)
{
    if (HRFTagValue::isNothing(value))
        return u"nothing"_s;
    if (value.typeId() == QMetaType::QByteArray)
        return u"%1 bytes"_s.arg(value.toByteArray().size());
    return u"“%1”"_s.arg(HRFConsole::printable(HRFValueText(value)));
}

/// What the engine holds now and then, which need not be what is set: ratings have a largest value.
QString describeChange(HRFTagKey key, const QVariant &before, const QVariant &after)
{
    if (before == after || (HRFTagValue::isNothing(before) && HRFTagValue::isNothing(after)))
        return {};
    return u"  %1: %2 -> %3\n"_s.arg(nameOf(key), shownValue(before), shownValue(after));
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
    std::map<HRFTagKey, QVariant> before;
    for (const HRFTagChange &change : changes) {
        before.try_emplace(change.key, engine.valueForKey(change.key));
        engine.setValueForKey(change.value, change.key);
    }
    QString described;
    for (const auto &[key, value] : before)
        described += describeChange(key, value, engine.valueForKey(key));
    return {described.toUtf8(), engine.checkChanges()};
}

Preview previewStripping(const HRFTagEngine &engine)
{
    const QString tags = engine.strippableTags();
    return {tags.isEmpty() ? QByteArray() : u"  removes %1\n"_s.arg(tags).toUtf8(), {}};
}

/// An edit of the records; the list writes what it changes. Answers whether it changes anything.
bool editRecords(HRFPlaylist &list, const std::vector<HRFMetaFile *> &records,
                 const std::vector<HRFTagChange> &changes)
{
    for (const HRFMetaFile *record : records)
        for (const HRFTagChange &change : changes)
            record->tags().setValueForKey(change.value, nameOf(change.key));
    list.managedObjectContext().processPendingChanges();
    return list.fileManager().writeProgress() != nullptr;
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
        run.changeFiles([&](HRFPlaylist &list, const std::vector<HRFMetaFile *> &records) {
            return hasArtwork ? writeWithArtwork(list, records, *changes)
                              : editRecords(list, records, *changes);
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
