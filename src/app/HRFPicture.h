#pragma once

#include "kit/HRFError.h"

#include <QByteArray>
#include <QImage>

class QMimeData;

/// Pictures: where they come from, and how large they are shown.
namespace HRFPicture {

// May take their time, and are for any thread:

/// The picture in the audio file with a URL, as the file has it; empty when there is none, or none
/// that can be read.
QByteArray inFile(const QString &fileURL);

/// The picture no larger than the bounds; null when it cannot be decoded.
QImage scaled(QByteArray data, QSize bounds);

/// The content of an image file; an error for any other.
HRFResult<QByteArray> fromFile(const QString &path);

// For the main thread:

/// The path of an image file that is dropped or pasted; empty when there is none.
QString fileIn(const QMimeData &data);
/// The image that is dropped or pasted itself, as it is where its format is one for tags; empty
/// when there is none.
QByteArray imageIn(const QMimeData &data);
bool isIn(const QMimeData &data);

} // namespace HRFPicture
