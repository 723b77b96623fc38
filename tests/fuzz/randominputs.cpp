// Feeds a fuzz target random inputs, the same in every run, where libFuzzer is not there to do it.

#include "fuzztarget.h"

#include <cstdio>
#include <random>
#include <vector>

int main(int argc, char** argv)
{
    constexpr int inputs = 10000;
    constexpr size_t longestInput = 200; // bytes
    LLVMFuzzerInitialize(&argc, &argv);
    std::mt19937 random(42);
    for (int i = 0; i < inputs; ++i) {
        std::vector<uint8_t> input(random() % longestInput);
        for (uint8_t& byte : input)
            byte = static_cast<uint8_t>(random());
        LLVMFuzzerTestOneInput(input.data(), input.size());
    }
    std::printf("%d inputs\n", inputs);
    return 0;
}
