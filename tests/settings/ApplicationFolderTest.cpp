// ApplicationFolderTest.cpp: which folders are an application's own, and which are refused.
#include "Settings/ApplicationFolder.h"

#include "Engine/core/helper/NoteFile.h"
#include "tests/settings/SettingsFixture.h"

#include <QDir>
#include <QTemporaryDir>

#include <functional>
#include <set>

#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

namespace
{

using namespace Pelnar::Settings;
using Pelnar::Testing::SettingsTest;

class ApplicationFolderPlace : public SettingsTest
{
protected:
    static std::string Config() { return BaseFolderPath(BaseFolder::Config); }

    std::string Home() const { return home.path().toStdString(); }

    static OpenedFolder Open(MissingFolder missing)
    {
        return OpenApplicationFolder(FolderOf(BaseFolder::Config, QStringLiteral("org.example.app")), missing);
    }

    /// The reason why the folder at this path is refused after it was damaged.
    std::string ReasonAfter(std::function<void(char const*)> const& spoil)
    {
        EXPECT_TRUE(Open(MissingFolder::Make).folder);
        spoil(Path(".config/org.example.app").toLocal8Bit().constData());
        OpenedFolder const opened = Open(MissingFolder::Make);
        EXPECT_FALSE(opened.folder);
        return opened.reason;
    }
};

TEST_F(ApplicationFolderPlace, EnvironmentNamesTheBaseFolders)
{
    EXPECT_EQ(BaseFolderPath(BaseFolder::Config), Home() + "/.config");
    EXPECT_EQ(BaseFolderPath(BaseFolder::State), Home() + "/.local/state");
    EXPECT_EQ(BaseFolderPath(BaseFolder::Cache), Home() + "/.cache");
    qputenv("XDG_CONFIG_HOME", "/a/b");
    EXPECT_EQ(Config(), "/a/b");
    for (char const* const relative : {"a/b", "", "~", "./x", "../x"})
    {
        qputenv("XDG_CONFIG_HOME", relative);
        EXPECT_EQ(Config(), Home() + "/.config") << relative;
    }
}

TEST_F(ApplicationFolderPlace, WithoutAHomeThePasswordDatabaseNamesIt)
{
    std::string const known = getpwuid(geteuid())->pw_dir;
    qunsetenv("HOME");
    EXPECT_EQ(Config(), known + "/.config");
    qputenv("HOME", "relative");
    EXPECT_EQ(Config(), known + "/.config");
}

TEST_F(ApplicationFolderPlace, EveryIdentifierIsOneNameOfItsOwn)
{
    EXPECT_EQ(ApplicationFolderName(QStringLiteral("org.example.My-App_2")), "org.example.My-App_2");
    std::set<std::string> names;
    QString const longText(5000, QLatin1Char('a'));
    QStringList const identifiers{QStringLiteral("."),
                                  QStringLiteral(".."),
                                  QStringLiteral("/"),
                                  QStringLiteral("../x"),
                                  QStringLiteral("a/b"),
                                  QStringLiteral("a%2Fb"),
                                  QStringLiteral("a\nb"),
                                  longText,
                                  longText + longText,
                                  QString(QChar(0)),
                                  QStringLiteral(".a"),
                                  QStringLiteral("ä"),
                                  QString(),
                                  QStringLiteral("a b"),
                                  QStringLiteral("a")};
    for (QString const& identifier : identifiers)
    {
        std::string const name = ApplicationFolderName(identifier);
        EXPECT_TRUE(names.insert(name).second) << name;
        EXPECT_FALSE(name.empty() || name.front() == '.') << name;
        EXPECT_EQ(name.find_first_of(std::string("/\n ") + '\0'), std::string::npos) << name;
        EXPECT_LE(name.size(), 200u);
    }
    EXPECT_EQ(ApplicationFolderName({}), "unidentified." + RunningProgramName());
}

TEST_F(ApplicationFolderPlace, MissingFoldersAreMadeForThisUserAlone)
{
    OpenedFolder const absent = Open(MissingFolder::Leave);
    EXPECT_FALSE(absent.folder);
    EXPECT_EQ(absent.errorNumber, ENOENT);
    EXPECT_FALSE(QFileInfo::exists(Path(".config"))) << "reading makes nothing";
    mode_t const mask = ::umask(0);
    EXPECT_TRUE(Open(MissingFolder::Make).folder);
    ::umask(mask);
    for (char const* const path : {".config", ".config/org.example.app"})
    {
        struct stat status;
        ASSERT_EQ(::stat(Path(path).toLocal8Bit().constData(), &status), 0);
        EXPECT_EQ(status.st_mode & 07777, 0700u) << path;
    }
}

TEST_F(ApplicationFolderPlace, WhatIsNoFolderOfThisUsersAloneIsRefused)
{
    EXPECT_NE(ReasonAfter(
                  [this](char const* path)
                  {
                      ASSERT_EQ(::rmdir(path), 0);
                      ASSERT_EQ(::symlink(home.path().toLocal8Bit().constData(), path), 0);
                  })
                  .find("is a link, or not a folder"),
              std::string::npos);
    ASSERT_EQ(::unlink(Path(".config/org.example.app").toLocal8Bit().constData()), 0);
    EXPECT_NE(ReasonAfter([](char const* path) { ASSERT_EQ(::chmod(path, 0777), 0); }).find("by other users"),
              std::string::npos);
}

TEST_F(ApplicationFolderPlace, WhatBelongsToAnotherUserIsRefused)
{
    if (::geteuid() != 0)
    {
        GTEST_SKIP() << "only root can give a folder away";
    }
    constexpr uid_t SOMEBODY = 12345;
    EXPECT_NE(ReasonAfter([](char const* path) { ASSERT_EQ(::chown(path, SOMEBODY, SOMEBODY), 0); })
                  .find("belongs to another"),
              std::string::npos);
    ASSERT_EQ(::rmdir(Path(".config/org.example.app").toLocal8Bit().constData()), 0);
    ASSERT_EQ(::chown(Path(".config").toLocal8Bit().constData(), SOMEBODY, SOMEBODY), 0);
    EXPECT_NE(Open(MissingFolder::Make).reason.find("belongs to another user"), std::string::npos);
    EXPECT_FALSE(QFileInfo::exists(Path(".config/org.example.app"))) << "nothing of root's is left in a person's home";
}

TEST_F(ApplicationFolderPlace, AdministratorMakesNoFolderInThoseOfAPerson)
{
    if (::geteuid() != 0)
    {
        GTEST_SKIP() << "only root can give a folder away";
    }
    QTemporaryDir const folder;
    std::string const path = folder.path().toStdString();
    ASSERT_EQ(::chown(path.c_str(), 12345, 12345), 0);
    Pelnar::Engine::MakeFoldersAbove(path + "/.cache/app");
    EXPECT_FALSE(Pelnar::Engine::OpenPrivateFolder(path + "/.local/state/app/updates"));
    EXPECT_TRUE(QDir(folder.path()).isEmpty());
}

TEST_F(ApplicationFolderPlace, AdministratorFollowsNoLinkOfAPerson)
{
    if (::geteuid() != 0)
    {
        GTEST_SKIP() << "only root can give a link away";
    }
    QTemporaryDir const place;
    QTemporaryDir const other;
    std::string const link = place.path().toStdString() + "/app";
    ASSERT_EQ(::symlink(other.path().toLocal8Bit().constData(), link.c_str()), 0);
    EXPECT_TRUE(Pelnar::Engine::OpenPrivateFolder(link + "/own")) << "a link of the administrator";
    ASSERT_EQ(::lchown(link.c_str(), 12345, 12345), 0);
    EXPECT_FALSE(Pelnar::Engine::OpenPrivateFolder(link + "/updates"));
    Pelnar::Engine::MakeFoldersAbove(link + "/above/file");
    EXPECT_EQ(QDir(other.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
              QStringList{QStringLiteral("own")});
}

} // namespace
