#!/usr/bin/env python3
"""Holds the guides to the code that the tests run: each block of code below a line "`path`:" is that file, to the byte.

Usage: guide_test.py SOURCE_FOLDER
"""
import pathlib
import re
import sys
import unittest

BLOCK = re.compile(r"^`(?P<path>[\w./-]+)`:\n\n```\w*\n(?P<text>.*?)^```$", re.MULTILINE | re.DOTALL)


def blocks(guide):
    return [(match["path"], match["text"]) for match in BLOCK.finditer(guide)]


class Guides(unittest.TestCase):
    def test_every_block_is_its_file(self):
        shown = set()
        for guide in sorted((SOURCE / "docs/guide").glob("*.md")):
            for path, text in blocks(guide.read_text(encoding="utf-8")):
                shown.add(path)
                with self.subTest(guide=guide.name, file=path):
                    self.assertEqual(text, (SOURCE / path).read_text(encoding="utf-8"))
        folder = SOURCE / "tests/package/own_host"
        self.assertLessEqual({str(path.relative_to(SOURCE)) for path in folder.iterdir() if path.name != "LICENSE.txt"}, shown,
                             "the guide shows the whole example")

    def test_a_changed_block_is_found(self):
        guide = "Text.\n\n`a/b.txt`:\n\n```cpp\none\ntwo\n```\n\nMore.\n\n```\nno file\n```\n"
        self.assertEqual(blocks(guide), [("a/b.txt", "one\ntwo\n")])


if __name__ == "__main__":
    SOURCE = pathlib.Path(sys.argv.pop(1)).resolve()
    unittest.main()
