// The main function of a fuzz target without a fuzzer: runs every file of the corpus folders named on the
// command line through it, and of each file a fixed number of mutations, the same in every run.

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* daten, std::size_t laenge);

namespace {

using Bytes = std::vector<std::uint8_t>;

constexpr int MutationenJeDatei = 500;

Bytes Lies(const std::filesystem::path& pfad) {
    std::ifstream datei(pfad, std::ios::binary);
    return {std::istreambuf_iterator<char>(datei), {}};
}

/// Some changed bytes, anywhere or near the beginning, and in half of all cases another length.
Bytes Mutiert(Bytes bytes, std::mt19937& zufall) {
    constexpr std::size_t kopf = 32;
    constexpr int hoechstensGeaendert = 4;
    if (zufall() % 2 == 0)
        bytes.resize(zufall() % (bytes.size() + 8));
    for (int i = 0; i < hoechstensGeaendert && !bytes.empty(); ++i) {
        const std::size_t grenze = zufall() % 2 == 0 ? bytes.size() : std::min(kopf, bytes.size());
        bytes[zufall() % grenze] = static_cast<std::uint8_t>(zufall());
    }
    return bytes;
}

void LasseLaufen(const Bytes& bytes) {
    LLVMFuzzerTestOneInput(bytes.data(), bytes.size());
}

} // namespace

int main(int argc, char** argv) {
    std::mt19937 zufall(1);
    int dateien = 0;
    for (int i = 1; i < argc; ++i) {
        for (const auto& eintrag : std::filesystem::directory_iterator(argv[i])) {
            const Bytes bytes = Lies(eintrag.path());
            LasseLaufen(bytes);
            for (int m = 0; m < MutationenJeDatei; ++m)
                LasseLaufen(Mutiert(bytes, zufall));
            ++dateien;
        }
    }
    std::printf("%d files of the corpus, %d mutations of each\n", dateien, MutationenJeDatei);
    return dateien > 0 ? 0 : 1;
}
