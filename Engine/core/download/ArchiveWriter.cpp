#include "Engine/core/download/ArchiveWriter.h"

#include "Engine/core/base/CallLater.h"
#include "Engine/core/base/SignalBlock.h"

#include <QObject>

#include <array>
#include <condition_variable>
#include <deque>
#include <exception>
#include <mutex>
#include <optional>
#include <system_error>
#include <thread>
#include <utility>
#include <vector>

namespace Pelnar::Engine
{
namespace
{

constexpr std::size_t BUFFERS = 4;
constexpr std::size_t BUFFER_BYTES = 256 * 1024;

/// Whether the destructor waits for work that has begun.
enum class Ending
{
    Waits,
    GoesOn,
};

struct Work
{
    Ending ending;
    std::function<Result<void>(PartialFile&)> run;
};

/// Calls a copy, because the writer that holds \a function may be destroyed during the call.
template <typename Function, typename... Arguments>
void Called(Function function, Arguments&&... arguments)
{
    function(std::forward<Arguments>(arguments)...);
}

} // namespace

/// Shared by both threads; each keeps it as long as needed.
struct WriterState
{
    explicit WriterState(PartialPlace place) : file(std::move(place)) {}

    PartialFile file; ///< used by the working thread until it has ended
    std::array<std::vector<char>, BUFFERS> buffers;

    std::mutex mutex; ///< guards everything below
    std::condition_variable changed;
    std::deque<Work> works;
    std::optional<Ending> running;
    std::vector<std::size_t> freeBuffers;
    bool isRoomWanted = false;
    bool isStopped = false;
    QObject* events = nullptr; ///< belongs to the maker's thread; alive while not stopped
};

class ArchiveWriter::Impl
{
public:
    Impl(PartialPlace place, ArchiveWriterEvents events)
        : m_state(std::make_shared<WriterState>(std::move(place))), m_events(std::move(events))
    {
        for (std::size_t index = 0; index < BUFFERS; ++index)
        {
            m_state->buffers[index].resize(BUFFER_BYTES);
            m_state->freeBuffers.push_back(index);
        }
        m_state->events = &m_context;
    }

    ~Impl()
    {
        if (!m_thread.joinable())
        {
            return;
        }
        std::unique_lock lock(m_state->mutex);
        m_state->isStopped = true;
        m_state->works.clear();
        m_state->changed.notify_all();
        m_state->changed.wait(lock, [this] { return m_state->running != Ending::Waits; });
        if (m_state->running == Ending::GoesOn)
        {
            // A disk may take seconds for a sync. The file is unlocked now; the remaining work does not touch it.
            m_state->file.Unlock();
            lock.unlock();
            m_thread.detach();
            return;
        }
        lock.unlock();
        m_thread.join();
    }

    void Start()
    {
        // A signal for the process must not arrive in this thread. A signal about a file's size becomes an error of the
        // call.
        SignalBlock const block;
        try
        {
            m_thread = std::thread(&Impl::Run, m_state, &m_events);
        }
        catch (std::system_error const& error)
        {
            EngineError const busy = MakeError(ErrorCause::DownloadSystemBusy, QString::fromLocal8Bit(error.what()));
            QMetaObject::invokeMethod(
                &m_context, [this, busy] { Called(m_events.failed, busy); }, Qt::QueuedConnection);
        }
    }

    void Add(Ending ending, std::function<Result<void>(PartialFile&)> run)
    {
        std::lock_guard const lock(m_state->mutex);
        m_state->works.push_back({ending, std::move(run)});
        m_state->changed.notify_all();
    }

    /// Adds work that returns an answer to the maker's thread.
    template <typename Answer>
    void AddAnswered(Answer answer)
    {
        Add(Ending::Waits,
            [state = m_state.get(), answer](PartialFile& file)
            {
                Post(*state, answer(file));
                return Result<void>();
            });
    }

    void AddSpending(DownloadSpending const& spent)
    {
        Add(Ending::Waits,
            [spent](PartialFile& file)
            {
                file.SetSpent(spent);
                return Result<void>();
            });
    }

    /// Adds work that writes the state at that time into the record.
    void AddRecording()
    {
        Add(Ending::Waits, &PartialFile::StageRecord);
        Add(Ending::GoesOn, &PartialFile::SyncRecord);
        Add(Ending::Waits, &PartialFile::PublishRecord);
        Add(Ending::GoesOn, &PartialFile::SyncFolder);
    }

    BodyBuffer Buffer()
    {
        if (!m_current)
        {
            std::lock_guard const lock(m_state->mutex);
            if (m_state->freeBuffers.empty())
            {
                m_state->isRoomWanted = true;
                return {};
            }
            m_current = m_state->freeBuffers.back();
            m_state->freeBuffers.pop_back();
            m_filled = 0;
        }
        return {m_state->buffers[*m_current].data() + m_filled, static_cast<qint64>(BUFFER_BYTES - m_filled)};
    }

    void Commit(qint64 bytes)
    {
        m_filled += static_cast<std::size_t>(bytes);
        if (m_filled == BUFFER_BYTES)
        {
            Flush();
        }
    }

    void Flush()
    {
        if (!m_current || m_filled == 0)
        {
            return;
        }
        Add(Ending::Waits,
            [state = m_state.get(), events = &m_events, index = *m_current, size = m_filled](PartialFile& file)
            {
                auto const* const bytes = reinterpret_cast<std::uint8_t const*>(state->buffers[index].data());
                Result<void> written = file.Append(Bytes(bytes, size));
                std::unique_lock lock(state->mutex);
                state->freeBuffers.push_back(index);
                bool const isWanted = std::exchange(state->isRoomWanted, false);
                lock.unlock();
                if (isWanted && written)
                {
                    Post(*state, [events] { Called(events->roomMade); });
                }
                return written;
            });
        m_current.reset();
    }

    ArchiveWriterEvents const& Events() const { return m_events; }

private:
    /// Calls \a call in the maker's thread, unless the writer has ended by then.
    static void Post(WriterState& state, std::function<void()> call)
    {
        std::lock_guard const lock(state.mutex);
        if (!state.isStopped)
        {
            QMetaObject::invokeMethod(state.events, std::move(call), Qt::QueuedConnection);
        }
    }

    /// The failure of \a work, if it failed.
    static std::optional<EngineError> FailureOf(Work const& work, PartialFile& file)
    {
        Result<void> const done = work.run(file);
        return done ? std::nullopt : std::optional(done.error());
    }

    /// Returns false after a failure. The download waits for an answer, so it gets one even if memory is short.
    static bool Do(Work const& work, WriterState& state, ArchiveWriterEvents const* events)
    {
        std::optional<EngineError> failure;
        bool isDone = false;
        try
        {
            failure = FailureOf(work, state.file);
            isDone = !failure;
        }
        catch (std::exception const&) // out of memory
        {
        }
        if (!isDone)
        {
            TryForAWhile(
                [&state, events, &failure]
                {
                    Post(state, [events, failure]
                         { Called(events->failed, failure.value_or(MakeError(ErrorCause::DownloadSystemBusy))); });
                });
        }
        return isDone;
    }

    static void Run(std::shared_ptr<WriterState> const& state, ArchiveWriterEvents const* events)
    {
        std::unique_lock lock(state->mutex);
        for (;;)
        {
            state->changed.wait(lock, [&state] { return state->isStopped || !state->works.empty(); });
            if (state->isStopped)
            {
                return;
            }
            Work const work = std::move(state->works.front());
            state->works.pop_front();
            state->running = work.ending;
            lock.unlock();
            bool const isDone = Do(work, *state, events);
            lock.lock();
            state->running.reset();
            state->changed.notify_all();
            if (!isDone)
            {
                return; // the following work depends on this
            }
        }
    }

    std::shared_ptr<WriterState> m_state;
    ArchiveWriterEvents m_events;
    QObject m_context;
    std::thread m_thread;
    std::optional<std::size_t> m_current; ///< the buffer that is being filled
    std::size_t m_filled = 0;
};

ArchiveWriter::ArchiveWriter(PartialPlace place, ArchiveWriterEvents events)
    : m_impl(std::make_unique<Impl>(std::move(place), std::move(events)))
{
}

ArchiveWriter::~ArchiveWriter() = default;

void ArchiveWriter::Open()
{
    m_impl->Add(Ending::Waits, [](PartialFile& file) { return file.Open(); });
    m_impl->AddAnswered(
        [events = &m_impl->Events()](PartialFile& file)
        { return [events, found = file.Found(), spent = file.Spent()] { Called(events->opened, found, spent); }; });
    m_impl->Start();
}

BodyBuffer ArchiveWriter::Buffer()
{
    return m_impl->Buffer();
}

void ArchiveWriter::Commit(qint64 bytes)
{
    m_impl->Commit(bytes);
}

void ArchiveWriter::Flush()
{
    m_impl->Flush();
}

void ArchiveWriter::Restart(Validators const& validators)
{
    m_impl->Flush(); // written before the restart discards it, never after the new start
    m_impl->Add(Ending::Waits, [validators](PartialFile& file) { return file.Restart(validators); });
    m_impl->AddRecording();
}

void ArchiveWriter::Count(DownloadSpending const& spent)
{
    m_impl->AddSpending(spent);
    m_impl->AddRecording();
}

void ArchiveWriter::Checkpoint(DownloadSpending const& spent)
{
    m_impl->Flush();
    m_impl->Add(Ending::GoesOn, &PartialFile::SyncBytes);
    Count(spent);
}

void ArchiveWriter::Finish()
{
    m_impl->Flush();
    m_impl->AddAnswered(
        [events = &m_impl->Events()](PartialFile& file)
        {
            auto const archive = std::make_shared<UniqueFd>(file.Finish());
            return [events, archive] { Called(events->finished, std::move(*archive)); };
        });
}

void ArchiveWriter::Close(DownloadSpending const& spent, std::function<void()> done)
{
    m_impl->Flush();
    Count(spent);
    m_impl->AddAnswered([done = std::move(done)](PartialFile&) { return done; });
}

void ArchiveWriter::Remove(DownloadSpending const& spent, std::function<void()> done)
{
    Restart({});
    Count(spent);
    m_impl->AddAnswered(
        [done = std::move(done)](PartialFile& file)
        {
            file.RemoveArchive();
            return done;
        });
}

} // namespace Pelnar::Engine
