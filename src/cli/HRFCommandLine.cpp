#include "cli/HRFCommandLine.h"

#include "cli/HRFAnswerOption.h"
#include "cli/HRFCommandOptions.h"
#include "cli/HRFConsole.h"
#include "cli/HRFConversionCommands.h"
#include "cli/HRFFileCommands.h"
#include "cli/HRFPlacementCommands.h"
#include "kit/HRFInterruption.h"
#include "kit/HRFUserDefaults.h"
#include "tags/HRFMapManager.h"
#include "tags/HRFTagKey.h"

#include <CLI/CLI.hpp>
#include <QCoreApplication>
#include <QFile>

#include <algorithm>
#include <string>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

using Command = int (*)(const HRFCommandOptions &);

/// The tags that `set` knows, with what they mean.
std::string tagList()
{
    std::string list = "Tags:\n";
    for (const HRFPropertyRow &row : HRFPropertyRows) {
        if (!row.isTag || row.type == HRFPropertyType::Data)
            continue;
        const QString name = QString::fromLatin1(row.name);
        const QString text = HRFMapManager::frameDescriptions().value(name);
        list += (u"  "_s + name.leftJustified(22) + text + u'\n').toStdString();
    }
    return list;
}

const HRFAnswers<HRFErrorAnswer> errorAnswers = {{"ask", HRFErrorAnswer::Ask},
                                                 {"fix", HRFErrorAnswer::Fix},
                                                 {"continue", HRFErrorAnswer::Continue},
                                                 {"cancel", HRFErrorAnswer::Cancel}};

void addGlobalOptions(CLI::App &app, HRFCommandOptions &options)
{
    app.add_option("-D", options.definitions, "Use this value of a setting for this run")
        ->type_name("KEY=VALUE")
        ->allow_extra_args(false);
    app.add_option("--config", options.configFile, "Read the settings from this file")
        ->type_name("FILE");
    app.add_option("--data-dir", options.dataFolder, "Keep working data in this folder")
        ->type_name("DIR");
    app.add_flag("--dry-run", options.isDryRun, "Print what would change, change nothing");
    app.add_flag("--quiet", options.isQuiet, "Show no progress");
    HRFAddAnswerOption(
        app, "--on-error", errorAnswers,
        [&options](HRFErrorAnswer answer) { options.onError = answer; },
        "What to do when a file cannot be written");
    HRFAddNameAnswers(app, options);
    app.set_version_flag("--version", "lirra-cli " LIRRA_VERSION);
}

CLI::App *addCommand(CLI::App &app, Command &chosen, Command command, const std::string &name,
                     const std::string &help)
{
    CLI::App *subcommand = app.add_subcommand(name, help);
    subcommand->fallthrough();
    subcommand->callback([&chosen, command] { chosen = command; });
    return subcommand;
}

CLI::App *addFileCommand(CLI::App &app, HRFCommandOptions &options, Command &chosen,
                         Command command, const std::string &name, const std::string &help)
{
    CLI::App *subcommand = addCommand(app, chosen, command, name, help);
    subcommand->add_option("PATH", options.paths, "Audio files, and folders to walk")->required();
    return subcommand;
}

void addCommands(CLI::App &app, HRFCommandOptions &options, Command &chosen)
{
    CLI::App *show = addFileCommand(app, options, chosen, &HRFShowFiles, "show",
                                    "Print the tags and audio properties of files");
    show->add_flag("--json", options.printsJSON, "One JSON object per line");
    show->add_flag("--frames", options.printsFrames, "The native fields too");

    CLI::App *set = addFileCommand(app, options, chosen, &HRFSetTags, "set", "Set tags of files");
    set->add_option("-t", options.assignments, "Set a tag; an empty value removes it")
        ->type_name("KEY=VALUE")
        ->allow_extra_args(false);
    auto *artwork =
        set->add_option("--artwork", options.artworkFile, "Set the picture")->type_name("FILE");
    set->add_flag("--no-artwork", options.removesArtwork, "Remove the pictures")->excludes(artwork);
    set->footer([] { return tagList(); });

    addFileCommand(app, options, chosen, &HRFStripTags, "strip", "Remove every tag of files");
}

void addPlacements(CLI::App &app, HRFCommandOptions &options, Command &chosen)
{
    CLI::App *rename = addFileCommand(app, options, chosen, &HRFRenameFiles, "rename",
                                      "Name files after their tags");
    HRFAddPatternOption(*rename, options);

    CLI::App *move = addFileCommand(app, options, chosen, &HRFMoveFiles, "move",
                                    "Move files into folders named after their tags");
    CLI::Option *pattern = HRFAddPatternOption(*move, options)->required(false);
    CLI::Option *base = move->add_option("--base", options.conversion.baseFolder,
                                         "Make the folders here, and not where each file is")
                            ->type_name("DIR");
    move->add_option("--to", options.conversion.targetFolder, "Move the files to this folder")
        ->type_name("DIR")
        ->excludes(pattern)
        ->excludes(base);
    HRFAddMovingOptions(*move, options);
    for (CLI::App *command : {rename, move}) {
        HRFAddRenderingOptions(*command, options);
        command->add_flag("--json", options.printsJSON, "One JSON object per line for each file");
    }
}

void addConversions(CLI::App &app, HRFCommandOptions &options, Command &chosen)
{
    HRFConversionOptions &conversion = options.conversion;
    CLI::App *tags = addFileCommand(app, options, chosen, &HRFConvertToTags, "tags",
                                    "Fill tags from the names of files");
    HRFAddPatternOption(*tags, options);
    tags->add_option("--from", conversion.sourceAttribute,
                     "Match the pattern against this attribute instead of the name")
        ->type_name("ATTRIBUTE");
    tags->add_flag("--regex", conversion.usesRegularExpressions,
                   "The text between the tokens is a regular expression");

    CLI::App *compose =
        addFileCommand(app, options, chosen, &HRFComposeTag, "compose", "Make one tag of others");
    HRFAddPatternOption(*compose, options);
    compose->add_option("--to", conversion.targetAttribute, "The tag to set")
        ->type_name("TAG")
        ->required();
    HRFAddRenderingOptions(*compose, options);
    for (CLI::App *command : {tags, compose})
        command->add_flag("--json", options.printsJSON,
                          "In a dry run, one JSON object per line for each file that changes");

    addPlacements(app, options, chosen);
    addCommand(app, chosen, &HRFListTokens, "tokens", "List the tokens of patterns");
}

/// The arguments, the last one first, as CLI11 takes them. It would take "[2004]", which may well
/// be a folder, for a list; "./[2004]" is the same folder. A pattern is no path, and no list
/// either.
std::vector<std::string> reversedArguments(int argc, char **argv)
{
    std::vector<std::string> arguments(argv + 1, argv + argc);
    std::string previous;
    for (std::string &argument : arguments) {
        const bool looksLikeList = argument.starts_with('[') && argument.ends_with(']');
        if (looksLikeList && previous != HRFPatternOptionName)
            argument.insert(0, "./");
        previous = argument;
    }
    std::ranges::reverse(arguments);
    return arguments;
}

/// What is wrong with a value for a setting; empty when nothing is.
QString problemWithSetting(const QString &key, const QString &value)
{
    const HRFUserDefaults &defaults = HRFUserDefaults::standard();
    if (!defaults.hasDefaultForKey(key))
        return u"there is no setting “%1”"_s.arg(key);
    QStringList allowed;
    bool isNumber = false;
    if (key == u"lirra.tagging.ID3v2Version")
        allowed = {u"31"_s, u"316"_s, u"41"_s, u"416"_s, u"48"_s};
    else if (defaults.valueForKey(key).typeId() == QMetaType::Bool)
        allowed = {u"true"_s, u"false"_s, u"yes"_s, u"no"_s, u"1"_s, u"0"_s};
    else if (static_cast<void>(value.toInt(&isNumber)); !isNumber)
        return u"“%1” is not a whole number"_s.arg(value);
    if (allowed.isEmpty() || allowed.contains(value.toLower()))
        return {};
    return u"“%1” is none of %2"_s.arg(value, allowed.join(u", "));
}

/// Takes the definitions as settings of this process; answers what is wrong with one of them.
QString applySettings(const HRFCommandOptions &options)
{
    HRFUserDefaults &defaults = HRFUserDefaults::standard();
    if (!options.configFile.empty()) {
        const QString path = QString::fromStdString(options.configFile);
        if (!QFile(path).open(QIODevice::ReadOnly))
            return u"--config %1: The file cannot be read"_s.arg(path);
        defaults.setFilePath(path);
    }
    for (const std::string &definition : options.definitions) {
        const QString text = QString::fromStdString(definition);
        const qsizetype equals = text.indexOf(u'=');
        if (equals < 1)
            return u"-D %1: expected KEY=VALUE"_s.arg(text);
        const QString key = text.left(equals);
        const QString value = text.mid(equals + 1);
        if (const QString problem = problemWithSetting(key, value); !problem.isEmpty())
            return u"-D %1: %2"_s.arg(text, problem);
        defaults.setOverride(value, key);
    }
    for (const auto &[key, value] : options.settings)
        defaults.setOverride(value, key);
    return {};
}

} // namespace

int HRFRunCommandLine(int argc, char **argv)
{
    HRFConsole::occupyClosedStreams();
    // Later versions of Qt say at every start when the locale is not UTF-8. Names are taken as
    // bytes and output is UTF-8 in any case.
    const QtMessageHandler handler =
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) { });
    const QCoreApplication application(argc, argv);
    qInstallMessageHandler(handler);
    HRFCommandOptions options;
    Command chosen = nullptr;
    CLI::App app("Shows and edits the tags of audio files.", "lirra-cli");
    app.require_subcommand(1);
    addGlobalOptions(app, options);
    addCommands(app, options, chosen);
    addConversions(app, options, chosen);
    try {
        app.parse(reversedArguments(argc, argv));
    } catch (const CLI::ParseError &error) {
        return app.exit(error) == 0 ? HRFExitStatus::done : HRFExitStatus::wrongUsage;
    }
    if (const QString problem = applySettings(options); !problem.isEmpty()) {
        HRFConsole(options.isQuiet).report(problem);
        return HRFExitStatus::wrongUsage;
    }
    HRFInterruption::handleSignals(HRFInterruption::Again::AsksOnly);
    return chosen(options);
}
