"""The records that the sources write: the session's from its table of log sites, the rest from glog's macros.

In a text, "…" stands for what is known only when the record is written.
"""
import pathlib
import re

FOLDERS = ("App", "Engine", "Foundation", "HostFramework", "Installer", "Settings", "common")
STRING = r'"(?:[^"\\\n]|\\.)*"'
TABLE_ROW = re.compile(rf"SITE\((?P<name>\w+), (?P<severity>\w+), (?P<line>\d+),[\s\\]*(?P<prefix>{STRING})\)")
SINGLE_SITE = re.compile(rf"LogSite const (?P<name>\w+){{[\w:]*LogSeverity::(?P<severity>\w+), \w+, (?P<line>\d+), (?P<prefix>{STRING})}}")
SITE_FILE = re.compile(r'LogFile const \w+[({]"(?P<path>[\w/]+)"[)}]')
SITE_WRITER = re.compile(r"^\w[\w:]* (?P<name>\w+)\([^)]*Core::LogSite const& site[^)]*\)\n{(?P<body>.*?)^}", re.MULTILINE | re.DOTALL)
MACRO = re.compile(r"\b(?P<kind>P?LOG)(?:_IF)?\((?P<severity>[A-Z]+)")
TEXT_WRITER = re.compile(r"^void (?P<name>\w+)\(std::string const& text\)\n{(?P<body>.*?)^}", re.MULTILINE | re.DOTALL)


def sources(root):
    for folder in FOLDERS:
        for path in sorted((root / folder).rglob("*")):
            if path.suffix in (".cpp", ".mm", ".h"):
                yield path, path.read_text(encoding="utf-8")


def skip_string(text, at):
    quote, at = text[at], at + 1
    while text[at] != quote:
        at += 2 if text[at] == "\\" else 1
    return at + 1


def split(text, separator):
    """The parts of an expression between separators that stand in no bracket and no string."""
    parts, depth, start, at = [], 0, 0, 0
    while at < len(text):
        if text[at] in "\"'":
            at = skip_string(text, at)
            continue
        if text[at] in "([{":
            depth += 1
        elif text[at] in ")]}":
            depth -= 1
        elif depth == 0 and text.startswith(separator, at):
            parts.append(text[start:at])
            start = at + len(separator)
        at += 1
    return [part.strip() for part in parts + [text[start:]]]


def until(text, at, end):
    """What stands from a place to the next mark that is in no string and in no bracket opened since; and its place."""
    depth, start = 0, at
    while depth or text[at] != end:
        if text[at] in "\"'":
            at = skip_string(text, at)
            continue
        depth += (text[at] in "([{") - (text[at] in ")]}")
        at += 1
    return text[start:at], at


def text_of(operands):
    """What operands of << or + write one after the other."""
    text = ""
    for operand in operands:
        inner = re.fullmatch(rf"(?:std::string\()?((?:{STRING}\s*)+|'(?:[^'\\]|\\.)')\)?", operand)
        if inner:
            literals = re.findall(rf"{STRING}|'(?:[^'\\]|\\.)'", inner.group(1))
            text += "".join(re.sub(r"\\(.)", r"\1", literal[1:-1]) for literal in literals)
        elif not text.endswith("…"):
            text += "…"
    return text


def site_texts(root):
    """Name of a log site -> the texts that are written there."""
    writers = {} # its text, or None where the caller gives it
    for _, text in sources(root):
        for writer in SITE_WRITER.finditer(text):
            at = writer["body"].find("Write(site, ")
            if at >= 0:
                own = text_of(split(until(writer["body"], at + len("Write(site, "), ")")[0], "+"))
                writers[writer["name"]] = None if own == "…" else own
    call = re.compile(r"\b(?P<callee>\w+)\((?=[^;{}]*\b(?:Sites::)?[A-Z][A-Z_]+\b)")
    found = {}
    for _, text in sources(root):
        for match in call.finditer(text):
            callee = match["callee"]
            if callee != "Write" and callee not in writers:
                continue
            arguments = split(until(text, match.end(), ")")[0], ",")
            for number, argument in enumerate(arguments):
                site = re.fullmatch(r"(?:\w+::)*([A-Z][A-Z_]+)", argument)
                if site and (number == 0 or callee in writers):
                    rest = arguments[number + 1 :]
                    own = writers.get(callee)
                    found.setdefault(site.group(1), set()).add(own if own is not None else text_of(split(rest[0], "+")) if rest else "")
    return found


def session_records(root):
    """(file, line, severity, text) of each record that has a log site. A site without a writer has no text."""
    texts = site_texts(root)
    records, files = set(), {}
    for path, text in sources(root):
        if SITE_FILE.search(text):
            files[path] = SITE_FILE.search(text)["path"]
    table_file = next(file for path, file in files.items() if path.name == "LogSites.cpp")
    for path, text in sources(root):
        for pattern, file in ((TABLE_ROW, table_file), (SINGLE_SITE, files.get(path))):
            for site in pattern.finditer(text):
                for written in texts.get(site["name"], {None}):
                    records.add((pathlib.PurePath(file).name if file else None, int(site["line"]), site["severity"], written))
    return records


def macro_records(root):
    """(severity, text) of each record that glog's macros write."""
    records = set()
    for path, text in sources(root):
        wrappers = {writer["name"]: writer for writer in TEXT_WRITER.finditer(text) if MACRO.search(writer["body"])}
        for macro in MACRO.finditer(text):
            if any(writer.start() < macro.start() < writer.end() for writer in wrappers.values()):
                continue
            _, end = until(text, macro.end(), ")")
            statement, _ = until(text, end + 1, ";")
            written = text_of(split(statement, "<<")[1:]) + (": …" if macro["kind"] == "PLOG" else "")
            records.add((macro["severity"].capitalize(), re.sub("…: …$", "…: …", written)))
        for name, writer in wrappers.items():
            severity = MACRO.search(writer["body"])["severity"].capitalize()
            for call in re.finditer(rf"\b{name}\(", text):
                if not writer.start() <= call.start() < writer.end():
                    records.add((severity, text_of(split(until(text, call.end(), ")")[0], "+"))))
    return records


SITE_ROW = re.compile(r"^\| (?P<file>\w+):(?P<line>\d+) \| (?P<severity>\w+) \|(?: `(?P<text>.*?)`)? \| (?P<rest>.*) \|$", re.MULTILINE)
TEXT_ROW = re.compile(r"^\| (?P<severity>Info|Warning|Error) \| `(?P<text>.*?)` \| (?P<rest>.*) \|$", re.MULTILINE)
PAGE = "docs/guide/log-lines.md"


def shown_records(page):
    """The records of the page's rows, as session_records() and macro_records() give those of the sources."""
    sites = [(row["file"], int(row["line"]), row["severity"], row["text"] or "") for row in SITE_ROW.finditer(page)]
    return sites, [(row["severity"], row["text"]) for row in TEXT_ROW.finditer(page)]


def findings(root):
    """What the page lacks, has twice or has of nothing."""
    page = (root / PAGE).read_text(encoding="utf-8")
    found = []
    for written, shown in zip((session_records(root), macro_records(root)), shown_records(page)):
        found += [f"no row for the record {record}" for record in written - set(shown)]
        found += [f"nothing writes the record {record}" for record in set(shown) - written]
        found += [f"two rows for the record {record}" for record in set(shown) if shown.count(record) > 1]
    return sorted(found)
