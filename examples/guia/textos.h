// SPDX-License-Identifier: MIT
// The texts of the program behind the host guide. What goes into the table is UTF-8.
#pragma once

#include <QString>

namespace guia::textos {

inline const QString VENTANA = QStringLiteral("Guía - Tabla");
inline const QString AYUDA =
    QStringLiteral("guia: lo que muestra la guía para anfitriones, hecho y comprobado.\n"
                   "  --captura FICHERO.png  dibuja la ventana en el fichero y termina\n"
                   "  --oscuro               colores oscuros\n"
                   "  --ayuda                esta ayuda");
inline const QString MENU = QStringLiteral("&Tabla");
inline const QString A_LA_HOJA = QStringLiteral("Llevar a la hoja de &cálculo");
inline const QString ELEGIR_COLOR = QStringLiteral("Elegir el &color de la fila...");
inline const QString COPIAR = QStringLiteral("&Copiar la selección");
inline const QString NO_ES_ASI = QStringLiteral("No es como dice la guía: %1");
inline const QString SALE = QStringLiteral("Se ha dejado la tabla");
inline const QString CAMBIADA = QStringLiteral("Cambiada la casilla %1, %2");
inline const QString DE_LISTA = QStringLiteral("Valor de lista nuevo en %1, %2");
inline const QString ELEGIDAS = QStringLiteral("Filas %1 a %2");

inline const QString PUNTO = QStringLiteral("Punto");
inline const QString X = QStringLiteral("X");
inline const QString Y = QStringLiteral("Y");

inline constexpr char TITULO[] = "Perfil del colector";
inline constexpr char SUBTITULO[] = "Vértices";
inline constexpr char VERTICE[] = "Vértice";
inline constexpr char TERRENO[] = "Terreno";
inline constexpr char RASANTE[] = "Rasante";
inline constexpr char DESNIVEL[] = "Desnivel";
inline constexpr char INCREMENTO[] = "Incremento";
inline constexpr char TUBOS[] = "Tubos";
inline constexpr char MATERIAL[] = "Material";
inline constexpr char CAPA[] = "Capa";
inline constexpr char HORMIGON[] = "Hormigón";
inline constexpr char PVC[] = "PVC";
inline constexpr char FUNDICION[] = "Fundición";

inline constexpr char TITULO_CAPAS[] = "Capas del plano";
inline constexpr char SUBTITULO_CAPAS[] = "Capas";
inline constexpr char NOMBRE_CAPA[] = "Nombre";

inline constexpr char APLICACION[] = "Guia";
inline constexpr char SECCION[] = "Perfil";

} // namespace guia::textos
