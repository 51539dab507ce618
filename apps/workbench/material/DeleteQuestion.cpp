// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/material/DeleteQuestion.h>

#include <workbench/geometry/GeometryManager.h>
#include <workbench/material/MaterialLibraries.h>
#include <workbench/material/MaterialName.h>

#include <datamodel/MaterialData.h>

#include <QLabel>
#include <QMessageBox>

namespace Workbench {

namespace {

/// The names of the volumes that use a project material.
QStringList usesOf(int id)
{
    QStringList uses;
    for (const int volume : GeometryManager::instance()->findComponentsOfMaterial(id)) {
        uses.append(GeometryManager::instance()->getComponentName(volume));
    }
    return uses;
}

QString useText(BaseModule::MaterialLibType type, const DataModel::MaterialData& material)
{
    if (type == BaseModule::SoftwareLib) {
        return DeleteQuestion::tr("%1: projects keep the copies that they have of it.").arg(materialTitle(material));
    }
    const QStringList uses = usesOf(material.id);
    return uses.isEmpty() ? DeleteQuestion::tr("%1: no volume uses it.").arg(materialTitle(material))
                          : DeleteQuestion::tr("%1 is used by: %2. They become free space.")
                                .arg(materialTitle(material), uses.join(QStringLiteral(", ")));
}

/// One line a material, those in use first, and not more than a screen holds.
QStringList useTexts(BaseModule::MaterialLibType type, const QList<int>& ids)
{
    constexpr int mostLines = 12;
    QStringList used;
    QStringList unused;
    for (const int id : ids) {
        if (const Materials::Material material = MaterialLibraries::material(type, id)) {
            const bool isUsed = type == BaseModule::ProjectLib && !usesOf(id).isEmpty();
            (isUsed ? used : unused).append(useText(type, *material));
        }
    }
    const QStringList all = used + unused;
    return all.size() <= mostLines
               ? all
               : all.mid(0, mostLines) + QStringList{DeleteQuestion::tr("and %1 more").arg(all.size() - mostLines)};
}

} // namespace

void DeleteQuestion::openFor(BaseModule::MaterialLibType type, const QList<int>& ids, QWidget* parent)
{
    const QStringList uses = useTexts(type, ids);
    if (uses.isEmpty()) {
        return;
    }
    auto* const question = new QMessageBox(QMessageBox::Question, libraryTitle(type), tr("Delete these materials?"),
                                           QMessageBox::Yes | QMessageBox::Cancel, parent);
    question->setObjectName(QStringLiteral("deleteQuestion"));
    question->setInformativeText(uses.join(QLatin1Char('\n')));
    // Names are no markup.
    question->findChild<QLabel*>(QStringLiteral("qt_msgbox_informativelabel"))->setTextFormat(Qt::PlainText);
    question->setDefaultButton(QMessageBox::Cancel);
    question->setAttribute(Qt::WA_DeleteOnClose);
    QObject::connect(question, &QMessageBox::finished, [type, ids](int answer) {
        if (answer == QMessageBox::Yes) {
            MaterialLibraries::instance()->remove(type, ids);
        }
    });
    question->open();
}

} // namespace Workbench
