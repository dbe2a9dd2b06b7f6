"""The baseline as files: which packages bundles count on, what belongs to them, and a root file system of nothing else.

Usage: baseline.py BASELINE_FILE FOLDER    makes FOLDER/with_qt and FOLDER/without_qt of this machine's packages
"""
import os
import pathlib
import re
import shutil
import subprocess
import sys

# Graphics drivers bring a compiler of 120 MB. A program without a graphics card never loads them.
LEFT_OUT = {"libgl1-mesa-dri", "libglx-mesa0", "libegl-mesa0"}
# Part of every system: the locales without a country, and the folders.
ALWAYS = ["libc-bin"]
UNREAD = ("/usr/share/doc/", "/usr/share/man/", "/usr/share/locale/", "/usr/share/lintian/", "/usr/share/bug/")


def read_baseline(path):
    """The rows of the file: group, library, package."""
    lines = pathlib.Path(path).read_text().splitlines()
    return [tuple(line.split()) for line in lines if line and not line.startswith("#")]


def packages(path, *without):
    """The packages that a person installs, but for those of the groups that are left out."""
    return sorted({package for group, _, package in read_baseline(path) if group not in without})


def query(*arguments):
    return subprocess.run(["dpkg-query", *arguments], check=True, capture_output=True, text=True).stdout


def installed():
    """What each installed package is also called, and what it depends on."""
    depends, provides = {}, {}
    layout = "${db:Status-Status}\t${Package}\t${Provides}\t${Pre-Depends}, ${Depends}\n"
    for line in query("--show", f"--showformat={layout}").splitlines():
        status, name, also, needs = line.split("\t")
        if status == "installed":
            depends[name] = [[re.split(r"[ :(]", choice.strip())[0] for choice in group.split("|")]
                             for group in needs.split(",") if group.strip()]
            provides.update({other.split("(")[0].strip(): name for other in also.split(",") if other.strip()})
    return depends, provides


def closure(names):
    """The packages with all that they depend on."""
    depends, provides = installed()
    found, waiting = set(), list(names)
    while waiting:
        name = waiting.pop()
        name = name if name in depends else provides.get(name, name)
        if name in found or name in LEFT_OUT:
            continue
        if name not in depends:
            raise LookupError(f"the package {name} of the baseline is not installed: apt-get install {name}")
        found.add(name)
        waiting += [next((choice for choice in group if choice in depends or choice in provides), group[0])
                    for group in depends[name]]
    return sorted(found)


def copy(path, root):
    source, target = pathlib.Path(path), root / path.lstrip("/")
    # Packages name their files with /lib, which is a link to /usr/lib.
    target = root / os.path.relpath(os.path.join(os.path.realpath(source.parent), source.name), "/")
    if source.is_dir() and not source.is_symlink():
        target.mkdir(parents=True, exist_ok=True)
    elif source.is_symlink() or source.is_file():
        target.parent.mkdir(parents=True, exist_ok=True)
        if not target.exists() and not target.is_symlink():
            shutil.copy2(source, target, follow_symlinks=False)


def make_root(names, root):
    shutil.rmtree(root, ignore_errors=True)
    root.mkdir(parents=True)
    for folder in ("proc", "dev", "tmp", "etc", "opt", "mnt", "home/person", "usr/lib", "usr/lib64", "usr/bin", "usr/sbin"):
        (root / folder).mkdir(parents=True, exist_ok=True)
    (root / "tmp").chmod(0o1777)
    for folder in ("lib", "lib64", "bin", "sbin"):
        (root / folder).symlink_to(f"usr/{folder}")
    names = closure(names + ALWAYS)
    for path in query("--listfiles", *names).splitlines():
        if path.startswith("/") and not path.startswith(UNREAD):
            copy(path, root)
    (root / "etc/passwd").write_text("root:x:0:0:root:/root:/bin/sh\nperson:x:1000:1000:A Person:/home/person:/bin/sh\n")
    (root / "etc/group").write_text("root:x:0:\nperson:x:1000:\n")
    (root / "etc/nsswitch.conf").write_text("passwd: files\nhosts: files\n")
    print(f"bare: {root} has the files of {len(names)} packages: {' '.join(names)}")


if __name__ == "__main__":
    file, folder = sys.argv[1], pathlib.Path(sys.argv[2])
    make_root(packages(file), folder / "with_qt")
    make_root(packages(file, "qt"), folder / "without_qt")
