// What GoogleTest asks of the kernel to count threads.
#pragma once
#include <stdint.h>
typedef uint32_t mach_port_t, task_t, thread_t, mach_msg_type_number_t;
typedef int kern_return_t;
typedef uintptr_t vm_address_t, vm_size_t;
typedef thread_t* thread_act_array_t;
#define KERN_SUCCESS 0
extern "C" {
extern mach_port_t mach_task_self_;
kern_return_t task_threads(task_t, thread_act_array_t*, mach_msg_type_number_t*);
kern_return_t vm_deallocate(mach_port_t, vm_address_t, vm_size_t);
}
#define mach_task_self() mach_task_self_
