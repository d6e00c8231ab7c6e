#include "cli/HRFConversionCommands.h"

#include "cli/HRFListRun.h"
#include "cli/HRFTagConversion.h"
#include "cli/HRFTagPreview.h"
#include "cli/HRFValueText.h"
#include "store/HRFMetaFile.h"
#include "tags/HRFTagEngine.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <map>

using namespace Qt::StringLiterals;

namespace {

using Maker = std::expected<HRFTagConversion, QString> (*)(const HRFConversionOptions &);

/// What a conversion changes: as in a record, the last of several values counts.
std::vector<HRFTagChange> changesOf(const HRFMetaFile &record,
                                    const std::vector<HRFNewValue> &values)
{
    std::map<const HRFKeyPath *, QVariant> last;
    for (const HRFNewValue &value : values)
        last.insert_or_assign(value.keyPath, value.value);
    std::vector<HRFTagChange> changes;
    for (const auto &[keyPath, value] : last) {
        const auto key = HRFTagKeyForName(keyPath->attribute->name.toStdString());
        if (key && keyPath->value(record) != value)
            changes.push_back({*key, value});
    }
    return changes;
}

/// What a dry run tells of one file.
struct Preview
{
    HRFTagPreview tags{};
    QStringList missing{};

    // Both are empty when there is nothing to tell.
    QByteArray text(const HRFFileReference &path) const;
    QByteArray json(const HRFFileReference &path) const;
};

QByteArray Preview::text(const HRFFileReference &path) const
{
    QByteArray lines = tags.text();
    for (const QString &token : missing)
        lines += u"  there is no %1\n"_s.arg(token).toUtf8();
    return lines.isEmpty() ? lines
                           : HRFConsole::printable(path.displayPath()).toUtf8() + '\n' + lines;
}

QByteArray Preview::json(const HRFFileReference &path) const
{
    if (tags.changes.empty() && missing.isEmpty() && tags.outcome)
        return {};
    QJsonObject object = HRFJSONOfPath(path);
    if (tags.outcome)
        object.insert(u"changes"_s, tags.json());
    else
        object.insert(u"error"_s, tags.outcome.error().fullText());
    if (!missing.isEmpty())
        object.insert(u"missing"_s, QJsonArray::fromStringList(missing));
    return QJsonDocument(object).toJson(QJsonDocument::Compact) + '\n';
}

/// What becomes of the file, told by an engine of its own: the record is there too late for the one
/// that it was read with.
HRFTagPreview previewChanges(const HRFFileReference &path, const std::vector<HRFTagChange> &changes)
{
    if (changes.empty())
        return {};
    const auto engine = HRFTagEngine::initWithURL(path);
    return engine ? HRFTagPreview::of(**engine, changes)
                  : HRFTagPreview{.outcome = std::unexpected(engine.error())};
}

void tellOfEnd(HRFListRun &run)
{
    run.console().report(u"No further files are changed"_s);
}

void previewFiles(HRFListRun &run, const HRFTagConversion &conversion, bool printsJSON)
{
    bool hasEnded = false;
    run.visitFiles({}, [&](const HRFMetaFile &record, const HRFFileReference &path) {
        Preview preview;
        if (hasEnded)
            return preview.tags.outcome;
        const auto values = conversion.newValues(record);
        preview.missing = conversion.missingValues(record);
        if (values)
            preview.tags = previewChanges(path, changesOf(record, *values));
        else
            preview.tags.outcome = std::unexpected(values.error());
        hasEnded = !values && HRFTagConversion::endsWith(values.error());
        run.console().print(printsJSON ? preview.json(path) : preview.text(path));
        return preview.tags.outcome;
    });
    if (hasEnded)
        tellOfEnd(run);
}

void convertFiles(HRFListRun &run, const HRFTagConversion &conversion)
{
    run.editFiles([&](HRFPlaylist &list, const HRFListRun::Records &records) {
        const auto outcome = conversion.carryOut(list, records);
        for (const HRFMetaFile *record : outcome.failures) {
            const auto values = conversion.newValues(*record);
            run.fail(*record, values ? *outcome.error : values.error());
        }
        if (outcome.error && HRFTagConversion::endsWith(*outcome.error))
            tellOfEnd(run);
    });
}

int convert(const HRFCommandOptions &options, Maker makeConversion)
{
    return HRFListRun::run(options, [&](HRFListRun &run) {
        const auto conversion = makeConversion(options.conversion);
        if (!conversion)
            return run.refuse(conversion.error());
        if (options.printsJSON && !options.isDryRun)
            return run.refuse(u"--json: only with --dry-run"_s);
        if (options.isDryRun)
            previewFiles(run, *conversion, options.printsJSON);
        else
            convertFiles(run, *conversion);
    });
}

} // namespace

int HRFConvertToTags(const HRFCommandOptions &options)
{
    return convert(options, &HRFTagConversion::tagging);
}

int HRFComposeTag(const HRFCommandOptions &options)
{
    return convert(options, &HRFTagConversion::composing);
}

int HRFListTokens(const HRFCommandOptions &options)
{
    return HRFListRun::run(options, [](HRFListRun &run) {
        constexpr qsizetype width = 26;
        for (const HRFPatternItem &item : HRFPatternItem::matchingItems()) {
            const QString token = u'%' + item.editingString() + u'%';
            run.console().print((token.leftJustified(width) + item.title() + u'\n').toUtf8());
        }
    });
}
