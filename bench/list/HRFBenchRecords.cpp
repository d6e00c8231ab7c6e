#include "list/HRFBenchRecords.h"

#include "corpus/HRFCorpusID3.h"
#include "corpus/HRFCorpusMPEG.h"
#include "kit/HRFFileReferenceTable.h"
#include "kit/HRFMainThread.h"
#include "sides/HRFOrThrow.h"
#include "store/HRFAudioProperties.h"
#include "store/HRFFileSnapshot.h"
#include "store/HRFMainContext.h"
#include "store/HRFMetaFile.h"
#include "store/HRFMetaTags.h"

#include <QDir>
#include <QFile>

#include <chrono>
#include <future>
#include <stdexcept>
#include <thread>

using namespace std::chrono_literals;
using namespace Qt::StringLiterals;

namespace {

constexpr int tracksPerAlbum = 12;
constexpr int filesPerSave = 300;

using NamedValues = std::vector<std::pair<QString, QVariant>>;

QVariant text(const std::string &utf8)
{
    return utf8.empty() ? QVariant() : QVariant(QString::fromStdString(utf8));
}

QVariant number(qlonglong value)
{
    return value == 0 ? QVariant() : QVariant(value);
}

HRFValues valuesOf(const QString &entityName, const NamedValues &namedValues)
{
    const HRFEntityDescription &entity =
        *HRFObjectModel::named(u"Lirra"_s)->entityNamed(entityName);
    HRFValues values;
    for (const auto &[name, value] : namedValues)
        values.setValue(entity.propertyIndex(name), value);
    values.squeeze();
    return values;
}

HRFValues tagsOf(const HRFCorpusAlbum &album, const HRFCorpusTrack &track)
{
    return valuesOf(HRFMetaTags::entityName(),
                    {{u"title"_s, text(track.title)},
                     {u"artist"_s, text(album.artist)},
                     {u"album"_s, text(album.title)},
                     {u"albumArtist"_s, text(album.artist)},
                     {u"composer"_s, text(album.composer)},
                     {u"genre"_s, text(album.genre)},
                     {u"publisher"_s, text(album.publisher)},
                     {u"copyright"_s, text(album.copyright)},
                     {u"comment"_s, text(track.comment)},
                     {u"lyrics"_s, text(track.lyrics)},
                     {u"isrc"_s, text(track.isrc)},
                     {u"year"_s, number(album.year)},
                     {u"trackNumber"_s, number(track.number)},
                     {u"trackTotal"_s, number(tracksPerAlbum)},
                     {u"discNumber"_s, number(album.discNumber)},
                     {u"discTotal"_s, number(album.discTotal)},
                     {u"rating"_s, number(track.rating)}});
}

HRFValues propertiesOf(const HRFCorpusAlbum &album, const HRFCorpusTrack &track)
{
    return valuesOf(HRFAudioProperties::entityName(),
                    {{u"bitRate"_s, number(album.bitRate)},
                     {u"bitDepth"_s, number(16)},
                     {u"sampleRate"_s, number(44100)},
                     {u"duration"_s, number(120 + qlonglong(track.title.size()))},
                     {u"channels"_s, number(2)},
                     {u"channelMode"_s, text("Joint stereo")},
                     {u"format"_s, text("MPEG 1 Layer 3")},
                     {u"tagVersion"_s, text("ID3v2.4")},
                     {u"isVBR"_s, false}});
}

HRFFileSnapshot snapshotOf(const HRFCorpusAlbum &album, const HRFCorpusTrack &track,
                           const HRFFileReference &file)
{
    return {.tagSize = qlonglong(track.comment.size() + track.lyrics.size()),
            .tags = tagsOf(album, track),
            .properties = propertiesOf(album, track),
            .facts = HRFFileFacts::of(file),
            .artwork = HRFArtworkFactsForPicture(QByteArray::fromStdString(album.picture))};
}

std::string contentsOf(const HRFCorpusAlbum &album, const HRFCorpusTrack &track)
{
    constexpr std::size_t soundSize = 4 << 10;
    return HRFMakeCorpusID3(album, track, HRFCorpusID3Version::v4)
        + HRFMakeCorpusMPEG(album.bitRate, soundSize);
}

HRFFileReference makeFile(const QString &folder, const HRFCorpusAlbum &album,
                          const HRFCorpusTrack &track, bool hasSound)
{
    const QString albumFolder = u"%1/%2/%3 %4"_s.arg(folder, QString::fromStdString(album.artist))
                                    .arg(album.number)
                                    .arg(QString::fromStdString(album.title));
    if (track.number == 1)
        QDir().mkpath(albumFolder);
    const QString path = u"%1/%2 %3.mp3"_s.arg(albumFolder)
                             .arg(track.number, 2, 10, QChar(u'0'))
                             .arg(QString::fromStdString(track.title));
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        throw std::runtime_error(file.errorString().toStdString());
    if (hasSound)
        file.write(QByteArray::fromStdString(contentsOf(album, track)));
    return HRFFileReference::fromPath(path);
}

void insertRecord(HRFPrivateContext &context, int index, const HRFFileReference &file,
                  const HRFFileSnapshot &snapshot)
{
    auto *record = context.newObject<HRFMetaFile>();
    record->setSortIndex(index);
    record->setFileURL(HRFFileReferenceTable::referenceURLForFile(file).value());
    record->importValues(snapshot);
}

void insertRecords(HRFPrivateContext &context, const QString &folder, int count, int soundCount)
{
    HRFCorpusAlbum album;
    for (int i = 0; i < count; ++i) {
        if (i % tracksPerAlbum == 0)
            album = HRFMakeCorpusAlbum(i / tracksPerAlbum, tracksPerAlbum);
        const HRFCorpusTrack &track = album.tracks[std::size_t(i % tracksPerAlbum)];
        const HRFFileReference file = makeFile(folder, album, track, i < soundCount);
        insertRecord(context, i, file, snapshotOf(album, track, file));
        if ((i + 1) % filesPerSave == 0 || i + 1 == count)
            HRFOrThrow(context.save());
    }
}

} // namespace

void HRFInsertBenchRecords(const std::shared_ptr<HRFMainContext> &context, const QString &folder,
                           int count, int soundCount)
{
    const auto background = std::make_shared<HRFPrivateContext>(context);
    std::packaged_task<void()> task([&] {
        background->performBlockAndWait(
            [&] { insertRecords(*background, folder, count, soundCount); });
    });
    std::future<void> end = task.get_future();
    std::thread worker([&] {
        task();
        HRFMainThread::wakeUp();
    });
    HRFMainThread::serveUntil([&] { return end.wait_for(0s) == std::future_status::ready; });
    worker.join();
    end.get();
    HRFOrThrow(context->save());
}
