#include "catalog/Importer.h"

#include "catalog/Brand.h"
#include "catalog/EmbeddedTables.h"
#include "catalog/FoodGroups.h"
#include "catalog/LeadWord.h"
#include "catalog/Nutrients.h"
#include "catalog/Pairings.h"
#include "catalog/PictureKind.h"
#include "catalog/PortionOrder.h"
#include "catalog/PortionText.h"
#include "db/Schema.h"
#include "db/Sqlite.h"
#include "source/FoodXml.h"
#include "source/SourceFiles.h"
#include "text/FoldedText.h"

#include <algorithm>
#include <filesystem>
#include <map>
#include <numeric>
#include <stdexcept>
#include <unistd.h>
#include <vector>

namespace foodservice {
namespace {

// A food's measures become portions numbered food id x 100 + index.
constexpr std::size_t maxPortions = 99;
constexpr std::size_t maxAccompaniments = 5;

struct PreparedFood
{
    SourceFood source;
    std::string brand;
    std::string group;
    std::string folded;
};

std::vector<PreparedFood> readFoods(const std::string &source, const FoodGroups &groups)
{
    std::vector<PreparedFood> foods;
    forEachSourceFile(source, [&](const std::string &name, std::string_view content) {
        try {
            if (auto food = parseFoodXml(content)) {
                PreparedFood prepared{std::move(*food), {}, {}, {}};
                prepared.brand = brandOf(prepared.source.name);
                prepared.folded = foldText(prepared.source.name);
                prepared.group = groups.groupOf(prepared.source.id, prepared.folded);
                foods.push_back(std::move(prepared));
            }
        } catch (const std::runtime_error &error) {
            throw std::runtime_error(name + ": " + error.what());
        }
    });
    if (foods.empty())
        throw std::runtime_error("no foods found in " + source);
    std::sort(foods.begin(), foods.end(),
              [](const auto &a, const auto &b) { return a.source.id < b.source.id; });
    for (std::size_t i = 1; i < foods.size(); ++i) {
        if (foods[i].source.id == foods[i - 1].source.id)
            throw std::runtime_error("food " + std::to_string(foods[i].source.id) + " appears twice in " +
                                     source);
    }
    return foods;
}

struct Inserts
{
    explicit Inserts(Connection &db)
        : food(db.prepare("INSERT INTO food(id, description, brand, category, search_text,"
                          " lead_word, measure_count) VALUES(?, ?, ?, ?, ?, ?, ?)")),
          portion(db.prepare("INSERT INTO portion(id, food_id, order_num, size, description,"
                             " picture) VALUES(?, ?, ?, ?, ?, ?)")),
          nutrient(db.prepare("INSERT INTO nutrient(food_id, position, is_macro, name, units,"
                              " per_100g) VALUES(?, ?, ?, ?, ?, ?)"))
    {
    }
    Statement food;
    Statement portion;
    Statement nutrient;
};

void writeFood(Inserts &inserts, const PreparedFood &food, ImportSummary &summary)
{
    const std::int64_t id = food.source.id;
    const bool brandFirst = !food.brand.empty() && food.source.name.starts_with(food.brand);
    auto &insertFood = inserts.food;
    insertFood.bind(1, id)
        .bind(2, food.source.name)
        .bind(3, food.brand)
        .bind(4, food.group)
        .bind(5, food.folded)
        .bind(6, std::int64_t{leadWordIndex(food.source.name, brandFirst)})
        .bind(7, static_cast<std::int64_t>(food.source.measures.size()));
    (void)insertFood.step();
    insertFood.reset();

    auto &insertPortion = inserts.portion;
    const auto count = std::min(food.source.measures.size(), maxPortions);
    // Ids follow the source's order, so they stay the same; the order shown puts what people mean first.
    std::vector<std::size_t> shown(count);
    std::iota(shown.begin(), shown.end(), std::size_t{0});
    std::stable_sort(shown.begin(), shown.end(), [&food](std::size_t a, std::size_t b) {
        return portionRank(food.source.measures[a].name) < portionRank(food.source.measures[b].name);
    });
    for (std::size_t place = 0; place < count; ++place) {
        const std::size_t i = shown[place];
        const auto &measure = food.source.measures[i];
        const auto index = static_cast<std::int64_t>(i + 1);
        insertPortion.bind(1, id * 100 + index)
            .bind(2, id)
            .bind(3, static_cast<std::int64_t>(place + 1))
            .bind(4, std::int64_t{portionGrams(measure.grams)})
            .bind(5, portionDescription(measure.amount, measure.name))
            .bind(6, pictureKindOf(measure.name));
        (void)insertPortion.step();
        insertPortion.reset();
        ++summary.portions;
    }

    auto &insertNutrient = inserts.nutrient;
    std::int64_t position = 0;
    for (const auto &row : reportedNutrients(food.source)) {
        insertNutrient.bind(1, id)
            .bind(2, position++)
            .bind(3, std::int64_t{row.isMacro ? 1 : 0})
            .bind(4, row.name)
            .bind(5, row.units)
            .bind(6, row.per100g);
        (void)insertNutrient.step();
        insertNutrient.reset();
    }
    ++summary.foods;
}

void writeAccompaniments(Connection &db, const std::vector<PreparedFood> &foods, const Pairings &pairings,
                         ImportSummary &summary)
{
    std::map<std::string, std::int64_t, std::less<>> idByDescription;
    for (const auto &food : foods)
        idByDescription.emplace(food.source.name, food.source.id);
    auto insert = db.prepare("INSERT INTO accompaniment(food_id, position, other_id) VALUES(?, ?, ?)");
    for (const auto &food : foods) {
        std::int64_t position = 0;
        for (const auto &offer : pairings.offersFor(food.folded, food.group)) {
            const auto found = idByDescription.find(offer);
            if (found == idByDescription.end()) {
                summary.missingOffers.insert(offer);
                continue;
            }
            if (found->second == food.source.id || static_cast<std::size_t>(position) == maxAccompaniments)
                continue;
            insert.bind(1, std::int64_t{food.source.id}).bind(2, position++).bind(3, found->second);
            (void)insert.step();
            insert.reset();
            ++summary.accompaniments;
        }
    }
}

} // namespace

ImportSummary importFoods(const std::string &source, const std::string &dbPath)
{
    const FoodGroups groups(foodGroupTable());
    const Pairings pairings(pairingTable());
    const auto foods = readFoods(source, groups);

    const std::filesystem::path target(dbPath);
    if (target.has_parent_path())
        std::filesystem::create_directories(target.parent_path());
    // Written beside the target and renamed into place, so readers never see half a database.
    const std::string partial = dbPath + ".part-" + std::to_string(getpid());
    std::filesystem::remove(partial);
    ImportSummary summary;
    try {
        Connection db(partial, Connection::Mode::Create);
        db.execute("PRAGMA journal_mode = OFF; PRAGMA synchronous = OFF; BEGIN;");
        createSchema(db);
        {
            Inserts inserts(db);
            for (const auto &food : foods)
                writeFood(inserts, food, summary);
        }
        writeAccompaniments(db, foods, pairings, summary);
        db.execute("INSERT INTO food_search(food_search) VALUES('rebuild'); COMMIT;");
    } catch (...) {
        std::filesystem::remove(partial);
        throw;
    }
    std::filesystem::rename(partial, target);
    return summary;
}

} // namespace foodservice
