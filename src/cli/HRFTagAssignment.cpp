#include "cli/HRFTagAssignment.h"

#include "cli/HRFNearestName.h"
#include "kit/HRFFileReference.h"
#include "kit/HRFISO8601DateFormatter.h"
#include "kit/HRFImageType.h"
#include "tags/HRFTagKey.h"

#include <QFile>

#include <cerrno>
#include <cstdio>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

using ParsedValue = std::expected<QVariant, QString>;

QStringList tagNames()
{
    QStringList names;
    for (const HRFPropertyRow &row : HRFPropertyRows)
        if (row.isTag)
            names.append(QString::fromLatin1(row.name));
    return names;
}

/// Numbers are stored in 32 bits.
ParsedValue parseNumber(const QString &text)
{
    bool isNumber = false;
    const int number = text.trimmed().toInt(&isNumber);
    if (!isNumber || number < 0)
        return std::unexpected(u"“%1” is not a whole number"_s.arg(text));
    return QVariant(qlonglong(number));
}

ParsedValue parseDate(const QString &text)
{
    const auto date = HRFISO8601DateFormatter::shared().dateFromString(text.trimmed());
    if (!date)
        return std::unexpected(
            u"“%1” is not a date such as 2004, 2004-05-06 or 2004-05-06T07:08:09Z"_s.arg(text));
    return QVariant(*date);
}

ParsedValue parseBoolean(const QString &text)
{
    const QString word = text.trimmed().toLower();
    if (word == u"true" || word == u"yes" || word == u"1")
        return QVariant(true);
    if (word == u"false" || word == u"no" || word == u"0")
        return QVariant(false);
    return std::unexpected(u"“%1” is neither true nor false"_s.arg(text));
}

ParsedValue parseValue(const QString &text, HRFPropertyType type)
{
    switch (type) {
    case HRFPropertyType::Number:
        return parseNumber(text);
    case HRFPropertyType::Date:
        return parseDate(text);
    case HRFPropertyType::Boolean:
        return parseBoolean(text);
    default:
        return QVariant(text);
    }
}

std::expected<HRFTagChange, QString> parseAssignment(const std::string &assignment)
{
    const QString whole = QString::fromStdString(assignment);
    if (whole.toStdString() != assignment)
        return std::unexpected(u"-t %1: The text is not valid UTF-8"_s.arg(whole));
    const qsizetype equals = whole.indexOf(u'=');
    if (equals < 1)
        return std::unexpected(u"-t %1: expected KEY=VALUE"_s.arg(whole));
    const QString name = whole.left(equals);
    const auto key = HRFTagKeyForName(name.toStdString());
    if (!key || !HRFRowForKey(*key).isTag)
        return std::unexpected(u"-t %1: there is no tag “%2”; did you mean “%3”?"_s.arg(
            whole, name, HRFNearestName(name, tagNames())));
    if (*key == HRFTagKey::artwork)
        return std::unexpected(u"-t %1: use --artwork FILE or --no-artwork"_s.arg(whole));
    const QString text = whole.mid(equals + 1);
    if (text.isEmpty())
        return HRFTagChange{*key, {}};
    const ParsedValue value = parseValue(text, HRFRowForKey(*key).type);
    if (!value)
        return std::unexpected(u"-t %1: %2"_s.arg(whole, value.error()));
    return HRFTagChange{*key, *value};
}

std::expected<QByteArray, QString> readArtwork(const std::string &path)
{
    const auto reference = HRFFileReference::fromNativePath(QByteArray::fromStdString(path));
    const QString name = reference.displayPath();
    const std::unique_ptr<std::FILE, int (*)(std::FILE *)> handle(std::fopen(path.c_str(), "rb"),
                                                                  &std::fclose);
    QFile file;
    if (!handle || !file.open(handle.get(), QIODevice::ReadOnly))
        return std::unexpected(
            u"--artwork %1: %2"_s.arg(name, HRFError::fromErrno(errno).description));
    QByteArray data = file.readAll();
    if (file.error() != QFileDevice::NoError)
        return std::unexpected(u"--artwork %1: %2"_s.arg(name, file.errorString()));
    if (!bitmapImageType(data) || !bitmapImageSize(data))
        return std::unexpected(u"--artwork %1: The file is no image"_s.arg(name));
    return data;
}

} // namespace

std::expected<std::vector<HRFTagChange>, QString>
HRFTagChangesFromOptions(const HRFCommandOptions &options)
{
    std::vector<HRFTagChange> changes;
    for (const std::string &assignment : options.assignments) {
        auto change = parseAssignment(assignment);
        if (!change)
            return std::unexpected(change.error());
        changes.push_back(std::move(*change));
    }
    if (options.removesArtwork)
        changes.push_back({HRFTagKey::artwork, {}});
    if (!options.artworkFile.empty()) {
        auto artwork = readArtwork(options.artworkFile);
        if (!artwork)
            return std::unexpected(artwork.error());
        changes.push_back({HRFTagKey::artwork, *artwork});
    }
    if (changes.empty())
        return std::unexpected(u"Nothing to set: give -t KEY=VALUE, --artwork or --no-artwork"_s);
    return changes;
}
