#include "Engine/core/update/PreparedUpdate.h"

#include "Engine/core/base/TreeWalk.h"

#include <glog/logging.h>

#include <cerrno>
#include <utility>

#include <fcntl.h>

namespace Pelnar::Engine
{

std::unique_ptr<PreparedUpdate> PreparedUpdate::Begin(InstallTarget const& target)
{
    UniqueFd parent(::fcntl(target.parent.Get(), F_DUPFD_CLOEXEC, 0));
    if (!parent)
    {
        ThrowErrno(errno);
    }
    StagingFolder staging = StagingFolder::Create(parent.Get(), target.name);
    return std::unique_ptr<PreparedUpdate>(new PreparedUpdate(std::move(parent), std::move(staging)));
}

PreparedUpdate::PreparedUpdate(UniqueFd parent, StagingFolder staging)
    : m_parent(std::move(parent)), m_staging(std::move(staging))
{
}

PreparedUpdate::~PreparedUpdate()
{
    // A folder that cannot be removed now is abandoned, and the next recovery removes it.
    bool const isGone = m_isOwnedByHelper || RemoveTree(m_parent.Get(), m_staging.Name());
    LOG_IF(WARNING, !isGone) << "The prepared update could not be removed; the next start removes it";
}

void PreparedUpdate::Describe(InstallJob& job) const
{
    job.stagingName = m_staging.Name();
    job.stagedName = m_bundle.stagedName;
    job.digest = m_bundle.digest;
}

} // namespace Pelnar::Engine
