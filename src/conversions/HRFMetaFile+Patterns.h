#pragma once

#include "conversions/HRFPattern.h"
#include "conversions/HRFPatternRun.h"
#include "conversions/HRFRecordValues.h"

#include <optional>

// Renders patterns for files. All of it only depends on its parameters, and may be called from any
// thread with a snapshot of the values. Rendering yields nothing when a value is missing and the
// fallback says so.

/// The text of one token.
std::optional<QString> HRFStringValueForPatternItem(const HRFRecordValues &values,
                                                    const HRFPatternItem &item,
                                                    const HRFConversionContext &context);

enum class HRFSlash { IsForbidden, IsAllowed };
/// The text without line breaks and other control characters, and without what the file systems
/// that the context is friendly to forbid. Where these allow slashes, they stay.
QString HRFSanitizedString(const QString &text, HRFSlash slash,
                           const HRFConversionContext &context);

/// The whole pattern as one text.
std::optional<QString> HRFStringForPattern(const HRFRecordValues &values,
                                           const HRFPattern &pattern);
/// As a path of folders: slashes in its literal text separate them. It may lead anywhere; see
/// HRFContainedSubPath.
std::optional<QString> HRFPathForPattern(const HRFRecordValues &values, const HRFPattern &pattern);
/// As a file name without extension; may be empty.
std::optional<QString> HRFFileNameForPattern(const HRFRecordValues &values,
                                             const HRFPattern &pattern);
/// The whole pattern in pieces, for previews.
std::optional<std::vector<HRFPatternRun>> HRFRunsForPattern(const HRFRecordValues &values,
                                                            const HRFPattern &pattern);

/// A value as plain text: numbers in decimal, booleans as 1 and 0, dates in ISO 8601.
QString HRFPlainText(const QVariant &value);

/// What a pattern is matched against: the file's name or path without the extension, or the value
/// of another attribute; nothing where there is none.
std::optional<QString> HRFConversionStringForAttribute(const HRFRecordValues &values,
                                                       const HRFAttributeDescription &attribute);
