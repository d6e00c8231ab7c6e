<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>DSDIFFMetaData</name>
    <message>
        <source>Its chunks are damaged</source>
        <translation>Ihre Chunks sind beschädigt</translation>
    </message>
    <message>
        <source>It has several ID3v2 tags; all but one would be lost.</source>
        <translation>Sie hat mehrere ID3v2-Tags; alle bis auf einen gingen verloren.</translation>
    </message>
    <message>
        <source>Its chunks are damaged.</source>
        <translation>Ihre Chunks sind beschädigt.</translation>
    </message>
</context>
<context>
    <name>DSFMetaData</name>
    <message>
        <source>Its header does not fit its contents.</source>
        <translation>Ihr Kopf passt nicht zu ihrem Inhalt.</translation>
    </message>
    <message>
        <source>The file is truncated.</source>
        <translation>Die Datei ist abgeschnitten.</translation>
    </message>
</context>
<context>
    <name>FLACMetaData</name>
    <message>
        <source>The tags of a FLAC file cannot be larger than 16 MiB.</source>
        <translation>Die Tags einer FLAC-Datei können nicht größer als 16 MiB sein.</translation>
    </message>
    <message>
        <source>A picture in a FLAC file cannot be larger than 16 MiB.</source>
        <translation>Ein Bild in einer FLAC-Datei kann nicht größer als 16 MiB sein.</translation>
    </message>
</context>
<context>
    <name>HRFAfterMove</name>
    <message>
        <source>Remove Empty Directories</source>
        <translation>Leere Ordner entfernen</translation>
    </message>
    <message>
        <source>Remove following empty directories?</source>
        <translation>Folgende leere Ordner entfernen?</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Behalten</translation>
    </message>
    <message>
        <source>Do not ask again</source>
        <translation>Nicht mehr fragen</translation>
    </message>
    <message>
        <source>Moving accompanying files…</source>
        <translation>Beiliegende Dateien werden bewegt…</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>The empty folder “%1” could not be moved to the Trash</source>
        <translation>Der leere Ordner „%1“ konnte nicht in den Papierkorb gelegt werden</translation>
    </message>
</context>
<context>
    <name>HRFApplicationDelegate</name>
    <message>
        <source>Lirra %1</source>
        <translation>Lirra %1</translation>
    </message>
</context>
<context>
    <name>HRFArtworkPane</name>
    <message>
        <source>Artwork</source>
        <translation>Cover</translation>
    </message>
    <message>
        <source>Drop a picture here</source>
        <translation>Ein Bild hier ablegen</translation>
    </message>
    <message>
        <source>Several pictures</source>
        <translation>Mehrere Bilder</translation>
    </message>
    <message>
        <source>Cannot be shown</source>
        <translation>Kann nicht gezeigt werden</translation>
    </message>
    <message>
        <source>Set Artwork</source>
        <translation>Cover setzen</translation>
    </message>
    <message>
        <source>Choose Picture</source>
        <translation>Bild wählen</translation>
    </message>
    <message>
        <source>Pictures (%1)</source>
        <translation>Bilder (%1)</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Save Picture</source>
        <translation>Bild sichern</translation>
    </message>
    <message>
        <source>Choose Picture…</source>
        <translation>Bild wählen…</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Einsetzen</translation>
    </message>
    <message>
        <source>Save As…</source>
        <translation>Sichern unter…</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
</context>
<context>
    <name>HRFAttributeDescription</name>
    <message>
        <source>Number could not be parsed</source>
        <translation>Die Zahl ist nicht lesbar</translation>
    </message>
    <message>
        <source>Number is too big</source>
        <translation>Die Zahl ist zu groß</translation>
    </message>
    <message>
        <source>Date could not be parsed</source>
        <translation>Das Datum ist nicht lesbar</translation>
    </message>
</context>
<context>
    <name>HRFAttributeNames</name>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Artist</source>
        <translation>Interpret</translation>
    </message>
    <message>
        <source>Album</source>
        <translation>Album</translation>
    </message>
    <message>
        <source>Album Artist</source>
        <translation>Albuminterpret</translation>
    </message>
    <message>
        <source>Track</source>
        <translation>Titelnr.</translation>
    </message>
    <message>
        <source>Track Total</source>
        <translation>Titelanzahl</translation>
    </message>
    <message>
        <source>Disc</source>
        <translation>Disc</translation>
    </message>
    <message>
        <source>Disc Total</source>
        <translation>Disc-Anzahl</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Jahr</translation>
    </message>
    <message>
        <source>Genre</source>
        <translation>Genre</translation>
    </message>
    <message>
        <source>Composer</source>
        <translation>Komponist</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>Kommentar</translation>
    </message>
    <message>
        <source>Grouping</source>
        <translation>Gruppierung</translation>
    </message>
    <message>
        <source>Compilation</source>
        <translation>Kompilation</translation>
    </message>
    <message>
        <source>BPM</source>
        <translation>BPM</translation>
    </message>
    <message>
        <source>Rating</source>
        <translation>Wertung</translation>
    </message>
    <message>
        <source>Lyrics</source>
        <translation>Liedtext</translation>
    </message>
    <message>
        <source>Subtitle</source>
        <translation>Untertitel</translation>
    </message>
    <message>
        <source>Work</source>
        <translation>Werk</translation>
    </message>
    <message>
        <source>Movement Name</source>
        <translation>Name des Satzes</translation>
    </message>
    <message>
        <source>Movement</source>
        <translation>Satznummer</translation>
    </message>
    <message>
        <source>Movement Total</source>
        <translation>Satzanzahl</translation>
    </message>
    <message>
        <source>Conductor</source>
        <translation>Dirigent</translation>
    </message>
    <message>
        <source>Lyricist</source>
        <translation>Textdichter</translation>
    </message>
    <message>
        <source>Remixer</source>
        <translation>Remixer</translation>
    </message>
    <message>
        <source>Publisher</source>
        <translation>Verlag</translation>
    </message>
    <message>
        <source>Copyright</source>
        <translation>Urheberrecht</translation>
    </message>
    <message>
        <source>Release Date</source>
        <translation>Erscheinungsdatum</translation>
    </message>
    <message>
        <source>Original Release Date</source>
        <translation>Ursprüngliches Erscheinungsdatum</translation>
    </message>
    <message>
        <source>Original Artist</source>
        <translation>Ursprünglicher Interpret</translation>
    </message>
    <message>
        <source>Original Album</source>
        <translation>Ursprüngliches Album</translation>
    </message>
    <message>
        <source>Original Lyricist</source>
        <translation>Ursprünglicher Textdichter</translation>
    </message>
    <message>
        <source>Original File Name</source>
        <translation>Ursprünglicher Dateiname</translation>
    </message>
    <message>
        <source>Sort Title</source>
        <translation>Titel (Sortierung)</translation>
    </message>
    <message>
        <source>Sort Artist</source>
        <translation>Interpret (Sortierung)</translation>
    </message>
    <message>
        <source>Sort Album</source>
        <translation>Album (Sortierung)</translation>
    </message>
    <message>
        <source>Sort Album Artist</source>
        <translation>Albuminterpret (Sortierung)</translation>
    </message>
    <message>
        <source>Sort Composer</source>
        <translation>Komponist (Sortierung)</translation>
    </message>
    <message>
        <source>Disc Subtitle</source>
        <translation>Untertitel der Disc</translation>
    </message>
    <message>
        <source>Involved People</source>
        <translation>Beteiligte</translation>
    </message>
    <message>
        <source>Musician Credits</source>
        <translation>Musiker</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>Tonart</translation>
    </message>
    <message>
        <source>Mood</source>
        <translation>Stimmung</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>ISRC</source>
        <translation>ISRC</translation>
    </message>
    <message>
        <source>Media Type</source>
        <translation>Medium</translation>
    </message>
    <message>
        <source>File Type</source>
        <translation>Dateityp</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Länge</translation>
    </message>
    <message>
        <source>Playlist Delay</source>
        <translation>Pause in der Wiedergabeliste</translation>
    </message>
    <message>
        <source>Website</source>
        <translation>Webseite</translation>
    </message>
    <message>
        <source>Produced Notice</source>
        <translation>Produktionsvermerk</translation>
    </message>
    <message>
        <source>File Owner</source>
        <translation>Besitzer der Datei</translation>
    </message>
    <message>
        <source>Encoder</source>
        <translation>Encoder</translation>
    </message>
    <message>
        <source>Encoder Settings</source>
        <translation>Encoder-Einstellungen</translation>
    </message>
    <message>
        <source>Encoding Date</source>
        <translation>Codierungsdatum</translation>
    </message>
    <message>
        <source>Tagging Date</source>
        <translation>Datum des Taggens</translation>
    </message>
    <message>
        <source>Radio Station</source>
        <translation>Radiosender</translation>
    </message>
    <message>
        <source>Radio Station Owner</source>
        <translation>Betreiber des Radiosenders</translation>
    </message>
    <message>
        <source>Podcast</source>
        <translation>Podcast</translation>
    </message>
    <message>
        <source>Podcast Description</source>
        <translation>Podcast-Beschreibung</translation>
    </message>
    <message>
        <source>Podcast ID</source>
        <translation>Podcast-Kennung</translation>
    </message>
    <message>
        <source>Podcast URL</source>
        <translation>Podcast-Adresse</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Dauer</translation>
    </message>
    <message>
        <source>Bit Rate</source>
        <translation>Bitrate</translation>
    </message>
    <message>
        <source>Variable Bit Rate</source>
        <translation>Variable Bitrate</translation>
    </message>
    <message>
        <source>Sample Rate</source>
        <translation>Abtastrate</translation>
    </message>
    <message>
        <source>Bit Depth</source>
        <translation>Bittiefe</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>Kanäle</translation>
    </message>
    <message>
        <source>Channel Mode</source>
        <translation>Kanalmodus</translation>
    </message>
    <message>
        <source>Tag Version</source>
        <translation>Tag-Version</translation>
    </message>
    <message>
        <source>File Name</source>
        <translation>Dateiname</translation>
    </message>
    <message>
        <source>File Extension</source>
        <translation>Dateiendung</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>File Size</source>
        <translation>Dateigröße</translation>
    </message>
    <message>
        <source>Date Modified</source>
        <translation>Geändert am</translation>
    </message>
    <message>
        <source>Date Created</source>
        <translation>Erstellt am</translation>
    </message>
    <message>
        <source>Artwork Type</source>
        <translation>Cover-Format</translation>
    </message>
    <message>
        <source>Artwork Size</source>
        <translation>Cover-Maße</translation>
    </message>
    <message>
        <source>Artwork Data Size</source>
        <translation>Cover-Dateigröße</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Format</translation>
    </message>
</context>
<context>
    <name>HRFContainedSubPath</name>
    <message>
        <source>The name “%1” is too long.</source>
        <translation>Der Name „%1“ ist zu lang.</translation>
    </message>
    <message>
        <source>“%1” is no name for a file.</source>
        <translation>„%1“ ist kein Name für eine Datei.</translation>
    </message>
    <message>
        <source>The path “%1” leads out of the folder.</source>
        <translation>Der Pfad „%1“ führt aus dem Ordner heraus.</translation>
    </message>
</context>
<context>
    <name>HRFDataFolder</name>
    <message>
        <source>The folder is in use by another program.</source>
        <translation>Der Ordner wird von einem anderen Programm benutzt.</translation>
    </message>
    <message>
        <source>The folder cannot be used.</source>
        <translation>Der Ordner kann nicht benutzt werden.</translation>
    </message>
</context>
<context>
    <name>HRFDebugMenu</name>
    <message>
        <source>Drop Databases</source>
        <translation>Datenbanken verwerfen</translation>
    </message>
    <message>
        <source>Drop Attributes</source>
        <translation>Attribute verwerfen</translation>
    </message>
    <message>
        <source>Reset Defaults</source>
        <translation>Einstellungen zurücksetzen</translation>
    </message>
    <message>
        <source>Reset All</source>
        <translation>Alles zurücksetzen</translation>
    </message>
    <message>
        <source>&amp;Debug</source>
        <translation>Deb&amp;ug</translation>
    </message>
    <message>
        <source>Drop View Configurations</source>
        <translation>Ansichten verwerfen</translation>
    </message>
</context>
<context>
    <name>HRFDocumentController</name>
    <message>
        <source>Writing Metadata…</source>
        <translation>Metadaten werden geschrieben…</translation>
    </message>
    <message>
        <source>%1 items total</source>
        <translation>%1 Objekte insgesamt</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel the remaining operations?</source>
        <translation>Möchten Sie die übrigen Vorgänge wirklich abbrechen?</translation>
    </message>
    <message>
        <source>Lirra is currently saving tags. If you cancel now, changes will be lost.</source>
        <translation>Lirra sichert gerade Tags. Wenn Sie jetzt abbrechen, gehen Änderungen verloren.</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
</context>
<context>
    <name>HRFDotPrefixCheck</name>
    <message>
        <source>Remove Dot</source>
        <translation>Punkt entfernen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Fortfahren</translation>
    </message>
    <message>
        <source>Some item names begin with a dot “.”, these names are reserved for the system.</source>
        <translation>Einige Namen beginnen mit einem Punkt „.“; solche Namen sind dem System vorbehalten.</translation>
    </message>
    <message>
        <source>Leaving the dot prefixes will cause the items to become hidden from the Finder.</source>
        <translation>Bleiben die Punkte stehen, so zeigt der Dateimanager die Objekte nicht an.</translation>
    </message>
</context>
<context>
    <name>HRFErrorSolver</name>
    <message>
        <source>Apply to All</source>
        <translation>Auf alle anwenden</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>HRFFieldText</name>
    <message>
        <source>Enter a date as YYYY-MM-DD, a month as YYYY-MM, or a year.</source>
        <translation>Bitte ein Datum als JJJJ-MM-TT, einen Monat als JJJJ-MM oder ein Jahr eingeben.</translation>
    </message>
    <message>
        <source>Enter a name other than “.” and “..”.</source>
        <translation>Bitte einen anderen Namen als „.“ und „..“ eingeben.</translation>
    </message>
</context>
<context>
    <name>HRFFileByteStore</name>
    <message>
        <source>Another program changed the file meanwhile</source>
        <translation>Ein anderes Programm hat die Datei inzwischen geändert</translation>
    </message>
    <message>
        <source>It is not a regular file</source>
        <translation>Sie ist keine gewöhnliche Datei</translation>
    </message>
</context>
<context>
    <name>HRFFileImportOperation</name>
    <message>
        <source>The file “%1” could not be found</source>
        <translation>Die Datei „%1“ wurde nicht gefunden</translation>
    </message>
</context>
<context>
    <name>HRFFileManager</name>
    <message>
        <source>An item named “%1” already exists in this location.</source>
        <translation>Ein Objekt mit dem Namen „%1“ gibt es hier schon.</translation>
    </message>
    <message>
        <source>Do you want to replace it with the one you’re moving?</source>
        <translation>Möchten Sie es durch das bewegte ersetzen?</translation>
    </message>
    <message>
        <source>Keep Both</source>
        <translation>Beide behalten</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Ersetzen</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Anhalten</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>Überspringen</translation>
    </message>
    <message>
        <source>Apply to All</source>
        <translation>Auf alle anwenden</translation>
    </message>
    <message>
        <source>“%1” could not be copied to “%2”</source>
        <translation>„%1“ konnte nicht nach „%2“ kopiert werden</translation>
    </message>
    <message>
        <source>“%1” could not be moved to “%2”</source>
        <translation>„%1“ konnte nicht nach „%2“ bewegt werden</translation>
    </message>
    <message>
        <source>“%1” could not be copied to the folder “%2”</source>
        <translation>„%1“ konnte nicht in den Ordner „%2“ kopiert werden</translation>
    </message>
    <message>
        <source>“%1” could not be moved to the folder “%2”</source>
        <translation>„%1“ konnte nicht in den Ordner „%2“ bewegt werden</translation>
    </message>
    <message>
        <source>The name is too long.</source>
        <translation>Der Name ist zu lang.</translation>
    </message>
    <message>
        <source>Another program uses or changes the item.</source>
        <translation>Ein anderes Programm benutzt oder ändert das Objekt.</translation>
    </message>
</context>
<context>
    <name>HRFFileOperation</name>
    <message>
        <source>The file “%1” could not be found</source>
        <translation>Die Datei „%1“ wurde nicht gefunden</translation>
    </message>
    <message>
        <source>It was deleted, replaced, or moved to another place.</source>
        <translation>Sie wurde gelöscht, ersetzt oder an einen anderen Ort bewegt.</translation>
    </message>
    <message>
        <source>Could not process file: “%1”</source>
        <translation>Datei konnte nicht verarbeitet werden: „%1“</translation>
    </message>
</context>
<context>
    <name>HRFFileOperationCC</name>
    <message>
        <source>Failures have been selected. Try editing the Pattern, then proceed again.</source>
        <translation>Die fehlgeschlagenen Dateien sind ausgewählt. Ändern Sie das Muster und versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>Some files failed renaming because their new filenames were null</source>
        <translation>Einige Dateien wurden nicht umbenannt, weil ihre neuen Namen leer waren</translation>
    </message>
    <message>
        <source>Some of the new filepaths were invalid.</source>
        <translation>Einige der neuen Pfade waren ungültig.</translation>
    </message>
    <message>
        <source>Edit Pattern</source>
        <translation>Muster bearbeiten</translation>
    </message>
</context>
<context>
    <name>HRFFilePlan</name>
    <message>
        <source>There is no %1</source>
        <translation>Es fehlt: %1</translation>
    </message>
    <message>
        <source>The pattern makes no name for the file “%1”</source>
        <translation>Das Muster ergibt keinen Namen für die Datei „%1“</translation>
    </message>
    <message>
        <source>The pattern makes no folder for the file “%1”</source>
        <translation>Das Muster ergibt keinen Ordner für die Datei „%1“</translation>
    </message>
    <message>
        <source>A value is missing or empty.</source>
        <translation>Ein Wert fehlt oder ist leer.</translation>
    </message>
</context>
<context>
    <name>HRFFileWalker</name>
    <message>
        <source>The folder has no audio files</source>
        <translation>Der Ordner enthält keine Audiodateien</translation>
    </message>
</context>
<context>
    <name>HRFFilterMenu</name>
    <message>
        <source>(no value)</source>
        <translation>(kein Wert)</translation>
    </message>
    <message>
        <source>Filter by “%1”</source>
        <translation>Nach „%1“ filtern</translation>
    </message>
    <message>
        <source>Search values</source>
        <translation>Werte suchen</translation>
    </message>
    <message>
        <source>Press Return to show nothing but what is found</source>
        <translation>Eingabetaste drücken, um nur das Gefundene zu zeigen</translation>
    </message>
    <message>
        <source>All values</source>
        <translation>Alle Werte</translation>
    </message>
    <message>
        <source>Values</source>
        <translation>Werte</translation>
    </message>
    <message>
        <source>%1 of %2 values are shown</source>
        <translation>%1 von %2 Werten werden gezeigt</translation>
    </message>
    <message>
        <source>All found values</source>
        <translation>Alle gefundenen Werte</translation>
    </message>
</context>
<context>
    <name>HRFFrameDescriptions</name>
    <message>
        <source>Title of the album on which the recording first appeared</source>
        <translation>Titel des Albums, auf dem die Aufnahme zuerst erschien</translation>
    </message>
    <message>
        <source>Year of the recording</source>
        <translation>Jahr der Aufnahme</translation>
    </message>
    <message>
        <source>Lead performer of the track</source>
        <translation>Hauptinterpret des Titels</translation>
    </message>
    <message>
        <source>Musical key in which the track starts</source>
        <translation>Tonart, in der der Titel beginnt</translation>
    </message>
    <message>
        <source>Performer of the album as a whole</source>
        <translation>Interpret des ganzen Albums</translation>
    </message>
    <message>
        <source>Name of the internet radio station</source>
        <translation>Name des Internetradiosenders</translation>
    </message>
    <message>
        <source>People involved in the production and their functions</source>
        <translation>An der Produktion Beteiligte und ihre Aufgaben</translation>
    </message>
    <message>
        <source>Album artist as used for sorting</source>
        <translation>Albuminterpret, wie er sortiert wird</translation>
    </message>
    <message>
        <source>Person or program that encoded the file</source>
        <translation>Person oder Programm, von dem die Datei codiert wurde</translation>
    </message>
    <message>
        <source>Kind of audio in the file</source>
        <translation>Art des Tons in der Datei</translation>
    </message>
    <message>
        <source>Genre of the track</source>
        <translation>Genre des Titels</translation>
    </message>
    <message>
        <source>Date of the recording</source>
        <translation>Datum der Aufnahme</translation>
    </message>
    <message>
        <source>Number of discs in the set</source>
        <translation>Anzahl der Discs der Ausgabe</translation>
    </message>
    <message>
        <source>Title as used for sorting</source>
        <translation>Titel, wie er sortiert wird</translation>
    </message>
    <message>
        <source>Performer of the original recording</source>
        <translation>Interpret der ursprünglichen Aufnahme</translation>
    </message>
    <message>
        <source>Rating from 0 to 255, as stored in the file</source>
        <translation>Wertung von 0 bis 255, wie sie in der Datei steht</translation>
    </message>
    <message>
        <source>Whether the track belongs to a compilation</source>
        <translation>Ob der Titel zu einer Kompilation gehört</translation>
    </message>
    <message>
        <source>Copyright holder and year</source>
        <translation>Inhaber und Jahr des Urheberrechts</translation>
    </message>
    <message>
        <source>Title of the track</source>
        <translation>Titel des Stücks</translation>
    </message>
    <message>
        <source>Number of tracks on the disc</source>
        <translation>Anzahl der Titel auf der Disc</translation>
    </message>
    <message>
        <source>Position of the track on the disc</source>
        <translation>Stelle des Titels auf der Disc</translation>
    </message>
    <message>
        <source>Composer as used for sorting</source>
        <translation>Komponist, wie er sortiert wird</translation>
    </message>
    <message>
        <source>Title of the album</source>
        <translation>Titel des Albums</translation>
    </message>
    <message>
        <source>Label or publisher</source>
        <translation>Label oder Verlag</translation>
    </message>
    <message>
        <source>Program and settings used for encoding</source>
        <translation>Programm und Einstellungen der Codierung</translation>
    </message>
    <message>
        <source>Length of the audio in milliseconds</source>
        <translation>Länge des Tons in Millisekunden</translation>
    </message>
    <message>
        <source>Owner of the internet radio station</source>
        <translation>Betreiber des Internetradiosenders</translation>
    </message>
    <message>
        <source>Identifier of the podcast episode</source>
        <translation>Kennung der Podcast-Folge</translation>
    </message>
    <message>
        <source>Mood of the track</source>
        <translation>Stimmung des Titels</translation>
    </message>
    <message>
        <source>Name of the movement</source>
        <translation>Name des Satzes</translation>
    </message>
    <message>
        <source>Position of the movement in the work</source>
        <translation>Stelle des Satzes im Werk</translation>
    </message>
    <message>
        <source>Number of movements in the work</source>
        <translation>Anzahl der Sätze des Werks</translation>
    </message>
    <message>
        <source>Address of the podcast feed</source>
        <translation>Adresse des Podcast-Feeds</translation>
    </message>
    <message>
        <source>Artist as used for sorting</source>
        <translation>Interpret, wie er sortiert wird</translation>
    </message>
    <message>
        <source>Position of the disc in the set</source>
        <translation>Stelle der Disc in der Ausgabe</translation>
    </message>
    <message>
        <source>Conductor</source>
        <translation>Dirigent</translation>
    </message>
    <message>
        <source>Writer of the lyrics</source>
        <translation>Verfasser des Liedtexts</translation>
    </message>
    <message>
        <source>Description of the podcast episode</source>
        <translation>Beschreibung der Podcast-Folge</translation>
    </message>
    <message>
        <source>Free comment</source>
        <translation>Freier Kommentar</translation>
    </message>
    <message>
        <source>Preferred name of the file</source>
        <translation>Bevorzugter Name der Datei</translation>
    </message>
    <message>
        <source>Date of the first release</source>
        <translation>Datum der ersten Veröffentlichung</translation>
    </message>
    <message>
        <source>When the file was tagged</source>
        <translation>Wann die Datei getaggt wurde</translation>
    </message>
    <message>
        <source>When the audio was encoded</source>
        <translation>Wann der Ton codiert wurde</translation>
    </message>
    <message>
        <source>Lyrics or transcription</source>
        <translation>Liedtext oder Abschrift</translation>
    </message>
    <message>
        <source>Composer</source>
        <translation>Komponist</translation>
    </message>
    <message>
        <source>Picture, normally the front cover</source>
        <translation>Bild, meist die Vorderseite des Covers</translation>
    </message>
    <message>
        <source>Subtitle of the disc within the set</source>
        <translation>Untertitel der Disc innerhalb der Ausgabe</translation>
    </message>
    <message>
        <source>Group of tracks to which the track belongs</source>
        <translation>Gruppe von Titeln, zu der der Titel gehört</translation>
    </message>
    <message>
        <source>Owner or licensee of the file</source>
        <translation>Besitzer oder Lizenznehmer der Datei</translation>
    </message>
    <message>
        <source>Beats per minute</source>
        <translation>Schläge pro Minute</translation>
    </message>
    <message>
        <source>Person who remixed or arranged the track</source>
        <translation>Wer den Titel neu abgemischt oder arrangiert hat</translation>
    </message>
    <message>
        <source>Album title as used for sorting</source>
        <translation>Albumtitel, wie er sortiert wird</translation>
    </message>
    <message>
        <source>Medium from which the audio comes</source>
        <translation>Medium, von dem der Ton stammt</translation>
    </message>
    <message>
        <source>When this release appeared</source>
        <translation>Wann diese Ausgabe erschien</translation>
    </message>
    <message>
        <source>International Standard Recording Code</source>
        <translation>Internationaler Standardcode für Aufnahmen</translation>
    </message>
    <message>
        <source>Musicians and their instruments</source>
        <translation>Musiker und ihre Instrumente</translation>
    </message>
    <message>
        <source>Whether the file is a podcast episode</source>
        <translation>Ob die Datei eine Podcast-Folge ist</translation>
    </message>
    <message>
        <source>Production copyright notice</source>
        <translation>Urheberrechtsvermerk der Produktion</translation>
    </message>
    <message>
        <source>Language of the lyrics, as an ISO 639-2 code</source>
        <translation>Sprache des Liedtexts als Code nach ISO 639-2</translation>
    </message>
    <message>
        <source>Subtitle or refinement of the title</source>
        <translation>Untertitel oder Ergänzung des Titels</translation>
    </message>
    <message>
        <source>Milliseconds of silence before the track in a playlist</source>
        <translation>Millisekunden Stille vor dem Titel in einer Wiedergabeliste</translation>
    </message>
    <message>
        <source>Writer of the original lyrics</source>
        <translation>Verfasser des ursprünglichen Liedtexts</translation>
    </message>
    <message>
        <source>Web address that belongs to the track</source>
        <translation>Webadresse, die zum Titel gehört</translation>
    </message>
    <message>
        <source>Name of the work to which the track belongs</source>
        <translation>Name des Werks, zu dem der Titel gehört</translation>
    </message>
</context>
<context>
    <name>HRFFrameFactory</name>
    <message>
        <source>Its ID3v2 tag has encrypted frames.</source>
        <translation>Ihr ID3v2-Tag hat verschlüsselte Frames.</translation>
    </message>
    <message>
        <source>Its ID3v2.2 tag has frames that later versions lack.</source>
        <translation>Ihr ID3v2.2-Tag hat Frames, die spätere Versionen nicht kennen.</translation>
    </message>
    <message>
        <source>Its ID3v2 tag is damaged; a part of it would be lost.</source>
        <translation>Ihr ID3v2-Tag ist beschädigt; ein Teil davon ginge verloren.</translation>
    </message>
</context>
<context>
    <name>HRFImportNotice</name>
    <message>
        <source>Show what was not added, and why</source>
        <translation>Zeigen, was nicht hinzugefügt wurde, und warum</translation>
    </message>
    <message>
        <source>1 item was not added</source>
        <translation>1 Objekt wurde nicht hinzugefügt</translation>
    </message>
    <message>
        <source>%1 items were not added</source>
        <translation>%1 Objekte wurden nicht hinzugefügt</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>und %1 weitere</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Show Files</source>
        <translation>Dateien zeigen</translation>
    </message>
</context>
<context>
    <name>HRFListColumn</name>
    <message>
        <source>Artwork</source>
        <translation>Cover</translation>
    </message>
    <message>
        <source>Tags</source>
        <translation>Tags</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Eigenschaften</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Umbenennen</translation>
    </message>
    <message>
        <source>Change Extension</source>
        <translation>Endung ändern</translation>
    </message>
    <message>
        <source>Edit %1</source>
        <translation>%1 bearbeiten</translation>
    </message>
</context>
<context>
    <name>HRFListCommands</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Tags</source>
        <translation>&amp;Tags</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>&amp;New List</source>
        <translation>&amp;Neue Liste</translation>
    </message>
    <message>
        <source>&amp;Add Files…</source>
        <translation>Dateien &amp;hinzufügen…</translation>
    </message>
    <message>
        <source>Add audio files to the list</source>
        <translation>Audiodateien zur Liste hinzufügen</translation>
    </message>
    <message>
        <source>Add F&amp;older…</source>
        <translation>&amp;Ordner hinzufügen…</translation>
    </message>
    <message>
        <source>Add all audio files of a folder</source>
        <translation>Alle Audiodateien eines Ordners hinzufügen</translation>
    </message>
    <message>
        <source>&amp;Show in File Manager</source>
        <translation>&amp;Im Dateimanager zeigen</translation>
    </message>
    <message>
        <source>Show the selected files in the file manager</source>
        <translation>Die ausgewählten Dateien im Dateimanager zeigen</translation>
    </message>
    <message>
        <source>&amp;Close List</source>
        <translation>Liste &amp;schließen</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederholen</translation>
    </message>
    <message>
        <source>Copy &amp;Path</source>
        <translation>&amp;Pfad kopieren</translation>
    </message>
    <message>
        <source>Copy the paths of the selected files</source>
        <translation>Die Pfade der ausgewählten Dateien kopieren</translation>
    </message>
    <message>
        <source>Re&amp;move from List</source>
        <translation>Aus der Liste &amp;entfernen</translation>
    </message>
    <message>
        <source>Take the selected files out of the list; the files themselves stay</source>
        <translation>Die ausgewählten Dateien aus der Liste nehmen; die Dateien selbst bleiben</translation>
    </message>
    <message>
        <source>C&amp;lear List</source>
        <translation>Liste &amp;leeren</translation>
    </message>
    <message>
        <source>Take all shown files out of the list; the files themselves stay</source>
        <translation>Alle gezeigten Dateien aus der Liste nehmen; die Dateien selbst bleiben</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>&amp;Alle auswählen</translation>
    </message>
    <message>
        <source>&amp;Filter</source>
        <translation>&amp;Filtern</translation>
    </message>
    <message>
        <source>Filter by &amp;Column…</source>
        <translation>Nach &amp;Spalte filtern…</translation>
    </message>
    <message>
        <source>Choose which values of the current column are shown</source>
        <translation>Auswählen, welche Werte der aktuellen Spalte gezeigt werden</translation>
    </message>
    <message>
        <source>Sho&amp;w All Files</source>
        <translation>Alle &amp;Dateien zeigen</translation>
    </message>
    <message>
        <source>Take all filters away</source>
        <translation>Alle Filter aufheben</translation>
    </message>
    <message>
        <source>Pr&amp;eferences…</source>
        <translation>Einstellun&amp;gen…</translation>
    </message>
    <message>
        <source>&amp;Edit Value</source>
        <translation>&amp;Wert bearbeiten</translation>
    </message>
    <message>
        <source>Edit the current cell</source>
        <translation>Die aktuelle Zelle bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Strip Tags…</source>
        <translation>&amp;Tags entfernen…</translation>
    </message>
    <message>
        <source>Remove all metadata from the selected files</source>
        <translation>Alle Metadaten aus den ausgewählten Dateien entfernen</translation>
    </message>
    <message>
        <source>&amp;Higher Rows</source>
        <translation>&amp;Höhere Zeilen</translation>
    </message>
    <message>
        <source>&amp;Lower Rows</source>
        <translation>&amp;Niedrigere Zeilen</translation>
    </message>
    <message>
        <source>&amp;Usual Rows</source>
        <translation>Übliche &amp;Zeilen</translation>
    </message>
    <message>
        <source>&amp;Full Screen</source>
        <translation>&amp;Vollbild</translation>
    </message>
    <message>
        <source>&amp;About Lirra</source>
        <translation>Ü&amp;ber Lirra</translation>
    </message>
    <message>
        <source>Add &amp;Recent Folder</source>
        <translation>&amp;Zuletzt benutzten Ordner hinzufügen</translation>
    </message>
    <message>
        <source>&amp;Columns</source>
        <translation>S&amp;palten</translation>
    </message>
    <message>
        <source>&amp;Sort By</source>
        <translation>&amp;Sortieren nach</translation>
    </message>
    <message>
        <source>Edit in Si&amp;debar</source>
        <translation>In &amp;Seitenleiste bearbeiten</translation>
    </message>
    <message>
        <source>Go to the first field of the sidebar</source>
        <translation>Zum ersten Feld der Seitenleiste gehen</translation>
    </message>
    <message>
        <source>S&amp;idebar</source>
        <translation>Seiten&amp;leiste</translation>
    </message>
    <message>
        <source>Show or hide the sidebar</source>
        <translation>Die Seitenleiste zeigen oder ausblenden</translation>
    </message>
    <message>
        <source>Co&amp;nfigure Sidebar…</source>
        <translation>Seitenleiste &amp;einrichten…</translation>
    </message>
    <message>
        <source>Choose which fields the sidebar shows</source>
        <translation>Wählen, welche Felder die Seitenleiste zeigt</translation>
    </message>
    <message>
        <source>Move Column Lef&amp;t</source>
        <translation>Spalte nach lin&amp;ks</translation>
    </message>
    <message>
        <source>Move the column of the current cell</source>
        <translation>Die Spalte der aktuellen Zelle verschieben</translation>
    </message>
    <message>
        <source>Move Column &amp;Right</source>
        <translation>Spalte nach &amp;rechts</translation>
    </message>
    <message>
        <source>Fit Column &amp;Width</source>
        <translation>Spalten&amp;breite anpassen</translation>
    </message>
    <message>
        <source>Make the column of the current cell as wide as what stands in it</source>
        <translation>Die Spalte der aktuellen Zelle so breit machen wie ihren Inhalt</translation>
    </message>
    <message>
        <source>&amp;Undo “%1”</source>
        <translation>&amp;Rückgängig: „%1“</translation>
    </message>
    <message>
        <source>&amp;Redo “%1”</source>
        <translation>&amp;Wiederholen: „%1“</translation>
    </message>
</context>
<context>
    <name>HRFListHeader</name>
    <message>
        <source>Column titles</source>
        <translation>Spaltentitel</translation>
    </message>
    <message>
        <source>Restore Default Columns</source>
        <translation>Übliche Spalten wiederherstellen</translation>
    </message>
    <message>
        <source>Order of Adding</source>
        <translation>Reihenfolge des Hinzufügens</translation>
    </message>
    <message>
        <source>Filter by “%1”…</source>
        <translation>Nach „%1“ filtern…</translation>
    </message>
    <message>
        <source>Hide “%1”</source>
        <translation>„%1“ ausblenden</translation>
    </message>
    <message>
        <source>&amp;Then By</source>
        <translation>&amp;Dann nach</translation>
    </message>
</context>
<context>
    <name>HRFListView</name>
    <message>
        <source>Files</source>
        <translation>Dateien</translation>
    </message>
</context>
<context>
    <name>HRFListWindow</name>
    <message>
        <source>Add Folder</source>
        <translation>Ordner hinzufügen</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>About Lirra</source>
        <translation>Über Lirra</translation>
    </message>
    <message>
        <source>&lt;h3&gt;Lirra %1&lt;/h3&gt;&lt;p&gt;Edits the tags of audio files.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;Lirra %1&lt;/h3&gt;&lt;p&gt;Bearbeitet die Tags von Audiodateien.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Lirra</source>
        <translation>Lirra</translation>
    </message>
    <message>
        <source>Tool Bar</source>
        <translation>Werkzeugleiste</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtern</translation>
    </message>
    <message>
        <source>Show the files that have these words in a shown column</source>
        <translation>Die Dateien zeigen, die diese Wörter in einer gezeigten Spalte haben</translation>
    </message>
    <message>
        <source>No matching files</source>
        <translation>Keine passenden Dateien</translation>
    </message>
    <message>
        <source>Change the filter to see more files.</source>
        <translation>Ändern Sie den Filter, um mehr Dateien zu sehen.</translation>
    </message>
    <message>
        <source>Drop files or folders here</source>
        <translation>Dateien oder Ordner hier ablegen</translation>
    </message>
    <message>
        <source>or choose Add Files (%1) or Add Folder (%2)</source>
        <translation>oder „Dateien hinzufügen“ (%1) oder „Ordner hinzufügen“ (%2) wählen</translation>
    </message>
    <message>
        <source>Add Files</source>
        <translation>Dateien hinzufügen</translation>
    </message>
    <message>
        <source>Audio Files (%1)</source>
        <translation>Audiodateien (%1)</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
</context>
<context>
    <name>HRFMetaFileManager</name>
    <message>
        <source>Reading Metadata…</source>
        <translation>Metadaten werden gelesen…</translation>
    </message>
    <message>
        <source>Files couldn&apos;t be opened because of core data related issues.</source>
        <translation>Die Dateien konnten wegen eines Fehlers der Datenspeicherung nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>Could not add %1 invalid file(s).</source>
        <translation>%1 ungültige Datei(en) konnten nicht hinzugefügt werden.</translation>
    </message>
    <message>
        <source>You may want to try re-encoding these audio files.</source>
        <translation>Vielleicht hilft es, diese Audiodateien neu zu codieren.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Show Files</source>
        <translation>Dateien zeigen</translation>
    </message>
    <message>
        <source>Writing Metadata…</source>
        <translation>Metadaten werden geschrieben…</translation>
    </message>
    <message>
        <source>The operation was cancelled due to unresolved errors.</source>
        <translation>Der Vorgang wurde wegen ungelöster Fehler abgebrochen.</translation>
    </message>
    <message>
        <source>The file “%1” cannot be called “%2”</source>
        <translation>Die Datei „%1“ kann nicht „%2“ heißen</translation>
    </message>
</context>
<context>
    <name>HRFPattern</name>
    <message>
        <source>Unknown %1</source>
        <translation>%1 unbekannt</translation>
    </message>
</context>
<context>
    <name>HRFPatternItem</name>
    <message>
        <source>Wildcard</source>
        <translation>Beliebiger Text</translation>
    </message>
    <message>
        <source>＊</source>
        <translation>＊</translation>
    </message>
    <message>
        <source>Any Character</source>
        <translation>Beliebiges Zeichen</translation>
    </message>
    <message>
        <source>Any</source>
        <translation>Zeichen</translation>
    </message>
    <message>
        <source>Any Word</source>
        <translation>Beliebiges Wort</translation>
    </message>
    <message>
        <source>Word</source>
        <translation>Wort</translation>
    </message>
    <message>
        <source>White Space</source>
        <translation>Leerraum</translation>
    </message>
    <message>
        <source> </source>
        <translation> </translation>
    </message>
    <message>
        <source>Digits</source>
        <translation>Ziffern</translation>
    </message>
    <message>
        <source>#</source>
        <translation>#</translation>
    </message>
</context>
<context>
    <name>HRFPatternMatcher</name>
    <message>
        <source>The regular expression failed: %1</source>
        <translation>Der reguläre Ausdruck ist gescheitert: %1</translation>
    </message>
    <message>
        <source>Regular Expression is invalid</source>
        <translation>Der reguläre Ausdruck ist ungültig</translation>
    </message>
    <message>
        <source>Make sure that the supplied pattern has a valid Regex syntax, or toggle Regex matching off.</source>
        <translation>Prüfen Sie, ob das Muster ein gültiger regulärer Ausdruck ist, oder schalten Sie reguläre Ausdrücke aus.</translation>
    </message>
    <message>
        <source>Matching the pattern takes too long</source>
        <translation>Das Muster braucht zu lange</translation>
    </message>
    <message>
        <source>Try a pattern with fewer repetitions.</source>
        <translation>Versuchen Sie ein Muster mit weniger Wiederholungen.</translation>
    </message>
</context>
<context>
    <name>HRFPendingWork</name>
    <message>
        <source>Writing Metadata</source>
        <translation>Metadaten werden geschrieben</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Writing: %1 of %2</source>
        <translation>Geschrieben: %1 von %2</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel the remaining operations?</source>
        <translation>Möchten Sie die übrigen Vorgänge wirklich abbrechen?</translation>
    </message>
    <message>
        <source>Files that are not written yet keep their tags as they are, though the list shows the new ones.</source>
        <translation>Dateien, die noch nicht geschrieben sind, behalten ihre bisherigen Tags, obwohl die Liste die neuen zeigt.</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
</context>
<context>
    <name>HRFPicture</name>
    <message>
        <source>“%1” is no picture that can be used.</source>
        <translation>„%1“ ist kein Bild, das verwendet werden kann.</translation>
    </message>
</context>
<context>
    <name>HRFPlaylist</name>
    <message>
        <source>Remove all metadata from “%1” ?</source>
        <translation>Alle Metadaten aus „%1“ entfernen?</translation>
    </message>
    <message>
        <source>Remove all metadata from %1 files ?</source>
        <translation>Alle Metadaten aus %1 Dateien entfernen?</translation>
    </message>
    <message>
        <source>This action cannot be undone.</source>
        <translation>Diese Aktion kann nicht rückgängig gemacht werden.</translation>
    </message>
    <message>
        <source>Remove all metadata</source>
        <translation>Alle Metadaten entfernen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Strip Tags</source>
        <translation>Tags entfernen</translation>
    </message>
    <message>
        <source>Move Files</source>
        <translation>Dateien bewegen</translation>
    </message>
</context>
<context>
    <name>HRFPreferences</name>
    <message>
        <source>None</source>
        <translation>Keiner</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>Wählen…</translation>
    </message>
    <message>
        <source>%1:</source>
        <translation>%1:</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Niedrig</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Mittel</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Hoch</translation>
    </message>
    <message>
        <source>Very high</source>
        <translation>Sehr hoch</translation>
    </message>
    <message>
        <source>Highest</source>
        <translation>Am höchsten</translation>
    </message>
    <message>
        <source>ID3v2.4, UTF-8</source>
        <translation>ID3v2.4, UTF-8</translation>
    </message>
    <message>
        <source>ID3v2.4, UTF-16</source>
        <translation>ID3v2.4, UTF-16</translation>
    </message>
    <message>
        <source>ID3v2.4, ISO Latin 1</source>
        <translation>ID3v2.4, ISO Latin 1</translation>
    </message>
    <message>
        <source>ID3v2.3, UTF-16</source>
        <translation>ID3v2.3, UTF-16</translation>
    </message>
    <message>
        <source>ID3v2.3, ISO Latin 1</source>
        <translation>ID3v2.3, ISO Latin 1</translation>
    </message>
    <message>
        <source>In a picture block</source>
        <translation>In einem Bildblock</translation>
    </message>
    <message>
        <source>In the Vorbis comment</source>
        <translation>Im Vorbis-Kommentar</translation>
    </message>
    <message>
        <source>In both</source>
        <translation>In beiden</translation>
    </message>
    <message>
        <source>“Unknown” and the name of the tag</source>
        <translation>Der Name des Tags und „unbekannt“</translation>
    </message>
    <message>
        <source>Nothing</source>
        <translation>Nichts</translation>
    </message>
    <message>
        <source>No name: the file is left out</source>
        <translation>Kein Name: die Datei wird ausgelassen</translation>
    </message>
    <message>
        <source>Adding files</source>
        <translation>Hinzufügen von Dateien</translation>
    </message>
    <message>
        <source>Maintenance</source>
        <translation>Wartung</translation>
    </message>
    <message>
        <source>List</source>
        <translation>Liste</translation>
    </message>
    <message>
        <source>ID3v2 tags</source>
        <translation>ID3v2-Tags</translation>
    </message>
    <message>
        <source>Tags in MP3 files</source>
        <translation>Tags in MP3-Dateien</translation>
    </message>
    <message>
        <source>Tags in WAV files</source>
        <translation>Tags in WAV-Dateien</translation>
    </message>
    <message>
        <source>FLAC files</source>
        <translation>FLAC-Dateien</translation>
    </message>
    <message>
        <source>Names made from tags</source>
        <translation>Namen aus Tags</translation>
    </message>
    <message>
        <source>Moving files into folders</source>
        <translation>Bewegen von Dateien in Ordner</translation>
    </message>
    <message>
        <source>Select added files</source>
        <translation>Hinzugefügte Dateien auswählen</translation>
    </message>
    <message>
        <source>Files are selected in the list as soon as they have been added.</source>
        <translation>Dateien sind in der Liste ausgewählt, sobald sie hinzugefügt wurden.</translation>
    </message>
    <message>
        <source>Folder to open at the start</source>
        <translation>Beim Start öffnen</translation>
    </message>
    <message>
        <source>Its files are added to the list when Lirra is started without files.</source>
        <translation>Die Dateien dieses Ordners kommen in die Liste, wenn Lirra ohne Dateien gestartet wird.</translation>
    </message>
    <message>
        <source>Show the Debug menu</source>
        <translation>Menü „Debug“ zeigen</translation>
    </message>
    <message>
        <source>It has commands that throw away settings and stored data; no audio file is touched.</source>
        <translation>Seine Befehle verwerfen Einstellungen und gespeicherte Daten; Audiodateien bleiben unberührt.</translation>
    </message>
    <message>
        <source>Height of rows</source>
        <translation>Höhe der Zeilen</translation>
    </message>
    <message>
        <source>Artwork is shown as large as the rows are high.</source>
        <translation>Cover werden so groß gezeigt, wie die Zeilen hoch sind.</translation>
    </message>
    <message>
        <source>Version and text encoding</source>
        <translation>Version und Textcodierung</translation>
    </message>
    <message>
        <source>Old players know only ID3v2.3; AIFF and DSD files always get ID3v2.4.</source>
        <translation>Alte Geräte kennen nur ID3v2.3; AIFF- und DSD-Dateien bekommen immer ID3v2.4.</translation>
    </message>
    <message>
        <source>Write grouping and work as iTunes does</source>
        <translation>Gruppierung und Werk wie iTunes schreiben</translation>
    </message>
    <message>
        <source>Grouping is kept in the frame GRP1 and work in TIT1, instead of TIT1 and a frame of its own.</source>
        <translation>Die Gruppierung steht im Frame GRP1 und das Werk in TIT1 statt in TIT1 und einem eigenen Frame.</translation>
    </message>
    <message>
        <source>ID3v2</source>
        <translation>ID3v2</translation>
    </message>
    <message>
        <source>The tag that every player reads.</source>
        <translation>Der Tag, den jedes Gerät liest.</translation>
    </message>
    <message>
        <source>ID3v1</source>
        <translation>ID3v1</translation>
    </message>
    <message>
        <source>Seven short fields at the end of the file, for very old players.</source>
        <translation>Sieben kurze Felder am Ende der Datei, für sehr alte Geräte.</translation>
    </message>
    <message>
        <source>APE</source>
        <translation>APE</translation>
    </message>
    <message>
        <source>For some other programs; a kind of tag that is off is removed when a file is saved.</source>
        <translation>Für manche anderen Programme; eine Art von Tag, die aus ist, wird beim Sichern einer Datei entfernt.</translation>
    </message>
    <message>
        <source>Holds all tags and the artwork.</source>
        <translation>Enthält alle Tags und das Cover.</translation>
    </message>
    <message>
        <source>INFO</source>
        <translation>INFO</translation>
    </message>
    <message>
        <source>Holds the most common tags; a kind of tag that is off is removed when a file is saved.</source>
        <translation>Enthält die häufigsten Tags; eine Art von Tag, die aus ist, wird beim Sichern einer Datei entfernt.</translation>
    </message>
    <message>
        <source>Artwork is kept</source>
        <translation>Cover stehen</translation>
    </message>
    <message>
        <source>Players look for it in a picture block; a few know only the comment.</source>
        <translation>Geräte suchen es in einem Bildblock; wenige kennen nur den Kommentar.</translation>
    </message>
    <message>
        <source>In place of a missing tag</source>
        <translation>Anstelle eines fehlenden Tags</translation>
    </message>
    <message>
        <source>What a pattern puts where a file has no value for one of its tags.</source>
        <translation>Was ein Muster einsetzt, wo eine Datei für einen seiner Tags keinen Wert hat.</translation>
    </message>
    <message>
        <source>Leading zeros</source>
        <translation>Führende Nullen</translation>
    </message>
    <message>
        <source>Track and disc numbers get leading zeros, so that names sort like numbers.</source>
        <translation>Titel- und Disc-Nummern bekommen führende Nullen, damit sich Namen wie Zahlen sortieren.</translation>
    </message>
    <message>
        <source>Names for Windows</source>
        <translation>Namen für Windows</translation>
    </message>
    <message>
        <source>Characters that Windows file systems forbid are left out of names.</source>
        <translation>Zeichen, die Dateisysteme von Windows verbieten, fallen in Namen weg.</translation>
    </message>
    <message>
        <source>Names for network shares</source>
        <translation>Namen für Netzwerkfreigaben</translation>
    </message>
    <message>
        <source>Characters that SMB shares forbid are left out of names.</source>
        <translation>Zeichen, die SMB-Freigaben verbieten, fallen in Namen weg.</translation>
    </message>
    <message>
        <source>Copy instead of move</source>
        <translation>Kopieren statt bewegen</translation>
    </message>
    <message>
        <source>The files also stay where they are.</source>
        <translation>Die Dateien bleiben zugleich, wo sie sind.</translation>
    </message>
    <message>
        <source>Take other files along</source>
        <translation>Andere Dateien mitnehmen</translation>
    </message>
    <message>
        <source>Covers, booklets and the like follow when no audio file is left beside them.</source>
        <translation>Cover, Beihefte und Ähnliches folgen, wenn keine Audiodatei mehr bei ihnen liegt.</translation>
    </message>
    <message>
        <source>Remove empty folders</source>
        <translation>Leere Ordner entfernen</translation>
    </message>
    <message>
        <source>Folders in which nothing is left are moved to the Trash.</source>
        <translation>Ordner, in denen nichts mehr ist, kommen in den Papierkorb.</translation>
    </message>
    <message>
        <source>Ask before removing folders</source>
        <translation>Vor dem Entfernen von Ordnern fragen</translation>
    </message>
    <message>
        <source>The empty folders are listed before they are removed.</source>
        <translation>Die leeren Ordner werden aufgezählt, bevor sie entfernt werden.</translation>
    </message>
    <message>
        <source>Show the moved files</source>
        <translation>Die bewegten Dateien zeigen</translation>
    </message>
    <message>
        <source>They are shown in the file manager afterwards.</source>
        <translation>Sie werden anschließend im Dateimanager gezeigt.</translation>
    </message>
    <message>
        <source>There is no folder with this path.</source>
        <translation>Einen Ordner mit diesem Pfad gibt es nicht.</translation>
    </message>
</context>
<context>
    <name>HRFPreferencesWindow</name>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Anzeige</translation>
    </message>
    <message>
        <source>Tagging</source>
        <translation>Tags</translation>
    </message>
    <message>
        <source>Conversions</source>
        <translation>Umwandlungen</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Panes</source>
        <translation>Bereiche</translation>
    </message>
    <message>
        <source>Restore Defaults</source>
        <translation>Standard wiederherstellen</translation>
    </message>
    <message>
        <source>Take back every choice of this pane</source>
        <translation>Jede Wahl in diesem Bereich zurücknehmen</translation>
    </message>
</context>
<context>
    <name>HRFPrivateContext</name>
    <message>
        <source>The list is closed.</source>
        <translation>Die Liste ist geschlossen.</translation>
    </message>
</context>
<context>
    <name>HRFProgress</name>
    <message>
        <source>%1 File(s) Processed.</source>
        <translation>%1 Datei(en) verarbeitet.</translation>
    </message>
    <message>
        <source>%1 of</source>
        <translation>%1 von</translation>
    </message>
</context>
<context>
    <name>HRFProgressDialog</name>
    <message>
        <source>Progress</source>
        <translation>Fortschritt</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>Cancelling…</source>
        <translation>Wird abgebrochen…</translation>
    </message>
</context>
<context>
    <name>HRFProgressWindowController</name>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Processing…</source>
        <translation>In Arbeit…</translation>
    </message>
</context>
<context>
    <name>HRFSidebar</name>
    <message>
        <source>Sidebar</source>
        <translation>Seitenleiste</translation>
    </message>
    <message>
        <source>No file selected</source>
        <translation>Keine Datei ausgewählt</translation>
    </message>
    <message>
        <source>%1 files</source>
        <translation>%1 Dateien</translation>
    </message>
</context>
<context>
    <name>HRFSidebarDialog</name>
    <message>
        <source>Groups</source>
        <translation>Gruppen</translation>
    </message>
    <message>
        <source>Fields of the Group</source>
        <translation>Felder der Gruppe</translation>
    </message>
    <message>
        <source>Configure Sidebar</source>
        <translation>Seitenleiste einrichten</translation>
    </message>
    <message>
        <source>Drag groups to order them, double-click one to name it</source>
        <translation>Gruppen durch Ziehen ordnen, durch Doppelklick benennen</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Neu</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>Move Group Up</source>
        <translation>Gruppe nach oben</translation>
    </message>
    <message>
        <source>Move Group Down</source>
        <translation>Gruppe nach unten</translation>
    </message>
    <message>
        <source>&amp;Groups</source>
        <translation>&amp;Gruppen</translation>
    </message>
    <message>
        <source>Drag fields to order them</source>
        <translation>Felder durch Ziehen ordnen</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Entfernen</translation>
    </message>
    <message>
        <source>Move Field Up</source>
        <translation>Feld nach oben</translation>
    </message>
    <message>
        <source>Move Field Down</source>
        <translation>Feld nach unten</translation>
    </message>
    <message>
        <source>&amp;Fields of the Group</source>
        <translation>&amp;Felder der Gruppe</translation>
    </message>
    <message>
        <source>Other Fields</source>
        <translation>Andere Felder</translation>
    </message>
    <message>
        <source>Find Field</source>
        <translation>Feld suchen</translation>
    </message>
    <message>
        <source>&amp;Add to Group</source>
        <translation>Zur Gruppe &amp;hinzufügen</translation>
    </message>
    <message>
        <source>&amp;Other Fields</source>
        <translation>&amp;Andere Felder</translation>
    </message>
    <message>
        <source>New Group</source>
        <translation>Neue Gruppe</translation>
    </message>
    <message>
        <source>Name of the Group</source>
        <translation>Name der Gruppe</translation>
    </message>
    <message>
        <source>A group needs a name.</source>
        <translation>Eine Gruppe braucht einen Namen.</translation>
    </message>
</context>
<context>
    <name>HRFSidebarField</name>
    <message>
        <source>Multiple values</source>
        <translation>Mehrere Werte</translation>
    </message>
</context>
<context>
    <name>HRFSidebarGroup</name>
    <message>
        <source>Hide the fields of this group</source>
        <translation>Die Felder dieser Gruppe ausblenden</translation>
    </message>
    <message>
        <source>Show the fields of this group</source>
        <translation>Die Felder dieser Gruppe zeigen</translation>
    </message>
    <message>
        <source>of</source>
        <translation>von</translation>
    </message>
</context>
<context>
    <name>HRFSidebarTextField</name>
    <message>
        <source>YYYY-MM-DD</source>
        <translation>JJJJ-MM-TT</translation>
    </message>
    <message>
        <source>Multiple</source>
        <translation>Mehrere</translation>
    </message>
    <message>
        <source>Remove Value</source>
        <translation>Wert entfernen</translation>
    </message>
</context>
<context>
    <name>HRFStarsEditor</name>
    <message>
        <source>Rating</source>
        <translation>Wertung</translation>
    </message>
    <message>
        <source>1 star</source>
        <translation>1 Stern</translation>
    </message>
    <message>
        <source>%1 stars</source>
        <translation>%1 Sterne</translation>
    </message>
</context>
<context>
    <name>HRFStatusLine</name>
    <message>
        <source>No file matches the filter</source>
        <translation>Keine Datei passt zum Filter</translation>
    </message>
    <message>
        <source>No files</source>
        <translation>Keine Dateien</translation>
    </message>
    <message>
        <source>1 file</source>
        <translation>1 Datei</translation>
    </message>
    <message>
        <source>%1 files</source>
        <translation>%1 Dateien</translation>
    </message>
    <message>
        <source>%1 of %2 selected</source>
        <translation>%1 von %2 ausgewählt</translation>
    </message>
</context>
<context>
    <name>HRFSystemFile</name>
    <message>
        <source>Rename</source>
        <translation>Umbenennen</translation>
    </message>
    <message>
        <source>Change Extension</source>
        <translation>Endung ändern</translation>
    </message>
</context>
<context>
    <name>HRFTagEngine</name>
    <message>
        <source>AIFF audio</source>
        <translation>AIFF-Ton</translation>
    </message>
    <message>
        <source>DSDIFF audio</source>
        <translation>DSDIFF-Ton</translation>
    </message>
    <message>
        <source>DSF audio</source>
        <translation>DSF-Ton</translation>
    </message>
    <message>
        <source>a FLAC stream</source>
        <translation>ein FLAC-Strom</translation>
    </message>
    <message>
        <source>No engine can open the file “%1”</source>
        <translation>Die Datei „%1“ kann nicht geöffnet werden</translation>
    </message>
    <message>
        <source>The kind of file is not supported.</source>
        <translation>Diese Art von Datei wird nicht unterstützt.</translation>
    </message>
    <message>
        <source>The file “%1” could not be read</source>
        <translation>Die Datei „%1“ konnte nicht gelesen werden</translation>
    </message>
    <message>
        <source>The file cannot hold this value of “%1”</source>
        <translation>Die Datei kann diesen Wert von „%1“ nicht aufnehmen</translation>
    </message>
    <message>
        <source>No file was given</source>
        <translation>Es wurde keine Datei angegeben</translation>
    </message>
    <message>
        <source>It does not contain %1</source>
        <translation>Es fehlt %1</translation>
    </message>
    <message>
        <source>artwork</source>
        <translation>Cover</translation>
    </message>
    <message>
        <source>Lirra failed to save the file “%1”</source>
        <translation>Lirra konnte die Datei „%1“ nicht sichern</translation>
    </message>
    <message>
        <source>Saving it has failed before.</source>
        <translation>Sie zu sichern ist schon einmal gescheitert.</translation>
    </message>
    <message>
        <source>The file would not be readable afterwards.</source>
        <translation>Die Datei wäre danach nicht lesbar.</translation>
    </message>
    <message>
        <source>an MP4 container</source>
        <translation>ein MP4-Container</translation>
    </message>
    <message>
        <source>MPEG audio or a tag</source>
        <translation>MPEG-Ton oder ein Tag</translation>
    </message>
    <message>
        <source>an Opus stream</source>
        <translation>ein Opus-Strom</translation>
    </message>
    <message>
        <source>a Speex stream with a tag</source>
        <translation>ein Speex-Strom mit einem Tag</translation>
    </message>
    <message>
        <source>an Ogg Vorbis or Ogg FLAC stream</source>
        <translation>ein Ogg-Vorbis- oder Ogg-FLAC-Strom</translation>
    </message>
    <message>
        <source>WAVE audio</source>
        <translation>WAVE-Ton</translation>
    </message>
</context>
<context>
    <name>HRFTagOperationCC</name>
    <message>
        <source>Failed</source>
        <translation>Fehlgeschlagen</translation>
    </message>
    <message>
        <source>Failures have been selected. Try editing the Pattern to better match the source, then proceed again.</source>
        <translation>Die fehlgeschlagenen Dateien sind ausgewählt. Passen Sie das Muster besser an die Quelle an und versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>Compose %1</source>
        <translation>%1 zusammensetzen</translation>
    </message>
</context>
<context>
    <name>HRFTagStream</name>
    <message>
        <source>The old contents could not be restored; the file may be damaged.</source>
        <translation>Der alte Inhalt konnte nicht wiederhergestellt werden; die Datei ist vielleicht beschädigt.</translation>
    </message>
</context>
<context>
    <name>HRFTagWriteOperation</name>
    <message>
        <source>The permissions of the file “%1” could not be changed</source>
        <translation>Die Zugriffsrechte der Datei „%1“ konnten nicht geändert werden</translation>
    </message>
    <message>
        <source>Fix Permissions</source>
        <translation>Zugriffsrechte berichtigen</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Fortfahren</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>HRFValueTransformer</name>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
    <message>
        <source>%1 kbps</source>
        <translation>%1 kbit/s</translation>
    </message>
    <message>
        <source>%1 kHz</source>
        <translation>%1 kHz</translation>
    </message>
    <message>
        <source>%1 bit</source>
        <translation>%1 Bit</translation>
    </message>
</context>
<context>
    <name>HRFViewConfigManager</name>
    <message>
        <source>Basic</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>People</source>
        <translation>Personen</translation>
    </message>
    <message>
        <source>Work</source>
        <translation>Werk</translation>
    </message>
    <message>
        <source>Sorting</source>
        <translation>Sortierung</translation>
    </message>
    <message>
        <source>Lyrics</source>
        <translation>Liedtext</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Weiteres</translation>
    </message>
    <message>
        <source>Podcast</source>
        <translation>Podcast</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Details</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
</context>
<context>
    <name>HRFWidgetsInteraction</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>ID3MetaData</name>
    <message>
        <source>Its ID3v2 tag is cut off</source>
        <translation>Ihr ID3v2-Tag ist abgeschnitten</translation>
    </message>
    <message>
        <source>Its ID3v2.3 tag has an extended header.</source>
        <translation>Ihr ID3v2.3-Tag hat einen erweiterten Kopf.</translation>
    </message>
    <message>
        <source>Its tag has frames that ID3v2.3 lacks.</source>
        <translation>Ihr Tag hat Frames, die ID3v2.3 nicht kennt.</translation>
    </message>
</context>
<context>
    <name>IFFCheck</name>
    <message>
        <source>The file is truncated.</source>
        <translation>Die Datei ist abgeschnitten.</translation>
    </message>
    <message>
        <source>The file has audio behind its last chunk; its recording was broken off.</source>
        <translation>Die Datei hat Ton hinter ihrem letzten Chunk; ihre Aufnahme brach ab.</translation>
    </message>
    <message>
        <source>The file would be larger than 4 GiB, more than its format can hold.</source>
        <translation>Die Datei würde größer als 4 GiB, mehr als ihr Format fassen kann.</translation>
    </message>
</context>
<context>
    <name>IFFID3</name>
    <message>
        <source>Its ID3v2 tag is damaged; a part of it would be lost.</source>
        <translation>Ihr ID3v2-Tag ist beschädigt; ein Teil davon ginge verloren.</translation>
    </message>
    <message>
        <source>Its ID3v2 tag is cut off; a part of it would be lost.</source>
        <translation>Ihr ID3v2-Tag ist abgeschnitten; ein Teil davon ginge verloren.</translation>
    </message>
    <message>
        <source>It has several ID3v2 tags that differ; one would be lost.</source>
        <translation>Sie hat mehrere verschiedene ID3v2-Tags; einer ginge verloren.</translation>
    </message>
</context>
<context>
    <name>MP4Check</name>
    <message>
        <source>One of its atoms runs past the end of the enclosing atom.</source>
        <translation>Eines ihrer Atome reicht über das Ende des umgebenden hinaus.</translation>
    </message>
    <message>
        <source>Its table of chunk offsets is damaged.</source>
        <translation>Ihre Tabelle der Chunk-Positionen ist beschädigt.</translation>
    </message>
    <message>
        <source>It does not state the size of the atom that holds the tags.</source>
        <translation>Sie gibt die Größe des Atoms mit den Tags nicht an.</translation>
    </message>
    <message>
        <source>It states a size around the tags in 64 bits.</source>
        <translation>Sie gibt eine Größe um die Tags herum in 64 Bit an.</translation>
    </message>
    <message>
        <source>Its tags are of another kind, which cannot be changed.</source>
        <translation>Ihre Tags sind von anderer Art und lassen sich nicht ändern.</translation>
    </message>
    <message>
        <source>Its audio would move to where its chunk offsets of 32 bits do not reach.</source>
        <translation>Ihr Ton käme dorthin, wohin ihre 32-Bit-Positionen nicht reichen.</translation>
    </message>
    <message>
        <source>Its audio is in fragments that cannot be moved to make room for the tags.</source>
        <translation>Ihr Ton steht in Fragmenten, die sich nicht verschieben lassen, um Platz für die Tags zu schaffen.</translation>
    </message>
</context>
<context>
    <name>MP4Nesting</name>
    <message>
        <source>It has too many atoms.</source>
        <translation>Sie hat zu viele Atome.</translation>
    </message>
</context>
<context>
    <name>OGGMetaData</name>
    <message>
        <source>Its stream has no comment.</source>
        <translation>Ihr Strom hat keinen Kommentar.</translation>
    </message>
    <message>
        <source>The pages of its comment are mixed with those of another stream.</source>
        <translation>Die Seiten ihres Kommentars sind mit denen eines anderen Stroms vermischt.</translation>
    </message>
</context>
<context>
    <name>OGGVorbisMetaData</name>
    <message>
        <source>The tags of a FLAC stream cannot be larger than 16 MiB.</source>
        <translation>Die Tags eines FLAC-Stroms können nicht größer als 16 MiB sein.</translation>
    </message>
</context>
<context>
    <name>VorbisMetaData</name>
    <message>
        <source>Its tag is damaged: it ends before the last field that it states.</source>
        <translation>Ihr Tag ist beschädigt: er endet vor dem letzten Feld, das er angibt.</translation>
    </message>
</context>
<context>
    <name>WAVInfo</name>
    <message>
        <source>It has an INFO field twice; one of them would be lost.</source>
        <translation>Sie hat ein INFO-Feld zweimal; eines davon ginge verloren.</translation>
    </message>
    <message>
        <source>Its INFO list is damaged; a part of it would be lost.</source>
        <translation>Ihre INFO-Liste ist beschädigt; ein Teil davon ginge verloren.</translation>
    </message>
</context>
<context>
    <name>WAVMetaData</name>
    <message>
        <source>RF64 files are not supported</source>
        <translation>RF64-Dateien werden nicht unterstützt</translation>
    </message>
</context>
</TS>
