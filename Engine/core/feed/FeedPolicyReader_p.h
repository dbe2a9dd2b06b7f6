// FeedPolicyReader_p.h: what the elements of an item that speak of installations say; ReleaseRules.h judges it.
#pragma once

#include "Engine/core/feed/FeedItem.h"

namespace Pelnar::Engine
{

/// \a element is the value of an informationalUpdate. Of several the first counts.
void TakeInformational(ItemPolicy& policy, QVariant const& element);

/// An element makes \a item critical for versions before \a bound, or, when that is empty, for all. Critical for
/// everybody by one element stays so by another.
void TakeCritical(FeedItem& item, QString const& bound);

/// Words with blanks or commas between them.
[[nodiscard]] QStringList WordsOf(QString text);

/// 0, which is no rollout, for anything but a number of seconds within ten years.
[[nodiscard]] qint64 RolloutSeconds(QString const& text);

} // namespace Pelnar::Engine
