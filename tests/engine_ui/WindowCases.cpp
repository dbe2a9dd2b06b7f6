#include "tests/engine_ui/WindowCases.h"

#include "Engine/core/faults/EngineError.h"

namespace Pelnar::Testing
{
namespace
{

using namespace Engine;

using Recorder = std::function<void(std::string)>;

std::string NameOf(UpdateChoice choice)
{
    switch (choice)
    {
    case UpdateChoice::SkipThisVersion:
        return "skip";
    case UpdateChoice::RemindMeLater:
        return "remind";
    case UpdateChoice::InstallUpdate:
        return "install";
    }
    return "unknown";
}

std::function<void()> Telling(Recorder const& hear, char const* answer)
{
    return [hear, answer] { hear(answer); };
}

NamedVersion Tidepool()
{
    return {QStringLiteral("Tidepool"), QStringLiteral("2.1.0")};
}

WindowCase UpdateCase(char const* name, CheckOrigin origin)
{
    return {name,
            "PelnarEngine_updateWindow",
            origin,
            [origin](IUserInterface& ui, Recorder const& hear)
            {
                UpdateOffer offer = FullOffer();
                offer.importance = UpdateImportance::Ordinary;
                ui.ShowUpdate(offer, origin, [hear](UpdateChoice choice) { hear(NameOf(choice)); });
            },
            {{"PelnarEngine_skipButton", "skip"},
             {"PelnarEngine_remindButton", "remind"},
             {"PelnarEngine_installButton", "install"}},
            "remind",
            origin == CheckOrigin::User ? "PelnarEngine_installButton" : ""};
}

WindowCase CriticalCase()
{
    return {"update_critical",
            "PelnarEngine_updateWindow",
            CheckOrigin::User,
            [](IUserInterface& ui, Recorder const& hear)
            { ui.ShowUpdate(FullOffer(), CheckOrigin::User, [hear](UpdateChoice choice) { hear(NameOf(choice)); }); },
            {{"PelnarEngine_remindButton", "remind"}, {"PelnarEngine_installButton", "install"}},
            "remind",
            "PelnarEngine_installButton"};
}

WindowCase PageCase()
{
    return {"update_page",
            "PelnarEngine_updateWindow",
            CheckOrigin::User,
            [](IUserInterface& ui, Recorder const& hear)
            {
                UpdateOffer offer = FullOffer();
                offer.importance = UpdateImportance::Ordinary;
                offer.form = UpdateForm::Page;
                offer.page = QUrl(QStringLiteral("https://tidepool.example/2.1"));
                offer.sizeBytes = 0;
                ui.ShowUpdate(offer, CheckOrigin::User, [hear](UpdateChoice choice) { hear(NameOf(choice)); });
            },
            {{"PelnarEngine_skipButton", "skip"},
             {"PelnarEngine_remindButton", "remind"},
             {"PelnarEngine_pageButton", "remind"}},
            "remind",
            "PelnarEngine_pageButton"};
}

WindowCase ReadyCase(char const* name, CheckOrigin origin)
{
    return {name,
            "PelnarEngine_readyWindow",
            origin,
            [origin](IUserInterface& ui, Recorder const& hear)
            {
                ui.ShowReadyToInstall(Tidepool(), origin,
                                      [hear](ReadyChoice choice)
                                      { hear(choice == ReadyChoice::Later ? "later" : "install and relaunch"); });
            },
            {{"PelnarEngine_laterButton", "later"}, {"PelnarEngine_installAndRelaunchButton", "install and relaunch"}},
            "later",
            origin == CheckOrigin::User ? "PelnarEngine_installAndRelaunchButton" : ""};
}

void ShowDownloadUnderWay(IUserInterface& ui, Recorder const& hear)
{
    ui.ShowDownload(Tidepool(), Telling(hear, "cancel"));
    UpdateProgress progress;
    progress.doneBytes = 12'300'000;
    progress.totalBytes = 45'600'000;
    progress.bytesPerSecond = 1'500'000;
    ui.SetProgress(progress);
}

} // namespace

UpdateOffer FullOffer()
{
    UpdateOffer offer;
    offer.applicationName = QStringLiteral("Tidepool");
    offer.currentVersion = QStringLiteral("2.0.3");
    offer.version = QStringLiteral("2.1.0");
    offer.title = QStringLiteral("Tidepool 2.1: the spring tide");
    offer.sizeBytes = 45'600'000;
    offer.importance = UpdateImportance::Critical;
    offer.notes.format = ReleaseNotesFormat::Markdown;
    offer.notes.text = QStringLiteral("## New\n"
                                      "- **Charts** can be printed; see [the manual](https://tidepool.example/manual)\n"
                                      "- Faster start\n\n"
                                      "## Fixed\n"
                                      "1. The `tide` command no longer drifts\n"
                                      "2. Crash on an empty harbour\n\n"
                                      "> Thanks to everybody who reported these.\n");
    return offer;
}

std::vector<WindowCase> AllWindowCases()
{
    return {
        {"checking",
         "PelnarEngine_checkingWindow",
         CheckOrigin::User,
         [](IUserInterface& ui, Recorder const& hear) { ui.ShowChecking(Telling(hear, "cancel")); },
         {{"PelnarEngine_cancelButton", "cancel"}},
         "cancel",
         ""},
        {"up_to_date",
         "PelnarEngine_upToDateWindow",
         CheckOrigin::User,
         [](IUserInterface& ui, Recorder const& hear) { ui.ShowUpToDate(Tidepool(), Telling(hear, "closed")); },
         {{"PelnarEngine_okButton", "closed"}},
         "closed",
         "PelnarEngine_okButton"},
        UpdateCase("update", CheckOrigin::User),
        UpdateCase("update_nobody_asked_for", CheckOrigin::Background),
        CriticalCase(),
        PageCase(),
        {"progress",
         "PelnarEngine_progressWindow",
         CheckOrigin::User,
         ShowDownloadUnderWay,
         {{"PelnarEngine_cancelButton", "cancel"}},
         "cancel",
         ""},
        ReadyCase("ready", CheckOrigin::User),
        ReadyCase("ready_nobody_asked_for", CheckOrigin::Background),
        {"error",
         "PelnarEngine_errorWindow",
         CheckOrigin::User,
         [](IUserInterface& ui, Recorder const& hear)
         { ui.ShowError(MakeError(ErrorCause::CertificateExpired).sentence, Telling(hear, "closed")); },
         {{"PelnarEngine_okButton", "closed"}},
         "closed",
         "PelnarEngine_okButton"},
        {"error_with_a_path",
         "PelnarEngine_errorWindow",
         CheckOrigin::User,
         [](IUserInterface& ui, Recorder const& hear)
         {
             Sentence const sentence = MakeError(ErrorCause::BundleInImage).sentence;
             ui.ShowError(Sentence(sentence.Source(), {QStringLiteral("/home/robin/Applications/Tidepool.AppImage")}),
                          Telling(hear, "closed"));
         },
         {{"PelnarEngine_okButton", "closed"}},
         "closed",
         "PelnarEngine_okButton"},
    };
}

} // namespace Pelnar::Testing
