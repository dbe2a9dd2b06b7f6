// ArchiveNamesTest.cpp: names beyond ASCII in the archives of every packer. The helper has no locale and is confined;
// the publisher's tool uses the locale of its user. Both must make the same tree.

#include "Engine/core/archive/TreeManifest.h"
#include "Engine/core/bundle/PayloadKind.h"
#include "Publisher/files/BundleTree.h"
#include "tests/archives/Packers.h"
#include "tests/installer/InstallerFixture.h"
#include "tests/publisher/support/AppcastTool.h"
#include "tests/support/JapaneseLocale.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>

#include <fcntl.h>
#include <sys/stat.h>

namespace
{

using namespace Pelnar::Engine;
using namespace Pelnar::Testing;
namespace fs = std::filesystem;

constexpr char NEW_APP[] = u8"Größe \u304c \u0439.app";

/// A bundle with names in many scripts, with composed and with separate accents.
std::vector<ForgedEntry> BundleOfNames(PackedLongNames longNames)
{
    std::string const app = NEW_APP;
    std::vector<ForgedEntry> entries = MakeBundle("2.0", app);
    for (char const* const name : {
             u8"latin \u00e9t\u00e9", u8"latin apart e\u0301tude",             // é
             u8"\u304c\u304e", u8"\u304b\u3099\u3051\u3099",                   // kana
             u8"\ud55c\uae00", u8"\u1112\u1161\u11ab\u1100\u1173\u11af 2",     // hangul
             u8"\u0439\u0451", u8"\u0438\u0306\u0435\u0308 2",                 // cyrillic
             u8"\u03ac\u03ad", u8"\u03b1\u0301\u03b5\u0301 2",                 // greek
             u8"\u05e9\u05dc\u05d5\u05dd", u8"\ufb2a", u8"\u0e44\u0e17\u0e22", // hebrew, thai
             u8"\U0001f600", u8"\u212b ngstr\u00f6m",                          // beyond 16 bits; changed by composing
         })
    {
        entries.push_back({app + '/' + name, 'f', name});
    }
    entries.push_back({app + u8"/\u043f\u0430\u043f\u043a\u0430", 'd', {}, 0755});
    entries.push_back({app + u8"/\u043f\u0430\u043f\u043a\u0430/\u304b\u3099", 'f', "deep"});
    entries.push_back({app + u8"/zu \u304b\u3099", 'l', u8"\u043f\u0430\u043f\u043a\u0430/\u304b\u3099", 0777});
    entries.push_back({app + u8"/to run", 'l', "run", 0777});
    if (longNames == PackedLongNames::Kept)
    {
        std::string name;
        for (int i = 0; i < 30; ++i)
        {
            name += u8"\u304b\u3099";
        }
        entries.push_back({app + '/' + name, 'f', "long"});
        entries.push_back({app + u8"/long", 'l', name, 0777});
    }
    return entries;
}

ContentHash DigestOf(std::string const& path)
{
    return DigestTree(UniqueFd(::open(path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)).Get());
}

struct Verdict
{
    UpdateFault fault = UpdateFault::None;
    ContentHash digest{};
    std::vector<std::string> names;
};

bool operator==(Verdict const& a, Verdict const& b)
{
    return a.fault == b.fault && a.digest == b.digest && a.names == b.names;
}

Verdict VerdictOfHelper(std::string const& archive, PayloadKind kind = PayloadKind::WholeBundle)
{
    UpdateScene scene(archive);
    PrepareJob job = scene.MakePrepareJob();
    job.kind = kind;
    HelperOutcome const outcome = scene.Prepare(job);
    EXPECT_EQ(outcome.signal, 0);
    auto const* prepared = outcome.Find<PreparedReport>();
    if (!prepared)
    {
        return {outcome.Fault(), {}, {}};
    }
    return {outcome.Fault(), prepared->digest, scene.Place().Names(scene.StagingName() + '/' + prepared->stagedName)};
}

Verdict VerdictOfPublisher(std::string const& archive)
{
    Workspace const place;
    WriteFile(place.Path() + "/update", archive);
    try
    {
        auto const file = Pelnar::Publisher::OpenInputFile(QString::fromStdString(place.Path() + "/update"));
        auto const bundle = Pelnar::Publisher::BundleTree::Unpack(file, [](std::uint64_t, std::uint64_t) {});
        Workspace const here;
        fs::copy(bundle.Path(), here.Path() + "/copy", fs::copy_options::recursive | fs::copy_options::copy_symlinks);
        return {UpdateFault::None, DigestTree(bundle.Descriptor()), here.Names("copy")};
    }
    catch (std::exception const&)
    {
        return {UpdateFault::ContainerDamaged, {}, {}};
    }
}

struct Surroundings
{
    char const* name;
    std::vector<std::string> variables;
};

std::vector<Surroundings> Locales()
{
    std::vector<Surroundings> locales{
        {"None", {}}, {"C", {"LC_ALL=C"}}, {"POSIX", {"LANG=POSIX"}}, {"Utf8", {"LC_ALL=C.UTF-8"}}};
    if (std::vector<std::string> const variables = JapaneseVariables(); !variables.empty())
    {
        locales.push_back({"Japanese", variables});
    }
    return locales;
}

QProcessEnvironment EnvironmentWith(Surroundings const& surroundings)
{
    QProcessEnvironment environment;
    environment.insert(QStringLiteral("SOURCE_DATE_EPOCH"), QStringLiteral("1767268800"));
    // The leak checker's suppressions for the C library.
    environment.insert(QStringLiteral("LSAN_OPTIONS"), qEnvironmentVariable("LSAN_OPTIONS"));
    for (std::string const& variable : surroundings.variables)
    {
        std::size_t const equals = variable.find('=');
        environment.insert(QString::fromStdString(variable.substr(0, equals)),
                           QString::fromStdString(variable.substr(equals + 1)));
    }
    return environment;
}

/// The delta from 1.0 to the bundle in \a archive that the publisher's program makes in this environment.
std::string DeltaMadeIn(Surroundings const& surroundings, std::string const& archive)
{
    Workspace const place;
    fs::create_directory(place.Path() + "/\u00e4 \u304b\u3099");
    std::string const folder = place.Path() + "/\u00e4 \u304b\u3099/";
    place.Put(MakeBundle("1.0"));
    WriteFile(folder + "update", archive);
    ToolRun const run =
        RunAppcastProgram({QStringLiteral("delta"), QStringLiteral("create"),
                           QString::fromStdString(place.Path() + '/' + APP), QString::fromStdString(folder + "update"),
                           QStringLiteral("--output"), QString::fromStdString(folder + "made.delta")},
                          {}, EnvironmentWith(surroundings));
    EXPECT_EQ(run.status, 0) << surroundings.name << ": " << run.err;
    std::ifstream made(folder + "made.delta", std::ios::binary);
    return {std::istreambuf_iterator<char>(made), {}};
}

class PackedNames : public testing::TestWithParam<Packer>
{
protected:
    void SetUp() override
    {
        if (!IsInstalled(GetParam().program))
        {
            GTEST_SKIP() << GetParam().program << " is not installed";
        }
        m_place.Put(BundleOfNames(GetParam().longNames));
    }

    std::string Tree() const { return m_place.Path() + '/' + NEW_APP; }
    std::string Packed(Surroundings const& surroundings, Container container = Container::TarGzip) const
    {
        std::string const bytes = Pack(GetParam(), m_place.Path(), NEW_APP, surroundings.variables);
        return GetParam().isZip ? bytes : Compress(container, bytes);
    }

    Workspace m_place;
};

TEST_P(PackedNames, ComeOutAsTheyWereForTheHelperAndForThePublisher)
{
    Verdict const expected{UpdateFault::None, DigestOf(Tree()), m_place.Names(NEW_APP)};
    for (Surroundings const& surroundings : {Surroundings{"C", {"LC_ALL=C"}}, Surroundings{"Utf8", {"LC_ALL=C.UTF-8"}}})
    {
        SCOPED_TRACE(surroundings.name);
        std::string const archive = Packed(surroundings);
        ASSERT_FALSE(archive.empty());
        EXPECT_TRUE(VerdictOfHelper(archive) == expected) << FaultName(VerdictOfHelper(archive).fault);
        EXPECT_TRUE(VerdictOfPublisher(archive) == expected);
    }
}

TEST_P(PackedNames, OfAForeignLocaleAreJudgedAlike)
{
    std::vector<std::string> const variables = JapaneseVariables();
    if (variables.empty())
    {
        GTEST_SKIP() << "localedef cannot make the locale ja_JP.eucJP here";
    }
    std::string const archive = Packed({"Japanese", variables});
    if (archive.empty() || archive == Compress(Container::TarGzip, {}))
    {
        GTEST_SKIP() << GetParam().program << " packs no names of another encoding";
    }
    Verdict const helper = VerdictOfHelper(archive);
    Verdict const publisher = VerdictOfPublisher(archive);
    EXPECT_EQ(helper.fault == UpdateFault::None, publisher.fault == UpdateFault::None) << FaultName(helper.fault);
    EXPECT_TRUE(helper.digest == publisher.digest);
    EXPECT_EQ(helper.names, publisher.names);
}

TEST_P(PackedNames, GoThroughADeltaFromEveryEnvironment)
{
    std::string const archive = Packed({"Utf8", {"LC_ALL=C.UTF-8"}}, Container::TarXz);
    std::string const delta = DeltaMadeIn(Locales().front(), archive);
    EXPECT_TRUE(DeltaMadeIn(Locales().back(), archive) == delta) << Locales().back().name;
    Verdict const made = VerdictOfHelper(delta, PayloadKind::Delta);
    EXPECT_EQ(made.fault, UpdateFault::None);
    EXPECT_TRUE(made.digest == DigestOf(Tree()));
    EXPECT_EQ(made.names, m_place.Names(NEW_APP));
}

/// The names and bytes of all files that "generate" makes from a folder with two versions, in this environment.
std::map<std::string, std::string> GeneratedIn(Surroundings const& surroundings)
{
    Workspace const place;
    std::string const folder = place.Path() + u8"/\u00e4 \u304b\u3099";
    fs::create_directory(folder);
    WriteFile(place.Path() + "/key", Base64(std::string(32, '\7')));
    EXPECT_EQ(::chmod((place.Path() + "/key").c_str(), 0600), 0);
    for (char const* const version : {"1.0", "2.0"})
    {
        std::string const path = folder + u8"/Gr\u00f6\u00dfe-" + version + ".zip";
        WriteFile(path, MakeZip(MakeBundle(version, NEW_APP)));
        fs::last_write_time(path, fs::file_time_type());
    }
    ToolRun const run =
        RunAppcastProgram({QStringLiteral("generate"), QString::fromStdString(folder), QStringLiteral("--key"),
                           QString::fromStdString(place.Path() + "/key"), QStringLiteral("--url-prefix"),
                           QStringLiteral("https://updates.example.com/test/")},
                          {}, EnvironmentWith(surroundings));
    EXPECT_EQ(run.status, 0) << surroundings.name << ": " << run.err;
    std::map<std::string, std::string> files;
    for (fs::directory_entry const& entry : fs::directory_iterator(folder))
    {
        std::ifstream in(entry.path(), std::ios::binary);
        files[entry.path().filename().string()].assign(std::istreambuf_iterator<char>(in), {});
    }
    return files;
}

TEST(HelperInALocale, InstallsNamesAsTheyAre)
{
    Workspace const source;
    source.Put(BundleOfNames(PackedLongNames::Kept));
    std::vector<ForgedEntry> entries = BundleOfNames(PackedLongNames::Kept);
    for (ForgedEntry& entry : entries)
    {
        entry.isPax = true;
        entry.flags = 0x800;
    }
    for (Container const container : {Container::Zip, Container::TarBzip2})
    {
        for (Surroundings const& surroundings : Locales())
        {
            SCOPED_TRACE(surroundings.name);
            HelperStart const start{{}, surroundings.variables};
            UpdateScene scene(MakeArchive(container, entries));
            HelperOutcome const prepared = scene.Prepare(scene.MakePrepareJob(), start);
            ASSERT_NE(prepared.Find<PreparedReport>(), nullptr) << FaultName(prepared.Fault());
            InstallJob job = scene.MakeInstallJob(prepared.Find<PreparedReport>()->digest);
            job.stagedName = prepared.Find<PreparedReport>()->stagedName;
            scene.Host().End();
            EXPECT_EQ(scene.Install(job, start).exitStatus, 0);
            EXPECT_TRUE(DigestOf(scene.Place().Path() + '/' + APP) == DigestOf(source.Path() + '/' + NEW_APP));
            EXPECT_EQ(scene.Place().Names(APP), source.Names(NEW_APP));
            EXPECT_EQ(scene.Place().StartedVersion(), "2.0");
        }
    }
}

TEST(PublisherInALocale, GeneratesTheSameFeedUnderTheSameNames)
{
    std::map<std::string, std::string> const expected = GeneratedIn({"Utf8", {"LC_ALL=C.UTF-8"}});
    EXPECT_EQ(expected.size(), 4u); // the archives, the feed, a delta
    EXPECT_EQ(expected.count(u8"Gr\u00f6\u00dfe \u304c \u0439-1.0-2.0.delta"), 1u);
    for (Surroundings const& surroundings : Locales())
    {
        EXPECT_TRUE(GeneratedIn(surroundings) == expected) << surroundings.name;
    }
}

TEST(PublisherInALocale, SpeaksItsOwnWords)
{
    for (Surroundings const& surroundings : Locales())
    {
        ToolRun const run =
            RunAppcastProgram({QStringLiteral("delta"), QStringLiteral("show"), QString::fromUtf8(u8"/nowhere/\u304c")},
                              {}, EnvironmentWith(surroundings));
        EXPECT_NE(run.err.find(u8"/nowhere/\u304c: cannot be read: No such file or directory"), std::string::npos)
            << surroundings.name << ": " << run.err;
    }
}

INSTANTIATE_TEST_SUITE_P(Table, PackedNames, testing::ValuesIn(Packers()),
                         [](testing::TestParamInfo<Packer> const& info) { return info.param.name; });

} // namespace
