// UpdateFlow.h: one check for updates with its windows, and its update.
// Thread: the Qt main thread. Ownership: the updater owns the flow and is its host; host, windows and parts outlive it.
// The flow owns the check and the update.
#pragma once

#include "Engine/core/update/UpdateRun.h"

#include <QObject>

#include <memory>
#include <optional>
#include <vector>

namespace Pelnar::Engine
{

class UpdateFlow : public QObject, private ICheckHost
{
    Q_OBJECT

public:
    UpdateFlow(CheckKind kind, UpdateSettings settings, IUpdateHost& host, IUserInterface& windows,
               IUpdateEnvironment& parts);
    ~UpdateFlow() override;

    /// Every call of the host comes later, from the event loop.
    void Start();
    /// A person asks again: the window that waits for an answer comes to the front.
    void BringToFront() { m_windows.BringToFront(); }
    /// Like UpdateRun.
    void GiveUpInstallation();

private:
    void StoreFeedRecord(FeedRecord const& record) override { m_host.StoreFeedRecord(record); }
    void FeedLoaded(std::vector<FeedItem> const& items) override;
    BestItemAnswer AskForBestItem() override { return m_host.AskForBestItem(); }
    int CompareVersions(QString const& a, QString const& b) override { return m_host.CompareVersions(a, b); }
    void TellFound(FoundUpdate const& found) override;
    void TellNotFound() override;
    void TellAborted(EngineError const& error) override;
    void CheckEnded() override;

    /// Fails if this check does not run at all.
    Result<void> JudgeStart() const;
    /// Of an item with a smaller archive that archive first.
    void AddCandidates(ItemIndex const& place);
    void CloseChecking();
    void CancelCheck();
    void EndUpdate(UpdateEnd const& end);
    void End(PersonAsked asked);
    void RememberOutcome();

    CheckKind m_kind;
    UpdateSettings m_settings;
    IUpdateHost& m_host;
    IUserInterface& m_windows;
    IUpdateEnvironment& m_parts;
    std::unique_ptr<CheckRun> m_check;
    std::vector<FeedItem> const* m_items = nullptr; ///< owned by the check
    std::vector<UpdateCandidate> m_candidates;      ///< of the found update
    std::optional<EngineError> m_error;             ///< the last one that was reported
    std::unique_ptr<UpdateRun> m_update;
};

} // namespace Pelnar::Engine
