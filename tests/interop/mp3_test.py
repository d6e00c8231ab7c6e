"""lirra-cli and mutagen read what the other wrote in MP3 files, and ID3v2 tags in all versions."""

import hashlib
import itertools
import unittest
import zlib

from mutagen.apev2 import APENoHeaderError, APEv2
from mutagen.id3 import Frames, ID3, MakeID3v1, ParseID3v1

import implementations
from fields import PAIRS, all_tags, native
from implementations import ROWS
from lirra_program import ProgramTest, audio, frame, id3v2, picture, raw_frames, sound

LATIN1, UTF16, UTF8 = 0, 1, 3
# Setting -> version of the tag, encoding of new frames.
VERSIONS = {"31": (3, LATIN1), "316": (3, UTF16), "41": (4, LATIN1), "416": (4, UTF16),
            "48": (4, UTF8)}
WITH_VERSION_3 = (".mp3", ".wav")  # The other formats have ID3v2.4.
UNICODE_FRAMES = {"USLT::XXX", "TXXX:WORK", "WXXX:WEBSITE"}
BINARY_FRAMES = {"POPM:", "PCST", "WFED"}

FOREIGN = implementations.ID3.foreign | {
    "XYZW": b"\xFF\xFE\0ab", "APIC": b"\0image/png\0\4name\0\x89PNG\xFF\xE0"}
FOREIGN_BY_VERSION = {
    3: {"RVAD": bytes([3, 16, 0, 1, 0, 2, 0, 3, 0, 4]), "EQUA": b"\x10\0\1\0\2"},
    4: {"RVA2": b"id\0\1\0\x10\0", "EQU2": b"\0id\0\0\1\0\2", "SIGN": b"\x80abc"},
}


def in_rare_forms(text):
    """Tags with one title in forms that a player rarely meets, by name."""
    plain = b"\0" + text
    shifted = plain.replace(b"\xFF", b"\xFF\0")
    zipped = zlib.compress(plain)
    size = len(plain).to_bytes(4, "big")
    return {
        "v2.3 unsynchronised": id3v2(frame("TIT2", plain, 3).replace(b"\xFF", b"\xFF\0"), 3, 0x80),
        "v2.4 unsynchronised": id3v2(frame("TIT2", size + shifted, 4, b"\0\3"), 4, 0x80),
        "v2.3 extended header": id3v2(b"\0\0\0\6" + bytes(6) + frame("TIT2", plain, 3), 3, 0x40),
        "v2.4 extended header": id3v2(b"\0\0\0\6\1\0" + frame("TIT2", plain), 4, 0x40),
        "v2.3 compressed": id3v2(frame("TIT2", size + zipped, 3, b"\0\x80"), 3),
        "v2.4 compressed": id3v2(frame("TIT2", size + zipped, 4, b"\0\x09"), 4),
        "v2.4 length": id3v2(frame("TIT2", size + plain, 4, b"\0\1"), 4),
        "v2.3 grouped": id3v2(frame("TIT2", b"\5" + plain, 3, b"\0\x20"), 3),
        "v2.4 grouped": id3v2(frame("TIT2", b"\5" + plain, 4, b"\0\x40"), 4),
        "padded": id3v2(frame("TIT2", plain) + bytes(3000), 4),
    }


class EncodingsTest(ProgramTest):
    def check(self, fixture, setting, text):
        path, (version, encoding) = self.copy(fixture), VERSIONS[setting]
        if path.suffix not in WITH_VERSION_3:
            version = 4
        unicode = UTF16 if version == 3 else UTF8
        self.set_tags(path, all_tags(text), version=setting)
        other = implementations.ID3(version)
        tag, expected = other.open(path).tags, {}
        self.assertEqual(tag.version, (2, version, 0))
        for name, content in other.expected(all_tags(text)).items():
            if name in UNICODE_FRAMES or encoding == LATIN1 and not content.isascii():
                expected[name] = content, unicode
            elif version == 3 and (name == "TYER" or name == "TCON" and content.isascii()):
                # ID3v2.3 genres are written anew on saving, in the smallest encoding.
                expected[name] = content, LATIN1
            else:
                expected[name] = content, encoding
        self.assertEqual(tag.keys(), expected.keys())
        for name, found in tag.items():
            if name not in BINARY_FRAMES:
                self.assertEqual((other.content(found), found.encoding), expected[name], name)
        self.assertEqual(tag["POPM:"].count, 0)
        data = path.read_bytes()
        raw, _ = raw_frames(data[data.rindex(b"ID3" + bytes([version])):])
        self.assertEqual(sum(map(len, raw.values())), len(tag))

    def test_every_property(self):
        fixtures = {fixture[-4:]: fixture for fixture, other in ROWS
                    if isinstance(other, implementations.ID3)}.values()
        for fixture, setting, text in itertools.product(fixtures, VERSIONS, ("plain", "über €")):
            with self.subTest(fixture, setting=setting, text=text):
                self.check(fixture, setting, text)


class FramesTest(ProgramTest):
    def written(self, tags, setting, data=None):
        path = self.file(data=data)
        self.set_tags(path, tags, version=setting)
        return ID3(path, translate=False)

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

    def test_whole_date_of_version_3(self):
        path, tag = self.file(), ID3()
        for name, text in (("TYER", "2004"), ("TDAT", "0605"), ("TIME", "0708")):
            tag.add(Frames[name](encoding=0, text=text))
        tag.save(path, v2_version=3, v1=0)
        for title, version, name in (("1", "48", "TDRC"), ("2", "31", "TYER"), ("3", "48", "TDRC")):
            self.set_tags(path, {"title": title}, version=version)
            self.assertIn(name, ID3(path, translate=False))
            self.assertEqual(str(ID3(path)["TDRC"])[:16], "2004-05-06 07:08")

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
                path, data = self.file(data=id3v2(body) + audio()), picture(codec)
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

    def test_rare_forms(self):
        """They are read, and may be written in a plain form or refused, but not dropped."""
        for name, data in in_rare_forms(b"W\xFF\xFE\xFFords").items():
            with self.subTest(name):
                path = self.file(data=data + audio())
                self.assertEqual(self.tags(path), {"title": "Wÿþÿords"})
        for name, data in in_rare_forms(b"Words").items():
            with self.subTest(name):
                path = self.file(data=data + audio())
                result = self.run_program("set", "-t", "album=new", path)
                self.assertIn(b"Words" if result.returncode == 0 else data, path.read_bytes())


class OtherTagsTest(ProgramTest):
    TAGS = {"title": "Über", "artist": "Ar", "album": "Al", "comment": "Cö", "genre": "Rock",
            "year": 2004, "trackNumber": 5}
    ID3V1 = {"TIT2": "Über", "TPE1": "Ar", "TALB": "Al", "COMM": "Cö", "TCON": "17",
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
        """Whatever the file had before, it has the tags that are on, and no other; then none."""
        decoded, cover = sound(self.file()), self.file("image", picture("png"))
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
                artwork = ["--artwork", cover] if v2 else []
                self.set_tags(path, self.TAGS, *artwork, v2=v2, v1=v1, ape=ape)
                self.assertEqual(sound(path), decoded)
                self.assertEqual(path.read_bytes()[:3] == b"ID3", v2)
                self.assertEqual(self.id3v1_fields(path), self.ID3V1 if v1 else None)
                self.assertEqual(self.ape_items(path), native("APE", self.TAGS) if ape else None)
                shown = self.show(path)
                self.assertEqual(shown["tags"], self.TAGS)
                self.assertEqual(shown["properties"]["tagVersion"], ", ".join(
                    name for name, is_on in (("ID3v2.4", v2), ("ID3v1", v1), ("APE", ape))
                    if is_on))
                self.change("strip", path)
                self.assertEqual(path.read_bytes(), audio())

    def test_id3v1_only(self):
        tag = {name: Frames[name](encoding=0, text=text) for name, text in self.ID3V1.items()}
        path = self.file(data=audio() + MakeID3v1(tag | {"TCON": Frames["TCON"](text="Rock")}))
        self.assertEqual(self.tags(path), self.TAGS)

    def test_ape_items(self):
        path, tags = self.file(), all_tags("x") | {"website": "http://x.y/€"}
        self.set_tags(path, tags, ape=True)
        self.assertEqual(self.ape_items(path), native("APE", tags))
        self.set_tags(path, dict.fromkeys(tags, "") | {"title": "T"}, ape=True)
        self.assertEqual(self.ape_items(path), {"TITLE": "T"})

    def test_ape_only(self):
        path, tags, tag = self.file(), all_tags("Tïtle €\nx"), APEv2()
        items = native("APE", tags) | {"DATE": "2004-05-06", "ARTIST": ["A", "B"]}
        for key, value in items.items():
            tag[key.title()] = value
        tag.save(path)
        self.assertEqual(self.tags(path), tags | {"artist": "A, B"})
        self.assertEqual(self.show(path)["properties"]["tagVersion"], "APE")

    def test_precedence(self):
        """ID3v2, then ID3v1, then APE."""
        ape = APEv2()
        for key in ("Title", "Artist", "Album"):
            ape[key] = "APE"
        path = self.file()
        ape.save(path)
        old = {name: Frames[name](encoding=0, text="ID3v1") for name in ("TIT2", "TPE1")}
        path.write_bytes(id3v2(frame("TIT2", b"\0ID3v2")) + path.read_bytes() + MakeID3v1(old))
        self.assertEqual(self.tags(path), {"title": "ID3v2", "artist": "ID3v1", "album": "APE"})


if __name__ == "__main__":
    unittest.main()
