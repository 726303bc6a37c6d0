// SPDX-License-Identifier: MIT
// Taking column formats from the host, the names, the lists and the dragged widths. What formatting does
// to the grid is in prueba_formatos_tablero.cpp.
#include "core/formatos.h"
#include "tests/base/error_de.h"
#include "tests/core/mesa.h"

#include <gtest/gtest.h>

using namespace Qlt4_Tabla;

namespace {

struct Formatos_de_columna : testing::Test, Mesa {
    T_FormatoColumna& f(int col) { return formato(e, col); }

    T_FormatoColumna& d(int col) { return e.Formatos_por_defecto[static_cast<std::size_t>(col)]; }

    void tipado(int col, T_formato forma, T_Alineacion alinea, T_Accion accion) {
        FormatoColumnas(e, static_cast<std::int16_t>(col), true, false, forma, 4, alinea, accion, 12, "Cota");
    }

    void con_texto(int col, std::string_view visib, std::string_view bloqu) {
        Formatcol(e, static_cast<std::int16_t>(col), visib, bloqu, 2, 2, 2, 10, "Cota", 0);
    }
};

T_FormatoColumna cota() {
    return {.Nombre = "Cota",
        .Invisible = true,
        .Bloqueada = false,
        .Longitud = 12,
        .Formato = 3,
        .Decimales = 4,
        .Alineacion = 1,
        .Accion = 2};
}

} // namespace

TEST_F(Formatos_de_columna, FormatoColumnas_escribe_los_dos_formatos) {
    tipado(7, T_formato::RealPo, T_Alineacion::Centr, T_Accion::Increm);
    EXPECT_EQ(f(7), cota());
    EXPECT_EQ(d(7), cota());
    EXPECT_EQ(f(6), T_FormatoColumna{});
    EXPECT_EQ(f(8), T_FormatoColumna{});
    EXPECT_EQ(p.registro, Registro{});
}

TEST_F(Formatos_de_columna, FormatoColumnas_no_dibuja_nada) {
    pon_tamano(9, 4);
    p.vista.recoge();
    tipado(7, T_formato::RealPo, T_Alineacion::Centr, T_Accion::Increm);
    EXPECT_EQ(p.vista.avisos, Textos{});
    EXPECT_EQ(celda(0, 7), "");
}

TEST_F(Formatos_de_columna, FormatoColumnas_reemplaza_el_formato_de_trabajo_entero) {
    f(3) = cota();
    f(3).Longitud = 99;
    d(3) = cota();
    FormatoColumnas(e, 3, false, true, T_formato::Entero, 0, T_Alineacion::Izqda, T_Accion::Nada__, 5, "N");
    EXPECT_EQ(f(3), (T_FormatoColumna{.Nombre = "N", .Bloqueada = true, .Longitud = 5}));
    EXPECT_EQ(d(3), f(3));
}

TEST_F(Formatos_de_columna, fuera_de_0_a_25_es_el_error_9_y_no_guarda_nada) {
    const std::string antes = foto();
    for (const int col : {-1, 26, 32767, -32768}) {
        EXPECT_EQ(
            error_de([&] { tipado(col, T_formato::Alfanm, T_Alineacion::Izqda, T_Accion::Nada__); }), 9);
        EXPECT_EQ(error_de([&] { con_texto(col, "-", "-"); }), 9);
    }
    EXPECT_EQ(foto(), antes);
    for (const int col : {0, 25}) EXPECT_EQ(error_de([&] { con_texto(col, "-", "-"); }), 0);
}

TEST_F(Formatos_de_columna, una_enumeracion_que_no_cabe_en_16_bits_es_el_error_6_y_no_guarda_nada) {
    const std::string antes = foto();
    const auto Formato = static_cast<T_formato>(32768);
    const auto Alineacion = static_cast<T_Alineacion>(-32769);
    const auto Accion = static_cast<T_Accion>(100000);
    EXPECT_EQ(error_de([&] { tipado(1, Formato, T_Alineacion::Izqda, T_Accion::Nada__); }), 6);
    EXPECT_EQ(error_de([&] { tipado(1, T_formato::Entero, Alineacion, T_Accion::Nada__); }), 6);
    EXPECT_EQ(error_de([&] { tipado(1, T_formato::Entero, T_Alineacion::Izqda, Accion); }), 6);
    EXPECT_EQ(foto(), antes);
}

TEST_F(Formatos_de_columna, una_enumeracion_sin_sentido_que_cabe_se_guarda) {
    tipado(1, static_cast<T_formato>(32767), static_cast<T_Alineacion>(-32768), static_cast<T_Accion>(9));
    EXPECT_EQ(f(1).Formato, 32767);
    EXPECT_EQ(f(1).Alineacion, -32768);
    EXPECT_EQ(f(1).Accion, 9);
}

TEST_F(Formatos_de_columna, Formatcol_pone_cada_argumento_en_su_campo) {
    Formatcol(e, 4, "-", "X", 7, 3, 1, -8, "Dibujo", 2);
    const T_FormatoColumna esperado{.Nombre = "Dibujo",
        .Invisible = false,
        .Bloqueada = true,
        .Longitud = -8,
        .Formato = 7,
        .Decimales = 3,
        .Alineacion = 1,
        .Accion = 2};
    EXPECT_EQ(f(4), esperado);
    EXPECT_EQ(d(4), esperado);
}

TEST_F(Formatos_de_columna, Formatcol_solo_un_guion_baja_la_bandera) {
    const struct {
        std::string texto;
        bool puesta;
    } casos[] = {{"-", false}, {"", true}, {"X", true}, {"--", true}, {" -", true}, {"- ", true}, {"−", true},
        {"0", true}, {"False", true}};
    for (const auto& caso : casos) {
        con_texto(2, caso.texto, "-");
        EXPECT_EQ(f(2).Invisible, caso.puesta) << caso.texto;
        EXPECT_FALSE(f(2).Bloqueada);
        con_texto(2, "-", caso.texto);
        EXPECT_EQ(f(2).Bloqueada, caso.puesta) << caso.texto;
        EXPECT_FALSE(f(2).Invisible);
    }
}

TEST_F(Formatos_de_columna, Formatcol_guarda_los_enteros_sin_mirarlos) {
    Formatcol(e, 1, "-", "-", 32767, -32768, 99, 32767, "", -1);
    EXPECT_EQ(f(1).Formato, 32767);
    EXPECT_EQ(f(1).Decimales, -32768);
    EXPECT_EQ(f(1).Alineacion, 99);
    EXPECT_EQ(f(1).Longitud, 32767);
    EXPECT_EQ(f(1).Accion, -1);
}

TEST_F(Formatos_de_columna, por_defecto_vuelve_a_los_formatos_del_servidor_sin_dibujar) {
    pon_tamano(5, 4);
    for (const int col : {0, 3, 25}) con_texto(col, "-", "-");
    const auto dados = e.Formatos;
    for (T_FormatoColumna& uno : e.Formatos) uno = cota();
    p.vista.recoge();
    Tablero_Formato_por_defecto(e);
    EXPECT_EQ(e.Formatos, dados);
    EXPECT_EQ(e.Formatos_por_defecto, dados);
    EXPECT_EQ(p.vista.avisos, Textos{});
}

// --- Names ---

TEST_F(Formatos_de_columna, Tablero_Nombres_guarda_los_tres) {
    Tablero_Nombres(e, "Planta", "Puntos", "*.pun");
    EXPECT_EQ(e.nombres.titulo(), "Planta");
    EXPECT_EQ(e.nombres.subtitulo(), "Puntos");
    EXPECT_EQ(e.nombres.extension(), "*.pun");
    for (const Opcion o :
        {Opcion::mn_pegar_cXp, Opcion::mn_copiar_pXc, Opcion::Mnu_Tabla_Leer, Opcion::Mnu_Tabla_Guardar_como})
        EXPECT_TRUE(e.menus[o].visible);
    EXPECT_EQ(p.marco.veces_menus, 0);
}

TEST_F(Formatos_de_columna, un_titulo_de_mas_de_40_se_corta) {
    Tablero_Nombres(e, std::string(41, 'T'), std::string(31, 'S'), "*.largo");
    EXPECT_EQ(e.nombres.titulo(), std::string(40, 'T'));
    EXPECT_EQ(e.nombres.subtitulo(), std::string(30, 'S'));
    EXPECT_EQ(e.nombres.extension(), "*.lar");
}

TEST_F(Formatos_de_columna, la_extension_X_oculta_cuatro_opciones_y_guarda_los_nombres) {
    Tablero_Nombres(e, "Planta", "Puntos", "X");
    int ocultas = 0;
    for (std::size_t i = 0; i < NUM_OPCIONES; ++i) ocultas += !e.menus[static_cast<Opcion>(i)].visible;
    EXPECT_EQ(ocultas, 4);
    for (const Opcion o :
        {Opcion::mn_pegar_cXp, Opcion::mn_copiar_pXc, Opcion::Mnu_Tabla_Leer, Opcion::Mnu_Tabla_Guardar_como})
        EXPECT_FALSE(e.menus[o].visible);
    EXPECT_EQ(e.nombres.titulo(), "Planta");
    EXPECT_EQ(e.nombres.subtitulo(), "Puntos");
    EXPECT_EQ(e.nombres.extension(), "X");
    EXPECT_EQ(p.marco.veces_menus, 1);
}

TEST_F(Formatos_de_columna, otra_extension_despues_no_las_muestra) {
    Tablero_Nombres(e, "Planta", "Puntos", "X");
    Tablero_Nombres(e, "Planta", "Puntos", "*.tb0");
    EXPECT_FALSE(e.menus[Opcion::Mnu_Tabla_Leer].visible);
    EXPECT_FALSE(e.menus[Opcion::mn_pegar_cXp].visible);
}

TEST_F(Formatos_de_columna, solo_la_X_exacta_oculta) {
    for (const char* extension : {"x", " X", "X ", "XX", ""}) Tablero_Nombres(e, "", "", extension);
    EXPECT_TRUE(e.menus[Opcion::Mnu_Tabla_Leer].visible);
    EXPECT_EQ(p.marco.veces_menus, 0);
}

// --- Values in the form of a column ---

TEST_F(Formatos_de_columna, Formatea_Valor_Columna_segun_el_formato) {
    pon_formato(1, T_formato::Entero, 2);
    pon_formato(2, T_formato::EntPos, 2);
    pon_formato(3, T_formato::Real__, 2);
    pon_formato(4, T_formato::RealPo, 3);
    pon_formato(5, T_formato::Alfanm, 2);
    pon_formato(6, T_formato::ListaU, 2);
    pon_formato(7, T_formato::Color_, 2);
    pon_formato(8, T_formato::Imagen, 2);
    pon_formato(9, static_cast<T_formato>(8), 2);
    const struct {
        int col;
        std::string texto, esperado;
    } casos[] = {{1, "2.5", "2.5"}, {1, "abc", "abc"}, {2, " 7", " 7"}, {3, "3.14159", "3.14"},
        {3, "2,5", "2.50"}, {3, "abc", "0.00"}, {3, "", ""}, {4, "1", "1.000"}, {4, "", ""},
        {5, "3.14159", "3.14159"}, {6, "3.14159", "3.14159"}, {7, "3.14159", "3.14159"},
        {8, "3.14159", "3.14159"}, {9, "3.14159", "3.14159"}, {25, "3.14159", "3.14159"}};
    for (const auto& caso : casos)
        EXPECT_EQ(Formatea_Valor_Columna(e, caso.texto, caso.col), caso.esperado) << caso.col;
}

TEST_F(Formatos_de_columna, Formatea_Valor_Columna_fuera_de_las_columnas_es_el_error_9) {
    for (const int col : {26, 27, -1}) {
        EXPECT_EQ(error_de([&] { (void)Formatea_Valor_Columna(e, "1", col); }), 9) << col;
        EXPECT_EQ(error_de([&] { (void)Formatea_Valor_Columna(e, "", col); }), 9) << col;
    }
}

TEST_F(Formatos_de_columna, Formatea_Valor_Columna_refresca_ComaDecimal_con_un_numero) {
    pon_formato(3, T_formato::Real__, 2);
    pon_formato(5, T_formato::Alfanm);
    p.separador.coma = true;
    (void)Formatea_Valor_Columna(e, "1", 5);
    (void)Formatea_Valor_Columna(e, "", 3);
    EXPECT_FALSE(e.ComaDecimal);
    EXPECT_EQ(Formatea_Valor_Columna(e, "1", 3), "1.00");
    EXPECT_TRUE(e.ComaDecimal);
}

// --- Lists ---

TEST_F(Formatos_de_columna, Lista_guarda_una_copia) {
    pon_formato(3, T_formato::ListaU);
    Matriz<std::string> valores(0, {"eje", "borde"});
    Lista(e, 3, valores);
    valores[0] = "otro";
    EXPECT_EQ(e.listas[3].Col, (Matriz<std::string>(0, {"eje", "borde"})));
    EXPECT_EQ(p.registro, Registro{});
}

TEST_F(Formatos_de_columna, Lista_reemplaza_valores_y_limites) {
    pon_formato(3, T_formato::ListaU);
    Lista(e, 3, Matriz<std::string>(0, {"a", "b", "c"}));
    Lista(e, 3, Matriz<std::string>(1, {"d"}));
    EXPECT_EQ(e.listas[3].Col.LBound(), 1);
    EXPECT_EQ(e.listas[3].Col.UBound(), 1);
    EXPECT_EQ(e.listas[3].Col[1], "d");
}

TEST_F(Formatos_de_columna, Lista_de_una_columna_que_no_es_lista_muestra_el_mensaje) {
    for (const auto forma : {T_formato::Entero, T_formato::EntPos, T_formato::Real__, T_formato::RealPo,
             T_formato::Alfanm, T_formato::Color_, T_formato::Imagen}) {
        pon_formato(3, forma);
        Lista(e, 3, Matriz<std::string>(0, {"a"}));
        EXPECT_EQ(p.recoge(), (Registro{"mensaje|16||ERROR tabla.ocx: la columna  3 no es una lista"}));
        EXPECT_FALSE(e.listas[3].Col.dimensionada());
    }
}

TEST_F(Formatos_de_columna, Lista_fuera_de_las_columnas_es_el_error_9_sin_mensaje) {
    for (const int col : {26, -1, 32767})
        EXPECT_EQ(
            error_de([&] { Lista(e, static_cast<std::int16_t>(col), Matriz<std::string>(0, {"a"})); }), 9);
    EXPECT_EQ(p.registro, Registro{});
}

TEST_F(Formatos_de_columna, Lista_de_dos_dimensiones_es_el_error_9_y_deja_la_anterior) {
    pon_formato(3, T_formato::ListaU);
    Lista(e, 3, Matriz<std::string>(0, {"a"}));
    EXPECT_EQ(error_de([&] { Lista(e, 3, Matriz<std::string>(0, 1, 2)); }), 9);
    EXPECT_EQ(e.listas[3].Col, (Matriz<std::string>(0, {"a"})));
}

// --- Widths dragged on the grid ---

TEST_F(Formatos_de_columna, Editor_Tabl_graba_redondea_hacia_abajo) {
    pon_tamano(2, 4);
    const struct {
        int twips;
        std::int16_t unidades;
    } casos[] = {
        {1, 0}, {119, 0}, {120, 1}, {1199, 9}, {1200, 10}, {1319, 10}, {32880, 274}, {3932159, 32767}};
    for (const auto& caso : casos) {
        f(1).Longitud = 5;
        t().ColWidth(1, caso.twips);
        Editor_Tabl_graba(e);
        EXPECT_EQ(f(1).Longitud, caso.unidades) << caso.twips;
    }
}

TEST_F(Formatos_de_columna, Editor_Tabl_graba_deja_las_que_no_se_arrastran) {
    pon_tamano(6, 4);
    for (int col = 0; col < 6; ++col) {
        f(col).Longitud = 10;
        t().ColWidth(col, 2400);
    }
    f(1).Invisible = true;
    f(2).Bloqueada = true;
    t().ColWidth(3, 0);
    t().ColWidth(4, -120);
    Editor_Tabl_graba(e);
    EXPECT_EQ(f(0).Longitud, 20);
    for (const int col : {1, 2, 3, 4}) EXPECT_EQ(f(col).Longitud, 10) << col;
    EXPECT_EQ(f(5).Longitud, 20);
}

TEST_F(Formatos_de_columna, Editor_Tabl_graba_no_toca_los_formatos_por_defecto) {
    pon_tamano(3, 4);
    con_texto(1, "-", "-");
    t().ColWidth(1, 2400);
    Editor_Tabl_graba(e);
    EXPECT_EQ(f(1).Longitud, 20);
    Tablero_Formato_por_defecto(e);
    EXPECT_EQ(f(1).Longitud, 10);
}

TEST_F(Formatos_de_columna, Editor_Tabl_graba_un_ancho_que_no_cabe_es_el_error_6) {
    pon_tamano(2, 4);
    f(1).Longitud = 5;
    t().ColWidth(1, 3932160); // 32768 units
    EXPECT_EQ(error_de([&] { Editor_Tabl_graba(e); }), 6);
    EXPECT_EQ(f(1).Longitud, 5);
}

TEST_F(Formatos_de_columna, Editor_Tabl_graba_con_una_longitud_que_desborda_es_el_error_6) {
    pon_tamano(2, 4);
    f(1).Longitud = 274;
    t().ColWidth(1, 1200);
    EXPECT_EQ(error_de([&] { Editor_Tabl_graba(e); }), 6);
    EXPECT_EQ(f(1).Longitud, 274);
    f(1).Bloqueada = true; // not compared any more
    EXPECT_EQ(error_de([&] { Editor_Tabl_graba(e); }), 0);
}

TEST_F(Formatos_de_columna, Editor_Tabl_graba_con_27_columnas_es_el_error_9_tras_las_demas) {
    pon_tamano(27, 2);
    t().ColWidth(25, 600);
    EXPECT_EQ(error_de([&] { Editor_Tabl_graba(e); }), 9);
    EXPECT_EQ(f(25).Longitud, 5);
}
