// SPDX-License-Identifier: MIT
// Copy commands: every byte of the block, what is enabled, selected, shown and said.
#include "tests/clipboard/mesa_portapapeles.h"

#include <random>

namespace Qlt4_Tabla {

namespace {

using testing::ElementsAre;

struct Copia : MesaPortapapeles {};

const std::vector<std::string> SOLO_RELOJ{"puntero 11", "puntero 0"};

// --- The selection ---

TEST_F(Copia, una_celda_es_una_linea) {
    tabla(3, 3);
    pon(1, 1, "3.25");
    EXPECT_EQ(copia(), "3.25\r\n");
    en_coma();
    EXPECT_EQ(copia(), "3,25\r\n");
    EXPECT_TRUE(e.ComaDecimal);
}

TEST_F(Copia, un_bloque_va_por_filas_con_TAB_entre_celdas) {
    tabla(4, 5);
    pega_en(1, 1, "a|b|c|d/e|f|g|h/i|j|k|l/");
    marca(2, 2, 3, 4);
    EXPECT_EQ(copia(), "f\tg\th\r\nj\tk\tl\r\n");
}

TEST_F(Copia, las_esquinas_valen_en_cualquier_orden) {
    tabla(4, 4);
    pega_en(1, 1, "a|b|c/d|e|f/g|h|i/");
    for (const auto& [fila, col, fila_sel, col_sel] :
        {std::array{1, 1, 2, 2}, std::array{2, 2, 1, 1}, std::array{1, 2, 2, 1}, std::array{2, 1, 1, 2}}) {
        marca(fila, col, fila_sel, col_sel);
        EXPECT_EQ(copia(), "a\tb\r\nd\te\r\n");
        EXPECT_EQ(seleccion(), (std::vector{fila, col, fila_sel, col_sel}));
    }
}

TEST_F(Copia, solo_cambia_el_primer_punto_y_solo_en_coma) {
    tabla(3, 4);
    pega_en(1, 1, "1.2.3|.|x.y");
    t().TextMatrix(1, 1, "1.2.3");
    marca(1, 1, 1, 3);
    EXPECT_EQ(copia(), "1.2.3\t.\tx.y\r\n");
    en_coma();
    EXPECT_EQ(copia(), "1,2.3\t,\tx,y\r\n");
}

TEST_F(Copia, celdas_vacias_guardan_sus_TAB) {
    tabla(3, 4);
    marca(1, 1, 2, 3);
    EXPECT_EQ(copia(), "\t\t\r\n\t\t\r\n");
}

TEST_F(Copia, lo_que_hay_dentro_sale_tal_cual) {
    tabla(3, 3);
    pon(1, 1, "a\tb\r\n\"c\" ñ");
    pon(1, 2, std::string(1000, 'z'));
    marca(1, 1, 1, 2);
    EXPECT_EQ(copia(), "a\tb\r\n\"c\" ñ\t" + std::string(1000, 'z') + "\r\n");
}

TEST_F(Copia, cabecera_y_numeros_de_fila_tambien) {
    tabla(3, 2);
    pon(0, 1, "X");
    pon(2, 1, "7");
    marca(0, 0, 2, 1);
    EXPECT_EQ(copia(), "\tX\r\n1\t\r\n2\t7\r\n");
}

TEST_F(Copia, los_modos_0_y_1_son_iguales_y_otro_deja_las_celdas_fuera) {
    tabla(3, 3);
    pega_en(1, 1, "1.5|2/3|4/");
    marca(1, 1, 2, 2);
    en_coma();
    EXPECT_EQ(copia(0), "1,5\t2\r\n3\t4\r\n");
    EXPECT_EQ(copia(1), "1,5\t2\r\n3\t4\r\n");
    EXPECT_EQ(copia(2), "\t\r\n\t\r\n");
    EXPECT_EQ(copia(-1), "\t\r\n\t\r\n");
}

TEST_F(Copia, activa_las_entradas_de_pegar_y_no_dice_nada) {
    tabla(3, 3);
    prohibe_pegar();
    const int avisos = p.marco.veces_menus;
    EXPECT_TRUE(Copiar_Seleccion(e, 0));
    EXPECT_TRUE(se_puede_pegar());
    EXPECT_GT(p.marco.veces_menus, avisos);
    EXPECT_EQ(p.registro, SOLO_RELOJ);
    EXPECT_EQ(e.Modificado, 0);
}

TEST_F(Copia, un_portapapeles_cerrado_no_dice_nada_y_devuelve_el_puntero) {
    tabla(3, 3);
    prohibe_pegar();
    p.portapapeles.texto = "viejo";
    p.portapapeles.error_al_escribir = 521;
    const std::string antes = datos();
    EXPECT_FALSE(Copiar_Seleccion(e, 0));
    EXPECT_EQ(copiado(), "viejo");
    EXPECT_EQ(datos(), antes);
    EXPECT_TRUE(se_puede_pegar());
    EXPECT_EQ(p.registro, SOLO_RELOJ);
}

TEST_F(Copia, el_separador_se_pregunta_cada_vez) {
    tabla(3, 3);
    pon(1, 1, "1.5");
    EXPECT_EQ(copia(), "1.5\r\n");
    en_coma();
    EXPECT_EQ(copia(), "1,5\r\n");
    p.separador.coma = false;
    EXPECT_EQ(copia(), "1.5\r\n");
    EXPECT_FALSE(e.ComaDecimal);
}

TEST_F(Copia, un_mensaje_a_la_vista_acaba) {
    tabla(3, 3);
    muestra_mensaje(e, "aviso");
    Copiar_Seleccion(e, 0);
    EXPECT_FALSE(e.etiquetas.labMensaje.visible);
}

TEST_F(Copia, un_bloque_largo_llega_entero) {
    constexpr int FILAS = 40000; // more than 16 bits count
    tabla(FILAS + 1, 3);
    std::string esperado;
    for (int fila = 1; fila <= FILAS; ++fila) {
        const std::string n = std::to_string(fila);
        pon(fila, 1, n);
        pon(fila, 2, fila % 100 == 0 ? std::string(300, 'y') : "");
        esperado += n + "\t" + (fila % 100 == 0 ? std::string(300, 'y') : "") + "\r\n";
    }
    marca(1, 1, FILAS, 2);
    EXPECT_TRUE(copia() == esperado);
}

TEST_F(Copia, cualquier_bloque_de_una_tabla_al_azar_sale_como_dice_la_regla) {
    std::mt19937 azar(7);
    const auto menor = [&azar](int n) { return std::uniform_int_distribution<int>(0, n - 1)(azar); };
    for (int vez = 0; vez < 40; ++vez) {
        tabla(2 + menor(30), 2 + menor(30));
        for (int n = menor(600); n > 0; --n) {
            std::string texto;
            for (int i = menor(menor(10) == 0 ? 300 : 24); i > 0; --i) texto += "0123456789-.x"[menor(13)];
            pon(menor(t().Rows()), menor(t().Cols()), texto);
        }
        const int fila1 = menor(t().Rows());
        const int col1 = menor(t().Cols());
        const Bloque b{fila1, col1, fila1 + menor(t().Rows() - fila1), col1 + menor(t().Cols() - col1)};
        for (const bool coma : {false, true}) {
            std::string esperado;
            for (int f = b.fila1; f <= b.fila2; ++f) {
                for (int c = b.col1; c <= b.col2; ++c) {
                    std::string texto(t().TextMatrix(f, c));
                    if (const auto punto = texto.find('.'); coma && punto != std::string::npos)
                        texto[punto] = ',';
                    esperado += texto + (c < b.col2 ? "\t" : "\r\n");
                }
            }
            ASSERT_TRUE(texto_de_bloque(t(), b, FormaCelda::Sola, coma).vista() == esperado) << vez;
        }
    }
}

TEST_F(Copia, las_filas_de_fuera_de_la_rejilla_no_aportan_nada) {
    tabla(3, 3);
    pega_en(1, 1, "a|b/c|d/");
    EXPECT_EQ(texto_de_bloque(t(), {2, 1, 4, 2}, FormaCelda::Sola, false).vista(), "c\td\r\n\t\r\n\t\r\n");
}

TEST_F(Copia, una_rejilla_sin_celdas_no_aporta_nada) {
    EXPECT_EQ(copia(), "\r\n");
    EXPECT_EQ(texto_de_bloque(t(), {0, 0, 1, 1}, FormaCelda::Sola, false).vista(), "\t\r\n\t\r\n");
}

// --- Everything ---

TEST_F(Copia, todo_sale_doblado_en_punto) {
    tabla(3, 3);
    pega_en(1, 1, "1.5|x/1.2.3|-7/");
    Copiar_Tabla(e);
    EXPECT_EQ(copiado(), "1.51,5\txx\r\n1.2.31,2.3\t-7-7\r\n");
}

TEST_F(Copia, todo_sale_doblado_en_coma) {
    tabla(3, 3);
    pega_en(1, 1, "1.5|x/1.2.3|-7/");
    en_coma();
    Copiar_Tabla(e);
    EXPECT_EQ(copiado(), "1,51,5\txx\r\n1,2.31,2.3\t-7-7\r\n");
}

TEST_F(Copia, todo_guarda_los_TAB_de_las_filas_vacias) {
    tabla(3, 4);
    pon(2, 3, "z");
    Copiar_Tabla(e);
    EXPECT_EQ(copiado(), "\t\t\r\n\t\tzz\r\n");
}

TEST_F(Copia, todo_acaba_en_la_celda_recordada_y_lo_dice) {
    tabla(5, 4);
    prohibe_pegar();
    marca(3, 2, 4, 3);
    Copiar_Tabla(e);
    EXPECT_EQ(seleccion(), (std::vector{3, 2, 3, 2}));
    EXPECT_TRUE(se_puede_pegar());
    EXPECT_THAT(p.registro,
        ElementsAre("puntero 11", "puntero 0", "mensaje|64|Copiar todo|Filas y columnas copiadas"));
    EXPECT_EQ(e.Modificado, 0);
}

TEST_F(Copia, con_cabecera_van_fila_0_y_columna_0_sin_mensaje) {
    tabla(3, 3);
    pon(0, 0, "N");
    pon(0, 1, "X.Y");
    pon(0, 2, "B");
    pon(1, 1, "1.5");
    prohibe_pegar();
    marca(1, 1, 2, 2);
    mn_copiar_todo_y_cabezera(e);
    EXPECT_EQ(copiado(), "NN\tX.YX,Y\tBB\r\n11\t1.51,5\t\r\n22\t\t\r\n");
    EXPECT_EQ(seleccion(), (std::vector{1, 1, 1, 1}));
    EXPECT_TRUE(se_puede_pegar());
    EXPECT_EQ(p.registro, SOLO_RELOJ);
}

TEST_F(Copia, una_tabla_de_solo_cabecera_da_texto_vacio_o_una_linea) {
    tabla(1, 3);
    pon(0, 1, "A");
    p.portapapeles.texto = "viejo";
    prohibe_pegar();
    Copiar_Tabla(e);
    EXPECT_EQ(copiado(), "");
    EXPECT_TRUE(se_puede_pegar());
    EXPECT_EQ(p.mensajes.vistos.size(), 1U);
    mn_copiar_todo_y_cabezera(e);
    EXPECT_EQ(copiado(), "\tAA\t\r\n");
}

TEST_F(Copia, una_tabla_sin_columnas_de_datos_da_texto_vacio) {
    tabla(3, 1);
    p.portapapeles.texto = "viejo";
    Copiar_Tabla(e);
    EXPECT_EQ(copiado(), "");
    mn_copiar_todo_y_cabezera(e);
    EXPECT_EQ(copiado(), "\r\n11\r\n22\r\n");
}

TEST_F(Copia, un_error_al_copiar_todo_sale_y_deja_la_tabla_como_estaba) {
    tabla(4, 4);
    prohibe_pegar();
    marca(2, 2, 3, 3);
    p.portapapeles.texto = "viejo";
    p.portapapeles.error_al_escribir = 521;
    EXPECT_EQ(error_de([&] { Copiar_Tabla(e); }), 521);
    EXPECT_EQ(error_de([&] { mn_copiar_todo_y_cabezera(e); }), 521);
    EXPECT_EQ(copiado(), "viejo");
    EXPECT_EQ(seleccion(), (std::vector{2, 2, 3, 3}));
    EXPECT_FALSE(se_puede_pegar());
    EXPECT_THAT(p.registro, ElementsAre("puntero 11", "puntero 0", "puntero 11", "puntero 0"));
}

} // namespace

} // namespace Qlt4_Tabla
