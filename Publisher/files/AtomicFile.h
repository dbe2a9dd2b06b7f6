// AtomicFile.h: a new file or folder that gets its name only when it is complete. Ownership: a scope object; without a
// commit it removes the file.
#pragma once

#include "Publisher/files/InputFile.h"
#include "Publisher/files/Leftovers.h"

#include <QByteArray>
#include <QString>

#include <memory>
#include <optional>
#include <vector>

namespace Pelnar::Publisher
{

/// What happens to an existing file with the name.
enum class ExistingFile
{
    Replace,
    Keep, ///< Commit refuses
};

class AtomicFile
{
public:
    /// Opens a file without a name, or a hidden one if the file system has none without names. It is in the folder of
    /// \a path and has the permissions of a new file. Throws Refusal.
    explicit AtomicFile(QString const& path);
    ~AtomicFile();
    AtomicFile(AtomicFile const&) = delete;
    AtomicFile& operator=(AtomicFile const&) = delete;

    int Descriptor() const { return m_descriptor.Get(); }
    /// The bytes written so far, with the final name for messages. Throws Refusal.
    InputFile ForReading() const;
    void Write(QByteArray const& bytes);
    /// Writes everything to the disk and gives the file its name. Throws Refusal.
    void Commit(ExistingFile existing);
    /// Gives \a files, of one folder, their names, which must be free, and then \a last its own, which may be in use.
    /// When one cannot be named or the process is told to end, those that are named already go. Throws Refusal.
    static void CommitTogether(std::vector<std::unique_ptr<AtomicFile>> const& files, AtomicFile& last);

private:
    void MakeHidden(QByteArray const& folder);
    void LinkHidden();
    void Sync() const;
    void SyncFolder() const;
    void Name(ExistingFile existing);
    void NameForNow();

    QString m_path;
    QByteArray m_hiddenName; ///< empty while the file has no name at all
    std::optional<Leftover> m_leftover;
    std::optional<Leftover> m_named; ///< its final name, while that may still go
    Engine::UniqueFd m_folder;
    Engine::UniqueFd m_descriptor;
    bool m_isCommitted = false;
};

/// The same for a folder, which takes no name that is in use.
class NewFolder
{
public:
    /// Makes a hidden folder beside \a path. Throws Refusal, when something has that name as well.
    explicit NewFolder(QString const& path);
    ~NewFolder();
    NewFolder(NewFolder const&) = delete;
    NewFolder& operator=(NewFolder const&) = delete;

    int Descriptor() const { return m_folder.Get(); }
    /// Gives the folder its name. Throws Refusal.
    void Commit();

private:
    QString m_path;
    QByteArray m_hiddenName;
    Engine::UniqueFd m_parent;
    std::optional<Leftover> m_leftover;
    Engine::UniqueFd m_folder;
    bool m_isCommitted = false;
};

} // namespace Pelnar::Publisher
