#pragma once

#include "tags/HRFEngineClass.h"
#include "tags/HRFTagEngine.h"
#include "tags/MP4ItemFactory.h"

#include <taglib/mp4file.h>

/// The engine of MPEG-4 audio files: the metadata items of the container.
class MP4MetaData : public HRFTagEngine
{
public:
    static const HRFEngineClass metadataClass;

    MP4MetaData(std::shared_ptr<HRFTagStream> stream, bool readProperties);

    /// Whether TagLib can read the container at all.
    static HRFResult<void> checkBeforeOpening(HRFTagStream &stream);

    TagLib::MP4::File &MP4File() const { return *m_tagFile; }

    /// The first text of the atom; empty when the atom holds something else than text. A null atom
    /// name is an assertion here and below.
    HRFText stringForTag(const char *tagName) const;
    /// Replaces the atom by one text, which may be empty; nothing removes the atom.
    void setStringForTag(const HRFText &value, const char *tagName);
    /// Replaces the atom. All changes of items go through here and removeValueForTag.
    void setItemForTag(const TagLib::MP4::Item &item, const char *tagName);
    void removeValueForTag(const char *tagName);

    /// One half of an integer pair: the number (@p first) or the total. A half of 0 is nothing, but
    /// the pair 0, 0 is 0.
    HRFNumber numberForIntPairWithTag(const char *tagName, bool first) const;
    /// Removes the atom when both are 0.
    void setFirstValueSecondValueForTag(const HRFNumber &first, const HRFNumber &second,
                                        const char *tagName);

    HRFText stringForKey(HRFTagKey key) const override;
    void setStringForKey(const HRFText &value, HRFTagKey key) override;
    HRFBoolean booleanForKey(HRFTagKey key) const override;
    void setBooleanForKey(const HRFBoolean &value, HRFTagKey key) override;
    HRFResult<void> stripTags() override;

protected:
    QVariant readValue(HRFTagKey key) const override;
    void writeValue(const QVariant &value, HRFTagKey key) override;
    const HRFEngineClass &engineClass() const override { return metadataClass; }
    TagLib::MP4::File *tagFile() const override { return m_tagFile.get(); }
    HRFResult<void> saveTags() override;

private:
    void openTagFile(bool readProperties);
    void openAnewAfterSaving();

    MP4ItemFactory m_itemFactory;
    std::unique_ptr<TagLib::MP4::File> m_tagFile;
    bool m_hasSaved = false; ///< TagLib's idea of where the atoms are is out of date
};
