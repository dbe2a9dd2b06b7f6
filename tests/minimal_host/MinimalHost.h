// MinimalHost.h: what the test may ask of the minimal host framework beside the framework's own interface.
// Thread: the Qt main thread.
#pragma once

#include "common/Export.h"

#include <QString>

#include <vector>

namespace Pelnar::Testing
{

/// The texts that the framework's parser was asked for, in order.
PELNAR_EXPORT std::vector<QString>& AskedVersions();

} // namespace Pelnar::Testing
