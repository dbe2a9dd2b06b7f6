#!/usr/bin/env python3
"""Updates the demo application on a system that has the baseline and nothing else.

Usage: bare_test.py ROOT PUBLISHED APPCAST CASE

ROOT is a root file system of the baseline, PUBLISHED what `Demo/publish --self-contained` has made, APPCAST the publisher's tool that
serves it. Ends with 77 where this user can make no mount namespace.
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
STATUS_SKIPPED = 77
PATIENCE = 110 # seconds
USER = 1000
HOME = "/home/person"
INSTALL = "PelnarEngine_updateWindow/PelnarEngine_installButton"
RELAUNCH = "PelnarEngine_readyWindow/PelnarEngine_installAndRelaunchButton"
SESSION_RELAUNCH = "SparkleUpdater_updateIsReadyToInstallDialog/Install and Relaunch"
CLOSE_ERROR = "PelnarEngine_errorWindow/PelnarEngine_okButton"


class Failure(Exception):
    pass


def expect(is_true, what):
    if not is_true:
        raise Failure(what)


def tree(folder):
    """Every entry below a folder, with what makes it what it is."""
    entries = {}
    for path in sorted(folder.rglob("*")):
        name = str(path.relative_to(folder))
        mode = path.lstat().st_mode
        content = os.readlink(path) if path.is_symlink() else path.read_bytes() if path.is_file() else None
        entries[name] = (mode, content)
    return entries


class Server:
    """Serves the published folder over HTTPS on the loopback address."""

    def __init__(self, appcast, published):
        self.process = subprocess.Popen(
            [appcast, "serve", "--end-with-input", published / "site", "--tls", published / "server.pem",
             published / "server.key"], stdin=subprocess.PIPE, stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True)
        self.address = self.process.stdout.readline().strip()
        expect(self.address.startswith("https://127.0.0.1:"), "the server does not start")

    def end(self):
        """Ends it; the archives and deltas that were asked for, in order."""
        _, log = self.process.communicate(timeout=PATIENCE)
        print(log)
        files = [line.split()[1].lstrip("/") for line in log.splitlines() if line.startswith("GET ")]
        return [file for file in files if not file.endswith(".xml")]


class Computer:
    """The bare system, with a person's home and the old version in it."""

    def __init__(self, root, published, work):
        self.root = root
        self.published = published
        self.home = work / "home"
        self.binds = [[str(self.home), HOME, "rw"]]
        self.program = f"{HOME}/Applications/PelnarDemo.app/PelnarDemo"
        self.home.mkdir()
        shutil.copy2(published / "authority.pem", self.home)
        self.app = self.home / "Applications/PelnarDemo.app"
        self.put_old_version(self.app)

    def put_old_version(self, app):
        app.parent.mkdir(parents=True, exist_ok=True)
        shutil.copytree(self.published / "old/PelnarDemo.app", app, symlinks=True)
        self.app = app

    def give_to_person(self, folder):
        if os.getuid() == 0:
            subprocess.run(["chown", "-R", f"{USER}:{USER}", folder], check=True)

    def write_defaults(self, text):
        folder = self.home / "GNUstep/Defaults"
        folder.mkdir(parents=True, mode=0o700)
        (folder / "PelnarDemo.plist").write_text(text)

    def run(self, url, mode, scenario, *clicks):
        """What the old version, the helper and the version that it starts have said, to the end of the last of them."""
        self.give_to_person(self.home)
        arguments = ["--feed", url, "--mode", mode, "--scenario", scenario]
        for click in clicks:
            arguments += ["--click", click]
        environment = {"HOME": HOME, "USER": "person", "LANG": "C.UTF-8", "PATH": "/usr/bin", "QT_QPA_PLATFORM": "offscreen",
                       "SSL_CERT_FILE": f"{HOME}/authority.pem", "PELNAR_DEMO_OPTIONS": f"--scenario start --feed {url}"}
        task = {"root": str(self.root), "binds": self.binds, "environment": environment,
                "command": [self.program, *arguments]}
        process = subprocess.run([sys.executable, HERE / "enter.py", json.dumps(task)], stdin=subprocess.DEVNULL,
                                 stdout=subprocess.PIPE, stderr=subprocess.STDOUT, timeout=PATIENCE)
        text = process.stdout.decode(errors="replace")
        print(text)
        expect(process.returncode == 0, f"the program ended with {process.returncode}")
        return text

    def versions(self, text):
        lines = [line for line in text.splitlines() if line.startswith("Pelnar Demo ") and line.endswith(" is running")]
        return [line.split()[2] for line in lines]

    def expect_bundle(self, name):
        expect(tree(self.app) == tree(self.published / name / "PelnarDemo.app"), f"the bundle is not the {name} one")

    def expect_updated(self, text):
        expect(self.versions(text) == ["5.9", "5.10"], f"what ran was {self.versions(text)}")
        self.expect_bundle("new")


def interactively(computer, server):
    computer.expect_updated(computer.run(f"{server.address}/appcast.xml", "user", "update", INSTALL, RELAUNCH))
    expect(server.end() == ["PelnarDemo-5.10.tar.zst"], "other files were asked for")


def silently(computer, server):
    computer.write_defaults("{ SUAutomaticallyUpdate = YES; }")
    computer.expect_updated(computer.run(f"{server.address}/appcast.xml", "automatic", "update", SESSION_RELAUNCH))


def by_delta(computer, server):
    computer.expect_updated(computer.run(f"{server.address}/appcast-delta.xml", "user", "update", INSTALL, RELAUNCH))
    expect(server.end() == ["PelnarDemo-5.9-5.10.delta"], "other files were asked for")


def refused(computer, server):
    text = computer.run(f"{server.address}/appcast-tampered.xml", "user", "answer", INSTALL, CLOSE_ERROR)
    expect(computer.versions(text) == ["5.9"], f"what ran was {computer.versions(text)}")
    computer.expect_bundle("old")


def taken_back(computer, server):
    text = computer.run(f"{server.address}/appcast-broken.xml", "user", "update", INSTALL, RELAUNCH)
    expect(text.count("error while loading shared libraries") == 2, "the broken version was not tried twice")
    expect(computer.versions(text) == ["5.9", "5.9"], f"what ran was {computer.versions(text)}")
    computer.expect_bundle("old")


def finds_update(computer, server):
    try:
        return "OnUpdateFound" in computer.run(f"{server.address}/appcast.xml", "automatic", "check")
    except Failure:
        return False


def missing_library(computer, server):
    """That the system lacks what the bundle brings: without one of its libraries no update is found."""
    for name in ("libgnustep-base.so.1.28", "libcurl.so.4", "libglog.so.1"):
        library = computer.app / "lib" / name
        library.rename(computer.home / name)
        expect(not finds_update(computer, server), f"an update is found without {name}: the system is not bare")
        (computer.home / name).rename(library)
    expect(finds_update(computer, server), "with all libraries no update is found")


CASES = {case.__name__: case for case in (interactively, silently, by_delta, refused, taken_back, missing_library)}


def why_not():
    """Why this user can have no mount namespace; nothing when it can."""
    probe = subprocess.run(["unshare", "--mount", "true"] if os.getuid() == 0 else ["unshare", "--user", "--mount", "true"],
                           capture_output=True, text=True)
    return probe.stderr.strip() if probe.returncode else ""


def main():
    root, published, appcast, case = sys.argv[1:]
    if reason := why_not():
        # As GoogleTest writes it: scripts/skipped reads the reason.
        print(f"{__file__}:0: Skipped\nno mount namespace can be made here ({reason})")
        return STATUS_SKIPPED
    with tempfile.TemporaryDirectory() as work:
        os.chmod(work, 0o755)
        server = Server(appcast, pathlib.Path(published))
        try:
            CASES[case](Computer(pathlib.Path(root), pathlib.Path(published), pathlib.Path(work)), server)
        except Failure as failure:
            print(f"{case}: {failure}")
            return 1
        finally:
            if server.process.poll() is None:
                server.end()
    print(f"{case}: as it should be")
    return 0


if __name__ == "__main__":
    sys.exit(main())
