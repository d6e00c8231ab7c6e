#pragma once

#include "cli/HRFCommandOptions.h"
#include "conversions/HRFMetaFile+TagConversion.h"
#include "conversions/HRFTagOperationCC.h"

#include <expected>
#include <functional>
#include <memory>

class HRFMetaFile;

/// A conversion that sets tags, read from the command line: what it would do, and doing it. Both
/// are made by the same code of src/conversions.
struct HRFTagConversion
{
    using Values = HRFResult<std::vector<HRFNewValue>>;
    using Records = std::vector<HRFMetaFile *>;
    struct Outcome
    {
        std::optional<HRFError> error;
        Records failures; ///< files that are not done for a reason of their own
    };

    /// What a file's tags would be set to, or why not.
    std::function<Values(const HRFMetaFile &)> newValues;
    /// Sets the tags of records, all of which are in the list.
    std::function<Outcome(HRFConversionHost &, const Records &)> carryOut;
    /// The tokens for which a file has no value.
    std::function<QStringList(const HRFMetaFile &)> missingValues;

    /// Whether the files that come after one with this error are left as they are.
    static bool endsWith(const HRFError &error);

    // Both answer one sentence when something is wrong with the command line.
    static std::expected<HRFTagConversion, QString> tagging(const HRFConversionOptions &options);
    static std::expected<HRFTagConversion, QString> composing(const HRFConversionOptions &options);
};
