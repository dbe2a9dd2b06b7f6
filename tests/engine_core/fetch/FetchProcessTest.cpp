// FetchProcessTest.cpp: a fetch seen from outside its process: its system calls and its memory, with a wrong clock,
// with a missing network.
#include "tests/engine_core/fetch/FetchHarness.h"
#include "tests/support/LoopbackServer.h"
#include "tests/support/ProgramOutput.h"
#include "tests/support/Sanitizers.h"
#include "tests/support/TestCertificates.h"

#include <QElapsedTimer>
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
    long milliseconds = -1;
    QString all;
};

/// Runs \a wrapper (may be empty) with the probe, and reads the output of the probe.
Report probe(QStringList const& wrapper, QStringList const& arguments)
{
    Report report;
    report.all = OutputOf(wrapper + QStringList{QStringLiteral(PELNAR_FETCH_PROBE)} + arguments);
    QRegularExpressionMatch const match =
        QRegularExpression(QStringLiteral("cause=(\\d+) bytes=(\\d+) grown=(\\d+) ms=(\\d+)")).match(report.all);
    if (match.hasMatch())
    {
        report.cause = match.captured(1).toInt();
        report.bytes = match.captured(2).toInt();
        report.grownKibibytes = match.captured(3).toLong();
        report.milliseconds = match.captured(4).toLong();
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

    /// The words that run the appended words in their own network, which \a script sets up.
    QStringList InOwnNetwork(char const* script) const
    {
        return {QStringLiteral("unshare"),   QStringLiteral("--map-root-user"),
                QStringLiteral("--net"),     QStringLiteral("--mount"),
                QStringLiteral("sh"),        QStringLiteral("-c"),
                QString::fromLatin1(script), folder.path()};
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
TEST_F(FetchProcessTest, ThreadThatFindsNoMemoryForTheProxyEndsTheFetchAlone)
{
    QStringList const withoutProxy{
        QStringLiteral("env"),       QStringLiteral("-u"), QStringLiteral("http_proxy"), QStringLiteral("-u"),
        QStringLiteral("all_proxy"), QStringLiteral("-u"), QStringLiteral("ALL_PROXY")};
    Report const report =
        probe(withoutProxy, {QStringLiteral("http://feeds.example.com/feed.xml"), QStringLiteral("/dev/null"),
                             QStringLiteral("anywhere"), QStringLiteral("without-memory")});
    EXPECT_EQ(report.cause, static_cast<int>(ErrorCause::DownloadSystemBusy)) << report.all.toStdString();
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
    EXPECT_TRUE(report.all.contains(QLatin1String("the clock of this computer")));
}

TEST_F(WrongClock, TwentyYearsAheadSaysCheckTheClock)
{
    Report const report = ProbeAt(QStringLiteral("+7300d"));
    EXPECT_EQ(report.cause, static_cast<int>(ErrorCause::CertificateExpired)) << report.all.toStdString();
    EXPECT_TRUE(report.all.contains(QLatin1String("the clock of this computer")));
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

/// A network in which "two.example" has two addresses: the IPv6 address loses every packet, the other one answers. The
/// appended words run in it.
char const TWO_ADDRESSES[] = "set -e\n"
                             "ip link set lo up\n"
                             "ip link add near type veth peer name far\n"
                             "ip link set near up\n"
                             "ip link set far up\n"
                             "ip -6 address add 2001:db8::1/64 dev near nodad\n"
                             "ip -6 neighbour add 2001:db8::2 lladdr 02:00:00:00:00:02 dev near\n"
                             "ip address add 198.51.100.1/24 dev near\n"
                             "printf '2001:db8::2 two.example\\n198.51.100.1 two.example\\n' > \"$0/hosts\"\n"
                             "mount --bind \"$0/hosts\" /etc/hosts\n"
                             "printf '<rss/>' > \"$0/feed.xml\"\n"
                             "python3 -m http.server --bind 198.51.100.1 --directory \"$0\" 8000 >/dev/null 2>&1 &\n"
                             "server=$!\n"
                             "for turn in 1 2 3 4 5 6 7 8 9 10; do\n"
                             "    curl -s -o /dev/null http://198.51.100.1:8000/ && break\n"
                             "    sleep 0.5\n"
                             "done\n"
                             "\"$@\"\n"
                             "kill $server\n";

TEST_F(FetchProcessTest, AddressThatSwallowsPacketsCostsLessThanASecond)
{
    QStringList const ownNetwork = InOwnNetwork(TWO_ADDRESSES);
    if (!works(ownNetwork.front(), ownNetwork.mid(1) << QStringLiteral("true")))
    {
        GTEST_SKIP() << "no network of one's own can be made here";
    }
    QString const url = QStringLiteral("http://two.example:8000/feed.xml");
    Report const report = probe(ownNetwork, {url, QString(), QStringLiteral("anywhere")});
    EXPECT_EQ(report.cause, 0) << report.all.toStdString();
    EXPECT_EQ(report.bytes, 6);
    EXPECT_GE(report.milliseconds, 150) << "the other address is tried first, or nothing is shown here";
    EXPECT_LT(report.milliseconds, 1000);
}

/// A network that loses every packet to 198.51.100.9, including the name server's.
char const BLACK_HOLE[] = "set -e\n"
                          "ip link set lo up\n"
                          "ip link add near type veth peer name far\n"
                          "ip link set near up\n"
                          "ip link set far up\n"
                          "ip address add 198.51.100.1/24 dev near\n"
                          "ip neighbour add 198.51.100.9 lladdr 02:00:00:00:00:02 dev near\n"
                          "printf 'nameserver 198.51.100.9\\noptions timeout:30\\n' > \"$0/resolv.conf\"\n"
                          "mount --bind \"$0/resolv.conf\" /etc/resolv.conf\n"
                          "exec \"$@\"\n";

class Unreachable : public FetchProcessTest, public ::testing::WithParamInterface<char const*>
{
};

INSTANTIATE_TEST_SUITE_P(Servers, Unreachable,
                         ::testing::Values("https://198.51.100.9/feed.xml", "https://name.example/feed.xml"));

TEST_P(Unreachable, IsGivenUpAtTheDeadlineForConnecting)
{
    QStringList const ownNetwork = InOwnNetwork(BLACK_HOLE);
    if (!works(ownNetwork.front(), ownNetwork.mid(1) << QStringLiteral("true")))
    {
        GTEST_SKIP() << "no network of one's own can be made here";
    }
    QElapsedTimer clock;
    clock.start();
    Report const report = probe(ownNetwork, {QString::fromLatin1(GetParam())});
    EXPECT_EQ(report.cause, static_cast<int>(ErrorCause::ConnectTimeout)) << report.all.toStdString();
    EXPECT_GE(report.milliseconds, 14000);
    EXPECT_LT(report.milliseconds, 18000);
    EXPECT_LT(clock.elapsed(), report.milliseconds + 5000) << "the process does not wait for the name server";
}

/// The server of "moved.example" answers once, and then answers only at another address. The appended words run
/// meanwhile.
char const MOVED_SERVER[] = R"(
import http.server, subprocess, sys, threading
class Old(http.server.BaseHTTPRequestHandler):
    def do_GET(self):
        open(sys.argv[1], "w").write("127.0.0.3 moved.example\n")
        self.wfile.write(b"HTTP/1.1 302 Found\r\nLocation: /feed.xml\r\nContent-Length: 0\r\n\r\n")
class New(http.server.BaseHTTPRequestHandler):
    def do_GET(self):
        self.wfile.write(b"HTTP/1.1 200 OK\r\nContent-Length: 6\r\n\r\n<rss/>")
old = http.server.HTTPServer(("127.0.0.2", 8000), Old)
new = http.server.HTTPServer(("127.0.0.3", 8000), New)
threading.Thread(target=lambda: (old.handle_request(), old.server_close()), daemon=True).start()
threading.Thread(target=new.serve_forever, daemon=True).start()
subprocess.run(sys.argv[2:])
)";

TEST_F(FetchProcessTest, ServerIsFoundAtItsNewAddress)
{
    QStringList const ownNetwork = InOwnNetwork("set -e\n"
                                                "ip link set lo up\n"
                                                "echo '127.0.0.2 moved.example' > \"$0/hosts\"\n"
                                                "mount --bind \"$0/hosts\" /etc/hosts\n"
                                                "\"$@\"\n");
    if (!works(ownNetwork.front(), ownNetwork.mid(1) << QStringLiteral("true")))
    {
        GTEST_SKIP() << "no network of one's own can be made here";
    }
    QStringList const server{QStringLiteral("python3"), QStringLiteral("-c"), QString::fromLatin1(MOVED_SERVER),
                             folder.filePath(QStringLiteral("hosts"))};
    Report const report = probe(ownNetwork + server,
                                {QStringLiteral("http://moved.example:8000/"), QString(), QStringLiteral("anywhere")});
    EXPECT_EQ(report.cause, 0) << report.all.toStdString();
    EXPECT_EQ(report.bytes, 6);
}

/// An OpenSSL configuration that permits every protocol and cipher.
class PermissiveConfiguration : public FetchProcessTest, public ::testing::WithParamInterface<char const*>
{
protected:
    PermissiveConfiguration()
    {
        (void)certificates.Signed("127.0.0.1");
        QFile file(folder.filePath(QStringLiteral("openssl.cnf")));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("openssl_conf = all\n[all]\nssl_conf = ssl\n[ssl]\nsystem_default = everything\n"
                   "[everything]\nMinProtocol = TLSv1\nCipherString = ALL:eNULL:@SECLEVEL=0\n");
        environment.insert(QStringLiteral("OPENSSL_CONF"), file.fileName());
        server.setProcessEnvironment(environment);
        server.setProcessChannelMode(QProcess::MergedChannels);
    }
    ~PermissiveConfiguration() override
    {
        server.kill();
        server.waitForFinished();
    }

    /// The address of a server that offers only \a words.
    QString Serve(QString const& words)
    {
        server.start(QStringLiteral("openssl"),
                     QStringList{QStringLiteral("s_server"), QStringLiteral("-accept"), QStringLiteral("127.0.0.1:0"),
                                 QStringLiteral("-www"), QStringLiteral("-cert"), certificates.CertificateFile(),
                                 QStringLiteral("-key"), certificates.KeyFile()} +
                         words.split(QLatin1Char(' ')));
        QByteArray said;
        QRegularExpressionMatch port;
        EXPECT_TRUE(WaitFor(
            [&]
            {
                said += server.readAll();
                port = QRegularExpression(QStringLiteral("ACCEPT 127\\.0\\.0\\.1:(\\d+)"))
                           .match(QString::fromLatin1(said));
                return port.hasMatch();
            }))
            << said.toStdString();
        return QStringLiteral("https://127.0.0.1:%1/").arg(port.captured(1));
    }

    TestCertificates certificates;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    QProcess server;
};

INSTANTIATE_TEST_SUITE_P(Servers, PermissiveConfiguration,
                         ::testing::Values("-tls1", "-tls1_1", "-tls1_2 -cipher eNULL", "-tls1_2 -cipher aNULL"));

TEST_P(PermissiveConfiguration, DoesNotMakeAWeakConnectionGood)
{
    QString const url = Serve(QString::fromLatin1(GetParam()));
    QString const configuration = QStringLiteral("OPENSSL_CONF=") + folder.filePath(QStringLiteral("openssl.cnf"));
    QString const control =
        OutputOf({QStringLiteral("env"), configuration, QStringLiteral("curl"), QStringLiteral("--insecure"),
                  QStringLiteral("--silent"), QStringLiteral("--show-error"), QStringLiteral("--tlsv1.0"),
                  QStringLiteral("--ciphers"), QStringLiteral("ALL:eNULL:@SECLEVEL=0"), url});
    ASSERT_TRUE(control.contains(QLatin1String("s_server")))
        << "this configuration does not permit it: " << control.toStdString();
    Report const report = probe({QStringLiteral("env"), configuration}, {url, certificates.AuthorityFile()});
    EXPECT_EQ(report.cause, static_cast<int>(ErrorCause::HandshakeRefused)) << report.all.toStdString();
}

TEST_F(PermissiveConfiguration, LetsAStrongConnectionBe)
{
    QString const url = Serve(QStringLiteral("-tls1_2"));
    QString const configuration = QStringLiteral("OPENSSL_CONF=") + folder.filePath(QStringLiteral("openssl.cnf"));
    Report const report = probe({QStringLiteral("env"), configuration}, {url, certificates.AuthorityFile()});
    EXPECT_EQ(report.cause, 0) << report.all.toStdString();
    EXPECT_GT(report.bytes, 0);
}

class EndlessAnswer : public FetchProcessTest
{
protected:
    /// The cause is always checked. The memory is checked only without a sanitizer, because sanitizers keep freed
    /// blocks.
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
