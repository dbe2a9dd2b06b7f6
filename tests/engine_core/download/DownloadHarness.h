// DownloadHarness.h: runs one download to its end and reads the files that it left. Plain C++.
// Thread: main, with an application object.
#pragma once

#include "Engine/core/download/ArchiveDownload.h"
#include "Engine/core/download/DownloadBudget.h"
#include "tests/engine_core/fetch/FetchHarness.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <optional>
#include <vector>

#include <unistd.h>

namespace Pelnar::Testing
{

inline void ExpectSpending(Engine::DownloadSpending const& spending, Engine::DownloadSpending const& expected)
{
    EXPECT_EQ(spending.receivedBytes, expected.receivedBytes);
    EXPECT_EQ(spending.attempts, expected.attempts);
    EXPECT_EQ(spending.seconds, expected.seconds);
}

struct DownloadResult
{
    Engine::ErrorCause cause = Engine::ErrorCause::NoUpdate; ///< NoUpdate when all went well
    Engine::EngineError error;
    QByteArray bytes; ///< of the archive that was handed over
    Engine::UniqueFd archive;
    std::vector<Engine::DownloadProgress> progress;
};

class DownloadTest : public FetchTest
{
protected:
    Engine::DownloadRequest RequestFor(QUrl const& url, int declaredBytes)
    {
        Engine::DownloadRequest request;
        request.url = url;
        request.declaredBytes = static_cast<quint64>(declaredBytes);
        request.signature = QStringLiteral("signature");
        request.folder = Folder();
        request.feedReach = Engine::AddressReach::ThisComputer;
        request.limits = ShortLimits();
        request.limits.maxBodyBytes = 1;
        request.limits.totalTimeout = std::chrono::milliseconds(1);
        request.limits.firstResumePause = std::chrono::milliseconds(1);
        return request;
    }

    QString Folder() const { return place.filePath(QStringLiteral("cache/updates")); }

    static DownloadResult Run(Engine::DownloadRequest const& request)
    {
        DownloadResult result;
        std::optional<Engine::DownloadOutcome> outcome;
        int calls = 0;
        Engine::ArchiveDownload download(request);
        download.Start([&](Engine::DownloadProgress const& progress) { result.progress.push_back(progress); },
                       [&](Engine::DownloadOutcome told)
                       {
                           outcome = std::move(told);
                           ++calls;
                       });
        EXPECT_FALSE(outcome) << "an outcome arrives later, never at once";
        EXPECT_TRUE(WaitFor([&outcome] { return outcome.has_value(); }, 60000)) << "no outcome";
        QCoreApplication::processEvents();
        EXPECT_EQ(calls, 1);
        if (outcome && !*outcome)
        {
            result.error = outcome->error();
            result.cause = result.error.cause;
            EXPECT_EQ(result.error.code, Engine::ErrorCode::Download);
        }
        else if (outcome)
        {
            result.archive = **std::move(outcome);
            QFile file;
            EXPECT_TRUE(file.open(result.archive.Get(), QIODevice::ReadOnly));
            result.bytes = file.readAll();
            lseek(result.archive.Get(), 0, SEEK_SET);
        }
        return result;
    }

    void RemoveFolder() { QDir(Folder()).removeRecursively(); }

    /// The names in the folder that end so.
    QStringList Files(QString const& ending = QString()) const
    {
        return QDir(Folder()).entryList({QLatin1Char('*') + ending}, QDir::Files | QDir::Hidden | QDir::System);
    }

    /// The path of the only file of an archive.
    QString PartialPath() const
    {
        QStringList const names = Files(QStringLiteral(".archive"));
        EXPECT_EQ(names.size(), 1);
        return QDir(Folder()).filePath(names.value(0));
    }

    QByteArray PartialBytes() const
    {
        QFile file(PartialPath());
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }

    QTemporaryDir place;
};

} // namespace Pelnar::Testing
