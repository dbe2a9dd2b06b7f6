// GenerateDeltasTest.cpp: the deltas that "generate" makes or takes, and those that it leaves out.

#include "Engine/core/delta/DeltaContainer.h"
#include "Engine/core/feed/ReleaseRules.h"
#include "tests/publisher/generate/PublisherFolder.h"

#include <gtest/gtest.h>

#include <elf.h>

#include <QDateTime>
#include <QFile>
#include <QTemporaryDir>

#include <algorithm>
#include <filesystem>
#include <functional>
#include <map>

namespace Pelnar::Testing
{
namespace
{

using Engine::FeedPlatform;

TEST(Generate, DeltasLeadFromTheVersionsThatMostClientsRun)
{
    PublisherFolder const folder;
    for (char const* const version : {"1.0", "1.9", "1.10", "2.0"})
    {
        folder.PutVersion(version);
    }
    QTemporaryDir const place;
    QString const clients = place.filePath(QStringLiteral("clients"));
    QFile file(clients);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("# of last week\n1.10 3\n\n0.9  70\n1.0\t25.5\n2.0 90\n1.9 20\n");
    file.close();
    ToolRun const run =
        folder.Generate({QStringLiteral("--deltas"), QStringLiteral("2"), QStringLiteral("--clients"), clients});
    EXPECT_EQ(run.status, 0) << run.err;
    EXPECT_NE(run.err.find("clients: no delta is made from 0.9: the folder has no published archive"),
              std::string::npos)
        << run.err;
    std::vector<Engine::FeedItem> const items = folder.Items();
    ASSERT_EQ(items.size(), 4u);
    ASSERT_EQ(items[0].deltas.size(), 2u) << "0.9 is not in the folder, and 2.0 is the newest";
    EXPECT_EQ(items[0].deltas[0].deltaFrom.toStdString(), "1.9");
    EXPECT_EQ(items[0].deltas[1].deltaFrom.toStdString(), "1.0");
}

TEST(Generate, AListOfClientsThatSaysNothingIsRefused)
{
    PublisherFolder const folder;
    folder.PutVersion("1.0");
    QTemporaryDir const place;
    for (QByteArray const& text :
         {QByteArray(""), QByteArray("\n# of last week\n"), QByteArray("1.0\n"), QByteArray("1.0 many\n"),
          QByteArray("1.0 0\n"), QByteArray("1.0 -1\n"), QByteArray("one 5\n"), QByteArray("1.0 5 7\n"),
          QByteArray("1.0 inf\n"), QByteArray("1.0 5\n1.0.0 6\n"), QByteArray("1.0 5\n\0\nnone", 12)})
    {
        SCOPED_TRACE(text.toStdString());
        QString const clients = place.filePath(QStringLiteral("clients"));
        QFile file(clients);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
        file.close();
        ToolRun const run = folder.Generate({QStringLiteral("--clients"), clients});
        EXPECT_NE(run.status, 0);
        EXPECT_NE(run.err.find("clients:"), std::string::npos) << run.err;
        EXPECT_NE(run.err.find("a version and its share"), std::string::npos) << run.err;
    }
}

TEST(Generate, DeltasLeadFromTheVersionsBeforeToTheNewest)
{
    PublisherFolder const folder;
    for (char const* const version : {"1.0", "1.9", "1.10", "2.0"})
    {
        folder.PutVersion(version);
    }
    folder.GeneratedFeed({QStringLiteral("--deltas"), QStringLiteral("2")});
    std::vector<Engine::FeedItem> const items = folder.Items();
    ASSERT_EQ(items.size(), 4u);
    ASSERT_EQ(items[0].deltas.size(), 2u);
    EXPECT_EQ(items[0].deltas[0].deltaFrom.toStdString(), "1.10");
    EXPECT_EQ(items[0].deltas[1].deltaFrom.toStdString(), "1.9");
    EXPECT_TRUE(items[1].deltas.empty());
    for (Engine::FeedItem const& delta : items[0].deltas)
    {
        std::string const bytes = folder.ContentOf(delta.fileUrl.fileName().toStdString());
        EXPECT_EQ(delta.versionString.toStdString(), "2.0");
        EXPECT_EQ(delta.contentLength, bytes.size());
        EXPECT_LT(delta.contentLength, items[0].contentLength);
        EXPECT_EQ(delta.edSignature.toStdString(), Base64(Sign(bytes, folder.Keys())));
    }
}

TEST(Generate, ArchivesOfPublishedVersionsServeAsBases)
{
    PublisherFolder const folder;
    folder.PutVersion("1.0");
    folder.GeneratedFeed();
    folder.PutVersion("2.0");
    folder.GeneratedFeed();
    ASSERT_EQ(folder.Items()[0].deltas.size(), 1u);
    EXPECT_EQ(folder.Items()[0].deltas[0].deltaFrom.toStdString(), "1.0");
}

TEST(Generate, AnOlderVersionThatComesLateGetsNoDeltas)
{
    PublisherFolder const folder;
    folder.PutVersion("1.0");
    folder.PutVersion("3.0");
    folder.GeneratedFeed();
    folder.PutVersion("2.0");
    folder.GeneratedFeed();
    std::vector<Engine::FeedItem> const items = folder.Items();
    ASSERT_EQ(items.size(), 3u);
    EXPECT_EQ(items[1].versionString.toStdString(), "2.0");
    EXPECT_TRUE(items[1].deltas.empty());
}

TEST(Generate, GivenDeltaIsProvedAndTaken)
{
    PublisherFolder const folder;
    folder.PutVersion("1.0");
    folder.PutVersion("2.0");
    ASSERT_EQ(MakeGivenDelta(folder, "Test-1.0.zip", "Test-2.0.zip").status, 0);
    folder.GeneratedFeed();
    ASSERT_EQ(folder.Items()[0].deltas.size(), 1u);
    EXPECT_EQ(folder.Items()[0].deltas[0].fileUrl.fileName().toStdString(), "given.delta");
}

TEST(Generate, GivenDeltaIsOneOfTheNumberThatIsAskedFor)
{
    PublisherFolder const folder;
    for (char const* const version : {"1.0", "1.1", "2.0"})
    {
        folder.PutVersion(version);
    }
    ASSERT_EQ(MakeGivenDelta(folder, "Test-1.1.zip", "Test-2.0.zip").status, 0);
    folder.GeneratedFeed({QStringLiteral("--deltas"), QStringLiteral("1")});
    ASSERT_EQ(folder.Items()[0].deltas.size(), 1u) << "the given one; none from 1.0";
    EXPECT_EQ(folder.Items()[0].deltas[0].fileUrl.fileName().toStdString(), "given.delta");
    std::vector<std::string> const names = folder.Names();
    EXPECT_EQ(std::count_if(names.begin(), names.end(),
                            [](std::string const& name) { return name.find(".delta") != std::string::npos; }),
              1);
}

std::string Noise(std::size_t size, unsigned seed)
{
    std::string bytes(size, '\0');
    for (char& byte : bytes)
    {
        seed = seed * 1103515245u + 12345u;
        byte = static_cast<char>(seed >> 16);
    }
    return bytes;
}

/// \a archive with a comment in its gzip header that makes it \a size bytes long. REQUIRES: it is shorter.
std::string PaddedTo(std::size_t size, std::string const& archive)
{
    constexpr std::size_t HEADER_BYTES = 10;
    constexpr char HAS_COMMENT = 0x10;
    EXPECT_LT(archive.size(), size);
    std::string header = archive.substr(0, HEADER_BYTES);
    header[3] |= HAS_COMMENT;
    return header + std::string(size - archive.size() - 1, ' ') + '\0' + archive.substr(HEADER_BYTES);
}

/// Creates two versions that have nothing in common, and a delta between them. A delta must save a tenth of the
/// archive. The second archive is \a larger bytes longer than the one for which it just does.
void PutVersionsThatShareNothing(PublisherFolder const& folder, int larger)
{
    std::string archive;
    for (unsigned version : {1u, 2u})
    {
        BundleText text;
        text.version = std::to_string(version) + ".0";
        std::vector<ForgedEntry> bundle = MakePublishedBundle(text);
        bundle.back().content = Noise(20000, version);
        archive = MakeArchive(Container::TarGzip, bundle);
        folder.Put("Test-" + text.version + ".tar.gz", archive);
    }
    EXPECT_EQ(MakeGivenDelta(folder, "Test-1.0.tar.gz", "Test-2.0.tar.gz").status, 0);
    int const leastBytes = (int(folder.ContentOf("given.delta").size()) * 10 + 8) / 9;
    folder.Put("Test-2.0.tar.gz", PaddedTo(std::size_t(leastBytes + larger), archive));
}

struct SizeRow
{
    char const* name;
    int archiveIsLargerBy;
    std::size_t deltas;
};

std::ostream& operator<<(std::ostream& out, SizeRow const& row)
{
    return out << row.name;
}

class DeltaSize : public ::testing::TestWithParam<SizeRow>
{
};

TEST_P(DeltaSize, GivenDeltaIsPublishedOnlyWhenItSavesATenth)
{
    PublisherFolder const folder;
    PutVersionsThatShareNothing(folder, GetParam().archiveIsLargerBy);
    ToolRun const run = folder.Generate({QStringLiteral("--deltas"), QStringLiteral("0")});
    EXPECT_EQ(folder.Items()[0].deltas.size(), GetParam().deltas) << run.err;
    EXPECT_EQ(run.err.find("given.delta: ignored: saves less than a tenth of the whole archive") != std::string::npos,
              GetParam().deltas == 0)
        << run.err;
}

TEST_P(DeltaSize, MadeDeltaIsPublishedOnlyWhenItSavesATenth)
{
    PublisherFolder const folder;
    PutVersionsThatShareNothing(folder, GetParam().archiveIsLargerBy);
    folder.Remove("given.delta");
    ToolRun const run = folder.Generate({});
    EXPECT_EQ(run.status, 0) << run.err;
    EXPECT_EQ(folder.Items()[0].deltas.size(), GetParam().deltas);
    EXPECT_EQ(run.err.find("not published: saves less than a tenth of the whole archive") != std::string::npos,
              GetParam().deltas == 0)
        << run.err;
    EXPECT_EQ(QFile::exists(folder.PathOf("Test-1.0-2.0.delta")), GetParam().deltas == 1);
}

TEST(Generate, GivenDeltaThatIsLeftOutIsNotMadeAgain)
{
    PublisherFolder const folder;
    PutVersionsThatShareNothing(folder, -1);
    folder.Put("Test-1.0-2.0.delta", folder.ContentOf("given.delta")); // the name of a delta that is made
    folder.Remove("given.delta");
    ToolRun const run = folder.Generate();
    EXPECT_EQ(run.status, 0) << run.err;
    EXPECT_NE(run.err.find("Test-1.0-2.0.delta: ignored: saves less than a tenth"), std::string::npos) << run.err;
    EXPECT_TRUE(folder.Items()[0].deltas.empty());
}

INSTANTIATE_TEST_SUITE_P(Rows, DeltaSize,
                         ::testing::Values(SizeRow{"SavesLess", -1, 0}, SizeRow{"SavesATenth", 0, 1},
                                           SizeRow{"SavesMore", 500, 1}),
                         [](auto const& row) { return std::string(row.param.name); });

TEST(Generate, DeltaThatMakesAnotherBundleIsRefused)
{
    PublisherFolder const folder;
    BundleText other;
    other.version = "2.0";
    other.displayVersion = "another build";
    folder.PutVersion("1.0");
    folder.Put("other.zip", MakeArchive(Container::Zip, MakePublishedBundle(other)));
    ASSERT_EQ(MakeGivenDelta(folder, "Test-1.0.zip", "other.zip").status, 0);
    folder.Remove("other.zip");
    folder.PutVersion("2.0");
    ToolRun const run = folder.Generate();
    EXPECT_EQ(run.status, 1);
    EXPECT_NE(run.err.find("given.delta: does not make the bundle in the archive of that version"), std::string::npos)
        << run.err;
    EXPECT_FALSE(QFile::exists(folder.PathOf("appcast.xml")));
}

TEST(Generate, DeltaThatCannotBeReadIsNamedAsDispensable)
{
    std::string const name = "Test-1.0-2.0.delta";
    std::string const mend = ", or remove it: generate makes the delta again if it is needed";
    std::map<std::string, std::function<void(std::string const&)>> const accidents{
        {"cannot be read: Permission denied; check the name and the file's permissions" + mend,
         [](std::string const& path)
         {
             Testing::WriteFile(path, "any");
             std::filesystem::permissions(path, std::filesystem::perms::none);
         }},
        {"is not a delta in a known format; make one with \"delta create\"" + mend,
         [](std::string const& path) { Testing::WriteFile(path, ""); }},
        {"is a link, which a web server may not follow; put the file itself into the folder" + mend,
         [](std::string const& path) { std::filesystem::create_symlink("/nowhere", path); }},
        {"exists already; remove it", [](std::string const& path) { std::filesystem::create_directory(path); }},
    };
    for (auto const& [told, put] : accidents)
    {
        PublisherFolder const folder;
        folder.PutVersion("1.0");
        folder.PutVersion("2.0");
        std::string const path = folder.Path() + '/' + name;
        put(path);
        ToolRun const run = folder.GenerateAsOrdinaryUser();
        EXPECT_NE(run.status, 0);
        EXPECT_EQ(run.err, "error: " + path + ": " + told + '\n');
        std::filesystem::remove(path);
        folder.GeneratedFeed();
        EXPECT_EQ(folder.Items()[0].deltas.size(), 1u);
    }
}

TEST(Generate, DeltaWithoutItsBaseOrItemIsLeftOutAndReported)
{
    PublisherFolder const folder;
    folder.PutVersion("1.0");
    folder.PutVersion("2.0");
    ASSERT_EQ(MakeGivenDelta(folder, "Test-1.0.zip", "Test-2.0.zip").status, 0);
    folder.Remove("Test-1.0.zip");
    ToolRun const withoutBase = folder.Generate();
    EXPECT_EQ(withoutBase.status, 0) << withoutBase.err;
    EXPECT_NE(withoutBase.err.find("given.delta: ignored: starts from version 1.0"), std::string::npos)
        << withoutBase.err;
    EXPECT_TRUE(folder.Items()[0].deltas.empty());
    EXPECT_NE(folder.Generate().err.find("given.delta: ignored: makes version 2.0"), std::string::npos);
}

} // namespace
} // namespace Pelnar::Testing
