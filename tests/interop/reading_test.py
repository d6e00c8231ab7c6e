"""lirra-cli reads what another implementation wrote."""

import hashlib
import unittest
import zlib

from mutagen.apev2 import APEv2
from mutagen.id3 import Frames, ID3, MakeID3v1
from lirra_program import ProgramTest, audio, frame, id3v2, picture

DATE = "2004-05-06T07:08:09Z"

# Frame and its fields -> what the program shows.
FRAMES = [
    ("TIT2", {"text": "Tïtle"}, {"title": "Tïtle"}),
    ("COMM", {"lang": "eng", "desc": "", "text": "Cömment"}, {"comment": "Cömment"}),
    ("USLT", {"lang": "deu", "desc": "ü", "text": "Lÿrics\nmore"}, {"lyrics": "Lÿrics\nmore"}),
    ("TXXX", {"desc": "WORK", "text": "Wörk"}, {"work": "Wörk"}),
    ("WXXX", {"desc": "ü", "url": "http://x.y/é"}, {"website": "http://x.y/é"}),
    ("WFED", {"url": "http://x.y/feed"}, {"podcastURL": "http://x.y/feed"}),
    ("TRCK", {"text": "03/12"}, {"trackNumber": 3, "trackTotal": 12}),
    ("TRCK", {"text": "0/12"}, {"trackTotal": 12}),
    ("MVIN", {"text": "2/5"}, {"movementNumber": 2, "movementTotal": 5}),
    ("TCMP", {"text": "1"}, {"isPartOfACompilation": True}),
    ("PCST", {"value": 1}, {"isPodcast": True}),
    ("POPM", {"email": "a@b", "rating": 77, "count": 3}, {"rating": 77}),
    ("TMOO", {"text": "Bläck"}, {"mood": "Bläck"}),
    ("TDRC", {"text": "2004-05-06T07:08"}, {"year": 2004}),
    ("TDRL", {"text": DATE[:-1]}, {"releaseTime": DATE}),
    ("TDTG", {"text": "2004-05"}, {"taggingTime": "2004-05-01T00:00:00Z"}),
    ("TDEN", {"text": "2004-05-06T07"}, {"encodingTime": "2004-05-06T07:00:00Z"}),
    ("TDOR", {"text": DATE[:-1]}, {"originalReleaseDate": DATE}),
    ("TIPL", {"people": [["producer", "P"]]}, {"involvedPeopleList": "producer P"}),
    ("TMCL", {"people": [["drums", "D"]]}, {"musicianCreditsList": "drums D"}),
    ("TPE1", {"text": ["A", "Ü"]}, {"artist": "A Ü"}),
    ("TCON", {"text": "(17)"}, {"genre": "Rock"}),
    ("TCON", {"text": "17"}, {"genre": "Rock"}),
    ("TCON", {"text": "(17)(20)"}, {"genre": "Rock / Alternative"}),
    ("TCON", {"text": "(17)Föo"}, {"genre": "Rock / Föo"}),
    ("TCON", {"text": ["17", "Föo", "20"]}, {"genre": "Rock / Föo / Alternative"}),
]
FRAMES_OF_VERSION_3 = [
    ("TYER", {"text": "2004"}, {"year": 2004}),
    ("TORY", {"text": "1999"}, {"originalReleaseDate": "1999-01-01T00:00:00Z"}),
    ("IPLS", {"people": [["producer", "P"]]}, {"involvedPeopleList": "producer P"}),
    ("TCON", {"text": "(17)"}, {"genre": "Rock"}),
    ("TCON", {"text": "17"}, {"genre": "Rock"}),
    ("TCON", {"text": ["A", "Ü"]}, {"genre": "A/Ü"}),
]


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


class ReadingTest(ProgramTest):
    def check(self, rows, encodings, **options):
        for name, fields, expected in rows:
            for encoding in encodings:
                with self.subTest(name, fields=fields, encoding=encoding, **options):
                    path = self.file()
                    tag = ID3()
                    # Frames without text ignore the encoding.
                    tag.add(Frames[name](encoding=encoding, **fields))
                    tag.save(path, **options)
                    shown = self.show(path)
                    self.assertEqual(shown["tags"], expected)
                    self.assertEqual(shown["properties"]["tagVersion"],
                                     f"ID3v2.{options['v2_version']}")

    def test_frames(self):
        self.check(FRAMES, encodings=range(4), v2_version=4)
        self.check(FRAMES_OF_VERSION_3, encodings=range(2), v2_version=3)

    def test_whole_date_of_version_3(self):
        path = self.file()
        tag = ID3()
        for name, text in (("TYER", "2004"), ("TDAT", "0605"), ("TIME", "0708")):
            tag.add(Frames[name](encoding=0, text=text))
        tag.save(path, v2_version=3, v1=0)
        for version, name in (("48", "TDRC"), ("31", "TYER"), ("48", "TDRC")):
            self.set_tags(path, {"title": "new"}, version=version)
            self.assertIn(name, ID3(path, translate=False))
            self.assertEqual(str(ID3(path)["TDRC"])[:16], "2004-05-06 07:08")

    def test_picture(self):
        data = picture("png", size=48)
        for encoding in range(4):
            path, tag = self.file(), ID3()
            tag.add(Frames["APIC"](encoding=encoding, mime="image/png", type=4, desc="ü",
                                   data=data))
            tag.save(path)
            self.assertEqual(self.show(path)["artwork"],
                             {"imageType": "PNG", "imageSize": "{48, 48}",
                              "imageDataSize": len(data), "md5": hashlib.md5(data).hexdigest()})

    def test_rare_forms(self):
        for name, data in in_rare_forms(b"W\xFF\xFE\xFFords").items():
            with self.subTest(name):
                path = self.file(data=data + audio())
                self.assertEqual(self.tags(path), {"title": "Wÿþÿords"})

    def test_rare_forms_are_not_lost(self):
        """The program may write the title in a plain form or refuse, but not drop it."""
        for name, data in in_rare_forms(b"Words").items():
            with self.subTest(name):
                path = self.file(data=data + audio())
                result = self.run_program("set", "-t", "album=new", path)
                kept = b"Words" if result.returncode == 0 else data
                self.assertTrue(kept in path.read_bytes())

    def test_id3v1_only(self):
        tag = {name: Frames[name](encoding=0, text=text) for name, text in {
            "TIT2": "Tïtle", "TPE1": "Ärtist", "TALB": "Al", "TDRC": "2004", "TRCK": "9",
            "TCON": "Rock", "COMM": "Cö"}.items()}
        path = self.file(data=audio() + MakeID3v1(tag))
        self.assertEqual(self.tags(path),
                         {"title": "Tïtle", "artist": "Ärtist", "album": "Al", "comment": "Cö",
                          "year": 2004, "trackNumber": 9, "genre": "Rock"})

    def test_ape_only(self):
        tag = APEv2()
        items = {"Title": "Tïtle €", "Artist": ["A", "B"], "Track": "3", "TotalTracks": "12",
                 "DiscNumber": "1", "DiscTotal": "2", "Movement": "4", "Date": "2004-05-06",
                 "Rating": "77", "Podcast": "1", "PartOfACompilation": "1", "URL": "http://x.y/€",
                 "Lyrics": "a\nb", "Comment": "C", "Genre": "Rock", "ReleaseTime": DATE}
        for key, value in items.items():
            tag[key] = value
        path = self.file()
        tag.save(path)
        self.assertEqual(self.tags(path),
                         {"title": "Tïtle €", "artist": "A, B", "trackNumber": 3, "trackTotal": 12,
                          "discNumber": 1, "discTotal": 2, "movementNumber": 4, "year": 2004,
                          "rating": 77, "isPodcast": True, "isPartOfACompilation": True,
                          "website": "http://x.y/€", "lyrics": "a\nb", "comment": "C",
                          "genre": "Rock", "releaseTime": DATE})
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
