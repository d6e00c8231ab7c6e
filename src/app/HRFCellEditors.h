#pragma once

#include <QVariant>

class QWidget;
struct HRFListColumn;

/// The widgets that values of columns are edited with. They accept only what is a value of the
/// column; an empty field takes the value away.

/// A widget that shows the value. The caller owns it through its parent.
QWidget *HRFMakeCellEditor(const HRFListColumn &column, const QVariant &value, QWidget *parent);
/// Whether what stands in it is a value of the column. If not, the editor says what is expected.
bool HRFCheckCellEditor(const QWidget &editor);
/// Whether anything was entered.
bool HRFIsCellEditorChanged(const QWidget &editor);
/// What was entered; invalid for no value.
QVariant HRFValueOfCellEditor(const HRFListColumn &column, const QWidget &editor);
