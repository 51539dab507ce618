// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <support/FilesAndLog.h>
#include <workbench/material/SaveWatch.h>

#include <atomic>
#include <future>
#include <memory>
#include <thread>
#include <vector>

using Workbench::SaveWatch;

namespace {

std::atomic<int> passedOn{0};

void count(QtMsgType, const QMessageLogContext&, const QString&)
{
    ++passedOn;
}

void logFromAnotherThread(const char* line)
{
    std::thread([line] { qDebug("%s", line); }).join();
}

} // namespace

/// What is noted while libraries save.
class tst_SaveWatch : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { qInstallMessageHandler(m_before); }

    void notesAndPassesOn();
    void notesWithinAnother();
    void leavesOutOtherThreads();
    void notesInTwoThreads();
    void comesAndGoesWhileOthersLog();
    void followsOneThatPutItBack();

private:
    QtMessageHandler m_before = nullptr;
};

void tst_SaveWatch::init()
{
    m_before = qInstallMessageHandler(count);
    passedOn = 0;
}

void tst_SaveWatch::notesAndPassesOn()
{
    qDebug("before");
    {
        const SaveWatch watch;
        QCOMPARE(watch.lines(), QStringList());
        qDebug("first");
        qCritical("second");
        QCOMPARE(watch.lines(), QStringList({text("first"), text("second")}));
    }
    qDebug("after");
    QCOMPARE(passedOn.load(), 4);
    QCOMPARE(SaveWatch().lines(), QStringList());
}

void tst_SaveWatch::notesWithinAnother()
{
    const SaveWatch outer;
    qDebug("first");
    {
        const SaveWatch inner;
        qDebug("second");
        QCOMPARE(inner.lines(), QStringList(text("second")));
    }
    qDebug("third");
    QCOMPARE(outer.lines(), QStringList({text("first"), text("second"), text("third")}));
    QCOMPARE(passedOn.load(), 3);
}

void tst_SaveWatch::leavesOutOtherThreads()
{
    const SaveWatch watch;
    qDebug("own");
    logFromAnotherThread("other");
    QCOMPARE(watch.lines(), QStringList(text("own")));
    QCOMPARE(passedOn.load(), 2);
}

// The first one ends while the second is at work.
void tst_SaveWatch::notesInTwoThreads()
{
    std::promise<void> begun;
    std::promise<void> ended;
    QStringList others;
    auto first = std::make_unique<SaveWatch>();
    std::thread thread([&] {
        const SaveWatch second;
        begun.set_value();
        ended.get_future().wait();
        qDebug("other");
        others = second.lines();
    });
    begun.get_future().wait();
    qDebug("own");
    const QStringList own = first->lines();
    first.reset();
    ended.set_value();
    thread.join();
    QCOMPARE(own, QStringList(text("own")));
    QCOMPARE(others, QStringList(text("other")));
    QCOMPARE(passedOn.load(), 2);
}

// Threads are in the handler while it is put in place, while lines are noted, and when it has been taken away.
void tst_SaveWatch::comesAndGoesWhileOthersLog()
{
    std::atomic<bool> isOver{false};
    std::atomic<int> logged{0};
    std::vector<std::thread> threads;
    for (int i = 0; i < 3; ++i) {
        threads.emplace_back([&isOver, &logged] {
            while (!isOver) {
                qDebug("other");
                ++logged;
            }
        });
    }
    int strangers = 0;
    int watches = 0;
    for (; watches < 2000 || logged < 20000; ++watches) {
        const SaveWatch watch;
        qDebug("own");
        strangers += watch.lines() == QStringList(text("own")) ? 0 : 1;
    }
    isOver = true;
    for (std::thread& thread : threads) {
        thread.join();
    }
    QCOMPARE(strangers, 0);
    QCOMPARE(passedOn.load(), watches + logged.load());
}

void tst_SaveWatch::followsOneThatPutItBack()
{
    auto first = std::make_unique<SaveWatch>();
    auto lines = std::make_unique<LogLines>();
    first.reset();
    lines.reset();
    const SaveWatch second;
    qDebug("own");
    QCOMPARE(second.lines(), QStringList(text("own")));
    QCOMPARE(passedOn.load(), 1);
}

QTEST_APPLESS_MAIN(tst_SaveWatch)
#include "tst_savewatch.moc"
