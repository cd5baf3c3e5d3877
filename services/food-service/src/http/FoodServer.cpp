#include "http/FoodServer.h"

#include "db/Schema.h"
#include "db/Sqlite.h"
#include "http/ServerSetup.h"
#include "tls/LocalCertificates.h"

#include <filesystem>
#include <httplib.h>

namespace foodservice {
namespace {

std::unique_ptr<Catalog> loadCatalog(const std::string &database)
{
    if (!std::filesystem::is_regular_file(database))
        throw std::runtime_error("database not found: " + database);
    Connection connection(database, Connection::Mode::ReadOnly);
    checkSchema(connection);
    return std::make_unique<Catalog>(connection);
}

} // namespace

FoodServer::FoodServer(const ServerOptions &options)
    : m_host(options.host), m_catalog(loadCatalog(options.database)), m_pool(options.database),
      m_search(*m_catalog), m_store(m_pool), m_api(*m_catalog, m_search, m_store, options.apiKey)
{
    if (options.certificatePath.empty() != options.keyPath.empty())
        throw std::runtime_error("--cert and --key go together");
    if (!options.certificatePath.empty()) {
        m_server =
            std::make_unique<httplib::SSLServer>(options.certificatePath.c_str(), options.keyPath.c_str());
        m_caPath = options.certificatePath;
    } else {
        const auto identity = localIdentity(defaultDataFolder(), options.host);
        m_server = std::make_unique<httplib::SSLServer>(identity.certificate.get(), identity.key.get());
        m_caPath = identity.caPath;
    }
    if (!m_server->is_valid())
        throw std::runtime_error("cannot use the certificate and key " + options.certificatePath + " " +
                                 options.keyPath);
    configureServer(*m_server);
    m_api.install(*m_server);
}

FoodServer::~FoodServer() = default;

int FoodServer::bind(int port)
{
    const int bound =
        port == 0 ? m_server->bind_to_any_port(m_host) : (m_server->bind_to_port(m_host, port) ? port : -1);
    if (bound <= 0)
        throw std::runtime_error("cannot listen on " + m_host + ":" + std::to_string(port));
    return bound;
}

bool FoodServer::run()
{
    return m_server->listen_after_bind();
}

void FoodServer::stop()
{
    m_server->stop();
}

} // namespace foodservice
