// SPDX-License-Identifier: MIT
// The search for the helper program: spreadsheet/busca_auxiliar.h.
#include "spreadsheet/busca_auxiliar.h"

#include <system_error>

#if defined(__unix__) || defined(__APPLE__)
#include <dlfcn.h>
#include <unistd.h>
#endif

namespace Qlt4_Tabla {

namespace {

namespace fs = std::filesystem;

#if defined(__unix__) || defined(__APPLE__)

/// The files this code runs from: the program and, where that is another one, the shared library.
std::vector<fs::path> modulos() {
    std::vector<fs::path> hallados;
    std::error_code nada;
    if (fs::path programa = fs::read_symlink("/proc/self/exe", nada); !programa.empty())
        hallados.push_back(std::move(programa));
    static const char marca = 0; // an address within this code
    Dl_info quien{};
    if (::dladdr(&marca, &quien) != 0 && quien.dli_fname != nullptr)
        if (fs::path biblioteca = fs::canonical(quien.dli_fname, nada); !biblioteca.empty())
            hallados.push_back(std::move(biblioteca));
    return hallados;
}

bool es_programa(const fs::path& ruta) {
    std::error_code nada;
    return fs::is_regular_file(ruta, nada) && ::access(ruta.c_str(), X_OK) == 0;
}

#else

std::vector<fs::path> modulos() { return {}; }

bool es_programa(const fs::path& ruta) {
    std::error_code nada;
    return fs::is_regular_file(ruta, nada);
}

#endif

} // namespace

std::vector<fs::path> carpetas_del_auxiliar() {
    std::vector<fs::path> carpetas;
    for (const fs::path& modulo : modulos()) {
        carpetas.push_back(modulo.parent_path());
        carpetas.push_back(modulo.parent_path().parent_path() / "libexec" / "qlt4_tabla");
#if defined(TABLA_AUXILIAR_DESDE_LIB)
        carpetas.push_back((modulo.parent_path() / TABLA_AUXILIAR_DESDE_LIB).lexically_normal());
#endif
    }
#if defined(TABLA_DIR_AUXILIAR)
    carpetas.emplace_back(TABLA_DIR_AUXILIAR);
#endif
    return carpetas;
}

fs::path busca_auxiliar(std::span<const fs::path> carpetas) {
    for (const fs::path& carpeta : carpetas)
        if (fs::path ruta = carpeta / NOMBRE_AUXILIAR; es_programa(ruta)) return ruta;
    return {};
}

} // namespace Qlt4_Tabla
