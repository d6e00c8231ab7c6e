#include "kit/HRFAssert.h"
#include "tags/ID3MetaData.h"
#include "tags/TagLibText.h"

#include <QUrl>
#include <taglib/id3v2tag.h>
#include <taglib/urllinkframe.h>

using namespace TagLib;
using namespace Qt::StringLiterals;

namespace {

/// Keeps what Latin-1 can hold and percent-encodes the rest as UTF-8 (RFC 3987 §3.1).
QString latin1URL(const QString &url)
{
    QString result;
    for (const QChar *it = url.begin(); it != url.end(); ++it) {
        if (it->unicode() <= 0xFF) {
            result += *it;
            continue;
        }
        const qsizetype length = it->isHighSurrogate() && it + 1 != url.end() ? 2 : 1;
        result += QString::fromLatin1(QUrl::toPercentEncoding(QString(it, length)));
        it += length - 1;
    }
    return result;
}

} // namespace

HRFText ID3MetaData::urlStringForKey(HRFTagKey key) const
{
    const Lock guard = lock();
    const ID3v2::Tag *tag = ID3V2Tag();
    if (!tag)
        return {};
    const auto found = tag->frameListMap().find(ID3FrameForKey(key));
    if (found == tag->frameListMap().end() || found->second.isEmpty())
        return {};
    const ID3v2::Frame *frame = found->second.front();
    const auto *link = dynamic_cast<const ID3v2::UrlLinkFrame *>(frame);
    return TagLibText::toQString(link ? link->url() : frame->toString());
}

void ID3MetaData::setURLStringForKey(const HRFText &url, HRFTagKey key, const char *description)
{
    const Lock guard = lock();
    const ByteVector frameID = ID3FrameForKey(key);
    ID3v2::Tag *tag = ID3V2Tag();
    if (!tag)
        return;
    tag->removeFrames(frameID);
    if (!url || url->isEmpty())
        return;
    std::unique_ptr<ID3v2::UrlLinkFrame> frame;
    if (frameID == "WXXX") {
        auto userFrame = std::make_unique<ID3v2::UserUrlLinkFrame>(String::UTF8);
        userFrame->setDescription(description);
        frame = std::move(userFrame);
    } else {
        frame = std::make_unique<ID3v2::UrlLinkFrame>(frameID);
    }
    frame->setUrl(TagLibText::toTagString(latin1URL(*url)));
    tag->addFrame(frame.release());
}

HRFText ID3MetaData::stringForID3Key(HRFTagKey key) const
{
    const char *frameID = ID3FrameForKey(key);
    return frameID ? stringForID3Tag(frameID) : HRFText();
}

void ID3MetaData::setStringForID3Key(const HRFText &value, HRFTagKey key)
{
    if (const char *frameID = ID3FrameForKey(key))
        setStringForID3Tag(value, frameID);
}

void ID3MetaData::removeValueForID3Key(HRFTagKey key)
{
    if (const char *frameID = ID3FrameForKey(key))
        removeValueForID3Tag(frameID);
}

HRFNumber ID3MetaData::numberForIntPairWithID3Key(HRFTagKey key, bool first) const
{
    const HRFText text = stringForID3Key(key);
    if (!text)
        return {};
    const QStringList parts = text->split(u'/');
    const qlonglong number = numberForString(parts.first()).value_or(0);
    qlonglong total = 0;
    if (parts.size() == 2) {
        total = numberForString(parts.last()).value_or(0);
        if (number == 0 && total == 0)
            return 0;
    }
    const qlonglong half = first ? number : total;
    return half < 1 ? HRFNumber() : half;
}

void ID3MetaData::setFirstValueSecondValueForID3Key(const HRFNumber &first, const HRFNumber &second,
                                                    HRFTagKey key)
{
    const char *ID3FrameName = ID3FrameForKey(key);
    HRFRequire(ID3FrameName, "ID3FrameName");
    const Lock guard = lock();
    const int number = int(first.value_or(0));
    const int total = int(second.value_or(0));
    if (number == 0 && total == 0)
        removeValueForID3Tag(ID3FrameName);
    else if (total != 0)
        setStringForID3Tag(u"%1/%2"_s.arg(number).arg(total), ID3FrameName);
    else
        setStringForID3Tag(QString::number(number), ID3FrameName);
}
