// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <cstdlib>
#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <type_traits>
#include <unistd.h>

/// Included before everything else in a build for mutation testing. All mutants are in that build; MUTANT names the one
/// that is on, and MUTANTS_REACHED a file in which each mutant whose place was passed gets its byte set.
namespace mutants {

struct Choice
{
    Choice()
    {
        if (const char* number = std::getenv("MUTANT")) {
            chosen = std::atoi(number);
        }
        if (const char* name = std::getenv("MUTANTS_REACHED")) {
            share(name);
        }
    }
    /// Shared with child processes, and kept when the process is killed.
    void share(const char* name)
    {
        const int file = open(name, O_RDWR | O_CLOEXEC);
        struct stat status = {};
        if (file < 0 || fstat(file, &status) != 0) {
            return;
        }
        void* const bytes =
            mmap(nullptr, static_cast<std::size_t>(status.st_size), PROT_READ | PROT_WRITE, MAP_SHARED, file, 0);
        close(file);
        reached = bytes == MAP_FAILED ? nullptr : static_cast<volatile unsigned char*>(bytes);
    }
    int chosen = 0;
    volatile unsigned char* reached = nullptr;
};

inline const Choice choice;

inline bool on(int mutant)
{
    if (choice.reached != nullptr) {
        choice.reached[mutant] = 1;
    }
    return mutant == choice.chosen;
}
/// The same within constexpr functions: off while the compiler evaluates them.
constexpr bool onAtRun(int mutant)
{
    return !__builtin_is_constant_evaluated() && on(mutant);
}

/// Whether l comes before r or, if it may be equal, r not before l: classes need not have the other operator.
template <class L, class R>
constexpr bool before(bool orEqual, const L& l, const R& r)
{
    if constexpr (std::is_class_v<L> || std::is_class_v<R>) {
        return orEqual ? !(r < l) : l < r;
    } else {
        return orEqual ? l <= r : l < r;
    }
}
// clang-format off
template <class L, class R> constexpr bool less(bool on, const L& l, const R& r) { return before(on, l, r); }
template <class L, class R> constexpr bool lessOrEqual(bool on, const L& l, const R& r) { return before(!on, l, r); }
template <class L, class R> constexpr bool greater(bool on, const L& l, const R& r) { return before(on, r, l); }
template <class L, class R> constexpr bool greaterOrEqual(bool on, const L& l, const R& r) { return before(!on, r, l); }
template <class L, class R> constexpr auto plus(bool on, L l, R r) { return on ? l - r : l + r; }
template <class L, class R> constexpr auto minus(bool on, L l, R r) { return on ? l + r : l - r; }
// clang-format on

} // namespace mutants
