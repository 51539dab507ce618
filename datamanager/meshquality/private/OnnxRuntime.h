// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

// The C++ wrappers of the runtime, on the function table that the predictor hands them. They are compiled into this
// library with hidden visibility, all but the exception: a calling program must be able to catch it as its own
// Ort::Exception also where types are told apart by address.
#if defined(__GNUC__)
namespace Ort {
struct __attribute__((visibility("default"))) Exception;
}
#endif

#define ORT_API_MANUAL_INIT
#include <onnxruntime_cxx_api.h>
#undef ORT_API_MANUAL_INIT
