#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

/// Adds the checked-in dictionary (JSON unless named) and the target's seed inputs to libFuzzer's
/// arguments. Without them the fuzzer rarely gets past the JSON or XML parser, which is not instrumented. The
/// seeds join only when every input the caller named is a corpus directory, so reproducing one file works as
/// usual, and the caller's first directory still receives the new inputs.
inline void addSeedsAndDictionary(int *argc, char ***argv, const char *target,
                                  const char *dictionary = "json.dict")
{
    static std::vector<std::string> extra;
    static std::vector<char *> arguments;
    bool hasDictionary = false;
    bool onlyDirectories = true;
    bool hasDirectory = false;
    for (int i = 1; i < *argc; ++i) {
        const std::string_view argument((*argv)[i]);
        if (argument.starts_with("-dict="))
            hasDictionary = true;
        else if (argument.starts_with("-"))
            continue;
        else if (std::filesystem::is_directory(argument))
            hasDirectory = true;
        else
            onlyDirectories = false;
    }
    const std::string directory = NUTRIKA_FUZZ_DIR;
    if (!hasDictionary)
        extra.push_back("-dict=" + directory + "/" + dictionary);
    if (hasDirectory && onlyDirectories)
        extra.push_back(directory + "/corpus/" + target);
    arguments.assign(*argv, *argv + *argc);
    for (std::string &argument : extra)
        arguments.push_back(argument.data());
    arguments.push_back(nullptr);
    *argc = static_cast<int>(arguments.size()) - 1;
    *argv = arguments.data();
}
