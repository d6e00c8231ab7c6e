#pragma once

#include "store/HRFAttributeDescription.h"

#include <functional>
#include <vector>

class HRFMetaFile;

/// Tells whether a list shows a record. Called on the main thread.
using HRFRecordFilter = std::function<bool(const HRFMetaFile &)>;

/// Lets those records through that have every word of a text in the shown text of some attribute,
/// without regard to case and to accents of Latin, Greek and Cyrillic letters. No filter (an empty
/// function) for a text without words.
HRFRecordFilter
HRFRecordFilterForWords(const QString &text,
                        const std::vector<const HRFAttributeDescription *> &attributes);
