#include "Engine/core/UpdateError.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <map>
#include <set>
#include <string>

namespace
{

using namespace Pelnar::Engine;

std::vector<UpdateFault> EveryFault()
{
    std::vector<UpdateFault> faults;
    for (int number = 1; FaultFromName(FaultName(static_cast<UpdateFault>(number))); ++number)
    {
        faults.push_back(static_cast<UpdateFault>(number));
    }
    return faults;
}

TEST(UpdateError, NoTwoFaultsShareTheirNumberOrTheirText)
{
    std::set<int> numbers;
    std::set<std::string> sentences;
    std::vector<UpdateFault> const faults = EveryFault();
    ASSERT_GT(faults.size(), 60u);
    for (UpdateFault const fault : faults)
    {
        EngineError const error = MakeFaultError(fault);
        EXPECT_EQ(error.UnderlyingCode(), 1000 + static_cast<int>(fault));
        EXPECT_TRUE(numbers.insert(error.UnderlyingCode()).second) << FaultName(fault);
        EXPECT_TRUE(sentences.insert(error.sentence.English().toStdString()).second) << FaultName(fault);
        EXPECT_EQ(error.detail.toStdString(), FaultName(fault));
    }
}

TEST(UpdateError, EverySentenceSaysWhatHappenedAndWhatToDo)
{
    for (UpdateFault const fault : EveryFault())
    {
        QString const sentence = MakeFaultError(fault).sentence.English();
        EXPECT_TRUE(sentence.endsWith(QLatin1Char('.'))) << sentence.toStdString();
        EXPECT_EQ(sentence.count(QLatin1String(": ")), 1) << sentence.toStdString();
        EXPECT_EQ(sentence.count(QLatin1Char('.')), 1) << "one sentence: " << sentence.toStdString();
    }
}

TEST(UpdateError, CodesAreThoseOfTheirGroup)
{
    std::map<UpdateFault, ErrorCode> const expected = {
        {UpdateFault::SignatureMismatch, ErrorCode::Signature},
        {UpdateFault::KeyMissing, ErrorCode::Signature},
        {UpdateFault::ContainerDamaged, ErrorCode::Unarchiving},
        {UpdateFault::EntryEscapes, ErrorCode::Unarchiving},
        {UpdateFault::IdentifierDiffers, ErrorCode::Validation},
        {UpdateFault::VersionNotNewer, ErrorCode::Downgrade},
        {UpdateFault::NoSpace, ErrorCode::FileCopy},
        {UpdateFault::NotPermitted, ErrorCode::NotWritable},
        {UpdateFault::HostStillRunning, ErrorCode::Relaunch},
        {UpdateFault::RelaunchFailed, ErrorCode::Relaunch},
        {UpdateFault::StagedTreeChanged, ErrorCode::Validation},
        {UpdateFault::SwapFailed, ErrorCode::Installation},
        {UpdateFault::TargetChanged, ErrorCode::Installation},
    };
    for (auto const& [fault, code] : expected)
    {
        EXPECT_EQ(MakeFaultError(fault).code, code) << FaultName(fault);
    }
}

TEST(UpdateError, SystemErrorStandsInTheDetailOnly)
{
    EngineError const error = MakeFaultError(UpdateFault::DiskError, EIO);
    EXPECT_EQ(error.detail, QStringLiteral("DiskError (errno %1)").arg(EIO));
    EXPECT_FALSE(error.sentence.English().contains(QLatin1String("errno")));
}

TEST(UpdateError, ArchiveIsNotBlamedForThisComputer)
{
    for (UpdateFault const fault : {UpdateFault::NoSpace, UpdateFault::DiskError, UpdateFault::NotPermitted,
                                    UpdateFault::ConfinementFailed, UpdateFault::TargetChanged})
    {
        EXPECT_FALSE(IsArchiveToBlame(fault)) << FaultName(fault);
    }
    for (UpdateFault const fault : {UpdateFault::SignatureMismatch, UpdateFault::ContainerDamaged,
                                    UpdateFault::EntryEscapes, UpdateFault::BundleMissing})
    {
        EXPECT_TRUE(IsArchiveToBlame(fault)) << FaultName(fault);
    }
}

} // namespace
