#!/usr/bin/env python3
"""Every link of the project's documents leads to a file of the project, and to a heading of it where it names one.

Usage: links_test.py SOURCE_FOLDER
"""
import pathlib
import sys
import tempfile
import unittest

sys.dont_write_bytecode = True
from links import CODE, LINK, dead_links, documents


class Links(unittest.TestCase):
    def test_lead_somewhere(self):
        found = documents(SOURCE)
        self.assertGreater(len(found), 20)
        for document in found:
            with self.subTest(str(document.relative_to(SOURCE))):
                self.assertEqual(dead_links(SOURCE, document), [])

    def test_each_guide_is_reached_from_the_first_page(self):
        seen, waiting = set(), [SOURCE / "README.md"]
        while waiting:
            document = waiting.pop()
            if document in seen or document.suffix != ".md" or not document.is_file():
                continue
            seen.add(document)
            for match in LINK.finditer(CODE.sub("", document.read_text(encoding="utf-8"))):
                waiting.append((document.parent / match["target"].partition("#")[0]).resolve())
        self.assertLessEqual(set((SOURCE / "docs").rglob("*.md")), seen | set((SOURCE / "docs/decisions").iterdir()) |
                             set((SOURCE / "docs/formats").iterdir()))

    def test_dead_ones_are_found(self):
        with tempfile.TemporaryDirectory() as holder:
            root = pathlib.Path(holder).resolve()
            (root / "a.md").write_text("# One `two`, three\n\n[x](b.md) [y](b.md#no) [z](#one-two-three) [w](https://example.com) `[c](d)`\n"
                                       "[out](../../etc/passwd) [over\nlines](c.md)\n\n```\n# no heading\n[e](f)\n```\n[v](#no-heading)\n")
            (root / "b.md").write_text("text")
            self.assertEqual(dead_links(root, root / "a.md"), ["b.md#no", "../../etc/passwd", "c.md", "#no-heading"])


if __name__ == "__main__":
    SOURCE = pathlib.Path(sys.argv.pop(1)).resolve()
    unittest.main()
