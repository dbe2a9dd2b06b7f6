#!/usr/bin/env python3
"""The Debian packages that cpack makes, used on a system that has what they depend on and nothing else.

Usage: debian_packages_test.py BUILD_FOLDER CXX_COMPILER [--on-debian]

The system is made of this machine's packages, or with --on-debian installed by debootstrap; dpkg then installs the packages on it.
Ends with 77 where no packages, no mount namespace or no such system can be made.
"""
import json
import os
import pathlib
import shutil
import subprocess
import sys
import tempfile

sys.dont_write_bytecode = True
HERE = pathlib.Path(__file__).resolve().parent
BARE = HERE.parent / "bare"
sys.path.insert(0, str(BARE))

import baseline
import debian_test

STATUS_SKIPPED = 77
NAMES = {"libpelnar-update-checker1", "libpelnar-update-checker-dev", "pelnar-appcast"}


def run(*command, **options):
    result = subprocess.run(list(map(str, command)), stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True, **options)
    if result.returncode != 0:
        sys.exit(f"{' '.join(map(str, command))[:200]} ended with {result.returncode}:\n{result.stdout}")
    return result.stdout


def expect(is_true, what):
    if not is_true:
        sys.exit(what)


def depends(package):
    """The names of the packages that it needs, the first of each choice."""
    field = run("dpkg-deb", "--field", package, "Depends")
    return [group.split("|")[0].split("(")[0].strip() for group in field.split(",")]


def check_contents(packages):
    contents = {name: run("dpkg-deb", "--contents", file) for name, file in packages.items()}
    for name, parts in {"libpelnar-update-checker1": ["libPelnarUpdateChecker.so.1.0.0", "pelnar-update-installer", "copyright"],
                        "libpelnar-update-checker-dev": ["libPelnarUpdateChecker.so ->", "PelnarBundle.cmake", "MakeBundle.cmake",
                                                         "UpdateManager.h", "PelnarUpdateChecker.pc", "copyright"],
                        "pelnar-appcast": ["usr/bin/pelnar-appcast", "pelnar/pelnar-appcast-late.so", "pelnar-appcast.1",
                                           "copyright"]}.items():
        for part in parts:
            expect(part in contents[name], f"{name} has no {part}")
    expect(".h\n" not in contents["libpelnar-update-checker1"], "headers are in the package of the libraries")
    for name, text in contents.items():
        expect(all(" root/root " in line for line in text.splitlines()), f"files of {name} do not belong to root")
    library = depends(packages["libpelnar-update-checker1"])
    for needed in ("libc6", "libcurl4", "libqt5widgets5", "libgnustep-base1.28"):
        expect(needed in library, f"the libraries' package does not depend on {needed}")
    tool = depends(packages["pelnar-appcast"])
    for needed in ("libc6", "libqt5core5a", "libcurl4", "libqt5network5", "libarchive13", "libmicrohttpd12"):
        expect(needed in tool, f"the tool's package does not depend on {needed}")
    expect(not {"libqt5widgets5", "libqt5gui5", "libpelnar-update-checker1"} & set(tool), f"the tool's package depends on {tool}")


def run_in(root, home, *command):
    environment = {"HOME": "/home/person", "USER": "person", "LANG": "C.UTF-8", "PATH": "/usr/bin", "QT_QPA_PLATFORM": "offscreen"}
    if os.getuid() == 0:
        run("chown", "-R", "1000:1000", home)
    return run(sys.executable, BARE / "enter.py", json.dumps({"root": str(root), "binds": [[str(home), "/home/person", "rw"]],
                                                              "environment": environment, "command": list(command)}),
               stdin=subprocess.DEVNULL)


def why_not():
    for program in ("dpkg-deb", "dpkg-shlibdeps", "cpack"):
        if not shutil.which(program):
            return f"{program} is not installed"
    command = ["unshare", "--mount", "true"] if os.getuid() == 0 else ["unshare", "--user", "--mount", "true"]
    probe = subprocess.run(command, capture_output=True, text=True)
    return f"no mount namespace can be made here ({probe.stderr.strip()})" if probe.returncode else ""


def build_host(work, packages, compiler):
    """A program built with the package for development, and nothing else of ours."""
    staged = work / "staged"
    for name in ("libpelnar-update-checker1", "libpelnar-update-checker-dev"):
        run("dpkg-deb", "--extract", packages[name], staged)
    run("cmake", "-S", HERE / "host", "-B", work / "host", "-G", "Ninja", f"-DCMAKE_CXX_COMPILER={compiler}",
        f"-DCMAKE_PREFIX_PATH={staged}/usr", "-DCMAKE_SKIP_RPATH=ON")
    run("cmake", "--build", work / "host")
    shutil.rmtree(staged)
    return work / "host/tiny_host"


def make_system(root, needed, packages):
    """A system with what the packages depend on, and them."""
    baseline.make_root(needed, root)
    for package in packages:
        run("dpkg-deb", "--extract", package, root)


def install_system(root, needed, packages):
    """The same by debootstrap and dpkg; whether that could be."""
    log = root.parent / "debootstrap.log"
    if not debian_test.install(needed, root, log):
        print(log.read_text()[-2000:])
        return False
    for package in packages:
        shutil.copy2(package, root / "tmp")
    print(run("chroot", root, "dpkg", "--install", *[f"/tmp/{package.name}" for package in packages],
              env={"PATH": "/usr/sbin:/usr/bin:/sbin:/bin", "LC_ALL": "C.UTF-8"}))
    return True


def test(work, build, compiler, make_system):
    run("cpack", "-G", "DEB", "--config", build / "CPackConfig.cmake", "-B", work / "packages", cwd=work)
    packages = {run("dpkg-deb", "--field", file, "Package").strip(): file for file in (work / "packages").glob("*.deb")}
    expect(set(packages) == NAMES, f"the packages are {sorted(packages)}")
    check_contents(packages)

    root = work / "root"
    installed = [name for name in NAMES if not name.endswith("-dev")]
    needed = sorted({need for name in installed for need in depends(packages[name])} - NAMES)
    if make_system(root, needed, [packages[name] for name in installed]) is False:
        return skip("no Debian system could be installed")
    home = work / "home"
    home.mkdir(mode=0o755)
    shutil.copy2(HERE / "feed.xml", home)
    shutil.copy2(build_host(work, packages, compiler), home)
    said = run_in(root, home, "/home/person/tiny_host", "/home/person/feed.xml")
    expect("found 1.1 for 1.0" in said, f"the host said {said}")
    key = run_in(root, home, "/usr/bin/pelnar-appcast", "keys", "generate", "/home/person/app.key")
    expect("SUPublicEDKey" in key, f"the tool said {key}")
    said = run_in(root, home, "/usr/bin/pelnar-appcast", "explain", "/home/person/feed.xml", "--local-version", "1.0", "--system-version", "12")
    expect("1.1" in said, f"the tool said {said}")
    said = run_in(root, home, "/usr/bin/pelnar-appcast", "serve", "/home/person", "--end-with-input")
    expect("http://127.0.0.1:" in said, f"the tool said {said}")
    print("Debian packages: a program and the tool run with what they depend on")
    return 0


def skip(reason):
    # The format of GoogleTest: scripts/skipped reads the reason.
    print(f"{__file__}:0: Skipped\n{reason}")
    return STATUS_SKIPPED


def main():
    build, compiler = pathlib.Path(sys.argv[1]), sys.argv[2]
    is_on_debian = sys.argv[3:] == ["--on-debian"]
    if reason := why_not() or (is_on_debian and debian_test.why_not()):
        return skip(reason)
    with tempfile.TemporaryDirectory() as folder:
        os.chmod(folder, 0o755)
        os.umask(0o022)
        return test(pathlib.Path(folder), build, compiler, install_system if is_on_debian else make_system)


if __name__ == "__main__":
    sys.exit(main())
