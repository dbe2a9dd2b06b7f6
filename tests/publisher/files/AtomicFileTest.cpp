// AtomicFileTest.cpp: the order in which a published file reaches the disk and gets its name, and calls of the tool's
// files that fail. The program's own functions replace those of the C library, record each call, and pass it on.

#include "Publisher/files/AtomicFile.h"

#include "Publisher/Refusal.h"
#include "Publisher/files/BundleTree.h"
#include "tests/installer/InstallerFixture.h"

#include <gtest/gtest.h>

#include <QFile>

#include <cerrno>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace
{

std::vector<std::string> calls;
/// Those before the first file got a hidden name.
std::vector<std::string> callsBeforeLink;
std::string failingCall;

std::string KindOf(int fd)
{
    struct stat status;
    return ::fstat(fd, &status) == 0 && S_ISDIR(status.st_mode) ? "folder" : "file";
}

/// Returns true, with errno, if the test wants the call to fail.
bool IsRefused(std::string const& call)
{
    errno = call == failingCall ? EIO : errno;
    return call == failingCall;
}

/// The same, and records the call.
bool Fails(std::string const& call)
{
    calls.push_back(call);
    return IsRefused(call);
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

extern "C" int linkat(int oldFolder, char const* oldName, int newFolder, char const* newName, int flags) noexcept
{
    callsBeforeLink = callsBeforeLink.empty() ? calls : callsBeforeLink;
    return int(::syscall(SYS_linkat, oldFolder, oldName, newFolder, newName, flags));
}

extern "C" int rename(char const* oldName, char const* newName) noexcept
{
    return IsRefused("rename by path") ? -1 : int(::syscall(SYS_rename, oldName, newName));
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
    EXPECT_EQ(Content(), "<rss/>") << "it still has its name";
}

INSTANTIATE_TEST_SUITE_P(Every, AtomicFiles, ::testing::Values(ExistingFile::Replace, ExistingFile::Keep),
                         [](auto const& row)
                         { return std::string(row.param == ExistingFile::Keep ? "New" : "Replaced"); });

class FilesTogether : public AtomicFiles
{
protected:
    /// Two new files, and a feed that replaces an old one.
    void Publish(std::vector<std::string> const& names = {"a.delta", "b.delta"})
    {
        std::vector<std::unique_ptr<AtomicFile>> files;
        for (std::string const& name : names)
        {
            files.push_back(std::make_unique<AtomicFile>(QString::fromStdString(m_folder.Path() + '/' + name)));
            files.back()->Write("delta");
        }
        AtomicFile feed(Path());
        feed.Write("new");
        calls.clear();
        callsBeforeLink.clear();
        AtomicFile::CommitTogether(files, feed);
    }
};

INSTANTIATE_TEST_SUITE_P(Once, FilesTogether, ::testing::Values(ExistingFile::Replace),
                         [](auto const&) { return std::string("Replaced"); });

TEST_P(FilesTogether, AreAllOnTheDiskBeforeTheFirstGetsItsNameAndTheFeedIsTheLast)
{
    WriteFile(m_folder.Path() + "/appcast.xml", "old");
    Publish();
    EXPECT_EQ(calls, (std::vector<std::string>{"sync file", "sync file", "sync file", "rename", "rename", "sync folder",
                                               "rename", "sync folder"}));
    EXPECT_EQ(callsBeforeLink, (std::vector<std::string>{"sync file", "sync file", "sync file"}))
        << "a run that is killed while it writes large files leaves none behind";
    EXPECT_EQ(Content(), "new");
    EXPECT_EQ(m_folder.Names(), (std::vector<std::string>{"a.delta", "appcast.xml", "b.delta"}));
}

TEST_P(FilesTogether, GoAgainWhenOneOfThemOrTheFeedGetsNoName)
{
    WriteFile(m_folder.Path() + "/appcast.xml", "old");
    WriteFile(m_folder.Path() + "/b.delta", "another's");
    EXPECT_THROW(Publish(), Publisher::Refusal);
    EXPECT_EQ(Content(), "old");
    EXPECT_EQ(m_folder.Names(), (std::vector<std::string>{"appcast.xml", "b.delta"}));
    EXPECT_TRUE(QFile::remove(Path()));
    ASSERT_EQ(::mkdir(Path().toStdString().c_str(), 0755), 0); // a file cannot replace it
    EXPECT_THROW(Publish({"c.delta"}), Publisher::Refusal);
    EXPECT_EQ(m_folder.Names(), (std::vector<std::string>{"appcast.xml", "b.delta"}));
}

TEST_P(FilesTogether, StayWhenOnlyTheFeedsNameMayNotSurvive)
{
    failingCall = "sync folder";
    EXPECT_THROW(Publish({}), Publisher::Refusal);
    EXPECT_EQ(Content(), "new");
}

/// What the person is told when \a work cannot be done.
std::string RefusalOf(std::function<void()> const& work)
{
    try
    {
        work();
    }
    catch (Publisher::Refusal const& refusal)
    {
        return refusal.what();
    }
    return "none";
}

TEST(TemporaryFolders, GoAgainWhenTheyGetNoName)
{
    Workspace const place;
    qputenv("TMPDIR", QByteArray::fromStdString(place.Path()));
    failingCall = "rename by path";
    std::string const told = RefusalOf([] { Publisher::TemporaryFolder const folder; });
    EXPECT_EQ(told, place.Path() + ": no folder for temporary files can be made there: Input/output error; name "
                                   "another folder in TMPDIR");
    EXPECT_TRUE(place.Names().empty());
    failingCall.clear();
    qunsetenv("TMPDIR");
}

} // namespace
} // namespace Pelnar::Testing
