// HttpRequestTest.cpp: the text form of requests, ranges and faults.

#include "Publisher/serve/HttpRequest.h"
#include "Publisher/serve/ServerFault.h"

#include <gtest/gtest.h>

namespace Pelnar::Publisher
{
namespace
{

TEST(HttpRequest, PathIsDecodedAndWithoutQuery)
{
    struct Row
    {
        char const* head;
        char const* path;
    };
    Row const rows[] = {
        {"GET /appcast.xml HTTP/1.1\r\nHost: x", "appcast.xml"},
        {"GET /My%20App_1.0.zip?a=b%20c HTTP/1.1", "My App_1.0.zip"},
        {"GET / HTTP/1.1", ""},
        {"GET appcast.xml HTTP/1.1", ""},
        {"GET /a%00b HTTP/1.1", ""},
        {"GET /%2e%2e/secret HTTP/1.1", "../secret"},
    };
    for (Row const& row : rows)
    {
        std::optional<HttpRequest> const request = ParseHttpRequest(row.head);
        ASSERT_TRUE(request) << row.head;
        EXPECT_EQ(request->path.toStdString(), row.path) << row.head;
    }
    for (char const* const head : {"", "GET", "GET /x", "GET /x SPDY/1", "\r\n"})
    {
        EXPECT_FALSE(ParseHttpRequest(head)) << head;
    }
}

TEST(HttpRequest, RangeOfAFileOfAHundredBytes)
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
