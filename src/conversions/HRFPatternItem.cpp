#include "conversions/HRFPatternItem.h"

#include "store/HRFAttributeManager.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace {

struct MatchingRow
{
    const char *title;
    const char *tokenTitle;
    const char *regex; ///< also the editing string
};

constexpr MatchingRow matchingRows[] = {
    {QT_TRANSLATE_NOOP("HRFPatternItem", "Wildcard"), QT_TRANSLATE_NOOP("HRFPatternItem", "＊"),
     "(.+)"},
    {QT_TRANSLATE_NOOP("HRFPatternItem", "Any Character"),
     QT_TRANSLATE_NOOP("HRFPatternItem", "Any"), "(.)"},
    {QT_TRANSLATE_NOOP("HRFPatternItem", "Any Word"), QT_TRANSLATE_NOOP("HRFPatternItem", "Word"),
     "(\\w+)"},
    {QT_TRANSLATE_NOOP("HRFPatternItem", "White Space"), QT_TRANSLATE_NOOP("HRFPatternItem", " "),
     "(\\s+)"},
    {QT_TRANSLATE_NOOP("HRFPatternItem", "Digits"), QT_TRANSLATE_NOOP("HRFPatternItem", "#"),
     "(\\d+)"},
};

QString tr(const char *text)
{
    return QCoreApplication::translate("HRFPatternItem", text);
}

} // namespace

HRFPatternItem HRFPatternItem::itemWithAttribute(const HRFAttributeDescription &attribute)
{
    HRFPatternItem item;
    item.m_representsNumericValue = attribute.isNumeric();
    item.m_title = attribute.displayName();
    item.m_editingString = attribute.name;
    item.m_regexString = attribute.isNumeric() ? u"(\\s*\\d+\\s*)"_s : u"(.+)"_s;
    item.m_valueTransformerName = attribute.displayValueTransformerName();
    item.m_metadataKeyPath = attribute.path();
    return item;
}

HRFPatternItem HRFPatternItem::itemWithTitle(const QString &title, const QString &tokenTitle,
                                             const QString &editingString,
                                             const QString &regexString)
{
    HRFPatternItem item;
    item.m_title = title;
    item.m_tokenTitle = tokenTitle;
    item.m_editingString = editingString;
    item.m_regexString = regexString;
    return item;
}

std::vector<HRFPatternItem> HRFPatternItem::attributeItems()
{
    const HRFAttributeManager &catalogue = HRFAttributeManager::sharedManager();
    std::vector<HRFPatternItem> items;
    for (const QString &entity : catalogue.orderedEntityNames())
        for (const auto *attribute : catalogue.attributesByEntityName().value(entity))
            items.push_back(itemWithAttribute(*attribute));
    return items;
}

std::vector<HRFPatternItem> HRFPatternItem::matchingOnlyItems()
{
    std::vector<HRFPatternItem> items;
    for (const MatchingRow &row : matchingRows) {
        const QString regex = QString::fromLatin1(row.regex);
        items.push_back(itemWithTitle(tr(row.title), tr(row.tokenTitle), regex, regex));
    }
    return items;
}

std::vector<HRFPatternItem> HRFPatternItem::matchingItems()
{
    std::vector<HRFPatternItem> items = attributeItems();
    for (HRFPatternItem &item : matchingOnlyItems())
        items.push_back(std::move(item));
    return items;
}
