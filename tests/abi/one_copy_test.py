#!/usr/bin/env python3
"""What the libraries remember stands once in a process: none of their variables is in two of them.

Usage: one_copy_test.py BUILD
"""
import itertools
import pathlib
import re
import subprocess
import sys

LIBRARIES = ("App/UpdateChecker/libPelnarUpdateChecker.so", "App/UpdateChecker/libPelnarUpdateSession.so",
             "HostFramework/Reference/libPelnarHostFramework.so", "Engine/objc/libPelnarUpdateEngine.so")
# Filled at load time and never changed.
CONSTANTS = {"Pelnar::App::NagScreen::MajorUpdate", "Pelnar::LINK_KEY_NAMES[abi:cxx11]"}


def run(*command):
    return subprocess.run(list(map(str, command)), check=True, capture_output=True, text=True).stdout


def writable_sections(library):
    """The numbers of the sections that hold variables; what is relocated and then read only is none."""
    found = set()
    for line in run("readelf", "--sections", "--wide", library).splitlines():
        match = re.match(r" *\[ *(\d+)\] (\.(?:bss|data|tbss|tdata)) ", line)
        if match:
            found.add(match[1])
    return found


def variables(library):
    sections = writable_sections(library)
    found = set()
    for line in run("readelf", "--symbols", "--wide", library).splitlines():
        words = line.split()
        if len(words) >= 8 and words[3] in ("OBJECT", "TLS") and words[6] in sections:
            found.add(words[7].split("@")[0])
    names = run("c++filt", *sorted(found)).splitlines()
    return {name.removeprefix("guard variable for ") for name in names if "Pelnar::" in name
            and not re.match(r"(vtable|typeinfo|typeinfo name|VTT) for ", name) and not name.endswith("staticMetaObject")}


def main():
    build = pathlib.Path(sys.argv[1])
    held = {library: variables(build / library) for library in LIBRARIES}
    failed = False
    for library, names in held.items():
        print(f"{library}: {len(names)} variables")
        failed |= not names
    for first, second in itertools.combinations(LIBRARIES, 2):
        for name in sorted(held[first] & held[second] - CONSTANTS):
            print(f"{name} is in {first} and in {second}")
            failed = True
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
