#include "tags/OGGMetaData.h"

#include "tags/OGGPages.h"

#include <QCoreApplication>
#include <taglib/tfile.h>

/// The tag of every Ogg file is one.
TagLib::Ogg::XiphComment *OGGMetaData::xiphTag() const
{
    return static_cast<TagLib::Ogg::XiphComment *>(tagFile()->tag());
}

HRFResult<void> OGGMetaData::updatePrefix(QByteArray &, qsizetype) const
{
    return {};
}

std::optional<QByteArray> OGGMetaData::readCommentBytes() const
{
    const auto place = commentPlace();
    auto packet = place ? OGGReadPacket(*tagFile(), place->packet) : std::nullopt;
    if (packet)
        packet->remove(0, place->prefixLength);
    return packet;
}

HRFResult<void> OGGMetaData::writeCommentBytes(const QByteArray &bytes)
{
    const auto place = commentPlace();
    const auto packet = place ? OGGReadPacket(*tagFile(), place->packet) : std::nullopt;
    if (!packet)
        return std::unexpected(
            reasonError(QCoreApplication::translate("OGGMetaData", "Its stream has no comment.")));
    QByteArray prefix = packet->left(place->prefixLength);
    if (auto updated = updatePrefix(prefix, bytes.size()); !updated)
        return updated;
    if (OGGReplacePacket(*tagFile(), place->packet, prefix + bytes))
        return {};
    return std::unexpected(reasonError(QCoreApplication::translate(
        "OGGMetaData", "The pages of its comment are mixed with those of another stream.")));
}
