#include "conversions/HRFAttributeDescription+Parsing.h"
#include "conversions/HRFMetaFile+Patterns.h"
#include "conversions/HRFMetaFile+TagConversion.h"
#include "store/HRFAttributeDescription.h"

HRFResult<std::vector<HRFNewValue>>
HRFValuesByMatching(const HRFRecordValues &values, const HRFPatternMatcher &matcher,
                    const HRFAttributeDescription &sourceAttribute)
{
    std::vector<HRFNewValue> newValues;
    const auto source = HRFConversionStringForAttribute(values, sourceAttribute);
    if (!source)
        return newValues;
    const auto matches = matcher.matchesInString(*source);
    if (!matches)
        return std::unexpected(matches.error());
    for (const HRFMetaCaptureMatch &match : *matches) {
        const HRFKeyPath *keyPath = HRFKeyPath::find(match.patternItem.metadataKeyPath());
        if (!keyPath || !keyPath->attribute->isEditable())
            continue;
        if (match.patternItem.representsNumericValue()) {
            newValues.push_back({keyPath, match.value});
            continue;
        }
        const auto value = HRFValueOfText(match.value.toString(), *keyPath->attribute);
        if (!value)
            return std::vector<HRFNewValue>(); // a text that is no date does not match one
        newValues.push_back({keyPath, *value});
    }
    return newValues;
}

HRFResult<QVariant> HRFComposedValue(const HRFRecordValues &values, const HRFPattern &pattern,
                                     const HRFAttributeDescription &attribute)
{
    const QString text = HRFStringForPattern(values, pattern).value_or(QString());
    return text.isEmpty() ? QVariant() : HRFValueOfText(text, attribute);
}
