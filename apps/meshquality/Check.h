// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <meshquality/Profile.h>

#include <vector>

namespace MeshQuality {

enum class Verdict : int
{
    Pass,
    Warn,
    Fail
};

/// What a threshold finds in a mesh.
struct Finding
{
    Verdict verdict;
    /// How many elements lie outside of the threshold, and their percentage of all.
    int failing;
    double percent;
};

/// Whether a value fails the threshold. No number does.
bool isOutside(double value, const Threshold& threshold);

/// `report` holds at least one element.
Finding check(const DataManager::MeshQualityReport& report, const Threshold& threshold);

/// "pass", "warn" or "fail", for people.
QString verdictText(Verdict verdict);

} // namespace MeshQuality
