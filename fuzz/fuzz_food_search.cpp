#include "FoodSearchRequest.h"
#include "FuzzerSetup.h"

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv)
{
    addSeedsAndDictionary(argc, argv, NUTRIKA_FUZZ_TARGET);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), qsizetype(size));
    (void)nutrika::mapFoodSearchReply(nutrika::ServiceReply::classify(200, bytes));
    return 0;
}
