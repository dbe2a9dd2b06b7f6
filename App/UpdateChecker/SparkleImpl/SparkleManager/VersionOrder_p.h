// VersionOrder_p.h: the order of two version texts by a context's operators. Plain C++, private to the session.
// Thread: the Qt main thread.
#pragma once

#include "HostFramework/Version.h"

#include <QString>

#include <functional>

namespace Pelnar::App::Session
{

using VersionOperator = std::function<bool(Core::Version const&, Core::Version const&)>;

/// -1 when \a versionA is older, 0 when both are the same, 1 when it is newer. Text that is no version and operators
/// that fail give 0 and two error records. Never throws.
int OrderOfVersions(QString const& versionA, QString const& versionB, VersionOperator const& less,
                    VersionOperator const& equal);

} // namespace Pelnar::App::Session
