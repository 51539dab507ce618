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

#if defined(__has_feature)
#if __has_feature(address_sanitizer)
#define __SANITIZE_ADDRESS__
#endif
#endif

#if defined(__SANITIZE_ADDRESS__)

// AddressSanitizer has its own allocator, and a hook in it. GCC comes without the header that declares it.
extern "C" int __sanitizer_install_malloc_and_free_hooks(void (*onMalloc)(const volatile void*, std::size_t),
                                                         void (*onFree)(const volatile void*));

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
