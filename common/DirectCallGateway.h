// DirectCallGateway.h: the default gateway; grants every request at once.
//
//     auto const gateway = std::make_shared<Pelnar::ExternalStimulus::DirectCallGateway>();
//     Pelnar::App::UpdateManager::CheckForUpdates(gateway, qApp, true, {}, {});
//
// Thread: the caller's. Ownership: no data, nothing pending.
#pragma once

#include "common/IGateway.h"

namespace Pelnar::ExternalStimulus
{

class PELNAR_EXPORT DirectCallGateway : public IGateway
{
public:
    /// Calls the callback, unless it is empty, and returns after it; what it throws reaches the caller.
    void ProposeAction(Action const& action) override;
    /// Does nothing: nothing is ever pending.
    void CancelActions(std::string const& id) override;
};

} // namespace Pelnar::ExternalStimulus
