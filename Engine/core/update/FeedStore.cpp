#include "Engine/core/update/FeedStore.h"

#include <QPointer>

#include <utility>

namespace Pelnar::Engine
{

FeedStore::FeedStore(FeedFolder folder) : m_folder(std::move(folder)) {}

void FeedStore::Ask(qint64 maxBytes, QObject* receiver, std::function<void(std::optional<KeptFeed> const&)> answer)
{
    auto const tell = [receiver = QPointer<QObject>(receiver), answer = std::move(answer),
                       maxBytes](std::optional<KeptFeed> const& feed)
    {
        if (receiver)
        {
            answer(feed && feed->bytes.size() <= maxBytes ? feed : std::nullopt);
        }
    };
    std::unique_lock lock(m_mutex);
    std::optional<Wish> const wish = m_wish;
    lock.unlock();
    // A hanging disk gets no second reader.
    if (wish || m_isReading)
    {
        QMetaObject::invokeMethod(
            this, [tell, feed = wish ? wish->feed : std::nullopt] { tell(feed); }, Qt::QueuedConnection);
        return;
    }
    m_isReading = true;
    m_chores.Run(
        [this, maxBytes, tell]
        {
            auto const take = [this, tell, feed = ReadKeptFeedFile(m_folder, maxBytes)]
            {
                m_isReading = false;
                tell(feed);
            };
            QMetaObject::invokeMethod(this, take, Qt::QueuedConnection);
        });
}

void FeedStore::Keep(std::optional<KeptFeed> feed)
{
    {
        std::lock_guard const lock(m_mutex);
        m_wish = Wish{std::move(feed)};
        m_isWishNew = true;
        if (std::exchange(m_isWriting, true))
        {
            return; // the writing thread takes this wish next
        }
    }
    m_chores.Run([this] { WriteWishes(); });
}

void FeedStore::WriteWishes()
{
    std::unique_lock lock(m_mutex);
    bool isDone = false;
    while (std::exchange(m_isWishNew, false))
    {
        Wish const wish = *m_wish;
        lock.unlock();
        isDone = WriteKeptFeedFile(m_folder, wish.feed);
        lock.lock();
    }
    m_isWriting = false;
    if (isDone)
    {
        m_wish.reset();
    }
}

} // namespace Pelnar::Engine
