#include "cli/HRFFileCommands.h"

#include "cli/HRFCommandLine.h"
#include "cli/HRFFileReport.h"
#include "cli/HRFFileRun.h"
#include "cli/HRFTagAssignment.h"
#include "cli/HRFValueText.h"
#include "tags/HRFTagEngine.h"

#include <functional>

using namespace Qt::StringLiterals;

namespace {

/// What setting a tag would do to a file, or nothing when it holds the value already.
QString describeChange(const HRFTagEngine &engine, const HRFTagChange &change)
{
    const QVariant old = engine.valueForKey(change.key);
    if (old == change.value || (HRFTagValue::isNothing(old) && !change.value.isValid()))
        return {};
    const auto shown = [&](const QVariant &value) {
        if (HRFTagValue::isNothing(value))
            return u"nothing"_s;
        if (value.typeId() == QMetaType::QByteArray)
            return u"%1 bytes"_s.arg(value.toByteArray().size());
        return u"“%1”"_s.arg(HRFConsole::printable(HRFValueText(value)));
    };
    return u"  %1: %2 -> %3\n"_s.arg(HRFTagProperties::propertyNames().at(qsizetype(change.key)),
                                     shown(old), shown(change.value));
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
        if (options.isDryRun) {
            QString described;
            for (const HRFTagChange &change : *changes)
                described += describeChange(engine, change);
            run.console().print(describe(engine, described));
            return {};
        }
        for (const HRFTagChange &change : *changes)
            engine.setValueForKey(change.value, change.key);
        return engine.updateFileWithError();
    });
}

int HRFStripTags(const HRFCommandOptions &options)
{
    HRFFileRun run(options);
    return forEachEngine(run, false, [&](HRFTagEngine &engine) -> HRFResult<void> {
        if (options.isDryRun) {
            const QString version = engine.tagVersion().value_or(QString());
            run.console().print(
                describe(engine, version.isEmpty() ? QString() : u"  removes %1\n"_s.arg(version)));
            return {};
        }
        if (auto stripped = engine.stripTags(); !stripped)
            return stripped;
        return engine.updateFileWithError();
    });
}
