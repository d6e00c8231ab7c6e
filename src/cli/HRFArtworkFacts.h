#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>

/// What is shown of a picture.
struct HRFArtworkFacts
{
    QString imageType; ///< upper-case file extension; empty for an unknown format
    QString imageSize; ///< "{width, height}" in pixels; empty when it cannot be told
    qsizetype imageDataSize = 0; ///< bytes
    QString md5;
};

/// Finds the facts of pictures. The files of an album share their picture, so that a picture seen
/// before is not examined again: it is recognised by a fast 128-bit digest.
class HRFArtworkExaminer
{
public:
    const HRFArtworkFacts &factsForPicture(const QByteArray &data);

private:
    QHash<QByteArray, HRFArtworkFacts> m_factsByDigest;
};
