"""Other implementations of the tags, and the files that they are tried on."""

import base64
import io
import json

import mutagen
from mutagen import aiff, dsdiff, dsf, flac, id3, mp3, mp4, wave

from fields import native
from lirra_program import ffmpeg, frame, id3v2, run

PICTURES = "pictures"


def ffprobe(path, encoding="utf-8"):
    """The tags of the file or of its first stream."""
    found = json.loads(run("ffprobe", "-v", "error", "-show_entries", "format_tags:stream_tags",
                           "-of", "json=sv=ignore", path, encoding=encoding))
    return found["format"].get("tags") or found["streams"][0].get("tags", {})


def opened(path, kind=mutagen.File, **options):
    file = kind(path, **options)
    if file.tags is None:
        file.add_tags()
    return file


class Implementation:
    """Reads and writes the fields of a file, which are values by native name.

    `column` is that of the names in the table of fields, `text` what it can hold, and `foreign`
    are fields that lirra-cli does not know. PICTURES are tuples of type, MIME type and data.
    """

    text = "über €"
    has_pictures = True

    def value(self, name, text):
        return text

    def expected(self, tags, pictures=()):
        """The fields that the tags are read as."""
        fields = {name: self.value(name, text) for name, text in native(self.column, tags).items()}
        return fields | ({PICTURES: [*pictures]} if pictures and self.has_pictures else {})

    def given(self, tags, pictures):
        """The fields to write for the tags."""
        return self.expected(tags, pictures)


class Comment(Implementation):
    """mutagen on Vorbis comments."""

    column = "Vorbis"
    foreign = {"MYFIELD": ["ä", "two=2"], "A NAME }": [""], "REPLAYGAIN_TRACK_GAIN": ["-1 dB"]}
    PICTURE = "METADATA_BLOCK_PICTURE"

    def value(self, name, text):
        return [text]

    def entries(self, path):
        return [f"{name}={value}" for name, value in opened(path).tags]

    def write_entries(self, path, fields):
        file = opened(path)
        file.tags.update(fields)
        file.save()

    def read(self, path):
        fields = {}
        for name, value in (entry.split("=", 1) for entry in self.entries(path)):
            fields.setdefault(name.upper(), []).append(value)
        blocks = [flac.Picture(base64.b64decode(text)) for text in fields.pop(self.PICTURE, [])]
        blocks += flac.FLAC(path).pictures if path.suffix == ".flac" else []
        pictures = [(block.type, block.mime, block.data) for block in blocks]
        return fields | ({PICTURES: pictures} if pictures else {})

    def write(self, path, fields):
        """In FLAC files pictures are blocks of their own."""
        fields, blocks = fields.copy(), []
        for values in fields.pop(PICTURES, []):
            blocks.append(flac.Picture())
            blocks[-1].type, blocks[-1].mime, blocks[-1].data = values
        if path.suffix == ".flac":
            file = opened(path)
            for block in blocks:
                file.add_picture(block)
            file.save()
        elif blocks:
            fields[self.PICTURE] = [base64.b64encode(block.write()).decode() for block in blocks]
        self.write_entries(path, fields)


class CommentTool(Comment):
    """A program that lists the entries of a Vorbis comment, and one that adds to them."""

    def __init__(self, listing, adding):
        self.listing, self.adding = listing.split(), adding.split()

    def entries(self, path):
        return run(*self.listing, path).splitlines()

    def write_entries(self, path, fields):
        run(*self.adding, path, input="".join(
            f"{name}={value}\n" for name, values in fields.items() for value in values))


class MP4(Implementation):
    """mutagen on MP4 items."""

    column = "MP4"
    foreign = {"stik": [1], "pgap": True, "apID": ["ä"], "cnID": [1 << 30], "keyw": ["a", "b"],
               "----:org.example:Täg": [mp4.MP4FreeForm(b"ab"), mp4.MP4FreeForm(b"\0\xFF", 0)]}
    KINDS = {"image/jpeg": mp4.MP4Cover.FORMAT_JPEG, "image/png": mp4.MP4Cover.FORMAT_PNG}

    def value(self, name, text):
        if name in ("trkn", "disk"):
            return [tuple(map(int, text.split("/")))]
        if name in ("tmpo", "rtng", "©mvi", "©mvc"):
            return [int(text)]
        if name.startswith("----"):
            return [mp4.MP4FreeForm(text.encode(), mp4.AtomDataType.UTF8)]
        return name in ("cpil", "pcst") or [text]

    def read(self, path):
        fields, kinds = dict(opened(path).tags), {kind: mime for mime, kind in self.KINDS.items()}
        pictures = [(3, kinds[cover.imageformat], bytes(cover)) for cover in fields.pop("covr", [])]
        return fields | ({PICTURES: pictures} if pictures else {})

    def write(self, path, fields):
        file, fields = opened(path), fields.copy()
        file.tags["covr"] = [mp4.MP4Cover(data, self.KINDS[mime])
                             for _, mime, data in fields.pop(PICTURES, [])]
        file.tags.update(fields)
        file.save()


class ID3(Implementation):
    """mutagen on ID3v2 tags in whatever file."""

    # By identifier: what a frame says that lirra-cli does not know.
    foreign = {
        "PRIV": b"owner\0" + bytes(range(256)), "UFID": b"http://id\0\1\2\xFF",
        "GEOB": b"\0text/plain\0f.txt\0name\0data\xFF\0x", "MCDI": bytes(range(50)),
        "PCNT": b"\0\0\0\5", "SYLT": b"\0eng\2\1\0abc\0\0\0\0\1", "ETCO": b"\2\1\0\0\0\5",
        "WOAR": b"http://a.b", "POPM": b"a@b\0\x80\0\0\0\7", "COMM": b"\0engname\0text",
        "WFED": b"http://feed/x",
    }
    FILES = {".mp3": mp3.MP3, ".wav": wave.WAVE, ".aiff": aiff.AIFF, ".aifc": aiff.AIFF,
             ".dsf": dsf.DSF, ".dff": dsdiff.DSDIFF}
    PEOPLE = {"IPLS", "TIPL", "TMCL"}

    def __init__(self, version=4, encoding=3):
        self.version, self.encoding, self.column = version, encoding, f"v{version}"
        self.text = "über" if encoding == 0 else super().text

    def open(self, path):
        return opened(path, self.FILES[path.suffix], translate=False)

    def value(self, name, text):
        """In timestamp frames mutagen drops the seconds, since a zone follows."""
        return text[:16].replace("T", " ") if name[:2] == "TD" and text[-1] == "Z" else text

    def given(self, tags, pictures):
        whole = {name: text.removesuffix("Z") for name, text in native(self.column, tags).items()}
        return self.expected(tags, pictures) | whole

    def frame(self, name, text):
        identifier, description, language = f"{name}::".split(":")[:3]
        return id3.Frames[identifier](
            encoding=self.encoding, text=text, url=text, desc=description, lang=language, value=1,
            people=[str(text).split(" ", 1)], email=description,
            rating=int(text) if identifier == "POPM" else 0)

    def content(self, found):
        if found.FrameID in ("POPM", "PCST"):
            return str(getattr(found, "rating", 1))
        if found.FrameID in self.PEOPLE:
            return " ".join(" ".join(pair) for pair in found.people).strip()
        text = getattr(found, "text", getattr(found, "url", repr(found)))
        if isinstance(text, list) and len(text) == 1:
            return str(text[0])
        return str(text).removeprefix("\3")  # WFED is text by its maker's custom.

    def read(self, path):
        tag = self.open(path).tags
        pictures = [(found.type, found.mime, found.data) for found in tag.getall("APIC")]
        tag.delall("APIC")
        fields = {name: self.content(found) for name, found in tag.items()}
        return fields | ({PICTURES: pictures} if pictures else {})

    def write(self, path, fields):
        file = self.open(path)
        for name, value in fields.items():
            if isinstance(value, bytes):
                file.tags.update(id3.ID3(io.BytesIO(id3v2(frame(name, value)))))
            elif name != PICTURES:
                file.tags.add(self.frame(name, value))
        for kind, mime, data in fields.get(PICTURES, []):
            file.tags.add(id3.APIC(encoding=self.encoding, mime=mime, type=kind, desc="ü" + mime,
                                   data=data))
        file.save(v2_version=self.version)


class Info(Implementation):
    """ffmpeg on RIFF INFO."""

    column = "INFO"
    has_pictures = False
    foreign = {"IENG": "ä", "IKEY": "a;b", "IPLT": "7"}
    NAMES = {"artist": "IART", "comment": "ICMT", "copyright": "ICOP", "date": "ICRD",
             "genre": "IGNR", "language": "ILNG", "title": "INAM", "album": "IPRD",
             "encoder": "ISFT", "encoded_by": "ITCH", "track": "ITRK"}
    WRITTEN = {*NAMES.values(), "ICMS", "ISHP", "ISRC", "ISRF"}  # It drops the others.

    def given(self, tags, pictures):
        return {name: text for name, text in self.expected(tags).items() if name in self.WRITTEN}

    def read(self, path):
        # Later versions read the chunk with the ID3v2 tag, too.
        data = path.read_bytes().replace(b"ID3 ", b"JUNK").replace(b"id3 ", b"JUNK")
        copy = path.with_stem("info-only")
        copy.write_bytes(data)
        return {self.NAMES.get(name, name): text for name, text in ffprobe(copy).items()}

    def write(self, path, fields):
        copy = path.with_stem("written")
        ffmpeg("-i", path, "-c", "copy", "-bitexact", *(
            part for name, text in fields.items() if name != PICTURES
            for part in ("-metadata", f"{name}={text}")), copy)
        copy.replace(path)


class Diin(Implementation):
    """ffprobe on the two texts of DSDIFF, which are Latin-1. It does not write them."""

    text = "über"
    write = None

    def expected(self, tags, pictures=()):
        return {name: tags[name] for name in ("artist", "title")}

    def read(self, path):
        return ffprobe(path, "latin-1")


METAFLAC = CommentTool("metaflac --no-utf8-convert --export-tags-to=-",
                       "metaflac --no-utf8-convert --import-tags-from=-")
VORBISCOMMENT = CommentTool("vorbiscomment -R -l", "vorbiscomment -R -a")
ROWS = [
    ("plain.mp3", ID3()), ("aac.m4a", MP4()), ("alac.m4a", MP4()), ("chapters.m4b", MP4()),
    ("no-udta.m4a", MP4()), ("plain.flac", Comment()), ("plain.flac", METAFLAC),
    ("no-comment.flac", METAFLAC), ("comment-picture.flac", Comment()), ("vorbis.ogg", Comment()),
    ("vorbis.ogg", VORBISCOMMENT), ("chained.ogg", Comment()), ("flac.oga", Comment()),
    ("flac-comment-last.ogg", Comment()), ("opus.opus", Comment()), ("speex.spx", Comment()),
    ("plain.wav", ID3()), ("plain.wav", Info()), ("bext.wav", ID3()), ("info.wav", Info()),
    ("plain.aiff", ID3()), ("sowt.aifc", ID3()), ("dsf-channels2.dsf", ID3()),
    ("plain.dff", ID3()), ("id3-diin.dff", ID3()), ("plain.dff", Diin()),
]
