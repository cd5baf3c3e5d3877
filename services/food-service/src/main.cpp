#include "cli/CommandLine.h"
#include "cli/Commands.h"

#include <exception>
#include <iostream>
#include <string>

namespace {

constexpr const char *usage =
    "usage:\n"
    "  nutrika-food-service import --source <jar or folder> --db <file>\n"
    "  nutrika-food-service serve --db <file> --port <n, 0 = any free port> --api-key <key>\n"
    "                             [--cert <pem> --key <pem>] [--host <addr>]\n"
    "  nutrika-food-service bench --db <file> [--seconds <n>]\n"
    "  nutrika-food-service pictures --db <file> --contact-sheet <png>\n";

} // namespace

int main(int argc, char **argv)
{
    using namespace foodservice;
    const std::string command = argc > 1 ? argv[1] : "";
    try {
        if (command == "import")
            return runImport(CommandLine(argc, argv, {"source", "db"}));
        if (command == "serve")
            return runServe(CommandLine(argc, argv, {"db", "port", "api-key", "cert", "key", "host"}));
        if (command == "bench")
            return runBench(CommandLine(argc, argv, {"db", "seconds"}));
        if (command == "pictures")
            return runPictures(CommandLine(argc, argv, {"db", "contact-sheet"}));
        std::cerr << usage;
        return 2;
    } catch (const UsageError &error) {
        std::cerr << "nutrika-food-service " << command << ": " << error.what() << '\n' << usage;
        return 2;
    } catch (const std::exception &error) {
        std::cerr << "nutrika-food-service " << command << ": " << error.what() << '\n';
        return 1;
    }
}
