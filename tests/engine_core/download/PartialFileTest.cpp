// PartialFileTest.cpp: the file of a partial archive on a real disk: other objects in its place, its lock, its record.
#include "tests/engine_core/download/PartialFileFixture.h"
#include "tests/engine_core/fetch/FetchHarness.h"
#include "tests/support/FileSizeLimit.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QUrl>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

namespace
{

using namespace Pelnar::Engine;
using namespace Pelnar::Testing;

TEST_F(PartialFileTest, PlaceDiffersByAddressLengthAndSignatureAndKeepsNoPassword)
{
    QUrl const url(QStringLiteral("https://a.example/x.zip"));
    std::string const name = PlaceOf(folder, url, 100, QStringLiteral("s")).name;
    EXPECT_NE(PlaceOf(folder, QUrl(QStringLiteral("https://a.example/y.zip")), 100, QStringLiteral("s")).name, name);
    EXPECT_NE(PlaceOf(folder, url, 101, QStringLiteral("s")).name, name);
    EXPECT_NE(PlaceOf(folder, url, 100, QStringLiteral("t")).name, name);
    EXPECT_EQ(Place().url, "https://a.example/x.zip");
}

TEST_F(PartialFileTest, FolderAndFileAreTheUsersAlone)
{
    for (mode_t const mask : {022U, 0777U})
    {
        folder = place.filePath(QString::number(mask) + QStringLiteral("/b/updates"));
        mode_t const before = ::umask(mask);
        LeavePart("part");
        ::umask(before);
        struct stat status
        {
        };
        ASSERT_EQ(stat(Place().folder.c_str(), &status), 0);
        EXPECT_EQ(status.st_mode & 07777, 0700u) << mask;
        for (std::string const& path : {ArchivePath(), RecordPath()})
        {
            ASSERT_EQ(stat(path.c_str(), &status), 0);
            EXPECT_EQ(status.st_mode & 07777, 0600u) << path;
        }
    }
}

TEST_F(PartialFileTest, PartIsFoundAgainWithItsVersion)
{
    LeavePart("the first half");
    PartialFile file(Place());
    ASSERT_EQ(CauseOf(file.Open()), ErrorCause::NoUpdate);
    EXPECT_EQ(file.Found().bytes, 14u);
    EXPECT_EQ(file.Found().validators.entityTag, TAG.entityTag);
    ASSERT_EQ(CauseOf(file.Append(BytesOf(", the second"))), ErrorCause::NoUpdate);
    EXPECT_EQ(ArchiveText(), "the first half, the second");
}

/// Without its record the bytes cannot be trusted, so they would be discarded.
TEST_F(PartialFileTest, SystemThatCannotOpenTheRecordNowCostsNoByte)
{
    LeavePart("the first half");
    rlimit before{};
    ASSERT_EQ(getrlimit(RLIMIT_NOFILE, &before), 0);
    rlim_t const next = static_cast<rlim_t>(UniqueFd(open("/dev/null", O_RDONLY | O_CLOEXEC)).Get());
    rlimit const tight{next + 2, before.rlim_max}; // the folder and the archive
    ASSERT_EQ(setrlimit(RLIMIT_NOFILE, &tight), 0);
    ErrorCause const cause = CauseOf(PartialFile(Place()).Open());
    ASSERT_EQ(setrlimit(RLIMIT_NOFILE, &before), 0);
    EXPECT_EQ(cause, ErrorCause::DownloadSystemBusy);
    EXPECT_EQ(FoundBytes(), 14u);
}

TEST_F(PartialFileTest, UnsafeFoldersAreRefused)
{
    ASSERT_TRUE(QDir().mkpath(folder));
    ASSERT_EQ(chmod(Place().folder.c_str(), 0770), 0);
    EXPECT_EQ(CauseOf(PartialFile(Place()).Open()), ErrorCause::DownloadFolderUnsafe) << "a group can write";
    ASSERT_EQ(chmod(Place().folder.c_str(), 0702), 0);
    EXPECT_EQ(CauseOf(PartialFile(Place()).Open()), ErrorCause::DownloadFolderUnsafe) << "anybody can write";
    QString const elsewhere = place.filePath(QStringLiteral("elsewhere"));
    ASSERT_TRUE(QDir().mkpath(elsewhere));
    ASSERT_EQ(rmdir(Place().folder.c_str()), 0);
    ASSERT_TRUE(QFile::link(elsewhere, folder));
    EXPECT_EQ(CauseOf(PartialFile(Place()).Open()), ErrorCause::DownloadFolderUnsafe) << "a link";
    EXPECT_TRUE(QDir(elsewhere).isEmpty());
}

TEST_F(PartialFileTest, FolderThatCannotBeMadeIsNotCalledUnsafe)
{
    ASSERT_TRUE(QFile(place.filePath(QStringLiteral("file"))).open(QIODevice::WriteOnly));
    PartialPlace below = Place();
    below.folder = place.filePath(QStringLiteral("file/updates")).toStdString();
    EXPECT_EQ(CauseOf(PartialFile(below).Open()), ErrorCause::DownloadFolderUnusable) << "nobody could remove it";
}

TEST_F(PartialFileTest, FolderOfAnotherUserIsRefused)
{
    ASSERT_TRUE(QDir().mkpath(folder));
    if (geteuid() != 0 || chown(Place().folder.c_str(), 1234, 1234) != 0)
    {
        GTEST_SKIP() << "only root can give files away";
    }
    EXPECT_EQ(CauseOf(PartialFile(Place()).Open()), ErrorCause::DownloadFolderUnsafe);
}

/// Puts another object in the place of the partial file, next to the record of the old one.
struct Intruder
{
    char const* name;
    void (*put)(std::string const& path, std::string const& elsewhere);
};

void PrintTo(Intruder const& intruder, std::ostream* out)
{
    *out << intruder.name;
}

void WriteText(std::string const& path, char const* text)
{
    QFile file(QString::fromStdString(path));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(text);
}

class ReplacedFile : public PartialFileTest, public ::testing::WithParamInterface<Intruder>
{
};

INSTANTIATE_TEST_SUITE_P(
    Intruders, ReplacedFile,
    ::testing::
        Values(
            Intruder{"Link",
                     [](std::string const& path, std::string const& elsewhere)
                     {
                         WriteText(elsewhere, "precious");
                         ASSERT_EQ(symlink(elsewhere.c_str(), path.c_str()), 0);
                     }},
            Intruder{"DanglingLink", [](std::string const& path, std::string const& elsewhere)
                     { ASSERT_EQ(symlink((elsewhere + "-none").c_str(), path.c_str()), 0); }},
            Intruder{"SecondName",
                     [](std::string const& path, std::string const& elsewhere)
                     {
                         WriteText(elsewhere, "precious");
                         ASSERT_EQ(link(elsewhere.c_str(), path.c_str()), 0);
                     }},
            Intruder{"Pipe",
                     [](std::string const& path, std::string const&) { ASSERT_EQ(mkfifo(path.c_str(), 0600), 0); }},
            Intruder{"Socket",
                     [](std::string const& path, std::string const&)
                     {
                         // The name of a socket has space for a short path only, so the socket is made elsewhere and
                         // moved.
                         UniqueFd const socketFd(socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0));
                         std::string const shortPath = "/tmp/pelnar-" + std::to_string(getpid());
                         sockaddr_un address{};
                         address.sun_family = AF_UNIX;
                         shortPath.copy(address.sun_path, sizeof address.sun_path - 1);
                         ASSERT_EQ(bind(socketFd.Get(), reinterpret_cast<sockaddr*>(&address), sizeof address), 0);
                         if (rename(shortPath.c_str(), path.c_str()) != 0)
                         {
                             unlink(shortPath.c_str());
                             GTEST_SKIP() << "the temporary folder is on another disk";
                         }
                     }},
            Intruder{"EmptyFolder",
                     [](std::string const& path, std::string const&) { ASSERT_EQ(mkdir(path.c_str(), 0700), 0); }},
            Intruder{"FullFolder",
                     [](std::string const& path, std::string const&)
                     {
                         ASSERT_EQ(mkdir(path.c_str(), 0700), 0);
                         WriteText(path + "/file", "precious");
                     }},
            Intruder{"WritableByAll",
                     [](std::string const& path, std::string const&)
                     {
                         WriteText(path, "evil");
                         ASSERT_EQ(chmod(path.c_str(), 0666), 0);
                     }},
            Intruder{
                "OfAnotherUser",
                [](std::string const& path, std::string const&)
                {
                    WriteText(path, "evil");
                    if (geteuid() != 0 || chown(path.c_str(), 1234, 1234) != 0)
                    {
                        GTEST_SKIP() << "only root can give files away";
                    }
                }},
            Intruder{"BiggerFile", [](std::string const& path, std::string const&)
                     { WriteText(path, std::string(1000, 'x').c_str()); }},
            Intruder{"OtherFile", [](std::string const& path, std::string const&) { WriteText(path, "evil"); }}),
    [](auto const& row) { return std::string(row.param.name); });

TEST_P(ReplacedFile, GivesWayToANewOneAndNothingElseIsTouched)
{
    LeavePart("part");
    std::string const elsewhere = place.filePath(QStringLiteral("elsewhere")).toStdString();
    // Another file first, so that the intruder does not get the inode number of the removed file.
    WriteText(place.filePath(QStringLiteral("spare")).toStdString(), "spare");
    ASSERT_EQ(rename(ArchivePath().c_str(), (place.path().toStdString() + "/old").c_str()), 0);
    GetParam().put(ArchivePath(), elsewhere);
    if (HasFatalFailure() || IsSkipped())
    {
        return;
    }
    PartialFile file(Place());
    ASSERT_EQ(CauseOf(file.Open()), ErrorCause::NoUpdate);
    EXPECT_EQ(file.Found().bytes, 0u);
    Restart(file);
    ASSERT_EQ(CauseOf(file.Append(BytesOf("new"))), ErrorCause::NoUpdate);
    EXPECT_EQ(ArchiveText(), "new");
    struct stat status
    {
    };
    ASSERT_EQ(lstat(ArchivePath().c_str(), &status), 0);
    EXPECT_TRUE(S_ISREG(status.st_mode));
    EXPECT_EQ(status.st_uid, geteuid());
    EXPECT_EQ(status.st_nlink, 1u);
    if (QFile precious(QString::fromStdString(elsewhere)); precious.exists())
    {
        ASSERT_TRUE(precious.open(QIODevice::ReadOnly));
        EXPECT_EQ(precious.readAll(), "precious");
    }
}

/// Repeatedly, and for each name that a download uses.
TEST_F(PartialFileTest, FoldersUnderItsNamesAreSetAsideAsOftenAsTheyCome)
{
    LeavePart("first");
    for (int round = 0; round < 3; ++round)
    {
        for (std::string const& path : {ArchivePath(), RecordPath(), RecordPath() + ".new"})
        {
            SCOPED_TRACE(path);
            QFile::remove(QString::fromStdString(path));
            ASSERT_EQ(mkdir(path.c_str(), 0700), 0);
            WriteText(path + "/file", "precious");
            LeavePart("part");
            EXPECT_EQ(FoundBytes(), 4u);
        }
    }
    int precious = 0;
    for (QString const& name : QDir(folder).entryList(QDir::Dirs | QDir::Hidden | QDir::NoDotAndDotDot))
    {
        precious += QFile::exists(folder + QLatin1Char('/') + name + QStringLiteral("/file")) ? 1 : 0;
    }
    EXPECT_EQ(precious, 9) << "their content does not belong to us";
}

TEST_F(PartialFileTest, RecordThatIsALinkIsNotRead)
{
    LeavePart("part");
    std::string const moved = place.filePath(QStringLiteral("record")).toStdString();
    ASSERT_EQ(rename(RecordPath().c_str(), moved.c_str()), 0);
    ASSERT_EQ(symlink(moved.c_str(), RecordPath().c_str()), 0);
    EXPECT_EQ(FoundBytes(), 0u);
}

TEST_F(PartialFileTest, WithoutARecordNoByteIsTrusted)
{
    LeavePart("part");
    ASSERT_EQ(unlink(RecordPath().c_str()), 0);
    EXPECT_EQ(FoundBytes(), 0u);
    EXPECT_EQ(ArchiveText(), "");
}

TEST_F(PartialFileTest, AfterARestartOfTheSystemOnlyDurableBytesAreTrusted)
{
    {
        PartialFile file(Place());
        ASSERT_EQ(CauseOf(file.Open()), ErrorCause::NoUpdate);
        Restart(file);
        ASSERT_EQ(CauseOf(file.Append(BytesOf("durable"))), ErrorCause::NoUpdate);
        ASSERT_EQ(CauseOf(file.SyncBytes()), ErrorCause::NoUpdate);
        ASSERT_EQ(CauseOf(Record(file)), ErrorCause::NoUpdate);
        ASSERT_EQ(CauseOf(file.Append(BytesOf(" and more"))), ErrorCause::NoUpdate);
    }
    EXPECT_EQ(FoundBytes(), 16u) << "in the same run all of it";

    QFile file(QString::fromStdString(RecordPath()));
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    std::optional<PartialRecord> record = DecodePartialRecord(file.readAll().toStdString());
    ASSERT_TRUE(record);
    EXPECT_EQ(record->durableBytes, 7u);
    record->systemStart = "the run before";
    file.resize(0);
    file.seek(0);
    file.write(QByteArray::fromStdString(EncodePartialRecord(*record)));
    file.close();
    EXPECT_EQ(FoundBytes(), 7u);
    EXPECT_EQ(ArchiveText(), "durable") << "untrusted bytes are cut off";
}

TEST_F(PartialFileTest, SecondUserOfTheFileIsToldSo)
{
    PartialFile first(Place());
    ASSERT_EQ(CauseOf(first.Open()), ErrorCause::NoUpdate);
    EXPECT_EQ(CauseOf(PartialFile(Place()).Open()), ErrorCause::DownloadBusy);
    first.Unlock();
    EXPECT_EQ(CauseOf(PartialFile(Place()).Open()), ErrorCause::NoUpdate);
}

TEST_F(PartialFileTest, FinishedFileCannotBeWrittenAndStaysLocked)
{
    PartialFile file(Place(4));
    ASSERT_EQ(CauseOf(file.Open()), ErrorCause::NoUpdate);
    Restart(file);
    ASSERT_EQ(CauseOf(file.Append(BytesOf("done"))), ErrorCause::NoUpdate);
    UniqueFd archive = file.Finish();
    EXPECT_EQ(fcntl(archive.Get(), F_GETFL) & O_ACCMODE, O_RDONLY);
    EXPECT_EQ(lseek(archive.Get(), 0, SEEK_CUR), 0);
    EXPECT_EQ(fcntl(archive.Get(), F_SETLEASE, F_RDLCK), 0) << "somebody has it open for writing";
    EXPECT_EQ(CauseOf(PartialFile(Place(4)).Open()), ErrorCause::DownloadBusy);
    EXPECT_EQ(fcntl(archive.Get(), F_GETLEASE), F_RDLCK) << "who asks for it does not break the lease";
    archive = UniqueFd();
    PartialFile again(Place(4));
    ASSERT_EQ(CauseOf(again.Open()), ErrorCause::NoUpdate);
    EXPECT_EQ(again.Found().bytes, 4u);
    UniqueFd const handed = again.Finish();
    EXPECT_EQ(fcntl(handed.Get(), F_SETLEASE, F_RDLCK), 0);
}

TEST_F(PartialFileTest, DiskWithoutRoomIsRefusedBeforeAnythingComes)
{
    PartialFile file(Place(quint64{1} << 60));
    Result<void> const opened = file.Open();
    ASSERT_EQ(CauseOf(opened), ErrorCause::DownloadNoRoom);
    EXPECT_TRUE(opened.error().sentence.English().contains(QLatin1String("needs")))
        << opened.error().sentence.English().toStdString();
    EXPECT_FALSE(opened.error().sentence.English().contains(QLatin1Char('%')))
        << opened.error().sentence.English().toStdString();
}

TEST_F(PartialFileTest, OtherArchivesGoUnlessTheyAreInUse)
{
    auto const placeOf = [this](char const* signature)
    { return PlaceOf(folder, QUrl(QStringLiteral("https://a.example/x.zip")), 100, QString::fromLatin1(signature)); };
    PartialFile used(placeOf("used"));
    ASSERT_EQ(CauseOf(used.Open()), ErrorCause::NoUpdate);
    {
        PartialFile other(placeOf("other"));
        ASSERT_EQ(CauseOf(other.Open()), ErrorCause::NoUpdate);
        Restart(other);
        ASSERT_EQ(CauseOf(other.Append(BytesOf("part"))), ErrorCause::NoUpdate);
    }
    std::string const base = Place().folder + '/';
    std::string const hash(64, 'a');
    WriteText(base + "document", "not a download");
    WriteText(base + "x.archive", "not one either");
    ASSERT_EQ(symlink((base + "document").c_str(), (base + hash + ".archive").c_str()), 0);
    ASSERT_EQ(mkdir((base + std::string(64, 'b') + ".archive").c_str(), 0700), 0);
    LeavePart("part");
    QDir const left(folder);
    EXPECT_TRUE(left.exists(QString::fromStdString(placeOf("used").name)));
    EXPECT_FALSE(left.exists(QString::fromStdString(placeOf("other").name)));
    EXPECT_TRUE(left.exists(QString::fromStdString(placeOf("other").name + ".record"))) << "it contains the cost";
    EXPECT_TRUE(left.exists(QStringLiteral("document")));
    EXPECT_TRUE(left.exists(QStringLiteral("x.archive")));
    EXPECT_TRUE(left.exists(QString(64, QLatin1Char('b')) + QStringLiteral(".archive"))) << "somebody's folder";
    EXPECT_FALSE(QFileInfo(left.filePath(QString::fromStdString(hash) + QStringLiteral(".archive"))).isSymLink());
}

TEST_F(PartialFileTest, RemovedFileLeavesTheRecordOfWhatItCost)
{
    LeavePart("part");
    static_cast<void>(RemovePartialFile(Place()));
    EXPECT_EQ(QDir(folder).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
              QStringList(QString::fromStdString(Place().name + ".record")));
    EXPECT_EQ(FoundBytes(), 0u);
    static_cast<void>(RemovePartialFile(Place()));
    ClearDownloadFolder(folder);
    EXPECT_TRUE(QDir(folder).isEmpty());
}

/// A sync that fails late must not take the file from the next download.
TEST_F(PartialFileTest, FailureAfterTheUnlockingLeavesTheFileToItsNextUser)
{
    LeavePart("half of it");
    PartialFile first(Place());
    ASSERT_EQ(CauseOf(first.Open()), ErrorCause::NoUpdate);
    first.Unlock();
    PartialFile next(Place());
    ASSERT_EQ(CauseOf(next.Open()), ErrorCause::NoUpdate);
    ASSERT_EQ(next.Found().bytes, 10u);
    {
        FileSizeLimit const limit(4);
        EXPECT_EQ(CauseOf(first.Append(BytesOf("more"))), ErrorCause::DownloadFileTooLarge);
    }
    struct stat status = {};
    EXPECT_EQ(::stat(ArchivePath().c_str(), &status), 0);
    EXPECT_EQ(status.st_size, 10);
    EXPECT_EQ(::access(RecordPath().c_str(), F_OK), 0);
    next.Unlock();
    {
        FileSizeLimit const limit(4);
        EXPECT_EQ(CauseOf(first.Append(BytesOf("more"))), ErrorCause::DownloadFileTooLarge);
    }
    EXPECT_NE(::access(ArchivePath().c_str(), F_OK), 0) << "nobody uses it";
    EXPECT_NE(::access(RecordPath().c_str(), F_OK), 0);
}

} // namespace
