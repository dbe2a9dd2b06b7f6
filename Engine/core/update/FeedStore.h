// FeedStore.h: the kept feed of an application, on the disk, and in memory until it is written.
// Thread: its maker's, with Qt's event loop; threads do the reading and writing. Ownership: the updater's. Its
// destructor waits for these threads.
#pragma once

#include "Engine/core/check/IFeedStore.h"
#include "Engine/core/check/KeptFeedFile.h"
#include "Engine/core/update/DiskChores.h"

#include <QObject>

#include <mutex>

namespace Pelnar::Engine
{

class FeedStore : public QObject, public IFeedStore
{
    Q_OBJECT
public:
    explicit FeedStore(FeedFolder folder);

    void Ask(qint64 maxBytes, QObject* receiver, std::function<void(std::optional<KeptFeed> const&)> answer) override;
    void Keep(std::optional<KeptFeed> feed) override;

private:
    /// The content that the disk should have.
    struct Wish
    {
        std::optional<KeptFeed> feed;
    };

    void WriteWishes();

    FeedFolder const m_folder;
    bool m_isReading = false;
    std::mutex m_mutex;
    std::optional<Wish> m_wish; ///< until it is on the disk, or until the process ends if it cannot be written
    bool m_isWishNew = false;   ///< no thread has begun to write it
    bool m_isWriting = false;
    DiskChores m_chores; ///< destroyed first
};

} // namespace Pelnar::Engine
