// SPDX-License-Identifier: MIT
// The export as messages to the helper program: spreadsheet/hoja_libreoffice.h.
#include "spreadsheet/hoja_libreoffice.h"

#include "spreadsheet/busca_auxiliar.h"
#include "spreadsheet/textos.h"

#include <charconv>
#include <cstdlib>
#include <utility>

namespace Qlt4_Tabla {

namespace {

// Languages by their Windows identifiers, as Calc's text import names them.
constexpr std::string_view INGLES = "1033";
constexpr std::string_view ESPANOL = "3082";

bool hay_pantalla() {
    for (const char* variable : {"DISPLAY", "WAYLAND_DISPLAY"}) {
        const char* const valor = std::getenv(variable);
        if (valor != nullptr && *valor != '\0') return true;
    }
    return false;
}

std::string opcion(std::string_view clave, std::string_view valor) {
    return valor.empty() ? std::string() : std::string(clave) + '=' + std::string(valor) + '\n';
}

int numero(std::string_view cifras) {
    int n = 0;
    std::from_chars(cifras.data(), cifras.data() + cifras.size(), n);
    return n;
}

[[noreturn]] void lanza_del_auxiliar(int n) {
    for (const NumError conocido : {NumError::SinComponente, NumError::ServidorPerdido})
        if (n == static_cast<int>(conocido)) lanza(conocido);
    lanza(NumError::ErrorAplicacion);
}

ProcesoAuxiliar::Plazo dentro_de(std::chrono::milliseconds tiempo) {
    return std::chrono::steady_clock::now() + tiempo;
}

} // namespace

HojaLibreOffice::HojaLibreOffice(const SeparadorDecimal& separador, OpcionesHoja opciones)
    : separador_(separador), opciones_(std::move(opciones)) {}

HojaLibreOffice::~HojaLibreOffice() { mata(); }

void HojaLibreOffice::crea_aplicacion() {
    mata();
    if (!opciones_.sin_pantalla && !hay_pantalla()) lanza(NumError::SinComponente);
    const std::filesystem::path programa = opciones_.auxiliar.empty()
        ? busca_auxiliar(carpetas_del_auxiliar())
        : std::filesystem::path(opciones_.auxiliar);
    if (programa.empty()) lanza(NumError::SinComponente);
    perdido_ = NumError::SinComponente;
    auxiliar_ = std::make_unique<ProcesoAuxiliar>(programa);
    const std::string opciones = opcion(clave::sin_pantalla, opciones_.sin_pantalla ? "1" : "") +
        opcion(clave::perfil, opciones_.perfil) + opcion(clave::tuberia, opciones_.tuberia);
    try {
        ordena(mensaje::aplicacion, opciones, {}, dentro_de(opciones_.para_conectar));
    } catch (const Error&) {
        mata();
        throw;
    }
    perdido_ = NumError::ServidorPerdido;
}

void HojaLibreOffice::anade_libro() { ordena(mensaje::libro, {}, {}, dentro_de(opciones_.por_operacion)); }

void HojaLibreOffice::toma_primera_hoja() {
    if (!auxiliar_) lanza(NumError::ServidorPerdido);
    bloque_.vacia();
}

void HojaLibreOffice::escribe_celda(int fila, int col, std::string_view texto) {
    bloque_.pon(fila, col, texto);
}

void HojaLibreOffice::muestra() {
    const std::string como =
        std::string(separador_.es_coma() ? ESPANOL : INGLES) + '\n' + std::string(textos::nombre_hoja) + '\n';
    ordena(mensaje::muestra, como, bloque_.texto(), dentro_de(opciones_.por_operacion));
    bloque_.vacia();
    oficina_ = 0; // it belongs to the user now
}

void HojaLibreOffice::suelta() {
    bloque_.vacia();
    if (!auxiliar_) return;
    const Plazo hasta = dentro_de(opciones_.por_operacion);
    try {
        ordena(mensaje::suelta, {}, {}, hasta);
        oficina_ = 0; // the helper has closed what was never shown
        auxiliar_->espera_el_fin(hasta);
    } catch (const Error&) {
        mata();
        throw;
    }
    mata();
}

void HojaLibreOffice::ordena(
    std::string_view nombre, std::string_view opciones, std::string_view bloque, Plazo hasta) {
    if (!auxiliar_) lanza(NumError::ServidorPerdido);
    const std::string principio = cabecera(nombre, opciones.size() + bloque.size()) + std::string(opciones);
    if (!auxiliar_->envia(principio, hasta) || !auxiliar_->envia(bloque, hasta)) pierde();
    atiende_respuesta(hasta);
}

void HojaLibreOffice::atiende_respuesta(Plazo hasta) {
    for (;;) {
        const std::optional<Mensaje> respuesta = auxiliar_->recibe(hasta);
        if (!respuesta) pierde();
        if (respuesta->nombre == mensaje::bien) return;
        if (respuesta->nombre == mensaje::error) lanza_del_auxiliar(numero(respuesta->cuerpo));
        if (respuesta->nombre != mensaje::oficina) pierde();
        oficina_ = numero(respuesta->cuerpo);
    }
}

void HojaLibreOffice::pierde() {
    mata();
    lanza(perdido_);
}

// The office first: as long as the helper lives nobody else can have its number.
void HojaLibreOffice::mata() {
    mata_sesion(std::exchange(oficina_, 0));
    auxiliar_.reset();
}

} // namespace Qlt4_Tabla
