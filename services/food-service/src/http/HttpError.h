#pragma once

#include <stdexcept>
#include <string>

namespace foodservice {

// A request that cannot be answered; the reply carries the status and a JSON body
// {"error": message} plus {"parameter": name} when one parameter is at fault.
class HttpError : public std::runtime_error
{
public:
    HttpError(int status, const std::string &message, std::string parameter = {})
        : std::runtime_error(message), m_status(status), m_parameter(std::move(parameter))
    {
    }
    [[nodiscard]] int status() const { return m_status; }
    [[nodiscard]] const std::string &parameter() const { return m_parameter; }

private:
    int m_status;
    std::string m_parameter;
};

} // namespace foodservice
