"""What a user of lirra-cli meets: exit statuses, messages, and files that stay whole."""

import json
import os
import pathlib
import pty
import shutil
import subprocess
import unittest

from lirra_program import PROGRAM, ProgramTest, audio, frame, id3v2, picture, synchsafe

# Root may read and write everything.
RESTRICTED = (["setpriv", "--reuid=65534", "--regid=65534", "--clear-groups"]
              if os.geteuid() == 0 else [])
NO_AUDIO = "MPEG audio"
TAGGED = id3v2(frame("TIT2", b"\0old")) + audio()
COMMANDS = (["show"], ["show", "--json"], ["set", "-t", "title=new"], ["strip"])


class CommandTest(ProgramTest):
    def assert_one_line(self, text, *parts):
        self.assertEqual(text.count("\n"), 1, text)
        self.assertTrue(text.startswith("lirra-cli: "), text)
        for part in parts:
            self.assertIn(str(part), text)
        self.assertFalse([c for c in text[:-1] if not c.isprintable()], repr(text))

    def shown_paths(self, *arguments, **variables):
        command = self.command("show", "--json", *arguments)
        result = self.run_command(command, self.environment(**variables))
        self.assertEqual((result.returncode, result.stderr), (0, ""))
        return [json.loads(line)["path"] for line in result.stdout.splitlines()]


class RefusedFilesTest(CommandTest):
    def test_one_line_names_the_file_and_the_reason(self):
        cut_off = b"ID3\4\0\0" + synchsafe(50000) + frame("TIT2", b"\0abc")
        refused = {"missing.mp3": (None, "No such file"), "empty.mp3": (b"", NO_AUDIO),
                   "cut.mp3": (cut_off, "cut off"), "jpeg.mp3": (picture("mjpeg"), NO_AUDIO),
                   "text.txt": (b"text", "not supported"), "text.mp3": (b"text", NO_AUDIO),
                   "folder/note.txt": (b"text", "no audio files")}
        for name, (data, reason) in refused.items():
            for command in COMMANDS:
                with self.subTest(name, command=command):
                    path = self.folder / name
                    if data is not None:
                        self.file(name, data)
                    given = path.parent if "/" in name else path
                    others = [self.file("first.mp3"), self.file("last.mp3")]
                    result = self.run_program(*command, others[0], given, others[1])
                    self.assertEqual(result.returncode, 1)
                    self.assert_one_line(result.stderr, given, reason)
                    if data is not None:
                        self.assertEqual(path.read_bytes(), data)
                    if command[0] == "set":
                        self.assertEqual([self.tags(other) for other in others],
                                         [{"title": "new"}] * 2)
                    elif command[0] == "show":
                        self.assertIn("first.mp3", result.stdout)
                        self.assertIn("last.mp3", result.stdout)

    def test_folder_named_like_a_file(self):
        path = self.file("folder.mp3/a.mp3")
        for given in (path.parent, path.parent.parent):
            self.assertEqual(self.run_program("strip", path).returncode, 0)
            result = self.run_program("set", "-t", "title=new", given)
            self.assertEqual((result.returncode, result.stdout, result.stderr), (0, "", ""))
            self.assertEqual(self.tags(path), {"title": "new"})


class PermissionTest(CommandTest):
    def run_restricted(self, *arguments):
        return self.run_command(
            RESTRICTED + self.command(*arguments, program=self.program_for_everyone()))

    def program_for_everyone(self):
        """The build folder may be closed to others."""
        self.folder.chmod(0o755)
        return shutil.copy(PROGRAM, self.folder)

    def owned(self, name, mode, data=None):
        path = self.file(name, data)
        if RESTRICTED:
            os.chown(path, 65534, 65534)
        path.chmod(mode)
        return path

    def test_unreadable(self):
        for command in COMMANDS:
            with self.subTest(command=command):
                path, other = self.owned("a.mp3", 0), self.owned("b.mp3", 0o644)
                result = self.run_restricted(*command, path, other)
                self.assertEqual(result.returncode, 1)
                self.assert_one_line(result.stderr, path, "Permission denied")
                path.chmod(0o644)
                self.assertEqual(path.read_bytes(), audio())
                path.unlink()
        folder = self.owned("folder/a.mp3", 0o644).parent
        folder.chmod(0)
        result = self.run_restricted("show", folder)
        folder.chmod(0o755)
        self.assertEqual(result.returncode, 1)
        self.assert_one_line(result.stderr, folder, "Permission denied")

    def test_read_only(self):
        cover = self.file("cover.png", picture("png"))
        # Answer to errors -> exit status, whether the read-only file is done, whether the next are.
        for answer, expected in {"continue": (1, False, True), "cancel": (1, False, False),
                                 "fix": (0, True, True), "ask": (1, False, True)}.items():
            for command, data in ((COMMANDS[2], audio()), (["strip"], TAGGED),
                                  (["set", "--artwork", cover, "-t", "title=new"], TAGGED)):
                with self.subTest(answer, command=command):
                    paths = [self.owned(f"{i}.mp3", 0o644, data) for i in range(20)]
                    paths[6].chmod(0o444)
                    result = self.run_restricted("--on-error", answer, *command, *paths)
                    is_done = [path.read_bytes() != data for path in paths]
                    status, is_fixed, goes_on = expected
                    self.assertEqual(result.returncode, status)
                    self.assertEqual(is_done, [True] * 6 + [is_fixed] + [goes_on] * 13)
                    self.assert_one_line(result.stderr, paths[6], "Permission denied")
                    for path in paths:
                        path.unlink()

    def test_questions(self):
        # What is typed -> exit status, which of the read-only files are done, questions asked.
        for typed, expected in {"c\nwhat\nf all\n": (1, [False, True, True, True], 3),
                                "c all\n": (1, [False] * 4, 1),
                                "f\nq\n": (1, [True, False, False, False], 2),
                                "\x04": (1, [False] * 4, 1)}.items():
            with self.subTest(typed):
                paths = [self.owned(f"{i}.mp3", 0o444) for i in range(4)]
                terminal, other_end = pty.openpty()
                os.write(terminal, typed.encode())
                process = subprocess.run(
                    RESTRICTED + self.command(*COMMANDS[2], *paths,
                                              program=self.program_for_everyone()),
                    env=self.environment(), stdin=other_end, stderr=other_end, timeout=60)
                is_done = [path.read_bytes() != audio() for path in paths]
                shown = os.read(terminal, 1 << 16).decode()
                questions = shown.count("[f]ix permissions, [c]ancel, [q]uit")
                self.assertEqual((process.returncode, is_done, questions), expected, shown)
                os.close(terminal)
                os.close(other_end)
                for path in paths:
                    path.unlink(missing_ok=True)


class UsageTest(CommandTest):
    def test_wrong_usage_touches_nothing(self):
        self.file("cover.jpg", picture("mjpeg"))
        self.file("note.txt", b"text")
        setting = "lirra.tagging.ID3v2Version"
        for arguments, parts in (
                (["set", "-t", "titel=X"], ["titel", "“title”"]),
                (["set", "-t", "albumartist=X"], ["“albumArtist”"]),
                (["set", "-t", "bitRate=1"], ["bitRate"]),
                (["set", "-t", "title"], ["title", "KEY=VALUE"]),
                (["set", "-t", "=X"], ["=X", "KEY=VALUE"]),
                (["set", "-t", "year=X"], ["year=X", "number"]),
                (["set", "-t", "year=99999999999"], ["year=99999999999", "number"]),
                (["set", "-t", "releaseTime=soon"], ["releaseTime=soon", "date"]),
                (["set", "-t", "releaseTime=2004-02-30"], ["releaseTime=2004-02-30", "date"]),
                (["set", "-t", "isPodcast=maybe"], ["isPodcast=maybe", "true"]),
                (["set", "-t", "title=new", "-t", "year=X"], ["year=X"]),
                (["set", "-t", "ti\x1Btel\n=X"], ["\\x1b", "\\x0a"]),
                (["set", "--artwork", "missing.jpg"], ["missing.jpg", "No such file"]),
                (["set", "--artwork", "note.txt"], ["note.txt", "no image"]),
                (["set", "--artwork", "."], ["--artwork .", "Is a directory"]),
                (["set"], ["Nothing to set"]),
                (["-D", setting, "strip"], [setting, "KEY=VALUE"]),
                (["-D", "=48", "strip"], ["=48", "KEY=VALUE"]),
                (["-D", f"{setting}=5", "strip"], [f"{setting}=5", "316"]),
                (["-D", "lirra.tagging.MPEG.APE=maybe", "strip"], ["maybe", "true"]),
                (["-D", "no.such.setting=1", "strip"], ["no.such.setting"])):
            self.check(arguments, lambda text, parts=parts: self.assert_one_line(text, *parts))

    def test_wrong_command_line_touches_nothing(self):
        for arguments in (["set", "--artwork", "cover.jpg", "--no-artwork"], ["transmogrify"],
                          ["strip", "--wrong"], ["--on-error", "never", "strip"]):
            self.check(arguments, lambda text: self.assertIn("--help", text))
        for arguments in ([], ["show"], ["strip"], ["set", "-t", "title=new"]):
            with self.subTest(arguments=arguments):
                result = self.run_program(*arguments)
                self.assertEqual((result.returncode, result.stdout), (2, ""))
                self.assertIn("--help", result.stderr)

    def check(self, arguments, check_message):
        with self.subTest(arguments=arguments):
            path = self.file(data=TAGGED)
            before = path.read_bytes()
            result = self.run_program(*arguments, path)
            self.assertEqual((result.returncode, result.stdout), (2, ""))
            self.assertEqual(path.read_bytes(), before)
            check_message(result.stderr)


class EditingTest(CommandTest):
    def test_dry_run(self):
        cover = self.file("cover.png", picture("png"))
        for arguments, parts in ((["set", "-t", "title=new"], ["old", "new"]),
                                 (["set", "-t", "title="], ["old", "nothing"]),
                                 (["set", "-t", "rating=300"], ["255"]),
                                 (["set", "--artwork", cover], ["artwork"]),
                                 (["strip"], ["ID3v2.4"])):
            with self.subTest(arguments=arguments):
                path = self.file(data=TAGGED)
                before, changed = path.read_bytes(), path.stat().st_mtime_ns
                result = self.run_program("--dry-run", *arguments, path)
                self.assertEqual((result.returncode, result.stderr), (0, ""))
                for part in [str(path), *parts]:
                    self.assertIn(part, result.stdout)
                self.assertEqual((path.read_bytes(), path.stat().st_mtime_ns), (before, changed))

    def test_dry_run_refuses(self):
        path = self.file(data=TAGGED)
        result = self.run_program("--dry-run", "set", "-t", "genre=12", path)
        self.assertEqual(result.returncode, 1)
        self.assert_one_line(result.stderr, str(path))
        self.assertEqual(path.read_bytes(), TAGGED)

    def test_removal(self):
        path = self.file()
        self.set_tags(path, {"title": "T", "album": "A", "trackNumber": 3, "trackTotal": 12,
                             "isPartOfACompilation": "true"},
                      "--artwork", self.file("cover", picture("mjpeg")))
        artwork = self.show(path)["artwork"]
        self.assertEqual((artwork["imageType"], artwork["imageSize"]), ("JPG", "{32, 32}"))
        self.set_tags(path, {"album": "", "trackNumber": "", "isPartOfACompilation": "false"},
                      "--no-artwork")
        self.assertNotIn("artwork", self.show(path))
        self.assertEqual(self.tags(path), {"title": "T", "trackTotal": 12})

    def test_values_that_are_there_already(self):
        path = self.file(data=TAGGED)
        changed = path.stat().st_mtime_ns
        self.set_tags(path, {"title": "old", "album": ""})
        self.assertEqual((path.read_bytes(), path.stat().st_mtime_ns), (TAGGED, changed))

    def test_one_file_under_several_names(self):
        path = self.file()
        hard, soft = self.folder / "hard.mp3", self.folder / "soft.mp3"
        os.link(path, hard)
        soft.symlink_to(path)
        inode = path.stat().st_ino
        for given in ([path, path], [path, "./a.mp3"], [path, hard], [path, soft], [self.folder]):
            with self.subTest(given=given):
                self.assertEqual(self.run_program("strip", path).returncode, 0)
                result = self.run_program("set", "-t", "title=new", "-t", "lyrics=L", *given,
                                          v1=True)
                self.assertEqual((result.returncode, result.stderr), (0, ""))
                self.assertEqual(self.tags(hard), {"title": "new", "lyrics": "L"})
                self.assertEqual(path.read_bytes().count(audio()), 1)
                self.assertEqual((path.stat().st_ino, hard.stat().st_ino), (inode, inode))
                self.assertTrue(soft.is_symlink())
        self.assertEqual(len(self.shown_paths(path, path)), 1)


class NamesTest(CommandTest):
    def test_names_that_are_not_utf8(self):
        name = b"caf\xE9/\xFFa\xC3.mp3"
        path = self.file(name)
        for given in (path, path.parent):
            self.assertEqual(self.run_program("set", "-t", "title=new", given).returncode, 0)
            self.assertNotEqual(path.read_bytes(), audio())
            shown = self.show(given if given == path else path)
            self.assertEqual(shown["tags"], {"title": "new"})
            self.assertEqual(bytes.fromhex(shown["pathBytes"]), os.fsencode(path))
            self.assertTrue(shown["path"].endswith("caf\uFFFD/\uFFFDa\uFFFD.mp3"))
            self.assertEqual(self.run_program("strip", given).returncode, 0)
            self.assertEqual(path.read_bytes(), audio())
        self.assertEqual([os.fsencode(entry) for entry in os.listdir(path.parent)], [name[5:]])
        self.assertNotIn("pathBytes", self.show(self.file("é.mp3")))
        path.write_bytes(b"")
        result = self.run_program("show", path.parent)
        self.assertEqual(result.returncode, 1)
        self.assert_one_line(result.stderr, "\uFFFDa\uFFFD.mp3", NO_AUDIO)

    def test_control_characters(self):
        for character in "\n\r\x1B\x07\x7F\x9B":
            with self.subTest(repr(character)):
                name = f"a{character}[31mb.mp3"
                escaped = f"a\\x{ord(character):02x}[31mb.mp3"
                body = frame("TIT2", f"\3T{character}[31m".encode())
                path = self.file(name, id3v2(body) + audio())
                for command in (["show", "--frames"], ["--dry-run", "set", "-t", "title=x"],
                                ["--dry-run", "strip"]):
                    result = self.run_program(*command, path)
                    self.assertEqual((result.returncode, result.stderr), (0, ""))
                    self.assertIn(escaped, result.stdout)
                    self.assertTrue(result.stdout.replace("\n", "").isprintable())
                self.assertEqual(pathlib.Path(self.show(path)["path"]), path)
                result = self.run_program("show", self.file(name, b""))
                self.assertEqual(result.returncode, 1)
                self.assert_one_line(result.stderr, escaped)
                path.unlink()

    def test_order(self):
        names = ["1.mp3", "2.mp3", "9.MP3", "10.mp3", "A.mp3", "b.mp3", "disc 2/1.mp3",
                 "disc 2/more/1.mp3", "disc 10/1.mp3", "Éa.mp3", "ez.mp3", "track 9.mp3",
                 "track 10.mp3"]
        paths = [str(self.file(f"list/{name}")) for name in reversed(names)][::-1]
        self.file("list/note.txt", b"text")
        # Without a language, accented letters need not be sorted between the others.
        for locale, shown in (("en_US.UTF-8", paths), ("C.UTF-8", None), ("C", None)):
            with self.subTest(locale):
                found = self.shown_paths(self.folder / "list", LC_ALL=locale)
                plain = [path for path in found if path.isascii()]
                self.assertEqual(plain if shown is None else found,
                                 shown or [path for path in paths if path.isascii()])
        many = [str(self.file(f"many/{i}.mp3")) for i in range(700)]
        self.assertEqual(self.shown_paths(self.folder / "many"), many)
        given = [paths[4], paths[0], paths[12]]
        self.assertEqual(self.shown_paths(*given), given)


if __name__ == "__main__":
    unittest.main()
