// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <datamanager/material/ExampleLibraryManager.h>
#include <datamanager/material/MaterialLibraryManager.h>

#include <support/FilesAndLog.h>

#include <QRegularExpression>
#include <QtTest>

#include <type_traits>

using DataManager::ExampleLibraryManager;
using DataManager::MaterialLibraryManager;

namespace {

/// The declarations of a class under one access level, one line each, in order, without comments.
QStringList declarations(const char* header, const char* access)
{
    QString source = QString::fromUtf8(contentOf(text(DATAMANAGER_SOURCE_DIR "/datamanager/material/") + text(header)));
    source.remove(QRegularExpression(text("//[^\\n]*")));
    const int begin = source.indexOf(text("Q_OBJECT"));
    source = source.mid(begin, source.indexOf(text("\n};"), begin) - begin);
    const int level = source.indexOf(text(access));
    source = source.mid(level + int(qstrlen(access)));
    source = source.left(source.indexOf(QRegularExpression(text("\\n(public|protected|private)"))));
    QStringList lines;
    for (const QString& declaration : source.split(QLatin1Char(';'))) {
        if (!declaration.trimmed().isEmpty()) {
            lines.append(declaration.simplified());
        }
    }
    return lines;
}

template <class Manager>
void checkSingleton()
{
    // Outside of the class there is no way to make, copy or delete one.
    QVERIFY((!std::is_default_constructible_v<Manager>));
    QVERIFY((!std::is_copy_constructible_v<Manager>));
    QVERIFY((!std::is_copy_assignable_v<Manager>));
    QVERIFY((!std::is_destructible_v<Manager>));
    QVERIFY((std::has_virtual_destructor_v<Manager>));
    QVERIFY((std::is_base_of_v<QObject, Manager>));
    QVERIFY((std::is_convertible_v<Manager*, QObject*>));
    QVERIFY((std::is_same_v<decltype(&Manager::getInstance), Manager* (*)()>));
    QCOMPARE(Manager::staticMetaObject.methodCount(), QObject::staticMetaObject.methodCount());
    QCOMPARE(Manager::staticMetaObject.propertyCount(), QObject::staticMetaObject.propertyCount());
}

} // namespace

/// Compiled without the access to private members that other tests have.
class TestMaterialInterface : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void areSingletons();
    void declares_data();
    void declares();
};

void TestMaterialInterface::areSingletons()
{
    checkSingleton<MaterialLibraryManager>();
    checkSingleton<ExampleLibraryManager>();
}

void TestMaterialInterface::declares_data()
{
    QTest::addColumn<QStringList>("declared");
    QTest::addColumn<QStringList>("expected");
    const QString p = text("QSharedPointer<DataModel::MaterialPropertyData> p");
    const QString properties = p + text("1, ") + p + text("2, ") + p + text("3, ") + p + text("4, ") + p + text("5)");
    const QString names = text("QString chineseName, QString englishName, ");
    const QString material = text("QSharedPointer<DataModel::MaterialData> ");
    const QString map = text("QMap<int, QSharedPointer<DataModel::MaterialData>> ");
    const QString type = text("BaseModule::MaterialLibType ");
    QTest::newRow("material manager, public")
        << declarations("MaterialLibraryManager.h", "public:")
        << QStringList{
               text("static MaterialLibraryManager* getInstance()"),
               text("void initProjectMaterial()"),
               text("void writeProjectMatConfig()"),
               text("void clearProjectMaterial()"),
               text("void createProjectMat(") + names + properties,
               text("void createSoftwareMat(") + names + properties,
               text("void updateProjectMat(int id, ") + names + properties,
               text("void updateSoftwareMat(int id, ") + names + properties,
               text("void deleteProjectMat(int id)"),
               text("void deleteSoftwareMat(int id)"),
               material + text("getProjectMatByID(int id)"),
               material + text("getSoftwareMatByID(int id)"),
               material + text("getProjectMatByName(QString name)"),
               material + text("getSoftwareMatByName(QString name)"),
               text("bool hasProjectMatID(int id)"),
               text("bool hasSoftwareMatID(int id)"),
               text("bool hasSameName(QString name, int id, ") + type + text("type)"),
               text("bool hasSameName(QString name, ") + type + text("type)"),
               text("int getNextMatIDByType(") + type + text("type)"),
               map + text("getMatLibDataByType(") + type + text("type)"),
               text("bool importMaterial(") + type + text("fromType, QList<int> ids)"),
               text("bool importAllMaterial(") + type + text("fromType)"),
               text("QString getMatDesByID(int id)"),
               text("QString convertMaterialPropertToQString(QSharedPointer<DataModel::MaterialPropertyData>& data)"),
               text("QSharedPointer<DataModel::MaterialPropertyData> convertQStringToMaterialPropertyData(QString "
                    "text)")};
    QTest::newRow("material manager, private") << declarations("MaterialLibraryManager.h", "private:")
                                               << QStringList{text("MaterialLibraryManager()"),
                                                              text("~MaterialLibraryManager() override = default"),
                                                              text("void initSoftwareMaterial()"),
                                                              text("void saveSoftwareMaterial()"),
                                                              map + text("getSoftwareMatData()"),
                                                              map + text("getProjectMatData()"),
                                                              text("int getSoftwareLibNextMatID()"),
                                                              text("int getProjectLibNextMatID()"),
                                                              text("static MaterialLibraryManager* m_instance"),
                                                              text("QString m_softwareLibPath"),
                                                              map + text("m_softwareMatMap"),
                                                              text("int m_softwareNextMatID = 1"),
                                                              map + text("m_projectMatMap"),
                                                              text("int m_projectNextMatID = 1")};
    QTest::newRow("example manager, public")
        << declarations("ExampleLibraryManager.h", "public:")
        << QStringList{text("static ExampleLibraryManager* getInstance()"),
                       text("QSharedPointer<DataModel::ExampleLibData> getExampleLibData()"), text("void saveData()")};
    QTest::newRow("example manager, private")
        << declarations("ExampleLibraryManager.h", "private:")
        << QStringList{text("ExampleLibraryManager()"), text("~ExampleLibraryManager() override = default"),
                       text("static ExampleLibraryManager* m_instance"), text("QString m_exampleLibPath"),
                       text("QSharedPointer<DataModel::ExampleLibData> m_exampleLibData")};
}

void TestMaterialInterface::declares()
{
    QFETCH(QStringList, declared);
    QFETCH(QStringList, expected);
    QCOMPARE(declared, expected);
}

QTEST_GUILESS_MAIN(TestMaterialInterface)
#include "tst_materialinterface.moc"
