#include "conversions/HRFConversionContext.h"

#include "kit/HRFUserDefaults.h"

using namespace Qt::StringLiterals;

namespace {

struct SwitchRow
{
    bool HRFConversionContext::*field = nullptr;
    QLatin1StringView key;
};

constexpr SwitchRow switchRows[] = {
    {&HRFConversionContext::usesNumericPadding, "lirra.formatter.padTrackAndDiscNum"_L1},
    {&HRFConversionContext::isNTFSFriendly, "lirra.formatter.trimsNTFSIllegalChars"_L1},
    {&HRFConversionContext::isSMBFriendly, "lirra.formatter.trimsSMBIllegalChars"_L1},
    {&HRFConversionContext::moveNonAudioFiles, "lirra.formatter.path.moveAllFiles"_L1},
    {&HRFConversionContext::removeEmptyDirectories,
     "lirra.formatter.path.removeEmptyDirectories"_L1},
    {&HRFConversionContext::revealOnSuccess, "lirra.formatter.path.revealOnSuccess"_L1},
};

} // namespace

HRFConversionContext::HRFConversionContext()
{
    loadUserDefaults();
}

HRFConversionContext HRFConversionContext::forMatching()
{
    HRFConversionContext context;
    context.usesNumericPadding = false;
    context.isNTFSFriendly = false;
    context.isSMBFriendly = false;
    return context;
}

void HRFConversionContext::loadUserDefaults()
{
    const HRFUserDefaults &defaults = HRFUserDefaults::standard();
    for (const SwitchRow &row : switchRows)
        this->*row.field = defaults.boolForKey(row.key);
    fallbackAction = defaults.integerForKey(u"lirra.formatter.noMatchFallbackAction"_s);
}
