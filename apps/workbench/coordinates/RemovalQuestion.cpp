// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/coordinates/RemovalQuestion.h>

#include <workbench/coordinates/CoordinateName.h>
#include <workbench/coordinates/CoordinateSystems.h>

#include <datamanager/coordinates/RelativeCoordinateSystem.h>
#include <datamanager/coordinates/RelativeCoordinateSystemDate.h>

#include <QLabel>
#include <QMessageBox>

namespace Workbench {

namespace {

QString titleOf(int id)
{
    return coordinateTitle(*DataManager::RelativeCoordinateSystemDate::getInstance()->getCoordinateSystemByID(id));
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
    const auto* const system = DataManager::RelativeCoordinateSystemDate::getInstance()->getCoordinateSystemByID(id);
    if (id == 0 || system == nullptr) {
        return;
    }
    auto* const question =
        new QMessageBox(QMessageBox::Question, tr("Coordinate systems"), tr("Delete %1?").arg(titleOf(id)),
                        QMessageBox::Yes | QMessageBox::Cancel, parent);
    question->setObjectName(QStringLiteral("removalQuestion"));
    question->setInformativeText(dependentsText(id));
    // Names are no markup.
    question->setTextFormat(Qt::PlainText);
    question->findChild<QLabel*>(QStringLiteral("qt_msgbox_informativelabel"))->setTextFormat(Qt::PlainText);
    question->setDefaultButton(QMessageBox::Cancel);
    question->setAttribute(Qt::WA_DeleteOnClose);
    QObject::connect(question, &QMessageBox::finished, [id](int answer) {
        if (answer == QMessageBox::Yes) {
            CoordinateSystems::instance()->remove({id});
        }
    });
    question->open();
}

} // namespace Workbench
