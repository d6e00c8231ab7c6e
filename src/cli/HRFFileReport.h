#pragma once

#include "tags/HRFTagValue.h"

#include <QByteArray>
#include <QList>
#include <QVariant>

class HRFFileReference;
class HRFMetaFile;
class HRFTagEngine;

/// What `show` prints of a file and records do not keep.
struct HRFEngineFacts
{
    QVariant framesCount;
    QVariant isDRMProtected;
    QList<HRFFrameDescription> frames; ///< only where they are asked for

    static HRFEngineFacts of(const HRFTagEngine &engine, bool withFrames);
};

/// How `show` prints one file.
class HRFFileReport
{
public:
    HRFFileReport(const HRFMetaFile &record, const HRFFileReference &path,
                  const HRFEngineFacts &facts, bool printsFrames);

    /// One JSON object on a line of its own.
    QByteArray json() const;
    /// Lines for people, and an empty one.
    QByteArray text() const;

private:
    const HRFMetaFile &m_record;
    const HRFFileReference &m_path;
    const HRFEngineFacts &m_facts;
    const bool m_printsFrames;
};
