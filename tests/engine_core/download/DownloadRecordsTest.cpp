// DownloadRecordsTest.cpp: the records of archives between runs, and the numbers of a budget.

#include "Engine/core/download/PartialFile.h"
#include "tests/engine_core/download/ArchiveServer.h"
#include "tests/engine_core/download/DownloadBudgetFixture.h"
#include "tests/engine_core/download/DownloadHarness.h"
#include "tests/support/CauseOf.h"

#include <QElapsedTimer>

#include <limits>

#include <fcntl.h>
#include <sys/stat.h>

namespace
{

using namespace Pelnar::Engine;
using namespace Pelnar::Testing;
using std::chrono::milliseconds;

TEST_F(DownloadBudgetTest, OnlyTheLastOfManyArchivesIsKept)
{
    QByteArray const archive = MakeArchive(MEBIBYTE);
    for (int feed = 0; feed < 5; ++feed)
    {
        LoopbackServer server(Serving({archive, "\"one\"", {}, 300000}));
        DownloadRequest request = RequestFor(server.Url(), archive.size());
        request.limits.maxResumes = 0;
        request.signature = QString::number(feed);
        EXPECT_EQ(Run(request).cause, ErrorCause::IncompleteBody);
        EXPECT_EQ(Files(QStringLiteral(".archive")).size(), 1);
        EXPECT_EQ(ArchiveBytes(), 300000);
    }
}

TEST_F(DownloadBudgetTest, WhatWasSpentLongAgoDoesNotCount)
{
    QByteArray const archive = MakeArchive(300000);
    LoopbackServer server(
        [&](QSslSocket& socket, QByteArray const& request, int number) {
            Serving({archive, "\"one\"", {}, number == 0 ? 100000 : -1})(socket, request, number);
        });
    DownloadRequest const request = LeavePart(server, archive.size());
    Spend(request, {600000, 68, 100000});
    timespec const monthAgo[] = {{time(nullptr) - 31 * 24 * 3600, 0}, {time(nullptr) - 31 * 24 * 3600, 0}};
    ASSERT_EQ(utimensat(AT_FDCWD, RecordPath(request).toStdString().c_str(), monthAgo, 0), 0);
    EXPECT_EQ(Run(request).bytes, archive);
}

TEST_F(DownloadBudgetTest, FewRecordsOfOtherArchivesAreKeptAndOldOnesNot)
{
    auto const leave = [this](int number)
    {
        PartialFile file(PlaceOf(Folder(), QUrl(QStringLiteral("https://a.example/x")), 100, QString::number(number)));
        EXPECT_TRUE(file.Open());
        EXPECT_TRUE(file.StageRecord() && file.SyncRecord() && file.PublishRecord() && file.SyncFolder());
    };
    for (int number = 0; number < 30; ++number)
    {
        leave(number);
        EXPECT_EQ(Files(QStringLiteral(".archive")).size(), 1) << number;
        EXPECT_LE(Files(QStringLiteral(".record")).size(), 17) << number;
    }
    for (QString const& name : Files(QStringLiteral(".record")))
    {
        timespec const longAgo[] = {{1, 0}, {1, 0}};
        ASSERT_EQ(utimensat(AT_FDCWD, QDir(Folder()).filePath(name).toStdString().c_str(), longAgo, 0), 0);
    }
    leave(31);
    EXPECT_EQ(Files(QStringLiteral(".record")).size(), 1);
}

TEST_F(DownloadBudgetTest, ClearedFolderHoldsNothingButWhatIsInUse)
{
    LoopbackServer server(Serving({MakeArchive(300000), "\"one\"", {}, 1000}));
    (void)LeavePart(server, 300000);
    PartialFile used(PlaceOf(Folder(), QUrl(QStringLiteral("https://a.example/x")), 100, QString()));
    ASSERT_TRUE(used.Open());
    QFile document(QDir(Folder()).filePath(QStringLiteral("document")));
    ASSERT_TRUE(document.open(QIODevice::WriteOnly));
    ArchiveDownload::Clear(Folder());
    EXPECT_EQ(Files().size(), 2);
    used.Unlock();
    ArchiveDownload::Clear(Folder());
    EXPECT_EQ(Files(), QStringList(QStringLiteral("document")));
    ArchiveDownload::Clear(Folder() + QStringLiteral("/none"));
}

TEST(DownloadBudget, GrowsWithTheLengthAndHasAnEnd)
{
    struct
    {
        std::uint64_t declaredBytes;
        DownloadSpending budget;
    } const rows[] = {
        {0, {0, 64, 1800}},
        {1, {2, 64, 1800}},
        {1 << 20, {2 << 20, 80, 2312}},
        {std::uint64_t{1} << 30, {std::uint64_t{2} << 30, 64 + 16384, 86400}},
        {std::uint64_t{16} << 30, {std::uint64_t{32} << 30, 64 + 262144, 86400}},
        {std::numeric_limits<std::uint64_t>::max(),
         {std::numeric_limits<std::uint64_t>::max(), 64 + (std::uint64_t{1} << 48) - 1, 86400}},
    };
    for (auto const& row : rows)
    {
        SCOPED_TRACE(row.declaredBytes);
        ExpectSpending(BudgetOf(row.declaredBytes), row.budget);
    }
}

TEST(DownloadBudget, IsJudgedBeforeEachRequest)
{
    constexpr std::uint64_t MOST = std::numeric_limits<std::uint64_t>::max();
    struct
    {
        char const* name;
        DownloadSpending spent;
        std::uint64_t missing;
        std::optional<ErrorCause> cause;
    } const rows[] = {
        {"nothing", {}, 1000, std::nullopt},
        {"just enough is left", {1000, 0, 0}, 1000, std::nullopt},
        {"one byte too few", {1001, 0, 0}, 1000, ErrorCause::DownloadTooMuch},
        {"enough for the rest", {1900, 0, 0}, 100, std::nullopt},
        {"all", {2000, 0, 0}, 1, ErrorCause::DownloadTooMuch},
        {"more than all", {MOST, 0, 0}, 1, ErrorCause::DownloadTooMuch},
        {"last attempt", {0, 63, 0}, 1000, std::nullopt},
        {"no attempt more", {0, 64, 0}, 1000, ErrorCause::DownloadTooOften},
        {"last second", {0, 0, 1799}, 1000, std::nullopt},
        {"no second more", {0, 0, 1800}, 1000, ErrorCause::DownloadTooLong},
        {"absurd", {0, MOST, MOST}, 1000, ErrorCause::DownloadTooOften},
    };
    for (auto const& row : rows)
    {
        EXPECT_EQ(CauseOf(JudgeSpending(row.spent, 1000, row.missing)), row.cause) << row.name;
    }
}

TEST(DiskReserve, IsAShareOfTheDiskWithinBounds)
{
    constexpr std::uint64_t MIB = MEBIBYTE;
    struct
    {
        std::uint64_t disk;
        std::uint64_t reserve;
    } const rows[] = {
        {0, 0},
        {2 * MIB, MIB / 2},
        {1024 * MIB, 256 * MIB},
        {2048 * MIB, 256 * MIB},
        {20480 * MIB, 1024 * MIB},
        {10240 * 1024 * MIB, 4096 * MIB},
    };
    for (auto const& row : rows)
    {
        EXPECT_EQ(DiskReserve(row.disk), row.reserve) << row.disk;
    }
}

} // namespace
