// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <cstdlib>
#include <memory>
#include <new>

namespace DataManager {

/// Bytes that grow without being filled first, and where the system can move pages, without being copied: what was
/// never written to takes no memory.
class LineBuffer
{
public:
    explicit LineBuffer(std::size_t size) { resize(size); }

    char* data() const { return m_bytes.get(); }
    std::size_t size() const { return m_size; }

    void resize(std::size_t size)
    {
        void* const bytes = std::realloc(m_bytes.get(), size);
        if (bytes == nullptr) {
            throw std::bad_alloc();
        }
        static_cast<void>(m_bytes.release());
        m_bytes.reset(static_cast<char*>(bytes));
        m_size = size;
    }

private:
    struct Free
    {
        void operator()(char* bytes) const { std::free(bytes); }
    };

    std::unique_ptr<char[], Free> m_bytes;
    std::size_t m_size = 0;
};

} // namespace DataManager
