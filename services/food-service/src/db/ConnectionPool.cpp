#include "db/ConnectionPool.h"

namespace foodservice {

ConnectionPool::PooledConnection::PooledConnection(const std::string &path)
    : m_connection(path, Connection::Mode::ReadOnly)
{
}

Statement &ConnectionPool::PooledConnection::prepared(const std::string &sql)
{
    auto found = m_statements.find(sql);
    if (found == m_statements.end())
        found = m_statements.emplace(sql, m_connection.prepare(sql)).first;
    found->second.reset();
    return found->second;
}

ConnectionPool::Lease::Lease(ConnectionPool &pool, std::unique_ptr<PooledConnection> connection)
    : m_pool(pool), m_connection(std::move(connection))
{
}

ConnectionPool::Lease::~Lease()
{
    const std::lock_guard lock(m_pool.m_mutex);
    m_pool.m_idle.push_back(std::move(m_connection));
}

ConnectionPool::ConnectionPool(std::string path) : m_path(std::move(path)) {}

ConnectionPool::Lease ConnectionPool::acquire()
{
    {
        const std::lock_guard lock(m_mutex);
        if (!m_idle.empty()) {
            auto connection = std::move(m_idle.back());
            m_idle.pop_back();
            return Lease(*this, std::move(connection));
        }
    }
    return Lease(*this, std::make_unique<PooledConnection>(m_path));
}

} // namespace foodservice
