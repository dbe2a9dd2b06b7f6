// ErrorWindow.h: reports that a requested update could not be completed.
// Thread: the Qt main thread. Ownership: the maker's.
#pragma once

#include "Engine/core/faults/Sentence.h"
#include "Engine/ui/EngineWindow.h"

namespace Pelnar::Engine
{

class ErrorWindow : public EngineWindow
{
    Q_OBJECT

public:
    explicit ErrorWindow(Sentence const& sentence);

Q_SIGNALS:
    void Closed();
};

} // namespace Pelnar::Engine
