#include "Engine/core/update/UpdatePreparation.h"

#include "Engine/core/bundle/PayloadKind.h"
#include "Engine/core/faults/EngineError.h"

#include <utility>

namespace Pelnar::Engine
{

UpdatePreparation::~UpdatePreparation()
{
    m_helper.reset(); // first: no process may write into the folder while it is removed
    if (m_update)
    {
        m_parts.DiscardUpdate(std::move(m_update));
    }
}

Result<void> UpdatePreparation::Start(InstallTarget const& target, PrepareJob const& job, UniqueFd archive,
                                      std::function<void(ProgressReport const&)> progress,
                                      std::function<void(Outcome)> finished)
{
    m_progress = std::move(progress);
    m_finished = std::move(finished);
    try
    {
        m_update = PreparedUpdate::Begin(target);
        m_helper = m_parts.MakeHelper();
        int const base = job.kind == PayloadKind::WholeBundle ? -1 : target.bundle.Get();
        m_helper->Start(
            job, DescriptorMap(job, {m_update->Descriptor(), archive.Get(), base}),
            [this](HelperReport const& report) { Take(report); }, [this](HelperEnd end) { End(end); });
        return {};
    }
    catch (UpdateRefusal const& refusal)
    {
        return Failure(refusal);
    }
}

void UpdatePreparation::Take(HelperReport const& report)
{
    if (auto const* const progress = std::get_if<ProgressReport>(&report))
    {
        // The call may destroy this object.
        auto const tell = m_progress;
        tell(*progress);
    }
    else if (auto const* const prepared = std::get_if<PreparedReport>(&report))
    {
        m_prepared = *prepared;
    }
    else if (auto const* const refused = std::get_if<RefusedReport>(&report))
    {
        m_refused = *refused;
    }
}

void UpdatePreparation::End(HelperEnd end)
{
    auto const tell = std::move(m_finished);
    if (end == HelperEnd::Done && m_prepared)
    {
        m_update->SetBundle(*std::move(m_prepared));
        tell(std::move(m_update));
    }
    else if (end == HelperEnd::Refused && m_refused)
    {
        tell(Failure(MakeFaultError(m_refused->fault, m_refused->errorNumber)));
    }
    else
    {
        tell(Failure(ErrorCause::HelperFailed));
    }
}

} // namespace Pelnar::Engine
