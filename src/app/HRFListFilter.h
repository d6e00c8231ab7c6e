#pragma once

#include "document/HRFArrayController.h"

#include <QHash>
#include <QSet>
#include <QTimer>

/// What the user has chosen to see of a list: files with certain words, and with certain values in
/// certain columns.
class HRFListFilter : public QObject
{
    Q_OBJECT
public:
    using Texts = QSet<QString>;

    HRFListFilter(HRFMainContext &context, HRFArrayController &controller, QObject *parent);

    const QString &words() const { return m_words; }
    void setWords(const QString &words);
    /// The columns that are searched for the words.
    void setSearchedColumns(const std::vector<int> &columns);

    /// The values that are let through; nothing when all are.
    std::optional<Texts> allowedTexts(int column) const;
    void setAllowedTexts(int column, const std::optional<Texts> &texts);
    QSet<int> filteredColumns() const { return {m_allowed.keyBegin(), m_allowed.keyEnd()}; }

    bool isActive() const { return !m_words.isEmpty() || !m_allowed.isEmpty(); }
    void clear();

    struct Value
    {
        QString text;
        int count = 0;
    };
    /// The different values of a column in their order, among the files that the filters of words
    /// and of the other columns let through.
    std::vector<Value> valuesOf(int column) const;

Q_SIGNALS:
    /// The choice has changed; the list may follow a little later.
    void didChange();

private:
    HRFRecordFilter makeFilter(int withoutColumn = -1) const;
    void apply();
    void applySoon();
    void arrangementDidChange();

    HRFMainContext &m_context;
    HRFArrayController &m_controller;
    QString m_words;
    std::vector<int> m_searched;
    QHash<int, Texts> m_allowed; ///< by column
    QTimer m_timer;
};
