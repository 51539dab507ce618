// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include "CoordinateViewFixture.h"

#include <limits>
#include <memory>

using Fixture = CoordinateViewFixture;

/// Which identifiers new systems get.
class tst_CoordinateIdentifiers : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_fixture = std::make_unique<CoordinateViewFixture>(); }
    void cleanup() { m_fixture.reset(); }

    void takesTheNextIdentifier();
    void givesNoIdentifierTwice();
    void countsAnewInAnotherProject();
    void passesTheLargestIdentifier();

private:
    std::unique_ptr<CoordinateViewFixture> m_fixture;
};

void tst_CoordinateIdentifiers::takesTheNextIdentifier()
{
    Fixture::create(0, text("a"));
    Fixture::create(0, text("b"));
    Fixture::systems().remove({1});
    QCOMPARE(Fixture::create(0, text("c")), 3);
    QCOMPARE(Fixture::ids(), text("[0,2,3]"));
}

void tst_CoordinateIdentifiers::givesNoIdentifierTwice()
{
    Fixture::create(0, text("a"));
    Fixture::create(0, text("b"));
    Fixture::systems().remove({2});
    QCOMPARE(Fixture::create(0, text("c")), 3);
    // One that came from the file is gone as well, and so are those that others remove.
    Fixture::systems().loadProject();
    Fixture::systems().remove({3});
    QCOMPARE(Fixture::create(0, text("d")), 4);
    Fixture::Registry::getInstance()->removeCoordinateSystemByID({4, 77});
    QCOMPARE(Fixture::create(0, text("e")), 5);
    Fixture::Registry::getInstance()->removeCoordinateSystemByIndex(2);
    QCOMPARE(Fixture::create(0, text("f")), 6);
    QCOMPARE(Fixture::ids(), text("[0,1,6]"));
}

void tst_CoordinateIdentifiers::countsAnewInAnotherProject()
{
    Fixture::create(0, text("a"));
    Fixture::create(0, text("b"));
    Fixture::systems().remove({2});
    Fixture::systems().loadProject();
    QCOMPARE(Fixture::create(0, text("c")), 2);
    Fixture::systems().clearProject();
    QCOMPARE(Fixture::create(0, text("d")), 1);
}

void tst_CoordinateIdentifiers::passesTheLargestIdentifier()
{
    auto* const foreign = new Fixture::System;
    foreign->setID(std::numeric_limits<int>::max());
    Fixture::Registry::getInstance()->appendCoordinateSystem(foreign);
    QCOMPARE(Fixture::create(0, text("a")), 1);
    Fixture::systems().remove({std::numeric_limits<int>::max()});
    QCOMPARE(Fixture::create(0, text("b")), 2);
}

QTEST_MAIN(tst_CoordinateIdentifiers)
#include "tst_coordinateidentifiers.moc"
