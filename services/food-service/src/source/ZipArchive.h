#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace foodservice {

// Reads the members of a zip (or jar) file: stored or deflated, no zip64, no encryption.
// Throws std::runtime_error naming the archive when it is damaged.
class ZipArchive
{
public:
    struct Entry
    {
        std::string name;
        std::uint16_t method = 0;
        std::uint32_t compressedSize = 0;
        std::uint32_t size = 0;
        std::uint32_t localHeaderOffset = 0;
    };

    explicit ZipArchive(const std::string &path);

    [[nodiscard]] const std::vector<Entry> &entries() const { return m_entries; }
    [[nodiscard]] std::string read(const Entry &entry) const;

private:
    std::string m_path;
    std::string m_bytes;
    std::vector<Entry> m_entries;
};

} // namespace foodservice
