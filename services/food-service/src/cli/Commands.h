#pragma once

namespace foodservice {

class CommandLine;

// Each returns the process exit code.
int runImport(const CommandLine &options);
int runServe(const CommandLine &options);
int runBench(const CommandLine &options);
int runPictures(const CommandLine &options);

} // namespace foodservice
