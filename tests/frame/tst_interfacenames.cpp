// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include "InterfaceHeader.h"

#include <basemodule/IBaseSignal.h>
#include <datamanager/coordinates/RelativeCoordinateSystemDate.h>
#include <datamanager/coordinates/RelativeCoordinateSystemDateManager.h>
#include <datamanager/frame/IdaIGeometryManager.h>
#include <datamanager/frame/IdaIMeshManager.h>

#include <QMetaProperty>
#include <QtTest>

namespace {

/// A file of the source tree; empty when it is not there.
QString source(const char* path)
{
    QFile file(QStringLiteral(DATAMANAGER_SOURCE_DIR "/") + QLatin1String(path));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

bool hasWord(const QString& text, const QString& word)
{
    return text.contains(QRegularExpression(QStringLiteral("\\b%1\\b").arg(QRegularExpression::escape(word))));
}

/// Names of what a class declares itself: its signals and invokable functions, or its properties.
QStringList ownNames(const QMetaObject& meta)
{
    QStringList names;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        names.append(QString::fromLatin1(meta.method(i).name()));
    }
    for (int i = meta.constructorCount() - 1; i >= 0; --i) {
        names.append(QString::fromLatin1(meta.constructor(i).name()));
    }
    for (int i = meta.propertyOffset(); i < meta.propertyCount(); ++i) {
        names.append(QString::fromLatin1(meta.property(i).name()));
    }
    return names;
}

using Names = QList<QPair<const char*, const char*>>;

} // namespace

Q_DECLARE_METATYPE(const QMetaObject*)

/// Names that look like slips are part of the interface: applications, saved files and translations use them. Each is
/// held here beside the form into which somebody might correct it, which must not appear.
class TestInterfaceNames : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void metaObjectsKeepTheirNames_data();
    void metaObjectsKeepTheirNames();
    void signalsKeepTheirParameters_data();
    void signalsKeepTheirParameters();
    void filesKeepTheirNames_data();
    void filesKeepTheirNames();
};

void TestInterfaceNames::metaObjectsKeepTheirNames_data()
{
    QTest::addColumn<const QMetaObject*>("meta");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("corrected");
    const auto rows = [](const QMetaObject& meta, const Names& names) {
        for (const auto& name : names) {
            QTest::newRow(name.first) << &meta << QString::fromLatin1(name.first) << QString::fromLatin1(name.second);
        }
    };
    rows(BaseModule::IBaseSignal::staticMetaObject,
         {{"signal_updateGeomrtryActorTransparency", "signal_updateGeometryActorTransparency"},
          {"signal_delMatUpdateGeometryData", "signal_deleteMaterialUpdateGeometryData"},
          {"signal_updateIsCanSwitchSelectModel", "signal_updateCanSwitchSelectModel"},
          {"signal_checkHighLight", "signal_checkHighlight"},
          {"signal_clearAllHighLight", "signal_clearAllHighlight"}});
    rows(DataManager::IdaIMeshManager::staticMetaObject,
         {{"signal_kernalDataListChanged", "signal_kernelDataListChanged"},
          {"signal_kernalDataListDeleted", "signal_kernelDataListDeleted"}});
    rows(DataManager::IdaIGeometryManager::staticMetaObject,
         {{"signal_geoSetListRemoved", "signal_geometrySetListRemoved"},
          {"signal_geoSetListDataChanged", "signal_geometrySetListDataChanged"}});
    rows(DataManager::RelativeCoordinateSystemDateManager::staticMetaObject,
         {{"RelativeCoordinateSystemDateManager", "RelativeCoordinateSystemDataManager"},
          {"m_IDList", "m_idList"},
          {"m_basicCoorSysIDList", "m_basicCoordinateSystemIDList"},
          {"m_actorRoateDirList", "m_actorRotateDirList"}});
}

void TestInterfaceNames::metaObjectsKeepTheirNames()
{
    QFETCH(const QMetaObject*, meta);
    QFETCH(QString, name);
    QFETCH(QString, corrected);
    const QStringList names = ownNames(*meta);
    QVERIFY2(names.contains(name), qPrintable(names.join(QLatin1Char(' '))));
    QVERIFY(!names.contains(corrected));
}

void TestInterfaceNames::signalsKeepTheirParameters_data()
{
    QTest::addColumn<const QMetaObject*>("meta");
    QTest::addColumn<QByteArray>("declaration");
    QTest::newRow("mesh kernels changed") << &DataManager::IdaIMeshManager::staticMetaObject
                                          << QByteArray("signal signal_kernalDataListChanged(QList<int>) kernalIDS");
    QTest::newRow("mesh kernels deleted") << &DataManager::IdaIMeshManager::staticMetaObject
                                          << QByteArray("signal signal_kernalDataListDeleted(QList<int>) kernalIDS");
    QTest::newRow("mesh groups changed")
        << &DataManager::IdaIMeshManager::staticMetaObject
        << QByteArray("signal signal_groupDataListChanged(QMultiMap<int,int>) kernal2GroupMap");
    QTest::newRow("mesh groups deleted")
        << &DataManager::IdaIMeshManager::staticMetaObject
        << QByteArray("signal signal_groupDataListDeleted(QMultiMap<int,int>) kernal2GroupMap");
    QTest::newRow("geometry sets removed") << &DataManager::IdaIGeometryManager::staticMetaObject
                                           << QByteArray("signal signal_geoSetListRemoved(QList<int>) geoSetIDList");
}

void TestInterfaceNames::signalsKeepTheirParameters()
{
    QFETCH(const QMetaObject*, meta);
    QFETCH(QByteArray, declaration);
    const QByteArrayList declarations = signalsWithParameters(*meta);
    QVERIFY2(declarations.contains(declaration), declarations.join('\n').constData());
}

/// What the meta-objects do not know: members, accessors, texts.
void TestInterfaceNames::filesKeepTheirNames_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("corrected");
    const auto rows = [](const char* path, const Names& names) {
        const QString text = source(path);
        for (const auto& name : names) {
            QTest::addRow("%s %s", path, name.first)
                << text << QString::fromLatin1(name.first) << QString::fromLatin1(name.second);
        }
    };
    rows("datamanager/frame/CaseData.h", {{"getinstance", "getInstance"}});
    rows("datamanager/frame/GeometryData.h", {{"getinstance", "getInstance"}});
    rows("datamanager/frame/InteractionManager.h", {{"isActiveMultipleSelect", "isMultipleSelectActive"}});
    rows("platform/basemodule/InteractionMode.h", {{"Undefine", "Undefined"}});
    rows("datamanager/frame/IdaIMeshManager.h",
         {{"setKernelMaxID", "setKernalMaxID"}, {"resetSetMaxID()", "resetSetMaxID(int value)"}});
    rows("datamanager/frame/IdaIGeometryManager.h", {{"resetSetMaxID(int", "setSetMaxID"}});
    rows("datamanager/selection/SelectedDataManager.h", {{"setHighLightCheckEnable", "setHighlightCheckEnable"},
                                                         {"getGeometryIsHighLight", "getGeometryIsHighlight"},
                                                         {"m_isCanSwitchSelectModel", "m_canSwitchSelectModel"}});
    rows(
        "datamanager/material/MaterialLibraryManager.h",
        {{"convertMaterialPropertToQString", "convertMaterialPropertyToQString"}, {"getMatDesByID", "getMatDescByID"}});
    rows("datamanager/material/MaterialLibraryManager.cpp", {{"materail", "material library type"}});
    rows("datamanager/material/private/MaterialLibraryKind.cpp", {{"materail id", "material id"}});
    rows("datamanager/coordinates/RelativeCoordinateSystem.h",
         {{"getActorRoateDirPairPairList", "getActorRotateDirPairPairList"},
          {"getOffsetCoordinateListPairList", "getOffsetCoordinatePairList"},
          {"m_actorRotateDirPairList", "m_actorRoateDirPairList"},
          {"m_idOffset", "m_IDOffset"}});
    rows("datamanager/coordinates/RelativeCoordinateSystemDate.h",
         {{"RelativeCoordinateSystemDate", "RelativeCoordinateSystemData"},
          {"getRelativeCoordinateSystemDateCount", "getRelativeCoordinateSystemDataCount"},
          {"setNeWCoordinateSystemSign", "setNewCoordinateSystemSign"},
          {"getNeWCoordinateSystemSign", "getNewCoordinateSystemSign"},
          {"m_newCoordinateSystemSign", "m_neWCoordinateSystemSign"},
          {"_instance", "m_instance"}});
    rows("datamanager/coordinates/RelativeCoordinateSystemDateManager.h",
         {{"getActorRoateDirList", "getActorRotateDirList"},
          {"setActorRoateDirList", "setActorRotateDirList"},
          {"getBasicCoorSysIDList", "getBasicCoordinateSystemIDList"}});
    rows("datamanager/meshquality/MeshQualityPredict.h", {{"getinstance", "getInstance"},
                                                          {"get_Nodes_Elements", "getNodesElements"},
                                                          {"get_As_Lmaxs_Lmins_Rs_rs_Vs", "getElementMeasures"},
                                                          {"calculate_vectorLength", "calculateVectorLength"},
                                                          {"get_RelativeSizeSquared", "getRelativeSize"},
                                                          {"cosDistance", "cosineDistance"},
                                                          {"getMold", "getModulus"},
                                                          {"axb", "crossProduct"}});
    rows("platform/configoption/TextCipher.h",
         {{"encryptData_CBC", "encryptDataCBC"}, {"decryptData_CBC", "decryptDataCBC"}});
    rows("platform/basemodule/GlobalHelper.h", {{"getProjectTempIODir", "getProjectTempDir"},
                                                {"convertIntIntQListToQString", "convertIntIntListToString"},
                                                {"convertStringToIntIntQList", "convertQStringToIntIntQList"}});
}

void TestInterfaceNames::filesKeepTheirNames()
{
    QFETCH(QString, text);
    QFETCH(QString, name);
    QFETCH(QString, corrected);
    QVERIFY(!text.isEmpty());
    // A name with a bracket is held with its first argument.
    QVERIFY(name.contains(QLatin1Char('(')) ? text.contains(QLatin1Char(' ') + name) : hasWord(text, name));
    QVERIFY(!(corrected.contains(QLatin1Char('(')) ? text.contains(corrected) : hasWord(text, corrected)));
}

QTEST_GUILESS_MAIN(TestInterfaceNames)

#include "tst_interfacenames.moc"
