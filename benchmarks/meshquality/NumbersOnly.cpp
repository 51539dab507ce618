// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include "Contender.h"

#include <fast_float/fast_float.h>

#include <cstdio>
#include <vector>

double numbersOnly(const std::string& path)
{
    std::FILE* file = std::fopen(path.c_str(), "rb");
    if (file == nullptr) {
        return 0.0;
    }
    std::fseek(file, 0, SEEK_END);
    std::vector<char> text(static_cast<std::size_t>(std::ftell(file)));
    std::rewind(file);
    const std::size_t size = std::fread(text.data(), 1, text.size(), file);
    std::fclose(file);

    double sum = 0.0;
    const char* const end = text.data() + size;
    for (const char* position = text.data(); position < end;) {
        double value = 0.0;
        const auto [stop, error] = fast_float::from_chars(position, end, value);
        if (error == std::errc()) {
            sum += value;
            position = stop;
        } else {
            ++position;
        }
    }
    return sum;
}
