// DeltaVerbTest.cpp: the verb "delta".

#include "Engine/core/archive/TreeManifest.h"
#include "tests/installer/EvilArchives.h"
#include "tests/installer/InstallerFixture.h"
#include "tests/publisher/support/AppcastTool.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QJsonArray>
#include <QJsonObject>

#include <algorithm>

#include <fcntl.h>
#include <sys/stat.h>

namespace Pelnar::Testing
{
namespace
{

/// A bundle of that version with one unchanged file, one that changes a little and one that is new.
std::vector<ForgedEntry> MakeGrowingBundle(std::string const& version)
{
    std::vector<ForgedEntry> entries = MakeBundle(version);
    std::string data(20000, 'd');
    for (std::size_t i = 0; i < data.size(); ++i)
    {
        data[i] = static_cast<char>(i * i >> 3 & 0x7f);
    }
    entries.push_back({std::string(APP) + "/Resources/kept", 'f', data});
    entries.push_back({std::string(APP) + "/Resources/grown", 'f', data + "version " + version + data});
    entries.push_back({std::string(APP) + "/Resources/only-" + version, 'f', "new in " + version});
    return entries;
}

class DeltaVerb : public ::testing::Test
{
protected:
    DeltaVerb()
    {
        Put("old.zip", MakeArchive(Container::Zip, MakeGrowingBundle("1.0")));
        Put("new.tar.xz", MakeArchive(Container::TarXz, MakeGrowingBundle("2.0")));
    }
    QString PathOf(std::string const& name) const { return QString::fromStdString(m_folder.Path() + '/' + name); }
    void Put(std::string const& name, std::string const& bytes) const
    {
        WriteFile(m_folder.Path() + '/' + name, bytes);
    }
    std::vector<std::string> Names() const { return m_folder.Names(); }
    ToolRun Create(std::string const& before, std::string const& after, QStringList const& more = {}) const
    {
        return RunTool(QStringList{QStringLiteral("delta"), QStringLiteral("create"), PathOf(before), PathOf(after),
                                   QStringLiteral("-o"), PathOf("d.delta")} +
                       more);
    }
    ToolRun Apply(std::string const& before, std::string const& output) const
    {
        return RunTool({QStringLiteral("delta"), QStringLiteral("apply"), PathOf("d.delta"), PathOf(before),
                        QStringLiteral("-o"), PathOf(output)});
    }
    ToolRun Show(QStringList const& more = {}) const
    {
        return RunTool(QStringList{QStringLiteral("delta"), QStringLiteral("show"), PathOf("d.delta")} + more);
    }
    std::string ContentOf(std::string const& name) const
    {
        QFile file(PathOf(name));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name;
        return file.readAll().toStdString();
    }
    Engine::ContentHash TreeOf(std::string const& name) const
    {
        Engine::UniqueFd const folder(::open(PathOf(name).toStdString().c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
        return Engine::DigestTree(folder.Get());
    }
    Workspace const& Folder() const { return m_folder; }

private:
    Workspace m_folder;
};

TEST_F(DeltaVerb, CreatedDeltaMakesTheNewBundleOfTheOldOne)
{
    ToolRun const created = Create("old.zip", "new.tar.xz");
    ASSERT_EQ(created.status, 0) << created.err;
    EXPECT_NE(created.out.find("1.0 to 2.0"), std::string::npos) << created.out;
    ToolRun const applied = Apply("old.zip", "made.app");
    ASSERT_EQ(applied.status, 0) << applied.err;
    Folder().Put({{"reference", 'd', {}, 0755}});
    Folder().Put(MakeGrowingBundle("2.0"), "reference/");
    EXPECT_EQ(TreeOf("made.app"), TreeOf(std::string("reference/") + APP));
    EXPECT_EQ(Folder().StartedVersion("made.app"), "2.0");
}

TEST_F(DeltaVerb, FoldersServeAsWellAsArchives)
{
    ASSERT_EQ(Create("old.zip", "new.tar.xz").status, 0);
    std::string const fromArchives = ContentOf("d.delta");
    ASSERT_TRUE(QFile::remove(PathOf("d.delta")));
    Folder().Put({{"old", 'd', {}, 0755}, {"new", 'd', {}, 0755}});
    Folder().Put(MakeGrowingBundle("1.0"), "old/");
    Folder().Put(MakeGrowingBundle("2.0"), "new/");
    ASSERT_EQ(Create(std::string("old/") + APP, std::string("new/") + APP).status, 0);
    EXPECT_EQ(ContentOf("d.delta"), fromArchives);
}

TEST_F(DeltaVerb, TreesThatNoArchiveMayHoldAreRefusedFromADeltaAndInOne)
{
    for (Evil const& evil : EvilTrees())
    {
        SCOPED_TRACE(evil.name);
        Put("d.delta", MakeEvilDelta(evil));
        ToolRun const applied = Apply("old.zip", "made.app");
        EXPECT_EQ(applied.status, 2) << applied.err;
        EXPECT_EQ(std::count(applied.err.begin(), applied.err.end(), '\n'), 1) << applied.err;
        EXPECT_EQ(Show().status, 2);
        std::vector<std::string> const names = Names();
        EXPECT_EQ(std::count(names.begin(), names.end(), "made.app"), 0);
    }
    Folder().Put({{"new", 'd', {}, 0755}});
    Folder().Put(MakeGrowingBundle("2.0"), "new/");
    Folder().Put({{"x", 'f', "x"}, {"X", 'f', "x"}}, std::string("new/") + APP + '/');
    ASSERT_TRUE(QFile::remove(PathOf("d.delta")));
    ToolRun const created = Create("old.zip", std::string("new/") + APP);
    EXPECT_EQ(created.status, 2);
    EXPECT_NE(created.err.find("/x: two entries differ only in case"), std::string::npos) << created.err;
    EXPECT_FALSE(QFile::exists(PathOf("d.delta")));
}

TEST_F(DeltaVerb, ShowTellsWhatIsKeptPatchedAndWhole)
{
    ASSERT_EQ(Create("old.zip", "new.tar.xz").status, 0);
    QJsonObject const json = Show({QStringLiteral("--json")}).Json();
    EXPECT_EQ(json[QStringLiteral("baseVersion")].toString(), QStringLiteral("1.0"));
    EXPECT_EQ(json[QStringLiteral("targetVersion")].toString(), QStringLiteral("2.0"));
    EXPECT_EQ(json[QStringLiteral("size")].toInt(), int(ContentOf("d.delta").size()));
    QMap<QString, QString> kinds;
    for (QJsonValue const& entry : json[QStringLiteral("entries")].toArray())
    {
        kinds.insert(entry.toObject()[QStringLiteral("path")].toString(),
                     entry.toObject()[QStringLiteral("kind")].toString());
    }
    EXPECT_EQ(kinds.value(QStringLiteral("Resources")), QStringLiteral("folder"));
    EXPECT_EQ(kinds.value(QStringLiteral("Resources/kept")), QStringLiteral("kept"));
    EXPECT_EQ(kinds.value(QStringLiteral("Resources/grown")), QStringLiteral("patched"));
    EXPECT_EQ(kinds.value(QStringLiteral("Resources/only-2.0")), QStringLiteral("whole"));
    EXPECT_FALSE(kinds.contains(QStringLiteral("Resources/only-1.0")));
    std::string const text = Show().out;
    EXPECT_NE(text.find("1.0 to 2.0"), std::string::npos) << text;
    EXPECT_NE(text.find("Resources/kept"), std::string::npos) << text;
    EXPECT_NE(text.find("kept     1 file"), std::string::npos) << text;
}

TEST_F(DeltaVerb, KeySignsTheDelta)
{
    Put("key", Base64(std::string(32, '\7')));
    ASSERT_EQ(::chmod(PathOf("key").toStdString().c_str(), 0600), 0);
    ToolRun const run = Create("old.zip", "new.tar.xz", {QStringLiteral("--key"), PathOf("key")});
    ASSERT_EQ(run.status, 0) << run.err;
    std::string const signature = Base64(Sign(ContentOf("d.delta"), MakeKeyPair(7)));
    EXPECT_NE(run.out.find("sparkle:deltaFrom=\"1.0\" sparkle:edSignature=\"" + signature + "\" length=\""),
              std::string::npos)
        << run.out;
}

TEST_F(DeltaVerb, ProgramOfThePublishersSignsTheDelta)
{
    Put("key", Base64(std::string(32, '\7')));
    ASSERT_EQ(::chmod(PathOf("key").toStdString().c_str(), 0600), 0);
    Put("sign.sh", "cat > \"$0.in\"\n'" + AppcastProgram().toStdString() + "' sign \"$0.in\" --key '" +
                       PathOf("key").toStdString() + "' | cut -d '\"' -f 2\n");
    QStringList const program{QStringLiteral("--signer"), QStringLiteral("/bin/sh \"%1\"").arg(PathOf("sign.sh"))};
    EXPECT_NE(Create("old.zip", "new.tar.xz", program).err.find("is required with --signer"), std::string::npos);
    EXPECT_FALSE(QFile::exists(PathOf("d.delta")));
    ToolRun const run =
        Create("old.zip", "new.tar.xz",
               program + QStringList{QStringLiteral("--signer-key"), QString::fromStdString(MakeKeyPair(7).publicKey)});
    ASSERT_EQ(run.status, 0) << run.err;
    std::string const signature = Base64(Sign(ContentOf("d.delta"), MakeKeyPair(7)));
    EXPECT_NE(run.out.find("sparkle:edSignature=\"" + signature), std::string::npos) << run.out;
}

TEST_F(DeltaVerb, NothingIsMadeOfBundlesThatDoNotBelongTogether)
{
    auto otherProduct = MakeBundle("2.0");
    for (ForgedEntry& entry : otherProduct)
    {
        if (entry.path == std::string(APP) + "/Resources/Info-gnustep.plist")
        {
            entry.content = InformationText("2.0", "org.pelnar.other");
        }
    }
    std::string const whole = MakeArchive(Container::TarXz, MakeGrowingBundle("2.0"));
    Put("other.zip", MakeArchive(Container::Zip, otherProduct));
    Put("same.zip", MakeArchive(Container::Zip, MakeBundle("1.0")));
    Put("cut.tar.xz", whole.substr(0, whole.size() / 2));
    Put("text.zip", "no archive");
    struct Row
    {
        char const* after;
        char const* said;
    };
    Row const rows[] = {{"other.zip", "two products"},
                        {"same.zip", "both bundles have the version 1.0"},
                        {"cut.tar.xz", "cut.tar.xz: is damaged or ends early"},
                        {"text.zip", "text.zip: is not a zip, or a tar"},
                        {"absent.zip", "absent.zip: cannot be read"}};
    std::vector<std::string> const before = Names();
    for (Row const& row : rows)
    {
        ToolRun const run = Create("old.zip", row.after);
        EXPECT_EQ(run.status, 2) << row.after;
        EXPECT_NE(run.err.find(row.said), std::string::npos) << run.err;
        EXPECT_EQ(Names(), before) << row.after;
    }
}

TEST_F(DeltaVerb, FilesThatAreThereStay)
{
    Put("d.delta", "mine");
    ToolRun const run = Create("old.zip", "new.tar.xz");
    EXPECT_EQ(run.status, 2);
    EXPECT_NE(run.err.find("exists already"), std::string::npos) << run.err;
    EXPECT_EQ(ContentOf("d.delta"), "mine");
}

TEST_F(DeltaVerb, AFailedApplicationLeavesNothing)
{
    ASSERT_EQ(Create("old.zip", "new.tar.xz").status, 0);
    std::vector<std::string> const before = Names();
    ToolRun const wrongBase = Apply("new.tar.xz", "made.app");
    EXPECT_EQ(wrongBase.status, 2);
    EXPECT_NE(wrongBase.err.find("the old version is not the one that the delta starts from"), std::string::npos)
        << wrongBase.err;
    EXPECT_EQ(Names(), before);

    std::string const delta = ContentOf("d.delta");
    for (std::size_t const length : {std::size_t{0}, std::size_t{7}, std::size_t{40}, delta.size() - 1})
    {
        Put("d.delta", delta.substr(0, length));
        EXPECT_EQ(Apply("old.zip", "made.app").status, 2) << length;
        EXPECT_EQ(Show().status, 2) << length;
        EXPECT_EQ(Names(), before) << length;
    }
    Put("d.delta", delta);
    EXPECT_EQ(Apply("old.zip", "old.zip").status, 2);
    EXPECT_EQ(Apply("old.zip", "no/such/made.app").status, 2);
    EXPECT_EQ(Names(), before);
}

} // namespace
} // namespace Pelnar::Testing
