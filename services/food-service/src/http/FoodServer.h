#pragma once

#include "db/ConnectionPool.h"
#include "db/FoodStore.h"
#include "http/FoodApi.h"
#include "search/Catalog.h"
#include "search/SearchEngine.h"

#include <memory>
#include <string>

namespace httplib {
class SSLServer;
}

namespace foodservice {

struct ServerOptions
{
    std::string database;
    std::string apiKey;
    std::string host = "127.0.0.1";
    // Both empty: a certificate from the local CA.
    std::string certificatePath;
    std::string keyPath;
};

// The HTTPS food-data service over one database.
class FoodServer
{
public:
    // Loads the database and prepares TLS; throws std::runtime_error with the reason.
    explicit FoodServer(const ServerOptions &options);
    ~FoodServer();
    FoodServer(const FoodServer &) = delete;
    FoodServer &operator=(const FoodServer &) = delete;

    // Binds the port (0 = any free port) and returns the bound port; throws on failure.
    int bind(int port);
    // Serves until stop(); returns false when serving failed.
    bool run();
    // Safe from any thread.
    void stop();

    // The certificate clients should trust.
    [[nodiscard]] const std::string &caPath() const { return m_caPath; }

private:
    std::string m_host;
    std::unique_ptr<Catalog> m_catalog;
    ConnectionPool m_pool;
    SearchEngine m_search;
    FoodStore m_store;
    FoodApi m_api;
    std::string m_caPath;
    std::unique_ptr<httplib::SSLServer> m_server;
};

} // namespace foodservice
