// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <console/Columns.h>
#include <console/Message.h>
#include <console/Translations.h>

#include <basemodule/GlobalHelper.h>
#include <configoption/ConfigManager.h>
#include <datamanager/coordinates/RelativeCoordinateSystem.h>
#include <datamanager/material/MaterialLibraryManager.h>
#include <datamodel/SelectedDataBase.h>

#include <support/SignalLog.h>

#include <QProcess>
#include <QtTest>

namespace {

QString text(const char* utf8)
{
    return QString::fromUtf8(utf8);
}

QStringList words(const char* utf8)
{
    return text(utf8).split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

QStringList keysOf(DataModel::PropertyTableData* table)
{
    QStringList keys;
    for (int row = 0; row < table->getRowCount(); ++row) {
        keys.append(table->getRowKey(row));
    }
    return keys;
}

QString language()
{
    return ConfigOption::ConfigManager::getInstance()->getLanguage();
}

struct Run
{
    int exitCode;
    QByteArray output;
    QByteArray errors;
};

Run run(const char* program, const QStringList& arguments, const char* environment = "")
{
    QProcess process;
    QProcessEnvironment variables = QProcessEnvironment::systemEnvironment();
    variables.insert(text("DATAMANAGER_LANGUAGE"), text(environment));
    process.setProcessEnvironment(variables);
    process.start(text(program), arguments);
    process.waitForFinished(60000);
    return {process.exitCode(), process.readAllStandardOutput(), process.readAllStandardError()};
}

} // namespace

/// Languages, as the library's listeners and the users of the programs meet them.
class TestTranslations : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init() { ConfigOption::ConfigManager::getInstance()->setLanguage(text("English")); }
    void speaksTheSourcesWithoutTranslations();
    void changesAtRunTime_data();
    void changesAtRunTime();
    void describesInChinese();
    void chooses_data();
    void chooses();
    void takesTheVariable_data();
    void takesTheVariable();
    void keepsItsLanguageForAnUnknownOne();
    void fillsBothLanguages();
    void countsColumns_data();
    void countsColumns();
    void speaksChinese_data();
    void speaksChinese();
    void refusesOtherLanguages();
    void alignsTables();
    void writesPages_data();
    void writesPages();
    void keepsWhatProgramsRead_data();
    void keepsWhatProgramsRead();

private:
    QTemporaryDir m_project;
};

void TestTranslations::initTestCase()
{
    qunsetenv("DATAMANAGER_LANGUAGE");
    BaseModule::GlobalHelper::setProjectTempIODir(m_project.path());
    QTest::ignoreMessage(QtDebugMsg, QRegularExpression(text("^Read software material library file fail")));
    DataManager::MaterialLibraryManager::getInstance();
}

void TestTranslations::speaksTheSourcesWithoutTranslations()
{
    Console::Translations translations({text("datamanager")});
    QVERIFY(translations.setLanguage(text("English")));
    SignalLog log;
    DataManager::MaterialLibraryManager::getInstance()->deleteSoftwareMat(42);
    QCOMPARE(log.take(), QStringList{text("showMessageType 2 Delete software material failed! "
                                          "material ID is not exists! id:42.")});
}

void TestTranslations::changesAtRunTime_data()
{
    QTest::addColumn<QString>("english");
    QTest::addColumn<QString>("chinese");
    QTest::addColumn<int>("call");
    QTest::newRow("delete, software") << text("Delete software material failed! material ID is not exists! id:7.")
                                      << text("删除软件材料失败！材料编号 7 不存在。") << 0;
    QTest::newRow("delete, project") << text("Delete project material failed! material ID is not exists! id:7")
                                     << text("删除工程材料失败！材料编号 7 不存在") << 1;
    QTest::newRow("import, software") << text("Import software material fail! materail id : 7 is not exist!")
                                      << text("导入软件材料失败！材料编号 7 不存在！") << 2;
    QTest::newRow("import, project") << text("Import project material fail! materail id : 7 is not exist!")
                                     << text("导入工程材料失败！材料编号 7 不存在！") << 3;
    QTest::newRow("library type") << text("Import material fail! materail library type : 5 is not exist!")
                                  << text("导入材料失败！材料库类型 5 不存在！") << 4;
}

void TestTranslations::changesAtRunTime()
{
    QFETCH(QString, english);
    QFETCH(QString, chinese);
    QFETCH(int, call);
    auto* const manager = DataManager::MaterialLibraryManager::getInstance();
    const QList<std::function<void()>> calls = {
        [manager] { manager->deleteSoftwareMat(7); }, [manager] { manager->deleteProjectMat(7); },
        [manager] { manager->importMaterial(BaseModule::SoftwareLib, {7}); },
        [manager] { manager->importMaterial(BaseModule::ProjectLib, {7}); },
        [manager] { manager->importMaterial(BaseModule::MaterialLibType(5), {7}); }};
    SignalLog log;
    Console::Translations translations({text("datamanager")});
    calls.at(call)();
    QVERIFY(translations.setLanguage(text("Chinese")));
    calls.at(call)();
    QVERIFY(translations.setLanguage(text("English")));
    calls.at(call)();
    const QString signal = text("showMessageType 2 ");
    QCOMPARE(log.take(), (QStringList{signal + english, signal + chinese, signal + english}));
}

void TestTranslations::describesInChinese()
{
    auto* const manager = DataManager::MaterialLibraryManager::getInstance();
    QTest::ignoreMessage(QtDebugMsg, QRegularExpression(text("^Read project material library file fail")));
    manager->initProjectMaterial();
    manager->createProjectMat(text("铜"), text("Copper"), {}, {}, {}, {}, {});
    DataManager::RelativeCoordinateSystem system;
    QCOMPARE(manager->getMatDesByID(1), text("Material: Copper"));
    {
        Console::Translations translations({text("datamanager")});
        QVERIFY(translations.setLanguage(text("Chinese")));
        QCOMPARE(manager->getMatDesByID(1), text("材料：铜"));
        QCOMPARE(manager->getMatDesByID(9), text("材料：自由空间"));
        QCOMPARE(keysOf(system.getProperty()),
                 (QStringList{text("ID"), text("基础坐标系编号"), text("名称"), text("坐标"), text("四元数")}));
    }
    QCOMPARE(manager->getMatDesByID(9), text("Material: Free Space"));
    manager->clearProjectMaterial();
}

void TestTranslations::chooses_data()
{
    QTest::addColumn<QStringList>("call");
    QTest::addColumn<bool>("isChosen");
    QTest::addColumn<QString>("chosen");
    QTest::addColumn<QStringList>("rest");
    const auto row = [](const char* call, bool isChosen, const char* chosen, const char* rest) {
        QTest::newRow(call) << words(call) << isChosen << text(chosen) << words(rest);
    };
    row("p list", true, "English", "p list");
    row("p --language Chinese list", true, "Chinese", "p list");
    row("p list --language=Chinese --json", true, "Chinese", "p list --json");
    row("p list --language zh_CN.UTF-8", true, "Chinese", "p list");
    row("p list --language zh", true, "Chinese", "p list");
    row("p list --language en_GB", true, "English", "p list");
    row("p list --language English", true, "English", "p list");
    row("p list --language", false, "English", "p list");
    row("p list --language=", false, "English", "p list");
    row("p list --language Klingon", false, "English", "p list");
    row("p -- --language Chinese", true, "English", "p -- --language Chinese");
    row("--language Chinese", true, "English", "--language Chinese"); // the program's own name
}

void TestTranslations::chooses()
{
    QFETCH(QStringList, call);
    QFETCH(bool, isChosen);
    QFETCH(QString, chosen);
    QFETCH(QStringList, rest);
    Console::Translations translations({text("datamanager")});
    QCOMPARE(translations.choose(call), isChosen);
    QCOMPARE(language(), chosen);
    QCOMPARE(call, rest);
    QCOMPARE(QObject::tr("Name"), chosen == text("Chinese") ? text("名称") : text("Name"));
}

void TestTranslations::takesTheVariable_data()
{
    QTest::addColumn<QByteArray>("variable");
    QTest::addColumn<QString>("setting");
    QTest::addColumn<QString>("spoken");
    QTest::newRow("variable") << QByteArray("zh_CN.UTF-8") << text("English") << text("Chinese");
    QTest::newRow("against the setting") << QByteArray("en") << text("Chinese") << text("English");
    QTest::newRow("none") << QByteArray() << text("Chinese") << text("Chinese");
    QTest::newRow("unknown") << QByteArray("Klingon") << text("Chinese") << text("Chinese");
    QTest::newRow("unknown setting") << QByteArray() << text("Klingon") << text("Klingon");
}

void TestTranslations::takesTheVariable()
{
    QFETCH(QByteArray, variable);
    QFETCH(QString, setting);
    QFETCH(QString, spoken);
    qputenv("DATAMANAGER_LANGUAGE", variable);
    ConfigOption::ConfigManager::getInstance()->setLanguage(setting);
    Console::Translations translations({text("datamanager")});
    QStringList call = {text("p")};
    QVERIFY(translations.choose(call));
    qunsetenv("DATAMANAGER_LANGUAGE");
    QCOMPARE(language(), spoken);
    QCOMPARE(QObject::tr("Name"), spoken == text("Chinese") ? text("名称") : text("Name"));
}

void TestTranslations::keepsItsLanguageForAnUnknownOne()
{
    Console::Translations translations({text("datamanager"), text("no-such-catalogue")});
    QVERIFY(translations.setLanguage(text("Chinese")));
    QVERIFY(!translations.setLanguage(text("Klingon")));
    QCOMPARE(language(), text("Chinese"));
    QCOMPARE(QObject::tr("Name"), text("名称"));
}

void TestTranslations::fillsBothLanguages()
{
    Console::Translations translations({text("tools")});
    QVERIFY(translations.setLanguage(text("Chinese")));
    const Console::Message none = Console::makeMessage("materials", "is empty");
    QCOMPARE(none.english + none.translated, text("is empty为空"));
    const Console::Message one = Console::makeMessage("materials", "'%1' is reserved", {text("%2")});
    QCOMPARE(one.english + one.translated, text("'%2' is reserved“%2”是保留名称"));
    const Console::Message two = Console::makeMessage("materials", "is %1, expected %2", {text("%2"), text("b")});
    QCOMPARE(two.english + two.translated, text("is %2, expected b为 %2，应为 b"));
    const Console::Message three = Console::makeMessage("materials", "%1 %2 %3", words("c %1 a"));
    QCOMPARE(three.english, text("c %1 a"));
}

void TestTranslations::countsColumns_data()
{
    QTest::addColumn<QString>("word");
    QTest::addColumn<int>("columns");
    QTest::newRow("empty") << QString() << 0;
    QTest::newRow("Latin") << text("live") << 4;
    QTest::newRow("accents") << text("Dürer é") << 7;
    QTest::newRow("Chinese") << text("有效") << 4;
    QTest::newRow("full-width marks") << text("（1），：！") << 11;
    QTest::newRow("mixed") << text("95 % 分位") << 9;
    QTest::newRow("Hangul") << text("한글") << 4;
}

void TestTranslations::countsColumns()
{
    QFETCH(QString, word);
    QFETCH(int, columns);
    QCOMPARE(Console::columnCount(word), columns);
    QCOMPARE(Console::leftJustified(word, columns + 2), word + text("  "));
    QCOMPARE(Console::rightJustified(word, columns + 2), text("  ") + word);
    QCOMPARE(Console::leftJustified(word, columns - 1) + Console::rightJustified(word, 0), word + word);
}

void TestTranslations::speaksChinese_data()
{
    QTest::addColumn<QString>("program");
    QTest::addColumn<QStringList>("call");
    QTest::addColumn<QString>("output");
    QTest::addColumn<QString>("errors");
    QTest::addColumn<int>("exitCode");
    const QString materials = text(MATERIALS_PROGRAM);
    QTest::newRow("materials, wrong call") << materials << words("frob") << QString()
                                           << text("materials: 未知命令“frob”；用法参见 materials --help\n") << 2;
    QTest::newRow("materials, missing file")
        << materials << words("check none.json") << QString() << text("materials: none.json：无法读取\n") << 3;
    QTest::newRow("materials, help") << materials << words("--help") << text("退出码：0 成功") << QString() << 0;
    const QString meshquality = text(MESHQUALITY_PROGRAM);
    const QString slivers = text(DATAMANAGER_SOURCE_DIR "/samples/slivers.msh");
    QTest::newRow("meshquality, wrong call") << meshquality << words("frob") << QString()
                                             << text("meshquality: 未知命令“frob”；用法参见 meshquality --help\n") << 2;
    QTest::newRow("meshquality, no mesh")
        << meshquality << words("report none.msh") << QString() << text("meshquality: none.msh: 文件不存在\n") << 3;
    QTest::newRow("meshquality, help") << meshquality << words("--help") << text("退出码：0 成功") << QString() << 0;
    QTest::newRow("meshquality, check") << meshquality << QStringList{text("check"), slivers}
                                        << text("不合格 %1: 不合格 EdgeRatio 871 个单元（27.5982 %）").arg(slivers)
                                        << QString() << 1;
    const QString profile = m_project.filePath(text("profile.json"));
    QFile file(profile);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(R"({"thresholds": [{"metric": "Shape", "minimum": 1, "allowedPercent": 101}]})");
    QTest::newRow("meshquality, profile")
        << meshquality << QStringList{text("check"), text("--profile"), profile, slivers} << QString()
        << text("meshquality: %1: Shape 的 allowedPercent 应在 0 到 100 之间\n").arg(profile) << 3;
    QTest::newRow("meshquality, model") << meshquality << words("model") << text("\n  符合质量模型的约定\n")
                                        << QString() << 0;
    QTest::newRow("meshquality, report") << meshquality << QStringList{text("report"), slivers}
                                         << text("\n  777 个节点，3156 个四面体（0 个翻转，0 个扁平）\n") << QString()
                                         << 0;
    QTest::newRow("meshquality, score") << meshquality << QStringList{text("report"), slivers}
                                        << text("\n  评分 0.370896（0 最差，1 最好）\n") << QString() << 0;
    QTest::newRow("meshquality, compare")
        << meshquality << QStringList{text("compare"), slivers, slivers}
        << text("\n  翻转") + QString(36, QLatin1Char(' ')) + text("0            0  相同\n") << QString() << 0;
    QTest::newRow("materials, list") << materials << words("list") << text("    1  有效     Copper ") << QString() << 0;
}

void TestTranslations::speaksChinese()
{
    QFETCH(QString, program);
    QFETCH(QStringList, call);
    QFETCH(QString, output);
    QFETCH(QString, errors);
    QFETCH(int, exitCode);
    const QByteArray path = program.toUtf8();
    const Run byOption = run(path.constData(), words("--language Chinese") + call);
    QVERIFY2(QString::fromUtf8(byOption.output).contains(output), byOption.output.constData());
    QCOMPARE(QString::fromUtf8(byOption.errors), errors);
    QCOMPARE(byOption.exitCode, exitCode);
    const Run byVariable = run(path.constData(), call, "zh_CN.UTF-8");
    QCOMPARE(byVariable.output, byOption.output);
    QCOMPARE(byVariable.errors, byOption.errors);
    QCOMPARE(run(path.constData(), call).exitCode, exitCode);
}

void TestTranslations::refusesOtherLanguages()
{
    const Run refused = run(MATERIALS_PROGRAM, words("list --language Klingon"));
    QCOMPARE(refused.exitCode, 2);
    QCOMPARE(refused.output, QByteArray());
    QCOMPARE(refused.errors, QByteArray("materials: --language takes 'English' or 'Chinese'; see materials --help\n"));
}

void TestTranslations::alignsTables()
{
    const QString mesh = text(DATAMANAGER_SOURCE_DIR "/samples/bearing-housing.msh");
    const Run english = run(MESHQUALITY_PROGRAM, {text("report"), text("--by-region"), mesh});
    const Run chinese = run(MESHQUALITY_PROGRAM, {text("--language=zh"), text("report"), text("--by-region"), mesh});
    const QStringList shown = QString::fromUtf8(chinese.output).split(QLatin1Char('\n'));
    const QStringList plain = QString::fromUtf8(english.output).split(QLatin1Char('\n'));
    QCOMPARE(shown.size(), plain.size());
    int headCount = 0;
    for (int i = 0; i < plain.size(); ++i) {
        if (plain.at(i).contains(text("mean      minimum"))) {
            QVERIFY(shown.at(i).contains(text("最小值")));
            QCOMPARE(Console::columnCount(shown.at(i)), plain.at(i).size());
            QCOMPARE(plain.at(i + 1).size(), plain.at(i).size());
            ++headCount;
        }
    }
    QCOMPARE(headCount, 4); // the mesh and its three regions
}

void TestTranslations::writesPages_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QStringList>("texts");
    QTest::newRow("English") << text("English")
                             << QStringList{text("<html lang=\"en\">"), text("<title>Mesh quality</title>"),
                                            text("<h1>Mesh quality</h1>"), text("<h3>Worst elements by Shape</h3>")};
    QTest::newRow("Chinese") << text("Chinese")
                             << QStringList{text("<html lang=\"zh-CN\">"), text("<title>网格质量</title>"),
                                            text("<h1>网格质量</h1>"), text("<h3>按 Shape 最差的单元</h3>")};
}

void TestTranslations::writesPages()
{
    QFETCH(QString, language);
    QFETCH(QStringList, texts);
    const QTemporaryDir directory;
    const QString page = directory.filePath(text("page.html"));
    const Run written = run(MESHQUALITY_PROGRAM, {text("--language"), language, text("report"), text("--html"), page,
                                                  text(DATAMANAGER_SOURCE_DIR "/samples/slivers.msh")});
    QCOMPARE(written.exitCode, 0);
    QFile file(page);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QString content = QString::fromUtf8(file.readAll());
    for (const QString& expected : texts) {
        QVERIFY2(content.contains(expected), qPrintable(expected));
    }
}

void TestTranslations::keepsWhatProgramsRead_data()
{
    QTest::addColumn<QString>("program");
    QTest::addColumn<QStringList>("call");
    const auto row = [](const char* program, const char* call) { QTest::newRow(call) << text(program) << words(call); };
    row(MESHQUALITY_PROGRAM, "report --jsonl none.msh " DATAMANAGER_SOURCE_DIR "/samples/slivers.msh");
    row(MESHQUALITY_PROGRAM, "report --json - --by-region --worst 2 " DATAMANAGER_SOURCE_DIR "/samples/slivers.msh");
    row(MESHQUALITY_PROGRAM, "check --print-profile");
    row(MESHQUALITY_PROGRAM, "model --json");
    row(MESHQUALITY_PROGRAM, "model --json " DATAMANAGER_SOURCE_DIR "/samples/slivers.msh");
    row(MATERIALS_PROGRAM, "list --json");
    row(MATERIALS_PROGRAM, "show --json Copper");
    row(MATERIALS_PROGRAM, "export");
    row(MATERIALS_PROGRAM, "export --format json");
    row(MATERIALS_PROGRAM, "import --dry-run --json software");
    row(MATERIALS_PROGRAM, "check --json " DATAMANAGER_SOURCE_DIR "/tests/translations/faults.json");
}

void TestTranslations::keepsWhatProgramsRead()
{
    QFETCH(QString, program);
    QFETCH(QStringList, call);
    const QByteArray path = program.toUtf8();
    const Run english = run(path.constData(), call);
    const Run chinese = run(path.constData(), words("--language Chinese") + call);
    QVERIFY(!english.output.isEmpty());
    QCOMPARE(chinese.output, english.output);
    QCOMPARE(chinese.exitCode, english.exitCode);
}

QTEST_GUILESS_MAIN(TestTranslations)
#include "tst_translations.moc"
