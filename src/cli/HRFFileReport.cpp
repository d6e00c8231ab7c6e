#include "cli/HRFFileReport.h"

#include "cli/HRFConsole.h"
#include "cli/HRFValueText.h"
#include "store/HRFArtworkProperties.h"
#include "store/HRFAudioProperties.h"
#include "store/HRFMetaFile.h"
#include "store/HRFMetaTags.h"
#include "tags/HRFTagEngine.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <array>

using namespace Qt::StringLiterals;

namespace {

using K = HRFTagKey;

/// What `show` tells of the audio and the tag, in the order in which people read it. Records keep
/// all of it but the last.
constexpr K shownProperties[] = {
    K::format,   K::duration,    K::bitRate,    K::sampleRate, K::bitDepth,
    K::channels, K::channelMode, K::tagVersion, K::isVBR,      K::isDRMProtected,
};

QString nameOf(K key)
{
    return HRFTagProperties::propertyNames().at(qsizetype(key));
}

void insertValue(QJsonObject &object, const QString &name, const QVariant &value)
{
    if (!HRFTagValue::isNothing(value))
        object.insert(name, HRFJSONValue(value));
}

template <class Visit> void forEachTextualTag(const HRFMetaFile &record, Visit visit)
{
    const HRFMetaTags &tags = record.tags();
    for (std::size_t i = 0; i < HRFTagPropertyCount; ++i)
        if (const auto key = K(i); HRFRowForKey(key).isTag && key != K::artwork)
            visit(key, tags.valueForKey(nameOf(key)));
}

template <class Visit>
void forEachProperty(const HRFMetaFile &record, const HRFEngineFacts &facts, Visit visit)
{
    const HRFAudioProperties &properties = record.properties();
    for (const K key : shownProperties) {
        const bool isKept = key != K::isDRMProtected;
        visit(key, isKept ? properties.valueForKey(nameOf(key)) : facts.isDRMProtected);
    }
}

QVariant tagSizeOf(const HRFMetaFile &record)
{
    return record.valueForKey(nameOf(K::tagSize));
}

constexpr std::array artworkFacts{"imageType"_L1, "imageSize"_L1, "imageDataSize"_L1};

QJsonObject jsonArtwork(const HRFMetaFile &record)
{
    QJsonObject object;
    for (const QString name : artworkFacts)
        insertValue(object, name, record.artworkProperties().valueForKey(name));
    if (!object.isEmpty())
        object.insert(u"md5"_s, record.artworkMD5());
    return object;
}

QString artworkText(const HRFMetaFile &record)
{
    QStringList words;
    for (const QString name : artworkFacts)
        words += record.artworkProperties().valueForKey(name).toString();
    words.removeAll(QString());
    return words.join(u' ');
}

QJsonArray jsonFrames(const HRFEngineFacts &facts)
{
    QJsonArray array;
    for (const HRFFrameDescription &frame : facts.frames)
        array.append(QJsonObject{{u"frameID"_s, frame.frameID}, {u"frameData"_s, frame.frameData}});
    return array;
}

/// One line, its value beginning in a fixed column; further lines of the value below the first.
QString line(const QString &label, const QString &value)
{
    constexpr int labelWidth = 22;
    const QString continuation = u"\n"_s + QString(labelWidth + 2, u' ');
    QStringList rows = value.split(u'\n');
    for (QString &row : rows)
        row = HRFConsole::printable(row.endsWith(u'\r') ? row.chopped(1) : row);
    return u"  "_s + label.leftJustified(labelWidth) + rows.join(continuation) + u'\n';
}

} // namespace

HRFEngineFacts HRFEngineFacts::of(const HRFTagEngine &engine, bool withFrames)
{
    HRFEngineFacts facts{.framesCount = engine.valueForKey(K::framesCount),
                         .isDRMProtected = engine.valueForKey(K::isDRMProtected),
                         .frames = {}};
    if (withFrames)
        facts.frames = engine.frames().value_or(facts.frames);
    return facts;
}

HRFFileReport::HRFFileReport(const HRFMetaFile &record, const HRFFileReference &path,
                             const HRFEngineFacts &facts, bool printsFrames)
    : m_record(record), m_path(path), m_facts(facts), m_printsFrames(printsFrames)
{
}

QByteArray HRFFileReport::json() const
{
    QJsonObject object = HRFJSONOfPath(m_path);
    const auto insertInto = [](QJsonObject &part) {
        return [&part](K key, const QVariant &value) { insertValue(part, nameOf(key), value); };
    };
    QJsonObject tags;
    forEachTextualTag(m_record, insertInto(tags));
    object.insert(u"tags"_s, tags);
    QJsonObject properties;
    forEachProperty(m_record, m_facts, insertInto(properties));
    object.insert(u"properties"_s, properties);
    if (const QJsonObject artwork = jsonArtwork(m_record); !artwork.isEmpty())
        object.insert(u"artwork"_s, artwork);
    insertValue(object, nameOf(K::tagSize), tagSizeOf(m_record));
    insertValue(object, nameOf(K::framesCount), m_facts.framesCount);
    if (m_printsFrames)
        object.insert(u"frames"_s, jsonFrames(m_facts));
    return QJsonDocument(object).toJson(QJsonDocument::Compact) + '\n';
}

QByteArray HRFFileReport::text() const
{
    QString text = HRFConsole::printable(m_path.displayPath()) + u'\n';
    const auto addValue = [&](K key, const QVariant &value) {
        if (!HRFTagValue::isNothing(value) && value != QVariant(false))
            text += line(nameOf(key), HRFShownText(value, key));
    };
    forEachTextualTag(m_record, addValue);
    if (const QString artwork = artworkText(m_record); !artwork.isEmpty())
        text += line(u"artwork"_s, artwork + u" bytes"_s);
    forEachProperty(m_record, m_facts, addValue);
    addValue(K::tagSize, tagSizeOf(m_record));
    addValue(K::framesCount, m_facts.framesCount);
    if (m_printsFrames)
        for (const HRFFrameDescription &frame : m_facts.frames)
            text += line(u"  "_s + HRFConsole::printable(frame.frameID), frame.frameData);
    return (text + u'\n').toUtf8();
}
