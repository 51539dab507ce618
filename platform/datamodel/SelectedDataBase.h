// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <datamodel/datamodel_export.h>

#include <basemodule/SelectModel.h>

#include <QObject>

namespace DataModel {

/// One selected item: a pair of identifiers and the select model under which it was picked. Plain data; who holds the
/// record may change it.
class DATAMODEL_EXPORT SelectedDataBase : public QObject
{
    Q_OBJECT

public:
    /// A record that names nothing: both identifiers -1, select model 0.
    Q_INVOKABLE SelectedDataBase() = default;
    ~SelectedDataBase() override = default;

    /// The object's identifier, for example that of a geometry or mesh entity; -1 while the record is unused.
    int getFirstID() const { return m_firstID; }
    /// Sets the object's identifier.
    void setFirstID(int id) { m_firstID = id; }

    /// The identifier within the object; -1 while the record is unused.
    int getSecondID() const { return m_secondID; }
    /// Sets the identifier within the object.
    void setSecondID(int id) { m_secondID = id; }

    /// The select model under which the item was picked.
    BaseModule::SelectModel getSelectModel() const { return m_selectModel; }
    /// Sets the select model under which the item was picked.
    void setSelectModel(BaseModule::SelectModel model) { m_selectModel = model; }

private:
    int m_firstID = -1;
    int m_secondID = -1;
    BaseModule::SelectModel m_selectModel = BaseModule::SelectModel(0);
};

} // namespace DataModel
