"""Runs lirra-cli, named by the environment variable LIRRA_CLI, on files in temporary folders."""

import functools
import json
import os
import pathlib
import struct
import subprocess
import tempfile
import unittest

PROGRAM = os.environ["LIRRA_CLI"]
FIXTURES = pathlib.Path(__file__).parent.parent / "fixtures"
SETTINGS = {"version": "ID3v2Version", "v2": "MPEG.ID3v2", "v1": "MPEG.ID3v1", "ape": "MPEG.APE"}


def run(*command, **options):
    options = {"encoding": "utf-8"} | options
    return subprocess.run(command, check=True, capture_output=True, **options).stdout


def ffmpeg(*arguments):
    return run("ffmpeg", "-v", "error", "-nostdin", *arguments, encoding=None)


def sound(path):
    """What setting tags must not change: the decoded sound, or the chunk with it if that is DSD."""
    data = path.read_bytes()
    if path.suffix == ".dsf":
        return data[80:][:int.from_bytes(data[84:92], "little")]
    if path.suffix == ".dff":
        start = data.index(b"DSD \0") + 12
        return data[start:][:int.from_bytes(data[start - 8:start], "big")]
    return ffmpeg("-i", path, "-map", "0:a", "-f", "md5", "-")


@functools.cache
def fixture_sound(name):
    return sound(FIXTURES / name)


@functools.cache
def audio():
    """An MP3 file of half a second without any tag."""
    return ffmpeg("-f", "lavfi", "-i", "sine=frequency=440:duration=0.5", "-c:a", "libmp3lame",
                  "-b:a", "64k", "-id3v2_version", "0", "-f", "mp3", "-")


@functools.cache
def picture(codec, color="red", size=32):
    return ffmpeg("-f", "lavfi", "-i", f"color={color}:size={size}x{size}", "-frames:v", "1",
                  "-f", "image2pipe", "-c:v", codec, "-")


def synchsafe(number):
    return bytes((number >> shift) & 127 for shift in (21, 14, 7, 0))


def from_synchsafe(data):
    return functools.reduce(lambda number, byte: number << 7 | byte, data)


def frame(name, data, version=4, flags=b"\0\0"):
    size = synchsafe(len(data)) if version == 4 else struct.pack(">I", len(data))
    return name.encode() + size + flags + data


def id3v2(body, version=4, flags=0):
    return b"ID3" + bytes([version, 0, flags]) + synchsafe(len(body)) + body


def raw_frames(data):
    """The contents of all frames by identifier, and the version of the tag."""
    version, rest = data[3], data[10:10 + from_synchsafe(data[6:10])]
    frames = {}
    while len(rest) > 10 and rest[0]:
        size = from_synchsafe(rest[4:8]) if version == 4 else struct.unpack(">I", rest[4:8])[0]
        frames.setdefault(rest[:4].decode(), []).append(rest[10:10 + size])
        rest = rest[10 + size:]
    return frames, version


class ProgramTest(unittest.TestCase):
    maxDiff = None

    def setUp(self):
        folder = tempfile.TemporaryDirectory(prefix="lirra-test-")
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name).resolve()
        self.home = self.folder / "home"
        self.home.mkdir()

    def command(self, *arguments, program=PROGRAM, **settings):
        definitions = [f"-Dlirra.tagging.{SETTINGS[name]}={value}"
                       for name, value in settings.items()]
        return [program, *definitions, *arguments]

    def environment(self, **variables):
        kept = {name: value for name, value in os.environ.items()
                if name == "PATH" or name.endswith("SAN_OPTIONS")}
        return kept | {"HOME": str(self.home), "XDG_CONFIG_HOME": str(self.home),
                       "LC_ALL": "en_US.UTF-8", **variables}

    def run_command(self, command, environment=None, **options):
        return subprocess.run(command, capture_output=True, encoding="utf-8", cwd=self.folder,
                              env=environment or self.environment(), stdin=subprocess.DEVNULL,
                              timeout=60, **options)

    def run_program(self, *arguments, **settings):
        return self.run_command(self.command(*arguments, **settings))

    def file(self, name="a.mp3", data=None):
        path = self.folder / os.fsdecode(name)
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_bytes(audio() if data is None else data)
        return path

    def copy(self, fixture):
        return self.file(fixture, (FIXTURES / fixture).read_bytes())

    def change(self, *arguments, **settings):
        """Runs the program, which must succeed without a word and leave the sound alone."""
        result = self.run_program(*arguments, **settings)
        self.assertEqual((result.returncode, result.stdout, result.stderr), (0, "", ""))
        path = arguments[-1]
        if (FIXTURES / path.name).exists():
            self.assertEqual(sound(path), fixture_sound(path.name))
        else:
            self.assertIn(audio(), path.read_bytes())

    def set_tags(self, path, tags, *arguments, **settings):
        options = [option for key, value in tags.items() for option in ("-t", f"{key}={value}")]
        self.change("set", *options, *arguments, path, **settings)

    def show(self, path):
        before = path.read_bytes()
        result = self.run_program("show", "--json", path)
        self.assertEqual((result.returncode, result.stderr), (0, ""))
        self.assertEqual(path.read_bytes(), before)
        return json.loads(result.stdout)

    def tags(self, path):
        return self.show(path)["tags"]
