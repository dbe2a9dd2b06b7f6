// FeedValidityText.h: finds and replaces the serial and the expiry in a feed's text.
#pragma once

#include "Engine/core/check/FeedTrust.h"

#include <QByteArray>
#include <QString>

namespace Pelnar::Publisher
{

/// Returns \a content with these values in its channel: in the existing elements, or in new ones at the channel's
/// start. No other byte changes. Messages call the feed \a name. Throws Refusal if the feed is not UTF-8 or has no
/// channel, and if an element appears twice or contains more than text.
QByteArray WithTerms(QString const& name, QByteArray const& content, Engine::FeedValidity const& terms);

/// A time in the form that clients read.
QString MomentText(QDateTime const& moment);

} // namespace Pelnar::Publisher
