#include "common/DirectCallGateway.h"

namespace Pelnar::ExternalStimulus
{

void DirectCallGateway::ProposeAction(Action const& action)
{
    if (action.callback)
    {
        action.callback();
    }
}

void DirectCallGateway::CancelActions(std::string const&) {}

} // namespace Pelnar::ExternalStimulus
