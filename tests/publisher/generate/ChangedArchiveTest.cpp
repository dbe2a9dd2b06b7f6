// ChangedArchiveTest.cpp: files that change while "generate" works, and files that have not the bytes that they should.

#include "Publisher/Refusal.h"
#include "Publisher/generate/Workplace.h"
#include "Publisher/keys/Signer.h"
#include "tests/publisher/generate/PublisherFolder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <functional>
#include <map>
#include <memory>
#include <sstream>

#include <sys/stat.h>

namespace Pelnar::Testing
{
namespace
{

/// The system counts the time of changes in steps. Returns when a change has another time than the last one of \a path.
void WaitForTheClockOfFiles(std::string const& path)
{
    Workspace const place;
    struct stat last = {};
    ASSERT_EQ(::stat(path.c_str(), &last), 0);
    for (int i = 0; i < 1000000; ++i)
    {
        struct stat now = {};
        WriteFile(place.Path() + "/probe", "probe");
        ASSERT_EQ(::stat((place.Path() + "/probe").c_str(), &now), 0);
        if (now.st_ctim.tv_nsec != last.st_ctim.tv_nsec)
        {
            return;
        }
    }
    FAIL() << "the clock stands still";
}

TEST(ChangedArchive, IsRefusedWhileTheRunWorks)
{
    using Change = std::function<void(std::string const&)>;
    std::map<std::string, Change> const changes{
        {"longer", [](std::string const& path) { std::ofstream(path, std::ios::app) << "more"; }},
        {"rewritten", [](std::string const& path) { std::fstream(path, std::ios::in | std::ios::out) << "XX"; }},
        {"replaced",
         [](std::string const& path)
         {
             std::filesystem::copy_file(path, path + ".new");
             std::filesystem::rename(path + ".new", path);
         }},
        {"gone", [](std::string const& path) { std::filesystem::remove(path); }},
    };
    for (auto const& [name, change] : changes)
    {
        SCOPED_TRACE(name);
        PublisherFolder const folder;
        folder.PutVersion("1.0");
        std::string const path = folder.Path() + "/Test-1.0.zip";
        std::istringstream in;
        std::ostringstream out;
        Publisher::Console const console{in, {out}, {out}};
        Publisher::SignerOptions options;
        options.keyFile = folder.KeyFile().toStdString();
        std::unique_ptr<Publisher::ISigner> const signer = Publisher::LoadSigner(options);
        Publisher::Workplace const place{QString::fromStdString(folder.Path()),
                                         Publisher::DownloadAddress::UnderPrefix(QStringLiteral("https://a.example/")),
                                         *signer,
                                         nullptr,
                                         console,
                                         {},
                                         0,
                                         {}};
        static_cast<void>(place.Unpack(QStringLiteral("Test-1.0.zip")));
        EXPECT_NO_THROW(place.RefuseChangedFiles());
        WaitForTheClockOfFiles(path);
        change(path);
        std::string told;
        try
        {
            static_cast<void>(place.Sign(place.Open(QStringLiteral("Test-1.0.zip"))));
        }
        catch (Publisher::Refusal const& refusal)
        {
            told = refusal.what();
        }
        EXPECT_EQ(told,
                  path + (name == "gone" ? ": cannot be read: No such file or directory; check the name and the "
                                           "file's permissions"
                                         : ": has changed while this run worked; run this again when nobody "
                                           "changes the file"));
        EXPECT_THROW(place.RefuseChangedFiles(), Publisher::Refusal);
    }
}

TEST(OddInput, ThatHasMoreBytesThanTheSystemSaysIsRefused)
{
    PublisherFolder const folder;
    folder.PutVersion("1.0");
    ToolRun const run = folder.Generate({QStringLiteral("--clients"), QStringLiteral("/proc/version")});
    EXPECT_EQ(run.status, 2);
    EXPECT_NE(run.err.find("/proc/version: cannot be read to its end"), std::string::npos) << run.err;
    EXPECT_EQ(folder.Names(), std::vector<std::string>{"Test-1.0.zip"});
}

} // namespace
} // namespace Pelnar::Testing
