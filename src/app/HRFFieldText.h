#pragma once

#include <QString>
#include <QVariant>

class HRFInputError;
class QLineEdit;
class QObject;
class QValidator;
struct HRFListColumn;

/// Values as they stand in text fields, in cells and in the sidebar.
namespace HRFFieldText {

QString textOf(const HRFListColumn &column, const QVariant &value);
/// Invalid for no value.
QVariant valueOf(const HRFListColumn &column, const QString &text);

/// A text that is kept in lines.
bool hasLines(const HRFListColumn &column, const QString &text);

/// Lets only values of the column be entered; an empty field has none.
/// @return says what is none yet, and goes with the field; nullptr where that cannot be
HRFInputError *setUp(QLineEdit &field, const HRFListColumn &column);

} // namespace HRFFieldText
