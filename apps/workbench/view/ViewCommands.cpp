// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/view/ViewCommands.h>

namespace Workbench {

ViewCommands* ViewCommands::instance()
{
    static auto* const commands = new ViewCommands;
    return commands;
}

} // namespace Workbench
