// SignerTest.cpp: "--signer": a program of the publisher makes the signature, and the tool checks it.

#include "tests/installer/InstallerFixture.h"
#include "tests/publisher/support/AppcastTool.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QFileInfo>

#include <signal.h>

namespace Pelnar::Testing
{
namespace
{

class ProgramThatSigns : public ::testing::Test
{
protected:
    QString PathOf(std::string const& name) const { return QString::fromStdString(m_folder.Path() + '/' + name); }

    QString Put(std::string const& name, std::string const& bytes) const
    {
        WriteFile(m_folder.Path() + '/' + name, bytes);
        return PathOf(name);
    }

    std::string ContentOf(std::string const& name) const
    {
        QFile file(PathOf(name));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll().toStdString();
    }

    /// Signs the archive with a shell script.
    ToolRun SignBy(std::string const& script, std::uint8_t keySeed = 7) const
    {
        return RunTool({QStringLiteral("sign"), Put("a.zip", m_archive), QStringLiteral("--signer"),
                        QStringLiteral("/bin/sh \"%1\"").arg(Put("a script.sh", script)),
                        QStringLiteral("--signer-key"), QString::fromStdString(MakeKeyPair(keySeed).publicKey)});
    }

    void ExpectRefused(std::string const& script, std::string const& reason) const
    {
        ToolRun const run = SignBy(script);
        EXPECT_EQ(run.status, 2) << script;
        EXPECT_EQ(run.out, "") << script;
        EXPECT_NE(run.err.find(reason), std::string::npos) << run.err;
    }

    std::string const m_archive = std::string("an archive\0 with any bytes\n", 27);
    std::string const m_signature = Base64(Sign(m_archive, MakeKeyPair(7)));

private:
    Workspace m_folder;
};

} // namespace

TEST_F(ProgramThatSigns, ReadsTheArchiveAndWritesTheSignature)
{
    std::string const seen = PathOf("seen").toStdString();
    ToolRun const run = SignBy("cat > '" + seen + "'\necho a word to the person >&2\necho '" + m_signature + "'\n");
    EXPECT_EQ(run.status, 0) << run.err;
    EXPECT_EQ(run.out, "sparkle:edSignature=\"" + m_signature + "\" length=\"27\"\n");
    EXPECT_EQ(ContentOf("seen"), m_archive);
}

TEST_F(ProgramThatSigns, MayWriteTheBytesThemselves)
{
    ToolRun const run = SignBy("printf %s '" + m_signature + "' | base64 -d\n");
    EXPECT_EQ(run.status, 0) << run.err;
    EXPECT_EQ(run.out, "sparkle:edSignature=\"" + m_signature + "\" length=\"27\"\n");
}

TEST_F(ProgramThatSigns, MayLeaveTheArchiveUnread)
{
    EXPECT_EQ(SignBy("exec <&-\necho '" + m_signature + "'\n").status, 0);
}

TEST_F(ProgramThatSigns, IsGivenAsAShellSplitsIt)
{
    QString const archive = Put("a.zip", m_archive);
    QString const home = Put("it's mine.sh", "echo '" + m_signature + "'\n");
    qputenv("PELNAR_TEST_HOME", QFile::encodeName(QFileInfo(home).path()));
    for (char const* const command :
         {"sh \"$PELNAR_TEST_HOME/it's mine.sh\"", "sh \"$PELNAR_TEST_HOME\"/it\\'s' mine'.sh",
          "sh -c 'sh \"$0\"' \"${PELNAR_TEST_HOME}/it's mine.sh\""})
    {
        ToolRun const run =
            RunTool({QStringLiteral("sign"), archive, QStringLiteral("--signer"), QString::fromLatin1(command),
                     QStringLiteral("--signer-key"), QString::fromStdString(MakeKeyPair(7).publicKey)});
        EXPECT_EQ(run.status, 0) << command << run.err;
    }
    for (char const* const command : {"sh 'open", "sh | cat", "sh; sh", "sh $(true)", "sh $PELNAR_NEVER_SET", "(sh)"})
    {
        ToolRun const run =
            RunTool({QStringLiteral("sign"), archive, QStringLiteral("--signer"), QString::fromLatin1(command),
                     QStringLiteral("--signer-key"), QString::fromStdString(MakeKeyPair(7).publicKey)});
        EXPECT_EQ(run.status, 2) << command;
        EXPECT_NE(run.err.find("is not a single command"), std::string::npos) << command << run.err;
    }
}

TEST_F(ProgramThatSigns, CanBeInterrupted)
{
    // As the tool does, which waits for these signals in a thread.
    sigset_t waited;
    sigset_t before;
    ::sigemptyset(&waited);
    for (int const signal : {SIGINT, SIGTERM, SIGHUP})
    {
        ::sigaddset(&waited, signal);
    }
    ::pthread_sigmask(SIG_BLOCK, &waited, &before);
    for (char const* const signal : {"INT", "TERM", "HUP"})
    {
        ExpectRefused(std::string("kill -") + signal + " $$\necho '" + m_signature + "'\n", "ended by a signal");
    }
    ::pthread_sigmask(SIG_SETMASK, &before, nullptr);
}

TEST_F(ProgramThatSigns, EachFailureIsTold)
{
    ExpectRefused("exit 3\n", "the program failed with exit status 3");
    ExpectRefused("echo '" + m_signature + "'\nexit 1\n", "the program failed with exit status 1");
    ExpectRefused("kill -9 $$\n", "the program was ended by a signal");
    ExpectRefused("", "the program printed nothing");
    ExpectRefused("echo signed\n", "the program printed 7 bytes that are not a signature");
    ExpectRefused("echo '" + m_signature + " " + m_signature + "'\n", "that are not a signature");
    ExpectRefused("yes\n", "the program printed more than a signature");
    ExpectRefused("echo '" + Base64(Sign("other", MakeKeyPair(7))) + "'\n", "is not a signature of ");
}

TEST_F(ProgramThatSigns, SignatureOfAnotherKeyIsRefused)
{
    ToolRun const run = SignBy("echo '" + m_signature + "'\n", 8);
    EXPECT_EQ(run.status, 2);
    EXPECT_NE(run.err.find("is not a signature of "), std::string::npos) << run.err;
}

TEST_F(ProgramThatSigns, IsNamedWithItsKeyAndInsteadOfAPrivateKey)
{
    auto const refusal = [this](QStringList const& options)
    {
        ToolRun const run = RunTool(QStringList{QStringLiteral("sign"), Put("a.zip", m_archive)} + options);
        EXPECT_EQ(run.status, 2);
        return run.err;
    };
    QString const key = QString::fromStdString(MakeKeyPair(7).publicKey);
    EXPECT_NE(refusal({}).find("--key is required"), std::string::npos);
    EXPECT_NE(refusal({QStringLiteral("--signer"), QStringLiteral("true")}).find("is required with --signer"),
              std::string::npos);
    EXPECT_NE(refusal({QStringLiteral("--signer"), QStringLiteral("true"), QStringLiteral("--key"), PathOf("key")})
                  .find("--key and --signer cannot both sign"),
              std::string::npos);
    EXPECT_NE(refusal({QStringLiteral("--signer"), QStringLiteral(" "), QStringLiteral("--signer-key"), key})
                  .find("does not name a program"),
              std::string::npos);
    EXPECT_NE(refusal({QStringLiteral("--signer"), PathOf("missing"), QStringLiteral("--signer-key"), key})
                  .find("cannot be started"),
              std::string::npos);
    EXPECT_NE(refusal({QStringLiteral("--signer"), QStringLiteral("true"), QStringLiteral("--signer-key"),
                       QStringLiteral("garbage")})
                  .find("is not an Ed25519 key"),
              std::string::npos);
}

TEST_F(ProgramThatSigns, IsTakenByEveryVerbThatSigns)
{
    for (char const* const verb :
         {"sign", "sign-feed", "generate", "delta create", "keys state", "promote", "withdraw", "edit-notes", "prune"})
    {
        ToolRun const run = RunTool(QString::fromLatin1(verb).split(QLatin1Char(' ')) << QStringLiteral("--help"));
        EXPECT_NE(run.out.find("--signer COMMAND"), std::string::npos) << verb;
        EXPECT_NE(run.out.find("--signer-key KEY"), std::string::npos) << verb;
    }
    EXPECT_NE(RunTool({QStringLiteral("generate"), QStringLiteral("--help")}).out.find("--second-signer COMMAND"),
              std::string::npos);
}

TEST_F(ProgramThatSigns, SignsAStatementOfTheRootKeyAndAWithdrawal)
{
    Put("key", Base64(std::string(32, '\7')));
    ASSERT_TRUE(QFile::setPermissions(PathOf("key"), QFile::ReadOwner | QFile::WriteOwner));
    QString const script =
        Put("sign.sh", "cat > \"$0.in\"\n'" + AppcastProgram().toStdString() + "' sign \"$0.in\" --key '" +
                           PathOf("key").toStdString() + "' | cut -d '\"' -f 2\n");
    QStringList const signer{QStringLiteral("--signer"), QStringLiteral("/bin/sh \"%1\"").arg(script),
                             QStringLiteral("--signer-key"), QString::fromStdString(MakeKeyPair(7).publicKey)};
    ToolRun const stated =
        RunTool(QStringList{QStringLiteral("keys"), QStringLiteral("state"), QStringLiteral("--bundle"),
                            QStringLiteral("org.pelnar.test"), QStringLiteral("--serial"), QStringLiteral("1"),
                            QStringLiteral("--valid"), QString::fromStdString(MakeKeyPair(8).publicKey)} +
                signer);
    EXPECT_EQ(stated.status, 0) << stated.err;
    EXPECT_EQ(stated.out.find("<!-- pelnar-keys: ed25519 "), 0u) << stated.out;

    Put("appcast.xml", "<rss xmlns:sparkle=\"http://www.andymatuschak.org/xml-namespaces/sparkle\"><channel>\n<item>\n"
                       "<enclosure url=\"https://updates.example.com/a.zip\" sparkle:version=\"1.0\"/></item>\n"
                       "</channel></rss>\n");
    QStringList const withdraw{QStringLiteral("withdraw"), PathOf("appcast.xml"), QStringLiteral("1.0")};
    ToolRun const withdrawn = RunTool(withdraw + signer);
    EXPECT_EQ(withdrawn.status, 0) << withdrawn.err;
    EXPECT_NE(ContentOf("appcast.xml").find("<!-- pelnar-signature: "), std::string::npos);
}

TEST_F(ProgramThatSigns, KeyOnStandardInputSignsAnEditedFeed)
{
    Put("appcast.xml", "<rss xmlns:sparkle=\"http://www.andymatuschak.org/xml-namespaces/sparkle\"><channel>\n<item>\n"
                       "<enclosure url=\"https://updates.example.com/a.zip\" sparkle:version=\"1.0\"/></item>\n"
                       "</channel></rss>\n");
    ToolRun const run = RunAppcastProgram({QStringLiteral("withdraw"), PathOf("appcast.xml"), QStringLiteral("1.0"),
                                           QStringLiteral("--key"), QStringLiteral("-")},
                                          QByteArray(32, '\7').toBase64() + '\n');
    EXPECT_EQ(run.status, 0) << run.err;
}

} // namespace Pelnar::Testing
