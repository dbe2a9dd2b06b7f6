// CheckingWindow.h: a check that a person asked for runs and can be cancelled.
// Thread: the Qt main thread. Ownership: the maker's.
#pragma once

#include "Engine/ui/EngineWindow.h"

namespace Pelnar::Engine
{

class CheckingWindow : public EngineWindow
{
    Q_OBJECT

public:
    CheckingWindow();

Q_SIGNALS:
    void Cancelled();
};

} // namespace Pelnar::Engine
