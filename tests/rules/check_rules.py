#!/usr/bin/env python3
"""Checks the rules of the project that no compiler checks.

Usage: check_rules.py ROOT          check the tree below ROOT; every finding is a line FILE:LINE: RULE: what
       check_rules.py --self-test   prove that each rule finds what it forbids and lets the rest pass
"""

import pathlib
import re
import sys

sys.dont_write_bytecode = True
sys.path.append(str(pathlib.Path(__file__).resolve().parent.parent / "guides"))
import links # noqa: E402
import log_lines # noqa: E402

SOURCE_ENDINGS = {".cpp", ".h", ".mm"}

# The folders of the project that a folder may include, besides itself. A longer path has priority over a shorter one.
LAYERS = {
    "common": set(),
    "HostFramework": {"common"},
    "HostFramework/Reference": {"Foundation", "HostFramework", "common"},
    "Foundation": set(),
    "Settings": {"Engine/core", "Foundation", "common"},
    "Engine/include": set(),
    # The rooms of the engine's core: each may include the rooms before it in this list that its entry names.
    "Engine/core/base": set(),
    "Engine/core/faults": {"Engine/core/base"},
    "Engine/core/notes": {"Engine/core/base"},
    "Engine/core/bundle": {"Engine/core/base", "Engine/core/faults"},
    "Engine/core/archive": {"Engine/core/base", "Engine/core/faults"},
    "Engine/core/delta": {"Engine/core/archive", "Engine/core/base", "Engine/core/faults"},
    "Engine/core/helper": {"Engine/core/base", "Engine/core/bundle", "Engine/core/faults", "common"},
    "Engine/core/fetch": {"Engine/core/base", "Engine/core/faults"},
    "Engine/core/feed": {"Engine/core/base", "Engine/core/bundle", "Engine/core/faults"},
    "Engine/core/download": {"Engine/core/base", "Engine/core/faults", "Engine/core/fetch", "Engine/core/helper"},
    "Engine/core/check": {
        "Engine/core/base",
        "Engine/core/bundle",
        "Engine/core/faults",
        "Engine/core/feed",
        "Engine/core/fetch",
        "Engine/core/helper",
    },
    "Engine/core/update": {
        "Engine/core/archive",
        "Engine/core/base",
        "Engine/core/bundle",
        "Engine/core/check",
        "Engine/core/download",
        "Engine/core/faults",
        "Engine/core/feed",
        "Engine/core/fetch",
        "Engine/core/helper",
        "Engine/core/notes",
    },
    "Engine/objc": {"Engine/core", "Engine/include", "Engine/ui", "Foundation", "Settings", "common"},
    "Engine/ui": {"Engine/core"},
    "Installer": {"Engine/core"},
    "Publisher": {
        "App/UpdateChecker/SparkleImpl/Choice",
        "Engine/core",
        "HostFramework",
        "common",
    },
    "App/UpdateChecker": {"App/UpdateChecker/SparkleImpl/UpdaterSparkle", "HostFramework", "common"},
    "App/UpdateChecker/SparkleImpl/SessionLibrary": {
        "Engine/ui",
        "App/UpdateChecker/SparkleImpl/SparkleManager",
        "App/UpdateChecker/SparkleImpl/UpdaterSparkle",
        "HostFramework",
        "common",
    },
    "App/UpdateChecker/SparkleImpl/UpdaterSparkle": {
        "App/UpdateChecker",
        "App/UpdateChecker/SparkleImpl/Choice",
        "App/UpdateChecker/SparkleImpl/SessionLibrary",
        "App/UpdateChecker/SparkleImpl/SparkleManager",
        "HostFramework",
        "common",
    },
    "App/UpdateChecker/SparkleImpl/Choice": {"HostFramework", "common"},
    "App/UpdateChecker/SparkleImpl/SparkleManager": {
        "App/UpdateChecker/SparkleImpl/Choice",
        "App/UpdateChecker/SparkleImpl/UpdaterSparkle",
        "Foundation",
        "HostFramework",
        "Settings",
        "common",
    },
}
# The headers of neighbours that the session may include: the lent record, and the box that it shares with the back end.
SESSION = "App/UpdateChecker/SparkleImpl/SparkleManager"
LENT_RECORD = "App/UpdateChecker/SparkleImpl/UpdaterSparkle/SparkleUpdateContext.h"
SHARED_BOX = "App/UpdateChecker/SparkleImpl/UpdaterSparkle/RunningBox.h"
# The back end includes only the interface from the front.
BACK_END = "App/UpdateChecker/SparkleImpl/UpdaterSparkle"
BACK_END_INTERFACE = {
    "App/UpdateChecker/AbstractUpdaterImpl.h",
    "App/UpdateChecker/UpdateCheckResult.h",
}
# Of the engine's windows, the update checker uses only the translations, for messages without the engine.
SESSION_LIBRARY = "App/UpdateChecker/SparkleImpl/SessionLibrary"
TRANSLATIONS = "Engine/ui/Translations.h"
# The header of an error includes the sentences, but no parser.
FAULTS = "Engine/core/faults/"
BELOW_FAULTS = {"Engine/core/base/SafeText.h", "Engine/core/faults/Sentence.h"}
FRAMEWORK_READERS = (SESSION, "Engine/")
PRODUCT_FOLDERS = ("App/", "common/", "HostFramework/", "Foundation/", "Engine/", "Installer/", "Publisher/", "Demo/", "Settings/")

INCLUDE = re.compile(r'^\s*#\s*(?:include|import)\s+["<]([^">]+)[">]')


def may_include(layer, target):
    """The allowed targets may be named by a folder that holds them."""
    return any(target == allowed or target.startswith(allowed + "/") for allowed in LAYERS[layer])


def layer_of(path):
    """The longest entry of LAYERS that holds the path, or None."""
    holders = [layer for layer in LAYERS if path == layer or path.startswith(layer + "/")]
    return max(holders, key=len, default=None)


def check_include(path, header, root):
    layer = layer_of(path)
    if header.startswith("Sparkle/"):
        reads_framework = path.startswith(FRAMEWORK_READERS) and (path.endswith(".mm") or path.endswith(".h"))
        if not reads_framework and not path.startswith("tests/") and not path.startswith("bench/"):
            return "the framework is known to the session's Objective-C++ and to the engine only"
        return None
    if layer is None or not (root / header).exists():
        return None
    if header.endswith("_p.h") and pathlib.PurePosixPath(header).parent != pathlib.PurePosixPath(path).parent:
        return f"{header} is private to its folder"
    target = layer_of(header)
    if target is None:
        return f"{layer} may not include {header}"
    if path.startswith(FAULTS) and not header.startswith(FAULTS) and header not in BELOW_FAULTS:
        return "of the engine, the faults may include their sentences and the text made safe to show only"
    if target == layer:
        return None
    if not may_include(layer, target):
        return f"{layer} may not include {header}"
    if layer == SESSION and target == BACK_END and header not in (LENT_RECORD, SHARED_BOX):
        return f"of the back end, the session may include {LENT_RECORD} and {SHARED_BOX} only"
    if layer == SESSION_LIBRARY and target == "Engine/ui" and header != TRANSLATIONS:
        return f"of the engine, the update checker may include {TRANSLATIONS} only"
    if layer == BACK_END and target == "App/UpdateChecker" and header not in BACK_END_INTERFACE:
        return "of the front, the back end may include the updater interface only"
    return None


LINE_RULES = [
    # name, paths it applies to, pattern, message
    (
        "catch-in-objective-c++",
        lambda p: p.endswith(".mm"),
        re.compile(r"(?<!@)\bcatch\s*\("),
        "a C++ catch in Objective-C++ ends the process; move it to a .cpp file",
    ),
    (
        "try-outside-helper",
        lambda p: p.endswith((".mm", ".h")) and p != "Foundation/RaisedException.mm",
        re.compile(r"@try\b|@catch\b|@finally\b"),
        "raised exceptions are caught in Foundation/RaisedException.mm only",
    ),
    (
        "compiler-made-log-site",
        lambda p: p.startswith("App/"),
        re.compile(r"__LINE__|__PRETTY_FUNCTION__|\b(?:LOG|VLOG)\s*\("),
        "records of the update checker come from named log sites",
    ),
    (
        "tls-errors-ignored",
        lambda p: True,
        re.compile(
            r"\bignoreSslErrors\b|\bVerifyNone\b|\bQueryPeer\b|\bSSL_VERIFY_NONE\b|SSL_VERIFY(?:PEER|HOST)\s*,\s*[01]L?\s*\)(?<!PEER, 1L\))"
        ),
        "no TLS error is ever ignored",
    ),
    (
        "mixed-language-header",
        lambda p: p.endswith(".h"),
        re.compile(r"#\s*(?:ifdef\s+__OBJC__|if\s+defined\s*\(?\s*__OBJC__)"),
        "a header is C++ or Objective-C++, never both",
    ),
    (
        "manual-dealloc",
        lambda p: p.endswith(".mm") and p.startswith(PRODUCT_FOLDERS),
        re.compile(r"\[super dealloc\]"),
        "ownership is held by C++ members",
    ),
    (
        "hidden-characters",
        lambda p: p.startswith(PRODUCT_FOLDERS) and p != "Engine/core/base/SafeText.cpp",
        re.compile(r"[<>]=?\s*0x(?:200|20[26]|E00)[0-9A-Fa-f]+|\bOther_Format\b", re.IGNORECASE),
        "which characters are hidden is decided in Engine/core/base/SafeText.cpp only",
    ),
    (
        "switch-default",
        lambda p: p.startswith(PRODUCT_FOLDERS),
        re.compile(r"^\s*default\s*:"),
        "a switch over an enumeration names every value; the rest follows the switch",
    ),
    (
        "shell",
        lambda p: p.startswith(PRODUCT_FOLDERS),
        re.compile(r"(?:^\s*|[=(!;&|]\s*|\bstd::|(?<!:)::)system\s*\(|\bpopen\s*\(|/bin/sh\b"),
        "no product code runs a shell",
    ),
    (
        "raised-rights",
        lambda p: p.startswith(PRODUCT_FOLDERS),
        re.compile(r"\"(?:[\w./]*/)?(?:sudo|su|doas|pkexec|kdesu|gksu)\"|\bset(?:re|res)?[ug]id\s*\("),
        "no product code asks for another user's rights: a bundle that this user may not change is told of",
    ),
    (
        "sleep-in-test",
        lambda p: p.startswith("tests/"),
        re.compile(r"\bsleep_for\b|\busleep\s*\(|\bQThread::m?sleep\b|\bQTest::qSleep\b"),
        "tests wait for a condition, never for a time",
    ),
    (
        "left-over",
        lambda p: p.startswith(PRODUCT_FOLDERS),
        re.compile(r"\b(?:TODO|FIXME|XXX|HACK)\b"),
        "finish it or leave it out",
    ),
]


LONGEST_FILE = 449
LONGEST_FUNCTION = 60
ROWS_FOLDER = "/rows/" # of tests that are one long table; tables of the product end in .def
BODY_OPENING = re.compile(r"( *)\{$")
NO_FUNCTION = re.compile(r"\s*(?:if|for|while|switch|do|else|try|catch|@try|@catch|@autoreleasepool)\b")
TYPE_OR_NAMESPACE = re.compile(r"\b(?:namespace|struct|class|enum|union|extern)\b[^()]*$")
TABLE_OPENING = re.compile(r"( *)(?:.*(?:= |return )|(?!.*\b(?:else|do|try)\b).*\w)\{$")
PACKED_TABLE_OPENING = re.compile(r"= \{[^}]*,$")


def lines_of_function(body):
    """How many lines of the body are no rows of a table: of a list in braces that is a value."""
    count, end_of_table = 0, None
    for line in body:
        if end_of_table is not None:
            end_of_table = None if end_of_table.match(line) else end_of_table
            continue
        count += 1
        table = TABLE_OPENING.match(line)
        if table:
            end_of_table = re.compile(table.group(1) + "}")
        elif PACKED_TABLE_OPENING.search(line):
            end_of_table = re.compile(r".*};$")
    return count


def long_functions(lines):
    """The line of each function's opening brace that is too far from its closing one."""
    for index, line in enumerate(lines):
        opening = BODY_OPENING.match(line)
        head = lines[index - 1] if index else ""
        if not opening or NO_FUNCTION.match(head) or TYPE_OR_NAMESPACE.search(head) or not re.search(r"[)\w>\]]$", head):
            continue
        closing = opening.group(1) + "}"
        end = next((i for i in range(index + 1, len(lines)) if lines[i].startswith(closing)), len(lines))
        length = lines_of_function(lines[index + 1 : end])
        if length > LONGEST_FUNCTION:
            yield index + 1, length


def strip_comment(line):
    """The line without a trailing // comment; text in quotes keeps its slashes."""
    out, quote, i = [], None, 0
    while i < len(line):
        c = line[i]
        if quote:
            if c == "\\":
                out.append(line[i : i + 2])
                i += 2
                continue
            if c == quote:
                quote = None
        elif c in "\"'":
            quote = c
        elif line.startswith("//", i):
            break
        out.append(c)
        i += 1
    return "".join(out)


def check_text(path, text, root):
    findings = []
    lines = text.splitlines()
    if not path.startswith(("tests/", "fuzz/", "bench/")) and path.endswith(".h"):
        if not lines or not lines[0].startswith("// " + pathlib.PurePosixPath(path).name + ": "):
            findings.append((1, "header-opening", "a header opens with its name and what it is"))
    if len(lines) > LONGEST_FILE and ROWS_FOLDER not in path:
        findings.append((1, "long-file", f"{len(lines)} lines, {LONGEST_FILE} at most: split it by subject"))
    for number, length in long_functions(lines):
        findings.append((number, "long-function", f"{length} lines, {LONGEST_FUNCTION} at most, rows of tables apart"))
    for number, line in enumerate(lines, 1):
        include = INCLUDE.match(line)
        if include:
            said = check_include(path, include.group(1), root)
            if said:
                findings.append((number, "layers", said))
            continue
        code = strip_comment(line)
        for name, applies, pattern, said in LINE_RULES:
            subject = line if name == "left-over" else code
            if applies(path) and pattern.search(subject):
                findings.append((number, name, said))
    return findings


NAMED_FILE = re.compile(r"`([\w./-]+\.(?:cpp|h|mm|py))`")


def check_document(text, files):
    """What \a text names in backquotes must be a file, by its path or the end of it."""
    findings = []
    for number, line in enumerate(text.splitlines(), 1):
        for name in NAMED_FILE.findall(line):
            if not any(("/" + file).endswith("/" + name) for file in files):
                findings.append((number, "named-file", f"there is no file {name}"))
    return findings


def check_documents(root):
    files = [
        file.relative_to(root).as_posix()
        for file in root.rglob("*")
        if file.suffix in SOURCE_ENDINGS | {".py"} and not file.relative_to(root).as_posix().startswith("build/")
    ]
    findings = []
    for path in ["CONTRIBUTING.md", "README.md", "docs/architecture.md"]:
        for number, rule, said in check_document((root / path).read_text(encoding="utf-8"), files):
            findings.append(f"{path}:{number}: {rule}: {said}")
    findings += [f"{log_lines.PAGE}:1: log-lines: {said}" for said in log_lines.findings(root)]
    for document in links.documents(root):
        path = document.relative_to(root).as_posix()
        findings += [f"{path}:1: dead-link: {target}" for target in links.dead_links(root, document)]
    return findings


def check_tree(root):
    findings = check_documents(root)
    for file in sorted(root.rglob("*")):
        path = file.relative_to(root).as_posix()
        if path.startswith(("build/", ".git/")) or file.suffix not in SOURCE_ENDINGS:
            continue
        for number, rule, said in check_text(path, file.read_text(encoding="utf-8"), root):
            findings.append(f"{path}:{number}: {rule}: {said}")
    return findings


class EveryHeaderExists:
    """Stands for a tree in which what is included exists."""

    def __truediv__(self, _):
        return self

    def exists(self):
        return True


def self_test():
    opening = "// X.h: a thing.\n"
    forbidden = [
        ("layers", "common/X.cpp", '#include "HostFramework/Version.h"'),
        ("layers", "HostFramework/X.cpp", '#include "App/UpdateChecker/UpdateManager.h"'),
        ("layers", "Engine/core/update/X.cpp", '#include "Foundation/Retained.h"'),
        ("layers", "Engine/objc/X.mm", '#include "App/UpdateChecker/UpdateManager.h"'),
        ("layers", "Engine/objc/X.mm", '#include "HostFramework/Version.h"'),
        ("layers", "App/UpdateChecker/X.cpp", '#include "App/UpdateChecker/SparkleImpl/SparkleManager/SparkleManager.h"'),
        ("layers", SESSION + "/X.cpp", '#include "App/UpdateChecker/UpdateManager.h"'),
        ("layers", SESSION + "/X.cpp", '#include "App/UpdateChecker/SparkleImpl/UpdaterSparkle/UpdaterSparkle.h"'),
        ("layers", BACK_END + "/X.cpp", '#include "App/UpdateChecker/UpdateManager.h"'),
        ("layers", "App/UpdateChecker/X.cpp", "#import <Sparkle/Sparkle.h>"),
        ("layers", SESSION + "/X.cpp", "#import <Sparkle/Sparkle.h>"),
        ("layers", SESSION_LIBRARY + "/X.cpp", '#include "Engine/ui/UpdateWindow.h"'),
        ("layers", SESSION_LIBRARY + "/X.cpp", '#include "Engine/core/faults/EngineError.h"'),
        ("layers", FAULTS + "X.h", '#include "Engine/core/feed/FeedParser.h"'),
        ("layers", "Publisher/X.cpp", f'#include "{SESSION}/SparkleManager.h"'),
        ("layers", "Publisher/X.cpp", '#include "Engine/core/update/SealedMemory_p.h"'),
        ("layers", "Engine/core/base/X.cpp", '#include "Engine/core/faults/UpdateFault.h"'),
        ("layers", "Engine/core/helper/X.cpp", '#include "Engine/core/delta/DeltaApplier.h"'),
        ("layers", "Engine/core/fetch/X.cpp", '#include "Engine/core/update/UpdateRun.h"'),
        ("layers", "Publisher/X.cpp", '#include "App/UpdateChecker/UpdateManager.h"'),
        ("layers", "Publisher/X.cpp", '#include "Engine/ui/UpdateWindow.h"'),
        ("layers", "Engine/core/update/X.cpp", '#include "tests/support/LogCapture.h"'),
        ("catch-in-objective-c++", SESSION + "/X.mm", "    catch (...)"),
        ("try-outside-helper", "Engine/objc/X.mm", "    @try"),
        ("compiler-made-log-site", "App/UpdateChecker/X.cpp", 'LOG(ERROR) << "x";'),
        ("tls-errors-ignored", "Engine/core/X.cpp", "reply->ignoreSslErrors();"),
        ("tls-errors-ignored", "Engine/core/X.cpp", "curl_easy_setopt(easy, CURLOPT_SSL_VERIFYPEER, 0L);"),
        ("tls-errors-ignored", "Engine/core/X.cpp", "curl_easy_setopt(easy, CURLOPT_SSL_VERIFYHOST, 1L);"),
        ("tls-errors-ignored", "Engine/core/X.cpp", "SSL_CTX_set_verify(context, SSL_VERIFY_NONE, nullptr);"),
        ("mixed-language-header", "Foundation/X.h", "#ifdef __OBJC__"),
        ("manual-dealloc", "Engine/objc/X.mm", "    [super dealloc];"),
        ("hidden-characters", "Engine/ui/X.cpp", "    return unit >= 0x2028 && unit <= 0x202E;"),
        ("hidden-characters", "Publisher/X.cpp", "    return c.category() == QChar::Other_Format;"),
        ("switch-default", "Engine/core/X.cpp", "    default:"),
        ("shell", "Installer/X.cpp", 'system("ls");'),
        ("shell", "Installer/X.cpp", 'int const answer = ::system("ls");'),
        ("shell", "Installer/X.cpp", 'if (std::system("ls"))'),
        ("raised-rights", "Installer/X.cpp", 'StartProgram({"/usr/bin/pkexec", program});'),
        ("raised-rights", "Engine/core/X.cpp", 'process.start(QStringLiteral("sudo"), words);'),
        ("raised-rights", "Installer/X.cpp", "    ::setresuid(0, 0, 0);"),
        ("sleep-in-test", "tests/app/X.cpp", "QThread::msleep(5);"),
        ("left-over", "common/X.cpp", "// TODO later"),
        ("header-opening", "common/X.h", "#pragma once"),
        ("long-file", "tests/app/X.cpp", "\n" * 450),
        ("long-function", "common/X.cpp", "void F()\n{\n" + "    G();\n" * 61 + "}\n"),
        ("long-function", "common/X.cpp", "void X::F() const\n{\n    if (a)\n    {\n" + "        G();\n" * 60 + "    }\n}\n"),
        ("long-function", "common/X.cpp", "void F()\n{\n    Row const rows[] = {\n        {1},\n    };\n" + "    G();\n" * 60 + "}\n"),
    ]
    allowed = [
        ("common/X.cpp", '#include "common/NotNull.h"'),
        ("App/UpdateChecker/X.cpp", '#include "App/UpdateChecker/SparkleImpl/UpdaterSparkle/UpdaterSparkle.h"'),
        (SESSION + "/X.mm", "#import <Sparkle/Sparkle.h>"),
        (SESSION + "/X.mm", f'#include "{LENT_RECORD}"'),
        (BACK_END + "/X.cpp", '#include "App/UpdateChecker/AbstractUpdaterImpl.h"'),
        (SESSION_LIBRARY + "/X.cpp", f'#include "{TRANSLATIONS}"'),
        ("Publisher/X.cpp", f'#include "App/UpdateChecker/SparkleImpl/Choice/AppcastJudgement.h"'),
        ("tests/app/X.cpp", '#include "App/UpdateChecker/UpdateManager.h"'),
        ("Foundation/RaisedException.mm", "    @catch (NSException* exception)"),
        (SESSION + "/X.mm", "    // a catch (here) would end the process"),
        ("common/X.cpp", 'char const* text = "// no comment, and no default:";'),
        ("Demo/X.cpp", "    QCommandLineOption const system(name, text);"),
        ("Engine/core/X.cpp", "    curl_easy_setopt(easy, CURLOPT_SSL_VERIFYPEER, 1L);"),
        ("Engine/core/X.cpp", "    curl_easy_setopt(easy, CURLOPT_SSL_VERIFYHOST, 2L);"),
        ("common/X.h", opening),
        ("tests/app/X.cpp", "\n" * 449),
        ("tests/app/rows/X.cpp", "\n" * 450),
        ("common/X.cpp", "void F()\n{\n" + "    G();\n" * 60 + "}\n"),
        ("common/X.cpp", "void F()\n{\n    Row const rows[] = {\n" + "        {1},\n" * 90 + "    };\n}\n"),
        ("common/X.cpp", "class X\n{\npublic:\n" + "    void F();\n" * 90 + "};\n"),
    ]
    failures = []
    tree = EveryHeaderExists()
    for rule, path, line in forbidden:
        text = line if rule == "header-opening" else (opening if path.endswith(".h") else "") + line
        if rule not in [found[1] for found in check_text(path, text, tree)]:
            failures.append(f"{rule} does not find: {path}: {line}")
    for path, line in allowed:
        for _, rule, said in check_text(path, line, tree):
            failures.append(f"{rule} finds wrongly: {path}: {line}: {said}")
    files = ["a/B.cpp", "C.h"]
    if check_document("`B.cpp`, `a/B.cpp`, `C.h`, `<Sparkle/X.h>`, `d/e`, D.cpp", files):
        failures.append("named-file finds wrongly")
    if [found[0] for found in check_document("`C.h`\n`c/C.h` and `D.py`", files)] != [2, 2]:
        failures.append("named-file does not find")
    return failures


def main(arguments):
    if len(arguments) != 1:
        print(__doc__, file=sys.stderr)
        return 2
    findings = self_test() if arguments[0] == "--self-test" else check_tree(pathlib.Path(arguments[0]))
    for finding in findings:
        print(finding)
    print(f"{len(findings)} finding(s)")
    return 1 if findings else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
