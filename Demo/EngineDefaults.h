// EngineDefaults.h: what a demo host and the update engine tell each other through Foundation: user defaults and the
// running bundle's information. Plain C++.
// Thread: main. Ownership: values only; registered defaults last as long as the process and are never stored.
#pragma once

#include <QString>

namespace Pelnar::Demo
{

/// Which platform's items of a feed count: "macos" or "linux". The engine's own platform when it is not called.
void SetFeedPlatform(QString const& platform);

/// The text under \a key in the running bundle's information file; empty when there is none.
QString BundleText(QString const& key);

} // namespace Pelnar::Demo
