// DownloadFaultTest.cpp: kills and failing system calls at every call that a download makes of the disk. The default
// run takes a sample; with PELNAR_EVERY_PLACE=1 in the environment it takes every call.
#include "Engine/core/download/PartialFile.h"
#include "tests/engine_core/download/ArchiveServer.h"
#include "tests/engine_core/download/DownloadHarness.h"
#include "tests/engine_core/download/ServerThread.h"
#include "tests/installer/CallTracer.h"
#include "tests/support/Sanitizers.h"

#include <algorithm>
#include <cerrno>
#include <cstdlib>
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

/// True for a call that names a file, or has one that is not another thread's bell in its first argument.
bool IsAboutFiles(CallStop const& stop)
{
    constexpr long BY_NAME[] = {SYS_openat, SYS_newfstatat, SYS_renameat, SYS_renameat2, SYS_unlinkat, SYS_mkdir};
    constexpr long BY_DESCRIPTOR[] = {SYS_read,  SYS_write, SYS_pwrite64,  SYS_fstat, SYS_close,   SYS_flock,
                                      SYS_lseek, SYS_fcntl, SYS_ftruncate, SYS_fsync, SYS_fstatfs, SYS_fdatasync};
    bool const isByName = std::find(std::begin(BY_NAME), std::end(BY_NAME), stop.call) != std::end(BY_NAME);
    bool const isByDescriptor =
        std::find(std::begin(BY_DESCRIPTOR), std::end(BY_DESCRIPTOR), stop.call) != std::end(BY_DESCRIPTOR);
    return isByName || (isByDescriptor && DescriptorPath(stop).rfind('/', 0) == 0);
}

/// What the probe ended with.
struct End
{
    int cause = -1; ///< -1 when it did not come to print one
    std::string all;
};

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

    /// Runs the probe with \a visitor deciding at each call about files that its disk thread makes, counted from 0.
    End Probe(std::vector<std::string> arguments, CallVisitor const& visitor)
    {
        std::string const output = place.filePath(QStringLiteral("output")).toStdString();
        std::vector<std::string> words = StartStopped();
        words.push_back(PELNAR_DOWNLOAD_PROBE);
        words.insert(words.end(), arguments.begin(), arguments.end());
        pid_t const process = fork();
        if (process == 0)
        {
            int const file = open(output.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
            dup2(file, STDOUT_FILENO);
            dup2(file, STDERR_FILENO);
            std::vector<char*> pointers;
            for (std::string& word : words)
            {
                pointers.push_back(word.data());
            }
            pointers.push_back(nullptr);
            execv(pointers[0], pointers.data());
            _exit(127);
        }
        if (process < 0)
        {
            ADD_FAILURE() << "no process can be made: " << errno;
            return {};
        }
        int count = 0;
        TraceToTheEnd(process,
                      [&](CallStop stop)
                      {
                          if (stop.process == process || !IsAboutFiles(stop))
                          {
                              return CallVerdict::GoOn();
                          }
                          stop.index = count++;
                          return visitor(stop);
                      });
        End end;
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

    /// The folder as a download leaves it that was cut in its middle, or, every second time, none.
    void Prepare(int round)
    {
        RemoveFolder();
        if (round % 2 == 1)
        {
            DownloadRequest request = RequestFor(m_server.Url(), SIZE);
            ASSERT_EQ(request.folder, Folder());
            PartialFile file(PlaceOf(Folder(), m_server.Url(), SIZE, request.signature));
            ASSERT_FALSE(file.Open());
            ASSERT_FALSE(file.Restart({m_partTag, {}}));
            ASSERT_FALSE(file.StageRecord() || file.SyncRecord() || file.PublishRecord() || file.SyncFolder());
            ASSERT_FALSE(file.Append(
                {reinterpret_cast<std::uint8_t const*>(m_part.constData()), static_cast<std::size_t>(m_part.size())}));
        }
    }

    void ExpectNextRunBringsTheArchive(std::string const& what)
    {
        DownloadResult const result = Run(RequestFor(m_server.Url(), SIZE));
        EXPECT_EQ(result.cause, ErrorCause::NoUpdate) << what << ": " << result.error.sentence.English().toStdString();
        EXPECT_TRUE(result.bytes == ARCHIVE) << what;
    }

    /// Calls \a check with every place, or a sample of them, among the calls of a download that begins and of one that
    /// goes on. The disk's thread may make a few more or fewer of them in another run.
    template <typename Check>
    void AtEachCall(Check const& check)
    {
        int const stride = std::getenv("PELNAR_EVERY_PLACE") ? 1 : DEFAULT_STRIDE;
        AtEachCallOf(0, stride, check);
        AtEachCallOf(1, stride, check);
    }

    template <typename Check>
    void AtEachCallOf(int round, int stride, Check const& check)
    {
        int calls = 0;
        Prepare(round);
        End const end = Download(
            [&calls](CallStop const&)
            {
                ++calls;
                return CallVerdict::GoOn();
            });
        ASSERT_EQ(end.cause, 0) << end.all;
        ASSERT_GT(calls, 15);
        for (int index = round; index < calls; index += stride)
        {
            Prepare(round);
            check(index, " at " + std::to_string(index) + " of round " + std::to_string(round));
        }
    }

    /// Downloads while the call at \a index gets \a verdict; \a met is that call, or -1 when there was none.
    End DownloadWith(CallVerdict verdict, int index, long& met)
    {
        met = -1;
        return Download(
            [&](CallStop const& stop)
            {
                if (stop.index != index)
                {
                    return CallVerdict::GoOn();
                }
                met = stop.call;
                return verdict;
            });
    }

    /// Has every second round begin with a part of another version than the server's.
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

TEST_F(DownloadFaultTest, KilledAtAnyCallTheNextRunBringsTheArchive)
{
    AtEachCall(
        [this](int index, std::string const& where)
        {
            long met = -1;
            DownloadWith(CallVerdict::KillAll(), index, met);
            ExpectNextRunBringsTheArchive(CallName(met) + where);
        });
}

TEST_F(DownloadFaultTest, KilledAnywhereBetweenTwoVersionsNoFileIsMadeOfBoth)
{
    LeavePartsOfAnotherVersion();
    // One call is the one that matters, so that no sample will do.
    AtEachCallOf(1, 1,
                 [this](int index, std::string const& where)
                 {
                     long met = -1;
                     DownloadWith(CallVerdict::KillAll(), index, met);
                     ExpectNextRunBringsTheArchive(CallName(met) + where);
                 });
}

TEST_F(DownloadFaultTest, FailingCallsEndInAnErrorOrInTheArchiveAndTheNextRunBringsIt)
{
    constexpr int ERRORS[] = {ENOSPC, EIO, EDQUOT, EMFILE, ENOMEM, EACCES};
    std::size_t turn = 0;
    AtEachCall(
        [&](int index, std::string const& where)
        {
            int const error = ERRORS[turn++ % std::size(ERRORS)];
            long met = -1;
            End const end = DownloadWith(CallVerdict::Fail(error), index, met);
            std::string const what = CallName(met) + where + " with error " + std::to_string(error);
            EXPECT_TRUE(end.cause == 0 || (end.cause >= 900 && end.cause < 950)) << what << ": " << end.all;
            if (met == SYS_pwrite64)
            {
                EXPECT_NE(end.cause, 0) << what;
                EXPECT_TRUE(Files().isEmpty() || error == EMFILE || error == ENOMEM)
                    << what << ": a disk that is full or fails keeps nothing";
            }
            ExpectNextRunBringsTheArchive(what);
        });
}

TEST_F(DownloadFaultTest, InterruptedAndShortCallsAreGoneOnWith)
{
    AtEachCall(
        [&](int index, std::string const& where)
        {
            constexpr long INTERRUPTIBLE[] = {SYS_openat, SYS_pwrite64, SYS_write, SYS_read, SYS_flock, SYS_ftruncate};
            CallVisitor const visitor = [&](CallStop const& stop)
            {
                bool const isMeant =
                    stop.index == index &&
                    std::find(std::begin(INTERRUPTIBLE), std::end(INTERRUPTIBLE), stop.call) != std::end(INTERRUPTIBLE);
                return isMeant ? CallVerdict::Fail(EINTR) : CallVerdict::GoOn();
            };
            End const interrupted = Download(visitor);
            EXPECT_EQ(interrupted.cause, 0) << "interrupted" << where << ": " << interrupted.all;
            EXPECT_TRUE(PartialBytes() == ARCHIVE) << where;
            RemoveFolder();
            End const shortened = Download(
                [index](CallStop const& stop)
                {
                    bool const isWrite = stop.call == SYS_pwrite64 || stop.call == SYS_write;
                    return stop.index == index && isWrite ? CallVerdict::Shorten() : CallVerdict::GoOn();
                });
            EXPECT_EQ(shortened.cause, 0) << "shortened" << where << ": " << shortened.all;
            EXPECT_TRUE(PartialBytes() == ARCHIVE) << where;
        });
}

/// What a record may call durable while a download makes checkpoints.
class CheckpointFaultTest : public DownloadFaultTest
{
protected:
    /// The probe writes three pieces with a checkpoint after each, in the order of a download.
    End WriteWithCheckpoints(CallVisitor const& visitor)
    {
        return Probe({"--checkpoints", Folder().toStdString()}, visitor);
    }
};

TEST_F(CheckpointFaultTest, NoRecordCallsBytesDurableThatWereNotSynced)
{
    int calls = 1;
    int checkpoints = 0;
    for (int killAt = 0; killAt < calls; ++killAt)
    {
        RemoveFolder();
        qint64 written = 0;
        qint64 synced = 0;
        std::optional<qint64> syncing;
        int seen = 0;
        bool isRecordSynced = false;
        std::vector<bool> renames; ///< whether the record had been synced
        WriteWithCheckpoints(
            [&](CallStop const& stop)
            {
                seen = stop.index + 1;
                // The call before has been made by now.
                synced = std::exchange(syncing, std::nullopt).value_or(synced);
                if (stop.index == killAt && killAt > 0)
                {
                    return CallVerdict::KillAll();
                }
                std::string const path = stop.call == SYS_openat ? std::string() : DescriptorPath(stop);
                bool const isArchive = path.size() > 8 && path.compare(path.size() - 8, 8, ".archive") == 0;
                bool const isRecord = path.size() > 11 && path.compare(path.size() - 11, 11, ".record.new") == 0;
                isRecordSynced = isRecord ? stop.call == SYS_fdatasync || (isRecordSynced && stop.call != SYS_write)
                                          : isRecordSynced;
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
                    ++checkpoints;
                }
                return CallVerdict::GoOn();
            });
        calls = std::max(calls, killAt == 0 ? seen : calls);
        if (killAt == 0)
        {
            EXPECT_EQ(renames, std::vector<bool>({false, true, true, true, true})) << "the first calls nothing durable";
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
        EXPECT_LE(record->durableBytes, static_cast<std::uint64_t>(synced)) << "at call " << killAt;
    }
    EXPECT_GT(calls, 25);
    EXPECT_GE(checkpoints, 3);
}

} // namespace
