// ProcessMemory.h: what the running process has in memory.
#pragma once

namespace Pelnar::Bench
{

/// A line of the process' status, "VmRSS:" (now) or "VmHWM:" (at most, since ForgetPeak or the start); 0 when unknown.
long KibibytesOf(char const* field);
void ForgetPeak();

} // namespace Pelnar::Bench
