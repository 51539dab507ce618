// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

// Proves that the widget library's header and the target's links are complete.

#include <basewidget/FixedPixelSizeAxesActor.h>

#include <vtkNew.h>

int main()
{
    const vtkNew<BaseWidget::FixedPixelSizeAxesActor> axes;
    return axes->GetReferenceCount() == 1 ? 0 : 1;
}
