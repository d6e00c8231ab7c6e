#pragma once

#include "tags/HRFTagKey.h"

#include <QString>
#include <QVariant>

/// The value as `set` would take it: dates in ISO 8601, booleans as true and false.
QString HRFValueText(const QVariant &value);

/// The value for people, with its unit.
QString HRFShownText(const QVariant &value, HRFTagKey key);
