#include "tls/LocalCertificates.h"

#include <arpa/inet.h>
#include <cstdlib>
#include <openssl/evp.h>
#include <openssl/pem.h>
#include <openssl/rand.h>
#include <openssl/x509v3.h>
#include <random>
#include <stdexcept>
#include <unistd.h>

namespace foodservice {
namespace {

constexpr long caDays = 3650;
constexpr long serverDays = 30;
constexpr long secondsPerDay = 86400;

struct BioFree
{
    void operator()(BIO *bio) const { BIO_free(bio); }
};
using BioPtr = std::unique_ptr<BIO, BioFree>;

[[noreturn]] void fail(const std::string &what)
{
    throw std::runtime_error("TLS setup failed: " + what);
}

KeyPtr newKey()
{
    KeyPtr key(EVP_EC_gen("P-256"));
    if (!key)
        fail("cannot generate a key");
    return key;
}

void addExtension(X509 *certificate, X509 *issuer, int nid, const std::string &value)
{
    X509V3_CTX context;
    X509V3_set_ctx(&context, issuer, certificate, nullptr, nullptr, 0);
    X509_EXTENSION *extension = X509V3_EXT_conf_nid(nullptr, &context, nid, value.c_str());
    if (!extension)
        fail("bad certificate extension " + value);
    X509_add_ext(certificate, extension, -1);
    X509_EXTENSION_free(extension);
}

CertificatePtr newCertificate(EVP_PKEY *key, const std::string &commonName, long days)
{
    CertificatePtr certificate(X509_new());
    if (!certificate)
        fail("out of memory");
    X509_set_version(certificate.get(), 2);
    std::uint64_t serial = 0;
    if (RAND_bytes(reinterpret_cast<unsigned char *>(&serial), sizeof serial) != 1)
        fail("no random numbers");
    ASN1_INTEGER_set_uint64(X509_get_serialNumber(certificate.get()), serial >> 1U);
    X509_gmtime_adj(X509_getm_notBefore(certificate.get()), -secondsPerDay);
    X509_gmtime_adj(X509_getm_notAfter(certificate.get()), days * secondsPerDay);
    X509_set_pubkey(certificate.get(), key);
    X509_NAME *name = X509_get_subject_name(certificate.get());
    X509_NAME_add_entry_by_txt(name, "O", MBSTRING_ASC, reinterpret_cast<const unsigned char *>("Nutrika"),
                               -1, -1, 0);
    X509_NAME_add_entry_by_txt(name, "CN", MBSTRING_ASC,
                               reinterpret_cast<const unsigned char *>(commonName.c_str()), -1, -1, 0);
    return certificate;
}

void sign(X509 *certificate, EVP_PKEY *key)
{
    if (X509_sign(certificate, key, EVP_sha256()) == 0)
        fail("cannot sign a certificate");
}

void writePem(const std::filesystem::path &path, X509 *certificate, EVP_PKEY *key)
{
    BioPtr file(BIO_new_file(path.c_str(), "w"));
    if (!file)
        fail("cannot write " + path.string());
    const bool written =
        certificate ? PEM_write_bio_X509(file.get(), certificate) == 1
                    : PEM_write_bio_PrivateKey(file.get(), key, nullptr, nullptr, 0, nullptr, nullptr) == 1;
    if (!written)
        fail("cannot write " + path.string());
}

void createAuthority(const std::filesystem::path &folder)
{
    std::random_device random;
    const auto staging = folder / ("ca.new-" + std::to_string(getpid()) + "-" + std::to_string(random()));
    std::filesystem::create_directories(staging);
    std::filesystem::permissions(staging, std::filesystem::perms::owner_all);
    const KeyPtr key = newKey();
    const CertificatePtr certificate = newCertificate(key.get(), "Nutrika local food-data CA", caDays);
    X509_set_issuer_name(certificate.get(), X509_get_subject_name(certificate.get()));
    addExtension(certificate.get(), certificate.get(), NID_basic_constraints, "critical,CA:TRUE");
    addExtension(certificate.get(), certificate.get(), NID_key_usage, "critical,keyCertSign,cRLSign");
    addExtension(certificate.get(), certificate.get(), NID_subject_key_identifier, "hash");
    sign(certificate.get(), key.get());
    writePem(staging / "ca-key.pem", nullptr, key.get());
    writePem(staging / "ca.pem", certificate.get(), nullptr);
    std::error_code error;
    std::filesystem::rename(staging, folder / "ca", error);
    // Another instance got there first: use its authority.
    if (error)
        std::filesystem::remove_all(staging);
}

template <typename T, typename Read> T readPem(const std::filesystem::path &path, Read read)
{
    BioPtr file(BIO_new_file(path.c_str(), "r"));
    T value(file ? read(file.get(), nullptr, nullptr, nullptr) : nullptr);
    if (!value)
        fail("cannot read " + path.string() + "; remove " + path.parent_path().string() +
             " to make a new local CA");
    return value;
}

std::string alternativeNames(const std::string &host)
{
    std::string names = "IP:127.0.0.1,DNS:localhost";
    if (host.empty() || host == "127.0.0.1" || host == "localhost")
        return names;
    in6_addr address{};
    const bool isAddress =
        inet_pton(AF_INET, host.c_str(), &address) == 1 || inet_pton(AF_INET6, host.c_str(), &address) == 1;
    return names + (isAddress ? ",IP:" : ",DNS:") + host;
}

} // namespace

void X509Free::operator()(x509_st *certificate) const
{
    X509_free(certificate);
}

void KeyFree::operator()(evp_pkey_st *key) const
{
    EVP_PKEY_free(key);
}

std::filesystem::path defaultDataFolder()
{
    if (const char *data = std::getenv("XDG_DATA_HOME"); data && *data)
        return std::filesystem::path(data) / "nutrika-food-service";
    const char *home = std::getenv("HOME");
    return std::filesystem::path(home && *home ? home : "/tmp") / ".local/share/nutrika-food-service";
}

TlsIdentity localIdentity(const std::filesystem::path &folder, const std::string &host)
{
    const auto authority = folder / "ca";
    try {
        std::filesystem::create_directories(folder);
        if (!std::filesystem::exists(authority / "ca.pem"))
            createAuthority(folder);
    } catch (const std::filesystem::filesystem_error &error) {
        fail(error.what());
    }
    const auto caCertificate = readPem<CertificatePtr>(authority / "ca.pem", PEM_read_bio_X509);
    const auto caKey = readPem<KeyPtr>(authority / "ca-key.pem", PEM_read_bio_PrivateKey);

    TlsIdentity identity{nullptr, newKey(), (authority / "ca.pem").string()};
    identity.certificate = newCertificate(identity.key.get(), "Nutrika local food-data service", serverDays);
    X509_set_issuer_name(identity.certificate.get(), X509_get_subject_name(caCertificate.get()));
    X509 *certificate = identity.certificate.get();
    addExtension(certificate, caCertificate.get(), NID_basic_constraints, "CA:FALSE");
    addExtension(certificate, caCertificate.get(), NID_key_usage, "critical,digitalSignature");
    addExtension(certificate, caCertificate.get(), NID_ext_key_usage, "serverAuth");
    addExtension(certificate, caCertificate.get(), NID_subject_alt_name, alternativeNames(host));
    addExtension(certificate, caCertificate.get(), NID_authority_key_identifier, "keyid");
    sign(certificate, caKey.get());
    return identity;
}

} // namespace foodservice
