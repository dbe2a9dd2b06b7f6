// FileServer.h: a server that behaves, with the files of a folder: a program, over http or https.
// Thread: the test's; making one waits until it listens. Ownership: a scope object; the program ends with it.
#pragma once

#include <QProcess>
#include <QString>
#include <QStringList>
#include <QUrl>

namespace Pelnar::Testing
{

class FileServer
{
public:
    /// The two PEM files of an https server.
    struct Identity
    {
        QString certificateFile;
        QString keyFile;
    };

    /// `pelnar-appcast serve`, which speaks HTTP/1.1: the folder, then its options.
    explicit FileServer(QStringList const& arguments);
    /// nghttpd, which speaks HTTP/2 and nothing else.
    FileServer(QString const& folder, Identity const& identity);
    ~FileServer();
    FileServer(FileServer const&) = delete;
    FileServer& operator=(FileServer const&) = delete;

    /// False where the program is missing or does not listen.
    [[nodiscard]] bool IsThere() const { return !m_address.isEmpty(); }
    QUrl const& Address() const { return m_address; }
    QUrl Url(QString const& path) const;
    /// Ends the server. Returns its exit status.
    int End();
    /// Ends the server. Returns what it told of its answers.
    QByteArray Log();

private:
    QProcess m_process;
    QUrl m_address;
};

} // namespace Pelnar::Testing
