"""A full disk, an interruption and closed streams leave every file whole."""

import fcntl
import os
import resource
import signal
import subprocess
import time
import unittest

import mutagen.id3

from lirra_program import ProgramTest, audio, frame, id3v2, picture

# What the program's own store of a file or two may take
STORE_SIZE = 1 << 17
# Without room for another tag: all of the sound has to move
TAGGED = id3v2(frame("TIT2", b"\0old")) + audio()


def limit_file_size(size):
    """Makes writing behind that size fail as on a full disk."""
    def prepare():
        signal.signal(signal.SIGXFSZ, signal.SIG_IGN)
        resource.setrlimit(resource.RLIMIT_FSIZE, (size, size))
    return prepare


class FullDiskTest(ProgramTest):
    def test_file_stays_as_it_was(self):
        sound = audio() * (2 * STORE_SIZE // len(audio()))
        tagged = id3v2(frame("TIT2", b"\0old") + bytes(500)) + sound
        with_both = tagged + b"TAG".ljust(128, b"\0")
        cover = self.file("cover.png", picture("png", "gray", 400))
        set_title = ["set", "-t", "title=new"]
        for data, arguments, limits in (
                (sound, set_title, [STORE_SIZE, len(sound) - 1, len(sound), len(sound) + 20]),
                (tagged, ["set", "--artwork", cover],
                 [STORE_SIZE, len(tagged), len(tagged) + 500]),
                # The new tag at the front still fits, the one at the end does not.
                (with_both, set_title, [STORE_SIZE, len(tagged)]),
                (with_both, ["strip"], [STORE_SIZE, len(sound) - 1])):
            for limit in limits:
                with self.subTest(arguments=arguments, limit=limit):
                    path = self.file(data=data)
                    result = self.run_command(self.command(*arguments, path, v1=True),
                                              preexec_fn=limit_file_size(limit))
                    self.assertEqual(result.returncode, 1)
                    self.assertEqual(result.stderr.count("\n"), 1)
                    self.assertIn(str(path), result.stderr)
                    self.assertIn("File too large", result.stderr)
                    self.assertEqual(path.read_bytes(), data)
            self.assertEqual(self.run_program(*arguments, path, v1=True).returncode, 0)
            self.assertNotEqual(path.read_bytes(), data)


class InterruptionTest(ProgramTest):
    def setUp(self):
        super().setUp()
        self.temporary = self.folder / "temporary"
        self.temporary.mkdir()
        self.music = [self.file(f"music/{i}.mp3", TAGGED) for i in range(1000)]

    def start(self, *arguments):
        """Sets another title, which takes as long as it takes to write a thousand files."""
        arguments = arguments or ("--data-dir", self.folder / "data")
        command = self.command(*arguments, "set", "-t", "title=new", self.folder / "music")
        return subprocess.Popen(command, env=self.environment(TMPDIR=str(self.temporary)),
                                stdout=subprocess.DEVNULL, stderr=subprocess.PIPE)

    def wait_until(self, condition, process):
        while not condition() and process.poll() is None:
            time.sleep(0.001)

    def count_changed(self):
        """How many files have the new title; the others must be as they were."""
        titles = [mutagen.id3.ID3(path)["TIT2"].text for path in self.music]
        for path, title in zip(self.music, titles):
            data = path.read_bytes()
            self.assertTrue(data == TAGGED if title == ["old"] else data.endswith(audio()), path)
            self.assertIn(title, (["old"], ["new"]))
        self.assertEqual(len(list((self.folder / "music").glob("*.mp3"))), len(self.music))
        return titles.count(["new"])

    def leftovers(self):
        return list(self.folder.glob("data/windowSessions/*.sqlite"))

    def is_importing(self):
        return any(self.leftovers())

    def is_writing(self):
        return self.music[0].read_bytes() != TAGGED

    def test_interrupted_between_files(self):
        for number, condition in ((signal.SIGINT, self.is_writing),
                                  (signal.SIGTERM, self.is_writing),
                                  (signal.SIGHUP, self.is_importing)):
            with self.subTest(number), self.start() as process:
                self.wait_until(condition, process)
                process.send_signal(number)
                errors = process.stderr.read().decode()
                self.assertEqual(process.wait(), 130)
                self.assertRegex(errors, f"^lirra-cli: Interrupted: {self.count_changed()} of "
                                 r"\d+ files are done\n$")
                self.assertEqual(self.leftovers(), [])
            for path in self.music:
                path.write_bytes(TAGGED)

    def test_killed(self):
        for condition in (self.is_importing, self.is_writing):
            with self.subTest(condition), self.start() as process:
                self.wait_until(condition, process)
                process.kill()
                process.wait()
                self.assertEqual(len(self.leftovers()), 1)
                self.assertLess(self.count_changed(), len(self.music))
        with self.start() as process:
            self.assertEqual((process.wait(), process.stderr.read()), (0, b""))
        self.assertEqual(self.count_changed(), len(self.music))
        self.assertEqual(self.leftovers(), [])

    def test_killed_without_a_folder_for_data(self):
        with self.start("--quiet") as process:
            self.wait_until(self.is_writing, process)
            process.kill()
        self.assertEqual(list(self.temporary.iterdir()), [])

    def test_data_folder_in_use(self):
        folder = self.folder / "data"
        folder.mkdir()
        with open(folder / "lock", "w", encoding="utf-8") as other_program:
            fcntl.flock(other_program, fcntl.LOCK_EX)
            with self.start("--data-dir", folder) as process:
                self.assertEqual(process.wait(), 2)
                self.assertRegex(process.stderr.read().decode(),
                                 f"^lirra-cli: {folder}: .* in use by another program.*\n$")
            self.assertEqual(self.count_changed(), 0)
        (folder / "windowSessions").mkdir()
        (folder / "windowSessions/of-a-killed-program.sqlite").touch()
        (folder / "windowSessions/of-the-user.mp3").touch()
        with self.start("--data-dir", folder) as process:
            self.assertEqual((process.wait(), process.stderr.read()), (0, b""))
        self.assertEqual({path.name for path in folder.rglob("*")},
                         {"lock", "windowSessions", "of-the-user.mp3"})
        self.assertEqual(list(self.temporary.iterdir()), [])


class StreamsTest(ProgramTest):
    def test_reader_that_goes_away(self):
        paths = [self.file(f"{'x' * 200} {i}.mp3") for i in range(60)]
        for arguments in (["show"], ["show", "--json"], ["--dry-run", "set", "-t", "title=new"]):
            with self.subTest(arguments=arguments):
                reading, writing = os.pipe()
                os.close(reading)
                result = subprocess.run(self.command(*arguments, *paths), stdout=writing,
                                        stderr=subprocess.PIPE, env=self.environment(), timeout=60)
                os.close(writing)
                self.assertEqual((result.returncode, result.stderr), (1, b""))
        self.assertEqual([path.read_bytes() for path in paths], [audio()] * 60)

    def test_full_standard_output(self):
        with open("/dev/full", "wb") as full:
            result = subprocess.run(self.command("show", self.file()), stdout=full,
                                    stderr=subprocess.PIPE, env=self.environment(), timeout=60)
        self.assertEqual(result.returncode, 1)
        self.assertEqual(result.stderr.count(b"\n"), 1)
        self.assertIn(b"Standard output cannot be written", result.stderr)

    def test_closed_streams_never_become_files(self):
        """A file that is opened while a standard stream is closed takes the place of the stream."""
        for streams in ("0<&-", "1>&-", "2>&-", "0<&- 1>&-", "0<&- 1>&- 2>&-"):
            for arguments in (["show"], ["--dry-run", "strip"], ["set", "-t", "title=new"]):
                with self.subTest(streams, arguments=arguments):
                    path, bad = self.file(data=TAGGED), self.file("bad.mp3", b"")
                    command = self.command(*arguments, bad, path, bad)
                    subprocess.run(["sh", "-c", f'"$@" {streams}', "sh", *command], timeout=60,
                                   env=self.environment(), capture_output=True)
                    self.assertEqual(bad.read_bytes(), b"")
                    self.assertEqual(path.read_bytes()[-len(audio()):], audio())
                    self.assertEqual(self.tags(path),
                                     {"title": "new" if arguments[0] == "set" else "old"})


if __name__ == "__main__":
    unittest.main()
