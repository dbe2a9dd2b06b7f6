// RequestRulesTest.cpp: the text form of ranges, host names and faults.

#include "Publisher/serve/RequestRules.h"
#include "Publisher/serve/ServerFault.h"

#include <gtest/gtest.h>

namespace Pelnar::Publisher
{
namespace
{

TEST(RequestRules, RangeOfAFileOfAHundredBytes)
{
    struct Row
    {
        char const* header;
        RangeKind kind;
        qint64 first;
        qint64 end;
    };
    Row const rows[] = {
        {"", RangeKind::Whole, 0, 100},
        {"bytes=0-99", RangeKind::Part, 0, 100},
        {"bytes=10-19", RangeKind::Part, 10, 20},
        {"bytes=10-", RangeKind::Part, 10, 100},
        {"bytes=90-1000", RangeKind::Part, 90, 100},
        {"bytes=-10", RangeKind::Part, 90, 100},
        {"bytes=-1000", RangeKind::Part, 0, 100},
        {"bytes=100-", RangeKind::Unsatisfiable, 100, 100},
        {"bytes=20-10", RangeKind::Whole, 0, 100},
        {"bytes=-", RangeKind::Whole, 0, 100},
        {"bytes=-0", RangeKind::Whole, 0, 100},
        {"bytes=1-2,3-4", RangeKind::Whole, 0, 100},
        {"bytes=+1-2", RangeKind::Whole, 0, 100},
        {"bytes=1", RangeKind::Whole, 0, 100},
        {"bytes=1-2 ", RangeKind::Whole, 0, 100},
        {"bytes=0-9223372036854775807", RangeKind::Part, 0, 100},
        {"bytes=1-99999999999999999999", RangeKind::Whole, 0, 100},
        {"bytes=99999999999999999999-", RangeKind::Whole, 0, 100},
        {"lines=1-2", RangeKind::Whole, 0, 100},
    };
    for (Row const& row : rows)
    {
        ByteRange range;
        EXPECT_EQ(RangeOf(row.header, 100, range), row.kind) << row.header;
        EXPECT_EQ(range.first, row.first) << row.header;
        EXPECT_EQ(range.end, row.end) << row.header;
    }
}

TEST(ServerFault, TextNamesKindFileAndNumber)
{
    std::optional<ServerFault> const fault = ParseServerFault(QStringLiteral("slow:a:b.zip:1000"));
    ASSERT_TRUE(fault);
    EXPECT_EQ(fault->kind, ServerFaultKind::Slow);
    EXPECT_EQ(fault->name, QStringLiteral("a:b.zip"));
    EXPECT_EQ(fault->number, 1000);
    for (char const* const text : {"truncate:x:0", "status:x:503", "drop:x:0", "drop:x:10"})
    {
        EXPECT_TRUE(ParseServerFault(QLatin1String(text))) << text;
    }
    for (char const* const text : {"", "truncate", "truncate:x", "truncate::1", "truncate:x:-1", "slow:x:0",
                                   "status:x:42", "status:x:600", "drop:x:", "burn:x:1", ":x:1"})
    {
        EXPECT_FALSE(ParseServerFault(QLatin1String(text))) << text;
    }
}

} // namespace
} // namespace Pelnar::Publisher
