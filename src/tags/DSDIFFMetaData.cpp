#include "tags/DSDIFFMetaData.h"

#include "tags/DSDIFFCheck.h"
#include "tags/HRFTagStream.h"
#include "tags/TagLibText.h"

#include <taglib/dsdiffdiintag.h>
#include <taglib/dsdiffproperties.h>
#include <taglib/id3v2tag.h>

#include <algorithm>
#include <cerrno>

using namespace TagLib;
using namespace Qt::StringLiterals;

namespace {

constexpr const char *fileTypes[] = {"dff", "dsdiff"};

struct DIINField
{
    HRFTagKey key;
    String (Tag::*read)() const;
    void (Tag::*write)(const String &);
};

constexpr DIINField fields[] = {
    {HRFTagKey::artist, &Tag::artist, &Tag::setArtist},
    {HRFTagKey::title, &Tag::title, &Tag::setTitle},
};

} // namespace

const HRFEngineClass DSDIFFMetaData::metadataClass{
    "DSDIFFMetaData", fileTypes, QT_TRANSLATE_NOOP("HRFTagEngine", "DSDIFF audio"),
    &HRFMakeEngine<DSDIFFMetaData>};

DSDIFFMetaData::DSDIFFMetaData(std::shared_ptr<HRFTagStream> file, bool readProperties)
    : HRFTagUnion(std::move(file))
    , m_tagFile(std::make_unique<DSDIFF::File>(&stream(), readProperties, AudioProperties::Average,
                                               frameFactory()))
{
}

HRFResult<void> DSDIFFMetaData::checkBeforeOpening(HRFTagStream &stream)
{
    if (const QString obstacle = DSDIFFObstacleToOpening(stream); !obstacle.isEmpty())
        return std::unexpected(reasonError(obstacle));
    return {};
}

QVariant DSDIFFMetaData::secondValueForKey(HRFTagKey key) const
{
    const auto *field = std::ranges::find(fields, key, &DIINField::key);
    if (field == std::end(fields) || !DIINTag())
        return {};
    const String text = (DIINTag()->*field->read)();
    return text.isEmpty() ? QVariant() : QVariant(TagLibText::toQString(text));
}

/// DIIN texts are Latin-1: what does not fit is left to the ID3v2 tag.
void DSDIFFMetaData::setSecondValueForKey(const QVariant &value, HRFTagKey key)
{
    const auto *field = std::ranges::find(fields, key, &DIINField::key);
    const String text = TagLibText::toTagString(value.toString());
    if (field != std::end(fields) && DIINTag() && text.isLatin1())
        (DIINTag()->*field->write)(text);
}

QString DSDIFFMetaData::secondTagVersion() const
{
    return m_tagFile->hasDIINTag() ? u"DIIN"_s : QString();
}

QVariant DSDIFFMetaData::readValue(HRFTagKey key) const
{
    const DSDIFF::Properties *properties = m_tagFile->audioProperties();
    if (key == HRFTagKey::format)
        return u"DSD (IFF)"_s;
    if (key == HRFTagKey::bitDepth)
        return properties ? QVariant(qlonglong(properties->bitsPerSample())) : QVariant();
    return HRFTagUnion::readValue(key);
}

/// An empty tag that the file does not have would be saved as an empty chunk.
HRFResult<void> DSDIFFMetaData::saveTags()
{
    if (const QString obstacle = DSDIFFObstacleToSaving(stream()); !obstacle.isEmpty())
        return std::unexpected(reasonError(obstacle));
    if (auto prepared = prepareSaving(4); !prepared)
        return prepared;
    int types = DSDIFF::File::NoTags;
    if (m_tagFile->hasID3v2Tag() || !ID3V2Tag()->isEmpty())
        types |= DSDIFF::File::ID3v2;
    if (m_tagFile->hasDIINTag() || !DIINTag()->isEmpty())
        types |= DSDIFF::File::DIIN;
    if (!m_tagFile->save(types, File::StripNone))
        return std::unexpected(HRFError::fromErrno(EIO));
    return {};
}
