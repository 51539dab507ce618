// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include "Samples.h"
#include "ViewFixture.h"
#include "WindowTest.h"

#include <workbench/geometry/GeometryManager.h>

#include <vtkCamera.h>
#include <vtkMatrix4x4.h>

#include <cmath>

using namespace Workbench;
using Vector = std::array<double, 3>;
Q_DECLARE_METATYPE(Vector)

// What the camera does when meshes come and go.
class tst_ViewCamera : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanupTestCase();

    void firstMeshIsSeen();
    void standardDirections_data();
    void standardDirections();
    void isometricDirection();
    void anotherMesh_data();
    void anotherMesh();
    void renamingKeepsTheCamera();
    void besideAnotherMesh();
    void nothingIsCutOff();

private:
    /// Direction of sight, point looked at, half the height that is seen.
    struct Look
    {
        std::array<double, 3> direction;
        std::array<double, 3> focus;
        double scale;
    };

    vtkCamera& camera() const { return *m_view->renderer().GetActiveCamera(); }
    Look look() const;
    /// The block of the samples with all coordinates times `factor`, and then moved along X.
    QString block(double factor, double moved) const;
    bool isSeen(int kernelID) const;

    std::unique_ptr<ViewFixture> m_view;
    QTemporaryDir m_directory;
};

namespace {

double distance(const std::array<double, 3>& a, const std::array<double, 3>& b)
{
    return std::hypot(a[0] - b[0], a[1] - b[1], a[2] - b[2]);
}

} // namespace

void tst_ViewCamera::initTestCase()
{
    m_view = std::make_unique<ViewFixture>(QSize(400, 300));
    QVERIFY(m_view->isReady());
}

void tst_ViewCamera::init()
{
    QVERIFY(Project::instance()->create());
    QTest::qWait(60);
    QVERIFY(openMesh(samplePath("graded-block.msh")) > 0);
    QTest::qWait(60);
}

void tst_ViewCamera::cleanupTestCase()
{
    m_view.reset();
}

tst_ViewCamera::Look tst_ViewCamera::look() const
{
    Look look{};
    camera().GetDirectionOfProjection(look.direction.data());
    camera().GetFocalPoint(look.focus.data());
    look.scale = camera().GetParallelScale();
    return look;
}

QString tst_ViewCamera::block(double factor, double moved) const
{
    QFile sample(samplePath("graded-block.msh"));
    if (!sample.open(QIODevice::ReadOnly)) {
        return {};
    }
    QByteArray content;
    bool isNode = false;
    while (!sample.atEnd()) {
        const QByteArray line = sample.readLine();
        const QList<QByteArray> words = line.simplified().split(' ');
        isNode = (isNode || line.startsWith("$Nodes")) && !line.startsWith("$EndNodes");
        if (isNode && words.size() == 4) {
            content += words[0];
            for (int axis = 0; axis < 3; ++axis) {
                const double position = words[axis + 1].toDouble() * factor + (axis == 0 ? moved : 0);
                content += ' ' + QByteArray::number(position, 'g', 17);
            }
            content += '\n';
        } else {
            content += line;
        }
    }
    return writeFile(m_directory.filePath(QStringLiteral("block.msh")), content);
}

// By the matrix that the graphics uses: every corner of the box comes to lie in the window.
bool tst_ViewCamera::isSeen(int kernelID) const
{
    const QVector<double> box = MeshManager::instance()->getBoundingBox({kernelID});
    vtkMatrix4x4* matrix =
        camera().GetCompositeProjectionTransformMatrix(m_view->renderer().GetTiledAspectRatio(), -1, 1);
    bool isSeen = box.size() == 6;
    for (int corner = 0; corner < 8 && isSeen; ++corner) {
        const double point[4] = {box[corner & 1], box[2 + ((corner >> 1) & 1)], box[4 + ((corner >> 2) & 1)], 1};
        double place[4];
        matrix->MultiplyPoint(point, place);
        isSeen = std::abs(place[0]) <= 1 && std::abs(place[1]) <= 1 && std::abs(place[2]) <= 1;
    }
    return isSeen;
}

void tst_ViewCamera::firstMeshIsSeen()
{
    QVERIFY(isSeen(MeshManager::instance()->findKernels(QString()).value(0)));
    const std::array<double, 3> direction = look().direction;
    QVERIFY(direction[0] < 0 && direction[1] > 0 && direction[2] < 0); // from the front, the right and above
}

void tst_ViewCamera::anotherMesh_data()
{
    QTest::addColumn<double>("factor");
    QTest::addColumn<double>("moved");
    QTest::addColumn<double>("zoom");
    QTest::addColumn<bool>("isKept");
    // The block is 4 long, 1 wide and 0.5 high: its diagonal is 4.15.
    QTest::newRow("the same") << 1.0 << 0.0 << 1.0 << true;
    QTest::newRow("the same, looked at closely") << 1.0 << 0.0 << 8.0 << true;
    QTest::newRow("the same, from afar") << 1.0 << 0.0 << 0.1 << true;
    QTest::newRow("meshed more closely") << 1.005 << 0.0 << 1.0 << true;
    QTest::newRow("meshed more closely, looked at closely") << 1.005 << 0.0 << 8.0 << true;
    QTest::newRow("somewhat larger") << 1.2 << 0.0 << 1.0 << false;
    QTest::newRow("somewhat larger, from afar") << 1.2 << 0.0 << 0.5 << true;
    QTest::newRow("somewhat larger, looked at closely") << 1.2 << 0.0 << 8.0 << true;
    QTest::newRow("somewhat smaller") << 0.8 << 0.0 << 1.0 << true;
    QTest::newRow("in metres in place of millimetres") << 1e-3 << 0.0 << 1.0 << false;
    QTest::newRow("in millimetres in place of metres") << 1e3 << 0.0 << 8.0 << false;
    QTest::newRow("elsewhere") << 1.0 << 50.0 << 1.0 << false;
}

void tst_ViewCamera::anotherMesh()
{
    QFETCH(double, factor);
    QFETCH(double, moved);
    QFETCH(double, zoom);
    QFETCH(bool, isKept);
    ViewCommands::instance()->lookFrom(ViewCommands::Direction::Front);
    camera().Azimuth(10);
    camera().SetParallelScale(camera().GetParallelScale() / zoom);
    const Look before = look();
    const int kernelID = openMesh(block(factor, moved));
    QVERIFY(kernelID > 0);
    QTest::qWait(60);
    const Look now = look();
    QVERIFY(distance(now.direction, before.direction) < 1e-12); // never another side
    if (isKept) {
        QCOMPARE(now.scale, before.scale);
        QCOMPARE(now.focus, before.focus);
    } else {
        QVERIFY(isSeen(kernelID));
        const QVector<double> box = MeshManager::instance()->getBoundingBox({kernelID});
        // Not from too far either: the block is far longer than it is high, so its length decides.
        const double half = (box[1] - box[0]) / 2 * m_view->canvas->height() / m_view->canvas->width();
        QVERIFY2(now.scale < 1.3 * half, qPrintable(QStringLiteral("%1, %2").arg(now.scale).arg(half)));
    }
}

void tst_ViewCamera::renamingKeepsTheCamera()
{
    camera().SetParallelScale(0.1);
    const Look before = look();
    QVERIFY(MeshManager::instance()->renameKernel(MeshManager::instance()->findKernels(QString()).value(0),
                                                  QStringLiteral("another name")));
    QTest::qWait(60);
    QCOMPARE(look().scale, before.scale);
    QCOMPARE(look().focus, before.focus);
}

// All meshes count together.
void tst_ViewCamera::besideAnotherMesh()
{
    const int inside = MeshManager::instance()->addKernel(QStringLiteral("inside"), block(0.5, 0.1));
    const double scale = look().scale;
    QTest::qWait(60);
    QVERIFY(isSeen(inside));
    QCOMPARE(look().scale, scale);
    const int beside = MeshManager::instance()->addKernel(QStringLiteral("beside"), block(1, 20));
    QTest::qWait(60);
    QVERIFY(isSeen(beside) && isSeen(inside));
    QVERIFY(look().scale > 2 * scale);
}

// The range of depth follows what is shown, also where the camera stays.
// Z points up, and the front is where Y is least.
void tst_ViewCamera::standardDirections_data()
{
    using Direction = ViewCommands::Direction;
    QTest::addColumn<int>("from");
    QTest::addColumn<Vector>("sight");
    QTest::addColumn<Vector>("up");
    const auto row = [](const char* name, Direction from, const Vector& sight, const Vector& up) {
        QTest::newRow(name) << static_cast<int>(from) << sight << up;
    };
    row("front", Direction::Front, {0, 1, 0}, {0, 0, 1});
    row("back", Direction::Back, {0, -1, 0}, {0, 0, 1});
    row("left", Direction::Left, {1, 0, 0}, {0, 0, 1});
    row("right", Direction::Right, {-1, 0, 0}, {0, 0, 1});
    row("top", Direction::Top, {0, 0, -1}, {0, 1, 0});
    row("bottom", Direction::Bottom, {0, 0, 1}, {0, 1, 0});
}

void tst_ViewCamera::standardDirections()
{
    QFETCH(int, from);
    QFETCH(Vector, sight);
    QFETCH(Vector, up);
    camera().Azimuth(25);
    camera().Elevation(15);
    camera().Roll(35);
    ViewCommands::instance()->lookFrom(static_cast<ViewCommands::Direction>(from));
    QTest::qWait(60);
    QVERIFY(distance(look().direction, sight) < 1e-12);
    // The second row of the matrix into the window's system is what is up there.
    vtkMatrix4x4* matrix = camera().GetViewTransformMatrix();
    const Vector seen = {matrix->GetElement(1, 0), matrix->GetElement(1, 1), matrix->GetElement(1, 2)};
    QVERIFY(distance(seen, up) < 1e-12);
    QVERIFY(isSeen(MeshManager::instance()->findKernels(QString()).value(0)));
}

// From the front, the right and above, with Z upright in the window.
void tst_ViewCamera::isometricDirection()
{
    camera().Roll(35);
    ViewCommands::instance()->lookFrom(ViewCommands::Direction::Isometric);
    QTest::qWait(60);
    const Vector sight = look().direction;
    QVERIFY(sight[0] < -0.3 && sight[1] > 0.3 && sight[2] < -0.3);
    vtkMatrix4x4* matrix = camera().GetViewTransformMatrix();
    QVERIFY(std::abs(matrix->GetElement(0, 2)) < 1e-12);
    QVERIFY(matrix->GetElement(1, 2) > 0);
}

void tst_ViewCamera::nothingIsCutOff()
{
    GeometryManager* geometry = GeometryManager::instance();
    const QList<int> volumes = geometry->findComponents(QString());
    QCOMPARE(volumes.size(), 2);
    ViewCommands::instance()->lookFrom(ViewCommands::Direction::Right);
    geometry->showComponents({volumes[1]}, false);
    QTest::qWait(60);
    const double scale = look().scale;
    ViewCommands::instance()->fit();
    QTest::qWait(60);
    geometry->showComponents({volumes[1]}, true);
    QTest::qWait(60);
    QVERIFY(isSeen(MeshManager::instance()->findKernels(QString()).value(0)));
    QCOMPARE(look().scale, scale);
}

WORKBENCH_TEST_MAIN(tst_ViewCamera)
#include "tst_viewcamera.moc"
