#pragma once

#include <QByteArray>

/// The layout of a file, which tells its sound from its tags.
enum class HRFContainer : quint8 { MPEG, MP4, FLAC, Ogg, RIFF, AIFF, DSDIFF, DSF };

/// What saving tags must leave alone: the sound, and whatever the container has besides tags, with
/// the places where it refers to the sound. Throws std::runtime_error on a damaged container.
QByteArray HRFSoundBytes(const QByteArray &file, HRFContainer container);
