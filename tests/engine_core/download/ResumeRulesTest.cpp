// ResumeRulesTest.cpp: the decision about a partial archive for each answer of a server.
#include "Engine/core/download/ResumeRules.h"

#include <gtest/gtest.h>

#include <ostream>

namespace Pelnar::Engine
{

void PrintTo(ResumeStep step, std::ostream* out)
{
    constexpr char const* NAMES[] = {"Append", "Restart", "HandOver", "AskWhole", "Refuse"};
    *out << NAMES[static_cast<int>(step)];
}

} // namespace Pelnar::Engine

namespace
{

using namespace Pelnar::Engine;

Validators const TAG{"\"v1\"", {}};
Validators const DATE{{}, "Fri, 20 Nov 2026 05:00:00 GMT"};
Validators const NONE{};

PartialArchive const EMPTY{0, 100, NONE};
PartialArchive const PART{40, 100, TAG};
PartialArchive const DATED{40, 100, DATE};
PartialArchive const NAMELESS{40, 100, NONE};
PartialArchive const WHOLE{100, 100, TAG};

std::optional<HttpHead> HeadOf(QByteArray const& lines)
{
    HttpHeadReader reader(FetchLimits().maxHeadBytes);
    for (QByteArray const& line : (lines + '\n').split('\n'))
    {
        if (reader.Take(line + "\r\n") == HttpHeadReader::Progress::Complete)
        {
            return reader.Head();
        }
    }
    return std::nullopt;
}

struct Row
{
    char const* name;
    PartialArchive partial;
    QByteArray answer;
    ResumeStep step;
    ErrorCause cause = ErrorCause::NoUpdate;
};

void PrintTo(Row const& row, std::ostream* out)
{
    *out << row.name;
}

class Decision : public ::testing::TestWithParam<Row>
{
};

TEST_P(Decision, IsTaken)
{
    Row const& row = GetParam();
    std::optional<HttpHead> const head = HeadOf("HTTP/1.1 " + row.answer);
    ASSERT_TRUE(head);
    ResumeRules const decision = DecideResume(row.partial, *head);
    EXPECT_EQ(decision.step, row.step);
    EXPECT_EQ(decision.error ? decision.error->cause : ErrorCause::NoUpdate, row.cause);
}

QByteArray Range(QByteArray const& range, QByteArray const& more = "\nETag: \"v1\"")
{
    return "206 Partial\nContent-Range: " + range + more;
}

auto const NAME_OF_ROW = [](auto const& row) { return std::string(row.param.name); };

INSTANTIATE_TEST_SUITE_P(
    Whole, Decision,
    ::testing::Values(
        Row{"ToNothing", EMPTY, "200 OK\nContent-Length: 100", ResumeStep::Restart},
        Row{"ToAPartIsARestartThoughTheTagIsTheSame", PART, "200 OK\nContent-Length: 100\nETag: \"v1\"",
            ResumeStep::Restart},
        Row{"OfAnotherVersion", PART, "200 OK\nContent-Length: 100\nETag: \"v2\"", ResumeStep::Restart},
        Row{"WithoutLength", EMPTY, "200 OK", ResumeStep::Restart},
        Row{"InChunks", EMPTY, "200 OK\nTransfer-Encoding: chunked", ResumeStep::Restart},
        Row{"TooShort", EMPTY, "200 OK\nContent-Length: 99", ResumeStep::Refuse, ErrorCause::DownloadLengthDiffers},
        Row{"TooLong", PART, "200 OK\nContent-Length: 101", ResumeStep::Refuse, ErrorCause::DownloadLengthDiffers},
        Row{"TwoLengths", EMPTY, "200 OK\nContent-Length: 100\nContent-Length: 100", ResumeStep::Refuse,
            ErrorCause::ContradictoryLength},
        Row{"Compressed", EMPTY, "200 OK\nContent-Length: 100\nContent-Encoding: gzip", ResumeStep::Refuse,
            ErrorCause::ContentEncodingRefused}),
    NAME_OF_ROW);

INSTANTIATE_TEST_SUITE_P(
    Part, Decision,
    ::testing::Values(
        Row{"IsTheRest", PART, Range("bytes 40-99/100"), ResumeStep::Append},
        Row{"IsTheRestWithItsLength", PART, Range("bytes 40-99/100", "\nETag: \"v1\"\nContent-Length: 60"),
            ResumeStep::Append},
        Row{"IsTheRestByDate", DATED, Range("bytes 40-99/100", "\nLast-Modified: Fri, 20 Nov 2026 05:00:00 GMT"),
            ResumeStep::Append},
        Row{"WasNotAskedForByNothing", EMPTY, Range("bytes 0-99/100"), ResumeStep::Refuse,
            ErrorCause::DownloadRangeWrong},
        Row{"WasNotAskedForWithoutValidator", NAMELESS, Range("bytes 40-99/100"), ResumeStep::Refuse,
            ErrorCause::DownloadRangeWrong},
        Row{"OfOtherLength", PART, Range("bytes 40-99/100", "\nETag: \"v1\"\nContent-Length: 59"),
            ResumeStep::AskWhole},
        Row{"BeginsBefore", PART, Range("bytes 39-99/100"), ResumeStep::AskWhole},
        Row{"BeginsAfter", PART, Range("bytes 41-99/100"), ResumeStep::AskWhole},
        Row{"EndsBefore", PART, Range("bytes 40-98/100"), ResumeStep::AskWhole},
        Row{"OfALongerFile", PART, Range("bytes 40-99/101"), ResumeStep::AskWhole},
        Row{"OfAShorterFile", PART, Range("bytes 40-89/90"), ResumeStep::AskWhole},
        Row{"OfAFileOfUnknownLength", PART, Range("bytes 40-99/*"), ResumeStep::AskWhole},
        Row{"InOtherUnits", PART, Range("items 40-99/100"), ResumeStep::AskWhole},
        Row{"WithANumberThatDoesNotFit", PART, Range("bytes 18446744073709551656-99/100"), ResumeStep::AskWhole},
        Row{"WithALeadingZero", PART, Range("bytes 040-99/100"), ResumeStep::AskWhole},
        Row{"WithASign", PART, Range("bytes +40-99/100"), ResumeStep::AskWhole},
        Row{"WithoutRange", PART, "206 Partial\nETag: \"v1\"", ResumeStep::AskWhole},
        Row{"WithTwoRanges", PART, Range("bytes 40-99/100", "\nContent-Range: bytes 0-99/100\nETag: \"v1\""),
            ResumeStep::AskWhole},
        Row{"OfManyParts", PART,
            Range("bytes 40-99/100", "\nETag: \"v1\"\nContent-Type: Multipart/byteranges; boundary=x"),
            ResumeStep::AskWhole},
        Row{"OfAnotherVersion", PART, Range("bytes 40-99/100", "\nETag: \"v2\""), ResumeStep::AskWhole},
        Row{"OfAWeakVersion", PART, Range("bytes 40-99/100", "\nETag: W/\"v1\""), ResumeStep::AskWhole},
        Row{"OfAnUnnamedVersion", PART, Range("bytes 40-99/100", ""), ResumeStep::AskWhole},
        Row{"OfTwoVersions", PART, Range("bytes 40-99/100", "\nETag: \"v1\"\nETag: \"v2\""), ResumeStep::AskWhole},
        Row{"OfAnotherDate", DATED, Range("bytes 40-99/100", "\nLast-Modified: Fri, 20 Nov 2026 05:00:01 GMT"),
            ResumeStep::AskWhole},
        Row{"Compressed", PART, Range("bytes 40-99/100", "\nETag: \"v1\"\nContent-Encoding: gzip"),
            ResumeStep::AskWhole}),
    NAME_OF_ROW);

INSTANTIATE_TEST_SUITE_P(
    Other, Decision,
    ::testing::Values(Row{"NoSuchRangeOfAWholeFile", WHOLE, "416 No\nContent-Range: bytes */100", ResumeStep::HandOver},
                      Row{"NoSuchRangeOfAPart", PART, "416 No\nContent-Range: bytes */40", ResumeStep::AskWhole},
                      Row{"NoSuchRangeUnasked", EMPTY, "416 No", ResumeStep::Refuse, ErrorCause::DownloadRangeWrong},
                      Row{"NotFound", PART, "404 Not Found", ResumeStep::Refuse, ErrorCause::HttpStatus},
                      Row{"NoContent", EMPTY, "204 No Content", ResumeStep::Refuse, ErrorCause::HttpStatus},
                      Row{"NotModified", PART, "304 Not Modified", ResumeStep::Refuse, ErrorCause::HttpStatus},
                      Row{"Unavailable", PART, "503 Later", ResumeStep::Refuse, ErrorCause::HttpStatus}),
    NAME_OF_ROW);

TEST(Validators, StrongOnesOnlyAreKept)
{
    struct
    {
        char const* name;
        QByteArray fields;
        Validators expected;
    } const rows[] = {
        {"strong tag", "ETag: \"a b\"\nETag2: x", {}},
        {"tag", "ETag: \"a-b!\"", {"\"a-b!\"", {}}},
        {"weak tag", "ETag: W/\"a\"", {}},
        {"no quotes", "ETag: a", {}},
        {"one quote", "ETag: \"", {}},
        {"a quote inside", "ETag: \"a\"b\"", {}},
        {"two tags", "ETag: \"a\"\nETag: \"a\"", {}},
        {"endless tag", "ETag: \"" + QByteArray(2000, 'a') + '"', {}},
        {"date of the day before",
         "Last-Modified: Fri, 20 Nov 2026 05:00:00 GMT\nDate: Sat, 21 Nov 2026 05:00:00 GMT",
         {{}, "Fri, 20 Nov 2026 05:00:00 GMT"}},
        {"date of the same second",
         "Last-Modified: Sat, 21 Nov 2026 05:00:00 GMT\nDate: Sat, 21 Nov 2026 05:00:00 GMT",
         {}},
        {"date in the future", "Last-Modified: Sun, 22 Nov 2026 05:00:00 GMT\nDate: Sat, 21 Nov 2026 05:00:00 GMT", {}},
        {"no date to compare with", "Last-Modified: Fri, 20 Nov 2026 05:00:00 GMT", {}},
        {"date that is none", "Last-Modified: yesterday\nDate: Sat, 21 Nov 2026 05:00:00 GMT", {}},
        {"both",
         "ETag: \"a\"\nLast-Modified: Fri, 20 Nov 2026 05:00:00 GMT\nDate: Sat, 21 Nov 2026 05:00:00 GMT",
         {"\"a\"", "Fri, 20 Nov 2026 05:00:00 GMT"}},
    };
    for (auto const& row : rows)
    {
        std::optional<HttpHead> const head = HeadOf("HTTP/1.1 200 OK\n" + row.fields);
        ASSERT_TRUE(head) << row.name;
        Validators const found = StrongValidators(*head);
        EXPECT_EQ(found.entityTag, row.expected.entityTag) << row.name;
        EXPECT_EQ(found.lastModified, row.expected.lastModified) << row.name;
        EXPECT_TRUE(AreUsable(found)) << row.name;
    }
}

TEST(RangeFields, AskForTheRestOfANamedPartOnly)
{
    EXPECT_TRUE(RangeFields(EMPTY).empty());
    EXPECT_TRUE(RangeFields(NAMELESS).empty());
    EXPECT_TRUE(RangeFields(WHOLE).empty());
    std::vector<HeaderField> const byTag = RangeFields({40, 100, {"\"v1\"", "Fri, 20 Nov 2026 05:00:00 GMT"}});
    ASSERT_EQ(byTag.size(), 2u);
    EXPECT_EQ(byTag[0].name + ": " + byTag[0].value, "Range: bytes=40-");
    EXPECT_EQ(byTag[1].name + ": " + byTag[1].value, "If-Range: \"v1\"");
    std::vector<HeaderField> const byDate = RangeFields(DATED);
    ASSERT_EQ(byDate.size(), 2u);
    EXPECT_EQ(byDate[1].value, DATE.lastModified);
}

} // namespace
