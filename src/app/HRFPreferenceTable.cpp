#include "app/HRFPreferenceTable.h"

#include <QtGlobal>

namespace {

constexpr HRFPreferenceChoice rowHeights[] = {
    {"24", QT_TRANSLATE_NOOP("HRFPreferences", "Low")},
    {"32", QT_TRANSLATE_NOOP("HRFPreferences", "Medium")},
    {"48", QT_TRANSLATE_NOOP("HRFPreferences", "High")},
    {"72", QT_TRANSLATE_NOOP("HRFPreferences", "Very high")},
    {"104", QT_TRANSLATE_NOOP("HRFPreferences", "Highest")},
};

constexpr HRFPreferenceChoice ID3v2Versions[] = {
    {"48", QT_TRANSLATE_NOOP("HRFPreferences", "ID3v2.4, UTF-8")},
    {"416", QT_TRANSLATE_NOOP("HRFPreferences", "ID3v2.4, UTF-16")},
    {"41", QT_TRANSLATE_NOOP("HRFPreferences", "ID3v2.4, ISO Latin 1")},
    {"316", QT_TRANSLATE_NOOP("HRFPreferences", "ID3v2.3, UTF-16")},
    {"31", QT_TRANSLATE_NOOP("HRFPreferences", "ID3v2.3, ISO Latin 1")},
};

constexpr HRFPreferenceChoice FLACArtworkPlaces[] = {
    {"0", QT_TRANSLATE_NOOP("HRFPreferences", "In a picture block")},
    {"1", QT_TRANSLATE_NOOP("HRFPreferences", "In the Vorbis comment")},
    {"2", QT_TRANSLATE_NOOP("HRFPreferences", "In both")},
};

constexpr HRFPreferenceChoice fallbacks[] = {
    {"0", QT_TRANSLATE_NOOP("HRFPreferences", "“Unknown” and the name of the tag")},
    {"1", QT_TRANSLATE_NOOP("HRFPreferences", "Nothing")},
    {"2", QT_TRANSLATE_NOOP("HRFPreferences", "No name: the file is left out")},
};

constexpr auto adding = QT_TRANSLATE_NOOP("HRFPreferences", "Adding files");
constexpr auto maintenance = QT_TRANSLATE_NOOP("HRFPreferences", "Maintenance");
constexpr auto list = QT_TRANSLATE_NOOP("HRFPreferences", "List");
constexpr auto ID3v2 = QT_TRANSLATE_NOOP("HRFPreferences", "ID3v2 tags");
constexpr auto MPEG = QT_TRANSLATE_NOOP("HRFPreferences", "Tags in MP3 files");
constexpr auto RIFF = QT_TRANSLATE_NOOP("HRFPreferences", "Tags in WAV files");
constexpr auto FLAC = QT_TRANSLATE_NOOP("HRFPreferences", "FLAC files");
constexpr auto names = QT_TRANSLATE_NOOP("HRFPreferences", "Names made from tags");
constexpr auto moving = QT_TRANSLATE_NOOP("HRFPreferences", "Moving files into folders");

using enum HRFPreferencePane;
using enum HRFPreferenceKind;

constexpr HRFPreferenceRow rows[] = {
    {General, Switch, adding, "lirra.general.selectsInserted",
     QT_TRANSLATE_NOOP("HRFPreferences", "Select added files"),
     QT_TRANSLATE_NOOP("HRFPreferences",
                       "Files are selected in the list as soon as they have been added.")},
    {General, Folder, adding, "com.harrowfield.lirra.startupDirectoryURL",
     QT_TRANSLATE_NOOP("HRFPreferences", "Folder to open at the start"),
     QT_TRANSLATE_NOOP("HRFPreferences",
                       "Its files are added to the list when Lirra is started without files.")},
    {General, Switch, maintenance, "lirra.general.showsDebugMenu",
     QT_TRANSLATE_NOOP("HRFPreferences", "Show the Debug menu"),
     QT_TRANSLATE_NOOP("HRFPreferences",
                       "It has commands that throw away settings and stored data; no audio file is "
                       "touched.")},

    {Display, Choice, list, "lirra.display.rowHeight",
     QT_TRANSLATE_NOOP("HRFPreferences", "Height of rows"),
     QT_TRANSLATE_NOOP("HRFPreferences", "Artwork is shown as large as the rows are high."),
     rowHeights},

    {Tagging, Choice, ID3v2, "lirra.tagging.ID3v2Version",
     QT_TRANSLATE_NOOP("HRFPreferences", "Version and text encoding"),
     QT_TRANSLATE_NOOP("HRFPreferences",
                       "Old players know only ID3v2.3; AIFF and DSD files always get ID3v2.4."),
     ID3v2Versions},
    {Tagging, Switch, ID3v2, "lirra.tagging.iTunesID3v2Compatibility",
     QT_TRANSLATE_NOOP("HRFPreferences", "Write grouping and work as iTunes does"),
     QT_TRANSLATE_NOOP("HRFPreferences",
                       "Grouping is kept in the frame GRP1 and work in TIT1, instead of TIT1 and a "
                       "frame of its own.")},
    {Tagging, Switch, MPEG, "lirra.tagging.MPEG.ID3v2",
     QT_TRANSLATE_NOOP("HRFPreferences", "ID3v2"),
     QT_TRANSLATE_NOOP("HRFPreferences", "The tag that every player reads.")},
    {Tagging, Switch, MPEG, "lirra.tagging.MPEG.ID3v1",
     QT_TRANSLATE_NOOP("HRFPreferences", "ID3v1"),
     QT_TRANSLATE_NOOP("HRFPreferences",
                       "Seven short fields at the end of the file, for very old players.")},
    {Tagging, Switch, MPEG, "lirra.tagging.MPEG.APE", QT_TRANSLATE_NOOP("HRFPreferences", "APE"),
     QT_TRANSLATE_NOOP("HRFPreferences",
                       "For some other programs; a kind of tag that is off is removed when a file "
                       "is saved.")},
    {Tagging, Switch, RIFF, "lirra.tagging.RIFF.ID3v2",
     QT_TRANSLATE_NOOP("HRFPreferences", "ID3v2"),
     QT_TRANSLATE_NOOP("HRFPreferences", "Holds all tags and the artwork.")},
    {Tagging, Switch, RIFF, "lirra.tagging.RIFF.INFO", QT_TRANSLATE_NOOP("HRFPreferences", "INFO"),
     QT_TRANSLATE_NOOP("HRFPreferences",
                       "Holds the most common tags; a kind of tag that is off is removed when a "
                       "file is saved.")},
    {Tagging, Choice, FLAC, "lirra.tagging.preferredFLACArtworkStorageType",
     QT_TRANSLATE_NOOP("HRFPreferences", "Artwork is kept"),
     QT_TRANSLATE_NOOP("HRFPreferences",
                       "Players look for it in a picture block; a few know only the comment."),
     FLACArtworkPlaces},

    {Conversions, Choice, names, "lirra.formatter.noMatchFallbackAction",
     QT_TRANSLATE_NOOP("HRFPreferences", "In place of a missing tag"),
     QT_TRANSLATE_NOOP("HRFPreferences",
                       "What a pattern puts where a file has no value for one of its tags."),
     fallbacks},
    {Conversions, Switch, names, "lirra.formatter.padTrackAndDiscNum",
     QT_TRANSLATE_NOOP("HRFPreferences", "Leading zeros"),
     QT_TRANSLATE_NOOP(
         "HRFPreferences",
         "Track and disc numbers get leading zeros, so that names sort like numbers.")},
    {Conversions, Switch, names, "lirra.formatter.trimsNTFSIllegalChars",
     QT_TRANSLATE_NOOP("HRFPreferences", "Names for Windows"),
     QT_TRANSLATE_NOOP("HRFPreferences",
                       "Characters that Windows file systems forbid are left out of names.")},
    {Conversions, Switch, names, "lirra.formatter.trimsSMBIllegalChars",
     QT_TRANSLATE_NOOP("HRFPreferences", "Names for network shares"),
     QT_TRANSLATE_NOOP("HRFPreferences",
                       "Characters that SMB shares forbid are left out of names.")},
    {Conversions, Switch, moving, "lirra.formatter.path.copyFiles",
     QT_TRANSLATE_NOOP("HRFPreferences", "Copy instead of move"),
     QT_TRANSLATE_NOOP("HRFPreferences", "The files also stay where they are.")},
    {Conversions, Switch, moving, "lirra.formatter.path.moveAllFiles",
     QT_TRANSLATE_NOOP("HRFPreferences", "Take other files along"),
     QT_TRANSLATE_NOOP(
         "HRFPreferences",
         "Covers, booklets and the like follow when no audio file is left beside them.")},
    {Conversions, Switch, moving, "lirra.formatter.path.removeEmptyDirectories",
     QT_TRANSLATE_NOOP("HRFPreferences", "Remove empty folders"),
     QT_TRANSLATE_NOOP("HRFPreferences",
                       "Folders in which nothing is left are moved to the Trash.")},
    {Conversions, InvertedSwitch, moving, "lirra.suppressed.removeEmptyDirectories",
     QT_TRANSLATE_NOOP("HRFPreferences", "Ask before removing folders"),
     QT_TRANSLATE_NOOP("HRFPreferences", "The empty folders are listed before they are removed.")},
    {Conversions, Switch, moving, "lirra.formatter.path.revealOnSuccess",
     QT_TRANSLATE_NOOP("HRFPreferences", "Show the moved files"),
     QT_TRANSLATE_NOOP("HRFPreferences", "They are shown in the file manager afterwards.")},
};

} // namespace

std::span<const HRFPreferenceRow> HRFPreferenceRows()
{
    return rows;
}
