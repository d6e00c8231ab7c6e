#pragma once

#include "kit/HRFError.h"

#include <QVariant>

struct HRFAttributeDescription;

/// The value that a text stands for in an attribute: the text itself, a date in ISO 8601, true and
/// false as "yes", "true" and numbers other than 0. Numbers are as the user's language writes them,
/// and no greater than the attribute can hold.
///
/// Errors have the code -1.
HRFResult<QVariant> HRFValueOfText(const QString &text, const HRFAttributeDescription &attribute);
