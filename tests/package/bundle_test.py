#!/usr/bin/env python3
"""Bundles made by pelnar_add_bundle() from the installed package, in a folder whose name has blanks and letters of all kinds.

Usage: bundle_test.py BUILD_FOLDER CXX_COMPILER
"""
import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import unittest

HERE = pathlib.Path(__file__).resolve().parent
SOURCE = HERE.parent.parent
NAMES = {"plain": "plain", "notely": "My Notes", "uebung": "Übung 概要 עברית", "odd": "It's \"1\" & $HOME (x) #%"}


def run(*command, **options):
    result = subprocess.run(list(map(str, command)), capture_output=True, text=True, **options)
    if result.returncode != 0:
        raise AssertionError(f"{command[0]} ended with {result.returncode}:\n{result.stdout}{result.stderr}")
    return result.stdout


def tree(folder):
    """Every entry below a folder, with its rights and its bytes."""
    entries = {}
    for path in sorted(folder.rglob("*")):
        content = path.read_bytes() if path.is_file() else None
        entries[str(path.relative_to(folder))] = (path.lstat().st_mode, content)
    return entries


class Bundles(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.holder = tempfile.TemporaryDirectory()
        cls.work = pathlib.Path(cls.holder.name) / "Meine Übung"
        cls.work.mkdir()
        cls.build = cls.work / "build of 概要"
        cls.installed = cls.work / "installed"
        os.umask(0o022) # Foundation passes over what others may change
        run("cmake", "--install", BUILD_FOLDER, "--prefix", cls.installed)
        cls.make_sources()
        (cls.work / "GNUstep.conf").write_text(f"GNUSTEP_USER_DEFAULTS_DIR={cls.work}/Defaults\n")
        cls.environment = {"PATH": os.environ["PATH"], "LANG": "C.UTF-8", "HOME": str(cls.work), "QT_QPA_PLATFORM": "offscreen",
                           "XDG_RUNTIME_DIR": str(cls.work), "GNUSTEP_CONFIG_FILE": str(cls.work / "GNUstep.conf")}
        cls.configure(cls.work / "source", cls.build)
        run("cmake", "--build", cls.build, "--target", *[f"{target}_bundle" for target in NAMES])

    @classmethod
    def configure(cls, source, build):
        run("cmake", "-S", source, "-B", build, "-G", "Ninja", f"-DCMAKE_CXX_COMPILER={CXX_COMPILER}",
            f"-DCMAKE_PREFIX_PATH={cls.installed}", f"-DHOST_SOURCE={HERE}/host/main.cpp",
            f"-DFEED={(HERE / 'feed.xml').as_uri()}")

    @classmethod
    def make_sources(cls):
        source = cls.work / "source"
        shutil.copytree(HERE / "bundles", source)
        (source / "icon.svg").write_text("<svg xmlns='http://www.w3.org/2000/svg'/>")
        (source / "plain_de.qm").write_bytes(b"")
        (source / "licence.txt").write_text("Do with it what you like.")
        (source / "data").mkdir()
        (source / "data/a file.txt").write_text("data")

    @classmethod
    def tearDownClass(cls):
        cls.holder.cleanup()

    def bundle(self, target):
        return self.build / f"{target}_bundle" / f"{NAMES[target]}.app"

    def script(self, name, target, *settings):
        """One of the two scripts, run as the build runs it, with settings of our own."""
        scripts = next(self.installed.rglob("bundle/MakeBundle.cmake")).parent
        return subprocess.run(["cmake", f"-DSETTINGS={self.build}/{target}_bundle/settings.cmake", *settings,
                               "-P", scripts / f"{name}.cmake"], capture_output=True, text=True)

    def found_by(self, program):
        return run(program, env=self.environment).strip()

    def test_every_name_starts_and_finds_its_update_by_what_its_bundle_says(self):
        for target, name in NAMES.items():
            if target != "plain": # which requires a signed feed
                with self.subTest(name):
                    self.assertEqual(self.found_by(self.bundle(target) / name), "found 1.1 for 1.0")

    def test_a_link_starts_it_from_anywhere(self):
        link = self.work / "notely"
        link.symlink_to(self.bundle("notely") / NAMES["notely"])
        self.assertEqual(self.found_by(link), "found 1.1 for 1.0")

    def test_a_moved_bundle_starts(self):
        moved = self.work / "else where" / "Renamed.app"
        shutil.copytree(self.bundle("uebung"), moved)
        self.assertEqual(self.found_by(moved / NAMES["uebung"]), "found 1.1 for 1.0")

    def test_a_signed_feed_is_required_where_the_call_says_so(self):
        self.assertEqual(self.found_by(self.bundle("plain") / "plain"), "")

    def information(self, target):
        """The entries of the information file."""
        text = (self.bundle(target) / "Resources/Info-gnustep.plist").read_text()
        lines = [line.strip().rstrip(";") for line in text.splitlines() if " = " in line]
        pairs = (line.split(" = ", 1) for line in lines)
        return {key: value[1:-1].replace('\\"', '"').replace("\\\\", "\\") for key, value in pairs}

    def test_the_information_file_has_every_key(self):
        self.assertEqual(self.information("plain"), {
            "CFBundleIdentifier": "com.example.plain", "CFBundleName": "plain", "CFBundleVersion": "1.0",
            "CFBundleShortVersionString": "1.0 (spring)", "NSExecutable": "plain", "NSIcon": "com.example.plain.svg",
            "SUBundleName": "plain", "SUFeedURL": (HERE / "feed.xml").as_uri(),
            "SUPublicEDKey": "q83vEjRWeJASNFZ4kBI0VniQEjRWeJASNFZ4kBI0Vng=",
            "PelnarNextPublicEDKey": "ASNFZ4kBI0VniQEjRWeJASNFZ4kBI0VniQEjRWeJASM=",
            "PelnarConfirmsGoodStart": "YES", "PelnarRequiresSignedFeed": "YES", "LSMinimumSystemVersion": "12.0"})
        odd = self.information("odd")
        self.assertEqual((odd["CFBundleName"], odd["NSExecutable"]), ("A \\ \"name\"", NAMES["odd"]))

    def test_everything_is_in_its_place(self):
        bundle = self.bundle("plain")
        for name in ("plain", "libexec/pelnar/pelnar-update-installer", "Resources/com.example.plain.svg",
                     "Resources/com.example.plain.desktop", "Resources/translations/plain_de.qm",
                     "Resources/data/a file.txt", "licenses/application/licence.txt", "licenses/list.txt"):
            self.assertTrue((bundle / name).is_file(), name)
        libraries = {path.name for path in bundle.glob("lib*/**/*.so*")}
        for name in ("libPelnarUpdateChecker.so.1", "libPelnarUpdateSession.so.1", "libPelnarUpdateEngine.so.1",
                     "libPelnarHostFramework.so.1", "libcurl.so.4", "libplugin.so", "libpart.so.2", "libpiece.so"):
            self.assertIn(name, libraries)
        baseline = [line.split()[1] for line in (SOURCE / "cmake/bundle/Baseline.txt").read_text().splitlines()
                    if line and not line.startswith("#")]
        self.assertFalse(libraries & set(baseline), "a library of the baseline is inside")
        entry = (bundle / "Resources/com.example.plain.desktop").read_text().splitlines()
        self.assertEqual(entry, ["[Desktop Entry]", "Type=Application", "Name=plain", "Exec=plain %F", "Terminal=false",
                                 "Icon=com.example.plain", "Categories=Office;Utility;"])

    def test_no_file_names_a_folder_of_this_computer(self):
        for target in ("plain", "notely"):
            for path in self.bundle(target).rglob("*"):
                if path.is_file() and path.suffix != ".plist":
                    self.assertNotIn(str(self.work).encode(), path.read_bytes(), path)

    def test_the_list_of_licences_is_whole(self):
        bundle = self.bundle("plain")
        rows = [line.split("\t") for line in (bundle / "licenses/list.txt").read_text().splitlines()]
        files = {str(path.relative_to(bundle)) for path in bundle.rglob("*") if path.is_file()
                 and path.read_bytes()[:4] == b"\x7fELF"}
        self.assertEqual({row[0] for row in rows}, files - {"plain"})
        for file, owner, *texts in rows:
            self.assertTrue(owner and texts, file)
            for text in texts[-1].split(", "):
                path = bundle / "licenses" / text
                self.assertTrue(path.is_dir() and list(path.iterdir()) or path.stat().st_size > 10, (file, text))
        referred = (bundle / "licenses/libgnustep-base1.28.txt").read_text()
        self.assertIn("/usr/share/common-licenses/", referred)
        self.assertTrue(list((bundle / "licenses/common-licenses").glob("*GPL*")))

    def test_qt_inside_brings_its_own_translations(self):
        run("cmake", "--build", self.build, "--target", "spoken_bundle")
        bundle = self.build / "spoken_bundle/spoken.app"
        is_loaded, folder, word = run(bundle / "spoken", env={**self.environment, "QT_QPA_PLATFORM": "minimal"}).split("\n")[:3]
        self.assertEqual((is_loaded, word), ("1", "Abbrechen"))
        self.assertEqual(pathlib.Path(folder).resolve(), (bundle / "translations").resolve())
        rows = [line.split("\t") for line in (bundle / "licenses/list.txt").read_text().splitlines()]
        self.assertIn("translations/qtbase_de.qm", {row[0] for row in rows})
        result = self.script("MakeBundle", "spoken", f"-DDESTINATION={self.work}/wrong", f"-DBUNDLE_QT_TRANSLATIONS={self.work}")
        self.assertIn("Install them; Debian's package is qttranslations5-l10n", " ".join(result.stderr.split()))

    def test_cmake_install_makes_the_same_bundle(self):
        destination = self.work / "staged"
        run("cmake", "--install", self.build, "--prefix", "/prefix", "--component", "plain_bundle",
            env={**os.environ, "DESTDIR": str(destination)})
        self.assertEqual(tree(destination / "prefix/opt/plain.app"), tree(self.bundle("plain")))

    def test_two_builds_give_the_same_archive(self):
        archive = self.build / "plain_bundle/plain-1.0.tar.zst"
        run("cmake", "--build", self.build, "--target", "plain_archive")
        first = archive.read_bytes()
        for path in self.build.rglob("*"):
            os.utime(path, (1, 1), follow_symlinks=False)
        run("cmake", "--build", self.build, "--target", "clean")
        shutil.rmtree(self.build / "plain_bundle/plain.app")
        archive.unlink()
        run("sh", "-c", "umask 077; exec \"$@\"", "sh", "cmake", "--build", self.build, "--target", "plain_archive",
            env={**os.environ, "TZ": "Asia/Tokyo", "LC_ALL": "C"})
        self.assertEqual(archive.read_bytes(), first)
        listing = run("tar", "--list", "--verbose", "--zstd", "--numeric-owner", "--file", archive)
        self.assertTrue(all(" 0/0 " in line and " 1980-01-01 " in line for line in listing.splitlines()), listing)
        names = run("tar", "--list", "--zstd", "--file", archive).splitlines()
        self.assertEqual(names[0], "plain.app/")

    def test_builds_in_other_folders_give_the_same_archive(self):
        run("cmake", "--build", self.build, "--target", "plain_archive")
        archive = (self.build / "plain_bundle/plain-1.0.tar.zst").read_bytes()
        elsewhere = self.work / "a folder with a much longer name" / "s"
        shutil.copytree(self.work / "source", elsewhere)
        for build in (self.work / "b", elsewhere / "build/of/it"):
            with self.subTest(build.name):
                self.configure(elsewhere, build)
                run("cmake", "--build", build, "--target", "plain_archive")
                self.assertEqual((build / "plain_bundle/plain-1.0.tar.zst").read_bytes(), archive)

    def test_the_root_key_and_the_second_key_come_from_a_text_or_a_file(self):
        destination = self.work / "with root"
        file = self.work / "next.pub"
        file.write_text("<key>SUPublicEDKey</key>\n<string>EjRWeJASNFZ4kBI0VniQEjRWeJASNFZ4kBI0VniQEjQ=</string>\n")
        result = self.script("MakeBundle", "plain", f"-DDESTINATION={destination}", "-DBUNDLE_NEXT_PUBLIC_KEY=",
                             f"-DBUNDLE_NEXT_PUBLIC_KEY_FILE={file}",
                             "-DBUNDLE_ROOT_PUBLIC_KEY=NFZ4kBI0VniQEjRWeJASNFZ4kBI0VniQEjRWeJASNFY=")
        self.assertEqual(result.returncode, 0, result.stderr)
        text = (destination / "plain.app/Resources/Info-gnustep.plist").read_text()
        self.assertIn('PelnarNextPublicEDKey = "EjRWeJASNFZ4kBI0VniQEjRWeJASNFZ4kBI0VniQEjQ=";', text)
        self.assertIn('PelnarRootPublicEDKey = "NFZ4kBI0VniQEjRWeJASNFZ4kBI0VniQEjRWeJASNFY=";', text)

    def test_what_is_wrong_is_said_in_a_sentence(self):
        wrong = {
            "-DBUNDLE_NAME=a/b": "Choose a NAME without a slash",
            "-DBUNDLE_NAME=.hidden": "Choose a NAME without a slash",
            "-DBUNDLE_NAME=-x": "Choose a NAME without a slash",
            "-DBUNDLE_NAME=": "Choose a NAME without a slash",
            "-DBUNDLE_IDENTIFIER=notes": "Set IDENTIFIER to one such as com.example.notes",
            "-DBUNDLE_VERSION=1.2.3.4.5": "Set VERSION to one to four numbers",
            "-DBUNDLE_VERSION=1.0-beta": "Set VERSION to one to four numbers",
            "-DBUNDLE_OPTIONS=PelnarConfirmGoodStart": "there is no option \"PelnarConfirmGoodStart\"",
            "-DBUNDLE_INFORMATION=key": "Write INFORMATION \"Key=text\"",
            "-DBUNDLE_PUBLIC_KEY=": "Make a key with `pelnar-appcast keys generate`",
            "-DBUNDLE_PUBLIC_KEY=abc=": "is no public key. Set PUBLIC_KEY to",
            "-DBUNDLE_NEXT_PUBLIC_KEY=garbage": "is no public key. Set NEXT_PUBLIC_KEY to",
            "-DBUNDLE_ROOT_PUBLIC_KEY=AAAA": "is no public key. Set ROOT_PUBLIC_KEY to",
            f"-DBUNDLE_ROOT_PUBLIC_KEY_FILE={os.devnull}": "is no public key. Set ROOT_PUBLIC_KEY to",
            "-DBUNDLE_ROOT_PUBLIC_KEY=q83vEjRWeJASNFZ4kBI0VniQEjRWeJASNFZ4kBI0Vng=": "two of its keys are one",
            "-DBUNDLE_LINK=a b": "Set LINK to a name of letters and digits",
            "-DBUNDLE_LICENSES=": "Name the file of its text under LICENSES",
            "-DBUNDLE_QT=MAYBE": "Set QT to OUTSIDE or INSIDE",
            "-DBUNDLE_SYSTEM_LIBRARIES=SOME": "Set SYSTEM_LIBRARIES to INSIDE or OUTSIDE",
        }
        for setting, sentence in wrong.items():
            with self.subTest(setting):
                result = self.script("MakeBundle", "plain", f"-DDESTINATION={self.work}/wrong", setting)
                self.assertNotEqual(result.returncode, 0)
                self.assertIn(sentence, " ".join(result.stderr.split()))

    def test_the_layout_of_macos_with_a_program_for_linux_is_refused(self):
        destination = self.work / "for macOS"
        program = destination / "plain.app/Contents/MacOS/plain"
        program.parent.mkdir(parents=True)
        program.write_bytes(b"\xcf\xfa\xed\xfe and so on")
        self.assertEqual(self.script("PackBundle", "plain", f"-DDESTINATION={destination}").returncode, 0)
        shutil.copy2(self.bundle("plain") / "plain", program)
        result = self.script("PackBundle", "plain", f"-DDESTINATION={destination}")
        self.assertNotEqual(result.returncode, 0)
        self.assertIn("it has the layout of macOS (Contents/)", " ".join(result.stderr.split()))
        contents = self.work / "Contents"
        shutil.copytree(program.parent.parent, contents)
        result = self.script("MakeBundle", "plain", f"-DDESTINATION={self.work}/other",
                             f"-DBUNDLE_RESOURCES={contents}")
        self.assertEqual(result.returncode, 0, "a folder Contents among the resources is no layout")

    def test_the_options_are_what_the_engine_reads(self):
        text = (SOURCE / "cmake/bundle/Information.cmake").read_text()
        names = set(text.split("set(PELNAR_BUNDLE_OPTION_NAMES")[1].split(")")[0].split())
        sources = "".join(path.read_text() for folder in ("Engine", "Installer", "common") for path in (SOURCE / folder).rglob("*")
                          if path.suffix in (".mm", ".cpp", ".h"))
        for name in names:
            self.assertIn(f'"{name}"', sources)

    def test_the_guide_shows_the_baseline(self):
        rows = [line.split() for line in (SOURCE / "cmake/bundle/Baseline.txt").read_text().splitlines()
                if line and not line.startswith("#")]
        guide = (SOURCE / "docs/guide/deployment.md").read_text()
        shown = re.findall(r"^\| (?:`(lib\S+|ld-\S+)`|certificates of authorities) \| `(\S+)` \| (.*) \|$", guide, re.MULTILINE)
        self.assertEqual(shown, [("" if library == "-" else library, package,
                                  "bundles with `QT OUTSIDE`" if group == "qt" else "every bundle")
                                 for group, library, package in rows])
        commands = guide.split("```sh\napt-get install ")[1].split("```")[0]
        self.assertEqual(set(re.findall(r"\b[a-z][a-z0-9+.-]*[a-z0-9+]", re.sub("#.*|apt-get install", "", commands))),
                         {package for _, _, package in rows})


if __name__ == "__main__":
    BUILD_FOLDER, CXX_COMPILER = sys.argv[1:3]
    unittest.main(argv=sys.argv[:1] + sys.argv[3:])
