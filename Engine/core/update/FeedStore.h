// FeedStore.h: the kept feed of an application, on the disk, and in memory until it is written.
// Thread: its maker's, with Qt's event loop; threads do the reading and writing. Ownership: the updater's. Its
// destructor waits for these threads.
#pragma once

#include "Engine/core/base/LatestWriter.h"
#include "Engine/core/check/IFeedStore.h"
#include "Engine/core/check/KeptFeedFile.h"

#include <QObject>

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
    FeedFolder const m_folder;
    bool m_isReading = false;
    LatestWriter<std::optional<KeptFeed>> m_writer;
    DiskChores m_chores; ///< destroyed first
};

} // namespace Pelnar::Engine
