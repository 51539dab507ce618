// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <basemodule/DeserializerBase.h>
#include <basemodule/SerializerBase.h>
