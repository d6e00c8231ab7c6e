#pragma once

#include "tags/HRFEngineClass.h"
#include "tags/HRFTagStream.h"
#include "tags/ID3MetaData.h"

#include <taglib/audioproperties.h>

/// The engine of a format that TagLib opens as @p TagFile and that has an ID3v2 tag.
template <class TagFile> class ID3FileMetaData : public ID3MetaData
{
public:
    ID3FileMetaData(std::shared_ptr<HRFTagStream> file, bool readProperties)
        : ID3MetaData(std::move(file))
        , m_tagFile(std::make_unique<TagFile>(&stream(), readProperties,
                                              TagLib::AudioProperties::Average, frameFactory()))
    {
    }

protected:
    TagFile *tagFile() const override { return m_tagFile.get(); }

    QVariant readValue(HRFTagKey key) const override
    {
        if (key != HRFTagKey::bitDepth)
            return ID3MetaData::readValue(key);
        const auto *properties = m_tagFile->audioProperties();
        return properties ? QVariant(qlonglong(properties->bitsPerSample())) : QVariant();
    }

    /// Saving would lose a part of the tags, for the given reason; not when it is empty.
    void refuseSaving(const QString &obstacle)
    {
        if (!obstacle.isEmpty())
            frameFactory()->setObstacle(obstacle);
    }

private:
    std::unique_ptr<TagFile> m_tagFile;
};
