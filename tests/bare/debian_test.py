#!/usr/bin/env python3
"""The updates of bare_test.py on fresh installations of Debian 12, made by debootstrap with the run-time packages of the baseline.

Usage: debian_test.py PUBLISHED BUILD FOLDER CASE...

Ends with 77 where that cannot be: without root, debootstrap, or a Debian server.
"""
import os
import pathlib
import shutil
import subprocess
import sys

sys.dont_write_bytecode = True
HERE = pathlib.Path(__file__).resolve().parent
sys.path.insert(0, str(HERE))

import baseline

BASELINE = HERE.parent.parent / "cmake/bundle/Baseline.txt"
SERVER = os.environ.get("PELNAR_DEBIAN_SERVER", "http://deb.debian.org/debian")
STATUS_SKIPPED = 77
# The packages of a system on which programs are built.
WORKSHOP = ("usr/bin/gcc", "usr/bin/clang", "usr/bin/cc", "usr/bin/ld", "usr/include/stdio.h", "usr/include/GNUstep")


def skip(reason):
    # The format of GoogleTest: scripts/skipped reads the reason.
    print(f"{__file__}:0: Skipped\n{reason}")
    return STATUS_SKIPPED


def install(packages, root, log):
    shutil.rmtree(root, ignore_errors=True)
    with open(log, "w") as file:
        # Its mounts end with the namespace, also when it fails.
        result = subprocess.run(["unshare", "--mount", "debootstrap", "--variant=minbase", f"--include={','.join(packages)}",
                                 "bookworm", root, SERVER], stdout=file, stderr=subprocess.STDOUT)
    if result.returncode != 0:
        return False
    found = [path for path in WORKSHOP if (root / path).exists()]
    assert not found, f"the system is not bare: it has {found}"
    with open(root / "etc/passwd", "a") as file:
        file.write("person:x:1000:1000:A Person:/home/person:/bin/sh\n")
    (root / "home/person").mkdir()
    return True


def why_not():
    if os.getuid() != 0:
        return "only root can install a Debian system"
    return "" if shutil.which("debootstrap") else "debootstrap is not installed"


def main():
    published, build, folder = map(pathlib.Path, sys.argv[1:4])
    if reason := why_not():
        return skip(reason)
    roots = folder / "roots"
    roots.mkdir(parents=True, exist_ok=True)
    for name, without in (("with_qt", ()), ("without_qt", ("qt",))):
        log = folder / f"{name}.log"
        if not install(baseline.packages(BASELINE, *without), roots / name, log):
            print(log.read_text()[-2000:])
            return skip(f"no Debian system could be installed from {SERVER}; see {log}")
    statuses = [subprocess.run([sys.executable, HERE / "bare_test.py", roots, published, build, case]).returncode
                for case in sys.argv[4:]]
    shutil.rmtree(roots)
    return 1 if any(statuses) else 0


if __name__ == "__main__":
    sys.exit(main())
