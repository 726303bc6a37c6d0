// SPDX-License-Identifier: MIT
// Paste commands: where every field lands, what is counted, asked, added and left.
#include "tests/clipboard/mesa_portapapeles.h"

namespace Qlt4_Tabla {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct Pega : MesaPortapapeles {
    void SetUp() override { tabla(3, 4); }
};

// --- The first pass ---

TEST(MideBloque, cuenta_separadores_como_son) {
    struct Caso {
        const char* texto;
        MedidasBloque medidas;
    };
    const Caso casos[] = {
        {"", {0, 0}},
        {"a", {0, 0}},
        {"a\tb", {0, 0}},
        {"a\r\n", {2, 1}},
        {"a\tb\r\nc\td\r\n", {3, 2}},
        {"a\tb\r\nc\td\te\r\nf\r\n", {4, 3}},
        {"a\tb\r\nc\td\te\tf", {3, 1}}, // the open line is not counted
        {"a\tb\nc\td\n", {2, 2}},
        {"a\tb\rc\td\r", {4, 0}}, // a lone CR does not end the count of its line
        {"\r\n", {2, 1}},
        {"\n\n", {1, 2}},
        {"a,b.c;d ñ\r\n", {2, 1}},
    };
    for (const Caso& c : casos) EXPECT_EQ(mide_bloque(c.texto), c.medidas) << c.texto;
}

TEST(MideBloque, no_se_desborda) {
    std::string lineas;
    for (int i = 0; i < 70000; ++i) lineas += "\r\n";
    EXPECT_EQ(mide_bloque(lineas), (MedidasBloque{2, 70000}));
    EXPECT_EQ(mide_bloque(std::string(70000, '\t') + "\r\n"), (MedidasBloque{70002, 1}));
}

// --- Nothing to paste ---

TEST_F(Pega, un_portapapeles_vacio_lo_dice_y_no_hace_nada) {
    const std::string foto_antes = foto();
    pega("");
    EXPECT_THAT(p.recoge(), ElementsAre("mensaje|16||No hay texto en el portapapeles"));
    EXPECT_EQ(foto(), foto_antes);
    EXPECT_EQ(e.Modificado, 0);
}

TEST_F(Pega, un_portapapeles_que_no_se_lee_cuenta_como_vacio) {
    p.portapapeles.error_al_leer = 521;
    pega("1/");
    EXPECT_THAT(p.registro, ElementsAre("mensaje|16||No hay texto en el portapapeles"));
    EXPECT_EQ(datos(), "||/||/");
}

// --- Where the fields land ---

TEST_F(Pega, desde_la_celda_actual_abajo_y_a_la_derecha) {
    tabla(4, 4);
    pega_en(2, 1, "a|b/c|d/");
    EXPECT_EQ(datos(), "||/a|b|/c|d|/");
    EXPECT_EQ(t().Rows(), 4);
    EXPECT_THAT(p.registro, ElementsAre("captura", "puntero 11", "puntero 0"));
    EXPECT_EQ(e.Modificado, 1);
}

TEST_F(Pega, anade_las_filas_que_faltan_y_las_numera) {
    pega_en(2, 1, "a|b/c|d/e|f/");
    EXPECT_EQ(t().Rows(), 5);
    EXPECT_EQ(datos(), "||/a|b|/c|d|/e|f|/");
    EXPECT_EQ(celda(3, 0), "3");
    EXPECT_EQ(celda(4, 0), "4");
    EXPECT_EQ(e.etiquetas.labMensaje.texto, "Nº de  = 4");
}

TEST_F(Pega, desde_el_ancla_y_no_desde_la_esquina) {
    tabla(5, 5);
    marca(3, 3, 1, 1);
    pega("a|b/");
    EXPECT_EQ(celda(3, 3), "a");
    EXPECT_EQ(celda(3, 4), "b");
    EXPECT_EQ(seleccion(), (std::vector{3, 3, 1, 1}));
}

TEST_F(Pega, con_la_fila_0_actual_desde_la_fila_1) {
    pon(0, 1, "X");
    pega_en(0, 1, "a/b/c/");
    EXPECT_EQ(celda(0, 1), ""); // the header shows the column's name again
    EXPECT_EQ(datos(), "a||/b||/c||/");
    EXPECT_EQ(seleccion(), (std::vector{1, 1, 1, 1}));
}

TEST_F(Pega, en_una_tabla_de_solo_cabecera) {
    tabla(1, 3);
    va(0, 1);
    pega("a|b/c|d/");
    EXPECT_EQ(datos(), "a|b/c|d/");
    EXPECT_EQ(seleccion(), (std::vector{1, 1, 1, 1}));
}

TEST_F(Pega, en_la_columna_0_van_los_numeros_de_fila) {
    pega_en(1, 0, "9|a/8|b/");
    EXPECT_EQ(celda(1, 0), "9");
    EXPECT_EQ(celda(2, 0), "8");
    EXPECT_EQ(datos(), "a||/b||/");
    EXPECT_EQ(seleccion(), (std::vector{1, 1, 1, 1}));
}

TEST_F(Pega, cada_fin_de_linea_acaba_una_linea) {
    tabla(7, 3);
    p.portapapeles.texto = "a\r\nb\nc\rd\r\n\r\ne";
    Pegar_Portapapeles(e, false);
    EXPECT_EQ(columna(1), (Textos{"a", "b", "c", "d", "", "e"}));
}

TEST_F(Pega, la_ultima_linea_abierta_llega_si_tiene_fila) {
    pega_en(1, 1, "a|b/c|");
    EXPECT_EQ(datos(), "a|b|/c||/");
    pega_en(2, 1, "x/y");
    EXPECT_EQ(datos(), "a|b|/x||/"); // its count of lines is one
    EXPECT_EQ(t().Rows(), 3);
}

TEST_F(Pega, lo_que_va_detras_de_las_lineas_acabadas_en_LF_tambien_llega) {
    tabla(7, 3);
    p.portapapeles.texto = "a\tb\r\nc\nd\re\rf\tg";
    Pegar_Portapapeles(e, false);
    EXPECT_EQ(datos(), "a|b/c|/d|/e|/f|g/|/");
}

TEST_F(Pega, lineas_de_distinto_ancho_dejan_lo_que_no_traen) {
    pega_en(1, 1, "a|b|c/d|e|f/");
    pega_en(1, 1, "x/y|z/");
    EXPECT_EQ(datos(), "x|b|c/y|z|f/");
}

TEST_F(Pega, la_vista_oye_solo_de_lo_que_cambia) {
    pega_en(1, 1, "a|b|c/d|e|f/");
    p.vista.recoge();
    pega("a|b|c/x|y/");
    EXPECT_THAT(p.vista.recoge(), ElementsAre("celdas 2 1 2 2"));
}

TEST_F(Pega, un_campo_vacio_vacia_su_celda_y_lo_que_no_hay_se_queda) {
    pega_en(1, 1, "a|b|c/d|e|f/");
    pega_en(1, 1, "|x//");
    EXPECT_EQ(datos(), "|x|c/|e|f/");
}

TEST_F(Pega, un_tabulador_al_final_de_todo_es_un_campo_vacio_mas) {
    pega_en(1, 1, "a|b|c/");
    pega_en(1, 1, "z|");
    EXPECT_EQ(celda(1, 1), "z");
    EXPECT_EQ(celda(1, 2), "");
    EXPECT_EQ(celda(1, 3), "c");
}

TEST_F(Pega, columnas_bloqueadas_y_ocultas_se_escriben) {
    e.Formatos[1].Bloqueada = true;
    e.Formatos[2].Invisible = true;
    pega_en(1, 1, "a|b|c/");
    EXPECT_EQ(datos(), "a|b|c/||/");
}

TEST_F(Pega, textos_largos_y_de_cualquier_letra) {
    const std::string largo(5000, 'x');
    pega_en(1, 1, "ñandú €|" + largo + "|\xF0\x9F\x98\x80/");
    EXPECT_EQ(celda(1, 1), "ñandú €");
    EXPECT_EQ(celda(1, 2), largo);
    EXPECT_EQ(celda(1, 3), "\xF0\x9F\x98\x80");
}

TEST_F(Pega, mas_de_32767_lineas_llegan_todas) {
    constexpr int LINEAS = 70000;
    std::string texto;
    for (int i = 1; i <= LINEAS; ++i) texto += "v" + std::to_string(i) + "/";
    pega_en(1, 1, texto);
    ASSERT_EQ(t().Rows(), LINEAS + 1);
    for (int i = 1; i <= LINEAS; ++i) ASSERT_EQ(celda(i, 1), "v" + std::to_string(i));
    EXPECT_EQ(celda(LINEAS, 0), "70000");
}

// --- Decimal signs and formats ---

TEST_F(Pega, en_punto_la_primera_coma_pasa_a_punto) {
    pega_en(1, 1, "2,5|1,2,3|a,b/");
    EXPECT_EQ(datos(), "2.5|1.2,3|a.b/||/");
    EXPECT_FALSE(e.ComaDecimal);
}

TEST_F(Pega, en_coma_los_campos_quedan_como_son) {
    en_coma();
    pega_en(1, 1, "2,5|1,2,3|x/");
    EXPECT_EQ(datos(), "2,5|1,2,3|x/||/");
    EXPECT_TRUE(e.ComaDecimal);
}

TEST_F(Pega, CambiarComa_no_cambia_nada) {
    for (const bool coma : {false, true}) {
        p.separador.coma = coma;
        std::string vistos[2];
        for (const bool cambiar : {false, true}) {
            va(1, 1);
            p.portapapeles.texto = "2,5\t1.5\r\n";
            Pegar_Portapapeles(e, cambiar);
            vistos[cambiar] = datos();
        }
        EXPECT_EQ(vistos[0], vistos[1]);
    }
}

TEST_F(Pega, los_numeros_toman_la_forma_de_su_columna) {
    pon_formato(1, T_formato::Real__, 3);
    pon_formato(2, T_formato::Entero);
    for (const bool coma : {false, true}) {
        p.separador.coma = coma;
        pega_en(1, 1, "2,5|007|2,50/abc||/");
        EXPECT_EQ(celda(1, 1), "2.500");
        EXPECT_EQ(celda(1, 2), "7");
        EXPECT_EQ(celda(2, 1), "0.000");
        EXPECT_EQ(celda(2, 2), "");
    }
    EXPECT_EQ(celda(1, 3), "2,50"); // text on a comma system
}

TEST_F(Pega, las_listas_vuelven_a_su_primer_valor) {
    pon_formato(1, T_formato::ListaU);
    Lista(e, 1, Matriz<std::string>(0, {"A", "B"}));
    pega_en(1, 1, "B/C/");
    EXPECT_EQ(columna(1), (Textos{"A", "A"}));
}

TEST_F(Pega, un_formato_imposible_se_ignora_y_se_vuelve_a_dibujar) {
    pon_formato(1, T_formato::ListaU); // a list without values
    pega_en(1, 1, "B|x/");
    EXPECT_EQ(datos(), "B|x|/||/");
    EXPECT_TRUE(t().Redraw());
    EXPECT_EQ(p.mensajes.forma, Puntero::Normal);
    EXPECT_THAT(p.mensajes.vistos, IsEmpty());
}

TEST_F(Pega, mas_columnas_que_formatos_se_pegan_igual) {
    t().Cols(30);
    pega_en(1, 28, "a|b/");
    EXPECT_EQ(celda(1, 28), "a");
    EXPECT_EQ(celda(1, 29), "b");
    EXPECT_TRUE(t().Redraw());
}

TEST_F(Pega, la_etiqueta_de_filas_se_refresca) {
    Tablero_Nombres(e, "T", "Puntos", "*.tb0");
    e.Formatos[0].Bloqueada = true;
    pega_en(1, 1, "a/b/c/d/");
    EXPECT_EQ(e.etiquetas.labNumeroFilas.texto, "Puntos: Nº de filas = 4");
    EXPECT_EQ(e.etiquetas.labMensaje.texto, "Nº de Puntos = 4");
}

// --- The question ---

TEST_F(Pega, pregunta_cuando_faltan_columnas) {
    pega_en(1, 3, "a|b/c|d/");
    ASSERT_EQ(p.mensajes.vistos.size(), 1U);
    const MensajesMemoria::Visto& m = p.mensajes.vistos.front();
    EXPECT_EQ(m.titulo, "No coinciden el nº de columnas:");
    EXPECT_EQ(m.estilo, EstiloMensaje::CriticoSiNo);
    EXPECT_EQ(m.texto,
        "Hay seleccionadas  2 columnas para copiarlas en  1 columnas\r\n"
        "Si continuas se perderán  1 columnas\r\n" +
            std::string(17, ' ') + "¿Quieres seguir?");
}

TEST_F(Pega, sin_un_si_no_cambia_nada_pero_la_captura_esta_hecha) {
    pega_en(1, 3, "a|b/c|d/e|f/");
    EXPECT_EQ(datos(), "||/||/");
    EXPECT_EQ(t().Rows(), 3);
    EXPECT_EQ(seleccion(), (std::vector{1, 3, 1, 3}));
    EXPECT_EQ(e.Modificado, 0);
    EXPECT_EQ(p.pasos.capturas, 1);
    EXPECT_EQ(p.mensajes.forma, Puntero::Normal);
    EXPECT_EQ(p.separador.preguntas, 0);
}

TEST_F(Pega, con_un_si_se_pierden_los_campos_que_sobran) {
    p.mensajes.respuestas = {Respuesta::Si};
    pega_en(1, 3, "a|b/c|d/");
    EXPECT_EQ(datos(), "||a/||c/");
    EXPECT_EQ(p.pasos.capturas, 1);
}

TEST_F(Pega, la_linea_mas_ancha_cuenta) {
    pega_en(1, 2, "a/b|c|d/e/");
    EXPECT_EQ(p.mensajes.vistos.size(), 1U);
    pega_en(1, 2, "a/b|c/e/");
    EXPECT_EQ(p.mensajes.vistos.size(), 1U);
}

TEST_F(Pega, una_linea_abierta_no_cuenta_y_pierde_campos_sin_preguntar) {
    pega_en(1, 3, "a|b|c");
    EXPECT_THAT(p.mensajes.vistos, IsEmpty());
    EXPECT_EQ(datos(), "||a/||/");
}

TEST_F(Pega, un_bloque_mas_ancho_que_16_bits) {
    pega_en(1, 1, std::string(40000, '|') + "/");
    ASSERT_EQ(p.mensajes.vistos.size(), 1U);
    EXPECT_THAT(p.mensajes.vistos.front().texto,
        testing::StartsWith("Hay seleccionadas  40001 columnas para copiarlas en  3 columnas\r\n"));
}

// --- At the end ---

struct PegaAlFinal : Pega {
    void al_final(std::string_view corto) {
        p.portapapeles.texto = bloque(corto);
        mn_pegar_al_final(e, [this] {
            t().Rows(t().Rows() + 1);
            t().numera_filas();
        });
    }
};

TEST_F(PegaAlFinal, el_primer_campo_es_el_numero_de_fila) {
    al_final("9|a|b/10|c|d/");
    EXPECT_EQ(t().Rows(), 5);
    EXPECT_EQ(datos(), "||/||/a|b|/c|d|/");
    EXPECT_EQ(celda(3, 0), "9");
    EXPECT_EQ(celda(4, 0), "10");
    EXPECT_EQ(seleccion(), (std::vector{3, 1, 3, 1}));
}

TEST_F(PegaAlFinal, la_fila_anadida_se_queda_cuando_no_se_pega) {
    al_final("");
    EXPECT_EQ(t().Rows(), 4);
    EXPECT_EQ(seleccion(), (std::vector{3, 1, 3, 1})); // where it can be typed into
    al_final("1|2|3|4|5/");
    EXPECT_EQ(p.mensajes.vistos.size(), 2U);
    EXPECT_EQ(t().Rows(), 5);
    EXPECT_EQ(datos(), "||/||/||/||/");
}

} // namespace

} // namespace Qlt4_Tabla
