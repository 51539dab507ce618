// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <workbench/coordinates/CoordinateDefinition.h>

#include <QDialog>

class QComboBox;
class QLabel;
class QLineEdit;

namespace Workbench {

class AngleFields;
class NumberField;

/// Creates a coordinate system relative to any other, or changes one. Accepting it makes the change; what is no number
/// or no name is refused with the reason, and the dialog stays.
class CoordinateDialog : public QDialog
{
    Q_OBJECT

public:
    /// Show a dialog that destroys itself when it is closed. There is none for the global system, nor for systems that
    /// do not exist.
    static void openForNew(int basicID, QWidget* parent);
    static void openFor(int id, QWidget* parent);

    void accept() override;
    void done(int result) override;

private:
    /// `id` 0 stands for a new system.
    CoordinateDialog(int id, int basicID, QWidget* parent);

    void nameFields();
    void listBasicSystems(int basicID);
    void listTypes(BaseModule::CoordinateSystemType type);
    void layOut();
    QLayout* layOutOffset();
    bool check();
    void refuse(const QString& reason, QWidget* field);
    CoordinateDefinition definition() const;

    int m_id;
    QLineEdit* m_name;
    QComboBox* m_basic;
    QComboBox* m_type;
    NumberField* m_offset[3];
    AngleFields* m_angles;
    QLabel* m_refusal;
};

} // namespace Workbench
