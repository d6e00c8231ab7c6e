"""Another implementation reads what lirra-cli wrote."""

import hashlib
import itertools
import unittest

from mutagen.apev2 import APENoHeaderError, APEv2
from mutagen.id3 import ID3, ParseID3v1
from lirra_program import ProgramTest, audio, ffmpeg, frame, id3v2, picture, raw_frames

LATIN1, UTF16, UTF8 = 0, 1, 3
# Setting -> version of the tag, encoding of new frames, encoding of text that Latin-1 cannot hold,
# encoding of frames that are UTF-8 wherever the version has it.
VERSIONS = {"31": (3, LATIN1, UTF16, UTF16), "316": (3, UTF16, UTF16, UTF16),
            "41": (4, LATIN1, UTF8, UTF8), "416": (4, UTF16, UTF16, UTF8),
            "48": (4, UTF8, UTF8, UTF8)}

TEXTS = {
    "album": "TALB", "albumArtist": "TPE2", "artist": "TPE1", "comment": "COMM::ENG",
    "composer": "TCOM", "conductor": "TPE3", "copyright": "TCOP", "encoder": "TENC",
    "encoderSettings": "TSSE", "fileOwner": "TOWN", "fileType": "TFLT", "genre": "TCON",
    "grouping": "TIT1", "isrc": "TSRC", "key": "TKEY", "title": "TIT2", "language": "TLAN",
    "lyricist": "TEXT", "mediaType": "TMED", "movementName": "MVNM", "originalAlbumTitle": "TOAL",
    "originalArtist": "TOPE", "originalFileName": "TOFN", "originalLyricist": "TOLY",
    "podcastDescription": "TDES", "podcastID": "TGID", "publisher": "TPUB",
    "radioStationName": "TRSN", "radioStationOwner": "TRSO", "remixArtist": "TPE4",
    "sortAlbum": "TSOA", "sortAlbumArtist": "TSO2", "sortArtist": "TSOP", "sortComposer": "TSOC",
    "sortTitle": "TSOT", "subtitle": "TIT3",
}
ALWAYS_UTF8 = {"lyrics": "USLT::XXX", "work": "TXXX:WORK"}
# Property -> frames in ID3v2.3, in ID3v2.4.
TEXTS_BY_VERSION = {
    "mood": (["TXXX:MOOD"], ["TMOO"]), "involvedPeopleList": (["IPLS"], ["IPLS", "TIPL"]),
    "musicianCreditsList": (["TXXX:MUSICIANCREDITS"], ["TMCL"]),
    "producedNotice": (["TXXX:PRODUCEDNOTICE"], ["TPRO"]),
    "subtitleForSet": (["TXXX:SETSUBTITLE"], ["TSST"]),
}
DATES_BY_VERSION = {
    "encodingTime": (["TDEN"], ["TDEN"]), "originalReleaseDate": (["TORY"], ["TORY", "TDOR"]),
    "releaseTime": (["TXXX:RELEASETIME"], ["TDRL"]),
    "taggingTime": (["TXXX:TAGGINGTIME"], ["TDTG"]),
}
NUMBERS = {"bpm": "TBPM", "length": "TLEN", "playlistDelay": "TDLY", "isPartOfACompilation": "TCMP"}
PAIRS = {"track": "TRCK", "disc": "TPOS", "movement": "MVIN"}
DATE = "1999-05-06T07:08:09Z"

# Frames that nobody set.
FOREIGN = {
    "PRIV": b"owner\0" + bytes(range(256)), "UFID": b"http://id\0\1\2\xFF", "XYZW": b"\xFF\xFE\0ab",
    "GEOB": b"\0text/plain\0f.txt\0name\0data\xFF\0x", "MCDI": bytes(range(50)),
    "PCNT": b"\0\0\0\5", "SYLT": b"\0eng\2\1\0abc\0\0\0\0\1", "ETCO": b"\2\1\0\0\0\5",
    "WOAR": b"http://a.b", "POPM": b"a@b\0\x80\0\0\0\7", "COMM": b"\0engname\0text",
    "WFED": b"http://feed/x", "APIC": b"\0image/png\0\4name\0\x89PNG\xFF\xE0",
}
FOREIGN_BY_VERSION = {
    3: {"RVAD": bytes([3, 16, 0, 1, 0, 2, 0, 3, 0, 4]), "EQUA": b"\x10\0\1\0\2"},
    4: {"RVA2": b"id\0\1\0\x10\0", "EQU2": b"\0id\0\0\1\0\2", "SIGN": b"\x80abc"},
}


def all_tags(text):
    tags = dict.fromkeys([*TEXTS, *ALWAYS_UTF8, *TEXTS_BY_VERSION], text)
    tags |= dict.fromkeys(DATES_BY_VERSION, DATE) | dict.fromkeys(NUMBERS, 1)
    for number, name in enumerate(PAIRS, 3):
        tags |= {f"{name}Number": number, f"{name}Total": number * 10}
    return tags | {"website": "http://x.y/%C3%A9", "podcastURL": "http://x.y/feed", "year": 2004,
                   "rating": 200, "isPodcast": True, "isPartOfACompilation": True}


def expected_frames(setting, text):
    version, plain, special, utf8 = VERSIONS[setting]
    encoding = plain if text.isascii() else special
    frames = dict.fromkeys(TEXTS.values(), (text, encoding))
    frames |= dict.fromkeys(ALWAYS_UTF8.values(), (text, utf8))
    for names in TEXTS_BY_VERSION.values():
        frames |= dict.fromkeys(names[version - 3], (text, encoding))
    for names in DATES_BY_VERSION.values():
        # In timestamp frames mutagen drops the seconds, since a zone follows.
        frames |= {name: (DATE if name == "TORY" or ":" in name else "1999-05-06 07:08", plain)
                   for name in names[version - 3]}
    frames |= dict.fromkeys(NUMBERS.values(), ("1", plain))
    frames |= {name: (f"{number}/{number * 10}", plain)
               for number, name in enumerate(PAIRS.values(), 3)}
    frames["WXXX:WEBSITE"] = ("http://x.y/%C3%A9", utf8)
    frames["TYER" if version == 3 else "TDRC"] = ("2004", LATIN1 if version == 3 else plain)
    if version == 3 and text.isascii():
        # ID3v2.3 genres are written anew on saving, in the smallest encoding.
        frames["TCON"] = (text, LATIN1)
    return frames


def content(frame_object):
    if hasattr(frame_object, "people"):
        return frame_object.people[0][0]
    text = getattr(frame_object, "text", None) or frame_object.url
    return text if isinstance(text, str) else str(text[0])


class FramesTest(ProgramTest):
    def written(self, tags, setting, data=None):
        path = self.file(data=data)
        self.set_tags(path, tags, version=setting)
        return ID3(path, translate=False)

    def test_every_property(self):
        for setting, text in itertools.product(VERSIONS, ("plain", "über €")):
            with self.subTest(setting, text=text):
                tag = self.written(all_tags(text), setting)
                self.assertEqual(tag.version, (2, VERSIONS[setting][0], 0))
                owner = tag.pop("POPM:")
                self.assertEqual((owner.rating, owner.count), (200, 0))
                self.assertIn("PCST", tag)
                del tag["PCST"], tag["WFED"]  # Text by its maker's custom, a URL to mutagen
                self.assertEqual({key: (content(found), found.encoding)
                                  for key, found in tag.items()}, expected_frames(setting, text))
                raw, _ = raw_frames((self.folder / "a.mp3").read_bytes())
                self.assertEqual(sum(map(len, raw.values())), len(tag) + 3)

    def test_halves_of_pairs(self):
        for (name, frame_id), (number, total, text) in itertools.product(
                PAIRS.items(), ((3, 0, "3"), (0, 12, "0/12"), (3, 12, "3/12"))):
            with self.subTest(frame_id, text=text):
                tags = {f"{name}Total": total, f"{name}Number": number}
                self.assertEqual(self.written(tags, "48")[frame_id].text, [text])

    def test_no_version_loses_a_value(self):
        tags = all_tags("über €")
        for first, second in itertools.product(VERSIONS, ("31", "316", "48")):
            with self.subTest(first, then=second):
                path = self.file()
                self.set_tags(path, tags, version=first)
                self.assertEqual(self.tags(path), tags)
                self.set_tags(path, {"album": "new"}, version=second)
                self.assertEqual(self.tags(path), tags | {"album": "new"})

    def test_multiple_values_keep_their_words(self):
        body = (frame("TPE1", b"\3A\0B \xC3\xBC\0C") + frame("TXXX", b"\3name\0one\0two")
                + frame("TIPL", b"\3producer\0P\0mix\0M") + frame("TCON", b"\x0317\0Foo"))
        for setting, (version, *_) in VERSIONS.items():
            with self.subTest(setting):
                tag = self.written({"title": "new"}, setting, id3v2(body) + audio())
                self.assertEqual(tag["TPE1"].text, ["A", "B ü", "C"])
                self.assertEqual(tag["TXXX:name"].text, ["one", "two"])
                people, genres = (("IPLS", ["Rock / Foo"]) if version == 3
                                  else ("TIPL", ["17", "Foo"]))
                self.assertEqual(tag[people].people, [["producer", "P"], ["mix", "M"]])
                self.assertEqual(tag["TCON"].text, genres)

    def test_pictures(self):
        others = [b"\0image/png\0\0other\0\x89PNG\xFF\xE0", b"\0image/gif\0\3second\0GIF\0\xFF"]
        body = b"".join(frame("APIC", data) for data in [b"\0image/bmp\0\4first\0BM", *others])
        for setting, (codec, mime) in itertools.product(
                VERSIONS, (("mjpeg", "image/jpeg"), ("png", "image/png"))):
            with self.subTest(setting, codec=codec):
                data = picture(codec)
                path = self.file(data=id3v2(body) + audio())
                self.set_tags(path, {}, "--artwork", self.file("image", data), version=setting)
                first = ID3(path).getall("APIC")[0]
                self.assertEqual((first.type, first.mime, first.data), (3, mime, data))
                self.assertEqual(raw_frames(path.read_bytes())[0]["APIC"][1:], others)
                self.assertEqual(self.show(path)["artwork"]["md5"], hashlib.md5(data).hexdigest())

    def test_rating_keeps_its_owner(self):
        body = frame("POPM", b"a@b\0\x80\0\0\0\7") + frame("POPM", b"c@d\0\x40\0\0\0\1")
        tag = self.written({"rating": 300}, "48", id3v2(body) + audio())
        self.assertEqual([(owner.email, owner.rating, owner.count)
                          for owner in tag.getall("POPM")], [("a@b", 255, 7), ("c@d", 64, 1)])

    def test_foreign_frames_stay_byte_for_byte(self):
        for version, setting in itertools.product((3, 4), ("31", "48")):
            frames = FOREIGN | FOREIGN_BY_VERSION[version]
            body = b"".join(frame(name, data, version) for name, data in frames.items())
            path = self.file(data=id3v2(body + bytes(50), version) + audio())
            self.set_tags(path, {"title": "new"}, version=setting)
            written, _ = raw_frames(path.read_bytes())
            for name, data in frames.items():
                with self.subTest(name, version=version, setting=setting):
                    self.assertEqual(written.get(name), [data])


class OtherTagsTest(ProgramTest):
    TAGS = {"title": "Über", "artist": "Ar", "album": "Al", "comment": "Co", "genre": "Rock",
            "year": 2004, "trackNumber": 5}
    APE_ITEMS = {"TITLE": "Über", "ARTIST": "Ar", "ALBUM": "Al", "COMMENT": "Co", "GENRE": "Rock",
                 "DATE": "2004", "TRACK": "5"}
    ID3V1_FIELDS = {"TIT2": "Über", "TPE1": "Ar", "TALB": "Al", "COMM": "Co", "TCON": "17",
                    "TDRC": "2004", "TRCK": "5"}

    def ape_items(self, path):
        try:
            return {key: str(value) for key, value in APEv2(path).items()}
        except APENoHeaderError:
            return None

    def id3v1_fields(self, path):
        tag = ParseID3v1(path.read_bytes()[-128:])
        return tag and {key: str(value) for key, value in tag.items()}

    def test_combinations_of_the_settings(self):
        """Whatever the file had before, it has the tags that are on, and no other."""
        for had_tags, v2, v1, ape in itertools.product((False, True), repeat=4):
            with self.subTest(v2=v2, v1=v1, ape=ape, had_tags=had_tags):
                path = self.file()
                if had_tags:
                    self.set_tags(path, {"title": "old"}, v2=True, v1=True, ape=True)
                before = path.read_bytes()
                if not (v2 or v1 or ape):
                    result = self.run_program("set", "-t", "title=new", path, v2=0, v1=0, ape=0)
                    self.assertEqual((result.returncode, path.read_bytes()), (1, before))
                    continue
                self.set_tags(path, self.TAGS, v2=v2, v1=v1, ape=ape)
                self.assertEqual(path.read_bytes()[:3] == b"ID3", v2)
                self.assertEqual(self.id3v1_fields(path), self.ID3V1_FIELDS if v1 else None)
                self.assertEqual(self.ape_items(path), self.APE_ITEMS if ape else None)
                shown = self.show(path)
                self.assertEqual(shown["tags"], self.TAGS)
                self.assertEqual(shown["properties"]["tagVersion"], ", ".join(
                    name for name, is_on in (("ID3v2.4", v2), ("ID3v1", v1), ("APE", ape))
                    if is_on))

    def test_ape_items(self):
        path, tags = self.file(), all_tags("x") | {"website": "http://x.y/€"}
        self.set_tags(path, tags, ape=True)
        expected = {"TRACK": "3", "TOTALTRACKS": "30", "DISCNUMBER": "4", "DISCTOTAL": "40",
                    "MOVEMENT": "5", "MOVEMENTTOTAL": "50", "RATING": "200", "PODCAST": "1",
                    "PARTOFACOMPILATION": "1", "URL": "http://x.y/€", "WORK": "x", "LABEL": "x",
                    "ORIGINALRELEASEDATE": DATE, "ENCODING": "x", "SETSUBTITLE": "x"}
        items = self.ape_items(path)
        self.assertEqual({key: items.get(key) for key in expected}, expected)
        self.assertEqual(len(items), len(tags))
        self.set_tags(path, dict.fromkeys(tags, "") | {"title": "T"}, ape=True)
        self.assertEqual(self.ape_items(path), {"TITLE": "T"})

    def test_decoded_audio_stays_the_same(self):
        path, cover = self.file(), self.file("image", picture("png"))

        def decoded():
            return ffmpeg("-i", path, "-map", "0:a", "-f", "md5", "-")

        before = decoded()
        for setting, other in itertools.product(VERSIONS, (False, True)):
            with self.subTest(setting, other=other):
                self.set_tags(path, all_tags("x"), "--artwork", cover, version=setting, v1=other,
                              ape=other)
                self.assertEqual(decoded(), before)
                self.set_tags(path, {"lyrics": ""}, "--no-artwork", v2=False, v1=True, ape=True)
                self.assertEqual(decoded(), before)
        self.assertEqual(self.run_program("strip", path).returncode, 0)
        self.assertEqual((decoded(), path.read_bytes()), (before, audio()))


if __name__ == "__main__":
    unittest.main()
