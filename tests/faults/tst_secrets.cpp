// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include "SavedFile.h"

#include <QtTest>

#include <algorithm>

namespace {

const QString key = QStringLiteral("a key that nobody may find");
const QString words = QString(40000, QLatin1Char('q'));

/// What everything in a directory holds, hidden files included.
QByteArray contentBelow(const QString& directory)
{
    QByteArray content;
    QDirIterator files(directory, QDir::Files | QDir::Hidden | QDir::System, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        content += contentOf(files.next());
    }
    return content;
}

/// Whether a part of the text shows, as it stands or in the forms that are easily undone.
bool showsWords(const QByteArray& content)
{
    const QByteArray part(30, 'q');
    const QByteArray base64 = part.toBase64();
    return content.contains(part) || content.contains(base64) || content.contains(part.toHex());
}

} // namespace

/// What is enciphered stays so wherever a save leaves bytes: in the file, in the temporary of a killed process, in the
/// log.
class TestSecrets : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void staySecretWhenASaveIsKilled_data();
    void staySecretWhenASaveIsKilled();
    void staySecretInTheLog_data();
    void staySecretInTheLog();

private:
    QTemporaryDir m_place;
};

/// The libraries that are written in plain text show that the search finds what is there.
void TestSecrets::staySecretWhenASaveIsKilled_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<bool>("isSecret");
    QTest::newRow("project") << text("project") << true;
    QTest::newRow("software") << text("software") << false;
    QTest::newRow("plain") << text("plain") << false;
}

void TestSecrets::staySecretWhenASaveIsKilled()
{
    QFETCH(QString, kind);
    QFETCH(bool, isSecret);
    SavedFile file(m_place.path(), kind);
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(text("DATAMANAGER_CIPHER_KEY"), key);
    process.setProcessEnvironment(environment);
    // Killed by the signal of the limit, when a part is written.
    process.start(text("bash"), QStringList{text("-c"), text("ulimit -c 0 -f 8; exec \"$0\" \"$@\""), file.program()}
                                    << file.saveArguments(QLatin1Char('q'), words.size()));
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.exitStatus(), QProcess::CrashExit);
    const QStringList left = file.neighbours();
    const auto isTemporary = [](const QString& name) { return name.endsWith(text(".saving")); };
    QCOMPARE(std::count_if(left.begin(), left.end(), isTemporary), 1);
    const QByteArray content = contentBelow(file.directory());
    QVERIFY(content.size() >= 8192);
    QCOMPARE(showsWords(content), !isSecret);
    QVERIFY(!content.contains(key.toUtf8()));
}

void TestSecrets::staySecretInTheLog_data()
{
    QTest::addColumn<QStringList>("variables");
    QTest::addColumn<bool>("isSaved");
    QTest::newRow("saved") << QStringList{} << true;
    QTest::newRow("not saved") << QStringList{text("FILESAVER_FILE_SIZE=100")} << false;
    QTest::newRow("saved with another key") << QStringList{text("DATAMANAGER_CIPHER_KEY=another")} << true;
}

/// Saves beside a library of the first key, which cannot be read with another.
void TestSecrets::staySecretInTheLog()
{
    QFETCH(QStringList, variables);
    QFETCH(bool, isSaved);
    SavedFile file(m_place.path(), text("project"));
    file.setVariable("FILESAVER_LOG", text("1"));
    file.setVariable("DATAMANAGER_CIPHER_KEY", key);
    QString log = file.log(file.saveArguments(QLatin1Char('q'), words.size()));
    for (const QString& variable : variables) {
        file.setVariable(qPrintable(variable.section(QLatin1Char('='), 0, 0)), variable.section(QLatin1Char('='), 1));
    }
    log += file.log(file.saveArguments(QLatin1Char('q'), words.size() + 1));
    log += file.log(file.loadArguments());
    QCOMPARE(log.contains(file.failureLine()), !isSaved);
    QVERIFY(!showsWords(log.toUtf8()));
    QVERIFY(!log.contains(key));
    const QByteArray content = contentBelow(file.directory());
    QVERIFY(!showsWords(content));
    QVERIFY(!content.contains(key.toUtf8()));
}

QTEST_GUILESS_MAIN(TestSecrets)
#include "tst_secrets.moc"
