// SPDX-License-Identifier: MIT
// Access to the formats by column, the labels and the selection-change handling. A label is written
// through pon_etiqueta, which tells the frame only of a real change.
#include "core/estado_tabla.h"

#include "base/error.h"
#include "base/numeros.h"
#include "core/textos.h"

#include <string>

namespace Qlt4_Tabla {

namespace {

std::size_t indice_de_columna(int col) {
    if (col < 0 || col >= MAX_COLUMNAS) lanza(NumError::Subindice);
    return static_cast<std::size_t>(col);
}

std::string texto_de_estado(const EstadoTabla& e) {
    std::string texto(textos::numero_de);
    texto += e.nombres.subtitulo();
    texto += textos::igual;
    texto += Str(e.tablero.Rows() - 1);
    return texto;
}

} // namespace

const T_FormatoColumna& formato(const EstadoTabla& e, int col) { return e.Formatos[indice_de_columna(col)]; }

T_FormatoColumna& formato(EstadoTabla& e, int col) { return e.Formatos[indice_de_columna(col)]; }

void refresca_ComaDecimal(EstadoTabla& e) { e.ComaDecimal = e.plataforma.separador.es_coma(); }

void pon_etiqueta(EstadoTabla& e, Etiqueta& etiqueta, std::string_view texto, bool visible) {
    if (etiqueta.texto == texto && etiqueta.visible == visible) return;
    etiqueta.texto = texto;
    etiqueta.visible = visible;
    e.plataforma.marco.etiquetas_cambiadas();
}

void escribe_labNumeroFilas(EstadoTabla& e) {
    Etiqueta& etiqueta = e.etiquetas.labNumeroFilas;
    pon_etiqueta(e, etiqueta, texto_de_estado(e), etiqueta.visible);
}

void escribe_cuenta_filas(EstadoTabla& e, bool visible) {
    std::string texto = e.nombres.subtitulo();
    texto += textos::numero_de_filas;
    texto += Str(e.tablero.Rows() - 1);
    pon_etiqueta(e, e.etiquetas.labNumeroFilas, texto, visible);
}

void recuenta_filas(EstadoTabla& e) {
    if (e.etiquetas.labNumeroFilas.visible) escribe_cuenta_filas(e, true);
}

void muestra_mensaje(EstadoTabla& e, std::string_view texto) {
    pon_etiqueta(e, e.etiquetas.labMensaje, texto, true);
}

void termina_mensaje(EstadoTabla& e) { pon_etiqueta(e, e.etiquetas.labMensaje, texto_de_estado(e), false); }

void olvida_clic(EstadoTabla& e) {
    e.ultimaFilaRaton = -1;
    e.ultimaColRaton = -1;
}

void trata_cambio_seleccion(EstadoTabla& e) {
    termina_mensaje(e);
    e.eventos.SelChange();
}

} // namespace Qlt4_Tabla
