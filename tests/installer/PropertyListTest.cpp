#include "Engine/core/bundle/PropertyList.h"

#include <gtest/gtest.h>

namespace
{

using namespace Pelnar::Engine;
using namespace std::string_literals;

std::string const XML_HEAD =
    "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<!DOCTYPE plist PUBLIC \"-//X//Y\" \"http://z\">\n";

std::string Repeat(std::string const& text, int times)
{
    std::string result;
    for (int i = 0; i < times; ++i)
    {
        result += text;
    }
    return result;
}

/// The text for "k", or the reason why there is none.
std::string K(std::string const& list)
{
    auto const value = ParsePropertyList(list);
    return value ? value->TextOf("k").value_or("(no text)") : "(refused)";
}

TEST(PropertyList, OldStyleValuesAreRead)
{
    struct Row
    {
        std::string list;
        std::string text;
    };
    for (Row const& row : {
             Row{"{k=v;}", "v"},
             Row{"{ k = v }", "v"},
             Row{" { a = b ; k = v ; } \n", "v"},
             Row{"{k=1.2-3_4/5+6:7$;}", "1.2-3_4/5+6:7$"},
             Row{"{\"k\"=\"a b;}\";}", "a b;}"},
             Row{"{k=\"\";}", ""},
             Row{"{k=\"\\\"\\\\\\n\\t\\x\";}", "\"\\\n\tx"},
             Row{"{k=\"\\101\\U00e9\\7\";}", "A\xc3\xa9\a"},
             Row{"// note\n{ /* a = b; */ k = v; // end\n}", "v"},
             Row{"{k=<0a 0b>;}", "0a 0b"},
             Row{"{k=<*I5>;}", "*I5"},
             Row{"{k=(a,b,{c=d;});}", "(no text)"},
             Row{"{k={k=v;};}", "(no text)"},
             Row{"{j=v;}", "(no text)"},
             Row{"{}", "(no text)"},
             Row{"(k, v)", "(no text)"},
             Row{"k", "(no text)"},
         })
    {
        EXPECT_EQ(K(row.list), row.text) << row.list;
    }
}

TEST(PropertyList, XmlValuesAreRead)
{
    struct Row
    {
        std::string list;
        std::string text;
    };
    for (Row const& row : {
             Row{XML_HEAD + "<plist version=\"1.0\"><dict><key>k</key><string>v</string></dict></plist>\n", "v"},
             Row{"<plist><dict><key>k</key><string>v</string></dict></plist>", "v"},
             Row{"<plist><dict><!-- c --><key>k</key> <!-- d --> <integer>5</integer></dict></plist>", "5"},
             Row{"<plist><dict><key>k</key><real>1.5</real></dict></plist>", "1.5"},
             Row{"<plist><dict><key>k</key><true/></dict></plist>", "YES"},
             Row{"<plist><dict><key>k</key><false/></dict></plist>", "NO"},
             Row{"<plist><dict><key>k</key><string/></dict></plist>", ""},
             Row{"<plist><dict><key>k</key><string>&lt;&amp;&gt;&quot;&apos;&#65;&#xe9;</string></dict></plist>",
                 "<&>\"'A\xc3\xa9"},
             Row{"<plist><dict><key>k</key><array><string>a</string><dict/></array></dict></plist>", "(no text)"},
             Row{"<plist><dict/></plist>", "(no text)"},
         })
    {
        EXPECT_EQ(K(row.list), row.text) << row.list;
    }
}

TEST(PropertyList, WhatIsNoListIsRefused)
{
    for (std::string const& list : {
             ""s,
             " "s,
             "{"s,
             "}"s,
             "{k}"s,
             "{k=;}"s,
             "{k=v;"s,
             "{k=v v;}"s,
             "{k=v;}}"s,
             "{k=v;}x"s,
             "{=v;}"s,
             "{k=\"v;}"s,
             "{k=\"\\"s,
             "{k=<0a;}"s,
             "{k=(a b);}"s,
             "{k=(a;}"s,
             "{k=v;k=w;}"s,
             "/* {k=v;}"s,
             "{k=\"\\U\";}"s,
             "{k=\"\\Ud800\";}"s,
             "{k=\"\\0\";}"s,
             "{k=\"a\0b\";}"s,
             "{k=\"\xff\";}"s,

             "<plist></plist>"s,
             "<plist><dict></plist>"s,
             "<plist><dict><key>k</key></dict></plist>"s,
             "<plist><dict><string>v</string></dict></plist>"s,
             "<plist><dict><key>k</key><string>v</dict></plist>"s,
             "<plist><dict><key>k</key><string>&x;</string></dict></plist>"s,
             "<plist><dict><key>k</key><string>&#0;</string></dict></plist>"s,
             "<plist><dict><key>k</key><string>&#xd800;</string></dict></plist>"s,
             "<plist><dict><key>k</key><string>&#x110000;</string></dict></plist>"s,
             "<plist><dict><key>k</key><string>&amp</string></dict></plist>"s,
             "<plist><dict><key>k</key><string a=\"b\">v</string></dict></plist>"s,
             "<plist><dict><key>k</key><true>v</true></dict></plist>"s,
             "<plist><dict><key>k</key><other>v</other></dict></plist>"s,
             "<plist><dict><key>k</key><string>v</string><key>k</key><string>w</string></dict></plist>"s,
             "<plist><dict/></plist>x"s,
             "<plist><dict/><dict/></plist>"s,
             "<?xml version=\"1.0\"?>"s,
             "<!-- x"s,
             "<!DOCTYPE plist [<!ENTITY x \"y\">]><plist><dict/></plist>"s,
             "<html></html>"s,
         })
    {
        EXPECT_FALSE(ParsePropertyList(list).has_value()) << list;
    }
}

TEST(PropertyList, LimitsHold)
{
    EXPECT_TRUE(ParsePropertyList("{k=" + Repeat("(", 31) + Repeat(")", 31) + ";}").has_value());
    EXPECT_FALSE(ParsePropertyList("{k=" + Repeat("(", 32) + Repeat(")", 32) + ";}").has_value());
    EXPECT_FALSE(ParsePropertyList(Repeat("(", 1000000)).has_value());
    EXPECT_FALSE(ParsePropertyList("<plist>" + Repeat("<array>", 100000)).has_value());
    std::string const longest = "{k=" + std::string(PROPERTY_LIST_MAX_BYTES - 6, 'x') + ";}";
    EXPECT_TRUE(ParsePropertyList(longest).has_value());
    EXPECT_FALSE(ParsePropertyList(longest + " \n").has_value());
    std::string keys;
    for (std::size_t i = 0; i < PROPERTY_LIST_MAX_KEYS; ++i)
    {
        keys += std::to_string(i) + "=v;";
    }
    EXPECT_TRUE(ParsePropertyList("{" + keys + "}").has_value());
    EXPECT_FALSE(ParsePropertyList("{" + keys + "k=v;}").has_value());
}

TEST(PropertyList, LineOfItsFaultIsFound)
{
    EXPECT_EQ(FaultLineOfPropertyList("{\n  a = b;\n  c = d=e;\n}\n"), 3);
    EXPECT_EQ(FaultLineOfPropertyList("{\n  a = b\n  c = d;\n}\n"), 3) << "the semicolon is missing";
    EXPECT_EQ(FaultLineOfPropertyList("{\n  a = b;\n  a = c;\n}\n"), 3) << "twice";
    EXPECT_EQ(FaultLineOfPropertyList("{\n  a = b;\n"), 3);
    EXPECT_EQ(FaultLineOfPropertyList("<plist>\n<dict>\n<key>a</key>\n</dict>\n</plist>\n"), 4);
    EXPECT_EQ(FaultLineOfPropertyList("{ a = b; }"), 0);
    EXPECT_EQ(FaultLineOfPropertyList("{\n\xff\n}"), 0);
}

} // namespace
