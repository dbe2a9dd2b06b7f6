// InstallAttempt.h: the record of an installation that will be handed to the helper. The helper writes the outcome into
// it. See docs/formats/install-record.md.
// Thread: one at a time. Ownership: it owns its descriptor. A started attempt survives this object.
#pragma once

#include "Engine/core/base/Descriptor.h"
#include "Engine/core/faults/Result.h"
#include "Engine/core/helper/UpdateJob.h"

#include <QString>

#include <memory>
#include <string>

namespace Pelnar::Engine
{

/// The folder of the records; empty unless it belongs to this user and no other user can write it.
UniqueFd OpenRecordFolder(QString const& path);
/// The record's content; empty if no record can be read and parsed.
std::optional<InstallRecord> ReadInstallRecord(int folderFd, std::string const& name);

class InstallAttempt
{
public:
    /// \a folder holds the records and is created if it is missing. Throws UpdateRefusal.
    InstallAttempt(QString const& folder, QString const& bundlePath);
    /// The same, for callers that throw nothing.
    static Result<std::unique_ptr<InstallAttempt>> Make(QString const& folder, QString const& bundlePath);

    int Folder() const { return m_folder.Get(); }
    /// Makes the helper write the outcome of \a job. Until it has begun, the record says that this process waits, so
    /// that the next start tells if both end now.
    Result<void> Begin(InstallJob& job, InstallWish wish) const;
    /// Restores the state before the attempt. REQUIRES: no helper uses it any more.
    void TakeBack();

private:
    UniqueFd m_folder;
    std::string m_bundlePath;
    std::string m_name;
    std::optional<InstallRecord> m_before; ///< of an earlier attempt
};

} // namespace Pelnar::Engine
