#include "TextFieldObserver.h"

#include <QElapsedTimer>
#include <QSignalSpy>
#include <QTest>

using namespace nutrika;
using namespace Qt::Literals::StringLiterals;

// Debounce timings are checked with generous bounds: early deliveries fail, late ones only have to come.
class DebounceTest : public QObject
{
    Q_OBJECT

private slots:
    void theInitialEmptyTextIsDeliveredAfterASecond()
    {
        QElapsedTimer clock;
        clock.start();
        TextFieldObserver observer;
        QSignalSpy spy(&observer, &TextFieldObserver::debouncedTextChanged);
        QTRY_COMPARE_WITH_TIMEOUT(spy.size(), 1, 5000);
        QVERIFY(clock.elapsed() >= 990);
        QCOMPARE(observer.debouncedText(), u""_s);
    }

    void burstsOfTypingGiveOneDeliveryOfTheWholeWord()
    {
        TextFieldObserver observer;
        QStringList texts;
        connect(&observer, &TextFieldObserver::debouncedTextChanged, this,
                [&] { texts.append(observer.debouncedText()); });
        QElapsedTimer sinceLastKey;
        for (const QString &prefix : {u"a"_s, u"ap"_s, u"app"_s, u"appl"_s, u"apple"_s}) {
            observer.setSearchText(prefix);
            sinceLastKey.start();
            QTest::qWait(300);
        }
        QVERIFY(texts.isEmpty()); // not even the initial "": it was replaced within the second
        QTRY_COMPARE_WITH_TIMEOUT(texts.size(), 1, 5000);
        QVERIFY(sinceLastKey.elapsed() >= 990);
        QCOMPARE(texts, QStringList{u"apple"_s});
    }

    void aLetterDeletedWithinTheSecondDeliversOnlyTheEmptyText()
    {
        TextFieldObserver observer;
        QStringList texts;
        connect(&observer, &TextFieldObserver::debouncedTextChanged, this,
                [&] { texts.append(observer.debouncedText()); });
        observer.setSearchText(u"x"_s);
        QTest::qWait(200);
        observer.setSearchText(u""_s);
        QTRY_COMPARE_WITH_TIMEOUT(texts.size(), 1, 5000);
        QTest::qWait(1200);
        QCOMPARE(texts, QStringList{u""_s});
    }

    void settlingDeliversAtOnceAndOnlyOnce()
    {
        TextFieldObserver observer;
        QStringList texts;
        connect(&observer, &TextFieldObserver::debouncedTextChanged, this,
                [&] { texts.append(observer.debouncedText()); });
        observer.setSearchText(u"apple"_s);
        observer.settle();
        QCOMPARE(texts, QStringList{u"apple"_s});
        QTest::qWait(1200);
        QCOMPARE(texts, QStringList{u"apple"_s}); // the pending pause was cancelled

        QElapsedTimer sinceLastKey;
        sinceLastKey.start();
        observer.setSearchText(u"apples"_s); // typing after Enter waits again
        QTRY_COMPARE_WITH_TIMEOUT(texts.size(), 2, 5000);
        QVERIFY(sinceLastKey.elapsed() >= 990);
        QCOMPARE(texts.last(), u"apples"_s);
    }

    void theSameTextIsAnnouncedAgain()
    {
        TextFieldObserver observer;
        QSignalSpy spy(&observer, &TextFieldObserver::debouncedTextChanged);
        QTRY_COMPARE_WITH_TIMEOUT(spy.size(), 1, 5000);
        observer.setSearchText(u""_s);
        QTRY_COMPARE_WITH_TIMEOUT(spy.size(), 2, 5000);
        QCOMPARE(observer.debouncedText(), u""_s);
    }

    void anAbandonedObserverDeliversNothing()
    {
        auto *observer = new TextFieldObserver;
        bool delivered = false;
        connect(observer, &TextFieldObserver::debouncedTextChanged, this, [&] { delivered = true; });
        observer->setSearchText(u"pending"_s);
        delete observer;
        QTest::qWait(1300);
        QVERIFY(!delivered);
    }
};

QTEST_MAIN(DebounceTest)
#include "tst_debounce.moc"
