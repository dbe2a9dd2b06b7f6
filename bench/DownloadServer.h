// DownloadServer.h: a process that serves one archive over http and https, as fast as it can, to a few clients at once.
// Thread: main; made while it is the only thread. Ownership: the process ends with the object, and with its maker.
#pragma once

#include <QString>
#include <QTemporaryDir>
#include <QUrl>

#include <array>

#include <sys/types.h>

namespace Pelnar::Bench
{

enum class Transport
{
    Plain,
    Secure,
};

class DownloadServer
{
public:
    /// An archive of that length with bytes that do not repeat soon.
    explicit DownloadServer(quint64 archiveBytes);
    /// The open \a file of that length, which becomes the server's.
    DownloadServer(int file, quint64 archiveBytes);
    ~DownloadServer();
    DownloadServer(DownloadServer const&) = delete;
    DownloadServer& operator=(DownloadServer const&) = delete;

    QUrl Url(Transport transport) const;
    /// The certificate that a client has to trust.
    QString AuthorityFile() const;

private:
    QTemporaryDir m_folder;
    std::array<pid_t, 2> m_processes{};
    std::array<quint16, 2> m_ports{};
};

} // namespace Pelnar::Bench
