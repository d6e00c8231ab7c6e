#pragma once

#include "tags/HRFFieldHandler.h"

class ID3MetaData;

/// How properties are read from and written to an ID3v2 tag; nullptr for those that are plain frame
/// text or not a matter of the tag.
const HRFFieldHandler<ID3MetaData> *ID3FieldHandlerForKey(HRFTagKey key);
