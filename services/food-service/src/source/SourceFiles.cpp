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

bool isXmlName(std::string_view name)
{
    return name.ends_with(".xml");
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
    for (const auto *entry : members)
        visit(entry->name, archive.read(*entry));
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
