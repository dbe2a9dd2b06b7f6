"""The tests that documents name in their tables, and the tests that a build has.

In a document a name is `folder: Suite.Test` in the last column of a table. The folder may be left out behind a name of the
same folder, and the suite as well (`.Test`). "*" and "…" stand for any characters. `folder: *` is all of a folder's tests, and `name.part`
without a folder a test that is no GoogleTest program. `target` behind "fuzz target" is a folder's program in fuzz/.
"""
import re

NAME = re.compile(r"`(?:(?P<folder>[a-z_]+(?:/[a-z_]+)*): )?(?P<test>[\w./*…]+)`")
FUZZ = re.compile(r"fuzz targets?((?:(?:,| and)? `[a-z_]+`)+)")
# The name of a row is followed by its content.
CTEST = re.compile(r"^ *add_test\((?:\[=\[)?(?P<name>[^\s\]]+)", re.MULTILINE)


def tests_of(build):
    """(folder, name without its program) of each test, and the test programs that are not built."""
    tests, missing = set(), []
    root = build / "tests"
    folders = [root]
    while folders:
        folder = folders.pop()
        place = folder.relative_to(root).as_posix()
        text = (folder / "CTestTestfile.cmake").read_text(encoding="utf-8")
        folders += [folder / name for name in re.findall(r'^subdirs\("(.*)"\)$', text, re.MULTILINE)]
        tests |= {(place, match["name"]) for match in CTEST.finditer(text)}
        for include in re.findall(r'^include\(".*/(.*)_include\.cmake"\)$', text, re.MULTILINE):
            listed = folder / f"{include}_tests.cmake"
            if not listed.exists():
                missing.append(include.split("[")[0])
                continue
            tests |= {(place, match["name"].split(".", 1)[1]) for match in CTEST.finditer(listed.read_text(encoding="utf-8"))}
    return tests, missing


def named(document):
    """(line, folder or None, pattern) of each name, and (line, target) of each fuzz target, in the last columns of tables."""
    names, targets = [], []
    for number, line in enumerate(document.splitlines(), 1):
        if not line.startswith("| ") or not line.endswith(" |"):
            continue
        column = line[:-2].rsplit(" | ", 1)[-1]
        for fuzz in FUZZ.finditer(column):
            targets += [(number, target) for target in re.findall(r"`(\w+)`", fuzz.group(1))]
        column = FUZZ.sub("", column)
        folder = suite = None
        for match in NAME.finditer(column):
            test = match["test"]
            if not match["folder"] and ("." not in test or test.startswith("scripts/")):
                continue
            if not match["folder"] and test[0].islower():
                names.append((number, None, test))
                continue
            folder = match["folder"] or folder
            if test.startswith("."):
                test = f"{suite}{test}"
            suite = test.rsplit(".", 1)[0]
            names.append((number, folder, test))
    return names, targets


def is_there(folder, pattern, tests):
    """A pattern that ends without a wildcard matches a whole name, with or without the row of a table behind it."""
    expression = "".join(".*" if part in "*…" else re.escape(part) for part in re.split(r"([*…])", pattern) if part)
    wanted = re.compile(rf"(?:[^/]*/)?(?:{expression})(?:/.*)?$")
    return any((folder is None or folder == place) and wanted.match(name) for place, name in tests)
