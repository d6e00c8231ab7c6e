#pragma once

#include "tags/HRFTagKey.h"

#include <QJsonObject>
#include <QString>
#include <QVariant>

class HRFFileReference;

/// The value as `set` would take it: dates in ISO 8601, booleans as true and false.
QString HRFValueText(const QVariant &value);

/// The value for people, with its unit.
QString HRFShownText(const QVariant &value, HRFTagKey key);

/// Dates in ISO 8601, null for nothing.
QJsonValue HRFJSONValue(const QVariant &value);

/// {"path"}, and its bytes where they are no valid UTF-8.
QJsonObject HRFJSONOfPath(const HRFFileReference &path);
