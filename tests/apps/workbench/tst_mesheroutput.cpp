// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include "Samples.h"
#include "WindowTest.h"

#include <workbench/mesh/MesherProcess.h>
#include <workbench/project/Project.h>
#include <workbench/window/MessagePanel.h>

#include <QPlainTextEdit>
#include <QTabWidget>
#include <QTemporaryDir>

#include <memory>

using namespace Workbench;

/// What the mesher prints, in the panel of messages.
class tst_MesherOutput : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m_panel.reset(); }
    void cleanupTestCase() { Project::instance()->close(); }

    void showsWhatIsPrinted();
    void showsItWhileTheMesherWorks();
    void goesOnAtTheEnd();
    void beginsAnew();
    void keepsTheLastLines();
    void stepsBackForAnError();

private:
    /// Runs a mesher that does this, to its end.
    void run(const QByteArray& commands);
    void start(const QByteArray& commands);
    QString shown() const { return m_output->toPlainText(); }

    QTemporaryDir m_directory;
    std::unique_ptr<MessagePanel> m_panel;
    QPlainTextEdit* m_output = nullptr;
};

void tst_MesherOutput::init()
{
    QVERIFY(Project::instance()->create());
    m_panel = std::make_unique<MessagePanel>();
    m_output = m_panel->findChild<QPlainTextEdit*>();
    QVERIFY(m_output != nullptr && m_output->isReadOnly());
    QCOMPARE(shown(), QString());
}

void tst_MesherOutput::start(const QByteArray& commands)
{
    const QString script = writeFile(m_directory.filePath(QStringLiteral("mesher")), "#!/bin/sh\n" + commands + "\n");
    QFile::setPermissions(script, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    qputenv("WORKBENCH_GMSH", QFile::encodeName(script));
    QVERIFY(MesherProcess::instance()->start(samplePath("slivers.geo")));
}

void tst_MesherOutput::run(const QByteArray& commands)
{
    start(commands);
    QTRY_VERIFY_WITH_TIMEOUT(!MesherProcess::instance()->isRunning(), 60000);
}

// Of both channels, as it is: with blanks and what looks like marks, in one piece.
void tst_MesherOutput::showsWhatIsPrinted()
{
    run("printf 'Info    : <b>one</b>\\n'; printf 'Warning : two\\n' >&2; printf 'thr'; printf 'ee\\n'; exit 1");
    QCOMPARE(shown(), QStringLiteral("Info    : <b>one</b>\nWarning : two\nthree\n"));
}

void tst_MesherOutput::showsItWhileTheMesherWorks()
{
    start("echo half; exec sleep 600");
    QTRY_COMPARE(shown(), QStringLiteral("half\n"));
    QVERIFY(MesherProcess::instance()->isRunning());
    MesherProcess::instance()->cancel();
    // It stays after the end.
    QCOMPARE(shown(), QStringLiteral("half\n"));
}

// Wherever the user has put the cursor.
void tst_MesherOutput::goesOnAtTheEnd()
{
    const QString gate = m_directory.filePath(QStringLiteral("gate"));
    start("echo first; while [ ! -e '" + QFile::encodeName(gate) + "' ]; do sleep 0.02; done; echo second; exit 1");
    QTRY_COMPARE(shown(), QStringLiteral("first\n"));
    m_output->moveCursor(QTextCursor::Start);
    m_output->moveCursor(QTextCursor::EndOfWord, QTextCursor::KeepAnchor);
    writeFile(gate, "open");
    QTRY_VERIFY(!MesherProcess::instance()->isRunning());
    QCOMPARE(shown(), QStringLiteral("first\nsecond\n"));
}

void tst_MesherOutput::beginsAnew()
{
    run("echo old; exit 1");
    QCOMPARE(shown(), QStringLiteral("old\n"));
    run("echo new; exit 1");
    QCOMPARE(shown(), QStringLiteral("new\n"));
}

void tst_MesherOutput::keepsTheLastLines()
{
    run("seq 1 7000; exit 1");
    const QStringList lines = shown().split(QLatin1Char('\n'));
    QCOMPARE(lines.size(), 5000);
    QCOMPARE(lines.first(), QStringLiteral("2002"));
    QCOMPARE(lines.mid(4998), (QStringList{QStringLiteral("7000"), QString()}));
}

// What is printed does not hide a message, and a message does not wait behind what was printed.
void tst_MesherOutput::stepsBackForAnError()
{
    auto* tabs = m_panel->findChild<QTabWidget*>();
    QCOMPARE(tabs->currentIndex(), 0);
    QCOMPARE(tabs->indexOf(m_output), 1);
    start("echo half; exec sleep 600");
    QTRY_COMPARE(shown(), QStringLiteral("half\n"));
    MesherProcess::instance()->cancel();
    QCOMPARE(tabs->currentIndex(), 0);
    tabs->setCurrentIndex(1);
    run("echo 'Error   : no'; exit 1");
    QCOMPARE(shown(), QStringLiteral("Error   : no\n"));
    QCOMPARE(tabs->currentIndex(), 0);
}

WORKBENCH_TEST_MAIN(tst_MesherOutput)
#include "tst_mesheroutput.moc"
