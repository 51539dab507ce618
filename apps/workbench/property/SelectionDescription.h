// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <datamodel/PropertyTableData.h>

namespace Workbench {

/// The properties of what is selected: of one item all of them, of several how many there are, of nothing those of the
/// open project.
DataModel::PropertyTableData describeSelection();

} // namespace Workbench
