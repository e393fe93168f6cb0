// The short form, for programs without libFuzzer: every file of the folders given, then as many changed
// copies of them as asked for. Usage: PROGRAM -runs=N FOLDER ...

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <dirent.h>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size);

namespace {

using Input = std::vector<std::uint8_t>;

void addFiles(const std::string& folder, std::vector<Input>& inputs) {
    auto* directory = opendir(folder.c_str());
    if (!directory) {
        std::fprintf(stderr, "no folder %s\n", folder.c_str());
        std::exit(2);
    }
    while (const auto* entry = readdir(directory)) {
        if (entry->d_name[0] != '.') {
            std::ifstream file(folder + "/" + entry->d_name, std::ios::binary);
            inputs.emplace_back(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
        }
    }
    closedir(directory);
}

Input changed(Input input, const std::vector<Input>& inputs, std::mt19937& random) {
    const auto below = [&random](std::size_t count) { return random() % count; };
    for (auto changes = 1 + below(8); changes > 0; --changes) {
        const auto place = input.begin() + static_cast<std::ptrdiff_t>(below(input.size() + 1));
        switch (below(4)) {
        case 0:
            input.insert(place, static_cast<std::uint8_t>(random()));
            break;
        case 1:
            input.erase(place, input.end() - place > 1 ? place + 1 : input.end());
            break;
        case 2: {
            const auto& other = inputs[below(inputs.size())];
            const auto start = static_cast<std::ptrdiff_t>(below(other.size() + 1));
            input.insert(place, other.begin() + start, other.end());
            break;
        }
        default:
            if (place != input.end()) {
                *place = static_cast<std::uint8_t>(random());
            }
        }
    }
    input.resize(input.size() > 4096 ? 4096 : input.size());
    return input;
}

} // namespace

int main(int argc, char* argv[]) {
    std::vector<Input> inputs;
    long runs = 0;
    for (int index = 1; index < argc; ++index) {
        const std::string argument = argv[index];
        if (argument.rfind("-runs=", 0) == 0) {
            runs = std::atol(argument.c_str() + 6);
        } else {
            addFiles(argument, inputs);
        }
    }
    if (inputs.empty()) {
        std::fprintf(stderr, "no inputs\n");
        return 2;
    }
    for (const auto& input : inputs) {
        LLVMFuzzerTestOneInput(input.data(), input.size());
    }
    std::mt19937 random(20260);
    for (long run = 0; run < runs; ++run) {
        const auto input = changed(inputs[random() % inputs.size()], inputs, random);
        LLVMFuzzerTestOneInput(input.data(), input.size());
    }
    std::printf("%zu files and %ld changed copies\n", inputs.size(), runs);
    return 0;
}
