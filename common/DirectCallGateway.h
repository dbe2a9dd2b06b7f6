// DirectCallGateway.h: the default gateway; it grants every request immediately.
//
//     auto const gateway = std::make_shared<Pelnar::ExternalStimulus::DirectCallGateway>();
//     Pelnar::App::UpdateManager::CheckForUpdates(gateway, qApp, true, {}, {});
//
// Thread: the caller's. It keeps no data and no pending requests.
#pragma once

#include "common/IGateway.h"

namespace Pelnar::ExternalStimulus
{

class PELNAR_EXPORT DirectCallGateway : public IGateway
{
public:
    /// Calls the callback, unless it is empty, and returns after it. An exception of the callback reaches the caller.
    void ProposeAction(Action const& action) override;
    /// Does nothing, because no request is ever pending.
    void CancelActions(std::string const& id) override;
};

} // namespace Pelnar::ExternalStimulus
