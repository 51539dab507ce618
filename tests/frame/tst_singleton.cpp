// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <datamanager/frame/Singleton.h>

#include <QtTest>

#include <stdexcept>

class tst_Singleton : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void createsOnce();
    void staysNullWhenTheCreationThrows();
};

void tst_Singleton::createsOnce()
{
    int object = 0;
    int* instance = nullptr;
    int creations = 0;
    const auto create = [&] {
        ++creations;
        return &object;
    };
    QCOMPARE(DataManager::singleton(instance, create), &object);
    QCOMPARE(instance, &object);
    QCOMPARE(DataManager::singleton(instance, create), &object);
    QCOMPARE(creations, 1);
}

void tst_Singleton::staysNullWhenTheCreationThrows()
{
    struct Failing
    {
        Failing() { throw std::runtime_error("no"); }
    };
    Failing* instance = nullptr;
    QVERIFY_EXCEPTION_THROWN(DataManager::singleton(instance, [] { return new Failing; }), std::runtime_error);
    QVERIFY(instance == nullptr);
}

QTEST_GUILESS_MAIN(tst_Singleton)
#include "tst_singleton.moc"
