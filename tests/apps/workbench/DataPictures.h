// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QString>

class QWidget;

/// Fills the libraries and the coordinate systems of the open project with an example, and saves pictures of their
/// docks and dialogs in `directory`. False when one cannot be saved.
bool takeDataPictures(QWidget& window, const QString& directory);
