// UpdateScenario.h: shared by the tests of whole updates: the installed demo application, its scripts, and the checks
// at the end.
// Thread: one. Ownership: the fixture's.
#pragma once

#include "tests/end_to_end/InstalledDemo.h"

#include <gtest/gtest.h>

namespace Pelnar::Testing
{

using Names = std::vector<std::string>;

constexpr char WHOLE_FEED[] = "appcast.xml";
constexpr char DELTA_FEED[] = "appcast-delta.xml";
constexpr char TAMPERED_FEED[] = "appcast-tampered.xml";
constexpr char BROKEN_FEED[] = "appcast-broken.xml";
constexpr char WHOLE_ARCHIVE[] = "PelnarDemo-5.10.tar.zst";
constexpr char DELTA_ARCHIVE[] = "PelnarDemo-5.9-5.10.delta";

constexpr char SKIP[] = "PelnarEngine_updateWindow/PelnarEngine_skipButton";
constexpr char REMIND[] = "PelnarEngine_updateWindow/PelnarEngine_remindButton";
constexpr char INSTALL[] = "PelnarEngine_updateWindow/PelnarEngine_installButton";
constexpr char CANCEL_DOWNLOAD[] = "PelnarEngine_progressWindow/PelnarEngine_cancelButton";
constexpr char LATER[] = "PelnarEngine_readyWindow/PelnarEngine_laterButton";
constexpr char RELAUNCH[] = "PelnarEngine_readyWindow/PelnarEngine_installAndRelaunchButton";
constexpr char CLOSE_ERROR[] = "PelnarEngine_errorWindow/PelnarEngine_okButton";
constexpr char CLOSE_UP_TO_DATE[] = "PelnarEngine_upToDateWindow/PelnarEngine_okButton";
constexpr char SESSION_RELAUNCH[] = "SparkleUpdater_updateIsReadyToInstallDialog/Install and Relaunch";
constexpr char SESSION_LATER[] = "SparkleUpdater_updateIsReadyToInstallDialog/Remind Me Later";
constexpr char SESSION_SKIP[] = "SparkleUpdater_updateIsReadyToInstallDialog/Skip This Version";

constexpr char DOWNLOADS_SILENTLY[] = "{ SUAutomaticallyUpdate = YES; }";
constexpr char FOUND[] = "OnUpdateFound current=5.9 remote=5.10";
constexpr char FOUND_BROKEN[] = "OnUpdateFound current=5.9 remote=5.11";

inline QStringList Script(char const* mode, char const* scenario, std::vector<char const*> const& clicks = {})
{
    QStringList arguments{QStringLiteral("--mode"), QString::fromLatin1(mode), QStringLiteral("--scenario"),
                          QString::fromLatin1(scenario)};
    for (char const* const click : clicks)
    {
        arguments += {QStringLiteral("--click"), QString::fromLatin1(click)};
    }
    return arguments;
}

class UpdateScenario : public testing::Test
{
protected:
    DemoOutput Run(UpdateServer const& server, char const* feed, QStringList const& script) const
    {
        DemoOutput output = demo.Run(server.Url(QString::fromLatin1(feed)), script);
        EXPECT_TRUE(output.hasEnded) << output.Text();
        EXPECT_EQ(output.status, 0) << output.Text();
        return output;
    }

    void ExpectUpdated(DemoOutput const& output) const
    {
        EXPECT_EQ(output.RunningVersions(), (Names{"5.9", "5.10"})) << output.Text();
        EXPECT_TRUE(demo.Tree() == NewTree());
        EXPECT_EQ(demo.Neighbours(), Names{"PelnarDemo.app"}) << "it has confirmed its good start:\n" << output.Text();
        ExpectStarts("5.10");
    }

    void ExpectUntouched(DemoOutput const& output) const
    {
        EXPECT_EQ(output.RunningVersions(), Names{"5.9"}) << output.Text();
        EXPECT_TRUE(demo.Tree() == OldTree());
        EXPECT_EQ(demo.Neighbours(), Names{"PelnarDemo.app"});
        ExpectStarts("5.9");
    }

    void ExpectStarts(char const* version) const
    {
        DemoOutput const output = demo.Run(QStringLiteral("https://127.0.0.1/none"), Script("user", "start"));
        EXPECT_EQ(output.status, 0);
        EXPECT_EQ(output.RunningVersions(), Names{version}) << output.Text();
    }

    InstalledDemo demo;
};

} // namespace Pelnar::Testing
