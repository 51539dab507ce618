// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include "MaterialFixture.h"

#include <basemodule/GlobalConfig.h>
#include <basemodule/GlobalHelper.h>
#include <basemodule/IBaseSignal.h>

#include <QMap>
#include <QRandomGenerator>
#include <QtTest>

using BaseModule::MaterialLibType;
using BaseModule::ProjectLib;
using BaseModule::SoftwareLib;
using DataManager::MaterialLibraryManager;

namespace {

/// What the rules of numbering say, written plainly: a row of names, a deleted one marked, the tail without marks.
class PlainLibrary
{
public:
    struct Entry
    {
        QString name;
        bool isDeleted = false;
    };

    int next() const { return m_entries.size() + 1; }
    bool isLive(int id) const { return id >= 1 && id <= m_entries.size() && !m_entries.at(id - 1).isDeleted; }
    void create(const QString& name) { m_entries.append({name, false}); }
    void rename(int id, const QString& name)
    {
        if (isLive(id)) {
            m_entries[id - 1].name = name;
        }
    }
    const QString& name(int id) const { return m_entries.at(id - 1).name; }

    /// The identifiers to be signalled.
    QList<int> remove(int id)
    {
        if (!isLive(id)) {
            return {};
        }
        m_entries[id - 1].isDeleted = true;
        QList<int> signalled = {id};
        if (id < m_entries.size()) {
            return signalled;
        }
        m_entries.removeLast();
        while (!m_entries.isEmpty() && m_entries.last().isDeleted) {
            signalled.append(m_entries.size());
            m_entries.removeLast();
        }
        return signalled;
    }

    QString state() const
    {
        QString text;
        for (int i = 0; i < m_entries.size(); ++i) {
            text += QStringLiteral("%1:%2%3 ")
                        .arg(QString::number(i + 1), m_entries.at(i).name,
                             m_entries.at(i).isDeleted ? QStringLiteral("(deleted)") : QString());
        }
        return text + QStringLiteral("next %1").arg(next());
    }

    QList<int> live() const
    {
        QList<int> ids;
        for (int id = 1; id < next(); ++id) {
            if (isLive(id)) {
                ids.append(id);
            }
        }
        return ids;
    }

private:
    QList<Entry> m_entries;
};

/// Small, so that deletions meet each other and saves are quick.
constexpr int fullLibrary = 10;

} // namespace

class TestMaterialNumbering : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void agreesWithThePlainModel();

private:
    void step(QRandomGenerator& random);
    void create(MaterialLibType type, const QString& name);
    void rename(MaterialLibType type, int id, const QString& name);
    void remove(MaterialLibType type, int id);
    void importSome(MaterialLibType from, const QList<int>& ids);
    void reload();
    MaterialLibraryManager& manager() { return *m_manager; }

    MaterialLibraryManager* m_manager = nullptr;
    PlainLibrary m_plain[2];
    QList<int> m_signalled;
    QList<int> m_expectedSignals;
    int m_messages = 0;
    int m_expectedMessages = 0;
    int m_names = 0;
};

void TestMaterialNumbering::create(MaterialLibType type, const QString& name)
{
    if (m_plain[type].next() > fullLibrary) {
        remove(type, m_plain[type].next() - 1);
        return;
    }
    m_plain[type].create(name);
    type == ProjectLib ? manager().createProjectMat({}, name, {}, {}, {}, {}, {})
                       : manager().createSoftwareMat({}, name, {}, {}, {}, {}, {});
}

void TestMaterialNumbering::rename(MaterialLibType type, int id, const QString& name)
{
    m_plain[type].rename(id, name);
    type == ProjectLib ? manager().updateProjectMat(id, {}, name, {}, {}, {}, {}, {})
                       : manager().updateSoftwareMat(id, {}, name, {}, {}, {}, {}, {});
}

void TestMaterialNumbering::remove(MaterialLibType type, int id)
{
    m_expectedMessages += m_plain[type].isLive(id) ? 0 : 1;
    const QList<int> signalled = m_plain[type].remove(id);
    if (type == ProjectLib) {
        m_expectedSignals += signalled;
        manager().deleteProjectMat(id);
    } else {
        manager().deleteSoftwareMat(id);
    }
}

void TestMaterialNumbering::importSome(MaterialLibType from, const QList<int>& ids)
{
    const MaterialLibType target = from == ProjectLib ? SoftwareLib : ProjectLib;
    bool isPossible = true;
    for (const int id : ids) {
        isPossible = isPossible && m_plain[from].isLive(id);
    }
    for (const int id : isPossible ? ids : QList<int>()) {
        m_plain[target].create(m_plain[from].name(id));
    }
    m_expectedMessages += isPossible ? 0 : 1;
    QCOMPARE(manager().importMaterial(from, ids), isPossible);
}

void TestMaterialNumbering::reload()
{
    const QString softwarePath = manager().m_softwareLibPath;
    delete m_manager;
    m_manager = nullptr;
    if (!QFile::exists(MaterialFixture::softwarePath())) {
        QTest::ignoreMessage(QtDebugMsg, QRegularExpression(QStringLiteral("^Read software material library file")));
    }
    m_manager = new MaterialLibraryManager;
    m_manager->m_softwareLibPath = softwarePath;
    m_manager->initSoftwareMaterial();
    m_manager->initProjectMaterial();
}

void TestMaterialNumbering::step(QRandomGenerator& random)
{
    const auto type = random.bounded(2) == 0 ? SoftwareLib : ProjectLib;
    const int id = random.bounded(m_plain[type].next() + 2);
    const QString name = QString::number(++m_names);
    const int choice = random.bounded(100);
    if (choice < 40) {
        create(type, name);
    } else if (choice < 80) {
        remove(type, id);
    } else if (choice < 88) {
        rename(type, id, name);
    } else if (choice < 92) {
        importSome(type, {id, random.bounded(fullLibrary)});
    } else if (choice < 94) {
        importSome(type, m_plain[type].live().mid(0, 3));
    } else {
        reload();
    }
}

void TestMaterialNumbering::agreesWithThePlainModel()
{
    // Every step saves and so waits for the disk; in memory 100,000 steps take seconds.
    const bool isInMemory = QFileInfo(QStringLiteral("/dev/shm")).isWritable();
    QTemporaryDir directory(isInMemory ? QStringLiteral("/dev/shm/numbering-XXXXXX") : QString());
    QVERIFY(directory.isValid());
    const int steps = isInMemory ? 100000 : 2000;
    BaseModule::GlobalHelper::setProjectTempIODir(directory.path());
    QVERIFY(QDir().mkpath(QFileInfo(MaterialFixture::softwarePath()).path()));
    QFile::remove(MaterialFixture::softwarePath());
    QTest::ignoreMessage(QtDebugMsg, QRegularExpression(QStringLiteral("^Read software material library file fail")));
    m_manager = new MaterialLibraryManager;
    m_manager->m_softwareLibPath = directory.filePath(QStringLiteral("software.json"));
    m_manager->saveSoftwareMaterial();
    m_manager->writeProjectMatConfig();
    auto* const hub = BaseModule::IBaseSignal::getInstance();
    connect(hub, &BaseModule::IBaseSignal::signal_delMatUpdateGeometryData, this,
            [this](int id) { m_signalled.append(id); });
    connect(hub, &BaseModule::IBaseSignal::signal_showMessageType, this, [this] { ++m_messages; });

    const quint32 seed = qEnvironmentVariableIsSet("NUMBERING_SEED") ? qEnvironmentVariable("NUMBERING_SEED").toUInt()
                                                                     : QRandomGenerator::global()->generate();
    QRandomGenerator random(seed);
    for (int i = 0; i < steps && !QTest::currentTestFailed(); ++i) {
        // Plain and enciphered files in turn; the manager reads back what it wrote under the same setting.
        if (i % 1000 == 0) {
            GlobalConfig::setIsDevelop(i % 2000 == 0);
            manager().writeProjectMatConfig();
        }
        step(random);
        const QByteArray place = QStringLiteral("NUMBERING_SEED=%1, step %2").arg(seed).arg(i).toUtf8();
        QVERIFY2(MaterialFixture::state(manager(), ProjectLib) == m_plain[ProjectLib].state(), place.constData());
        QVERIFY2(MaterialFixture::state(manager(), SoftwareLib) == m_plain[SoftwareLib].state(), place.constData());
        QVERIFY2(m_signalled == m_expectedSignals && m_messages == m_expectedMessages, place.constData());
        m_signalled.clear();
        m_expectedSignals.clear();
    }
    delete m_manager;
}

QTEST_GUILESS_MAIN(TestMaterialNumbering)
#include "tst_materialnumbering.moc"
