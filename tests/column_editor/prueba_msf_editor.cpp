// SPDX-License-Identifier: MIT
// The grid of the column editor: how it is filled, what clicks and keys do, what the text box accepts.
#include "tests/base/error_de.h"
#include "tests/column_editor/mesa_editor.h"

#include <vector>

using namespace Qlt4_Tabla;

namespace {

struct Msf_editor : testing::Test, MesaEditor {
    std::vector<std::string> fila(int n) {
        std::vector<std::string> textos;
        for (int col = 0; col < ED_COLUMNAS; ++col) textos.push_back(celda(n, col));
        return textos;
    }

    std::vector<int> donde() { return {t().Row(), t().Col(), t().RowSel(), t().ColSel()}; }

    void rellena(int n) {
        editor.NumeroColumnas(static_cast<std::int16_t>(n));
        editor.msfEditor_rellena_datos();
    }
};

using Fila = std::vector<std::string>;

} // namespace

// --- Filling ---

TEST_F(Msf_editor, cada_columna_es_una_fila_con_sus_campos) {
    ASSERT_EQ(t().Rows(), 4);
    EXPECT_EQ(fila(1), (Fila{"", "Nombre", "Si", "No", "", "9", "-", "Izquierda", "Increm"}));
    EXPECT_EQ(fila(2), (Fila{"", "X", "Si", "No", "", "11", "3", "Derecha", "Off"}));
    EXPECT_EQ(fila(3), (Fila{"", "Uso", "Si", "Si", "", "7", "-", "Centrado", "Off"}));
}

TEST_F(Msf_editor, la_cabecera_lleva_los_titulos_con_sus_blancos) {
    EXPECT_EQ(fila(0),
        (Fila{"Columna", "Nombre columna      ", "Visible  ", "Bloqueada   ", "", "Ancho  ", "Decimales  ",
            "Alineación  ", "Acción "}));
}

TEST_F(Msf_editor, los_blancos_dan_los_anchos_y_la_0_y_la_4_no_se_ven) {
    const std::vector<int> anchos{0, 2400, 1080, 1440, 0, 840, 1320, 1440, 840};
    for (int col = 0; col < ED_COLUMNAS; ++col)
        EXPECT_EQ(t().ColWidth(col), anchos[static_cast<std::size_t>(col)]);
    EXPECT_EQ(t().ColAlignment(ED_NOMBRE), AlineacionCelda::Izquierda);
    EXPECT_EQ(t().ColAlignment(ED_ACCION), AlineacionCelda::Centro);
}

TEST_F(Msf_editor, invisible_y_real_positivo) {
    f(1).Invisible = true;
    f(1).Formato = 3;
    f(1).Decimales = -2;
    rellena(1);
    EXPECT_EQ(fila(1), (Fila{"", "Nombre", "No", "No", "", "9", "-2", "Izquierda", "Increm"}));
}

TEST_F(Msf_editor, lo_que_se_sale_se_ve_como_lo_primero_y_no_se_repara) {
    f(1).Alineacion = 5;
    f(1).Accion = -1;
    rellena(1);
    EXPECT_EQ(celda(1, ED_ALINEACION), "Izquierda");
    EXPECT_EQ(celda(1, ED_ACCION), "Off");
    EXPECT_EQ(f(1).Alineacion, 5);
    EXPECT_EQ(f(1).Accion, -1);
}

TEST_F(Msf_editor, sin_columnas_solo_hay_cabecera) {
    rellena(0);
    EXPECT_EQ(t().Rows(), 1);
    EXPECT_EQ(celda(0, 0), "Columna");
    clic_en(100, 400);
    Intro();
    teclea(" a5");
    pulsa(teclas::ABAJO);
    EXPECT_FALSE(casilla().abierta);
    EXPECT_FALSE(cambiado());
}

TEST_F(Msf_editor, caben_25_columnas_y_mas_es_error_9) {
    rellena(25);
    EXPECT_EQ(t().Rows(), 26);
    EXPECT_EQ(error_de([&] { rellena(26); }), 9);
}

TEST_F(Msf_editor, rellenar_otra_vez_muestra_los_formatos_de_ahora) {
    escribe(1, ED_NOMBRE, "Otro");
    rellena(2);
    EXPECT_EQ(t().Rows(), 3);
    EXPECT_EQ(celda(1, ED_NOMBRE), "Nombre");
    EXPECT_EQ(t().ColWidth(ED_FIJA), 0);
}

// --- Clicks ---

TEST_F(Msf_editor, un_clic_oculta_y_otro_vuelve_a_mostrar) {
    clic(2, ED_VISIBLE);
    EXPECT_TRUE(f(2).Invisible);
    EXPECT_EQ(celda(2, ED_VISIBLE), "No");
    EXPECT_TRUE(cambiado());
    clic(2, ED_VISIBLE);
    EXPECT_FALSE(f(2).Invisible);
    EXPECT_EQ(celda(2, ED_VISIBLE), "Si");
}

TEST_F(Msf_editor, tambien_la_ultima_visible_se_oculta_sin_mensaje) {
    for (const int fila : {1, 2, 3}) clic(fila, ED_VISIBLE);
    for (const int col : {1, 2, 3}) EXPECT_TRUE(f(col).Invisible);
    EXPECT_EQ(visto().mensaje, "");
    EXPECT_EQ(p.mensajes.pitidos, 0);
}

TEST_F(Msf_editor, un_clic_bloquea_y_otro_desbloquea) {
    clic(3, ED_BLOQUEADA);
    EXPECT_FALSE(f(3).Bloqueada);
    EXPECT_EQ(celda(3, ED_BLOQUEADA), "No");
    EXPECT_TRUE(cambiado());
    clic(3, ED_BLOQUEADA);
    EXPECT_TRUE(f(3).Bloqueada);
    EXPECT_EQ(celda(3, ED_BLOQUEADA), "Si");
}

TEST_F(Msf_editor, la_alineacion_da_la_vuelta_en_tres_clics) {
    for (const char* texto : {"Centrado", "Derecha", "Izquierda"}) {
        clic(1, ED_ALINEACION);
        EXPECT_EQ(celda(1, ED_ALINEACION), texto);
    }
    EXPECT_EQ(f(1).Alineacion, 0);
    EXPECT_TRUE(cambiado());
}

TEST_F(Msf_editor, la_accion_da_la_vuelta_en_cuatro_clics) {
    for (const char* texto : {"Repite", "Increm", "Decrem", "Off"}) {
        clic(2, ED_ACCION);
        EXPECT_EQ(celda(2, ED_ACCION), texto);
    }
    EXPECT_EQ(f(2).Accion, 0);
}

TEST_F(Msf_editor, un_clic_repara_lo_que_se_sale) {
    f(1).Alineacion = 5;
    f(1).Accion = -3;
    clic(1, ED_ALINEACION);
    clic(1, ED_ACCION);
    EXPECT_EQ(f(1).Alineacion, 0);
    EXPECT_EQ(f(1).Accion, 0);
}

TEST_F(Msf_editor, un_error_en_el_clic_se_cuenta_y_el_paso_siguiente_sigue) {
    f(1).Alineacion = 32767;
    clic(1, ED_ALINEACION);
    EXPECT_EQ(p.registro, (std::vector<std::string>{"mensaje|0||otro error en el msfEditor:Desbordamiento"}));
    EXPECT_EQ(f(1).Alineacion, 0);
    EXPECT_EQ(celda(1, ED_ALINEACION), "Izquierda");
    EXPECT_TRUE(cambiado());
}

TEST_F(Msf_editor, fuera_de_las_celdas_no_pasa_nada) {
    clic(0, ED_VISIBLE);
    clic_en(11000, 400); // right of the last column
    clic_en(3000, 5000); // below the last row
    EXPECT_FALSE(cambiado());
    EXPECT_FALSE(casilla().abierta);
    EXPECT_EQ(donde(), (std::vector{1, 1, 1, 1}));
}

TEST_F(Msf_editor, soltar_en_otra_celda_no_es_un_clic) {
    const Rectangulo a = rectangulo_celda(t(), 1, ED_VISIBLE);
    const Rectangulo b = rectangulo_celda(t(), 2, ED_VISIBLE);
    rejilla().raton(PulsoRaton::Abajo, a.izquierda, a.arriba);
    rejilla().raton(PulsoRaton::Arriba, b.izquierda, b.arriba);
    EXPECT_FALSE(cambiado());
    EXPECT_EQ(donde(), (std::vector{1, 2, 1, 2}));
}

TEST_F(Msf_editor, nombre_ancho_y_decimales_abren_la_casilla_con_todo_marcado) {
    clic(2, ED_NOMBRE);
    EXPECT_TRUE(casilla().abierta);
    EXPECT_EQ(casilla().texto, "X");
    clic(2, ED_ANCHO);
    EXPECT_EQ(casilla().texto, "11");
    EXPECT_EQ(casilla().inicio, 0);
    EXPECT_EQ(casilla().longitud, 2);
    EXPECT_EQ(casilla().sitio, rectangulo_celda(t(), 2, ED_ANCHO));
    EXPECT_EQ(casilla().sitio, (Rectangulo{4920, 600, 840, 300}));
    clic(1, ED_DECIMALES);
    EXPECT_EQ(casilla().texto, "-");
    EXPECT_FALSE(cambiado());
}

// --- Keys of the grid ---

TEST_F(Msf_editor, las_flechas_saltan_las_columnas_que_no_se_ven) {
    pulsa(teclas::DERECHA);
    pulsa(teclas::DERECHA);
    pulsa(teclas::DERECHA);
    EXPECT_EQ(donde(), (std::vector<int>{1, ED_ANCHO, 1, ED_ANCHO}));
    pulsa(teclas::IZQUIERDA);
    EXPECT_EQ(t().Col(), ED_BLOQUEADA);
    pulsa(teclas::INICIO);
    pulsa(teclas::IZQUIERDA);
    EXPECT_EQ(t().Col(), ED_NOMBRE);
    pulsa(teclas::FIN);
    pulsa(teclas::DERECHA);
    EXPECT_EQ(t().Col(), ED_ACCION);
}

TEST_F(Msf_editor, arriba_y_abajo_se_quedan_en_las_filas) {
    pulsa(teclas::ARRIBA);
    EXPECT_EQ(t().Row(), 1);
    for (int i = 0; i < 5; ++i) pulsa(teclas::ABAJO);
    EXPECT_EQ(t().Row(), 3);
    pulsa(teclas::REPAG);
    EXPECT_EQ(t().Row(), 1);
    pulsa(teclas::AVPAG);
    EXPECT_EQ(t().Row(), 3);
}

TEST_F(Msf_editor, lo_que_se_recorre_se_ve) {
    rellena(25);
    rejilla().mide(5000, 1500, 300); // four data rows
    for (int i = 1; i < 10; ++i) pulsa(teclas::ABAJO);
    EXPECT_EQ(t().Row(), 10);
    EXPECT_EQ(t().TopRow(), 7);
    pulsa(teclas::FIN);
    EXPECT_EQ(t().desplazamiento(), 9360 - 5000);
}

TEST_F(Msf_editor, Intro_y_F2_abren_o_hacen_lo_que_un_clic) {
    for (const int tecla : {teclas::INTRO, teclas::F2}) {
        t().Row() == 1 ? clic(2, ED_NOMBRE) : clic(1, ED_NOMBRE);
        Escape();
        pulsa(tecla);
        EXPECT_TRUE(casilla().abierta);
        Escape();
        pulsa(teclas::DERECHA);
        const bool antes = f(t().Row()).Invisible;
        pulsa(tecla);
        EXPECT_NE(f(t().Row()).Invisible, antes);
    }
}

TEST_F(Msf_editor, Intro_actua_una_vez) {
    pulsa(teclas::DERECHA);
    EXPECT_TRUE(rejilla().tecla_abajo(teclas::INTRO)); // used: no key press comes
    EXPECT_TRUE(f(1).Invisible);
}

TEST_F(Msf_editor, Intro_que_llega_solo_como_caracter_tambien_actua) {
    EXPECT_TRUE(rejilla().tecla_pulsada(teclas::INTRO));
    EXPECT_TRUE(casilla().abierta);
}

TEST_F(Msf_editor, el_espacio_abre_o_hace_lo_que_un_clic) {
    teclea(" ");
    EXPECT_EQ(casilla().texto, "Nombre");
    EXPECT_EQ(casilla().longitud, 6);
    Escape();
    pulsa(teclas::FIN);
    teclea(" ");
    EXPECT_EQ(f(1).Accion, 3);
}

TEST_F(Msf_editor, una_letra_abre_el_nombre_con_ella_y_el_cursor_detras) {
    teclea("c");
    EXPECT_TRUE(casilla().abierta);
    EXPECT_EQ(casilla().texto, "c");
    EXPECT_EQ(casilla().inicio, 2);
    EXPECT_EQ(casilla().longitud, 0);
}

TEST_F(Msf_editor, solo_las_cifras_abren_el_ancho_y_los_decimales) {
    for (const int col : {ED_ANCHO, ED_DECIMALES}) {
        clic(2, col);
        Escape();
        teclea("a+-.,~");
        pulsa(teclas::RETROCESO, 8);
        EXPECT_FALSE(casilla().abierta);
        teclea("7");
        EXPECT_EQ(casilla().texto, "7");
        Escape();
    }
}

TEST_F(Msf_editor, los_signos_tampoco_abren_el_nombre) {
    teclea("+.-");
    pulsa(0, 241); // beyond the printable ones
    EXPECT_FALSE(casilla().abierta);
    teclea("!");
    EXPECT_EQ(casilla().texto, "!");
}

TEST_F(Msf_editor, una_letra_en_las_otras_columnas_no_hace_nada) {
    for (const int col : {ED_VISIBLE, ED_BLOQUEADA, ED_ALINEACION, ED_ACCION}) {
        clic(2, col);
        const auto antes = r.formatos;
        teclea("aS5-");
        EXPECT_EQ(r.formatos, antes);
        EXPECT_FALSE(casilla().abierta);
    }
}

// --- The text box ---

TEST_F(Msf_editor, Intro_escribe_y_Escape_no) {
    clic(1, ED_NOMBRE);
    rejilla().escribe_casilla("Punto");
    Escape();
    EXPECT_EQ(celda(1, ED_NOMBRE), "Nombre");
    EXPECT_FALSE(cambiado());
    escribe(1, ED_NOMBRE, "Punto");
    EXPECT_FALSE(casilla().abierta);
    EXPECT_EQ(celda(1, ED_NOMBRE), "Punto");
    EXPECT_TRUE(cambiado());
    EXPECT_EQ(f(1).Nombre, "Nombre"); // until it is applied
}

TEST_F(Msf_editor, perder_el_foco_escribe) {
    clic(1, ED_NOMBRE);
    rejilla().escribe_casilla("Punto");
    rejilla().casilla_pierde_foco();
    EXPECT_EQ(celda(1, ED_NOMBRE), "Punto");
    EXPECT_FALSE(casilla().abierta);
}

TEST_F(Msf_editor, tras_Escape_perder_el_foco_ya_no_escribe) {
    clic(1, ED_NOMBRE);
    rejilla().escribe_casilla("Punto");
    Escape();
    rejilla().casilla_pierde_foco();
    EXPECT_EQ(celda(1, ED_NOMBRE), "Nombre");
}

TEST_F(Msf_editor, un_clic_en_otra_celda_escribe_donde_se_abrio) {
    clic(1, ED_NOMBRE);
    rejilla().escribe_casilla("Punto");
    clic(2, ED_VISIBLE);
    EXPECT_EQ(celda(1, ED_NOMBRE), "Punto");
    EXPECT_TRUE(f(2).Invisible);
}

TEST_F(Msf_editor, vacio_o_igual_no_es_un_cambio) {
    escribe(1, ED_NOMBRE, "");
    escribe(1, ED_NOMBRE, "Nombre");
    escribe(2, ED_ANCHO, "11");
    escribe(1, ED_DECIMALES, "-");
    EXPECT_EQ(celda(1, ED_NOMBRE), "Nombre");
    EXPECT_FALSE(cambiado());
}

TEST_F(Msf_editor, se_comparan_textos_y_no_numeros) {
    escribe(2, ED_ANCHO, "011");
    EXPECT_EQ(celda(2, ED_ANCHO), "011");
    EXPECT_TRUE(cambiado());
}

TEST_F(Msf_editor, el_ancho_va_de_mas_de_0_a_menos_de_500) {
    for (const char* malo : {"0", "500", "-3", "ancho", "1e9"}) {
        escribe(2, ED_ANCHO, malo);
        EXPECT_EQ(celda(2, ED_ANCHO), "11") << malo;
    }
    EXPECT_FALSE(cambiado());
    for (const char* bueno : {"499", "1", "0,5", "499.9", "12 m"}) {
        escribe(2, ED_ANCHO, bueno);
        EXPECT_EQ(celda(2, ED_ANCHO), bueno);
    }
    EXPECT_TRUE(p.registro.empty());
}

TEST_F(Msf_editor, los_decimales_van_de_0_a_menos_de_11) {
    for (const char* malo : {"11", "-1", "100"}) {
        escribe(2, ED_DECIMALES, malo);
        EXPECT_EQ(celda(2, ED_DECIMALES), "3") << malo;
    }
    EXPECT_FALSE(cambiado());
    for (const char* bueno : {"10", "0", "2.6", "10,9", "nada"}) {
        escribe(2, ED_DECIMALES, bueno);
        EXPECT_EQ(celda(2, ED_DECIMALES), bueno);
    }
}

TEST_F(Msf_editor, las_teclas_se_filtran_en_el_ancho_y_no_en_los_decimales) {
    struct Caso {
        int col;
        int tecla;
        int queda;
    };
    for (const Caso c : {Caso{ED_ANCHO, '5', '5'}, Caso{ED_ANCHO, 8, 8}, Caso{ED_ANCHO, 'a', 0},
             Caso{ED_ANCHO, '-', 0}, Caso{ED_ANCHO, '.', 0}, Caso{ED_ANCHO, '+', 0}, Caso{ED_ANCHO, ' ', 0},
             Caso{ED_DECIMALES, 'a', 'a'}, Caso{ED_DECIMALES, '.', '.'}, Caso{ED_NOMBRE, '-', '-'},
             Caso{ED_NOMBRE, 241, 241}}) {
        clic(1, c.col);
        EXPECT_EQ(rejilla().tecla_casilla(c.tecla), c.queda) << c.col << ' ' << c.tecla;
    }
}

TEST_F(Msf_editor, la_casilla_sigue_a_su_celda) {
    rellena(25);
    rejilla().mide(5000, 1500, 300);
    clic(3, ED_NOMBRE);
    rejilla().desplaza(2, 400);
    EXPECT_EQ(casilla().sitio, (Rectangulo{-400, 600, 2400, 300}));
    rejilla().mide(5000, 3000, 400);
    EXPECT_EQ(casilla().sitio.alto, 400);
}

TEST_F(Msf_editor, se_abre_donde_se_ve) {
    rellena(25);
    rejilla().mide(5000, 1500, 300);
    rejilla().desplaza(20, 0);
    teclea("a");
    EXPECT_EQ(t().TopRow(), 1);
    EXPECT_EQ(casilla().sitio.arriba, 300);
}

TEST_F(Msf_editor, escribir_trae_de_vuelta_su_celda) {
    rellena(25);
    rejilla().mide(5000, 1500, 300); // four data rows
    clic(3, ED_NOMBRE);
    rejilla().desplaza(20, 400);
    rejilla().escribe_casilla("Este");
    EXPECT_EQ(t().TopRow(), 3);
    EXPECT_EQ(casilla().sitio, (Rectangulo{0, 300, 2400, 300}));
}

TEST_F(Msf_editor, en_una_ventana_mayor_vuelven_las_filas) {
    rellena(25);
    rejilla().mide(5000, 1500, 300); // four data rows
    rejilla().desplaza(22, 0);
    rejilla().mide(5000, 3300, 300); // ten
    EXPECT_EQ(t().TopRow(), 16);
    rejilla().mide(5000, 9000, 300); // all
    EXPECT_EQ(t().TopRow(), 1);
}

// --- Taking over ---

TEST_F(Msf_editor, al_aplicar_nombres_anchos_y_decimales_van_a_los_formatos) {
    escribe(1, ED_NOMBRE, " Un nombre más largo que los cuarenta caracteres ");
    escribe(2, ED_ANCHO, "25");
    escribe(2, ED_DECIMALES, "5");
    editor.orden(OrdenColumnas::Aplicar);
    EXPECT_EQ(f(1).Nombre, " Un nombre más largo que los cuarenta caracteres ");
    EXPECT_EQ(f(2).Longitud, 25);
    EXPECT_EQ(f(2).Decimales, 5);
    EXPECT_EQ(f(2).Formato, 2);
}

TEST_F(Msf_editor, los_decimales_que_no_son_mas_de_0_se_quedan) {
    f(1).Decimales = 4;
    for (const char* texto : {"0", "nada", "0.0"}) {
        escribe(2, ED_DECIMALES, texto);
        editor.orden(OrdenColumnas::Aplicar);
        EXPECT_EQ(f(2).Decimales, 3) << texto;
        EXPECT_EQ(f(1).Decimales, 4); // "-"
    }
}

TEST_F(Msf_editor, los_decimales_de_una_columna_sin_ellos_se_pueden_escribir) {
    escribe(1, ED_DECIMALES, "2");
    editor.orden(OrdenColumnas::Aplicar);
    EXPECT_EQ(f(1).Decimales, 2);
}

TEST_F(Msf_editor, los_numeros_se_redondean_al_par) {
    escribe(2, ED_DECIMALES, "2.6");
    escribe(1, ED_DECIMALES, "2.5");
    escribe(1, ED_ANCHO, "3.5");
    escribe(2, ED_ANCHO, "0.5");
    editor.orden(OrdenColumnas::Aplicar);
    EXPECT_EQ(f(2).Decimales, 3);
    EXPECT_EQ(f(1).Decimales, 2);
    EXPECT_EQ(f(1).Longitud, 4);
    EXPECT_EQ(f(2).Longitud, 0);
}

TEST(Filtra_digito, cifras_y_retroceso) {
    for (int c = '0'; c <= '9'; ++c) EXPECT_EQ(filtra_digito(c), c);
    EXPECT_EQ(filtra_digito(8), 8);
    for (const int c : std::vector<int>{0, 9, 13, '/', ':', '+', '-', '.', 'a', 178, 0x0661})
        EXPECT_EQ(filtra_digito(c), 0);
}

TEST(Registros_editor, hay_visible_busca_de_1_a_n) {
    RegistrosEditor r;
    for (T_FormatoColumna& f : r.formatos) f.Invisible = true;
    r.formatos[0].Invisible = false;
    EXPECT_FALSE(r.hay_visible(25));
    r.formatos[3].Invisible = false;
    EXPECT_FALSE(r.hay_visible(2));
    EXPECT_TRUE(r.hay_visible(3));
    r.formatos[3].Invisible = true;
    EXPECT_EQ(error_de([&] { static_cast<void>(r.hay_visible(26)); }), 9);
    EXPECT_EQ(error_de([&] { static_cast<void>(r.formato(-1)); }), 9);
}
