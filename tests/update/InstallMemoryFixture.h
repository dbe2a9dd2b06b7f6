// InstallMemoryFixture.h: a bundle, the records of its installations, and its starts.
// Thread: main. Ownership: the fixture owns its folder.
#pragma once

#include "Engine/core/base/PathText.h"
#include "Engine/core/helper/NoteFile.h"
#include "Engine/core/update/InstallAttempt.h"
#include "Engine/core/update/InstallMemory.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <fcntl.h>

namespace Pelnar::Testing
{

using namespace Pelnar::Engine;

class InstallMemoryTest : public testing::Test
{
protected:
    InstallMemoryTest()
    {
        QDir(m_folder.path()).mkpath(QStringLiteral("App.app"));
        m_bundle = QFileInfo(m_folder.filePath(QStringLiteral("App.app"))).canonicalFilePath();
        m_downloads = m_folder.filePath(QStringLiteral("cache/downloads"));
        m_records = m_folder.filePath(QStringLiteral("state/records"));
    }

    /// The path of a bundle in the folder \a above.
    QString MakeBundleIn(QString const& above, char const* identifier) const
    {
        QString const bundle = m_folder.filePath(above + QStringLiteral("/App.app"));
        QDir().mkpath(bundle + QStringLiteral("/Resources"));
        QFile information(bundle + QStringLiteral("/Resources/Info-gnustep.plist"));
        EXPECT_TRUE(information.open(QIODevice::WriteOnly));
        information.write(QByteArray("{CFBundleIdentifier = \"") + identifier +
                          "\"; CFBundleVersion = \"1.0\"; NSExecutable = run;}");
        return bundle;
    }

    std::string Name() const { return InstallRecordName(PathBytes(m_bundle)); }
    UniqueFd Records() const
    {
        return UniqueFd(::open(QFile::encodeName(m_records).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    }

    /// What the helper does at the end of an attempt to install 2.0 over 1.0.
    InstallRecord Attempt(InstallWish wish, InstallState state)
    {
        InstallAttempt const attempt(m_records, m_bundle);
        InstallJob job;
        job.installedVersion = "1.0";
        job.expectedVersion = "2.0";
        EXPECT_TRUE(attempt.Begin(job, wish));
        EXPECT_EQ(job.recordName, Name());
        job.record->state = state;
        job.record->secondsSinceEpoch = 1000000;
        job.record->fault = state == InstallState::Failed ? UpdateFault::SwapFailed : UpdateFault::None;
        WriteNote(attempt.Folder(), job.recordName, EncodeInstallRecord(*job.record));
        EXPECT_TRUE(QDir().mkpath(m_downloads));
        QFile archive(m_downloads + QLatin1Char('/') + QLatin1String(ARCHIVE));
        EXPECT_TRUE(archive.open(QIODevice::WriteOnly));
        return *job.record;
    }

    /// The record that the start of that version finds, and the one that it leaves on the disk.
    std::optional<InstallRecord> Start(char const* version)
    {
        InstallMemory const memory(m_records, m_downloads, m_bundle, QString::fromLatin1(version));
        m_isToBeTold = memory.IsToBeTold();
        m_isNews = memory.News() != nullptr;
        return memory.Failure();
    }

    std::optional<InstallRecord> OnDisk() const { return ReadInstallRecord(Records().Get(), Name()); }
    QStringList Files() const
    {
        return QDir(m_downloads).entryList(QDir::Files | QDir::Hidden) +
               QDir(m_records).entryList(QDir::Files | QDir::Hidden);
    }

    static constexpr char ARCHIVE[] = "0123456789abcdef0123456789abcdef0123456789abcdef0123456789abcdef.archive";
    QTemporaryDir m_folder;
    QString m_bundle;
    QString m_downloads;
    QString m_records;
    bool m_isToBeTold = false;
    bool m_isNews = false;
};

inline QDateTime After(int hours)
{
    return QDateTime::fromSecsSinceEpoch(1000000 + hours * 3600, Qt::UTC);
}

} // namespace Pelnar::Testing
