// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <datamanager/material/private/KeptCopy.h>

#include <support/FilesAndLog.h>

#include <QCryptographicHash>
#include <QDir>
#include <QTemporaryDir>

#include <thread>
#include <vector>

namespace KeptCopy = DataManager::KeptCopy;

class TestKeptCopy : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keepsBytesOnce_data();
    void keepsBytesOnce();
    void leavesADirectoryWhereItIs();
    void keepsWhatSeveralKeepAtOnce();
    void removesWhatAKilledProcessLeft();
};

void TestKeptCopy::keepsBytesOnce_data()
{
    QTest::addColumn<QByteArray>("earlier");
    QTest::addColumn<QByteArray>("bytes");
    // They are compared in pieces of this size.
    const QByteArray piece(65536, 'a');
    QTest::newRow("same") << QByteArray(piece + "b") << QByteArray(piece + "b");
    QTest::newRow("same, one whole piece") << piece << piece;
    QTest::newRow("copy is longer") << QByteArray(piece + "b") << piece;
    QTest::newRow("copy is shorter") << piece << QByteArray(piece + "b");
    QTest::newRow("another first byte") << QByteArray("b" + piece) << QByteArray("a" + piece);
    QTest::newRow("another last byte") << QByteArray(piece + "b") << QByteArray(piece + "c");
}

void TestKeptCopy::keepsBytesOnce()
{
    QFETCH(QByteArray, earlier);
    QFETCH(QByteArray, bytes);
    const QTemporaryDir directory;
    const QString path = directory.filePath(text("library"));
    writeContent(path, bytes);
    writeContent(path + text(".unreadable"), earlier);
    QVERIFY(KeptCopy::keep(path, bytes));
    QVERIFY(contentOf(path + text(".unreadable")) == earlier);
    QVERIFY(contentOf(path + text(".unreadable.1")) == (earlier == bytes ? QByteArray() : bytes));
    QCOMPARE(QDir(directory.path()).entryList(QDir::Files).size(), earlier == bytes ? 2 : 3);
}

/// Which stands where the copy would be made.
void TestKeptCopy::leavesADirectoryWhereItIs()
{
    const QTemporaryDir directory;
    const QString path = directory.filePath(text("library"));
    QVERIFY(QDir().mkpath(path + text(".unreadable.new/somebody's")));
    writeContent(path, "not a library");
    QVERIFY(!KeptCopy::keep(path, "not a library"));
    QVERIFY(QFileInfo(path + text(".unreadable.new/somebody's")).isDir());
    QCOMPARE(QDir(directory.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot).size(), 2);
}

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

/// The temporary of a copy, and the one that takes its place while it is written.
void TestKeptCopy::removesWhatAKilledProcessLeft()
{
    const QTemporaryDir directory;
    const QString path = directory.filePath(text("library"));
    const QByteArray digest = QCryptographicHash::hash("library.unreadable.new", QCryptographicHash::Sha1).toHex();
    writeContent(path, "library");
    writeContent(path + text(".unreadable.new"), "half");
    writeContent(directory.filePath(QLatin1Char('.') + QString::fromLatin1(digest.left(16)) + text(".saving")),
                 "a half");
    KeptCopy::removeAbandoned(path);
    QCOMPARE(QDir(directory.path()).entryList(QDir::Files | QDir::Hidden), QStringList{text("library")});
}

QTEST_GUILESS_MAIN(TestKeptCopy)
#include "tst_keptcopy.moc"
