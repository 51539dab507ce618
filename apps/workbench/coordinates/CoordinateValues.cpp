// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/coordinates/CoordinateValues.h>

#include <materials/NumberText.h>
#include <workbench/coordinates/Angle.h>
#include <workbench/coordinates/CoordinateRegistry.h>
#include <workbench/coordinates/CoordinateSystems.h>

#include <datamanager/coordinates/RelativeCoordinateSystem.h>

#include <datamodel/PropertyTableData.h>

#include <QHeaderView>
#include <QTableWidget>
#include <QVBoxLayout>

#include <algorithm>

#include <vtkMatrix4x4.h>

namespace Workbench {

using DataManager::RelativeCoordinateSystem;

namespace {

RelativeCoordinateSystem* systemOf(int id)
{
    return coordinateRegistry().getCoordinateSystemByID(id);
}

/// The rotation that the matrix of the system's actor holds.
Vector3 globalAngles(const RelativeCoordinateSystem& system)
{
    Placement placement;
    for (int row = 0; row < 3; ++row) {
        for (int column = 0; column < 3; ++column) {
            placement.rows[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)] =
                system.getActorMatrix()->GetElement(row, column);
        }
    }
    return anglesOf(placement);
}

void fill(QTableWidget& table, int row, int column, const QString& text)
{
    table.setItem(row, column, new QTableWidgetItem(text));
}

void prepare(QTableWidget& table, const char* name)
{
    table.setObjectName(QLatin1String(name));
    table.setEditTriggers(QAbstractItemView::NoEditTriggers);
    table.horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    table.verticalHeader()->setDefaultSectionSize(table.fontMetrics().height() * 3 / 2);
}

} // namespace

CoordinateValues::CoordinateValues(QWidget* parent)
    : QWidget(parent), m_values(new QTableWidget(6, 2, this)), m_properties(new QTableWidget(0, 2, this))
{
    prepare(*m_values, "coordinateValues");
    prepare(*m_properties, "coordinateProperties");
    m_properties->verticalHeader()->hide();
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(m_values);
    column->addWidget(m_properties);
    retranslate();
}

void CoordinateValues::retranslate()
{
    m_values->setAccessibleName(tr("Values"));
    m_properties->setAccessibleName(tr("Properties"));
    m_values->setHorizontalHeaderLabels({tr("In the basic system"), tr("Global")});
    QHeaderView& header = *m_values->horizontalHeader();
    header.setMinimumSectionSize(-1);
    header.setMinimumSectionSize(std::max(header.sectionSizeHint(0), header.sectionSizeHint(1)));
    m_values->setVerticalHeaderLabels({tr("Origin x"), tr("Origin y"), tr("Origin z"), tr("Rotation x [deg]"),
                                       tr("Rotation y [deg]"), tr("Rotation z [deg]")});
    m_properties->setHorizontalHeaderLabels({tr("Property"), tr("Value")});
}

void CoordinateValues::show(int id)
{
    if (systemOf(id) == nullptr || systemOf(id)->getActorMatrix() == nullptr) {
        m_values->clearContents();
        m_properties->setRowCount(0);
        return;
    }
    showValues(id);
    showProperties(id);
}

void CoordinateValues::showValues(int id)
{
    RelativeCoordinateSystem& system = *systemOf(id);
    const CoordinateDefinition local = CoordinateSystems::definition(id);
    const Vector3 angles = globalAngles(system);
    // The library computes the origin, which the property table shows, too.
    const double* const origin = system.getOffsetCoordinate();
    for (int axis = 0; axis < 3; ++axis) {
        const auto i = static_cast<std::size_t>(axis);
        fill(*m_values, axis, 0, Materials::shortestText(local.offset[i]));
        fill(*m_values, axis, 1, Materials::shortestText(origin[axis]));
        fill(*m_values, 3 + axis, 0, Materials::shortestText(degreesOf(local.angles[i])));
        fill(*m_values, 3 + axis, 1, Materials::shortestText(degreesOf(angles[i])));
    }
}

void CoordinateValues::showProperties(int id)
{
    const DataModel::PropertyTableData& table = *systemOf(id)->getProperty();
    m_properties->setRowCount(table.getRowCount());
    for (int row = 0; row < table.getRowCount(); ++row) {
        fill(*m_properties, row, 0, table.getRowKey(row));
        fill(*m_properties, row, 1, table.getRowValue(row));
    }
}

} // namespace Workbench
