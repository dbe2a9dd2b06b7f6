// UpToDateWindow.h: reports after a requested check that there is no update.
// Thread: the Qt main thread. Ownership: the maker's.
#pragma once

#include "Engine/ui/EngineWindow.h"

namespace Pelnar::Engine
{

class UpToDateWindow : public EngineWindow
{
    Q_OBJECT

public:
    explicit UpToDateWindow(NamedVersion const& installed);

Q_SIGNALS:
    void Closed();
};

} // namespace Pelnar::Engine
