// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/window/Icons.h>

#include <QIcon>
#include <QPainter>
#include <QPainterPath>
#include <QPixmap>

namespace Workbench {
namespace {

const QColor ink(55, 71, 90);
const QColor accent(31, 119, 180);
const QColor fill(200, 220, 238);
const QColor warm(255, 140, 0);

// Corners of a cube as seen from its front upper right; the picture is 32 units wide.
const QPolygonF cubeFront({{5, 12}, {19, 12}, {19, 27}, {5, 27}});
const QPolygonF cubeTop({{5, 12}, {12, 5}, {27, 5}, {19, 12}});
const QPolygonF cubeRight({{19, 12}, {27, 5}, {27, 20}, {19, 27}});
const QPolygonF tetrahedron({{16, 4}, {4, 25}, {20, 28}, {28, 20}});

void paintCube(QPainter& painter, const QColor& front, const QColor& top, const QColor& right)
{
    painter.setBrush(front);
    painter.drawPolygon(cubeFront);
    painter.setBrush(top);
    painter.drawPolygon(cubeTop);
    painter.setBrush(right);
    painter.drawPolygon(cubeRight);
}

void paintTetrahedron(QPainter& painter, const QColor& colour)
{
    painter.setBrush(colour);
    painter.drawPolygon(tetrahedron);
    painter.drawLine(QPointF(16, 4), QPointF(20, 28));
}

void paintText(QPainter& painter, const QRectF& place, const char* text)
{
    QFont font = painter.font();
    font.setPixelSize(15);
    font.setBold(true);
    painter.setFont(font);
    painter.drawText(place, Qt::AlignCenter, QString::fromLatin1(text));
}

void paintArrow(QPainter& painter, const QPointF& from, const QPointF& to)
{
    painter.drawLine(from, to);
    QLineF back(to, from);
    back.setLength(6);
    for (double angle : {30.0, -30.0}) {
        QLineF side = back;
        side.setAngle(back.angle() + angle);
        painter.drawLine(side);
    }
}

void paintAxes(QPainter& painter)
{
    const QPointF origin(12, 20);
    paintArrow(painter, origin, QPointF(12, 4));
    paintArrow(painter, origin, QPointF(28, 22));
    paintArrow(painter, origin, QPointF(4, 28));
}

void paintPage(QPainter& painter)
{
    painter.setBrush(Qt::white);
    painter.drawPolygon(QPolygonF({{8, 4}, {19, 4}, {25, 10}, {25, 28}, {8, 28}}));
    painter.drawPolyline(QPolygonF({{19, 4}, {19, 10}, {25, 10}}));
}

void paintFolder(QPainter& painter)
{
    painter.setBrush(QColor(255, 214, 130));
    painter.drawPolygon(QPolygonF({{4, 8}, {12, 8}, {15, 11}, {27, 11}, {27, 26}, {4, 26}}));
    painter.drawLine(QPointF(4, 14), QPointF(27, 14));
}

void paintDisk(QPainter& painter)
{
    painter.setBrush(accent);
    painter.drawRoundedRect(QRectF(5, 5, 22, 22), 2, 2);
    painter.setBrush(Qt::white);
    painter.drawRect(QRectF(10, 5, 12, 8));
    painter.drawRect(QRectF(9, 17, 14, 10));
}

void paintTurn(QPainter& painter, bool isMirrored)
{
    if (isMirrored) {
        painter.translate(32, 0);
        painter.scale(-1, 1);
    }
    painter.setPen(QPen(accent, 3));
    painter.drawArc(QRectF(7, 10, 18, 16), 0, 200 * 16);
    painter.drawPolyline(QPolygonF({{3, 14}, {8, 21}, {14, 15}}));
}

void paintPointer(QPainter& painter)
{
    painter.setBrush(Qt::white);
    painter.drawPolygon(QPolygonF({{9, 4}, {9, 25}, {14, 20}, {18, 28}, {21, 26}, {18, 18}, {24, 18}}));
}

void paintRotate(QPainter& painter)
{
    painter.setPen(QPen(accent, 2.5));
    painter.drawArc(QRectF(5, 5, 22, 22), 40 * 16, 280 * 16);
    paintArrow(painter, QPointF(21, 12), QPointF(27, 13));
    painter.setBrush(ink);
    painter.drawEllipse(QPointF(16, 16), 2, 2);
}

void paintTranslate(QPainter& painter)
{
    painter.setPen(QPen(accent, 2.5));
    for (const QPointF& end : {QPointF(4, 16), QPointF(28, 16), QPointF(16, 4), QPointF(16, 28)}) {
        paintArrow(painter, QPointF(16, 16), end);
    }
}

void paintRuler(QPainter& painter)
{
    painter.setBrush(QColor(255, 240, 190));
    painter.drawPolygon(QPolygonF({{4, 22}, {22, 4}, {28, 10}, {10, 28}}));
    for (int i = 1; i < 5; ++i) {
        const double shift = 3.6 * i;
        painter.drawLine(QPointF(4 + shift, 22 - shift), QPointF(7 + shift, 25 - shift));
    }
}

void paintNodes(QPainter& painter)
{
    paintTetrahedron(painter, Qt::white);
    painter.setBrush(warm);
    for (const QPointF& corner : tetrahedron) {
        painter.drawEllipse(corner, 3, 3);
    }
}

void paintFit(QPainter& painter)
{
    painter.setBrush(fill);
    painter.drawRect(QRectF(11, 11, 10, 10));
    painter.setPen(QPen(accent, 2.5));
    for (int i = 0; i < 4; ++i) {
        painter.translate(16, 16);
        painter.rotate(90);
        painter.translate(-16, -16);
        painter.drawPolyline(QPolygonF({{4, 10}, {4, 4}, {10, 4}}));
    }
}

void paintCamera(QPainter& painter)
{
    painter.setBrush(fill);
    painter.drawRoundedRect(QRectF(3, 9, 26, 18), 3, 3);
    painter.drawRect(QRectF(11, 5, 10, 4));
    painter.setBrush(accent);
    painter.drawEllipse(QPointF(16, 18), 5.5, 5.5);
}

void paintEdges(QPainter& painter)
{
    painter.setBrush(fill);
    painter.drawRect(QRectF(5, 5, 22, 22));
    painter.drawLine(QPointF(5, 27), QPointF(27, 5));
    painter.drawLine(QPointF(16, 5), QPointF(5, 16));
    painter.drawLine(QPointF(27, 16), QPointF(16, 27));
    painter.drawLine(QPointF(16, 5), QPointF(16, 27));
    painter.drawLine(QPointF(5, 16), QPointF(27, 16));
}

void paint(QPainter& painter, IconName name)
{
    switch (name) {
    case IconName::New:
        return paintPage(painter);
    case IconName::Open:
        return paintFolder(painter);
    case IconName::Save:
        return paintDisk(painter);
    case IconName::Undo:
        return paintTurn(painter, false);
    case IconName::Redo:
        return paintTurn(painter, true);
    case IconName::SelectMode:
        return paintPointer(painter);
    case IconName::RotateMode:
        return paintRotate(painter);
    case IconName::TranslateMode:
        return paintTranslate(painter);
    case IconName::DrawMode:
        return paintRuler(painter);
    case IconName::Volumes:
        return paintCube(painter, warm, warm.lighter(130), warm.darker(115));
    case IconName::Faces:
        return paintCube(painter, warm, Qt::white, Qt::white);
    case IconName::Nodes:
        return paintNodes(painter);
    case IconName::Elements:
        return paintTetrahedron(painter, warm);
    case IconName::Groups:
        paintCube(painter, fill, fill, fill);
        return paintText(painter, QRectF(5, 12, 14, 15), "G");
    case IconName::Axes:
        return paintAxes(painter);
    case IconName::Fit:
        return paintFit(painter);
    case IconName::Isometric:
        return paintCube(painter, fill, fill.lighter(108), fill.darker(112));
    case IconName::Front:
        return paintCube(painter, accent, Qt::white, Qt::white);
    case IconName::Top:
        return paintCube(painter, Qt::white, accent, Qt::white);
    case IconName::Right:
        return paintCube(painter, Qt::white, Qt::white, accent);
    case IconName::Screenshot:
        return paintCamera(painter);
    case IconName::Mesh:
        return paintTetrahedron(painter, fill);
    case IconName::Edges:
        return paintEdges(painter);
    }
}

} // namespace

QIcon icon(IconName name)
{
    constexpr int scale = 2;
    QPixmap pixmap(32 * scale, 32 * scale);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(scale, scale);
    painter.setPen(QPen(ink, 1.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    paint(painter, name);
    return QIcon(pixmap);
}

} // namespace Workbench
