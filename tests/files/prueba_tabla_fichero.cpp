// SPDX-License-Identifier: MIT
// Whole tables to files and back: what comes back, what does not, what a refused file leaves alone, and what
// an interrupted save leaves behind.
#include "files/escritor_tb0.h"
#include "files/tabla_fichero.h"
#include "tests/core/memoria_que_falla.h"
#include "tests/files/bytes_a_mano.h"
#include "tests/files/mesa_ficheros.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <new>
#include <string>

namespace Qlt4_Tabla {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class PruebaFichero : public testing::Test {
protected:
    PruebaFichero() {
        m.da_formatos(3);
        m.pon_tamano(3, 3);
        m.escribe(1, {"uno", "dos"});
        m.escribe(2, {"1.5", "año €"});
        Tablero_establece_Formato(m.e);
        m.t().TextMatrix(0, 0, "Esquina");
        m.p.registro.clear();
    }

    /// A fresh table that reads what the first one wrote.
    MesaFicheros& otra() {
        static_cast<void>(m.graba("t"));
        n.fichero("t") = m.fichero("t");
        return n;
    }

    MesaFicheros m;
    MesaFicheros n;
};

TEST_F(PruebaFichero, una_tabla_vuelve_igual_en_otro_programa) {
    n.da_formatos(3);
    EXPECT_EQ(otra().lee("t"), 0);
    EXPECT_EQ(n.textos(), "Esquina|A|B/1|uno|1.5/2|dos|año €/");
    EXPECT_EQ(n.textos(), m.textos());
}

TEST_F(PruebaFichero, guardar_muestra_el_reloj_y_nada_mas) {
    m.e.Modificado = 1;
    EXPECT_EQ(m.graba("t"), 0);
    EXPECT_THAT(m.p.registro, ElementsAre("puntero 11", "puntero 0"));
    EXPECT_EQ(m.e.Modificado, 0);
}

TEST_F(PruebaFichero, de_una_tabla_larga_se_dice_cuanto_va) {
    m.pon_tamano(3, 10'001);
    EXPECT_EQ(m.graba("t"), 0);
    EXPECT_EQ(m.p.registro.size(), 102U); // the hourglass, each per cent, the pointer
    EXPECT_EQ(m.p.registro[50], "avance Guardando la tabla 50");
    n.fichero("t") = m.fichero("t");
    EXPECT_EQ(n.lee("t"), 0);
    EXPECT_EQ(n.p.registro.front(), "puntero 11");
    EXPECT_THAT(n.p.registro, testing::Contains("avance Leyendo la tabla 50"));
    EXPECT_EQ(n.p.registro.back(), "puntero 0");
}

TEST_F(PruebaFichero, si_el_disco_falla_a_media_lectura_la_tabla_se_queda_como_estaba) {
    m.pon_tamano(3, 50'000);
    static_cast<void>(m.graba("t"));
    const std::string antes = m.foto_entera();
    for (const std::uint64_t legibles : {0U, 100U, 500'000U}) {
        m.p.ficheros.legibles = legibles;
        EXPECT_EQ(m.lee("t"), 57) << legibles;
        EXPECT_EQ(m.foto_entera(), antes) << legibles;
    }
    EXPECT_EQ(m.cambios, 0);
}

TEST_F(PruebaFichero, sin_memoria_la_tabla_se_queda_como_estaba_o_esta_leida_entera) {
    m.pon_tamano(3, 300);
    m.escribe(1, {"uno", std::string(300, 'L')});
    static_cast<void>(m.graba("t"));
    const std::string leidos = m.textos();
    m.t().color_fondo({0, 1, 0, 2}, 0xFF);
    int sin_cambio = 0;
    for (long n = 0;; ++n) {
        m.t().Rows(2);
        m.t().TextMatrix(1, 1, "vieja");
        const std::string antes = m.textos();
        int numero = 7;
        falla_tras(n);
        try {
            numero = m.lee("t");
        } catch (const std::bad_alloc&) { // the members say that error 7
        }
        falla_tras(-1);
        if (numero == 0) break;
        ASSERT_EQ(numero, 7) << n;
        if (m.textos() == antes)
            ++sin_cambio;
        else
            ASSERT_EQ(m.textos(), leidos) << n;
        ASSERT_TRUE(m.t().tiene_fondo(0, 2)) << n;
    }
    EXPECT_GT(sin_cambio, 10);
    EXPECT_EQ(m.textos(), leidos);
}

TEST_F(PruebaFichero, la_cabecera_conserva_sus_colores_y_su_alto) {
    static_cast<void>(m.graba("t"));
    m.t().color_texto({0, 1, 0, 1}, 0xFF);
    m.t().color_fondo({0, 2, 0, 2}, 0);
    m.t().color_fondo({1, 1, 1, 1}, 0xFF00);
    m.t().RowHeight(0, 700);
    EXPECT_EQ(m.lee("t"), 0);
    EXPECT_EQ(m.t().color_texto(0, 1), 0xFF);
    EXPECT_TRUE(m.t().tiene_fondo(0, 2));
    EXPECT_FALSE(m.t().tiene_fondo(1, 1));
    EXPECT_EQ(m.t().RowHeight(0), 700);
}

TEST_F(PruebaFichero, leer_lleva_a_la_primera_celda_sin_suceso) {
    otra();
    n.pon_tamano(8, 9);
    n.t().selecciona(5, 5, 7, 6);
    n.t().TopRow(6);
    n.e.Modificado = 1;
    n.p.registro.clear();
    EXPECT_EQ(n.lee("t"), 0);
    EXPECT_THAT(n.p.registro, ElementsAre("puntero 11", "puntero 0"));
    EXPECT_EQ(n.t().seleccion(), (Bloque{1, 1, 1, 1}));
    EXPECT_EQ(n.t().TopRow(), 1);
    EXPECT_EQ(n.e.Modificado, 0);
    EXPECT_TRUE(n.t().Redraw());
    EXPECT_EQ(n.cambios, 1);
}

TEST_F(PruebaFichero, los_avisos_llegan_juntos_tras_leer) {
    otra();
    n.pon_tamano(3, 3);
    static_cast<void>(n.p.vista.recoge());
    EXPECT_EQ(n.lee("t"), 0);
    EXPECT_THAT(n.p.vista.recoge(), testing::Not(IsEmpty()));
    EXPECT_THAT(n.p.vista.recoge(), IsEmpty());
}

TEST_F(PruebaFichero, una_tabla_de_solo_cabecera_y_una_de_una_celda) {
    m.t().Rows(1);
    EXPECT_EQ(otra().lee("t"), 0);
    EXPECT_EQ(n.t().Rows(), 1);
    EXPECT_EQ(n.t().seleccion(), (Bloque{0, 1, 0, 1}));
    m.t().Cols(1);
    EXPECT_EQ(otra().lee("t"), 0);
    EXPECT_EQ(n.textos(), "Esquina/");
    EXPECT_EQ(n.t().seleccion(), (Bloque{0, 0, 0, 0}));
}

TEST_F(PruebaFichero, los_colores_de_las_filas_no_vuelven) {
    otra();
    n.pon_tamano(3, 3);
    n.t().color_fondo(Bloque{1, 1, 2, 2}, 255);
    EXPECT_EQ(n.lee("t"), 0);
    EXPECT_FALSE(n.t().tiene_fondo(1, 1));
}

TEST_F(PruebaFichero, los_numeros_de_fila_se_escriben_de_nuevo) {
    m.t().TextMatrix(1, 0, "siete");
    EXPECT_EQ(otra().lee("t"), 0);
    EXPECT_EQ(n.celda(1, 0), "1");
}

TEST_F(PruebaFichero, solo_viaja_el_formato_25) {
    m.e.Formatos[25] = {.Nombre = "Z", .Bloqueada = true, .Longitud = 7, .Formato = 4, .Alineacion = 2};
    m.e.Formatos[1].Longitud = 99;
    n.da_formatos(3);
    const T_FormatoColumna suyo = n.e.Formatos[1];
    EXPECT_EQ(otra().lee("t"), 0);
    EXPECT_EQ(n.e.Formatos[25], m.e.Formatos[25]);
    EXPECT_EQ(n.e.Formatos_por_defecto[25], T_FormatoColumna{});
    EXPECT_EQ(n.e.Formatos[1], suyo);
}

TEST_F(PruebaFichero, el_formato_25_se_aplica_a_la_columna_25) {
    m.pon_tamano(26, 2);
    m.t().TextMatrix(1, 25, "2.5");
    m.e.Formatos[25] = {.Nombre = "Z", .Longitud = 10, .Formato = 2, .Decimales = 3};
    EXPECT_EQ(otra().lee("t"), 0);
    EXPECT_EQ(n.celda(0, 25), "Z");
    EXPECT_EQ(n.celda(1, 25), "2.500");
}

TEST_F(PruebaFichero, las_columnas_que_nadie_dio_se_ven) {
    n.da_formatos(2);
    n.e.Formatos_por_defecto[2].Longitud = 20; // given, without a name: left as it is
    EXPECT_EQ(otra().lee("t"), 0);
    EXPECT_EQ(n.celda(0, 2), "");
    EXPECT_EQ(n.t().ColWidth(2), 0);
    n.e.Formatos_por_defecto[2] = {};
    EXPECT_EQ(n.lee("t"), 0);
    EXPECT_EQ(n.celda(0, 1), "A");
    EXPECT_EQ(n.celda(0, 2), "Col 2");
    EXPECT_EQ(n.t().ColWidth(2), 1200);
    EXPECT_EQ(n.celda(2, 2), "año €");
}

TEST_F(PruebaFichero, los_formatos_se_aplican_a_lo_leido) {
    n.da_formatos(3);
    n.pon_formato(2, T_formato::Real__, 3);
    EXPECT_EQ(otra().lee("t"), 0);
    EXPECT_EQ(n.celda(1, 2), "1.500");
    EXPECT_EQ(n.celda(2, 2), "0.000");
    EXPECT_EQ(n.e.etiquetas.labNumeroFilas.texto, "Puntos: Nº de filas = 2");
}

TEST_F(PruebaFichero, una_lista_sin_valores_deja_las_celdas_como_se_leyeron) {
    n.da_formatos(3);
    n.pon_formato(1, T_formato::ListaU);
    n.e.Modificado = 1;
    EXPECT_EQ(otra().lee("t"), 9);
    EXPECT_EQ(n.celda(2, 1), "dos");
    EXPECT_EQ(n.celda(2, 2), "año €");
    EXPECT_TRUE(n.t().Redraw());
    EXPECT_EQ(n.t().seleccion(), (Bloque{1, 1, 1, 1}));
    EXPECT_EQ(n.e.Modificado, 0);
}

TEST_F(PruebaFichero, las_celdas_de_una_lista_vuelven_a_su_primer_valor) {
    n.da_formatos(3);
    n.pon_formato(1, T_formato::ListaU);
    n.e.listas[1].Col = Matriz<std::string>(0, 0);
    n.e.listas[1].Col[0] = "cero";
    EXPECT_EQ(otra().lee("t"), 0);
    EXPECT_EQ(n.celda(1, 1), "cero");
}

// What cannot be read

TEST_F(PruebaFichero, un_fichero_que_falta_no_se_hace) {
    const std::string antes = m.foto_entera();
    EXPECT_EQ(m.lee("nada"), 53);
    EXPECT_EQ(m.lee(""), 75);
    EXPECT_EQ(m.lee("/otra/t"), 76);
    EXPECT_EQ(m.foto_entera(), antes);
    EXPECT_THAT(m.p.ficheros.contenidos, IsEmpty());
    EXPECT_EQ(m.cambios, 0);
}

TEST_F(PruebaFichero, un_registro_malo_no_cambia_nada) {
    m.e.Modificado = 1;
    m.t().selecciona(2, 2, 1, 1);
    static_cast<void>(otra());
    m.e.Modificado = 1;
    const std::string bueno = m.fichero("t");
    const std::string antes = m.foto_entera();
    m.fichero("t") = bueno.substr(0, bueno.size() - 1);
    EXPECT_EQ(m.lee("t"), 62);
    EXPECT_EQ(m.lee_propia("t"), 62);
    m.fichero("t") = bytes("06 00 'Puntos' 1A 00 00 00 00*500"); // 27 columns
    EXPECT_EQ(m.lee("t"), 9);
    EXPECT_EQ(m.lee_propia("t"), 9);
    EXPECT_EQ(m.foto_entera(), antes);
    EXPECT_TRUE(m.t().Redraw());
}

TEST_F(PruebaFichero, el_reloj_se_quita_tambien_tras_un_error) {
    EXPECT_EQ(m.lee("nada"), 53);
    EXPECT_EQ(m.graba(""), 75);
    EXPECT_THAT(m.p.registro, ElementsAre("puntero 11", "puntero 0", "puntero 11", "puntero 0"));
}

TEST_F(PruebaFichero, otro_subtitulo_se_rechaza_y_se_dice) {
    MesaFicheros ejes("puntos"); // capitals count
    ejes.fichero("/casa/t") = (otra(), m.fichero("t"));
    ejes.da_formatos(3);
    ejes.pon_tamano(4, 4);
    const std::string antes = ejes.foto_entera();
    EXPECT_EQ(ejes.lee_propia("/casa/t"), 0);
    EXPECT_THAT(ejes.p.registro,
        ElementsAre("puntero 11", "puntero 0", "mensaje|0||El fichero /casa/t\r\nno es puntos"));
    EXPECT_EQ(ejes.foto_entera(), antes);
    EXPECT_EQ(ejes.cambios, 0);
    EXPECT_EQ(ejes.lee("/casa/t"), 0); // the host's own reading does not check
    EXPECT_EQ(ejes.celda(1, 1), "uno");
}

TEST_F(PruebaFichero, los_subtitulos_se_comparan_enteros_y_sin_blancos_alrededor) {
    const std::string resto = bytes(" 00*8 01 00 01 00 00 00 00*4 01 00 01 00 00 00 00*4 00 00 00*416");
    m.fichero("a") = bytes("0A 00 20 20 'Puntos' 20 20") + resto;
    m.fichero("b") = bytes("05 00 'Punto'") + resto;
    EXPECT_EQ(m.lee_propia("b"), 0);
    EXPECT_EQ(m.cambios, 0);
    EXPECT_EQ(m.lee_propia("a"), 0);
    EXPECT_EQ(m.cambios, 1);
}

TEST_F(PruebaFichero, un_subtitulo_con_letras_de_fuera_conoce_su_fichero) {
    MesaFicheros omega("Ωs");
    omega.pon_tamano(2, 2);
    EXPECT_EQ(omega.graba("t"), 0);
    EXPECT_EQ(omega.lee_propia("t"), 0);
    EXPECT_EQ(omega.cambios, 1);
}

TEST_F(PruebaFichero, sin_subtitulo_se_abre_lo_que_no_lo_tiene) {
    MesaFicheros sin_nombre("");
    sin_nombre.pon_tamano(2, 2);
    EXPECT_EQ(sin_nombre.graba("t"), 0);
    EXPECT_EQ(sin_nombre.lee_propia("t"), 0);
    EXPECT_EQ(sin_nombre.cambios, 1);
}

// What cannot be written

TEST_F(PruebaFichero, guardar_deja_lo_que_un_fichero_mas_largo_tenia_detras) {
    EXPECT_EQ(m.graba("t"), 0);
    const std::string registro = m.fichero("t");
    m.fichero("t") += "detrás";
    m.escribe(1, {"UNO"});
    EXPECT_EQ(m.graba("t"), 0);
    EXPECT_EQ(m.fichero("t").size(), registro.size() + 7);
    EXPECT_TRUE(m.fichero("t").ends_with("detrás"));
    EXPECT_EQ(m.lee("t"), 0);
    EXPECT_EQ(m.celda(1, 1), "UNO");
}

TEST_F(PruebaFichero, lo_que_no_se_puede_escribir_no_toca_el_fichero) {
    m.fichero("t") = "viejo";
    m.e.Modificado = 1;
    m.t().Cols(27);
    EXPECT_EQ(m.graba("t"), 9);
    EXPECT_EQ(m.graba("/otra/t"), 9); // said before the file is looked for
    m.t().Cols(3);
    m.t().TextMatrix(1, 1, std::string(65536, 'x'));
    EXPECT_EQ(m.graba("t"), 5);
    EXPECT_EQ(m.fichero("t"), "viejo");
    EXPECT_EQ(m.p.ficheros.pasos, 0);
    EXPECT_EQ(m.e.Modificado, 1);
}

TEST_F(PruebaFichero, interrumpido_en_cada_paso_queda_el_viejo_y_sigue_sin_guardar) {
    EXPECT_EQ(m.graba("t"), 0);
    const std::string viejo = m.fichero("t");
    const int pasos = m.p.ficheros.pasos;
    m.escribe(1, {"UNO"});
    for (int paso = 1; paso <= pasos; ++paso) {
        m.e.Modificado = 1;
        if (paso % 2 == 0)
            m.p.ficheros.interrumpe_en_paso(paso);
        else
            m.p.ficheros.falla_en_paso(paso, 61);
        EXPECT_EQ(m.graba("t"), paso % 2 == 0 ? 57 : 61);
        EXPECT_EQ(m.fichero("t"), viejo);
        EXPECT_EQ(m.e.Modificado, 1);
    }
    EXPECT_EQ(m.graba("t"), 0);
    EXPECT_NE(m.fichero("t"), viejo);
}

TEST_F(PruebaFichero, los_comienzos_de_los_mensajes_nombran_el_subtitulo) {
    EXPECT_EQ(prefijo_al_leer(m.e), "Error al leer la Tabla de Puntos\r\nError nº=");
    EXPECT_EQ(prefijo_al_guardar(m.e), "Error al guardar la Tabla de Puntos\r\nError nº=");
}

} // namespace

} // namespace Qlt4_Tabla
