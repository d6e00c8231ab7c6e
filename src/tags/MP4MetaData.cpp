#include "tags/MP4MetaData.h"

#include "kit/HRFAssert.h"
#include "tags/HRFTagStream.h"
#include "tags/MP4Check.h"
#include "tags/MP4Fields.h"
#include "tags/MP4Nesting.h"
#include "tags/TagLibText.h"

#include <taglib/mp4item.h>
#include <taglib/mp4tag.h>

#include <cerrno>
#include <utility>

using namespace TagLib;

namespace {

constexpr const char *fileTypes[] = {"mp4", "mpg4", "m4a", "m4b", "m4p",
                                     "m4r", "m4v",  "aac", "adts"};

}

const HRFEngineClass MP4MetaData::metadataClass{
    "MP4MetaData", fileTypes, QT_TRANSLATE_NOOP("HRFTagEngine", "an MP4 container"),
    &HRFMakeEngine<MP4MetaData>};

MP4MetaData::MP4MetaData(std::shared_ptr<HRFTagStream> file, bool readProperties)
    : HRFTagEngine(std::move(file))
{
    openTagFile(readProperties);
}

void MP4MetaData::openTagFile(bool readProperties)
{
    m_itemFactory.forgetAllAtoms();
    HRFRewind(stream());
    m_tagFile = std::make_unique<MP4::File>(&stream(), readProperties, AudioProperties::Average,
                                            &m_itemFactory);
}

/// To be called before anything changes.
void MP4MetaData::openAnewAfterSaving()
{
    if (std::exchange(m_hasSaved, false))
        openTagFile(m_tagFile->audioProperties() != nullptr);
}

HRFResult<void> MP4MetaData::checkBeforeOpening(HRFTagStream &stream)
{
    if (const QString obstacle = MP4ObstacleToOpening(stream); !obstacle.isEmpty())
        return std::unexpected(reasonError(obstacle));
    return {};
}

HRFText MP4MetaData::stringForTag(const char *tagName) const
{
    HRFRequire(tagName, "tagName");
    const Lock guard = lock();
    const MP4::Tag *tag = m_tagFile->tag();
    if (!tag || !tag->contains(tagName))
        return {};
    const StringList texts = tag->item(tagName).toStringList();
    return texts.isEmpty() ? QString::fromLatin1("") : TagLibText::toQString(texts.front());
}

void MP4MetaData::setStringForTag(const HRFText &value, const char *tagName)
{
    HRFRequire(tagName, "tagName");
    if (!value)
        return removeValueForTag(tagName);
    setItemForTag(StringList(TagLibText::toTagString(*value)), tagName);
}

void MP4MetaData::setItemForTag(const MP4::Item &item, const char *tagName)
{
    const Lock guard = lock();
    removeValueForTag(tagName);
    if (MP4::Tag *tag = m_tagFile->tag())
        tag->setItem(tagName, item);
}

void MP4MetaData::removeValueForTag(const char *tagName)
{
    HRFRequire(tagName, "tagName");
    const Lock guard = lock();
    openAnewAfterSaving();
    m_itemFactory.forgetAtoms(tagName);
    if (MP4::Tag *tag = m_tagFile->tag()) {
        tag->removeItem(tagName);
        tag->removeItem(MP4ItemFactory::keyOfUnreadable(tagName));
    }
}

HRFNumber MP4MetaData::numberForIntPairWithTag(const char *tagName, bool first) const
{
    HRFRequire(tagName, "tagName");
    const Lock guard = lock();
    const MP4::Tag *tag = m_tagFile->tag();
    if (!tag || !tag->contains(tagName))
        return {};
    const MP4::Item::IntPair pair = tag->item(tagName).toIntPair();
    if (pair.first == 0 && pair.second == 0)
        return 0;
    const int half = first ? pair.first : pair.second;
    return half == 0 ? HRFNumber() : half;
}

void MP4MetaData::setFirstValueSecondValueForTag(const HRFNumber &first, const HRFNumber &second,
                                                 const char *tagName)
{
    HRFRequire(tagName, "tagName");
    const Lock guard = lock();
    const int number = int(first.value_or(0));
    const int total = int(second.value_or(0));
    if (number == 0 && total == 0)
        removeValueForTag(tagName);
    else
        setItemForTag(MP4::Item(number, total), tagName);
}

HRFText MP4MetaData::stringForKey(HRFTagKey key) const
{
    const char *atomName = atomNameForKey(key);
    return atomName ? stringForTag(atomName) : HRFText();
}

void MP4MetaData::setStringForKey(const HRFText &value, HRFTagKey key)
{
    if (const char *atomName = atomNameForKey(key))
        setStringForTag(value, atomName);
}

HRFBoolean MP4MetaData::booleanForKey(HRFTagKey key) const
{
    const char *atomName = atomNameForKey(key);
    const Lock guard = lock();
    const MP4::Tag *tag = m_tagFile->tag();
    if (!tag || !atomName || !tag->contains(atomName))
        return {};
    return tag->item(atomName).toBool();
}

void MP4MetaData::setBooleanForKey(const HRFBoolean &value, HRFTagKey key)
{
    const char *atomName = atomNameForKey(key);
    if (!atomName)
        return;
    if (!value.value_or(false))
        return removeValueForTag(atomName);
    setItemForTag(MP4::Item(true), atomName);
}

HRFResult<void> MP4MetaData::stripTags()
{
    const Lock guard = lock();
    forgetChanges();
    openAnewAfterSaving();
    MP4::Tag *tag = m_tagFile->tag();
    if (!tag)
        return {};
    const MP4::ItemMap items = tag->itemMap();
    for (const auto &[name, item] : items)
        tag->removeItem(name);
    return {};
}

QVariant MP4MetaData::readValue(HRFTagKey key) const
{
    if (const auto *handler = MP4FieldHandlerForKey(key))
        return handler->read(*this, key);
    return HRFTagEngine::readValue(key);
}

void MP4MetaData::writeValue(const QVariant &value, HRFTagKey key)
{
    if (const auto *handler = MP4FieldHandlerForKey(key))
        return handler->write(*this, key, value);
    HRFTagEngine::writeValue(value, key);
}

HRFResult<void> MP4MetaData::saveTags()
{
    openAnewAfterSaving();
    const MP4Layout layout = MP4LayoutBeforeSaving(*m_tagFile);
    if (!layout.obstacle.isEmpty())
        return std::unexpected(reasonError(layout.obstacle));
    const qint64 oldLength = stream().length();
    m_hasSaved = true;
    if (!m_tagFile->save())
        return std::unexpected(HRFError::fromErrno(EIO));
    const qint64 distance = stream().length() - oldLength;
    const QString obstacle = MP4FinishMoving(*m_tagFile, distance, layout.roomForMoving);
    if (!obstacle.isEmpty())
        return std::unexpected(reasonError(obstacle));
    return {};
}
