#include "ExampleData.h"

using namespace Qt::Literals::StringLiterals;

namespace nutrika::example {

namespace {
NutrientValue nutrient(const char *name, const char *unit, double value, qint64 dp)
{
    return {QString::fromUtf8(name), QString::fromUtf8(unit), value, dp};
}

FoodItem sampleFood(const char *description)
{
    return {QString::fromUtf8(description), 999999, 999999, u"Morning Mill"_s, true};
}

PortionItem samplePortion(qint64 id, qint64 size, const char *imageName, const char *description)
{
    PortionItem portion = basePortionItem();
    portion.order_num = id;
    portion.id = portion._id = id;
    portion.size = size;
    portion.image_name = QString::fromUtf8(imageName);
    portion.description = QString::fromUtf8(description);
    return portion;
}
} // namespace

const PortionItem &examplePortionItem()
{
    return basePortionItem();
}

const QList<PortionItem> &examplePortions()
{
    static const QList<PortionItem> portions{
        samplePortion(1, 30, "bowl-small", "small bowl"),
        samplePortion(2, 45, "bowl-medium", "medium bowl"),
        samplePortion(3, 60, "bowl-large", "large bowl"),
        samplePortion(4, 15, "", "tablespoon"),
        samplePortion(5, 240, "", "cup"),
    };
    return portions;
}

const FoodItem &exampleSelectedFood()
{
    static const FoodItem food = sampleFood("Honey Oat Clusters Cereal");
    return food;
}

const FoodItem &exampleSelectedFood2()
{
    static const FoodItem food = sampleFood("Wholegrain Fruit & Nut Muesli");
    return food;
}

// clang-format off
const NutrientValue &exampleNutrientCarb() { static const auto n = nutrient("Carbohydrates", "grams", 12.9, 1); return n; }
const NutrientValue &exampleNutrientCalories() { static const auto n = nutrient("Calories", "calories", 90.0, 0); return n; }
const NutrientValue &exampleNutrientProtein() { static const auto n = nutrient("Protein", "grams", 1.7, 1); return n; }
const NutrientValue &exampleNutrientFat() { static const auto n = nutrient("Fat", "grams", 0.2, 1); return n; }
const NutrientValue &exampleNutrientSatFat() { static const auto n = nutrient("Saturated Fat", "grams", 0.0, 1); return n; }
const NutrientValue &exampleNutrientTotalSugars() { static const auto n = nutrient("Total Sugars", "grams", 1.9, 1); return n; }
const NutrientValue &exampleNutrientSalt() { static const auto n = nutrient("Salt", "grams", 0.3, 1); return n; }
const NutrientValue &exampleNutrientFibre() { static const auto n = nutrient("Fibre (AOAC)", "grams", 0.7, 1); return n; }
// clang-format on

const QList<NutrientValue> &exampleNutrientsWithoutCarb()
{
    static const QList<NutrientValue> list{exampleNutrientCalories(),    exampleNutrientProtein(),
                                           exampleNutrientFat(),         exampleNutrientSatFat(),
                                           exampleNutrientTotalSugars(), exampleNutrientSalt(),
                                           exampleNutrientFibre()};
    return list;
}

DiaryEntryPtr exampleTrackedNutrient1()
{
    static const auto entry = DiaryEntryPtr::create(0, examplePortionItem(), exampleSelectedFood(), 2,
                                                    QList{exampleNutrientFat()}, exampleNutrientCarb());
    return entry;
}

DiaryEntryPtr exampleTrackedNutrient2()
{
    static const auto entry = DiaryEntryPtr::create(1, examplePortionItem(), exampleSelectedFood2(), 1,
                                                    QList{exampleNutrientFat()}, exampleNutrientCarb());
    return entry;
}

DiaryEntryPtr exampleLongLine()
{
    static const auto entry = DiaryEntryPtr::create(
        5, samplePortion(6, 28, "", "1 cup (1 NLEA serving)"),
        sampleFood(
            "Cereals ready-to-eat, wholegrain oat clusters with almonds, raisins and honey, fortified"),
        12, QList{exampleNutrientFat()}, exampleNutrientCarb());
    return entry;
}

const QList<DiaryEntryPtr> &exampleCarbList()
{
    static const QList<DiaryEntryPtr> list{exampleTrackedNutrient1(), exampleTrackedNutrient2()};
    return list;
}

const RecipeItem &exampleRecipe()
{
    static const RecipeItem recipe{u"Cheeseburger"_s, 123, exampleCarbList(), 1};
    return recipe;
}

const RecipeItem &exampleRecipe2()
{
    static const RecipeItem recipe{u"Half A Burger"_s, 123, exampleCarbList(), 2};
    return recipe;
}

DiaryEntryPtr exampleDiaryRecipeItem1()
{
    static const auto entry = DiaryEntryPtr::create(3, exampleRecipe(), 2);
    return entry;
}

DiaryEntryPtr exampleDiaryRecipeItem2()
{
    static const auto entry = DiaryEntryPtr::create(4, exampleRecipe2(), 1);
    return entry;
}

} // namespace nutrika::example
