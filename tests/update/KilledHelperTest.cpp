// KilledHelperTest.cpp: the installing helper is killed at each of its calls from its wait for the application on. The
// next start hears of it, once. The default run takes a sample of the calls; with PELNAR_EVERY_PLACE=1 in the
// environment it takes them all.
#include "Engine/core/helper/InstallRecord.h"
#include "Engine/core/update/InstallMemory.h"
#include "tests/installer/InstallerFixture.h"
#include "tests/support/EveryPlace.h"
#include "tests/support/LogCapture.h"

#include <gtest/gtest.h>

#include <csignal>
#include <filesystem>

#include <fcntl.h>
#include <sys/syscall.h>

namespace
{

using namespace Pelnar::Engine;
using namespace Pelnar::Testing;

constexpr int STRIDE = 6;

/// An update from 1.0 to 2.0 that somebody wishes; its helper is killed at one call.
class KilledInstallation
{
public:
    /// Counts the calls from the first wait on, which has number 0.
    KilledInstallation(InstallWish wish, int killedCall)
    {
        InstallJob job = m_scene.PrepareForInstall();
        job.targetPath.clear();
        UpdateScene::KeepRecord(job);
        job.recordName = InstallRecordName(Bundle());
        job.record->wish = wish;
        job.record->attempts = 1;
        HelperStart start;
        start.atEveryCall = [this, killedCall](CallStop const& stop)
        {
            if (stop.call == SYS_poll && m_calls == 0)
            {
                m_scene.Host().End();
                ++m_calls;
            }
            else if (m_calls > 0)
            {
                ++m_calls;
            }
            return m_calls == killedCall + 1 ? CallVerdict::KillAll() : CallVerdict::GoOn();
        };
        HelperOutcome const outcome = m_scene.Install(job, start);
        m_isKilled = outcome.signal == SIGKILL;
        m_scene.ReleaseStaging();
    }

    [[nodiscard]] bool IsKilled() const { return m_isKilled; }
    std::string InstalledVersion() const { return m_scene.Place().StartedVersion(); }
    std::string Names() const
    {
        std::string names;
        for (std::string const& name : m_scene.Place().Names())
        {
            names += name + ' ';
        }
        return names;
    }

    /// What a start of \a version finds.
    InstallMemory Start(std::string const& version) const
    {
        QString const records = QString::fromStdString(m_scene.Downloads().Path());
        return InstallMemory(records, records + QStringLiteral("/none"), QString::fromStdString(Bundle()),
                             QString::fromStdString(version));
    }

private:
    std::string Bundle() const { return m_scene.Place().Path() + '/' + APP; }

    UpdateScene m_scene;
    int m_calls = 0;
    bool m_isKilled = false;
};

class KilledHelper : public testing::TestWithParam<InstallWish>
{
};

TEST_P(KilledHelper, IsNewsForTheNextStartOnce)
{
    int failed = 0;
    int installed = 0;
    for (int call = 0;; call += IsEveryPlaceWanted() ? 1 : STRIDE)
    {
        SCOPED_TRACE(testing::Message() << "call " << call);
        KilledInstallation const installation(GetParam(), call);
        if (!installation.IsKilled())
        {
            break;
        }
        std::string const version = installation.InstalledVersion();
        ASSERT_TRUE(version == "1.0" || version == "2.0") << installation.Names();
        bool const isFailed = version == "1.0";
        ++(isFailed ? failed : installed);
        LogCapture log;
        {
            InstallMemory memory = installation.Start(version);
            EXPECT_EQ(memory.News() != nullptr, isFailed);
            EXPECT_EQ(memory.IsToBeTold(), isFailed && GetParam() == InstallWish::Person);
            EXPECT_TRUE(!memory.IsToBeTold() || memory.ClaimTelling());
        }
        std::size_t const lines = log.Texts().size();
        EXPECT_LE(lines, 1u);
        EXPECT_TRUE(lines == 1 || !isFailed);
        InstallMemory const again = installation.Start(version);
        EXPECT_FALSE(again.News() || again.IsToBeTold());
        EXPECT_EQ(log.Texts().size(), lines);
    }
    EXPECT_GT(failed, 0);
    EXPECT_GT(installed, 0);
}

INSTANTIATE_TEST_SUITE_P(Wishes, KilledHelper, testing::Values(InstallWish::Automatic, InstallWish::Person),
                         [](auto const& info) { return info.param == InstallWish::Person ? "Person" : "Automatic"; });

} // namespace
