// SPDX-License-Identifier: MIT
// The layout of the columns in the settings store: keys and texts as written, defaults, values that do not
// convert, and what is applied to the grid.
#include "core/ajustes_formatos.h"
#include "core/formatos.h"
#include "tests/base/error_de.h"
#include "tests/core/mesa.h"

#include <gtest/gtest.h>

#include <limits>

using namespace Qlt4_Tabla;

namespace {

constexpr const char* APLI = "Plano";
constexpr const char* CAP = "Puntos";

struct Ajustes_de_formatos : testing::Test, Mesa {
    Ajustes_de_formatos() { pon_tamano(4, 4); }

    T_FormatoColumna& f(int col) { return formato(e, col); }

    void guarda(const std::string& clave, const std::string& valor) {
        p.ajustes.valores[{APLI, CAP, clave}] = valor;
    }

    const std::string& guardado(const std::string& clave) { return p.ajustes.valores.at({APLI, CAP, clave}); }

    void graba() { Tablero_Graba_Formato_Win(e, APLI, CAP); }

    void lee() { Tablero_Lee_Formato_Win(e, APLI, CAP); }
};

const T_FormatoColumna RARO{.Nombre = " Cota\t\"ñ\" ",
    .Invisible = true,
    .Bloqueada = true,
    .Longitud = 17,
    .Formato = 2,
    .Decimales = 6,
    .Alineacion = 1,
    .Accion = 3};

} // namespace

// --- Writing ---

TEST_F(Ajustes_de_formatos, se_escriben_datos_extension_y_los_26_formatos_en_su_orden) {
    e.nombres.Tablero_Pon_Nombre(3, true, "*.pt");
    f(0) = RARO;
    p.registro.clear();
    graba();
    ASSERT_EQ(p.registro.size(), 2U + 26U * 8U);
    const std::vector<std::string> primeras(p.registro.begin(), p.registro.begin() + 11);
    EXPECT_EQ(primeras,
        (std::vector<std::string>{"ajuste Plano|Puntos|Datos=True", "ajuste Plano|Puntos|Extension=*.pt",
            "ajuste Plano|Puntos|NombreN 0= Cota\t\"ñ\" ", "ajuste Plano|Puntos|VisibleV 0=True",
            "ajuste Plano|Puntos|BloqueaB 0=True", "ajuste Plano|Puntos|FormatoF 0=2",
            "ajuste Plano|Puntos|DecimalesD 0=6", "ajuste Plano|Puntos|LongitudL 0=17",
            "ajuste Plano|Puntos|AlineacA 0=1", "ajuste Plano|Puntos|AccionC 0=3",
            "ajuste Plano|Puntos|NombreN 1="}));
    EXPECT_EQ(p.registro.back(), "ajuste Plano|Puntos|AccionC 25=0");
}

TEST_F(Ajustes_de_formatos, se_escriben_los_formatos_de_trabajo_y_no_los_del_anfitrion) {
    FormatoColumnas(e, 2, false, false, T_formato::Alfanm, 0, T_Alineacion::Izqda, T_Accion::Nada__, 10, "A");
    f(2).Nombre = "B";
    f(2).Longitud = -1;
    graba();
    EXPECT_EQ(guardado("NombreN 2"), "B");
    EXPECT_EQ(guardado("LongitudL 2"), "-1");
    EXPECT_EQ(guardado("VisibleV 2"), "False");
}

TEST_F(Ajustes_de_formatos, los_errores_del_almacen_llegan_a_quien_escribe_y_no_queda_nada) {
    p.ajustes.falla(75, 100);
    EXPECT_EQ(error_de([&] { graba(); }), 75);
    EXPECT_TRUE(p.ajustes.valores.empty());
}

// --- Reading ---

TEST_F(Ajustes_de_formatos, lo_escrito_vuelve_en_los_26_formatos) {
    constexpr std::int16_t MENOR = std::numeric_limits<std::int16_t>::min();
    constexpr std::int16_t MAYOR = std::numeric_limits<std::int16_t>::max();
    for (int col = 0; col < MAX_COLUMNAS; ++col) {
        f(col) = RARO;
        f(col).Nombre += std::to_string(col);
        f(col).Longitud = static_cast<std::int16_t>(col);
        f(col).Bloqueada = col % 2 == 0;
        f(col).Decimales = col % 3 == 0 ? MENOR : MAYOR;
    }
    const auto escritos = e.Formatos;
    graba();
    e.Formatos = {};
    lee();
    for (int col = 1; col < MAX_COLUMNAS; ++col) EXPECT_EQ(f(col), escritos[static_cast<std::size_t>(col)]);
    // Applying forces column 0 to plain text.
    EXPECT_EQ(f(0).Nombre, escritos[0].Nombre);
    EXPECT_EQ(f(0).Formato, 4);
}

TEST_F(Ajustes_de_formatos, otra_seccion_es_otra_forma) {
    f(1).Nombre = "A";
    graba();
    f(1).Nombre = "B";
    Tablero_Graba_Formato_Win(e, APLI, "puntos");
    lee();
    EXPECT_EQ(f(1).Nombre, "A");
}

TEST_F(Ajustes_de_formatos, una_seccion_sin_escribir_deja_los_formatos_y_los_aplica) {
    pon_formato(1, T_formato::Real__, 2);
    f(1).Longitud = 5;
    escribe(1, {"1,5"});
    lee();
    EXPECT_EQ(celda(1, 1), "1.50");
    EXPECT_EQ(t().ColWidth(1), 600);
    EXPECT_EQ(e.nombres.extension(), "");
}

TEST_F(Ajustes_de_formatos, sin_claves_de_columna_cada_una_toma_lo_inicial) {
    for (int col = 0; col < MAX_COLUMNAS; ++col) f(col) = RARO;
    guarda("Datos", "True");
    lee();
    for (int col = 1; col < MAX_COLUMNAS; ++col)
        EXPECT_EQ(f(col),
            (T_FormatoColumna{
                .Nombre = "Col  " + std::to_string(col), .Longitud = 10, .Formato = 4, .Decimales = 3}));
    EXPECT_EQ(f(3).Nombre, "Col  3");
    EXPECT_EQ(e.nombres.extension(), "*.Tb0");
    EXPECT_EQ(celda(0, 3), "Col  3");
    EXPECT_EQ(t().ColWidth(3), 1200);
}

TEST_F(Ajustes_de_formatos, los_formatos_del_anfitrion_no_se_tocan) {
    Formatcol(e, 1, "-", "-", 4, 0, 0, 8, "Suyo", 0);
    f(1).Nombre = "Otro";
    graba();
    lee();
    EXPECT_EQ(f(1).Nombre, "Otro");
    Tablero_Formato_por_defecto(e);
    EXPECT_EQ(f(1).Nombre, "Suyo");
}

TEST_F(Ajustes_de_formatos, un_valor_que_no_se_entiende_deja_su_campo_y_se_sigue) {
    guarda("Datos", "True");
    guarda("NombreN 2", "Zinc");
    guarda("FormatoF 2", "real");
    guarda("DecimalesD 2", "40000"); // beyond 16 bits
    guarda("VisibleV 2", "quizá");
    guarda("LongitudL 2", "12");
    f(2) = RARO;
    lee();
    EXPECT_EQ(f(2),
        (T_FormatoColumna{
            .Nombre = "Zinc", .Invisible = true, .Longitud = 12, .Formato = 2, .Decimales = 6}));
}

TEST_F(Ajustes_de_formatos, datos_acepta_las_palabras_y_los_numeros_de_un_booleano) {
    struct Caso {
        const char* texto;
        bool hay;
    };
    for (const auto& [texto, hay] : {Caso{"True", true}, Caso{" verdadero ", true}, Caso{"-1", true},
             Caso{"2", true}, Caso{"0,5", true}, Caso{"False", false}, Caso{"FALSO", false}, Caso{"0", false},
             Caso{"", false}, Caso{"Sí", false}, Caso{"1E999", false}}) {
        guarda("Datos", texto);
        f(1).Nombre = "Antes";
        lee();
        EXPECT_EQ(f(1).Nombre, hay ? "Col  1" : "Antes") << texto;
    }
}

TEST_F(Ajustes_de_formatos, los_enteros_se_redondean_al_par) {
    guarda("Datos", "True");
    guarda("LongitudL 1", "2.5");
    guarda("LongitudL 2", "3,5");
    guarda("LongitudL 3", " 7 ");
    lee();
    EXPECT_EQ(f(1).Longitud, 2);
    EXPECT_EQ(f(2).Longitud, 4);
    EXPECT_EQ(f(3).Longitud, 7);
}

TEST_F(Ajustes_de_formatos, la_extension_se_guarda_sin_blancos_y_cortada) {
    guarda("Datos", "True");
    guarda("Extension", "*.puntos");
    lee();
    EXPECT_EQ(e.nombres.extension(), "*.pun");
    graba();
    EXPECT_EQ(guardado("Extension"), "*.pun");
}

TEST_F(Ajustes_de_formatos, si_no_se_pueden_aplicar_calla_y_se_ve_la_tabla) {
    guarda("Datos", "True");
    guarda("LongitudL 2", "300"); // 36000 twips
    lee();
    EXPECT_TRUE(t().Redraw());
    EXPECT_EQ(f(2).Longitud, 300);
    EXPECT_TRUE(p.registro.empty());
    pon_tamano(27, 4);
    f(2).Longitud = 3;
    guarda("LongitudL 2", "3");
    lee();
    EXPECT_TRUE(t().Redraw());
    EXPECT_EQ(t().ColWidth(25), 1200);
}

TEST_F(Ajustes_de_formatos, una_columna_de_lista_empieza_por_su_primer_valor) {
    pon_formato(1, T_formato::ListaU);
    Matriz<std::string> usos(0, 1);
    usos[0] = "A";
    usos[1] = "B";
    Lista(e, 1, usos);
    graba();
    escribe(1, {"B", "", "B"});
    lee();
    EXPECT_EQ(columna(1), (Textos{"A", "", "A"}));
}
