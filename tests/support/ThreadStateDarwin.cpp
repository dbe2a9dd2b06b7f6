#include "tests/support/ThreadState.h"

#include <mach/mach.h>
#include <pthread.h>

namespace Pelnar::Testing
{

std::uint64_t RunningThread()
{
    return ::pthread_mach_thread_np(::pthread_self());
}

bool IsAsleep(std::uint64_t thread)
{
    thread_basic_info_data_t information{};
    mach_msg_type_number_t count = THREAD_BASIC_INFO_COUNT;
    kern_return_t const answer = ::thread_info(static_cast<mach_port_t>(thread), THREAD_BASIC_INFO,
                                               reinterpret_cast<thread_info_t>(&information), &count);
    return answer == KERN_SUCCESS && information.run_state == TH_STATE_WAITING;
}

} // namespace Pelnar::Testing
