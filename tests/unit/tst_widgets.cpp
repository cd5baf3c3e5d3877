// The look and the two widgets with timing rules: the search field's pause and the stepper's repeat.
#include "EdgeBorder.h"
#include "Look.h"
#include "NamedColors.h"
#include "NumberStepper.h"
#include "SymbolIcons.h"
#include "TextFieldObserver.h"

#include <cmath>
#include <QElapsedTimer>
#include <QRawFont>
#include <QSignalSpy>
#include <QTest>

using namespace nutrika;
using namespace Qt::Literals::StringLiterals;
using Edges = QList<EdgeBorder::Edge>;

namespace {

double luminance(const QColor &color)
{
    const auto channel = [](double c) {
        return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * channel(color.redF()) + 0.7152 * channel(color.greenF()) +
           0.0722 * channel(color.blueF());
}

double contrast(const QColor &a, const QColor &b)
{
    const double la = luminance(a), lb = luminance(b);
    return (std::max(la, lb) + 0.05) / (std::min(la, lb) + 0.05);
}

QColor colorOf(const QString &nameOrCatalogue)
{
    if (const std::optional<QColor> named = namedColor(nameOrCatalogue))
        return *named;
    return QColor::fromString(nameOrCatalogue);
}

// What the eye gets from a colour drawn at `opacity` over `under`.
QColor blend(const QColor &over, qreal opacity, const QColor &under)
{
    const auto mix = [&](qreal a, qreal b) { return a * opacity + b * (1 - opacity); };
    return QColor::fromRgbF(float(mix(over.redF(), under.redF())), float(mix(over.greenF(), under.greenF())),
                            float(mix(over.blueF(), under.blueF())));
}

} // namespace

// Timings are checked with generous bounds: early deliveries fail, late ones only have to come.
class WidgetsTest : public QObject
{
    Q_OBJECT

private slots:
    void everyTextMeetsContrastAA_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("background");
        QTest::addColumn<qreal>("opacity");
        // Each pair of catalogue colours once; the row names where it is read.
        QTest::newRow("placeholder, unselected picker options, empty filter")
            << u"lightGray"_s << u"white"_s << 1.0;
        QTest::newRow("result rows while replaced") << u"black"_s << u"white"_s << Look::staleRowOpacity;
        QTest::newRow("title bar, selected picker option") << u"white"_s << u"DetailColor1"_s << 1.0;
        QTest::newRow("total row, filled list header") << u"TitleText"_s << u"DetailColor1"_s << 1.0;
        QTest::newRow("action buttons") << u"white"_s << u"TitleText"_s << 1.0;
        QTest::newRow("headings") << u"TitleText"_s << u"white"_s << 1.0;
        QTest::newRow("edit link") << u"HeadingText"_s << u"white"_s << 1.0;
        QTest::newRow("edit link, widgets") << u"headingText"_s << u"white"_s << 1.0;
        QTest::newRow("label cells") << u"black"_s << u"lightGray"_s << 1.0;
    }

    void everyTextMeetsContrastAA()
    {
        QFETCH(QString, text);
        QFETCH(QString, background);
        QFETCH(qreal, opacity);
        const QColor fg = colorOf(text), bg = colorOf(background);
        QVERIFY2(fg.isValid() && bg.isValid(), "colour missing from the catalogue");
        const double ratio = contrast(blend(fg, opacity, bg), bg);
        QVERIFY2(ratio >= 4.5, qPrintable(u"%1 on %2: %3:1"_s.arg(text, background).arg(ratio, 0, 'f', 2)));
    }

    void widgetColoursUseFallbacksOnlyInPreviews()
    {
        const QColor blue(0x00, 0x7a, 0xff);
        QCOMPARE(resolveUIColor(u"DetailColor1"_s, true, blue), namedColor(u"DetailColor1"_s));
        QCOMPARE(resolveUIColor(u"DetailColor1"_s, false, blue), blue);
        QVERIFY(!resolveUIColor(u"NoSuchColour"_s, true, blue));
    }

    void everySymbolHasAGlyphInTheIconFont_data()
    {
        QTest::addColumn<QString>("symbol");
        for (const char *name :
             {"chevron.left", "chevron.right", "chevron.down", "xmark", "xmark.circle", "magnifyingglass",
              "arrow.2.circlepath", "plus.circle.fill", "minus.circle.fill"})
            QTest::newRow(name) << QString::fromLatin1(name);
    }

    void everySymbolHasAGlyphInTheIconFont()
    {
        QFETCH(QString, symbol);
        QVERIFY2(!symbolFontFamily().isEmpty(), "Material Icons font not found");
        const QString glyph = symbolGlyph(symbol);
        QCOMPARE(glyph.size(), 1);
        QFont font(symbolFontFamily());
        const QRawFont raw = QRawFont::fromFont(font);
        QVERIFY(raw.supportsCharacter(glyph.at(0)));
        QVERIFY(symbolGlyph(u"no.such.symbol"_s).isEmpty());
    }

    void edgeBorderPath_data()
    {
        QTest::addColumn<QRectF>("rect");
        QTest::addColumn<qreal>("width");
        QTest::addColumn<Edges>("edges");
        QTest::addColumn<QList<QRectF>>("expected");
        const QRectF r(0, 0, 100, 40);
        QTest::newRow("bottom, leading, trailing")
            << r << 1.0 << Edges{EdgeBorder::Bottom, EdgeBorder::Leading, EdgeBorder::Trailing}
            << QList<QRectF>{{0, 39, 100, 1}, {0, 0, 1, 40}, {99, 0, 1, 40}};
        QTest::newRow("top, offset rect")
            << QRectF(10, 20, 50, 30) << 2.0 << Edges{EdgeBorder::Top} << QList<QRectF>{{10, 20, 50, 2}};
        QTest::newRow("repeated edge") << r << 2.0 << Edges{EdgeBorder::Bottom, EdgeBorder::Bottom}
                                       << QList<QRectF>{{0, 38, 100, 2}, {0, 38, 100, 2}};
    }

    void edgeBorderPath()
    {
        QFETCH(QRectF, rect);
        QFETCH(qreal, width);
        QFETCH(Edges, edges);
        QFETCH(QList<QRectF>, expected);
        QCOMPARE(EdgeBorder::path(rect, width, edges), expected);
    }

    // Letters, a point and a start below the minimum are the QML test's; these are the rest.
    void normalisation_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<qint64>("min");
        QTest::addColumn<qint64>("max");
        QTest::addColumn<QString>("expected");
        QTest::newRow("sign dropped") << u"-5"_s << 1LL << 99999LL << u"5"_s;
        QTest::newRow("leading zeros") << u"007"_s << 1LL << 99999LL << u"7"_s;
        QTest::newRow("empty is min") << u""_s << 1LL << 99999LL << u"1"_s;
        QTest::newRow("no digits is min") << u"abc"_s << 3LL << 99999LL << u"3"_s;
        QTest::newRow("above max") << u"123456"_s << 1LL << 99999LL << u"99999"_s;
        QTest::newRow("beyond 64 bits") << u"99999999999999999999999"_s << 1LL << 99999LL << u"99999"_s;
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
        QCOMPARE(updates.size(), 0);
        stepper.componentComplete();
        stepper.normalize();
        QCOMPARE(updates.size(), 2);
        QCOMPARE(updates.last().first().toLongLong(), 1);
        QTest::ignoreMessage(QtWarningMsg, "NumberStepper: max is fixed once the stepper is built");
        stepper.setMax(5);
        QCOMPARE(stepper.max(), 99999);
    }

    // Repeating down to the bound is the QML test's; here the timing, and what stops it.
    // At a bound a step changes nothing and announces nothing: no line is updated to the same amount.
    void stepsAtTheBoundsAreSilent()
    {
        NumberStepper stepper(1, 99999);
        stepper.setValue(u"99999"_s);
        QSignalSpy updates(&stepper, &NumberStepper::updated);
        stepper.tap(NumberStepper::Up);
        QCOMPARE(stepper.value(), u"99999"_s);
        stepper.setValue(u"1"_s);
        stepper.tap(NumberStepper::Down);
        QCOMPARE(stepper.value(), u"1"_s);
        QCOMPARE(updates.size(), 1); // the value written, and no step
    }

    void holdingRepeatsFromAFifthOfASecondUntilATap()
    {
        NumberStepper stepper(1, 99999);
        stepper.setValue(u"50"_s);
        stepper.press(NumberStepper::Up);
        stepper.cancelPress(); // a finger that slides away before 0.2 s: no repeat
        QTest::qWait(300);
        QCOMPARE(stepper.value(), u"50"_s);

        QElapsedTimer clock;
        clock.start();
        stepper.press(NumberStepper::Down);
        QTest::qWait(120);
        if (clock.elapsed() < 190) // a slow machine may already be past the threshold
            QCOMPARE(stepper.value(), u"50"_s);
        QTRY_VERIFY_WITH_TIMEOUT(stepper.value().toLongLong() <= 41, 5000);
        QVERIFY(clock.elapsed() >= 200 + 8 * 50); // the first step at 0.2 s, then one each 50 ms
        stepper.cancelPress();                    // sliding away once repeating keeps it going
        const qint64 before = stepper.value().toLongLong();
        QTRY_VERIFY(stepper.value().toLongLong() < before - 2);
        stepper.tap(NumberStepper::Up); // the other button stops it without stepping
        const QString stopped = stepper.value();
        QVERIFY(!stepper.isRepeating());
        QTest::qWait(150);
        QCOMPARE(stepper.value(), stopped);
        stepper.tap(NumberStepper::Up); // idle again: a tap steps
        QCOMPARE(stepper.value().toLongLong(), stopped.toLongLong() + 1);
    }

    // Bursts of typing are the QML test's. The initial empty text comes after a second; Enter delivers at
    // once and cancels the pause; the same text again is delivered again; an abandoned observer is silent.
    void deliveriesAfterThePauseAndAtEnter()
    {
        auto *abandoned = new TextFieldObserver;
        bool abandonedDelivered = false;
        connect(abandoned, &TextFieldObserver::debouncedTextChanged, this,
                [&] { abandonedDelivered = true; });
        abandoned->setSearchText(u"pending"_s);
        delete abandoned;

        QElapsedTimer clock;
        clock.start();
        TextFieldObserver observer;
        QSignalSpy spy(&observer, &TextFieldObserver::debouncedTextChanged);
        QTRY_COMPARE_WITH_TIMEOUT(spy.size(), 1, 5000);
        QVERIFY(clock.elapsed() >= 990);
        observer.setSearchText(u"apple"_s);
        observer.settle();
        QCOMPARE(spy.size(), 2);
        QCOMPARE(observer.debouncedText(), u"apple"_s);
        QTest::qWait(1200);
        QCOMPARE(spy.size(), 2);
        observer.setSearchText(u"apple"_s);
        QTRY_COMPARE_WITH_TIMEOUT(spy.size(), 3, 5000);
        QVERIFY(!abandonedDelivered);
    }
};

QTEST_MAIN(WidgetsTest)
#include "tst_widgets.moc"
