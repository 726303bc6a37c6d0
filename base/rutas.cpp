// SPDX-License-Identifier: MIT
// File names as texts: base/rutas.h.
#include "base/rutas.h"

namespace Qlt4_Tabla {

PartesRuta parte_ruta(std::string_view ruta) {
    std::size_t lugar = ruta.rfind('\\');
    if (lugar == std::string_view::npos) lugar = ruta.rfind('/');
    if (lugar == std::string_view::npos) return {{}, ruta};
    return {ruta.substr(0, lugar == 0 ? 1 : lugar), ruta.substr(lugar + 1)};
}

std::string con_extension(std::string_view ruta, std::string_view extension) {
    const std::string_view nombre = parte_ruta(ruta).nombre;
    std::string todo(ruta);
    if (extension.empty() || nombre.empty() || nombre.find('.', 1) != std::string_view::npos) return todo;
    todo += '.';
    todo += extension;
    return todo;
}

std::string_view extension_de_patron(std::string_view patron) {
    constexpr std::string_view COMIENZO = "*.";
    if (!patron.starts_with(COMIENZO)) return {};
    patron.remove_prefix(COMIENZO.size());
    return patron.find_first_of("*? ") == std::string_view::npos ? patron : std::string_view();
}

} // namespace Qlt4_Tabla
