"""Fills the folder that stands in for Apple's SDK.

Its own declarations of the C library and of Foundation (sdk/), lists of what the system's libraries export (stubs/),
the C++ library's headers from Debian, the update framework's headers made from the engine's, and links to the headers
of Qt, glog, Boost, GoogleTest and benchmark. No file comes from Apple.
"""

import hashlib
import pathlib
import re
import shutil
import subprocess

HERE = pathlib.Path(__file__).resolve().parent
PROJECT = HERE.parent.parent
TARGETS = "[ x86_64-macos, arm64-macos ]"
FRAMEWORKS = "/System/Library/Frameworks"
SPARKLE_NAME = "@rpath/Sparkle.framework/Versions/A/Sparkle"


class Unavailable(Exception):
    """Something that the machine does not have; the lane can not run there."""


def run(command, **options):
    return subprocess.run(command, check=True, capture_output=True, text=True, **options).stdout


def find_tools():
    """The folder that holds clang, ld64.lld and LLVM's tools of one version, and the number of that version."""
    clang = shutil.which("clang++")
    if not clang:
        raise Unavailable("clang++ is missing: run scripts/packages")
    folder = pathlib.Path(clang).resolve().parent
    for name in ("ld64.lld", "llvm-nm", "llvm-objdump", "llvm-ar", "llvm-ranlib", "llvm-install-name-tool"):
        if not (folder / name).exists():
            raise Unavailable(f"{name} is missing beside {clang}: run scripts/packages")
    version = re.search(r"version (\d+)\.", run([clang, "--version"])).group(1)
    return folder, version


def download(packages, folder):
    """Debian's packages, unpacked nowhere but in the folder. No right of an administrator is needed."""
    folder.mkdir(parents=True, exist_ok=True)
    if all(list(folder.glob(f"{name}_*.deb")) for name in packages):
        return
    state = folder / "apt"
    own_lists = ["-o", f"Dir::State={state}", "-o", f"Dir::Cache={state}", "-o", "Dir::State::status=/var/lib/dpkg/status"]
    attempts = [
        [["apt-get", "download", "-qq", *packages]],
        # A container may have no package lists. They are fetched for this folder only.
        [["apt-get", *own_lists, "update", "-qq"], ["apt-get", *own_lists, "download", "-qq", *packages]],
    ]
    said = ""
    for commands in attempts:
        (state / "lists" / "partial").mkdir(parents=True, exist_ok=True)
        (state / "archives" / "partial").mkdir(parents=True, exist_ok=True)
        try:
            for command in commands:
                run(command, cwd=folder, timeout=120)
            return
        except (OSError, subprocess.SubprocessError) as error:
            said = (getattr(error, "stderr", None) or str(error)).strip().splitlines()[-1:]
    raise Unavailable(f"cannot download {' '.join(packages)}: {' '.join(said)}")


def unpack_cxx_library(version, cache):
    packages = [f"libc++-{version}-dev", f"libc++1-{version}", f"libc++abi1-{version}"]
    download(packages, cache)
    folder = cache / "unpacked"
    if not folder.exists():
        partial = cache / "unpacking"
        shutil.rmtree(partial, ignore_errors=True)
        for name in packages:
            run(["dpkg", "-x", str(next(cache.glob(f"{name}_*.deb"))), str(partial)])
        partial.rename(folder)
    return folder


def copy_cxx_headers(unpacked, version, sysroot):
    headers = sysroot / "usr/include/c++/v1"
    shutil.copytree(unpacked / f"usr/lib/llvm-{version}/include/c++/v1", headers)
    # Apple's build of the library says which parts came with which system, and using a part that is newer than the
    # deployment target is an error. Debian's build does not say this.
    site = headers / "__config_site"
    text = site.read_text()
    switch = "#define _LIBCPP_HAS_NO_VENDOR_AVAILABILITY_ANNOTATIONS"
    if switch not in text:
        raise Unavailable("Debian's C++ library does not say how it is configured")
    site.write_text(text.replace(switch, "/* #undef _LIBCPP_HAS_NO_VENDOR_AVAILABILITY_ANNOTATIONS */"))


def framework_header(text):
    """A header of the engine as the framework's would be: without what is C++ or the engine's alone."""
    text = re.sub(r"namespace Pelnar::Engine\n\{.*?\n\}\n+", "", text, flags=re.S)
    text = re.sub(r"\n\{\n@private\n.*?\n\}\n", "\n", text, flags=re.S)
    text = re.sub(r"#include <(?:memory|cstdint)>\n+", "", text)
    if "::" in text or "#include" in text:
        raise ValueError("a header of the engine holds C++ that the framework's would not")
    return text


def write_stub(path, install_name, symbols=(), classes=(), reexports=()):
    lines = ["--- !tapi-tbd", "tbd-version: 4", f"targets: {TARGETS}", f"install-name: '{install_name}'"]
    if reexports:
        names = ", ".join(f"'{name}'" for name in reexports)
        lines += ["reexported-libraries:", f"  - targets: {TARGETS}", f"    libraries: [ {names} ]"]
    lines += ["exports:", f"  - targets: {TARGETS}"]
    if symbols:
        lines.append("    symbols: [ " + ",\n               ".join(f"'{name}'" for name in sorted(set(symbols))) + " ]")
    if classes:
        lines.append(f"    objc-classes: [ {', '.join(sorted(set(classes)))} ]")
        if "NSException" in classes:
            lines.append("    objc-eh-types: [ NSException ]")
    lines.append("...")
    path.parent.mkdir(parents=True, exist_ok=True)
    path.write_text("\n".join(lines) + "\n")


def listed(name):
    """The symbols of stubs/NAME.txt, one a line, as C writes them; # begins a remark."""
    lines = (HERE / "stubs" / f"{name}.txt").read_text().splitlines()
    return [line.split("#")[0].strip() for line in lines if line.split("#")[0].strip()]


def exported_by(tools, library):
    """What a library of this machine exports, as Apple's linker writes it."""
    out = run([str(tools / "llvm-nm"), "--dynamic", "--defined-only", "--extern-only", "--format=just-symbols", str(library)])
    return ["_" + line.split("@")[0] for line in out.splitlines() if line]


def declared_classes(header):
    return re.findall(r"^@interface (\w+)(?:<[^>]*>)?\s*(?::|<|$)", header.read_text(), flags=re.M)


def write_stubs(tools, unpacked, sysroot):
    libraries = sysroot / "usr/lib"
    classes = declared_classes(sysroot / FRAMEWORKS[1:] / "Foundation.framework/Headers/Foundation.h")
    write_stub(libraries / "libSystem.tbd", "/usr/lib/libSystem.B.dylib", ["_" + name for name in listed("libSystem")] + ["dyld_stub_binder"])
    write_stub(libraries / "libobjc.A.tbd", "/usr/lib/libobjc.A.dylib", ["_" + name for name in listed("libobjc")], ["NSObject"])
    write_stub(sysroot / FRAMEWORKS[1:] / "Foundation.framework/Foundation.tbd", f"{FRAMEWORKS}/Foundation.framework/Versions/C/Foundation",
               ["_" + name for name in listed("Foundation")], [name for name in classes if name != "NSObject"],
               reexports=["/usr/lib/libobjc.A.dylib"])
    write_stub(sysroot / FRAMEWORKS[1:] / "AppKit.framework/AppKit.tbd", f"{FRAMEWORKS}/AppKit.framework/Versions/C/AppKit",
               ["_" + name for name in listed("AppKit")], declared_classes(sysroot / FRAMEWORKS[1:] / "AppKit.framework/Headers/AppKit.h"))

    cxx = [name for library in ("libc++.so.1", "libc++abi.so.1") for name in exported_by(tools, next(unpacked.rglob(library)))]
    write_stub(libraries / "libc++.tbd", "/usr/lib/libc++.1.dylib", cxx)
    qt_libraries = pathlib.Path(run(["qmake", "-qt=5", "-query", "QT_INSTALL_LIBS"]).strip())
    for module in ("Core", "Gui", "Widgets", "Network", "Test"):
        write_stub(libraries / f"Qt{module}.tbd", f"@rpath/Qt{module}.framework/Versions/5/Qt{module}",
                   exported_by(tools, qt_libraries / f"libQt5{module}.so.5"))
    # Names that contain types of the C++ library differ from Debian's, which is built with the other library.
    for name, of_its_own in (("glog", []), ("benchmark", listed("benchmark"))):
        write_stub(libraries / f"{name}.tbd", f"@rpath/lib{name}.dylib",
                   exported_by(tools, qt_libraries / f"lib{name}.so") + ["_" + symbol for symbol in of_its_own])


def write_framework(sysroot):
    framework = sysroot / "framework/Sparkle.framework"
    headers = framework / "Headers"
    headers.mkdir(parents=True)
    for header in sorted((PROJECT / "Engine/include/Sparkle").glob("*.h")):
        (headers / header.name).write_text(framework_header(header.read_text()))
    write_stub(framework / "Sparkle.tbd", SPARKLE_NAME, ["_SUSparkleErrorDomain"], framework_classes(sysroot))


def framework_classes(sysroot):
    headers = (sysroot / "framework/Sparkle.framework/Headers").glob("*.h")
    return sorted({name for header in headers for name in declared_classes(header)})


def link_headers(sysroot):
    folder = sysroot / "usr/local/include"
    folder.mkdir(parents=True)
    for name in ("benchmark", "boost", "gflags", "glog", "gtest"):
        (folder / name).symlink_to(pathlib.Path("/usr/include") / name)
    query = lambda what: run(["qmake", "-qt=5", "-query", what]).strip()
    (sysroot / "qt-folders.txt").write_text(f"{query('QT_INSTALL_HEADERS')};{query('QT_HOST_BINS')}")
    (sysroot / "gtest-folder.txt").write_text("/usr/src/googletest/googletest")


def digest(version):
    """Changes with everything that the folder is made from."""
    result = hashlib.sha256(version.encode())
    for folder in (HERE / "sdk", HERE / "stubs", PROJECT / "Engine/include/Sparkle"):
        for file in sorted(folder.rglob("*")):
            if file.is_file():
                result.update(str(file.relative_to(PROJECT)).encode() + b"\0" + file.read_bytes())
    result.update(pathlib.Path(__file__).read_bytes())
    return result.hexdigest()


def make(cache, sysroot):
    """Makes the folder, unless it stands there already, and answers where the tools are."""
    tools, version = find_tools()
    unpacked = unpack_cxx_library(version, cache)
    stamp = sysroot / "made-from.txt"
    made_from = digest(version)
    if stamp.exists() and stamp.read_text() == made_from:
        return tools
    shutil.rmtree(sysroot, ignore_errors=True)
    shutil.copytree(HERE / "sdk", sysroot)
    copy_cxx_headers(unpacked, version, sysroot)
    write_framework(sysroot)
    link_headers(sysroot)
    write_stubs(tools, unpacked, sysroot)
    stamp.write_text(made_from)
    return tools
