// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QImage>
#include <QString>

/// By how much two pictures of the same size differ.
struct PictureDifference
{
    /// Mean of the absolute differences of red, green and blue, from 0 to 255.
    double mean = 255;
    /// Share of the pixels of either picture to which no pixel at this place or next to it in the other one is alike.
    double strange = 1;

    /// Whether it may come from another version of the graphics, which draws lines a little otherwise.
    bool isSmall() const;
    QString text() const;
};

/// All that can differ when the sizes do, or a picture is missing.
PictureDifference differenceOf(const QImage& a, const QImage& b);
