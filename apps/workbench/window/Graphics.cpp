// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/window/Graphics.h>

#include <QSurfaceFormat>
#include <QVTKOpenGLNativeWidget.h>

namespace Workbench {

void prepareGraphics()
{
    QSurfaceFormat format = QVTKOpenGLNativeWidget::defaultFormat();
    format.setSamples(0); // the renderer smooths edges itself; multisampling of the widget costs a copy a frame
    QSurfaceFormat::setDefaultFormat(format);
}

} // namespace Workbench
