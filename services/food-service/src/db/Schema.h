#pragma once

namespace foodservice {

class Connection;

// Version of the database layout; the server refuses other versions.
inline constexpr int schemaVersion = 1;

void createSchema(Connection &connection);

// Throws SqliteError when the database was not made by this importer.
void checkSchema(Connection &connection);

} // namespace foodservice
