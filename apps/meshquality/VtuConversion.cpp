// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <meshquality/VtuConversion.h>

#include <meshquality/NumberText.h>

#include <QFile>
#include <QSaveFile>

#include <vtkCellArray.h>
#include <vtkCellData.h>
#include <vtkCellType.h>
#include <vtkDataArray.h>
#include <vtkIdList.h>
#include <vtkNew.h>
#include <vtkPoints.h>
#include <vtkUnstructuredGrid.h>
#include <vtkXMLUnstructuredGridReader.h>

#include <new>

namespace MeshQuality {

namespace {

/// An integer for each cell.
class CellNumbers
{
public:
    CellNumbers(vtkUnstructuredGrid& grid, const char* name) : m_array(grid.GetCellData()->GetArray(name))
    {
        const bool fits = m_array != nullptr && m_array->GetNumberOfComponents() == 1 &&
                          m_array->GetNumberOfTuples() == grid.GetNumberOfCells() &&
                          m_array->GetDataType() != VTK_FLOAT && m_array->GetDataType() != VTK_DOUBLE;
        m_array = fits ? m_array : nullptr;
    }
    qint64 at(vtkIdType cell, qint64 otherwise) const
    {
        return m_array == nullptr ? otherwise : static_cast<qint64>(m_array->GetTuple1(cell));
    }

private:
    vtkDataArray* m_array;
};

/// The text of a grid that may hold connections to points that are not there.
class MshText
{
public:
    MshText(vtkUnstructuredGrid& grid, QIODevice& out) : m_grid(grid), m_out(out) {}

    void write()
    {
        m_out.write("$MeshFormat\n2.2 0 8\n$EndMeshFormat\n$Nodes\n" + QByteArray::number(m_grid.GetNumberOfPoints()) +
                    '\n');
        for (vtkIdType point = 0; point < m_grid.GetNumberOfPoints(); ++point) {
            const double* const position = m_grid.GetPoint(point);
            m_out.write(QByteArray::number(point + 1) + ' ' + shortestText(position[0]) + ' ' +
                        shortestText(position[1]) + ' ' + shortestText(position[2]) + '\n');
        }
        m_out.write("$EndNodes\n$Elements\n" + QByteArray::number(m_grid.GetNumberOfCells()) + '\n');
        writeElements();
        m_out.write("$EndElements\n");
    }

private:
    void writeElements()
    {
        const CellNumbers numbers(m_grid, "element");
        const CellNumbers regions(m_grid, "region");
        vtkNew<vtkIdList> corners;
        for (vtkIdType cell = 0; cell < m_grid.GetNumberOfCells(); ++cell) {
            m_grid.GetCellPoints(cell, corners);
            if (m_grid.GetCellType(cell) != VTK_TETRA || corners->GetNumberOfIds() != 4) {
                continue;
            }
            const QByteArray region = QByteArray::number(regions.at(cell, 0));
            QByteArray line = QByteArray::number(numbers.at(cell, cell + 1)) + " 4 2 " + region + ' ' + region;
            for (vtkIdType corner = 0; corner < 4; ++corner) {
                line += ' ' + QByteArray::number(corners->GetId(corner) + 1);
            }
            m_out.write(line + '\n');
        }
    }

    vtkUnstructuredGrid& m_grid;
    QIODevice& m_out;
};

bool isComplete(vtkXMLUnstructuredGridReader& reader, vtkUnstructuredGrid& grid)
{
    return reader.GetErrorCode() == 0 && grid.GetPoints() != nullptr && grid.GetCells() != nullptr &&
           grid.GetCells()->IsValid();
}

bool writeMsh(vtkUnstructuredGrid& grid, const QString& target)
{
    QSaveFile file(target);
    if (!file.open(QIODevice::WriteOnly)) {
        return false;
    }
    MshText(grid, file).write();
    return file.flush() && file.error() == QFileDevice::NoError && file.commit();
}

} // namespace

bool isVtkXml(const QString& path)
{
    QFile file(path);
    const QByteArray start = file.open(QIODevice::ReadOnly) ? file.read(512) : QByteArray();
    return start.contains("<VTKFile") || path.endsWith(QLatin1String(".vtu"), Qt::CaseInsensitive);
}

bool convertVtu(const QString& path, const QString& target, QString& problem)
{
    // What is wrong is told by the program itself, in one line.
    vtkObject::GlobalWarningDisplayOff();
    const QByteArray name = QFile::encodeName(path);
    vtkNew<vtkXMLUnstructuredGridReader> reader;
    try {
        if (reader->CanReadFile(name.constData()) == 0) {
            problem = QStringLiteral("not a VTK XML unstructured grid");
            return false;
        }
        reader->SetFileName(name.constData());
        reader->Update();
        if (!isComplete(*reader, *reader->GetOutput())) {
            problem = QStringLiteral("a damaged VTK XML unstructured grid");
            return false;
        }
        if (!writeMsh(*reader->GetOutput(), target)) {
            problem = QStringLiteral("there is no room for temporary files");
            return false;
        }
    } catch (const std::bad_alloc&) {
        problem = QStringLiteral("a VTK XML unstructured grid that does not fit into the memory");
        return false;
    }
    return true;
}

} // namespace MeshQuality
