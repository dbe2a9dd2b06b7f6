// InstallAttempt.h: the record of an installation that is about to be handed to the helper, which keeps its outcome in
// it. See docs/formats/install-record.md.
// Thread: one at a time. Ownership: its descriptor. What it has begun stays when it goes.
#pragma once

#include "Engine/core/delta/TreeAccess.h"
#include "Engine/core/payload/UpdateJob.h"

#include <QString>

#include <string>

namespace Pelnar::Engine
{

/// Of the bundle at \a bundlePath, which is absolute and holds no link; no folder's and no archive's name is like it.
std::string InstallRecordName(QString const& bundlePath);
/// The folder of the records; not set without a folder that belongs to this user and that nobody else can write.
UniqueFd OpenRecordFolder(QString const& path);
/// What the record says; nothing when there is none that can be read and understood.
std::optional<InstallRecord> ReadInstallRecord(int folderFd, std::string const& name);

class InstallAttempt
{
public:
    /// \a folder, which is made if it is missing, holds the records. Throws UpdateRefusal.
    InstallAttempt(QString const& folder, QString const& bundlePath);

    int Folder() const { return m_folder.Get(); }
    /// Has the helper keep the outcome of \a job.
    void Describe(InstallJob& job, InstallWish wish) const;
    /// As if it had never been begun. REQUIRES: no helper has it any more.
    void TakeBack();

private:
    UniqueFd m_folder;
    std::string m_name;
    std::optional<InstallRecord> m_before; ///< of an earlier attempt
};

} // namespace Pelnar::Engine
