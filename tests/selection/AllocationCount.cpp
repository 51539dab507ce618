// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <selection/AllocationCount.h>

#include <atomic>
#include <cstddef>

namespace {

std::atomic<long> count{0};

} // namespace

long allocationCount()
{
    return count;
}

#if defined(__SANITIZE_ADDRESS__)

// AddressSanitizer has its own allocator, and a hook in it. A growing realloc calls it, too.
#include <sanitizer/allocator_interface.h>

namespace {

const int isHooked = __sanitizer_install_malloc_and_free_hooks([](const volatile void*, std::size_t) { ++count; },
                                                               [](const volatile void*) {});

} // namespace

#else

// The C library looks these up in the program first, on behalf of every shared library.
extern "C" {

void* __libc_malloc(std::size_t size);
void* __libc_calloc(std::size_t number, std::size_t size);
void* __libc_realloc(void* memory, std::size_t size);

void* malloc(std::size_t size)
{
    ++count;
    return __libc_malloc(size);
}

void* calloc(std::size_t number, std::size_t size)
{
    ++count;
    return __libc_calloc(number, size);
}

void* realloc(void* memory, std::size_t size)
{
    ++count;
    return __libc_realloc(memory, size);
}
}

#endif
