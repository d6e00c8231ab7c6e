#include "tags/APEUnionMetaData.h"

#include "kit/HRFAssert.h"
#include "tags/TagLibText.h"

#include <taglib/apetag.h>

using namespace TagLib;
using namespace Qt::StringLiterals;

namespace {

/// Whether the property is text in an APE tag. Pictures are left to the ID3v2 tag.
bool isAPEText(HRFTagKey key)
{
    return HRFTagEngine::APEFrameForKey(key) && key != HRFTagKey::artwork;
}

} // namespace

HRFText APEUnionMetaData::stringForAPETag(const char *tagName) const
{
    HRFRequire(tagName, "tagName");
    const Lock guard = lock();
    const APE::Tag *tag = APETag();
    if (!tag)
        return {};
    const auto found = tag->itemListMap().find(String(tagName).upper());
    if (found == tag->itemListMap().end())
        return {};
    return TagLibText::toQString(found->second.values().toString(", "));
}

void APEUnionMetaData::setStringForAPETag(const HRFText &value, const char *tagName)
{
    HRFRequire(tagName, "tagName");
    if (!value || value->isEmpty())
        return removeValueForAPETag(tagName);
    const Lock guard = lock();
    if (APE::Tag *tag = APETag())
        tag->addValue(String(tagName), TagLibText::toTagString(*value), true);
}

void APEUnionMetaData::removeValueForAPETag(const char *tagName)
{
    HRFRequire(tagName, "tagName");
    const Lock guard = lock();
    if (APE::Tag *tag = APETag())
        tag->removeItem(String(tagName));
}

HRFText APEUnionMetaData::secondStringForKey(HRFTagKey key) const
{
    return isAPEText(key) ? stringForAPEKey(key) : HRFText();
}

void APEUnionMetaData::setSecondStringForKey(const HRFText &value, HRFTagKey key)
{
    if (isAPEText(key))
        setStringForAPEKey(value, key);
}

QVariant APEUnionMetaData::secondValueForKey(HRFTagKey key) const
{
    return valueFromText(secondStringForKey(key), HRFRowForKey(key).type);
}

void APEUnionMetaData::setSecondValueForKey(const QVariant &value, HRFTagKey key)
{
    setSecondStringForKey(textFromValue(value, HRFRowForKey(key).type), key);
}

QString APEUnionMetaData::secondTagVersion() const
{
    return APETag() && !APETag()->isEmpty() ? u"APE"_s : QString();
}
