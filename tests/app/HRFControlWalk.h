#pragma once

#include <QAccessible>
#include <QWidget>
#include <gtest/gtest.h>

/// Fails for every control below a widget of which a program that reads the screen aloud could not
/// say what it is.
/// @return how many controls there are
inline int HRFCheckControls(const QWidget &root)
{
    int count = 0;
    for (QWidget *widget : root.findChildren<QWidget *>()) {
        const bool isOwnedByStyle = widget->objectName().startsWith(QLatin1String("qt_"))
            || widget->parentWidget()->inherits("QLineEdit")
            || widget->parentWidget()->inherits("QComboBox")
            || widget->parentWidget()->inherits("QTabBar") || widget->inherits("QTabBar");
        if (widget->focusPolicy() == Qt::NoFocus || widget->focusProxy() || isOwnedByStyle)
            continue;
        ++count;
        const QAccessibleInterface *seen = QAccessible::queryAccessibleInterface(widget);
        const std::string what =
            widget->metaObject()->className() + (' ' + widget->objectName().toStdString());
        EXPECT_FALSE(seen->text(QAccessible::Name).isEmpty()) << what << " has no name";
        EXPECT_NE(seen->role(), QAccessible::NoRole) << what;
        EXPECT_NE(seen->role(), QAccessible::Client) << what << " could be anything";
    }
    return count;
}
