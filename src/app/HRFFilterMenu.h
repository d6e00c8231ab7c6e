#pragma once

#include "app/HRFListFilter.h"

#include <QCollator>
#include <QFrame>

class QCheckBox;
class QLabel;
class QLineEdit;
class QStandardItem;
class QStandardItemModel;

/// Lets the user choose the values of a column that the list shows. It appears below the column's
/// title, and goes when the user clicks elsewhere.
class HRFFilterMenu : public QFrame
{
    Q_OBJECT
public:
    HRFFilterMenu(HRFListFilter &filter, int column, QWidget *parent);

    void showAt(const QPoint &corner);

private:
    void makeWidgets();
    void showFoundValues();
    void addRow(const HRFListFilter::Value &value);
    void showStateOfAll();
    void itemDidChange(const QStandardItem &item);
    void allowFound(bool isAllowed);
    void allowNothingButFound();
    void allow(const HRFListFilter::Texts &texts);
    bool isAllowed(const QString &text) const;

    HRFListFilter &m_filter;
    const int m_column;
    const std::vector<HRFListFilter::Value> m_values;
    /// Those that the search finds: first the shown ones in their order, then the others.
    std::vector<const HRFListFilter::Value *> m_found;
    HRFListFilter::Texts m_allowed;
    const QCollator m_collator;
    QLineEdit *m_search = nullptr;
    QCheckBox *m_all = nullptr;
    QStandardItemModel *m_rows = nullptr;
    QLabel *m_rest = nullptr;
    bool m_isFilling = false;
};
