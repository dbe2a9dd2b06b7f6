// PreparedUpdate.h: the staging folder of an update, first empty, then with the checked bundle in it.
// Thread: one at a time. Ownership: the object owns the folder and removes it at its end, unless a helper owns it by
// then.
#pragma once

#include "Engine/core/helper/HelperReport.h"
#include "Engine/core/helper/StagingFolder.h"
#include "Engine/core/helper/UpdateJob.h"
#include "Engine/core/update/InstallTarget.h"

#include <memory>

namespace Pelnar::Engine
{

class PreparedUpdate
{
public:
    /// Creates a fresh folder next to \a target. Throws UpdateRefusal.
    static std::unique_ptr<PreparedUpdate> Begin(InstallTarget const& target);
    ~PreparedUpdate();
    PreparedUpdate(PreparedUpdate const&) = delete;
    PreparedUpdate& operator=(PreparedUpdate const&) = delete;

    int Descriptor() const { return m_staging.Descriptor(); }
    /// The helper has put a bundle into the folder and checked it.
    void SetBundle(PreparedReport report) { m_bundle = std::move(report); }

    /// Puts the folder and the bundle into \a job.
    void Describe(InstallJob& job) const;

    void GiveToHelper() { m_isOwnedByHelper = true; }
    void TakeBack() { m_isOwnedByHelper = false; }

private:
    PreparedUpdate(UniqueFd parent, StagingFolder staging);

    UniqueFd m_parent;
    StagingFolder m_staging;
    PreparedReport m_bundle{};
    bool m_isOwnedByHelper = false;
};

} // namespace Pelnar::Engine
