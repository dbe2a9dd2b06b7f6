"""A page of the guides as a shell script: the files that it shows, the commands that it types, and what they print."""
import contextlib
import os
import re
import signal
import subprocess
import tempfile

BLOCK = re.compile(r"(?:^Save this as `(?P<path>[\w./-]+)`[^\n]*\n\n)?^```(?P<kind>\w*)\n(?P<text>.*?)^```$",
                   re.MULTILINE | re.DOTALL)
MARK = "---- block"


def blocks(page):
    """Path (or None), kind and text of each block between fences."""
    return [(match["path"], match["kind"], match["text"]) for match in BLOCK.finditer(page)]


def script_of(page):
    """Writes the files and runs the blocks of kind "sh", in the page's order, with a mark in front of each block."""
    lines = ["set -eu -o pipefail"]
    for number, (path, kind, text) in enumerate(blocks(page)):
        lines.append(f"echo '{MARK} {number}'")
        if path:
            lines.append(f"cat > '{path}' <<'END_OF_FILE'\n{text}END_OF_FILE")
        elif kind == "sh":
            lines.append(text)
    return "\n".join(lines) + "\n"


def run_page(page, folder, environment, patience):
    """What the page's commands print. A command that fails raises AssertionError; what they leave running is ended."""
    with tempfile.TemporaryFile() as printed:
        shell = subprocess.Popen(["bash", "-c", script_of(page)], cwd=folder, env=environment, stdin=subprocess.DEVNULL,
                                 stdout=printed, stderr=subprocess.STDOUT, start_new_session=True)
        try:
            status = shell.wait(timeout=patience)
        except subprocess.TimeoutExpired:
            status = "no end"
        finally:
            with contextlib.suppress(ProcessLookupError):
                os.killpg(shell.pid, signal.SIGKILL)
            shell.wait()
        printed.seek(0)
        output = printed.read().decode(errors="backslashreplace")
    if status != 0:
        raise AssertionError(f"a command of the page ended with {status}:\n{output}")
    expect_outputs(page, output)
    return output


def expect_outputs(page, output):
    """Each line of a block of kind "text" begins a line that the block before it printed, in this order."""
    parts = output.split(MARK)
    for number, (_, kind, text) in enumerate(blocks(page)):
        if kind != "text":
            continue
        printed = iter(parts[number].splitlines())
        for line in text.splitlines():
            if not any(candidate.startswith(line) for candidate in printed):
                raise AssertionError(f"the page shows the line \"{line}\", but printed was\n{parts[number]}")
