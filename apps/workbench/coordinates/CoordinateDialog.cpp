// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/coordinates/CoordinateDialog.h>

#include <workbench/coordinates/AngleFields.h>
#include <workbench/coordinates/CoordinateName.h>
#include <workbench/coordinates/CoordinateRegistry.h>
#include <workbench/coordinates/CoordinateSystems.h>
#include <workbench/dialog/Refusal.h>
#include <workbench/material/NumberField.h>

#include <datamanager/coordinates/RelativeCoordinateSystem.h>

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QEvent>
#include <QFormLayout>
#include <QLineEdit>

namespace Workbench {

using DataManager::RelativeCoordinateSystem;

void CoordinateDialog::openForNew(int basicID, QWidget* parent)
{
    if (coordinateRegistry().getCoordinateSystemByID(basicID) != nullptr) {
        (new CoordinateDialog(0, basicID, parent))->open();
    }
}

void CoordinateDialog::openFor(int id, QWidget* parent)
{
    const RelativeCoordinateSystem* const system = coordinateRegistry().getCoordinateSystemByID(id);
    if (system != nullptr && id != 0) {
        (new CoordinateDialog(id, system->getBasicCoordinateSystemID(), parent))->open();
    }
}

CoordinateDialog::CoordinateDialog(int id, int basicID, QWidget* parent)
    : QDialog(parent), m_id(id), m_basicID(basicID), m_name(new QLineEdit(this)), m_basic(new QComboBox(this)),
      m_keepsPlace(new QCheckBox(this)),
      m_type(new QComboBox(this)), m_offset{new NumberField(this), new NumberField(this), new NumberField(this)},
      m_angles(new AngleFields(this)), m_refusal(new Refusal(this)), m_labels(new QFormLayout(this))
{
    setAttribute(Qt::WA_DeleteOnClose);
    nameFields();
    const CoordinateDefinition definition = id == 0 ? CoordinateDefinition() : CoordinateSystems::definition(id);
    listTypes(definition.type);
    layOut();
    retranslate();
    m_name->setText(definition.name);
    fill(definition);
    m_keepsPlace->setVisible(id != 0);
    connect(m_basic, QOverload<int>::of(&QComboBox::currentIndexChanged), this, &CoordinateDialog::changeBasic);
    coordinateRegistry().setNeWCoordinateSystemSign(id == 0);
}

void CoordinateDialog::nameFields()
{
    setObjectName(QStringLiteral("coordinateDialog"));
    m_name->setObjectName(QStringLiteral("name"));
    m_basic->setObjectName(QStringLiteral("basic"));
    m_keepsPlace->setObjectName(QStringLiteral("keepsPlace"));
    m_type->setObjectName(QStringLiteral("type"));
    m_offset[0]->setObjectName(QStringLiteral("offsetX"));
    m_offset[1]->setObjectName(QStringLiteral("offsetY"));
    m_offset[2]->setObjectName(QStringLiteral("offsetZ"));
}

void CoordinateDialog::listBasicSystems()
{
    const QSignalBlocker blocker(m_basic);
    m_basic->clear();
    for (int i = 0; i < coordinateRegistry().getRelativeCoordinateSystemDateCount(); ++i) {
        const RelativeCoordinateSystem& system = *coordinateRegistry().getCoordinateSystemByIndex(i);
        if (m_id == 0 || system.getID() != m_id) {
            m_basic->addItem(coordinateTitle(system), system.getID());
        }
    }
    if (m_basic->findData(m_basicID) < 0) {
        m_basic->addItem(m_basicID == m_id ? tr("%1 (itself)").arg(m_basicID) : tr("%1 (missing)").arg(m_basicID),
                         m_basicID);
    }
    m_basic->setCurrentIndex(m_basic->findData(m_basicID));
}

void CoordinateDialog::listTypes(BaseModule::CoordinateSystemType type)
{
    for (const auto known : {BaseModule::Cartesian, BaseModule::Cylindrical, BaseModule::Spherical}) {
        m_type->addItem(QString(), int(known));
    }
    if (m_type->findData(int(type)) < 0) {
        m_type->addItem(QString(), int(type));
    }
    m_type->setCurrentIndex(m_type->findData(int(type)));
}

void CoordinateDialog::layOut()
{
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    connect(buttons, &QDialogButtonBox::accepted, this, &CoordinateDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &CoordinateDialog::reject);
    auto* const form = static_cast<QFormLayout*>(layout());
    m_labels.addRow(m_name);
    m_labels.addRow(m_basic);
    form->addRow(QString(), m_keepsPlace);
    m_labels.addRow(m_type);
    m_labels.addRow(layOutOffset(), m_offset[0]);
    form->addRow(m_angles);
    form->addRow(m_refusal);
    form->addRow(buttons);
    setTabOrder(m_name, m_basic);
    setTabOrder(m_basic, m_keepsPlace);
    setTabOrder(m_keepsPlace, m_type);
}

QLayout* CoordinateDialog::layOutOffset()
{
    auto* const row = new QHBoxLayout;
    for (NumberField* const field : m_offset) {
        row->addWidget(field);
    }
    return row;
}

void CoordinateDialog::retranslate()
{
    setWindowTitle(m_id == 0 ? tr("New coordinate system") : tr("Coordinate system %1").arg(m_id));
    m_labels.setTexts(
        {tr("&Name"), tr("&Relative to"), tr("&Coordinates given as"), tr("&Origin x, y, z, in units of the model")});
    m_keepsPlace->setText(tr("&Keep the place: convert the values when another system is chosen"));
    for (int i = 0; i < m_type->count(); ++i) {
        m_type->setItemText(i, coordinateTypeTitle(BaseModule::CoordinateSystemType(m_type->itemData(i).toInt())));
    }
    const QStringList names{tr("Origin x"), tr("Origin y"), tr("Origin z")};
    for (std::size_t i = 0; i < m_offset.size(); ++i) {
        m_offset[i]->setAccessibleName(names.at(static_cast<int>(i)));
    }
    listBasicSystems();
}

void CoordinateDialog::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
        if (!m_refusal->text().isEmpty()) {
            check();
        }
    }
    QDialog::changeEvent(event);
}

void CoordinateDialog::fill(const CoordinateDefinition& definition)
{
    for (std::size_t i = 0; i < m_offset.size(); ++i) {
        m_offset[i]->setValue(definition.offset[i]);
    }
    m_angles->setAngles(definition.angles);
}

int CoordinateDialog::chosenBasic() const
{
    return m_basic->currentData().toInt();
}

// A number that is refused leaves nothing to convert.
void CoordinateDialog::changeBasic()
{
    if (m_keepsPlace->isChecked() && checkNumbers()) {
        CoordinateDefinition changed = definition();
        const Placement global =
            carried(CoordinateSystems::placement(m_basicID), placed(changed.offset, changed.angles));
        const Placement local = seenFrom(CoordinateSystems::placement(chosenBasic()), global);
        changed.offset = local.origin;
        changed.angles = anglesOf(local);
        fill(changed);
    }
    m_basicID = chosenBasic();
}

bool CoordinateDialog::check()
{
    m_refusal->clear();
    QString reason = coordinateNameRefusal(m_name->text(), m_id);
    if (!reason.isEmpty()) {
        m_refusal->tell(reason, m_name);
        return false;
    }
    const RelativeCoordinateSystem* const system = coordinateRegistry().getCoordinateSystemByID(m_id);
    const bool isKept = m_id != 0 && system != nullptr && system->getBasicCoordinateSystemID() == chosenBasic();
    reason = isKept || m_id == 0 ? QString() : CoordinateSystems::basicRefusal(m_id, chosenBasic());
    if (!reason.isEmpty()) {
        m_refusal->tell(reason, m_basic);
        return false;
    }
    return checkNumbers();
}

bool CoordinateDialog::checkNumbers()
{
    for (NumberField* const field : QList<NumberField*>{m_offset[0], m_offset[1], m_offset[2]} + m_angles->fields()) {
        if (!field->refusal().isEmpty()) {
            m_refusal->tell(field->refusal(), field);
            return false;
        }
    }
    return true;
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
    CoordinateSystems& systems = *CoordinateSystems::instance();
    const RelativeCoordinateSystem* const system = coordinateRegistry().getCoordinateSystemByID(m_id);
    if (m_id == 0 && !systems.keepDamagedFile()) {
        m_refusal->tell(tr("The project's file of coordinate systems is damaged, and no copy of it can be kept beside "
                           "it: is there space, and permission?"),
                        m_name);
        return;
    }
    if (m_id == 0) {
        systems.create(chosenBasic(), definition());
    } else if (system != nullptr && system->getBasicCoordinateSystemID() == chosenBasic()) {
        systems.change(m_id, definition());
    } else {
        systems.change(m_id, chosenBasic(), definition());
    }
    QDialog::accept();
}

void CoordinateDialog::done(int result)
{
    coordinateRegistry().setNeWCoordinateSystemSign(false);
    QDialog::done(result);
}

} // namespace Workbench
