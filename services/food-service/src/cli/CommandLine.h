#pragma once

#include <map>
#include <optional>
#include <set>
#include <stdexcept>
#include <string>

namespace foodservice {

class UsageError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

// "<command> --name value ...": every option takes one value.
class CommandLine
{
public:
    // Throws UsageError for an option outside `allowed`, a repeated one or a missing value.
    CommandLine(int argc, char **argv, const std::set<std::string> &allowed);

    [[nodiscard]] std::optional<std::string> value(const std::string &name) const;
    // Throws UsageError when the option is absent.
    [[nodiscard]] std::string required(const std::string &name) const;

private:
    std::map<std::string, std::string> m_values;
};

} // namespace foodservice
