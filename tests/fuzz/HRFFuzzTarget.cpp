#include "fuzz/HRFFuzzTarget.h"

#include "support/HRFMemoryByteStore.h"
#include "support/HRFSettings.h"
#include "tags/HRFEngineRegistry.h"
#include "tags/HRFTagStream.h"
#include "tags/MPEGMetaData.h"

#include <map>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

using EngineResult = HRFResult<std::unique_ptr<HRFTagEngine>>;
using Values = std::map<HRFTagKey, QVariant>;

/// Every other input is tagged with settings other than the shipped ones, which reach further.
HRFSettings::Values settingsFor(bool areShippedOnes)
{
    return {{"ID3v2Version", areShippedOnes ? 48 : 316},
            {"MPEG.ID3v2", true},
            {"MPEG.ID3v1", !areShippedOnes},
            {"MPEG.APE", !areShippedOnes},
            {"RIFF.ID3v2", true},
            {"RIFF.INFO", true},
            {"preferredFLACArtworkStorageType", areShippedOnes ? 0 : 2}};
}

EngineResult open(const HRFEngineClass &engineClass, QByteArray &bytes)
{
    static HRFFaults none;
    return engineClass.initWithStream(
        std::make_shared<HRFTagStream>(std::make_unique<HRFMemoryByteStore>(bytes, none, "memory")),
        true);
}

Values readAll(const HRFTagEngine &engine)
{
    Values values;
    for (std::size_t i = 0; i < HRFTagPropertyCount; ++i) {
        const auto key = HRFTagKey(i);
        values[key] = engine.valueForKey(key);
        static_cast<void>(engine.stringForKey(key));
    }
    return values;
}

const Values &newValues()
{
    using K = HRFTagKey;
    // clang-format off
    static const Values values = {
        {K::title, u"A new title"_s}, {K::artist, u"Bj\u00f6rk \u97f3\u697d \U0001F3B5"_s},
        {K::comment, u"Some words"_s}, {K::genre, u"Jazz"_s},
        {K::lyrics, u"One line\nand another"_s}, {K::website, u"https://example.org/\u00fc"_s},
        {K::work, u"A work"_s}, {K::involvedPeopleList, u"Someone"_s}, {K::sortTitle, QString()},
        {K::year, 1999LL}, {K::trackNumber, 3LL}, {K::trackTotal, 12LL}, {K::discNumber, 1LL},
        {K::discTotal, 2LL}, {K::movementNumber, 4LL}, {K::bpm, 120LL}, {K::rating, 200LL},
        {K::isPartOfACompilation, true}, {K::isPodcast, true},
        {K::releaseTime, QDateTime(QDate(2001, 2, 3), QTime(4, 5, 6), Qt::UTC)},
        {K::originalReleaseDate, QDateTime(QDate(1987, 6, 5), QTime(0, 0), Qt::UTC)},
        {K::artwork, "\xFF\xD8\xFF\xE0\0\x10JFIF\0\1\1\0\0\1\0\1\0\0\xFF\xD9"_ba},
    };
    // clang-format on
    return values;
}

/// A save that succeeds keeps every value; one that fails changes nothing.
QString checkSaving(const HRFEngineClass &engineClass, HRFTagEngine &engine, QByteArray &bytes)
{
    for (const auto &[key, value] : newValues())
        engine.setValueForKey(value, key);
    const Values expected = readAll(engine);
    const QByteArray before(bytes.constData(), bytes.size());
    if (!engine.updateFileWithError())
        return bytes == before ? QString() : u"A save that failed changed the bytes"_s;

    QByteArray saved = bytes;
    const EngineResult reopened = open(engineClass, saved);
    if (!reopened)
        return u"What was saved cannot be opened: "_s + reopened.error().fullText();
    const Values present = readAll(**reopened);
    if (present.at(HRFTagKey::title) != u"A new title"_s)
        return u"The title is lost"_s;
    for (const auto &[key, value] : newValues())
        if (present.at(key) != expected.at(key))
            return u"A value is lost: "_s + HRFTagProperties::propertyNames().at(qsizetype(key));
    return {};
}

/// Without its tags an MPEG file may be empty, so that it need not open any more.
QString checkStripping(const HRFEngineClass &engineClass, HRFTagEngine &engine, QByteArray &bytes)
{
    const QByteArray before(bytes.constData(), bytes.size());
    const bool isStripped = engine.stripTags() && engine.updateFileWithError();
    if (!isStripped)
        return bytes == before ? QString() : u"A strip that failed changed the bytes"_s;
    QByteArray saved = bytes;
    const EngineResult reopened = open(engineClass, saved);
    if (reopened)
        readAll(**reopened);
    else if (&engineClass != &MPEGMetaData::metadataClass)
        return u"What was stripped cannot be opened: "_s + reopened.error().fullText();
    return {};
}

} // namespace

const HRFEngineClass *HRFFuzzEngineClass(const QByteArray &family)
{
    static const QHash<QByteArray, QByteArray> otherTypes = {
        {"mpeg", "mp3"}, {"vorbis", "ogg"}, {"speex", "spx"}};
    return HRFEngineRegistry::shared().classForType(otherTypes.value(family, family));
}

QString HRFFuzzOneInput(const HRFEngineClass &engineClass, const QByteArray &contents)
{
    const HRFSettings settings(settingsFor(contents.size() % 2 == 0));
    QByteArray bytes(contents.constData(), contents.size());
    const EngineResult engine = open(engineClass, bytes);
    if (!engine)
        return bytes == contents ? QString() : u"Opening changed the bytes"_s;
    readAll(**engine);
    if (bytes != contents)
        return u"Reading changed the bytes"_s;
    if (const QString broken = checkSaving(engineClass, **engine, bytes); !broken.isEmpty())
        return broken;
    return checkStripping(engineClass, **engine, bytes);
}
