// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

/// What the programs leave behind where they were not asked to write.
class tst_ProgramTraces : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void leavesNoTraces_data();
    void leavesNoTraces();
};

void tst_ProgramTraces::leavesNoTraces_data()
{
    QTest::addColumn<QString>("program");
    QTest::addColumn<QStringList>("arguments");
    const QString sample = QStringLiteral(DATAMANAGER_SOURCE_DIR "/samples/slivers.msh");
    QTest::newRow("version") << QStringLiteral(MESHQUALITY_PROGRAM) << QStringList{QStringLiteral("--version")};
    QTest::newRow("report") << QStringLiteral(MESHQUALITY_PROGRAM) << QStringList{QStringLiteral("report"), sample};
    QTest::newRow("materials") << QStringLiteral(MATERIALS_PROGRAM) << QStringList{QStringLiteral("list")};
}

// The runtime that scripts/setup.sh fetches would begin to report its use, with log files in the folder for temporary
// ones.
void tst_ProgramTraces::leavesNoTraces()
{
    QFETCH(QString, program);
    QFETCH(QStringList, arguments);
    const QTemporaryDir temporary;
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove(QStringLiteral("ORT_DISABLE_TELEMETRY"));
    environment.insert(QStringLiteral("TMPDIR"), temporary.path());
    process.setProcessEnvironment(environment);
    process.start(program, arguments);
    QVERIFY(process.waitForFinished(60000));
    QCOMPARE(process.exitCode(), 0);
    QCOMPARE(QDir(temporary.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot), QStringList());
}

QTEST_GUILESS_MAIN(tst_ProgramTraces)
#include "tst_programtraces.moc"
