// ShippedChoice.h: the choice of the shipped updater in a feed: the engine's parser, its appcast objects and the
// session's delegate. Plain C++.
// Thread: the Qt main thread.
#pragma once

#include "Engine/core/feed/FeedItem.h"
#include "HostFramework/Version.h"

#include <QString>
#include <QVariantMap>

#include <optional>
#include <vector>

namespace Pelnar::Testing
{

struct ShippedChoice
{
    QString version;
    QString deltaFrom; ///< empty for a full item
    quint64 length = 0;
    QString url;
    QVariantMap extensions; ///< as the session would report them with the update
};

/// The first answer in a check by a client of \a localVersion; empty for no update.
std::optional<ShippedChoice> ChooseFromFeed(std::vector<Engine::FeedItem> const& items,
                                            Core::Version const& localVersion);

} // namespace Pelnar::Testing
