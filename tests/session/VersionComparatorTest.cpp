#include "tests/session/SessionFixture.h"

#include <stdexcept>

namespace
{

using namespace Pelnar::Testing;
using Records = std::vector<LogRecord>;

std::string const COMPARE = "-[PelnarSparkleVersionComparator compareVersion:toVersion:]: ";
LogRecord const BAD_OPERATORS =
    Error(520, "bool Pelnar::App::SparkleManager::Impl::EnsureVersionOperators() const: Invalid version operators");

int Compare(char const* a, char const* b)
{
    return Callbacks::CompareVersions(QString::fromUtf8(a), QString::fromUtf8(b));
}

class VersionComparator : public SessionTest
{
protected:
    VersionComparator()
    {
        StandardComparator() = {};
        StandardComparator().answer = 1;
    }
    /// The first is the diagnostic; its text comes from the library.
    void ExpectTwoErrors(std::string const& diagnosticPart, std::string const& versions)
    {
        Records const errors = Log().Of(google::GLOG_ERROR);
        ASSERT_EQ(errors.size(), 2U);
        EXPECT_EQ(errors[0].line, 1173);
        EXPECT_EQ(errors[0].file, errors[1].file);
        EXPECT_EQ(errors[0].text.find(COMPARE), 0U);
        EXPECT_NE(errors[0].text.find(diagnosticPart), std::string::npos) << errors[0].text;
        EXPECT_EQ(errors[1], Error(1174, COMPARE + versions));
        EXPECT_TRUE(StandardComparator().compared.empty()) << "the framework's comparator is not asked";
    }
};

TEST_F(VersionComparator, OrdersByTheContextsOperators)
{
    struct Row
    {
        char const* a;
        char const* b;
        int order;
    };
    LendIn(State::WAITING);
    for (Row const& row :
         {Row{"5.1", "5.2", -1}, Row{"5.2", "5.1", 1}, Row{"5.1", "5.1", 0}, Row{"5.1", "5.1.0.0", 0},
          Row{"5.9", "5.10", -1}, Row{"6", "5.9.9.9", 1}, Row{"0", "0.0.0.1", -1}, Row{"2147483647", "1", 1}})
    {
        EXPECT_EQ(Compare(row.a, row.b), row.order) << row.a << " and " << row.b;
    }
    EXPECT_TRUE(Log().Records().empty());
    EXPECT_TRUE(StandardComparator().compared.empty());
}

TEST_F(VersionComparator, OperatorMayReplaceItsOwnContext)
{
    auto own = std::make_shared<Pelnar::App::SparkleUpdateContext>(Context());
    own->versionEqual = [this, sentinel = std::make_shared<int>(7)](Version const&, Version const&)
    {
        Session().UnlockUpdaterWhenPossible();
        EXPECT_TRUE(Session().LockUpdater(SharedContext()));
        EXPECT_EQ(*sentinel, 7);
        return false;
    };
    SetFields({own, true, false, State::WAITING, UpdateType::UNKNOWN, {}, false});
    own.reset();
    EXPECT_EQ(Callbacks::CompareVersions(QStringLiteral("5.1"), QStringLiteral("5.2")), -1);
}

TEST_F(VersionComparator, EqualityWinsOverOrder)
{
    Context().versionLess = [](Version const&, Version const&) { return true; };
    Context().versionEqual = [](Version const&, Version const&) { return true; };
    LendIn(State::WAITING);
    EXPECT_EQ(Compare("1", "2"), 0);
}

TEST_F(VersionComparator, WithoutContextTheFrameworksComparatorDecides)
{
    EXPECT_EQ(Compare("a", "b"), 1);
    EXPECT_EQ(StandardComparator().compared,
              (std::vector<std::pair<QString, QString>>{{QStringLiteral("a"), QStringLiteral("b")}}));
    EXPECT_EQ(
        Log().Records(),
        (Records{Error(475, "bool Pelnar::App::SparkleManager::Impl::EnsureContext() const: Update context is NULL")}));
}

TEST_F(VersionComparator, WithoutOneOperatorTheFrameworksComparatorDecides)
{
    auto const equal = Context().versionEqual;
    Context().versionEqual = nullptr;
    LendIn(State::WAITING);
    StandardComparator().answer = -1;
    EXPECT_EQ(Compare("5.2", "5.1"), -1);
    EXPECT_EQ(Log().Records(), (Records{BAD_OPERATORS}));

    Context().versionEqual = equal;
    Context().versionLess = nullptr;
    LendIn(State::WAITING);
    EXPECT_EQ(Compare("5.2", "5.1"), -1);
    EXPECT_EQ(Log().Records(), (Records{BAD_OPERATORS}));
    EXPECT_EQ(StandardComparator().compared.size(), 2U);
}

TEST_F(VersionComparator, UnreadableVersionCountsAsTheSame)
{
    LendIn(State::WAITING);
    EXPECT_EQ(Compare("beta\u00e9", "5.1"), 0);
    ExpectTwoErrors("std::invalid_argument", "versionA=\"beta\u00e9\", versionB=\"5.1\"");
    Log().Clear();
    EXPECT_EQ(Compare("5.1", "beta"), 0);
    ExpectTwoErrors("beta", "versionA=\"5.1\", versionB=\"beta\"");
}

TEST_F(VersionComparator, MissingVersionCountsAsTheSame)
{
    LendIn(State::WAITING);
    EXPECT_EQ(Callbacks::CompareVersions(QString(), QString()), 0);
    ExpectTwoErrors("std::invalid_argument", "versionA=\"\", versionB=\"\"");
}

TEST_F(VersionComparator, ThrowingOperatorCountsAsTheSame)
{
    Context().versionEqual = [](Version const&, Version const&) -> bool { throw std::runtime_error("operator"); };
    LendIn(State::WAITING);
    EXPECT_EQ(Compare("5.1", "5.2"), 0);
    ExpectTwoErrors("operator", "versionA=\"5.1\", versionB=\"5.2\"");
}

TEST_F(VersionComparator, OperatorThatThrowsNoStandardExceptionCountsAsTheSame)
{
    Context().versionEqual = [](Version const&, Version const&) -> bool { throw 7; };
    LendIn(State::WAITING);
    EXPECT_EQ(Compare("5.1", "5.2"), 0);
    ExpectTwoErrors("", "versionA=\"5.1\", versionB=\"5.2\"");
}

TEST_F(VersionComparator, RaisingOperatorCountsAsTheSame)
{
    Context().versionEqual = [](Version const&, Version const&) -> bool { RaiseException(QStringLiteral("raised")); };
    LendIn(State::WAITING);
    EXPECT_EQ(Compare("5.1", "5.2"), 0);
    ExpectTwoErrors("raised", "versionA=\"5.1\", versionB=\"5.2\"");
}

TEST_F(VersionComparator, OperatorEmptiedByTheOtherCountsAsTheSame)
{
    Context().versionEqual = [this](Version const&, Version const&)
    {
        Context().versionLess = nullptr;
        return false;
    };
    LendIn(State::WAITING);
    EXPECT_EQ(Compare("5.1", "5.2"), 0);
    ExpectTwoErrors("bad_function_call", "versionA=\"5.1\", versionB=\"5.2\"");
}

TEST_F(VersionComparator, RemoteMustBeLessThanAndNotEqualToLocal)
{
    struct Row
    {
        char const* name;
        bool less;
        bool equal;
        bool greater;
    };
    for (Row const& row : {Row{"less and not equal", true, false, true}, Row{"less and equal", true, true, false},
                           Row{"not less", false, false, false}, Row{"equal", false, true, false}})
    {
        LendWithRemote(State::WAITING);
        Context().versionLess = [row](Version const& a, Version const& b)
        {
            EXPECT_EQ(a, Version(5, 0));
            EXPECT_EQ(b, Version(6, 1));
            return row.less;
        };
        Context().versionEqual = [row](Version const&, Version const&) { return row.equal; };
        EXPECT_EQ(SessionSteps::EnsureRemoteVersionIsGreaterThanLocal(), row.greater) << row.name;
        EXPECT_EQ(Log().Records().size(), row.greater ? 0U : 1U);
    }
}

TEST_F(VersionComparator, SameRemoteVersionIsNotGreater)
{
    Context().localVersion = Version(2, 0, 1);
    LendWithRemote(State::WAITING, Version(2, 0, 1));
    EXPECT_FALSE(SessionSteps::EnsureRemoteVersionIsGreaterThanLocal());
    EXPECT_EQ(Log().Records(),
              (Records{Error(511, "bool Pelnar::App::SparkleManager::Impl::EnsureRemoteVersionIsGreaterThanLocal() "
                                  "const: Remote version is not greater than local version")}));
}

TEST_F(VersionComparator, MissingOperatorLeavesTheGuardAsAnException)
{
    LendWithRemote(State::WAITING);
    auto const less = Context().versionLess;
    Context().versionLess = nullptr;
    EXPECT_THROW((void)SessionSteps::EnsureRemoteVersionIsGreaterThanLocal(), std::bad_function_call);
    Context().versionLess = less;
    Context().versionEqual = nullptr;
    EXPECT_THROW((void)SessionSteps::EnsureRemoteVersionIsGreaterThanLocal(), std::bad_function_call);
    Context().remoteVersion = Version(4, 0);
    EXPECT_FALSE(SessionSteps::EnsureRemoteVersionIsGreaterThanLocal()) << "equality is not asked";
}

} // namespace
