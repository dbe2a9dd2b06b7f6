#include "Engine/core/update/FeedStore.h"

#include "Engine/core/base/CallLater.h"

#include <QPointer>

#include <exception>
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
            std::optional<KeptFeed> feed;
            try
            {
                feed = ReadKeptFeedFile(m_folder, maxBytes);
            }
            catch (std::exception const&) // out of memory; the check waits for an answer
            {
            }
            CallLater(*this,
                      [this, tell, feed]
                      {
                          m_isReading = false;
                          tell(feed);
                      });
        });
}

void FeedStore::Keep(std::optional<KeptFeed> feed)
{
    m_writer.Put(std::move(feed), m_chores,
                 [this](std::optional<KeptFeed> const& latest) { return WriteKeptFeedFile(m_folder, latest); });
}

} // namespace Pelnar::Engine
