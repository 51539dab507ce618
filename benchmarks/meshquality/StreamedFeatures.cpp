// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include "Contender.h"

#include <datamanager/meshquality/MeshQualityPredict.h>

double streamedFeatures(const std::string&)
{
    float features[11] = {};
    DataManager::MeshQualityPredict().getInput(features);
    double sum = 0.0;
    for (const float feature : features) {
        sum += static_cast<double>(feature);
    }
    return sum;
}
