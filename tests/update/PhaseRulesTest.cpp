// PhaseRulesTest.cpp: each event in each phase of an update: in the table, and in a whole update for the events that
// can come at any time.
#include "Engine/core/update/PhaseRules.h"
#include "tests/update/UpdateRunFixture.h"

#include <iterator>
#include <ostream>
#include <sstream>

namespace
{

using namespace Pelnar::Testing;
using namespace Pelnar::Engine;

constexpr char const* PHASES[] = {
#define PELNAR_PHASE(name, steps) #name,
#include "Engine/core/update/PhaseRules.def"
};

constexpr char const* EVENTS[] = {
#define PELNAR_EVENT(name) #name,
#include "Engine/core/update/PhaseRules.def"
};

std::string NameOf(RunPhase phase)
{
    return PHASES[static_cast<int>(phase)];
}

/// Records the name of the called step.
struct StepName final : IUpdateSteps
{
#define PELNAR_STEP(step)                                                                                              \
    void step() override                                                                                               \
    {                                                                                                                  \
        name = #step;                                                                                                  \
    }
#include "Engine/core/update/PhaseRules.def"

    std::string name;
};

/// One line for each pair of phase and event that has a step.
std::string Table(UpdateMode mode)
{
    std::ostringstream text;
    for (int phase = 0; phase < int(std::size(PHASES)); ++phase)
    {
        for (int event = 0; event < int(std::size(EVENTS)); ++event)
        {
            if (auto const transition = TransitionAt(static_cast<RunPhase>(phase), static_cast<RunEvent>(event), mode))
            {
                StepName step;
                (step.*transition->step)();
                text << PHASES[phase] << " " << EVENTS[event] << ": " << step.name << ", " << NameOf(transition->next)
                     << "\n";
            }
        }
    }
    return text.str();
}

/// The expected table. A pair that is missing here does nothing.
std::string Expected(char const* targetOpened, char const* prepared)
{
    return std::string("Starting Started: OpenTarget, Starting\n"
                       "Starting PageOffered: Ask, Asking\n") +
           "Starting TargetOpened: " + targetOpened +
           "\n"
           "Starting Refused: End, Ended\n"
           "Asking Skipped: Skip, Asking\n"
           "Asking PutOff: Finish, Ended\n"
           "Asking Agreed: Download, Downloading\n"
           "Asking HostRaised: Finish, Ended\n"
           "Downloading Downloaded: Prepare, Preparing\n"
           "Downloading CandidateFailed: DownloadNext, Downloading\n"
           "Downloading LastCandidateFailed: Finish, Ended\n"
           "Downloading Cancelled: Finish, Ended\n"
           "Preparing Prepared: " +
           prepared +
           ", Ready\n"
           "Preparing CandidateFailed: DownloadNext, Downloading\n"
           "Preparing LastCandidateFailed: Finish, Ended\n"
           "Preparing Cancelled: Finish, Ended\n"
           "Ready Offered: Arm, Armed\n"
           "Ready InstallNow: AskHost, Deciding\n"
           "Ready Declined: Drop, Dropping\n"
           "Ready Cancelled: Finish, Ended\n"
           "Ready HostRaised: Finish, Ended\n"
           "Deciding InstallAllowed: Arm, Armed\n"
           "Deciding RelaunchAllowed: AskForPath, Deciding\n"
           "Deciding PathGiven: Relaunch, Relaunching\n"
           "Deciding Declined: Drop, Dropping\n"
           "Deciding HelperFailed: Finish, Ended\n"
           "Deciding HostRaised: Finish, Ended\n"
           "Armed InstallNow: AskHost, Deciding\n"
           "Armed Declined: Drop, Dropping\n"
           "Armed HelperFailed: Finish, Ended\n"
           "Armed ApplicationQuits: AskHost, Armed\n"
           "Armed SessionEnds: Drop, Dropping\n"
           "Armed HostRaised: Finish, Ended\n"
           "Relaunching Declined: Drop, Dropping\n"
           "Relaunching HelperWaits: TellRelaunch, Relaunching\n"
           "Relaunching HelperFailed: Finish, Ended\n"
           "Relaunching SessionEnds: Drop, Dropping\n"
           "Relaunching HostRaised: Finish, Ended\n"
           "Dropping Dropped: Finish, Ended\n"
           "Dropping HostRaised: Finish, Ended\n";
}

TEST(PhaseRules, SayWhatEachEventDoesInEachPhaseWithWindows)
{
    EXPECT_EQ(Table(UpdateMode::Windows), Expected("Ask, Asking", "AskToInstall"));
}

TEST(PhaseRules, SayWhatEachEventDoesInEachPhaseOfASilentUpdate)
{
    EXPECT_EQ(Table(UpdateMode::Silent), Expected("Download, Downloading", "OfferOnQuit"));
}

/// A phase of a silent update, and the notes that follow if an event comes there. These events can come in any phase.
/// While the application is being asked, the event comes from within its answer.
struct AnyTime
{
    RunPhase phase;
    Notes installNow; ///< with a relaunch
    Notes quit;
    Notes sessionEnds;
};

void PrintTo(AnyTime const& row, std::ostream* out)
{
    *out << NameOf(row.phase);
}

Notes const ARMED = {"helper install"};
Notes const DROPPED = {"helper killed", "attempt taken back", "cancelled", "end"};

class InPhase : public UpdateRunTest, public ::testing::WithParamInterface<AnyTime>
{
protected:
    void SetUp() override { parts.isTargetHeld = true; }

    /// Runs a whole silent update and sends \a event in the phase of the row. Returns the notes after that.
    Notes Send(std::function<void()> const& event)
    {
        RunPhase const phase = GetParam().phase;
        bool isSent = false;
        auto const sendIn = [&](RunPhase wanted)
        {
            if (phase == wanted && !isSent)
            {
                isSent = true;
                Since();
                event();
            }
        };
        host.onNote = [&](std::string const& note)
        {
            if (note == "will install on quit")
            {
                sendIn(RunPhase::Ready);
            }
            else if (note == "path?")
            {
                sendIn(RunPhase::Deciding);
            }
            else if (note == "cancelled")
            {
                sendIn(RunPhase::Dropping);
            }
        };
        StartSilent();
        sendIn(RunPhase::Starting);
        parts.TellTarget();
        sendIn(RunPhase::Downloading);
        parts.FinishDownload();
        sendIn(RunPhase::Preparing);
        parts.FinishPreparation();
        sendIn(RunPhase::Armed);
        if (phase == RunPhase::Deciding || phase == RunPhase::Relaunching)
        {
            host.installNow(RelaunchWish::Relaunch);
            sendIn(RunPhase::Relaunching);
        }
        if (phase == RunPhase::Dropping || phase == RunPhase::Ended)
        {
            run->GiveUpInstallation();
            sendIn(RunPhase::Ended);
        }
        host.onNote = nullptr;
        EXPECT_TRUE(isSent);
        return Since();
    }
};

Notes const PREPARED = {"download /App-5.1.zip", "helper prepare", "will install on quit"};

Notes Joined(Notes first, Notes const& second)
{
    first.insert(first.end(), second.begin(), second.end());
    return first;
}

INSTANTIATE_TEST_SUITE_P(
    Phases, InPhase,
    ::testing::Values(
        AnyTime{RunPhase::Starting, Joined(PREPARED, ARMED), Joined(PREPARED, ARMED),
                Joined(PREPARED, {"cancelled", "end"})},
        AnyTime{RunPhase::Downloading,
                {"helper prepare", "will install on quit", "helper install"},
                {"helper prepare", "will install on quit", "helper install"},
                {"helper prepare", "will install on quit", "cancelled", "end"}},
        AnyTime{RunPhase::Preparing,
                {"will install on quit", "helper install"},
                {"will install on quit", "helper install"},
                {"will install on quit", "cancelled", "end"}},
        AnyTime{RunPhase::Ready, {"should relaunch?", "path?", "helper install"}, ARMED, {"cancelled", "end"}},
        AnyTime{RunPhase::Deciding, {"helper killed", "helper install"}, {"helper killed", "helper install"}, DROPPED},
        AnyTime{RunPhase::Armed,
                {"should relaunch?", "path?", "helper killed", "helper install"},
                {"should relaunch?"},
                DROPPED},
        AnyTime{RunPhase::Relaunching, {}, {}, DROPPED}, AnyTime{RunPhase::Dropping, {"end"}, {"end"}, {"end"}},
        AnyTime{RunPhase::Ended, {}, {}, {}}),
    [](auto const& row) { return NameOf(row.param.phase); });

TEST_P(InPhase, InstallationAtOnce)
{
    EXPECT_EQ(Send(
                  [this]
                  {
                      if (host.installNow)
                      {
                          host.installNow(RelaunchWish::Relaunch);
                      }
                  }),
              GetParam().installNow);
}

TEST_P(InPhase, QuitOfTheApplication)
{
    EXPECT_EQ(Send([] { Q_EMIT QCoreApplication::instance()->aboutToQuit({}); }), GetParam().quit);
}

TEST_P(InPhase, EndOfTheDesktopsSession)
{
    EXPECT_EQ(Send([this] { run->GiveUpInstallation(); }), GetParam().sessionEnds);
}

} // namespace
