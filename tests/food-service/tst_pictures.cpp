// The portion pictures on the real data: a bigger portion of a food shows more of it,
// and the contact sheet of everyday foods is drawn.
#include "FoodServiceProcess.h"
#include "ServiceClient.h"

#include <QImage>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>

class PicturesTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void largerPortionShowsMore_data();
    void largerPortionShowsMore();
    void contactSheetIsDrawn();

private:
    QImage thumbnail(int portionId);

    std::unique_ptr<FoodServiceProcess> m_service;
    std::unique_ptr<ServiceClient> m_client;
};

namespace {

// Pixels of clear or dark colour above the label: the food and what it fills. The plate,
// the glass, the bowl and the background are white or light grey.
int foodPixels(const QImage &picture)
{
    int count = 0;
    for (int y = 0; y < picture.height() * 8 / 10; ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            const QColor colour = picture.pixelColor(x, y);
            const int highest = std::max({colour.red(), colour.green(), colour.blue()});
            const int lowest = std::min({colour.red(), colour.green(), colour.blue()});
            if (highest - lowest > 60 || highest < 100)
                ++count;
        }
    }
    return count;
}

} // namespace

void PicturesTest::initTestCase()
{
    m_service = std::make_unique<FoodServiceProcess>(QStringLiteral(NUTRIKA_FOOD_DB));
    QVERIFY2(m_service->isReady(), qPrintable(m_service->errorString()));
    m_client = std::make_unique<ServiceClient>(*m_service);
}

QImage PicturesTest::thumbnail(int portionId)
{
    const auto reply = m_client->get("/api/v1/healthcare//food_portion_images/" +
                                     QByteArray::number(portionId) + "?width=200&height=200&type=thumbnail");
    return reply.status == 200 ? QImage::fromData(reply.body, "PNG") : QImage();
}

void PicturesTest::largerPortionShowsMore_data()
{
    QTest::addColumn<int>("smaller");
    QTest::addColumn<int>("larger");

    QTest::newRow("small and large banana, sized against the plate") << 904004 << 904006;
    QTest::newRow("4 and 10 nuggets, counted") << 2130901 << 2130903;
    QTest::newRow("half a cup and a cup of broccoli, filled") << 1109005 << 1109001;
    QTest::newRow("12 and 32 fl oz cola, a bigger cup") << 1440004 << 1440007;
}

void PicturesTest::largerPortionShowsMore()
{
    QFETCH(int, smaller);
    QFETCH(int, larger);

    const QImage small = thumbnail(smaller);
    const QImage large = thumbnail(larger);
    QVERIFY(!small.isNull() && !large.isNull());
    const int smallCount = foodPixels(small);
    const int largeCount = foodPixels(large);
    QVERIFY2(smallCount > 200 && largeCount > smallCount * 11 / 10,
             qPrintable(QStringLiteral("%1 and %2 food pixels").arg(smallCount).arg(largeCount)));
}

void PicturesTest::contactSheetIsDrawn()
{
    QTemporaryDir dir;
    const QString sheet = dir.filePath(QStringLiteral("sheet.png"));
    QProcess pictures;
    pictures.start(FoodServiceProcess::serviceBinary(),
                   {QStringLiteral("pictures"), QStringLiteral("--db"), QStringLiteral(NUTRIKA_FOOD_DB),
                    QStringLiteral("--contact-sheet"), sheet});
    QVERIFY(pictures.waitForFinished(60000));
    QVERIFY2(pictures.exitCode() == 0, pictures.readAllStandardError().constData());
    const QImage image(sheet);
    // Eight thumbnails across, five rows of them.
    QVERIFY(image.width() > 8 * 200 && image.height() > 5 * 200);
    QVERIFY(foodPixels(image) > 40 * 200);
}

QTEST_GUILESS_MAIN(PicturesTest)
#include "tst_pictures.moc"
