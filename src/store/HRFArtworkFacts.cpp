#include "store/HRFArtworkFacts.h"

#include "kit/HRFImageType.h"

#include <QCryptographicHash>
#include <QHash>

#include <mutex>

#define XXH_INLINE_ALL
#include <xxhash.h>

using namespace Qt::StringLiterals;

namespace {

HRFArtworkFacts examine(const QByteArray &data)
{
    HRFArtworkFacts facts;
    if (const auto type = bitmapImageType(data))
        facts.imageType = QString::fromLatin1(type->fileExtension).toUpper();
    if (const auto size = bitmapImageSize(data))
        facts.imageSize = u"{%1, %2}"_s.arg(size->width()).arg(size->height());
    facts.imageDataSize = data.size();
    facts.md5 =
        QString::fromLatin1(QCryptographicHash::hash(data, QCryptographicHash::Md5).toHex());
    return facts;
}

/// The pictures seen of late.
struct Memory
{
    std::mutex lock; ///< guards the hash
    QHash<QByteArray, HRFArtworkFacts> factsByDigest;
};

} // namespace

HRFArtworkFacts HRFArtworkFactsForPicture(const QByteArray &data)
{
    constexpr qsizetype mostRemembered = 10000;
    static Memory memory;
    const XXH128_hash_t digest = XXH3_128bits(data.constData(), std::size_t(data.size()));
    const QByteArray key(reinterpret_cast<const char *>(&digest), sizeof digest);
    {
        const std::lock_guard lock(memory.lock);
        if (const auto found = memory.factsByDigest.constFind(key);
            found != memory.factsByDigest.constEnd())
            return *found;
    }
    const HRFArtworkFacts facts = examine(data);
    const std::lock_guard lock(memory.lock);
    if (memory.factsByDigest.size() >= mostRemembered)
        memory.factsByDigest.clear();
    memory.factsByDigest.insert(key, facts);
    return facts;
}
