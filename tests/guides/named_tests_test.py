#!/usr/bin/env python3
"""Every test that docs/guide/security.md, docs/fault-model.md and the table of known attacks name exists in this build.

Usage: named_tests_test.py SOURCE_FOLDER BUILD_FOLDER
"""
import pathlib
import sys
import tempfile
import unittest

sys.dont_write_bytecode = True
from named_tests import is_there, named, tests_of

SKIPPED = 77


class Documents(unittest.TestCase):
    def expect_names(self, path, fewest):
        names, targets = named((SOURCE / path).read_text(encoding="utf-8"))
        self.assertGreater(len(names), fewest)
        for line, folder, pattern in names:
            with self.subTest(f"{path}:{line}", folder=folder, test=pattern):
                self.assertTrue(is_there(folder, pattern, TESTS), "there is no such test")
        fuzz = (SOURCE / "fuzz/CMakeLists.txt").read_text(encoding="utf-8")
        for line, target in targets:
            with self.subTest(f"{path}:{line}", fuzz_target=target):
                self.assertRegex(fuzz, rf"\b{target}\b")

    def test_security(self):
        self.expect_names("docs/guide/security.md", 60)

    def test_fault_model(self):
        self.expect_names("docs/fault-model.md", 300)

    def test_every_known_attack_names_a_test(self):
        path = "docs/formats/key-statement.md"
        table = (SOURCE / path).read_text(encoding="utf-8").split("\n## Known attacks", 1)[1]
        rows = [row for row in table.splitlines() if row.startswith("| ")][2:]
        self.assertEqual([row.split(" | ")[0][2:] for row in rows], [
            "arbitrary software", "endless data", "extraneous dependencies", "fast-forward", "indefinite freeze", "malicious mirror",
            "mix and match", "rollback", "slow retrieval", "vulnerability to key compromise", "wrong software"])
        for row in rows:
            self.assertTrue(named(row)[0], row)
        self.expect_names(path, 30)

    def test_every_guarantee_names_a_test(self):
        page = (SOURCE / "docs/guide/security.md").read_text(encoding="utf-8")
        table = page.split("\n## What is guaranteed", 1)[1].split("\n## ", 1)[0]
        rows = [row for row in table.splitlines() if row.startswith("| ")][2:]
        for row in rows:
            if not row.startswith("| **"):
                self.assertTrue(named(row)[0], row)


class Names(unittest.TestCase):
    def test_are_read_from_the_last_column(self):
        text = ("| a `no: Name.Here` | `x/y: One.*`, `Two.Rest…`, `.Other`, under `z: Three` | \n"
                "`no: Table.Here`\n"
                "| a | `x/y: One.*`, `Two.Rest…`, `.Other`; `bare.*`; measured by `scripts/bench x`; fuzz targets `f` and `g_h`, `Four.*` |\n"
                "| a | `x: Suite*` with `--long` |\n")
        self.assertEqual(named(text), ([(3, "x/y", "One.*"), (3, "x/y", "Two.Rest…"), (3, "x/y", "Two.Other"), (3, None, "bare.*"),
                                        (3, "x/y", "Four.*"), (4, "x", "Suite*")], [(3, "f"), (3, "g_h")]))

    def test_match_whole_tests(self):
        tests = {("a", "One.Works"), ("a", "Table/Two.Rows/First"), ("b", "Three.Works")}
        for folder, pattern in (("a", "One.Works"), ("a", "One.*"), ("a", "One.Wo…"), ("a", "Two.Rows"), ("a", "Table/Two.*"),
                                ("a", "Two.*First"), (None, "Three.*"), ("a", "Tw*")):
            self.assertTrue(is_there(folder, pattern, tests), pattern)
        for folder, pattern in (("a", "One.Work"), ("a", "ne.Works"), ("b", "One.*"), ("a", "Two"), ("a", "Four.*"), (None, "Rows.*")):
            self.assertFalse(is_there(folder, pattern, tests), pattern)

    def test_are_read_from_a_build(self):
        with tempfile.TemporaryDirectory() as holder:
            folder = pathlib.Path(holder) / "tests/a/b"
            folder.mkdir(parents=True)
            (folder.parent.parent / "CTestTestfile.cmake").write_text('# all\nsubdirs("a/b")\n')
            (folder / "CTestTestfile.cmake").write_text('include("/x/one_test[1]_include.cmake")\ninclude("/x/two_test[1]_include.cmake")\n'
                                                        'add_test([=[plain.name]=] "python3")\nadd_test(other "x")\n')
            (folder / "one_test[1]_tests.cmake").write_text("add_test([=[one_test.T/Suite.Test/Row  # GetParam() = 5]=] one)\n")
            self.assertEqual(tests_of(pathlib.Path(holder)),
                             ({("a/b", "plain.name"), ("a/b", "other"), ("a/b", "T/Suite.Test/Row")}, ["two_test"]))


if __name__ == "__main__":
    SOURCE, BUILD = (pathlib.Path(argument).resolve() for argument in sys.argv[1:3])
    TESTS, missing = tests_of(BUILD)
    if missing:
        print(f"{__file__}:0: Skipped\nthe tests of programs that are not built are not known: {' '.join(missing)}")
        sys.exit(SKIPPED)
    unittest.main(argv=sys.argv[:1])
