// Container.h: runs a piece of a test like a program in a container: for root and, if the kernel lets everybody make
// user namespaces, for ordinary users.
// Thread: the process's only one.
#pragma once

#include <functional>

namespace Pelnar::Testing
{

/// Runs \a piece in a child process. The child is the first one of a process namespace and has the same user, its own
/// mounts, and a root folder that this user owns and that contains the machine's folders. Failures of the piece are
/// failures of this test. Returns false if the kernel does not let this user do so.
[[nodiscard]] bool RunInContainer(std::function<void()> const& piece);

} // namespace Pelnar::Testing
