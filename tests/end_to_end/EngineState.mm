#include "tests/end_to_end/EngineState.h"

#import <Sparkle/SUUpdater.h>

namespace Pelnar::Testing
{

bool IsEngineBusy()
{
    return [[SUUpdater sharedUpdater] updateInProgress];
}

} // namespace Pelnar::Testing
