// CrashScenarioTest.cpp: the installed application crashes or is killed during an update, or runs several times at
// once. All processes are real.
#include "Engine/core/base/Descriptor.h"
#include "tests/end_to_end/UpdateScenario.h"

#include <algorithm>
#include <csignal>
#include <ostream>
#include <thread>

#include <poll.h>
#include <sys/inotify.h>
#include <unistd.h>

namespace Pelnar::Testing
{
namespace
{

constexpr char SLOW_ARCHIVE[] = "slow:PelnarDemo-5.10.tar.zst:400000";

/// The moment of the crash: when this window opens or, without a window, when bytes of the archive have arrived.
struct CrashRow
{
    char const* name;
    char const* mode;
    char const* defaults;
    std::vector<char const*> clicks;
    char const* window;
    int signal;
};

std::ostream& operator<<(std::ostream& out, CrashRow const& row)
{
    return out << row.name;
}

class CrashScenario : public UpdateScenario
{
protected:
    /// Makes the clicks that lead to the crash, and waits for a click that does not come.
    void Crash(UpdateServer const& server, CrashRow const& row)
    {
        demo.WriteDefaults(row.defaults);
        std::vector<char const*> clicks = row.clicks;
        clicks.push_back(CLOSE_UP_TO_DATE);
        auto const isDue = [this, &row]
        {
            Names const pictures = demo.Pictures();
            return row.window ? std::count(pictures.begin(), pictures.end(), row.window) > 0 : demo.HasDownloaded();
        };
        EXPECT_TRUE(demo.Crash(server.Url(QString::fromLatin1(WHOLE_FEED)), Script(row.mode, "answer", clicks),
                               row.signal, isDue));
        EXPECT_TRUE(demo.Tree() == OldTree()) << "nobody has said yes";
    }
};

class EveryMomentOfAnUpdate : public CrashScenario, public testing::WithParamInterface<CrashRow>
{
};

TEST_P(EveryMomentOfAnUpdate, MayBeTheLastAndTheNextStartClearsUp)
{
    UpdateServer server({QString::fromLatin1(SLOW_ARCHIVE)});
    Crash(server, GetParam());
    demo.WriteDefaults("{}");
    ExpectUntouched(Run(server, WHOLE_FEED, Script("user", "answer", {REMIND})));
}

INSTANTIATE_TEST_SUITE_P(
    Table, EveryMomentOfAnUpdate,
    testing::Values(CrashRow{"OfferOpen", "user", "{}", {}, "PelnarEngine_updateWindow", SIGSEGV},
                    CrashRow{"Downloading", "user", "{}", {INSTALL}, nullptr, SIGKILL},
                    CrashRow{"Staged", "user", "{}", {INSTALL}, "PelnarEngine_readyWindow", SIGSEGV},
                    CrashRow{"DownloadingSilently", "automatic", DOWNLOADS_SILENTLY, {}, nullptr, SIGSEGV},
                    CrashRow{"StagedSilently",
                             "automatic",
                             DOWNLOADS_SILENTLY,
                             {},
                             "SparkleUpdater_updateIsReadyToInstallDialog",
                             SIGKILL}),
    [](auto const& info) { return std::string(info.param.name); });

TEST_F(CrashScenario, ADownloadGoesOnWhereItWasInterrupted)
{
    UpdateServer server({QString::fromLatin1(SLOW_ARCHIVE)});
    Crash(server, {"", "user", "{}", {INSTALL}, nullptr, SIGKILL});
    ExpectUpdated(Run(server, WHOLE_FEED, Script("user", "update", {INSTALL, RELAUNCH})));
    Names const answers = server.EndAndListAnswers();
    EXPECT_EQ(std::count(answers.begin(), answers.end(), std::string(WHOLE_ARCHIVE) + " 206"), 1);
}

/// Counts how often something was renamed to a given name.
class PutWatch
{
public:
    PutWatch(std::string const& folder, std::string name)
        : m_watch(::inotify_init1(IN_CLOEXEC)), m_name(std::move(name))
    {
        EXPECT_GE(::inotify_add_watch(m_watch.Get(), folder.c_str(), IN_MOVED_TO | IN_CREATE | IN_ONLYDIR), 0);
    }

    int Count()
    {
        int count = 0;
        pollfd waiting{m_watch.Get(), POLLIN, 0};
        while (::poll(&waiting, 1, 0) > 0)
        {
            alignas(inotify_event) char events[4096];
            ssize_t const size = ::read(m_watch.Get(), events, sizeof events);
            for (ssize_t at = 0; at < size;)
            {
                auto const* const event = reinterpret_cast<inotify_event const*>(events + at);
                count += event->len > 0 && m_name == event->name ? 1 : 0;
                at += static_cast<ssize_t>(sizeof(inotify_event) + event->len);
            }
        }
        return count;
    }

private:
    Engine::UniqueFd m_watch;
    std::string m_name;
};

TEST_F(CrashScenario, OfSeveralRunningCopiesExactlyOneInstalls)
{
    UpdateServer server;
    PutWatch installations(demo.ApplicationsFolder(), "PelnarDemo.app");
    std::vector<DemoOutput> outputs(3);
    std::vector<std::thread> people;
    for (DemoOutput& output : outputs)
    {
        people.emplace_back(
            [this, &server, &output] {
                output = demo.Run(server.Url(QString::fromLatin1(WHOLE_FEED)),
                                  Script("user", "update", {INSTALL, RELAUNCH}));
            });
    }
    for (std::thread& person : people)
    {
        person.join();
    }
    EXPECT_EQ(installations.Count(), 1);
    int updated = 0;
    for (DemoOutput const& output : outputs)
    {
        EXPECT_TRUE(output.hasEnded) << output.Text();
        bool const isUpdated = output.RunningVersions() == Names{"5.9", "5.10"};
        updated += isUpdated ? 1 : 0;
        // The others got the reason, or found the new version already installed.
        EXPECT_TRUE(isUpdated || output.RunningVersions() == Names{"5.9"} || output.RunningVersions() == Names{"5.10"})
            << output.Text();
    }
    EXPECT_GE(updated, 1);
    EXPECT_TRUE(demo.Tree() == NewTree());
    DemoOutput const next = Run(server, WHOLE_FEED, Script("user", "answer", {CLOSE_UP_TO_DATE}));
    EXPECT_EQ(next.RunningVersions(), Names{"5.10"}) << next.Text();
    EXPECT_EQ(demo.Neighbours(), Names{"PelnarDemo.app"});
}

} // namespace
} // namespace Pelnar::Testing
