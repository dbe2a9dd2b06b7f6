#include "Engine/core/update/UpdateFlow.h"

#include "Engine/core/check/DelegateCall.h"

#include <QPointer>

#include <glog/logging.h>

#include <utility>

namespace Pelnar::Engine
{

UpdateFlow::UpdateFlow(CheckKind kind, UpdateSettings settings, IUpdateHost& host, IUserInterface& windows,
                       IUpdateEnvironment& parts)
    : m_kind(kind)
    , m_settings(std::move(settings))
    , m_host(host)
    , m_windows(windows)
    , m_parts(parts)
    , m_check(std::make_unique<CheckRun>(kind, m_settings.check, static_cast<ICheckHost&>(*this),
                                         [&parts] { return parts.Now(); }))
{
}

UpdateFlow::~UpdateFlow() = default;

void UpdateFlow::Start()
{
    if (Result<void> const verdict = JudgeStart(); !verdict)
    {
        m_check->Refuse(verdict.error());
        return;
    }
    if (m_kind == CheckKind::Interactive)
    {
        m_windows.ShowChecking(
            [self = QPointer<UpdateFlow>(this)]
            {
                if (self)
                {
                    self->CancelCheck();
                }
            });
    }
    m_check->Start();
}

Result<void> UpdateFlow::JudgeStart() const
{
    if (m_settings.updates == UpdateSwitch::Off)
    {
        return Failure(ErrorCause::UpdatesDisabled);
    }
    // A probe may be the first half of a check that a person requested: it is never delayed.
    if (m_kind == CheckKind::Background && IsHeldBack(m_settings.backOff, m_parts.Now()))
    {
        return Failure(ErrorCause::HeldBack);
    }
    return {};
}

void UpdateFlow::CloseChecking()
{
    // A window of another check, such as an error, stays. Once the check is on the stack, it can no longer be
    // cancelled.
    if (m_kind == CheckKind::Interactive)
    {
        m_windows.Close();
    }
}

void UpdateFlow::FeedLoaded(std::vector<FeedItem> const& items)
{
    CloseChecking();
    m_items = &items;
    m_host.FeedLoaded(items);
}

void UpdateFlow::AddCandidates(ItemIndex const& place)
{
    FeedItem const& item = m_items->at(static_cast<size_t>(place.item));
    UpdateCandidate whole{place.delta ? item.deltas.at(static_cast<size_t>(*place.delta)) : item, place};
    whole.item.deltas.clear();
    for (FeedItem const& recompressed : std::exchange(whole.item.recompressed, {}))
    {
        UpdateCandidate& smaller = m_candidates.emplace_back(whole);
        smaller.item.fileUrl = recompressed.fileUrl;
        smaller.item.contentLength = recompressed.contentLength;
        smaller.item.edSignature = recompressed.edSignature;
    }
    m_candidates.push_back(std::move(whole));
}

void UpdateFlow::TellFound(FoundUpdate const& found)
{
    m_host.TellFound(found);
    m_settings.feedReach = found.feedReach;
    m_settings.bundle.publicKeys = found.publicKeys;
    AddCandidates(found.place);
    if (found.fallback)
    {
        AddCandidates(*found.fallback);
    }
}

void UpdateFlow::TellNotFound()
{
    // An archive of a version that is only postponed may still be needed.
    if (!m_check->HasPutOff())
    {
        m_parts.ClearDownloads(m_settings.downloadFolder);
    }
    m_host.TellNotFound();
}

void UpdateFlow::TellAborted(EngineError const& error)
{
    CloseChecking();
    m_error = error;
    m_host.TellAborted(error);
}

void UpdateFlow::CheckEnded()
{
    m_host.CheckEnded();
    // The check is on the stack below this call.
    m_check.release()->deleteLater();
    m_items = nullptr;
    if (m_candidates.empty() || m_kind == CheckKind::Probe)
    {
        End(m_kind == CheckKind::Interactive ? PersonAsked::Yes : PersonAsked::No);
        return;
    }
    bool const isSilentRequest =
        m_kind == CheckKind::Background && m_settings.automaticDownload == AutomaticDownload::On;
    if (isSilentRequest && m_candidates.front().item.policy.isToBeAsked)
    {
        // The application waits for a silent download that will not come; the windows continue from here.
        (void)CallDelegate("updater:didAbortWithError:",
                           [this] { m_host.TellAborted(MakeError(ErrorCause::Cancelled)); });
    }
    m_update = std::make_unique<UpdateRun>(m_kind, std::move(m_candidates), m_settings, m_host, m_windows, m_parts,
                                           [this](UpdateEnd const& end) { EndUpdate(end); });
    m_update->Start();
}

void UpdateFlow::CancelCheck()
{
    m_check.reset();
    m_error = MakeError(ErrorCause::Cancelled);
    (void)CallDelegate("updater:didAbortWithError:", [this] { m_host.TellAborted(*m_error); });
    m_host.CheckEnded();
    End(PersonAsked::Yes);
}

void UpdateFlow::EndUpdate(UpdateEnd const& end)
{
    PersonAsked const asked = end.asked;
    m_error = end.error;
    if (m_error)
    {
        (void)CallDelegate("updater:didAbortWithError:", [this] { m_host.TellAborted(*m_error); });
    }
    End(asked);
}

void UpdateFlow::End(PersonAsked asked)
{
    RememberOutcome();
    if (m_kind == CheckKind::Interactive && m_error && m_error->cause == ErrorCause::NoUpdate)
    {
        m_windows.ShowUpToDate({m_settings.bundle.shownName, m_settings.bundle.shownVersion}, [] {});
    }
    else if (m_error && IsShown(*m_error, asked))
    {
        m_windows.ShowError(m_error->sentence, [] {});
    }
    m_host.UpdateEnded();
}

void UpdateFlow::RememberOutcome()
{
    bool const hasFailed = m_error && CountsForBackOff(*m_error);
    bool const isRefused =
        m_error && (m_error->cause == ErrorCause::UpdatesDisabled || m_error->cause == ErrorCause::HeldBack);
    if (m_kind == CheckKind::Probe || isRefused)
    {
        return;
    }
    BackOffState state;
    if (hasFailed)
    {
        if (m_kind != CheckKind::Background)
        {
            return;
        }
        state = AfterFailure(m_settings.backOff, m_parts.Now());
        LOG_IF(WARNING, state.failures >= FAILURES_TO_TELL)
            << "The last " << state.failures << " checks for updates failed; the next one in the background waits for "
            << BackOffAfter(state.failures).count() << " hours";
    }
    if (state != m_settings.backOff)
    {
        (void)CallDelegate("storing a failure", [this, &state] { m_host.StoreBackOff(state); });
    }
}

void UpdateFlow::GiveUpInstallation()
{
    if (m_update)
    {
        m_update->GiveUpInstallation();
    }
}

} // namespace Pelnar::Engine
