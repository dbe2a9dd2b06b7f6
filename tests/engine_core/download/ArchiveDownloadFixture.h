// ArchiveDownloadFixture.h: downloads of one archive from a scripted server.
#pragma once

#include "tests/engine_core/download/ArchiveServer.h"
#include "tests/engine_core/download/DownloadHarness.h"

namespace Pelnar::Testing
{

constexpr int SIZE = 300000;
inline QByteArray const ARCHIVE = MakeArchive(SIZE);

class ArchiveDownloadTest : public DownloadTest
{
protected:
    /// A request that does not resume by itself.
    Engine::DownloadRequest OnceOnly(QUrl const& url, int declaredBytes = SIZE)
    {
        Engine::DownloadRequest request = RequestFor(url, declaredBytes);
        request.limits.maxResumes = 0;
        return request;
    }

    /// Serves the answers of \a script at an address that stays the same for the whole test.
    LoopbackServer::Script Scripted()
    {
        return [this](QSslSocket& socket, QByteArray const& request, int number) { script(socket, request, number); };
    }

    LoopbackServer::Script script;
};

} // namespace Pelnar::Testing
