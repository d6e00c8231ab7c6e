#pragma once

#include "tags/HRFTagEngine.h"

#include <QByteArray>
#include <QList>

#include <functional>
#include <string>
#include <vector>

struct HRFEngineClass;

/// Builds small files of the formats with Vorbis comments, and saves tags into them.
namespace XiphFiles {

/// The bytes of a comment. @p count is what it states, if not the number of its entries.
QByteArray comment(const QList<QByteArray> &entries, const QByteArray &rest = {},
                   qsizetype count = -1);

struct Page
{
    char flags = 0;
    qint64 granule = 0;
    quint32 serial = 7;
    quint32 sequence = 0;
    QList<QByteArray> packets = {}; ///< the parts of packets, when read

    QByteArray render() const;
    bool operator==(const Page &) const = default;
};

inline constexpr char first = 2;
inline constexpr char last = 4;

/// The pages of an Ogg file; fewer than all when a checksum is wrong.
std::vector<Page> pages(const QByteArray &file);

QByteArray flacBlock(char type, const QByteArray &data, bool isLast = false);
QByteArray flacFile(const QByteArray &blocks);
QByteArray streamInfo();

struct Container
{
    const char *name;
    const HRFEngineClass *engineClass;
    QByteArray prefix; ///< of the comment in its packet
    std::function<QByteArray(const QByteArray &comment)> file;
};

/// All containers of a comment.
std::vector<Container> containers();
Container container(const std::string &name);

struct Saved
{
    QByteArray file;
    QString error; ///< empty when it was saved
};

using Change = std::function<void(HRFTagEngine &)>;
/// Sets the album.
void setAlbum(HRFTagEngine &engine);
void strip(HRFTagEngine &engine);

/// Changes the tags of the file; fails the test when it cannot be opened.
Saved save(const HRFEngineClass &engineClass, const QByteArray &file,
           const Change &change = setAlbum);
/// Opens the file, which can be impossible.
HRFResult<std::unique_ptr<HRFTagEngine>> open(const HRFEngineClass &engineClass,
                                              const std::shared_ptr<QByteArray> &file);

} // namespace XiphFiles
