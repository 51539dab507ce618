// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <basemodule/GlobalHelper.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QLocale>
#include <QTest>

#include <cmath>
#include <cstring>
#include <limits>
#include <random>

using BaseModule::GlobalHelper;

namespace {

using IntPairs = QList<QPair<int, int>>;
using TextPairs = QList<QPair<int, QString>>;
using Step = QPair<QString, double>;

quint64 bitsOf(double value)
{
    quint64 bits = 0;
    std::memcpy(&bits, &value, sizeof bits);
    return bits;
}

double doubleOf(quint64 bits)
{
    double value = 0;
    std::memcpy(&value, &bits, sizeof value);
    return value;
}

QVector<quint64> bitsOf(const QList<double>& list)
{
    QVector<quint64> bits;
    for (const double value : list) {
        bits.append(bitsOf(value));
    }
    return bits;
}

QString throughJson(const QString& text)
{
    const QByteArray json = QJsonDocument(QJsonArray{text}).toJson();
    return QJsonDocument::fromJson(json).array().at(0).toString();
}

/// Every code unit alone, and in pairs that form or do not form a surrogate pair.
QStringList awkwardTexts()
{
    QStringList texts = {QStringLiteral(""),      QStringLiteral(";"),         QStringLiteral(":"),
                         QStringLiteral(","),     QStringLiteral("%"),         QStringLiteral("%%;003B:,"),
                         QStringLiteral("%003B"), QStringLiteral("a\r\nb\tc"), QStringLiteral("1,2;3:4"),
                         QStringLiteral("\\\"/")};
    const QString pair = QString::fromUcs4(U"\U0001F9ED");
    texts << pair << pair + pair << QString(pair.at(1)) + pair.at(0) << pair.at(0) + pair << pair + pair.at(1);
    return texts;
}

} // namespace

Q_DECLARE_METATYPE(IntPairs)
Q_DECLARE_METATYPE(TextPairs)

class TextConvertersTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void writesIntPairs_data()
    {
        constexpr int lowest = std::numeric_limits<int>::min();
        constexpr int highest = std::numeric_limits<int>::max();
        QTest::addColumn<IntPairs>("list");
        QTest::addColumn<QString>("text");
        QTest::newRow("none") << IntPairs() << QString();
        QTest::newRow("one") << IntPairs{{0, 1}} << QStringLiteral("0:1");
        QTest::newRow("three") << IntPairs{{0, 1}, {3, 0}, {3, -2}} << QStringLiteral("0:1;3:0;3:-2");
        QTest::newRow("extremes") << IntPairs{{lowest, highest}} << QStringLiteral("-2147483648:2147483647");
    }
    void writesIntPairs()
    {
        QFETCH(IntPairs, list);
        QFETCH(QString, text);
        QCOMPARE(GlobalHelper::convertIntIntQListToQString(list), text);
        QCOMPARE(GlobalHelper::convertStringToIntIntQList(text), list);
    }

    void writesDoubles_data()
    {
        constexpr double infinity = std::numeric_limits<double>::infinity();
        QTest::addColumn<QList<double>>("list");
        QTest::addColumn<QString>("text");
        QTest::newRow("none") << QList<double>() << QString();
        QTest::newRow("zero") << QList<double>{0.0} << QStringLiteral("0");
        QTest::newRow("three") << QList<double>{0.1, -2.5, 1e300} << QStringLiteral("0.1,-2.5,1e+300");
        QTest::newRow("signs of zero") << QList<double>{0.0, -0.0} << QStringLiteral("0,-0");
        QTest::newRow("infinities") << QList<double>{infinity, -infinity} << QStringLiteral("Infinity,-Infinity");
        QTest::newRow("not a number") << QList<double>{std::numeric_limits<double>::quiet_NaN()}
                                      << QStringLiteral("NaN");
        QTest::newRow("its bits") << QList<double>{doubleOf(0xfff0000000000001U), doubleOf(0x7ff8000000abcdefU)}
                                  << QStringLiteral("NaN:fff0000000000001,NaN:7ff8000000abcdef");
        QTest::newRow("smallest") << QList<double>{5e-324, -2.2250738585072014e-308}
                                  << QStringLiteral("5e-324,-2.2250738585072014e-308");
        QTest::newRow("largest") << QList<double>{1.7976931348623157e308} << QStringLiteral("1.7976931348623157e+308");
    }
    void writesDoubles()
    {
        QFETCH(QList<double>, list);
        QFETCH(QString, text);
        QCOMPARE(GlobalHelper::convertDoubleListToQString(list), text);
        QCOMPARE(bitsOf(GlobalHelper::convertStringToDoubleList(text)), bitsOf(list));
    }

    void keepsEveryBitOfRandomDoubles()
    {
        std::mt19937_64 generator(20260101);
        QList<double> list;
        for (int i = 0; i < 50000; ++i) {
            list.append(doubleOf(generator()));
        }
        const QString text = GlobalHelper::convertDoubleListToQString(list);
        QCOMPARE(bitsOf(GlobalHelper::convertStringToDoubleList(text)), bitsOf(list));
        for (const double value : qAsConst(list)) {
            const QString step = GlobalHelper::convertQStringDoubleQPairToQString({QStringLiteral("X"), value});
            QCOMPARE(bitsOf(GlobalHelper::convertStringToQStringDoublePair(step).second), bitsOf(value));
        }
    }

    void writesTextPairs_data()
    {
        QTest::addColumn<TextPairs>("list");
        QTest::addColumn<QString>("text");
        QTest::newRow("none") << TextPairs() << QString();
        QTest::newRow("one empty text") << TextPairs{{3, QString()}} << QStringLiteral("3:");
        QTest::newRow("two empty texts") << TextPairs{{0, QString()}, {-1, QString()}} << QStringLiteral("0:;-1:");
        QTest::newRow("vectors stay readable")
            << TextPairs{{0, QStringLiteral("0,0,0")}, {3, QStringLiteral("1,2.5,-3")}}
            << QStringLiteral("0:0,0,0;3:1,2.5,-3");
        QTest::newRow("separators") << TextPairs{{1, QStringLiteral("a;b:c%d,e")}}
                                    << QStringLiteral("1:a%003Bb:c%0025d,e");
        QTest::newRow("line ends and NUL")
            << TextPairs{{1, QStringLiteral("\r\n") + QChar(0)}} << QStringLiteral("1:%000D%000A%0000");
        QTest::newRow("halves around a pair")
            << TextPairs{{1, QString(QChar(0xd800)) + QChar(0xdbff) + QChar(0xdc00) + QChar(0xdfff)}}
            << QStringLiteral("1:%D800") + QChar(0xdbff) + QChar(0xdc00) + QStringLiteral("%DFFF");
        QTest::newRow("half surrogate") << TextPairs{{1, QString(QChar(0xd83e))}} << QStringLiteral("1:%D83E");
        QTest::newRow("whole surrogate pair") << TextPairs{{1, QString::fromUcs4(U"\U0001F9ED")}}
                                              << QStringLiteral("1:") + QString::fromUcs4(U"\U0001F9ED");
    }
    void writesTextPairs()
    {
        QFETCH(TextPairs, list);
        QFETCH(QString, text);
        QCOMPARE(GlobalHelper::convertIntQStringQListToQString(list), text);
        QCOMPARE(GlobalHelper::convertStringToIntQStringQList(text), list);
    }

    void writesSteps_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<double>("angle");
        QTest::addColumn<QString>("text");
        QTest::newRow("plain") << QStringLiteral("RotateX") << 90.0 << QStringLiteral("RotateX,90");
        QTest::newRow("no name") << QString() << -0.5 << QStringLiteral(",-0.5");
        QTest::newRow("commas") << QStringLiteral("a,b,") << 1.0 << QStringLiteral("a,b,,1");
        QTest::newRow("percent") << QStringLiteral("50%") << 1.0 << QStringLiteral("50%0025,1");
    }
    void writesSteps()
    {
        QFETCH(QString, name);
        QFETCH(double, angle);
        QFETCH(QString, text);
        QCOMPARE(GlobalHelper::convertQStringDoubleQPairToQString({name, angle}), text);
        QCOMPARE(GlobalHelper::convertStringToQStringDoublePair(text), Step(name, angle));
    }

    void keepsAwkwardTextsThroughJson()
    {
        const QStringList texts = awkwardTexts();
        TextPairs list;
        for (const QString& text : texts) {
            list.append({list.size(), text});
            const QString step = throughJson(GlobalHelper::convertQStringDoubleQPairToQString({text, 1.5}));
            QCOMPARE(GlobalHelper::convertStringToQStringDoublePair(step), Step(text, 1.5));
        }
        const QString joined = throughJson(GlobalHelper::convertIntQStringQListToQString(list));
        QCOMPARE(GlobalHelper::convertStringToIntQStringQList(joined), list);
    }

    void keepsEveryCodeUnitThroughJson()
    {
        TextPairs list;
        for (int unit = 0; unit <= 0xffff; ++unit) {
            list.append({unit, QString(QChar(unit))});
            list.append({unit, QLatin1Char('a') + QString(QChar(unit)) + QLatin1Char('b')});
        }
        const QString text = throughJson(GlobalHelper::convertIntQStringQListToQString(list));
        QCOMPARE(GlobalHelper::convertStringToIntQStringQList(text), list);
        for (const auto& pair : qAsConst(list)) {
            const QString step = throughJson(GlobalHelper::convertQStringDoubleQPairToQString({pair.second, 0.0}));
            QCOMPARE(GlobalHelper::convertStringToQStringDoublePair(step).first, pair.second);
        }
    }

    void escapesWhatIsFragile_data()
    {
        QTest::addColumn<int>("unit");
        QTest::addColumn<bool>("isEscaped");
        // The ends of the ranges of controls, surrogates that stand alone, and what is no character.
        for (const int unit :
             {0x00, 0x1f, 0x7f, 0x80, 0x9f, 0xd800, 0xdbff, 0xdc00, 0xdfff, 0xfdd0, 0xfdef, 0xfeff, 0xfffe, 0xffff}) {
            QTest::addRow("%04X", unit) << unit << true;
        }
        for (const int unit : {0x20, 0x7e, 0xa0, 0xd7ff, 0xe000, 0xfdcf, 0xfdf0, 0xfefe, 0xff00, 0xfffd}) {
            QTest::addRow("%04X", unit) << unit << false;
        }
    }
    void escapesWhatIsFragile()
    {
        QFETCH(int, unit);
        QFETCH(bool, isEscaped);
        const QString raw(QChar(static_cast<ushort>(unit)));
        const QString expected = isEscaped ? QString::asprintf("%%%04X", unit) : raw;
        const TextPairs pairs{{1, raw}, {2, QStringLiteral("ab") + raw + QStringLiteral("cd")}};
        QCOMPARE(GlobalHelper::convertIntQStringQListToQString(pairs),
                 QStringLiteral("1:") + expected + QStringLiteral(";2:ab") + expected + QStringLiteral("cd"));
    }

    void readsDigitsOfBothCases()
    {
        const TextPairs read = GlobalHelper::convertStringToIntQStringQList(QStringLiteral("1:%00aF%00Fa%0909%00fF"));
        QCOMPARE(read, (TextPairs{{1, QString(QChar(0xaf)) + QChar(0xfa) + QChar(0x909) + QChar(0xff)}}));
    }

    void keepsStepsInsideTextPairs()
    {
        TextPairs list;
        for (const QString& text : awkwardTexts()) {
            list.append({1, GlobalHelper::convertQStringDoubleQPairToQString({text, -0.25})});
        }
        const QString joined = throughJson(GlobalHelper::convertIntQStringQListToQString(list));
        const TextPairs read = GlobalHelper::convertStringToIntQStringQList(joined);
        QCOMPARE(read, list);
        QCOMPARE(GlobalHelper::convertStringToQStringDoublePair(read.last().second).first, awkwardTexts().last());
    }

    void refusesMalformedIntPairs_data()
    {
        addTexts({"1", "1:", ":1", "1:2;", ";1:2", "1:2;;3:4", "1:2:3", "1: 2", "+1:2", "1:2.0", "1:2147483648", "a:b",
                  "1:0x2", "1:2;x"});
    }
    void refusesMalformedIntPairs()
    {
        QFETCH(QString, text);
        QCOMPARE(GlobalHelper::convertStringToIntIntQList(text), IntPairs());
    }

    void refusesMalformedDoubles_data()
    {
        addTexts({"a", ",", "1,", ",1", "1,,2", "1;2", " 1", "1 ", "+1", "0x10", "1e400", "-1e400", "inf", "nan",
                  "NaN:", "NaN:3ff0000000000000", "Nan:7ff8000000000001", "1.2.3", "1,2,x"});
    }
    void refusesMalformedDoubles()
    {
        QFETCH(QString, text);
        QCOMPARE(GlobalHelper::convertStringToDoubleList(text), QList<double>());
    }

    void refusesMalformedTextPairs_data()
    {
        addTexts({"text",    ":text",       "a:text",  "1:%",     "1:%12",   "1:%00G0", "1:a;b",
                  "1:a;",    "1:a;2:%-001", "1:%003",  "1:%0/00", "1:%0:00", "1:%0@00", "1:%0`00",
                  "1:%0g00", "1:%0~00",     "1:%0X00", "1:%001G", "1:%01G0", "1:%1G00"});
    }
    void refusesMalformedTextPairs()
    {
        QFETCH(QString, text);
        QCOMPARE(GlobalHelper::convertStringToIntQStringQList(text), TextPairs());
    }

    void refusesMalformedSteps_data() { addTexts({"", "X", "X,", "X,a", "%,1", "X,1 ", "90,X"}); }
    void refusesMalformedSteps()
    {
        QFETCH(QString, text);
        QCOMPARE(GlobalHelper::convertStringToQStringDoublePair(text), Step(QString(), 0.0));
    }

    void readsWhatItWritesAfterDamage()
    {
        std::mt19937 generator(7);
        const QString good = QStringLiteral("0:0,0,0;3:1,2.5,-3;12:a%003Bb,NaN:fff0000000000001");
        for (int i = 0; i < 20000; ++i) {
            QString text = good;
            for (int changes = 0; changes < 3; ++changes) {
                const int position = static_cast<int>(generator() % static_cast<unsigned>(text.size()));
                text[position] = QChar(static_cast<ushort>(generator() % 4 == 0 ? generator() : generator() % 128));
            }
            const TextPairs pairs = GlobalHelper::convertStringToIntQStringQList(text);
            const QString written = GlobalHelper::convertIntQStringQListToQString(pairs);
            QCOMPARE(GlobalHelper::convertStringToIntQStringQList(written), pairs);
            for (const auto& pair : pairs) {
                const QList<double> values = GlobalHelper::convertStringToDoubleList(pair.second);
                const QString rewritten = GlobalHelper::convertDoubleListToQString(values);
                QCOMPARE(bitsOf(GlobalHelper::convertStringToDoubleList(rewritten)), bitsOf(values));
            }
        }
    }

    void isTheSameUnderEveryLocale()
    {
        const QLocale before;
        QLocale::setDefault(QLocale(QLocale::German));
        const QString text = GlobalHelper::convertDoubleListToQString({1234567.25, 0.5});
        const QList<double> list = GlobalHelper::convertStringToDoubleList(text);
        QLocale::setDefault(before);
        QCOMPARE(text, QStringLiteral("1234567.25,0.5"));
        QCOMPARE(list, (QList<double>{1234567.25, 0.5}));
    }

private:
    static void addTexts(const QVector<const char*>& texts)
    {
        QTest::addColumn<QString>("text");
        for (const char* text : texts) {
            QTest::newRow(*text == '\0' ? "empty" : text) << QString::fromLatin1(text);
        }
    }
};

QTEST_APPLESS_MAIN(TextConvertersTest)
#include "tst_textconverters.moc"
