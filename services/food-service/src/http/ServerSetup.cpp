#include "http/ServerSetup.h"

#include "http/JsonReplies.h"

#include <httplib.h>

namespace foodservice {
namespace {

constexpr std::size_t largestRequest = 64 * 1024;
constexpr std::size_t keepAliveRequests = 100000;
// A connection holds one worker from its handshake to its close, blocked in reads most of
// that time. Far more workers than cores keep idle and slow clients (hundreds of them)
// from taking them all; blocked threads cost stack address space, not CPU.
constexpr std::size_t workerCount = 512;
// How long a client may send nothing during the TLS handshake or inside a request before it
// is dropped, and how long a kept-alive connection may wait for its next request.
constexpr time_t silenceSeconds = 2;
constexpr time_t keepAliveSeconds = 5;

std::size_t headerBytes(const httplib::Request &request)
{
    std::size_t total = request.method.size() + request.target.size() + request.version.size();
    for (const auto &[name, value] : request.headers)
        total += name.size() + value.size() + 4;
    return total;
}

std::string statusText(int status)
{
    switch (status) {
    case 400:
        return "bad request";
    case 404:
        return "not found";
    case 405:
        return "method not allowed";
    case 413:
        return "request larger than 64 KB";
    case 414:
        return "request target too long";
    default:
        return "request failed with status " + std::to_string(status);
    }
}

} // namespace

void configureServer(httplib::Server &server)
{
    server.new_task_queue = [] { return new httplib::ThreadPool(workerCount); };
    server.set_read_timeout(silenceSeconds);
    server.set_keep_alive_timeout(keepAliveSeconds);
    server.set_tcp_nodelay(true);
    server.set_keep_alive_max_count(keepAliveRequests);
    server.set_payload_max_length(largestRequest);
    server.set_pre_routing_handler([](const httplib::Request &request, httplib::Response &response) {
        const auto declaredBody = request.get_header_value<std::uint64_t>("Content-Length");
        if (declaredBody <= largestRequest && headerBytes(request) + declaredBody <= largestRequest)
            return httplib::Server::HandlerResponse::Unhandled;
        response.status = 413;
        response.set_content(errorBody("request larger than 64 KB"), "application/json");
        return httplib::Server::HandlerResponse::Handled;
    });
    server.set_error_handler([](const httplib::Request &, httplib::Response &response) {
        if (response.body.empty())
            response.set_content(errorBody(statusText(response.status)), "application/json");
    });
    server.set_exception_handler(
        [](const httplib::Request &, httplib::Response &response, std::exception_ptr) {
            response.status = 500;
            response.set_content(errorBody("internal error"), "application/json");
        });
}

} // namespace foodservice
