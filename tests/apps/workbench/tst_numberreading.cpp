// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/material/NumberReading.h>

#include <QLocale>
#include <QtTest>

#include <cmath>
#include <cstring>
#include <limits>

using Workbench::NumberReading;

Q_DECLARE_METATYPE(Workbench::NumberReading::Fault)

namespace {

quint64 bitsOf(double value)
{
    quint64 bits = 0;
    std::memcpy(&bits, &value, sizeof bits);
    return bits;
}

} // namespace

/// What typed texts mean as numbers.
class tst_NumberReading : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QLocale::setDefault(QLocale::c()); }
    void reads_data();
    void reads();
    void refuses_data();
    void refuses();
};

void tst_NumberReading::reads_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<double>("expected");
    const auto row = [](const char* typed, double expected) {
        QTest::newRow(typed) << QString::fromUtf8(typed) << expected;
    };
    row("0", 0.0);
    row("-0", -0.0);
    row("-0.0", -0.0);
    row("1", 1.0);
    row("+2.5", 2.5);
    row(" 42\t", 42.0);
    row(".5", 0.5);
    row("5.", 5.0);
    row("1e-300", 1e-300);
    row("1E3", 1000.0);
    row("1e+3", 1000.0);
    row("0.30000000000000004", 0.1 + 0.2);
    row("1e-12", 1e-12);
    row("1.7976931348623157e308", std::numeric_limits<double>::max());
    row("5e-324", std::numeric_limits<double>::denorm_min());
    row("3e-324", std::numeric_limits<double>::denorm_min());
    row("2.2250738585072014e-308", std::numeric_limits<double>::min());
    row("0e999", 0.0);
    row("00012", 12.0);
}

void tst_NumberReading::reads()
{
    QFETCH(QString, typed);
    QFETCH(double, expected);
    for (const char* const locale : {"C", "de_DE", "zh_CN", "ar_EG"}) {
        QLocale::setDefault(QLocale(QLatin1String(locale)));
        const NumberReading reading = Workbench::readNumber(typed);
        QCOMPARE(reading.fault, NumberReading::None);
        QCOMPARE(bitsOf(reading.value), bitsOf(expected));
    }
}

void tst_NumberReading::refuses_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<NumberReading::Fault>("fault");
    const auto row = [](const char* typed, NumberReading::Fault fault) {
        QTest::newRow(typed) << QString::fromUtf8(typed) << fault;
    };
    row("", NumberReading::Empty);
    row("  ", NumberReading::Empty);
    for (const char* const comma : {"1,5", "1,000.5", ",", "1，5", "٣٫٥", "1、5"}) {
        row(comma, NumberReading::HasComma);
    }
    for (const char* const text : {"x", "1x", "1 5", "1e", "e5", "-", "+", "+-1", "--1", "1..2", "0x10", "1.5d3", "٣",
                                   "１", "½", "1_000", "1'000", "1e5.5"}) {
        row(text, NumberReading::NotANumber);
    }
    for (const char* const text : {"inf", "-inf", "nan", "-nan", "infinity", "INF", "nan(12)"}) {
        row(text, NumberReading::NotFinite);
    }
    for (const char* const text : {"1e309", "-1e400", "1.7976931348623159e308", "1e99999999999", "12345e400"}) {
        row(text, NumberReading::TooLarge);
    }
    for (const char* const text : {"1e-400", "-1e-400", "2e-324", "1e-99999999999", "0.00001e-320", "12345e-400"}) {
        row(text, NumberReading::TooSmall);
    }
    QTest::newRow("310 digits") << QString(310, QLatin1Char('7')) << NumberReading::TooLarge;
    QTest::newRow("400 digits, exponent -5")
        << QString(400, QLatin1Char('7')) + QStringLiteral("e-5") << NumberReading::TooLarge;
    QTest::newRow("400 zeros behind the point")
        << QStringLiteral("0.") + QString(400, QLatin1Char('0')) + QLatin1Char('7') << NumberReading::TooSmall;
    QTest::newRow("400 zeros and exponent 5")
        << QStringLiteral("0.") + QString(400, QLatin1Char('0')) + QStringLiteral("7e5") << NumberReading::TooSmall;
    QTest::newRow("NUL within") << QStringLiteral("1") + QChar(0) + QLatin1Char('2') << NumberReading::NotANumber;
}

void tst_NumberReading::refuses()
{
    QFETCH(QString, typed);
    QFETCH(NumberReading::Fault, fault);
    for (const char* const locale : {"C", "de_DE", "zh_CN"}) {
        QLocale::setDefault(QLocale(QLatin1String(locale)));
        QCOMPARE(Workbench::readNumber(typed).fault, fault);
    }
}

QTEST_APPLESS_MAIN(tst_NumberReading)
#include "tst_numberreading.moc"
