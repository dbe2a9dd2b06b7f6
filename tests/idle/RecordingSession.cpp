// RecordingSession.cpp: a session of this build that is always busy, and prints each call.

#include "App/UpdateChecker/SparkleImpl/SessionLibrary/ISession.h"
#include "App/UpdateChecker/SparkleImpl/SessionLibrary/SessionExport_p.h"

#include <cstdio>
#include <cstdlib>
#include <stdexcept>

namespace
{

using namespace Pelnar::App;

class RecordingSession final : public ISession
{
public:
    bool LockUpdater(Pelnar::SharedNotNullPtr<SparkleUpdateContext> const&) override
    {
        if (std::getenv("PELNAR_TEST_SESSION_THROWS"))
        {
            throw std::runtime_error("the session is in no mood");
        }
        std::puts("session lock");
        return false;
    }
    void UnlockUpdaterWhenPossible() override { std::puts("session unlock"); }
    void CheckForUpdates() override { std::puts("session check"); }
    void ShowUpdateDialog() override { std::puts("session dialog"); }
    void RejectUpdateAndHideDialog() override { std::puts("session reject"); }
};

ISession& Session()
{
    static RecordingSession session;
    return session;
}

void ConfirmGoodStart()
{
    std::puts("session confirm");
}

int UnchangedFeedDays()
{
    return 42;
}

bool SetRelaunchArguments(std::vector<std::string> const& arguments)
{
    std::fputs("session arguments ", stdout);
    for (std::string const& argument : arguments)
    {
        std::printf("%s|", argument.c_str());
    }
    std::puts("");
    return true;
}

Pelnar::AutomaticDownload AutomaticDownloads()
{
    return Pelnar::AutomaticDownload::On;
}

void SetAutomaticDownloads(Pelnar::AutomaticDownload wish)
{
    std::puts(wish == Pelnar::AutomaticDownload::On ? "session downloads" : "session asks");
}

std::vector<std::string> Channels()
{
    return {"beta"};
}

bool SetChannels(std::vector<std::string> const& names)
{
    std::printf("session channels %d\n", static_cast<int>(names.size()));
    return true;
}

} // namespace

SessionExport const pelnarUpdateSession{PELNAR_SESSION_STAMP,
                                        &Session,
                                        &ConfirmGoodStart,
                                        &UnchangedFeedDays,
                                        &SetRelaunchArguments,
                                        &AutomaticDownloads,
                                        &SetAutomaticDownloads,
                                        &Channels,
                                        &SetChannels};
