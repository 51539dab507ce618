// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include "Contender.h"

#include <meshquality/LiteralPipeline.h>

double plainQt(const std::string& path)
{
    double sum = 0.0;
    for (float feature : LiteralPipeline::features(QString::fromStdString(path)))
        sum += static_cast<double>(feature);
    return sum;
}
