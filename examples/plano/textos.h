// SPDX-License-Identifier: MIT
// Every text of the drawing host. What goes into the table is UTF-8, what goes onto the window QString.
#pragma once

#include <QString>

namespace plano::textos {

// The table.
inline constexpr char TITULO_TABLA[] = "Puntos del Mosa";
inline constexpr char SUBTITULO_TABLA[] = "Puntos";
inline constexpr char EXTENSION[] = "*.tb0";
inline constexpr char COL_NUMERO[] = "Nº";
inline constexpr char COL_NOMBRE[] = "Nombre";
inline constexpr char COL_X[] = "X";
inline constexpr char COL_Y[] = "Y";
inline constexpr char COL_COTA[] = "Cota";
inline constexpr char COL_ZINC[] = "Zinc";
inline constexpr char COL_USO[] = "Uso";
inline constexpr char COL_INUNDACION[] = "Inundación";
inline constexpr char PREFIJO_NOMBRE[] = "P";

// The names of the first palette colours, as the table writes them; the place is the number.
inline constexpr const char* NOMBRES_COLOR[] = {
    "por capa", "rojo", "amarillo", "verde", "ciano", "azul", "magenta", "blanco"};

// Under what the layout of the table is kept in the settings.
inline constexpr char APLICACION_AJUSTES[] = "Plano";
inline constexpr char SECCION_AJUSTES[] = "Puntos";

// The window.
inline const QString TITULO = QStringLiteral("Plano - Tabla");
inline const QString PROGRAMA = QStringLiteral("Tabla");
inline const QString MENU_ARCHIVO = QStringLiteral("&Archivo");
inline const QString SALIR = QStringLiteral("&Salir");
inline const QString MENU_VER = QStringLiteral("&Ver");
inline const QString ENCUADRAR_TODO = QStringLiteral("Encuadrar &todo");
inline const QString ENCUADRAR_SELECCION = QStringLiteral("Encuadrar la &selección");
inline const QString ACERCAR = QStringLiteral("A&cercar");
inline const QString ALEJAR = QStringLiteral("A&lejar");
inline const QString VER_NOMBRES = QStringLiteral("&Nombres");
inline const QString VER_CUADRICULA = QStringLiteral("C&uadrícula");
inline const QString VER_TABLA = QStringLiteral("Ta&bla");
inline const QString COLUMNAS = QStringLiteral("C&olumnas de la tabla...");
inline const QString MENU_AYUDA = QStringLiteral("A&yuda");
inline const QString RATON = QStringLiteral("&Ratón y teclas del plano");
inline const QString DATOS = QStringLiteral("&Origen de los datos");
inline const QString ACEPTAR = QStringLiteral("Aceptar");
inline const QString SI = QStringLiteral("&Sí");
inline const QString NO = QStringLiteral("&No");
inline const QString CANCELAR = QStringLiteral("Cancelar");
inline const QString GUARDAR_CAMBIOS =
    QStringLiteral("La tabla tiene cambios sin guardar.\n\n¿Quiere guardarlos antes de salir?");
inline const QString SOBRE_RATON =
    QStringLiteral("<table cellspacing='4'>"
                   "<tr><td><b>Rueda</b></td><td>acercar y alejar alrededor del puntero</td></tr>"
                   "<tr><td><b>Arrastrar</b></td><td>mover el plano (también con el botón central)</td></tr>"
                   "<tr><td><b>Clic en un punto</b></td><td>elegir su fila en la tabla</td></tr>"
                   "<tr><td><b>Mayús + arrastrar</b></td><td>elegir las filas de un recuadro</td></tr>"
                   "<tr><td><b>Mayús + clic</b></td><td>extender la selección hasta el punto</td></tr>"
                   "<tr><td><b>Doble clic en un punto</b></td><td>seguir en su fila de la tabla</td></tr>"
                   "<tr><td><b>Doble clic en el fondo, Inicio</b></td><td>encuadrar todo</td></tr>"
                   "<tr><td><b>+ &nbsp; - &nbsp; flechas</b></td><td>acercar, alejar, mover</td></tr>"
                   "<tr><td><b>F6</b></td><td>ocultar la tabla y volver a mostrarla</td></tr>"
                   "</table>");
inline const QString SOBRE_DATOS = QStringLiteral(
    "155 puntos de muestreo de suelo en la vega del Mosa, cerca de Stein (Países Bajos). Coordenadas "
    "de la red nacional neerlandesa (RD), en metros; cota sobre el lecho del río, en metros; zinc del "
    "suelo, en ppm.\n\nM.G.J. Rikken y R.P.G. Van Rijn, «Soil pollution with heavy metals», "
    "Universidad de Utrecht, 1993.");

inline const QString AJUSTES_SIN_ESCRIBIR =
    QStringLiteral("No se ha podido guardar la forma de la tabla.\n\n%1");

// The status bar.
inline const QString UN_PUNTO = QStringLiteral("1 punto");
inline const QString PUNTOS = QStringLiteral("%1 puntos");
inline const QString SIN_SITUAR = QStringLiteral("%1, %2 sin coordenadas");
inline const QString SELECCION_UNO = QStringLiteral("%1:  cota %2 m,  zinc %3 ppm");
inline const QString SELECCION_VARIOS =
    QStringLiteral("%1 seleccionados:  cota media %2 m,  zinc medio %3 ppm");
inline const QString SELECCION_MUCHOS = QStringLiteral("%1 seleccionados");
inline const QString COORDENADAS = QStringLiteral("X %1   Y %2 m");
inline const QString RECUADRO_SEGUIDAS =
    QStringLiteral("%1 puntos en el recuadro; la tabla elige filas seguidas: de la %2 a la %3");

inline const QString TABLA_OCULTA = QStringLiteral("La tabla está oculta; %1 la muestra otra vez");

// The plan.
inline const QString NOMBRE_ACCESIBLE = QStringLiteral("Plano de los puntos");
inline const QString SIN_PUNTOS = QStringLiteral("Ningún punto tiene coordenadas");
inline const QString EJE_X = QStringLiteral("X (m)");
inline const QString EJE_Y = QStringLiteral("Y (m)");
inline const QString NORTE = QStringLiteral("N");
inline const QString METROS = QStringLiteral("%1 m");
inline const QString KILOMETROS = QStringLiteral("%1 km");
inline const QString CENTIMETROS = QStringLiteral("%1 cm");
inline const QString MILIMETROS = QStringLiteral("%1 mm");
inline const QString LEYENDA = QStringLiteral("Inundación");
inline const QString CADA_2 = QStringLiteral("cada 2 años");
inline const QString CADA_10 = QStringLiteral("cada 10 años");
inline const QString CADA_50 = QStringLiteral("cada 50 años");

// The command line.
inline const QString AYUDA =
    QStringLiteral("plano: una tabla de puntos medidos junto a su plano.\n"
                   "  --captura FICHERO.png  dibuja la ventana en el fichero y termina\n"
                   "  --filas N              repite los puntos hasta N filas\n"
                   "  --ajustes FICHERO.ini  guarda y lee ahí la forma de la tabla\n"
                   "  --oscuro               colores oscuros\n"
                   "  --ayuda                esta ayuda");
inline const QString SIN_DATOS = QStringLiteral("No se pueden leer los datos de los puntos (meuse.csv).");

} // namespace plano::textos
