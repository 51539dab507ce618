// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

// Records to JSON and back, over their meta-objects.
#include <basemodule/DeserializerBase.h>
#include <basemodule/RecordType.h>
#include <basemodule/SerializerBase.h>
