#include "Publisher/serve/FileServer.h"

#include "Publisher/serve/ServerConnection.h"

namespace Pelnar::Publisher
{

FileServer::FileServer(Engine::UniqueFd folder, ServerManners manners, std::optional<ServerCertificate> certificate,
                       ServerLog log)
    : m_folder(std::move(folder))
    , m_manners(std::move(manners))
    , m_certificate(std::move(certificate))
    , m_log(std::move(log))
{
}

bool FileServer::Listen(quint16 port)
{
    return listen(QHostAddress::LocalHost, port);
}

QString FileServer::Address() const
{
    return u"%1://127.0.0.1:%2"_s.arg(m_certificate ? u"https"_s : u"http"_s, QString::number(serverPort()));
}

void FileServer::incomingConnection(qintptr descriptor)
{
    (new ServerConnection(m_folder.Get(), m_manners, m_log, this))->Start(descriptor, m_certificate);
}

} // namespace Pelnar::Publisher
