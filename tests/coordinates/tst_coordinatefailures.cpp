// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include "CoordinateFiles.h"
#include "RegistryFixture.h"

#include <support/FilesAndLog.h>
#include <support/RecordFaults.h>

#include <QTest>

#include <memory>

/// A project file that is read while the memory ends, or whose record cannot be created.
class CoordinateFailuresTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_fixture = std::make_unique<RegistryFixture>();
        RegistryFixture::add(0);
        m_before = RegistryFixture::add(70);
    }
    void cleanup()
    {
        RecordFaults::now() = RecordFaults();
        // Reading takes out the systems that were there, and leaves them to their makers.
        if (!RegistryFixture::ids().contains(70)) {
            delete m_before;
        }
        m_fixture.reset();
    }

    void standsInFront()
    {
        QVERIFY(m_fixture->setFileContent(goodFile()));
        RegistryFixture::registry()->readConfig();
        QCOMPARE(RegistryFixture::ids(), (QList<int>{0, 3, 5, 9}));
    }

    /// The list is as it was, and so is the file.
    void keepsTheRegistryWithoutARecord()
    {
        QVERIFY(m_fixture->setFileContent(goodFile()));
        RecordFaults::now().isCreationFailing = true;
        LogLines log;
        RegistryFixture::registry()->readConfig();
        QCOMPARE(log.take(), RecordFaults::failedCreation("DataManager::RelativeCoordinateSystemDateManager")
                                 << QStringLiteral("deserialize RelativeCoordinateSystemDate fail !"));
        QCOMPARE(RegistryFixture::ids(), (QList<int>{0, 70}));
        QCOMPARE(m_fixture->fileContent(), goodFile());
    }

    void readsNothingThatDoesNotFitIntoTheMemory_data()
    {
        QTest::addColumn<int>("appended");
        for (int appended = 0; appended < 3; ++appended) {
            QTest::addRow("after %d", appended) << appended;
        }
    }
    /// Each system that is appended is followed by a write of the file; what they wrote is not what stays.
    void readsNothingThatDoesNotFitIntoTheMemory()
    {
        QFETCH(int, appended);
        QVERIFY(m_fixture->setFileContent(goodFile()));
        RecordFaults::now().serializationsLeft = appended;
        RegistryFixture::registry()->readConfig();
        QCOMPARE(RegistryFixture::ids(), QList<int>{0});
        QCOMPARE(m_fixture->fileContent(), goodFile());
    }

private:
    std::unique_ptr<RegistryFixture> m_fixture;
    RegistryFixture::System* m_before = nullptr;
};

QTEST_GUILESS_MAIN(CoordinateFailuresTest)
#include "tst_coordinatefailures.moc"
