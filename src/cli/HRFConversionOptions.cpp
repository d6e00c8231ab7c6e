#include "cli/HRFConversionOptions.h"

#include "cli/HRFAnswerOption.h"
#include "cli/HRFCommandOptions.h"
#include "cli/HRFNearestName.h"
#include "conversions/HRFPatternString.h"

#include <cstdint>

using namespace Qt::StringLiterals;

namespace {

struct SwitchRow
{
    const char *names = nullptr;
    QLatin1StringView setting;
    const char *help = nullptr;
};

constexpr SwitchRow switchRows[] = {
    {"--padding,!--no-padding", "lirra.formatter.padTrackAndDiscNum"_L1,
     "Track and disc numbers with leading zeros"},
    {"--ntfs,!--no-ntfs", "lirra.formatter.trimsNTFSIllegalChars"_L1,
     "Without the characters that NTFS forbids"},
    {"--smb,!--no-smb", "lirra.formatter.trimsSMBIllegalChars"_L1,
     "Without the characters that SMB shares forbid"},
};

constexpr SwitchRow movingRows[] = {
    {"--copy,!--no-copy", "lirra.formatter.path.copyFiles"_L1, "Copy the files"},
    {"--with-others,!--no-with-others", "lirra.formatter.path.moveAllFiles"_L1,
     "Move what else is in a folder, too, when it has no audio files any more"},
    {"--remove-empty,!--no-remove-empty", "lirra.formatter.path.removeEmptyDirectories"_L1,
     "Put folders that have become empty into the Trash"},
};

void addSwitch(CLI::App &command, HRFCommandOptions &options, const SwitchRow &row)
{
    command.add_flag_function(
        row.names,
        [&options, &row](std::int64_t count) {
            options.settings.insert_or_assign(row.setting, count > 0);
        },
        row.help);
}

const HRFAnswers<int> dotAnswers = {{"ask", HRFDotPrefixCheck::noAnswer},
                                    {"remove", HRFDotPrefixCheck::removeDot},
                                    {"cancel", HRFDotPrefixCheck::cancel},
                                    {"continue", HRFDotPrefixCheck::proceed}};

const HRFAnswers<HRFConflictAnswer> conflictAnswers = {{"ask", HRFConflictAnswer::Ask},
                                                       {"stop", HRFConflictAnswer::Stop},
                                                       {"skip", HRFConflictAnswer::Skip},
                                                       {"keep-both", HRFConflictAnswer::KeepBoth},
                                                       {"replace", HRFConflictAnswer::Replace}};

const HRFAnswers<qlonglong> fallbacks = {{"unknown", HRFConversionContext::fallbackUnknown},
                                         {"empty", HRFConversionContext::fallbackEmpty},
                                         {"skip", HRFConversionContext::fallbackNothing}};

} // namespace

void HRFAddNameAnswers(CLI::App &app, HRFCommandOptions &options)
{
    HRFConversionOptions &conversion = options.conversion;
    HRFAddAnswerOption(
        app, "--dot-names", dotAnswers, [&](int answer) { conversion.dotNames = answer; },
        "What to do about new names that begin with a dot");
    HRFAddAnswerOption(
        app, "--on-conflict", conflictAnswers,
        [&](HRFConflictAnswer answer) { conversion.onConflict = answer; },
        "What to do when a file with the new name exists");
}

CLI::Option *HRFAddPatternOption(CLI::App &command, HRFCommandOptions &options)
{
    return command
        .add_option(HRFPatternOptionName, options.conversion.pattern,
                    "Text with tokens such as %title% (see tokens); %% is a percent sign")
        ->required();
}

void HRFAddRenderingOptions(CLI::App &command, HRFCommandOptions &options)
{
    for (const SwitchRow &row : switchRows)
        addSwitch(command, options, row);
    HRFAddAnswerOption(
        command, "--fallback", fallbacks,
        [&options](qlonglong action) {
            options.settings.insert_or_assign(u"lirra.formatter.noMatchFallbackAction"_s, action);
        },
        "What a token without a value becomes");
}

void HRFAddMovingOptions(CLI::App &command, HRFCommandOptions &options)
{
    for (const SwitchRow &row : movingRows)
        addSwitch(command, options, row);
}

std::expected<HRFPatternElements, QString>
HRFElementsFromOptions(const HRFConversionOptions &options,
                       const std::vector<HRFPatternItem> &offeredItems)
{
    const QString text = QString::fromStdString(options.pattern);
    if (text.toStdString() != options.pattern)
        return std::unexpected(u"--pattern %1: The text is not valid UTF-8"_s.arg(text));
    const QStringList unknown = HRFUnknownTokens(text, offeredItems);
    if (unknown.isEmpty())
        return HRFItemsForPatternString(text, offeredItems);
    QStringList names;
    for (const HRFPatternItem &item : offeredItems)
        names.append(item.editingString());
    return std::unexpected(
        u"--pattern %1: there is no token “%2” for this; did you mean “%3”?"_s.arg(
            text, unknown.front(), HRFNearestName(unknown.front(), names)));
}
