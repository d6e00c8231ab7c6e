#pragma once

#include <QString>
#include <QVariant>

/// The transformers of attributes for which the model names none.
namespace HRFValueTransformer {

/// A text as it is, line breaks included: what is shown is also what is copied and exported.
inline constexpr QLatin1StringView metadataString("MetadataStringTransformer");
/// "Yes" or "No".
inline constexpr QLatin1StringView localizedBool("HRFLocalizedBoolValue");

} // namespace HRFValueTransformer

/// The text that a value is shown as, by the name of a transformer; empty for no value. There must
/// be a transformer with the name (assertion "transformer"). May be called from any thread.
QString HRFTransformedValue(const QString &transformer, const QVariant &value);
