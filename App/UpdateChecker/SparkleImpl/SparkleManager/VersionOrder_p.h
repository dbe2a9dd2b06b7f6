// VersionOrder_p.h: the order of two version texts by a context's operators. Plain C++, private to the session.
// Thread: the Qt main thread.
#pragma once

#include "HostFramework/Version.h"

#include <QString>

#include <functional>

namespace Pelnar::App::Session
{

using VersionOperator = std::function<bool(Core::Version const&, Core::Version const&)>;

/// -1 if \a versionA is older, 0 if both are equal, 1 if it is newer. A text that is not a version, and an operator
/// that fails, give 0 and two error records. Never throws.
int OrderOfVersions(QString const& versionA, QString const& versionB, VersionOperator const& less,
                    VersionOperator const& equal);

} // namespace Pelnar::App::Session
