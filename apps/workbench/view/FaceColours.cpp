// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/view/FaceColours.h>

namespace Workbench {

Colour faceColour(int face)
{
    static constexpr std::array<Colour, 12> colours = {{{158, 188, 218},
                                                        {188, 214, 166},
                                                        {222, 203, 164},
                                                        {199, 180, 214},
                                                        {164, 209, 204},
                                                        {224, 184, 180},
                                                        {176, 196, 176},
                                                        {206, 206, 178},
                                                        {170, 180, 206},
                                                        {214, 190, 204},
                                                        {184, 212, 224},
                                                        {200, 200, 200}}};
    return colours[static_cast<std::size_t>(face < 0 ? 0 : face) % colours.size()];
}

} // namespace Workbench
