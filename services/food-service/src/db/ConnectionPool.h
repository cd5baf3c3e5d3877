#pragma once

#include "db/Sqlite.h"

#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

namespace foodservice {

// Read-only connections shared by the server's worker threads; each connection
// keeps its prepared statements, so a request prepares nothing.
class ConnectionPool
{
public:
    class PooledConnection
    {
    public:
        explicit PooledConnection(const std::string &path);
        // The statement for sql, rewound and unbound.
        [[nodiscard]] Statement &prepared(const std::string &sql);

    private:
        Connection m_connection;
        std::map<std::string, Statement> m_statements;
    };

    // Returns its connection to the pool when destroyed.
    class Lease
    {
    public:
        Lease(ConnectionPool &pool, std::unique_ptr<PooledConnection> connection);
        ~Lease();
        Lease(const Lease &) = delete;
        Lease &operator=(const Lease &) = delete;
        [[nodiscard]] PooledConnection &operator*() const { return *m_connection; }
        [[nodiscard]] PooledConnection *operator->() const { return m_connection.get(); }

    private:
        ConnectionPool &m_pool;
        std::unique_ptr<PooledConnection> m_connection;
    };

    explicit ConnectionPool(std::string path);
    [[nodiscard]] Lease acquire();

private:
    std::string m_path;
    std::mutex m_mutex;
    std::vector<std::unique_ptr<PooledConnection>> m_idle;
};

} // namespace foodservice
