#include "FuzzerSetup.h"
#include "source/FoodXml.h"

#include <cstddef>
#include <cstdint>
#include <stdexcept>

extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv)
{
    addSeedsAndDictionary(argc, argv, NUTRIKA_FUZZ_TARGET, "xml.dict");
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    try {
        (void)foodservice::parseFoodXml(std::string_view(reinterpret_cast<const char *>(data), size));
    } catch (const std::runtime_error &) {
        // A refusal with its reason is the expected answer to bad XML.
    }
    return 0;
}
