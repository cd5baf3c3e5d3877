#include "Formatting.h"

#include <clocale>
#include <QTest>

using namespace nutrika;

class FormattingTest : public QObject
{
    Q_OBJECT

private slots:
    void formatValueWithUnits_data()
    {
        QTest::addColumn<QString>("value");
        QTest::addColumn<QString>("unit");
        QTest::addColumn<int>("places");
        QTest::addColumn<QString>("expected");
        const int absent = -100;
        QTest::newRow("grams, 2 places") << "12.3456"
                                         << "grams" << 2 << "12.35g";
        QTest::newRow("calories, 0 places") << "96.0"
                                            << "calories" << 0 << "96 kcal";
        QTest::newRow("millilitres, untouched") << "0.5"
                                                << "millilitres" << absent << "0.5ml";
        QTest::newRow("unknown unit gets a blank") << "3.0"
                                                   << "portion" << 1 << "3.0 portion";
        QTest::newRow("tie of 7.5 goes to even") << "7.5"
                                                 << "grams" << 0 << "8g";
        QTest::newRow("tie of 6.5 goes to even") << "6.5"
                                                 << "grams" << 0 << "6g";
        QTest::newRow("exponent untouched") << "1e-05"
                                            << "grams" << absent << "1e-05g";
        QTest::newRow("exponent formatted") << "1e-05"
                                            << "grams" << 5 << "0.00001g";
        QTest::newRow("empty unit") << "5.0"
                                    << "" << 0 << "5 ";
        QTest::newRow("capitalised unit is unknown") << "1"
                                                     << "Grams" << 0 << "1 Grams";
        QTest::newRow("micrograms") << "2.25"
                                    << "micrograms" << 1 << "2.2µg";
        QTest::newRow("milligrams") << "250"
                                    << "milligrams" << 0 << "250mg";
        QTest::newRow("kilograms") << "1.5"
                                   << "kilograms" << 1 << "1.5kg";
        QTest::newRow("centilitres") << "33"
                                     << "centilitres" << 0 << "33cl";
        QTest::newRow("litres") << "2"
                                << "litres" << 0 << "2l";
        QTest::newRow("negative") << "-0.25"
                                  << "grams" << 1 << "-0.2g";
        QTest::newRow("plus sign") << "+3.14159"
                                   << "grams" << 2 << "3.14g";
        QTest::newRow("not a number is left alone") << "abc"
                                                    << "grams" << 1 << "abcg";
        QTest::newRow("nan is not a number") << "nan"
                                             << "grams" << 1 << "nang";
        QTest::newRow("negative places leave the value") << "1.25"
                                                         << "grams" << -1 << "1.25g";
    }

    void formatValueWithUnits()
    {
        QFETCH(QString, value);
        QFETCH(QString, unit);
        QFETCH(int, places);
        QFETCH(QString, expected);
        const std::optional<int> decimalPlaces = places == -100 ? std::nullopt : std::optional<int>(places);
        QCOMPARE(nutrika::formatValueWithUnits(value, unit, decimalPlaces), expected);
    }

    void localeDoesNotChangeTheOutput()
    {
        const QLocale saved;
        QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
        const char *previous = std::setlocale(LC_ALL, "de_DE.UTF-8");
        const QString text =
            nutrika::formatValueWithUnits(QStringLiteral("12.3456"), QStringLiteral("grams"), 2);
        if (previous)
            std::setlocale(LC_ALL, "C");
        QLocale::setDefault(saved);
        QCOMPARE(text, QStringLiteral("12.35g"));
    }

    void shortUnits()
    {
        QCOMPARE(formatUnitShort(QStringLiteral("calories")), QStringLiteral(" kcal"));
        QCOMPARE(formatUnitShort(QStringLiteral("")), QStringLiteral(" "));
        QCOMPARE(formatUnitShort(QStringLiteral("portion")), QStringLiteral(" portion"));
    }
};

QTEST_GUILESS_MAIN(FormattingTest)
#include "tst_formatting.moc"
