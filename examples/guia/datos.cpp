// SPDX-License-Identifier: MIT
// Columns as numbers, colours, files and settings.
#include "perfil.h"
#include "textos.h"

#include <vector>

namespace guia {

using namespace Qlt4_Tabla;

// begin: computos
void calcula(Tabla0& t) {
    t.m_Restar_dos_ColumnasA_B(RASANTE, TERRENO, DESNIVEL);
    t.m_Diferencia_Parcial_1Columna(TERRENO, INCREMENTO, true); // what falls turns red
    t.m_Sumar_dos_ColumnasAyB(TERRENO, DESNIVEL, RASANTE); // and back
}
// end: computos

// begin: matrices
void sube_terreno(Tabla0& t, double metros) {
    std::vector<double> cotas; // element 0 is row 1
    t.m_Obten_Matriz_Numerica_de_columna(TERRENO, cotas);
    for (double& cota : cotas) cota += metros;
    t.m_Asigna_Matriz_Numerica_a_Columna(TERRENO, cotas);
}
// end: matrices

// begin: colores
void colorea(Tabla0& t) {
    t.tablero_sin_color(); // texts of all data cells in the default colour
    t.Color_Columna(VERTICE, T_colores::Azul); // text of a column
    t.Color_1Celda(2, TERRENO, T_colores::Rojo); // text of a cell
    t.ColMatrix(3, TERRENO, T_colores::Rojo); // the same under its other name
    t.Color_Fila(4, TERRENO, RASANTE, T_colores::Amarll); // background of a part of a row
    t.Color_Matrix(5, TUBOS, 0x00C0FFC0); // background of a cell, 0x00BBGGRR
}
// end: colores

// begin: colores_capa
void pon_capas(Tabla0& t) {
    t.A_Edicion_pon_Color(); // once: colour cells are painted
    t.Color_Matrix_en_Cad_dado_N_cad(1, CAPA, 1); // palette number: "rojo", painted red
    t.Color_Matrix_en_Cad_dado_N_VB(2, CAPA, 0x0000FF00); // screen colour: "verde", painted green
    t.Color_Matrix_de_Cad(3, CAPA, 5); // only the text: "azul"
    t.Color_Matrix_en_Cad(4, CAPA, 3); // "verde", on a background of screen colour 3, nearly black
}
// end: colores_capa

// begin: pregunta_color
void pregunta_color(Tabla0& t) {
    const int fila = t.A_fila_Activa();
    const std::int32_t antes = t.Color_Matrix_en_VB(fila, CAPA);
    const std::int32_t color = t.Show_Elige_Color(antes); // waits for the user
    if (color != antes) t.Color_Matrix_en_Cad_dado_N_VB(fila, CAPA, color);
}
// end: pregunta_color

// begin: ficheros
void ida_y_vuelta(Tabla0& t, const std::string& fichero) {
    t.A_ExtensionFche("*.tb0"); // what the file dialogs offer
    t.Tablero_Grabar(fichero); // trouble is shown to the user, not to the caller
    t.Tablero_Leer(fichero); // list cells become the first of their list: formats are applied
}
// end: ficheros

// begin: ajustes
void guarda_forma(Tabla0& t) {
    t.Editor_Tabl_graba(); // the widths that the user dragged go into the formats
    t.Tablero_Graba_Formato_Win(textos::APLICACION, textos::SECCION); // errors of the store are raised
}

void lee_forma(Tabla0& t) {
    t.Tablero_Lee_Formato_Win(textos::APLICACION, textos::SECCION); // before the cells: it applies formats
}
// end: ajustes

} // namespace guia
