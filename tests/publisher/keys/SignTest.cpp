// SignTest.cpp: the verbs "sign" and "verify".

#include "tests/installer/InstallerFixture.h"
#include "tests/publisher/support/AppcastTool.h"

#include <gtest/gtest.h>

#include <QFile>

#include <sys/stat.h>
#include <unistd.h>

namespace Pelnar::Testing
{
namespace
{

class SignVerify : public ::testing::Test
{
protected:
    SignVerify()
    {
        Put("key", Base64(std::string(32, '\7')) + '\n');
        EXPECT_EQ(::chmod(KeyFile().toStdString().c_str(), 0600), 0);
    }
    QString PathOf(std::string const& name) const { return QString::fromStdString(m_folder.Path() + '/' + name); }
    QString KeyFile() const { return PathOf("key"); }
    QString Put(std::string const& name, std::string const& bytes) const
    {
        WriteFile(m_folder.Path() + '/' + name, bytes);
        return PathOf(name);
    }
    ToolRun Sign(QString const& archive) const
    {
        return RunTool({QStringLiteral("sign"), archive, QStringLiteral("--key"), KeyFile()});
    }
    ToolRun Verify(QString const& archive, std::string const& signature, std::vector<std::string> const& keys) const
    {
        QStringList arguments{QStringLiteral("verify"), archive, QStringLiteral("--signature"),
                              QString::fromStdString(signature)};
        for (std::string const& key : keys)
        {
            arguments << QStringLiteral("--public-key") << QString::fromStdString(key);
        }
        return RunTool(arguments);
    }
    KeyPair const m_pair = MakeKeyPair(7);

private:
    Workspace m_folder;
};

TEST_F(SignVerify, AttributesAreTheSignatureThatAnotherSignerMakes)
{
    std::string const bytes(100000, 'x');
    ToolRun const run = Sign(Put("app.zip", bytes));
    EXPECT_EQ(run.status, 0) << run.err;
    EXPECT_EQ(run.out, "sparkle:edSignature=\"" + Base64(Testing::Sign(bytes, m_pair)) + "\" length=\"100000\"\n");
    EXPECT_EQ(Sign(PathOf("app.zip")).out, run.out);
}

TEST_F(SignVerify, KeyFromStandardInput)
{
    QString const archive = Put("app.zip", "archive");
    ToolRun const run =
        RunAppcastProgram({QStringLiteral("sign"), archive, QStringLiteral("--key"), QStringLiteral("-")},
                          QByteArray::fromStdString(Base64(std::string(32, '\7'))));
    EXPECT_EQ(run.status, 0) << run.err;
    EXPECT_EQ(run.out, Sign(archive).out);
}

TEST_F(SignVerify, WhatIsNoArchiveIsNotSigned)
{
    Put("empty.zip", "");
    ASSERT_EQ(::mkfifo(PathOf("pipe").toStdString().c_str(), 0600), 0);
    struct Row
    {
        char const* name;
        char const* said;
    };
    Row const rows[] = {{"empty.zip", "is empty"},
                        {"absent.zip", "cannot be read: No such file"},
                        {"pipe", "is not a plain file"},
                        {"", "is not a plain file"}};
    for (Row const& row : rows)
    {
        ToolRun const run = Sign(PathOf(row.name));
        EXPECT_EQ(run.status, 2) << row.name;
        EXPECT_EQ(run.out, "");
        EXPECT_NE(run.err.find(row.said), std::string::npos) << run.err;
    }
}

TEST_F(SignVerify, KeyIsARequiredFileAndNeverText)
{
    QString const archive = Put("app.zip", "archive");
    EXPECT_EQ(RunTool({QStringLiteral("sign"), archive}).status, 2);
    ToolRun const run = RunTool({QStringLiteral("sign"), archive, QStringLiteral("--key"),
                                 QString::fromStdString(Base64(std::string(32, '\7')))});
    EXPECT_EQ(run.status, 2);
    EXPECT_NE(run.err.find("must not be an argument"), std::string::npos) << run.err;
}

TEST_F(SignVerify, RightSignatureIsAccepted)
{
    QString const archive = Put("app.zip", "archive");
    std::string const signature = Base64(Testing::Sign("archive", m_pair));
    EXPECT_EQ(Verify(archive, signature, {m_pair.publicKey}).status, 0);
    EXPECT_EQ(Verify(archive, signature, {MakeKeyPair(9).publicKey, m_pair.publicKey}).status, 0);
}

TEST_F(SignVerify, WrongArchivesAreFindings)
{
    std::string const signature = Base64(Testing::Sign("archive", m_pair));
    struct Row
    {
        char const* content;
        std::string signature;
        KeyPair pair;
    };
    Row const rows[] = {{"archivE", signature, m_pair},
                        {"archive ", signature, m_pair},
                        {"archiv", signature, m_pair},
                        {"archive", signature, MakeKeyPair(9)},
                        {"archive", Base64(Malleable(Testing::Sign("archive", m_pair))), m_pair}};
    for (Row const& row : rows)
    {
        ToolRun const run = Verify(Put("app.zip", row.content), row.signature, {row.pair.publicKey});
        EXPECT_EQ(run.status, 1) << row.content;
        EXPECT_NE(run.out.find("the signature does not match this file and this key"), std::string::npos) << run.out;
    }
    EXPECT_EQ(Verify(Put("app.zip", ""), signature, {m_pair.publicKey}).status, 1);
}

TEST_F(SignVerify, WhatIsNoKeyOrSignatureIsBadInput)
{
    QString const archive = Put("app.zip", "archive");
    std::string const signature = Base64(Testing::Sign("archive", m_pair));
    EXPECT_EQ(Verify(archive, "AAAA", {m_pair.publicKey}).status, 2);
    EXPECT_EQ(Verify(archive, signature, {"AAAA"}).status, 2);
    EXPECT_EQ(Verify(archive, signature, {Base64(PointsOfSmallOrder().at(1))}).status, 2);
    EXPECT_EQ(Verify(archive, signature, {}).status, 2);
    EXPECT_EQ(Verify(PathOf("absent.zip"), signature, {m_pair.publicKey}).status, 2);
}

} // namespace
} // namespace Pelnar::Testing
