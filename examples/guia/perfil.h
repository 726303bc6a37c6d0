// SPDX-License-Identifier: MIT
// A sewer's profile in a table: what docs/guia_anfitrion.md explains, function by function. The guide quotes
// the parts between "begin:" and "end:" as they stand here. Main names: Columna, prepara, rellena.
#pragma once

#include "qt/tabla_widget.h"

#include <cstdint>
#include <string>
#include <vector>

class QStatusBar;

namespace guia {

enum Columna : std::int16_t {
    NUMERO,
    VERTICE,
    TERRENO,
    RASANTE,
    DESNIVEL,
    INCREMENTO,
    TUBOS,
    MATERIAL,
    CAPA,
    CUANTAS
};

// perfil.cpp: setting up, filling, formatting anew.
void prepara(Qlt4_Tabla::Tabla0& t);
void rellena(Qlt4_Tabla::Tabla0& t);
void cambia_decimales(Qlt4_Tabla::Tabla0& t);
void prepara_capas(Qlt4_Tabla::Tabla0& t);
void restringe(Qlt4_Tabla::Tabla0& t);
void vuelve_al_formato_inicial(Qlt4_Tabla::Tabla0& t);
void pon_logotipo(Qlt4_Tabla::Tabla0& t);
void funde_capas(Qlt4_Tabla::Tabla0& t);

// datos.cpp: columns, colours, files, settings.
void calcula(Qlt4_Tabla::Tabla0& t);
void sube_terreno(Qlt4_Tabla::Tabla0& t, double metros);
void colorea(Qlt4_Tabla::Tabla0& t);
void pon_capas(Qlt4_Tabla::Tabla0& t);
void pregunta_color(Qlt4_Tabla::Tabla0& t);
void ida_y_vuelta(Qlt4_Tabla::Tabla0& t, const std::string& fichero);
void guarda_forma(Qlt4_Tabla::Tabla0& t);
void lee_forma(Qlt4_Tabla::Tabla0& t);

// puntos.cpp: points as vectors, the file when the window closes.
void carga_puntos(
    Qlt4_Tabla::TablaWidget& widget, const std::vector<double>& xs, const std::vector<double>& ys);
std::vector<double> lee_xs(Qlt4_Tabla::TablaWidget& widget);
bool puede_cerrar(Qlt4_Tabla::TablaWidget& widget, const std::string& fichero);

// trato.cpp: events, selection, errors, calls by name, other threads.
void escucha(Qlt4_Tabla::TablaWidget& widget, QStatusBar& estado);
void elige_filas(Qlt4_Tabla::Tabla0& t, int desde, int hasta);
void pon_tamano(Qlt4_Tabla::Tabla0& t);
std::string por_nombre(Qlt4_Tabla::Tabla0& t);
int error_de_columna(Qlt4_Tabla::Tabla0& t);
std::vector<std::string> faltas_al_leer(const std::string& fichero);
void mide_en_otro_hilo(Qlt4_Tabla::TablaWidget& widget);

} // namespace guia
