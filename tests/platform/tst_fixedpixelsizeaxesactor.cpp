// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <basewidget/FixedPixelSizeAxesActor.h>

#include <QTest>

#include <vtkCamera.h>
#include <vtkCaptionActor2D.h>
#include <vtkGenericOpenGLRenderWindow.h>
#include <vtkMatrix4x4.h>
#include <vtkNew.h>
#include <vtkProperty.h>
#include <vtkRenderer.h>
#include <vtkTextActor.h>
#include <vtkTextProperty.h>

#include <array>
#include <cmath>
#include <sstream>

using BaseWidget::FixedPixelSizeAxesActor;

namespace {

constexpr int windowWidth = 800;
constexpr int windowHeight = 600;

using Point = std::array<double, 3>;

/// A window that is never opened: the size of its renderer and the camera are all that counts.
struct View
{
    View()
    {
        window->SetSize(windowWidth, windowHeight);
        window->AddRenderer(renderer);
        camera()->SetPosition(0, 0, 10);
        camera()->SetFocalPoint(0, 0, 0);
    }
    vtkCamera* camera() const { return renderer->GetActiveCamera(); }

    /// The pixel at which a point is seen, by VTK's own projection.
    Point pixelOf(const Point& world)
    {
        renderer->SetWorldPoint(world[0], world[1], world[2], 1);
        renderer->WorldToDisplay();
        Point pixel;
        renderer->GetDisplayPoint(pixel.data());
        return pixel;
    }

    double pixelsBetween(const Point& first, const Point& second)
    {
        const Point a = pixelOf(first);
        const Point b = pixelOf(second);
        return std::hypot(a[0] - b[0], a[1] - b[1]);
    }

    vtkNew<vtkGenericOpenGLRenderWindow> window;
    vtkNew<vtkRenderer> renderer;
};

/// The world point at the end of an axis.
Point tipOf(FixedPixelSizeAxesActor& actor, int axis)
{
    double point[4] = {0, 0, 0, 1};
    point[axis] = actor.GetTotalLength()[axis];
    if (actor.GetUserMatrix() != nullptr) {
        actor.GetUserMatrix()->MultiplyPoint(point, point);
    }
    return {point[0], point[1], point[2]};
}

} // namespace

class FixedPixelSizeAxesActorTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void startsVisibleWithLabels()
    {
        vtkNew<FixedPixelSizeAxesActor> actor;
        QCOMPARE(actor->GetPixelSize(), 80.0);
        QCOMPARE(actor->GetVisibility(), 1);
        QCOMPARE(actor->GetAxisLabels(), 1);
        actor->SetLabels("R", "T", "A");
        QCOMPARE(QByteArray(actor->GetXAxisLabelText()), QByteArray("R"));
        QCOMPARE(QByteArray(actor->GetYAxisLabelText()), QByteArray("T"));
        QCOMPARE(QByteArray(actor->GetZAxisLabelText()), QByteArray("A"));
    }

    void writesItsLabelsInPoints()
    {
        vtkNew<FixedPixelSizeAxesActor> actor;
        for (vtkCaptionActor2D* const label :
             {actor->GetXAxisCaptionActor2D(), actor->GetYAxisCaptionActor2D(), actor->GetZAxisCaptionActor2D()}) {
            QCOMPARE(label->GetTextActor()->GetTextScaleMode(), int(vtkTextActor::TEXT_SCALE_MODE_NONE));
            vtkTextProperty* const property = label->GetCaptionTextProperty();
            QCOMPARE(property->GetFontSize(), 14);
            QCOMPARE(property->GetFontFamily(), VTK_ARIAL);
            QCOMPARE(property->GetBold(), 1);
            QCOMPARE(property->GetItalic(), 0);
            QCOMPARE(property->GetShadow(), 0);
        }
    }

    void tellsItsSizeWhenPrinted()
    {
        vtkNew<FixedPixelSizeAxesActor> actor;
        actor->SetPixelSize(96);
        std::ostringstream text;
        actor->Print(text);
        QVERIFY(text.str().find("  PixelSize: 96\n") != std::string::npos);
        QVERIFY(text.str().find("AxisLabels") != std::string::npos);
    }

    void isRescaledWhenItIsDrawn()
    {
        View view;
        vtkNew<FixedPixelSizeAxesActor> actor;
        // Nothing of it is opaque, so nothing is drawn into the window that was never opened.
        actor->AxisLabelsOff();
        for (vtkProperty* const part :
             {actor->GetXAxisShaftProperty(), actor->GetYAxisShaftProperty(), actor->GetZAxisShaftProperty(),
              actor->GetXAxisTipProperty(), actor->GetYAxisTipProperty(), actor->GetZAxisTipProperty()}) {
            part->SetOpacity(0.5);
        }
        QCOMPARE(actor->RenderOpaqueGeometry(view.renderer), 0);
        QVERIFY(std::abs(view.pixelsBetween({0, 0, 0}, tipOf(*actor, 0)) - 80) < 1e-6);
    }

    void keepsItsSizeOnTheScreen_data()
    {
        QTest::addColumn<bool>("isParallel");
        QTest::addColumn<double>("distance");
        QTest::addColumn<double>("zoom");
        for (const bool isParallel : {false, true}) {
            for (const double distance : {0.01, 10.0, 1e6}) {
                for (const double zoom : {0.1, 1.0, 20.0}) {
                    QTest::addRow("%s %g %g", isParallel ? "parallel" : "perspective", distance, zoom)
                        << isParallel << distance << zoom;
                }
            }
        }
    }
    void keepsItsSizeOnTheScreen()
    {
        QFETCH(bool, isParallel);
        QFETCH(double, distance);
        QFETCH(double, zoom);
        View view;
        view.camera()->SetParallelProjection(isParallel);
        view.camera()->SetPosition(0, 0, distance);
        view.camera()->SetClippingRange(distance / 10, distance * 10);
        view.camera()->SetViewAngle(qBound(1.0, 30 / zoom, 150.0));
        view.camera()->SetParallelScale(1 / zoom);
        vtkNew<FixedPixelSizeAxesActor> actor;
        actor->SetPixelSize(120);
        actor->Rescale(view.renderer);
        for (int axis = 0; axis < 2; ++axis) {
            const double pixels = view.pixelsBetween({0, 0, 0}, tipOf(*actor, axis));
            QVERIFY2(std::abs(pixels - 120) < 1e-6, qPrintable(QString::number(pixels)));
        }
        QCOMPARE(actor->GetTotalLength()[2], actor->GetTotalLength()[0]);
    }

    void keepsItsSizeWhereverItIsPlaced()
    {
        View view;
        vtkNew<vtkMatrix4x4> placement;
        // A quarter turn about z, scaled by 2, 3 and 5, moved aside and away from the camera.
        const double elements[16] = {0, -3, 0, 1, 2, 0, 0, -2, 0, 0, 5, -7, 0, 0, 0, 1};
        placement->DeepCopy(elements);
        vtkNew<FixedPixelSizeAxesActor> actor;
        actor->SetUserMatrix(placement);
        actor->Rescale(view.renderer);
        for (int axis = 0; axis < 2; ++axis) {
            const double pixels = view.pixelsBetween({1, -2, -7}, tipOf(*actor, axis));
            QVERIFY2(std::abs(pixels - 80) < 1e-6, qPrintable(QString::number(pixels)));
        }
    }

    void followsAnObliqueView()
    {
        View view;
        view.camera()->SetPosition(2, 3, 6);
        vtkNew<FixedPixelSizeAxesActor> actor;
        actor->Rescale(view.renderer);
        // 7 from the camera, whose view is 30 degrees high.
        const double expected = 80 * 2 * 7 * std::tan(std::acos(-1.0) / 12) / windowHeight;
        for (int axis = 0; axis < 3; ++axis) {
            QVERIFY(std::abs(actor->GetTotalLength()[axis] - expected) < 1e-12);
        }
    }

    void usesTheAreaOfItsRenderer()
    {
        View view;
        view.renderer->SetViewport(0, 0, 0.5, 0.5);
        vtkNew<FixedPixelSizeAxesActor> actor;
        actor->Rescale(view.renderer);
        QVERIFY(std::abs(view.pixelsBetween({0, 0, 0}, tipOf(*actor, 0)) - 80) < 1e-6);
    }

    void followsAHorizontalViewAngle()
    {
        View view;
        view.camera()->UseHorizontalViewAngleOn();
        vtkNew<FixedPixelSizeAxesActor> actor;
        actor->Rescale(view.renderer);
        QVERIFY(std::abs(view.pixelsBetween({0, 0, 0}, tipOf(*actor, 0)) - 80) < 1e-6);
    }

    void fitsAViewOfOnePixel_data()
    {
        QTest::addColumn<bool>("isParallel");
        // Half of the field of 30 degrees at 10, and a parallel scale of 5, to either side of the middle.
        QTest::addColumn<double>("lengthOfPixel");
        QTest::newRow("perspective") << false << 20 * std::tan(std::acos(-1.0) / 12);
        QTest::newRow("parallel") << true << 10.0;
    }
    void fitsAViewOfOnePixel()
    {
        QFETCH(bool, isParallel);
        QFETCH(double, lengthOfPixel);
        View view;
        view.window->SetSize(1, 1);
        view.camera()->SetParallelProjection(isParallel);
        view.camera()->SetParallelScale(5);
        vtkNew<FixedPixelSizeAxesActor> actor;
        actor->Rescale(view.renderer);
        QVERIFY(std::abs(actor->GetTotalLength()[0] / (80 * lengthOfPixel) - 1) < 1e-12);
    }

    void keepsItsLengthInAViewWithoutHeight()
    {
        View view;
        view.renderer->SetViewport(0, 0, 1, 0);
        view.camera()->UseHorizontalViewAngleOn();
        view.camera()->ParallelProjectionOn();
        vtkNew<FixedPixelSizeAxesActor> actor;
        actor->SetTotalLength(1, 2, 3);
        actor->Rescale(view.renderer);
        QCOMPARE(view.renderer->GetSize()[0], windowWidth);
        QCOMPARE(view.renderer->GetSize()[1], 0);
        QCOMPARE(actor->GetTotalLength()[0], 1.0);
    }

    void keepsItsLengthWhenThereIsNoneToFind_data()
    {
        QTest::addColumn<double>("cameraHeight");
        QTest::addColumn<int>("width");
        QTest::addColumn<double>("scale");
        QTest::newRow("behind the camera") << -1.0 << windowWidth << 1.0;
        QTest::newRow("in the camera") << 0.0 << windowWidth << 1.0;
        QTest::newRow("no area") << 10.0 << 0 << 1.0;
        QTest::newRow("flat matrix") << 10.0 << windowWidth << 0.0;
    }
    void keepsItsLengthWhenThereIsNoneToFind()
    {
        QFETCH(double, cameraHeight);
        QFETCH(int, width);
        QFETCH(double, scale);
        View view;
        view.camera()->SetFocalPoint(0, 0, -1000);
        view.camera()->SetPosition(0, 0, cameraHeight);
        if (width == 0) {
            view.renderer->SetViewport(0, 0, 0, 0);
        }
        vtkNew<vtkMatrix4x4> placement;
        placement->SetElement(1, 1, scale);
        vtkNew<FixedPixelSizeAxesActor> actor;
        actor->SetUserMatrix(placement);
        actor->SetTotalLength(1, 2, 3);
        actor->Rescale(view.renderer);
        actor->Rescale(nullptr);
        QCOMPARE(actor->GetTotalLength()[0], 1.0);
        QCOMPARE(actor->GetTotalLength()[2], 3.0);
    }

    void tellsTheBoxAroundItsAxes()
    {
        vtkNew<FixedPixelSizeAxesActor> actor;
        actor->SetTotalLength(1, 2, 4);
        vtkNew<vtkMatrix4x4> placement;
        placement->SetElement(0, 3, 100);
        placement->SetElement(1, 1, -1);
        actor->SetUserMatrix(placement);
        // The cones are 0.4 times as wide as the tips are long, and those take 0.2 of the axis.
        const double expected[6] = {100 - 0.08, 101, -2, 0.16, -0.32, 4};
        const double* const bounds = actor->GetBounds();
        for (int i = 0; i < 6; ++i) {
            QVERIFY2(std::abs(bounds[i] - expected[i]) < 1e-12, qPrintable(QString::number(bounds[i])));
        }
    }

    /// Sheared along x by y and z, so that the corners between all axes stand out: along x, where the sum of all three
    /// coordinates counts, the lowest and the highest place are one corner each.
    void tellsTheBoxAroundSlantedAxes()
    {
        vtkNew<FixedPixelSizeAxesActor> actor;
        actor->SetTotalLength(1, 2, 4);
        vtkNew<vtkMatrix4x4> placement;
        placement->SetElement(0, 1, 1);
        placement->SetElement(0, 2, 1);
        actor->SetUserMatrix(placement);
        const double expected[6] = {-0.08 - 0.16 - 0.32, 1 + 2 + 4, -0.16, 2, -0.32, 4};
        const double* const bounds = actor->GetBounds();
        for (int i = 0; i < 6; ++i) {
            QVERIFY2(std::abs(bounds[i] - expected[i]) < 1e-12, qPrintable(QString::number(bounds[i])));
        }
    }

    /// Along x, one axis after the other counts against the other two.
    void tellsTheBoxAroundAxesThatSlantApart()
    {
        const double low[3] = {-0.08, -0.16, -0.32};
        const double high[3] = {1, 2, 4};
        for (int against = 0; against < 3; ++against) {
            vtkNew<FixedPixelSizeAxesActor> actor;
            actor->SetTotalLength(1, 2, 4);
            vtkNew<vtkMatrix4x4> placement;
            double expected[2] = {0, 0};
            for (int axis = 0; axis < 3; ++axis) {
                placement->SetElement(0, axis, axis == against ? -1 : 1);
                expected[0] += axis == against ? -high[axis] : low[axis];
                expected[1] += axis == against ? -low[axis] : high[axis];
            }
            actor->SetUserMatrix(placement);
            const double* const bounds = actor->GetBounds();
            QVERIFY2(std::abs(bounds[0] - expected[0]) < 1e-12, qPrintable(QString::number(bounds[0])));
            QVERIFY2(std::abs(bounds[1] - expected[1]) < 1e-12, qPrintable(QString::number(bounds[1])));
        }
    }

    void keepsItsSizePositive()
    {
        vtkNew<FixedPixelSizeAxesActor> actor;
        actor->SetPixelSize(-5);
        QCOMPARE(actor->GetPixelSize(), 1.0);
    }

    void isCopied()
    {
        vtkNew<FixedPixelSizeAxesActor> actor;
        actor->SetPixelSize(33);
        actor->SetLabels("a", "b", "c");
        vtkNew<FixedPixelSizeAxesActor> copy;
        copy->ShallowCopy(actor);
        QCOMPARE(copy->GetPixelSize(), 33.0);
        QCOMPARE(QByteArray(copy->GetYAxisLabelText()), QByteArray("b"));
    }
};

QTEST_APPLESS_MAIN(FixedPixelSizeAxesActorTest)
#include "tst_fixedpixelsizeaxesactor.moc"
