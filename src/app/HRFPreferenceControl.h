#pragma once

class QWidget;
struct HRFPreferenceRow;

/// The widgets that show a setting, explain it and change it at once. They follow when the setting
/// is changed elsewhere. The one that takes the input is named after the setting's key.
QWidget *HRFMakePreferenceControl(const HRFPreferenceRow &row, QWidget *parent);
