#pragma once

class QDialog;
class QWidget;

/// What stands on a window, and keeps the user from it.
///
/// Of two dialogs that stand on one window side by side the later one blocks the other. So a
/// question stands on the progress that is there already, and a progress waits until a question is
/// answered, for which its work may be waiting.
namespace HRFSheets {

/// A dialog on a window that waits for the user; nullptr for none.
QDialog *questionOn(const QWidget &window);
/// Where a question about a window is to stand: on the progress there, or else on the window.
QWidget *placeForQuestion(QWidget &window);
/// Whether anything stands on a window, or will as soon as it can.
bool areOn(const QWidget &window);

} // namespace HRFSheets
