// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

namespace BaseModule {

/// The two material libraries. Any other value is an unknown library type.
enum MaterialLibType : int
{
    SoftwareLib = 0, ///< shared by all projects, stored beside the application
    ProjectLib = 1   ///< stored with the open project
};

} // namespace BaseModule
