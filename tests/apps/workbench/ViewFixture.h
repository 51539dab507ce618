// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <workbench/project/Project.h>
#include <workbench/view/View3D.h>
#include <workbench/view/ViewCommands.h>

#include <QImage>
#include <QTemporaryDir>
#include <QTest>
#include <QVBoxLayout>
#include <QVTKOpenGLNativeWidget.h>

#include <vtkGenericOpenGLRenderWindow.h>
#include <vtkRenderer.h>
#include <vtkRendererCollection.h>

#include <memory>

/// A window with nothing but the 3-D view, whose picture has that size, for as long as a test runs.
class ViewFixture
{
public:
    explicit ViewFixture(const QSize& size)
    {
        Workbench::Project::instance();
        m_window = std::make_unique<QWidget>();
        auto* layout = new QVBoxLayout(m_window.get());
        layout->setContentsMargins(0, 0, 0, 0);
        auto* view = new Workbench::View3D(m_window.get());
        layout->addWidget(view);
        canvas = view->findChild<QVTKOpenGLNativeWidget*>();
        m_window->setFixedSize(size);
        m_window->show();
    }
    ~ViewFixture()
    {
        m_window.reset();
        Workbench::Project::instance()->close();
    }

    bool isReady() const { return QTest::qWaitForWindowExposed(m_window.get()); }

    QWidget& window() const { return *m_window; }

    vtkRenderer& renderer() const { return *canvas->renderWindow()->GetRenderers()->GetFirstRenderer(); }

    /// What is seen once all signals have been followed.
    QImage picture() const
    {
        QTest::qWait(60);
        const QString path = m_directory.filePath(QStringLiteral("picture.png"));
        Workbench::ViewCommands::instance()->saveScreenshot(path);
        return QImage(path);
    }

    QVTKOpenGLNativeWidget* canvas = nullptr;

private:
    QTemporaryDir m_directory;
    std::unique_ptr<QWidget> m_window;
};
