// EngineDefaults.h: the values that a demo host and the update engine exchange through Foundation: user defaults and
// the running bundle's information. Plain C++.
// Thread: main. Ownership: registered defaults last as long as the process and are never stored.
#pragma once

#include <QString>

namespace Pelnar::Demo
{

/// Selects the platform whose feed items count: "macos" or "linux". Without a call, the engine's own platform counts.
void SetFeedPlatform(QString const& platform);

/// The text under \a key in the running bundle's information file, or an empty text.
QString BundleText(QString const& key);

} // namespace Pelnar::Demo
