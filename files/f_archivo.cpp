// SPDX-License-Identifier: MIT
// What the file dialog remembers and where it opens: files/f_archivo.h.
#include "files/f_archivo.h"

#include "base/numeros.h"
#include "base/rutas.h"
#include "core/sin_errores.h"
#include "files/textos.h"

#include <array>
#include <cmath>
#include <optional>
#include <utility>

namespace Qlt4_Tabla {

namespace {

constexpr float LUGAR_INICIAL = 1000; // twips
constexpr double LUGAR_MAXIMO = 1e7; // beyond any screen

/// The extension of the filter's first pattern.
std::string_view extension_de_filtro(std::string_view filtro) {
    const std::size_t barra = filtro.find('|');
    if (barra == std::string_view::npos) return {};
    filtro.remove_prefix(barra + 1);
    return extension_de_patron(filtro.substr(0, filtro.find('|')));
}

} // namespace

std::string F_Archivo::A_Nombre_Fch() const { return std::string(parte_ruta(ruta_).nombre); }

std::string F_Archivo::A_Ruta_Fch() const { return std::string(parte_ruta(ruta_).carpeta); }

void F_Archivo::muestra(ModoFichero modo) {
    ruta_.clear();
    Recuerdo recuerdo = carga();
    PeticionFichero peticion;
    peticion.modo = modo;
    peticion.titulo = A_Titulo;
    peticion.filtro = A_Filtro_archivos;
    peticion.extension = extension_de_filtro(A_Filtro_archivos);
    peticion.izquierda = recuerdo.izquierda;
    peticion.arriba = recuerdo.arriba;
    pon_lugar(recuerdo.directorio_y_nombre, peticion);
    if (!A_nombre_por_defecto.empty()) peticion.nombre = A_nombre_por_defecto;

    RespuestaFichero respuesta = plataforma_.dialogo_fichero.pide(peticion);
    ruta_ = std::move(respuesta.ruta);
    recuerdo.izquierda = respuesta.izquierda;
    recuerdo.arriba = respuesta.arriba;
    if (!ruta_.empty()) recuerdo.directorio_y_nombre = ruta_;
    sin_errores([&] { descarga(recuerdo); });
}

F_Archivo::Recuerdo F_Archivo::carga() const {
    auto directorio =
        plataforma_.ajustes.lee(A_Aplicacion, textos::seccion_ficheros, textos::clave_directorio);
    return {std::move(directorio).value_or(std::string(textos::directorio_inicial)),
        numero(textos::clave_izquierda), numero(textos::clave_arriba)};
}

/// A place that is missing, no number or on no screen is the one of the first use.
float F_Archivo::numero(std::string_view clave) const {
    const auto texto = plataforma_.ajustes.lee(A_Aplicacion, textos::seccion_ficheros, clave);
    std::optional<double> n;
    if (texto) sin_errores([&] { n = numero_de_texto(*texto); });
    return n && std::abs(*n) <= LUGAR_MAXIMO ? static_cast<float>(*n) : LUGAR_INICIAL;
}

// The default text is a folder's name, also where there is no such folder.
void F_Archivo::pon_lugar(std::string_view directorio_y_nombre, PeticionFichero& peticion) const {
    const Ficheros& ficheros = plataforma_.ficheros;
    const bool es_carpeta =
        directorio_y_nombre == textos::directorio_inicial || ficheros.es_carpeta(directorio_y_nombre);
    const PartesRuta partes =
        es_carpeta ? PartesRuta{directorio_y_nombre, {}} : parte_ruta(directorio_y_nombre);
    peticion.nombre = partes.nombre;
    peticion.carpeta =
        ficheros.es_carpeta(partes.carpeta) ? std::string(partes.carpeta) : ficheros.carpeta_personal();
}

void F_Archivo::descarga(const Recuerdo& recuerdo) const {
    const std::string izquierda = numero_a_texto(recuerdo.izquierda);
    const std::string arriba = numero_a_texto(recuerdo.arriba);
    const std::array<Ajuste, 3> ajustes{{{textos::clave_directorio, recuerdo.directorio_y_nombre},
        {textos::clave_izquierda, izquierda}, {textos::clave_arriba, arriba}}};
    plataforma_.ajustes.escribe_todos(A_Aplicacion, textos::seccion_ficheros, ajustes);
}

} // namespace Qlt4_Tabla
