// AddressTest.cpp: the reach of an address, and the proxy in the settings. Pure values.
#include "Engine/core/fetch/AddressReach.h"
#include "Engine/core/fetch/ProxyChoice.h"

#include <gtest/gtest.h>

#include <QNetworkInterface>

#include <map>

namespace
{

using namespace Pelnar::Engine;

NumericAddress Address(char const* text)
{
    return NumericAddressOf(QString::fromLatin1(text)).value();
}

TEST(AddressReach, OfThisComputer)
{
    for (char const* const text :
         {"127.0.0.1", "127.255.0.9", "0.0.0.0", "0.1.2.3", "::1", "::", "::ffff:127.0.0.1", "::ffff:0.0.0.0",
          "::127.0.0.1", "::ffff:0:127.0.0.1", "64:ff9b::127.0.0.1", "64:ff9b:1::127.0.0.1", "64:ff9b:1:7::127.0.0.1",
          "2002:7f00:1::", "2002:7f01:203:1::9", "2001:0:cb00:7109:0:0:80ff:fffe", "2001:db8::5efe:127.0.0.1",
          "2001:db8::200:5efe:127.0.0.1"})
    {
        EXPECT_EQ(ReachOf(Address(text)), AddressReach::ThisComputer) << text;
    }
}

TEST(AddressReach, OfTheLink)
{
    for (char const* const text :
         {"169.254.0.1", "169.254.169.254", "fe80::1", "febf::1", "::ffff:169.254.1.1", "64:ff9b::a9fe:a9fe",
          "2001:db8::5efe:169.254.1.1", "224.0.0.1", "255.255.255.255", "ff02::1"})
    {
        EXPECT_EQ(ReachOf(Address(text)), AddressReach::Link) << text;
    }
}

TEST(AddressReach, OfTheNetworkPrivateOnesToo)
{
    for (char const* const text : {"203.0.113.9", "10.255.255.1", "192.168.255.1", "172.31.255.254", "128.0.0.1",
                                   "1.0.0.1", "169.253.0.1", "2001:db8::1", "fd12::1", "fec0::1", "::ffff:203.0.113.9"})
    {
        EXPECT_EQ(ReachOf(Address(text)), AddressReach::Network) << text;
    }
}

TEST(AddressReach, EveryInterfacesAddressIsOfThisComputer)
{
    for (QHostAddress const& address : QNetworkInterface::allAddresses())
    {
        EXPECT_EQ(ReachOf(NumericAddressOf(address.toString()).value()), AddressReach::ThisComputer)
            << address.toString().toStdString();
    }
}

TEST(AddressReach, OfAHostAsItIsSpelt)
{
    for (char const* const text :
         {"http://localhost/", "http://LOCALHOST./", "http://sub.localhost/", "http://127.0.0.1/", "http://127.1/",
          "http://2130706433/", "http://0x7f000001/", "http://0x7f.1/", "http://0177.0.0.1/", "http://017700000001/",
          "http://0/", "http://[::1]/", "http://[::ffff:7f00:1]/", "http://[0:0:0:0:0:ffff:127.0.0.1]/",
          "http://%6c%6fcalhost/", "http://127.0.0.1./"})
    {
        QUrl const url(QString::fromLatin1(text));
        EXPECT_TRUE(!url.isValid() || ReachOf(url) == AddressReach::ThisComputer) << text;
    }
    EXPECT_EQ(ReachOf(QUrl(QStringLiteral("http://169.254.169.254/"))), AddressReach::Link);
    EXPECT_EQ(ReachOf(QUrl(QStringLiteral("http://[fe80::1]/"))), AddressReach::Link);
    for (char const* const text : {"http://localhost.example.com/", "http://example.com/", "http://10.0.0.1/",
                                   "http://127.0.0.1.example.com/", "http://notlocalhost/"})
    {
        EXPECT_EQ(ReachOf(QUrl(QString::fromLatin1(text))), AddressReach::Network) << text;
    }
}

struct EnvironmentRow
{
    char const* name;
    std::map<std::string, QByteArray> variables;
    char const* url;
    char const* expected; ///< "none" where nothing is named
};

void PrintTo(EnvironmentRow const& row, std::ostream* out)
{
    *out << row.name;
}

class EnvironmentProxy : public ::testing::TestWithParam<EnvironmentRow>
{
};

QString Described(std::optional<ProxyChoice> const& choice)
{
    if (!choice)
    {
        return QStringLiteral("none");
    }
    constexpr char const* NAMES[] = {"direct", "http", "socks5", "socks5h", "unknown"};
    QString const name = QString::fromLatin1(NAMES[static_cast<int>(choice->kind)]);
    return choice->host.isEmpty() ? name
                                  : QStringLiteral("%1 %2:%3@%4:%5")
                                        .arg(name, choice->user, choice->password, choice->host)
                                        .arg(choice->port);
}

TEST_P(EnvironmentProxy, IsReadAsCurlReadsIt)
{
    auto const environment = [](char const* name)
    {
        auto const found = GetParam().variables.find(name);
        return found == GetParam().variables.end() ? QByteArray() : found->second;
    };
    EXPECT_EQ(Described(EnvironmentsProxy(QUrl(QString::fromLatin1(GetParam().url)), environment)),
              QString::fromLatin1(GetParam().expected));
}

INSTANTIATE_TEST_SUITE_P(
    Rows, EnvironmentProxy,
    ::testing::Values(
        EnvironmentRow{"Nothing", {}, "https://a.example/", "none"},
        EnvironmentRow{"Own", {{"https_proxy", "http://p:8080"}}, "https://a.example/", "http :@p:8080"},
        EnvironmentRow{"UpperCase", {{"HTTPS_PROXY", "http://p:8080"}}, "https://a.example/", "http :@p:8080"},
        EnvironmentRow{"UpperCaseOfHttpDoesNotCount", {{"HTTP_PROXY", "http://p:8080"}}, "http://a.example/", "none"},
        EnvironmentRow{"OfTheOtherScheme", {{"http_proxy", "http://p:8080"}}, "https://a.example/", "none"},
        EnvironmentRow{"ForAll", {{"all_proxy", "socks5h://p:1080"}}, "https://a.example/", "socks5h :@p:1080"},
        EnvironmentRow{"OwnBeforeAll",
                       {{"all_proxy", "socks5://q"}, {"https_proxy", "p:3128"}},
                       "https://a.example/",
                       "http :@p:3128"},
        EnvironmentRow{"Password", {{"http_proxy", "http://u:p%40%3A@p:1"}}, "http://a.example/", "http u:p@:@p:1"},
        EnvironmentRow{"NoPort", {{"http_proxy", "p"}}, "http://a.example/", "http :@p:1080"},
        EnvironmentRow{"Secure", {{"https_proxy", "https://p:1"}}, "https://a.example/", "unknown"},
        EnvironmentRow{"NoAddress", {{"https_proxy", "http://"}}, "https://a.example/", "unknown"},
        EnvironmentRow{"ExceptedName",
                       {{"https_proxy", "p"}, {"no_proxy", "b.example, a.example"}},
                       "https://a.example/",
                       "direct"},
        EnvironmentRow{
            "ExceptedBelow", {{"https_proxy", "p"}, {"NO_PROXY", ".example"}}, "https://a.example/", "direct"},
        EnvironmentRow{"NotExceptedPart",
                       {{"https_proxy", "p:1"}, {"no_proxy", "a.example"}},
                       "https://ba.example/",
                       "http :@p:1"},
        EnvironmentRow{"ExceptedAll", {{"https_proxy", "p"}, {"no_proxy", "*"}}, "https://a.example/", "direct"},
        EnvironmentRow{
            "ExceptedAddress", {{"http_proxy", "p"}, {"no_proxy", "10.0.0.1"}}, "http://10.0.0.1/", "direct"},
        EnvironmentRow{
            "ExceptedSubnet", {{"http_proxy", "p"}, {"no_proxy", "10.0.0.0/8"}}, "http://10.9.0.1/", "direct"},
        EnvironmentRow{
            "NotOfTheSubnet", {{"http_proxy", "p:1"}, {"no_proxy", "10.0.0.0/8"}}, "http://11.9.0.1/", "http :@p:1"},
        EnvironmentRow{
            "ExceptedIPv6", {{"http_proxy", "p"}, {"no_proxy", "[fd00::1]"}}, "http://[fd00::1]/", "direct"}),
    [](auto const& row) { return std::string(row.param.name); });

TEST(ProxyChoice, FirstThatIsSpokenCounts)
{
    QString const host = QStringLiteral("p");
    QNetworkProxy const ftp(QNetworkProxy::FtpCachingProxy, host, 1);
    QNetworkProxy const http(QNetworkProxy::HttpProxy, host, 2);
    QNetworkProxy const none(QNetworkProxy::NoProxy);
    EXPECT_EQ(Described(FirstUsable({ftp, http, none})), QStringLiteral("http :@p:2"));
    EXPECT_EQ(Described(FirstUsable({none, http})), QStringLiteral("direct"));
    EXPECT_EQ(Described(FirstUsable({ftp})), QStringLiteral("unknown")) << "it is not gone round";
    EXPECT_EQ(Described(FirstUsable({})), QStringLiteral("direct"));
    QNetworkProxy socks(QNetworkProxy::Socks5Proxy, host, 3);
    EXPECT_EQ(Described(FirstUsable({socks})), QStringLiteral("socks5h :@p:3"));
    socks.setCapabilities(QNetworkProxy::TunnelingCapability);
    EXPECT_EQ(Described(FirstUsable({socks})), QStringLiteral("socks5 :@p:3"));
}

} // namespace
