"""Makes one C++ source of the examples in the opening comments of headers, so that a compiler reads them.

An example is what stands five blanks behind the slashes. It is the body of a function, or, where it defines an
operation of the class Host of Scene.h, stands for itself. A header without an example is an error.
"""

import re
import sys


def example_of(text):
    """The lines of the example and the number of the first, from 1."""
    code = []
    first = 0
    for number, line in enumerate(text.split("\n"), 1):
        if not line.startswith("//"):
            break
        if line.startswith("//     "):
            first = first or number
            code.append(line[7:])
        elif line == "//" and code:
            code.append("")
    while code and not code[-1]:
        code.pop()
    return code, first


def function_of(code, first, header, number):
    lines = [f'#line {first} "{header}"'] + code
    if re.match(r"\w+ Host::\w+\(", code[0]):
        return lines
    opening = f"[[maybe_unused]] static void Example{number}([[maybe_unused]] int argc, [[maybe_unused]] char** argv)"
    return [opening, "{"] + lines + ["}"]


def source_of(headers):
    """The source for pairs of a header's name and text. Raises ValueError for one without an example."""
    bodies = []
    for number, (header, text) in enumerate(headers):
        code, first = example_of(text)
        if not code:
            raise ValueError(f"{header}: its opening comment has no example")
        bodies += [""] + function_of(code, first, header, number)
    includes = [f'#include "{header}"' for header, _ in headers]
    return "\n".join(includes + ['#include "tests/examples/Scene.h"'] + bodies) + "\n"


def self_test():
    plain = "// A.h: an A.\n//\n//     A a;\n//\n//     a.Go();\n//\n// Thread: any.\n#pragma once\n//     not this\n"
    assert example_of(plain) == (["A a;", "", "a.Go();"], 3)
    source = source_of([("A.h", plain)])
    assert '#include "A.h"' in source and '#line 3 "A.h"\nA a;\n\na.Go();\n}' in source, source
    host = source_of([("B.h", "// B.h: b.\n//\n//     bool Host::TryToQuit()\n//     {\n//     }\n")])
    assert "static void" not in host, host
    for text in ("// C.h: c.\n#pragma once\n", "#pragma once\n//     C c;\n", "// C.h: c.\n//   C c;\n"):
        try:
            source_of([("C.h", text)])
        except ValueError:
            continue
        raise AssertionError(text)


def main():
    if sys.argv[1:] == ["--self-test"]:
        self_test()
        return
    root, output, *names = sys.argv[1:]
    headers = []
    for name in names:
        with open(f"{root}/{name}", encoding="utf-8") as file:
            headers.append((name.removeprefix("Engine/include/"), file.read()))
    try:
        source = source_of(headers)
    except ValueError as error:
        sys.exit(str(error))
    with open(output, "w", encoding="utf-8") as file:
        file.write(source)


main()
