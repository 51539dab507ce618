// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <datamodel/ExampleData.h>

#include <basemodule/RecordType.h>

namespace DataModel {

namespace {
// Runs in a static link, too: the destructor below is out of line, so that whoever uses the class links this file.
[[maybe_unused]] const bool isRegistered = QJsonHelper::registerRecordType<ExampleData>();
} // namespace

ExampleData::~ExampleData() = default;

} // namespace DataModel
