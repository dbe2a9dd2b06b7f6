// ReadyWindow.h: offers to install an update that is downloaded, verified and unpacked; the installation restarts the
// application.
// Thread: the Qt main thread. Ownership: the maker's.
#pragma once

#include "Engine/ui/EngineWindow.h"

namespace Pelnar::Engine
{

class ReadyWindow : public EngineWindow
{
    Q_OBJECT

public:
    ReadyWindow(NamedVersion const& update, CheckOrigin origin);

Q_SIGNALS:
    void Chosen(Pelnar::Engine::ReadyChoice choice);
};

} // namespace Pelnar::Engine
