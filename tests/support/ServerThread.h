// ServerThread.h: a LoopbackServer in its own thread, for tests that block while another process uses it. Needs an
// application object.
// Thread: the test's creates and destroys it; the script runs in the server's. Ownership: a scope object.
#pragma once

#include "tests/support/LoopbackServer.h"

#include <QThread>
#include <QUrl>

#include <future>
#include <memory>

namespace Pelnar::Testing
{

class ServerThread
{
public:
    explicit ServerThread(LoopbackServer::Script script)
    {
        m_context.moveToThread(&m_thread);
        m_thread.start();
        std::promise<QUrl> url;
        QMetaObject::invokeMethod(&m_context,
                                  [&]
                                  {
                                      m_server = std::make_unique<LoopbackServer>(std::move(script));
                                      url.set_value(m_server->Url());
                                  });
        m_url = url.get_future().get();
    }

    ~ServerThread()
    {
        QMetaObject::invokeMethod(
            &m_context, [this] { m_server.reset(); }, Qt::BlockingQueuedConnection);
        m_thread.quit();
        m_thread.wait();
    }

    ServerThread(ServerThread const&) = delete;
    ServerThread& operator=(ServerThread const&) = delete;

    QUrl const& Url() const { return m_url; }

private:
    QThread m_thread;
    QObject m_context;
    std::unique_ptr<LoopbackServer> m_server;
    QUrl m_url;
};

} // namespace Pelnar::Testing
