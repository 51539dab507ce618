// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <datamanager/meshquality/private/LargePages.h>

#include <QtGlobal>

#ifdef Q_OS_LINUX
#include <cstdint>
#include <sys/mman.h>
#endif

namespace DataManager {

void preferLargePages(void* bytes, std::size_t size)
{
#ifdef Q_OS_LINUX
    // Below, what a large page leaves unused would weigh more than the time it saves.
    constexpr std::size_t worthwhile = std::size_t(8) << 20;
    constexpr std::uintptr_t pageSize = 4096;
    if (size >= worthwhile) {
        const auto address = reinterpret_cast<std::uintptr_t>(bytes);
        const std::uintptr_t skipped = (pageSize - address % pageSize) % pageSize;
        // A wish: where it is not granted, nothing changes.
        madvise(static_cast<char*>(bytes) + skipped, (size - skipped) / pageSize * pageSize, MADV_HUGEPAGE);
    }
#else
    Q_UNUSED(bytes);
    Q_UNUSED(size);
#endif
}

} // namespace DataManager
