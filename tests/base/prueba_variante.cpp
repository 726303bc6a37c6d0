// SPDX-License-Identifier: MIT
// Values of any type and their conversions.
#include "base/variante.h"
#include "tests/base/error_de.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <memory>
#include <string>

using namespace Qlt4_Tabla;

namespace {

class ImagenDePrueba : public Imagen {};

const Matriz<double> numeros(1, {1.0, 2.0});
const Matriz<std::string> textos_(0, {"a", "b"});

} // namespace

TEST(Variante, cada_valor_tiene_su_tipo) {
    EXPECT_EQ(Variante().tipo(), TipoVariante::Vacio);
    EXPECT_EQ(Variante::omitido().tipo(), TipoVariante::Omitido);
    EXPECT_EQ(Variante(std::int16_t{1}).tipo(), TipoVariante::Entero16);
    EXPECT_EQ(Variante(1).tipo(), TipoVariante::Entero32);
    EXPECT_EQ(Variante(1.0F).tipo(), TipoVariante::Simple);
    EXPECT_EQ(Variante(1.0).tipo(), TipoVariante::Doble);
    EXPECT_EQ(Variante(true).tipo(), TipoVariante::Booleano);
    EXPECT_EQ(Variante("a").tipo(), TipoVariante::Texto);
    EXPECT_EQ(Variante(std::string("a")).tipo(), TipoVariante::Texto);
    EXPECT_EQ(Variante(std::string_view("a")).tipo(), TipoVariante::Texto);
    EXPECT_EQ(Variante(textos_).tipo(), TipoVariante::MatrizTextos);
    EXPECT_EQ(Variante(numeros).tipo(), TipoVariante::MatrizNumeros);
    EXPECT_EQ(Variante(PunteroImagen()).tipo(), TipoVariante::Imagen);
}

TEST(Variante, vacio_y_omitido_se_distinguen) {
    EXPECT_TRUE(Variante().es_vacio());
    EXPECT_FALSE(Variante().es_omitido());
    EXPECT_TRUE(Variante::omitido().es_omitido());
    EXPECT_FALSE(Variante::omitido().es_vacio());
}

TEST(Variante, a_entero16_convierte_y_redondea_al_par) {
    EXPECT_EQ(Variante().a_entero16(), 0);
    EXPECT_EQ(Variante(std::int16_t{-5}).a_entero16(), -5);
    EXPECT_EQ(Variante(32767).a_entero16(), 32767);
    EXPECT_EQ(Variante(2.5F).a_entero16(), 2);
    EXPECT_EQ(Variante(3.5).a_entero16(), 4);
    EXPECT_EQ(Variante(true).a_entero16(), -1);
    EXPECT_EQ(Variante(false).a_entero16(), 0);
    EXPECT_EQ(Variante(" 12,5 ").a_entero16(), 12);
}

TEST(Variante, fuera_del_intervalo_error_6) {
    EXPECT_EQ(error_de([] { (void)Variante(32768).a_entero16(); }), 6);
    EXPECT_EQ(error_de([] { (void)Variante("40000").a_entero16(); }), 6);
    EXPECT_EQ(error_de([] { (void)Variante(2147483647.5).a_entero32(); }), 6);
    EXPECT_EQ(error_de([] { (void)Variante(1e39).a_simple(); }), 6);
    EXPECT_EQ(error_de([] { (void)Variante("1e400").a_doble(); }), 6);
    EXPECT_EQ(error_de([] { (void)Variante(std::nan("")).a_entero32(); }), 6);
}

TEST(Variante, a_entero32_llega_a_sus_extremos) {
    EXPECT_EQ(Variante(INT32_MIN).a_entero32(), INT32_MIN);
    EXPECT_EQ(Variante(INT32_MAX).a_entero32(), INT32_MAX);
    EXPECT_EQ(Variante("2147483647").a_entero32(), INT32_MAX);
    EXPECT_EQ(Variante(65536.5).a_entero32(), 65536);
}

TEST(Variante, a_simple_redondea_al_simple_mas_cercano) {
    constexpr float mayor = std::numeric_limits<float>::max();
    EXPECT_EQ(Variante(0.1).a_simple(), 0.1F);
    EXPECT_EQ(Variante("2,5").a_simple(), 2.5F);
    EXPECT_EQ(Variante(true).a_simple(), -1.0F);
    EXPECT_EQ(Variante(static_cast<double>(mayor)).a_simple(), mayor);
    EXPECT_EQ(Variante(std::nextafter(0x1.ffffffp127, 0)).a_simple(), mayor);
    EXPECT_EQ(error_de([] { (void)Variante(0x1.ffffffp127).a_simple(); }), 6);
    EXPECT_EQ(error_de([] { (void)Variante(-0x1.ffffffp127).a_simple(); }), 6);
}

TEST(Variante, a_booleano_es_cierto_cuando_no_es_0) {
    EXPECT_FALSE(Variante().a_booleano());
    EXPECT_TRUE(Variante(std::int16_t{-1}).a_booleano());
    EXPECT_TRUE(Variante(0.1).a_booleano());
    EXPECT_FALSE(Variante(0).a_booleano());
    EXPECT_TRUE(Variante("True").a_booleano());
    EXPECT_FALSE(Variante("falso").a_booleano());
    EXPECT_TRUE(Variante("-1").a_booleano());
    EXPECT_EQ(error_de([] { (void)Variante("quizá").a_booleano(); }), 13);
}

TEST(Variante, a_texto_escribe_los_numeros_con_punto) {
    EXPECT_EQ(Variante().a_texto(), "");
    EXPECT_EQ(Variante(std::int16_t{-5}).a_texto(), "-5");
    EXPECT_EQ(Variante(70000).a_texto(), "70000");
    EXPECT_EQ(Variante(0.1F).a_texto(), "0.1");
    EXPECT_EQ(Variante(1.0 / 3).a_texto(), "0.333333333333333");
    EXPECT_EQ(Variante(true).a_texto(), "True");
    EXPECT_EQ(Variante(" 1,5 ").a_texto(), " 1,5 ");
}

TEST(Variante, un_texto_sin_numero_es_error_13) {
    for (const char* texto : {"", "abc", "12 m", "1e"}) {
        const Variante v(texto);
        EXPECT_EQ(error_de([&] { (void)v.a_entero16(); }), 13) << texto;
        EXPECT_EQ(error_de([&] { (void)v.a_entero32(); }), 13) << texto;
        EXPECT_EQ(error_de([&] { (void)v.a_simple(); }), 13) << texto;
        EXPECT_EQ(error_de([&] { (void)v.a_doble(); }), 13) << texto;
    }
}

TEST(Variante, lo_que_no_es_un_valor_sencillo_es_error_13) {
    for (const Variante& v :
        {Variante::omitido(), Variante(numeros), Variante(textos_), Variante(PunteroImagen())}) {
        EXPECT_EQ(error_de([&] { (void)v.a_entero16(); }), 13);
        EXPECT_EQ(error_de([&] { (void)v.a_entero32(); }), 13);
        EXPECT_EQ(error_de([&] { (void)v.a_simple(); }), 13);
        EXPECT_EQ(error_de([&] { (void)v.a_booleano(); }), 13);
        EXPECT_EQ(error_de([&] { (void)v.a_texto(); }), 13);
    }
}

TEST(Variante, las_matrices_se_dan_sin_convertir) {
    Variante v(numeros);
    EXPECT_EQ(v.matriz_numeros(), numeros);
    v.matriz_numeros()[1] = 9;
    EXPECT_EQ(v.matriz_numeros()[1], 9.0);
    EXPECT_EQ(Variante(textos_).matriz_textos(), textos_);
    EXPECT_EQ(error_de([&] { (void)v.matriz_textos(); }), 13);
    EXPECT_EQ(error_de([] { (void)Variante().matriz_numeros(); }), 13);
}

TEST(Variante, la_imagen_es_la_misma) {
    const auto imagen = std::make_shared<ImagenDePrueba>();
    const Variante v{PunteroImagen(imagen)};
    EXPECT_EQ(v.imagen(), imagen);
    EXPECT_EQ(Variante().imagen(), nullptr);
    EXPECT_EQ(error_de([] { (void)Variante("a").imagen(); }), 13);
}

TEST(Variante, es_igual_por_tipo_y_valor) {
    EXPECT_EQ(Variante(5), Variante(5));
    EXPECT_FALSE(Variante(5) == Variante(std::int16_t{5}));
    EXPECT_FALSE(Variante() == Variante::omitido());
    EXPECT_EQ(Variante(numeros), Variante(numeros));
    EXPECT_FALSE(Variante("a") == Variante("b"));
}
