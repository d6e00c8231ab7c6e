#pragma once

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QTest>
#include <QWindow>
#include <gtest/gtest.h>

/// The dialogs that are on the screen.
namespace HRFTestDialogs {

inline QDialog *dialog(const QString &name)
{
    for (QWidget *widget : QApplication::topLevelWidgets())
        if (widget->objectName() == name && widget->isVisible())
            return qobject_cast<QDialog *>(widget);
    return nullptr;
}

/// Clicks as a mouse does: a dialog that another one blocks does not notice.
inline void press(QDialog &shown, const QString &title)
{
    for (const auto *button : shown.findChildren<QAbstractButton *>()) {
        if (button->text() != title)
            continue;
        const QPoint middle = button->mapTo(&shown, button->rect().center());
        return QTest::mouseClick(shown.windowHandle(), Qt::LeftButton, {}, middle);
    }
    ADD_FAILURE() << "no button " << title.toStdString();
}

} // namespace HRFTestDialogs
