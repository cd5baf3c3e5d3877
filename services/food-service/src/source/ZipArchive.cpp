#include "source/ZipArchive.h"

#include <fstream>
#include <sstream>
#include <stdexcept>
#include <zlib.h>

namespace foodservice {
namespace {

constexpr std::uint32_t endOfDirectorySignature = 0x06054b50;
constexpr std::uint32_t directoryEntrySignature = 0x02014b50;
constexpr std::uint32_t localHeaderSignature = 0x04034b50;
constexpr std::size_t endOfDirectorySize = 22;
constexpr std::size_t directoryEntrySize = 46;
constexpr std::size_t localHeaderSize = 30;
constexpr std::uint16_t stored = 0;
constexpr std::uint16_t deflated = 8;
// Food files are a few kilobytes; anything far larger is not food data.
constexpr std::uint32_t largestMember = 64U * 1024U * 1024U;

std::uint32_t readLittleEndian(const std::string &bytes, std::size_t at, int width)
{
    std::uint32_t value = 0;
    for (int i = width - 1; i >= 0; --i)
        value = (value << 8U) | static_cast<unsigned char>(bytes[at + static_cast<std::size_t>(i)]);
    return value;
}

} // namespace

ZipArchive::ZipArchive(const std::string &path) : m_path(path)
{
    std::ifstream file(path, std::ios::binary);
    if (!file)
        throw std::runtime_error("cannot read " + path);
    std::ostringstream content;
    content << file.rdbuf();
    m_bytes = std::move(content).str();

    const auto damaged = [&](const std::string &why) {
        return std::runtime_error(path + " is not a readable zip archive: " + why);
    };
    if (m_bytes.size() < endOfDirectorySize)
        throw damaged("too short");
    std::size_t end = m_bytes.size() - endOfDirectorySize;
    while (readLittleEndian(m_bytes, end, 4) != endOfDirectorySignature) {
        if (end == 0 || m_bytes.size() - end > endOfDirectorySize + 0xFFFF)
            throw damaged("no central directory");
        --end;
    }
    const std::uint32_t count = readLittleEndian(m_bytes, end + 10, 2);
    std::size_t at = readLittleEndian(m_bytes, end + 16, 4);
    for (std::uint32_t i = 0; i < count; ++i) {
        if (at + directoryEntrySize > m_bytes.size() ||
            readLittleEndian(m_bytes, at, 4) != directoryEntrySignature)
            throw damaged("bad central directory entry");
        Entry entry;
        entry.method = static_cast<std::uint16_t>(readLittleEndian(m_bytes, at + 10, 2));
        entry.compressedSize = readLittleEndian(m_bytes, at + 20, 4);
        entry.size = readLittleEndian(m_bytes, at + 24, 4);
        const std::size_t nameLength = readLittleEndian(m_bytes, at + 28, 2);
        const std::size_t extraLength = readLittleEndian(m_bytes, at + 30, 2);
        const std::size_t commentLength = readLittleEndian(m_bytes, at + 32, 2);
        entry.localHeaderOffset = readLittleEndian(m_bytes, at + 42, 4);
        if (at + directoryEntrySize + nameLength > m_bytes.size())
            throw damaged("bad central directory entry");
        entry.name = m_bytes.substr(at + directoryEntrySize, nameLength);
        m_entries.push_back(std::move(entry));
        at += directoryEntrySize + nameLength + extraLength + commentLength;
    }
}

std::string ZipArchive::read(const Entry &entry) const
{
    const auto damaged = [&](const std::string &why) {
        return std::runtime_error(m_path + ": cannot read " + entry.name + ": " + why);
    };
    const std::size_t header = entry.localHeaderOffset;
    if (header + localHeaderSize > m_bytes.size() ||
        readLittleEndian(m_bytes, header, 4) != localHeaderSignature)
        throw damaged("bad local header");
    const std::size_t data = header + localHeaderSize + readLittleEndian(m_bytes, header + 26, 2) +
                             readLittleEndian(m_bytes, header + 28, 2);
    if (data > m_bytes.size() || m_bytes.size() - data < entry.compressedSize)
        throw damaged("truncated");
    if (entry.size > largestMember)
        throw damaged("member too large");
    if (entry.method == stored)
        return m_bytes.substr(data, entry.compressedSize);
    if (entry.method != deflated)
        throw damaged("unsupported compression method " + std::to_string(entry.method));

    std::string out(entry.size, '\0');
    z_stream stream{};
    if (inflateInit2(&stream, -MAX_WBITS) != Z_OK)
        throw damaged("inflate failed");
    stream.next_in = reinterpret_cast<Bytef *>(const_cast<char *>(m_bytes.data() + data));
    stream.avail_in = entry.compressedSize;
    stream.next_out = reinterpret_cast<Bytef *>(out.data());
    stream.avail_out = entry.size;
    const int result = inflate(&stream, Z_FINISH);
    const auto produced = stream.total_out;
    inflateEnd(&stream);
    if (result != Z_STREAM_END || produced != entry.size)
        throw damaged("corrupt compressed data");
    return out;
}

} // namespace foodservice
