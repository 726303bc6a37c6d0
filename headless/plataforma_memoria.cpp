// SPDX-License-Identifier: MIT
// The recording fakes of the seams and their joining. See the header for the form of the lines.
#include "headless/plataforma_memoria.h"

#include "base/error.h"

#include <algorithm>

namespace Qlt4_Tabla {

Respuesta MensajesMemoria::mensaje(std::string_view texto, EstiloMensaje estilo, std::string_view titulo) {
    vistos.push_back({std::string(texto), estilo, std::string(titulo)});
    std::string linea = "mensaje|" + std::to_string(static_cast<int>(estilo)) + '|';
    linea += titulo;
    linea += '|';
    linea += texto;
    registro_->push_back(std::move(linea));
    if (respuestas.empty()) return estilo == EstiloMensaje::CriticoSiNo ? Respuesta::No : Respuesta::Aceptar;
    const Respuesta respuesta = respuestas.front();
    respuestas.pop_front();
    return respuesta;
}

void MensajesMemoria::pitido() {
    ++pitidos;
    registro_->emplace_back("pitido");
}

void MensajesMemoria::puntero(Puntero nueva) {
    forma = nueva;
    registro_->push_back("puntero " + std::to_string(static_cast<int>(nueva)));
}

void MensajesMemoria::avance(std::string_view que, int por_ciento) {
    registro_->push_back("avance " + std::string(que) + ' ' + std::to_string(por_ciento));
}

void MarcoMemoria::pon_tamano(float ancho, float alto) {
    ++veces_tamano;
    ancho_ = std::max(ancho, 0.0F);
    alto_ = std::max(alto, 0.0F);
}

void MarcoMemoria::abre_menu(Menu menu, DondeMenu donde) {
    static constexpr std::string_view MENUS[] = {"mn_raton", "mn_cambio", "Mn_Especial_puntos", "mn_raton3"};
    static constexpr std::string_view SITIOS[] = {"raton", "celda", "boton"};
    abierto = {menu, donde};
    registro_->push_back(std::string("menu ")
                             .append(MENUS[static_cast<std::size_t>(menu)])
                             .append(" ")
                             .append(SITIOS[static_cast<std::size_t>(donde)]));
}

void MarcoMemoria::propiedad_cambiada(std::string_view nombre) {
    registro_->push_back("propiedad " + std::string(nombre));
}

void MarcoMemoria::enfoca_tablero() {
    ++veces_enfoca;
    foco_->pide(Foco::Tablero);
}

void PasosMemoria::graba_paso() {
    ++capturas;
    registro_->emplace_back("captura");
    if (al_capturar) al_capturar();
}

void PasosMemoria::restaura_paso(int paso) { registro_->push_back("restaura " + std::to_string(paso)); }

void BolsaMemoria::falla_en(std::string_view clave, int numero) {
    clave_mala_ = clave;
    numero_ = numero;
}

void BolsaMemoria::anota(std::string_view clave) const {
    if (numero_ != 0 && (clave_mala_.empty() || clave_mala_ == clave))
        throw Error(numero_, std::string(descripcion_error(numero_)));
    claves.emplace_back(clave);
}

void BolsaMemoria::escribe(std::string_view clave, const Variante& valor) {
    anota(clave);
    valores.insert_or_assign(std::string(clave), valor);
}

Variante BolsaMemoria::lee(std::string_view clave, const Variante& por_defecto) const {
    anota(clave);
    const auto i = valores.find(clave);
    return i == valores.end() ? por_defecto : i->second;
}

void EventosMemoria::ACambiadoValorCombo(std::int32_t& Mouse_Row, std::int32_t& Mouse_Col) {
    sucede("ACambiadoValorCombo " + std::to_string(Mouse_Row) + ' ' + std::to_string(Mouse_Col));
}

void EventosMemoria::sucede(const std::string& evento) {
    registro_->push_back(evento);
    if (al_suceder) al_suceder(evento);
}

Plataforma PlataformaMemoria::plataforma(VistaTablero& otra_vista) {
    return {otra_vista, marco, casilla, lista, mensajes, separador, pasos, ajustes, ficheros, dialogo_fichero,
        portapapeles, hoja_calculo, dialogo_color, dialogo_columnas};
}

} // namespace Qlt4_Tabla
