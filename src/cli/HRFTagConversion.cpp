#include "cli/HRFTagConversion.h"

#include "cli/HRFNearestName.h"
#include "conversions/HRFConversionError.h"
#include "conversions/HRFMetaFile+Patterns.h"
#include "operations/HRFProgress.h"
#include "store/HRFAttributeManager.h"
#include "store/HRFMetaFile.h"

#include <algorithm>
#include <iterator>

using namespace Qt::StringLiterals;

namespace {

using Attributes = HRFAttributeManager::Attributes;
using Attribute = std::expected<const HRFAttributeDescription *, QString>;
using Outcome = HRFTagConversion::Outcome;
using Records = HRFTagConversion::Records;
using Values = HRFTagConversion::Values;

Attribute attributeNamed(const std::string &name, const Attributes &attributes,
                         const QString &option, const QString &kind)
{
    const QString wanted = QString::fromStdString(name);
    const auto found = std::ranges::find(attributes, wanted, &HRFAttributeDescription::name);
    if (found != attributes.end())
        return *found;
    QStringList names;
    for (const HRFAttributeDescription *attribute : attributes)
        names.append(attribute->name);
    return std::unexpected(u"%1 %2: there is no %3 “%2”; did you mean “%4”?"_s.arg(
        option, wanted, kind, HRFNearestName(wanted, names)));
}

Attributes allAttributes()
{
    const HRFAttributeManager &catalogue = HRFAttributeManager::sharedManager();
    Attributes attributes;
    for (const QString &entity : catalogue.orderedEntityNames())
        std::ranges::copy(catalogue.attributesByEntityName().value(entity),
                          std::back_inserter(attributes));
    return attributes;
}

/// What names are read into: tags alone. A name that is set would rename the file.
std::vector<HRFPatternItem> taggingItems()
{
    std::vector<HRFPatternItem> items;
    for (const auto *attribute : HRFAttributeManager::sharedManager().tagAttributes())
        items.push_back(HRFPatternItem::itemWithAttribute(*attribute));
    std::ranges::move(HRFPatternItem::matchingOnlyItems(), std::back_inserter(items));
    return items;
}

bool standsForTag(const HRFPatternElement &element)
{
    const auto *item = std::get_if<HRFPatternItem>(&element);
    return item && !item->isDummy();
}

HRFError mismatch(const HRFMetaFile &file, const HRFAttributeDescription &source)
{
    const auto text = HRFConversionStringForAttribute(file, source);
    return HRFConversionError(HRFConversionErrorCode::someFilesFailed,
                              text ? u"The pattern does not match “%1”"_s.arg(*text)
                                   : u"The file has no %1"_s.arg(source.name));
}

Values taggedValues(const HRFMetaFile &file, const HRFPatternMatcher &matcher,
                    const HRFAttributeDescription &source)
{
    Values values = HRFValuesByMatching(file, matcher, source);
    if (values && values->empty())
        return std::unexpected(mismatch(file, source));
    return values;
}

QStringList missingTokens(const HRFRecordValues &values, const HRFPattern &pattern)
{
    QStringList missing;
    for (const HRFPatternElement &element : pattern.items()) {
        const auto *item = std::get_if<HRFPatternItem>(&element);
        if (item && !values.valueForKeyPath(item->metadataKeyPath()).isValid())
            missing.append(item->editingString());
    }
    missing.removeDuplicates();
    return missing;
}

} // namespace

bool HRFTagConversion::endsWith(const HRFError &error)
{
    return error.domain != QLatin1StringView(HRFLirraErrorDomain)
        || error.code != HRFConversionErrorCode::someFilesFailed;
}

std::expected<HRFTagConversion, QString>
HRFTagConversion::tagging(const HRFConversionOptions &options)
{
    const auto elements = HRFElementsFromOptions(options, taggingItems());
    if (!elements)
        return std::unexpected(elements.error());
    const QString text = QString::fromStdString(options.pattern);
    if (std::ranges::none_of(*elements, standsForTag))
        return std::unexpected(u"--pattern %1: there is no token of a tag"_s.arg(text));
    const Attribute source =
        attributeNamed(options.sourceAttribute, allAttributes(), u"--from"_s, u"attribute"_s);
    if (!source)
        return std::unexpected(source.error());
    const auto mode = options.usesRegularExpressions ? HRFRegexMode::On : HRFRegexMode::Off;
    const auto matcher = HRFPatternMatcher::matcherForPatternItems(*elements, mode);
    if (!matcher)
        return std::unexpected(u"--pattern %1: %2"_s.arg(text, matcher.error().fullText()));
    const HRFPattern pattern(*elements, HRFConversionContext::forMatching());
    const HRFAttributeDescription &attribute = **source;
    return HRFTagConversion{
        .newValues =
            [=, matcher = *matcher, &attribute](const HRFMetaFile &file) {
                return taggedValues(file, matcher, attribute);
            },
        .carryOut = [=, &attribute](HRFConversionHost &list, const Records &records) -> Outcome {
            HRFProgress progress(qlonglong(records.size()));
            list.setSelectedFiles(records);
            const auto outcome = HRFTagOperationCC(list).tagFilesByMatchingPattern(
                pattern, attribute, mode, progress);
            return {outcome.error, outcome.error ? list.selectedFiles() : Records()};
        },
        .missingValues = [](const HRFMetaFile &) { return QStringList(); }};
}

std::expected<HRFTagConversion, QString>
HRFTagConversion::composing(const HRFConversionOptions &options)
{
    const auto elements = HRFElementsFromOptions(options, HRFPatternItem::attributeItems());
    if (!elements)
        return std::unexpected(elements.error());
    const Attribute target =
        attributeNamed(options.targetAttribute,
                       HRFAttributeManager::sharedManager().tagAttributes(), u"--to"_s, u"tag"_s);
    if (!target)
        return std::unexpected(target.error());
    const HRFPattern pattern(*elements);
    const HRFAttributeDescription &attribute = **target;
    return HRFTagConversion{
        .newValues = [=, &attribute](const HRFMetaFile &file) -> Values {
            const auto value = HRFComposedValue(file, pattern, attribute);
            if (!value)
                return std::unexpected(value.error());
            return std::vector{HRFNewValue{HRFKeyPath::find(attribute.path()), *value}};
        },
        .carryOut = [=, &attribute](HRFConversionHost &list, const Records &records) -> Outcome {
            HRFProgress progress(qlonglong(records.size()));
            list.setSelectedFiles(records);
            const auto outcome =
                HRFTagOperationCC(list).composeTagWithPattern(pattern, attribute, progress);
            const auto done = std::size_t(progress.completedUnitCount());
            return {outcome.error, outcome.error ? Records{records.at(done)} : Records()};
        },
        .missingValues = [=](const HRFMetaFile &file) { return missingTokens(file, pattern); }};
}
