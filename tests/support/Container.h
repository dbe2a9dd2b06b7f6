// Container.h: runs a piece of a test as a container does its programs, for root and, where the kernel lets everybody
// make namespaces of users, for ordinary users.
// Thread: the process' only one. Ownership: values only; the container ends with the piece.
#pragma once

#include <functional>

namespace Pelnar::Testing
{

/// Runs \a piece in a child process: the first one of a namespace of processes, the same user as before, with mounts of
/// its own and a root folder that is that user's. The machine's folders are in it. Failures of the piece are failures
/// of this test. False when the kernel does not let this user do so.
[[nodiscard]] bool RunInContainer(std::function<void()> const& piece);

} // namespace Pelnar::Testing
