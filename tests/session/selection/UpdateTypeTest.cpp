#include "App/UpdateChecker/SparkleImpl/Choice/UpdateType.h"
#include "tests/session/selection/PlainItem.h"

#include <gtest/gtest.h>

namespace
{

using namespace Pelnar::App::Session;
using Pelnar::Testing::PlainItem;

UpdateType TypeOf(char const* address, bool isDelta = false)
{
    PlainItem item;
    item.address = QString::fromUtf8(address);
    item.isDelta = isDelta;
    return ItemRecord(item).Type();
}

TEST(UpdateType, EveryValueHasItsNumberAndName)
{
    EXPECT_EQ(static_cast<int>(UpdateType::UNKNOWN), 0);
    EXPECT_EQ(static_cast<int>(UpdateType::INSTALLER), 1);
    EXPECT_EQ(static_cast<int>(UpdateType::BUNDLE), 2);
    EXPECT_EQ(static_cast<int>(UpdateType::DELTA), 3);
    EXPECT_STREQ(UpdateTypeName(UpdateType::UNKNOWN), "UNKNOWN");
    EXPECT_STREQ(UpdateTypeName(UpdateType::INSTALLER), "INSTALLER");
    EXPECT_STREQ(UpdateTypeName(UpdateType::BUNDLE), "BUNDLE");
    EXPECT_STREQ(UpdateTypeName(UpdateType::DELTA), "DELTA");
    EXPECT_STREQ(UpdateTypeName(static_cast<UpdateType>(4)), "Unknown UpdateType");
    EXPECT_STREQ(UpdateTypeName(static_cast<UpdateType>(-1)), "Unknown UpdateType");
}

TEST(UpdateType, MajorAndMinorUpdatesWantDifferentKinds)
{
    EXPECT_EQ(UPDATE_TYPE_PRIORITIES_FOR_MAJOR_UPDATE,
              (QList<UpdateType>{UpdateType::INSTALLER, UpdateType::DELTA, UpdateType::BUNDLE, UpdateType::UNKNOWN}));
    EXPECT_EQ(UPDATE_TYPE_PRIORITIES_FOR_MINOR_UPDATE,
              (QList<UpdateType>{UpdateType::DELTA, UpdateType::BUNDLE, UpdateType::INSTALLER, UpdateType::UNKNOWN}));
}

TEST(UpdateType, DeltaWinsOverAnInstallersFileName)
{
    EXPECT_EQ(TypeOf("https://a.example/x.sparkle_guided.pkg", true), UpdateType::DELTA);
}

TEST(UpdateType, DeltaIsKnownWithoutLookingAtTheAddress)
{
    PlainItem item;
    item.isDelta = true;
    ItemRecord record(item);
    EXPECT_EQ(record.Type(), UpdateType::DELTA);
    EXPECT_EQ(item.reads, std::vector<std::string>{"isDelta"});
}

TEST(UpdateType, MarkersCountAnywhereInTheFileName)
{
    EXPECT_EQ(TypeOf("https://a.example/App.sparkle_guided.pkg"), UpdateType::INSTALLER);
    EXPECT_EQ(TypeOf("https://a.example/x.sparkle_interactive.y.zip"), UpdateType::INSTALLER);
    EXPECT_EQ(TypeOf("https://a.example/.sparkle_guided."), UpdateType::INSTALLER);
}

TEST(UpdateType, FileNameIsFullyDecodedBeforeTheSearch)
{
    EXPECT_EQ(TypeOf("https://a.example/App%2Esparkle%5Finteractive%2Epkg"), UpdateType::INSTALLER);
    EXPECT_EQ(TypeOf("https://a.example/App.%73parkle_guided.pkg?mirror=2"), UpdateType::INSTALLER);
}

TEST(UpdateType, AnythingElseIsABundle)
{
    for (char const* address :
         {"https://a.example/App.zip", "https://a.example/App.SPARKLE_GUIDED.pkg",
          "https://a.example/App.sparkle_guided", "https://a.example/sparkle_guided.pkg",
          "https://a.example/x.sparkle_guided.y/App.zip", "https://a.example/App.zip?f=x.sparkle_guided.pkg",
          "https://a.example/", "https://a.example", ""})
    {
        EXPECT_EQ(TypeOf(address), UpdateType::BUNDLE) << address;
    }
}

} // namespace
