"""Tags from names, and tags from tags: what is done is what the dry run says."""

import json
import unittest

from lirra_program import ProgramTest, audio, frame, id3v2

TAGGED = id3v2(frame("TIT2", b"\0old")) + audio()


class ConversionTest(ProgramTest):
    def states(self, paths):
        return [(path.read_bytes(), path.stat().st_mtime_ns) for path in paths]

    def convert(self, *arguments, paths):
        """What the files' tags have become, exit status and standard error. The dry runs must tell
        exactly that before, and change nothing."""
        before = [self.tags(path) for path in paths]
        states = self.states(paths)
        dry = self.run_program("--dry-run", *arguments, *paths)
        dry_json = self.run_program("--dry-run", *arguments, "--json", *paths)
        self.assertEqual(self.states(paths), states)
        real = self.run_program(*arguments, *paths)
        self.assertEqual(real.stdout, "")
        for run in (dry, dry_json):
            self.assertEqual((run.returncode, run.stderr), (real.returncode, real.stderr))
        told = {record.pop("path"): record
                for record in map(json.loads, dry_json.stdout.splitlines())}
        after = [self.tags(path) for path in paths]
        text = ""
        for path, old, new in zip(paths, before, after):
            changes = {key: {"old": old.get(key), "new": new.get(key)}
                       for key in sorted(old | new) if old.get(key) != new.get(key)}
            record = told.get(str(path), {})
            self.assertEqual(record.get("changes", {}), changes)
            self.assertEqual(f"{path}: {record.get('error')}\n" in real.stderr, "error" in record)
            lines = [f"  {key}: {shown(change['old'])} -> {shown(change['new'])}\n"
                     for key, change in changes.items()]
            lines += [f"  there is no {token}\n" for token in record.get("missing", [])]
            text += "".join([f"{path}\n", *lines]) if lines else ""
        self.assertEqual(sorted(dry.stdout.splitlines()), sorted(text.splitlines()))
        return after, real.returncode, real.stderr

    def test_tags_from_a_name_or_an_attribute(self):
        # The name of a file with the title "old" -> its tags then.
        for name, arguments, expected in (
                ("07 - Intro.mp3", ["--pattern", "%trackNumber% - %title%"],
                 {"trackNumber": 7, "title": "Intro"}),
                ("Band/Album/07.mp3", ["--from", "filePath", "--pattern", "Band/%album%/%title%"],
                 {"album": "Album", "title": "07"}),
                ("1.mp3", ["--from", "title", "--pattern", "o%album%"],
                 {"title": "old", "album": "ld"}),
                ("1999-05-06 [x].mp3", ["--pattern", r"%releaseTime%%(\s+)%[%title%]"],
                 {"releaseTime": "1999-05-06T00:00:00Z", "title": "x"}),
                ("a (x) 1999.mp3", ["--regex", "--pattern", r"(a|b) \((\w)(\)) %year%(?:%album%)?"],
                 {"title": "old", "year": 1999}),
                ("old.mp3", ["--pattern", "%title%"], {"title": "old"})):
            with self.subTest(name):
                tags, *outcome = self.convert("tags", *arguments, paths=[self.file(name, TAGGED)])
                self.assertEqual((tags, outcome), ([expected], [0, ""]))

    def test_files_that_do_not_match(self):
        paths = [self.file(name, TAGGED) for name in ("1 a.mp3", "b.mp3", "3 c.mp3")]
        tags, status, error = self.convert("tags", "--pattern", "%trackNumber% %title%",
                                           paths=paths)
        self.assertEqual(tags, [{"trackNumber": 1, "title": "a"}, {"title": "old"},
                                {"trackNumber": 3, "title": "c"}])
        self.assertEqual((status, error),
                         (1, f"lirra-cli: {paths[1]}: The pattern does not match “b”\n"))
        _, status, error = self.convert("tags", "--from", "album", "--pattern", "%title%",
                                        paths=paths[:1])
        self.assertEqual((status, error), (1, f"lirra-cli: {paths[0]}: The file has no album\n"))

    def test_compose(self):
        # Options and pattern -> the comment of a file with the title "A/B" and track 3.
        for arguments, expected in (
                (["[%title%]"], "[A:B]"), (["%trackNumber%%%%title%"], "03%A:B"),
                (["%trackNumber%", "--no-padding"], "3"),
                (["<%title%;>", "--ntfs"], "AB;"), (["<%title%;>", "--smb"], "<A:B>"),
                (["%album%"], "Unknown Album"), (["-%album%", "--fallback", "empty"], "-"),
                (["-%album%", "--fallback", "skip"], None)):
            with self.subTest(arguments):
                path = self.file()
                self.set_tags(path, {"title": "A/B", "trackNumber": 3, "comment": "old"})
                tags, *outcome = self.convert("compose", "--to", "comment", "--pattern",
                                              *arguments, paths=[path])
                self.assertEqual((tags[0].get("comment"), outcome), (expected, [0, ""]))

    def test_compose_ends_at_a_text_that_is_no_value(self):
        for refused, reason in (("three", "Number could not be parsed"),
                                ("99999999999", "Number is too big")):
            paths = [self.file(f"{title}.mp3", id3v2(frame("TIT2", b"\0" + title.encode())) + audio())
                     for title in ("1", refused, "3")]
            tags, status, error = self.convert("compose", "--to", "year", "--pattern", "%title%",
                                               paths=paths)
            self.assertEqual([file.get("year") for file in tags], [1, None, None])
            self.assertEqual((status, error), (1, f"lirra-cli: {paths[1]}: {reason}\n"
                                                  "lirra-cli: No further files are changed\n"))

    def test_wrong_usage_touches_nothing(self):
        path = self.file(data=TAGGED)
        for arguments, part in (
                (["tags", "--pattern", "%titel% x"], "“title”"),
                (["tags", "--pattern", "%fileName%"], "fileName"),
                (["tags", "--pattern", "x"], "no token"),
                (["tags", "--regex", "--pattern", "(%title%"], "Regular Expression is invalid"),
                (["tags", "--from", "albun", "--pattern", "%title%"], "“album”"),
                (["tags", "--json", "--pattern", "%title%"], "--dry-run"),
                (["compose", "--to", "bitRate", "--pattern", "%title%"], "no tag “bitRate”"),
                (["compose", "--to", "album", "--pattern", r"%(\d+)%"], r"(\d+)"),
                (["compose", "--to", "album", "--pattern", b"\xFF"], "UTF-8"),
                (["compose", "--to", "album"], "--pattern"),
                (["compose", "--to", "album", "--pattern", "x", "--fallback", "x"], "--fallback")):
            with self.subTest(arguments=arguments):
                result = self.run_program(*arguments, path)
                self.assertEqual((result.returncode, result.stdout), (2, ""))
                self.assertIn(part, result.stderr)
                self.assertEqual(path.read_bytes(), TAGGED)

    def test_tokens(self):
        lines = self.run_program("tokens").stdout.splitlines()
        tokens = dict(line.split("%", 2)[1:] for line in lines)
        self.assertEqual({name: tokens[name].strip() for name in ("albumArtist", "(.+)")},
                         {"albumArtist": "Album Artist", "(.+)": "Wildcard"})


def shown(value):
    return "nothing" if value is None else f"“{value}”"


if __name__ == "__main__":
    unittest.main()
