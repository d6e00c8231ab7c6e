#include "tags/DSFMetaData.h"

#include "tags/IFFID3.h"

#include <QCoreApplication>

#include <iterator>

using namespace TagLib;
using namespace Qt::StringLiterals;

namespace {

constexpr const char *fileTypes[] = {"dsf"};

/// By channel type (DSF File Format Specification 1.01, "fmt" chunk), from 1 on.
constexpr const char *channelModes[] = {
    "Mono", "Stereo", "3 Channels", "Quadraphonic", "4 Channels", "5 Channels", "5.1 Surround",
};

QVariant channelModeName(const DSF::Properties &properties)
{
    const int type = properties.channelType();
    if (type < 1 || type > int(std::size(channelModes)))
        return {};
    return QString::fromLatin1(channelModes[type - 1]);
}

QString tr(const char *text)
{
    return QCoreApplication::translate("DSFMetaData", text);
}

/// The numbers of a DSF file that say where its parts lie (DSF File Format Specification 1.01).
struct Parts
{
    static constexpr qint64 fileSizeOffset = 12;
    static constexpr qint64 tagOffsetOffset = 20;
    static constexpr qint64 audioOffset = 28 + 52; ///< behind the "DSD " and "fmt " chunks

    explicit Parts(HRFTagStream &stream)
        : fileSize(number(stream, fileSizeOffset))
        , tagOffset(number(stream, tagOffsetOffset))
        , audioSize(number(stream, audioOffset + 4))
    {
    }

    /// Where the tag is, or would be.
    qint64 tagStart() const { return tagOffset != 0 ? tagOffset : fileSize; }

    qint64 fileSize;
    qint64 tagOffset; ///< 0 without a tag
    qint64 audioSize; ///< of the "data" chunk with its header

private:
    static qint64 number(HRFTagStream &stream, qint64 offset)
    {
        return IFFReadBytes(stream, offset, 8).toLongLong(false);
    }
};

/// Why putting a tag where the header says would hit the audio; empty when it would not.
QString obstacleToSaving(HRFTagStream &stream, const Parts &parts)
{
    constexpr qint64 headerSize = 12;
    QString damaged = tr("Its header does not fit its contents.");
    if (IFFReadBytes(stream, Parts::audioOffset, 4) != "data" || parts.audioSize < headerSize)
        return damaged;
    if (parts.audioSize > stream.length() - Parts::audioOffset)
        return tr("The file is truncated.");
    const qint64 audioEnd = Parts::audioOffset + parts.audioSize;
    if (parts.fileSize < audioEnd || parts.fileSize > stream.length())
        return damaged;
    if (parts.tagOffset == 0)
        return {};
    if (parts.tagOffset < audioEnd || IFFReadBytes(stream, parts.tagOffset, 3) != "ID3")
        return damaged;
    return IFFObstacleInID3(stream, parts.tagOffset, parts.fileSize - parts.tagOffset);
}

} // namespace

const HRFEngineClass DSFMetaData::metadataClass{"DSFMetaData", fileTypes,
                                                QT_TRANSLATE_NOOP("HRFTagEngine", "DSF audio"),
                                                &HRFMakeEngine<DSFMetaData>};

QVariant DSFMetaData::readValue(HRFTagKey key) const
{
    const DSF::Properties *properties = tagFile()->audioProperties();
    if (key == HRFTagKey::format)
        return u"DSD (SF)"_s;
    if (key == HRFTagKey::channelMode)
        return properties ? channelModeName(*properties) : QVariant();
    return ID3FileMetaData::readValue(key);
}

/// TagLib would cut off what follows the stated end of the file.
HRFResult<void> DSFMetaData::saveTags()
{
    const Parts parts(stream());
    if (const QString obstacle = obstacleToSaving(stream(), parts); !obstacle.isEmpty())
        return std::unexpected(reasonError(obstacle));
    if (auto prepared = prepareSaving(4); !prepared)
        return prepared;
    const ByteVector tag = ID3V2Tag()->isEmpty() ? ByteVector() : ID3V2Tag()->render(ID3v2::v4);
    const qint64 start = parts.tagStart();
    stream().insert(tag, start, std::size_t(parts.fileSize - start));
    stream().insert(ByteVector::fromLongLong(start + qint64(tag.size()), false),
                    Parts::fileSizeOffset, 8);
    stream().insert(ByteVector::fromLongLong(tag.isEmpty() ? 0 : start, false),
                    Parts::tagOffsetOffset, 8);
    return {};
}
