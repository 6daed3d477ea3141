// Runs a fuzz target over each line of a text, or the whole of another file, and over so many mutations of it
// in a fixed row: fuzz_X SEEDS TIMES.

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <iterator>
#include <random>
#include <string>
#include <vector>

// NOLINTNEXTLINE(readability-redundant-declaration): each target defines its own
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t largo);

namespace {

void Probar(const std::string& bytes) {
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
}

/// A few flips, cuts, repeats and overwritten bytes, more often near the beginning, where headers are.
std::string Mutar(std::string bytes, std::mt19937& azar) {
    for (auto n = 1 + azar() % 6; n > 0 && !bytes.empty(); --n) {
        const std::size_t donde =
            azar() % (azar() % 3 == 0 ? std::min<std::size_t>(bytes.size(), 128) : bytes.size());
        switch (azar() % 5) {
            case 0:
                bytes[donde] = static_cast<char>(bytes[donde] ^ (1 << (azar() % 8)));
                break;
            case 1:
                bytes[donde] = static_cast<char>(azar());
                break;
            case 2:
                bytes[donde] = "\0'\"-;*=\xFF"[azar() % 8];
                break;
            case 3:
                bytes.insert(donde, bytes.substr(donde, azar() % 32));
                break;
            default:
                bytes.erase(donde, azar() % 10 == 0 ? std::string::npos : azar() % 8);
        }
    }
    return bytes;
}

std::vector<std::string> Semillas(const std::string& camino) {
    std::ifstream archivo(camino, std::ios::binary);
    if (!camino.ends_with(".txt")) return {{std::istreambuf_iterator<char>(archivo), {}}};
    std::vector<std::string> lineas;
    for (std::string linea; std::getline(archivo, linea);) lineas.push_back(linea);
    return lineas;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 3) return 2;
    std::mt19937 azar(1);
    const std::vector<std::string> semillas = Semillas(argv[1]);
    for (const std::string& semilla : semillas) {
        Probar(semilla);
        for (int vez = std::atoi(argv[2]); vez > 0; --vez) Probar(Mutar(semilla, azar));
    }
    std::cout << semillas.size() << " seeds\n";
    return semillas.empty() || semillas.front().empty() ? 1 : 0;
}
