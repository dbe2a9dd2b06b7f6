#include "Settings/DefaultsFile.h"
#include "Settings/UpdateDefaults.h"

#include <mutex>
#include <utility>

namespace Pelnar::Settings
{
namespace
{

/// The values of each application that are not on the disk yet, or cannot be written.
struct Remembered
{
    std::mutex mutex;
    std::map<std::string, UpdateDefaults::Changes> changes;
};

Remembered& InThisProcess()
{
    static Remembered remembered;
    return remembered;
}

UpdateDefaults::Changes ChangesOf(std::string const& application)
{
    Remembered& remembered = InThisProcess();
    std::lock_guard const lock(remembered.mutex);
    return remembered.changes[application];
}

/// Values that were remembered again meanwhile stay.
void Forget(std::string const& application, UpdateDefaults::Changes const& saved)
{
    Remembered& remembered = InThisProcess();
    std::lock_guard const lock(remembered.mutex);
    UpdateDefaults::Changes& changes = remembered.changes[application];
    for (auto const& [setting, value] : saved)
    {
        auto const found = changes.find(setting);
        if (found != changes.end() && found->second == value)
        {
            changes.erase(found);
        }
    }
}

void Apply(UpdateDefaults::Changes const& changes, DefaultsEntries& entries)
{
    for (auto const& [setting, value] : changes)
    {
        std::string const name(Core::KeyOf(setting).name);
        if (value.isValid())
        {
            entries[name] = EntryFor(value);
        }
        else
        {
            entries.erase(name);
        }
    }
}

} // namespace

UpdateDefaults::UpdateDefaults(QString const& bundleIdentifier, QStringList earlierFiles)
    : m_base(BaseFolderPath(BaseFolder::Config))
    , m_name(ApplicationFolderName(bundleIdentifier))
    , m_earlierFiles(std::move(earlierFiles))
{
}

QVariant UpdateDefaults::Value(Core::Setting setting) const
{
    Changes const changes = ChangesOf(m_base + '/' + m_name);
    if (auto const found = changes.find(setting); found != changes.end())
    {
        return found->second;
    }
    Core::SettingKey const& key = Core::KeyOf(setting);
    DefaultsEntries const entries = ReadDefaults({m_base, m_name}, m_earlierFiles);
    auto const found = entries.find(std::string(key.name));
    return found == entries.end() ? QVariant() : MeaningOf(found->second, key.type);
}

void UpdateDefaults::Remember(Changes const& changes)
{
    Remembered& remembered = InThisProcess();
    std::lock_guard const lock(remembered.mutex);
    for (auto const& [setting, value] : changes)
    {
        remembered.changes[m_base + '/' + m_name][setting] = value;
    }
}

bool UpdateDefaults::Save()
{
    Changes const changes = ChangesOf(m_base + '/' + m_name);
    bool const isSaved = ChangeDefaults({m_base, m_name}, m_earlierFiles,
                                        [&changes](DefaultsEntries& entries) { Apply(changes, entries); });
    if (isSaved)
    {
        Forget(m_base + '/' + m_name, changes);
    }
    return isSaved;
}

} // namespace Pelnar::Settings
