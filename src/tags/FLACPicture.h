#pragma once

#include <QByteArray>
#include <taglib/flacpicture.h>

#include <memory>

/// A front cover as FLAC and Vorbis comments hold it, of the image type that the bytes show.
std::unique_ptr<TagLib::FLAC::Picture> FLACFrontCover(const QByteArray &data);
