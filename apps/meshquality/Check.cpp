// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <meshquality/Check.h>

#include <QCoreApplication>

#include <algorithm>

namespace MeshQuality {

using DataManager::MeshQualityReport;

bool isOutside(double value, const Threshold& threshold)
{
    return !(value >= threshold.minimum && value <= threshold.maximum);
}

Finding check(const MeshQualityReport& report, const Threshold& threshold)
{
    const std::vector<double>& values = report.values(threshold.metric);
    const auto failing = static_cast<int>(std::count_if(
        values.begin(), values.end(), [&threshold](double value) { return isOutside(value, threshold); }));
    const double percent = 100.0 * failing / report.elementCount();
    const Verdict verdict = failing == 0                          ? Verdict::Pass
                            : percent <= threshold.allowedPercent ? Verdict::Warn
                                                                  : Verdict::Fail;
    return {verdict, failing, percent};
}

QString verdictText(Verdict verdict)
{
    return verdict == Verdict::Fail   ? QCoreApplication::translate("meshquality", "fail")
           : verdict == Verdict::Warn ? QCoreApplication::translate("meshquality", "warn")
                                      : QCoreApplication::translate("meshquality", "pass");
}

} // namespace MeshQuality
