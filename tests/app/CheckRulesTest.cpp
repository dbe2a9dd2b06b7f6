// The result of a check from its two versions, and the relaunch path. Pure values.
#include "App/UpdateChecker/SparkleImpl/UpdaterSparkle/CheckOutcome_p.h"
#include "App/UpdateChecker/SparkleImpl/UpdaterSparkle/RelaunchPath_p.h"
#include "App/UpdateChecker/SparkleImpl/UpdaterSparkle/SparkleUpdateContext.h"

#include <gtest/gtest.h>

#include <functional>
#include <limits>

namespace
{

using namespace Pelnar::App;
using Pelnar::ioPath;
using Pelnar::Core::Version;

constexpr auto NO_UPDATE = UpdateCheckResult::NoUpdate;
constexpr auto UPDATE = UpdateCheckResult::UpdateAvailable;
constexpr auto MAJOR = UpdateCheckResult::MajorUpdateAvailable;
constexpr std::int32_t GREATEST = std::numeric_limits<std::int32_t>::max();

SparkleUpdateContext ContextOf(Version const& local, Version const& remote)
{
    SparkleUpdateContext context;
    context.localVersion = local;
    context.remoteVersion = remote;
    context.versionLess = [](Version const& a, Version const& b) { return a < b; };
    context.versionEqual = [](Version const& a, Version const& b) { return a == b; };
    return context;
}

struct OutcomeRow
{
    char const* name;
    Version local;
    Version remote;
    UpdateCheckResult expected;
};

std::ostream& operator<<(std::ostream& out, OutcomeRow const& row)
{
    return out << row.name;
}

class CheckOutcome : public ::testing::TestWithParam<OutcomeRow>
{
};

TEST_P(CheckOutcome, OfTwoVersions)
{
    EXPECT_EQ(OutcomeOf(ContextOf(GetParam().local, GetParam().remote)), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(Every, CheckOutcome,
                         ::testing::Values(OutcomeRow{"RemoteEqual", Version(5, 9), Version(5, 9), NO_UPDATE},
                                           OutcomeRow{"RemoteOlder", Version(5, 9), Version(5, 8), NO_UPDATE},
                                           OutcomeRow{"RemoteOlderMajor", Version(6), Version(5, 9), NO_UPDATE},
                                           OutcomeRow{"RemoteNewerMinor", Version(5, 9), Version(5, 10), UPDATE},
                                           OutcomeRow{"RemoteNewerBuild", Version(5, 9, 0, 1), Version(5, 9, 0, 2),
                                                      UPDATE},
                                           OutcomeRow{"RemoteNewerMajor", Version(5, 9), Version(6, 0), MAJOR},
                                           OutcomeRow{"RemoteGreatestMajor", Version(5, 9), Version(GREATEST), MAJOR},
                                           OutcomeRow{"RemoteNeverSet", Version(5, 9), Version(), NO_UPDATE},
                                           OutcomeRow{"LocalNeverSet", Version(), Version(0, 1), MAJOR},
                                           OutcomeRow{"NeitherSet", Version(), Version(), NO_UPDATE}),
                         [](auto const& info) { return info.param.name; });

TEST(CheckOutcomeOperators, ContextsOperatorsDecideWhatIsNewer)
{
    SparkleUpdateContext context = ContextOf(Version(5), Version(4));
    context.versionLess = [](Version const&, Version const&) { return false; };
    EXPECT_EQ(OutcomeOf(context), UPDATE) << "newer by the operators, no greater major";
    context.versionEqual = [](Version const&, Version const&) { return true; };
    EXPECT_EQ(OutcomeOf(context), NO_UPDATE);
    context.versionLess = [](Version const& a, Version const& b)
    {
        EXPECT_EQ(a, Version(4)) << "remote on the left";
        EXPECT_EQ(b, Version(5));
        return true;
    };
    EXPECT_EQ(OutcomeOf(context), NO_UPDATE);
}

TEST(CheckOutcomeOperators, MissingOrderThrows)
{
    SparkleUpdateContext context = ContextOf(Version(5), Version(6));
    context.versionLess = nullptr;
    EXPECT_THROW((void)OutcomeOf(context), std::bad_function_call);
}

TEST(CheckOutcomeOperators, MissingEqualityThrowsOnlyWhenItIsNeeded)
{
    SparkleUpdateContext context = ContextOf(Version(5), Version(6));
    context.versionEqual = nullptr;
    EXPECT_THROW((void)OutcomeOf(context), std::bad_function_call);
    context.remoteVersion = Version(4);
    EXPECT_EQ(OutcomeOf(context), NO_UPDATE);
}

struct PathRow
{
    char const* name;
    Version version;
    char const* expected;
};

std::ostream& operator<<(std::ostream& out, PathRow const& row)
{
    return out << row.name;
}

class RelaunchPath : public ::testing::TestWithParam<PathRow>
{
};

TEST_P(RelaunchPath, NamesTheBundleOfTheVersion)
{
    EXPECT_EQ(RelaunchPathFor("First", "Second", GetParam().version), ioPath(GetParam().expected));
}

INSTANTIATE_TEST_SUITE_P(
    Every, RelaunchPath,
    ::testing::Values(PathRow{"NoVersion", Version(), "/Applications/First Second.app"},
                      PathRow{"NegativeMajor", Version(-7), "/Applications/First Second.app"},
                      PathRow{"MajorZero", Version(0, 9), "/Applications/First Second.app"},
                      PathRow{"MajorOne", Version(1, 9), "/Applications/First Second.app"},
                      PathRow{"MajorTwo", Version(2), "/Applications/First Second 2.app"},
                      PathRow{"MajorTwentyOne", Version(21, 4, 3, 2), "/Applications/First Second 21.app"},
                      PathRow{"GreatestMajor", Version(GREATEST), "/Applications/First Second 2147483647.app"}),
    [](auto const& info) { return info.param.name; });

TEST(RelaunchPathText, PartsAreTakenAsTheyAre)
{
    EXPECT_EQ(RelaunchPathFor("", "", Version(1)), ioPath("/Applications/ .app"));
    EXPECT_EQ(RelaunchPathFor("\xc3\x89t\xc3\xa9", "a/b", Version(3)),
              ioPath("/Applications/\xc3\x89t\xc3\xa9 a/b 3.app"));
}

} // namespace
