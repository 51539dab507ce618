// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include "RegistryFixture.h"

#include <support/LocaleScope.h>

#include <QCoreApplication>
#include <QTest>
#include <QTranslator>

#include <vtkMatrix4x4.h>
#include <vtkNew.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <memory>

using DataManager::RelativeCoordinateSystem;

namespace {

/// Writes down every text that is asked for and answers with the text in angle brackets.
class RecordingTranslator : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char* context, const char* source, const char* disambiguation, int n) const override
    {
        m_requests.append(QStringLiteral("%1|%2|%3|%4")
                              .arg(QLatin1String(context), QLatin1String(source), QLatin1String(disambiguation))
                              .arg(n));
        return QLatin1Char('<') + QLatin1String(source) + QLatin1Char('>');
    }

    mutable QStringList m_requests;
};

QStringList rowsOf(const DataModel::PropertyTableData& table)
{
    QStringList rows;
    for (int row = 0; row < table.getRowCount(); ++row) {
        const QString editable = table.getRowIsEditable(row) ? QStringLiteral("true") : QStringLiteral("false");
        rows.append(table.getRowKey(row) + QLatin1Char('=') + table.getRowValue(row) + QLatin1Char(' ') + editable);
    }
    return rows;
}

} // namespace

/// The table that the properties panel shows.
class CoordinatePropertiesTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<RegistryFixture> m_fixture;

private Q_SLOTS:
    void init() { m_fixture = std::make_unique<RegistryFixture>(); }
    void cleanup() { m_fixture.reset(); }

    void describesItself()
    {
        RelativeCoordinateSystem system;
        system.setID(3);
        system.setName(QStringLiteral("A"));
        DataModel::PropertyTableData* const table = system.getProperty();
        const QStringList expected = {QStringLiteral("ID=3 false"), QStringLiteral("BasicCoordinateSystemID=0 false"),
                                      QStringLiteral("Name=A false"), QStringLiteral("Coordinate=(0,0,0) false"),
                                      QStringLiteral("Quaternion=(0,0,0,0) false")};
        QCOMPARE(rowsOf(*table), expected);
        QCOMPARE(system.getProperty(), table);
        QCOMPARE(rowsOf(*table), expected);
    }

    void showsSixSignificantDigits()
    {
        RelativeCoordinateSystem system;
        system.setBasicCoordinateSystemID(-2);
        system.setName(QStringLiteral("50%1"));
        std::copy_n(std::array<double, 3>{0.1234567, -1e-7, 1234567}.data(), 3, system.m_offsetCoordinate);
        std::array<double, 4> quaternion = {0.70710678, -0.0, INFINITY, 1e300};
        system.setActorQuaternion(quaternion.data());
        const QStringList expected = {QStringLiteral("ID=0 false"), QStringLiteral("BasicCoordinateSystemID=-2 false"),
                                      QStringLiteral("Name=50%1 false"),
                                      QStringLiteral("Coordinate=(0.123457,-1e-07,1.23457e+06) false"),
                                      QStringLiteral("Quaternion=(0.707107,0,inf,1e+300) false")};
        QCOMPARE(rowsOf(*system.getProperty()), expected);
    }

    void showsNumbersInTheSameFormUnderEveryLocale_data()
    {
        QTest::addColumn<QLocale>("locale");
        QTest::newRow("C") << QLocale::c();
        QTest::newRow("German") << QLocale(QLocale::German, QLocale::Germany);
        QTest::newRow("Arabic") << QLocale(QLocale::Arabic, QLocale::Egypt);
    }
    void showsNumbersInTheSameFormUnderEveryLocale()
    {
        QFETCH(QLocale, locale);
        const LocaleScope scope(locale);
        RelativeCoordinateSystem system;
        system.setID(1234567);
        system.setBasicCoordinateSystemID(-7654321);
        std::copy_n(std::array<double, 3>{1234567, 0.5, 123456}.data(), 3, system.m_offsetCoordinate);
        std::array<double, 4> quaternion = {1234567, 0.5, -123456, -0.25};
        system.setActorQuaternion(quaternion.data());
        QCOMPARE(
            rowsOf(*system.getProperty()),
            (QStringList{QStringLiteral("ID=1234567 false"), QStringLiteral("BasicCoordinateSystemID=-7654321 false"),
                         QStringLiteral("Name= false"), QStringLiteral("Coordinate=(1.23457e+06,0.5,123456) false"),
                         QStringLiteral("Quaternion=(1.23457e+06,0.5,-123456,-0.25) false")}));
    }

    void showsTheOriginThatWasComputedLast()
    {
        vtkNew<vtkMatrix4x4> matrix;
        m_fixture->add(0)->setActorMatrix(matrix);
        double offset[3] = {1, 2, 3};
        RelativeCoordinateSystem* const system = m_fixture->add(4);
        system->setOffsetCoordinate(offset, 4, 0, -1);
        QCOMPARE(system->getProperty()->getRowValue(3), QStringLiteral("(0,0,0)"));
        system->getOffsetCoordinate();
        QCOMPARE(system->getProperty()->getRowValue(3), QStringLiteral("(1,2,3)"));
    }

    void translatesAllKeysButTheFirst()
    {
        RecordingTranslator translator;
        QCoreApplication::installTranslator(&translator);
        RelativeCoordinateSystem system;
        translator.m_requests.clear();
        const QStringList rows = rowsOf(*system.getProperty());
        QCoreApplication::removeTranslator(&translator);
        QCOMPARE(translator.m_requests,
                 (QStringList{QStringLiteral("QObject|BasicCoordinateSystemID||-1"), QStringLiteral("QObject|Name||-1"),
                              QStringLiteral("QObject|Coordinate||-1"), QStringLiteral("QObject|Quaternion||-1")}));
        QCOMPARE(rows.first(), QStringLiteral("ID=0 false"));
        QCOMPARE(rows.at(1), QStringLiteral("<BasicCoordinateSystemID>=0 false"));
        QCOMPARE(rows.last(), QStringLiteral("<Quaternion>=(0,0,0,0) false"));
    }
};

QTEST_GUILESS_MAIN(CoordinatePropertiesTest)
#include "tst_coordinateproperties.moc"
