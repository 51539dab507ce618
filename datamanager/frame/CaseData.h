// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <datamanager/datamanager_export.h>

#include <QObject>

namespace DataManager {

/// The process-wide holder of calculation case data, reached by name from other libraries. It holds no data of its own.
class DATAMANAGER_EXPORT CaseData : public QObject
{
    Q_OBJECT

public:
    /// The holder, created by the first call and never destroyed.
    static CaseData* getinstance();

private:
    CaseData() = default;
    ~CaseData() override = default;

    static CaseData* m_instance;
};

} // namespace DataManager
