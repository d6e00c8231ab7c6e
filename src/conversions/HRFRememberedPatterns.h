#pragma once

#include "conversions/HRFPattern.h"

#include <QStringList>

/// The patterns that a pattern field remembers in the user's settings: the last one under the
/// field's autosave name, and the recent ones under the same name with ".recentPatterns" behind it.
class HRFRememberedPatterns
{
public:
    /// Loads what is remembered under the name; an empty name remembers for as long as this lives.
    explicit HRFRememberedPatterns(QString autosaveName = {});

    /// The last used pattern in its stored form; empty at first.
    const QString &patternString() const { return m_patternString; }
    void setPatternString(const QString &string) { m_patternString = string; }
    /// The most recent one first.
    const QStringList &recentPatterns() const { return m_recentPatterns; }

    /// Puts a pattern in front of the recent ones, and saves those. Ignores patterns without text.
    void addRecentPattern(const HRFPatternElements &items);
    bool canClearRecents() const { return !m_recentPatterns.isEmpty(); }
    void clearRecents();
    int maximumRecents() const;
    /// From 0 to 254; less than 0 for the usual number.
    void setMaximumRecents(int count);

    /// Saves both: to be called when the field gives up the keyboard.
    void save() const;

private:
    void saveRecentPatterns() const;

    const QString m_autosaveName;
    QString m_patternString;
    QStringList m_recentPatterns;
    int m_maximumRecents;
};
