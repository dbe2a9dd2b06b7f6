// InstallMemory.h: the result of the last installation, as a start of the application finds it. It removes a completed
// record, together with the archive that was kept for another attempt.
// Thread: its maker's. Ownership: its destructor waits for its pending writes and removals.
#pragma once

#include "Engine/core/base/Descriptor.h"
#include "Engine/core/base/DiskChores.h"
#include "Engine/core/helper/InstallRecord.h"

#include <QDateTime>
#include <QString>

#include <memory>
#include <optional>
#include <string>

namespace Pelnar::Engine
{

/// After this many failed attempts to install a version, only a person's request starts another.
constexpr std::uint64_t MAX_AUTOMATIC_ATTEMPTS = 3;

/// True if an automatic installation has to wait at \a now, after the failed one that \a failure records.
[[nodiscard]] bool IsHeldBack(InstallRecord const& failure, QDateTime const& now);

class InstallMemory
{
public:
    /// \a folder holds the records, \a downloads the archives. \a bundlePath is the running bundle's path, \a version
    /// the running version. Reads the record of this place, and logs a failure.
    InstallMemory(QString const& folder, QString const& downloads, QString const& bundlePath, QString const& version);

    /// The failure of the last installation that left this version in place; empty otherwise. It has no attempts if
    /// this one was no attempt.
    std::optional<InstallRecord> const& Failure() const { return m_failure; }
    /// The failure or the rollback that the application has not heard of; null if it has heard of all.
    InstallRecord const* News() const;
    /// The application has heard of the News().
    void SetHeard();
    /// A person requested that installation and has not seen its result.
    [[nodiscard]] bool IsToBeTold() const;
    /// Of several processes that start at once, one gets true: it tells the failure. For the others it is no news.
    /// REQUIRES: IsToBeTold().
    [[nodiscard]] bool ClaimTelling();
    /// The update to \a failedVersion was rolled back: this is news unless an earlier start has told it.
    void TakeRollback(QString const& failedVersion);

private:
    /// The record \a name that \a bytes encode, found by \a version.
    void Take(std::string name, std::string bytes, std::string const& version);
    /// The record of a bundle that is no longer in its place: no start at that place tells it.
    void TakeStray(int folderFd, std::string const& bundlePath, std::string const& version);
    void Settle(InstallRecord record, PastInstallation meaning);
    std::string RollbackName() const;
    /// The folder of the records, for one process at a time; null while another process has it. Each process gets
    /// it if the file system has no locks, or if other users could hold them.
    std::shared_ptr<UniqueFd> Lock();
    void Forget();
    /// Empty \a bytes remove the record. \a locked is released then.
    void Keep(std::string const& name, std::string const& bytes, std::shared_ptr<UniqueFd> locked);

    QString m_folder;
    QString m_downloads;
    std::string m_name;
    std::string m_failureName;  ///< of the failure's record
    std::string m_failureBytes; ///< as they were read
    std::optional<InstallRecord> m_failure;
    bool m_isNews = false;                   ///< the failure is
    std::optional<InstallRecord> m_rollback; ///< if it is news
    std::weak_ptr<UniqueFd> m_lock;
    DiskChores m_chores;
};

} // namespace Pelnar::Engine
