// ProcessMemory.h: the memory of the running process.
#pragma once

namespace Pelnar::Bench
{

/// A line of the process's status: "VmRSS:" (current) or "VmHWM:" (maximum since ForgetPeak or the start); 0 if
/// unknown.
long KibibytesOf(char const* field);
void ForgetPeak();

} // namespace Pelnar::Bench
