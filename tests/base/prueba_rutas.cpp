// SPDX-License-Identifier: MIT
// File names as texts: both separators, names without folder, extensions.
#include "base/rutas.h"

#include <gtest/gtest.h>

namespace Qlt4_Tabla {

namespace {

TEST(Rutas, se_parten_en_la_ultima_barra_invertida_o_si_no_hay_en_la_ultima_barra) {
    struct Caso {
        const char* ruta;
        const char* carpeta;
        const char* nombre;
    };
    for (const auto& [ruta, carpeta, nombre] :
        {Caso{"C:\\a\\b.tb0", "C:\\a", "b.tb0"}, Caso{"/a/b/c", "/a/b", "c"}, Caso{"a/b\\c/d", "a/b", "c/d"},
            Caso{"x", "", "x"}, Caso{"", "", ""}, Caso{"/x", "/", "x"}, Caso{"/a/", "/a", ""}}) {
        EXPECT_EQ(parte_ruta(ruta).carpeta, carpeta) << ruta;
        EXPECT_EQ(parte_ruta(ruta).nombre, nombre) << ruta;
    }
}

TEST(Rutas, un_nombre_sin_punto_recibe_la_extension) {
    EXPECT_EQ(con_extension("/a.b/puntos", "tb0"), "/a.b/puntos.tb0");
    EXPECT_EQ(con_extension("puntos.txt", "tb0"), "puntos.txt");
    EXPECT_EQ(con_extension("puntos.", "tb0"), "puntos.");
    EXPECT_EQ(con_extension(".oculto", "tb0"), ".oculto.tb0");
    EXPECT_EQ(con_extension("/a/", "tb0"), "/a/");
    EXPECT_EQ(con_extension("puntos", ""), "puntos");
}

TEST(Rutas, la_extension_de_un_patron) {
    EXPECT_EQ(extension_de_patron("*.tb0"), "tb0");
    EXPECT_EQ(extension_de_patron("*.a.b"), "a.b");
    for (const char* const patron : {"", "X", "*.*", "*.t?", "tb0", "*.tb0 *.txt"})
        EXPECT_EQ(extension_de_patron(patron), "") << patron;
}

} // namespace

} // namespace Qlt4_Tabla
