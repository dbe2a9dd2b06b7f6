// FetchProcessTest.cpp: a fetch seen from outside its process: which calls it makes of the system, how much memory it
// takes, what a wrong clock or a missing network does to it.
#include "tests/engine_core/fetch/FetchHarness.h"
#include "tests/support/LoopbackServer.h"
#include "tests/support/ProgramOutput.h"
#include "tests/support/Sanitizers.h"
#include "tests/support/TestCertificates.h"

#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <optional>

namespace
{

using namespace Pelnar::Engine;
using namespace Pelnar::Testing;

struct Report
{
    int cause = -1;
    int bytes = -1;
    long grownKibibytes = -1;
    QString all;
};

/// Runs \a wrapper (which may be empty) around the probe and reads what the probe printed.
Report probe(QStringList const& wrapper, QStringList const& arguments)
{
    Report report;
    report.all = OutputOf(wrapper + QStringList{QStringLiteral(PELNAR_FETCH_PROBE)} + arguments);
    QRegularExpressionMatch const match =
        QRegularExpression(QStringLiteral("cause=(\\d+) bytes=(\\d+) grown=(\\d+)")).match(report.all);
    if (match.hasMatch())
    {
        report.cause = match.captured(1).toInt();
        report.bytes = match.captured(2).toInt();
        report.grownKibibytes = match.captured(3).toLong();
    }
    return report;
}

[[nodiscard]] bool works(QString const& program, QStringList const& arguments)
{
    return QProcess::execute(program, arguments) == 0;
}

class FetchProcessTest : public FetchTest
{
protected:
    QByteArray Trace() const
    {
        QFile file(folder.filePath(QStringLiteral("trace")));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }

    QStringList Tracing(QString const& calls) const
    {
        return {QStringLiteral("strace"),
                QStringLiteral("-f"),
                QStringLiteral("-qq"),
                QStringLiteral("-e"),
                QStringLiteral("trace=") + calls,
                QStringLiteral("-o"),
                folder.filePath(QStringLiteral("trace"))};
    }

    bool CanTrace() const
    {
        return works(QStringLiteral("strace"), {QStringLiteral("-qq"), QStringLiteral("-e"),
                                                QStringLiteral("trace=none"), QStringLiteral("true")});
    }

    QTemporaryDir folder;
};
TEST_F(FetchProcessTest, HttpToAnotherComputerSendsNoPacket)
{
    if (!CanTrace())
    {
        GTEST_SKIP() << "system calls cannot be traced here";
    }
    Report const report = probe(Tracing(QStringLiteral("connect,sendto,sendmsg,sendmmsg")),
                                {QStringLiteral("http://feeds.example.com/feed.xml")});
    EXPECT_EQ(report.cause, static_cast<int>(ErrorCause::InsecureAddress)) << report.all.toStdString();
    EXPECT_FALSE(Trace().contains("AF_INET")) << Trace().toStdString();
}
TEST_F(FetchProcessTest, RedirectToAFileOpensNothing)
{
    if (!CanTrace())
    {
        GTEST_SKIP() << "system calls cannot be traced here";
    }
    QFile secret(folder.filePath(QStringLiteral("secret.xml")));
    ASSERT_TRUE(secret.open(QIODevice::WriteOnly));
    secret.close();
    LoopbackServer server(Answering(RedirectAnswer(302, "file://" + QFile::encodeName(secret.fileName()))));
    Report const report = probe(Tracing(QStringLiteral("%file")), {server.Url().toString()});
    EXPECT_EQ(report.cause, static_cast<int>(ErrorCause::RedirectScheme)) << report.all.toStdString();
    EXPECT_FALSE(Trace().contains("secret.xml"));
}
class WrongClock : public FetchProcessTest
{
protected:
    void SetUp() override
    {
        if (IS_SANITIZED)
        {
            GTEST_SKIP() << "the preloaded clock and the sanitizer's start wait for one another for ever";
        }
    }

    Report ProbeAt(QString const& shift)
    {
        TestCertificates certificates;
        LoopbackServer server(Answering(OkAnswer("<rss/>")), certificates.Signed("127.0.0.1"));
        return probe({QStringLiteral("faketime"), QStringLiteral("-f"), shift},
                     {server.Url().toString(), certificates.AuthorityFile()});
    }
};

TEST_F(WrongClock, TwoYearsBackSaysCheckTheClock)
{
    Report const report = ProbeAt(QStringLiteral("-730d"));
    EXPECT_EQ(report.cause, static_cast<int>(ErrorCause::CertificateNotYetValid)) << report.all.toStdString();
    EXPECT_TRUE(report.all.contains(QLatin1String("check the clock")));
}

TEST_F(WrongClock, TwentyYearsAheadSaysCheckTheClock)
{
    Report const report = ProbeAt(QStringLiteral("+7300d"));
    EXPECT_EQ(report.cause, static_cast<int>(ErrorCause::CertificateExpired)) << report.all.toStdString();
    EXPECT_TRUE(report.all.contains(QLatin1String("check the clock")));
}

TEST_F(WrongClock, RightClockIsNoError)
{
    Report const report = ProbeAt(QStringLiteral("+0d"));
    EXPECT_EQ(report.cause, 0) << report.all.toStdString();
    EXPECT_EQ(report.bytes, 6);
}
TEST_F(FetchProcessTest, NoRouteIsAnErrorOfItsOwn)
{
    QStringList const ownNetwork{QStringLiteral("unshare"), QStringLiteral("--map-root-user"), QStringLiteral("--net")};
    if (!works(ownNetwork.front(), ownNetwork.mid(1) << QStringLiteral("true")))
    {
        GTEST_SKIP() << "no network of one's own can be made here";
    }
    Report const report = probe(ownNetwork, {QStringLiteral("https://192.0.2.1/feed.xml")});
    EXPECT_EQ(report.cause, static_cast<int>(ErrorCause::NetworkUnreachable)) << report.all.toStdString();
}
class EndlessAnswer : public FetchProcessTest
{
protected:
    /// The cause is judged always, the memory where no sanitizer keeps freed blocks.
    void ExpectCheap(Report const& report, ErrorCause cause)
    {
        EXPECT_EQ(report.cause, static_cast<int>(cause)) << report.all.toStdString();
        if (!IS_SANITIZED)
        {
            EXPECT_GE(report.grownKibibytes, 0);
            EXPECT_LT(report.grownKibibytes, 16 * 1024);
        }
    }
};

TEST_F(EndlessAnswer, BodyCostsLittleMemory)
{
    LoopbackServer server(AnsweringWithoutEnd("HTTP/1.1 200 OK\r\n\r\n", QByteArray(64 * 1024, 'x')));
    ExpectCheap(probe({}, {server.Url().toString()}), ErrorCause::BodyTooLarge);
}

TEST_F(EndlessAnswer, HeadersCostLittleMemory)
{
    LoopbackServer server(AnsweringWithoutEnd("HTTP/1.1 200 OK\r\n", "X: " + QByteArray(64 * 1024, 'x') + "\r\n"));
    ExpectCheap(probe({}, {server.Url().toString()}), ErrorCause::HeadTooLarge);
}

TEST_F(EndlessAnswer, CompressedBombIsNotInflated)
{
    LoopbackServer server(
        AnsweringWithoutEnd("HTTP/1.1 200 OK\r\nContent-Encoding: gzip\r\n\r\n", QByteArray(64 * 1024, 'x')));
    ExpectCheap(probe({}, {server.Url().toString()}), ErrorCause::ContentEncodingRefused);
}

} // namespace
