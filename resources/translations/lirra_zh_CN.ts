<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>DSDIFFMetaData</name>
    <message>
        <source>Its chunks are damaged</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It has several ID3v2 tags; all but one would be lost.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Its chunks are damaged.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DSFMetaData</name>
    <message>
        <source>Its header does not fit its contents.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file is truncated.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FLACMetaData</name>
    <message>
        <source>The tags of a FLAC file cannot be larger than 16 MiB.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A picture in a FLAC file cannot be larger than 16 MiB.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>HRFAttributeDescription</name>
    <message>
        <source>Number could not be parsed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Number is too big</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date could not be parsed</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>HRFAttributeNames</name>
    <message>
        <source>Title</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Artist</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Album</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Album Artist</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Track</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Track Total</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disc</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disc Total</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Year</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Genre</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Composer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Comment</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Grouping</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Compilation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>BPM</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rating</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lyrics</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Subtitle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Work</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Movement Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Movement</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Movement Total</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Conductor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lyricist</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remixer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Publisher</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copyright</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Release Date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Original Release Date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Original Artist</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Original Album</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Original Lyricist</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Original File Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sort Title</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sort Artist</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sort Album</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sort Album Artist</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sort Composer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disc Subtitle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Involved People</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Musician Credits</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Key</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mood</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Language</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ISRC</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Media Type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File Type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Length</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Playlist Delay</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Website</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Produced Notice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File Owner</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Encoder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Encoder Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Encoding Date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tagging Date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Radio Station</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Radio Station Owner</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Podcast</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Podcast Description</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Podcast ID</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Podcast URL</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Duration</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bit Rate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Variable Bit Rate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sample Rate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bit Depth</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Channels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Channel Mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tag Version</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File Extension</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File Size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date Modified</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date Created</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Artwork Type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Artwork Size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Artwork Data Size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Format</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>HRFContainedSubPath</name>
    <message>
        <source>The name “%1” is too long.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” is no name for a file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The path “%1” leads out of the folder.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>HRFDebugMenu</name>
    <message>
        <source>Drop Databases</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drop Attributes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reset Defaults</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reset All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Debug</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>HRFDocumentController</name>
    <message>
        <source>Writing Metadata…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 items total</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Are you sure you want to cancel the remaining operations?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lirra is currently saving tags. If you cancel now, changes will be lost.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Yes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>HRFDotPrefixCheck</name>
    <message>
        <source>Remove Dot</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Continue</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Some item names begin with a dot “.”, these names are reserved for the system.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Leaving the dot prefixes will cause the items to become hidden from the Finder.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>HRFErrorSolver</name>
    <message>
        <source>Apply to All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>HRFFileByteStore</name>
    <message>
        <source>Another program changed the file meanwhile</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It is not a regular file</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>HRFFileImportOperation</name>
    <message>
        <source>The file “%1” could not be found</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>HRFFileManager</name>
    <message>
        <source>An item named “%1” already exists in this location.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Do you want to replace it with the one you’re moving?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep Both</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Replace</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Skip</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Apply to All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” could not be copied to “%2”</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” could not be moved to “%2”</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” could not be copied to the folder “%2”</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” could not be moved to the folder “%2”</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The name is too long.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Another program uses or changes the item.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>HRFFileOperation</name>
    <message>
        <source>The file “%1” could not be found</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It was deleted, replaced, or moved to another place.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not process file: “%1”</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>HRFFileWalker</name>
    <message>
        <source>The folder has no audio files</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>HRFFilterMenu</name>
    <message>
        <source>(no value)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Filter by “%1”</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search values</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Press Return to show nothing but what is found</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All values</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Values</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of %2 values are shown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All found values</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>HRFFrameDescriptions</name>
    <message>
        <source>Title of the album on which the recording first appeared</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Year of the recording</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lead performer of the track</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Musical key in which the track starts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Performer of the album as a whole</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name of the internet radio station</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>People involved in the production and their functions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Album artist as used for sorting</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Person or program that encoded the file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kind of audio in the file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Genre of the track</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date of the recording</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Number of discs in the set</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Title as used for sorting</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Performer of the original recording</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rating from 0 to 255, as stored in the file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whether the track belongs to a compilation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copyright holder and year</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Title of the track</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Number of tracks on the disc</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Position of the track on the disc</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Composer as used for sorting</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Title of the album</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Label or publisher</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Program and settings used for encoding</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Length of the audio in milliseconds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Owner of the internet radio station</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Identifier of the podcast episode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mood of the track</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name of the movement</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Position of the movement in the work</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Number of movements in the work</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Address of the podcast feed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Artist as used for sorting</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Position of the disc in the set</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Conductor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Writer of the lyrics</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Description of the podcast episode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Free comment</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preferred name of the file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date of the first release</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>When the file was tagged</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>When the audio was encoded</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lyrics or transcription</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Composer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Picture, normally the front cover</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Subtitle of the disc within the set</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Group of tracks to which the track belongs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Owner or licensee of the file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Beats per minute</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Person who remixed or arranged the track</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Album title as used for sorting</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Medium from which the audio comes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>When this release appeared</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>International Standard Recording Code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Musicians and their instruments</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whether the file is a podcast episode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Production copyright notice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Language of the lyrics, as an ISO 639-2 code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Subtitle or refinement of the title</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Milliseconds of silence before the track in a playlist</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Writer of the original lyrics</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Web address that belongs to the track</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name of the work to which the track belongs</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>HRFFrameFactory</name>
    <message>
        <source>Its ID3v2 tag has encrypted frames.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Its ID3v2.2 tag has frames that later versions lack.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Its ID3v2 tag is damaged; a part of it would be lost.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>HRFListColumn</name>
    <message>
        <source>Artwork</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tags</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Properties</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>HRFListCommands</name>
    <message>
        <source>&amp;File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Tags</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;New List</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Add Files…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add audio files to the list</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add F&amp;older…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add all audio files of a folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Show in File Manager</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the selected files in the file manager</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Close List</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy &amp;Path</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy the paths of the selected files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Re&amp;move from List</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Take the selected files out of the list; the files themselves stay</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>C&amp;lear List</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Take all shown files out of the list; the files themselves stay</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Filter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Filter by &amp;Column…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose which values of the current column are shown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sho&amp;w All Files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Take all filters away</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pr&amp;eferences…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Edit Value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit the current cell</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Strip Tags…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove all metadata from the selected files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Higher Rows</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Lower Rows</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Usual Rows</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Full Screen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;About Lirra</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add &amp;Recent Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Columns</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Sort By</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>HRFListHeader</name>
    <message>
        <source>Column titles</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Restore Default Columns</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Order of Adding</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Filter by “%1”…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hide “%1”</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>HRFListModel</name>
    <message>
        <source>Edit %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>HRFListView</name>
    <message>
        <source>Files</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>HRFListWindow</name>
    <message>
        <source>Add Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>About Lirra</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;h3&gt;Lirra %1&lt;/h3&gt;&lt;p&gt;Edits the tags of audio files.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lirra</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tool Bar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Filter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the files that have these words in a shown column</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No matching files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change the filter to see more files.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drop files or folders here</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>or choose Add Files (%1) or Add Folder (%2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add Files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Audio Files (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>HRFMetaFileManager</name>
    <message>
        <source>Reading Metadata…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Files couldn&apos;t be opened because of core data related issues.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not add %1 invalid file(s).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You may want to try re-encoding these audio files.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show Files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Writing Metadata…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The operation was cancelled due to unresolved errors.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file “%1” cannot be called “%2”</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>HRFPattern</name>
    <message>
        <source>Unknown %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>HRFPatternItem</name>
    <message>
        <source>Wildcard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>＊</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Any Character</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Any</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Any Word</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Word</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>White Space</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Digits</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>#</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>HRFPatternMatcher</name>
    <message>
        <source>The regular expression failed: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Regular Expression is invalid</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Make sure that the supplied pattern has a valid Regex syntax, or toggle Regex matching off.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Matching the pattern takes too long</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Try a pattern with fewer repetitions.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>HRFPlaylist</name>
    <message>
        <source>Remove all metadata from “%1” ?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove all metadata from %1 files ?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This action cannot be undone.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove all metadata</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Strip Tags</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>HRFPreferences</name>
    <message>
        <source>None</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Low</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Medium</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>High</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Very high</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Highest</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ID3v2.4, UTF-8</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ID3v2.4, UTF-16</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ID3v2.4, ISO Latin 1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ID3v2.3, UTF-16</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ID3v2.3, ISO Latin 1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In a picture block</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In the Vorbis comment</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In both</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“Unknown” and the name of the tag</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No name: the file is left out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Adding files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Maintenance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>List</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ID3v2 tags</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tags in MP3 files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tags in WAV files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>FLAC files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Names made from tags</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Moving files into folders</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select added files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Files are selected in the list as soon as they have been added.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Folder to open at the start</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Its files are added to the list when Lirra is started without files.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the Debug menu</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It has commands that throw away settings and stored data; no audio file is touched.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Height of rows</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Artwork is shown as large as the rows are high.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Version and text encoding</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Old players know only ID3v2.3; AIFF and DSD files always get ID3v2.4.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write grouping and work as iTunes does</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Grouping is kept in the frame GRP1 and work in TIT1, instead of TIT1 and a frame of its own.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ID3v2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The tag that every player reads.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ID3v1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Seven short fields at the end of the file, for very old players.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>APE</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>For some other programs; a kind of tag that is off is removed when a file is saved.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Holds all tags and the artwork.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>INFO</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Holds the most common tags; a kind of tag that is off is removed when a file is saved.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Artwork is kept</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Players look for it in a picture block; a few know only the comment.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In place of a missing tag</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What a pattern puts where a file has no value for one of its tags.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Leading zeros</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Track and disc numbers get leading zeros, so that names sort like numbers.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Names for Windows</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Characters that Windows file systems forbid are left out of names.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Names for network shares</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Characters that SMB shares forbid are left out of names.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy instead of move</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The files also stay where they are.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Take other files along</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Covers, booklets and the like follow when no audio file is left beside them.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove empty folders</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Folders in which nothing is left are moved to the Trash.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ask before removing folders</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The empty folders are listed before they are removed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the moved files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>They are shown in the file manager afterwards.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>HRFPreferencesWindow</name>
    <message>
        <source>General</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Display</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tagging</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Conversions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Panes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Restore Defaults</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Take back every choice of this pane</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>HRFPrivateContext</name>
    <message>
        <source>The list is closed.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>HRFProgress</name>
    <message>
        <source>%1 File(s) Processed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>HRFProgressDialog</name>
    <message>
        <source>Progress</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancelling…</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>HRFProgressWindowController</name>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Processing…</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>HRFStarsEditor</name>
    <message>
        <source>Rating</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 star</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 stars</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>HRFStatusLine</name>
    <message>
        <source>Status</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No file matches the filter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of %2 selected</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>HRFSystemFile</name>
    <message>
        <source>Rename</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change Extension</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>HRFTagEngine</name>
    <message>
        <source>AIFF audio</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>DSDIFF audio</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>DSF audio</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a FLAC stream</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No engine can open the file “%1”</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The kind of file is not supported.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file “%1” could not be read</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file cannot hold this value of “%1”</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No file was given</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It does not contain %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>artwork</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lirra failed to save the file “%1”</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saving it has failed before.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file would not be readable afterwards.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>an MP4 container</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MPEG audio or a tag</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>an Opus stream</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a Speex stream with a tag</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>an Ogg Vorbis or Ogg FLAC stream</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>WAVE audio</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>HRFTagOperationCC</name>
    <message>
        <source>Failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Failures have been selected. Try editing the Pattern to better match the source, then proceed again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Compose %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>HRFTagStream</name>
    <message>
        <source>The old contents could not be restored; the file may be damaged.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>HRFTagWriteOperation</name>
    <message>
        <source>The permissions of the file “%1” could not be changed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fix Permissions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Continue</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>HRFValueTransformer</name>
    <message>
        <source>Yes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 kbps</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 kHz</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 bit</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>HRFWidgetsInteraction</name>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ID3MetaData</name>
    <message>
        <source>Its ID3v2 tag is cut off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Its ID3v2.3 tag has an extended header.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Its tag has frames that ID3v2.3 lacks.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>IFFCheck</name>
    <message>
        <source>The file is truncated.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file has audio behind its last chunk; its recording was broken off.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file would be larger than 4 GiB, more than its format can hold.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>IFFID3</name>
    <message>
        <source>Its ID3v2 tag is damaged; a part of it would be lost.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Its ID3v2 tag is cut off; a part of it would be lost.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It has several ID3v2 tags that differ; one would be lost.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MP4Check</name>
    <message>
        <source>One of its atoms runs past the end of the enclosing atom.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Its table of chunk offsets is damaged.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It does not state the size of the atom that holds the tags.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It states a size around the tags in 64 bits.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Its tags are of another kind, which cannot be changed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Its audio would move to where its chunk offsets of 32 bits do not reach.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Its audio is in fragments that cannot be moved to make room for the tags.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MP4Nesting</name>
    <message>
        <source>It has too many atoms.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>OGGMetaData</name>
    <message>
        <source>Its stream has no comment.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The pages of its comment are mixed with those of another stream.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>OGGVorbisMetaData</name>
    <message>
        <source>The tags of a FLAC stream cannot be larger than 16 MiB.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>VorbisMetaData</name>
    <message>
        <source>Its tag is damaged: it ends before the last field that it states.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>WAVInfo</name>
    <message>
        <source>It has an INFO field twice; one of them would be lost.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Its INFO list is damaged; a part of it would be lost.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>WAVMetaData</name>
    <message>
        <source>RF64 files are not supported</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
