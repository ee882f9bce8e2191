// Every input that once broke a promise of study files, and the seeds of the fuzzer, through the fuzzer's own
// door. A broken promise ends the program with its words.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <system_error>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace lorvane {
namespace {

namespace fs = std::filesystem;

std::vector<fs::path> inputs() {
    std::vector<fs::path> found;
    for (const char* folder : {"seeds", "failures"}) {
        std::error_code nothingFailed;
        for (const auto& entry :
             fs::directory_iterator(fs::path(LORVANE_FUZZ_INPUTS) / folder, nothingFailed))
            found.push_back(entry.path());
    }
    return found;
}

// A test's name takes letters, digits and the underscore.
std::string nameOf(const ::testing::TestParamInfo<fs::path>& tested) {
    std::string name = tested.param.filename().string();
    std::replace(name.begin(), name.end(), '-', '_');
    return name;
}

class FuzzReplay : public ::testing::TestWithParam<fs::path> {};

TEST_P(FuzzReplay, KeepsThePromises) {
    std::ifstream file(GetParam(), std::ios::binary);
    const std::string content{std::istreambuf_iterator<char>(file), {}};
    ASSERT_FALSE(content.empty());
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(content.data()), content.size());
}

INSTANTIATE_TEST_SUITE_P(Inputs, FuzzReplay, ::testing::ValuesIn(inputs()), nameOf);

}  // namespace
}  // namespace lorvane
