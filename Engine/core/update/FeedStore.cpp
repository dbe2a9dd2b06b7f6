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
    auto const unwritten = m_writer.Waiting();
    // A hanging disk gets no second reader.
    if (unwritten || m_isReading)
    {
        QMetaObject::invokeMethod(
            this, [tell, feed = unwritten.value_or(std::nullopt)] { tell(feed); }, Qt::QueuedConnection);
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
    m_writer.Put(std::move(feed), m_chores,
                 [this](std::optional<KeptFeed> const& latest) { return WriteKeptFeedFile(m_folder, latest); });
}

} // namespace Pelnar::Engine
