// KeysTest.cpp: the verb "keys": a private key is made, read, shown and exported. Some files are refused as its place.

#include "Publisher/Verb.h"
#include "Publisher/keys/SigningKey.h"
#include "tests/installer/InstallerFixture.h"
#include "tests/publisher/support/AppcastTool.h"

#include <gtest/gtest.h>

#include <QFile>

#include <sstream>

#include <sys/stat.h>
#include <unistd.h>

namespace Pelnar::Testing
{
namespace
{

class Keys : public ::testing::Test
{
protected:
    QString PathOf(char const* name) const
    {
        return QString::fromStdString(m_folder.Path()) + QLatin1Char('/') + QLatin1String(name);
    }
    /// A file of \a mode that holds \a text.
    QString Put(char const* name, QByteArray const& text, mode_t mode = 0600) const
    {
        QString const path = PathOf(name);
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        EXPECT_EQ(file.write(text), text.size());
        file.close();
        EXPECT_EQ(::chmod(QFile::encodeName(path).constData(), mode), 0);
        return path;
    }
    static QByteArray ContentOf(QString const& path)
    {
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }
    static ToolRun Show(QString const& path, char const* form = "bare")
    {
        return RunTool(
            {QStringLiteral("keys"), QStringLiteral("show"), path, QStringLiteral("--format"), QLatin1String(form)});
    }
    /// The seed whose 32 bytes are 7, as in a file, and its public key.
    QByteArray const m_seed = QByteArray::fromStdString(Base64(std::string(32, '\7')));
    KeyPair const m_pair = MakeKeyPair(7);

private:
    Workspace m_folder;
};

TEST_F(Keys, GenerateMakesAFileForItsOwnerOnlyUnderEveryMask)
{
    mode_t const previous = ::umask(0);
    ToolRun const run = RunTool({QStringLiteral("keys"), QStringLiteral("generate"), PathOf("key")});
    ::umask(previous);
    ASSERT_EQ(run.status, 0) << run.err;
    struct stat status;
    ASSERT_EQ(::stat(QFile::encodeName(PathOf("key")).constData(), &status), 0);
    EXPECT_EQ(status.st_mode & 07777u, 0600u);
    EXPECT_EQ(ContentOf(PathOf("key")).size(), 45);
    EXPECT_EQ(run.out.find("<key>SUPublicEDKey</key>\n<string>"), 0u) << run.out;
    EXPECT_EQ(run.out, Show(PathOf("key"), "xml").out);
    EXPECT_EQ(run.out.find(ContentOf(PathOf("key")).trimmed().toStdString()), std::string::npos);
}

TEST_F(Keys, GenerateMakesAnotherKeyEachTime)
{
    RunTool({QStringLiteral("keys"), QStringLiteral("generate"), PathOf("one")});
    RunTool({QStringLiteral("keys"), QStringLiteral("generate"), PathOf("two")});
    EXPECT_NE(ContentOf(PathOf("one")), ContentOf(PathOf("two")));
}

TEST_F(Keys, GenerateNeverOverwritesAndFollowsNoLink)
{
    QString const old = Put("key", "precious");
    ASSERT_EQ(::symlink("elsewhere", QFile::encodeName(PathOf("link")).constData()), 0);
    for (QString const& path : {old, PathOf("link")})
    {
        ToolRun const run = RunTool({QStringLiteral("keys"), QStringLiteral("generate"), path});
        EXPECT_EQ(run.status, 2);
        EXPECT_EQ(run.out, "");
        EXPECT_NE(run.err.find("exists already"), std::string::npos) << run.err;
    }
    EXPECT_EQ(ContentOf(old), "precious");
    EXPECT_FALSE(QFile::exists(PathOf("elsewhere")));
}

TEST_F(Keys, ShowReadsBothFormsAndPrintsEveryEntry)
{
    QByteArray const both = QByteArray::fromStdString(
        Base64(std::string(reinterpret_cast<char const*>(m_pair.secret.data()), m_pair.secret.size())));
    for (QByteArray const& text : {m_seed, m_seed + '\n', m_seed + "\r\n", both, both + '\n'})
    {
        ToolRun const run = Show(Put("key", text));
        EXPECT_EQ(run.status, 0) << run.err;
        EXPECT_EQ(run.out, m_pair.publicKey + '\n');
    }
    QString const path = Put("key", m_seed);
    EXPECT_EQ(Show(path, "xml").out, "<key>SUPublicEDKey</key>\n<string>" + m_pair.publicKey + "</string>\n");
    EXPECT_EQ(Show(path, "gnustep").out, "SUPublicEDKey = \"" + m_pair.publicKey + "\";\n");
}

TEST_F(Keys, KeyComesFromStandardInputAsWell)
{
    ToolRun const run = RunAppcastProgram({QStringLiteral("keys"), QStringLiteral("show"), QStringLiteral("-"),
                                           QStringLiteral("--format"), QStringLiteral("bare")},
                                          m_seed + '\n');
    EXPECT_EQ(run.status, 0) << run.err;
    EXPECT_EQ(run.out, m_pair.publicKey + '\n');
}

TEST_F(Keys, FileThatOthersMayReadIsRefused)
{
    for (mode_t const mode : {0640, 0604, 0660, 0602, 0610, 0601, 0644, 0777})
    {
        ToolRun const run = Show(Put("key", m_seed, mode));
        EXPECT_EQ(run.status, 2) << mode;
        EXPECT_EQ(run.out, "");
        EXPECT_NE(run.err.find("other users may read this private key"), std::string::npos) << run.err;
        EXPECT_NE(run.err.find("chmod 600"), std::string::npos) << run.err;
    }
    EXPECT_EQ(Show(Put("key", m_seed, 0400)).status, 0);
}

TEST_F(Keys, LinksFoldersPipesAndFilesOfOthersAreRefused)
{
    Put("real", m_seed);
    ASSERT_EQ(::symlink("real", QFile::encodeName(PathOf("link")).constData()), 0);
    ASSERT_EQ(::mkfifo(QFile::encodeName(PathOf("pipe")).constData(), 0600), 0);
    struct Row
    {
        QString path;
        char const* said;
    };
    Row const rows[] = {
        {PathOf("link"), "is a link"},
        {PathOf("pipe"), "is not a plain file"},
        {PathOf(""), "is not a plain file"},
        {PathOf("absent"), "cannot be read: No such file"},
    };
    for (Row const& row : rows)
    {
        ToolRun const run = Show(row.path);
        EXPECT_EQ(run.status, 2);
        EXPECT_NE(run.err.find(row.said), std::string::npos) << run.err;
    }
}

TEST_F(Keys, FileOfAnotherUserIsRefused)
{
    QString const path = Put("key", m_seed);
    if (::chown(QFile::encodeName(path).constData(), 65534, 65534) != 0)
    {
        GTEST_SKIP() << "only root can give files away";
    }
    ToolRun const run = Show(path);
    EXPECT_EQ(run.status, 2);
    EXPECT_NE(run.err.find("belongs to another user"), std::string::npos) << run.err;
}

TEST_F(Keys, TextThatIsNoKeyIsRefusedWithoutBeingShown)
{
    QByteArray const mixed = QByteArray::fromStdString(
        Base64(std::string(32, '\7') + std::string(m_pair.point.begin(), m_pair.point.end() - 1) + '\1'));
    for (QByteArray const& text :
         {QByteArray(), QByteArray("secret words"), m_seed.left(43), m_seed + m_seed, QByteArray("AAAA"), mixed,
          QByteArray(m_seed).replace('=', '-'), QByteArray(300, 'A'), QByteArray("\0\0\0\0", 4)})
    {
        ToolRun const run = Show(Put("key", text));
        EXPECT_EQ(run.status, 2) << text.constData();
        EXPECT_EQ(run.out, "");
        EXPECT_TRUE(text.size() < 10 || run.err.find(text.toStdString()) == std::string::npos) << run.err;
    }
}

TEST_F(Keys, KeyAsAnArgumentIsRefusedWithoutBeingRepeated)
{
    ToolRun const run = Show(QString::fromLatin1(m_seed));
    EXPECT_EQ(run.status, 2);
    EXPECT_NE(run.err.find("must not be an argument"), std::string::npos) << run.err;
    EXPECT_EQ(run.err.find(m_seed.toStdString()), std::string::npos);
}

TEST_F(Keys, ExportGivesAFormThatIsReadAgain)
{
    QString const path = Put("key", m_seed);
    ToolRun const seed = RunTool({QStringLiteral("keys"), QStringLiteral("export"), path});
    EXPECT_EQ(seed.out, m_seed.toStdString() + '\n');
    ToolRun const both = RunTool({QStringLiteral("keys"), QStringLiteral("export"), path, QStringLiteral("--form"),
                                  QStringLiteral("secret-key")});
    EXPECT_EQ(both.out,
              Base64(std::string(reinterpret_cast<char const*>(m_pair.secret.data()), m_pair.secret.size())) + '\n');
    EXPECT_EQ(Show(Put("again", QByteArray::fromStdString(both.out))).out, m_pair.publicKey + '\n');
}

TEST_F(Keys, ExportToATerminalOnlyOnDemand)
{
    std::string const path = Put("key", m_seed).toStdString();
    auto const exportTo = [](bool isTerminal, std::vector<std::string> const& arguments, std::string& printed)
    {
        std::istringstream in;
        std::ostringstream out;
        std::ostringstream err;
        Publisher::Console console{in, {out, isTerminal}, {err}};
        Publisher::ExitStatus const status = Publisher::RunProgram(arguments, console);
        printed = out.str();
        return status;
    };
    std::string printed;
    EXPECT_EQ(exportTo(true, {"keys", "export", path}, printed), Publisher::ExitStatus::Unusable);
    EXPECT_EQ(printed, "");
    EXPECT_EQ(exportTo(true, {"keys", "export", path, "--to-terminal"}, printed), Publisher::ExitStatus::Clean);
    EXPECT_EQ(printed, m_seed.toStdString() + '\n');
    EXPECT_EQ(exportTo(false, {"keys", "export", path}, printed), Publisher::ExitStatus::Clean);
    EXPECT_EQ(printed, m_seed.toStdString() + '\n');
}

} // namespace
} // namespace Pelnar::Testing
