#pragma once

#include "app/HRFSidebarField.h"

class HRFInputError;
class QEvent;
class QKeyEvent;
class QMenu;

/// A value that is typed: one line, or several where the column keeps lines. Return takes what was
/// typed (in lines with Ctrl), leaving the field does so too, Escape brings back what was there.
/// What is no value of the column stays in the field, which says why, to be put right.
class HRFSidebarTextField : public HRFSidebarField
{
    Q_OBJECT
public:
    static HRFSidebarTextField *make(const HRFListColumn &column, QWidget *parent);

    void show(const HRFCommonValue &common) override;
    void commit() override;
    void revert() override;
    bool eventFilter(QObject *object, QEvent *event) override;

protected:
    HRFSidebarTextField(const HRFListColumn &column, QWidget &widget);

    virtual QString text() const = 0;
    virtual void setText(const QString &text) = 0;
    virtual void setPlaceholder(const QString &text) = 0;
    virtual void setReadOnly(bool isReadOnly) = 0;
    /// nullptr where every text is a value.
    virtual HRFInputError *error() const { return nullptr; }
    /// Whether a key press ends the typing.
    virtual bool isEnd(const QKeyEvent &key) const = 0;
    virtual void selectAll() = 0;
    virtual QMenu *standardMenu() = 0;

private:
    bool isModified() const { return text() != m_shown; }
    void describe(const QString &text);
    void restore();
    QString hint() const;
    QString multipleText() const;
    bool filterKey(QKeyEvent &key);
    void showMenu(const QPoint &position);

    QString m_shown; ///< the text before the user changed it
    bool m_hasValue = false; ///< in some record
    bool m_isReadOnly = false;
};
