"""lirra-cli and other implementations read what the other wrote, in every format."""

import hashlib
import json
import unittest

from mutagen.mp4 import AtomDataType, MP4FreeForm

from fields import FIELDS, all_tags
from implementations import Comment, ID3, MP4, PICTURES, ROWS, ffprobe
from lirra_program import ProgramTest, ffmpeg, picture, run

IMAGES = [(3, "image/jpeg", picture("mjpeg")), (4, "image/png", picture("png", size=48))]
WRITERS = [(fixture, other) for fixture, other in ROWS if other.write]

# Fields in other forms than lirra-cli writes -> what it shows.
GENRES = [("(17)", "Rock"), ("17", "Rock"), ("(17)(20)", "Rock / Alternative"),
          ("(17)Föo", "Rock / Föo"), (["17", "Föo", "20"], "Rock / Föo / Alternative")]
FRAMES = [
    ({"TRCK": "03/12"}, {"trackNumber": 3, "trackTotal": 12}),
    ({"TRCK": "0/12", "TPE1": ["A", "Ü"]}, {"trackTotal": 12, "artist": "A Ü"}),
    ({"COMM::deu": "Ü", "USLT:ü:deu": "ÿ\nÜ"}, {"comment": "Ü", "lyrics": "ÿ\nÜ"}),
    ({"WXXX:ü": "http://x.y/é", "POPM:a@b": "77"}, {"website": "http://x.y/é", "rating": 77}),
    ({"TDRC": "2004-05-06T07:08", "TDTG": "2004-05", "TDEN": "2004-05-06T07"},
     {"year": 2004, "taggingTime": "2004-05-01T00:00:00Z", "encodingTime": "2004-05-06T07:00:00Z"}),
    *(({"TCON": text}, {"genre": genre}) for text, genre in GENRES),
]
FRAMES_OF_VERSION_3 = [
    ({"TYER": "2004", "TORY": "1999", "IPLS": "producer P"},
     {"year": 2004, "originalReleaseDate": "1999-01-01T00:00:00Z",
      "involvedPeopleList": "producer P"}),
    *(({"TCON": text}, {"genre": genre}) for text, genre in [*GENRES[:2], (["A", "Ü"], "A/Ü")]),
]
OTHER_FORMS = [
    ("no-comment.flac", Comment(), {"artist": ["A", "Ü"], "Date": ["2004-05-06"],
                                    "TRACKNUMBER": ["03/12"], "DESCRIPTION": ["Cö"]},
     {"artist": "A Ü", "year": 2004, "trackNumber": 3, "comment": "Cö"}),
    ("no-udta.m4a", MP4(), {"©ART": ["Ä", "B"], "©day": ["2004-05-06"], "trkn": [(0, 12)],
                            "tmpo": [1 << 16], "pcst": False, "----:com.apple.iTunes:MOOD": [
                                MP4FreeForm("Ü".encode("utf-16-be"), AtomDataType.UTF16)]},
     {"artist": "Ä", "year": 2004, "trackTotal": 12, "bpm": 1 << 16, "mood": "Ü",
      "isPodcast": False}),
    *(("plain.mp3", ID3(4, encoding), *row) for encoding in range(4) for row in FRAMES),
    *(("plain.mp3", ID3(3, encoding), *row) for encoding in range(2)
      for row in FRAMES_OF_VERSION_3),
]


class FormatsTest(ProgramTest):
    def test_others_read_what_was_set(self):
        """Every property and picture, beside what the file had."""
        paths = {}
        for fixture, other in ROWS:
            with self.subTest(fixture, other=type(other).__name__):
                path, tags = self.copy(fixture), all_tags(other.text)
                paths[path], old, tags_to_set = None, other.read(path), tags
                for _, mime, data in IMAGES:
                    self.set_tags(path, tags_to_set, "--artwork", self.file("image", data))
                    self.assertEqual(other.read(path),
                                     old | other.expected(tags, [(3, mime, data)]))
                    tags_to_set = {}
        self.check_third_implementations([path for path in paths if path.suffix != ".dff"])
        for path in paths:
            self.change("strip", path)

    def check_third_implementations(self, paths):
        """ffmpeg on all but DSDIFF; exiftool on all of these but DSF and Speex."""
        expected = dict.fromkeys(("title", "artist", "genre"), "über €")
        for path in paths:
            with self.subTest(path.name, other="ffmpeg"):
                shown = {name.lower(): value for name, value in ffprobe(path).items()}
                self.assertLessEqual(expected.items(), shown.items())
                self.assertEqual(ffmpeg("-i", path, "-map", "0:v", "-c", "copy", "-f",
                                        "image2pipe", "-"), IMAGES[1][2])
        for shown in json.loads(run("exiftool", "-j", "-charset", "RIFF=UTF8", *(
                path for path in paths if path.suffix not in (".dsf", ".spx")))):
            with self.subTest(shown["FileName"], other="exiftool"):
                self.assertEqual({name: shown.get(name.title()) for name in expected}, expected)

    def test_what_others_wrote_is_read(self):
        data = IMAGES[1][2]
        artwork = {"imageType": "PNG", "imageSize": "{48, 48}", "imageDataSize": len(data),
                   "md5": hashlib.md5(data).hexdigest()}
        encoded = [("plain.mp3", ID3(4, encoding)) for encoding in range(3)]
        for fixture, other in WRITERS + encoded:
            with self.subTest(fixture, other=type(other).__name__, **vars(other)):
                path, tags = self.copy(fixture), all_tags(other.text)
                fields = other.given(tags, IMAGES[1:])
                other.write(path, fields)
                shown = self.show(path)
                self.assertEqual(shown["tags"], {
                    key: value for key, value in tags.items()
                    if FIELDS[key][other.column].split("+")[0] in fields})
                self.assertEqual(shown.get("artwork"), artwork if other.has_pictures else None)

    def test_other_forms_are_read(self):
        for fixture, other, fields, expected in OTHER_FORMS:
            with self.subTest(fixture, fields=fields, **vars(other)):
                path = self.copy(fixture)
                other.write(path, fields)
                shown = self.show(path)
                self.assertEqual(shown["tags"], expected)
                if isinstance(other, ID3):
                    self.assertEqual(shown["properties"]["tagVersion"], f"ID3v2.{other.version}")

    def test_what_others_wrote_stays(self):
        """Fields that lirra-cli does not know and a second picture survive when others are set."""
        changes = {"title": "new", "album": "long" * 999}
        for fixture, other in WRITERS:
            with self.subTest(fixture, other=type(other).__name__):
                path = self.copy(fixture)
                old = other.read(path).keys()
                other.write(path, other.foreign | {PICTURES: IMAGES})
                before = other.read(path)
                self.assertEqual(len(before.keys() - old - {PICTURES}), len(other.foreign))
                self.set_tags(path, changes)
                self.assertEqual(other.read(path), before | other.expected(changes))


if __name__ == "__main__":
    unittest.main()
