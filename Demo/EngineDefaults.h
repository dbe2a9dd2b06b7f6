// EngineDefaults.h: what a demo host tells the update engine through user defaults. Plain C++.
// Thread: main. Ownership: the values last as long as the process and are never stored.
#pragma once

#include <QString>

namespace Pelnar::Demo
{

/// Which platform's items of a feed count: "macos" or "linux". The engine's own platform when it is not called.
void SetFeedPlatform(QString const& platform);

} // namespace Pelnar::Demo
