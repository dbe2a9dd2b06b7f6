// IsolatedUserDefaults.h: gives this process user defaults of its own, so that tests and tools never touch those of the
// person who runs them. Plain C++.
// Thread: main, before Foundation is first used and before other threads start. Ownership: a scope object; the defaults
// are removed with it, so it must outlive the last use of Foundation.
#pragma once

#include <QTemporaryDir>

namespace Pelnar::Foundation
{

class IsolatedUserDefaults
{
public:
    /// Makes an empty private folder and sends Foundation there. Ends the process when that cannot be done.
    IsolatedUserDefaults();

private:
    QTemporaryDir m_folder;
};

} // namespace Pelnar::Foundation
