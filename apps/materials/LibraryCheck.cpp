// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <materials/LibraryCheck.h>

#include <materials/PropertyCheck.h>

#include <QHash>
#include <QJsonArray>
#include <QMetaProperty>
#include <QSet>

#include <datamodel/MaterialData.h>

namespace Materials {

namespace {

/// Looks at one material after the other and remembers what may occur only once.
class LibraryChecker
{
public:
    explicit LibraryChecker(QVector<Fault>& faults) : m_faults(faults) {}

    void check(const QString& place, const QJsonObject& material)
    {
        m_place = place;
        checkMembers(m_faults, place, material, DataModel::MaterialData::staticMetaObject);
        checkIdentifier(material.value(QStringLiteral("id")));
        const bool isDeleted = material.value(QStringLiteral("isDeleted")).toBool();
        if (!isDeleted) {
            checkName(QStringLiteral("chineseName"), material);
            checkName(QStringLiteral("englishName"), material);
        }
        for (int number = 1; number <= 5; ++number) {
            const QString name = QStringLiteral("property%1").arg(number);
            checkProperty(m_faults, place + QLatin1Char('.') + name, material.value(name));
        }
        m_isLastDeleted = isDeleted;
        ++m_count;
    }

    void finish(const QString& place)
    {
        if (m_isLastDeleted) {
            m_faults.append({place, fault(QT_TRANSLATE_NOOP("materials", "the last material is a tombstone"))});
        }
    }

private:
    void checkIdentifier(const QJsonValue& value)
    {
        const QString place = m_place + QStringLiteral(".id");
        const int expected = m_count + 1;
        if (!isIdentifier(value)) {
            m_faults.append({place, fault(QT_TRANSLATE_NOOP("materials", "is no identifier"))});
            return;
        }
        if (m_places.contains(value.toInt())) {
            const QString other = m_places.value(value.toInt());
            m_faults.append({place, fault(QT_TRANSLATE_NOOP("materials", "%1 is taken by %2"),
                                          {QString::number(value.toInt()), other})});
        } else if (value.toInt() != expected) {
            m_faults.append({place, fault(QT_TRANSLATE_NOOP("materials", "is %1, expected %2"),
                                          {QString::number(value.toInt()), QString::number(expected)})});
        }
        m_places.insert(value.toInt(), m_place);
    }

    void checkName(const QString& member, const QJsonObject& material)
    {
        const QString place = m_place + QLatin1Char('.') + member;
        const QString name = material.value(member).toString();
        if (name.isEmpty()) {
            m_faults.append({place, fault(QT_TRANSLATE_NOOP("materials", "is empty"))});
        } else if (name == QLatin1String("Free Space") || name == QStringLiteral("自由空间")) {
            m_faults.append({place, fault(QT_TRANSLATE_NOOP("materials", "'%1' is reserved"), {name})});
        } else if (m_names.contains(name) && m_names.value(name) != m_place) {
            m_faults.append({place, fault(QT_TRANSLATE_NOOP("materials", "'%1' is also the name of %2"),
                                          {name, m_names.value(name)})});
        }
        m_names.insert(name, m_place);
    }

    QVector<Fault>& m_faults;
    QHash<int, QString> m_places;
    QHash<QString, QString> m_names;
    QString m_place;
    int m_count = 0;
    bool m_isLastDeleted = false;
};

} // namespace

QVector<Fault> checkLibrary(const QJsonObject& root)
{
    QVector<Fault> faults;
    LibraryChecker checker(faults);
    for (const QString& key : root.keys()) {
        if (key != QLatin1String("materialList")) {
            faults.append({key, fault(QT_TRANSLATE_NOOP("materials", "unknown member"))});
        }
    }
    const QJsonArray materials = root.value(QStringLiteral("materialList")).toArray();
    QString place;
    for (int i = 0; i < materials.size(); ++i) {
        place = QStringLiteral("materialList[%1]").arg(i);
        if (materials.at(i).isObject()) {
            checker.check(place, materials.at(i).toObject());
        } else {
            faults.append({place, fault(QT_TRANSLATE_NOOP("materials", "is no material"))});
        }
    }
    checker.finish(place);
    return faults;
}

} // namespace Materials
