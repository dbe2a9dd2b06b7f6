"""Proves that the lane notices what it is for: each case breaks one thing, in a small program of its own."""

import pathlib
import shutil
import subprocess

import checks
import images
import sysroot

ARCHITECTURE = "arm64"
OBJECTIVE = "#import <Foundation/Foundation.h>\n"
SPARKLE = "#import <Sparkle/Sparkle.h>\n"
USES_FRAMEWORK = SPARKLE + "id f() { return [SUUpdater sharedUpdater]; }\nid g() { return [SUStandardVersionComparator defaultComparator]; }\n"
OWN_FUNCTION = "__attribute__((visibility(\"default\"))) int own() { return 1; }\n"
OWN_CLASS = OBJECTIVE + "@interface Own : NSObject\n@end\n@implementation Own\n@end\n" + OWN_FUNCTION
MAIN = "int main() { return 0; }\n"
NEEDS_OWN = "int own();\nint main() { return own(); }\n"
LINUX_CALL = 'extern "C" int gettid();\nint main() { return gettid(); }\n'
INSTALL_NAME = "-Wl,-install_name,@rpath/libPelnarUpdateChecker.1.dylib"

# Sources that must not compile: name, system, flags, source, the compiler's message.
REFUSED = [
    ("an unknown method", "11.0", [], OBJECTIVE + "void f() { [NSString nonesuch]; }\n", "nonesuch"),
    ("an unknown class", "11.0", [], OBJECTIVE + "id f() { return [[NSWindow alloc] init]; }\n", "NSWindow"),
    ("a method of the engine alone", "11.0", [], SPARKLE + "void f() { [[SUUpdater sharedUpdater] pelnar]; }\n", "pelnar"),
    ("nil where none may be", "11.0", ["-Wnonnull"], OBJECTIVE + "void f() { [@\"a\" isEqualToString:nil]; }\n", "null"),
    ("a function of Linux", "11.0", [], "#include <unistd.h>\nint f() { return gettid(); }\n", "gettid"),
    ("a header of Linux", "11.0", [], "#include <malloc.h>\n", "malloc.h"),
    ("counted references", "11.0", ["-fobjc-arc"], '#include "Foundation/Retained.h"\n', "-fno-objc-arc"),
    ("a part of the C++ library that came later", "10.13", [],
     "#include <filesystem>\nbool f() { return std::filesystem::exists(\"/\"); }\n", "unavailable"),
    ("a sign of BOOL that differs", "11.0", [], OBJECTIVE + "static_assert(static_cast<BOOL>(-1) < 0);\n", "static_assert"),
]


class Bench:
    """A folder in which small programs are compiled and linked."""

    def __init__(self, folder):
        self.folder = folder / "self-test"
        self.tools = sysroot.make(folder / "packages", folder / "sysroot")
        self.sysroot = folder / "sysroot"
        shutil.rmtree(self.folder, ignore_errors=True)
        self.folder.mkdir()

    def clang(self, system, *arguments):
        architecture = "x86_64" if system.startswith("10.") else ARCHITECTURE
        command = [self.tools / "clang++", f"--target={architecture}-apple-darwin", "-arch", architecture,
                   f"-mmacosx-version-min={system}", "-isysroot", self.sysroot, "-stdlib=libc++", "-std=c++17", "-Wall", "-Werror",
                   f"-I{sysroot.PROJECT}", "-iframework", self.sysroot / "framework", *arguments]
        return subprocess.run(list(map(str, command)), capture_output=True, text=True)

    def source(self, name, text):
        path = self.folder / f"{name}.mm"
        path.write_text(text)
        return path

    def compiles(self, system, flags, text):
        """What the compiler complains of; empty when it does not."""
        done = self.clang(system, "-fsyntax-only", *flags, self.source("source", text))
        return "" if done.returncode == 0 else done.stderr

    def complaints(self, name, text, *flags, system="11.0"):
        """What the linker complains of; empty when it links."""
        path = self.folder / name
        flags = [*flags, "-dynamiclib"] if name.endswith(".dylib") else flags
        done = self.clang(system, self.source(path.stem, text), "-o", path, f"--ld-path={self.tools / 'ld64.lld'}",
                          "-mlinker-version=609", "-framework", "Foundation", *flags)
        return "" if done.returncode == 0 else done.stderr

    def link(self, name, text, *flags, system="11.0"):
        """The linked file as it describes itself."""
        said = self.complaints(name, text, *flags, system=system)
        if said:
            raise RuntimeError(f"{name} does not link: {said}")
        return images.read(self.tools, self.folder / name)


def refused_sources(bench):
    for name, system, flags, text, expected in REFUSED:
        said = bench.compiles(system, flags, text)
        if expected not in said:
            yield f"the compiler lets {name} pass: {said[:200]!r}"
    innocent = USES_FRAMEWORK + '#include "Foundation/Retained.h"\n#include <string>\n'
    for system in ("11.0", "10.13"):
        said = bench.compiles(system, [], innocent)
        if said:
            yield f"the compiler refuses what is right: {said[:400]}"


def refused_links(bench):
    if "gettid" not in bench.complaints("linux", LINUX_CALL):
        yield "the linker lets a function of Linux pass"
    if "SUUpdater" not in bench.complaints("libPelnarUpdateChecker.dylib", USES_FRAMEWORK, INSTALL_NAME):
        yield "the linker lets a library without the framework pass"


def expect(findings, text, what):
    findings = list(findings)
    if text is None:
        return [f"finds wrongly in {what}: {finding}" for finding in findings]
    return [] if any(text in finding for finding in findings) else [f"does not find {what}: {findings}"]


def checked_images(bench):
    loose = "-Wl,-undefined,dynamic_lookup"
    good = bench.link("libPelnarUpdateChecker.dylib", USES_FRAMEWORK, INSTALL_NAME, "-framework", "Sparkle")
    yield from expect(checks.check_image(good, ARCHITECTURE), None, "a good library")
    yield from expect(checks.check_framework(good), None, "a good library")

    without = bench.link("libPelnarUpdateChecker.dylib", USES_FRAMEWORK, INSTALL_NAME, loose)
    yield from expect(checks.check_framework(without), "does not load", "a framework that is not linked")
    yield from expect(checks.check_image(without, ARCHITECTURE), "to chance", "a class that nobody is said to have")
    doubles = USES_FRAMEWORK.replace("id f", "@implementation SUUpdater\n@end\nid f")
    own = bench.link("libPelnarUpdateChecker.dylib", doubles, INSTALL_NAME, "-framework", "Sparkle", "-Wno-incomplete-implementation",
                     "-Wno-objc-property-implementation", "-Wno-error")
    yield from expect(checks.check_framework(own), "does not get the class SUUpdater", "a double in the framework's place")
    host = bench.link("host", MAIN, "-Wl,-needed_framework,Sparkle", f"-F{bench.sysroot}/framework")
    yield from expect(checks.check_framework(host), "only the update checker", "a host that links the framework")

    named = bench.link("libPelnarUpdateChecker.dylib", USES_FRAMEWORK, "-Wl,-install_name,libPelnarUpdateChecker.so", "-framework", "Sparkle")
    yield from expect(checks.check_image(named, ARCHITECTURE), "install name", "a wrong install name")
    user = bench.link("host", SPARKLE + "id f();\nint main() { return f() == nil; }\n", named.path)
    yield from expect(checks.check_image(user, ARCHITECTURE), "which no Mac has", "a library that is loaded by a name of Linux")
    elf = bench.link("host", MAIN, "-Wl,-rpath,$ORIGIN/lib")
    yield from expect(checks.check_image(elf, ARCHITECTURE), "means nothing", "a search path of Linux")
    late = bench.link("host", MAIN, system="12.0")
    yield from expect(checks.check_image(late, ARCHITECTURE), "from 12.0 on", "a wrong deployment target")
    intel = bench.link("host", MAIN, system="10.13")
    yield from expect(checks.check_image(intel, ARCHITECTURE), "x86_64", "a wrong architecture")

    linux = bench.link("host", LINUX_CALL, loose)
    yield from expect(checks.check_linux_symbols(linux.undefined, ["_gettid", "_write"], ["_write"]), "_gettid", "a function of Linux")
    objects = bench.folder / "linux.o"
    bench.clang("11.0", "-c", bench.source("object", LINUX_CALL), "-o", objects)
    yield from expect(checks.check_linux_symbols(images.undefined_in_objects(bench.tools, [objects]), ["_gettid"], []), "_gettid",
                      "a function of Linux in an object")


def checked_classes(bench):
    name = "@rpath/libOwn.dylib"
    library = bench.link("libOwn.dylib", OWN_CLASS, f"-Wl,-install_name,{name}", "-fvisibility=hidden")
    once = bench.link("host", NEEDS_OWN, library.path)
    twice = bench.link("host", NEEDS_OWN + OWN_CLASS.replace(OWN_FUNCTION, ""), library.path, "-fvisibility=hidden")
    by_install_name = {name: library}
    yield from expect(checks.check_classes(once, by_install_name, []), None, "a class that stands once")
    yield from expect(checks.check_classes(twice, by_install_name, []), "class Own 2 times", "a class that is linked twice")
    both = bench.link("host", MAIN, "-Wl,-needed_framework,Sparkle", "-Wl,-needed_library," + str(library.path))
    library.libraries.append(checks.SPARKLE)
    yield from expect(checks.check_classes(both, by_install_name, ["SUUpdater"]), None, "a framework that two files load")
    double = bench.link("libPelnarUpdateChecker.dylib", USES_FRAMEWORK, INSTALL_NAME, "-framework", "Sparkle")
    double.classes.add("SUUpdater")
    yield from expect(checks.check_classes(double, {}, ["SUUpdater"]), "class SUUpdater 2 times", "a double beside the framework")


def checked_bundles(bench):
    bundle = bench.folder / "pelnar-demo.app"
    (bundle / "Contents/MacOS").mkdir(parents=True)
    (bundle / "Contents/Frameworks").mkdir()
    library = bench.link("libOwn.dylib", OWN_FUNCTION, "-Wl,-install_name,@rpath/libPelnarOwn.dylib",
                         "-Wl,-rpath,@loader_path")
    program = bench.link("pelnar-demo", NEEDS_OWN, library.path, "-Wl,-rpath,@loader_path/../Frameworks")
    yield from expect(checks.check_bundle(bundle, program, [library]), "no information file", "a bundle without information")
    information = ("<plist><dict><key>CFBundleExecutable</key><string>pelnar-demo</string><key>CFBundleIdentifier</key>"
                   "<string>a.b</string><key>CFBundleName</key><string>a</string><key>CFBundleShortVersionString</key>"
                   "<string>1</string><key>CFBundleVersion</key><string>1.2</string></dict></plist>")
    (bundle / "Contents/Info.plist").write_text(information)
    yield from expect(checks.check_bundle(bundle, program, [library]), "does not hold", "a library that the bundle lacks")
    shutil.copy(library.path, bundle / "Contents/Frameworks/libPelnarOwn.dylib")
    yield from expect(checks.check_bundle(bundle, program, [library]), None, "a good bundle")
    (bundle / "Contents/Info.plist").write_text(information.replace("<string>1.2<", "<string>next<"))
    yield from expect(checks.check_bundle(bundle, program, [library]), "which is none", "a version that is none")
    yield from expect(checks.check_bundle(bundle, library, [program]), "search libraries in", "wrong search paths")


def stale_headers(_):
    try:
        sysroot.framework_header("@interface A\nstd::string b;\n@end\n")
    except ValueError:
        return
    yield "C++ in a header of the framework passes"


def run(folder):
    bench = Bench(folder)
    findings = [finding for part in (refused_sources, refused_links, checked_images, checked_classes, checked_bundles, stale_headers)
                for finding in part(bench)]
    for finding in findings:
        print(f"  {finding}")
    print(f"apple lane, self-test: {len(findings)} finding(s)")
    return 1 if findings else 0
