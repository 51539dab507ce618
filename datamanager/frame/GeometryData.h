// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <datamanager/datamanager_export.h>

#include <QObject>

namespace DataManager {

/// The process-wide holder of geometry data, reached by name from other libraries. It holds no data of its own.
class DATAMANAGER_EXPORT GeometryData : public QObject
{
    Q_OBJECT

public:
    /// The holder, created by the first call and never destroyed.
    static GeometryData* getinstance();

private:
    GeometryData() = default;
    ~GeometryData() override = default;

    static GeometryData* m_instance;
};

} // namespace DataManager
