// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

/// How often the process has allocated heap memory so far, by whichever function: Qt's containers call malloc and
/// realloc, the standard library's operator new.
long allocationCount();
