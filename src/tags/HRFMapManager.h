#pragma once

#include "tags/HRFTagKey.h"

#include <QHash>
#include <QString>

#include <array>
#include <atomic>

/// From property key to native field name; nullptr where the format has no field for the property.
using HRFFrameTable = std::array<const char *, HRFTagKeyCount>;

/// Owns the tables that map properties to native fields, one per tag format.
///
/// Everything is made once, on first use. Only updateMappingPreferences changes anything later: it
/// replaces the ID3 table, so that a reader sees the old or the new one whole.
class HRFMapManager
{
public:
    static HRFMapManager &sharedMapManager();

    HRFMapManager(const HRFMapManager &) = delete;
    HRFMapManager &operator=(const HRFMapManager &) = delete;

    /// Human-readable descriptions of the fields by property name.
    static const QHash<QString, QString> &frameDescriptions();
    static const HRFFrameTable &MP4Frames();
    /// The table for ID3v2.3, and for what ID3v2.4 does not do differently.
    static const HRFFrameTable &ID3Frames();
    /// The whole ID3 table as it stood when the tables were made, with the ID3v2.4 differences.
    static const HRFFrameTable &ID3FramesV2_4Diffs();
    static const HRFFrameTable &APEFrames();
    /// The names of Vorbis comment fields.
    static const HRFFrameTable &OGGFrames();
    static const HRFFrameTable &INFOFrames();

    /// Reads "lirra.tagging.iTunesID3v2Compatibility" again and replaces the rows of `grouping` and
    /// `work` in ID3Frames; the ID3v2.4 table stays as it was made. To be called between two file
    /// operations.
    void updateMappingPreferences();

private:
    HRFMapManager();

    QHash<QString, QString> m_frameDescriptions;
    std::atomic<const HRFFrameTable *> m_ID3Frames;
    HRFFrameTable m_ID3FramesV2_4Diffs{};
};
