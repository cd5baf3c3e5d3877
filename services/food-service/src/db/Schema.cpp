#include "db/Schema.h"

#include "db/Sqlite.h"

#include <string>

namespace foodservice {

void createSchema(Connection &connection)
{
    connection.execute(R"sql(
        CREATE TABLE meta(key TEXT PRIMARY KEY, value TEXT NOT NULL);
        CREATE TABLE food(
            id INTEGER PRIMARY KEY,
            description TEXT NOT NULL,
            brand TEXT NOT NULL,
            category TEXT NOT NULL,
            search_text TEXT NOT NULL,
            lead_word INTEGER NOT NULL,
            measure_count INTEGER NOT NULL);
        CREATE VIRTUAL TABLE food_search USING fts5(
            search_text, content='food', content_rowid='id', prefix='2 3', detail='none');
        CREATE VIRTUAL TABLE food_terms USING fts5vocab(food_search, 'row');
        CREATE TABLE portion(
            id INTEGER PRIMARY KEY,
            food_id INTEGER NOT NULL REFERENCES food(id),
            order_num INTEGER NOT NULL,
            size INTEGER NOT NULL,
            description TEXT NOT NULL,
            picture TEXT NOT NULL);
        CREATE INDEX portion_by_food ON portion(food_id, order_num);
        CREATE TABLE nutrient(
            food_id INTEGER NOT NULL REFERENCES food(id),
            position INTEGER NOT NULL,
            is_macro INTEGER NOT NULL,
            name TEXT NOT NULL,
            units TEXT NOT NULL,
            per_100g REAL NOT NULL,
            PRIMARY KEY(food_id, position)) WITHOUT ROWID;
        CREATE TABLE accompaniment(
            food_id INTEGER NOT NULL REFERENCES food(id),
            position INTEGER NOT NULL,
            other_id INTEGER NOT NULL REFERENCES food(id),
            PRIMARY KEY(food_id, position)) WITHOUT ROWID;
    )sql");
    auto insert = connection.prepare("INSERT INTO meta(key, value) VALUES('schema', ?)");
    insert.bind(1, std::to_string(schemaVersion));
    (void)insert.step();
}

void checkSchema(Connection &connection)
{
    try {
        auto query = connection.prepare("SELECT value FROM meta WHERE key = 'schema'");
        if (query.step() && query.text(0) == std::to_string(schemaVersion))
            return;
    } catch (const SqliteError &) {
        // Not our database at all: reported below.
    }
    throw SqliteError("not a food database made by this version's import command");
}

} // namespace foodservice
