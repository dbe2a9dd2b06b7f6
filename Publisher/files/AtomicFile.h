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
    /// Opens a file without a name, or a hidden one if the file system cannot do that. The file is in the folder of \a
    /// path and has the permissions of a new file. If \a path is a link, the file that it leads to is meant. Throws
    /// Refusal.
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
    /// Gives \a files, which are in one folder, their names, which must be free, and then \a last its name, which may
    /// exist. If one cannot be named, or if the process must end, the names given so far are removed. Throws Refusal.
    static void CommitTogether(std::vector<std::unique_ptr<AtomicFile>> const& files, AtomicFile& last);

private:
    void MakeHidden(QByteArray const& folder);
    void LinkHidden();
    void Sync(Engine::UniqueFd const& fileOrFolder) const;
    void Name(ExistingFile existing);
    void NameForNow();

    QString m_path;
    QByteArray m_hiddenName; ///< empty while the file has no name
    std::optional<Leftover> m_leftover;
    std::optional<Leftover> m_named; ///< its final name, while it may still be removed
    Engine::UniqueFd m_folder;
    Engine::UniqueFd m_descriptor;
    bool m_isCommitted = false;
};

/// Writes \a bytes to the file \a path, which may exist. Throws Refusal, and the file is then unchanged.
void ReplaceFile(QString const& path, QByteArray const& bytes);

/// The same for a folder. Its name must be free.
class NewFolder
{
public:
    /// Makes a hidden folder next to \a path. Throws Refusal, also if \a path exists.
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
