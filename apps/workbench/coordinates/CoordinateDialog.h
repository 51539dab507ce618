// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <workbench/coordinates/CoordinateDefinition.h>
#include <workbench/dialog/FieldLabels.h>

#include <QDialog>

#include <array>

class QCheckBox;
class QComboBox;
class QLineEdit;

namespace Workbench {

class AngleFields;
class NumberField;
class Refusal;

/// Creates a coordinate system relative to any other, or changes one. Accepting it makes the change; what is no number
/// or no name, and a basic system that closes a loop, is refused with the reason, and the dialog stays.
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

protected:
    void changeEvent(QEvent* event) override;

private:
    /// `id` 0 stands for a new system.
    CoordinateDialog(int id, int basicID, QWidget* parent);

    void nameFields();
    void listBasicSystems();
    void listTypes(BaseModule::CoordinateSystemType type);
    void layOut();
    QLayout* layOutOffset();
    void retranslate();
    void fill(const CoordinateDefinition& definition);

    int chosenBasic() const;
    void changeBasic();
    bool check();
    bool checkNumbers();
    CoordinateDefinition definition() const;

    int m_id;
    /// The basic system in which the fields are meant.
    int m_basicID;
    QLineEdit* m_name;
    QComboBox* m_basic;
    QCheckBox* m_keepsPlace;
    QComboBox* m_type;
    std::array<NumberField*, 3> m_offset;
    AngleFields* m_angles;
    Refusal* m_refusal;
    FieldLabels m_labels;
};

} // namespace Workbench
