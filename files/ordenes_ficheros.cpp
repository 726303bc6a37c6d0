// SPDX-License-Identifier: MIT
// What the open and save commands ask: files/ordenes_ficheros.h.
#include "files/ordenes_ficheros.h"

#include "files/f_archivo.h"
#include "files/textos.h"

#include <initializer_list>
#include <utility>

namespace Qlt4_Tabla {

namespace {

std::string junta(std::initializer_list<std::string_view> partes) {
    std::string texto;
    for (const std::string_view parte : partes) texto += parte;
    return texto;
}

std::string uno_u_otro(std::string uno, std::string otro) {
    return uno.empty() ? std::move(otro) : std::move(uno);
}

/// "&" would mark a key in a caption: a name is shown with it doubled.
std::string en_menu(std::string_view nombre) {
    std::string texto;
    for (const char c : nombre) texto.append(c == '&' ? 2 : 1, c);
    return texto;
}

std::string titulo_al_abrir(std::string_view nombre) {
    return junta({textos::abrir_antes, nombre, textos::abrir_despues});
}

std::string titulo_al_guardar(std::string_view nombre) {
    return junta({textos::guardar_antes, nombre, textos::guardar_despues});
}

F_Archivo prepara(EstadoTabla& e) {
    F_Archivo f(e.plataforma);
    const std::string patron = e.nombres.extension();
    f.A_Filtro_archivos =
        junta({textos::filtro_antes, patron, textos::filtro_medio, patron, textos::filtro_despues});
    f.A_Aplicacion = uno_u_otro(e.nombres.titulo(), std::string(textos::aplicacion_sin_titulo));
    return f;
}

/// The dialog names what the table holds, the menu the table.
std::string nombre_en_dialogo(const EstadoTabla& e) {
    return uno_u_otro(e.nombres.subtitulo(), e.nombres.titulo());
}

std::string nombre_en_menu(const EstadoTabla& e) {
    return uno_u_otro(e.nombres.titulo(), e.nombres.subtitulo());
}

} // namespace

std::string_view Aviso_Perder_Datos(EstadoTabla& e) {
    if (e.Modificado == 0) return textos::no;
    const Respuesta r =
        e.plataforma.mensajes.mensaje(textos::aviso_perder_datos, EstiloMensaje::CriticoSiNo, {});
    return r == Respuesta::Si ? textos::no : textos::si;
}

std::string elige_fichero_de_lectura(EstadoTabla& e) {
    F_Archivo f = prepara(e);
    f.A_Titulo = titulo_al_abrir(nombre_en_dialogo(e));
    f.A_leer();
    return f.A_ruta_y_archivo();
}

std::string elige_fichero_de_grabacion(EstadoTabla& e) {
    F_Archivo f = prepara(e);
    f.A_Titulo = titulo_al_guardar(nombre_en_dialogo(e));
    f.A_grabar();
    return f.A_ruta_y_archivo();
}

void pon_titulos_de_ficheros(EstadoTabla& e) {
    const std::string nombre = en_menu(nombre_en_menu(e));
    e.menus[Opcion::Mnu_Tabla_Leer].titulo = titulo_al_abrir(nombre);
    e.menus[Opcion::Mnu_Tabla_Guardar_como].titulo = titulo_al_guardar(nombre);
    e.plataforma.marco.menus_cambiados();
}

} // namespace Qlt4_Tabla
