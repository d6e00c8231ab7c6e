#pragma once

#include <QHash>
#include <QObject>
#include <QString>
#include <QVariant>

#include <mutex>
#include <optional>

/// The user's settings by dotted key ("lirra.tagging.ID3v2Version").
///
/// A value is looked up in the overrides of this process, then in the user's settings file (INI,
/// "lirra/lirra.ini" in the user's configuration folder), then in the default settings compiled in.
/// All members may be called from any thread; valueChanged is emitted on the calling thread.
class HRFUserDefaults : public QObject
{
    Q_OBJECT
public:
    /// The settings of this process.
    static HRFUserDefaults &standard();

    /// Settings kept in the given file; an empty path means the user's own settings file.
    explicit HRFUserDefaults(const QString &filePath = {});

    /// Reads the given settings file from now on instead of the present one; an empty path means
    /// the user's own settings file.
    void setFilePath(const QString &filePath);

    /// The raw value, or an invalid QVariant when the key is in none of the three places.
    QVariant valueForKey(const QString &key) const;

    /// Text of the value; nothing for an absent key.
    std::optional<QString> stringForKey(const QString &key) const;
    /// The value's leading whole number; 0 for an absent key; 1 and 0 for booleans.
    qlonglong integerForKey(const QString &key) const;
    /// False for an absent key. Texts are true when they are "true" or "yes" in any case, or begin
    /// with a whole number other than 0.
    bool boolForKey(const QString &key) const;

    /// Stores a value in the user's settings file. An invalid QVariant removes the user's value, so
    /// that the default shows again. A value that cannot be written holds for this process. The key
    /// must consist of more than slashes (assertion "key.isNotEmpty").
    void setValueForKey(const QVariant &value, const QString &key);

    /// Takes every value out of the user's settings file.
    void removeUserValues();

    /// Sets a value for this process only; an invalid QVariant takes the override away.
    void setOverride(const QVariant &value, const QString &key);

    /// Whether the key has a shipped default: a key without one is most likely misspelt.
    bool hasDefaultForKey(const QString &key) const;
    /// The keys with a shipped default, sorted.
    QStringList defaultKeys() const;

Q_SIGNALS:
    void valueChanged(const QString &key);

private:
    // With m_mutex held:
    QStringList keysChangedSince(const QHash<QString, QVariant> &userValues) const;
    QVariant lookUp(const QString &key) const;
    QVariant lookUp(const QString &key, const QHash<QString, QVariant> &userValues) const;

    mutable std::mutex m_mutex; ///< guards every member below
    QString m_filePath;
    QHash<QString, QVariant> m_overrides;
    QHash<QString, QVariant> m_userValues;
    const QHash<QString, QVariant> m_defaults;
};
