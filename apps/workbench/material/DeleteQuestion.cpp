// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/material/DeleteQuestion.h>

#include <workbench/dialog/Question.h>
#include <workbench/geometry/GeometryManager.h>
#include <workbench/material/MaterialLibraries.h>
#include <workbench/material/MaterialName.h>

#include <datamodel/MaterialData.h>

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
    if (useTexts(type, ids).isEmpty()) {
        return;
    }
    const auto texts = [type, ids] {
        return Question::Texts{libraryTitle(type), tr("Delete these materials?"),
                               useTexts(type, ids).join(QLatin1Char('\n'))};
    };
    const auto remove = [type, ids] { MaterialLibraries::instance()->remove(type, ids); };
    (new Question(QStringLiteral("deleteQuestion"), texts, remove, parent))->open();
}

} // namespace Workbench
