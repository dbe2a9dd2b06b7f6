// AtomicFileTest.cpp: in which order a published file reaches the disk and gets its name. This program's own fsync and
// renameat2 stand before the C library's, keep what they are asked for, and pass it on.

#include "Publisher/files/AtomicFile.h"

#include "Publisher/Refusal.h"
#include "tests/installer/InstallerFixture.h"

#include <gtest/gtest.h>

#include <QFile>

#include <cerrno>
#include <string>
#include <vector>

#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace
{

std::vector<std::string> calls;
std::string failingCall;

std::string KindOf(int fd)
{
    struct stat status;
    return ::fstat(fd, &status) == 0 && S_ISDIR(status.st_mode) ? "folder" : "file";
}

/// Keeps the call; true, with errno, when the test wants it to fail.
bool Fails(std::string const& call)
{
    calls.push_back(call);
    errno = EIO;
    return call == failingCall;
}

} // namespace

extern "C" int fsync(int fd)
{
    return Fails("sync " + KindOf(fd)) ? -1 : int(::syscall(SYS_fsync, fd));
}

extern "C" int renameat2(int oldFolder, char const* oldName, int newFolder, char const* newName,
                         unsigned flags) noexcept
{
    return Fails("rename") ? -1 : int(::syscall(SYS_renameat2, oldFolder, oldName, newFolder, newName, flags));
}

namespace Pelnar::Testing
{
namespace
{

using Publisher::AtomicFile;
using Publisher::ExistingFile;

class AtomicFiles : public ::testing::TestWithParam<ExistingFile>
{
protected:
    AtomicFiles()
    {
        calls.clear();
        failingCall.clear();
    }
    QString Path() const { return QString::fromStdString(m_folder.Path() + "/appcast.xml"); }
    void Publish(char const* bytes)
    {
        AtomicFile file(Path());
        file.Write(bytes);
        EXPECT_TRUE(calls.empty()) << "nothing is named yet";
        file.Commit(GetParam());
    }
    std::string Content() const
    {
        QFile file(Path());
        return file.open(QIODevice::ReadOnly) ? file.readAll().toStdString() : "none";
    }

    Workspace m_folder;
};

TEST_P(AtomicFiles, AreOnTheDiskBeforeTheyGetTheirNameAndTheNameFollows)
{
    Publish("<rss/>");
    EXPECT_EQ(calls, (std::vector<std::string>{"sync file", "rename", "sync folder"}));
    EXPECT_EQ(Content(), "<rss/>");
    EXPECT_EQ(m_folder.Names(), std::vector<std::string>{"appcast.xml"});
}

TEST_P(AtomicFiles, GetNoNameWhenTheyDoNotReachTheDisk)
{
    for (char const* const call : {"sync file", "rename"})
    {
        calls.clear();
        failingCall = call;
        EXPECT_THROW(Publish("<rss/>"), Publisher::Refusal) << call;
        EXPECT_EQ(Content(), "none") << call;
        EXPECT_TRUE(m_folder.Names().empty()) << call;
    }
}

TEST_P(AtomicFiles, TellWhenTheirNameMayNotSurvive)
{
    failingCall = "sync folder";
    EXPECT_THROW(Publish("<rss/>"), Publisher::Refusal);
    EXPECT_EQ(Content(), "<rss/>") << "it has its name all the same";
}

INSTANTIATE_TEST_SUITE_P(Every, AtomicFiles, ::testing::Values(ExistingFile::Replace, ExistingFile::Keep),
                         [](auto const& row)
                         { return std::string(row.param == ExistingFile::Keep ? "New" : "Replaced"); });

} // namespace
} // namespace Pelnar::Testing
