// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <datamodel/ExampleData.h>

#include <basemodule/RecordType.h>

namespace DataModel {

namespace {
[[maybe_unused]] const bool isRegistered = QJsonHelper::registerRecordType<ExampleData>();
}

} // namespace DataModel
