#!/usr/bin/env python3
"""Proof that a change of the binary interface is found: the update manager's source is compiled with changed headers.

Usage: abi_self_test.py BUILD
"""
import json
import pathlib
import shlex
import sys
import tempfile
import unittest

sys.dont_write_bytecode = True
import abi

MANAGER = "App/UpdateChecker/UpdateManager.cpp"
HEADER = "App/UpdateChecker/UpdateManager.h"
OBSERVER = "App/UpdateChecker/IUpdateManagerObserver.h"
INTERFACE = "App/UpdateChecker/IUpdateManager.h"
BODY = "IUpdateManager* UpdateManager::GetCurrentUpdateManager()\n{\n    return s_updateManager;"
OPENING = "    virtual void OnUpdateDialogOpening() = 0;\n"
FIELD = "        QObject* parent;"
# Changes that an older program would miss: for each file, a text in it and its replacement.
CHANGES = {
    "a virtual function more": {OBSERVER: (OPENING, "    virtual void OnMore() = 0;\n" + OPENING)},
    "a virtual function less": {OBSERVER: (OPENING, "")},
    "other parameters of a virtual function": {OBSERVER: ("OnUpdateDialogOpening()", "OnUpdateDialogOpening(int)")},
    "a field more in a base": {INTERFACE: ("    virtual ~IUpdateManager", "    int more = 0;\n    virtual ~IUpdateManager")},
    "a field more": {HEADER: (FIELD, "        int more = 0;\n" + FIELD)},
    "another number of an enumerator": {"App/UpdateChecker/UpdateCheckMode.h": ("Silent = 2", "Silent = 3")},
    "a result of another type": {HEADER: ("static IUpdateManager* GetCurrent", "static QObject* GetCurrent"),
                                 MANAGER: (BODY, "QObject* UpdateManager::GetCurrentUpdateManager()\n{\n    return nullptr;")},
}


class ChangedHeader(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.holder = tempfile.TemporaryDirectory()
        cls.work = pathlib.Path(cls.holder.name)
        cls.kept = cls.work / "Kept.abi"
        cls.plain = cls.compile("plain", {})
        abi.describe(cls.plain, cls.kept)
        (cls.work / "Kept.names").write_text("\n".join(abi.names(cls.plain)))

    @classmethod
    def tearDownClass(cls):
        cls.holder.cleanup()

    @classmethod
    def compile(cls, name, changes, *flags):
        """A library of the manager alone, with changed files."""
        folder = cls.work / name.replace(" ", "_")
        folder.mkdir()
        for path, (before, after) in changes.items():
            text = (abi.SOURCE / path).read_text()
            assert before in text, f"{path} has no {before!r} any more"
            (folder / path).parent.mkdir(parents=True, exist_ok=True)
            (folder / path).write_text(text.replace(before, after))
        source = folder / MANAGER if MANAGER in changes else abi.SOURCE / MANAGER
        commands = json.loads((BUILD / "compile_commands.json").read_text())
        command = shlex.split(next(entry["command"] for entry in commands if entry["file"] == str(abi.SOURCE / MANAGER)))
        end, first = command.index("-o"), next(i for i, word in enumerate(command) if word.startswith("-I"))
        abi.run(*command[:first], f"-I{folder}", *command[first:end], *flags, "-o", folder / "manager.o", "-c", source)
        script = abi.SOURCE / "App/UpdateChecker/PelnarUpdateChecker.map"
        # The other members of the manager are missing.
        abi.run("clang++", "-shared", "-fuse-ld=lld", f"-Wl,--version-script={script}", "-Wl,-soname,libmanager.so.1",
                "-Wl,--noinhibit-exec", folder / "manager.o", "-o", folder / "libmanager.so")
        return folder / "libmanager.so"

    def test_every_change_is_found(self):
        for name, changes in CHANGES.items():
            with self.subTest(name):
                self.assertNotEqual(abi.differences(self.kept, self.compile(name, changes)), "")

    def test_nothing_is_found_where_only_a_comment_or_a_private_part_is_another(self):
        variable = "IUpdateManager* s_updateManager"
        again = self.compile("again", {HEADER: ("#pragma once", "#pragma once // another word"),
                                       MANAGER: (variable, "[[maybe_unused]] int more = 0;\n" + variable)})
        self.assertEqual(abi.differences(self.kept, again), "")
        self.assertEqual(abi.lost_names(self.work / "Kept.names", again), ([], []))

    def test_a_function_that_is_gone_is_named(self):
        renamed = ("GetCurrentUpdateManager", "GetUpdateManager")
        gone = self.compile("gone", {HEADER: renamed, MANAGER: renamed})
        lost, new = abi.lost_names(self.work / "Kept.names", gone)
        self.assertEqual(abi.readable(lost), ["Pelnar::App::UpdateManager::GetCurrentUpdateManager() of PELNAR_1.0"])
        self.assertEqual(abi.readable(new), ["Pelnar::App::UpdateManager::GetUpdateManager() of PELNAR_1.0"])

    def test_every_public_class_is_described(self):
        # The session has its own library. Only it reads the keys of the settings.
        self.assertEqual(abi.missing_types(abi.SOURCE / "abi"), ["SettingKey", "SparkleManager"])


if __name__ == "__main__":
    BUILD = pathlib.Path(sys.argv.pop(1)).resolve()
    unittest.main()
