// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

namespace BaseModule {

enum MaterialLibType : int
{
    SoftwareLib,
    ProjectLib
};

} // namespace BaseModule
