#!/usr/bin/env python3
"""Updates the demo application on a system that has the baseline and nothing else.

Usage: bare_test.py ROOTS PUBLISHED BUILD CASE

ROOTS holds root file systems of the baseline, with and without Qt, PUBLISHED is what `Demo/publish --self-contained` has made of the
build folder BUILD. Ends with 77 where this user can make no mount namespace.
"""
import contextlib
import json
import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile

sys.dont_write_bytecode = True
HERE = pathlib.Path(__file__).resolve().parent
SCRIPTS = HERE.parent.parent / "cmake/bundle"
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

    def __init__(self, appcast, published, site):
        self.process = subprocess.Popen(
            [appcast, "serve", "--end-with-input", site, "--tls", published / "server.pem", published / "server.key"],
            stdin=subprocess.PIPE, stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True)
        self.address = self.process.stdout.readline().strip()
        expect(self.address.startswith("https://127.0.0.1:"), "the server does not start")

    def end(self):
        """Ends it; the archives and deltas that were asked for, in order."""
        _, log = self.process.communicate(timeout=PATIENCE)
        print(log)
        files = re.findall(r"^GET /(.+) \d+ \d+ bytes$", log, re.MULTILINE)
        return [file for file in files if not file.endswith(".xml")]


class Computer:
    """The bare system, with a person's home and the old version in it."""

    def __init__(self, roots, published, build, work):
        self.root = roots / "with_qt"
        self.roots = roots
        self.published = published
        self.build = build
        self.appcast = build / "Publisher/pelnar-appcast"
        self.home = work / "home"
        self.work = work
        self.binds = [[str(self.home), HOME, "rw"]]
        self.variables = {}
        self.program = f"{HOME}/Applications/PelnarDemo.app/PelnarDemo"
        self.home.mkdir()
        shutil.copy2(published / "authority.pem", self.home)
        self.app = self.home / "Applications/PelnarDemo.app"
        self.put_old_version(self.app)

    def put_old_version(self, app):
        app.parent.mkdir(parents=True, exist_ok=True)
        shutil.copytree(self.published / "old/PelnarDemo.app", app, symlinks=True)
        self.app = app

    def by_cmake(self, script, folder, *settings):
        """Runs a script of pelnar_add_bundle() for the demo, with settings of our own."""
        key = subprocess.run([self.appcast, "keys", "show", self.published / "signing.key"], check=True,
                             capture_output=True, text=True).stdout
        subprocess.run(["cmake", "--log-level=WARNING", f"-DSETTINGS={self.build}/Demo/pelnar-demo_bundle/settings.cmake",
                        f"-DDESTINATION={folder}", f"-DBUNDLE_PUBLIC_KEY={key}", *settings, "-P", SCRIPTS / f"{script}.cmake"],
                       check=True)

    def move_to(self, folder):
        """Puts the bundle into another folder of the home; the path of its program there."""
        app = self.home / folder / self.app.name
        app.parent.mkdir(parents=True)
        self.app.rename(app)
        self.app = app
        return f"{HOME}/{folder}/{app.name}/PelnarDemo"

    def mount_at(self, place, access):
        """Has the bundle in a folder outside of the home."""
        folder = self.work / "elsewhere"
        folder.mkdir()
        self.app.rename(folder / self.app.name)
        self.app = folder / self.app.name
        self.program = f"{place}/{self.app.name}/PelnarDemo"
        self.binds.append([str(folder), place, access])
        return folder

    def take_own_root(self):
        """Has the system for this test alone, which may then add to it: the files are the same ones."""
        root = self.work / "root"
        subprocess.run(["cp", "--archive", "--link", self.root, root], check=True)
        self.root = root
        return root

    def move_into(self, root, folder):
        """Puts the bundle into a folder of the system, as a package would."""
        (root / folder.lstrip("/")).mkdir(parents=True)
        self.app = self.app.rename(root / folder.lstrip("/") / self.app.name)
        self.program = f"{folder}/{self.app.name}/PelnarDemo"

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
                       "SSL_CERT_FILE": f"{HOME}/authority.pem", "PELNAR_DEMO_OPTIONS": f"--scenario start --feed {url}",
                       **self.variables}
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


def among_blanks_and_letters(computer, server):
    computer.program = computer.move_to("Meine Programme/概要 ö'\"$x")
    interactively(computer, server)


def by_a_link_to_the_program(computer, server):
    (computer.home / "bin").mkdir()
    (computer.home / "bin/pelnar-demo").symlink_to(computer.program)
    computer.program = f"{HOME}/bin/pelnar-demo"
    interactively(computer, server)


def by_a_link_to_the_folder(computer, server):
    computer.move_to("disk/Applications")
    (computer.home / "Applications").rmdir()
    (computer.home / "Applications").symlink_to("disk/Applications")
    interactively(computer, server)


def expect_told(computer, server, sentence):
    """A person who asks for the update sees the sentence, the delegate hears it, and no byte of an archive is fetched."""
    text = computer.run(f"{server.address}/appcast.xml", "user", "answer", CLOSE_ERROR)
    told = [line for line in text.splitlines() if "updater:didAbortWithError:" in line]
    expect(len(told) == 1 and sentence in told[0], f"what was told is {told}")
    expect(server.end() == [], "an archive was asked for")
    computer.expect_bundle("old")


def on_a_read_only_disk(computer, server):
    computer.mount_at("/mnt", "ro")
    expect_told(computer, server, "on a disk that cannot be written")


def in_an_app_image(computer, server):
    computer.mount_at("/mnt", "ro")
    computer.variables = {"APPDIR": "/mnt", "APPIMAGE": f"{HOME}/PelnarDemo.AppImage"}
    expect_told(computer, server, f"Replace the file {HOME}/PelnarDemo.AppImage with the file of the new version")


def in_a_flatpak(computer, server):
    root = computer.take_own_root()
    computer.move_into(root, "/app")
    (root / ".flatpak-info").write_text("[Application]\nname=com.example.demo\nruntime=org.example.Platform\n")
    expect_told(computer, server, "\"flatpak update com.example.demo\"")


def in_a_snap(computer, server):
    computer.move_into(computer.take_own_root(), "/snap/pelnar-demo/x1/opt")
    computer.variables = {"SNAP": "/snap/pelnar-demo/x1", "SNAP_NAME": "pelnar-demo"}
    expect_told(computer, server, "\"snap refresh pelnar-demo\"")


def in_a_debian_package(computer, server):
    root = computer.take_own_root()
    computer.move_into(root, "/usr/lib/pelnar-demo")
    lists = root / "var/lib/dpkg/info"
    lists.mkdir(parents=True, exist_ok=True)
    (lists / "pelnar-demo.list").write_text("/.\n/usr\n/usr/lib\n/usr/lib/pelnar-demo\n" + "".join(
        f"/usr/lib/pelnar-demo/{path.relative_to(computer.app.parent)}\n" for path in [computer.app, *sorted(computer.app.rglob("*"))]))
    expect_told(computer, server, " pelnar-demo\"")


def in_opt_of_root(computer, server):
    folder = computer.mount_at("/opt", "rw")
    if os.getuid() == 0:
        expect_told(computer, server, "belongs to another user of this computer")
    else:
        # Only root can give a folder to root. For other users the test uses a folder that they may not write.
        folder.chmod(0o555)
        expect_told(computer, server, "You may not change the application's folder")
        folder.chmod(0o755)


def update_by_generated_feed(computer, name, *settings):
    """Makes two versions with these settings, has a feed generated of the folder of their archives, and updates one."""
    for version in ("5.9", "5.10"):
        all_settings = (f"-DBUNDLE_NAME={name}", f"-DBUNDLE_VERSION={version}", "-DBUNDLE_COMPRESSION=3", *settings)
        computer.by_cmake("MakeBundle", computer.work / version, *all_settings)
        computer.by_cmake("PackBundle", computer.work / version, *all_settings)
    site = computer.work / "site"
    site.mkdir()
    for archive in computer.work.glob("5.*/*.tar.zst"):
        archive.rename(site / archive.name)
    server = Server(computer.appcast, computer.published, site)
    try:
        subprocess.run([computer.appcast, "generate", site, "--key", computer.published / "signing.key",
                        "--url-prefix", server.address + "/", "--deltas", "0"], check=True)
        shutil.rmtree(computer.app)
        app = computer.app.parent / f"{name}.app"
        shutil.copytree(computer.work / f"5.9/{name}.app", app, symlinks=True)
        computer.program = f"{HOME}/Applications/{name}.app/{name}"
        text = computer.run(f"{server.address}/appcast.xml", "user", "update", INSTALL, RELAUNCH)
    finally:
        asked = server.end()
    expect(computer.versions(text) == ["5.9", "5.10"], f"what ran was {computer.versions(text)}")
    expect(tree(app) == tree(computer.work / f"5.10/{name}.app"), "the bundle is not the new one")
    expect(asked == [f"{name}-5.10.tar.zst"], f"what was asked for is {asked}")


@contextlib.contextmanager
def display(computer):
    """A display on which the platform plugin for X shows the windows."""
    server = subprocess.Popen(["Xvfb", "-displayfd", "1", "-ac", "-nolisten", "unix"], stdout=subprocess.PIPE,
                              stderr=subprocess.DEVNULL, text=True)
    try:
        computer.variables = {"QT_QPA_PLATFORM": "xcb", "DISPLAY": ":" + server.stdout.readline().strip(),
                              "QT_XCB_GL_INTEGRATION": "none"}
        yield
    finally:
        server.terminate()
        server.wait()


def on_a_display(computer, server):
    with display(computer):
        interactively(computer, server)


def with_qt_inside(computer, _):
    """And with a name of its own, on a system without Qt."""
    computer.root = computer.roots / "without_qt"
    expect(not list(computer.root.rglob("libQt5*")), "the system has Qt")
    with display(computer):
        update_by_generated_feed(computer, "Die Übung 概要 & more", "-DBUNDLE_QT=INSIDE")


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


CASES = {case.__name__: case for case in (
    interactively, silently, by_delta, refused, taken_back, among_blanks_and_letters, by_a_link_to_the_program,
    by_a_link_to_the_folder, on_a_read_only_disk, in_an_app_image, in_a_flatpak, in_a_snap, in_a_debian_package, in_opt_of_root,
    on_a_display, with_qt_inside, missing_library)}


def why_not():
    """Why this user can have no mount namespace; nothing when it can."""
    probe = subprocess.run(["unshare", "--mount", "true"] if os.getuid() == 0 else ["unshare", "--user", "--mount", "true"],
                           capture_output=True, text=True)
    return probe.stderr.strip() if probe.returncode else ""


def main():
    roots, published, build = map(pathlib.Path, sys.argv[1:4])
    case = sys.argv[4]
    if reason := why_not():
        # The format of GoogleTest: scripts/skipped reads the reason.
        print(f"{__file__}:0: Skipped\nno mount namespace can be made here ({reason})")
        return STATUS_SKIPPED
    # In the same file system, so that their files can be hard links.
    with tempfile.TemporaryDirectory(dir=roots.parent, prefix="work-") as work:
        os.chmod(work, 0o755)
        server = Server(build / "Publisher/pelnar-appcast", published, published / "site")
        try:
            CASES[case](Computer(roots, published, build, pathlib.Path(work)), server)
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
