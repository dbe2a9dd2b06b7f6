#include "tests/engine_core/download/ArchiveServer.h"

namespace Pelnar::Testing
{

QByteArray MakeArchive(int size)
{
    QByteArray bytes;
    bytes.reserve(size + 16);
    for (quint32 number = 0; bytes.size() < size; ++number)
    {
        bytes += QByteArray::number(number * 7919, 16) + ' ';
    }
    bytes.truncate(size);
    return bytes;
}

QByteArray FieldOf(QByteArray const& request, QByteArray const& name)
{
    int const start = request.indexOf("\r\n" + name + ": ");
    if (start < 0)
    {
        return {};
    }
    int const value = start + name.size() + 4;
    return request.mid(value, request.indexOf("\r\n", value) - value);
}

std::optional<int> RangeStart(QByteArray const& request)
{
    QByteArray const range = FieldOf(request, "Range");
    if (!range.startsWith("bytes=") || !range.endsWith('-'))
    {
        return std::nullopt;
    }
    return range.mid(6, range.size() - 7).toInt();
}

QByteArray AnswerFor(ServedArchive const& archive, QByteArray const& request)
{
    QByteArray fields = "Connection: close\r\nAccept-Ranges: bytes\r\nDate: Sat, 21 Nov 2026 05:00:00 GMT\r\n";
    if (!archive.entityTag.isEmpty())
    {
        fields += "ETag: " + archive.entityTag + "\r\n";
    }
    if (!archive.lastModified.isEmpty())
    {
        fields += "Last-Modified: " + archive.lastModified + "\r\n";
    }
    std::optional<int> const start = RangeStart(request);
    QByteArray const condition = FieldOf(request, "If-Range");
    bool const isMet = condition.isEmpty() || condition == archive.entityTag || condition == archive.lastModified;
    QByteArray head = "HTTP/1.1 200 OK\r\n";
    QByteArray body = archive.bytes;
    if (start && isMet && *start >= body.size())
    {
        return "HTTP/1.1 416 No such range\r\nContent-Range: bytes */" + QByteArray::number(body.size()) +
               "\r\nContent-Length: 0\r\n" + fields + "\r\n";
    }
    if (start && isMet)
    {
        head = "HTTP/1.1 206 Partial Content\r\nContent-Range: bytes " + QByteArray::number(*start) + '-' +
               QByteArray::number(body.size() - 1) + '/' + QByteArray::number(body.size()) + "\r\n";
        body = body.mid(*start);
    }
    head += "Content-Length: " + QByteArray::number(body.size()) + "\r\n" + fields + "\r\n";
    return head + (archive.cutAfter < 0 ? body : body.left(archive.cutAfter));
}

LoopbackServer::Script Serving(ServedArchive const& archive)
{
    return [archive](QSslSocket& socket, QByteArray const& request, int)
    {
        socket.write(AnswerFor(archive, request));
        socket.disconnectFromHost();
    };
}

} // namespace Pelnar::Testing
