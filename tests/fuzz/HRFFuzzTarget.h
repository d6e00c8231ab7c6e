#pragma once

#include "tags/HRFEngineClass.h"

#include <QByteArray>
#include <QString>

/// The engine class that a family of inputs is for, by the family's name ("mpeg", "mp4", "flac",
/// "opus", "wav", "vorbis", "dsf", "dsdiff", "aiff" or "speex") or by an extension of its files;
/// nullptr for any other name.
const HRFEngineClass *HRFFuzzEngineClass(const QByteArray &family);

/// Reads, tags, saves, reads again and strips a file with the given contents, which need not be
/// valid in any way.
///
/// @return which promise of the engine was broken; empty when all were kept
QString HRFFuzzOneInput(const HRFEngineClass &engineClass, const QByteArray &contents);
