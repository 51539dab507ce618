// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <datamanager/meshquality/QualityModelCard.h>

namespace DataManager {

/// What the model runtime finds in a file.
struct ModelInspection
{
    /// Why the runtime takes the file as no model; empty when it does. Nothing else is set then.
    QString loadError;
    QMap<QString, QString> metadata;
    QStringList violations;
    /// None where a violation is in the way.
    std::optional<QualityModelCard::Trial> trial;
};

/// Loads, looks at and runs a model. Nothing is thrown.
ModelInspection inspectModel(const QString& path);

} // namespace DataManager
