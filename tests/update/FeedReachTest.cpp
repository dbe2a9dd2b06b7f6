// FeedReachTest.cpp: the addresses that a feed may name depend on the address of the feed.
#include "Engine/core/update/UpdateFlow.h"
#include "Engine/core/update/UpdateRules.h"
#include "tests/engine/FeedText.h"
#include "tests/support/DialogDriver.h"
#include "tests/support/LoopbackServer.h"
#include "tests/support/TestProxy.h"
#include "tests/update/ScriptedUpdate.h"

#include <QNetworkProxy>

namespace
{

using namespace Pelnar::Testing;
using namespace Pelnar::Engine;

QByteArray const NOTES = "http://127.0.0.1:1/notes.html";

class FeedReach : public UpdateFixture
{
protected:
    FeedReach()
    {
        QByteArray item = ItemOf("5.1", "<sparkle:releaseNotesLink>" + NOTES + "</sparkle:releaseNotesLink><link>" +
                                            NOTES + "</link>");
        item.replace(" length=", QByteArray(" sparkle:edSignature=\"") + GOOD_SIGNATURE + "\" length=");
        answer = OkAnswer(FeedWith(item));
        settings.check.insecureHttp = InsecureHttp::Anywhere;
    }
    ~FeedReach() override { QNetworkProxy::setApplicationProxy(QNetworkProxy(QNetworkProxy::NoProxy)); }

    /// A person starts a check and installs the offered version.
    DownloadRequest DownloadAfter(QUrl const& feed)
    {
        settings.check.feedUrl = feed;
        UpdateFlow flow(CheckKind::Interactive, settings, host, windows, parts);
        flow.Start();
        EXPECT_TRUE(WaitFor([&] { return windows.offer.has_value(); })) << "no offer";
        if (windows.offer)
        {
            windows.Choose(UpdateChoice::InstallUpdate);
        }
        EXPECT_TRUE(WaitFor([&] { return !parts.requests.empty(); })) << "no download";
        return parts.requests.empty() ? DownloadRequest() : parts.requests.back();
    }

    QByteArray answer;
    LoopbackServer server{[this](QSslSocket& socket, QByteArray const& request, int number)
                          { Answering(answer)(socket, request, number); }};
};

TEST_F(FeedReach, FromHereMayNameThisComputer)
{
    EXPECT_EQ(DownloadAfter(server.Url()).feedReach, AddressReach::ThisComputer);
    EXPECT_EQ(windows.offer->notes.address, QUrl(QString::fromLatin1(NOTES)));
}

TEST_F(FeedReach, FromElsewhereMayNotAndItsLinkToThisComputerIsNotShown)
{
    TestProxy proxy(TestProxy::Kind::Http, static_cast<quint16>(server.Url().port()));
    QNetworkProxy::setApplicationProxy(
        QNetworkProxy(QNetworkProxy::HttpCachingProxy, QStringLiteral("127.0.0.1"), proxy.Port()));
    QUrl const feed = server.Url(QStringLiteral("/feed.xml"), QStringLiteral("far.example.com"));
    EXPECT_EQ(DownloadAfter(feed).feedReach, AddressReach::Network);
    EXPECT_TRUE(windows.offer->notes.address.isEmpty());
}

TEST_F(FeedReach, DownloadKnowsWhoseUserNameAndPasswordThereAre)
{
    QUrl feed = server.Url();
    feed.setUserInfo(QStringLiteral("me:secret"));
    DownloadRequest const request = DownloadAfter(feed);
    EXPECT_EQ(request.feedUrl, feed);
    EXPECT_TRUE(request.url.userInfo().isEmpty()) << "the address is written down beside the archive";
}

} // namespace
