// GoodStartTest.cpp: the questions of a newly started application to the helper, from within the application.

#include "Engine/core/update/GoodStart.h"
#include "Engine/core/helper/NoteFile.h"
#include "Engine/core/helper/SwapJournal.h"
#include "tests/installer/InstallerFixture.h"
#include "tests/support/DialogDriver.h"
#include "tests/support/LogCapture.h"
#include "tests/support/TestApplication.h"

#include <gtest/gtest.h>

#include <fstream>

namespace
{

using namespace Pelnar::Engine;
using namespace Pelnar::Testing;

/// The running version 2.0, installed, which must confirm a good start.
class GoodStarts : public testing::Test
{
protected:
    GoodStarts()
    {
        m_scene.PrepareForInstall();
        SwapJournal journal{m_scene.StagingName(), APP, "1.0", "2.0", StartConfirmation::ByHost, 0, {}};
        WriteNote(m_scene.Place().Descriptor(), SwapJournalName(APP), EncodeSwapJournal(journal));
        std::string const bundle = m_scene.Place().Path() + '/' + APP;
        std::string const staged = m_scene.StagingPath() + '/' + APP;
        std::rename(bundle.c_str(), (m_scene.StagingPath() + '/' + PREVIOUS_BUNDLE_NAME).c_str());
        std::rename(staged.c_str(), bundle.c_str());
        m_scene.Host().End();
        m_scene.ReleaseStaging();
    }

    StartedApplication Application(char const* version = "2.0") const
    {
        return {QStringLiteral(PELNAR_INSTALLER_PROGRAM), QString::fromStdString(m_scene.Place().Path() + '/' + APP),
                QString::fromLatin1(version)};
    }

    using Ask = void (*)(StartedApplication const&, QObject&, std::function<void(StartOutcome const&)>);

    StartOutcome Run(Ask ask, StartedApplication const& application)
    {
        std::optional<StartOutcome> told;
        ask(application, m_owner, [&told](StartOutcome const& outcome) { told = outcome; });
        EXPECT_FALSE(told.has_value()); // never before the call returns
        EXPECT_TRUE(WaitFor([&told] { return told.has_value(); }));
        return told.value_or(StartOutcome{});
    }

    UpdateScene m_scene;
    QObject m_owner;

private:
    TestApplication<> m_application;
};

TEST_F(GoodStarts, OneStartIsCountedOnceHoweverOftenItsProcessAsks)
{
    EXPECT_EQ(Run(&RecoverAtStart, Application()).action, RecoveryAction::CountedStart);
    for (int again = 0; again < 3; ++again)
    {
        EXPECT_EQ(Run(&RecoverAtStart, Application()).action, RecoveryAction::KeptPrevious);
    }
    EXPECT_EQ(m_scene.Place().StartedVersion(), "2.0");
}

TEST_F(GoodStarts, ConfirmationRemovesThePreviousVersion)
{
    EXPECT_EQ(Run(&RecoverAtStart, Application()).action, RecoveryAction::CountedStart);
    EXPECT_EQ(Run(&ConfirmGoodStart, Application()).action, RecoveryAction::ConfirmedNew);
    EXPECT_EQ(m_scene.Place().Names(), std::vector<std::string>{APP});
    EXPECT_EQ(Run(&ConfirmGoodStart, Application()).action, RecoveryAction::Nothing);
    EXPECT_EQ(m_scene.Place().StartedVersion(), "2.0");
}

TEST_F(GoodStarts, ConfirmationMayComeBeforeTheStartIsCounted)
{
    std::vector<RecoveryAction> actions;
    RecoverAtStart(Application(), m_owner, [&actions](StartOutcome const& o) { actions.push_back(o.action); });
    ConfirmGoodStart(Application(), m_owner, [&actions](StartOutcome const& o) { actions.push_back(o.action); });
    ASSERT_TRUE(WaitFor([&actions] { return actions.size() == 2; }));
    EXPECT_EQ(m_scene.Place().Names(), std::vector<std::string>{APP});
    EXPECT_EQ(m_scene.Place().StartedVersion(), "2.0");
}

TEST_F(GoodStarts, RestoredVersionIsToldWhichVersionWasRolledBack)
{
    m_scene.Recover("2.0");
    m_scene.Recover("2.0");
    LogCapture const log;
    EXPECT_EQ(Run(&RecoverAtStart, Application()).action, RecoveryAction::RolledBack);
    EXPECT_EQ(m_scene.Place().StartedVersion(), "1.0");
    ASSERT_EQ(log.Records().size(), 1u);
    EXPECT_EQ(log.Records()[0].severity, google::GLOG_WARNING);
    StartOutcome const outcome = Run(&RecoverAtStart, Application("1.0"));
    EXPECT_EQ(outcome.action, RecoveryAction::Nothing);
    EXPECT_EQ(outcome.failedVersion, QStringLiteral("2.0"));
}

TEST_F(GoodStarts, OwnerThatGoesIsNotCalledAndTheWorkIsDone)
{
    auto owner = std::make_unique<QObject>();
    ConfirmGoodStart(Application(), *owner, [](StartOutcome const&) { ADD_FAILURE() << "its owner is gone"; });
    owner.reset();
    EXPECT_TRUE(WaitFor([this] { return m_scene.Place().Names() == std::vector<std::string>{APP}; }));
}

TEST_F(GoodStarts, WithoutTracesOfAnUpdateNoHelperIsStarted)
{
    Workspace const place;
    place.Put(MakeBundle("1.0"));
    LogCapture const log;
    StartOutcome const outcome =
        Run(&RecoverAtStart,
            {QStringLiteral("/nonexistent"), QString::fromStdString(place.Path() + '/' + APP), QStringLiteral("1.0")});
    EXPECT_EQ(outcome.action, RecoveryAction::Nothing);
    EXPECT_TRUE(log.Records().empty());
}

TEST_F(GoodStarts, FailureIsLoggedAndAnsweredAsNothing)
{
    StartedApplication application = Application();
    application.helperProgram = QStringLiteral("/nonexistent");
    LogCapture const log;
    EXPECT_EQ(Run(&RecoverAtStart, application).action, RecoveryAction::Nothing);
    ASSERT_EQ(log.Records().size(), 1u);
    EXPECT_NE(log.Records()[0].text.find("HelperUnusable"), std::string::npos) << log.Records()[0].text;
    EXPECT_EQ(m_scene.Place().StartedVersion(), "2.0");
}

} // namespace
