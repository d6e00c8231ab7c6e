#include "tags/DSDIFFMetaData.h"

#include "tags/DSDIFFWriter.h"
#include "tags/IFFCheck.h"
#include "tags/IFFID3.h"
#include "tags/TagLibText.h"

#include <QCoreApplication>

#include <algorithm>
#include <iterator>

using namespace TagLib;
using namespace Qt::StringLiterals;

namespace {

constexpr const char *fileTypes[] = {"dff", "dsdiff"};

struct DIINField
{
    HRFTagKey key;
    const char *chunkName;
    String (Tag::*read)() const;
    void (Tag::*write)(const String &);
};

constexpr DIINField fields[] = {
    {HRFTagKey::artist, "DIAR", &Tag::artist, &Tag::setArtist},
    {HRFTagKey::title, "DITI", &Tag::title, &Tag::setTitle},
};

QString tr(const char *text)
{
    return QCoreApplication::translate("DSDIFFMetaData", text);
}

/// The contents of a chunk with a text (DSDIFF 1.5, "DITI", "DIAR").
ByteVector contentsOfText(const String &text)
{
    if (text.isEmpty())
        return {};
    const ByteVector characters = text.data(String::Latin1);
    return ByteVector::fromUInt(characters.size()) + characters;
}

/// TagLib goes round in circles when the sizes of chunks are wrong.
bool hasSoundChunks(HRFTagStream &stream)
{
    const IFFChunkList list = IFFReadChunks(stream, DSDIFFLayout);
    if (list.isCutOff)
        return false;
    return std::ranges::all_of(list.chunks, [&stream](const IFFChunk &chunk) {
        // The frame information, which TagLib looks for, comes first (DSDIFF 1.5).
        if (chunk.name == "DST ")
            return IFFReadBytes(stream, chunk.offset, 4) == "FRTE";
        return (chunk.name != "PROP" && chunk.name != "DIIN")
            || !DSDIFFChildren(stream, chunk).isCutOff;
    });
}

} // namespace

const HRFEngineClass DSDIFFMetaData::metadataClass{
    "DSDIFFMetaData", fileTypes, QT_TRANSLATE_NOOP("HRFTagEngine", "DSDIFF audio"),
    &HRFMakeEngine<DSDIFFMetaData>};

/// TagLib takes any bytes for a chunked file.
HRFResult<void> DSDIFFMetaData::checkBeforeOpening(HRFTagStream &stream)
{
    if (!IFFHasHeader(stream, DSDIFFLayout, "FRM8", "DSD "))
        return std::unexpected(contentsError(metadataClass));
    if (!hasSoundChunks(stream))
        return std::unexpected(reasonError(tr("Its chunks are damaged")));
    return {};
}

QVariant DSDIFFMetaData::secondValueForKey(HRFTagKey key) const
{
    const auto *field = std::ranges::find(fields, key, &DIINField::key);
    if (field == std::end(fields))
        return {};
    const String text = (DIINTag()->*field->read)();
    return text.isEmpty() ? QVariant() : QVariant(TagLibText::toQString(text));
}

/// DIIN texts are Latin-1: what does not fit is left to the ID3v2 tag.
void DSDIFFMetaData::setSecondValueForKey(const QVariant &value, HRFTagKey key)
{
    const auto *field = std::ranges::find(fields, key, &DIINField::key);
    const String text = TagLibText::toTagString(value.toString());
    if (field != std::end(fields) && text.isLatin1())
        (DIINTag()->*field->write)(text);
}

QString DSDIFFMetaData::secondTagVersion() const
{
    return tagFile()->hasDIINTag() ? u"DIIN"_s : QString();
}

QString DSDIFFMetaData::strippableTags() const
{
    const Lock guard = lock();
    return firstValueForKey(HRFTagKey::tagVersion).toString();
}

QVariant DSDIFFMetaData::readValue(HRFTagKey key) const
{
    return key == HRFTagKey::format ? u"DSD (IFF)"_s : HRFTagUnion::readValue(key);
}

HRFResult<void> DSDIFFMetaData::checkFile()
{
    if (auto checked = HRFTagUnion::checkFile(); !checked)
        return checked;
    const std::vector<DSDIFFChunk> chunks = DSDIFFID3Chunks(stream());
    if (chunks.size() > 1)
        refuseSaving(tr("It has several ID3v2 tags; all but one would be lost."));
    else if (!chunks.empty())
        refuseSaving(IFFObstacleInID3(stream(), chunks.front().offset, chunks.front().size));
    noteDIINTexts();
    return {};
}

void DSDIFFMetaData::noteDIINTexts()
{
    m_DIINTexts.clear();
    for (const DIINField &field : fields)
        m_DIINTexts.push_back((DIINTag()->*field.read)());
}

HRFResult<void> DSDIFFMetaData::saveTags()
{
    if (auto prepared = prepareSaving(4); !prepared)
        return prepared;
    DSDIFFWriter writer(stream());
    writer.setID3(ID3V2Tag()->isEmpty() ? ByteVector() : ID3V2Tag()->render(ID3v2::v4));
    // What is not changed stays as it is, even when it is damaged.
    auto oldText = m_DIINTexts.begin();
    for (const DIINField &field : fields) {
        const String text = (DIINTag()->*field.read)();
        if (text == *oldText++)
            continue;
        writer.setInDIIN(field.chunkName, contentsOfText(text));
        if (DIINTag()->isEmpty())
            writer.removeEmptyDIIN();
    }
    if (!writer.finish())
        return std::unexpected(reasonError(tr("Its chunks are damaged.")));
    noteDIINTexts();
    return {};
}
