#!/usr/bin/env python3
"""Builds the example of docs/guide/own-host-framework.md against the installed package, and updates it.

Usage: own_host_test.py BUILD_FOLDER CXX_COMPILER CXX_FLAGS APPCAST PLUGINS
"""
import os
import pathlib
import re
import shutil
import signal
import socket
import subprocess
import sys
import tempfile
import time
import unittest

HERE = pathlib.Path(__file__).resolve().parent
PATIENCE = 120 # seconds
# The operations that the update checker calls in a framework. All others in the interfaces are inline.
OPERATIONS = {
    "Pelnar::App::Application::staticMetaObject",
    "Pelnar::App::NagScreen::Manager::NagAvailable(QString const&, bool)",
    "Pelnar::App::NagScreen::Manager::staticMetaObject",
    "Pelnar::Util::AlertBox::AlertBox(Pelnar::Util::AlertBox::Level, QString const&, QString const&, "
    "QFlags<QMessageBox::StandardButton>, QWidget*, QFlags<Qt::WindowType>)",
    "Pelnar::Util::AlertBox::Exec()",
    "Pelnar::Util::OSVersion()",
    "Pelnar::Util::SpontaneousDialog::findParent()",
    "Pelnar::Util::VersionFromString(QString const&, QString const&)",
    "Pelnar::Util::VersionToString(Pelnar::Core::Version const&, Pelnar::Util::VersionToStringDetail, QString const&)",
}


def run(*command, **options):
    result = subprocess.run(list(map(str, command)), capture_output=True, text=True, **options)
    if result.returncode != 0:
        raise AssertionError(f"{command[0]} ended with {result.returncode}:\n{result.stdout}{result.stderr}")
    return result.stdout


def symbols(library, which):
    lines = run("nm", "-D", "-C", "--without-symbol-versions", which, library).splitlines()
    return {line.split(maxsplit=1 if which == "--undefined-only" else 2)[-1] for line in lines}


def needed(file):
    return {line.split("[")[1].rstrip("]") for line in run("readelf", "-d", file).splitlines() if "(NEEDED)" in line}


def free_port():
    with socket.socket() as probe:
        probe.bind(("127.0.0.1", 0))
        return probe.getsockname()[1]


class OwnHost(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.holder = tempfile.TemporaryDirectory()
        cls.work = pathlib.Path(cls.holder.name)
        os.umask(0o022) # Foundation passes over what others may change, and what only its owner may read is not served
        cls.work.chmod(0o755)
        cls.installed = cls.work / "installed"
        run("cmake", "--install", BUILD_FOLDER, "--prefix", cls.installed)
        cls.key = run(APPCAST, "keys", "generate", cls.work / "app.key", "--format", "bare").strip()
        cls.port = free_port()
        for version in (1, 2):
            cls.build_version(version)

    @classmethod
    def configure(cls, source, folder, *settings):
        return run("cmake", "-S", source, "-B", folder, "-G", "Ninja", f"-DCMAKE_CXX_COMPILER={CXX_COMPILER}",
                   f"-DCMAKE_CXX_FLAGS={CXX_FLAGS}", f"-DCMAKE_PREFIX_PATH={cls.installed}", *settings)

    @classmethod
    def build_version(cls, version):
        folder = cls.work / f"build-{version}"
        cls.configure(HERE / "own_host", folder, f"-DNOTELY_MAJOR_VERSION={version}", f"-DNOTELY_PUBLIC_KEY={cls.key}",
                      f"-DNOTELY_FEED=http://127.0.0.1:{cls.port}/appcast.xml")
        run("cmake", "--build", folder, "--target", "notely_archive")

    @classmethod
    def tearDownClass(cls):
        cls.holder.cleanup()

    def bundle(self, version):
        return self.work / f"build-{version}/notely_bundle/Notely.app"

    def libraries(self):
        """The installed libraries that use the host framework."""
        files = {file.resolve() for file in self.installed.rglob("libPelnar*.so*")}
        return [file for file in sorted(files) if "HostFramework" not in file.name and "Engine" not in file.name]

    def test_nothing_but_the_operations_is_asked_for(self):
        asked = set().union(*(symbols(library, "--undefined-only") for library in self.libraries()))
        made = set().union(*(symbols(library, "--defined-only") for library in self.installed.rglob("libPelnar*.so")
                             if "HostFramework" not in library.name))
        asked = {symbol for symbol in asked - made if "Pelnar::" in symbol}
        self.assertEqual(asked, OPERATIONS)
        framework = self.work / "build-1/libfamily_framework.so"
        self.assertLessEqual(asked, symbols(framework, "--defined-only"))

    def test_no_library_names_a_framework_and_no_framework_the_libraries(self):
        self.assertTrue(self.libraries())
        for library in self.libraries():
            self.assertNotIn("libPelnarHostFramework.so.1", needed(library), library)
        names = needed(self.work / "build-1/libfamily_framework.so")
        self.assertFalse([name for name in names if "Pelnar" in name], "the two would need each other")
        self.assertIn("libfamily_framework.so", needed(self.work / "build-1/notely"))
        self.assertFalse(list(self.bundle(1).rglob("*PelnarHostFramework*")), "the reference framework is in the bundle")
        self.assertTrue(list(self.bundle(1).rglob("libfamily_framework.so")))

    def test_a_framework_that_cannot_be_found_at_run_time_is_refused(self):
        source = self.work / "static"
        source.mkdir()
        (source / "main.cpp").write_text("int main() {}")
        (source / "CMakeLists.txt").write_text(
            "cmake_minimum_required(VERSION 3.25)\nproject(Static LANGUAGES CXX)\n"
            "find_package(PelnarUpdateChecker CONFIG REQUIRED)\n"
            "add_library(own STATIC main.cpp)\npelnar_host_framework(own)\n")
        with self.assertRaisesRegex(AssertionError, r"(?s)pelnar_host_framework\(own\).*a host framework is a.*shared\s+library"):
            self.configure(source, self.work / "static-build")

    def test_a_framework_without_one_of_the_operations_is_not_linked(self):
        for name in ("OSVersion", "AlertBox::Exec"):
            with self.subTest(name):
                source = self.work / f"without-{name.replace(':', '')}"
                shutil.copytree(HERE / "own_host", source)
                framework = source / "Framework.cpp"
                text = framework.read_text()
                rest = re.sub(rf"^\w+ {name}\(\)\n{{.*?^}}\n", "", text, flags=re.MULTILINE | re.DOTALL)
                self.assertNotEqual(rest, text)
                framework.write_text(rest)
                build = source / "build"
                self.configure(source, build, "-DNOTELY_MAJOR_VERSION=1", f"-DNOTELY_PUBLIC_KEY={self.key}",
                               "-DNOTELY_FEED=http://127.0.0.1/")
                with self.assertRaisesRegex(AssertionError, rf"undefined.*Pelnar::Util::{name}\(\)"):
                    run("cmake", "--build", build, "--target", "notely")

    def test_the_example_updates_itself_and_comes_back_with_its_document(self):
        applications = self.work / "Applications"
        shutil.copytree(self.bundle(1), applications / "Notely.app", symlinks=True)
        site = self.work / "site"
        site.mkdir()
        shutil.copy2(self.work / "build-2/notely_bundle/Notely-2.0.tar.zst", site)
        address = f"http://127.0.0.1:{self.port}/"
        run(APPCAST, "generate", site, "--key", self.work / "app.key", "--url-prefix", address)
        server = subprocess.Popen([APPCAST, "serve", "--end-with-input", "--port", str(self.port), site],
                                  stdin=subprocess.PIPE, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL)
        self.addCleanup(lambda: server.communicate(timeout=PATIENCE))
        self.assertEqual(server.stdout.readline().strip().decode() + "/", address)
        documents = self.work / "documents"
        documents.mkdir()
        document = os.fsencode(documents) + b"/--my \xc3\xbcbung, caf\xe9.txt" # in UTF-8, and not
        self.update(applications / "Notely.app/Notely", document, documents)

    def update(self, program, document, documents):
        home = self.work / "home"
        home.mkdir(mode=0o700)
        log = self.work / "notely.log"
        (self.work / "GNUstep.conf").write_text(f"GNUSTEP_USER_DEFAULTS_DIR={home}/Defaults\n")
        environment = {b"HOME": os.fsencode(home), b"XDG_RUNTIME_DIR": os.fsencode(home), b"PATH": os.environb[b"PATH"],
                       b"GNUSTEP_CONFIG_FILE": os.fsencode(self.work / "GNUstep.conf"), b"LANG": b"C.UTF-8",
                       b"QT_QPA_PLATFORM": b"offscreen", b"QT_PLUGIN_PATH": os.fsencode(PLUGINS),
                       b"QT_QPA_GENERIC_PLUGINS": b"PelnarClick", b"NOTELY_MARK": b"of the host \xff"}
        for name in (b"LSAN_OPTIONS", b"ASAN_OPTIONS"):
            if name in os.environb:
                environment[name] = os.environb[name]
        with log.open("wb") as output:
            first = subprocess.Popen([program, document], cwd=documents, env=environment, stdin=subprocess.DEVNULL,
                                     stdout=output, stderr=subprocess.STDOUT)
        second = None
        try:
            first.wait(timeout=PATIENCE)
            second = self.await_second(log, document)
            self.expect_second(second, program, document, documents, environment)
        finally:
            first.kill()
            first.wait()
            if second:
                os.kill(second, signal.SIGTERM)
            print(log.read_bytes().decode(errors="backslashreplace"))
        self.assertEqual(first.returncode, 0)
        self.assertNotIn(b"InitGoogleLogging", log.read_bytes())

    def await_second(self, log, document):
        """The number of the new version's process, once it shows the document."""
        end = time.monotonic() + PATIENCE
        while time.monotonic() < end:
            if b'Notely 2 shows "' + document + b'"\n' in log.read_bytes():
                return next(int(entry.name) for entry in pathlib.Path("/proc").iterdir()
                            if entry.name.isdigit() and self.is_notely(entry))
            time.sleep(0.1)
        self.fail("the new version does not show the document")

    def is_notely(self, process):
        try:
            return os.readlink(process / "exe") == str(self.work / "Applications/Notely.app/Notely")
        except OSError:
            return False

    def expect_second(self, process, program, document, documents, environment):
        folder = pathlib.Path(f"/proc/{process}")
        self.assertEqual((folder / "cmdline").read_bytes(), os.fsencode(program) + b"\0" + document + b"\0")
        self.assertEqual(os.readlink(folder / "cwd"), str(documents))
        told = dict(entry.split(b"=", 1) for entry in (folder / "environ").read_bytes().split(b"\0") if entry)
        self.assertEqual({name: told.get(name) for name in environment}, environment)
        self.assertNotIn("HostFramework", (folder / "maps").read_text())
        self.assertIn("libfamily_framework.so", (folder / "maps").read_text())


if __name__ == "__main__":
    BUILD_FOLDER, CXX_COMPILER, CXX_FLAGS, APPCAST, PLUGINS = sys.argv[1:6]
    unittest.main(argv=sys.argv[:1])
