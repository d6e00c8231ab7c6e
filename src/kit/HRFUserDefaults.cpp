#include "kit/HRFUserDefaults.h"

#include "kit/HRFAssert.h"

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSettings>
#include <QStandardPaths>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

using namespace Qt::StringLiterals;

// The resources of a static library are registered by hand, outside any namespace.
static void registerResources()
{
    Q_INIT_RESOURCE(lirra_kit);
}

namespace {

QHash<QString, QVariant> shippedDefaults()
{
    registerResources();
    QFile file(u":/lirra/DefaultSettings.json"_s);
    const bool isOpen = file.open(QIODevice::ReadOnly);
    HRFRequire(isOpen, "defaultSettings.isOpen");
    const QJsonDocument document = QJsonDocument::fromJson(file.readAll());
    HRFRequire(document.isObject(), "defaultSettings.isObject");
    return document.object().toVariantHash();
}

QString orUserFile(const QString &filePath)
{
    if (!filePath.isEmpty())
        return filePath;
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation)
        + "/lirra/lirra.ini"_L1;
}

/// INI files know only texts: gives a boolean that was written the type back that it had.
QVariant fromINI(const QVariant &value)
{
    if (value == u"true"_s || value == u"false"_s)
        return value.toBool();
    return value;
}

QString textOf(const QVariant &value)
{
    // An INI file's unquoted text with commas arrives as a list.
    if (value.typeId() == QMetaType::QStringList)
        return value.toStringList().join(", "_L1);
    return value.toString();
}

/// Whether both read the same: a number differs from its text in an INI file by type only.
bool isSameValue(const QVariant &a, const QVariant &b)
{
    const QString text = textOf(a);
    return a == b || (!text.isEmpty() && text == textOf(b));
}

qlonglong leadingInteger(const QString &text)
{
    const QByteArray bytes = text.trimmed().toLatin1();
    const bool skipsSign = bytes.startsWith('+') && !bytes.startsWith("+-");
    qlonglong number = 0;
    const auto result = std::from_chars(bytes.begin() + (skipsSign ? 1 : 0), bytes.end(), number);
    using Limits = std::numeric_limits<qlonglong>;
    if (result.ec == std::errc::result_out_of_range)
        return bytes.startsWith('-') ? Limits::min() : Limits::max();
    return number;
}

qlonglong integerOf(const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::Bool:
        return value.toBool() ? 1 : 0;
    case QMetaType::Double: // its text may have an exponent
        return leadingInteger(QString::number(std::trunc(value.toDouble()), 'f', 0));
    default:
        return leadingInteger(textOf(value));
    }
}

bool isTrue(const QVariant &value)
{
    const QString text = textOf(value);
    return text.compare("true"_L1, Qt::CaseInsensitive) == 0
        || text.compare("yes"_L1, Qt::CaseInsensitive) == 0 || integerOf(value) != 0;
}

void store(QHash<QString, QVariant> &values, const QString &key, const QVariant &value)
{
    if (value.isValid())
        values.insert(key, value);
    else
        values.remove(key);
}

QHash<QString, QVariant> readINI(const QString &filePath)
{
    const QSettings settings(filePath, QSettings::IniFormat);
    if (settings.status() != QSettings::NoError)
        qWarning("The settings file %s cannot be read", qUtf8Printable(filePath));
    QHash<QString, QVariant> values;
    for (const QString &key : settings.allKeys())
        store(values, key, fromINI(settings.value(key)));
    return values;
}

/// Answers whether the file took the value.
bool write(const QString &filePath, const QString &key, const QVariant &value)
{
    QSettings settings(filePath, QSettings::IniFormat);
    if (value.isValid())
        settings.setValue(key, value);
    else
        settings.remove(key);
    settings.sync();
    return settings.status() == QSettings::NoError;
}

} // namespace

HRFUserDefaults &HRFUserDefaults::standard()
{
    static HRFUserDefaults defaults;
    return defaults;
}

HRFUserDefaults::HRFUserDefaults(const QString &filePath)
    : m_filePath(orUserFile(filePath))
    , m_userValues(readINI(m_filePath))
    , m_defaults(shippedDefaults())
{
}

void HRFUserDefaults::setFilePath(const QString &filePath)
{
    const QString newFilePath = orUserFile(filePath);
    QHash<QString, QVariant> userValues = readINI(newFilePath);
    std::unique_lock lock(m_mutex);
    m_filePath = newFilePath;
    m_userValues.swap(userValues);
    const QStringList changedKeys = keysChangedSince(userValues);
    lock.unlock();

    for (const QString &key : changedKeys)
        Q_EMIT valueChanged(key);
}

QVariant HRFUserDefaults::valueForKey(const QString &key) const
{
    const std::lock_guard lock(m_mutex);
    return lookUp(key);
}

std::optional<QString> HRFUserDefaults::stringForKey(const QString &key) const
{
    const QVariant value = valueForKey(key);
    return value.isValid() ? std::optional(textOf(value)) : std::nullopt;
}

qlonglong HRFUserDefaults::integerForKey(const QString &key) const
{
    return integerOf(valueForKey(key));
}

bool HRFUserDefaults::boolForKey(const QString &key) const
{
    return isTrue(valueForKey(key));
}

void HRFUserDefaults::setValueForKey(const QVariant &value, const QString &key)
{
    // QSettings takes the removal of an empty key for that of all keys.
    HRFRequire(std::ranges::any_of(key, [](QChar c) { return c != u'/'; }), "key.isNotEmpty");
    std::unique_lock lock(m_mutex);
    const QVariant before = lookUp(key);
    store(m_userValues, key, value);
    const bool isChanged = !isSameValue(before, lookUp(key));
    const QString filePath = m_filePath;
    const bool isWritten = write(filePath, key, value);
    lock.unlock();

    if (!isWritten)
        qWarning("The settings file %s cannot be written", qUtf8Printable(filePath));
    if (isChanged)
        Q_EMIT valueChanged(key);
}

void HRFUserDefaults::removeUserValues()
{
    std::unique_lock lock(m_mutex);
    const QStringList keys = m_userValues.keys();
    lock.unlock();
    for (const QString &key : keys)
        setValueForKey({}, key);
}

void HRFUserDefaults::setOverride(const QVariant &value, const QString &key)
{
    std::unique_lock lock(m_mutex);
    const QVariant before = lookUp(key);
    store(m_overrides, key, value);
    const bool isChanged = !isSameValue(before, lookUp(key));
    lock.unlock();

    if (isChanged)
        Q_EMIT valueChanged(key);
}

bool HRFUserDefaults::hasDefaultForKey(const QString &key) const
{
    return m_defaults.contains(key);
}

QStringList HRFUserDefaults::defaultKeys() const
{
    QStringList keys = m_defaults.keys();
    keys.sort();
    return keys;
}

QStringList HRFUserDefaults::keysChangedSince(const QHash<QString, QVariant> &userValues) const
{
    QStringList keys = userValues.keys() + m_userValues.keys();
    keys.removeDuplicates();
    keys.removeIf([&](const QString &key) {
        return isSameValue(lookUp(key, userValues), lookUp(key, m_userValues));
    });
    return keys;
}

QVariant HRFUserDefaults::lookUp(const QString &key) const
{
    return lookUp(key, m_userValues);
}

QVariant HRFUserDefaults::lookUp(const QString &key,
                                 const QHash<QString, QVariant> &userValues) const
{
    for (const auto *values : {&m_overrides, &userValues, &m_defaults}) {
        const auto found = values->constFind(key);
        if (found != values->constEnd())
            return *found;
    }
    return {};
}
