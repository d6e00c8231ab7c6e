#include "app/HRFSheets.h"

#include "app/HRFProgressDialog.h"

#include <algorithm>

namespace {

bool isShownSheet(const QDialog *dialog)
{
    return dialog->isVisible() && dialog->isModal();
}

} // namespace

QDialog *HRFSheets::questionOn(const QWidget &window)
{
    const auto dialogs = window.findChildren<QDialog *>();
    const auto found = std::ranges::find_if(dialogs, [](const QDialog *dialog) {
        return isShownSheet(dialog) && !qobject_cast<const HRFProgressDialog *>(dialog);
    });
    return found == dialogs.end() ? nullptr : *found;
}

QWidget *HRFSheets::placeForQuestion(QWidget &window)
{
    QWidget *place = &window;
    for (auto *progress : window.findChildren<HRFProgressDialog *>())
        if (isShownSheet(progress))
            place = progress; // the last one blocks the others
    return place;
}

bool HRFSheets::areOn(const QWidget &window)
{
    return std::ranges::any_of(window.findChildren<QDialog *>(), [](const QDialog *dialog) {
        const auto *progress = qobject_cast<const HRFProgressDialog *>(dialog);
        return isShownSheet(dialog) || (progress && !progress->isOver());
    });
}
