// InstalledDemo.h: the demo application as a person has it: installed as a bundle, with its own home, and a server with
// its updates. All processes are real.
// Thread: one. Ownership: scope objects; folders and processes end with them.
#pragma once

#include "Engine/core/base/ContentHasher.h"
#include "tests/support/FileServer.h"
#include "tests/support/OddNameFolder.h"

#include <QProcess>
#include <QStringList>
#include <QTemporaryDir>

#include <functional>
#include <string>
#include <vector>

namespace Pelnar::Testing
{

/// The output of the old version, the helper and the restarted version, until the last of them has ended.
struct DemoOutput
{
    bool hasEnded = false;          ///< all of them
    int status = -1;                ///< of the version that was started; -1 for a signal
    std::vector<std::string> lines; ///< log lines as well

    /// The versions that started, in order.
    std::vector<std::string> RunningVersions() const;
    [[nodiscard]] bool Says(std::string const& line) const;
    /// The lines that contain \a part.
    std::ptrdiff_t Count(std::string const& part) const;
    /// The unchanged lines, for the message of a failing test.
    std::string Text() const;
};

/// A copy of the published folder, for a test that publishes something different.
class PublishedSite
{
public:
    PublishedSite();

    QString Path() const { return m_folder.path(); }
    QByteArray Read(char const* name) const;
    void Write(char const* name, QByteArray const& bytes) const;
    /// The path of \a name in the folder made by Demo/publish.
    static QString Published(char const* name);
    /// The attributes of the enclosure of an archive in the folder, signed with the publisher's key.
    QByteArray Sign(char const* name) const;
    /// Runs the publisher's tool with the publisher's key on a file of the folder.
    void Run(char const* verb, char const* name, QStringList const& more = {}) const;

private:
    QTemporaryDir m_folder;
};

/// Serves the published folder over HTTPS.
class UpdateServer
{
public:
    /// \a faults are the errors that the server makes on purpose.
    explicit UpdateServer(QStringList const& faults = {});
    explicit UpdateServer(PublishedSite const& site);

    QString Url(QString const& feed) const { return m_server.Address().toString() + QLatin1Char('/') + feed; }
    /// Ends the server. Returns the names of the files that it has sent.
    std::vector<std::string> EndAndListServedFiles();
    /// Ends the server; its answers, as the file's name, a blank, and the status.
    std::vector<std::string> EndAndListAnswers();

private:
    UpdateServer(QString const& folder, QStringList const& faults);

    FileServer m_server;
};

class InstalledDemo
{
public:
    /// Installs the old version.
    InstalledDemo();

    /// Adds \a entries, of an old-style property list, to the bundle's information file.
    void AddInformation(QByteArray const& entries);
    /// Renames the folder that holds the bundle; the name may have any bytes. A link keeps the old name.
    void MoveApplications(std::string const& name) const;
    /// Adds "NAME=value" to the application's environment.
    void SetVariables(std::vector<std::string> const& variables) { m_variables = variables; }
    /// Gives the application the XDG folders in the environment of this process, which may have any bytes.
    void UseHomeOfThisProcess() { m_hasOwnHome = false; }
    /// Sets the old-style property list \a text as the user defaults of the application.
    void WriteDefaults(QByteArray const& text);
    /// The text of the file of the user defaults; empty when there is none.
    QByteArray ReadDefaults() const;
    /// The file in which earlier versions kept them.
    void WriteEarlierDefaults(QByteArray const& text);
    QByteArray ReadEarlierDefaults() const;

    /// Runs the installed version with \a feed and \a arguments. A restarted version shows its window and quits.
    DemoOutput Run(QString const& feed, QStringList const& arguments) const;

    /// The same, but the version gets \a signal as soon as \a isDue returns true. Returns false if this never happened;
    /// then the output ends with the processes that it had started.
    [[nodiscard]] bool Crash(QString const& feed, QStringList const& arguments, int signal,
                             std::function<bool()> const& isDue) const;

    /// The hash of the installed bundle.
    Engine::ContentHash Tree() const;
    /// The names in the folder that holds the bundle.
    std::vector<std::string> Neighbours() const;
    /// Whether bytes of an archive have been downloaded.
    [[nodiscard]] bool HasDownloaded() const;
    /// The place of the bundle.
    std::string ApplicationsFolder() const { return Path("Applications").toStdString(); }
    /// The names, without ending, of the pictures of the first version's windows.
    std::vector<std::string> Pictures() const;

private:
    void WriteTo(char const* path, QByteArray const& text);
    QByteArray ReadFrom(char const* path) const;
    void Start(QProcess& process, QString const& feed, QStringList const& arguments) const;
    QString Path(char const* name) const { return m_folder.filePath(QString::fromLatin1(name)); }

    OddNameFolder m_folder;
    std::vector<std::string> m_variables;
    bool m_hasOwnHome = true;
};

/// The hashes of the published bundles.
Engine::ContentHash OldTree();
Engine::ContentHash NewTree();

} // namespace Pelnar::Testing
