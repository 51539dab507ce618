// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QByteArray>
#include <QList>
#include <QPair>
#include <QString>

class QTemporaryDir;

/// Model files for the tests.
namespace ModelFiles {

using Metadata = QList<QPair<QByteArray, QByteArray>>;

/// The content of a model made for tests, or of the one that comes with the project, by its name.
QByteArray content(const char* name);
QByteArray shipped();

/// The model with these entries behind those that it has.
QByteArray withMetadata(const QByteArray& model, const Metadata& metadata);

/// A model of the tests with one constant as output, and with another output, of integers, behind it.
QByteArray withOutput(const QByteArray& model);

/// The model "last-feature", whose score is the last feature, with a card in which nothing is missing: its
/// `explanation` takes both figures, Shape was trained on 0.5 to 0.9, Volume on any value, and the rest is not known.
QByteArray described();

/// Writes a model into the directory, always under the same name, which needs care; its path.
QString placed(const QTemporaryDir& directory, const QByteArray& content);

} // namespace ModelFiles
