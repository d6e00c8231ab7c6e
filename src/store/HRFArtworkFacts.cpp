#include "cli/HRFArtworkFacts.h"

#include "kit/HRFImageType.h"

#include <QCryptographicHash>

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

} // namespace

const HRFArtworkFacts &HRFArtworkExaminer::factsForPicture(const QByteArray &data)
{
    const XXH128_hash_t digest = XXH3_128bits(data.constData(), std::size_t(data.size()));
    const QByteArray key(reinterpret_cast<const char *>(&digest), sizeof digest);
    const auto found = m_factsByDigest.constFind(key);
    return found != m_factsByDigest.constEnd() ? *found
                                               : *m_factsByDigest.insert(key, examine(data));
}
