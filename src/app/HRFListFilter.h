#pragma once

#include "document/HRFArrayController.h"

#include <QHash>
#include <QSet>
#include <QTimer>

#include <memory>

class HRFPlaylist;
class HRFProgress;

/// What the user has chosen to see of a list: files with certain words, and with certain values in
/// certain columns.
class HRFListFilter : public QObject
{
    Q_OBJECT
public:
    using Texts = QSet<QString>;

    HRFListFilter(HRFPlaylist &list, QObject *parent);

    const QString &words() const { return m_choice.words; }
    void setWords(const QString &words);
    /// The columns that are searched for the words.
    void setSearchedColumns(const std::vector<int> &columns);

    /// The values that are let through; nothing when all are.
    std::optional<Texts> allowedTexts(int column) const;
    void setAllowedTexts(int column, const std::optional<Texts> &texts);
    QSet<int> filteredColumns() const
    {
        return {m_choice.allowed.keyBegin(), m_choice.allowed.keyEnd()};
    }

    bool isActive() const { return m_choice.isActive(); }
    void clear();

    struct Value
    {
        QString text;
        int count = 0;
    };
    /// The different values of a column in no order, among the files that the filters of words and
    /// of the other columns let through.
    std::vector<Value> valuesOf(int column) const;

Q_SIGNALS:
    /// The choice has changed; the list may follow a little later.
    void didChange();

private:
    struct Choice
    {
        QString words;
        QHash<int, Texts> allowed; ///< by column

        bool isActive() const { return !words.isEmpty() || !allowed.isEmpty(); }
    };

    HRFRecordFilter makeFilter(int withoutColumn = -1) const;
    void apply();
    void applySoon();
    void arrangementDidChange();
    void importDidEnd();

    HRFPlaylist &m_list;
    HRFArrayController &m_controller;
    Choice m_choice;
    std::vector<int> m_searched;
    /// What new files took away, and the running import that they came from.
    Choice m_takenAway;
    std::shared_ptr<HRFProgress> m_import; ///< nullptr when it was none
    QTimer m_timer;
};
