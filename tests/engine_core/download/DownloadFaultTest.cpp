// DownloadFaultTest.cpp: kills and failing system calls at every disk call of a download. The default run takes a
// sample; with PELNAR_EVERY_PLACE=1 in the environment it takes every call.
#include "Engine/core/download/PartialFile.h"
#include "tests/engine_core/download/ArchiveServer.h"
#include "tests/engine_core/download/DownloadHarness.h"
#include "tests/installer/CallPlaces.h"
#include "tests/support/Sanitizers.h"
#include "tests/support/ServerThread.h"

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

namespace
{

using namespace Pelnar::Engine;
using namespace Pelnar::Testing;

constexpr int SIZE = 1000000;
QByteArray const ARCHIVE = MakeArchive(SIZE);
constexpr int DEFAULT_STRIDE = 5;

/// The end of the probe.
struct End
{
    int cause = -1; ///< -1 if it did not print one
    std::string all;
    std::size_t faults = 0;              ///< verdicts that had an effect
    std::vector<std::int64_t> answers{}; ///< of the calls so far
};

/// Other calls of a kind may be a few more or fewer in another run of the disk's thread.
using Place = CallPlace;

bool AnyPlace(Place const&)
{
    return true;
}

bool MayBeInterrupted(Place const& place)
{
    constexpr long CALLS[] = {SYS_openat, SYS_pwrite64, SYS_write, SYS_read, SYS_flock, SYS_ftruncate};
    return std::find(std::begin(CALLS), std::end(CALLS), place.call) != std::end(CALLS);
}

bool FillsTheDisk(Place const& place)
{
    return place.call == SYS_pwrite64 || place.call == SYS_write;
}

bool MayBeShortened(Place const& place)
{
    return CanBeShortened(place.call, place.answer) && place.call != SYS_read;
}

class DownloadFaultTest : public DownloadTest
{
protected:
    void SetUp() override
    {
        if (IS_SANITIZED)
        {
            GTEST_SKIP() << "a sanitizer's own calls would be counted";
        }
    }

    /// Runs the probe. \a visitor decides at each file call of its disk thread, counted from 0.
    End Probe(std::vector<std::string> arguments, CallVisitor const& visitor)
    {
        std::string const output = place.filePath(QStringLiteral("output")).toStdString();
        std::vector<std::string> words{PELNAR_DOWNLOAD_PROBE};
        words.insert(words.end(), arguments.begin(), arguments.end());
        pid_t main = 0;
        std::vector<int> visited;
        TracedEnd const traced = TraceProgram(words, output,
                                              [&](CallStop stop)
                                              {
                                                  main = main == 0 ? stop.process : main;
                                                  if (stop.process == main || FileOf(stop).empty())
                                                  {
                                                      return CallVerdict::GoOn();
                                                  }
                                                  visited.push_back(stop.index);
                                                  stop.index = static_cast<int>(visited.size()) - 1;
                                                  return visitor(stop);
                                              });
        End end;
        end.faults = traced.faulted.size();
        for (int const index : visited)
        {
            end.answers.push_back(traced.answers[static_cast<std::size_t>(index)]);
        }
        QFile file(QString::fromStdString(output));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        end.all = file.readAll().toStdString();
        std::size_t const found = end.all.find("cause=");
        end.cause = found == std::string::npos ? -1 : std::atoi(end.all.c_str() + found + 6);
        return end;
    }

    End Download(CallVisitor const& visitor)
    {
        return Probe({m_server.Url().toString().toStdString(), std::to_string(SIZE), Folder().toStdString()}, visitor);
    }

    /// The folder of an interrupted download; every second time, an empty folder.
    void Prepare(int round)
    {
        RemoveFolder();
        if (round % 2 == 1)
        {
            DownloadRequest request = RequestFor(m_server.Url(), SIZE);
            ASSERT_EQ(request.folder, Folder());
            PartialFile file(PlaceOf(Folder(), m_server.Url(), SIZE, request.signature));
            ASSERT_TRUE(file.Open());
            ASSERT_TRUE(file.Restart({m_partTag, {}}));
            ASSERT_TRUE(file.StageRecord() && file.SyncRecord() && file.PublishRecord() && file.SyncFolder());
            ASSERT_TRUE(file.Append(
                {reinterpret_cast<std::uint8_t const*>(m_part.constData()), static_cast<std::size_t>(m_part.size())}));
        }
    }

    void ExpectNextRunBringsTheArchive(std::string const& what)
    {
        DownloadResult const result = Run(RequestFor(m_server.Url(), SIZE));
        EXPECT_EQ(result.cause, ErrorCause::NoUpdate) << what << ": " << result.error.sentence.English().toStdString();
        EXPECT_TRUE(result.bytes == ARCHIVE) << what;
    }

    /// Makes downloads with \a verdict at all places that \a canFail, or at a sample of them: in a new download and in
    /// a resumed one. \a check gets the end of each.
    template <typename VerdictAt, typename Check>
    void Sweep(bool (*canFail)(Place const&), VerdictAt const& verdictAt, Check const& check)
    {
        int const stride = IsEveryPlaceWanted() ? 1 : DEFAULT_STRIDE;
        SweepRound(0, stride, canFail, verdictAt, check);
        SweepRound(1, stride, canFail, verdictAt, check);
    }

    template <typename VerdictAt, typename Check>
    void SweepRound(int round, int stride, bool (*canFail)(Place const&), VerdictAt const& verdictAt,
                    Check const& check)
    {
        std::vector<Place> places = PlacesOf(round);
        ASSERT_GT(places.size(), 15u);
        places.erase(std::remove_if(places.begin(), places.end(), [&](Place const& place) { return !canFail(place); }),
                     places.end());
        int runs = 0;
        int met = 0;
        for (std::size_t i = static_cast<std::size_t>(round); i < places.size(); i += static_cast<std::size_t>(stride))
        {
            Prepare(round);
            End const end = DownloadWith(verdictAt(i), places[i]);
            ++runs;
            met += end.faults > 0 ? 1 : 0;
            check(places[i], end,
                  CallName(places[i].call) + " number " + std::to_string(places[i].nth) + " of round " +
                      std::to_string(round));
        }
        EXPECT_GT(met, 0) << "nothing was done to " << places.size() << " places";
        EXPECT_GE(met * 10, runs * 8) << "of so many runs too few met their place";
    }

    std::vector<Place> PlacesOf(int round)
    {
        std::vector<Place> places;
        Prepare(round);
        End const end = Download(RecordPlaces(places));
        EXPECT_EQ(end.cause, 0) << end.all;
        for (std::size_t i = 0; i < places.size(); ++i)
        {
            places[i].answer = end.answers[i];
        }
        return places;
    }

    End DownloadWith(CallVerdict verdict, Place const& place) { return Download(VerdictAt(place, verdict)); }

    /// In every second round the partial file belongs to another version than the server's.
    void LeavePartsOfAnotherVersion()
    {
        m_part = MakeArchive(SIZE + 5).right(SIZE / 2);
        m_partTag = "\"zero\"";
    }

private:
    ServerThread m_server{Serving({ARCHIVE})};
    QByteArray m_part = ARCHIVE.left(SIZE / 2);
    QByteArray m_partTag = "\"one\"";
};

CallVerdict KillAt(std::size_t)
{
    return CallVerdict::KillAll();
}

TEST_F(DownloadFaultTest, KilledAtAnyCallTheNextRunBringsTheArchive)
{
    Sweep(&AnyPlace, &KillAt,
          [this](Place const&, End const&, std::string const& where) { ExpectNextRunBringsTheArchive(where); });
}

TEST_F(DownloadFaultTest, KilledAnywhereBetweenTwoVersionsNoFileIsMadeOfBoth)
{
    LeavePartsOfAnotherVersion();
    // Only one call matters here, so a sample is not enough.
    SweepRound(1, 1, &AnyPlace, &KillAt,
               [this](Place const&, End const&, std::string const& where) { ExpectNextRunBringsTheArchive(where); });
}

TEST_F(DownloadFaultTest, FailingCallsEndInAnErrorOrInTheArchiveAndTheNextRunBringsIt)
{
    constexpr int ERRORS[] = {ENOSPC, EIO, EDQUOT, EMFILE, ENOMEM, EACCES};
    int error = 0;
    Sweep(
        &AnyPlace,
        [&](std::size_t place)
        {
            error = ERRORS[place % std::size(ERRORS)];
            return CallVerdict::Fail(error);
        },
        [&](Place const& place, End const& end, std::string const& where)
        {
            std::string const what = where + " with error " + std::to_string(error);
            EXPECT_TRUE(end.cause == 0 || (end.cause >= 900 && end.cause < 950)) << what << ": " << end.all;
            if (place.call == SYS_pwrite64)
            {
                EXPECT_NE(end.cause, 0) << what;
                EXPECT_TRUE(Files().isEmpty() || error == EMFILE || error == ENOMEM)
                    << what << ": a disk that is full or fails keeps nothing";
            }
            ExpectNextRunBringsTheArchive(what);
        });
}

TEST_F(DownloadFaultTest, DiskThatIsFullAtAnyWriteIsToldInNumbersAndLeftAsItWas)
{
    bool isQuota = false;
    auto const verdictAt = [&](std::size_t place)
    {
        isQuota = place % 2 == 1;
        return CallVerdict::Fail(isQuota ? EDQUOT : ENOSPC);
    };
    auto const check = [&](Place const&, End const& end, std::string const& where)
    {
        ErrorCause const cause = isQuota ? ErrorCause::DownloadQuotaReached : ErrorCause::DownloadNoRoom;
        EXPECT_EQ(end.cause, static_cast<int>(cause)) << where << ": " << end.all;
        EXPECT_NE(
            end.all.find(isQuota ? "Your disk quota is too small for the update, which needs " : "The download needs "),
            std::string::npos)
            << where << ": " << end.all;
        EXPECT_EQ(end.all.find(" are free") == std::string::npos, isQuota) << where << ": " << end.all;
        EXPECT_EQ(end.all.find('%'), std::string::npos) << where << ": " << end.all;
        EXPECT_TRUE(Files().isEmpty()) << where;
        ExpectNextRunBringsTheArchive(where);
    };
    SweepRound(0, 1, &FillsTheDisk, verdictAt, check);
    SweepRound(1, 1, &FillsTheDisk, verdictAt, check);
}

bool IsArchive(CallStop const& stop)
{
    std::string const path = DescriptorPath(stop);
    return path.size() > 8 && path.compare(path.size() - 8, 8, ".archive") == 0;
}

/// After a failed sync the kernel may take pages for written that never reached the disk.
TEST_F(DownloadFaultTest, BytesThatCouldNotBeSyncedAreNeverResumed)
{
    std::map<int, ErrorCause> const causes{{EIO, ErrorCause::DownloadDiskFailed},
                                           {EROFS, ErrorCause::DownloadDiskFailed},
                                           {ENOSPC, ErrorCause::DownloadNoRoom},
                                           {EDQUOT, ErrorCause::DownloadQuotaReached},
                                           {ENOMEM, ErrorCause::DownloadSystemBusy}};
    for (auto const& [error, cause] : causes)
    {
        for (int nth = 1; nth <= 3; ++nth)
        {
            SCOPED_TRACE(testing::Message() << std::strerror(error) << " at sync " << nth);
            RemoveFolder();
            int syncs = 0;
            End const end = Probe({"--checkpoints", Folder().toStdString()},
                                  [&, error = error](CallStop const& stop)
                                  {
                                      bool const isSync = stop.call == SYS_fdatasync && IsArchive(stop);
                                      syncs += isSync ? 1 : 0;
                                      bool const isCut = stop.call == SYS_ftruncate && syncs == nth;
                                      return isSync && syncs == nth ? CallVerdict::Fail(error)
                                             : isCut                ? CallVerdict::Fail(EIO)
                                                                    : CallVerdict::GoOn();
                                  });
            EXPECT_EQ(end.faults, 2u) << "the sync, and the attempt to free the disk";
            EXPECT_EQ(end.cause, static_cast<int>(cause)) << end.all;
            EXPECT_TRUE(error == ENOSPC || error == EDQUOT || end.all.find(std::strerror(error)) != std::string::npos)
                << end.all;
            EXPECT_EQ(Files(), QStringList());
        }
    }
}

TEST_F(DownloadFaultTest, FileThatTakesNothingIsNotWrittenToForEver)
{
    Prepare(0);
    End const end = Download([](CallStop const& stop)
                             { return stop.call == SYS_pwrite64 ? CallVerdict::Pretend() : CallVerdict::GoOn(); });
    EXPECT_EQ(end.cause, static_cast<int>(ErrorCause::DownloadDiskFailed)) << end.all;
    ExpectNextRunBringsTheArchive("after it");
}

TEST_F(DownloadFaultTest, FileSystemWithoutLocksIsNoObstacle)
{
    for (int const error : {ENOLCK, EOPNOTSUPP, ENOSYS, EINVAL, EBADF})
    {
        Prepare(0);
        End const end = Download([error](CallStop const& stop)
                                 { return stop.call == SYS_flock ? CallVerdict::Fail(error) : CallVerdict::GoOn(); });
        EXPECT_EQ(end.cause, 0) << error << ": " << end.all;
        EXPECT_GT(end.faults, 0u);
        EXPECT_TRUE(PartialBytes() == ARCHIVE) << error;
    }
}

TEST_F(DownloadFaultTest, InterruptedCallsAreMadeAgain)
{
    Sweep(
        &MayBeInterrupted, [](std::size_t) { return CallVerdict::Fail(EINTR); },
        [&](Place const&, End const& end, std::string const& where)
        {
            EXPECT_EQ(end.cause, 0) << where << ": " << end.all;
            EXPECT_TRUE(PartialBytes() == ARCHIVE) << where;
        });
}

TEST_F(DownloadFaultTest, ShortWritesAreGoneOnWith)
{
    Sweep(
        &MayBeShortened, [](std::size_t) { return CallVerdict::Shorten(); },
        [&](Place const&, End const& end, std::string const& where)
        {
            EXPECT_EQ(end.cause, 0) << where << ": " << end.all;
            EXPECT_TRUE(PartialBytes() == ARCHIVE) << where;
        });
}

/// The writes and syncs of a download with checkpoints, read from its calls.
struct Checkpoints
{
    qint64 written = 0;
    qint64 synced = 0;
    std::optional<qint64> syncing;
    bool isRecordSynced = false;
    std::vector<bool> renames; ///< whether the record had been synced before
    int syncs = 0;

    void See(CallStop const& stop)
    {
        std::string const path = stop.call == SYS_openat ? std::string() : DescriptorPath(stop);
        bool const isArchive = stop.call != SYS_openat && IsArchive(stop);
        bool const isRecord = path.size() > 11 && path.compare(path.size() - 11, 11, ".record.new") == 0;
        isRecordSynced =
            isRecord ? stop.call == SYS_fdatasync || (isRecordSynced && stop.call != SYS_write) : isRecordSynced;
        if (stop.call == SYS_renameat || stop.call == SYS_renameat2)
        {
            renames.push_back(std::exchange(isRecordSynced, false));
        }
        if (isArchive && stop.call == SYS_pwrite64)
        {
            written += static_cast<qint64>(stop.arguments[2]);
        }
        if (isArchive && stop.call == SYS_fdatasync)
        {
            syncing = written;
            ++syncs;
        }
    }
};

TEST_F(DownloadFaultTest, NoRecordCallsBytesDurableThatWereNotSynced)
{
    int calls = 1;
    int checkpoints = 0;
    std::size_t kills = 0;
    for (int killAt = 0; killAt < calls; ++killAt)
    {
        RemoveFolder();
        Checkpoints seen;
        int seenCalls = 0;
        // The probe writes three pieces with a checkpoint after each, in the order of a download.
        End const end = Probe({"--checkpoints", Folder().toStdString()},
                              [&](CallStop const& stop)
                              {
                                  seenCalls = stop.index + 1;
                                  // The call before this one has now been made.
                                  seen.synced = std::exchange(seen.syncing, std::nullopt).value_or(seen.synced);
                                  if (stop.index == killAt && killAt > 0)
                                  {
                                      return CallVerdict::KillAll();
                                  }
                                  seen.See(stop);
                                  return CallVerdict::GoOn();
                              });
        kills += end.faults;
        checkpoints += seen.syncs;
        calls = std::max(calls, killAt == 0 ? seenCalls : calls);
        if (killAt == 0)
        {
            EXPECT_EQ(seen.renames, std::vector<bool>({false, true, true, true, true}))
                << "the first calls nothing durable";
        }
        QStringList const names = Files(QStringLiteral(".record"));
        if (names.isEmpty())
        {
            continue;
        }
        QFile file(QDir(Folder()).filePath(names.front()));
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        std::optional<PartialRecord> const record = DecodePartialRecord(file.readAll().toStdString());
        ASSERT_TRUE(record) << "a record is whole or not there, at call " << killAt;
        EXPECT_LE(record->durableBytes, static_cast<std::uint64_t>(seen.synced)) << "at call " << killAt;
    }
    EXPECT_GT(calls, 25);
    EXPECT_GE(kills * 10, static_cast<std::size_t>(calls) * 9);
    EXPECT_GE(checkpoints, 3);
}

} // namespace
