// MinimalHost.h: additional functions of the minimal host framework for the test. Thread: the Qt main thread.
#pragma once

#include "common/Export.h"

#include <QString>

#include <vector>

namespace Pelnar::Testing
{

/// The texts given to the framework's parser, in order.
PELNAR_EXPORT std::vector<QString>& AskedVersions();

} // namespace Pelnar::Testing
