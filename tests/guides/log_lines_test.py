#!/usr/bin/env python3
"""docs/guide/log-lines.md has each record that the sources write, and no other.

Usage: log_lines_test.py SOURCE_FOLDER
"""
import pathlib
import re
import sys
import tempfile
import unittest

from log_lines import macro_records, session_records

SITE_ROW = re.compile(r"^\| (?P<file>\w+):(?P<line>\d+) \| (?P<severity>\w+) \|(?: `(?P<text>.*?)`)? \| (?P<rest>.*) \|$", re.MULTILINE)
TEXT_ROW = re.compile(r"^\| (?P<severity>Info|Warning|Error) \| `(?P<text>.*?)` \| (?P<rest>.*) \|$", re.MULTILINE)


def shown_sites(page):
    return [(row["file"], int(row["line"]), row["severity"], row["text"] or "") for row in SITE_ROW.finditer(page)]


def shown_texts(page):
    return [(row["severity"], row["text"]) for row in TEXT_ROW.finditer(page)]


class Page(unittest.TestCase):
    def setUp(self):
        self.page = (SOURCE / "docs/guide/log-lines.md").read_text(encoding="utf-8")

    def test_has_the_records_of_the_log_sites(self):
        written = session_records(SOURCE)
        self.assertGreater(len(written), 50)
        self.assertFalse([record for record in written if record[3] is None], "log sites where nothing is written")
        shown = shown_sites(self.page)
        self.assertEqual(sorted(set(shown)), sorted(shown), "rows that stand there twice")
        self.assertEqual(sorted(written - set(shown)), [], "records that the page does not have")
        self.assertEqual(sorted(set(shown) - written), [], "rows of the page that nothing writes")

    def test_has_the_records_of_the_macros(self):
        written = macro_records(SOURCE)
        self.assertGreater(len(written), 30)
        self.assertFalse([record for record in written if record[1].strip("… ") == ""], "records without a text of their own")
        shown = shown_texts(self.page)
        self.assertEqual(sorted(set(shown)), sorted(shown), "rows that stand there twice")
        self.assertEqual(sorted(written - set(shown)), [], "records that the page does not have")
        self.assertEqual(sorted(set(shown) - written), [], "rows of the page that nothing writes")

    def test_each_row_says_something(self):
        for row in list(SITE_ROW.finditer(self.page)) + list(TEXT_ROW.finditer(self.page)):
            columns = [column.strip() for column in row["rest"].split(" | ")]
            expected = 1 if row["severity"] == "Progress" else 2
            self.assertEqual(len([column for column in columns if column.endswith(".")]), expected, row.group(0))


class Reader(unittest.TestCase):
    """The reader of the sources, over sources of its own."""

    def setUp(self):
        holder = tempfile.TemporaryDirectory()
        self.addCleanup(holder.cleanup)
        self.root = pathlib.Path(holder.name)

    def write(self, name, text):
        path = self.root / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(text)

    def test_macros(self):
        self.write("Engine/A.cpp", """
void f()
{
    LOG(WARNING) << "One; " << name(1, ";") << " two" << '!';
    LOG_IF(ERROR, !Holds(a, "b")) << "Three "
                                  "four " << (x ? "a" : "b");
    PLOG(INFO) << "Five";
    LOG(INFO) << "a \\"b\\"" << std::hex << 5 << 6;
}
""")
        self.assertEqual(macro_records(self.root), {("Warning", "One; … two!"), ("Error", "Three four …"), ("Info", "Five: …"),
                                                    ("Info", 'a "b"…')})

    def test_functions_that_take_the_text(self):
        self.write("Engine/B.cpp", """
void Warn(std::string const& text)
{
    LOG(WARNING) << text;
}
void f() { Warn("One " + two); Warn(three + '/' + "four"); }
""")
        self.assertEqual(macro_records(self.root), {("Warning", "One …"), ("Warning", "…/four")})

    def test_log_sites(self):
        self.write("App/LogSites_p.h", """
    SITE(FIRST, Progress, 1, "void F()")   \\
    SITE(SECOND, Error, 2,                 \\
         "void G(int)")                    \\
    SITE(THIRD, Warning, 3, "")            \\
    SITE(UNUSED, Error, 4, "")
""")
        self.write("App/LogSites_p.cpp", 'Core::LogFile const FILE{"App/Session"};\n')
        self.write("App/C.cpp", """
Core::LogFile const LOG_FILE("App/C");
Core::LogSite const OWN{Core::LogSeverity::Error, LOG_FILE, 9, ""};
void WriteState(Core::LogSite const& site, State state)
{
    Core::Write(site, std::string("State = ") + Name(state));
}
bool Ensure(bool holds, Core::LogSite const& site, char const* complaint)
{
    Core::Write(site, complaint);
}
void f()
{
    WriteState(Sites::FIRST, state);
    Ensure(a(b), Session::Sites::SECOND, "It is, not");
    Write(Sites::THIRD);
    Core::Write(OWN, "a" + b);
}
""")
        self.assertEqual(session_records(self.root), {("Session", 1, "Progress", "State = …"), ("Session", 2, "Error", "It is, not"),
                                                      ("Session", 3, "Warning", ""), ("C", 9, "Error", "a…"),
                                                      ("Session", 4, "Error", None)})


if __name__ == "__main__":
    SOURCE = pathlib.Path(sys.argv.pop(1)).resolve()
    unittest.main()
