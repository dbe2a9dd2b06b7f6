// TaggedFeed.h: the answers of a server that knows versions of its feed: a new one is sent whole, for the same one the
// server only says so.
// Thread: the test's. Ownership: outlives its server.
#pragma once

#include "tests/support/LoopbackServer.h"

namespace Pelnar::Testing
{

struct TaggedFeed
{
    QByteArray body;
    QByteArray fields = "ETag: \"one\"\r\n"; ///< of every answer
    QByteArray condition = "If-None-Match: \"one\"\r\n";
    qint64 bodyBytes = 0; ///< that were sent
    int wholes = 0;       ///< answers with the feed
    int unchanged = 0;    ///< answers without it

    /// Keeps the connection open.
    LoopbackServer::Script Script()
    {
        return [this](QSslSocket& socket, QByteArray const& request, int) { Answer(socket, request); };
    }

    void Answer(QSslSocket& socket, QByteArray const& request)
    {
        if (request.contains(condition))
        {
            ++unchanged;
            socket.write("HTTP/1.1 304 Not Modified\r\n" + fields + "\r\n");
            return;
        }
        ++wholes;
        bodyBytes += body.size();
        socket.write("HTTP/1.1 200 OK\r\n" + fields + "Content-Length: " + QByteArray::number(body.size()) +
                     "\r\n\r\n" + body);
    }
};

} // namespace Pelnar::Testing
