#include "common/PropogateConstCreator.h"
#include "common/ScopedFunctionCall.h"
#include "common/ValueGuard.h"

#include <gtest/gtest.h>

#include <optional>
#include <stdexcept>
#include <string>
#include <type_traits>

namespace
{

using Pelnar::Core::ScopedFunctionCall;
using Pelnar::Core::ValueGuard;
using Pelnar::details::PropogateConstCreator;

TEST(ValueGuard, SetsAndRestores)
{
    std::string value = "old";
    {
        ValueGuard<std::string> const guard(value, "new");
        EXPECT_EQ(value, "new");
        value = "changed meanwhile";
    }
    EXPECT_EQ(value, "old");
}

TEST(ValueGuard, RestoresAnEmptyFunction)
{
    std::function<void()> function;
    {
        ValueGuard<std::function<void()>> const guard(function, [] {});
        EXPECT_TRUE(function);
    }
    EXPECT_FALSE(function);
}

TEST(ValueGuard, NestedGuardsUnwindInOrder)
{
    int value = 1;
    {
        ValueGuard<int> const outer(value, 2);
        {
            ValueGuard<int> const inner(value, 3);
            EXPECT_EQ(value, 3);
        }
        EXPECT_EQ(value, 2);
    }
    EXPECT_EQ(value, 1);
}

TEST(ValueGuard, RestoresWhenAnExceptionLeavesTheScope)
{
    int value = 1;
    auto const scope = [&value]
    {
        ValueGuard<int> const guard(value, 2);
        throw std::runtime_error("no");
    };
    EXPECT_THROW(scope(), std::runtime_error);
    EXPECT_EQ(value, 1);
}

TEST(ValueGuard, ForgottenVariableIsNotTouched)
{
    int value = 1;
    {
        ValueGuard<int> guard(value, 2);
        guard.Forget();
    }
    EXPECT_EQ(value, 2);
}

struct ThrowsWhenMovedInto
{
    ThrowsWhenMovedInto() = default;
    ThrowsWhenMovedInto(ThrowsWhenMovedInto const&) = default;
    ThrowsWhenMovedInto& operator=(ThrowsWhenMovedInto const&) = default;
    ThrowsWhenMovedInto& operator=(ThrowsWhenMovedInto&&)
    {
        if (armed)
        {
            throw std::runtime_error("no");
        }
        return *this;
    }
    static inline bool armed = false;
};

TEST(ValueGuardDeathTest, FailureToRestoreEndsTheProgram)
{
    EXPECT_DEATH(
        {
            ThrowsWhenMovedInto value;
            ValueGuard<ThrowsWhenMovedInto> const guard(value, ThrowsWhenMovedInto());
            ThrowsWhenMovedInto::armed = true;
        },
        "");
}

TEST(ScopedFunctionCall, RunsTheFirstAtOnceAndTheSecondAtTheEnd)
{
    std::string calls;
    {
        ScopedFunctionCall const guard([&calls] { calls += "enter "; }, [&calls] { calls += "exit"; }, true);
        EXPECT_EQ(calls, "enter ");
        calls += "body ";
    }
    EXPECT_EQ(calls, "enter body exit");
}

TEST(ScopedFunctionCall, EmptyFunctionsAreNotCalled)
{
    int calls = 0;
    {
        ScopedFunctionCall const onlyExit(
            nullptr, [&calls] { ++calls; }, true);
        ScopedFunctionCall const onlyEnter([&calls] { ++calls; }, nullptr, true);
        EXPECT_EQ(calls, 1);
    }
    EXPECT_EQ(calls, 2);
}

TEST(ScopedFunctionCall, InactiveOneCallsNothing)
{
    int calls = 0;
    {
        ScopedFunctionCall const guard([&calls] { ++calls; }, [&calls] { ++calls; }, false);
    }
    EXPECT_EQ(calls, 0);
}

TEST(ScopedFunctionCall, ExitRunsWhenAnExceptionLeavesTheScope)
{
    int calls = 0;
    auto const scope = [&calls]
    {
        ScopedFunctionCall const guard(
            nullptr, [&calls] { ++calls; }, true);
        throw std::runtime_error("no");
    };
    EXPECT_THROW(scope(), std::runtime_error);
    EXPECT_EQ(calls, 1);
}

TEST(ScopedFunctionCall, ExitDoesNotRunWhenEnterThrows)
{
    int calls = 0;
    auto const scope = [&calls]
    { ScopedFunctionCall const guard([] { throw std::runtime_error("no"); }, [&calls] { ++calls; }, true); };
    EXPECT_THROW(scope(), std::runtime_error);
    EXPECT_EQ(calls, 0);
}

struct Record
{
    int value = 3;
    Record() { ++alive; }
    ~Record() { --alive; }
    Record(Record const&) = delete;
    static inline int alive = 0;
};

using RecordCreator = PropogateConstCreator<std::unique_ptr<Record>>;
using RecordPointer = RecordCreator::type;

static_assert(std::is_same_v<decltype(std::declval<RecordPointer&>().get()), Record*>);
static_assert(std::is_same_v<decltype(std::declval<RecordPointer const&>().get()), Record const*>);
static_assert(std::is_same_v<decltype(*std::declval<RecordPointer&>()), Record&>);
static_assert(std::is_same_v<decltype(*std::declval<RecordPointer const&>()), Record const&>);
static_assert(std::is_same_v<decltype(std::declval<RecordPointer const&>().operator->()), Record const*>);
static_assert(!std::is_copy_constructible_v<RecordPointer>);

TEST(PropogateConstCreator, CreatesWithoutArgumentsAndOwns)
{
    {
        RecordPointer pointer = RecordCreator::Create();
        RecordPointer const& constant = pointer;
        EXPECT_EQ(Record::alive, 1);
        pointer->value = 4;
        EXPECT_EQ(constant->value, 4);
        EXPECT_EQ(constant.get(), &*pointer);
    }
    EXPECT_EQ(Record::alive, 0);
}

struct Throwing
{
    Throwing() { throw std::runtime_error("no"); }
};

TEST(PropogateConstCreator, ExceptionOfTheConstructorLeaves)
{
    EXPECT_THROW((void)PropogateConstCreator<std::unique_ptr<Throwing>>::Create(), std::runtime_error);
}

} // namespace
