#pragma once

#include <QString>
#include <QVariant>

/// The text that a value is shown as, by the name of a transformer.
QString HRFTransformedValue(const QString &transformer, const QVariant &value);
