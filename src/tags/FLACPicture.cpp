#include "tags/FLACPicture.h"

#include "kit/HRFImageType.h"
#include "tags/TagLibText.h"

#include <string>

std::unique_ptr<TagLib::FLAC::Picture> FLACFrontCover(const QByteArray &data)
{
    auto picture = std::make_unique<TagLib::FLAC::Picture>();
    picture->setData(TagLibText::toByteVector(data));
    picture->setType(TagLib::FLAC::Picture::FrontCover);
    if (const auto type = bitmapImageType(data))
        picture->setMimeType(TagLib::String(std::string(type->mimeType)));
    return picture;
}
