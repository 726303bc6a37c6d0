// SPDX-License-Identifier: MIT
// The fill menu and the list menu of a selection: their entries, their cells, what each entry writes, what stays.
#include "editing/relleno.h"
#include "tests/editing/mesa_edicion.h"

#include <cstddef>
#include <string>
#include <vector>

namespace Qlt4_Tabla {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class PruebaRelleno : public MesaEdicion {
protected:
    std::vector<std::string> titulos() const {
        std::vector<std::string> t;
        for (const auto& elemento : e.menu_cambio.elementos()) t.push_back(elemento.titulo);
        return t;
    }

    std::vector<std::string> columna(int col) {
        std::vector<std::string> t;
        for (int fila = 1; fila < e.tablero.Rows(); ++fila) t.push_back(celda(fila, col));
        return t;
    }

    // Opens the menu over a selection, clicks the item of that number, closes it.
    void texto(const Bloque& seleccion, std::size_t elemento) {
        t().selecciona(seleccion.fila1, seleccion.col1, seleccion.fila2, seleccion.col2);
        const Bloque b = abre_menu_texto(e);
        e.menu_cambio.marca(elemento);
        cierra_menu_texto(e, b);
    }

    void lista(const Bloque& seleccion, std::size_t elemento) {
        t().selecciona(seleccion.fila1, seleccion.col1, seleccion.fila2, seleccion.col2);
        const Bloque b = abre_menu_lista(e);
        e.menu_cambio.marca(elemento);
        cierra_menu_lista(e, b);
    }
};

constexpr std::size_t CANCELAR = 0;
constexpr std::size_t PRIMERA = 2;
constexpr std::size_t SEGUNDA = 3;

TEST_F(PruebaRelleno, las_entradas_nombran_la_celda_de_arriba) {
    t().TextMatrix(2, 1, "P9");
    t().selecciona(4, 1, 2, 1); // upwards
    EXPECT_EQ(abre_menu_texto(e), (Bloque{2, 1, 4, 1}));
    EXPECT_THAT(titulos(), ElementsAre("Cancelar", "-", "Repetir  <P9>", "Incrementar en 1  <P9>"));
    EXPECT_EQ(e.menu_cambio.marcada(), std::nullopt);
}

TEST_F(PruebaRelleno, repetir_copia_hacia_abajo) {
    t().TextMatrix(1, 1, "P9");
    t().TextMatrix(4, 1, "queda");
    texto({1, 1, 3, 1}, PRIMERA);
    EXPECT_THAT(columna(1), ElementsAre("P9", "P9", "P9", "queda"));
}

TEST_F(PruebaRelleno, incrementar_cuenta_desde_la_celda_de_encima) {
    t().TextMatrix(1, 1, "P009");
    texto({1, 1, 4, 1}, SEGUNDA);
    EXPECT_THAT(columna(1), ElementsAre("P009", "P10", "P11", "P12"));
}

TEST_F(PruebaRelleno, incrementar_una_celda_vacia_empieza_en_1) {
    texto({2, 1, 4, 1}, SEGUNDA);
    EXPECT_THAT(columna(1), ElementsAre("", "", "1", "2"));
}

TEST_F(PruebaRelleno, la_cabecera_seleccionada_no_cuenta) {
    t().TextMatrix(1, 1, "a");
    t().selecciona(0, 1, 3, 1);
    EXPECT_EQ(abre_menu_texto(e), (Bloque{1, 1, 3, 1}));
}

TEST_F(PruebaRelleno, la_lista_da_sus_valores_y_llena_todo_el_bloque) {
    t().TextMatrix(2, 4, "B");
    t().selecciona(2, 4, 3, 4);
    static_cast<void>(abre_menu_lista(e));
    EXPECT_THAT(titulos(), ElementsAre("Cancelar", "-", "A", "B", "C"));
    lista({2, 4, 3, 4}, 4);
    EXPECT_THAT(columna(4), ElementsAre("", "C", "C", ""));
}

TEST_F(PruebaRelleno, una_lista_sin_valores_no_da_entradas) {
    e.listas[4].Col.borra();
    t().selecciona(1, 4, 2, 4);
    static_cast<void>(abre_menu_lista(e));
    EXPECT_THAT(titulos(), ElementsAre("Cancelar", "-"));
}

TEST_F(PruebaRelleno, una_captura_y_ningun_suceso) {
    t().TextMatrix(1, 1, "P1");
    p.registro.clear();
    texto({1, 1, 3, 1}, SEGUNDA);
    EXPECT_THAT(p.registro, ElementsAre("captura"));
    EXPECT_EQ(e.Modificado, 1);
    EXPECT_EQ(t().seleccion(), (Bloque{1, 1, 3, 1}));
}

TEST_F(PruebaRelleno, la_captura_ve_la_tabla_de_antes) {
    t().TextMatrix(1, 4, "B");
    std::string antes;
    p.pasos.al_capturar = [&] { antes = celda(1, 4); };
    lista({1, 4, 2, 4}, PRIMERA);
    EXPECT_EQ(antes, "B");
    EXPECT_EQ(celda(1, 4), "A");
}

TEST_F(PruebaRelleno, cancelar_no_hace_nada) {
    t().TextMatrix(1, 1, "P1");
    p.registro.clear();
    texto({1, 1, 3, 1}, CANCELAR);
    lista({1, 4, 3, 4}, CANCELAR);
    EXPECT_THAT(columna(1), ElementsAre("P1", "", "", ""));
    EXPECT_THAT(p.registro, IsEmpty());
    EXPECT_EQ(e.Modificado, 0);
}

TEST_F(PruebaRelleno, sin_captura_posible_no_se_escribe) {
    t().TextMatrix(1, 1, "P1");
    p.pasos.al_capturar = [] { lanza(NumError::SinMemoria); };
    EXPECT_THROW(texto({1, 1, 3, 1}, PRIMERA), Error);
    EXPECT_THAT(columna(1), ElementsAre("P1", "", "", ""));
    EXPECT_EQ(e.Modificado, 0);
}

TEST_F(PruebaRelleno, un_millon_de_filas_en_un_solo_aviso) {
    t().Rows(1000001);
    t().TextMatrix(1, 1, "P1");
    static_cast<void>(p.vista.recoge());
    t().selecciona(1, 1, 1000000, 1);
    static_cast<void>(p.vista.recoge());
    const Bloque b = abre_menu_texto(e);
    e.menu_cambio.marca(SEGUNDA);
    cierra_menu_texto(e, b);
    EXPECT_EQ(celda(1000000, 1), "P1000000");
    EXPECT_THAT(p.vista.recoge(), ElementsAre("celdas 2 1 1000000 1"));
}

} // namespace

} // namespace Qlt4_Tabla
