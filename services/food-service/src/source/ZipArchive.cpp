#include "source/ZipArchive.h"

#include <memory>
#include <stdexcept>
#include <zip.h>

namespace foodservice {

ZipArchive::ZipArchive(const std::string &path) : m_path(path)
{
    int code = 0;
    // Consistency checks compare each local header with the central directory.
    m_archive = zip_open(path.c_str(), ZIP_RDONLY | ZIP_CHECKCONS, &code);
    if (m_archive == nullptr) {
        zip_error_t error;
        zip_error_init_with_code(&error, code);
        const std::string why = zip_error_strerror(&error);
        zip_error_fini(&error);
        throw std::runtime_error(path + " is not a readable zip archive: " + why);
    }
    const zip_int64_t count = zip_get_num_entries(m_archive, 0);
    for (zip_int64_t i = 0; i < count; ++i) {
        zip_stat_t stat;
        if (zip_stat_index(m_archive, static_cast<zip_uint64_t>(i), 0, &stat) != 0 ||
            (stat.valid & ZIP_STAT_NAME) == 0 || (stat.valid & ZIP_STAT_SIZE) == 0) {
            zip_close(m_archive);
            throw std::runtime_error(path + " is not a readable zip archive: bad directory entry " +
                                     std::to_string(i));
        }
        m_entries.push_back({stat.name, static_cast<std::uint64_t>(i), stat.size});
    }
}

ZipArchive::~ZipArchive()
{
    zip_discard(m_archive);
}

std::string ZipArchive::read(const Entry &entry) const
{
    const auto damaged = [&](const std::string &why) {
        return std::runtime_error(m_path + ": cannot read " + entry.name + ": " + why);
    };
    const std::unique_ptr<zip_file_t, int (*)(zip_file_t *)> file(zip_fopen_index(m_archive, entry.index, 0),
                                                                  zip_fclose);
    if (!file)
        throw damaged(zip_strerror(m_archive));
    // One byte of room past the declared size shows a member that holds more than it says.
    std::string content(entry.size + 1, '\0');
    std::uint64_t filled = 0;
    while (filled < content.size()) {
        const zip_int64_t got = zip_fread(file.get(), content.data() + filled, content.size() - filled);
        if (got < 0)
            throw damaged(zip_file_strerror(file.get()));
        if (got == 0)
            break;
        filled += static_cast<std::uint64_t>(got);
    }
    if (filled != entry.size)
        throw damaged("damaged, it holds " + std::to_string(filled) +
                      " bytes where its directory entry says " + std::to_string(entry.size));
    content.resize(filled);
    return content;
}

} // namespace foodservice
