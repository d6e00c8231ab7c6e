"""A full disk, an interruption and closed streams leave every file whole."""

import fcntl
import os
import resource
import signal
import struct
import subprocess
import termios
import time
import unittest

from lirra_program import ProgramTest, audio, frame, id3v2, picture

# Of a message about a file with a long name, at least.
MESSAGE_SIZE = 400


def limit_file_size(size):
    """Makes writing behind that size fail as on a full disk."""
    def prepare():
        signal.signal(signal.SIGXFSZ, signal.SIG_IGN)
        resource.setrlimit(resource.RLIMIT_FSIZE, (size, size))
    return prepare


def bytes_in(pipe):
    return struct.unpack("i", fcntl.ioctl(pipe, termios.FIONREAD, bytes(4)))[0]


class FullDiskTest(ProgramTest):
    def test_file_stays_as_it_was(self):
        tagged = id3v2(frame("TIT2", b"\0old") + bytes(500)) + audio()
        with_both = tagged + b"TAG".ljust(128, b"\0")
        cover = self.file("cover.png", picture("png", "gray", 400))
        set_title = ["set", "-t", "title=new"]
        for data, arguments, limits in (
                (audio(), set_title, [0, 1, len(audio()) - 1, len(audio()), len(audio()) + 20]),
                (tagged, ["set", "--artwork", cover], [0, 600, len(tagged), len(tagged) + 500]),
                # The new tag at the front still fits, the one at the end does not.
                (with_both, set_title, [0, 600, len(tagged)]),
                (with_both, ["strip"], [0, 300, len(audio()) - 1])):
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
    def test_interrupted_between_files(self):
        """More bad files than the pipe has room for messages hold the program up until the signal
        has been sent."""
        reading, writing = os.pipe()
        # The smallest one that the system gives
        bad_count = 3 * fcntl.fcntl(writing, fcntl.F_SETPIPE_SZ, 4096) // MESSAGE_SIZE
        bad = [self.file(f"bad {i} {'x' * 200}.mp3", b"") for i in range(bad_count)]
        for number in (signal.SIGINT, signal.SIGTERM, signal.SIGHUP):
            with self.subTest(number):
                first, last = self.file("first.mp3"), self.file("last.mp3")
                command = self.command("set", "-t", "title=new", first, *bad, last)
                with subprocess.Popen(command, env=self.environment(), stderr=writing) as process:
                    while bytes_in(reading) < MESSAGE_SIZE:
                        self.assertIsNone(process.poll())
                        time.sleep(0.01)
                    process.send_signal(number)
                    errors = b""
                    while process.poll() is None or bytes_in(reading):
                        errors += os.read(reading, 4096) if bytes_in(reading) else b""
                self.assertEqual(process.returncode, 130)
                self.assertIn(b"Interrupted: ", errors.splitlines()[-1])
                self.assertEqual(self.tags(first), {"title": "new"})
                self.assertEqual([path.read_bytes() for path in [*bad, last]],
                                 [b""] * bad_count + [audio()])
        os.close(reading)
        os.close(writing)


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
        tagged = id3v2(frame("TIT2", b"\0old") + bytes(500)) + audio()
        for streams in ("0<&-", "1>&-", "2>&-", "0<&- 1>&-", "0<&- 1>&- 2>&-"):
            for arguments in (["show"], ["--dry-run", "strip"], ["set", "-t", "title=new"]):
                with self.subTest(streams, arguments=arguments):
                    path, bad = self.file(data=tagged), self.file("bad.mp3", b"")
                    command = self.command(*arguments, bad, path, bad)
                    subprocess.run(["sh", "-c", f'"$@" {streams}', "sh", *command], timeout=60,
                                   env=self.environment(), capture_output=True)
                    self.assertEqual(bad.read_bytes(), b"")
                    self.assertEqual(path.read_bytes()[-len(audio()):], audio())
                    self.assertEqual(self.tags(path),
                                     {"title": "new" if arguments[0] == "set" else "old"})


if __name__ == "__main__":
    unittest.main()
