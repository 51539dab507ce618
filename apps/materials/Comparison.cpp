// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <materials/Comparison.h>

#include <materials/MaterialJson.h>

#include <datamodel/MaterialData.h>

#include <QHash>

#include <array>

namespace Materials {

namespace {

/// The names and properties.
QJsonObject contentOf(const DataModel::MaterialData& material)
{
    QJsonObject json = materialJson(material);
    json.remove(QStringLiteral("id"));
    return json;
}

bool isReserved(const QString& name)
{
    return name == QLatin1String("Free Space") || name == QStringLiteral("自由空间");
}

using MaterialsByName = QHash<QString, Material>;

MaterialsByName byNames(const QList<Material>& materials)
{
    MaterialsByName byName;
    // The first of several materials with one name counts, as in the manager's own search.
    for (int i = materials.size() - 1; i >= 0; --i) {
        for (const QString& name : {materials.at(i)->chineseName, materials.at(i)->englishName}) {
            if (!materials.at(i)->isDeleted && !name.isEmpty()) {
                byName.insert(name, materials.at(i));
            }
        }
    }
    return byName;
}

/// Refused where the target would get a name that another one has.
Comparison update(const Material& source, const Material& target, const MaterialsByName& targets)
{
    for (const QString& name : {source->englishName, source->chineseName}) {
        const Material holder = targets.value(name);
        if (!holder.isNull() && name != target->englishName && name != target->chineseName) {
            return {Comparison::Refused, source, {}, name, holder};
        }
    }
    return {contentOf(*source) == contentOf(*target) ? Comparison::Same : Comparison::Changed, source, target, {}, {}};
}

Comparison compare(const Material& source, const MaterialsByName& targets)
{
    if (isReserved(source->chineseName) || isReserved(source->englishName)) {
        return {Comparison::Refused, source, {}, {}, {}};
    }
    const Material target = targets.value(source->englishName, targets.value(source->chineseName));
    return target.isNull() ? Comparison{Comparison::New, source, {}, {}, {}} : update(source, target, targets);
}

} // namespace

Console::Message Comparison::word() const
{
    constexpr std::array<const char*, 4> words = {
        QT_TRANSLATE_NOOP("materials", "new"), QT_TRANSLATE_NOOP("materials", "same"),
        QT_TRANSLATE_NOOP("materials", "changed"), QT_TRANSLATE_NOOP("materials", "refused")};
    return Console::makeMessage("materials", words[state]);
}

QList<Comparison> compareMaterials(const QList<Material>& sources, const QList<Material>& targets)
{
    const MaterialsByName byName = byNames(targets);
    QList<Comparison> comparisons;
    for (const Material& source : sources) {
        if (!source->isDeleted) {
            comparisons.append(compare(source, byName));
        }
    }
    return comparisons;
}

} // namespace Materials
