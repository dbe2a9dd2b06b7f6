#include "common/NotNull.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <type_traits>

namespace
{

using Pelnar::NotNull;
using Pelnar::SharedNotNullPtr;

struct Base
{
    int value = 7;
};
struct Derived : Base
{
};

static_assert(std::is_same_v<SharedNotNullPtr<Base>, NotNull<std::shared_ptr<Base>>>);
static_assert(!std::is_default_constructible_v<NotNull<Base*>>);
static_assert(!std::is_convertible_v<std::shared_ptr<Base>, SharedNotNullPtr<Derived>>);

template <class F>
std::string TextOfLogicError(F call)
{
    try
    {
        call();
    }
    catch (std::logic_error const& error)
    {
        return error.what();
    }
    return "nothing was thrown";
}

TEST(NotNull, NullThrowsItsText)
{
    std::string const text = "NotNull can not initialized by null";
    EXPECT_EQ(TextOfLogicError([] { NotNull<Base*>{static_cast<Base*>(nullptr)}; }), text);
    EXPECT_EQ(TextOfLogicError([] { SharedNotNullPtr<Base>{std::shared_ptr<Base>()}; }), text);
    EXPECT_EQ(TextOfLogicError([] { SharedNotNullPtr<Base>{std::shared_ptr<Derived>()}; }), text);
    EXPECT_EQ(TextOfLogicError([] { SharedNotNullPtr<Base>{nullptr}; }), text);
}

TEST(NotNull, GivesThePointerBack)
{
    auto const shared = std::make_shared<Base>();
    SharedNotNullPtr<Base> const wrapped(shared);
    std::shared_ptr<Base> const& back = wrapped;
    EXPECT_EQ(wrapped.Get(), shared);
    EXPECT_EQ(back, shared);
    EXPECT_EQ(&*wrapped, shared.get());
    EXPECT_EQ(wrapped->value, 7);
}

TEST(NotNull, SharesOwnership)
{
    auto shared = std::make_shared<Base>();
    std::weak_ptr<Base> const observed = shared;
    {
        SharedNotNullPtr<Base> const wrapped(shared);
        shared.reset();
        EXPECT_FALSE(observed.expired());
    }
    EXPECT_TRUE(observed.expired());
}

TEST(NotNull, ConvertsToABase)
{
    Derived object;
    NotNull<Derived*> const derived(&object);
    NotNull<Base*> const base(derived);
    EXPECT_EQ(base.Get(), &object);
    SharedNotNullPtr<Derived> const sharedDerived(std::make_shared<Derived>());
    SharedNotNullPtr<Base> const sharedBase(sharedDerived);
    EXPECT_EQ(sharedBase.Get(), sharedDerived.Get());
}

TEST(NotNull, MovingOutOfOneLeavesItNotNull)
{
    SharedNotNullPtr<Base> source(std::make_shared<Base>());
    SharedNotNullPtr<Base> const target(std::move(source));
    EXPECT_EQ(source.Get(), target.Get()); // NOLINT(bugprone-use-after-move): this is what is proved
    EXPECT_TRUE(source.Get());
}

TEST(NotNull, AssignmentReplacesThePointer)
{
    SharedNotNullPtr<Base> a(std::make_shared<Base>());
    SharedNotNullPtr<Base> const b(std::make_shared<Base>());
    a = b;
    EXPECT_EQ(a.Get(), b.Get());
}

} // namespace
