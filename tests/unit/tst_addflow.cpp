#include "AddToCalcPreviewUIView.h"
#include "EnvironmentVariables.h"
#include "ExampleData.h"
#include "SelectPortionUIView.h"

#include <QSignalSpy>
#include <QTest>

using namespace nutrika;
using namespace Qt::Literals::StringLiterals;

namespace {

FoodItem food(qint64 id)
{
    return {u"Food %1"_s.arg(id), id, id, u"Brand"_s, true};
}

// A portion screen showing the sample portions: three pictured, two described.
std::unique_ptr<SelectPortionUIView> portionScreen()
{
    auto view = std::make_unique<SelectPortionUIView>();
    view->setPreview(Preview::Images);
    view->appear();
    return view;
}

} // namespace

// The rules of the portion and preview screens, without a window or a network.
class AddFlowTest : public QObject
{
    Q_OBJECT

private slots:
    // The custom field keeps only digits; "Select Portion" needs an amount there.
    void customAmount_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("shown");
        QTest::addColumn<bool>("canSelect");
        QTest::addColumn<qint64>("size");
        QTest::newRow("empty") << u""_s << u""_s << false << qint64(-1);
        QTest::newRow("pasted 12a3") << u"12a3"_s << u"123"_s << true << qint64(123);
        QTest::newRow("sign and point") << u"-1.5"_s << u"15"_s << true << qint64(15);
        QTest::newRow("zero") << u"0"_s << u"0"_s << true << qint64(0);
        QTest::newRow("20 digits") << u"12345678901234567890"_s << u"12345678901234567890"_s << false
                                   << qint64(-1);
    }

    void customAmount()
    {
        QFETCH(QString, typed);
        QFETCH(QString, shown);
        QFETCH(bool, canSelect);
        QFETCH(qint64, size);
        const auto view = portionScreen();
        view->selectCustom();
        view->setCustomText(typed);
        QCOMPARE(view->customText(), shown);
        QCOMPARE(view->canSelectPortion(), canSelect);
        QSignalSpy chosen(view.get(), &SelectPortionUIView::chosenPortionChanged);
        view->selectPortion();
        QCOMPARE(chosen.size(), canSelect ? 1 : 0);
        if (canSelect) {
            QCOMPARE(view->chosenPortion()._id, -1);
            QCOMPARE(view->chosenPortion().size, size);
            QCOMPARE(view->chosenPortion().unit, u"grams"_s);
        }
    }

    // Choosing through the boxes is the journey's; here what it does not reach.
    void theSelectedBoxAndTheCustomAmount()
    {
        const auto view = portionScreen();
        QCOMPARE(view->portionOptions().size(), 3);
        QVERIFY(!view->canSelectPortion());
        view->setCustomText(u"80"_s);
        view->selectBox(1);
        QCOMPARE(view->selectedPortionId(), 2);
        QCOMPARE(*view->customPortionSize(), 80); // the field is read again after a box tap
        view->selectCustom();
        view->setCustomText(u"150"_s); // the amount in the field when "Select Portion" is used counts
        view->selectPortion();
        QCOMPARE(view->chosenPortion().size, 150);

        view->setTabOption(1);
        QCOMPARE(view->portionOptions(), view->descPortions());
        QCOMPARE(view->descPortions().size(), 2);
        view->selectBox(7); // out of range: nothing changes
        QCOMPARE(view->selectedPortionId(), -1);
    }

    void theCarbohydratesOfThePreview_data()
    {
        QTest::addColumn<double>("perPortion");
        QTest::addColumn<QString>("quantity");
        QTest::addColumn<QString>("shown");
        QTest::newRow("12.5 three times") << 12.5 << u"3"_s << u"37.5g"_s;
        QTest::newRow("12.5 twice drops .0") << 12.5 << u"2"_s << u"25g"_s;
        QTest::newRow("stepper maximum, no exponent") << 12.9 << u"99999"_s << u"1289987.1g"_s;
        QTest::newRow("not a number") << 12.5 << u"x"_s << u"0g"_s;
    }

    void theCarbohydratesOfThePreview()
    {
        QFETCH(double, perPortion);
        QFETCH(QString, quantity);
        QFETCH(QString, shown);
        AddToCalcPreviewUIView view;
        view.startAdding(food(1), example::examplePortionItem());
        QCOMPARE(view.carbohydratesText(), QString()); // before the answer
        view.diaryEntry()->setTrackedNutrient(NutrientValue{u"Carbohydrates"_s, u"grams"_s, perPortion, 1});
        view.setQuantity(quantity);
        QCOMPARE(view.carbohydratesText(), shown);
    }

    // The journey edits the first line; the second must stay in its place too.
    void updateStoresTheLineAtItsOwnPosition()
    {
        const DiaryEntryPtr first = example::exampleTrackedNutrient1(),
                            second = example::exampleTrackedNutrient2();
        EnvironmentVariables *env = EnvironmentVariables::shared();
        env->setTrackedNutrientListItems({first, second});
        AddToCalcPreviewUIView view;
        view.startEditing(second.data());
        QSignalSpy lines(env, &EnvironmentVariables::trackedNutrientListItemsChanged);
        QSignalSpy closed(&view, &AddToCalcPreviewUIView::closeRequested);
        view.setLineQuantity(3);
        view.update();
        QCOMPARE(env->TrackedNutrientListItems(), (QList{first, second}));
        QCOMPARE(second->quantity(), 3);
        QCOMPARE(lines.size(), 1);
        QCOMPARE(closed.size(), 1);
        second->setQuantity(1);
    }
};

QTEST_MAIN(AddFlowTest)
#include "tst_addflow.moc"
