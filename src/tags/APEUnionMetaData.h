#pragma once

#include "tags/ID3UnionMetaData.h"

namespace TagLib::APE {
class Tag;
}

/// Adds the APE tag, for every property that has an APE item key, to the ID3 engines.
class APEUnionMetaData : public HRFTagUnion<APEUnionMetaData, ID3UnionMetaData>
{
public:
    /// The APE tag of the open file; may be null.
    virtual TagLib::APE::Tag *APETag() const = 0;

    /// The item's values joined with ", ". A null item key is an assertion.
    HRFText stringForAPETag(const char *tagName) const;
    /// Replaces the item; nothing removes it.
    void setStringForAPETag(const HRFText &value, const char *tagName);
    void removeValueForAPETag(const char *tagName);
    HRFText stringForAPEKey(HRFTagKey key) const { return stringForAPETag(APEFrameForKey(key)); }
    void setStringForAPEKey(const HRFText &value, HRFTagKey key)
    {
        setStringForAPETag(value, APEFrameForKey(key));
    }
    void removeValueForAPEKey(HRFTagKey key) { removeValueForAPETag(APEFrameForKey(key)); }
    HRFNumber numberForAPEKey(HRFTagKey key) const { return numberForString(stringForAPEKey(key)); }
    /// Nothing and 0 remove the item.
    void setNumberForAPEKey(const HRFNumber &value, HRFTagKey key)
    {
        setStringForAPEKey(stringForNumber(value), key);
    }

    HRFText secondStringForKey(HRFTagKey key) const;
    void setSecondStringForKey(const HRFText &value, HRFTagKey key);
    QVariant secondValueForKey(HRFTagKey key) const;
    void setSecondValueForKey(const QVariant &value, HRFTagKey key);
    QString secondTagVersion() const;

protected:
    using HRFTagUnion::HRFTagUnion;
};
