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

Comparison compare(const Material& source, const Material& target)
{
    if (isReserved(source->chineseName) || isReserved(source->englishName)) {
        return {Comparison::Refused, source, {}};
    }
    if (target.isNull()) {
        return {Comparison::New, source, {}};
    }
    return {contentOf(*source) == contentOf(*target) ? Comparison::Same : Comparison::Changed, source, target};
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
    QHash<QString, Material> byName;
    // The first of several materials with one name counts, as in the manager's own search.
    for (int i = targets.size() - 1; i >= 0; --i) {
        if (!targets.at(i)->isDeleted) {
            byName.insert(targets.at(i)->chineseName, targets.at(i));
            byName.insert(targets.at(i)->englishName, targets.at(i));
        }
    }
    QList<Comparison> comparisons;
    for (const Material& source : sources) {
        if (!source->isDeleted) {
            const Material byChinese = byName.value(source->chineseName);
            comparisons.append(compare(source, byName.value(source->englishName, byChinese)));
        }
    }
    return comparisons;
}

} // namespace Materials
