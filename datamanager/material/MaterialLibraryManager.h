// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <datamanager/datamanager_export.h>

#include <basemodule/MaterialLibType.h>

#include <QList>
#include <QMap>
#include <QObject>
#include <QSharedPointer>
#include <QString>

namespace DataModel {
class MaterialData;
class MaterialPropertyData;
} // namespace DataModel

namespace DataManager {

/// Keeps the software material library, shared by all projects, and the project material library.
///
/// Materials are numbered 1, 2, 3, ... in each library and never renumbered: a deleted material stays as a tombstone
/// (`isDeleted`) until everything above it is deleted too. Every change is written to the library's file at once;
/// failures of files and JSON go to the debug log and undo nothing. A file that was not loaded, or not without loss, is
/// copied to "<name>.unreadable" before it is replaced or removed. All calls come from the user-interface thread.
///
/// Records are shared with the callers: changing one changes the library, and the next save writes it.
class DATAMANAGER_EXPORT MaterialLibraryManager : public QObject
{
    Q_OBJECT

public:
    /// The manager, created by the first call, which loads the software library; never destroyed.
    static MaterialLibraryManager* getInstance();

    /// Loads the project library from "MaterialLibrary.json" in the project's working directory. Call it after a
    /// project was opened. Without a readable file the library is empty. Signals nothing.
    void initProjectMaterial();
    /// Writes the project library: enciphered, or as plain JSON in the development configuration.
    void writeProjectMatConfig();
    /// Empties the project library and removes its file. Call it when the project is closed. Signals nothing. When the
    /// file could not be read and no copy of it can be kept, it stays.
    void clearProjectMaterial();

    /// Adds a material to the project library under its next identifier and saves. Names are not checked: ask
    /// `hasSameName` before. The property records may be null and are shared, not copied. Signals nothing.
    void createProjectMat(QString chineseName, QString englishName, QSharedPointer<DataModel::MaterialPropertyData> p1,
                          QSharedPointer<DataModel::MaterialPropertyData> p2,
                          QSharedPointer<DataModel::MaterialPropertyData> p3,
                          QSharedPointer<DataModel::MaterialPropertyData> p4,
                          QSharedPointer<DataModel::MaterialPropertyData> p5);
    /// The same for the software library.
    void createSoftwareMat(QString chineseName, QString englishName, QSharedPointer<DataModel::MaterialPropertyData> p1,
                           QSharedPointer<DataModel::MaterialPropertyData> p2,
                           QSharedPointer<DataModel::MaterialPropertyData> p3,
                           QSharedPointer<DataModel::MaterialPropertyData> p4,
                           QSharedPointer<DataModel::MaterialPropertyData> p5);

    /// Changes a material, in the record that the project library holds, and saves. Nothing happens when `id` names no
    /// live material. Signals nothing.
    void updateProjectMat(int id, QString chineseName, QString englishName,
                          QSharedPointer<DataModel::MaterialPropertyData> p1,
                          QSharedPointer<DataModel::MaterialPropertyData> p2,
                          QSharedPointer<DataModel::MaterialPropertyData> p3,
                          QSharedPointer<DataModel::MaterialPropertyData> p4,
                          QSharedPointer<DataModel::MaterialPropertyData> p5);
    /// The same for the software library.
    void updateSoftwareMat(int id, QString chineseName, QString englishName,
                           QSharedPointer<DataModel::MaterialPropertyData> p1,
                           QSharedPointer<DataModel::MaterialPropertyData> p2,
                           QSharedPointer<DataModel::MaterialPropertyData> p3,
                           QSharedPointer<DataModel::MaterialPropertyData> p4,
                           QSharedPointer<DataModel::MaterialPropertyData> p5);

    /// Deletes a material of the project library and saves. The last material is removed together with the tombstones
    /// directly below it, any other becomes a tombstone. Emits `signal_delMatUpdateGeometryData` for the material, and
    /// again for every tombstone removed with it, in descending order, before the file is written. When `id` names no
    /// live material, `signal_showMessageType(2, text)` tells the user and nothing changes.
    void deleteProjectMat(int id);
    /// The same for the software library, without `signal_delMatUpdateGeometryData`.
    void deleteSoftwareMat(int id);

    /// The project material under `id`, also when it is a tombstone; null if there is none.
    QSharedPointer<DataModel::MaterialData> getProjectMatByID(int id);
    /// The software material under `id`, likewise.
    QSharedPointer<DataModel::MaterialData> getSoftwareMatByID(int id);
    /// The first project material in ascending order of identifiers with this Chinese or English name, also when it is
    /// a tombstone; null if there is none.
    QSharedPointer<DataModel::MaterialData> getProjectMatByName(QString name);
    /// The first software material of this name, likewise.
    QSharedPointer<DataModel::MaterialData> getSoftwareMatByName(QString name);

    /// Whether `id` names a live project material.
    bool hasProjectMatID(int id);
    /// Whether `id` names a live software material.
    bool hasSoftwareMatID(int id);

    /// Whether a live material other than `id` has this Chinese or English name; for renaming. Also true for the
    /// reserved names of the default material, "Free Space" and "自由空间", and for an unknown library type.
    bool hasSameName(QString name, int id, BaseModule::MaterialLibType type);
    /// The same for a new material: no material is left out.
    bool hasSameName(QString name, BaseModule::MaterialLibType type);

    /// The identifier of the next material; -1 for an unknown library type.
    int getNextMatIDByType(BaseModule::MaterialLibType type);
    /// The materials by identifier, tombstones included; empty for an unknown library type.
    QMap<int, QSharedPointer<DataModel::MaterialData>> getMatLibDataByType(BaseModule::MaterialLibType type);

    /// Copies materials of the library `fromType` into the other one, under new identifiers and in the order of `ids`,
    /// and saves that one. Names are not checked; property records are shared between source and copy. When the type is
    /// unknown or an identifier names no live material, `signal_showMessageType(2, text)` tells the user, nothing is
    /// copied and the result is false.
    bool importMaterial(BaseModule::MaterialLibType fromType, QList<int> ids);
    /// The same for every live material of the library.
    bool importAllMaterial(BaseModule::MaterialLibType fromType);

    /// "Material: " and the name of a project material in the interface language, up to its first NUL character; the
    /// description of the default material when the project has no such material. Tombstones count.
    QString getMatDesByID(int id);

    /// The text form of a property: label, kind, nine components separated by "|" with 16 significant digits, remark
    /// and flag, separated by commas. Empty when `data` is null or has not nine components. A comma in the label or the
    /// remark makes a text that cannot be read back, and "%1" to "%99" in them may be replaced by other fields.
    QString convertMaterialPropertToQString(QSharedPointer<DataModel::MaterialPropertyData>& data);
    /// A new property from its text form; null when the text is none.
    QSharedPointer<DataModel::MaterialPropertyData> convertQStringToMaterialPropertyData(QString text);

private:
    MaterialLibraryManager();
    ~MaterialLibraryManager() override = default;

    void initSoftwareMaterial();
    void saveSoftwareMaterial();
    QMap<int, QSharedPointer<DataModel::MaterialData>> getSoftwareMatData();
    QMap<int, QSharedPointer<DataModel::MaterialData>> getProjectMatData();
    int getSoftwareLibNextMatID();
    int getProjectLibNextMatID();

    static MaterialLibraryManager* m_instance;

    QString m_softwareLibPath;
    QMap<int, QSharedPointer<DataModel::MaterialData>> m_softwareMatMap;
    int m_softwareNextMatID = 1;
    QMap<int, QSharedPointer<DataModel::MaterialData>> m_projectMatMap;
    int m_projectNextMatID = 1;
};

} // namespace DataManager
