// SelectionUnknownSystemTest.cpp: a process whose system version does not parse.

#include "HostFramework/Reference/ReferenceOSVersion.h"
#include "tests/session/selection/SelectionFixture.h"
#include "tests/session/selection/SelectionSupport.h"

#include <gtest/gtest.h>

namespace
{

using namespace Pelnar::Testing;

TEST(SelectionOnAnUnknownSystem, BoundsAreNeitherObeyedNorReadForTheLifeOfTheProcess)
{
    Pelnar::Util::SetOSVersion(Latin1("rolling"));
    SelectionFixture session;
    session.SetContext(MakeContext());
    ItemProperties properties = OfferOf("5.1");
    properties.minimumSystemVersion = Latin1("99");
    properties.maximumSystemVersion = Latin1("1");
    ScriptedItem const item(properties);
    EXPECT_TRUE(session.Validate(item));
    EXPECT_EQ(item.Properties().reads.count("minimumSystemVersion"), 0u);
    EXPECT_EQ(item.Properties().reads.count("maximumSystemVersion"), 0u);
    Pelnar::Util::SetOSVersion(Latin1("12.3"));
    EXPECT_TRUE(session.Validate(item));
}

TEST(SelectionOnAnUnknownSystem, VersionIsAskedForByTheFirstJudgementAlsoWithoutAContext)
{
    Pelnar::Util::SetOSVersion(Latin1("rolling"));
    SelectionFixture session;
    ScriptedItem const item(
        []
        {
            ItemProperties properties = OfferOf("5.1");
            properties.minimumSystemVersion = Latin1("99");
            return properties;
        }());
    EXPECT_FALSE(session.Validate(item));
    Pelnar::Util::SetOSVersion(Latin1("12.3"));
    session.SetContext(MakeContext());
    EXPECT_TRUE(session.Validate(item));
}

} // namespace
