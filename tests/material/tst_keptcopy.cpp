// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <datamanager/material/private/KeptCopy.h>

#include <support/FilesAndLog.h>

#include <QDir>
#include <QTemporaryDir>

#include <thread>
#include <vector>

namespace KeptCopy = DataManager::KeptCopy;

class TestKeptCopy : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keepsWhatSeveralKeepAtOnce();
};

/// Threads stand for processes: they share nothing but the directory.
void TestKeptCopy::keepsWhatSeveralKeepAtOnce()
{
    constexpr int rounds = 100;
    constexpr int keepers = 3;
    int keptCount = 0;
    for (int round = 0; round < rounds; ++round) {
        const QTemporaryDir directory;
        const QString path = directory.filePath(text("library"));
        writeContent(path, "not a library");
        QList<QByteArray> contents;
        for (int i = 0; i < keepers; ++i) {
            contents.append(QByteArray(1000, char('a' + i)));
        }
        std::vector<char> isKept(keepers, 0);
        std::vector<std::thread> threads;
        for (int i = 0; i < keepers; ++i) {
            threads.emplace_back([&, i] { isKept[size_t(i)] = KeptCopy::keep(path, contents.at(i)) ? 1 : 0; });
        }
        for (std::thread& thread : threads) {
            thread.join();
        }
        QList<QByteArray> kept;
        for (const QFileInfo& copy : QDir(directory.path()).entryInfoList({text("library.unreadable*")}, QDir::Files)) {
            kept.append(contentOf(copy.filePath()));
        }
        for (int i = 0; i < keepers; ++i) {
            // Whoever was disturbed too often may give up, but nobody is told of a copy that is not there.
            QVERIFY(isKept[size_t(i)] == 0 || kept.contains(contents.at(i)));
            keptCount += isKept[size_t(i)];
        }
        QVERIFY(!QFile::exists(path + text(".unreadable.new")));
    }
    QVERIFY2(keptCount > rounds * keepers / 2, qPrintable(QString::number(keptCount)));
}

QTEST_GUILESS_MAIN(TestKeptCopy)
#include "tst_keptcopy.moc"
