// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <datamanager/meshquality/private/OnnxRuntime.h>

#include <memory>

/// What is done with the model runtime for scoring a mesh and for looking at a model. All of it throws Ort::Exception.
namespace DataManager::ModelRuntime {

/// The runtime's functions, which the wrappers use from then on; null when it does not offer them.
const OrtApi* functionTable();

/// The object, unless the runtime made none.
template <class Object>
Object created(Object object)
{
    if (!object) {
        throw Ort::Exception("Allocation failure", ORT_FAIL);
    }
    return object;
}

/// Loads a model, in the one environment of the process. The path is in the encoding of file names.
std::unique_ptr<Ort::Session> openSession(const char* path, const Ort::SessionOptions& options);

/// Runs a model on `size` floats, one row of input. The output's first element is a float.
Ort::Value run(Ort::Session& session, const char* inputName, void* input, int size, const char* outputName);

} // namespace DataManager::ModelRuntime
