#include "db/Sqlite.h"

#include <sqlite3.h>

namespace foodservice {
namespace {

[[noreturn]] void fail(sqlite3 *db, std::string_view what)
{
    throw SqliteError(std::string(what) + ": " + (db ? sqlite3_errmsg(db) : "out of memory"));
}

// A read-only connection opens the file as immutable: the service never changes it in
// place (an import writes a new file and renames it), so SQLite can skip the file locks
// and change checks it would otherwise make for every query.
std::string immutableUri(const std::string &path)
{
    std::string uri = "file:";
    for (const char c : path) {
        if (c == '%' || c == '?' || c == '#') {
            constexpr std::string_view hex = "0123456789ABCDEF";
            const auto byte = static_cast<unsigned char>(c);
            uri += '%';
            uri += hex[byte >> 4];
            uri += hex[byte & 0xF];
        } else {
            uri += c;
        }
    }
    return uri + "?immutable=1";
}

} // namespace

Connection::Connection(const std::string &path, Mode mode)
{
    const bool readOnly = mode == Mode::ReadOnly;
    const int flags =
        readOnly ? SQLITE_OPEN_READONLY | SQLITE_OPEN_URI : SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE;
    const std::string name = readOnly ? immutableUri(path) : path;
    if (sqlite3_open_v2(name.c_str(), &m_db, flags | SQLITE_OPEN_NOMUTEX, nullptr) != SQLITE_OK) {
        const std::string message =
            "cannot open database " + path + ": " + (m_db ? sqlite3_errmsg(m_db) : "out of memory");
        sqlite3_close(m_db);
        throw SqliteError(message);
    }
}

Connection::~Connection()
{
    sqlite3_close(m_db);
}

void Connection::execute(std::string_view sql)
{
    char *error = nullptr;
    if (sqlite3_exec(m_db, std::string(sql).c_str(), nullptr, nullptr, &error) != SQLITE_OK) {
        const std::string message = error ? error : "unknown error";
        sqlite3_free(error);
        throw SqliteError("SQL failed: " + message);
    }
}

Statement Connection::prepare(std::string_view sql)
{
    return Statement(m_db, sql);
}

Statement::Statement(sqlite3 *db, std::string_view sql) : m_db(db)
{
    if (sqlite3_prepare_v2(db, sql.data(), static_cast<int>(sql.size()), &m_statement, nullptr) != SQLITE_OK)
        fail(db, "cannot prepare statement");
}

Statement::~Statement()
{
    sqlite3_finalize(m_statement);
}

Statement::Statement(Statement &&other) noexcept : m_db(other.m_db), m_statement(other.m_statement)
{
    other.m_statement = nullptr;
}

Statement &Statement::bind(int index, std::int64_t value)
{
    if (sqlite3_bind_int64(m_statement, index, value) != SQLITE_OK)
        fail(m_db, "cannot bind");
    return *this;
}

Statement &Statement::bind(int index, double value)
{
    if (sqlite3_bind_double(m_statement, index, value) != SQLITE_OK)
        fail(m_db, "cannot bind");
    return *this;
}

Statement &Statement::bind(int index, std::string_view value)
{
    if (sqlite3_bind_text(m_statement, index, value.data(), static_cast<int>(value.size()),
                          SQLITE_TRANSIENT) != SQLITE_OK)
        fail(m_db, "cannot bind");
    return *this;
}

bool Statement::step()
{
    const int result = sqlite3_step(m_statement);
    if (result == SQLITE_ROW)
        return true;
    if (result == SQLITE_DONE)
        return false;
    fail(m_db, "query failed");
}

void Statement::reset()
{
    sqlite3_reset(m_statement);
    sqlite3_clear_bindings(m_statement);
}

std::int64_t Statement::integer(int column) const
{
    return sqlite3_column_int64(m_statement, column);
}

double Statement::real(int column) const
{
    return sqlite3_column_double(m_statement, column);
}

std::string Statement::text(int column) const
{
    const auto *data = sqlite3_column_text(m_statement, column);
    return data ? std::string(reinterpret_cast<const char *>(data),
                              static_cast<std::size_t>(sqlite3_column_bytes(m_statement, column)))
                : std::string();
}

} // namespace foodservice
