// LintRuleRows.cpp: the rows of the test of the rules. Every feed has exactly one finding.

#include "tests/publisher/lint/LintCase.h"

namespace Pelnar::Testing
{
namespace
{

// 64 bytes in base64. The rules read the form only, so they need not be a valid signature.
char const* const SIGNATURE =
    "AAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAA==";

/// The attributes of a good enclosure after the address.
QByteArray Good(QByteArray const& version, QByteArray const& length = "9")
{
    return " length='" + length + "' sparkle:version='" + version + "' sparkle:edSignature='" + SIGNATURE + "'";
}

QByteArray Enclosure(QByteArray const& version, QByteArray const& more = {})
{
    return "<enclosure url='https://dl.example.com/" + version + ".zip'" + Good(version) + more + "/>";
}

QByteArray Item(QByteArray const& version, QByteArray const& more = {})
{
    return "<item>" + more + Enclosure(version) + "</item>\n";
}

QByteArray WithAddress(QByteArray const& url)
{
    return "<item><enclosure url='" + url + "'" + Good("5.1") + "/></item>";
}

QByteArray WithLength(QByteArray const& attribute)
{
    return "<item><enclosure url='https://a.example/a.zip' sparkle:version='5.1' sparkle:edSignature='" +
           QByteArray(SIGNATURE) + "' " + attribute + "/></item>";
}

QByteArray Delta(QByteArray const& from, QByteArray const& length = "2")
{
    return "<enclosure url='https://dl.example.com/" + from + ".delta' length='" + length + "' sparkle:deltaFrom='" +
           from + "' sparkle:edSignature='" + SIGNATURE + "'/>";
}

QByteArray WithDeltas(QByteArray const& deltas)
{
    return "<item>" + Enclosure("5.1") + "\n<sparkle:deltas>" + deltas + "</sparkle:deltas></item>\n" + Item("5.0");
}

QByteArray Os(QByteArray const& name, QByteArray const& system)
{
    return "<item><enclosure url='https://dl.example.com/" + name + "'" + Good("5.1") + " sparkle:os='" + system +
           "'/></item>";
}

/// An item of that version with the given signer and trusted keys.
QByteArray Keyed(QByteArray const& version, QByteArray const& signer, QByteArray const& trusted)
{
    return Item(version, "<pelnar:keys xmlns:pelnar='https://pelnar.example/xml-namespaces/appcast' signer='" + signer +
                             "' trusted='" + trusted + "'/>");
}

QByteArray Nested(char const* tag, int depth)
{
    QByteArray text;
    for (int i = 0; i < depth; ++i)
    {
        text += QByteArray("<") + tag + ">";
    }
    for (int i = 0; i < depth; ++i)
    {
        text += QByteArray("</") + tag + ">";
    }
    return text;
}

QByteArray Attributes(int count)
{
    QByteArray text;
    for (int i = 0; i < count; ++i)
    {
        text += " a" + QByteArray::number(i) + "=''";
    }
    return text;
}

QByteArray Namespaces(int count)
{
    QByteArray text;
    for (int i = 0; i < count; ++i)
    {
        text += " xmlns:n" + QByteArray::number(i) + "='urn:" + QByteArray::number(i) + "'";
    }
    return text;
}

void AddDocumentCases(std::vector<LintCase>& cases)
{
    cases.push_back({"MalformedXml", "<rss>\n<item></rss>", "malformed-xml 2:13 Opening and ending tag mismatch"});
    cases.push_back({"DocumentType", "<!DOCTYPE rss>\n<rss/>",
                     "document-type 1:1 Line 1 of the feed has a document type declaration, which is not"});
    cases.push_back({"TooDeep", Nested("a", 65), "too-deep 1:196"});
    cases.push_back({"TooManyAttributes", "<rss" + Attributes(257) + "/>", "too-many-attributes 1:1"});
    cases.push_back({"TagTooLong", "<rss a='" + QByteArray(70000, 'x') + "'/>", "tag-too-long 1:1"});
    cases.push_back(
        {"TooManyItems", "<rss>" + QByteArray("<item/>").repeated(2001) + "</rss>", "too-many-items 1:14013"});
    cases.push_back(
        {"TooMuchMarkup", "<rss>" + QByteArray("<a/>").repeated(100 * 1000) + "</rss>", "too-much-markup 1:"});
    cases.push_back({"TooManyNamespaces", "<rss" + Namespaces(65) + "/>", "too-many-namespaces 1:"});
    cases.push_back({"NotAFeed", "<html><body/></html>", "not-a-feed 1:7"});
    cases.push_back({"OtherDocument", "<Error><Code/></Error>", "not-a-feed 1:8"});
    cases.push_back({"NoItems", "<rss><channel/></rss>", "no-items 1:1 the feed has no item"});
    cases.push_back({"ControlCharacter",
                     FeedOf(Item("5.1", "\n<title>a\xE2\x80\xAE"
                                        "b</title>")),
                     "control-character 3:1 <title> has the character U+202e"});
    cases.push_back({"ControlCharacterInAnAttribute",
                     FeedOf(Item("5.1", "\n<x y='a\xC2\x9B"
                                        "b'/>")),
                     "control-character 3:1 y has the character U+009b"});
    cases.push_back({"TagCharacter", FeedOf(Item("5.1", "\n<title>a&#xE0041;b</title>")),
                     "control-character 3:1 <title> has the character U+e0041"});
}

void AddNameCases(std::vector<LintCase>& cases)
{
    cases.push_back({"WrongNamespacePrefix", FeedOf(Item("5.1", "\n<sparkle:x xmlns:sparkle='urn:other'/>")),
                     "wrong-namespace 3:1 the prefix sparkle is bound to \"urn:other\""});
    cases.push_back({"WrongNamespaceUri",
                     FeedOf(Item("5.1", "\n<s:x xmlns:s='https://www.andymatuschak.org/xml-namespaces/sparkle/'/>")),
                     "wrong-namespace 3:1 the prefix s is bound to "
                     "\"https://www.andymatuschak.org/xml-namespaces/sparkle/\""});
    cases.push_back({"AnyPrefixOfTheRealNamespacePasses",
                     FeedOf(Item("5.1", "<s:tags xmlns:s='http://www.andymatuschak.org/xml-namespaces/sparkle'/>")),
                     ""});
    cases.push_back({"NameCaseOfFeedElement",
                     FeedOf(Item("5.1", "\n<sparkle:minimumsystemversion>1</sparkle:minimumsystemversion>")),
                     "name-case 3:1 clients read minimumSystemVersion, but not sparkle:minimumsystemversion"});
    cases.push_back({"NameCaseOfPlainElement", FeedOf(Item("5.1", "\n<pubdate/>")),
                     "name-case 3:1 clients read pubDate, but not pubdate"});
    cases.push_back({"NameCaseOfAttribute", FeedOf("<item>" + Enclosure("5.1", " sparkle:OS='linux'") + "</item>"),
                     "name-case 2:7 clients read os, but not sparkle:OS"});
    cases.push_back(
        {"NameMisspeltElement", FeedOf(Item("5.1", "\n<sparkle:minimumSystemVerison>1</sparkle:minimumSystemVerison>")),
         "name-misspelt 3:1 clients do not read sparkle:minimumSystemVerison; minimumSystemVersion may be meant"});
    cases.push_back({"NameMisspeltAttribute",
                     FeedOf("<item>" + Enclosure("5.1", " sparkle:edSignatur='x'") + "</item>"),
                     "name-misspelt 2:7 clients do not read sparkle:edSignatur; edSignature may be meant"});
    cases.push_back({"UnknownNamePasses", FeedOf(Item("5.1", "<sparkle:whatever/>")), ""});
    cases.push_back(
        {"WrongNamespaceWithoutItsConsequences",
         QByteArray(FeedOf(Item("5.1") + Item("5.0"))).replace("http://www.andymatuschak.org", "https://x.example"),
         "wrong-namespace 1:1 the prefix sparkle is bound to "
         "\"https://x.example/xml-namespaces/sparkle\""});
    cases.push_back({"ElementWithoutNamespace", FeedOf(Item("5.1", "\n<minimumSystemVersion>1</minimumSystemVersion>")),
                     "name-without-namespace 3:1 <minimumSystemVersion> is not in the feed's namespace"});
    cases.push_back({"AttributeWithoutNamespace", FeedOf("<item>" + Enclosure("5.1", " os='linux'") + "</item>"),
                     "name-without-namespace 2:7 the attribute os is not in the feed's namespace"});
    cases.push_back({"RepeatedElement",
                     FeedOf(Item("5.1", "<link>https://a.example/</link>\n<link>https://b.example/</link>")),
                     "repeated-element 3:1 another <link> of the item"});
    cases.push_back({"RepeatedEnclosure", FeedOf("<item>" + Enclosure("5.1") + "\n" + Enclosure("5.1") + "</item>"),
                     "repeated-enclosure 3:1 another enclosure of the item for the same platform"});
    cases.push_back({"AnEnclosureForEachPlatformPasses",
                     FeedOf("<item>" + Enclosure("5.1", " sparkle:os='linux'") +
                            Enclosure("5.1", " sparkle:os='macos'") + "</item>"),
                     ""});
}

void AddVersionCases(std::vector<LintCase>& cases)
{
    QByteArray const noVersion = QByteArray(" length='9' sparkle:edSignature='") + SIGNATURE + "'/></item>";
    cases.push_back({"VersionMissing",
                     FeedOf("<item><title>T</title><enclosure url='https://a.example/a.zip'" + noVersion),
                     "version-missing 2:23 item \"T\" has no version"});
    cases.push_back({"VersionUnreadable", FeedOf(Item("5.1b")), "version-unreadable 2:7 the version is \"5.1b\""});
    cases.push_back(
        {"VersionOfFiveNumbers", FeedOf(Item("1.2.3.4.5")), "version-unreadable 2:7 the version is \"1.2.3.4.5\""});
    cases.push_back({"VersionNegative", FeedOf(Item("1.-2")), "version-unreadable 2:7 the version is \"1.-2\""});
    cases.push_back(
        {"VersionOverflow", FeedOf(Item("5.2147483648")), "version-overflow 2:7 the version is \"5.2147483648\""});
    cases.push_back({"GreatestNumberPasses", FeedOf(Item("5.2147483647")), ""});
    cases.push_back({"VersionFromFileName", FeedOf("<item><enclosure url='https://a.example/App_5.1.zip'" + noVersion),
                     "version-from-file-name 2:7 5.1 is only in App_5.1.zip"});
    cases.push_back({"VersionContradiction", FeedOf("\n" + Item("5.1", "\n<sparkle:version>5.2</sparkle:version>")),
                     "version-contradiction 4:1 5.2, but the enclosure says 5.1"});
    cases.push_back({"VersionWrittenTwicePasses", FeedOf(Item("5.1", "<sparkle:version>5.1.0</sparkle:version>")), ""});
    cases.push_back({"VersionMixed", FeedOf(Item("100") + Item("5.9")), "version-mixed 3:7 100 beside 5.9"});
    cases.push_back(
        {"VersionSpelling",
         FeedOf("<item>" + Enclosure("5.1") +
                "<sparkle:maximumSystemVersion>11</sparkle:maximumSystemVersion>"
                "</item>\n<item>" +
                Enclosure("5.1.0") + "<sparkle:minimumSystemVersion>12</sparkle:minimumSystemVersion></item>"),
         "version-spelling 3:7 5.1.0 is the same version as 5.1 in line 2"});
    cases.push_back({"SamePriority", FeedOf(Item("5.1") + Item("5.1")),
                     "same-priority 3:7 item 5.1 has the version and the kind of the item in line 2"});
    struct Bounds
    {
        char const* name;
        char const* first;
        char const* second;
        bool isShared;
    };
    Bounds const bounds[] = {
        {"UpToThenFrom", "maximumSystemVersion>11", "minimumSystemVersion>12", false},
        {"FromThenUpTo", "minimumSystemVersion>12", "maximumSystemVersion>11", false},
        {"UpToThenFromTheSame", "maximumSystemVersion>11", "minimumSystemVersion>11", true},
        {"FromThenUpToTheSame", "minimumSystemVersion>11", "maximumSystemVersion>11", true},
        {"UpToThenFromTheSameInAnotherSpelling", "maximumSystemVersion>11", "minimumSystemVersion>11.0", true},
        {"FromThenUpToTheSameInAnotherSpelling", "minimumSystemVersion>11.0", "maximumSystemVersion>11", true},
        {"FromThenUpToHigher", "minimumSystemVersion>11", "maximumSystemVersion>12", true},
        {"UpToThenUpTo", "maximumSystemVersion>11", "maximumSystemVersion>12", true},
        {"FromThenFrom", "minimumSystemVersion>11", "minimumSystemVersion>12", true},
    };
    auto const bound = [](char const* text)
    {
        QByteArray const open(text);
        return QByteArray("<sparkle:") + open + "</sparkle:" + open.left(open.indexOf('>')) + ">";
    };
    for (Bounds const& row : bounds)
    {
        cases.push_back({std::string("SamePriority") + row.name,
                         FeedOf(Item("5.1", bound(row.first)) + Item("5.1", bound(row.second))),
                         row.isShared ? "same-priority 3:" : ""});
    }
    cases.push_back({"AnInstallerBesideABundlePasses",
                     FeedOf(Item("6.1") + "<item><enclosure url='https://a.example/a.sparkle_guided.zip'" +
                            Good("6.1") + "/></item>"),
                     ""});
}

void AddOfferCases(std::vector<LintCase>& cases)
{
    for (char const* const name : {"App.dmg", "App.PKG", "App.exe", "App.msi", "App.deb", "App.AppImage"})
    {
        cases.push_back({std::string("ForeignPackage") + QByteArray(name).replace('.', "").toStdString(),
                         FeedOf(WithAddress("https://dl.example.com/" + QByteArray(name))),
                         std::string("foreign-package 2:7 ") + name});
    }
    cases.push_back({"PackageForItsSystemPasses", FeedOf(Os("App.dmg", "macos") + Os("App.exe", "windows")), ""});
    cases.push_back({"PolicyIgnored",
                     FeedOf(Item("5.1", "\n<sparkle:ignoreSkippedUpgradesBelowVersion>5</sparkle:"
                                        "ignoreSkippedUpgradesBelowVersion>")),
                     "policy-ignored 3:1 <sparkle:ignoreSkippedUpgradesBelowVersion> is \"5\""});
    QByteArray const a(16, 'a');
    QByteArray const b(16, 'b');
    cases.push_back({"KeyNotTrusted", FeedOf(Keyed("5.1", b, b) + Keyed("5.0", a, a)), "key-not-trusted 2:"});
    cases.push_back({"KeyThatTheOlderTrustsPasses", FeedOf(Keyed("5.1", b, b) + Keyed("5.0", a, a + ' ' + b)), ""});
    cases.push_back({"KeyOfAnOlderItemPasses", FeedOf(Keyed("5.1", a, b) + Keyed("5.0", a, a)), ""});
    cases.push_back({"KeyThatAVersionBetweenBringsPasses",
                     FeedOf(Keyed("5.2", b, b) + Keyed("5.1", a, a + ' ' + b) + Keyed("5.0", a, a)), ""});
    auto const onMachine = [](QByteArray item, char const* machine)
    {
        return item.replace("<enclosure",
                            QByteArray("<enclosure xmlns:m='https://pelnar.example/xml-namespaces/appcast' "
                                       "m:machine='") +
                                machine + "'");
    };
    cases.push_back(
        {"KeyThatAVersionForAnotherMachineBrings",
         FeedOf(onMachine(Keyed("5.2", b, b), "aarch64") + onMachine(Keyed("5.1", a, a + ' ' + b), "x86_64") +
                onMachine(Keyed("5.0", a, a), "aarch64")),
         "key-not-trusted 2:"});
    cases.push_back({"KeyOfAnotherMachinePasses",
                     FeedOf(onMachine(Keyed("5.2", b, b), "x86_64") + onMachine(Keyed("5.0", a, a), "aarch64")), ""});
    cases.push_back(
        {"DateOrder",
         FeedOf(Item("5.2", "<pubDate>Mon, 07 Jan 2019 10:00:00 +0000</pubDate>") +
                Item("5.1", "<pubDate>Tue, 08 Jan 2019 10:00:00 +0000</pubDate>")),
         "date-order 2:1 5.2 has the date 2019-01-07T10:00:00Z, but the older 5.1 has 2019-01-08T10:00:00Z"});
    cases.push_back({"DatesInTheOrderOfVersionsPass",
                     FeedOf(Item("5.2", "<pubDate>Tue, 08 Jan 2019 10:00:00 +0000</pubDate>") +
                            Item("5.1", "<pubDate>Tue, 08 Jan 2019 12:00:00 +0200</pubDate>")),
                     ""});
}

void AddPolicyCases(std::vector<LintCase>& cases)
{
    std::string const date = "<pubDate>Mon, 07 Jan 2019 10:00:00 +0000</pubDate>";
    struct Row
    {
        char const* name;
        std::string elements;
        char const* found;
    };
    for (Row const& row :
         {Row{"PolicyChannelPasses", "<sparkle:channel>beta</sparkle:channel>", ""},
          Row{"PolicyChannelOfTwoWords", "<sparkle:channel>beta 2</sparkle:channel>",
              "policy-unreadable 2:1 no application can enable the channel \"beta 2\""},
          Row{"PolicyChannelOfAnEmptyVariable", "<sparkle:channel> </sparkle:channel>",
              "policy-unreadable 2:7 <sparkle:channel> is empty, so everybody gets the item"},
          Row{"PolicyHardwareOfAnEmptyVariable", "<sparkle:hardwareRequirements/>",
              "policy-unreadable 2:7 <sparkle:hardwareRequirements> is empty, so everybody gets the item"},
          Row{"PolicyMinimumOfAnEmptyVariable", "<sparkle:minimumUpdateVersion></sparkle:minimumUpdateVersion>",
              "policy-unreadable 2:7 <sparkle:minimumUpdateVersion> is empty, so everybody gets the item"},
          Row{"PolicyAutomaticMinimumOfAnEmptyVariable", "<sparkle:minimumAutoupdateVersion/>",
              "policy-unreadable 2:7 <sparkle:minimumAutoupdateVersion> is empty, and has no effect"},
          Row{"SystemMinimumOfAnEmptyVariable", "<sparkle:minimumSystemVersion/>",
              "policy-unreadable 2:7 <sparkle:minimumSystemVersion> is empty, so everybody gets the item"},
          Row{"SystemMaximumOfAnEmptyVariable", "<sparkle:maximumSystemVersion> </sparkle:maximumSystemVersion>",
              "policy-unreadable 2:7 <sparkle:maximumSystemVersion> is empty, so everybody gets the item"},
          Row{"PolicyCriticalBoundOfAnEmptyVariable", "<sparkle:criticalUpdate sparkle:version=' '/>",
              "policy-unreadable 2:7 sparkle:version of <sparkle:criticalUpdate> is empty, and has no effect"},
          Row{"PolicyInformationalVersionOfAnEmptyVariable",
              "<sparkle:informationalUpdate><sparkle:version/></sparkle:informationalUpdate>"
              "<link>https://a.example/5.1</link>",
              "policy-unreadable 2:36 <sparkle:version> is empty, and has no effect"},
          Row{"PolicyInformationalBoundOfAnEmptyVariable",
              "<sparkle:informationalUpdate><sparkle:belowVersion/></sparkle:informationalUpdate>"
              "<link>https://a.example/5.1</link>",
              "policy-unreadable 2:36 <sparkle:belowVersion> is empty, and has no effect"},
          Row{"PolicyHardwarePasses", "<sparkle:hardwareRequirements>arm64</sparkle:hardwareRequirements>", ""},
          Row{"PolicyHardwareOfNobody", "<sparkle:hardwareRequirements>abacus</sparkle:hardwareRequirements>",
              "policy-unreadable 2:1 no client runs on the machine \"abacus\""},
          Row{"PolicyMinimumPasses", "<sparkle:minimumUpdateVersion>5.0</sparkle:minimumUpdateVersion>", ""},
          Row{"PolicyMinimumOfNoVersion", "<sparkle:minimumUpdateVersion>five</sparkle:minimumUpdateVersion>",
              "policy-unreadable 2:1 \"five\" is not a version and has no effect"},
          Row{"PolicyAutomaticMinimumOfNoVersion",
              "<sparkle:minimumAutoupdateVersion>five</sparkle:minimumAutoupdateVersion>",
              "policy-unreadable 2:1 \"five\" is not a version and has no effect"},
          Row{"PolicyCriticalForNoVersion", "<sparkle:criticalUpdate sparkle:version='x'/>",
              "policy-unreadable 2:1 \"x\" is not a version and has no effect"},
          Row{"StagedPasses", date + "<sparkle:phasedRolloutInterval>86400</sparkle:phasedRolloutInterval>", ""},
          Row{"StagedInNoNumber", date + "\n<sparkle:phasedRolloutInterval>day</sparkle:phasedRolloutInterval>",
              "policy-unreadable 3:1 \"day\" is not a number of seconds from 1 to ten years"},
          Row{"StagedWithoutDate", "<sparkle:phasedRolloutInterval>86400</sparkle:phasedRolloutInterval>",
              "staged-without-date 2:1 the date of item 5.1 is \"\""},
          Row{"StagedInFuture",
              "<pubDate>Mon, 07 Jan 2999 10:00:00 +0000</pubDate>"
              "<sparkle:phasedRolloutInterval>86400</sparkle:phasedRolloutInterval>",
              "staged-in-future 2:1 the date of item 5.1 is \"Mon, 07 Jan 2999 10:00:00 +0000\""},
          Row{"FutureOfNoStagesPasses", "<pubDate>Mon, 07 Jan 2999 10:00:00 +0000</pubDate>", ""},
          Row{"InformationalPasses", "<sparkle:informationalUpdate/><link>https://a.example/5.1</link>", ""},
          Row{"InformationalWithoutPage", "<sparkle:informationalUpdate/>", "informational-without-page 2:1 item 5.1"}})
    {
        cases.push_back({row.name, FeedOf(Item("5.1", QByteArray::fromStdString(row.elements))), row.found});
    }
}

void AddMachineCases(std::vector<LintCase>& cases)
{
    QByteArray const own = " xmlns:p='https://pelnar.example/xml-namespaces/appcast'";
    cases.push_back({"OneVersionForTwoMachinesPasses",
                     FeedOf("<item>" + Enclosure("5.1", own + " p:machine='x86_64'") + "</item><item>" +
                            Enclosure("5.1", own + " p:machine='aarch64'") + "</item>"),
                     ""});
    cases.push_back({"EnclosuresForTwoMachinesPass",
                     FeedOf("<item>" + Enclosure("5.1", own + " p:machine='x86_64'") +
                            Enclosure("5.1", own + " p:machine='aarch64'") + "</item>"),
                     ""});
    for (char const* const machine : {"aarch64", "arm64", "riscv64 aarch64"})
    {
        QByteArray const second = QByteArray(own + " p:machine='") + machine + '\'';
        cases.push_back({QByteArray("SecondEnclosure").append(QByteArray(machine).replace(' ', "And")).toStdString(),
                         FeedOf("<item>" + Enclosure("5.1", own + " p:machine='x86_64'") + "\n<enclosure url='http" +
                                "://a.example/a.zip'" + Good("5.1") + second + "/></item>"),
                         "address-insecure 3:1 http://a.example/a.zip"});
    }
    cases.push_back({"SecondEnclosureBehindOneForAll",
                     FeedOf("<item>" + Enclosure("5.1") + "\n<enclosure url='https://a.example/a.zip' length='0'" +
                            "  sparkle:version='5.1' sparkle:edSignature='" + SIGNATURE + "'" + own +
                            " p:machine='aarch64'/></item>"),
                     ""});
    cases.push_back({"MachineOfNobody", FeedOf("<item>" + Enclosure("5.1", own + " p:machine='abacus'") + "</item>"),
                     "policy-unreadable 2:1 no client runs on the machine \"abacus\""});
    cases.push_back({"MachineOfAnEmptyVariable",
                     FeedOf("<item>" + Enclosure("5.1", own + " p:machine=' '") + "</item>"),
                     "policy-unreadable 2:7 p:machine of <enclosure> is empty, so everybody gets the item"});
    cases.push_back({"WithdrawnItemBesideItsSuccessorPasses",
                     FeedOf("<item><p:withdrawn" + own + "/>" + Enclosure("5.1") + "</item>" + Item("5.1")), ""});
}

void AddAddressCases(std::vector<LintCase>& cases)
{
    struct Row
    {
        char const* name;
        char const* address;
        char const* finding;
    };
    Row const rows[] = {
        {"LocalAddressOfAHome", "/home/me/a.zip", "local-address 2:7 /home/me/a.zip"},
        {"LocalAddressOfAMac", "/Users/me/a.zip", "local-address 2:7 /Users/me/a.zip"},
        {"LocalAddressOfWindows", "C:\\a.zip", "local-address 2:7 C:\\a.zip"},
        {"LocalAddressInCapitals", "FILE:///a.zip", "local-address 2:7 FILE:///a.zip"},
        {"NearAddressOfLoopback", "https://localhost:8000/a.zip", "near-address 2:7 https://localhost:8000/a.zip"},
        {"NearAddressOfAPrivateNetwork", "https://192.168.1.7/a.zip", "near-address 2:7 "},
        {"NearAddressOfAPrivateNetworkOfIPv6", "https://[fd00::1]/a.zip", "near-address 2:7 "},
        {"NearAddressOfAnIntranet", "https://build/a.zip", "near-address 2:7 "},
        {"NearAddressByItsEnding", "https://nas.local/a.zip", "near-address 2:7 "},
        {"NearAddressWithADotAtItsEnd", "https://localhost./a.zip", "near-address 2:7 "},
        {"NearAddressInsideOneOfIPv6", "https://[::ffff:10.0.0.1]/a.zip", "near-address 2:7 "},
        {"NearAddressOfNoHost", "https://0.0.0.0/a.zip", "near-address 2:7 "},
        {"NearAddressBehindAProvider", "https://100.64.0.1/a.zip", "near-address 2:7 "},
        {"WebPageOfARelease", "https://a.example/x/releases/tag/v1", "web-page-download 2:7 "},
        {"PublicAddressInDigitsPasses", "https://9.9.9.9/a.zip", ""},
        {"WebPageDownload", "https://a.example/download.html", "web-page-download 2:7 "},
        {"WebPageOfAFolder", "https://a.example/download/", "web-page-download 2:7 "},
        {"DownloadWithoutAnEndingPasses", "https://a.example/download", ""},
    };
    for (Row const& row : rows)
    {
        cases.push_back({row.name, FeedOf(WithAddress(row.address)), row.finding});
    }
    cases.push_back({"LocalAddressInNotes",
                     FeedOf(Item("5.1", "\n<description>&lt;img src='file:///home/me/a.png'></description>")),
                     "local-address 3:1 file:///home/me/a.png"});
    cases.push_back({"LocalAddressOfNotes",
                     FeedOf(Item("5.1", "\n<sparkle:releaseNotesLink>/tmp/a.html</sparkle:releaseNotesLink>")),
                     "local-address 3:1 /tmp/a.html"});
    cases.push_back(
        {"WordsAboutFilesPass", FeedOf(Item("5.1", "\n<description>Opens file: addresses</description>")), ""});
    cases.push_back({"SharedAddress",
                     FeedOf("<item><enclosure url='https://a.example/a.zip'" + Good("5.2") +
                            "/></item>\n<item><enclosure url='https://a.example/a.zip'" + Good("5.1") + "/></item>"),
                     "shared-address 3:7 https://a.example/a.zip is also the address of item 5.2 in line 2"});
    struct Twin
    {
        char const* name;
        char const* first;
        char const* second;
        char const* finding;
    };
    for (Twin const& twin :
         {Twin{"AddressesThatDifferInCase", "/App.zip", "/app.zip",
               "similar-address 3:7 https://a.example/app.zip is similar to the address of item 5.2 in line 2"},
          Twin{"AddressesThatDifferInCaseBeyondAscii", "/%C3%84.zip", "/%C3%A4.zip", "similar-address 3:7 "},
          Twin{"AddressesThatDifferInComposition", "/%C3%A4.zip", "/a%CC%88.zip", "similar-address 3:7 "},
          Twin{"QueriesThatDifferInCasePass", "/get?id=Aa", "/get?id=aA", ""}})
    {
        auto const enclosure = [](char const* path)
        { return QByteArray("<item><enclosure url='https://a.example") + path + "'"; };
        cases.push_back({twin.name,
                         FeedOf(enclosure(twin.first) + Good("5.2") + "/></item>\n" + enclosure(twin.second) +
                                Good("5.1") + "/></item>"),
                         twin.finding});
    }
}

void AddSystemCases(std::vector<LintCase>& cases)
{
    cases.push_back({"SystemBoundUnreadable",
                     FeedOf("\n" + Item("5.1", "<sparkle:minimumSystemVersion>ten</sparkle:minimumSystemVersion>")),
                     "system-bound-unreadable 3:1 the minimum system version of item 5.1 is \"ten\""});
    cases.push_back({"SystemBoundsCrossed",
                     FeedOf(Item("5.1", "<sparkle:minimumSystemVersion>12</sparkle:minimumSystemVersion>"
                                        "<sparkle:maximumSystemVersion>11</sparkle:maximumSystemVersion>")),
                     "system-bounds-crossed 2:1 item 5.1 requires 12 or later and 11 or earlier"});
    cases.push_back({"PlatformUnknown", FeedOf("<item>" + Enclosure("5.1", " sparkle:os='mac'") + "</item>"),
                     "platform-unknown 2:7 sparkle:os is \"mac\""});
    cases.push_back(
        {"PlatformOfOthersPasses", FeedOf("<item>" + Enclosure("5.1", " sparkle:os='Windows'") + "</item>"), ""});
    cases.push_back({"PlatformFirst",
                     FeedOf("<item>" + Enclosure("5.1", " sparkle:os='windows'") + "</item>\n" + Item("5.2")),
                     "platform-first 2:7 an item for windows comes before the one for all platforms in line 3"});
    cases.push_back({"PlatformLastPasses",
                     FeedOf(Item("5.2") + "<item>" + Enclosure("5.1", " sparkle:os='windows'") + "</item>"), ""});
}

void AddDownloadCases(std::vector<LintCase>& cases)
{
    cases.push_back({"AddressMissing", FeedOf("<item><sparkle:version>5.1</sparkle:version></item>"),
                     "address-missing 2:1 item 5.1 has no valid address"});
    cases.push_back(
        {"AddressScheme", FeedOf(WithAddress("javascript:alert(1)")), "address-scheme 2:7 javascript:alert(1)"});
    cases.push_back(
        {"AddressOfFile", FeedOf(WithAddress("file:///etc/passwd")), "local-address 2:7 file:///etc/passwd"});
    cases.push_back({"AddressInsecure", FeedOf(WithAddress("http://a.example/a.zip")),
                     "address-insecure 2:7 http://a.example/a.zip"});
    cases.push_back({"AddressHost", FeedOf(WithAddress("https:/a.zip")), "address-host 2:7 https:/a.zip"});
    cases.push_back({"AddressCredentials", FeedOf(WithAddress("https://u:p@a.example/a.zip")),
                     "address-credentials 2:7 the address at a.example"});
    cases.push_back({"AddressInternational", FeedOf(WithAddress("https://\xD0\xB0pple.example/a.zip")),
                     "address-international 2:7 the host is xn--pple-43d.example"});
    cases.push_back({"AddressTooLong", FeedOf(WithAddress("https://a.example/" + QByteArray(8200, 'a'))),
                     "address-too-long 2:7 https://a.example/"});
    cases.push_back({"RelativeAddressPasses", FeedOf(WithAddress("a.zip")), ""});
    cases.push_back({"LengthMissing", FeedOf(WithLength("")), "length-missing 2:7 item 5.1 has no length"});
    cases.push_back(
        {"LengthZero", FeedOf(WithLength("length='0'")), "length-zero 2:7 the length of item 5.1 is \"0\""});
    cases.push_back({"LengthUnreadable", FeedOf(WithLength("length='1e9'")),
                     "length-unreadable 2:7 the length of item 5.1 is \"1e9\""});
    cases.push_back({"LengthNegative", FeedOf(WithLength("length='-1'")),
                     "length-unreadable 2:7 the length of item 5.1 is \"-1\""});
    cases.push_back({"LengthTooLarge", FeedOf(WithLength("length='18446744073709551616'")),
                     "length-too-large 2:7 the length of item 5.1 is \"18446744073709551616\""});
    cases.push_back({"DateTextForm", FeedOf(Item("5.1", "<pubDate>Mon Jan 7 2019</pubDate>")),
                     "date-text-form 2:7 the date is \"Mon Jan 7 2019\""});
    cases.push_back({"DateUnusual", FeedOf(Item("5.1", "<pubDate>2019-01-07</pubDate>")),
                     "date-unusual 2:7 the date is \"2019-01-07\""});
    cases.push_back({"UsualDatesPass", FeedOf(Item("5.1", "<pubDate>Mon, 07 Jan 2019 10:00:00 GMT</pubDate>")), ""});
    cases.push_back({"MarkerCase", FeedOf(WithAddress("https://a.example/a.Sparkle_Guided.zip")),
                     "marker-case 2:7 a.Sparkle_Guided.zip"});
    cases.push_back({"SignatureMissing",
                     FeedOf("<item><enclosure url='https://a.example/a' length='1' sparkle:version='5.1'/></item>"),
                     "signature-missing 2:7 item 5.1 has no sparkle:edSignature"});
    cases.push_back({"SignatureUnreadable",
                     FeedOf("<item><enclosure url='https://a.example/a' length='1' sparkle:version='5.1' "
                            "sparkle:edSignature='AAAA'/></item>"),
                     "signature-unreadable 2:7 the signature of item 5.1 is \"AAAA\""});
}

void AddDeltaCases(std::vector<LintCase>& cases)
{
    cases.push_back({"ADeltaPasses", FeedOf(WithDeltas(Delta("5.0"))), ""});
    cases.push_back({"DeltaFromMissing", FeedOf(WithDeltas("<enclosure url='https://a.example/a' length='1'/>")),
                     "delta-from-missing 3:17 the delta has no sparkle:deltaFrom"});
    cases.push_back({"DeltaFromUnreadable", FeedOf(WithDeltas(Delta("5.0b1"))),
                     "delta-from-unreadable 3:17 sparkle:deltaFrom is \"5.0b1\""});
    cases.push_back({"DeltaFromRepeated", FeedOf(WithDeltas(Delta("5.0") + "\n" + Delta("5.0.0"))),
                     "delta-from-repeated 4:1 it starts from 5.0.0, as the delta in line 3 does"});
    cases.push_back({"DeltaFromNotOlder", FeedOf(WithDeltas(Delta("5.1.0"))),
                     "delta-from-not-older 3:17 it goes from 5.1.0 to 5.1"});
    cases.push_back({"DeltaVersion",
                     FeedOf(WithDeltas(QByteArray(Delta("5.0")).replace("/>", " sparkle:version='5.0.5'/>"))),
                     "delta-version 3:17 it makes version 5.0.5, but its item has the version 5.1"});
    cases.push_back(
        {"DeltaBaseMissing", FeedOf(WithDeltas(Delta("4.9"))), "delta-base-missing 3:17 no item has the version 4.9"});
    cases.push_back({"DeltaLargerThanFull", FeedOf(WithDeltas(Delta("5.0", "9"))),
                     "delta-larger-than-full 3:17 9 bytes, the full download has 9"});
}

void AddExtensionCases(std::vector<LintCase>& cases)
{
    cases.push_back({"ExtensionsPass", FeedOf(Item("5.1", "<pelnar1_A>x</pelnar1_A><PELNAR1_B>y</PELNAR1_B>")), ""});
    cases.push_back(
        {"ExtensionAttributeOfItemPasses", FeedOf("<item pelnar1_A='x'>" + Enclosure("5.1") + "</item>"), ""});
    cases.push_back({"ExtensionNamespace", FeedOf(Item("5.1", "\n<sparkle:pelnar1_A>x</sparkle:pelnar1_A>")),
                     "extension-namespace 3:1 sparkle:pelnar1_A is in the namespace "
                     "\"http://www.andymatuschak.org/xml-namespaces/sparkle\""});
    cases.push_back({"ExtensionOnEnclosure", FeedOf("<item>" + Enclosure("5.1", " pelnar1_A='x'") + "</item>"),
                     "extension-place 2:7 clients do not read pelnar1_A here"});
    cases.push_back({"ExtensionInEnclosure",
                     FeedOf("<item><enclosure url='https://a.example/a'" + Good("5.1") +
                            ">\n<pelnar1_A>x</pelnar1_A></enclosure></item>"),
                     "extension-place 3:1 clients do not read pelnar1_A here"});
    cases.push_back({"ExtensionOfChannel", FeedOf("<pelnar1_A>x</pelnar1_A>" + Item("5.1")),
                     "extension-place 2:1 clients do not read pelnar1_A here"});
    cases.push_back({"ExtensionKeyCase", FeedOf(Item("5.1", "<pelnar1_A>x</pelnar1_A>\n<pelnar1_a>y</pelnar1_a>")),
                     "extension-key-case 3:1 pelnar1_A and pelnar1_a"});
    cases.push_back({"ExtensionWithAttribute", FeedOf(Item("5.1", "<pelnar1_A b='c'>x</pelnar1_A>")),
                     "extension-not-text 2:7 pelnar1_A has attributes or children"});
    cases.push_back({"ExtensionTwice", FeedOf(Item("5.1", "<pelnar1_A>x</pelnar1_A>\n<pelnar1_A>y</pelnar1_A>")),
                     "extension-not-text 3:1 pelnar1_A stands twice"});
    cases.push_back({"ExtensionPrefix", FeedOf(Item("5.1", "<pelnar2_A>x</pelnar2_A>")),
                     "extension-prefix 2:7 pelnar2_A does not begin with pelnar1_"});
    cases.push_back({"RelaunchPathRelative",
                     FeedOf(Item("5.1", "<pelnar1_overridepathtorelaunch>App.app</pelnar1_overridepathtorelaunch>")),
                     "relaunch-path-relative 2:1 the path of item 5.1 is \"App.app\""});
    cases.push_back({"RelaunchPathAbsolutePasses",
                     FeedOf(Item("5.1", "<pelnar1_OverridePathToRelaunch>/A/App.app</pelnar1_OverridePathToRelaunch>")),
                     ""});
}

void AddNotesCases(std::vector<LintCase>& cases)
{
    QByteArray const table = "<description><![CDATA[" + Nested("table", 6) + "]]></description>";
    cases.push_back(
        {"NotesOverLimits", FeedOf(Item("5.1", "\n" + table)), "notes-over-limits 3:1 the notes of item 5.1: "});
    cases.push_back({"NotesInsecure",
                     FeedOf(Item("5.1", "\n<sparkle:releaseNotesLink>http://a.example/n</sparkle:releaseNotesLink>")),
                     "notes-insecure 3:1 http://a.example/n"});
    cases.push_back({"NotesRepeated",
                     FeedOf(Item("5.1", "<description xml:lang='de'>a</description>\n<description xml:lang='de'>b"
                                        "</description>")),
                     "notes-repeated 3:1 another <description> of the language \"de\""});
    cases.push_back({"NotesOfTwoLanguagesPass",
                     FeedOf(Item("5.1", "<description>a</description><description xml:lang='de'>b</description>"
                                        "<sparkle:releaseNotesLink xml:lang='de'>https://a.example/n"
                                        "</sparkle:releaseNotesLink>")),
                     ""});
    cases.push_back({"OrdinaryNotesPass",
                     FeedOf(Item("5.1", "<description>&lt;p&gt;Fast.&lt;/p&gt;</description><sparkle:releaseNotesLink>"
                                        "https://a.example/n</sparkle:releaseNotesLink>")),
                     ""});
}

} // namespace

QByteArray FeedOf(QByteArray const& items)
{
    return "<rss xmlns:sparkle='http://www.andymatuschak.org/xml-namespaces/sparkle'><channel>\n" + items +
           "</channel></rss>";
}

std::vector<LintCase> const& LintCases()
{
    static std::vector<LintCase> const cases = []
    {
        std::vector<LintCase> made;
        for (auto* const add :
             {AddDocumentCases, AddNameCases, AddVersionCases, AddOfferCases, AddPolicyCases, AddMachineCases,
              AddAddressCases, AddSystemCases, AddDownloadCases, AddDeltaCases, AddExtensionCases, AddNotesCases})
        {
            add(made);
        }
        return made;
    }();
    return cases;
}

} // namespace Pelnar::Testing
