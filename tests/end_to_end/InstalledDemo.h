// InstalledDemo.h: the demo application as a person has it: installed as a bundle, with a home of its own, and a server
// with its updates. Real processes throughout.
// Thread: one. Ownership: scope objects; folders and processes end with them.
#pragma once

#include "Engine/core/base/ContentHasher.h"
#include "tests/support/FileServer.h"

#include <QProcess>
#include <QStringList>
#include <QTemporaryDir>

#include <functional>
#include <string>
#include <vector>

namespace Pelnar::Testing
{

/// What the old version, the helper and the version that it starts have said, to the end of the last of them.
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
    /// The lines as they were, for a failing test.
    std::string Text() const;
};

/// A copy of the published folder, for a test that publishes something else.
class PublishedSite
{
public:
    PublishedSite();

    QString Path() const { return m_folder.path(); }
    QByteArray Read(char const* name) const;
    void Write(char const* name, QByteArray const& bytes) const;
    /// The path of \a name in the folder that Demo/publish has made.
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
    /// \a faults are what the server is told to do wrong.
    explicit UpdateServer(QStringList const& faults = {});
    explicit UpdateServer(PublishedSite const& site);

    QString Url(QString const& feed) const { return m_server.Address().toString() + QLatin1Char('/') + feed; }
    /// Ends the server; the names of the files that it was asked for in requests that it answered with their bytes.
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
    /// Gives the folder that holds the bundle another name, of any bytes; a link keeps the one before.
    void MoveApplications(std::string const& name) const;
    /// Adds "NAME=value" to what the application finds in its environment.
    void SetVariables(std::vector<std::string> const& variables) { m_variables = variables; }
    /// Sets the old-style property list \a text as the user defaults of the application.
    void WriteDefaults(QByteArray const& text);
    /// The text of the file of the user defaults; empty when there is none.
    QByteArray ReadDefaults() const;
    /// The file in which versions before this one kept them.
    void WriteEarlierDefaults(QByteArray const& text);
    QByteArray ReadEarlierDefaults() const;

    /// Runs the installed version with \a feed and \a arguments. A version that is started in its place shows itself
    /// and quits.
    DemoOutput Run(QString const& feed, QStringList const& arguments) const;

    /// The same, but the version gets \a signal as soon as \a isDue says so. False when that never came; the output
    /// ends with what it had started.
    [[nodiscard]] bool Crash(QString const& feed, QStringList const& arguments, int signal,
                             std::function<bool()> const& isDue) const;

    /// The hash of the installed bundle.
    Engine::ContentHash Tree() const;
    /// The names in the folder that holds the bundle.
    std::vector<std::string> Neighbours() const;
    /// Whether bytes of an archive have been downloaded.
    [[nodiscard]] bool HasDownloaded() const;
    /// Where the bundle stands.
    std::string ApplicationsFolder() const { return Path("Applications").toStdString(); }
    /// The names of the pictures that were taken of the first version's windows, without their ending.
    std::vector<std::string> Pictures() const;

private:
    void WriteTo(char const* path, QByteArray const& text);
    QByteArray ReadFrom(char const* path) const;
    void Start(QProcess& process, QString const& feed, QStringList const& arguments) const;
    QString Path(char const* name) const { return m_folder.filePath(QString::fromLatin1(name)); }

    QTemporaryDir m_folder;
    std::vector<std::string> m_variables;
};

/// The hashes of the bundles as they were published.
Engine::ContentHash OldTree();
Engine::ContentHash NewTree();

} // namespace Pelnar::Testing
