"""The native fields of every property in every tag format, and values for all of them."""

DATE = "1999-05-06T07:08:09Z"
DATES = {"encodingTime", "originalReleaseDate", "releaseTime", "taggingTime"}
NUMBERS = {"bpm", "length", "playlistDelay"}
PAIRS = {"track": "TRCK", "disc": "TPOS", "movement": "MVIN"}

# Names of ID3v2.3, ID3v2.4, APE, INFO and MP4. "=" is the same as the one before, "-" is none, "+"
# joins two frames, ":" begins a freeform atom and alone means the name of APE.
COLUMNS = ("v3", "v4", "APE", "INFO", "MP4")
VORBIS = {"TRACK": "TRACKNUMBER", "TOTALTRACKS": "TRACKTOTAL"}  # where it is not that of APE
TABLE = """
album                TALB                 =         ALBUM                IPRD ©alb
albumArtist          TPE2                 =         ALBUMARTIST          IAAR aART
artist               TPE1                 =         ARTIST               IART ©ART
bpm                  TBPM                 =         BPM                  IBPM tmpo
comment              COMM::ENG            =         COMMENT              ICMT ©cmt
composer             TCOM                 =         COMPOSER             IMUS ©wrt
conductor            TPE3                 =         CONDUCTOR            ITCH cond
copyright            TCOP                 =         COPYRIGHT            ICOP cprt
discNumber           TPOS                 =         DISCNUMBER           IFRM disk
discTotal            TPOS                 =         DISCTOTAL            -    disk
encoder              TENC                 =         ENCODEDBY            ISFT ©too
encoderSettings      TSSE                 =         ENCODING             -    :ENCODERSETTINGS
encodingTime         TDEN                 =         ENCODINGTIME         -    :
fileOwner            TOWN                 =         FILEOWNER            -    :
fileType             TFLT                 =         FILETYPE             -    :
genre                TCON                 =         GENRE                IGNR ©gen
grouping             TIT1                 =         GROUPING             ISRF ©grp
involvedPeopleList   IPLS                 IPLS+TIPL INVOLVEDPEOPLELIST   -    :
isPartOfACompilation TCMP                 =         PARTOFACOMPILATION   -    cpil
isPodcast            PCST                 =         PODCAST              -    pcst
isrc                 TSRC                 =         ISRC                 ISRC :
key                  TKEY                 =         KEY                  -    :INITIALKEY
language             TLAN                 =         LANGUAGE             ILNG :
length               TLEN                 =         LENGTH               -    :
lyricist             TEXT                 =         LYRICIST             IWRI :
lyrics               USLT::XXX            =         LYRICS               -    ©lyr
mediaType            TMED                 =         MEDIA                -    :
mood                 TXXX:MOOD            TMOO      MOOD                 MOOD :
movementName         MVNM                 =         MOVEMENTNAME         -    ©mvn
movementNumber       MVIN                 =         MOVEMENT             -    ©mvi
movementTotal        MVIN                 =         MOVEMENTTOTAL        -    ©mvc
musicianCreditsList  TXXX:MUSICIANCREDITS TMCL      MUSICIANCREDITS      -    :
originalAlbumTitle   TOAL                 =         ORIGINALALBUM        -    :
originalArtist       TOPE                 =         ORIGINALARTIST       -    ©ope
originalFileName     TOFN                 =         ORIGINALFILENAME     -    :
originalLyricist     TOLY                 =         ORIGINALLYRICIST     -    olyr
originalReleaseDate  TORY                 TORY+TDOR ORIGINALRELEASEDATE  -    :
playlistDelay        TDLY                 =         PLAYLISTDELAY        -    :
podcastDescription   TDES                 =         PODCASTDESCRIPTION   -    :
podcastID            TGID                 =         PODCASTID            -    :
podcastURL           WFED                 =         PODCASTURL           -    purl
producedNotice       TXXX:PRODUCEDNOTICE  TPRO      PRODUCEDNOTICE       -    :
publisher            TPUB                 =         LABEL                ICMS :
radioStationName     TRSN                 =         INTERNETSTATIONNAME  -    :
radioStationOwner    TRSO                 =         INTERNETSTATIONOWNER -    :
rating               POPM:                =         RATING               ISHP rtng
releaseTime          TXXX:RELEASETIME     TDRL      RELEASETIME          -    :
remixArtist          TPE4                 =         REMIXARTIST          IEDT rmix
sortAlbum            TSOA                 =         ALBUMSORT            -    soal
sortAlbumArtist      TSO2                 =         ALBUMARTISTSORT      -    soaa
sortArtist           TSOP                 =         ARTISTSORT           -    soar
sortComposer         TSOC                 =         COMPOSERSORT         -    soco
sortTitle            TSOT                 =         TITLESORT            -    sonm
subtitle             TIT3                 =         SUBTITLE             -    subt
subtitleForSet       TXXX:SETSUBTITLE     TSST      SETSUBTITLE          -    :
taggingTime          TXXX:TAGGINGTIME     TDTG      TAGGINGTIME          -    :
title                TIT2                 =         TITLE                INAM ©nam
trackNumber          TRCK                 =         TRACK                ITRK trkn
trackTotal           TRCK                 =         TOTALTRACKS          -    trkn
website              WXXX:WEBSITE         =         URL                  IURL ©url
work                 TXXX:WORK            =         WORK                 WORK ©wrk
year                 TYER                 TDRC      DATE                 ICRD ©day
"""


def _row(line):
    key, *names = line.split()
    row = dict(zip(COLUMNS, names, strict=True))
    if row["v4"] == "=":
        row["v4"] = row["v3"]
    if row["MP4"].startswith(":"):
        row["MP4"] = f"----:com.apple.iTunes:{row['MP4'][1:] or row['APE']}"
    return key, row | {"Vorbis": VORBIS.get(row["APE"], row["APE"])}


FIELDS = dict(map(_row, TABLE.strip().splitlines()))


def all_tags(text):
    """A value for every property, with this text wherever there is text."""
    tags = dict.fromkeys(FIELDS, text) | dict.fromkeys(DATES, DATE) | dict.fromkeys(NUMBERS, 1)
    for number, name in enumerate(PAIRS, 3):
        tags |= {f"{name}Number": number, f"{name}Total": number * 10}
    return tags | {"website": "http://x.y/%C3%A9", "podcastURL": "http://x.y/feed", "year": 2004,
                   "rating": 100,  # In MP4 a byte, which others take for a signed one.
                   "isPodcast": True, "isPartOfACompilation": True}


def native(column, tags):
    """The same by the name of the native fields; the values of a pair are joined with a slash."""
    fields = {}
    for key, value in tags.items():
        value = str(int(value) if isinstance(value, bool) else value)
        for name in FIELDS[key][column].split("+"):
            fields[name] = f"{fields[name]}/{value}" if name in fields else value
    fields.pop("-", None)
    return fields
