#include "conversions/HRFMetaFile+Patterns.h"
#include "conversions/HRFString+FileNames.h"
#include "kit/HRFISO8601DateFormatter.h"
#include "store/HRFAttributeDescription.h"
#include "store/HRFValueTransformer.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>
#include <cstdlib>

using namespace Qt::StringLiterals;

namespace {

constexpr std::array paddedFields{"tags.trackNumber"_L1, "tags.trackTotal"_L1, "tags.discNumber"_L1,
                                  "tags.discTotal"_L1};

HRFCharacterSet forbiddenCharacters(bool isNTFSFriendly, bool isSMBFriendly, HRFSlash slash)
{
    HRFCharacterSet set;
    for (char32_t unit = 0; unit < set.size(); ++unit)
        set[unit] = QChar(char16_t(unit)).category() == QChar::Other_Control;
    for (const QChar separator : {QChar::LineSeparator, QChar::ParagraphSeparator})
        set.set(separator.unicode());
    const auto insert = [&](QStringView characters) {
        for (const QChar character : characters)
            set.set(character.unicode());
    };
    if (isNTFSFriendly)
        insert(u"<>:\"/\\|?*");
    if (slash == HRFSlash::IsAllowed)
        set.reset(u'/');
    if (isSMBFriendly)
        insert(u"+=[],;");
    return set;
}

/// The sets of all contexts, since many names are made with one of them.
const HRFCharacterSet &forbiddenCharacters(HRFSlash slash, const HRFConversionContext &context)
{
    static const auto sets = [] {
        std::array<HRFCharacterSet, 8> all;
        for (unsigned i = 0; i < all.size(); ++i)
            all[i] = forbiddenCharacters(i & 1, i & 2,
                                         i & 4 ? HRFSlash::IsAllowed : HRFSlash::IsForbidden);
        return all;
    }();
    return sets[(context.isNTFSFriendly ? 1U : 0U) | (context.isSMBFriendly ? 2U : 0U)
                | (slash == HRFSlash::IsAllowed ? 4U : 0U)];
}

std::optional<QString> fallback(const HRFPatternItem &item, const HRFConversionContext &context)
{
    switch (context.fallbackAction) {
    case HRFConversionContext::fallbackUnknown:
        return QCoreApplication::translate("HRFPattern", "Unknown %1").arg(item.title());
    case HRFConversionContext::fallbackEmpty:
        return QString();
    default:
        return {};
    }
}

bool isPadded(const HRFPatternItem &item, const HRFConversionContext &context)
{
    return item.representsNumericValue() && context.usesNumericPadding
        && std::ranges::find(paddedFields, item.metadataKeyPath()) != paddedFields.end();
}

/// As wide as the total that belongs to the number, but of two digits at least.
QString paddedText(const QVariant &value, const HRFRecordValues &values, const QString &keyPath)
{
    constexpr qsizetype leastWidth = 2;
    qsizetype width = leastWidth;
    if (keyPath.endsWith("Number"_L1)) {
        const QVariant total =
            values.valueForKeyPath(keyPath.chopped("Number"_L1.size()) + "Total"_L1);
        if (total.isValid())
            width = std::max(width, HRFPlainText(total).size());
    }
    const QString digits = QString::number(std::abs(value.toLongLong()));
    const QString sign = value.toLongLong() < 0 ? u"-"_s : QString();
    return sign + digits.rightJustified(width - sign.size(), u'0');
}

/// Hands the texts of the elements on, one by one; false when a token yields nothing.
template <class Append>
bool render(const HRFRecordValues &values, const HRFPattern &pattern, HRFSlash slash, Append append)
{
    for (const HRFPatternElement &element : pattern.items()) {
        if (const auto *literal = std::get_if<QString>(&element)) {
            append(HRFSanitizedString(*literal, slash, pattern.context()),
                   HRFPatternRun::Kind::Literal);
            continue;
        }
        const auto &item = std::get<HRFPatternItem>(element);
        const auto text = HRFStringValueForPatternItem(values, item, pattern.context());
        if (!text)
            return false;
        append(*text, HRFPatternRun::kindOf(item));
    }
    return true;
}

std::optional<QString> renderedText(const HRFRecordValues &values, const HRFPattern &pattern,
                                    HRFSlash slash)
{
    QString result;
    const bool isComplete = render(
        values, pattern, slash, [&](const QString &text, HRFPatternRun::Kind) { result += text; });
    return isComplete ? std::optional(result) : std::nullopt;
}

QString withoutExtension(const QString &name, const HRFRecordValues &values)
{
    const QString extension = values.valueForKeyPath(u"fileInfo.fileExtension"_s).toString();
    return extension.isEmpty() ? name : name.chopped(extension.size() + 1);
}

} // namespace

std::optional<QString> HRFStringValueForPatternItem(const HRFRecordValues &values,
                                                    const HRFPatternItem &item,
                                                    const HRFConversionContext &context)
{
    const QVariant value = values.valueForKeyPath(item.metadataKeyPath());
    if (!value.isValid())
        return fallback(item, context);
    QString text;
    if (isPadded(item, context))
        text = paddedText(value, values, item.metadataKeyPath());
    else if (!item.valueTransformerName().isEmpty())
        text = HRFTransformedValue(item.valueTransformerName(), value);
    else
        text = HRFPlainText(value);
    return HRFSanitizedString(HRFSanitizedFileNameString(text), HRFSlash::IsForbidden, context);
}

QString HRFSanitizedString(const QString &text, HRFSlash slash, const HRFConversionContext &context)
{
    return HRFStringByStrippingCharactersInSet(text, forbiddenCharacters(slash, context));
}

std::optional<QString> HRFStringForPattern(const HRFRecordValues &values, const HRFPattern &pattern)
{
    return renderedText(values, pattern, HRFSlash::IsForbidden);
}

std::optional<QString> HRFPathForPattern(const HRFRecordValues &values, const HRFPattern &pattern)
{
    return renderedText(values, pattern, HRFSlash::IsAllowed);
}

std::optional<QString> HRFFileNameForPattern(const HRFRecordValues &values,
                                             const HRFPattern &pattern)
{
    return HRFStringForPattern(values, pattern).transform([](const QString &text) {
        return HRFSanitizedFileNameString(text).trimmed();
    });
}

std::optional<std::vector<HRFPatternRun>> HRFRunsForPattern(const HRFRecordValues &values,
                                                            const HRFPattern &pattern)
{
    std::vector<HRFPatternRun> runs;
    const bool isComplete = render(
        values, pattern, HRFSlash::IsForbidden,
        [&](const QString &text, HRFPatternRun::Kind kind) { runs.push_back({text, kind}); });
    return isComplete ? std::optional(std::move(runs)) : std::nullopt;
}

QString HRFPlainText(const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::Bool:
        return value.toBool() ? u"1"_s : u"0"_s;
    case QMetaType::QDateTime:
        return HRFISO8601DateFormatter::shared().stringFromDate(value.toDateTime());
    default:
        return value.toString();
    }
}

std::optional<QString> HRFConversionStringForAttribute(const HRFRecordValues &values,
                                                       const HRFAttributeDescription &attribute)
{
    const QVariant value = values.valueForKeyPath(attribute.path());
    if (!value.isValid())
        return {};
    if (attribute.isFilename())
        return withoutExtension(value.toString(), values);
    if (attribute.isFilePath()) {
        const QString name = values.valueForKeyPath(u"fileInfo.fileName"_s).toString();
        const QString folder = value.toString();
        return (folder.endsWith(u'/') ? folder : folder + u'/') + withoutExtension(name, values);
    }
    return HRFPlainText(value);
}
