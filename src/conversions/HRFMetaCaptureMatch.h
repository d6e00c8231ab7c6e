#pragma once

#include "conversions/HRFPatternItem.h"

#include <QVariant>

/// What the group of an item has captured: a whole number for numeric items, else a text.
struct HRFMetaCaptureMatch
{
    HRFPatternItem patternItem;
    QVariant value;
};
