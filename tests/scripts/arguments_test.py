"""Calls every script of scripts/ with --help and with arguments that it does not know.

No call may do more than answer: with an unknown argument a script ends before it builds, installs or writes.
"""

import os
import pathlib
import signal
import subprocess
import sys

# Each is one argument too many, or one that the script does not know.
WRONG = {
    "abi": (["--refresh", "--wrong"],),
    "bench": (["versions", "--wrong"], ["wrong"], ["--benchmark_filter=x", "wrong"]),
    "coverage": ([], ["/", "/"], ["/nowhere/build"]),
    "demo": (["--interactive", "--wrong"],),
    "packages": (["--list", "--wrong"],),
    "skipped": ([], ["/nowhere/tests.xml"], ["/", "/"]),
    "test": (["--preset"], ["--preset", "wrong"], ["--long", "wrong"]),
    "translations": (["/nowhere/folder"], ["translations", "wrong"]),
}
SECONDS = 20


def call(script, arguments):
    started = subprocess.Popen([script, *arguments], stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                               stderr=subprocess.PIPE, text=True, start_new_session=True)
    try:
        out, err = started.communicate(timeout=SECONDS)
    except subprocess.TimeoutExpired:
        os.killpg(started.pid, signal.SIGKILL)  # with the programs that it started
        out, err = started.communicate()
    return subprocess.CompletedProcess(arguments, started.returncode, out, err)


def faults_of_help(script):
    for option in ("--help", "-h"):
        ended = call(script, [option])
        if ended.returncode != 0 or ended.stderr or f"scripts/{script.name}" not in ended.stdout \
                or "Usage:" not in ended.stdout:
            yield f"{option}: status {ended.returncode}, {ended.stdout!r}, {ended.stderr!r}"


def faults_of_arguments(script):
    for arguments in (["--wrong"], *WRONG.get(script.name, ())):
        ended = call(script, arguments)
        lines = ended.stderr.splitlines()
        named = not arguments or any(argument in ended.stderr for argument in arguments)
        if ended.returncode != 2 or ended.stdout or len(lines) != 1 or not named \
                or not lines[0].startswith(f"scripts/{script.name}: ") \
                or not lines[0].endswith(f"; see scripts/{script.name} --help"):
            yield f"{arguments}: status {ended.returncode}, {ended.stdout!r}, {ended.stderr!r}"


def main(root):
    scripts = sorted(pathlib.Path(root, "scripts").iterdir())
    faults = [f"scripts/{script.name}: {fault}" for script in scripts
              for fault in (*faults_of_help(script), *faults_of_arguments(script))]
    for name in set(WRONG) - {script.name for script in scripts}:
        faults.append(f"scripts/{name} is gone")
    print("\n".join(faults) or f"{len(scripts)} scripts")
    return 1 if faults or not scripts else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1]))
