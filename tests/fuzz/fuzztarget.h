#pragma once

#include <cstddef>
#include <cstdint>

// libFuzzer's entry points.
extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv);
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size);

/// Ends the program, and with it the search for such an input, unless \a condition holds.
void require(bool condition, const char* what);
