// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/coordinates/CoordinateDialog.h>

#include <workbench/coordinates/AngleFields.h>
#include <workbench/coordinates/CoordinateName.h>
#include <workbench/coordinates/CoordinateSystems.h>
#include <workbench/material/NumberField.h>

#include <datamanager/coordinates/RelativeCoordinateSystem.h>
#include <datamanager/coordinates/RelativeCoordinateSystemDate.h>

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>

namespace Workbench {

using DataManager::RelativeCoordinateSystem;
using DataManager::RelativeCoordinateSystemDate;

namespace {

RelativeCoordinateSystemDate& registry()
{
    return *RelativeCoordinateSystemDate::getInstance();
}

} // namespace

void CoordinateDialog::openForNew(int basicID, QWidget* parent)
{
    if (registry().getCoordinateSystemByID(basicID) != nullptr) {
        (new CoordinateDialog(0, basicID, parent))->open();
    }
}

void CoordinateDialog::openFor(int id, QWidget* parent)
{
    const RelativeCoordinateSystem* const system = registry().getCoordinateSystemByID(id);
    if (system != nullptr && id != 0) {
        (new CoordinateDialog(id, system->getBasicCoordinateSystemID(), parent))->open();
    }
}

CoordinateDialog::CoordinateDialog(int id, int basicID, QWidget* parent)
    : QDialog(parent), m_id(id), m_name(new QLineEdit(this)), m_basic(new QComboBox(this)),
      m_type(new QComboBox(this)), m_offset{new NumberField(this), new NumberField(this), new NumberField(this)},
      m_angles(new AngleFields(this)), m_refusal(new QLabel(this))
{
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(id == 0 ? tr("New coordinate system") : tr("Coordinate system %1").arg(id));
    nameFields();
    listBasicSystems(basicID);
    const CoordinateDefinition definition = id == 0 ? CoordinateDefinition() : CoordinateSystems::definition(id);
    m_name->setText(definition.name);
    listTypes(definition.type);
    for (std::size_t i = 0; i < 3; ++i) {
        m_offset[i]->setValue(definition.offset[i]);
    }
    m_angles->setAngles(definition.angles);
    layOut();
    registry().setNeWCoordinateSystemSign(id == 0);
}

void CoordinateDialog::nameFields()
{
    setObjectName(QStringLiteral("coordinateDialog"));
    m_name->setObjectName(QStringLiteral("name"));
    m_basic->setObjectName(QStringLiteral("basic"));
    m_type->setObjectName(QStringLiteral("type"));
    m_offset[0]->setObjectName(QStringLiteral("offsetX"));
    m_offset[1]->setObjectName(QStringLiteral("offsetY"));
    m_offset[2]->setObjectName(QStringLiteral("offsetZ"));
    m_refusal->setObjectName(QStringLiteral("refusal"));
}

void CoordinateDialog::listBasicSystems(int basicID)
{
    for (int i = 0; i < registry().getRelativeCoordinateSystemDateCount(); ++i) {
        const RelativeCoordinateSystem& system = *registry().getCoordinateSystemByIndex(i);
        m_basic->addItem(coordinateTitle(system), system.getID());
    }
    m_basic->setCurrentIndex(m_basic->findData(basicID));
    // The basic system of an existing one stays: the chains of everything below hold it.
    m_basic->setEnabled(m_id == 0);
}

void CoordinateDialog::listTypes(BaseModule::CoordinateSystemType type)
{
    for (const auto known : {BaseModule::Cartesian, BaseModule::Cylindrical, BaseModule::Spherical}) {
        m_type->addItem(coordinateTypeTitle(known), int(known));
    }
    if (m_type->findData(int(type)) < 0) {
        m_type->addItem(coordinateTypeTitle(type), int(type));
    }
    m_type->setCurrentIndex(m_type->findData(int(type)));
}

void CoordinateDialog::layOut()
{
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    connect(buttons, &QDialogButtonBox::accepted, this, &CoordinateDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &CoordinateDialog::reject);
    m_refusal->setWordWrap(true);
    m_refusal->setTextFormat(Qt::PlainText);
    m_refusal->setStyleSheet(QStringLiteral("color: #c00000;"));
    auto* const form = new QFormLayout(this);
    form->addRow(tr("Name"), m_name);
    form->addRow(tr("Relative to"), m_basic);
    form->addRow(tr("Coordinates given as"), m_type);
    form->addRow(tr("Origin x, y, z, in units of the model"), layOutOffset());
    form->addRow(m_angles);
    form->addRow(m_refusal);
    form->addRow(buttons);
}

QLayout* CoordinateDialog::layOutOffset()
{
    auto* const row = new QHBoxLayout;
    for (NumberField* const field : m_offset) {
        row->addWidget(field);
    }
    return row;
}

bool CoordinateDialog::check()
{
    const QString reason = coordinateNameRefusal(m_name->text(), m_id);
    if (!reason.isEmpty()) {
        refuse(reason, m_name);
        return false;
    }
    QList<NumberField*> fields = {m_offset[0], m_offset[1], m_offset[2]};
    for (NumberField* const field : fields + m_angles->fields()) {
        if (!field->refusal().isEmpty()) {
            refuse(field->refusal(), field);
            return false;
        }
    }
    return true;
}

void CoordinateDialog::refuse(const QString& reason, QWidget* field)
{
    m_refusal->setText(reason);
    field->setFocus();
}

CoordinateDefinition CoordinateDialog::definition() const
{
    return {m_name->text(),
            BaseModule::CoordinateSystemType(m_type->currentData().toInt()),
            {m_offset[0]->value(), m_offset[1]->value(), m_offset[2]->value()},
            m_angles->angles()};
}

void CoordinateDialog::accept()
{
    if (!check()) {
        return;
    }
    if (m_id == 0) {
        CoordinateSystems::instance()->create(m_basic->currentData().toInt(), definition());
    } else {
        CoordinateSystems::instance()->change(m_id, definition());
    }
    QDialog::accept();
}

void CoordinateDialog::done(int result)
{
    registry().setNeWCoordinateSystemSign(false);
    QDialog::done(result);
}

} // namespace Workbench
