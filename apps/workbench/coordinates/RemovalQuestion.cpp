// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/coordinates/RemovalQuestion.h>

#include <workbench/coordinates/CoordinateName.h>
#include <workbench/coordinates/CoordinateRegistry.h>
#include <workbench/coordinates/CoordinateSystems.h>
#include <workbench/dialog/Question.h>

#include <datamanager/coordinates/RelativeCoordinateSystem.h>

namespace Workbench {

namespace {

QString titleOf(int id)
{
    return coordinateTitle(*coordinateRegistry().getCoordinateSystemByID(id));
}

QString dependentsText(int id)
{
    QStringList titles;
    for (const int below : CoordinateSystems::tree().below(id)) {
        titles.append(titleOf(below));
    }
    return titles.isEmpty() ? RemovalQuestion::tr("No other system is relative to it.")
                            : RemovalQuestion::tr("These are relative to it and go with it: %1.")
                                  .arg(titles.join(QStringLiteral(", ")));
}

} // namespace

void RemovalQuestion::openFor(int id, QWidget* parent)
{
    if (id == 0 || coordinateRegistry().getCoordinateSystemByID(id) == nullptr) {
        return;
    }
    // It may have gone while the question stood.
    const auto texts = [id] {
        const bool isThere = coordinateRegistry().getCoordinateSystemByID(id) != nullptr;
        return Question::Texts{tr("Coordinate systems"), tr("Delete %1?").arg(isThere ? titleOf(id) : QString()),
                               dependentsText(id)};
    };
    const auto remove = [id] { CoordinateSystems::instance()->remove({id}); };
    (new Question(QStringLiteral("removalQuestion"), texts, remove, parent))->open();
}

} // namespace Workbench
