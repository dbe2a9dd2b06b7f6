// RecompressTest.cpp: "generate --recompress": a second archive of the same bundle, for clients that support it.

#include "Engine/core/archive/TreeManifest.h"
#include "Publisher/Refusal.h"
#include "Publisher/files/BundleTree.h"
#include "Publisher/late/LatePart.h"
#include "tests/publisher/generate/PublisherFolder.h"
#include "tests/support/TestApplication.h"

#include <gtest/gtest.h>

#include <elf.h>

#include <QFile>

#include <filesystem>
#include <functional>
#include <random>

#include <sys/inotify.h>
#include <sys/mman.h>
#include <unistd.h>

namespace Pelnar::Testing
{
namespace
{

std::string Noise(std::size_t size)
{
    std::mt19937 random(5);
    std::string noise(size, '\0');
    for (char& byte : noise)
    {
        byte = static_cast<char>(random());
    }
    return noise;
}

/// The bundles repeat content over longer distances than the 32 KiB of a zip.
enum class Repetition
{
    Much,
    None,
};

std::vector<ForgedEntry> BundleOf(std::string const& version, Repetition repetition)
{
    BundleText text;
    text.version = version;
    text.program = ElfProgram(EM_X86_64);
    std::vector<ForgedEntry> bundle = MakePublishedBundle(text);
    std::string const noise = Noise(200000);
    bundle.push_back({"Test.app/long/" + std::string(120, 'n'), 'f', noise, 0755});
    if (repetition == Repetition::Much)
    {
        bundle.push_back({"Test.app/\xC3\xA9t\xC3\xA9", 'f', noise});
        bundle.push_back({"Test.app/link", 'l', "data"});
    }
    return bundle;
}

void PutZip(PublisherFolder const& folder, std::string const& version, Repetition repetition = Repetition::Much)
{
    folder.Put("Test-" + version + ".zip", MakeArchive(Container::Zip, BundleOf(version, repetition)));
}

QStringList const RECOMPRESS{QStringLiteral("--recompress"), QStringLiteral("--machine"), QStringLiteral("x86_64")};

Engine::ContentHash DigestOf(QString const& archive)
{
    Publisher::BundleTree const bundle = Publisher::BundleTree::Open(archive, [](std::uint64_t, std::uint64_t) {});
    return Engine::DigestTree(bundle.Descriptor());
}

class Recompress : public ::testing::Test
{
protected:
    PublisherFolder const folder;

private:
    TestApplication<> m_application; ///< check-release needs an event loop
};

TEST_F(Recompress, FeedNamesBothArchivesOfOneBundle)
{
    PutZip(folder, "2.0");
    ToolRun const run = folder.Generate(RECOMPRESS);
    EXPECT_EQ(run.status, 0) << run.out << run.err;
    EXPECT_NE(run.out.find("and as Test-2.0.tar.zst, "), std::string::npos) << run.out;
    std::string const packed = folder.ContentOf("Test-2.0.tar.zst");
    EXPECT_LT(packed.size() * 10, folder.ContentOf("Test-2.0.zip").size() * 9);
    EXPECT_EQ(DigestOf(folder.PathOf("Test-2.0.tar.zst")), DigestOf(folder.PathOf("Test-2.0.zip")));
    std::vector<Engine::FeedItem> const items = folder.Items();
    ASSERT_EQ(items.size(), 1u);
    EXPECT_EQ(items[0].fileUrl.fileName(), QStringLiteral("Test-2.0.zip")) << "the form for older clients";
    ASSERT_EQ(items[0].recompressed.size(), 1u) << folder.ContentOf("appcast.xml");
    Engine::FeedItem const& recompressed = items[0].recompressed[0];
    EXPECT_EQ(recompressed.fileUrl.fileName(), QStringLiteral("Test-2.0.tar.zst"));
    EXPECT_EQ(recompressed.contentLength, packed.size());
    EXPECT_EQ(recompressed.edSignature.toStdString(), Base64(Sign(packed, folder.Keys())));
    ToolRun const gate = RunTool({QStringLiteral("check-release"), folder.PathOf("appcast.xml")});
    EXPECT_EQ(gate.status, 0) << gate.out << gate.err;
}

TEST_F(Recompress, SameBundleMakesTheSameBytesAndRunningAgainChangesNothing)
{
    PublisherFolder const other;
    for (PublisherFolder const* const each : {&folder, &other})
    {
        PutZip(*each, "2.0");
        ASSERT_EQ(each->Generate(RECOMPRESS).status, 0);
    }
    EXPECT_EQ(folder.ContentOf("Test-2.0.tar.zst"), other.ContentOf("Test-2.0.tar.zst"));
    std::string const feed = folder.ContentOf("appcast.xml");
    EXPECT_EQ(folder.Generate(RECOMPRESS).status, 0);
    EXPECT_EQ(folder.ContentOf("appcast.xml"), feed);
    PutZip(folder, "3.0");
    EXPECT_EQ(folder.Generate(RECOMPRESS).status, 0);
    EXPECT_EQ(folder.Items().front().deltas.size(), 1u) << "an item with two archives is one base";
}

/// Counts the folders that are made in a folder.
class FolderCounter
{
public:
    explicit FolderCounter(std::string const& folder) : m_events(::inotify_init1(IN_NONBLOCK | IN_CLOEXEC))
    {
        EXPECT_GE(::inotify_add_watch(m_events.Get(), folder.c_str(), IN_CREATE), 0);
    }

    /// Since the last call.
    int Count()
    {
        int count = 0;
        alignas(inotify_event) char buffer[16 * 1024];
        for (ssize_t size = 0; (size = ::read(m_events.Get(), buffer, sizeof buffer)) > 0;)
        {
            for (ssize_t at = 0; at < size;)
            {
                auto const* const event = reinterpret_cast<inotify_event const*>(buffer + at);
                count += (event->mask & IN_ISDIR) != 0 ? 1 : 0;
                at += static_cast<ssize_t>(sizeof *event + event->len);
            }
        }
        return count;
    }

private:
    Engine::UniqueFd m_events;
};

TEST_F(Recompress, EachArchiveIsUnpackedOnceForAllThatIsMadeFromIt)
{
    Workspace const place;
    ::setenv("TMPDIR", place.Path().c_str(), 1);
    FolderCounter folders(place.Path());
    for (char const* const version : {"1.0", "1.1", "1.2"})
    {
        PutZip(folder, version);
    }
    ASSERT_EQ(folder.Generate(RECOMPRESS + QStringList{QStringLiteral("--deltas"), QStringLiteral("0")}).status, 0);
    EXPECT_EQ(folders.Count(), 3 + 3) << "each archive, and the proof of each new one";
    PutZip(folder, "2.0");
    ASSERT_EQ(folder.Generate(RECOMPRESS + QStringList{QStringLiteral("--deltas"), QStringLiteral("3")}).status, 0);
    ASSERT_EQ(folder.Items().front().deltas.size(), 3u);
    EXPECT_EQ(folders.Count(), 4 + 1 + 3) << "each archive, and the proofs of the new archive and of the deltas";
    ::unsetenv("TMPDIR");
}

TEST_F(Recompress, ArchiveThatSavesLessThanATenthIsNotPublished)
{
    PutZip(folder, "2.0", Repetition::None);
    ToolRun const run = folder.Generate(RECOMPRESS);
    EXPECT_EQ(run.status, 0) << run.err;
    EXPECT_NE(run.err.find("Test-2.0.tar.zst: not published: saves less than a tenth of the archive"),
              std::string::npos)
        << run.err;
    EXPECT_TRUE(folder.Items().front().recompressed.empty());
    EXPECT_FALSE(QFile::exists(folder.PathOf("Test-2.0.tar.zst")));
}

/// Packs a bundle whose large file is changed when its first piece has been read. Returns the refusal.
std::string PackedWhile(PublisherFolder const& folder, std::function<void(std::filesystem::path const&)> const& change)
{
    BundleText text;
    text.version = "2.0";
    std::vector<ForgedEntry> entries = MakePublishedBundle(text);
    entries.push_back({"Test.app/large", 'f', Noise(3 << 20)});
    folder.Put("Test-2.0.zip", MakeArchive(Container::Zip, entries));
    Publisher::BundleTree const bundle =
        Publisher::BundleTree::Open(folder.PathOf("Test-2.0.zip"), [](std::uint64_t, std::uint64_t) {});
    Engine::UniqueFd const made(::memfd_create("tar", MFD_CLOEXEC));
    std::uint64_t smallFiles = 0;
    try
    {
        Publisher::LoadLatePart().writeZstdTar(bundle, 0, made.Get(), QStringLiteral("Test-2.0.tar.zst"),
                                               [&](std::uint64_t done, std::uint64_t)
                                               {
                                                   smallFiles = done < (1 << 20) ? done : smallFiles;
                                                   if (done == smallFiles + (1 << 20))
                                                   {
                                                       change(bundle.Path() / "large");
                                                   }
                                               });
    }
    catch (Publisher::Refusal const& refusal)
    {
        return refusal.what();
    }
    return "packed";
}

TEST_F(Recompress, FileThatChangesWhileItIsPackedIsNamed)
{
    std::string const changed =
        folder.PathOf("Test-2.0.zip").toStdString() +
        "/large: has changed while this run worked; run this again when nobody changes the file";
    auto const resize = [](std::uintmax_t size)
    { return [size](std::filesystem::path const& path) { std::filesystem::resize_file(path, size); }; };
    EXPECT_EQ(PackedWhile(folder, resize(1 << 20)), changed) << "it ends at a piece";
    EXPECT_EQ(PackedWhile(folder, resize((2 << 20) + 7)), changed) << "it ends in a piece";
    EXPECT_EQ(PackedWhile(folder, resize((3 << 20) + 1)), changed);
    EXPECT_EQ(PackedWhile(folder, [](std::filesystem::path const&) {}), "packed");
}

TEST_F(Recompress, FileOfThatNameIsNotReplaced)
{
    PutZip(folder, "2.0");
    ASSERT_EQ(folder.Generate({QStringLiteral("--machine"), QStringLiteral("x86_64")}).status, 0);
    PutZip(folder, "3.0");
    folder.Put("Test-3.0.tar.zst", "another");
    EXPECT_NE(folder.Generate(RECOMPRESS).status, 0);
    EXPECT_EQ(folder.ContentOf("Test-3.0.tar.zst"), "another");
    EXPECT_EQ(folder.Items().size(), 1u);
}

TEST_F(Recompress, FileThatAnEndedRunHasLeftIsTaken)
{
    PutZip(folder, "1.0");
    PutZip(folder, "2.0");
    ASSERT_EQ(folder.Generate(RECOMPRESS).status, 0);
    std::string const feed = folder.ContentOf("appcast.xml");
    std::string const packed = folder.ContentOf("Test-2.0.tar.zst");
    folder.Remove("appcast.xml"); // with the names of the files, and before that of the feed
    ToolRun run = folder.Generate(RECOMPRESS);
    EXPECT_EQ(run.status, 0) << run.err;
    EXPECT_EQ(folder.ContentOf("appcast.xml"), feed);
    EXPECT_EQ(folder.ContentOf("Test-2.0.tar.zst"), packed);
    // That of an earlier zip of the same version is not.
    folder.Remove("appcast.xml");
    PutZip(folder, "2.0", Repetition::None);
    run = folder.Generate(RECOMPRESS);
    EXPECT_EQ(run.status, 1);
    EXPECT_NE(run.err.find("Test-2.0.zip: has the version 2.0, and so has Test-2.0.tar.zst"), std::string::npos)
        << run.err;
}

TEST_F(Recompress, FileThatCannotBeReadIsNamedAsDispensable)
{
    PutZip(folder, "2.0");
    std::string const path = folder.PathOf("Test-2.0.tar.zst").toStdString();
    std::string const mend = ", or remove it: --recompress makes it again\n";
    folder.Put("Test-2.0.tar.zst", "cut");
    ToolRun run = folder.Generate(RECOMPRESS);
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.err, "error: " + path +
                           ": is not a zip, or a tar compressed with gzip, bzip2, xz or zstd; pack it again with zip "
                           "or tar" +
                           mend);
    folder.Remove("Test-2.0.tar.zst");
    std::filesystem::create_directory(path);
    run = folder.Generate(RECOMPRESS);
    EXPECT_EQ(run.status, 2);
    EXPECT_EQ(run.err, "error: " + path + ": is not a plain file; give a plain file, or a link to one" + mend);
    std::filesystem::remove(path);
    EXPECT_EQ(folder.Generate(RECOMPRESS).status, 0);
}

TEST_F(Recompress, ArchivesOfTwoSystemsMayHaveOneName)
{
    BundleText text;
    text.version = "2.0";
    folder.Put("Test-2.0.zip", MakeArchive(Container::Zip, MakeMacBundle(text)));
    folder.Put("Test-2.0.tar.zst", MakeArchive(Container::TarZstandard, BundleOf("2.0", Repetition::Much)));
    ToolRun const run = folder.Generate(RECOMPRESS);
    EXPECT_EQ(run.status, 0) << run.err;
    EXPECT_EQ(folder.Items(Engine::FeedPlatform::Linux).size(), 1u);
    EXPECT_EQ(folder.Items(Engine::FeedPlatform::MacOS).size(), 1u);
}

TEST_F(Recompress, TwoKeysAndAMachineMakeAFeedThatCanBeRead)
{
    PutZip(folder, "2.0");
    Workspace const besides;
    QString const second = QString::fromStdString(besides.Path() + "/second-key");
    WriteFile(second.toStdString(), Base64(std::string(32, '\x9')));
    ASSERT_TRUE(QFile::setPermissions(second, QFile::ReadOwner | QFile::WriteOwner));
    ToolRun const run = folder.Generate(RECOMPRESS + QStringList{QStringLiteral("--second-key"), second});
    EXPECT_EQ(run.status, 0) << run.out << run.err;
    ASSERT_EQ(folder.Items().size(), 1u);
    EXPECT_EQ(folder.Items()[0].signatures.size(), 2u);
    EXPECT_EQ(folder.Items()[0].recompressed.at(0).signatures.size(), 2u);
}

TEST_F(Recompress, CheckReleaseRefusesAnotherBundleInIt)
{
    PutZip(folder, "2.0");
    ASSERT_EQ(folder.Generate(RECOMPRESS).status, 0);
    std::vector<ForgedEntry> bundle = BundleOf("2.0", Repetition::Much);
    bundle.back().content = "long";
    std::string const other = MakeArchive(Container::TarZstandard, bundle);
    Engine::FeedItem const before = folder.Items()[0].recompressed.at(0);
    folder.Put("Test-2.0.tar.zst", other);
    QString feed = QString::fromStdString(folder.ContentOf("appcast.xml"));
    feed.replace(before.edSignature, QString::fromStdString(Base64(Sign(other, folder.Keys()))));
    feed.replace(QStringLiteral("length=\"%1\"").arg(before.contentLength),
                 QStringLiteral("length=\"%1\"").arg(other.size()));
    folder.Put("appcast.xml", feed.toStdString());
    ToolRun const gate = RunTool({QStringLiteral("check-release"), folder.PathOf("appcast.xml")});
    EXPECT_NE(gate.status, 0);
    EXPECT_NE(gate.err.find("contains another bundle than the archive of the item"), std::string::npos)
        << gate.out << gate.err;
}

} // namespace
} // namespace Pelnar::Testing
