#include "Settings/DefaultsFile.h"

#include "Engine/core/faults/UpdateFault.h"
#include "Engine/core/helper/NoteFile.h"
#include "Engine/core/helper/StagingFolder.h"

#include <QFile>
#include <QLockFile>

#include <glog/logging.h>

#include <cerrno>
#include <chrono>
#include <cstring>
#include <memory>
#include <mutex>
#include <set>
#include <thread>

#include <fcntl.h>
#include <stdio.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace Pelnar::Settings
{
namespace
{

using Engine::UniqueFd;

constexpr std::chrono::milliseconds LONGEST_WAIT(1000);
constexpr std::chrono::milliseconds BETWEEN_TRIES(3);
constexpr std::size_t MAX_OWN_BYTES = std::size_t{64} << 10;
constexpr char LOCK_FILE[] = "updates.lock";
constexpr char SET_ASIDE[] = "updates.plist.unreadable";

/// A file of defaults, or why its values do not count.
struct ReadFile
{
    enum class State
    {
        Missing,
        Good,
        Unusable, ///< permanently
        Unreadable,
    };

    State state = State::Missing;
    DefaultsEntries entries = {};
    std::string reason = {};
};

/// The settings are read many times in one check.
void WarnOnce(std::string const& text)
{
    static std::mutex mutex;
    static std::set<std::string> told;
    std::lock_guard const lock(mutex);
    LOG_IF(WARNING, told.insert(text).second) << text;
}

ReadFile Unreadable(int errorNumber)
{
    return {ReadFile::State::Unreadable, {}, std::strerror(errorNumber)};
}

ReadFile ReadOpenFile(UniqueFd const& file, std::size_t maxBytes)
{
    struct stat status;
    if (::fstat(file.Get(), &status) != 0)
    {
        return Unreadable(errno);
    }
    if (!S_ISREG(status.st_mode) || status.st_uid != ::geteuid())
    {
        return {ReadFile::State::Unusable, {}, "it is not a file of this user"};
    }
    if ((status.st_mode & S_IWOTH) != 0)
    {
        return {ReadFile::State::Unusable, {}, "other users can change it"};
    }
    std::string text(maxBytes + 1, '\0');
    ssize_t const size = Engine::ReadUpTo(file.Get(), 0, text.data(), text.size());
    if (size < 0)
    {
        return Unreadable(errno);
    }
    text.resize(static_cast<std::size_t>(size));
    auto entries = text.size() > maxBytes ? std::nullopt : ParseDefaults(text);
    if (!entries)
    {
        return {ReadFile::State::Unusable, {}, "it is not a property list"};
    }
    return {ReadFile::State::Good, std::move(*entries), {}};
}

ReadFile ReadFileAt(int folder, std::string const& name, std::size_t maxBytes)
{
    // A FIFO in the file's place must not block the process.
    UniqueFd const file(::openat(folder, name.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
    if (file)
    {
        return ReadOpenFile(file, maxBytes);
    }
    switch (errno)
    {
    case ENOENT:
    case ENOTDIR:
        return {};
    case ELOOP:
        return {ReadFile::State::Unusable, {}, "it is a link"};
    }
    return Unreadable(errno);
}

bool IsTaken(DefaultsEntries const& entries)
{
    Core::SettingKey const& key = Core::KeyOf(Core::Setting::EarlierDefaultsTaken);
    auto const found = entries.find(std::string(key.name));
    return found != entries.end() && MeaningOf(found->second, key.type) == QVariant(true);
}

/// Adds values of the earlier files that \a entries do not have. Returns true if every file could be read.
[[nodiscard]] bool AddEarlier(DefaultsEntries& entries, QStringList const& earlierFiles)
{
    bool isComplete = true;
    for (QString const& path : earlierFiles)
    {
        std::string const name = QFile::encodeName(path).toStdString();
        ReadFile const file = ReadFileAt(AT_FDCWD, name, Engine::PROPERTY_LIST_MAX_BYTES);
        if (!file.reason.empty())
        {
            isComplete = false;
            WarnOnce("The settings of an earlier version could not be copied from " + name + ": " + file.reason);
        }
        for (Core::SettingKey const& key : Core::SETTING_KEYS)
        {
            auto const found = file.entries.find(std::string(key.name));
            bool const isWanted = key.place != Core::SettingPlace::Information &&
                                  key.setting != Core::Setting::EarlierDefaultsTaken &&
                                  key.setting != Core::Setting::FeedRecord;
            if (isWanted && found != file.entries.end())
            {
                entries.insert(*found);
            }
        }
    }
    return isComplete;
}

/// Copies the values of earlier versions, and marks that this is done.
void TakeEarlier(DefaultsEntries& entries, QStringList const& earlierFiles)
{
    if (!earlierFiles.isEmpty() && !IsTaken(entries) && AddEarlier(entries, earlierFiles))
    {
        entries[std::string(Core::KeyOf(Core::Setting::EarlierDefaultsTaken).name)] = EntryFor(true);
    }
}

/// Between reading and writing no other process of this user may write. A hanging process cannot block this one.
class FolderLock
{
public:
    explicit FolderLock(UniqueFd const& folder)
        : m_file(::openat(folder.Get(), LOCK_FILE, O_RDWR | O_CREAT | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC,
                          S_IRUSR | S_IWUSR))
    {
        if (!m_file)
        {
            m_failure = std::strerror(errno);
            return;
        }
        Engine::LetOwnerWrite(m_file.Get());
        auto const end = std::chrono::steady_clock::now() + LONGEST_WAIT;
        while (::flock(m_file.Get(), LOCK_EX | LOCK_NB) != 0)
        {
            if (errno == ENOLCK || errno == EOPNOTSUPP)
            {
                LockByName(Engine::RealPathOf(folder.Get()));
                return;
            }
            if (errno != EINTR && (errno != EWOULDBLOCK || std::chrono::steady_clock::now() > end))
            {
                m_failure = errno == EWOULDBLOCK ? "another process is saving its own" : std::strerror(errno);
                return;
            }
            std::this_thread::sleep_for(BETWEEN_TRIES);
        }
    }

    /// Why there is no lock; empty if it is held.
    std::string const& Failure() const { return m_failure; }

private:
    /// For network file systems that have no other locks.
    void LockByName(std::string const& folder)
    {
        m_named = std::make_unique<QLockFile>(QFile::decodeName((folder + '/' + LOCK_FILE + ".name").c_str()));
        if (!m_named->tryLock(static_cast<int>(LONGEST_WAIT.count())))
        {
            m_failure = "the file system does not support locks";
        }
    }

    UniqueFd m_file;
    std::unique_ptr<QLockFile> m_named;
    std::string m_failure;
};

bool NotSaved(std::string const& place, std::string const& reason)
{
    LOG(WARNING) << "The settings of the update checker could not be saved in " << place << ": " << reason;
    return false;
}

/// An object that must not be changed is renamed, so that its content is not lost.
bool HasRoom(int folder, ReadFile const& file, std::string const& place)
{
    if (file.state == ReadFile::State::Unreadable)
    {
        return NotSaved(place, file.reason);
    }
    if (file.state == ReadFile::State::Unusable)
    {
        LOG(WARNING) << "The settings in " << place << " are not used: " << file.reason << ". They are kept as "
                     << SET_ASIDE;
        ::renameat(folder, DEFAULTS_FILE, folder, SET_ASIDE);
    }
    return true;
}

} // namespace

DefaultsEntries ReadDefaults(ApplicationFolder const& place, QStringList const& earlierFiles)
{
    DefaultsEntries entries;
    OpenedFolder const opened = OpenApplicationFolder(place, MissingFolder::Leave);
    if (opened.folder)
    {
        ReadFile file = ReadFileAt(opened.folder.Get(), DEFAULTS_FILE, MAX_OWN_BYTES);
        if (!file.reason.empty())
        {
            WarnOnce("The settings in " + Engine::RealPathOf(opened.folder.Get()) + '/' + DEFAULTS_FILE +
                     " are not used: " + file.reason);
        }
        entries = std::move(file.entries);
    }
    else if (opened.errorNumber != ENOENT)
    {
        WarnOnce("The settings of the update checker are not read: " + opened.reason);
    }
    if (!IsTaken(entries))
    {
        (void)AddEarlier(entries, earlierFiles); // the next change copies them
    }
    return entries;
}

bool ChangeDefaults(ApplicationFolder const& place, QStringList const& earlierFiles,
                    std::function<void(DefaultsEntries&)> const& change)
{
    OpenedFolder const opened = OpenApplicationFolder(place, MissingFolder::Make);
    if (!opened.folder)
    {
        return NotSaved(place.Path(), opened.reason);
    }
    int const folder = opened.folder.Get();
    std::string const path = Engine::RealPathOf(folder) + '/' + DEFAULTS_FILE;
    FolderLock const lock(opened.folder);
    if (!lock.Failure().empty())
    {
        return NotSaved(path, lock.Failure());
    }
    ReadFile file = ReadFileAt(folder, DEFAULTS_FILE, MAX_OWN_BYTES);
    if (!HasRoom(folder, file, path))
    {
        return false;
    }
    DefaultsEntries entries = std::move(file.entries);
    TakeEarlier(entries, earlierFiles);
    change(entries);
    std::string const text = FormatDefaults(entries);
    if (text.size() > MAX_OWN_BYTES)
    {
        return NotSaved(path, "they are too long");
    }
    try
    {
        Engine::WriteNote(folder, DEFAULTS_FILE, text);
        return true;
    }
    catch (Engine::UpdateRefusal const& refusal)
    {
        int const number = refusal.ErrorNumber();
        return NotSaved(path, number ? std::strerror(number) : "the file system keeps no permissions");
    }
}

} // namespace Pelnar::Settings
