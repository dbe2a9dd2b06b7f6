// FeedPolicyReader_p.h: the elements of an item that say for which installations it is meant; ReleaseRules.h judges it.
#pragma once

#include "Engine/core/feed/FeedItem.h"

namespace Pelnar::Engine
{

/// \a element is the value of an informationalUpdate. The first one counts.
void TakeInformational(ItemPolicy& policy, QVariant const& element);

/// An element makes \a item critical for versions before \a bound, or for all versions if \a bound is empty. If one
/// element makes it critical for all, no other element changes this.
void TakeCritical(FeedItem& item, QString const& bound);

/// Words with blanks or commas between them.
[[nodiscard]] QStringList WordsOf(QString text);

/// 0 (no rollout) unless it is a number of seconds of at most ten years.
[[nodiscard]] qint64 RolloutSeconds(QString const& text);

} // namespace Pelnar::Engine
