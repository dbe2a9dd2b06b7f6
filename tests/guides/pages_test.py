#!/usr/bin/env python3
"""Runs the guides that show how to do something: writes their files, types their commands, compares what they print.

The page is the script. Two things differ from a reader's run of getting-started.md: the port is a free one, and the page's
first section is replaced by an installation of the build under test. With --from-source the first section is run as well, in
a copy of the sources.

Usage: pages_test.py SOURCE_FOLDER BUILD_FOLDER [--from-source]
"""
import os
import pathlib
import shutil
import socket
import subprocess
import sys
import tempfile
import unittest

sys.dont_write_bytecode = True
from page_script import blocks, run_page

PAGE_PORT = "8000"
PATIENCE = 600 # seconds
PATIENCE_FROM_SOURCE = 3000 # everything is compiled


def free_port():
    with socket.socket() as probe:
        probe.bind(("127.0.0.1", 0))
        return str(probe.getsockname()[1])


class Extraction(unittest.TestCase):
    def setUp(self):
        holder = tempfile.TemporaryDirectory()
        self.addCleanup(holder.cleanup)
        self.folder = holder.name

    def run_text(self, page, patience=30):
        return run_page(page, self.folder, dict(os.environ), patience)

    def test_files_are_written_and_commands_are_run_in_order(self):
        output = self.run_text("Save this as `a.txt`:\n\n```cpp\none $HOME\n```\n\n```sh\ncat a.txt\ncd /\n```\n\n"
                               "```text\none $HO\n```\n\n```sh\npwd\n```\n\n```text\n/\n```\n")
        self.assertIn("one $HOME\n", output)

    def test_a_command_that_fails_is_found(self):
        for commands in ("false\ntrue", "no-such-command-here", "false | cat", "cat $UNSET_NAME"):
            with self.subTest(commands), self.assertRaisesRegex(AssertionError, "a command of the page ended with [0-9]"):
                self.run_text(f"```sh\n{commands}\n```\n")

    def test_a_command_that_does_not_end_is_found(self):
        with self.assertRaisesRegex(AssertionError, "a command of the page ended with no end"):
            self.run_text("```sh\ncat /dev/zero > /dev/null\n```\n", patience=0.5)

    def test_output_that_differs_is_found(self):
        for shown in ("two", "two\none", "one\none", "one\nthree"):
            with self.subTest(shown), self.assertRaisesRegex(AssertionError, "the page shows the line"):
                self.run_text(f"```sh\necho one\n```\n\n```text\n{shown}\n```\n")


class Pages(unittest.TestCase):
    def setUp(self):
        holder = tempfile.TemporaryDirectory()
        self.addCleanup(holder.cleanup)
        self.work = pathlib.Path(holder.name)
        self.work.chmod(0o755)
        os.umask(0o022) # what only its owner may read is not served
        self.home = self.work / "home"
        self.home.mkdir(mode=0o700)
        (self.work / "GNUstep.conf").write_text(f"GNUSTEP_USER_DEFAULTS_DIR={self.home}/Defaults\n")
        self.environment = {"HOME": str(self.home), "PATH": os.environ["PATH"], "LANG": "C.UTF-8",
                            "XDG_RUNTIME_DIR": str(self.home), "GNUSTEP_CONFIG_FILE": str(self.work / "GNUstep.conf")}

    def install(self):
        subprocess.run(["cmake", "--install", BUILD, "--prefix", self.home / "pelnar"], check=True, stdout=subprocess.DEVNULL)

    def page(self, name):
        return (SOURCE / "docs/guide" / name).read_text(encoding="utf-8")

    def test_getting_started_ends_with_an_application_that_has_updated_itself(self):
        page = self.page("getting-started.md")
        self.assertGreater(page.count(PAGE_PORT), 2)
        page = page.replace(PAGE_PORT, free_port())
        if FROM_SOURCE:
            folder = self.work / "sources"
            shutil.copytree(SOURCE, folder, symlinks=True, ignore=shutil.ignore_patterns("build", ".git"))
            print(run_page(page, folder, self.environment, PATIENCE_FROM_SOURCE))
            return
        first, rest = page.split("\n## 2.", 1)
        self.assertEqual([kind for _, kind, _ in blocks(first)], ["sh"], "the first section installs, and does nothing else")
        self.install()
        print(run_page("## 2." + rest, self.work, self.environment, PATIENCE))

    def test_keys(self):
        if FROM_SOURCE:
            self.skipTest("the default run has done this")
        self.install()
        self.environment["PATH"] = f"{self.home}/pelnar/bin:{self.environment['PATH']}"
        print(run_page(self.page("keys.md"), self.work, self.environment, PATIENCE))


if __name__ == "__main__":
    FROM_SOURCE = "--from-source" in sys.argv
    SOURCE, BUILD = (pathlib.Path(argument).resolve() for argument in sys.argv[1:3])
    unittest.main(argv=sys.argv[:1])
