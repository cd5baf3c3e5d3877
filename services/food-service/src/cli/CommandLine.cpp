#include "cli/CommandLine.h"

namespace foodservice {

CommandLine::CommandLine(int argc, char **argv, const std::set<std::string> &allowed)
{
    for (int i = 2; i < argc; i += 2) {
        const std::string option = argv[i];
        if (!option.starts_with("--") || !allowed.contains(option.substr(2)))
            throw UsageError("unknown option " + option);
        if (i + 1 >= argc)
            throw UsageError("option " + option + " needs a value");
        if (!m_values.emplace(option.substr(2), argv[i + 1]).second)
            throw UsageError("option " + option + " given twice");
    }
}

std::optional<std::string> CommandLine::value(const std::string &name) const
{
    const auto found = m_values.find(name);
    return found == m_values.end() ? std::nullopt : std::optional(found->second);
}

std::string CommandLine::required(const std::string &name) const
{
    if (auto given = value(name))
        return *given;
    throw UsageError("option --" + name + " is required");
}

} // namespace foodservice
