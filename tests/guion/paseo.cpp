// SPDX-License-Identifier: MIT
// The steps of a random walk and what must hold after each: tests/guion/paseo.h.
#include "tests/guion/paseo.h"

#include "base/error.h"
#include "base/utf8.h"
#include "tests/guion/palabras.h"
#include "tests/guion/pasos.h"

#include <algorithm>
#include <array>
#include <exception>
#include <stdexcept>
#include <utility>

namespace Qlt4_Tabla {

namespace {

constexpr std::size_t MEMORIA = 40; // steps that a failure tells
constexpr int MAX_FILAS = 300;

using Textos = std::string_view;

constexpr std::array<Textos, 26> TECLAS{"Intro", "Intro", "Intro", "Escape", "Espacio", "Retroceso", "Supr",
    "F2", "Tab", "Arriba", "Abajo", "Izquierda", "Derecha", "Inicio", "Fin", "RePag", "AvPag", "Mayus+Abajo",
    "Mayus+Derecha", "Ctrl+Fin", "Ctrl+Inicio", "Ctrl+C", "Ctrl+X", "Ctrl+V", "Ctrl+Z", "Menu"};

constexpr std::array<Textos, 14> TEXTOS{"12.5", "-3", "P9", "1e9", "", "&HFF", "abc", "ñandú", "+", "-",
    "1,5", "A", "rojo", "99999999999999999999"};

constexpr std::array<Textos, 9> CLASES{
    "Entero", "EntPos", "Real__ 3", "RealPo 2", "Alfanm", "ListaU", "Color_", "Imagen", "Alfanm"};

constexpr std::array<Textos, 8> ADORNOS{
    "", "", "invisible", "bloqueada", "Repite", "Increm", "Decrem", "ancho=2 Drcha"};

constexpr std::array<Textos, 20> OPCIONES{"mn_Deshacer", "mn_Rehacer", "mn_cortar", "mn_copiar", "mn_Pegar",
    "mn_copiar_todo_y_cabezera", "mn_copiar_pXc", "mn_pegar_cXp", "mn_pegar_al_final", "mn_Filas",
    "mn_insertar_filas", "mn_eliminar_filas", "mn_añadir_filas", "mn_eliminar_vacias", "mn_borrar_seleccion",
    "MN_avance_horizontal", "MN_editor_de_columnas", "mn_salir", "Mnu_Tabla_Leer", "Mnu_Tabla_Guardar_como"};

constexpr std::array<Textos, 3> COPIAS{"mn_cancelar1", "mn_copiar1", "mn_Pegar2"};

constexpr std::array<Textos, 5> PUNTOS{"mn_Especial_puntos_Añadir", "mn_Especial_puntos_Copia",
    "mn_Especial_puntos_Avance", "mn_Especial_puntos_columnas", "mn_Especial_puntos_Avance"};

constexpr std::array<Textos, 9> CAMBIOS{
    "Cancelar", "rojo", "verde", "gris claro", "A", "B", "C", "Otro....", "Cancelar"};

constexpr std::array<Textos, 5> BOTONES{"Copiar", "Pegar", "Excel", "Propiedades", "Avance"};

constexpr std::array<Textos, 32> LLAMADAS{"A_Edicion_pon_Color", "crea_una_fila", "Copiar_Todo",
    "Tablero_establece_Formato", "Editor_Tabl_graba", "Tablero_Formato_por_defecto", "tablero_sin_color",
    "Clear", "m_Sumar_dos_ColumnasAyB 2 3 2", "m_Restar_dos_ColumnasA_B 3 2 1",
    "m_Diferencia_Parcial_1Columna 2 3 1", "Color_Columna 2 5", "ColMatrix 2 2 3", "Color_1Celda 1 1 2",
    "Color_Fila 3 1 4 4", "A_Pon_Alto 3 700", "A_Pon_Alto 2 0", "A_Pon_Alto 3 -1",
    "Tablero_Grabar /casa/a.tb0", "Tablero_Leer /casa/a.tb0", "Tablero_Leer /casa/no.tb0",
    "Tablero_Graba_Formato_Win Obra Capa", "Tablero_Lee_Formato_Win Obra Capa",
    "m_Sumar_dos_ColumnasAyB 1 40 2", "Color_Columna 99 1", "Tablero_Nombres Obra Puntos *.tb0",
    "Tablero_Nombres \"\" Otros \"\"", "A_Especial_puntos_ON", "A_Edicion_Columnas_Off", "Cols",
    "A_fila_Activa", "Tablero_Fila_0_Off"};

constexpr std::array<Textos, 14> PROPIEDADES{"MergeCells 1", "MergeCells 3", "MergeCells 0", "MergeCol 1 -1",
    "MergeCol 2 0", "A_RowTop 5", "A_RowTop 900", "A_RowTop -1", "A_Col 3", "A_actualizaEditor -1",
    "A_RowTop 2", "A_GrabaRevoca SI", "MergeCells 9", "Ficheros_en_menu 0"};

constexpr std::array<Textos, 6> PEGAS{"\"1\\t2\\r\\n3\\t4\\r\\n\"", "\"a\\r\\n\"", "\"\"",
    "\"1,5\\t\\t\\r\\n\"", "\"sin fin\"", "\"1\\t2\\t3\\t4\\t5\\t6\\t7\\t8\\t9\\r\\n\""};

constexpr std::array<Textos, 3> MOTIVOS{"fuera", "menu", "ventana"};

bool dentro(int n, int cuenta) { return n >= 0 && n < cuenta; }

} // namespace

Paseo::Paseo(Conductor& conductor, std::uint32_t semilla) : conductor_(conductor), azar_(semilla) {
    for (const Textos paso : {Textos("nombres Obra Puntos *.tb0"), Textos("columnas 6"), Textos("filas 12"),
             Textos("formato 0 \"\" Alfanm ancho=5"), Textos("formato 1 Punto Alfanm Increm"),
             Textos("formato 2 X Real__ 3"), Textos("formato 3 N Entero"), Textos("formato 4 Uso ListaU"),
             Textos("formato 5 Color Color_"), Textos("lista 4 A|B|C"), Textos("establece")})
        haz(paso);
    static_cast<void>(conductor_.recoge());
}

int Paseo::azar(int n) { return static_cast<int>(azar_() % static_cast<std::uint32_t>(n)); }

std::string Paseo::celda() {
    const Tablero& t = conductor_.tabla().tablero();
    const int fila = azar(8) == 0 ? azar(t.Rows()) : std::min(t.TopRow() + azar(8), t.Rows() - 1);
    return std::to_string(azar(12) == 0 ? 0 : fila) + ' ' + std::to_string(azar(t.Cols()));
}

std::string Paseo::texto() {
    const Textos uno = TEXTOS.at(static_cast<std::size_t>(azar(static_cast<int>(TEXTOS.size()))));
    return uno.empty() ? "\"\"" : std::string(uno);
}

namespace {

template <std::size_t N>
std::string uno_de(const std::array<Textos, N>& lista, int cual) {
    return std::string(lista.at(static_cast<std::size_t>(cual)));
}

} // namespace

std::string Paseo::usuario() {
    switch (azar(16)) {
    case 0:
    case 1: return "clic " + celda() + (azar(5) == 0 ? " Mayus" : "");
    case 2: return "doble " + celda();
    case 3: return "arrastra " + celda() + ' ' + celda();
    case 4: return "derecho " + celda();
    case 5: return "rueda " + std::string(azar(2) == 0 ? "-1" : "1");
    case 6: return "barra " + std::to_string(1 + azar(conductor_.tabla().tablero().Rows()));
    case 7: return "boton " + uno_de(BOTONES, azar(static_cast<int>(BOTONES.size())));
    case 8: return "borde " + std::to_string(azar(6)) + ' ' + std::to_string(azar(3) * 900);
    case 9: return "foco " + uno_de(MOTIVOS, azar(static_cast<int>(MOTIVOS.size())));
    case 10:
    case 11: return "teclea " + texto();
    case 12: return "orden " + uno_de(OPCIONES, azar(static_cast<int>(OPCIONES.size())));
    case 13: return azar(2) == 0 ? "compone é" : "entrada B";
    default: return "pulsa " + uno_de(TECLAS, azar(static_cast<int>(TECLAS.size())));
    }
}

std::string Paseo::anfitrion() {
    switch (azar(8)) {
    case 0: return "filas " + std::to_string(azar(6) == 0 ? azar(3) : 2 + azar(40));
    case 1: return "columnas " + std::to_string(azar(10) == 0 ? 30 : 1 + azar(9));
    case 2:
        return "formato " + std::to_string(azar(8)) + " Col " +
            uno_de(CLASES, azar(static_cast<int>(CLASES.size()))) + ' ' +
            uno_de(ADORNOS, azar(static_cast<int>(ADORNOS.size())));
    case 3: return "texto " + celda() + ' ' + texto();
    case 4: return "lista 4 " + std::string(azar(4) == 0 ? "" : "A|B|C");
    case 5: return "pone " + uno_de(PROPIEDADES, azar(static_cast<int>(PROPIEDADES.size())));
    case 6: return "establece";
    default: return "llama " + uno_de(LLAMADAS, azar(static_cast<int>(LLAMADAS.size())));
    }
}

std::string Paseo::entorno() {
    switch (azar(5)) {
    case 0: return "portapapeles " + uno_de(PEGAS, azar(static_cast<int>(PEGAS.size())));
    case 1: return std::string("responde ") + (azar(2) == 0 ? "si" : "no");
    case 2: return std::string("elige_fichero ") + (azar(2) == 0 ? "/casa/p.tb0" : "\"\"");
    case 3: return std::string("coma ") + (azar(2) == 0 ? "si" : "no");
    default: return "ventana " + std::to_string(4000 + 1000 * azar(8)) + ' ' + std::to_string(1 + azar(18));
    }
}

std::string Paseo::elige_paso() {
    const std::string menu = std::exchange(menu_, {});
    if (ultimos_.empty()) return "establece";
    if (!menu.empty() && azar(4) != 0) {
        if (menu == "mn_raton") return "menu " + uno_de(OPCIONES, azar(static_cast<int>(OPCIONES.size())));
        if (menu == "mn_raton3") return "menu " + uno_de(COPIAS, azar(static_cast<int>(COPIAS.size())));
        if (menu == "Mn_Especial_puntos")
            return "menu " + uno_de(PUNTOS, azar(static_cast<int>(PUNTOS.size())));
        const auto& elementos = conductor_.tabla().estado().menu_cambio.elementos();
        const bool primera = azar(2) == 0 && elementos.size() > MenuCambio::FIJOS;
        return "cambio \"" +
            (primera ? elementos[MenuCambio::FIJOS].titulo
                     : uno_de(CAMBIOS, azar(static_cast<int>(CAMBIOS.size())))) +
            '"';
    }
    if (conductor_.tabla().tablero().Rows() > MAX_FILAS) return "filas 20";
    if (sin_redibujar_) return "pone Redraw -1";
    if (ultimos_.back() == "foco ventana") return "foco vuelve"; // keys go to the window in front
    if (conductor_.foco() == Foco::Nadie && azar(2) == 0) return "foco vuelve";
    const int n = azar(20);
    if (n < 14) return usuario();
    return n < 18 ? anfitrion() : entorno();
}

void Paseo::haz(std::string_view texto) {
    Palabras palabras(texto);
    const std::string primera = palabras.palabra();
    if (!paso_anfitrion(conductor_, primera, palabras) && !paso_usuario(conductor_, primera, palabras) &&
        !paso_entorno(conductor_, primera, palabras))
        throw std::logic_error("no such step");
}

std::string Paseo::paso() {
    std::string falla;
    const std::string texto = elige_paso();
    ultimos_.push_back(texto);
    if (ultimos_.size() > MEMORIA) ultimos_.pop_front();
    try {
        haz(texto);
    } catch (const FalloGuion&) {
        // The step cannot be taken here: no such cell in sight, no such menu, an error for the host.
    } catch (const std::exception& e) {
        falla = std::string("it let out: ") + e.what();
    }
    try {
        for (const std::string& linea : conductor_.recoge()) {
            if (linea.starts_with("menu ")) menu_ = linea.substr(5, linea.find(' ', 5) - 5);
            if (linea.starts_with("not repainted")) falla = linea;
        }
        // An error on the way out of the formats leaves redrawing off, as the host is told.
        sin_redibujar_ = !conductor_.tabla().tablero().Redraw();
        if (falla.empty()) falla = lo_que_falla();
    } catch (const std::exception& e) {
        falla = std::string("asked, it let out: ") + e.what();
    }
    if (falla.empty()) return {};
    for (const std::string& hecho : ultimos_) falla += "\n    " + hecho;
    return falla;
}

std::string Paseo::lo_que_falla() {
    const EstadoTabla& e = conductor_.tabla().estado();
    const Tablero& t = e.tablero;
    if (t.Rows() < 0 || t.Cols() < 0) return "no grid";
    if (!dentro(t.Row(), t.Rows()) || !dentro(t.Col(), t.Cols())) return "the current cell is outside";
    if (!dentro(t.RowSel(), t.Rows()) || !dentro(t.ColSel(), t.Cols())) return "the selection is outside";
    if (t.TopRow() < 1 || t.TopRow() > std::max(1, t.Rows() - 1)) return "the top row is outside";
    if (t.desplazamiento() < 0) return "scrolled beyond the left edge";
    if (e.Modificado != 0 && e.Modificado != 1) return "the modified flag";
    if (e.menus[Opcion::MN_avance_horizontal].marcada != e.menus[Opcion::mn_Especial_puntos_Avance].marcada)
        return "the marks of the advance differ";
    const EditorVisto visto = conductor_.editor();
    if (visto.casilla && visto.lista) return "two editors at once";
    const EditorCelda& editor = conductor_.tabla().mandos().editor();
    if (editor.abierto() && !sin_redibujar_ && visto.casilla != editor.abierta_casilla())
        return "what is seen of the editor is not what is open";
    const int fila = azar(t.Rows());
    const int col = azar(t.Cols());
    const std::string_view celda = t.TextMatrix(fila, col);
    if (!utf8::es_valido(celda)) return "a text that is no UTF-8";
    if (col < MAX_COLUMNAS && conductor_.tabla().TextMatrix(fila, col).size() < celda.size())
        return "the host reads less than there is";
    return {};
}

} // namespace Qlt4_Tabla
