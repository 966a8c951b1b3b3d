#include "tests/fuzz/FuzzInput.h"
#include "zqbchwcx/foundation/VxError.h"
#include "zqbchwcx/reference/model/configtext/ConfigText.h"

using namespace zqbchwcx::reference;

/// Any text is refused with a VxError or is a block of modules that is written and read again unchanged.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    ModuleBlock block;
    try {
        block = ReadConfigText(AsText(data, size), FuzzCatalogue());
    } catch (const zqbchwcx::VxError& error) {
        Demand(!error.description.empty(), "a refusal has a reason");
        return 0;
    }
    const std::string text = WriteConfigText(block);
    const ModuleBlock again = ReadConfigText(text, FuzzCatalogue());
    Demand(WriteConfigText(again) == text, "what is written is read as the same block");
    return 0;
}
