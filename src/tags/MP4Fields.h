#pragma once

#include "tags/HRFFieldHandler.h"

class MP4MetaData;

/// How properties are read from and written to MP4 items; nullptr for those that are plain text or
/// booleans.
const HRFFieldHandler<MP4MetaData> *MP4FieldHandlerForKey(HRFTagKey key);
