// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/view/MeasuringLine.h>

#include <QByteArray>

#include <vtkActor.h>
#include <vtkBillboardTextActor3D.h>
#include <vtkLineSource.h>
#include <vtkMath.h>
#include <vtkNew.h>
#include <vtkPolyDataMapper.h>
#include <vtkProperty.h>
#include <vtkRenderer.h>
#include <vtkTextProperty.h>

#include <cmath>

namespace Workbench {

MeasuringLine::MeasuringLine()
    : m_line(vtkSmartPointer<vtkLineSource>::New()), m_actor(vtkSmartPointer<vtkActor>::New()),
      m_label(vtkSmartPointer<vtkBillboardTextActor3D>::New())
{
    vtkNew<vtkPolyDataMapper> mapper;
    mapper->SetInputConnection(m_line->GetOutputPort());
    m_actor->SetMapper(mapper);
    m_actor->PickableOff();
    m_actor->GetProperty()->SetColor(0.80, 0.10, 0.45);
    m_actor->GetProperty()->SetLineWidth(3);
    m_actor->GetProperty()->LightingOff();
    m_label->PickableOff();
    m_label->GetTextProperty()->SetColor(0.55, 0.0, 0.30);
    m_label->GetTextProperty()->SetFontSize(18);
    m_label->GetTextProperty()->SetBackgroundColor(1, 1, 1);
    m_label->GetTextProperty()->SetBackgroundOpacity(0.8);
    m_label->SetDisplayOffset(8, 8);
    hide();
}

MeasuringLine::~MeasuringLine() = default;

void MeasuringLine::addTo(vtkRenderer& renderer)
{
    renderer.AddActor(m_actor);
    renderer.AddActor(m_label);
}

void MeasuringLine::set(const double from[3], const double to[3])
{
    m_line->SetPoint1(from[0], from[1], from[2]);
    m_line->SetPoint2(to[0], to[1], to[2]);
    m_line->Update();
    m_label->SetPosition((from[0] + to[0]) / 2, (from[1] + to[1]) / 2, (from[2] + to[2]) / 2);
    m_label->SetInput(QByteArray::number(length(), 'g', 6).constData());
    m_actor->SetVisibility(true);
    m_label->SetVisibility(true);
}

void MeasuringLine::hide()
{
    m_actor->SetVisibility(false);
    m_label->SetVisibility(false);
}

double MeasuringLine::length() const
{
    return std::sqrt(vtkMath::Distance2BetweenPoints(m_line->GetPoint1(), m_line->GetPoint2()));
}

} // namespace Workbench
