// RunningBundle.h: whether the running program is the executable of an application bundle. Plain C++.
// Thread: any. Ownership: values. Asks the file system alone, so that Foundation need not be in use yet.
#pragma once

#include <QString>

namespace Pelnar::Foundation
{

/// The information file of the bundle that the running program is the executable of; empty when there is no such
/// bundle.
QString InformationFileOfRunningBundle();

} // namespace Pelnar::Foundation
