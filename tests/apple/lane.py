#!/usr/bin/env python3
"""Builds the macOS side of the project on Linux, and checks what comes out.

Usage: lane.py FOLDER               build in FOLDER and check
       lane.py --self-test FOLDER   prove that each check notices what it is for

Ends with 0 when all is well, 1 with findings or failures, 77 when the machine lacks something; with
PELNAR_APPLE_LANE=required in the environment that is a failure too. docs/decisions/0007-the-apple-lane.md says what
this proves and what it does not.
"""

import json
import os
import pathlib
import shutil
import subprocess
import sys
import time

sys.dont_write_bytecode = True
sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent))

import checks
import images
import self_test
import sysroot

STATUS_SKIPPED = 77
ARCHITECTURES = ("arm64", "x86_64")
EXPECTED = (
    "App/UpdateChecker/libPelnarUpdateChecker.1.0.0.dylib",
    "HostFramework/Reference/libPelnarHostFramework.1.0.0.dylib",
    "Demo/pelnar-demo.app/Contents/MacOS/pelnar-demo",
    "Demo/pelnar-update-check.app/Contents/MacOS/pelnar-update-check",
)


def say(text):
    print(text, flush=True)


def run(command, log):
    """Runs a step; shows the end of what it says when it fails."""
    with open(log, "w") as file:
        status = subprocess.run(list(map(str, command)), stdout=file, stderr=subprocess.STDOUT).returncode
    if status != 0:
        text = log.read_text()
        lines = [line for line in text.splitlines() if "error:" in line or "CMake Error" in line] or text.splitlines()
        say("\n".join(lines[-40:]))
        say(f"FAILED: {' '.join(map(str, command[:4]))} ...; the whole output stands in {log}")
    return status == 0


def build(architecture, tools, folder):
    build_folder = folder / architecture
    configure = [
        "cmake", "--fresh", "-G", "Ninja", "-S", sysroot.PROJECT, "-B", build_folder,
        f"-DCMAKE_TOOLCHAIN_FILE={sysroot.HERE / 'toolchain.cmake'}",
        f"-DPELNAR_APPLE_ARCHITECTURE={architecture}",
        f"-DPELNAR_APPLE_SYSROOT={folder / 'sysroot'}",
        f"-DPELNAR_APPLE_TOOLS={tools}",
        "-DCMAKE_BUILD_TYPE=Debug",
        "-DCMAKE_CXX_FLAGS_DEBUG=",
        "-DCMAKE_OBJCXX_FLAGS_DEBUG=",
        "-DPELNAR_WARNINGS_AS_ERRORS=ON",
        "-DCMAKE_DISABLE_PRECOMPILE_HEADERS=ON",
    ]
    return run(configure, folder / f"configure-{architecture}.log") and run(
        ["cmake", "--build", build_folder, "--", "-k", "0"], folder / f"build-{architecture}.log")


def install_bundle(architecture, folder):
    place = folder / f"installed-{architecture}"
    shutil.rmtree(place, ignore_errors=True)
    command = ["cmake", "--install", folder / architecture, "--component", "PelnarDemoBundle", "--prefix", place]
    return place / "pelnar-demo.app" if run(command, folder / f"install-{architecture}.log") else None


def linked_files(folder):
    for path in sorted(folder.rglob("*")):
        if "CMakeFiles" not in path.parts and path.is_file() and not path.is_symlink() and images.is_mach_o(path):
            yield path


def engine_header_findings(build_folder):
    """The engine's own <Sparkle/...> stands beside no source that macOS compiles."""
    folder = str(sysroot.PROJECT / "Engine/include")
    for command in json.loads((build_folder / "compile_commands.json").read_text()):
        if folder in command["command"].split("-I")[-1] or f"{folder} " in command["command"] + " ":
            yield f"{command['file']}: reads headers from {folder}"


def symbols_of_linux(tools):
    """What this machine's C library exports."""
    text = subprocess.run(["clang++", "-print-file-name=libc.so.6"], check=True, capture_output=True, text=True).stdout
    return sysroot.exported_by(tools, pathlib.Path(text.strip()))


def check(architecture, tools, folder):
    build_folder = folder / architecture
    findings = list(engine_header_findings(build_folder))
    linux = symbols_of_linux(tools)
    apple = ["_" + name for name in sysroot.listed("libSystem")]
    built = [images.read(tools, path) for path in linked_files(build_folder)]
    by_install_name = {image.install_name: image for image in built if image.install_name}
    framework_classes = sysroot.framework_classes(folder / "sysroot")
    for image in built:
        found = [*checks.check_image(image, architecture), *checks.check_framework(image),
                 *checks.check_linux_symbols(image.undefined, linux, apple),
                 *checks.check_classes(image, by_install_name, framework_classes)]
        findings += [f"{image.path.name}: {text}" for text in found]
    objects = sorted(build_folder.rglob("*.o"))
    findings += checks.check_linux_symbols(images.undefined_in_objects(tools, objects), linux, apple)
    findings += [f"{name}: was not built" for name in EXPECTED if build_folder / name not in [image.path for image in built]]

    bundle = install_bundle(architecture, folder)
    if bundle:
        program = images.read(tools, bundle / "Contents/MacOS/pelnar-demo")
        libraries = [images.read(tools, path) for path in linked_files(bundle / "Contents/Frameworks")]
        findings += [f"pelnar-demo.app: {text}" for text in checks.check_bundle(bundle, program, libraries)]
    else:
        findings.append("pelnar-demo.app: cannot be installed")
    say(f"{architecture}: {len(objects)} objects, {len(built)} linked files, {len(findings)} finding(s)")
    return findings


def run_lane(folder):
    start = time.monotonic()
    tools = sysroot.make(folder / "packages", folder / "sysroot")
    findings = []
    for architecture in ARCHITECTURES:
        if build(architecture, tools, folder):
            findings += check(architecture, tools, folder)
        else:
            findings.append(f"{architecture}: does not build")
    for finding in findings:
        say(f"  {finding}")
    say(f"apple lane: {len(findings)} finding(s) after {time.monotonic() - start:.0f} s")
    return 1 if findings else 0


def main(arguments):
    wants_self_test = arguments[:1] == ["--self-test"]
    if len(arguments) != 1 + wants_self_test:
        print(__doc__, file=sys.stderr)
        return 2
    folder = pathlib.Path(arguments[-1]).resolve()
    folder.mkdir(parents=True, exist_ok=True)
    try:
        return self_test.run(folder) if wants_self_test else run_lane(folder)
    except sysroot.Unavailable as error:
        is_required = os.environ.get("PELNAR_APPLE_LANE") == "required"
        # The format of GoogleTest: scripts/skipped reads the reason.
        say(f"{__file__}:0: {'FAILED' if is_required else 'Skipped'}\n{error}")
        return 1 if is_required else STATUS_SKIPPED


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
