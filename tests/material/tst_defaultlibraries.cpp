// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include "MaterialFixture.h"

#include <datamanager/material/ExampleLibraryManager.h>

#include <datamodel/ExampleLibData.h>

#include <QDir>
#include <QProcess>
#include <QtTest>

#include <cmath>

using BaseModule::SoftwareLib;

namespace {

QString source(const char* name)
{
    return text(DATAMANAGER_SOURCE_DIR "/samples/") + text(name);
}

bool runCMake(const QStringList& arguments)
{
    return QProcess::execute(text(CMAKE_PROGRAM), arguments) == 0;
}

bool isChinese(const QString& name)
{
    return std::any_of(name.begin(), name.end(), [](QChar unit) { return unit.script() == QChar::Script_Han; });
}

} // namespace

/// The libraries that are installed with the programs: what they hold, and that an install takes nothing away.
class TestDefaultLibraries : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void holdMaterials();
    void holdProperties();
    void areReadWithoutLoss();
    void areInstalledOnlyWhereThereAreNone();
    void nameInstalledProjects();
    void areBuiltOnlyWhereThereAreNone();

private:
    QList<QSharedPointer<DataModel::MaterialData>> materials();
    QString installed(const char* name) const { return m_prefix->filePath(text(name)); }
    static bool isInstallable() { return qstrlen(SAMPLES_INSTALL) > 0; }
    bool install() const
    {
        return runCMake({text("-DCMAKE_INSTALL_PREFIX=") + m_prefix->path(), text("-P"), text(SAMPLES_INSTALL)});
    }

    std::unique_ptr<MaterialFixture> m_fixture;
    std::unique_ptr<QTemporaryDir> m_prefix;
};

void TestDefaultLibraries::init()
{
    m_fixture = std::make_unique<MaterialFixture>();
    m_prefix = std::make_unique<QTemporaryDir>();
    QVERIFY(QFile::copy(source("libraries/MaterialLibrary.json"), MaterialFixture::softwarePath()));
    m_fixture->newManager();
}

void TestDefaultLibraries::cleanup()
{
    m_fixture.reset();
    m_prefix.reset();
}

QList<QSharedPointer<DataModel::MaterialData>> TestDefaultLibraries::materials()
{
    return m_fixture->manager().getMatLibDataByType(SoftwareLib).values();
}

void TestDefaultLibraries::holdMaterials()
{
    const auto list = materials();
    QVERIFY(list.size() >= 25);
    QSet<QString> names;
    for (int i = 0; i < list.size(); ++i) {
        const auto& material = list.at(i);
        QCOMPARE(material->id, i + 1);
        QVERIFY(!material->isDeleted);
        QVERIFY2(isChinese(material->chineseName), qPrintable(material->englishName));
        QVERIFY2(!material->englishName.isEmpty() && !isChinese(material->englishName),
                 qPrintable(material->chineseName));
        names += {material->chineseName, material->englishName};
    }
    QCOMPARE(names.size(), 2 * list.size());
    QVERIFY(!names.contains(text("Free Space")) && !names.contains(text("自由空间")));
}

void TestDefaultLibraries::holdProperties()
{
    QSet<int> kinds;
    for (const auto& material : materials()) {
        int count = 0;
        for (const auto& property : {material->property1, material->property2, material->property3, material->property4,
                                     material->property5}) {
            if (property.isNull()) {
                continue;
            }
            const QByteArray place = (material->englishName + text(": ") + property->label).toUtf8();
            ++count;
            kinds += property->kind;
            QVERIFY2(!property->label.isEmpty(), place.constData());
            QVERIFY2(property->components.size() == 9, place.constData());
            for (int i = 0; i < 9; ++i) {
                const double value = property->components.at(i);
                QVERIFY2(std::isfinite(value) && (i % 4 != 0 || value >= 0), place.constData());
            }
            QVERIFY2(property->remark.startsWith(text("unit ")), place.constData());
            QVERIFY2(property->remark.contains(text("source ")) || property->remark.contains(text("by convention")),
                     place.constData());
        }
        QVERIFY2(count > 0, qPrintable(material->englishName));
    }
    QCOMPARE(kinds, (QSet<int>{1, 2, 3, 4, 5}));
}

void TestDefaultLibraries::areReadWithoutLoss()
{
    const int count = materials().size();
    m_fixture->createSoftware(text("mine"));
    m_fixture->newManager();
    QCOMPARE(materials().size(), count + 1);
    QVERIFY(QFile::copy(source("libraries/ExampleLibrary.json"),
                        QFileInfo(MaterialFixture::softwarePath()).path() + text("/ExampleLibrary.json")));
    const std::unique_ptr<DataManager::ExampleLibraryManager> examples(new DataManager::ExampleLibraryManager);
    examples->saveData();
    QCOMPARE(QFileInfo(MaterialFixture::softwarePath()).dir().entryList(QDir::Files | QDir::Hidden),
             (QStringList{text("ExampleLibrary.json"), text("MaterialLibrary.json")}));
}

void TestDefaultLibraries::areInstalledOnlyWhereThereAreNone()
{
    if (!isInstallable()) {
        QSKIP("configured without install rules");
    }
    QVERIFY(install());
    for (const char* const name : {"MaterialLibrary.json", "ExampleLibrary.json"}) {
        const QString path = m_prefix->path() + text("/bin/ConfigFiles/") + text(name);
        const QByteArray content = contentOf(path);
        QVERIFY(!content.isEmpty());
        QCOMPARE(content, contentOf(source("libraries/") + text(name)));
        writeContent(path, "what a user saved");
    }
    QVERIFY(QFile::remove(installed("bin/ConfigFiles/ExampleLibrary.json")));
    QVERIFY(install());
    QCOMPARE(contentOf(installed("bin/ConfigFiles/MaterialLibrary.json")), QByteArray("what a user saved"));
    QCOMPARE(contentOf(installed("bin/ConfigFiles/ExampleLibrary.json")),
             contentOf(source("libraries/ExampleLibrary.json")));
}

void TestDefaultLibraries::nameInstalledProjects()
{
    if (!isInstallable()) {
        QSKIP("configured without install rules");
    }
    QVERIFY(install());
    const QString directory = installed("bin/ConfigFiles/");
    const QJsonObject root = QJsonDocument::fromJson(contentOf(directory + text("ExampleLibrary.json"))).object();
    const QJsonArray examples = root.value(text("exampleList")).toArray();
    QVERIFY(examples.size() >= 3);
    for (const QJsonValue example : examples) {
        for (const char* const member : {"chineseProjectPath", "englishProjectPath"}) {
            const QString path = example.toObject().value(text(member)).toString();
            QVERIFY2(QFileInfo(directory + path).isFile(), qPrintable(path));
        }
    }
}

void TestDefaultLibraries::areBuiltOnlyWhereThereAreNone()
{
    const QStringList copy = {text("-DSOURCE=") + source("libraries/MaterialLibrary.json"),
                              text("-DDIRECTORY=") + m_prefix->path(), text("-P"), source("CopyIfAbsent.cmake")};
    QVERIFY(runCMake(copy));
    QCOMPARE(contentOf(installed("MaterialLibrary.json")), contentOf(source("libraries/MaterialLibrary.json")));
    writeContent(installed("MaterialLibrary.json"), "what a user saved");
    QVERIFY(runCMake(copy));
    QCOMPARE(contentOf(installed("MaterialLibrary.json")), QByteArray("what a user saved"));
}

QTEST_GUILESS_MAIN(TestDefaultLibraries)
#include "tst_defaultlibraries.moc"
