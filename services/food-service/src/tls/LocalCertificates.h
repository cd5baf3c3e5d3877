#pragma once

#include <filesystem>
#include <memory>
#include <string>

struct x509_st;
struct evp_pkey_st;

namespace foodservice {

struct X509Free
{
    void operator()(x509_st *certificate) const;
};
struct KeyFree
{
    void operator()(evp_pkey_st *key) const;
};
using CertificatePtr = std::unique_ptr<x509_st, X509Free>;
using KeyPtr = std::unique_ptr<evp_pkey_st, KeyFree>;

struct TlsIdentity
{
    CertificatePtr certificate;
    KeyPtr key;
    // The CA certificate clients trust to reach this server.
    std::string caPath;
};

// $XDG_DATA_HOME/nutrika-food-service, or ~/.local/share/nutrika-food-service.
[[nodiscard]] std::filesystem::path defaultDataFolder();

// A server certificate for 127.0.0.1 and localhost (and `host` when it is another
// name), issued in memory by the local CA kept in `folder`/ca. The CA is made once;
// instances starting together agree on it because it appears by one atomic rename.
// Throws std::runtime_error.
[[nodiscard]] TlsIdentity localIdentity(const std::filesystem::path &folder, const std::string &host);

} // namespace foodservice
