// DownloadBudgetFixture.h: the files and the records that downloads leave in the folder.
#pragma once

#include "Engine/core/download/PartialFile.h"
#include "tests/engine_core/download/ArchiveServer.h"
#include "tests/engine_core/download/DownloadHarness.h"
#include "tests/support/CauseOf.h"

#include <QElapsedTimer>

#include <fcntl.h>

namespace Pelnar::Testing
{

constexpr int MEBIBYTE = 1024 * 1024;

class DownloadBudgetTest : public DownloadTest
{
protected:
    /// The archives in the folder, whole and partial.
    qint64 ArchiveBytes() const
    {
        qint64 bytes = 0;
        for (QString const& name : Files(QStringLiteral(".archive")))
        {
            bytes += QFileInfo(QDir(Folder()).filePath(name)).size();
        }
        return bytes;
    }

    QString RecordPath(Engine::DownloadRequest const& request) const
    {
        Engine::PartialPlace const where =
            Engine::PlaceOf(Folder(), request.url, request.declaredBytes, request.signature);
        return QString::fromStdString(where.folder + '/' + where.name + ".record");
    }

    std::optional<Engine::PartialRecord> RecordOf(Engine::DownloadRequest const& request) const
    {
        QFile file(RecordPath(request));
        return file.open(QIODevice::ReadOnly) ? Engine::DecodePartialRecord(file.readAll().toStdString())
                                              : std::nullopt;
    }

    /// Changes the record of \a request to this spending.
    void Spend(Engine::DownloadRequest const& request, Engine::DownloadSpending const& spent)
    {
        std::optional<Engine::PartialRecord> record = RecordOf(request);
        ASSERT_TRUE(record);
        record->spent = spent;
        QFile file(RecordPath(request));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(QByteArray::fromStdString(EncodePartialRecord(*record)));
    }

    /// A download of \a archive that breaks after \a bytes and does not resume.
    Engine::DownloadRequest LeavePart(LoopbackServer& server, int declaredBytes)
    {
        Engine::DownloadRequest request = RequestFor(server.Url(), declaredBytes);
        request.limits.maxResumes = 0;
        EXPECT_EQ(Run(request).cause, Engine::ErrorCause::IncompleteBody);
        return request;
    }
};

} // namespace Pelnar::Testing
