#pragma once

#include <QByteArray>
#include <QString>

/// What is shown of a picture.
struct HRFArtworkFacts
{
    QString imageType; ///< upper-case file extension; empty for an unknown format
    QString imageSize; ///< "{width, height}" in pixels; empty when it cannot be told
    qsizetype imageDataSize = 0; ///< bytes
    QString md5; ///< hexadecimal
};

/// The facts of a picture. The files of an album share their picture, so that one seen before is
/// not examined again: it is recognised by a fast 128-bit digest. May be called from any thread.
HRFArtworkFacts HRFArtworkFactsForPicture(const QByteArray &data);
