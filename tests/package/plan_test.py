#!/usr/bin/env python3
"""What is built without tests and benchmarks can be: a packager's build, and the one of the fuzz targets.

Both are configured, and every input of every step must be there or be made by another step, so that what only tests and
benchmarks look for is missed here. Usage: plan_test.py SOURCE_FOLDER CXX_COMPILER
"""
import os
import re
import subprocess
import sys
import tempfile


def paths(folder, text):
    """The paths in part of a build statement, all of them whole."""
    escaped = set(re.findall(r"(?:\$.|[^\s$])+", text)) - {"|", "||"}
    plain = {re.sub(r"\$(.)", r"\1", word.replace("${cmake_ninja_workdir}", "")) for word in escaped}
    return {os.path.normpath(os.path.join(folder, word)) for word in plain}


def what_nothing_makes(folder):
    made, wanted = set(), set()
    with open(os.path.join(folder, "build.ninja"), encoding="utf-8") as plan:
        for line in plan:
            statement = re.match(r"build ((?:\$.|[^:$]|\$\{\w+\})+): \S+(.*)", line)
            if statement:
                made |= paths(folder, statement.group(1))
                wanted |= paths(folder, statement.group(2))
    assert any(path.endswith("/pelnar-update-installer") for path in made), "the plan has no helper"
    return {path for path in wanted - made if not os.path.exists(path)}, made


def main():
    source, compiler = sys.argv[1:]
    failures = []
    for fuzzers in ("OFF", "ON"):
        with tempfile.TemporaryDirectory() as folder:
            subprocess.run(
                ["cmake", "-S", source, "-B", folder, "-G", "Ninja", "-DCMAKE_CXX_COMPILER=" + compiler,
                 "-DCMAKE_OBJCXX_COMPILER=" + compiler, "-DPELNAR_BUILD_TESTS=OFF", "-DPELNAR_BUILD_BENCHMARKS=OFF",
                 "-DPELNAR_BUILD_FUZZERS=" + fuzzers],
                check=True, stdout=subprocess.DEVNULL)
            missing, made = what_nothing_makes(folder)
            failures += [f"with PELNAR_BUILD_FUZZERS={fuzzers} nothing makes '{path}'" for path in sorted(missing)]
            if (os.path.join(folder, "fuzz/fuzz_delta") in made) != (fuzzers == "ON"):
                failures.append(f"with PELNAR_BUILD_FUZZERS={fuzzers} the plan of the fuzz targets is wrong")
    print("\n".join(failures))
    return 1 if failures else 0


if __name__ == "__main__":
    sys.exit(main())
