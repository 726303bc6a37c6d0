// SPDX-License-Identifier: MIT
// Texts copied into blocks of bytes: every length, and nothing behind them is touched.
#include "base/bytes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

using namespace Qlt4_Tabla;

TEST(PonTexto, copia_textos_de_cualquier_longitud_y_nada_mas) {
    const std::string letras = "0123456789abcdefghijklmnopqrstuvwxyz";
    for (std::size_t n = 0; n <= letras.size(); ++n) {
        std::string destino(letras.size() + 2, '.');
        char* const fin = pon_texto(destino.data() + 1, std::string_view(letras).substr(0, n));
        EXPECT_EQ(fin, destino.data() + 1 + n);
        EXPECT_EQ(destino, '.' + letras.substr(0, n) + std::string(letras.size() - n + 1, '.'));
    }
}

TEST(PonTexto, con_sitio_de_sobra_escribe_a_lo_sumo_hasta_donde_puede) {
    const std::string letras = "0123456789abcdefghijklmnopqrstuvwxyz";
    for (std::size_t n = 0; n <= letras.size() - TEXTO_HOLGADO; ++n) {
        std::string destino(letras.size() + 1, '.');
        const char* const fin = pon_texto_holgado(destino.data(), std::string_view(letras).substr(0, n));
        EXPECT_EQ(fin, destino.data() + n);
        EXPECT_EQ(destino.substr(0, n), letras.substr(0, n));
        const std::size_t tocados = std::max(n, TEXTO_HOLGADO);
        EXPECT_EQ(destino.substr(tocados), std::string(destino.size() - tocados, '.'));
    }
}

TEST(PonTexto, un_texto_sin_lugar_es_vacio) {
    char nada = 'x';
    EXPECT_EQ(pon_texto(&nada, {}), &nada);
    EXPECT_EQ(nada, 'x');
}
