#pragma once

#include <QByteArray>
#include <QList>

#include <vector>

/// Builds the parts of audio files, and takes them apart again.
namespace HRFTestBytes {

QByteArray bigEndian(quint64 number, int width = 4, int bitsPerByte = 8);
QByteArray littleEndian(quint64 number, int width = 4);
/// The number at an offset; throws std::out_of_range behind the end.
qint64 bigEndianAt(const QByteArray &bytes, qint64 offset, int width = 4, int bitsPerByte = 8);
qint64 littleEndianAt(const QByteArray &bytes, qint64 offset, int width = 4);

/// One frame of an ID3v2 tag as it stands in the file.
struct Frame
{
    QByteArray id;
    QByteArray content;
    QByteArray flags = QByteArray(2, '\0');

    bool operator==(const Frame &) const = default;
};

/// A text frame in Latin-1.
Frame textFrame(const QByteArray &id, const QByteArray &text);
QByteArray ID3v2Tag(int version, const std::vector<Frame> &frames, char revision = 0);

/// The major version of the ID3v2 tag that the bytes begin with; 0 without one.
int ID3v2Version(const QByteArray &bytes);
/// The size of that tag with its header.
qint64 ID3v2Size(const QByteArray &bytes);
/// The frames of that tag.
std::vector<Frame> ID3v2Frames(const QByteArray &bytes);
/// The contents of those with the identifier.
QByteArrayList contentsOf(const QByteArray &bytes, const QByteArray &id);

struct OggPage
{
    char flags = 0;
    qint64 granule = 0;
    quint32 serial = 7;
    quint32 sequence = 0;
    QByteArrayList packets = {}; ///< parts of packets, when read
    bool isOpen = false; ///< the last packet goes on in the next page

    QByteArray render() const;
    bool operator==(const OggPage &) const = default;
};

/// The pages of an Ogg file; fewer than all when a checksum is wrong.
std::vector<OggPage> OggPages(const QByteArray &file);

} // namespace HRFTestBytes
