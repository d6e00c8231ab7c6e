#pragma once

#include "cli/HRFConversionOptions.h"
#include "tags/HRFTagKey.h"

#include <QString>
#include <QVariant>

#include <map>
#include <string>
#include <vector>

/// What to do when a file cannot be written.
enum class HRFErrorAnswer { Ask, Fix, Continue, Cancel };

/// The command line, read but not yet checked against the world.
struct HRFCommandOptions
{
    std::vector<std::string> definitions; ///< -D KEY=VALUE
    std::string configFile;
    std::string dataFolder; ///< --data-dir; empty for a temporary one
    bool isDryRun = false;
    bool isQuiet = false;
    HRFErrorAnswer onError = HRFErrorAnswer::Ask;
    std::map<QString, QVariant> settings; ///< what other options say of them for this run
    HRFConversionOptions conversion;

    bool printsJSON = false;
    bool printsFrames = false;
    std::vector<std::string> assignments; ///< -t KEY=VALUE
    std::string artworkFile;
    bool removesArtwork = false;
    std::vector<std::string> paths;
};

/// One tag to set, or to remove when the value is invalid.
struct HRFTagChange
{
    HRFTagKey key;
    QVariant value;
};
