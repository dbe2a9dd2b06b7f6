// SelectionItemTest.cpp: the session's answers about one item: its kind, its extensions, its dump, whether it is valid.

#include "Foundation/RaisedException.h"
#include "HostFramework/Reference/ReferenceOSVersion.h"
#include "tests/session/selection/SelectionFixture.h"
#include "tests/session/selection/SelectionSupport.h"

#include <gtest/gtest.h>

#include <functional>
#include <stdexcept>

namespace
{

using namespace Pelnar::Testing;
using Pelnar::App::SparkleUpdateContext;
using Pelnar::App::Session::UpdateType;
using Pelnar::Core::Version;
using Pelnar::Foundation::ReasonRaisedBy;

class SelectionOfOneItem : public ::testing::Test
{
protected:
    SelectionOfOneItem()
    {
        Pelnar::Util::SetOSVersion(Latin1("12.3"));
        session.SetContext(context);
    }

    std::shared_ptr<SparkleUpdateContext> context = MakeContext();
    SelectionFixture session;
    LogCapture log;
};

TEST_F(SelectionOfOneItem, DeltaWithAnInstallersFileNameIsADelta)
{
    ItemProperties properties = OfferOf("5.1", "https://a.example/x.sparkle_guided.pkg");
    properties.isDelta = true;
    ScriptedItem const item(properties);
    EXPECT_EQ(session.DetectUpdateType(item), UpdateType::DELTA);
    EXPECT_EQ(item.Properties().reads, (std::map<std::string, int>{{"isDeltaUpdate", 1}}));
}

TEST_F(SelectionOfOneItem, PercentEncodedInstallersFileNameIsAnInstaller)
{
    EXPECT_EQ(
        session.DetectUpdateType(ScriptedItem(OfferOf("5.1", "https://a.example/x%2Esparkle_interactive%2Ey.zip"))),
        UpdateType::INSTALLER);
}

TEST_F(SelectionOfOneItem, OtherFileNamesAndNoAddressAreBundles)
{
    EXPECT_EQ(session.DetectUpdateType(ScriptedItem(OfferOf("5.1"))), UpdateType::BUNDLE);
    EXPECT_EQ(session.DetectUpdateType(ScriptedItem(OfferOf("5.1", "https://a.example/App.SPARKLE_GUIDED.pkg"))),
              UpdateType::BUNDLE);
    EXPECT_EQ(session.DetectUpdateType(ScriptedItem()), UpdateType::BUNDLE);
}

TEST_F(SelectionOfOneItem, NoAttributesGiveNoExtensions)
{
    EXPECT_EQ(session.DetectExtensions(ScriptedItem()), QVariantMap());
    EXPECT_TRUE(log.Records().empty());
}

TEST_F(SelectionOfOneItem, ExtensionsAreKeptUnderTheirNamesInUpperCase)
{
    ItemProperties properties;
    properties.properties = {{Latin1("pelnar1_OverridePathToRelaunch"), Latin1("/Applications/App.app")},
                             {Latin1("PELNAR1_empty"), Latin1("")},
                             {Latin1("pelnarFoo"), Latin1("1")},
                             {Latin1("pelnar2_Foo"), Latin1("2")},
                             {Latin1("x_pelnar1_Foo"), Latin1("3")},
                             {Latin1("title"), Latin1("4")}};
    EXPECT_EQ(session.DetectExtensions(ScriptedItem(properties)),
              (QVariantMap{{Latin1("PELNAR1_OVERRIDEPATHTORELAUNCH"), Latin1("/Applications/App.app")},
                           {Latin1("PELNAR1_EMPTY"), Latin1("")}}));
    EXPECT_TRUE(log.Records().empty());
}

TEST_F(SelectionOfOneItem, ExtensionThatIsNoTextIsKeptAsInvalidAndWarnedOf)
{
    ItemProperties properties;
    properties.properties = {{Latin1("Pelnar1_Foo"), 7}, {Latin1("pelnar1_Bar"), Latin1("text")}};
    QVariantMap const extensions = session.DetectExtensions(ScriptedItem(properties));
    EXPECT_EQ(extensions.keys(), (QStringList{Latin1("PELNAR1_BAR"), Latin1("PELNAR1_FOO")}));
    EXPECT_FALSE(extensions[Latin1("PELNAR1_FOO")].isValid());
    EXPECT_EQ(log.Records(),
              (std::vector<LogRecord>{
                  {google::GLOG_WARNING, SESSION_FILE, 358,
                   "QVariantMap Pelnar::App::SparkleManager::Impl::DetectExtensions(SUAppcastItem *) const: "
                   "Unknown extension type for key = PELNAR1_FOO"}}));
}

TEST_F(SelectionOfOneItem, OfNamesThatDifferInCaseTheLaterEnumeratedWins)
{
    for (bool const isReversed : {false, true})
    {
        ItemProperties properties;
        properties.properties = {{Latin1("pelnar1_foo"), Latin1(isReversed ? "b" : "a")},
                                 {Latin1("PELNAR1_FOO"), Latin1(isReversed ? "a" : "b")}};
        ScriptedItem const item(properties);
        QStringList const names = SelectionFixture::PropertyNamesInOrder(item);
        ASSERT_EQ(names.size(), 2);
        EXPECT_EQ(session.DetectExtensions(item),
                  (QVariantMap{{Latin1("PELNAR1_FOO"), properties.properties[names.last()]}}));
    }
}

TEST_F(SelectionOfOneItem, OfNamesThatDifferInCaseEachIsWarnedOf)
{
    ItemProperties properties;
    properties.properties = {{Latin1("pelnar1_foo"), 1}, {Latin1("PELNAR1_FOO"), 2}};
    EXPECT_EQ(session.DetectExtensions(ScriptedItem(properties)).size(), 1);
    EXPECT_EQ(log.Of(google::GLOG_WARNING).size(), 2u);
}

TEST_F(SelectionOfOneItem, RaisingGetterLeavesEveryQuestion)
{
    for (char const* getter : {"isDeltaUpdate", "fileURL", "versionString"})
    {
        ItemProperties properties = OfferOf("5.1");
        properties.onRead[getter] = [] { RaiseException(Latin1("no item")); };
        ScriptedItem const item(properties);
        EXPECT_EQ(ReasonRaisedBy([&] { session.PrintDebugInfo(item, ""); }), "no item") << getter;
    }
    ItemProperties properties = OfferOf("5.1");
    properties.onRead["contentLength"] = [] { RaiseException(Latin1("no length")); };
    properties.onRead["propertiesDictionary"] = [] { RaiseException(Latin1("no properties")); };
    ScriptedItem const item(properties);
    EXPECT_EQ(ReasonRaisedBy([&] { (void)session.Validate(item); }), "no length");
    EXPECT_EQ(ReasonRaisedBy([&] { (void)session.SelectBest(std::nullopt, item); }), "no length");
    EXPECT_EQ(ReasonRaisedBy([&] { session.DetectExtensions(item); }), "no properties");
}

TEST_F(SelectionOfOneItem, GetterBehindTheFirstFailedTestIsNotAsked)
{
    ItemProperties properties = OfferOf("5.0");
    properties.onRead["fileURL"] = [] { RaiseException(Latin1("asked")); };
    EXPECT_EQ(ReasonRaisedBy([&] { EXPECT_FALSE(session.Validate(ScriptedItem(properties))); }), std::nullopt);
}

TEST_F(SelectionOfOneItem, DumpIsTenRecordsWordForWord)
{
    ItemProperties properties = OfferOf("5.1", "https://a.example/x.sparkle_guided.pkg", 18446744073709551615u);
    properties.title = QStringLiteral("Version 5.1 \u2013 \u00e9t\u00e9");
    properties.itemDescription = Latin1("<p>news</p>");
    properties.minimumSystemVersion = Latin1("10.9");
    properties.maximumSystemVersion = Latin1("14");
    session.PrintDebugInfo(ScriptedItem(properties), "delta from 5.0");
    auto const record = [](int line, std::string const& text) {
        return LogRecord{google::GLOG_INFO, SESSION_FILE, line, text};
    };
    EXPECT_EQ(log.Records(), (std::vector<LogRecord>{
                                 record(544, "SUAppcastItem delta from 5.0"),
                                 record(545, "  * title = Version 5.1 \xe2\x80\x93 \xc3\xa9t\xc3\xa9"),
                                 record(546, std::string("  * dateString = ") + FEED_DATE),
                                 record(547, "  * itemDescription = <p>news</p>"),
                                 record(548, "  * minimumSystemVersion = 10.9"),
                                 record(549, "  * maximumSystemVersion = 14"),
                                 record(550, "  * fileURL = https://a.example/x.sparkle_guided.pkg"),
                                 record(551, "  * contentLength = 18446744073709551615"),
                                 record(552, "  * versionString = 5.1"),
                                 record(553, "  * UpdateType = INSTALLER"),
                             }));
}

TEST_F(SelectionOfOneItem, DumpOfNothingPrintsTheLabels)
{
    std::vector<std::string> const labels{"SUAppcastItem ",
                                          "  * title = ",
                                          "  * dateString = ",
                                          "  * itemDescription = ",
                                          "  * minimumSystemVersion = ",
                                          "  * maximumSystemVersion = ",
                                          "  * fileURL = ",
                                          "  * contentLength = 0",
                                          "  * versionString = ",
                                          "  * UpdateType = BUNDLE"};
    session.PrintDebugInfo(ScriptedItem(), "");
    EXPECT_EQ(log.Texts(), labels);
    log.Clear();
    ItemProperties properties;
    properties.title = properties.dateString = properties.itemDescription = properties.minimumSystemVersion =
        properties.maximumSystemVersion = properties.versionString = Latin1("");
    session.PrintDebugInfo(ScriptedItem(properties), "");
    EXPECT_EQ(log.Texts(), labels);
}

TEST_F(SelectionOfOneItem, DumpReadsNothingWhileItsRecordsAreOff)
{
    LogCapture const quiet(LogCapture::Verbosity::Normal);
    ScriptedItem const item(OfferOf("5.1"));
    session.PrintDebugInfo(item, "");
    EXPECT_TRUE(quiet.Records().empty());
    EXPECT_TRUE(item.Properties().reads.empty());
}

TEST_F(SelectionOfOneItem, MinimumSystemAboveTheRunningOneIsNotValid)
{
    ItemProperties properties = OfferOf("5.1");
    properties.minimumSystemVersion = Latin1("12.4");
    EXPECT_FALSE(session.Validate(ScriptedItem(properties)));
}

TEST_F(SelectionOfOneItem, EmptyOrUnparsableMinimumRestrictsNothing)
{
    ItemProperties properties = OfferOf("5.1");
    for (QString const& minimum : {QString(), Latin1(""), Latin1("99.x"), Latin1("12.3")})
    {
        properties.minimumSystemVersion = minimum;
        EXPECT_TRUE(session.Validate(ScriptedItem(properties))) << minimum.toStdString();
    }
}

TEST_F(SelectionOfOneItem, MaximumSystemBelowTheRunningOneIsNotValid)
{
    ItemProperties properties = OfferOf("5.1");
    properties.maximumSystemVersion = Latin1("12.2");
    EXPECT_FALSE(session.Validate(ScriptedItem(properties)));
}

TEST_F(SelectionOfOneItem, SystemVersionIsAskedForOnceInAProcess)
{
    ItemProperties properties = OfferOf("5.1");
    properties.minimumSystemVersion = Latin1("12.3");
    EXPECT_TRUE(session.Validate(ScriptedItem(properties)));
    Pelnar::Util::SetOSVersion(Latin1("1.0"));
    EXPECT_TRUE(session.Validate(ScriptedItem(properties)));
}

TEST_F(SelectionOfOneItem, LocalVersionOnceShrunkIsNotValid)
{
    EXPECT_FALSE(session.Validate(ScriptedItem(OfferOf("5.0.0"))));
    EXPECT_FALSE(session.Validate(ScriptedItem(OfferOf("5"))));
    EXPECT_TRUE(session.Validate(ScriptedItem(OfferOf("5.0.0.1"))));
}

TEST_F(SelectionOfOneItem, MissingVersionAddressOrLengthIsNotValid)
{
    ItemProperties noVersion = OfferOf("5.1");
    noVersion.versionString = QString();
    EXPECT_FALSE(session.Validate(ScriptedItem(noVersion)));
    ItemProperties noAddress = OfferOf("5.1");
    noAddress.fileUrl = QString();
    EXPECT_FALSE(session.Validate(ScriptedItem(noAddress)));
    EXPECT_FALSE(session.Validate(ScriptedItem(OfferOf("5.1", "https://a.example/App.zip", 0))));
    EXPECT_TRUE(log.Records().empty());
}

TEST_F(SelectionOfOneItem, DateInTextFormIsNotValidAndAFeedsDateIs)
{
    ItemProperties properties = OfferOf("5.1");
    properties.dateString = Latin1("Mon Jan 7 2019");
    EXPECT_FALSE(session.Validate(ScriptedItem(properties)));
    properties.dateString = Latin1("Mon, 07 Jan 2019 10:00:00 +0000");
    EXPECT_TRUE(session.Validate(ScriptedItem(properties)));
    properties.dateString = QString();
    EXPECT_TRUE(session.Validate(ScriptedItem(properties)));
}

TEST_F(SelectionOfOneItem, NothingIsNotValidAndWritesNothing)
{
    EXPECT_FALSE(session.Validate(std::nullopt));
    EXPECT_TRUE(log.Records().empty());
}

TEST_F(SelectionOfOneItem, MissingContextIsTheFirstGuard)
{
    session.SetContext(nullptr);
    EXPECT_FALSE(session.Validate(ScriptedItem(OfferOf("5.1"))));
    EXPECT_FALSE(session.Validate(std::nullopt));
    EXPECT_EQ(log.Records(), (std::vector<LogRecord>{NoContextRecord(), NoContextRecord()}));
}

TEST_F(SelectionOfOneItem, MissingLocalVersionIsTheSecondGuard)
{
    context->localVersion = Version();
    context->versionLess = nullptr;
    EXPECT_FALSE(session.Validate(ScriptedItem(OfferOf("5.1"))));
    EXPECT_FALSE(session.Validate(std::nullopt));
    EXPECT_EQ(log.Records(), (std::vector<LogRecord>{NoLocalVersionRecord(), NoLocalVersionRecord()}));
}

TEST_F(SelectionOfOneItem, MissingOperatorsAreMissedEvenForNothing)
{
    context->versionEqual = nullptr;
    ScriptedItem const item(OfferOf("5.1"));
    EXPECT_FALSE(session.Validate(item));
    EXPECT_FALSE(session.Validate(std::nullopt));
    EXPECT_EQ(log.Records(), (std::vector<LogRecord>{NoOperatorsRecord(), NoOperatorsRecord()}));
    EXPECT_TRUE(item.Properties().reads.empty());
}

TEST_F(SelectionOfOneItem, ThrowingOperatorLeavesTheQuestion)
{
    context->versionLess = [](Version const&, Version const&) -> bool { throw std::runtime_error("no order"); };
    EXPECT_THROW((void)session.Validate(ScriptedItem(OfferOf("5.1"))), std::runtime_error);
    EXPECT_THROW((void)session.SelectBest(ScriptedItem(OfferOf("5.1")), std::nullopt), std::runtime_error);
}

} // namespace
