// ArchiveDownloadTest.cpp: downloads over http and https: whole, cut, resumed, changed, refused.

#include "tests/engine_core/download/ArchiveDownloadFixture.h"
#include "tests/engine_core/download/ArchiveServer.h"
#include "tests/engine_core/download/DownloadHarness.h"
#include "tests/support/EveryFault.h"
#include "tests/support/FileServer.h"
#include "tests/support/TestCertificates.h"

#include <set>

#include <fcntl.h>

namespace
{

using namespace Pelnar::Engine;
using namespace Pelnar::Testing;
using std::chrono::milliseconds;

TEST_F(ArchiveDownloadTest, BringsTheArchiveToAFileThatCanOnlyBeRead)
{
    LoopbackServer server(Serving({ARCHIVE}));
    DownloadResult const result = Run(RequestFor(server.Url(), SIZE));
    EXPECT_EQ(result.cause, ErrorCause::NoUpdate);
    EXPECT_EQ(result.bytes, ARCHIVE);
    EXPECT_EQ(fcntl(result.archive.Get(), F_GETFL) & O_ACCMODE, O_RDONLY);
    EXPECT_EQ(fcntl(result.archive.Get(), F_SETLEASE, F_RDLCK), 0) << "somebody has it open for writing";
    ASSERT_EQ(server.Requests().size(), 1u);
    EXPECT_TRUE(FieldOf(server.Requests()[0], "Range").isEmpty());
    EXPECT_EQ(FieldOf(server.Requests()[0], "Accept-Encoding"), "identity");
}

TEST_F(ArchiveDownloadTest, BringsItOverASecureConnection)
{
    TestCertificates certificates;
    TrustedAuthority const trusted(certificates.Authority());
    LoopbackServer server(Serving({ARCHIVE}), certificates.Signed("127.0.0.1"));
    EXPECT_EQ(Run(RequestFor(server.Url(), SIZE)).bytes, ARCHIVE);
}

TEST_F(ArchiveDownloadTest, BringsItOverHttp2)
{
    TestCertificates certificates;
    TrustedAuthority const trusted(certificates.Authority());
    (void)certificates.Signed("127.0.0.1");
    // More than all buffers hold. So the transfer sometimes has to wait for the disk.
    QByteArray const large = MakeArchive(48 * 1024 * 1024);
    QTemporaryDir served;
    QFile file(served.filePath(QStringLiteral("file")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(large) == large.size() && file.flush());
    FileServer const server(served.path(), {certificates.CertificateFile(), certificates.KeyFile()});
    if (!server.IsThere())
    {
        GTEST_SKIP() << "there is no nghttpd here";
    }
    DownloadResult const result = Run(RequestFor(server.Url(QStringLiteral("/file")), large.size()));
    EXPECT_EQ(result.cause, ErrorCause::NoUpdate);
    EXPECT_TRUE(result.bytes == large);
}

TEST_F(ArchiveDownloadTest, UnknownCertificateIsRefused)
{
    TestCertificates certificates;
    LoopbackServer server(Serving({ARCHIVE}), certificates.SelfSigned("127.0.0.1"));
    EXPECT_EQ(Run(RequestFor(server.Url(), SIZE)).cause, ErrorCause::CertificateSelfSigned);
    EXPECT_TRUE(server.Requests().empty());
}

TEST_F(ArchiveDownloadTest, ChunksAndBodiesUntilCloseArrive)
{
    QByteArray chunks = "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n";
    for (int start = 0; start < SIZE; start += 70001)
    {
        QByteArray const piece = ARCHIVE.mid(start, 70001);
        chunks += QByteArray::number(piece.size(), 16) + "\r\n" + piece + "\r\n";
    }
    LoopbackServer chunked(Answering(chunks + "0\r\n\r\n"));
    EXPECT_EQ(Run(RequestFor(chunked.Url(), SIZE)).bytes, ARCHIVE);
    LoopbackServer untilClose(Answering("HTTP/1.0 200 OK\r\n\r\n" + ARCHIVE));
    EXPECT_EQ(Run(RequestFor(untilClose.Url(), SIZE)).bytes, ARCHIVE);
}

TEST_F(ArchiveDownloadTest, AddressesThatAreNotAllowedAreRefused)
{
    struct
    {
        char const* url;
        ErrorCause cause;
    } const rows[] = {
        {"http://files.example.com/x.zip", ErrorCause::InsecureAddress},
        {"file:///etc/passwd", ErrorCause::SchemeRefused},
        {"ftp://127.0.0.1/x.zip", ErrorCause::SchemeRefused},
        {"data:application/zip,x", ErrorCause::SchemeRefused},
        {"x.zip", ErrorCause::InvalidAddress},
        {"", ErrorCause::InvalidAddress},
    };
    for (auto const& row : rows)
    {
        DownloadResult const result = Run(RequestFor(QUrl(QString::fromLatin1(row.url)), SIZE));
        EXPECT_EQ(result.cause, row.cause) << row.url;
        EXPECT_FALSE(result.error.sentence.English().contains(QLatin1String("update feed"))) << row.url;
    }
    EXPECT_FALSE(QDir(Folder()).exists());
}

TEST_F(ArchiveDownloadTest, LengthThatCannotBeIsRefused)
{
    LoopbackServer server(Serving({ARCHIVE}));
    DownloadRequest request = RequestFor(server.Url(), 0);
    EXPECT_EQ(Run(request).cause, ErrorCause::DownloadLengthInvalid);
    request.declaredBytes = (quint64{16} << 30) + 1;
    EXPECT_EQ(Run(request).cause, ErrorCause::DownloadLengthInvalid);
    EXPECT_TRUE(server.Requests().empty());
}

TEST_F(ArchiveDownloadTest, RedirectsAreFollowedAndCredentialsStayWithinTheOrigin)
{
    LoopbackServer other(Serving({ARCHIVE}));
    LoopbackServer server(Answering(RedirectAnswer(302, other.Url().toEncoded())));
    QUrl url = server.Url();
    url.setUserName(QStringLiteral("user"));
    url.setPassword(QStringLiteral("secret"));
    EXPECT_EQ(Run(RequestFor(url, SIZE)).bytes, ARCHIVE);
    EXPECT_TRUE(server.Requests()[0].contains("Authorization: Basic "));
    EXPECT_FALSE(other.Requests()[0].contains("Authorization"));
}

TEST_F(ArchiveDownloadTest, PasswordOfTheFeedsAddressGoesToItsOwnOriginOnly)
{
    QByteArray const field = "\r\nAuthorization: Basic " + QByteArray("me:se cret").toBase64() + "\r\n";
    LoopbackServer server(Serving({ARCHIVE}));
    LoopbackServer other(Serving({ARCHIVE}));
    DownloadRequest request = RequestFor(server.Url(), SIZE);
    request.feedUrl = server.Url(QStringLiteral("/folder/feed.xml"));
    request.feedUrl.setUserName(QStringLiteral("me"));
    request.feedUrl.setPassword(QStringLiteral("se cret"));
    EXPECT_EQ(Run(request).bytes, ARCHIVE);
    EXPECT_TRUE(server.Requests().back().contains(field)) << server.Requests().back().toStdString();
    for (QString const& name : Files())
    {
        QFile file(QDir(Folder()).filePath(name));
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        QByteArray const bytes = file.readAll();
        EXPECT_FALSE(bytes.contains("cret") || bytes.contains(QByteArray("me:se cret").toBase64()));
    }

    RemoveFolder();
    request.url = other.Url();
    EXPECT_EQ(Run(request).bytes, ARCHIVE);
    EXPECT_FALSE(other.Requests().back().contains("Authorization")) << "another port is another origin";

    RemoveFolder();
    request.url = server.Url();
    request.url.setUserInfo(QStringLiteral("you:other"));
    EXPECT_EQ(Run(request).bytes, ARCHIVE);
    EXPECT_TRUE(server.Requests().back().contains("Basic " + QByteArray("you:other").toBase64()));
    EXPECT_FALSE(server.Requests().back().contains(field)) << "the archive's address identifies the client";
}

TEST_F(ArchiveDownloadTest, PasswordOfTheFeedsAddressFollowsNoRedirectToAnotherOrigin)
{
    LoopbackServer other(Serving({ARCHIVE}));
    LoopbackServer server(Answering(RedirectAnswer(302, other.Url().toEncoded())));
    DownloadRequest request = RequestFor(server.Url(), SIZE);
    request.feedUrl = server.Url();
    request.feedUrl.setUserInfo(QStringLiteral("me:secret"));
    EXPECT_EQ(Run(request).bytes, ARCHIVE);
    EXPECT_TRUE(server.Requests()[0].contains("Authorization: Basic "));
    EXPECT_FALSE(other.Requests()[0].contains("Authorization"));
}

TEST_F(ArchiveDownloadTest, FeedFromElsewhereLeadsToNoArchiveOfThisComputer)
{
    LoopbackServer server(Serving({ARCHIVE}));
    LoopbackServer leading(Answering(RedirectAnswer(302, server.Url().toEncoded())));
    for (QString const& host : {QStringLiteral("127.0.0.1"), QStringLiteral("localhost"), QStringLiteral("[::1]"),
                                QStringLiteral("2130706433"), QStringLiteral("0.0.0.0"),
                                QStringLiteral("[::ffff:7f00:1]"), QStringLiteral("169.254.1.1")})
    {
        QUrl url(QStringLiteral("http://%1/archive.zip").arg(host));
        url.setPort(server.Url().port());
        for (InsecureHttp const insecureHttp : {InsecureHttp::LoopbackOnly, InsecureHttp::Anywhere})
        {
            DownloadRequest request = RequestFor(url, SIZE);
            request.feedReach = AddressReach::Network;
            request.insecureHttp = insecureHttp;
            EXPECT_EQ(Run(request).cause, ErrorCause::AddressNotPublic) << host.toStdString();
        }
    }
    EXPECT_EQ(server.Connections() + leading.Connections(), 0);
    DownloadRequest request = RequestFor(leading.Url(), SIZE);
    EXPECT_EQ(Run(request).bytes, ARCHIVE) << "one from here does";
}

TEST_F(ArchiveDownloadTest, RedirectsThatLeadAstrayAreRefused)
{
    LoopbackServer loop(Answering(RedirectAnswer(302, "/x")));
    EXPECT_EQ(Run(RequestFor(loop.Url(), SIZE)).cause, ErrorCause::TooManyRedirects);
    LoopbackServer file(Answering(RedirectAnswer(302, "file:///etc/passwd")));
    EXPECT_EQ(Run(RequestFor(file.Url(), SIZE)).cause, ErrorCause::RedirectScheme);
    LoopbackServer insecure(Answering(RedirectAnswer(302, "http://files.example.com/x.zip")));
    EXPECT_EQ(Run(RequestFor(insecure.Url(), SIZE)).cause, ErrorCause::RedirectDowngrade);
}

TEST_F(ArchiveDownloadTest, ErrorsSpeakOfTheUpdateAndNotOfTheFeed)
{
    struct
    {
        QByteArray answer;
        ErrorCause cause;
    } const rows[] = {
        {"HTTP/1.1 404 Not Found\r\n\r\n", ErrorCause::HttpStatus},
        {"HTTP/1.1 200 OK\r\nContent-Length: 5\r\nContent-Length: 6\r\n\r\n", ErrorCause::ContradictoryLength},
        {"HTTP/1.1 200 OK\r\nContent-Encoding: gzip\r\n\r\n", ErrorCause::ContentEncodingRefused},
        {"HTTP/1.1 200 OK\r\nTransfer-Encoding: gzip\r\n\r\n", ErrorCause::TransferEncodingRefused},
        {"HTTP/1.1 200 OK\r\nContent-Length: 300000\r\n\r\npart", ErrorCause::IncompleteBody},
        {"not http\r\n\r\n", ErrorCause::MalformedHead},
        {"", ErrorCause::IncompleteHead},
        {"HTTP/1.1 200 OK\r\nX: " + QByteArray(70000, 'x') + "\r\n\r\n", ErrorCause::HeadTooLarge},
    };
    for (auto const& row : rows)
    {
        LoopbackServer server(Answering(row.answer));
        DownloadResult const result = Run(OnceOnly(server.Url()));
        EXPECT_EQ(result.cause, row.cause);
        EXPECT_FALSE(result.error.sentence.English().contains(QLatin1String("feed")))
            << result.error.sentence.English().toStdString();
        EXPECT_FALSE(result.error.sentence.English().contains(QLatin1Char('%')))
            << result.error.sentence.English().toStdString();
    }
}

TEST(DownloadErrors, EachHasASentenceOfItsOwn)
{
    std::set<QString> sentences;
    for (ErrorCause const cause : EveryCause())
    {
        EngineError const error = MakeError(cause);
        if (cause >= ErrorCause::DownloadLengthInvalid && cause <= ErrorCause::DownloadSystemBusy)
        {
            EXPECT_TRUE(sentences.insert(error.sentence.English()).second) << error.sentence.English().toStdString();
            EXPECT_EQ(error.code, ErrorCode::Download);
        }
        EngineError const download = AsDownloadError(error);
        EXPECT_EQ(download.code, ErrorCode::Download);
        EXPECT_EQ(download.cause, error.cause);
        bool const isReworded = download.sentence.English() != error.sentence.English();
        EXPECT_EQ(isReworded, EntryOf(cause).downloadSentence != nullptr);
        EXPECT_EQ(isReworded, isReworded && sentences.insert(download.sentence.English()).second);
    }
    EXPECT_GE(sentences.size(), 15u + 7u);
}

TEST_F(ArchiveDownloadTest, DripIsTooSlowAndWhatCameIsKept)
{
    LoopbackServer server(Scripted());
    script = Dripping("HTTP/1.1 200 OK\r\nETag: \"one\"\r\nContent-Length: 300000\r\n\r\n" + ARCHIVE.left(1000),
                      ARCHIVE.mid(1000), 10);
    DownloadRequest request = RequestFor(server.Url(), SIZE);
    request.limits.rateWindow = milliseconds(400);
    EXPECT_EQ(Run(request).cause, ErrorCause::TooSlow);
    QByteArray const part = PartialBytes();
    EXPECT_GT(part.size(), 1000);
    EXPECT_TRUE(ARCHIVE.startsWith(part));
    ASSERT_EQ(server.Requests().size(), 1u) << "a slow server is not asked again at once";
    script = Serving({ARCHIVE, "\"one\""});
    EXPECT_EQ(Run(request).bytes, ARCHIVE);
    EXPECT_EQ(RangeStart(server.Requests().back()), part.size()) << "the next download goes on from there";
}

TEST_F(ArchiveDownloadTest, BodiesOfAnyOtherLengthAreRefusedAndNothingIsKept)
{
    QByteArray const head = "HTTP/1.1 200 OK\r\nETag: \"one\"\r\n";
    struct
    {
        char const* name;
        LoopbackServer::Script script;
        ErrorCause cause;
    } const rows[] = {
        {"announced longer", Answering(OkAnswer(ARCHIVE + 'x')), ErrorCause::DownloadLengthDiffers},
        {"announced shorter", Answering(OkAnswer(ARCHIVE.left(SIZE - 1))), ErrorCause::DownloadLengthDiffers},
        {"one byte more before the close", Answering(head + "\r\n" + ARCHIVE + 'x'), ErrorCause::DownloadLengthDiffers},
        {"endless", AnsweringWithoutEnd(head + "\r\n", QByteArray(65536, 'x')), ErrorCause::DownloadLengthDiffers},
        {"endless chunks",
         AnsweringWithoutEnd(head + "Transfer-Encoding: chunked\r\n\r\n",
                             "10000\r\n" + QByteArray(65536, 'x') + "\r\n"),
         ErrorCause::DownloadLengthDiffers},
        {"chunks too few", Answering(head + "Transfer-Encoding: chunked\r\n\r\n5\r\nshort\r\n0\r\n\r\n"),
         ErrorCause::DownloadLengthDiffers},
        {"endless behind its length",
         AnsweringWithoutEnd(head + "Content-Length: 300000\r\n\r\n", QByteArray(65536, 'x')), ErrorCause::SurplusBody},
    };
    for (auto const& row : rows)
    {
        LoopbackServer server(row.script);
        EXPECT_EQ(Run(RequestFor(server.Url(), SIZE)).cause, row.cause) << row.name;
        for (QString const& name : Files(QStringLiteral(".archive")))
        {
            EXPECT_EQ(QFileInfo(QDir(Folder()).filePath(name)).size(), 0) << row.name;
        }
    }
}

TEST_F(ArchiveDownloadTest, ServerThatCannotBeReachedAtAllIsAnErrorAtOnce)
{
    QUrl url;
    {
        LoopbackServer const closed(Silent());
        url = closed.Url();
    }
    EXPECT_EQ(Run(RequestFor(url, SIZE)).cause, ErrorCause::ConnectionRefused);
}

TEST_F(ArchiveDownloadTest, SecondDownloadOfTheSameArchiveIsToldOfTheFirst)
{
    LoopbackServer server(Silent());
    DownloadRequest const request = RequestFor(server.Url(), SIZE);
    ArchiveDownload first(request);
    first.Start([](DownloadProgress const&) {}, [](DownloadOutcome const&) {});
    ASSERT_TRUE(WaitFor([&server] { return !server.Requests().empty(); }));
    EXPECT_EQ(Run(request).cause, ErrorCause::DownloadBusy);
    EXPECT_EQ(server.Requests().size(), 1u);
}

TEST_F(ArchiveDownloadTest, DestroyingItKeepsWhatIsThereForTheNext)
{
    LoopbackServer server(Scripted());
    script = [](QSslSocket& socket, QByteArray const& request, int) {
        socket.write(AnswerFor({ARCHIVE, "\"one\"", {}, 100000}, request));
    };
    DownloadRequest const request = RequestFor(server.Url(), SIZE);
    bool wasTold = false;
    auto download = std::make_unique<ArchiveDownload>(request);
    download->Start([](DownloadProgress const&) {}, [&wasTold](DownloadOutcome const&) { wasTold = true; });
    ASSERT_TRUE(WaitFor([this] { return !Files().isEmpty() && QFileInfo(PartialPath()).size() == 100000; }));
    download.reset();
    QCoreApplication::processEvents();
    EXPECT_FALSE(wasTold);
    script = Serving({ARCHIVE});
    EXPECT_EQ(Run(request).bytes, ARCHIVE);
    EXPECT_EQ(RangeStart(server.Requests()[1]), 100000);
}

TEST_F(ArchiveDownloadTest, MayBeDestroyedByItsOwnCallbacks)
{
    LoopbackServer whole(Serving({ARCHIVE}));
    bool isFinished = false;
    auto download = std::make_unique<ArchiveDownload>(RequestFor(whole.Url(), SIZE));
    download->Start([](DownloadProgress const&) {},
                    [&](DownloadOutcome const& outcome)
                    {
                        download.reset();
                        isFinished = outcome.has_value();
                    });
    EXPECT_TRUE(WaitFor([&] { return isFinished; }));

    LoopbackServer silent(Silent());
    bool wasTold = false;
    download = std::make_unique<ArchiveDownload>(RequestFor(silent.Url(), SIZE));
    download->Start([&](DownloadProgress const&) { download.reset(); },
                    [&](DownloadOutcome const&) { wasTold = true; });
    EXPECT_TRUE(WaitFor([&] { return !download; }));
    QCoreApplication::processEvents();
    EXPECT_FALSE(wasTold);
}

TEST_F(ArchiveDownloadTest, ProgressTellsWhatIsThereAndHowFastItComes)
{
    LoopbackServer server(Scripted());
    script = Serving({ARCHIVE, "\"one\"", {}, 100000});
    ASSERT_EQ(Run(OnceOnly(server.Url())).cause, ErrorCause::IncompleteBody);
    script = [](QSslSocket& socket, QByteArray const& request, int)
    {
        QByteArray const answer = AnswerFor({ARCHIVE}, request);
        int const headBytes = answer.indexOf("\r\n\r\n") + 4;
        Dripping(answer.left(headBytes + 150000), answer.mid(headBytes + 150000, 40), 10)(socket, request, 0);
    };
    DownloadResult const result = Run(OnceOnly(server.Url()));
    EXPECT_EQ(result.cause, ErrorCause::IncompleteBody);
    ASSERT_FALSE(result.progress.empty());
    quint64 before = 100000;
    for (DownloadProgress const& progress : result.progress)
    {
        EXPECT_EQ(progress.totalBytes, static_cast<quint64>(SIZE));
        EXPECT_GE(progress.doneBytes, before);
        before = progress.doneBytes;
    }
    EXPECT_GT(before, 200000u);
}

TEST_F(ArchiveDownloadTest, DiscardedArchiveIsFetchedWholeAgain)
{
    LoopbackServer server(Serving({ARCHIVE}));
    DownloadRequest const request = RequestFor(server.Url(), SIZE);
    DownloadResult const first = Run(request);
    EXPECT_TRUE(ArchiveDownload::Discard(request));
    EXPECT_TRUE(Files(QStringLiteral(".archive")).isEmpty());
    EXPECT_EQ(Run(request).bytes, ARCHIVE) << "though the first descriptor is still open";
    EXPECT_EQ(server.Requests().size(), 2u);
    EXPECT_EQ(RangeStart(server.Requests()[1]), std::nullopt);
}

} // namespace
