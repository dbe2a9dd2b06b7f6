// FeedValidityText.h: where a feed's text says its serial and its expiry, and other values in their place.
#pragma once

#include "Engine/core/check/FeedTrust.h"

#include <QByteArray>
#include <QString>

namespace Pelnar::Publisher
{

/// \a content with the terms in its channel: in the elements that are there, or in new ones at the channel's start. No
/// other byte differs. \a name is shown. Throws Refusal: for what is not UTF-8 or has no channel, and for an element
/// that stands twice or holds more than text.
QByteArray WithTerms(QString const& name, QByteArray const& content, Engine::FeedValidity const& terms);

/// A moment in the form that clients read.
QString MomentText(QDateTime const& moment);

} // namespace Pelnar::Publisher
