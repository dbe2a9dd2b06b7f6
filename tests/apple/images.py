"""What a Mach-O file says of itself, as LLVM's tools print it."""

import dataclasses
import pathlib
import re
import subprocess

CLASS = "_OBJC_CLASS_$_"


@dataclasses.dataclass
class Image:
    path: pathlib.Path
    architecture: str = ""
    install_name: str = ""
    minimum_system: str = ""
    libraries: list = dataclasses.field(default_factory=list)
    search_paths: list = dataclasses.field(default_factory=list)
    undefined: dict = dataclasses.field(default_factory=dict)  # from a symbol to the library that it is bound to
    classes: set = dataclasses.field(default_factory=set)


def is_mach_o(path):
    with open(path, "rb") as file:
        return file.read(4) == b"\xcf\xfa\xed\xfe"


def output_of(tool, *arguments):
    return subprocess.run([str(tool), *map(str, arguments)], check=True, capture_output=True, text=True).stdout


def load_commands(text):
    """(name, fields) of each load command that objdump prints."""
    for block in re.split(r"^Load command \d+\n", text, flags=re.M)[1:]:
        fields = dict(re.findall(r"^\s*(\w+) (.+?)(?: \(offset \d+\))?$", block, flags=re.M))
        yield fields.get("cmd", ""), fields


def read(tools, path):
    image = Image(path)
    text = output_of(tools / "llvm-objdump", "--macho", "--private-headers", path)
    header = re.search(r"^\s*MH_MAGIC_64\s+(\w+)", text, flags=re.M)
    image.architecture = header.group(1).lower() if header else ""
    for command, fields in load_commands(text):
        if command == "LC_ID_DYLIB":
            image.install_name = fields["name"]
        elif command in ("LC_LOAD_DYLIB", "LC_LOAD_WEAK_DYLIB", "LC_REEXPORT_DYLIB"):
            image.libraries.append(fields["name"])
        elif command == "LC_RPATH":
            image.search_paths.append(fields["path"])
        elif command == "LC_BUILD_VERSION":
            image.minimum_system = fields["minos"]
        elif command == "LC_VERSION_MIN_MACOSX":
            image.minimum_system = fields["version"]
    for line in output_of(tools / "llvm-nm", "-m", path).splitlines():
        undefined = re.match(r"\s+\(undefined\) (?:weak )?(?:external|private external) (?:\[[^]]*\] )?(\S+)(?: \((?:from (.+)|dynamically looked up)\))?$", line)
        if undefined:
            image.undefined[undefined.group(1)] = undefined.group(2) or ""
        elif "(undefined)" not in line and f" {CLASS}" in line:
            image.classes.add(line.rsplit(CLASS, 1)[1].strip())
    return image


def undefined_in_objects(tools, files):
    """The names that objects and archives of objects leave to others."""
    names = set()
    for line in output_of(tools / "llvm-nm", "--undefined-only", "--format=just-symbols", *files).splitlines():
        if line and not line.endswith(":"):
            names.add(line)
    return names
