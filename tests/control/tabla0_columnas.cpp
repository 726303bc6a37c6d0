// SPDX-License-Identifier: MIT
// The column editor as a command of the table: what it shows, what applying, restoring and leaving do to the
// working formats and the grid, and how its errors end it.
#include "base/teclas.h"
#include "control/tabla0.h"
#include "headless/plataforma_memoria.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

using namespace Qlt4_Tabla;

namespace {

// Columns of the editor's grid.
enum : int { ED_NOMBRE = 1, ED_VISIBLE, ED_BLOQUEADA, ED_ANCHO = 5, ED_DECIMALES, ED_ALINEACION, ED_ACCION };

using Usuario = std::function<void(ModeloColumnas&)>;

void elige(ModeloColumnas& m, int fila, int col) {
    m.rejilla().mide(12000, 9000, 300);
    const Rectangulo c = rectangulo_celda(m.rejilla().tablero(), fila, col);
    m.rejilla().raton(PulsoRaton::Abajo, c.izquierda, c.arriba);
    m.rejilla().raton(PulsoRaton::Arriba, c.izquierda, c.arriba);
}

void escribe(ModeloColumnas& m, int fila, int col, std::string_view texto) {
    elige(m, fila, col);
    m.rejilla().escribe_casilla(texto);
    m.rejilla().tecla_casilla(teclas::INTRO);
}

std::string celda(ModeloColumnas& m, int fila, int col) {
    return std::string(m.rejilla().tablero().TextMatrix(fila, col));
}

void aplica(ModeloColumnas& m) { m.orden(OrdenColumnas::Aplicar); }

class EditorColumnas : public ::testing::Test {
protected:
    EditorColumnas() {
        t.Tablero_Nombres("Plano", "Puntos", "*.pt");
        t.Cols(4);
        t.FormatoColumnas(
            0, false, false, T_formato::Alfanm, 0, T_Alineacion::Izqda, T_Accion::Nada__, 6, "");
        t.FormatoColumnas(
            1, false, false, T_formato::Alfanm, 0, T_Alineacion::Izqda, T_Accion::Nada__, 9, "Nombre");
        t.FormatoColumnas(
            2, false, false, T_formato::Real__, 3, T_Alineacion::Drcha, T_Accion::Nada__, 11, "X");
        t.FormatoColumnas(
            3, false, false, T_formato::Entero, 0, T_Alineacion::Drcha, T_Accion::Nada__, 7, "N");
        t.Tablero_establece_Formato();
        t.TextMatrix(1, 2, "1.5");
        p.registro.clear();
    }

    /// Runs the command with one user for each showing of the editor.
    void edita(std::vector<Usuario> usuarios, Opcion opcion = Opcion::MN_editor_de_columnas) {
        for (Usuario& u : usuarios) p.dialogo_columnas.usuario.push_back(std::move(u));
        EXPECT_TRUE(t.mandos().orden(opcion));
    }

    const T_FormatoColumna& f(std::size_t col) { return t.estado().Formatos.at(col); }

    const Tablero& g() { return t.tablero(); }

    std::size_t veces() { return p.dialogo_columnas.vistos.size(); }

    PlataformaMemoria p;
    Tabla0 t{p.plataforma(), p.eventos};
};

const std::string ERROR_6 = "mensaje|16||Tabla Editor de columnas - Error nº 6: Desbordamiento";

TEST_F(EditorColumnas, ShowsTheColumnsUnderTheNamesOfTheTable) {
    edita({[](ModeloColumnas& m) {
        EXPECT_EQ(m.visto().titulo, "Configuración de columnas:Puntos");
        EXPECT_EQ(m.rejilla().tablero().Rows(), 4);
        EXPECT_EQ(celda(m, 2, ED_NOMBRE), "X");
        EXPECT_EQ(celda(m, 2, ED_DECIMALES), "3");
    }});
    EXPECT_EQ(veces(), 1U);
    EXPECT_TRUE(p.ajustes.valores.contains({"Plano", "PosPuntos", "MainLeft"}));
}

TEST_F(EditorColumnas, TheSpecialPointsMenuOpensTheSame) {
    edita({}, Opcion::mn_Especial_puntos_columnas);
    EXPECT_EQ(veces(), 1U);
}

TEST_F(EditorColumnas, WithoutNamesTheSettingsAreThoseOfATable) {
    PlataformaMemoria q;
    Tabla0 otra(q.plataforma(), q.eventos);
    otra.mandos().orden(Opcion::MN_editor_de_columnas);
    EXPECT_TRUE(q.ajustes.valores.contains({"Tabla", "Pos", "MainTop"}));
    EXPECT_EQ(q.dialogo_columnas.vistos.at(0).titulo, "Configuración de columnas:");
}

TEST_F(EditorColumnas, LeavingDropsEverything) {
    const auto antes = t.estado().Formatos;
    edita({[](ModeloColumnas& m) {
        elige(m, 1, ED_VISIBLE);
        elige(m, 2, ED_ACCION);
        escribe(m, 2, ED_ANCHO, "40");
        m.marca(MarcaColumnas::Columna0, false);
        m.orden(OrdenColumnas::Salir);
    }});
    EXPECT_EQ(t.estado().Formatos, antes);
    EXPECT_EQ(g().ColWidth(1), 1080);
}

TEST_F(EditorColumnas, ApplyingChangesFormatsAndGridAndShowsTheEditorAgain) {
    edita({[](ModeloColumnas& m) {
               elige(m, 1, ED_VISIBLE);
               escribe(m, 2, ED_NOMBRE, "Este");
               escribe(m, 2, ED_ANCHO, "20");
               escribe(m, 2, ED_DECIMALES, "1");
               elige(m, 2, ED_ALINEACION);
               elige(m, 3, ED_BLOQUEADA);
               elige(m, 3, ED_ACCION);
               aplica(m);
           },
        [](ModeloColumnas& m) {
            EXPECT_EQ(celda(m, 1, ED_VISIBLE), "No");
            EXPECT_EQ(celda(m, 2, ED_NOMBRE), "Este");
            EXPECT_EQ(celda(m, 2, ED_ANCHO), "20");
            EXPECT_EQ(celda(m, 2, ED_ALINEACION), "Izquierda");
            EXPECT_EQ(celda(m, 3, ED_ACCION), "Repite");
            EXPECT_FALSE(m.visto().puede_aplicar);
            elige(m, 3, ED_ACCION);
        }});
    EXPECT_EQ(veces(), 2U);
    EXPECT_EQ(g().ColWidth(1), 0);
    EXPECT_EQ(g().TextMatrix(0, 2), "Este");
    EXPECT_EQ(g().ColWidth(2), 2400);
    EXPECT_EQ(g().TextMatrix(1, 2), "1.5");
    EXPECT_EQ(g().ColAlignment(2), AlineacionCelda::Izquierda);
    EXPECT_EQ(g().color_fondo(0, 3), 0xE0E0E0);
    EXPECT_EQ(f(3).Accion, 1); // the second change was left
    EXPECT_TRUE(g().Redraw());
}

TEST_F(EditorColumnas, ApplyingLeavesTheFormatsOfTheHost) {
    edita({[](ModeloColumnas& m) {
        escribe(m, 2, ED_NOMBRE, "Este");
        aplica(m);
    }});
    EXPECT_EQ(t.estado().Formatos_por_defecto.at(2).Nombre, "X");
    t.Tablero_Formato_por_defecto();
    EXPECT_EQ(f(2).Nombre, "X");
}

TEST_F(EditorColumnas, ApplyingWritesNoLayoutIntoTheSettings) {
    edita({[](ModeloColumnas& m) {
        elige(m, 1, ED_VISIBLE);
        aplica(m);
    }});
    EXPECT_EQ(p.ajustes.valores.size(), 4U); // the place of the window
}

TEST_F(EditorColumnas, TheCheckBoxesOfColumn0AreAppliedToo) {
    edita({[](ModeloColumnas& m) {
        m.marca(MarcaColumnas::Columna0, false);
        m.marca(MarcaColumnas::Etiqueta, true);
        aplica(m);
    }});
    EXPECT_EQ(g().ColWidth(0), 0);
    EXPECT_TRUE(t.estado().etiquetas.labNumeroFilas.visible);
    EXPECT_EQ(t.estado().etiquetas.labNumeroFilas.texto, "Puntos: Nº de filas = 3");
}

// The defaults come first and the editor's formats over them: what the clicks changed stays.
TEST_F(EditorColumnas, RestoringKeepsWhatTheClicksChangedAndDropsTheTexts) {
    edita({[](ModeloColumnas& m) {
               escribe(m, 2, ED_NOMBRE, "Este");
               elige(m, 1, ED_VISIBLE);
               m.orden(OrdenColumnas::PorDefecto);
           },
        [](ModeloColumnas& m) {
            EXPECT_EQ(celda(m, 2, ED_NOMBRE), "X");
            EXPECT_EQ(celda(m, 1, ED_VISIBLE), "No");
        }});
    EXPECT_EQ(veces(), 2U);
    EXPECT_TRUE(f(1).Invisible);
    EXPECT_EQ(g().ColWidth(1), 0);
}

TEST_F(EditorColumnas, AWidthBeyondTheGridEndsTheEditingWithError6) {
    edita({[](ModeloColumnas& m) {
               escribe(m, 2, ED_ANCHO, "274");
               aplica(m);
           },
        [](ModeloColumnas&) { FAIL() << "shown again"; }});
    EXPECT_EQ(veces(), 1U);
    EXPECT_EQ(p.registro.back(), ERROR_6);
    EXPECT_TRUE(g().Redraw());
    EXPECT_EQ(f(2).Longitud, 274);
}

TEST_F(EditorColumnas, TheWidestColumnThatFits) {
    edita({[](ModeloColumnas& m) {
        escribe(m, 2, ED_ANCHO, "273");
        aplica(m);
    }});
    EXPECT_EQ(g().ColWidth(2), 32760);
    EXPECT_EQ(veces(), 2U);
}

TEST_F(EditorColumnas, MoreThan25ColumnsAreError9BeforeAnythingIsShown) {
    t.Cols(27);
    p.registro.clear();
    edita({});
    EXPECT_EQ(veces(), 0U);
    EXPECT_EQ(p.registro,
        (std::vector<std::string>{
            "mensaje|16||Tabla Editor de columnas - Error nº 9: " + std::string(descripcion_error(9))}));
    EXPECT_TRUE(g().Redraw());
}

TEST_F(EditorColumnas, ASettingsStoreThatFailsIsToldAfterTheChangesWereTaken) {
    p.ajustes.falla(75);
    edita({[](ModeloColumnas& m) {
        escribe(m, 2, ED_NOMBRE, "Este");
        aplica(m);
    }});
    EXPECT_EQ(g().TextMatrix(0, 2), "Este");
    EXPECT_EQ(veces(), 1U);
    EXPECT_EQ(p.registro.back(),
        "mensaje|16||Tabla Editor de columnas - Error nº 75: " + std::string(descripcion_error(75)));
}

TEST_F(EditorColumnas, AnOpenEditOfTheTableIsCommittedFirst) {
    t.mandos().elige_celda(1, 1);
    t.mandos().tecla_pulsada('a');
    ASSERT_TRUE(t.mandos().editor().abierto());
    edita({[this](ModeloColumnas&) { EXPECT_EQ(g().TextMatrix(1, 1), "a"); }});
}

TEST_F(EditorColumnas, ATableOfColumn0AloneShowsTheHeader) {
    t.Cols(1);
    edita({[](ModeloColumnas& m) {
        EXPECT_EQ(m.rejilla().tablero().Rows(), 1);
        m.marca(MarcaColumnas::Etiqueta, true);
        aplica(m);
    }});
    EXPECT_EQ(veces(), 2U);
}

} // namespace
