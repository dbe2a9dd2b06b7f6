#include "Engine/core/update/UpdateRules.h"
#include "Engine/core/bundle/PayloadKind.h"
#include "Engine/core/faults/EngineError.h"

#include <gtest/gtest.h>

#include <limits>

namespace
{

using namespace Pelnar::Engine;

TEST(UpdateRules, OnlyABackgroundCheckThatDownloadsByItselfIsSilent)
{
    struct Row
    {
        CheckKind kind;
        AutomaticDownload automatic;
        UpdateMode manner;
        CheckOrigin origin;
    };
    for (Row const& row :
         {Row{CheckKind::Background, AutomaticDownload::On, UpdateMode::Silent, CheckOrigin::Background},
          Row{CheckKind::Background, AutomaticDownload::Off, UpdateMode::Windows, CheckOrigin::Background},
          Row{CheckKind::Interactive, AutomaticDownload::On, UpdateMode::Windows, CheckOrigin::User},
          Row{CheckKind::Interactive, AutomaticDownload::Off, UpdateMode::Windows, CheckOrigin::User}})
    {
        FeedItem item;
        EXPECT_EQ(ModeOf(row.kind, row.automatic, item), row.manner);
        item.policy.isToBeAsked = true;
        EXPECT_EQ(ModeOf(row.kind, row.automatic, item), UpdateMode::Windows);
        EXPECT_EQ(OriginOf(row.kind), row.origin);
    }
}
TEST(UpdateRules, FileNameTellsAnInstallerProgram)
{
    struct Row
    {
        char const* address;
        bool isDelta;
        PayloadKind kind;
    };
    for (Row const& row : {Row{"https://a.example/App-5.1.zip", false, PayloadKind::WholeBundle},
                           Row{"https://a.example/App-5.1.delta", true, PayloadKind::Delta},
                           Row{"https://a.example/App.sparkle_guided.zip", false, PayloadKind::Installer},
                           Row{"https://a.example/App.sparkle_interactive.zip?a=b", false, PayloadKind::Installer},
                           Row{"https://a.example/x.sparkle_guided.y/App.zip", false, PayloadKind::WholeBundle},
                           Row{"https://a.example/App.zip?.sparkle_guided.", false, PayloadKind::WholeBundle}})
    {
        UpdateCandidate candidate;
        candidate.item.fileUrl = QUrl(QString::fromLatin1(row.address));
        candidate.item.isDelta = row.isDelta;
        EXPECT_EQ(KindOf(candidate), row.kind) << row.address;
    }
}

TEST(UpdateRules, RoomIsThreeTimesTheLongestArchive)
{
    auto const candidate = [](quint64 length)
    {
        UpdateCandidate result;
        result.item.contentLength = length;
        return result;
    };
    EXPECT_EQ(NeededBytes({candidate(100), candidate(1000)}), 3000u);
    EXPECT_EQ(NeededBytes({candidate(1000), candidate(100)}), 3000u);
    EXPECT_GE(NeededBytes({candidate(std::numeric_limits<quint64>::max())}), std::numeric_limits<quint64>::max() - 3);
}

TEST(UpdateRules, ShownVersionIsTheOneForPersonsWhereThereIsOne)
{
    FeedItem item;
    item.versionString = QStringLiteral("5.1");
    EXPECT_EQ(ShownVersionOf(item), QStringLiteral("5.1"));
    item.displayVersionString = QStringLiteral("Spring");
    EXPECT_EQ(ShownVersionOf(item), QStringLiteral("Spring"));
}

TEST(UpdateRules, PersonIsShownWhatFailedAndWhatTheyAskedFor)
{
    EXPECT_TRUE(IsShown(MakeError(ErrorCause::HostNotFound), PersonAsked::Yes));
    EXPECT_FALSE(IsShown(MakeError(ErrorCause::HostNotFound), PersonAsked::No));
    EXPECT_FALSE(IsShown(MakeError(ErrorCause::Cancelled), PersonAsked::Yes)) << "they know";
    EXPECT_FALSE(IsShown(MakeError(ErrorCause::NoUpdate), PersonAsked::Yes)) << "another window says so";
}

TEST(UpdateRules, OnlyFailuresOfTheOtherSideHoldTheNextCheckBack)
{
    for (ErrorCause const cause : {ErrorCause::NoUpdate, ErrorCause::Cancelled, ErrorCause::UpdatesDisabled,
                                   ErrorCause::HeldBack, ErrorCause::DelegateRaised, ErrorCause::DownloadBusy,
                                   ErrorCause::DownloadNoRoom, ErrorCause::BundleOfPackage, ErrorCause::HelperFailed})
    {
        EXPECT_FALSE(CountsForBackOff(MakeError(cause))) << static_cast<int>(cause);
    }
    for (ErrorCause const cause :
         {ErrorCause::HostNotFound, ErrorCause::HttpStatus, ErrorCause::FeedMalformed, ErrorCause::ForeignItem,
          ErrorCause::DownloadLengthInvalid, ErrorCause::DownloadLengthDiffers, ErrorCause::DownloadRangeWrong,
          ErrorCause::DownloadTooMuch, ErrorCause::DownloadTooOften, ErrorCause::DownloadTooLong,
          ErrorCause::DownloadPaused})
    {
        EXPECT_TRUE(CountsForBackOff(MakeError(cause))) << static_cast<int>(cause);
    }
    EXPECT_TRUE(CountsForBackOff(MakeFaultError(UpdateFault::SignatureMismatch)));
    EXPECT_FALSE(CountsForBackOff(MakeFaultError(UpdateFault::KeyMissing)));
}
TEST(UpdateRules, RelaunchPathIsAnAbsolutePathOrNone)
{
    struct Row
    {
        QString path;
        std::string expected;
    };
    for (Row const& row :
         {Row{QStringLiteral("/opt/App.app"), "/opt/App.app"}, Row{QString(), ""}, Row{QStringLiteral("App.app"), ""},
          Row{QStringLiteral("~/App.app"), ""}, Row{QStringLiteral("file:///opt/App.app"), ""},
          Row{QStringLiteral("/a b;rm -r /"), "/a b;rm -r /"}, Row{QStringLiteral("/line\nbreak"), "/line\nbreak"},
          Row{QString(QStringLiteral("/nul")) + QChar(0), ""},
          Row{QLatin1Char('/') + QString(5000, QLatin1Char('x')), ""}})
    {
        EXPECT_EQ(RelaunchPathOf(row.path), row.expected) << row.path.left(40).toStdString();
    }
}

TEST(UpdateRules, EnvironmentHoldsWhatIsAVariable)
{
    char const* const environment[] = {"A=1", "EMPTY=", "nothing", "=odd", "B=a=b", nullptr};
    EXPECT_EQ(EnvironmentOf(environment), (std::vector<std::string>{"A=1", "EMPTY=", "B=a=b"}));
    EXPECT_TRUE(EnvironmentOf(nullptr).empty());
}

} // namespace
