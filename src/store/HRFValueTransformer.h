#pragma once

#include <QString>
#include <QVariant>

/// The transformers that code asks for: those of attributes for which the model names none, and one
/// that makes no letters.
namespace HRFValueTransformer {

/// A text as it is, line breaks included: what is shown is also what is copied and exported.
inline constexpr QLatin1StringView metadataString("MetadataStringTransformer");
/// "Yes" or "No".
inline constexpr QLatin1StringView localizedBool("HRFLocalizedBoolValue");

/// Seconds as "3:05" or "1:02:03".
inline constexpr QLatin1StringView duration("HRFDurationValue");

} // namespace HRFValueTransformer

/// The text that a value is shown as, by the name of a transformer; empty for no value. There must
/// be a transformer with the name (assertion "transformer"). May be called from any thread.
QString HRFTransformedValue(const QString &transformer, const QVariant &value);
