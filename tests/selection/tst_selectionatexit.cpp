// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <selection/StoreCase.h>

#include <QProcess>

#include <cstdio>

namespace {

const QString clickAtExit = QStringLiteral("click-at-exit");

/// Made before the store is first used, so it ends after whatever the store might destroy at exit.
class LastClick
{
public:
    ~LastClick()
    {
        SignalLog log;
        SelectedDataManager::getInstance()->clickViewObject(1, 2);
        std::puts(log.take().join(QLatin1Char('\n')).toLatin1().constData());
    }
};

/// What the test runs as a process of its own.
int clickInProcess()
{
    static LastClick lastClick;
    SelectedDataManager::getInstance()->init();
    SelectedDataManager::getInstance()->clickViewObject(5, 5);
    return 0;
}

} // namespace

class tst_SelectionAtExit : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void staticObjectsMayClick();
};

void tst_SelectionAtExit::staticObjectsMayClick()
{
    QProcess process;
    process.start(QCoreApplication::applicationFilePath(), {clickAtExit});
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.readAllStandardError(), QByteArray());
    QCOMPARE(QString::fromLatin1(process.readAllStandardOutput()).split(QLatin1Char('\n'), Qt::SkipEmptyParts),
             lines({"setViewObjectListState 0 [(1,2)] 1", "updateViewObjectState 0 (1,2) 1",
                    "refreshActionOnSelectDataChanged", "updateGeomrtryActorTransparency 2"}));
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(process.exitCode(), 0);
}

int main(int argc, char** argv)
{
    if (argc > 1 && QString::fromLocal8Bit(argv[1]) == clickAtExit) {
        return clickInProcess();
    }
    const QCoreApplication application(argc, argv);
    tst_SelectionAtExit test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_selectionatexit.moc"
