// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include "ProjectWindowTest.h"

#include <workbench/material/MaterialFavourites.h>
#include <workbench/project/RecentProjects.h>

#include <QSettings>

using namespace Workbench;

namespace {

QSet<QString> favourites()
{
    return MaterialFavourites::names(BaseModule::SoftwareLib);
}

QString settingsDirectory()
{
    return QFile::decodeName(qgetenv("XDG_CONFIG_HOME"));
}

} // namespace

/// Settings whose file can be written, or cannot.
class tst_KeptSettings : public ProjectWindowTest
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { m_window.reset(); }
    void cleanupTestCase() { end(); }

    void lastUntilTheEndOnly();
    void outliveTheWindow();
};

// Where their directory should be there is a file.
void tst_KeptSettings::lastUntilTheEndOnly()
{
    QVERIFY(!writeFile(settingsDirectory(), "x").isEmpty());
    Messages messages;
    showWindow();
    QTRY_COMPARE(messages.list.size(), 1);
    QVERIFY2(messages.list.first().contains(QDir::toNativeSeparators(QSettings().fileName())),
             qPrintable(messages.list.first()));
    QCOMPARE(lastMessage(), messages.list.first().mid(2));
    MaterialFavourites::mark(BaseModule::SoftwareLib, {QStringLiteral("Copper")}, true);
    QCOMPARE(favourites(), QSet<QString>{QStringLiteral("Copper")});
    const QTemporaryDir directory;
    const QString file = directory.filePath(QStringLiteral("recent.wbproj"));
    QVERIFY(Project::instance()->saveAs(file));
    QCOMPARE(RecentProjects::instance()->paths(), QStringList{file});
    m_window.reset();
    QCOMPARE(favourites(), QSet<QString>());
    QCOMPARE(messages.list.size(), 1);
}

void tst_KeptSettings::outliveTheWindow()
{
    QFile::remove(settingsDirectory());
    Messages messages;
    showWindow();
    MaterialFavourites::mark(BaseModule::SoftwareLib, {QStringLiteral("Steel")}, true);
    m_window.reset();
    QCOMPARE(favourites(), QSet<QString>{QStringLiteral("Steel")});
    QVERIFY(QFile::exists(QSettings().fileName()));
    QCoreApplication::processEvents();
    QCOMPARE(messages.list, QStringList());
}

WORKBENCH_TEST_MAIN(tst_KeptSettings)
#include "tst_keptsettings.moc"
