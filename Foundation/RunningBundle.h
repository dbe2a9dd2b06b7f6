// RunningBundle.h: whether the running program is the executable of an application bundle. Plain C++.
// It uses only the file system, so that Foundation need not be in use yet.
#pragma once

#include <QString>

namespace Pelnar::Foundation
{

/// The information file of the bundle whose executable is the running program; empty if there is no such bundle.
QString InformationFileOfRunningBundle();

} // namespace Pelnar::Foundation
