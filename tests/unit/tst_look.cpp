#include "EdgeBorder.h"
#include "Look.h"
#include "NamedColors.h"
#include "SymbolIcons.h"

#include <cmath>
#include <QFontInfo>
#include <QRawFont>
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

class LookTest : public QObject
{
    Q_OBJECT

private slots:
    void everyTextMeetsContrastAA_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("background");
        QTest::addColumn<qreal>("opacity");
        QTest::newRow("filter button") << u"#595959"_s << u"white"_s << 1.0;
        QTest::newRow("filter button, no text yet") << u"lightGray"_s << u"white"_s << 1.0;
        QTest::newRow("result rows while replaced") << u"black"_s << u"white"_s << Look::staleRowOpacity;
        QTest::newRow("title bar") << u"white"_s << u"DetailColor1"_s << 1.0;
        QTest::newRow("total row") << u"TitleText"_s << u"DetailColor1"_s << 1.0;
        QTest::newRow("filled list header") << u"TitleText"_s << u"DetailColor1"_s << 1.0;
        QTest::newRow("selected picker option") << u"white"_s << u"DetailColor1"_s << 1.0;
        QTest::newRow("other picker options") << u"lightGray"_s << u"white"_s << 1.0;
        QTest::newRow("search placeholder and icon") << u"lightGray"_s << u"white"_s << 1.0;
        QTest::newRow("action buttons") << u"white"_s << u"TitleText"_s << 1.0;
        QTest::newRow("headings") << u"TitleText"_s << u"white"_s << 1.0;
        QTest::newRow("edit link") << u"HeadingText"_s << u"white"_s << 1.0;
        QTest::newRow("edit link, widgets") << u"headingText"_s << u"white"_s << 1.0;
        QTest::newRow("label cells") << u"black"_s << u"lightGray"_s << 1.0;
        QTest::newRow("calculator lines") << u"black"_s << u"white"_s << 1.0;
        QTest::newRow("remove cross") << u"#c40000"_s << u"white"_s << 1.0;
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

    void declarativeAccessorsReadTheCatalogue()
    {
        const Look look;
        QCOMPARE(look.titleText(), *namedColor(u"TitleText"_s));
        QCOMPARE(look.headingText(), *namedColor(u"HeadingText"_s));
        QCOMPARE(look.detailColor(), *namedColor(u"DetailColor1"_s));
        QCOMPARE(look.lightGray(), *namedColor(u"lightGray"_s));
        QVERIFY(!namedColor(u"NoSuchColour"_s));
    }

    void widgetColoursUseFallbacksOnlyInPreviews()
    {
        const QColor blue(0x00, 0x7a, 0xff);
        QCOMPARE(resolveUIColor(u"DetailColor1"_s, true, blue), namedColor(u"DetailColor1"_s));
        QCOMPARE(resolveUIColor(u"DetailColor1"_s, false, blue), blue);
        QVERIFY(!resolveUIColor(u"NoSuchColour"_s, true, blue));
        QVERIFY(notCanvas()); // the variable is not set for tests
        QCOMPARE(UIColor::headingText(), namedColor(u"headingText"_s));
        QCOMPARE(UIColor::lightGray(), namedColor(u"lightGray"_s));
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
    }

    void unknownSymbolIsEmpty() { QVERIFY(symbolGlyph(u"no.such.symbol"_s).isEmpty()); }

    void customFontsFallBackToInstalledFonts()
    {
        const Look look;
        for (const QFont &font : {look.azoSans(), look.arial()}) {
            QCOMPARE(font.pixelSize(), 15);
            const QString family = QFontInfo(font).family();
            QVERIFY2(family == u"Liberation Sans"_s || family == u"DejaVu Sans"_s ||
                         family.contains(u"Azo"_s) || family.compare(u"arial"_s, Qt::CaseInsensitive) == 0,
                     qPrintable(family));
        }
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
        QTest::newRow("no edges") << r << 1.0 << Edges{} << QList<QRectF>{};
    }

    void edgeBorderPath()
    {
        QFETCH(QRectF, rect);
        QFETCH(qreal, width);
        QFETCH(Edges, edges);
        QFETCH(QList<QRectF>, expected);
        QCOMPARE(EdgeBorder::path(rect, width, edges), expected);
    }
};

QTEST_MAIN(LookTest)
#include "tst_look.moc"
