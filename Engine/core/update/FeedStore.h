// FeedStore.h: the kept feed of an application: on the disk, and in memory until it is there.
// Thread: the one that made it, with Qt's event loop; it reads and writes beside that loop. Ownership: the updater's.
// Its end waits for what it reads and writes.
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
    /// What the disk should hold.
    struct Wish
    {
        std::optional<KeptFeed> feed;
    };

    void WriteWishes();

    FeedFolder const m_folder;
    bool m_isReading = false;
    std::mutex m_mutex;
    std::optional<Wish> m_wish; ///< until it is on the disk; for ever when it cannot be written
    bool m_isWishNew = false;   ///< nobody has begun to write it
    bool m_isWriting = false;
    DiskChores m_chores; ///< the first to go
};

} // namespace Pelnar::Engine
