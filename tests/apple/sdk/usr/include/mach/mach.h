// Tasks and threads: their number, and a thread's state.
#pragma once

#include <sys/types.h>

typedef int kern_return_t;
typedef int integer_t;
typedef unsigned int natural_t;
typedef natural_t mach_port_t;
typedef natural_t mach_msg_type_number_t;
typedef natural_t thread_flavor_t;
typedef mach_port_t thread_inspect_t;
typedef integer_t* thread_info_t;

typedef struct
{
    integer_t seconds;
    integer_t microseconds;
} time_value_t;

typedef struct
{
    time_value_t user_time;
    time_value_t system_time;
    integer_t cpu_usage;
    integer_t policy;
    integer_t run_state;
    integer_t flags;
    integer_t suspend_count;
    integer_t sleep_time;
} thread_basic_info_data_t;

#define KERN_SUCCESS 0
#define THREAD_BASIC_INFO 3
#define THREAD_BASIC_INFO_COUNT ((mach_msg_type_number_t)(sizeof(thread_basic_info_data_t) / sizeof(natural_t)))
#define TH_STATE_WAITING 3

typedef mach_port_t task_t;
typedef mach_port_t thread_t;
typedef mach_port_t thread_act_t;
typedef thread_act_t* thread_act_array_t;
typedef uintptr_t vm_address_t;
typedef uintptr_t vm_size_t;
typedef mach_port_t vm_map_t;

__BEGIN_DECLS
extern mach_port_t mach_task_self_;
#define mach_task_self() mach_task_self_
kern_return_t task_threads(task_t, thread_act_array_t*, mach_msg_type_number_t*);
kern_return_t vm_deallocate(vm_map_t, vm_address_t, vm_size_t);
kern_return_t thread_info(thread_inspect_t, thread_flavor_t, thread_info_t, mach_msg_type_number_t*);
__END_DECLS
