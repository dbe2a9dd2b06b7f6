#include "common/DirectCallGateway.h"

#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>
#include <thread>

namespace
{

using Pelnar::ExternalStimulus::Action;
using Pelnar::ExternalStimulus::DirectCallGateway;
using Pelnar::ExternalStimulus::IGateway;

TEST(DirectCallGateway, EmptyCallbackIsIgnored)
{
    std::shared_ptr<IGateway> const gateway = std::make_shared<DirectCallGateway>();
    EXPECT_NO_THROW(gateway->ProposeAction(Action{"anything", nullptr}));
}

TEST(DirectCallGateway, ReturnsAfterTheCallbackHasReturned)
{
    DirectCallGateway gateway;
    bool returned = false;
    gateway.ProposeAction({"anything", [&returned, caller = std::this_thread::get_id()]
                           {
                               EXPECT_EQ(std::this_thread::get_id(), caller);
                               returned = true;
                           }});
    EXPECT_TRUE(returned);
}

TEST(DirectCallGateway, IdIsNotLookedAt)
{
    DirectCallGateway gateway;
    int calls = 0;
    for (char const* id : {"", "REQUEST_CHECK_AUTO_UPDATE", "something else"})
    {
        gateway.ProposeAction({id, [&calls] { ++calls; }});
    }
    EXPECT_EQ(calls, 3);
}

TEST(DirectCallGateway, ExceptionReachesTheProposer)
{
    DirectCallGateway gateway;
    EXPECT_THROW(gateway.ProposeAction({"x", [] { throw std::runtime_error("no"); }}), std::runtime_error);
}

TEST(DirectCallGateway, CancellingDoesNothing)
{
    DirectCallGateway gateway;
    int calls = 0;
    gateway.CancelActions("x");
    gateway.ProposeAction({"x", [&calls, &gateway]
                           {
                               ++calls;
                               gateway.CancelActions("x");
                           }});
    gateway.CancelActions("x");
    EXPECT_EQ(calls, 1);
}

} // namespace
