// SPDX-License-Identifier: MIT
// Plataforma: the seams that one table works through, by reference; they outlive the table. Every front
// end, the in-memory platform among them, makes one.
#pragma once

#include "platform/ajustes.h"
#include "platform/almacen_pasos.h"
#include "platform/caja_texto.h"
#include "platform/dialogo_color.h"
#include "platform/dialogo_columnas.h"
#include "platform/dialogo_fichero.h"
#include "platform/ficheros.h"
#include "platform/hoja_calculo.h"
#include "platform/lista_desplegable.h"
#include "platform/marco.h"
#include "platform/mensajes.h"
#include "platform/portapapeles.h"
#include "platform/separador_decimal.h"
#include "platform/vista_tablero.h"

namespace Qlt4_Tabla {

struct Plataforma {
    VistaTablero& vista;
    Marco& marco;
    CajaTexto& casilla;
    ListaDesplegable& lista;
    Mensajes& mensajes;
    const SeparadorDecimal& separador;
    AlmacenPasos& pasos;
    Ajustes& ajustes;
    Ficheros& ficheros;
    DialogoFichero& dialogo_fichero;
    Portapapeles& portapapeles;
    HojaCalculo& hoja_calculo;
    DialogoColor& dialogo_color;
    DialogoColumnas& dialogo_columnas;
};

} // namespace Qlt4_Tabla
