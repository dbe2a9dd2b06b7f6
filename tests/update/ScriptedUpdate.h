// ScriptedUpdate.h: an update whose delegate, windows, server and helper the test plays. Only the folders are real. All
// actions, questions and notifications are noted in one list, in order.
// Thread: main. Ownership: scope objects of the fixture.
#pragma once

#include "Engine/core/update/IUpdateEnvironment.h"
#include "Engine/core/update/IUpdateHost.h"
#include "Engine/core/update/IUserInterface.h"
#include "Engine/core/update/UpdateSettings.h"
#include "tests/support/TestApplication.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace Pelnar::Testing
{

using Notes = std::vector<std::string>;

/// A valid key, and a signature of the right form. Only the helper verifies it.
extern char const* const GOOD_KEY;
extern char const* const GOOD_SIGNATURE;

class ScriptedHost final : public Engine::IUpdateHost
{
public:
    explicit ScriptedHost(Notes& notes) : m_notes(notes) {}

    void FeedLoaded(std::vector<Engine::FeedItem> const& items) override { itemCount = items.size(); }
    Engine::BestItemAnswer AskForBestItem() override;
    /// Like the session, takes what it cannot read as equal; there it writes to the log.
    int CompareVersions(QString const& a, QString const& b) override;
    void TellFound(Engine::FoundUpdate const& found) override;
    void TellNotFound() override { Note("not found"); }
    void TellAborted(Engine::EngineError const& error) override;
    void CheckEnded() override { Note("check ended"); }
    void TellWillInstallOnQuit(Engine::ItemIndex const& place,
                               std::function<void(Engine::RelaunchWish)> const& installNow) override;
    void TellCancelledInstallOnQuit(Engine::ItemIndex const& place) override;
    Engine::RelaunchAnswer ShouldRelaunch() override;
    QString PathToRelaunch() override;
    void TellWillRelaunch() override { Note("will relaunch"); }
    void SkipVersion(QString const& version) override { Note("skip " + version.toStdString()); }
    /// Deliberate: not noted, because every readable feed is stored.
    void StoreFeedRecord(Engine::FeedRecord const& record) override;
    void StoreBackOff(Engine::BackOffState const& state) override;
    void UpdateEnded() override;

    /// To the next questions, in order; to further ones the first item.
    void AnswerWith(std::vector<Engine::BestItemAnswer> answers)
    {
        m_answers = std::move(answers);
        m_questions = 0;
    }

    Engine::RelaunchAnswer relaunchAnswer = Engine::RelaunchAnswer::Allowed;
    QString relaunchPath;
    std::function<void()> onWillInstall;
    std::function<void(std::string const&)> onNote;
    std::string throwsIn; ///< the note at which the delegate throws
    std::function<void(Engine::RelaunchWish)> installNow;
    std::optional<Engine::EngineError> error;
    std::function<void(Engine::FoundUpdate const&)> onFound;
    std::function<void()> onEnded;
    int unreadableVersions = 0;
    std::size_t itemCount = 0;
    std::optional<Engine::FeedRecord> feedRecord;
    std::optional<Engine::BackOffState> backOff; ///< the stored value

private:
    void Note(std::string const& note);

    Notes& m_notes;
    std::vector<Engine::BestItemAnswer> m_answers;
    std::size_t m_questions = 0;
};

class ScriptedWindows final : public Engine::IUserInterface
{
public:
    explicit ScriptedWindows(Notes& notes) : m_notes(notes) {}

    void ShowChecking(std::function<void()> onCancelled) override;
    void ShowUpToDate(Engine::NamedVersion const& installed, std::function<void()> onClosed) override;
    void ShowUpdate(Engine::UpdateOffer const& shown, Engine::CheckOrigin origin,
                    std::function<void(Engine::UpdateChoice)> onChosen) override;
    void ShowDownload(Engine::NamedVersion const& update, std::function<void()> onCancelled) override;
    void SetProgress(Engine::UpdateProgress const& progress) override { progresses.push_back(progress); }
    void ShowReadyToInstall(Engine::NamedVersion const& update, Engine::CheckOrigin origin,
                            std::function<void(Engine::ReadyChoice)> onChosen) override;
    void ShowError(Engine::Sentence const& sentence, std::function<void()> onClosed) override;
    void BringToFront() override { m_notes.push_back("bring to front"); }
    void Close() override;

    /// The person's answers. The test fails if no such window is open.
    void Choose(Engine::UpdateChoice choice);
    void Choose(Engine::ReadyChoice choice);
    void Cancel();

    std::string open; ///< the name of the open window
    std::optional<Engine::UpdateOffer> offer;
    std::vector<Engine::UpdateProgress> progresses;

private:
    void Open(std::string const& name);

    Notes& m_notes;
    std::function<void()> m_cancelled;
    std::function<void(Engine::UpdateChoice)> m_chosen;
    std::function<void(Engine::ReadyChoice)> m_ready;
};

class ScriptedHelper;

class ScriptedParts final : public Engine::IUpdateEnvironment
{
public:
    /// Installed bundles are in the folder \a applications.
    ScriptedParts(Notes& notes, QString applications) : m_notes(notes), m_applications(std::move(applications)) {}

    void OpenTarget(QString const& bundlePath, quint64 bytes,
                    std::function<void(Engine::OpenedTarget)> opened) override;
    std::unique_ptr<Engine::IDownload> MakeDownload(Engine::DownloadRequest const& request) override;
    void DiscardDownload(Engine::DownloadRequest const& request) override;
    void ClearDownloads(QString const& folder) override { cleared.push_back(folder); }
    std::unique_ptr<Engine::IHelper> MakeHelper() override;
    void DiscardUpdate(std::unique_ptr<Engine::PreparedUpdate> update) override { update.reset(); }
    void DiscardAttempt(std::unique_ptr<Engine::InstallAttempt> attempt) override;
    QDateTime Now() override { return now; }

    void TellTarget();
    /// The archive has arrived.
    void FinishDownload();
    void FailDownload(Engine::ErrorCause cause);
    /// The last started helper sends \a report, or ends.
    void Report(Engine::HelperReport const& report);
    void EndHelper(Engine::HelperEnd end);
    /// It has put a bundle into the staging folder, reports this and ends.
    void FinishPreparation();
    void RefusePreparation(Engine::UpdateFault fault);

    std::optional<Engine::EngineError> targetError;
    bool isTargetHeld = false; ///< until TellTarget
    bool isHelperMissing = false;
    std::optional<Engine::HelperEnd> unheardEnd; ///< of the last started helper; the event loop does not report it
    quint64 neededBytes = 0;
    std::vector<Engine::DownloadRequest> requests;
    QStringList cleared; ///< folders
    std::vector<Engine::UpdateJob> jobs;
    Engine::UniqueFd arguments; ///< the file with the new version's arguments, inherited by the last started helper
    QDateTime now = QDateTime::fromSecsSinceEpoch(1000000, Qt::UTC);

private:
    friend class ScriptedDownload;
    friend class ScriptedHelper;

    Notes& m_notes;
    QString m_applications;
    std::function<void()> m_heldTarget;
    std::function<void(Engine::DownloadProgress const&)> m_progress;
    std::function<void(Engine::DownloadOutcome)> m_finished;
    ScriptedHelper* m_helper = nullptr;
};

/// "App.app" of version 5.0 is installed in its own folder.
class UpdateFixture : public ::testing::Test
{
protected:
    UpdateFixture();

    Engine::FeedItem Item(char const* version) const;
    Engine::FeedItem Delta(char const* version) const;
    /// The names in the folder of the bundle.
    std::vector<std::string> Installed() const;

    TestApplication<> application;
    QTemporaryDir folder;
    QTemporaryDir downloads;
    Notes notes;
    ScriptedHost host{notes};
    ScriptedWindows windows{notes};
    ScriptedParts parts{notes, folder.path()};
    Engine::UpdateSettings settings;
};

} // namespace Pelnar::Testing
