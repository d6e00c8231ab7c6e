#pragma once

#include "app/HRFCommonValue.h"

#include <QObject>

class QWidget;

/// One column of the selected records in the sidebar: shows the value that they agree on, and tells
/// what the user makes of it. What was not edited is never told of.
class HRFSidebarField : public QObject
{
    Q_OBJECT
public:
    /// A field that suits the column; its widget belongs to the parent.
    static HRFSidebarField *make(const HRFListColumn &column, QWidget *parent);

    const HRFListColumn &column() const { return m_column; }
    QWidget &widget() const { return *m_widget; }

    /// What is being entered stays.
    virtual void show(const HRFCommonValue &common) = 0;
    /// Tells of what was entered; what is no value of the column stays as it is, to be put right.
    virtual void commit() { }
    /// Takes back what was entered and not told of.
    virtual void revert() { }

Q_SIGNALS:
    void didEdit(const QVariant &value);

protected:
    HRFSidebarField(const HRFListColumn &column, QWidget &widget);
    static QString multipleValues();

private:
    const HRFListColumn &m_column;
    QWidget *const m_widget;
};
