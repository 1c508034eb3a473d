// The main function of a fuzz target without a fuzzer: runs every file of a corpus folder through it, and of
// each file a number of mutations, the same in every run.
//
//   fuzz_NAME FOLDER MUTATIONS

#include <algorithm>
#include <csignal>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* daten, std::size_t laenge);

namespace {

using Bytes = std::vector<std::uint8_t>;
namespace fs = std::filesystem;

// What runs just now, for the one who looks for the input of a crash.
std::string dieDatei;
int dieMutation = 0;

void NenneEingabe(int /*signal*/) {
    std::fprintf(stderr, "failed at mutation %d of %s\n", dieMutation, dieDatei.c_str());
    std::_Exit(1);
}

Bytes Lies(const fs::path& pfad) {
    std::ifstream datei(pfad, std::ios::binary);
    return {std::istreambuf_iterator<char>(datei), {}};
}

/// The files of a folder by name: a system lists them in any order.
std::vector<fs::path> Korpus(const fs::path& ordner) {
    std::vector<fs::path> dateien;
    for (const auto& eintrag : fs::directory_iterator(ordner))
        dateien.push_back(eintrag.path());
    std::ranges::sort(dateien);
    return dateien;
}

/// Some changed bytes, anywhere or near the beginning, and in half of all cases another length.
Bytes Mutiert(Bytes bytes, std::mt19937& zufall) {
    constexpr std::size_t kopf = 32;
    constexpr unsigned hoechstensGeaendert = 4;
    if (zufall() % 2 == 0)
        bytes.resize(zufall() % (bytes.size() + 8));
    for (auto anzahl = zufall() % (hoechstensGeaendert + 1); anzahl > 0 && !bytes.empty(); --anzahl) {
        const std::size_t grenze = zufall() % 2 == 0 ? bytes.size() : std::min(kopf, bytes.size());
        bytes[zufall() % grenze] = static_cast<std::uint8_t>(zufall());
    }
    return bytes;
}

void LasseLaufen(const Bytes& bytes) {
    LLVMFuzzerTestOneInput(bytes.data(), bytes.size());
}

void LasseLaufen(const fs::path& datei, int mutationen) {
    std::mt19937 zufall(1);
    const Bytes bytes = Lies(datei);
    dieDatei = datei.string();
    dieMutation = 0;
    LasseLaufen(bytes);
    while (dieMutation++ < mutationen)
        LasseLaufen(Mutiert(bytes, zufall));
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 3)
        return 2;
    std::signal(SIGABRT, NenneEingabe);
    std::signal(SIGSEGV, NenneEingabe);
    const int mutationen = std::atoi(argv[2]);
    const auto dateien = Korpus(argv[1]);
    for (const auto& datei : dateien)
        LasseLaufen(datei, mutationen);
    std::printf("%zu files of the corpus, %d mutations of each\n", dateien.size(), mutationen);
    return dateien.empty() ? 1 : 0;
}
