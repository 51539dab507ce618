// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <datamodel/PropertyTableData.h>

#include <QTest>

using DataModel::PropertyTableData;

class PropertyTableDataTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void startsWithoutRows() { QCOMPARE(PropertyTableData().getRowCount(), 0); }

    void keepsRowsInTheOrderOfAppending()
    {
        PropertyTableData table;
        table.appendRowKeyValue(QStringLiteral("b"), QStringLiteral("1"), false);
        table.appendRowKeyValue(QStringLiteral("a"), QStringLiteral("2"), true);
        table.appendRowKeyValue(QStringLiteral("b"), QString(), false);
        QCOMPARE(table.getRowCount(), 3);
        const char* const keys[] = {"b", "a", "b"};
        const char* const values[] = {"1", "2", ""};
        const bool isEditable[] = {false, true, false};
        for (int row = 0; row < 3; ++row) {
            QCOMPARE(table.getRowKey(row), QString::fromLatin1(keys[row]));
            QCOMPARE(table.getRowValue(row), QString::fromLatin1(values[row]));
            QCOMPARE(table.getRowIsEditable(row), isEditable[row]);
        }
    }

    void hasNoRowBeyondItsEnds_data()
    {
        QTest::addColumn<int>("row");
        QTest::newRow("before") << -1;
        QTest::newRow("behind") << 1;
    }
    void hasNoRowBeyondItsEnds()
    {
        QFETCH(int, row);
        PropertyTableData table;
        table.appendRowKeyValue(QStringLiteral("key"), QStringLiteral("value"), true);
        QCOMPARE(table.getRowKey(row), QString());
        QCOMPARE(table.getRowValue(row), QString());
        QCOMPARE(table.getRowIsEditable(row), false);
    }

    void removesAllRows()
    {
        PropertyTableData table;
        table.appendRowKeyValue(QStringLiteral("key"), QStringLiteral("value"), true);
        table.removeAllRowData();
        QCOMPARE(table.getRowCount(), 0);
        table.appendRowKeyValue(QStringLiteral("next"), QString(), false);
        QCOMPARE(table.getRowKey(0), QStringLiteral("next"));
    }
};

QTEST_APPLESS_MAIN(PropertyTableDataTest)
#include "tst_propertytabledata.moc"
