// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/project/ProjectFiles.h>

#include <workbench/geometry/GeometryManager.h>
#include <workbench/mesh/MeshManager.h>

#include <basemodule/GlobalConfig.h>
#include <basemodule/GlobalHelper.h>
#include <configoption/TextCipher.h>

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <cmath>

using BaseModule::GlobalHelper;

namespace Workbench {
namespace {

constexpr int formatVersion = 1;

QString description(const QString& directory)
{
    return directory + QStringLiteral("/project.json");
}
QString keyFormat()
{
    return QStringLiteral("format");
}
QString keyVersion()
{
    return QStringLiteral("version");
}
QString keyGeometry()
{
    return QStringLiteral("geometryFile");
}
QString keyOrigin()
{
    return QStringLiteral("geometryOrigin");
}
QString keyCurrentSystem()
{
    return QStringLiteral("currentCoordinateSystem");
}
QString keyAxesShown()
{
    return QStringLiteral("axesShown");
}
QString keyHiddenAxes()
{
    return QStringLiteral("hiddenAxes");
}
QString formatName()
{
    return QStringLiteral("workbench project");
}

QString say(const char* text)
{
    return QCoreApplication::translate("Workbench::ProjectFiles", text);
}

QJsonObject readObject(const QString& path)
{
    QByteArray content;
    return GlobalHelper::readFile(path, content) ? QJsonDocument::fromJson(content).object() : QJsonObject();
}

QJsonArray toJson(const QList<int>& ids)
{
    QJsonArray array;
    for (const int id : ids) {
        array.append(id);
    }
    return array;
}

// Whole numbers only.
QList<int> idsFrom(const QJsonArray& array)
{
    QList<int> ids;
    for (const QJsonValue& value : array) {
        if (value.toInt(0) == value.toInt(1)) {
            ids.append(value.toInt());
        }
    }
    return ids;
}

CoordinateDisplay coordinatesFrom(const QJsonObject& object)
{
    return {object.value(keyCurrentSystem()).toInt(0), object.value(keyAxesShown()).toBool(true),
            idsFrom(object.value(keyHiddenAxes()).toArray())};
}

// What is no number counts as 0, which never was a version.
QString versionRefusal(double version)
{
    if (version > formatVersion && version == std::floor(version)) {
        return say(QT_TRANSLATE_NOOP("Workbench::ProjectFiles", "it was saved by a newer version of the program"));
    }
    return version == formatVersion ? QString() : say(QT_TRANSLATE_NOOP("Workbench::ProjectFiles", "it is damaged"));
}

} // namespace

QString ProjectFiles::materials(const QString& directory)
{
    return directory + QStringLiteral("/MaterialLibrary.json");
}

QString ProjectFiles::coordinateSystems(const QString& directory)
{
    return directory + QStringLiteral("/RelativeCoordinateSystemDate.json");
}

QString ProjectFiles::geometry(const QString& directory)
{
    return directory + QStringLiteral("/geometry.json");
}

QString ProjectFiles::mesh(const QString& directory)
{
    return directory + QStringLiteral("/mesh.json");
}

QString ProjectFiles::geometrySource(const QString& directory, const QString& geometryName)
{
    return directory + QStringLiteral("/geometry-source.") + QFileInfo(geometryName).suffix().toLower();
}

QStringList ProjectFiles::all(const QString& directory)
{
    return QDir(directory).entryList(QDir::Files | QDir::NoSymLinks, QDir::Name);
}

bool ProjectFiles::writeDescription(const QString& directory, const Description& content)
{
    const QJsonObject object{{keyFormat(), formatName()},
                             {keyVersion(), formatVersion},
                             {keyGeometry(), content.geometry.name},
                             {keyOrigin(), content.geometry.origin},
                             {keyCurrentSystem(), content.coordinates.currentID},
                             {keyAxesShown(), content.coordinates.areAxesShown},
                             {keyHiddenAxes(), toJson(content.coordinates.hiddenIDs)}};
    return GlobalHelper::writeFile(description(directory), QJsonDocument(object).toJson(),
                                   QIODevice::WriteOnly | QIODevice::Truncate);
}

QString ProjectFiles::check(const QString& directory, Description& content)
{
    const QJsonObject object = readObject(description(directory));
    if (object.value(keyFormat()).toString() != formatName()) {
        return say(QT_TRANSLATE_NOOP("Workbench::ProjectFiles", "it is an archive, but no project"));
    }
    QString refusal = versionRefusal(object.value(keyVersion()).toDouble());
    if (!refusal.isEmpty()) {
        return refusal;
    }
    if (!GeometryManager::isDescription(geometry(directory)) || !MeshManager::isDescription(mesh(directory))) {
        return say(QT_TRANSLATE_NOOP("Workbench::ProjectFiles", "its description of geometry or mesh is damaged"));
    }
    content.geometry.name = QFileInfo(object.value(keyGeometry()).toString()).fileName();
    content.geometry.origin = object.value(keyOrigin()).toString();
    content.coordinates = coordinatesFrom(object);
    return {};
}

bool ProjectFiles::areMaterialsUnreadable(const QString& directory)
{
    QByteArray content;
    if (!GlobalHelper::readFile(materials(directory), content) || GlobalConfig::getIsDevelop()) {
        return false;
    }
    return ConfigOption::TextCipher::getInstance()->decryptData_CBC(QString::fromUtf8(content)).isEmpty();
}

} // namespace Workbench
