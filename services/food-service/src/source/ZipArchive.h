#pragma once

#include <cstdint>
#include <string>
#include <vector>

struct zip;

namespace foodservice {

// The members of a zip (or jar) file, read through libzip.
// Throws std::runtime_error naming the archive when it is damaged.
class ZipArchive
{
public:
    struct Entry
    {
        std::string name;
        std::uint64_t index = 0;
        std::uint64_t size = 0;
    };

    explicit ZipArchive(const std::string &path);
    ~ZipArchive();
    ZipArchive(const ZipArchive &) = delete;
    ZipArchive &operator=(const ZipArchive &) = delete;

    [[nodiscard]] const std::vector<Entry> &entries() const { return m_entries; }
    // The member's bytes, checked against its size and checksum.
    [[nodiscard]] std::string read(const Entry &entry) const;

private:
    std::string m_path;
    struct zip *m_archive = nullptr;
    std::vector<Entry> m_entries;
};

} // namespace foodservice
