// SPDX-License-Identifier: MIT
// Applying the working formats to the grid: widths, headers, colours, alignments, texts, label.
#include "core/formatos.h"
#include "core/superficie.h"
#include "tests/base/error_de.h"
#include "tests/core/mesa.h"

#include <gtest/gtest.h>

using namespace Qlt4_Tabla;

namespace {

constexpr int GRIS = 0xE0E0E0;
constexpr int CARA = static_cast<int>(0x8000000FU);

struct Formatos_en_tablero : testing::Test, Mesa {
    Formatos_en_tablero() { pon_tamano(4, 4); }

    T_FormatoColumna& f(int col) { return formato(e, col); }

    int error_al_establecer() {
        return error_de([&] { Tablero_establece_Formato(e); });
    }

    /// The texts of column 1 after formatting it.
    Textos formateada(const Textos& textos, T_formato forma, std::int16_t decimales = 0) {
        pon_tamano(4, static_cast<int>(textos.size()) + 1);
        pon_formato(1, forma, decimales);
        escribe(1, textos);
        Tablero_Formato_Columna(e, 1);
        return columna(1);
    }

    const std::string& cuenta() { return e.etiquetas.labNumeroFilas.texto; }

    bool se_ve_la_cuenta() { return e.etiquetas.labNumeroFilas.visible; }
};

} // namespace

// --- Width, header, colour, alignment ---

TEST_F(Formatos_en_tablero, una_columna_real_alineada_a_la_derecha) {
    Formatcol(e, 3, "-", "-", 2, 2, 2, 10, "Cota", 0);
    Tablero_establece_Formato(e);
    EXPECT_EQ(t().ColWidth(3), 1200);
    EXPECT_EQ(celda(0, 3), "Cota");
    EXPECT_EQ(t().ColAlignment(3), AlineacionCelda::Derecha);
    EXPECT_EQ(t().color_fondo(0, 3), CARA);
}

TEST_F(Formatos_en_tablero, una_columna_invisible_y_bloqueada) {
    Formatcol(e, 3, "", "X", 2, 2, 2, 10, "Cota", 0);
    Tablero_establece_Formato(e);
    EXPECT_EQ(t().ColWidth(3), 0);
    EXPECT_EQ(celda(0, 3), "Cota");
    EXPECT_EQ(t().color_fondo(0, 3), GRIS);
    EXPECT_EQ(f(3).Longitud, 10);
}

TEST_F(Formatos_en_tablero, el_color_de_cabecera_sigue_al_bloqueo) {
    f(2).Bloqueada = true;
    Tablero_establece_Formato(e);
    EXPECT_EQ(t().color_fondo(0, 2), GRIS);
    EXPECT_EQ(t().color_fondo(0, 0), CARA);
    EXPECT_FALSE(t().tiene_fondo(1, 2));
    f(2).Bloqueada = false;
    Tablero_establece_Formato(e);
    EXPECT_EQ(t().color_fondo(0, 2), CARA);
}

TEST_F(Formatos_en_tablero, el_color_de_cabecera_no_sigue_a_la_seleccion_rellena) {
    t().FillStyle(Relleno::Seleccion);
    t().selecciona(1, 1, 3, 3);
    Tablero_establece_Formato(e);
    EXPECT_FALSE(t().tiene_fondo(2, 2));
    EXPECT_EQ(t().FillStyle(), Relleno::Seleccion);
}

TEST_F(Formatos_en_tablero, cada_alineacion_tiene_su_codigo_y_otra_no_cambia_nada) {
    const struct {
        std::int16_t alineacion;
        int codigo;
    } casos[] = {{1, 4}, {2, 7}, {0, 1}, {2, 7}, {3, 7}, {-1, 7}, {1, 4}, {32767, 4}};
    for (const auto& caso : casos) {
        f(2).Alineacion = caso.alineacion;
        Tablero_establece_Formato(e);
        EXPECT_EQ(static_cast<int>(t().ColAlignment(2)), caso.codigo) << caso.alineacion;
    }
}

TEST_F(Formatos_en_tablero, la_cabecera_de_la_columna_0_no_se_escribe) {
    t().TextMatrix(0, 0, "Punto");
    f(0).Nombre = "otra";
    f(1).Nombre = "X";
    Tablero_establece_Formato(e);
    EXPECT_EQ(celda(0, 0), "Punto");
    EXPECT_EQ(celda(0, 1), "X");
}

TEST_F(Formatos_en_tablero, un_nombre_vacio_borra_la_cabecera) {
    t().TextMatrix(0, 2, "vieja");
    Tablero_establece_Formato(e);
    EXPECT_EQ(celda(0, 2), "");
}

TEST_F(Formatos_en_tablero, la_columna_0_se_vuelve_texto_sin_accion_a_la_izquierda) {
    f(0) = {.Nombre = "n", .Longitud = 6, .Formato = 2, .Decimales = 3, .Alineacion = 2, .Accion = 2};
    e.Formatos_por_defecto[0] = f(0);
    Tablero_establece_Formato(e);
    EXPECT_EQ(f(0), (T_FormatoColumna{.Nombre = "n", .Longitud = 6, .Formato = 4}));
    EXPECT_EQ(e.Formatos_por_defecto[0].Decimales, 3);
    EXPECT_EQ(columna(0), (Textos{"1", "2", "3"}));
    EXPECT_EQ(t().ColAlignment(0), AlineacionCelda::Izquierda);
    EXPECT_EQ(t().ColWidth(0), 720);
}

TEST_F(Formatos_en_tablero, la_columna_0_invisible_tiene_ancho_0) {
    f(0).Longitud = 6;
    f(0).Invisible = true;
    Tablero_establece_Formato(e);
    EXPECT_EQ(t().ColWidth(0), 0);
}

TEST_F(Formatos_en_tablero, la_longitud_mas_grande_y_la_mas_negativa) {
    f(1).Longitud = 273;
    f(2).Longitud = -273;
    EXPECT_EQ(error_al_establecer(), 0);
    EXPECT_EQ(t().ColWidth(1), 32760);
    EXPECT_EQ(t().ColWidth(2), -32760);
    EXPECT_EQ(t().ancho_visible(2), 0);
    EXPECT_TRUE(t().Redraw());
}

TEST_F(Formatos_en_tablero, una_longitud_que_desborda_es_el_error_6_a_medias) {
    for (const int longitud : {274, -274, 32767, -32768}) {
        Mesa otra;
        otra.pon_tamano(4, 4);
        for (int col = 1; col < 4; ++col) {
            formato(otra.e, col).Longitud = 7;
            formato(otra.e, col).Nombre = "N";
        }
        const int ancho_antes = otra.t().ColWidth(2);
        formato(otra.e, 2).Longitud = static_cast<std::int16_t>(longitud);
        EXPECT_EQ(error_de([&] { Tablero_establece_Formato(otra.e); }), 6);
        EXPECT_FALSE(otra.t().Redraw());
        EXPECT_EQ(otra.t().ColWidth(1), 840);
        EXPECT_EQ(otra.celda(0, 1), "N");
        EXPECT_EQ(otra.t().ColWidth(2), ancho_antes);
        EXPECT_EQ(otra.celda(0, 2), "");
        EXPECT_EQ(otra.celda(0, 3), "");
    }
}

TEST_F(Formatos_en_tablero, una_columna_invisible_desborda_tambien) {
    f(2).Longitud = 274;
    f(2).Invisible = true;
    EXPECT_EQ(error_al_establecer(), 6);
}

TEST_F(Formatos_en_tablero, tras_un_error_se_puede_volver_a_dibujar_y_a_formatear) {
    f(2).Longitud = 274;
    EXPECT_EQ(error_al_establecer(), 6);
    f(2).Longitud = 10;
    EXPECT_EQ(error_al_establecer(), 0);
    EXPECT_TRUE(t().Redraw());
    EXPECT_EQ(t().ColWidth(2), 1200);
}

TEST_F(Formatos_en_tablero, con_27_columnas_falla_en_la_26_tras_formatear_las_demas) {
    pon_tamano(27, 3);
    for (T_FormatoColumna& uno : e.Formatos) {
        uno.Longitud = 9;
        uno.Nombre = "N";
    }
    EXPECT_EQ(error_al_establecer(), 9);
    EXPECT_FALSE(t().Redraw());
    EXPECT_EQ(t().ColWidth(25), 1080);
    EXPECT_EQ(celda(0, 25), "N");
    EXPECT_EQ(t().color_fondo(0, 25), CARA);
    EXPECT_EQ(celda(0, 26), "");
    EXPECT_FALSE(t().tiene_fondo(0, 26));
}

TEST_F(Formatos_en_tablero, con_26_columnas_no_falla) {
    pon_tamano(26, 3);
    EXPECT_EQ(error_al_establecer(), 0);
    EXPECT_TRUE(t().Redraw());
}

TEST_F(Formatos_en_tablero, Tablero_Formato_Columna_fuera_de_las_columnas_es_el_error_9) {
    for (const int col : {-1, 26}) EXPECT_EQ(error_de([&] { Tablero_Formato_Columna(e, col); }), 9) << col;
    EXPECT_EQ(error_de([&] { Tablero_Formato_Columna(e, 4); }), 9); // beyond the grid
}

TEST_F(Formatos_en_tablero, Tablero_Formato_Columna_da_su_ancho_tambien_a_una_invisible) {
    f(2).Longitud = 5;
    f(2).Invisible = true;
    f(2).Nombre = "N";
    Tablero_Formato_Columna(e, 2);
    EXPECT_EQ(t().ColWidth(2), 600);
    EXPECT_EQ(celda(0, 2), "");
}

TEST_F(Formatos_en_tablero, celda_y_seleccion_quedan_y_el_servidor_no_oye_nada) {
    t().selecciona(3, 2, 1, 3);
    p.vista.recoge();
    Tablero_establece_Formato(e);
    EXPECT_EQ(t().Row(), 3);
    EXPECT_EQ(t().Col(), 2);
    EXPECT_EQ(t().RowSel(), 1);
    EXPECT_EQ(t().ColSel(), 3);
    EXPECT_EQ(p.registro, Registro{});
    for (const std::string& aviso : p.vista.avisos) EXPECT_NE(aviso, "seleccion");
}

TEST_F(Formatos_en_tablero, mientras_formatea_la_vista_no_oye_nada) {
    p.vista.recoge();
    f(3).Longitud = 274;
    EXPECT_EQ(error_al_establecer(), 6);
    EXPECT_EQ(p.vista.recoge(), Textos{});
    t().Redraw(true);
    EXPECT_FALSE(p.vista.avisos.empty());
}

// --- Row-count label ---

TEST_F(Formatos_en_tablero, la_cuenta_de_filas_lleva_el_subtitulo) {
    pon_tamano(3, 13);
    Tablero_Nombres(e, "", "Puntos", "");
    Tablero_establece_Formato(e);
    EXPECT_EQ(cuenta(), "Puntos: Nº de filas = 12");
}

TEST_F(Formatos_en_tablero, la_cuenta_de_solo_la_cabecera_es_0) {
    pon_tamano(3, 1);
    Tablero_Nombres(e, "", "Ejes", "");
    Tablero_establece_Formato(e);
    EXPECT_EQ(cuenta(), "Ejes: Nº de filas = 0");
}

TEST_F(Formatos_en_tablero, la_cuenta_se_ve_con_la_columna_0_bloqueada) {
    Tablero_establece_Formato(e);
    EXPECT_FALSE(se_ve_la_cuenta());
    f(0).Bloqueada = true;
    Tablero_establece_Formato(e);
    EXPECT_TRUE(se_ve_la_cuenta());
    f(0).Bloqueada = false;
    Tablero_establece_Formato(e);
    EXPECT_FALSE(se_ve_la_cuenta());
}

TEST_F(Formatos_en_tablero, el_marco_solo_se_reparte_de_nuevo_si_la_cuenta_cambia) {
    Tablero_establece_Formato(e);
    p.marco.veces_etiquetas = 0;
    Tablero_establece_Formato(e);
    EXPECT_EQ(p.marco.veces_etiquetas, 0);
    f(0).Bloqueada = true;
    Tablero_establece_Formato(e);
    EXPECT_EQ(p.marco.veces_etiquetas, 1);
    Tablero_establece_Formato(e);
    EXPECT_EQ(p.marco.veces_etiquetas, 1);
}

TEST_F(Formatos_en_tablero, gana_el_ultimo_que_escribe_la_cuenta) {
    Tablero_Nombres(e, "", "Ejes", "");
    Tablero_establece_Formato(e);
    Rows(e, 6);
    EXPECT_EQ(cuenta(), "Nº de Ejes = 5");
    Tablero_establece_Formato(e);
    EXPECT_EQ(cuenta(), "Ejes: Nº de filas = 5");
}

TEST_F(Formatos_en_tablero, la_cuenta_se_escribe_tras_el_ancho_de_la_columna_0_y_antes_de_las_columnas) {
    f(0).Longitud = 274;
    EXPECT_EQ(error_al_establecer(), 6);
    EXPECT_EQ(cuenta(), "");
    f(0).Invisible = true; // width 0 without a product; it overflows later, as a column like the others
    EXPECT_EQ(error_al_establecer(), 6);
    EXPECT_EQ(cuenta(), ": Nº de filas = 3");
    EXPECT_EQ(t().ColWidth(0), 0);
}

TEST_F(Formatos_en_tablero, sin_columna_0_el_ancho_es_0_y_la_cuenta_se_ve) {
    Formatcol(e, 0, "X", "-", 4, 0, 0, 8, "", 0);
    Tablero_establece_Formato(e);
    t().ColWidth(0, 960);
    Tablero_Fila_0_Off(e);
    EXPECT_TRUE(f(0).Bloqueada);
    EXPECT_FALSE(f(0).Invisible);
    EXPECT_EQ(t().ColWidth(0), 0);
    EXPECT_FALSE(se_ve_la_cuenta());
    Tablero_establece_Formato(e);
    EXPECT_EQ(t().ColWidth(0), 0);
    EXPECT_TRUE(se_ve_la_cuenta());
    EXPECT_EQ(e.Formatos_por_defecto[0].Longitud, 8);
}

TEST_F(Formatos_en_tablero, los_formatos_por_defecto_devuelven_la_columna_0) {
    Formatcol(e, 0, "-", "-", 4, 0, 0, 8, "", 0);
    Tablero_Fila_0_Off(e);
    Tablero_establece_Formato(e);
    Tablero_Formato_por_defecto(e);
    Tablero_establece_Formato(e);
    EXPECT_EQ(t().ColWidth(0), 960);
    EXPECT_FALSE(se_ve_la_cuenta());
}

// --- Texts of the cells ---

TEST_F(Formatos_en_tablero, los_reales_toman_sus_decimales) {
    EXPECT_EQ(formateada({"1,5", "2.25"}, T_formato::Real__, 3), (Textos{"1.500", "2.250"}));
    EXPECT_EQ(formateada({"2.675", "-0.125", "1e3", "12.5 m"}, T_formato::RealPo, 2),
        (Textos{"2.68", "-0.13", "1000.00", "12.50"}));
    EXPECT_EQ(formateada({"1.5"}, T_formato::Real__, 20), (Textos{"1.500000000000000"}));
}

TEST_F(Formatos_en_tablero, los_reales_sin_decimales_no_se_redondean) {
    EXPECT_EQ(formateada({"2.50", "2,5", "7"}, T_formato::Real__, 0), (Textos{"2.5", "2.5", "7"}));
    EXPECT_EQ(formateada({"2.50"}, T_formato::Real__, -1), (Textos{"2.5"}));
}

TEST_F(Formatos_en_tablero, los_enteros_quedan_en_la_forma_normal_sin_redondear) {
    for (const auto forma : {T_formato::Entero, T_formato::EntPos})
        EXPECT_EQ(formateada({"007", "2.50", " 12", "1,5", "-3", "1E15", "1 000"}, forma, 3),
            (Textos{"7", "2.5", "12", "1.5", "-3", "1E+15", "1000"}));
}

TEST_F(Formatos_en_tablero, lo_que_no_es_numero_se_vuelve_cero_y_lo_vacio_queda_vacio) {
    EXPECT_EQ(formateada({"abc", "", "m3"}, T_formato::Real__, 2), (Textos{"0.00", "", "0.00"}));
    EXPECT_EQ(formateada({"abc", ""}, T_formato::Entero), (Textos{"0", ""}));
}

TEST_F(Formatos_en_tablero, un_numero_cuyo_texto_desborda_se_muestra_como_cero) {
    // The largest double: its 15 digits are beyond the range.
    EXPECT_EQ(formateada({"1.7976931348623157e308", "1.7976931348623157D308"}, T_formato::Real__, 2),
        (Textos{"0.00", "0.00"}));
    EXPECT_EQ(formateada({std::string(309, '1') + "0"}, T_formato::Real__, 1), (Textos{"0.0"}));
    EXPECT_EQ(formateada({"1.7976931348623157e308"}, T_formato::Entero), (Textos{"1.79769313486232E+308"}));
}

TEST_F(Formatos_en_tablero, las_cifras_tras_la_decimoquinta_son_ceros) {
    EXPECT_EQ(formateada({"1234567890123456.7", "0.12345678901234567", "&HFF", "1e2"}, T_formato::Real__, 2),
        (Textos{"1234567890123460.00", "0.12", "255.00", "100.00"}));
}

TEST_F(Formatos_en_tablero, formatear_otra_vez_no_cambia_nada) {
    const Textos una = formateada({"1,5", "-2.6789", "abc"}, T_formato::Real__, 2);
    EXPECT_EQ(una, (Textos{"1.50", "-2.68", "0.00"}));
    Tablero_Formato_Columna(e, 1);
    EXPECT_EQ(columna(1), una);
}

TEST_F(Formatos_en_tablero, los_demas_formatos_dejan_los_textos) {
    const Textos textos{"1,5", "2.25", "abc", ""};
    for (const int forma : {4, 6, 7, 8, -1, 32767})
        EXPECT_EQ(formateada(textos, static_cast<T_formato>(forma), 3), textos) << forma;
}

TEST_F(Formatos_en_tablero, cambiar_a_real_y_despues_a_texto) {
    formateada({"1,5", "2.25"}, T_formato::Real__, 3);
    pon_formato(1, T_formato::Alfanm);
    Tablero_establece_Formato(e);
    EXPECT_EQ(columna(1), (Textos{"1.500", "2.250"}));
}

TEST_F(Formatos_en_tablero, la_cabecera_y_las_otras_columnas_no_se_reformatean) {
    t().TextMatrix(0, 1, "1,5");
    escribe(2, {"1,5"});
    pon_formato(2, T_formato::Alfanm);
    formateada({"1,5"}, T_formato::Real__, 2);
    EXPECT_EQ(celda(0, 1), "1,5");
    EXPECT_EQ(celda(1, 2), "1,5");
}

TEST_F(Formatos_en_tablero, mostrar_numeros_refresca_ComaDecimal) {
    p.separador.coma = true;
    formateada({"", ""}, T_formato::Real__, 2);
    formateada({"1"}, T_formato::Alfanm);
    EXPECT_FALSE(e.ComaDecimal);
    EXPECT_EQ(formateada({"", "1"}, T_formato::Real__, 2), (Textos{"", "1.00"}));
    EXPECT_TRUE(e.ComaDecimal);
}

TEST_F(Formatos_en_tablero, una_lista_devuelve_todo_a_su_primer_valor) {
    e.listas[1].Col = Matriz<std::string>(0, {"eje", "borde"});
    EXPECT_EQ(formateada({"borde", "", "eje", "otro"}, T_formato::ListaU), (Textos{"eje", "", "eje", "eje"}));
}

TEST_F(Formatos_en_tablero, el_primer_valor_es_el_de_indice_0) {
    e.listas[1].Col = Matriz<std::string>(-1, {"a", "b", "c"});
    EXPECT_EQ(formateada({"x"}, T_formato::ListaU), (Textos{"b"}));
}

TEST_F(Formatos_en_tablero, un_primer_valor_vacio_vacia_las_celdas) {
    e.listas[1].Col = Matriz<std::string>(0, {"", "b"});
    EXPECT_EQ(formateada({"x", "b"}, T_formato::ListaU), (Textos{"", ""}));
}

TEST_F(Formatos_en_tablero, sin_valor_de_indice_0_una_celda_con_texto_es_el_error_9) {
    const Matriz<std::string> listas[] = {{}, {1, {"a", "b"}}, {-2, {"a", "b"}}, Matriz<std::string>(0, -1)};
    for (const auto& lista : listas) {
        Mesa otra;
        otra.pon_tamano(4, 4);
        otra.pon_formato(2, T_formato::ListaU).Nombre = "Uso";
        otra.pon_formato(3, T_formato::Alfanm).Nombre = "Nota";
        otra.e.listas[2].Col = lista;
        otra.escribe(2, {"", "x", "y"});
        EXPECT_EQ(error_de([&] { Tablero_establece_Formato(otra.e); }), 9);
        EXPECT_FALSE(otra.t().Redraw());
        EXPECT_EQ(otra.columna(2), (Textos{"", "x", "y"}));
        EXPECT_EQ(otra.celda(0, 2), "");
        EXPECT_EQ(otra.celda(0, 3), "");
    }
}

TEST_F(Formatos_en_tablero, una_lista_escondida_lo_sigue_estando_tras_el_error_9) {
    pon_formato(2, T_formato::ListaU).Longitud = 10;
    f(2).Invisible = true;
    escribe(2, {"x"});
    EXPECT_EQ(error_al_establecer(), 9);
    EXPECT_EQ(t().ColWidth(2), 0);
}

TEST_F(Formatos_en_tablero, con_muchas_filas_hay_reloj_y_se_dice_cuanto_va) {
    pon_tamano(2, 10'001);
    pon_formato(1, T_formato::Real__, 2);
    for (int fila = 1; fila <= 10'000; ++fila) t().TextMatrix(fila, 1, "1");
    p.recoge();
    EXPECT_EQ(error_al_establecer(), 0);
    const Registro dicho = p.recoge();
    ASSERT_EQ(dicho.size(), 102U); // the hourglass, each per cent, the pointer
    EXPECT_EQ(dicho.front(), "puntero 11");
    EXPECT_EQ(dicho[1], "avance Dando formato 1");
    EXPECT_EQ(dicho[100], "avance Dando formato 100");
    EXPECT_EQ(dicho.back(), "puntero 0");
}

TEST_F(Formatos_en_tablero, una_lista_sin_valores_y_sin_textos_no_es_un_error) {
    pon_formato(2, T_formato::ListaU);
    EXPECT_EQ(error_al_establecer(), 0);
    EXPECT_TRUE(t().Redraw());
}

TEST_F(Formatos_en_tablero, con_solo_la_cabecera_se_formatea_lo_demas) {
    pon_tamano(4, 1);
    pon_formato(1, T_formato::Real__, 2).Nombre = "X";
    pon_formato(2, T_formato::ListaU).Nombre = "Uso";
    EXPECT_EQ(error_al_establecer(), 0);
    EXPECT_EQ(celda(0, 1), "X");
    EXPECT_EQ(celda(0, 2), "Uso");
}

// --- The order that hosts use ---

TEST_F(Formatos_en_tablero, nombres_formatos_columna_0_y_filas_juntos) {
    Tablero_Nombres(e, "Planta", "Puntos", "X");
    FormatoColumnas(
        e, 1, false, false, T_formato::Alfanm, 0, T_Alineacion::Izqda, T_Accion::Increm, 8, "Nombre");
    FormatoColumnas(
        e, 2, false, true, T_formato::Real__, 3, T_Alineacion::Drcha, T_Accion::Nada__, 12, "Cota");
    FormatoColumnas(e, 3, true, false, T_formato::ListaU, 0, T_Alineacion::Centr, T_Accion::Repite, 6, "Uso");
    Lista(e, 3, Matriz<std::string>(0, {"eje", "borde"}));
    Tablero_Fila_0_Off(e);
    Tablero_establece_Formato(e);
    Rows(e, 3);
    TextMatrix(e, 1, 1, "P1");
    TextMatrix(e, 1, 2, "2,5");
    TextMatrix(e, 2, 3, "borde");
    EXPECT_EQ(columna(1), (Textos{"P1", ""}));
    EXPECT_EQ(columna(2), (Textos{"2.500", ""}));
    Tablero_establece_Formato(e);
    EXPECT_EQ(columna(3), (Textos{"", "eje"}));
    EXPECT_EQ(cuenta(), "Puntos: Nº de filas = 2");
    EXPECT_EQ(p.registro, (Registro{"propiedad Rows", "captura"}));
    const int anchos[] = {0, 960, 1440, 0};
    for (int col = 0; col < 4; ++col) EXPECT_EQ(t().ColWidth(col), anchos[col]) << col;
}
