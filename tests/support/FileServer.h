// FileServer.h: a correct server for the files of a folder, over http or https. It is a program.
// Thread: the test's; the constructor waits until it listens. Ownership: a scope object; the program ends with it.
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

    /// `pelnar-appcast serve`, which speaks HTTP/1.1. The arguments: the folder, then options.
    explicit FileServer(QStringList const& arguments);
    /// nghttpd, which speaks only HTTP/2.
    FileServer(QString const& folder, Identity const& identity);
    ~FileServer();
    FileServer(FileServer const&) = delete;
    FileServer& operator=(FileServer const&) = delete;

    /// False if the program is missing or does not listen.
    [[nodiscard]] bool IsThere() const { return !m_address.isEmpty(); }
    QUrl const& Address() const { return m_address; }
    QUrl Url(QString const& path) const;
    /// Ends the server. Returns its exit status.
    int End();
    /// Ends the server. Returns its report about its answers.
    QByteArray Log();

private:
    QProcess m_process;
    QUrl m_address;
};

} // namespace Pelnar::Testing
