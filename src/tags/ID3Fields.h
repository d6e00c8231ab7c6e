#pragma once

#include "tags/HRFTagKey.h"
#include "tags/HRFTagValue.h"

class ID3MetaData;

/// How a property is read from and written to an ID3v2 tag when it is not plain frame text.
struct ID3FieldHandler
{
    HRFTagKey key;
    QVariant (*read)(const ID3MetaData &engine, HRFTagKey key);
    /// Null for what cannot be set.
    void (*write)(ID3MetaData &engine, HRFTagKey key, const QVariant &value) = nullptr;
};

/// The handler of a property; nullptr when it is plain frame text or not a matter of the tag.
const ID3FieldHandler *ID3FieldHandlerForKey(HRFTagKey key);
