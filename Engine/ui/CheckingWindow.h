// CheckingWindow.h: shows that a requested check is running, with a button to cancel it.
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
