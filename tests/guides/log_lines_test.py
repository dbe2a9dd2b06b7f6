#!/usr/bin/env python3
"""docs/guide/log-lines.md has each record that the sources write, and no other.

Usage: log_lines_test.py SOURCE_FOLDER
"""
import pathlib
import re
import sys
import tempfile
import unittest

sys.dont_write_bytecode = True
from log_lines import PAGE, SITE_ROW, TEXT_ROW, findings, macro_records, session_records


class Page(unittest.TestCase):
    def test_has_each_record_of_the_sources_and_no_other(self):
        self.assertGreater(len(session_records(SOURCE)), 50)
        self.assertGreater(len(macro_records(SOURCE)), 30)
        self.assertEqual(findings(SOURCE), [])

    def test_each_record_of_the_macros_has_a_text_to_search_for(self):
        self.assertFalse([record for record in macro_records(SOURCE) if record[1].strip("… ") == ""])

    def test_each_row_says_something(self):
        page = (SOURCE / PAGE).read_text(encoding="utf-8")
        for row in list(SITE_ROW.finditer(page)) + list(TEXT_ROW.finditer(page)):
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
        self.write("App/LogSites.h", """
    SITE(FIRST, Progress, 1, "void F()")   \\
    SITE(SECOND, Error, 2,                 \\
         "void G(int)")                    \\
    SITE(THIRD, Warning, 3, "")            \\
    SITE(UNUSED, Error, 4, "")
""")
        self.write("App/LogSites.cpp", 'Core::LogFile const FILE{"App/Session"};\n')
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

    def test_a_page_that_differs_is_found(self):
        self.write("App/LogSites.h", 'SITE(FIRST, Error, 1, "")\n')
        self.write("App/LogSites.cpp", 'Core::LogFile const FILE{"App/Session"};\nvoid f() { Write(Sites::FIRST, "a"); }\n')
        self.write("Engine/A.cpp", 'void f() { LOG(INFO) << "b"; }\n')
        site, text = "| Session:1 | Error | `a` | It. | Do. |\n", "| Info | `b` | It. | Do. |\n"
        for page, expected in ((site + text, 0), (site, 1), (text, 1), (site + text + text, 1), (site + text.replace("Info", "Error"), 2),
                               (site.replace(":1", ":2") + text, 2), (site.replace(" `a`", "") + text, 2)):
            self.write(PAGE, page)
            self.assertEqual(len(findings(self.root)), expected, page)


if __name__ == "__main__":
    SOURCE = pathlib.Path(sys.argv.pop(1)).resolve()
    unittest.main()
