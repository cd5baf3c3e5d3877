#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>

struct sqlite3;
struct sqlite3_stmt;

namespace foodservice {

class SqliteError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

class Statement;

// One SQLite connection; throws SqliteError on every failure.
class Connection
{
public:
    enum class Mode
    {
        ReadOnly,
        Create
    };

    Connection(const std::string &path, Mode mode);
    ~Connection();
    Connection(const Connection &) = delete;
    Connection &operator=(const Connection &) = delete;

    void execute(std::string_view sql);
    [[nodiscard]] Statement prepare(std::string_view sql);
    [[nodiscard]] sqlite3 *handle() const { return m_db; }

private:
    sqlite3 *m_db = nullptr;
};

// A prepared statement; bind indexes start at 1, column indexes at 0.
class Statement
{
public:
    Statement(sqlite3 *db, std::string_view sql);
    ~Statement();
    Statement(Statement &&other) noexcept;
    Statement &operator=(Statement &&) = delete;
    Statement(const Statement &) = delete;
    Statement &operator=(const Statement &) = delete;

    Statement &bind(int index, std::int64_t value);
    Statement &bind(int index, double value);
    Statement &bind(int index, std::string_view value);
    // Advances to the next row; false when done.
    [[nodiscard]] bool step();
    // Clears bindings and rewinds for reuse.
    void reset();

    [[nodiscard]] std::int64_t integer(int column) const;
    [[nodiscard]] double real(int column) const;
    [[nodiscard]] std::string text(int column) const;

private:
    sqlite3 *m_db = nullptr;
    sqlite3_stmt *m_statement = nullptr;
};

} // namespace foodservice
