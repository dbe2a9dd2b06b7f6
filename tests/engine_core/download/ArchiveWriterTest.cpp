// ArchiveWriterTest.cpp: the thread between a download and its disk: room, checkpoints, ends in the middle.
#include "Engine/core/download/ArchiveWriter.h"
#include "tests/engine_core/download/ArchiveServer.h"
#include "tests/engine_core/download/DownloadHarness.h"
#include "tests/engine_core/fetch/FetchHarness.h"
#include "tests/support/ScarceMemory.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <algorithm>
#include <cstring>
#include <memory>
#include <new>
#include <optional>
#include <thread>
#include <utility>

namespace
{

using namespace Pelnar::Engine;
using namespace Pelnar::Testing;

Validators const TAG{"\"v1\"", {}};

class ArchiveWriterTest : public FetchTest
{
protected:
    PartialPlace Place(int declaredBytes) const
    {
        return PlaceOf(folder.filePath(QStringLiteral("updates")), QUrl(QStringLiteral("https://a.example/x.zip")),
                       static_cast<std::uint64_t>(declaredBytes), QString());
    }

    /// Makes m_writer and waits until it is open.
    void Open(int declaredBytes)
    {
        ArchiveWriterEvents events;
        events.opened = [this](PartialArchive const& partial, DownloadSpending const&) { found = partial; };
        events.roomMade = [this] { ++roomsMade; };
        events.finished = [this](UniqueFd fd) { archive = std::move(fd); };
        events.failed = [this](EngineError const& error) { failure = error; };
        writer = std::make_unique<ArchiveWriter>(Place(declaredBytes), std::move(events));
        writer->Open();
        ASSERT_TRUE(WaitFor([this] { return found || failure; }));
        ASSERT_FALSE(failure);
    }

    /// Hands \a bytes over, as fast as there is room; how often there was none.
    int Put(QByteArray const& bytes)
    {
        int waits = 0;
        for (qint64 position = 0; position < bytes.size();)
        {
            int const roomsBefore = roomsMade;
            BodyBuffer const room = writer->Buffer();
            if (room.size == 0)
            {
                ++waits;
                EXPECT_TRUE(WaitFor([&] { return roomsMade > roomsBefore; }));
                continue;
            }
            qint64 const count = std::min<qint64>(room.size, bytes.size() - position);
            std::memcpy(room.data, bytes.constData() + position, static_cast<std::size_t>(count));
            writer->Commit(count);
            position += count;
        }
        return waits;
    }

    std::optional<PartialRecord> Record(int declaredBytes) const
    {
        PartialPlace const place = Place(declaredBytes);
        QFile file(QString::fromStdString(place.folder + '/' + place.name + ".record"));
        return file.open(QIODevice::ReadOnly) ? DecodePartialRecord(file.readAll().toStdString()) : std::nullopt;
    }

    QTemporaryDir folder;
    std::optional<PartialArchive> found;
    std::optional<EngineError> failure;
    UniqueFd archive;
    int roomsMade = 0;
    std::unique_ptr<ArchiveWriter> writer;
};

TEST_F(ArchiveWriterTest, WritesMoreThanItHasRoomForInOrder)
{
    QByteArray const bytes = MakeArchive(16 * 1024 * 1024);
    Open(bytes.size());
    writer->Restart(TAG);
    Put(bytes);
    writer->Finish();
    ASSERT_TRUE(WaitFor([this] { return static_cast<bool>(archive); }));
    QFile file;
    ASSERT_TRUE(file.open(archive.Get(), QIODevice::ReadOnly));
    EXPECT_TRUE(file.readAll() == bytes);
}

TEST_F(ArchiveWriterTest, CheckpointCallsDurableWhatWasTakenBeforeIt)
{
    Open(1000);
    writer->Restart(TAG);
    Put(QByteArray(300, 'x'));
    writer->Checkpoint({300, 1, 2});
    Put(QByteArray(200, 'y'));
    bool isClosed = false;
    writer->Close({500, 1, 3}, [&isClosed] { isClosed = true; });
    ASSERT_TRUE(WaitFor([&isClosed] { return isClosed; }));
    std::optional<PartialRecord> const record = Record(1000);
    ASSERT_TRUE(record);
    EXPECT_EQ(record->durableBytes, 300u);
    EXPECT_EQ(record->validators.entityTag, TAG.entityTag);
    ExpectSpending(record->spent, {500, 1, 3});
}

TEST_F(ArchiveWriterTest, FileCanBeOpenedAgainAfterAnEndAtAnyMoment)
{
    QByteArray const bytes = MakeArchive(4 * 1024 * 1024);
    for (int round = 0; round < 20; ++round)
    {
        found.reset();
        Open(bytes.size() + 1);
        EXPECT_LE(found->bytes, static_cast<quint64>(bytes.size()));
        writer->Restart(TAG);
        Put(bytes.left(round * 200000));
        writer->Checkpoint({300, 1, 2});
        writer.reset(); // in the middle of writing, of syncing, or after it
    }
    found.reset();
    Open(bytes.size() + 1);
    QFile file(QString::fromStdString(Place(bytes.size() + 1).folder + '/' + Place(bytes.size() + 1).name));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    QByteArray const kept = file.readAll();
    EXPECT_EQ(static_cast<quint64>(kept.size()), found->bytes);
    EXPECT_TRUE(bytes.startsWith(kept));
}

TEST_F(ArchiveWriterTest, RemovedFilesAreGoneWhenItSaysSo)
{
    Open(1000);
    writer->Restart(TAG);
    Put(QByteArray(300, 'x'));
    bool isDone = false;
    writer->Remove({300, 1, 2}, [&isDone] { isDone = true; });
    ASSERT_TRUE(WaitFor([&isDone] { return isDone; }));
    EXPECT_EQ(QDir(folder.filePath(QStringLiteral("updates"))).entryList(QDir::Files).size(), 1);
    ASSERT_TRUE(Record(1000)) << "its cost is stored";
    ExpectSpending(Record(1000)->spent, {300, 1, 2});
    EXPECT_EQ(Record(1000)->durableBytes, 0u);
    EXPECT_TRUE(Record(1000)->validators.IsEmpty());
}

/// Throws when it is copied in the writing thread.
struct ScarceCall
{
    ScarceCall() = default;
    ScarceCall(ScarceCall&&) = default;
    ScarceCall(ScarceCall const& other) : maker(other.maker)
    {
        if (std::this_thread::get_id() != maker)
        {
            throw std::bad_alloc();
        }
    }
    void operator()() const {}

    std::thread::id maker = std::this_thread::get_id();
};

TEST_F(ArchiveWriterTest, ExceptionInItsThreadIsAFailure)
{
    ASSERT_NO_FATAL_FAILURE(Open(1000));
    writer->Close({}, ScarceCall());
    ASSERT_TRUE(WaitFor([this] { return failure.has_value(); }));
    EXPECT_EQ(failure->cause, ErrorCause::DownloadSystemBusy);
}

/// Throws as above, and leaves no memory for the next request in the writing thread.
struct LastCall : ScarceCall
{
    explicit LastCall(std::shared_ptr<std::optional<ScarceMemory>> memory) : rest(std::move(memory)) {}
    LastCall(LastCall&&) = default;
    LastCall(LastCall const& other)
    try : ScarceCall(other), rest(other.rest)
    {
    }
    catch (std::bad_alloc const&)
    {
        other.rest->emplace(ScarceIn::OtherThreads, 0, 1);
    }

    std::shared_ptr<std::optional<ScarceMemory>> rest;
};

TEST_F(ArchiveWriterTest, FailureIsToldEvenIfItsThreadHasNoMemoryForThat)
{
    ASSERT_NO_FATAL_FAILURE(Open(1000));
    auto const memory = std::make_shared<std::optional<ScarceMemory>>();
    writer->Close({}, LastCall(memory));
    ASSERT_TRUE(WaitFor([this] { return failure.has_value(); }));
    EXPECT_EQ(failure->cause, ErrorCause::DownloadSystemBusy);
    EXPECT_TRUE(*memory && (*memory)->HasRefused());
}

} // namespace
