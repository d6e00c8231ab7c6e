#pragma once

#include "tags/HRFTagUnion.h"
#include "tags/ID3MetaData.h"

namespace TagLib::ID3v1 {
class Tag;
}

/// Adds the ID3v1 tag, for the few fields that it can hold, to the ID3v2 engine.
class ID3UnionMetaData : public HRFTagUnion<ID3UnionMetaData, ID3MetaData>
{
public:
    /// The ID3v1 tag of the open file; may be null.
    virtual TagLib::ID3v1::Tag *ID3V1Tag() const = 0;

    QVariant secondValueForKey(HRFTagKey key) const;
    void setSecondValueForKey(const QVariant &value, HRFTagKey key);
    QString secondTagVersion() const;

protected:
    using HRFTagUnion::HRFTagUnion;
};
