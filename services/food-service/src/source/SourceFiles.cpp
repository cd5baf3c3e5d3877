#include "source/SourceFiles.h"

#include "source/ZipArchive.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <stdexcept>
#include <vector>

namespace foodservice {
namespace {

// A food file is a few kilobytes; anything near this size is not food data.
constexpr std::uint64_t largestFoodFile = 16U * 1024U * 1024U;

bool isXmlName(std::string_view name)
{
    return name.ends_with(".xml");
}

void checkSize(const std::string &name, std::uint64_t size)
{
    constexpr std::uint64_t megabyte = 1024U * 1024U;
    if (size > largestFoodFile)
        throw std::runtime_error(name + " is " + std::to_string((size + megabyte - 1) / megabyte) +
                                 " MB, too large for a food file (at most " +
                                 std::to_string(largestFoodFile / megabyte) + " MB)");
}

void visitFolder(const std::filesystem::path &folder,
                 const std::function<void(const std::string &, std::string_view)> &visit)
{
    std::vector<std::filesystem::path> files;
    for (const auto &item : std::filesystem::recursive_directory_iterator(folder)) {
        if (item.is_regular_file() && isXmlName(item.path().filename().string()))
            files.push_back(item.path());
    }
    std::sort(files.begin(), files.end());
    for (const auto &file : files) {
        checkSize(file.string(), std::filesystem::file_size(file));
        std::ifstream in(file, std::ios::binary);
        if (!in)
            throw std::runtime_error("cannot read " + file.string());
        std::ostringstream content;
        content << in.rdbuf();
        visit(file.string(), content.str());
    }
}

void visitArchive(const std::string &path,
                  const std::function<void(const std::string &, std::string_view)> &visit)
{
    const ZipArchive archive(path);
    std::vector<const ZipArchive::Entry *> members;
    for (const auto &entry : archive.entries()) {
        if (isXmlName(entry.name))
            members.push_back(&entry);
    }
    std::sort(members.begin(), members.end(), [](const auto *a, const auto *b) { return a->name < b->name; });
    for (const auto *entry : members) {
        const std::string name = path + ": " + entry->name;
        checkSize(name, entry->size);
        visit(name, archive.read(*entry));
    }
}

} // namespace

void forEachSourceFile(const std::string &source,
                       const std::function<void(const std::string &, std::string_view)> &visit)
{
    std::error_code error;
    if (std::filesystem::is_directory(source, error))
        visitFolder(source, visit);
    else if (std::filesystem::is_regular_file(source, error))
        visitArchive(source, visit);
    else
        throw std::runtime_error("food data source not found: " + source);
}

} // namespace foodservice
