// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include "PictureComparison.h"

#include <algorithm>
#include <cstdlib>

namespace {

constexpr int alike = 40; // of 255, in each colour
constexpr double mostMean = 1.5;
constexpr double mostStrange = 0.002;

int farthest(QRgb a, QRgb b)
{
    return std::max({std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)), std::abs(qBlue(a) - qBlue(b))});
}

double sumOfColours(QRgb a, QRgb b)
{
    return std::abs(qRed(a) - qRed(b)) + std::abs(qGreen(a) - qGreen(b)) + std::abs(qBlue(a) - qBlue(b));
}

bool isStrange(QRgb colour, const QImage& other, int x, int y)
{
    for (int row = std::max(y - 1, 0); row <= std::min(y + 1, other.height() - 1); ++row) {
        for (int column = std::max(x - 1, 0); column <= std::min(x + 1, other.width() - 1); ++column) {
            if (farthest(colour, other.pixel(column, row)) <= alike) {
                return false;
            }
        }
    }
    return true;
}

} // namespace

bool PictureDifference::isSmall() const
{
    return mean <= mostMean && strange <= mostStrange;
}

QString PictureDifference::text() const
{
    return QStringLiteral("mean difference %1, strange pixels %2 %").arg(mean).arg(100 * strange);
}

PictureDifference differenceOf(const QImage& a, const QImage& b)
{
    if (a.isNull() || a.size() != b.size()) {
        return {};
    }
    double sum = 0;
    int strangeInA = 0;
    int strangeInB = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            sum += sumOfColours(a.pixel(x, y), b.pixel(x, y));
            strangeInA += isStrange(a.pixel(x, y), b, x, y) ? 1 : 0;
            strangeInB += isStrange(b.pixel(x, y), a, x, y) ? 1 : 0;
        }
    }
    const double pixels = static_cast<double>(a.width()) * a.height();
    return {sum / (3 * pixels), std::max(strangeInA, strangeInB) / pixels};
}
