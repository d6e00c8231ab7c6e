"""Starts lirra, which lies beside lirra-cli, without a screen."""

import pathlib
import signal
import subprocess
import time
import unittest

from lirra_program import PROGRAM, ProgramTest

WINDOWS = pathlib.Path(PROGRAM).parent / "lirra"


class DesktopTest(ProgramTest):
    def setUp(self):
        super().setUp()
        self.runtime = self.folder / "runtime"
        self.runtime.mkdir(mode=0o700)

    def start(self, *arguments):
        # What libraries of the desktop leak is not in question here.
        environment = self.environment(QT_QPA_PLATFORM="offscreen", LSAN_OPTIONS="exitcode=0",
                                       XDG_RUNTIME_DIR=str(self.runtime))
        process = subprocess.Popen([WINDOWS, "--data-dir", self.folder / "data", *arguments],
                                   env=environment, stderr=subprocess.DEVNULL)
        self.addCleanup(process.wait)
        self.addCleanup(process.kill)
        return process

    def wait_until(self, condition, process):
        while not condition() and process.poll() is None:
            time.sleep(0.001)
        self.assertIsNone(process.poll())

    def listens(self):
        return any(self.runtime.glob("lirra-*"))

    def sessions(self):
        return list(self.folder.glob("data/windowSessions/*"))

    def has_read(self, path):
        return any(path.name.encode() in session.read_bytes() for session in self.sessions())

    def test_signals(self):
        for number in signal.SIGINT, signal.SIGTERM, signal.SIGHUP:
            with self.subTest(number):
                process = self.start()
                self.wait_until(self.listens, process)
                process.send_signal(number)
                self.assertEqual(process.wait(), 0)
                self.assertEqual((self.sessions(), self.listens()), ([], False))

    def test_second_start(self):
        path = self.file()
        first = self.start()
        self.wait_until(self.listens, first)
        self.assertEqual(self.start(path).wait(), 0)
        self.wait_until(lambda: self.has_read(path), first)


if __name__ == "__main__":
    unittest.main()
