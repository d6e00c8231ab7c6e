#include "cli/HRFFileCommands.h"

#include "cli/HRFCommandLine.h"
#include "cli/HRFFileReport.h"
#include "cli/HRFFileRun.h"
#include "cli/HRFTagAssignment.h"
#include "cli/HRFValueText.h"
#include "tags/HRFTagEngine.h"

#include <functional>
#include <map>

using namespace Qt::StringLiterals;

namespace {

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
    return u"  %1: %2 -> %3\n"_s.arg(HRFTagProperties::propertyNames().at(qsizetype(key)),
                                     shownValue(before), shownValue(after));
}

/// The text of a dry run about one file.
QByteArray describe(const HRFTagEngine &engine, const QString &changes)
{
    if (changes.isEmpty())
        return {};
    return (HRFConsole::printable(engine.fileURL().displayPath()) + u'\n' + changes).toUtf8();
}

using Work = std::function<HRFResult<void>(HRFTagEngine &)>;

int forEachEngine(HRFFileRun &run, bool readProperties, const Work &work)
{
    return run.forEachFile([&](const HRFFileReference &file) -> HRFResult<void> {
        const auto engine = HRFTagEngine::initWithURL(file, readProperties);
        return engine ? work(**engine) : std::unexpected(engine.error());
    });
}

} // namespace

int HRFShowFiles(const HRFCommandOptions &options)
{
    HRFFileReport report(options.printsFrames);
    HRFFileRun run(options);
    return forEachEngine(run, true, [&](const HRFTagEngine &engine) -> HRFResult<void> {
        run.console().print(options.printsJSON ? report.json(engine) : report.text(engine));
        return {};
    });
}

int HRFSetTags(const HRFCommandOptions &options)
{
    const auto changes = HRFTagChangesFromOptions(options);
    HRFFileRun run(options);
    if (!changes) {
        run.console().report(changes.error());
        return HRFExitStatus::wrongUsage;
    }
    return forEachEngine(run, false, [&](HRFTagEngine &engine) -> HRFResult<void> {
        std::map<HRFTagKey, QVariant> before;
        for (const HRFTagChange &change : *changes) {
            if (options.isDryRun)
                before.try_emplace(change.key, engine.valueForKey(change.key));
            engine.setValueForKey(change.value, change.key);
        }
        if (!options.isDryRun)
            return engine.updateFileWithError();
        QString described;
        for (const auto &[key, value] : before)
            described += describeChange(key, value, engine.valueForKey(key));
        run.console().print(describe(engine, described));
        return engine.checkChanges();
    });
}

int HRFStripTags(const HRFCommandOptions &options)
{
    HRFFileRun run(options);
    return forEachEngine(run, false, [&](HRFTagEngine &engine) -> HRFResult<void> {
        if (options.isDryRun) {
            const QString tags = engine.strippableTags();
            run.console().print(
                describe(engine, tags.isEmpty() ? QString() : u"  removes %1\n"_s.arg(tags)));
            return {};
        }
        if (auto stripped = engine.stripTags(); !stripped)
            return stripped;
        return engine.updateFileWithError();
    });
}
