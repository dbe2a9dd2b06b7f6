// HttpHeadTest.cpp: heads line by line: which lines are refused, and the limit of bytes.
#include "Engine/core/fetch/HttpHead.h"

#include <gtest/gtest.h>

#include <vector>

namespace
{

using namespace Pelnar::Engine;
using Progress = HttpHeadReader::Progress;

/// The result for the last of \a lines, or for the first that fails.
Progress Read(HttpHeadReader& reader, std::vector<QByteArray> const& lines)
{
    Progress progress = Progress::NeedsMore;
    for (QByteArray const& line : lines)
    {
        progress = reader.Take(line);
        if (progress == Progress::Failed)
        {
            break;
        }
    }
    return progress;
}

TEST(HttpHead, FieldsAreReadInOrder)
{
    HttpHeadReader reader(1000);
    EXPECT_EQ(Read(reader, {"HTTP/1.1 200 OK\r\n", "ETag: \"1\"\r\n", "X-A:b\r\n", "x-a: \t c \r\n", "\r\n"}),
              Progress::Complete);
    EXPECT_EQ(reader.Head().status, 200);
    EXPECT_EQ(reader.Head().Values("x-a"), (std::vector<QByteArray>{"b", "c"}));
    EXPECT_EQ(reader.Head().Values("etag"), (std::vector<QByteArray>{"\"1\""}));
}

TEST(HttpHead, StatusLinesOfEveryVersion)
{
    for (char const* const line : {"HTTP/1.0 404 Gone\r\n", "HTTP/1.1 404\r\n", "HTTP/2 404 \r\n", "HTTP/2 404\r\n"})
    {
        HttpHeadReader reader(1000);
        EXPECT_EQ(Read(reader, {line, "\r\n"}), Progress::Complete) << line;
        EXPECT_EQ(reader.Head().status, 404) << line;
    }
    for (char const* const line : {"HTTP/0.9 200 OK\r\n", "HTTP/1.2 200 OK\r\n", "HTTP/1.1 20 OK\r\n",
                                   "HTTP/1.1 2000\r\n", "HTTP/1.1  200 OK\r\n", "HTTP/1.1 600 No\r\n",
                                   "HTTP/1.1 099 No\r\n", "http/1.1 200\r\n", "HTTP/1.1 101 Switching\r\n", "\r\n"})
    {
        HttpHeadReader reader(1000);
        EXPECT_EQ(Read(reader, {line, "\r\n"}), Progress::Failed) << line;
    }
}

TEST(HttpHead, LinesThatTwoReadersMightReadDifferentlyAreRefused)
{
    for (QByteArray const& line :
         {QByteArray("X: bare end\n"), QByteArray("X: no end"), QByteArray("X: bare\rreturn\r\n"),
          QByteArray(" folded\r\n"), QByteArray("\tfolded\r\n"), QByteArray("X : blank\r\n"),
          QByteArray("no colon\r\n"), QByteArray(": no name\r\n"), QByteArray("X: a\0b\r\n", 8),
          QByteArray("X\xc3\xa4: name\r\n"), QByteArray("\n"), QByteArray("X: two\r\r\n"), QByteArray("X: \x7f\r\n")})
    {
        HttpHeadReader reader(1000);
        EXPECT_EQ(Read(reader, {"HTTP/1.1 200 OK\r\n", "ETag: \"1\"\r\n", line}), Progress::Failed)
            << line.toStdString();
        EXPECT_EQ(reader.Error(), ErrorCause::MalformedHead);
    }
    HttpHeadReader reader(1000);
    EXPECT_EQ(Read(reader, {"HTTP/1.1 200 OK\n"}), Progress::Failed) << "the first line as well";
}

TEST(HttpHead, LimitHoldsForAllHeadsAndTheTrailerTogether)
{
    QByteArray const status = "HTTP/1.1 103 Hint\r\n";
    int const most = 2 * (status.size() + 2);
    HttpHeadReader reader(most);
    EXPECT_EQ(Read(reader, {status, "\r\n", status, "\r\n"}), Progress::NeedsMore) << "an answer is still to come";
    EXPECT_EQ(Read(reader, {"H"}), Progress::Failed);
    EXPECT_EQ(reader.Error(), ErrorCause::HeadTooLarge);

    HttpHeadReader withTrailer(40);
    EXPECT_EQ(Read(withTrailer, {"HTTP/1.1 200 OK\r\n", "\r\n"}), Progress::Complete);
    EXPECT_EQ(Read(withTrailer, {"A: 1\r\n", "B: 2\r\n", "C: 3\r\n"}), Progress::NeedsMore);
    EXPECT_EQ(Read(withTrailer, {"D: 4\r\n"}), Progress::Failed);
    EXPECT_EQ(withTrailer.Error(), ErrorCause::HeadTooLarge);
    EXPECT_TRUE(withTrailer.Head().fields.empty()) << "a trailer changes no head";
}

TEST(HttpHead, QuestionIsForgottenWhenTheAnswerFollows)
{
    HttpHeadReader reader(1000);
    EXPECT_EQ(Read(reader, {"HTTP/1.1 407 Who\r\n", "X: y\r\n", "\r\n"}), Progress::Complete);
    reader.Restart();
    EXPECT_FALSE(reader.HasHead());
    EXPECT_EQ(Read(reader, {"HTTP/1.1 200 OK\r\n", "\r\n"}), Progress::Complete);
    EXPECT_TRUE(reader.Head().fields.empty());
}

} // namespace
