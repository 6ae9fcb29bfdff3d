// tests/fuzz/fuzzer.cpp - one target under libFuzzer; built once for each, named by TALLYHOOP_FUZZ_TARGET.
#include "fuzz/targets.h"

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view bytes{reinterpret_cast<const char*>(data), size};
    if (const tallyhoop::fuzz::Complaint complaint = tallyhoop::fuzz::TALLYHOOP_FUZZ_TARGET(bytes)) {
        std::fprintf(stderr, "%s\n", complaint->c_str());
        std::abort();
    }
    return 0;
}
