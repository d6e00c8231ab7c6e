#include "cli/HRFFileReport.h"

#include "cli/HRFConsole.h"
#include "cli/HRFValueText.h"
#include "store/HRFArtworkFacts.h"
#include "tags/HRFTagEngine.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using namespace Qt::StringLiterals;

namespace {

using K = HRFTagKey;

/// What `show` tells of the audio and the tag, in the order in which people read it.
constexpr K shownProperties[] = {
    K::format,   K::duration,    K::bitRate,    K::sampleRate, K::bitDepth,
    K::channels, K::channelMode, K::tagVersion, K::isVBR,      K::isDRMProtected,
};

QString nameOf(K key)
{
    return HRFTagProperties::propertyNames().at(qsizetype(key));
}

QJsonValue jsonValue(const QVariant &value)
{
    return value.typeId() == QMetaType::QDateTime ? QJsonValue(HRFValueText(value))
                                                  : QJsonValue::fromVariant(value);
}

void insertValue(QJsonObject &object, const HRFTagEngine &engine, K key)
{
    const QVariant value = engine.valueForKey(key);
    if (!HRFTagValue::isNothing(value))
        object.insert(nameOf(key), jsonValue(value));
}

QJsonObject jsonArtwork(const HRFArtworkFacts &facts)
{
    QJsonObject object{{u"imageDataSize"_s, facts.imageDataSize}, {u"md5"_s, facts.md5}};
    if (!facts.imageType.isEmpty())
        object.insert(u"imageType"_s, facts.imageType);
    if (!facts.imageSize.isEmpty())
        object.insert(u"imageSize"_s, facts.imageSize);
    return object;
}

QJsonArray jsonFrames(const HRFTagEngine &engine)
{
    QJsonArray array;
    for (const HRFFrameDescription &frame : engine.frames().value_or(QList<HRFFrameDescription>()))
        array.append(QJsonObject{{u"frameID"_s, frame.frameID}, {u"frameData"_s, frame.frameData}});
    return array;
}

template <class Visit> void forEachTextualTag(Visit visit)
{
    for (std::size_t i = 0; i < HRFTagPropertyCount; ++i)
        if (const auto key = K(i); HRFRowForKey(key).isTag && key != K::artwork)
            visit(key);
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

QByteArray HRFFileReport::json(const HRFTagEngine &engine)
{
    const HRFFileReference file = engine.fileURL();
    QJsonObject object{{u"path"_s, file.displayPath()}};
    if (!file.isValidUtf8())
        object.insert(u"pathBytes"_s, QString::fromLatin1(file.nativePath().toHex()));
    QJsonObject tags;
    forEachTextualTag([&](K key) { insertValue(tags, engine, key); });
    object.insert(u"tags"_s, tags);
    QJsonObject properties;
    for (const K key : shownProperties)
        insertValue(properties, engine, key);
    object.insert(u"properties"_s, properties);
    if (const auto picture = engine.artwork(); picture && !picture->isEmpty())
        object.insert(u"artwork"_s, jsonArtwork(HRFArtworkFactsForPicture(*picture)));
    insertValue(object, engine, K::tagSize);
    insertValue(object, engine, K::framesCount);
    if (m_printsFrames)
        object.insert(u"frames"_s, jsonFrames(engine));
    return QJsonDocument(object).toJson(QJsonDocument::Compact) + '\n';
}

QByteArray HRFFileReport::text(const HRFTagEngine &engine)
{
    QString text = HRFConsole::printable(engine.fileURL().displayPath()) + u'\n';
    const auto addValue = [&](K key) {
        const QVariant value = engine.valueForKey(key);
        if (!HRFTagValue::isNothing(value) && value != QVariant(false))
            text += line(nameOf(key), HRFShownText(value, key));
    };
    forEachTextualTag(addValue);
    if (const auto picture = engine.artwork(); picture && !picture->isEmpty()) {
        const HRFArtworkFacts &facts = HRFArtworkFactsForPicture(*picture);
        text += line(u"artwork"_s,
                     u"%1 %2 %3 bytes"_s.arg(facts.imageType, facts.imageSize)
                         .arg(facts.imageDataSize)
                         .simplified());
    }
    for (const K key : shownProperties)
        addValue(key);
    addValue(K::tagSize);
    addValue(K::framesCount);
    if (m_printsFrames)
        for (const auto &frame : engine.frames().value_or(QList<HRFFrameDescription>()))
            text += line(u"  "_s + HRFConsole::printable(frame.frameID), frame.frameData);
    return (text + u'\n').toUtf8();
}
