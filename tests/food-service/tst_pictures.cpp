// The portion pictures drawn in-process on the real data: each food true to size against the
// plate, no two foods drawn alike, and labels in a person's words.
#include "db/ConnectionPool.h"
#include "db/FoodStore.h"
#include "db/Sqlite.h"
#include "FoodServiceProcess.h"
#include "picture/EverydayMeasure.h"
#include "picture/EverydayPortions.h"
#include "picture/PortionPictures.h"
#include "picture/Vessels.h"

#include <QtTest>

#include <cairo.h>
#include <cstdlib>
#include <map>

using namespace foodservice;

namespace {

constexpr int measuredSize = 1000;

// The pixels a picture adds to its backdrop between the name above and the label below,
// as their width in centimetres of the 27 cm plate.
double drawnCentimetres(cairo_surface_t *picture, cairo_surface_t *backdrop)
{
    const int stride = cairo_image_surface_get_stride(picture);
    const unsigned char *drawn = cairo_image_surface_get_data(picture);
    const unsigned char *empty = cairo_image_surface_get_data(backdrop);
    int left = measuredSize;
    int right = -1;
    for (int y = measuredSize * 15 / 100; y < measuredSize * 88 / 100; ++y) {
        for (int x = 0; x < measuredSize; ++x) {
            const int at = y * stride + x * 4;
            const int difference = std::abs(drawn[at] - empty[at]) + std::abs(drawn[at + 1] - empty[at + 1]) +
                                   std::abs(drawn[at + 2] - empty[at + 2]);
            if (difference > 40) {
                left = std::min(left, x);
                right = std::max(right, x);
            }
        }
    }
    return right < left ? 0 : (right - left + 1) / double(measuredSize) / pictureUnitsPerCm;
}

QByteArray surfaceBytes(cairo_surface_t *surface)
{
    cairo_surface_flush(surface);
    return {reinterpret_cast<const char *>(cairo_image_surface_get_data(surface)),
            cairo_image_surface_get_stride(surface) * cairo_image_surface_get_height(surface)};
}

} // namespace

class PicturesTest : public QObject
{
    Q_OBJECT

    std::unique_ptr<ConnectionPool> m_pool;
    std::unique_ptr<FoodStore> m_store;
    std::unique_ptr<PortionPictures> m_pictures;

    PortionPictureRow row(const char *food, const char *portion)
    {
        Connection db(NUTRIKA_FOOD_DB, Connection::Mode::ReadOnly);
        auto query = db.prepare("SELECT p.id FROM portion p JOIN food f ON f.id = p.food_id"
                                " WHERE f.description = ? AND p.description = ?");
        query.bind(1, std::string(food)).bind(2, std::string(portion));
        if (!query.step())
            qFatal("not in the database: %s, %s", food, portion);
        return *m_store->portionPicture(query.integer(0));
    }

private slots:
    void initTestCase()
    {
        m_pool = std::make_unique<ConnectionPool>(NUTRIKA_FOOD_DB);
        m_store = std::make_unique<FoodStore>(*m_pool);
        m_pictures = std::make_unique<PortionPictures>();
    }

    // Typical sizes of the foods as a person knows them; the pictures must agree within 20%.
    void foodsAreDrawnTrueToSize_data()
    {
        QTest::addColumn<QString>("food");
        QTest::addColumn<QString>("portion");
        QTest::addColumn<double>("centimetres");

        const auto add = [](const char *name, const char *food, const char *portion, double centimetres) {
            QTest::newRow(name) << food << portion << centimetres;
        };
        add("medium apple, 7-8 cm", "Apples, raw, with skin", "1 medium (3\" dia)", 7.6);
        add("large orange, 3-1/16 in", "Oranges, raw, all commercial varieties", "1 large (3-1/16\" dia)",
            7.8);
        add("medium peach, 2-2/3 in", "Peaches, raw", "1 medium (2-2/3\" dia)", 6.8);
        add("medium tomato, 2-3/5 in", "Tomatoes, red, ripe, raw, year round average",
            "1 medium whole (2-3/5\" dia)", 6.6);
        add("medium pear, 7 cm wide", "Pears, raw", "1 medium", 7.2);
        add("large egg, 4.5 cm wide", "Egg, whole, cooked, hard-boiled", "1 large", 4.5);
        add("large slice of bread, not a loaf",
            "Bread, white, commercially prepared (includes soft bread crumbs)", "1 slice, large", 11.5);
        add("medium bagel, 3-1/2 to 4 in",
            "Bagels, plain, enriched, with calcium propionate (includes onion, poppy, sesame)",
            "1 medium bagel (3-1/2\" to 4\" dia)", 9.5);
        add("big cookie, 3-1/2 to 4 in",
            "Cookies, chocolate chip, commercially prepared, regular, higher fat, enriched",
            "1 cookie, big (3-1/2\" - 4\" dia)", 9.5);
        add("plain hamburger, 10 cm bun", "Fast foods, hamburger; single, regular patty; plain", "1 item",
            10);
        add("slice of cheddar, 8.5 cm", "Cheese, cheddar", "1 slice (1 oz)", 8.5);
        add("piece of a 9 in cake, 11.5 cm long",
            "Cake, chocolate, commercially prepared with chocolate frosting, in-store bakery",
            "1 piece (1/12 of a cake)", 11.5);
        add("glass of milk, 7 cm tumbler", "Milk, whole, 3.25% milkfat, with added vitamin D", "1 cup", 7);
    }

    void foodsAreDrawnTrueToSize()
    {
        QFETCH(QString, food);
        QFETCH(QString, portion);
        QFETCH(double, centimetres);

        const Surface backdrop = drawBackdrop(measuredSize);
        const Surface picture =
            m_pictures->draw(row(food.toUtf8().constData(), portion.toUtf8().constData()), measuredSize);
        const double drawn = drawnCentimetres(picture.get(), backdrop.get());
        QVERIFY2(std::abs(drawn - centimetres) <= centimetres * 0.2,
                 qPrintable(QStringLiteral("drawn %1 cm across, typically %2 cm")
                                .arg(drawn, 0, 'f', 1)
                                .arg(centimetres)));
    }

    // Each everyday food, as a cup and as a piece, must differ from every other food's
    // picture of the same measure: a food never borrows another's picture.
    void differentFoodsDrawDifferentPictures()
    {
        std::map<QByteArray, QString> seen;
        std::map<std::string, bool> foods;
        for (const auto &everyday : everydayPortions) {
            if (!foods.emplace(everyday.food, true).second)
                continue;
            for (const char *measure : {"cup", "piece"}) {
                PortionPictureRow normalised = row(everyday.food, everyday.portion);
                normalised.description = std::string("1 ") + measure;
                normalised.picture = measure;
                normalised.grams = 150;
                const Surface picture = m_pictures->draw(normalised, 200);
                const auto [earlier, added] =
                    seen.emplace(surfaceBytes(picture.get()), QString::fromUtf8(everyday.caption));
                QVERIFY2(added, qPrintable(QStringLiteral("1 %1 of %2 is drawn as that of %3")
                                               .arg(QString::fromUtf8(measure),
                                                    QString::fromUtf8(everyday.caption), earlier->second)));
            }
        }
    }

    void labelsUseEverydayWords_data()
    {
        QTest::addColumn<QString>("description");
        QTest::addColumn<QString>("label");

        QTest::newRow("size after the vessel") << "1 cup large 32 fl oz size"
                                               << "1 large cup";
        QTest::newRow("size after a comma") << "1 slice, large"
                                            << "1 large slice";
        QTest::newRow("dimensions dropped") << "1 medium (3\" dia)"
                                            << "1 medium";
        QTest::newRow("whole after a size") << "1 medium whole (2-3/5\" dia)"
                                            << "1 medium";
        QTest::newRow("preparation left out") << "1 piece, cooked, excluding refuse"
                                              << "1 piece";
        QTest::newRow("one word of form kept") << "1 cup, diced"
                                               << "1 cup diced";
        QTest::newRow("weight note dropped") << "6 pieces 3.4 oz"
                                             << "6 pieces";
        QTest::newRow("a weight measure kept") << "1 oz"
                                               << "1 oz";
        QTest::newRow("fractions kept") << "1 1/2 cup, chopped"
                                        << "1 1/2 cup chopped";
        QTest::newRow("long text cut at a word") << "1 serving pizza slice crust and topping"
                                                 << "1 serving pizza";
    }

    void labelsUseEverydayWords()
    {
        QFETCH(QString, description);
        QFETCH(QString, label);
        QCOMPARE(QString::fromStdString(everydayMeasure(description.toStdString())), label);
    }
};

QTEST_GUILESS_MAIN(PicturesTest)
#include "tst_pictures.moc"
