#include "NumberStepper.h"

#include <QElapsedTimer>
#include <QSignalSpy>
#include <QTest>

using namespace nutrika;
using namespace Qt::Literals::StringLiterals;

class StepperTest : public QObject
{
    Q_OBJECT

private slots:
    void normalisation_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<qint64>("min");
        QTest::addColumn<qint64>("max");
        QTest::addColumn<QString>("expected");
        QTest::newRow("already normal") << u"12"_s << 1LL << 99999LL << u"12"_s;
        QTest::newRow("zero below min") << u"0"_s << 1LL << 99999LL << u"1"_s;
        QTest::newRow("sign dropped") << u"-5"_s << 1LL << 99999LL << u"5"_s;
        QTest::newRow("point dropped") << u"1.5"_s << 1LL << 99999LL << u"15"_s;
        QTest::newRow("leading zeros") << u"007"_s << 1LL << 99999LL << u"7"_s;
        QTest::newRow("letter dropped") << u"12a"_s << 1LL << 99999LL << u"12"_s;
        QTest::newRow("blanks dropped") << u" 4 2 "_s << 1LL << 99999LL << u"42"_s;
        QTest::newRow("empty is min") << u""_s << 1LL << 99999LL << u"1"_s;
        QTest::newRow("no digits is min") << u"abc"_s << 3LL << 99999LL << u"3"_s;
        QTest::newRow("above max") << u"123456"_s << 1LL << 99999LL << u"99999"_s;
        QTest::newRow("beyond 64 bits") << u"99999999999999999999999"_s << 1LL << 99999LL << u"99999"_s;
        QTest::newRow("many zeros") << u"0000000000000000000000005"_s << 1LL << 99999LL << u"5"_s;
        QTest::newRow("non-ASCII digits dropped") << u"٣4"_s << 1LL << 99999LL << u"4"_s;
    }

    void normalisation()
    {
        QFETCH(QString, typed);
        QFETCH(qint64, min);
        QFETCH(qint64, max);
        QFETCH(QString, expected);
        NumberStepper stepper(min, max);
        QSignalSpy updates(&stepper, &NumberStepper::updated);
        stepper.setValue(typed);
        QCOMPARE(stepper.value(), expected);
        QCOMPARE(updates.size(), 1);
        QCOMPARE(updates.first().first().toLongLong(), expected.toLongLong());
    }

    void normalisesWhenFirstShownAndReportsNormalTextToo()
    {
        NumberStepper stepper; // as QML builds it: properties first, then completion
        stepper.setMin(1);
        stepper.setMax(99999);
        QSignalSpy updates(&stepper, &NumberStepper::updated);
        stepper.setValue(u"0"_s);
        QCOMPARE(stepper.value(), u"0"_s);
        QCOMPARE(updates.size(), 0);
        stepper.componentComplete();
        QCOMPARE(stepper.value(), u"1"_s);
        QCOMPARE(updates.size(), 1);
        stepper.normalize();
        QCOMPARE(updates.size(), 2);
        QCOMPARE(updates.last().first().toLongLong(), 1);
        QTest::ignoreMessage(QtWarningMsg, "NumberStepper: max is fixed once the stepper is built");
        stepper.setMax(5);
        QCOMPARE(stepper.max(), 99999);
    }

    void stepsStopAtTheBounds_data()
    {
        QTest::addColumn<QString>("start");
        QTest::addColumn<int>("direction");
        QTest::addColumn<QString>("expected");
        QTest::newRow("plus") << u"5"_s << int(NumberStepper::Up) << u"6"_s;
        QTest::newRow("minus") << u"5"_s << int(NumberStepper::Down) << u"4"_s;
        QTest::newRow("plus at max") << u"99999"_s << int(NumberStepper::Up) << u"99999"_s;
        QTest::newRow("minus at min") << u"1"_s << int(NumberStepper::Down) << u"1"_s;
    }

    void stepsStopAtTheBounds()
    {
        QFETCH(QString, start);
        QFETCH(int, direction);
        QFETCH(QString, expected);
        NumberStepper stepper(1, 99999);
        stepper.setValue(start);
        QSignalSpy updates(&stepper, &NumberStepper::updated);
        stepper.tap(direction);
        QCOMPARE(stepper.value(), expected);
        QCOMPARE(updates.size(), start == expected ? 0 : 1);
    }

    void holdingRepeatsFromAFifthOfASecondUntilTheTap()
    {
        NumberStepper stepper(1, 99999);
        stepper.setValue(u"10"_s);
        QElapsedTimer clock;
        clock.start();
        stepper.press(NumberStepper::Down);
        QTest::qWait(120);
        if (clock.elapsed() < 190) // a slow machine may already be past the threshold
            QCOMPARE(stepper.value(), u"10"_s);
        QTRY_COMPARE_WITH_TIMEOUT(stepper.value(), u"1"_s, 5000);
        QVERIFY(clock.elapsed() >= 200 + 8 * 50);
        QVERIFY(stepper.isLongPressing());
        QTest::qWait(100); // at the bound the steps change nothing
        QCOMPARE(stepper.value(), u"1"_s);
        stepper.release(NumberStepper::Down);
        QVERIFY(!stepper.isLongPressing());
        QVERIFY(!stepper.isRepeating());
        QCOMPARE(stepper.value(), u"1"_s); // the release that stops the repeat does not step
    }

    void aTapOnEitherButtonStopsTheRepeatWithoutStepping()
    {
        NumberStepper stepper(1, 99999);
        stepper.setValue(u"50"_s);
        stepper.press(NumberStepper::Up);
        stepper.cancelPress(); // a finger that slides away before 0.2 s: no repeat
        QTest::qWait(300);
        QCOMPARE(stepper.value(), u"50"_s);

        stepper.press(NumberStepper::Up);
        QTRY_VERIFY(stepper.isLongPressing());
        stepper.cancelPress(); // sliding away once repeating keeps it going
        const qint64 before = stepper.value().toLongLong();
        QTRY_VERIFY(stepper.value().toLongLong() > before + 2);
        stepper.tap(NumberStepper::Down);
        const QString stopped = stepper.value();
        QVERIFY(!stepper.isRepeating());
        QTest::qWait(150);
        QCOMPARE(stepper.value(), stopped);
        stepper.tap(NumberStepper::Down); // idle again: a tap steps
        QCOMPARE(stepper.value().toLongLong(), stopped.toLongLong() - 1);
    }
};

QTEST_MAIN(StepperTest)
#include "tst_stepper.moc"
