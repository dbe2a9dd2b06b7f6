#include "Engine/core/faults/EngineError.h"
#include "Engine/core/feed/FeedParser.h"
#include "tests/support/EveryFault.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace
{

using namespace Pelnar::Engine;

/// Every row of the tables as an error: the causes, the causes for an archive, the faults.
std::vector<EngineError> EveryError()
{
    std::vector<EngineError> errors;
    for (ErrorCause const cause : Pelnar::Testing::EveryCause())
    {
        errors.push_back(MakeError(cause));
        if (EntryOf(cause).downloadSentence != nullptr)
        {
            errors.push_back(AsDownloadError(MakeError(cause)));
        }
    }
    for (UpdateFault const fault : Pelnar::Testing::EveryUpdateFault())
    {
        errors.push_back(MakeFaultError(fault));
    }
    return errors;
}

TEST(EngineError, HasANumberOfItsOwn)
{
    std::set<std::pair<QString, int>> numbers;
    for (ErrorCause const cause : Pelnar::Testing::EveryCause())
    {
        EngineError const error = MakeError(cause);
        EXPECT_EQ(error.UnderlyingCode(), cause == ErrorCause::HttpStatus ? 0 : static_cast<int>(cause));
        EXPECT_EQ(static_cast<int>(error.cause), EntryOf(cause).number);
        if (cause != ErrorCause::Fault) // its number is also that of UpdateFault::None
        {
            EXPECT_TRUE(numbers.insert({error.UnderlyingDomain(), error.UnderlyingCode()}).second)
                << error.UnderlyingCode();
        }
    }
    for (UpdateFault const fault : Pelnar::Testing::EveryUpdateFault())
    {
        EngineError const error = MakeFaultError(fault);
        EXPECT_EQ(error.UnderlyingCode(), 1000 + static_cast<int>(fault));
        EXPECT_EQ(error.UnderlyingCode(), EntryOf(fault).number);
        EXPECT_TRUE(numbers.insert({error.UnderlyingDomain(), error.UnderlyingCode()}).second) << FaultName(fault);
        EXPECT_EQ(error.detail.toStdString(), FaultName(fault));
    }
}

// A second sentence says why a feed cannot be read, and names the line.
TEST(EngineError, HasASentenceOfItsOwnUnlessASecondOneFollows)
{
    std::set<std::string> sentences;
    for (EngineError const& error : EveryError())
    {
        bool const isFollowed =
            (error.cause > ErrorCause::FeedMalformed && error.cause <= ErrorCause::FeedTooMuchMarkup &&
             error.cause != ErrorCause::FeedIsWebPage) ||
            error.cause == ErrorCause::FeedIsOtherDocument;
        std::string const sentence = error.sentence.English().toStdString();
        EXPECT_EQ(sentences.insert(sentence).second, !isFollowed) << sentence;
    }
}

TEST(EngineError, OfAStatusHasTheStatusAsItsNumberInADomainOfItsOwn)
{
    std::set<std::string> sentences;
    for (int status = 200; status < 600; ++status)
    {
        EngineError const error = MakeHttpStatusError(status);
        if (status != 511)
        {
            EXPECT_EQ(error.UnderlyingDomain(), QStringLiteral("PelnarHTTPStatusErrorDomain"));
            EXPECT_EQ(error.UnderlyingCode(), status);
        }
        EXPECT_TRUE(sentences.insert(error.sentence.English().toStdString()).second) << status;
    }
}

TEST(EngineError, StatusOfANetworkAsksThePersonToSignIn)
{
    EngineError const error = MakeHttpStatusError(511);
    EXPECT_EQ(error.cause, ErrorCause::NetworkSignIn);
    EXPECT_EQ(error.sentence.English(), QStringLiteral("This network asks you to sign in. Sign in and try again."));
    EXPECT_EQ(AsDownloadError(error).sentence.English(), error.sentence.English());
}

TEST(EngineError, OfAFeedHasTheNumberOfItsKind)
{
    for (ErrorCause const cause :
         {ErrorCause::FeedMalformed, ErrorCause::FeedDocumentType, ErrorCause::FeedTooDeep,
          ErrorCause::FeedTooManyAttributes, ErrorCause::FeedTagTooLong, ErrorCause::FeedTooManyItems,
          ErrorCause::FeedTooManyNamespaces, ErrorCause::FeedTooMuchMarkup, ErrorCause::FeedIsWebPage,
          ErrorCause::FeedIsOtherDocument})
    {
        FeedParseError error;
        error.cause = cause;
        EXPECT_EQ(MakeFeedError(error).UnderlyingCode(), static_cast<int>(cause));
        EXPECT_EQ(MakeFeedError(error).code, ErrorCode::AppcastParse);
    }
}

TEST(EngineError, UnreadableFeedSaysWhatToDoAndThenNamesTheLine)
{
    FeedParseError error;
    error.cause = ErrorCause::FeedTooDeep;
    error.sentence = Sentence("Line %1 is %2.", {QStringLiteral("4"), QStringLiteral("%1")});
    EXPECT_EQ(MakeFeedError(error).sentence.English(),
              QStringLiteral("The update feed cannot be read. Contact the publisher. Line 4 is %1."));
    EXPECT_EQ(MakeFeedError(error).sentence.Translated(),
              QStringLiteral("The update feed cannot be read. Contact the publisher. Line 4 is %1."));
}

TEST(EngineError, CodesAreThePublishedOnes)
{
    std::map<ErrorCause, int> const ownCodes = {{ErrorCause::NoUpdate, 1001},
                                                {ErrorCause::Cancelled, 4007},
                                                {ErrorCause::BundleUnnamed, 3002},
                                                {ErrorCause::HelperFailed, 4005},
                                                {ErrorCause::NoRoomForUpdate, 2000}};
    for (ErrorCause const each : Pelnar::Testing::EveryCause())
    {
        EngineError const error = MakeError(each);
        int const cause = static_cast<int>(error.cause);
        auto const own = ownCodes.find(error.cause);
        int const ofItsGroup = cause >= 700 && cause < 750    ? 1000
                               : cause >= 750 && cause < 760  ? 3001
                               : cause >= 760 && cause < 780  ? 3002
                               : cause >= 900 && cause < 950  ? 2001
                               : cause >= 950 && cause < 1000 ? 4012
                                                              : 1002;
        EXPECT_EQ(static_cast<int>(error.code), own != ownCodes.end() ? own->second : ofItsGroup) << cause;
    }
}

TEST(EngineError, RemoteTextIsEscapedCutAndKeptOutOfTheSentence)
{
    QString const hostile =
        QStringLiteral("<img src='file:///etc/passwd'>\x1b[31m\n\u202e") + QString(100000, QLatin1Char('&'));
    EngineError const error = MakeError(ErrorCause::ConnectionFailed, hostile);
    EXPECT_LE(error.detail.size(), 200);
    EXPECT_FALSE(error.detail.contains(QLatin1Char('<')));
    EXPECT_FALSE(error.detail.contains(QLatin1Char('\n')));
    EXPECT_FALSE(error.detail.contains(QChar(0x1b)));
    EXPECT_FALSE(error.detail.contains(QChar(0x202e)));
    EXPECT_TRUE(error.detail.endsWith(QLatin1String("&amp;"))) << "not cut inside an escape";
    EXPECT_EQ(error.sentence.English(), MakeError(ErrorCause::ConnectionFailed).sentence.English());
}

TEST(EngineError, CutNeverLeavesHalfACharacter)
{
    QString text(199, QLatin1Char('x'));
    text += QStringLiteral("\U0001F600");
    EXPECT_EQ(EscapedRemoteText(text), QString(199, QLatin1Char('x')));
    EXPECT_EQ(EscapedRemoteText(QStringLiteral("\U0001F600")), QStringLiteral("\U0001F600"));
    EXPECT_TRUE(EscapedRemoteText(QString(QChar(0xD800))).isValidUtf16());
}

TEST(EngineError, IsDescribedAsUnknownByANumberWithoutARow)
{
    EXPECT_EQ(MakeError(static_cast<ErrorCause>(999)).sentence.English(),
              MakeError(ErrorCause::Fault).sentence.English());
    EXPECT_EQ(MakeError(static_cast<ErrorCause>(5000)).code, ErrorCode::Appcast);
    EXPECT_EQ(MakeError(static_cast<ErrorCause>(-1)).code, ErrorCode::Appcast);
    EXPECT_EQ(MakeFaultError(static_cast<UpdateFault>(-1)).code, ErrorCode::Installation);
}

TEST(EngineError, SaysWhatHappenedAndThenWhatToDoInTwoShortSentences)
{
    for (EngineError const& error : EveryError())
    {
        QString const text = error.sentence.English();
        std::string const shown = text.toStdString();
        EXPECT_EQ(text.count(QLatin1Char('.')) - text.count(QStringLiteral("1.2")),
                  error.cause == ErrorCause::NoUpdate ? 1 : 2)
            << shown;
        EXPECT_TRUE(text.endsWith(QLatin1Char('.'))) << shown;
        EXPECT_FALSE(text.contains(QLatin1Char(':'))) << shown;
        EXPECT_FALSE(text.contains(QLatin1String("Please"))) << shown;
        EXPECT_LE(text.size(), 150) << shown;
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

TEST(UpdateError, QuotaIsNotCalledAFullDisk)
{
    EXPECT_EQ(MakeFaultError(UpdateFault::NoSpace, EDQUOT).sentence.English(),
              QStringLiteral("Your disk quota is too small for the update. Remove some of your files and try again."));
    EXPECT_EQ(MakeFaultError(UpdateFault::NoSpace, ENOSPC).sentence.English(),
              QStringLiteral("There is not enough space on the disk for the update. Free some space and try again."));
}

TEST(UpdateError, ArchiveIsNotBlamedForThisComputer)
{
    for (UpdateFault const fault : {UpdateFault::NoSpace, UpdateFault::DiskError, UpdateFault::NotPermitted,
                                    UpdateFault::ConfinementFailed, UpdateFault::TargetChanged})
    {
        EXPECT_NE(BlameOf(MakeFaultError(fault)), Blame::Archive) << FaultName(fault);
    }
    for (UpdateFault const fault : {UpdateFault::SignatureMismatch, UpdateFault::ContainerDamaged,
                                    UpdateFault::EntryEscapes, UpdateFault::BundleMissing})
    {
        EXPECT_EQ(BlameOf(MakeFaultError(fault)), Blame::Archive) << FaultName(fault);
    }
}

} // namespace
