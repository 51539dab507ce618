// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <QDir>
#include <QProcess>
#include <QRegularExpression>
#include <QXmlStreamReader>
#include <QtTest>

namespace {

QString text(const char* utf8)
{
    return QString::fromUtf8(utf8);
}

QDir translations()
{
    return QDir(text(DATAMANAGER_SOURCE_DIR "/translations"));
}

QByteArray read(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

struct Entry
{
    QString source;
    QString translation;
    QString state; ///< empty when it is finished
};

QList<Entry> entriesOf(const QString& path)
{
    QXmlStreamReader xml(read(path));
    QList<Entry> entries;
    while (!xml.atEnd()) {
        xml.readNext();
        if (xml.isStartElement() && xml.name() == text("source")) {
            entries.append({xml.readElementText(), {}, text("missing")});
        } else if (xml.isStartElement() && xml.name() == text("translation")) {
            entries.last().state = xml.attributes().value(text("type")).toString();
            entries.last().translation = xml.readElementText();
        }
    }
    return xml.hasError() ? QList<Entry>() : entries;
}

/// The place markers and the options in a text, in a fixed order.
QStringList marksOf(const QString& line)
{
    static const QRegularExpression mark(text("%[1-9n]|--[a-z-]+|&(?=[A-Za-z])"));
    QStringList marks;
    QRegularExpressionMatchIterator matches = mark.globalMatch(line);
    while (matches.hasNext()) {
        marks.append(matches.next().captured());
    }
    marks.sort();
    return marks;
}

void addFiles(const char* filter)
{
    QTest::addColumn<QString>("name");
    for (const QString& name : translations().entryList({text(filter)})) {
        QTest::newRow(name.toUtf8().constData()) << name;
    }
}

} // namespace

/// The .ts files of the source tree.
class TestTranslationFiles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isUpToDate_data() { addFiles("*.ts"); }
    void isUpToDate();
    void isFinished_data() { addFiles("*.ts"); }
    void isFinished();
    void keepsEnglish_data() { addFiles("*_en.ts"); }
    void keepsEnglish();
    void isChinese_data() { addFiles("*_zh_CN.ts"); }
    void isChinese();
};

void TestTranslationFiles::isUpToDate()
{
    QFETCH(QString, name);
    const QTemporaryDir directory;
    for (const QString& file : translations().entryList({text("*.ts")})) {
        QVERIFY(QFile::copy(translations().filePath(file), directory.filePath(file)));
    }
    QProcess script;
    script.start(text(DATAMANAGER_SOURCE_DIR "/scripts/translations.sh"), {directory.path()});
    QVERIFY(script.waitForFinished(120000));
    QCOMPARE(script.exitCode(), 0);
    QCOMPARE(read(directory.filePath(name)), read(translations().filePath(name)));
}

void TestTranslationFiles::isFinished()
{
    QFETCH(QString, name);
    const QList<Entry> entries = entriesOf(translations().filePath(name));
    QVERIFY(!entries.isEmpty());
    for (const Entry& entry : entries) {
        QVERIFY2(entry.state.isEmpty() && !entry.translation.isEmpty(), qPrintable(entry.source));
    }
}

void TestTranslationFiles::keepsEnglish()
{
    QFETCH(QString, name);
    for (const Entry& entry : entriesOf(translations().filePath(name))) {
        QCOMPARE(entry.translation, entry.source);
    }
}

void TestTranslationFiles::isChinese()
{
    QFETCH(QString, name);
    static const QRegularExpression chinese(text("[\\x{4e00}-\\x{9fff}]"));
    for (const Entry& entry : entriesOf(translations().filePath(name))) {
        QCOMPARE(marksOf(entry.translation), marksOf(entry.source));
        QVERIFY2(chinese.match(entry.translation).hasMatch(), qPrintable(entry.source));
    }
}

QTEST_GUILESS_MAIN(TestTranslationFiles)
#include "tst_translationfiles.moc"
