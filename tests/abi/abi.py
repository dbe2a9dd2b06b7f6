#!/usr/bin/env python3
"""The binary interface of the public libraries, beside the one that is kept in abi/.

Usage: abi.py check BUILD KEPT     what a program that was built before would miss is told, and ends with 1
       abi.py refresh BUILD KEPT   keeps the interface as it is now

KEPT has two files for each library: the names that it exports, with their versions, and abidw's description of the types, which
needs debugging information. Without that, or without abidw, the names alone are compared.
"""
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile

SOURCE = pathlib.Path(__file__).resolve().parent.parent.parent
LIBRARIES = {"PelnarUpdateChecker": "App/UpdateChecker", "PelnarHostFramework": "HostFramework/Reference"}
FOLDERS = ("App", "HostFramework", "common", "Engine/include/Pelnar")
OWN_FOLDERS = {"Choice", "SessionLibrary"}
OWN_HEADERS = {"LogReadiness.h", "LogSite.h", "RelaunchLimits.h", "RunningBox.h", "SessionDialogs.h", "UpdateFiles.h"}
SUPPRESSIONS = SOURCE / "tests/abi/foreign.abignore"
REFRESH = "If it is meant, add to the version in the library's .map file or begin a new one, and run scripts/abi --refresh."


def run(*command):
    return subprocess.run(list(map(str, command)), check=True, capture_output=True, text=True).stdout


def public_headers():
    """What is installed; cmake/PelnarInstall.cmake says the same."""
    found = (path for folder in FOLDERS for path in (SOURCE / folder).rglob("*.h"))
    return sorted(path for path in found if not path.name.endswith("_p.h") and not path.name.startswith("PelnarSparkle")
                  and path.name not in OWN_HEADERS and not OWN_FOLDERS & set(path.parts))


def names(library):
    """The names that a library exports, with their versions. The weak ones are of inline parts: every program has its own."""
    lines = run("nm", "-D", "--defined-only", "--with-symbol-versions", library).splitlines()
    symbols = (line.split()[-2:] for line in lines)
    return sorted(name for kind, name in symbols if kind not in "AVW") # A is of the versions themselves


def has_types(library):
    return ".debug_info" in run("readelf", "--sections", "--wide", library)


def describe(library, file):
    """Writes what abidw says of the types that the public headers declare, and of nothing else that they use."""
    with tempfile.TemporaryDirectory() as folder:
        # abidw knows the headers by their names without folders.
        for header in public_headers():
            (pathlib.Path(folder) / header.name).touch()
        run("abidw", "--headers-dir", folder, "--drop-private-types", "--suppressions", SUPPRESSIONS, "--no-corpus-path",
            "--no-comp-dir-path", "--no-show-locs", "--no-elf-needed", "--no-write-default-sizes", "--no-parameter-names",
            "--type-id-style", "hash", "--out-file", file, library)


def lost_names(kept, library):
    """The kept names that the library no longer has, and those that are new."""
    before, now = set(kept.read_text().split()), set(names(library))
    return sorted(before - now), sorted(now - before)


def missing_types(kept):
    """The classes and structures of the public headers that no description holds whole."""
    text = "".join((kept / f"{name}.abi").read_text() for name in LIBRARIES)
    whole = {match["name"] for match in re.finditer(r"<class-decl name='(?P<name>\w+)'(?P<rest>[^>]*)>", text)
             if "is-declaration-only" not in match["rest"]}
    declared = set()
    for header in public_headers():
        lines = header.read_text().splitlines()
        for before, line in zip(["", *lines], lines):
            match = re.match(r"(?:class|struct) (?:PELNAR_EXPORT )?(\w+)(?: final)?(?: :.*)?$", line)
            if match and not before.startswith("template"):
                declared.add(match[1])
    return sorted(declared - whole)


def readable(symbols):
    """As a person writes them, with their versions."""
    plain = run("c++filt", *(symbol.partition("@")[0] for symbol in symbols)).splitlines() if symbols else []
    return [name + " of " + symbol.rpartition("@")[2] for name, symbol in zip(plain, symbols)]


def differences(kept, library):
    """abidiff's report of what has changed in types and functions; empty when nothing has."""
    with tempfile.TemporaryDirectory() as folder:
        current = pathlib.Path(folder) / kept.name
        describe(library, current)
        result = subprocess.run(["abidiff", "--harmless", kept, current], capture_output=True, text=True)
    return result.stdout + result.stderr if result.returncode else ""


def check_library(kept, name, library):
    """Sentences about what is not as it was."""
    lost, new = lost_names(kept / f"{name}.names", library)
    said = [f"{name} no longer has {symbol}" for symbol in readable(lost)]
    said += [f"{name} has {symbol}, which abi/ does not know yet" for symbol in readable(new)]
    if not has_types(library):
        print(f"{name}: {len(names(library))} names compared; it has no debugging information, so types are not")
    elif not shutil.which("abidw"):
        print(f"{name}: {len(names(library))} names compared; abidw is not installed, so types are not")
    elif report := differences(kept / f"{name}.abi", library):
        said.append(f"{name}: types or functions have changed:\n{report}")
    else:
        print(f"{name}: {len(names(library))} names and all types are as they were")
    return said


def main():
    verb, build, kept = sys.argv[1], pathlib.Path(sys.argv[2]), pathlib.Path(sys.argv[3])
    said = []
    for name, folder in LIBRARIES.items():
        library = build / folder / f"lib{name}.so"
        if verb == "refresh":
            (kept / f"{name}.names").write_text("".join(symbol + "\n" for symbol in names(library)))
            describe(library, kept / f"{name}.abi")
        else:
            said += check_library(kept, name, library)
    if said:
        print("\n".join([*said, REFRESH]))
    return 1 if said else 0


if __name__ == "__main__":
    sys.exit(main())
