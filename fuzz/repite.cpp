// SPDX-License-Identifier: MIT
// Replays inputs through a fuzz target without a fuzzer: each argument is a file or a folder of files. This
// is how the corpus runs as an ordinary test, and how a crash is looked at. Fails when there was no input.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t n);

namespace {

namespace fs = std::filesystem;

void repite(const fs::path& ruta) {
    std::printf("%s\n", ruta.c_str()); // before the run: a crash is then the last one named
    std::fflush(stdout);
    std::ifstream entrada(ruta, std::ios::binary);
    const std::vector<char> bytes(
        (std::istreambuf_iterator<char>(entrada)), std::istreambuf_iterator<char>());
    // A block of exactly this size: reading one byte beyond it is seen.
    const std::vector<std::uint8_t> datos(bytes.begin(), bytes.end());
    LLVMFuzzerTestOneInput(datos.data(), datos.size());
}

} // namespace

int main(int argc, char** argv) {
    std::vector<fs::path> rutas;
    for (int i = 1; i < argc; ++i) {
        if (!fs::is_directory(argv[i]))
            rutas.emplace_back(argv[i]);
        else
            for (const auto& f : fs::directory_iterator(argv[i])) rutas.push_back(f.path());
    }
    std::sort(rutas.begin(), rutas.end());
    for (const fs::path& ruta : rutas) repite(ruta);
    std::printf("%zu inputs\n", rutas.size());
    return rutas.empty() ? 1 : 0;
}
