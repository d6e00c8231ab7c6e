"""Names and folders from tags: what is done is what the dry run says, line by line."""

import json
import os
import pty
import shutil
import subprocess
import unittest

from lirra_program import PROGRAM, ProgramTest, audio, frame, id3v2

STOP = "No further files are changed"
DOT = "begin with a dot"
EXISTS = "already exists"


def song(title):
    return id3v2(frame("TIT2", b"\3" + title.encode())) + audio()


class PlacementTest(ProgramTest):
    def setUp(self):
        super().setUp()
        self.root = self.home / "music"
        self.titles = {"1.mp3": "One", "2.mp3": "Two/2", "3.mp3": "One", "4.mp3": ".four",
                       "5.mp3": "x" * 252, "6.mp3": ""}

    def make(self):
        shutil.rmtree(self.root, ignore_errors=True)
        for name, title in self.titles.items():
            self.file(self.root / name, song(title) if title else audio())

    def contents(self):
        return {str(path.relative_to(self.root)): (path.read_bytes(), path.stat().st_mtime_ns)
                for path in self.root.rglob("*") if path.is_file()}

    def place(self, *arguments):
        """The lines of a run without the folder, exit status and standard error. The dry runs must
        say the same before, or more when the run stops, and change nothing."""
        self.make()
        before = self.contents()
        dry = self.run_program("--dry-run", *arguments, self.root)
        dry_json = self.run_program("--dry-run", *arguments, "--json", self.root)
        self.assertEqual(self.contents(), before)
        real = self.run_program(*arguments, self.root)
        stops = STOP in real.stderr
        self.assertEqual(dry.returncode, real.returncode)
        self.assertEqual(dry.stdout[:len(real.stdout)] if stops else dry.stdout, real.stdout)
        told = [json.loads(line) for line in dry_json.stdout.splitlines()]
        self.assertEqual([f"{file['path']} -> {file['newPath']}"
                          for file in told if "newPath" in file], dry.stdout.splitlines())
        refused = [file["path"] for file in told if "error" in file]
        for text in (dry.stderr,) if stops else (dry.stderr, real.stderr):
            self.assertLessEqual(set(refused), {line.split(": ")[1] for line in text.splitlines()})
        after = self.contents()
        self.assertEqual(sorted(after.values()), sorted(before.values()))
        lines = real.stdout.replace(f"{self.root}/", "").splitlines()
        for line in lines:
            self.assertEqual(after[line.split(" -> ")[1]], before[line.split(" -> ")[0]])
        return lines, real.returncode, real.stderr

    def test_answers(self):
        first = ["1.mp3 -> One.mp3", "2.mp3 -> Two:2.mp3"]
        both = "3.mp3 -> One 2.mp3"
        dots = {"remove": "4.mp3 -> four.mp3", "continue": "4.mp3 -> .four.mp3"}
        unknown = "6.mp3 -> Unknown Title.mp3"
        long = "The name is too long"
        for arguments, expected, reasons in (
                ([], first, [EXISTS, STOP]),
                (["--on-conflict=skip"], first, [EXISTS, DOT, STOP]),
                (["--on-conflict=keep-both", "--dot-names=remove"],
                 [*first, both, dots["remove"], unknown], [long]),
                (["--on-conflict=skip", "--dot-names=continue", "--fallback=skip"],
                 [*first, dots["continue"]], [EXISTS, long, "makes no name"])):
            with self.subTest(arguments):
                lines, status, error = self.place(*arguments[:2], "rename", *arguments[2:],
                                                  "--pattern=%title%")
                self.assertEqual((lines, status), (expected, 1))
                for reason, line in zip(reasons, error.splitlines(), strict=True):
                    self.assertIn(reason, line)

    def test_files_of_a_run_do_not_replace_each_other(self):
        out = f"--to={self.root}/out"
        for titles, arguments, expected in (
                ({"1.mp3": "2", "2.mp3": "3"}, ["rename", "--pattern=%title%"],
                 ["2.mp3 -> 3.mp3"]),
                ({"a/1.mp3": "", "b/1.mp3": ""}, ["move", out], ["a/1.mp3 -> out/1.mp3"]),
                ({"a/1.mp3": "", "b/1.mp3": ""}, ["move", "--copy", out],
                 ["a/1.mp3 -> out/1.mp3"]),
                # A folder is needed where a file is by then.
                ({"a/1.mp3": ".", "b/2.mp3": "1.mp3"},
                 ["move", "--pattern=%title%/.", out.replace("to", "base", 1)],
                 ["a/1.mp3 -> out/1.mp3"])):
            with self.subTest(arguments):
                self.titles = titles
                self.make()
                before = self.contents()
                arguments = ["--on-conflict=replace", *arguments, "--json", self.root]
                dry, real = (self.run_program(*dry, *arguments) for dry in (["--dry-run"], []))
                told = [[json.loads(line) for line in run.stdout.splitlines()]
                        for run in (dry, real)]
                for files in told:
                    self.assertEqual([f"{file['path']} -> {file['newPath']}".replace(
                        f"{self.root}/", "") for file in files if "newPath" in file], expected)
                    self.assertEqual(sum("error" in file for file in files), 1)
                self.assertEqual((dry.returncode, real.returncode), (1, 1))
                self.assertLessEqual(set(before.values()), set(self.contents().values()))

    def test_other_files_are_replaced(self):
        self.titles = {"1.mp3": "2", "2.mp3": "3", "4.mp3": "5"}
        self.make()
        (self.root / "5.mp3").mkdir()
        arguments = ["--on-conflict=replace", "rename", "--pattern=%title%", self.root / "1.mp3",
                     self.root / "4.mp3"]
        dry = self.run_program("--dry-run", *arguments)
        real = self.run_program(*arguments)
        self.assertEqual((dry.stdout, dry.returncode), (real.stdout, 1))
        self.assertIn("“2.mp3” is replaced", dry.stderr)
        self.assertEqual(real.stderr.count(EXISTS), 1)
        self.assertEqual(self.contents()["2.mp3"][0], song("2"))
        self.assertEqual(set(self.contents()), {"2.mp3", "4.mp3"})

    def test_folders_have_several_spellings(self):
        self.titles = {"a/1.mp3": "x", "a/2.mp3": "x"}
        for arguments, files, expected, status in (
                (["rename", "--pattern=%title%"], ["./a/1.mp3", "a/2.mp3"], "./a/1.mp3", 1),
                (["rename", "--pattern=%title%"], ["link/1.mp3", "a/2.mp3"], "link/1.mp3", 1),
                (["move", "--to=a"], ["a"], "a/1.mp3 -> a/1.mp3\na/2.mp3 -> a/2.mp3", 0),
                (["move", "--to=A"], ["./a/2.mp3"], "./a/2.mp3 -> ./a/2.mp3", 0),
                (["move", "--to=link"], ["a/1.mp3"], "a/1.mp3 -> a/1.mp3", 0)):
            with self.subTest(files):
                self.make()
                (self.root / "link").symlink_to("a")
                runs = [self.run_command(["env", "-C", self.root, PROGRAM, "--on-conflict=skip",
                                          *dry, *arguments, *files])
                        for dry in (["--dry-run"], [])]
                self.assertEqual(runs[0].stdout, runs[1].stdout)
                self.assertEqual([run.returncode for run in runs], [status, status])
                self.assertTrue(runs[1].stdout.startswith(expected), runs[1].stdout)
                self.assertEqual(runs[1].stdout.count("\n"), 1 + expected.count("\n"))
                self.assertEqual(runs[1].stderr.count(EXISTS), status)

    def test_moves(self):
        self.titles = {"a/1.mp3": "One", "b/2.mp3": "Two", "b/1.mp3": "One"}
        base, target = f"--base={self.root}/out", f"--to={self.root}/out"
        for arguments, expected, status in (
                (["move", "--pattern=%title%"],
                 ["a/1.mp3 -> a/One/1.mp3", "b/1.mp3 -> b/One/1.mp3", "b/2.mp3 -> b/Two/2.mp3"], 0),
                (["--on-conflict=keep-both", "move", "--pattern=%title%/.", base],
                 ["a/1.mp3 -> out/One/1.mp3", "b/1.mp3 -> out/One/1 2.mp3",
                  "b/2.mp3 -> out/Two/2.mp3"], 0),
                (["--on-conflict=skip", "move", target],
                 ["a/1.mp3 -> out/1.mp3", "b/2.mp3 -> out/2.mp3"], 1),
                (["move", "--pattern=../x"], [], 1),
                (["move", "--pattern=.%title%"], [], 1)):
            with self.subTest(arguments):
                self.assertEqual(self.place(*arguments)[:2], (expected, status))

    def test_copies_and_what_is_around(self):
        self.titles = {"a/1.mp3": "One"}
        for arguments, expected in ((["--copy"], {"a/1.mp3", "a/cover.jpg", "out/1.mp3"}),
                                    (["--with-others", "--remove-empty"],
                                     {"out/1.mp3", "out/cover.jpg"})):
            self.make()
            self.file(self.root / "a/cover.jpg", b"cover")
            result = self.run_program("move", *arguments, f"--to={self.root}/out", self.root)
            self.assertEqual((result.returncode, result.stderr), (0, ""))
            self.assertEqual(set(self.contents()), expected)
        self.assertTrue((self.home / ".local/share/Trash/files/a").is_dir())

    def answer(self, arguments, *answers):
        """Exit status, standard output and the rest of a run that asks. What is no text is called
        before the next answer."""
        user, terminal = pty.openpty()
        with subprocess.Popen([PROGRAM, *arguments], env=self.environment(), stdin=terminal,
                              stdout=subprocess.PIPE, stderr=terminal) as program:
            os.close(terminal)
            shown = b""
            for answer in answers:
                while not shown.endswith(b"? "):
                    shown += os.read(user, 1000)
                if callable(answer):
                    answer()
                    continue
                os.write(user, answer)
                shown = b""
            output = program.stdout.read().decode()
            error = os.read(user, 10000).decode()
        os.close(user)
        return program.returncode, output, error

    def test_questions_on_a_terminal(self):
        self.titles = {f"{name}/x.mp3": "" for name in "abcd"}
        self.make()
        status, output, _ = self.answer(["move", f"--to={self.root}/out", self.root], b"k\n",
                                        b"i all\n")
        self.assertEqual((status, output.count(" -> ")), (1, 2))
        self.assertEqual(set(self.contents()),
                         {"out/x.mp3", "out/x 2.mp3", "c/x.mp3", "d/x.mp3"})

    def test_places_may_be_taken_while_a_question_is_asked(self):
        self.titles = {"1.mp3": "One", "2.mp3": "Two", "3.mp3": "Three", "Two.mp3": "Two"}
        self.make()

        def interfere():
            self.file(self.root / "One.mp3", b"other")
            (self.root / "3.mp3").unlink()

        status, output, error = self.answer(["rename", "--pattern=%title%", self.root], interfere,
                                            b"k\n")
        self.assertEqual((status, output.count(" -> ")), (1, 2))
        self.assertRegex(error, r"1\.mp3: .*already exists")
        self.assertRegex(error, r"3\.mp3: .*could not be found")
        self.assertEqual(set(self.contents()), {"1.mp3", "One.mp3", "Two 2.mp3", "Two.mp3"})

    @unittest.skipUnless(os.geteuid() == 0, "A folder must belong to somebody else")
    def test_a_name_that_cannot_be_given_keeps_no_other_from_its_own(self):
        self.titles = {"a/1.mp3": "a", "b/2.mp3": "b", "b/3.mp3": "c", "c/4.mp3": "d"}
        self.make()
        for folder in (self.folder, self.home, self.root / "b"):
            folder.chmod(0o755)
        for path in (self.home, *self.root.glob("[ac]"), *self.root.rglob("*.mp3")):
            os.chown(path, 65534, 65534)
        program = shutil.copy(PROGRAM, self.folder)  # the build folder may be closed to others
        result = self.run_command(["setpriv", "--reuid=65534", "--regid=65534", "--clear-groups",
                                   program, "rename", "--pattern=%title%", self.root])
        self.assertEqual((result.returncode, result.stdout.count(" -> ")), (1, 2))
        self.assertEqual(result.stderr.count("Permission denied\n"), 2)
        self.assertEqual(set(self.contents()), {"a/a.mp3", "b/2.mp3", "b/3.mp3", "c/d.mp3"})

    def test_wrong_usage(self):
        for arguments in (["rename"], ["move"], ["move", "--to=x", "--pattern=y"],
                          ["move", "--to="], ["rename", "--pattern=%titel%"]):
            with self.subTest(arguments):
                self.make()
                before = self.contents()
                result = self.run_program(*arguments, self.root)
                self.assertEqual((result.returncode, self.contents()), (2, before))


if __name__ == "__main__":
    unittest.main()
