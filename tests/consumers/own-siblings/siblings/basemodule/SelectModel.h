// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

namespace BaseModule {

/// Other names, same numbers.
enum SelectModel : int
{
    FirstModel = 0,
    GroupModel = 10
};

} // namespace BaseModule
