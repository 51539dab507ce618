// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/material/ImportRefusal.h>

#include <workbench/material/MaterialLibraries.h>
#include <workbench/material/MaterialName.h>
#include <workbench/material/MaterialNumber.h>

#include <datamodel/MaterialData.h>

#include <QCoreApplication>
#include <QHash>
#include <QSet>
#include <QStringList>

#include <algorithm>

namespace Workbench {

namespace {

using Materials::Comparison;
using Materials::Material;

class Texts
{
    Q_DECLARE_TR_FUNCTIONS(Workbench::ImportRefusal)
};

QStringList namesOf(const Material& material)
{
    QStringList names{material->englishName, material->chineseName};
    names.removeAll(QString());
    return names;
}

QString twiceReplaced(const QList<Comparison>& copies)
{
    QHash<int, Material> sources;
    for (const Comparison& copy : copies) {
        if (copy.target.isNull()) {
            continue;
        }
        if (const Material other = sources.value(copy.target->id)) {
            return Texts::tr("'%1' and '%2' would both replace '%3': only one can.")
                .arg(materialTitle(*other), materialTitle(*copy.source), materialTitle(*copy.target));
        }
        sources.insert(copy.target->id, copy.source);
    }
    return {};
}

/// Who will have the names that are in the library already, and stay there.
QHash<QString, Material> holdersOfNames(BaseModule::MaterialLibType library, const QList<Comparison>& copies)
{
    QHash<QString, Material> holders;
    QSet<int> replaced;
    for (const Comparison& copy : copies) {
        for (const QString& name : copy.target.isNull() ? QStringList() : namesOf(copy.target)) {
            replaced.insert(copy.target->id);
            if (namesOf(copy.source).contains(name)) {
                holders.insert(name, copy.source);
            }
        }
    }
    for (const Material& material : MaterialLibraries::materials(library)) {
        for (const QString& name : replaced.contains(material->id) ? QStringList() : namesOf(material)) {
            holders.insert(name, material);
        }
    }
    return holders;
}

/// Only a name that a material gets is refused: what two have in common already they keep.
QString twiceNamed(BaseModule::MaterialLibType library, const QList<Comparison>& copies)
{
    QHash<QString, Material> holders = holdersOfNames(library, copies);
    for (const Comparison& copy : copies) {
        const QStringList kept = copy.target.isNull() ? QStringList() : namesOf(copy.target);
        for (const QString& name : namesOf(copy.source)) {
            const Material other = holders.value(name, copy.source);
            if (other != copy.source && !kept.contains(name)) {
                return Texts::tr("'%1' cannot be copied: '%2' there would be called '%3', too.")
                    .arg(materialTitle(*copy.source), materialTitle(*other), name);
            }
            holders.insert(name, copy.source);
        }
    }
    return {};
}

int newOnes(const QList<Comparison>& copies)
{
    return static_cast<int>(std::count_if(copies.begin(), copies.end(),
                                          [](const Comparison& copy) { return copy.state == Comparison::New; }));
}

} // namespace

QString importRefusal(BaseModule::MaterialLibType library, const QList<Comparison>& copies)
{
    QString refusal = twiceReplaced(copies);
    refusal = refusal.isEmpty() ? twiceNamed(library, copies) : refusal;
    return refusal.isEmpty() ? materialNumberRefusal(library, newOnes(copies)) : refusal;
}

} // namespace Workbench
