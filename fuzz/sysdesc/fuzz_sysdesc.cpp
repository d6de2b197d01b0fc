// The simulator's system descriptions and state files: any text is read or
// refused as a whole with a DescriptionError, and the state of a system
// that was read reads back.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "sim/Description.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string text(reinterpret_cast<const char*>(data), size);
    try {
        const storlib::sim::Model model = storlib::sim::loadDescription(text, "fuzz.json", 1.7e9);
        const std::string state = storlib::sim::dumpState(model);
        try {
            storlib::sim::loadState(state, "fuzz.state.json");
        } catch (const storlib::sim::DescriptionError&) {
            std::abort();  // a state written from a good description must read back
        }
    } catch (const storlib::sim::DescriptionError&) {
    }
    try {
        storlib::sim::loadState(text, "fuzz.state.json");
    } catch (const storlib::sim::DescriptionError&) {
    }
    return 0;
}
