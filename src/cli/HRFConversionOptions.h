#pragma once

#include "conversions/HRFDotPrefixCheck.h"
#include "conversions/HRFPattern.h"

#include <expected>
#include <optional>
#include <string>

namespace CLI {
class App;
class Option;
} // namespace CLI
struct HRFCommandOptions;

/// What to do when a file is to become one that exists.
enum class HRFConflictAnswer { Ask, Stop, Skip, KeepBoth, Replace };

/// What conversions are told on the command line, besides what stands for settings.
struct HRFConversionOptions
{
    std::string pattern;
    std::string sourceAttribute = "fileName"; ///< --from
    std::string targetAttribute; ///< --to
    bool usesRegularExpressions = false;
    int dotNames = HRFDotPrefixCheck::noAnswer; ///< an answer of HRFDotPrefixCheck
    HRFConflictAnswer onConflict = HRFConflictAnswer::Ask;
    std::optional<std::string> baseFolder; ///< --base
    std::optional<std::string> targetFolder; ///< --to of moves
};

/// Adds the answers to questions about names, for all commands.
void HRFAddNameAnswers(CLI::App &app, HRFCommandOptions &options);
/// Adds the pattern.
inline constexpr const char *HRFPatternOptionName = "--pattern";
CLI::Option *HRFAddPatternOption(CLI::App &command, HRFCommandOptions &options);
/// Adds what a pattern renders to beside its tokens: options that stand for settings.
void HRFAddRenderingOptions(CLI::App &command, HRFCommandOptions &options);
/// Adds what is done besides moving files: options that stand for settings.
void HRFAddMovingOptions(CLI::App &command, HRFCommandOptions &options);

/// The pattern's literal text and tokens, or one sentence that names a token that is none of the
/// offered ones.
std::expected<HRFPatternElements, QString>
HRFElementsFromOptions(const HRFConversionOptions &options,
                       const std::vector<HRFPatternItem> &offeredItems);
