#pragma once

namespace httplib {
class Server;
}

namespace foodservice {

// Limits and error replies shared by the served and the benchmarked server:
// a worker pool sized for idle and slow clients with short timeouts, requests over
// 64 KB are refused, every error reply has a JSON body, and no exception escapes a handler.
void configureServer(httplib::Server &server);

} // namespace foodservice
