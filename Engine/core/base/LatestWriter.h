// LatestWriter.h: writes a value to a disk that may be slow. It has one writing thread at a time, and only the latest
// value waits for it.
// Thread: its maker's; threads do the writing. Ownership: it must outlive the chores that it gets.
#pragma once

#include "Engine/core/base/DiskChores.h"

#include <exception>
#include <functional>
#include <mutex>
#include <optional>
#include <utility>

namespace Pelnar::Engine
{

template <typename Value>
class LatestWriter
{
public:
    using Write = std::function<bool(Value const& value)>;

    /// Calls \a write with \a value in a thread of \a chores, unless a later value replaces it before. \a write returns
    /// false if the value could not be written; an exception means the same.
    void Put(Value value, DiskChores& chores, Write write)
    {
        {
            std::lock_guard const lock(m_mutex);
            m_waiting = std::move(value);
            m_isNew = true;
            if (std::exchange(m_isWriting, true))
            {
                return; // the writing thread takes this value next
            }
        }
        chores.Run([this, write = std::move(write)] { WriteWhileNew(write); });
    }

    /// The last value, until it is written. One that cannot be written stays until the process ends.
    std::optional<Value> Waiting() const
    {
        std::lock_guard const lock(m_mutex);
        return m_waiting;
    }

private:
    [[nodiscard]] static bool IsWritten(Write const& write, Value const& value)
    {
        try
        {
            return write(value);
        }
        catch (std::exception const&) // later values must be written
        {
            return false;
        }
    }

    void WriteWhileNew(Write const& write)
    {
        std::unique_lock lock(m_mutex);
        bool isWritten = false;
        while (std::exchange(m_isNew, false))
        {
            Value const value = *m_waiting;
            lock.unlock();
            isWritten = IsWritten(write, value);
            lock.lock();
        }
        m_isWriting = false;
        if (isWritten)
        {
            m_waiting.reset();
        }
    }

    mutable std::mutex m_mutex; ///< guards the members below
    std::optional<Value> m_waiting;
    bool m_isNew = false; ///< no thread has begun to write it
    bool m_isWriting = false;
};

} // namespace Pelnar::Engine
