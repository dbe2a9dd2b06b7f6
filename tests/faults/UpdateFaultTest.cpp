#include "Engine/core/faults/UpdateFault.h"
#include "tests/support/EveryFault.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <set>
#include <string>

namespace
{

using namespace Pelnar::Engine;

TEST(UpdateFault, EveryNameIsItsOwnAndLeadsBack)
{
    std::set<std::string_view> names;
    for (UpdateFault const fault : Pelnar::Testing::EveryUpdateFault())
    {
        EXPECT_TRUE(names.insert(FaultName(fault)).second) << FaultName(fault);
        EXPECT_EQ(FaultFromName(FaultName(fault)), fault);
    }
    EXPECT_EQ(FaultName(static_cast<UpdateFault>(-1)), "Unknown fault");
    EXPECT_EQ(FaultFromName("Unknown fault"), std::nullopt);
    EXPECT_EQ(FaultFromName(""), std::nullopt);
    EXPECT_EQ(FaultFromName("nospace"), std::nullopt);
}

TEST(UpdateFault, SystemErrorsKeepTheirNumberAndTheirMeaning)
{
    struct Row
    {
        int errorNumber;
        UpdateFault fault;
    };
    for (Row const& row : {Row{ENOSPC, UpdateFault::NoSpace}, Row{EDQUOT, UpdateFault::NoSpace},
                           Row{EACCES, UpdateFault::NotPermitted}, Row{EPERM, UpdateFault::NotPermitted},
                           Row{EROFS, UpdateFault::NotPermitted}, Row{EIO, UpdateFault::SwapFailed}})
    {
        try
        {
            ThrowErrno(row.errorNumber, UpdateFault::SwapFailed);
        }
        catch (UpdateRefusal const& refusal)
        {
            EXPECT_EQ(refusal.Fault(), row.fault);
            EXPECT_EQ(refusal.ErrorNumber(), row.errorNumber);
            EXPECT_NE(std::string(refusal.what()).find("errno " + std::to_string(row.errorNumber)), std::string::npos);
        }
    }
    EXPECT_STREQ(UpdateRefusal(UpdateFault::BundleMissing).what(), "BundleMissing");
}

} // namespace
