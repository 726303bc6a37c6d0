// SPDX-License-Identifier: MIT
// Files in memory: headless/ficheros_memoria.h.
#include "headless/ficheros_memoria.h"

#include <algorithm>
#include <utility>

namespace Qlt4_Tabla {

namespace {

[[noreturn]] void lanza_numero(int numero) { throw Error(numero, std::string(descripcion_error(numero))); }

// What a file held when it was opened.
class AbiertoEnMemoria final : public FicheroAbierto {
public:
    AbiertoEnMemoria(std::string contenido, std::uint64_t legibles)
        : contenido_(std::move(contenido)), legibles_(legibles) {}

    [[nodiscard]] std::uint64_t tamano() const override { return contenido_.size(); }

    [[nodiscard]] std::size_t lee(std::uint64_t lugar, char* destino, std::size_t n) override {
        const std::size_t leidos = bytes_.lee(lugar, destino, n);
        if (lugar + leidos > legibles_) lanza(NumError::ErrorES);
        return leidos;
    }

private:
    std::string contenido_;
    std::uint64_t legibles_;
    BytesAbiertos bytes_{contenido_};
};

} // namespace

void FicherosMemoria::falla(std::string_view nombre, int numero) {
    malos_.insert_or_assign(std::string(nombre), numero);
}

void FicherosMemoria::falla_en_paso(int paso, int numero) {
    paso_malo_ = pasos + paso;
    numero_ = numero;
    corte_ = false;
}

void FicherosMemoria::interrumpe_en_paso(int paso) {
    falla_en_paso(paso, static_cast<int>(NumError::ErrorES));
    corte_ = true;
}

void FicherosMemoria::comprueba_nombre(std::string_view nombre) const {
    const auto malo = malos_.find(nombre);
    if (malo != malos_.end() && malo->second != 0) lanza_numero(malo->second);
    if (nombre.empty() || es_carpeta(nombre)) lanza(NumError::AccesoRuta);
    const std::size_t barra = nombre.rfind('/');
    if (barra != std::string_view::npos && barra != 0 && !es_carpeta(nombre.substr(0, barra)))
        lanza(NumError::SinRuta);
}

std::unique_ptr<FicheroAbierto> FicherosMemoria::abre(std::string_view nombre) const {
    comprueba_nombre(nombre);
    const auto f = contenidos.find(nombre);
    if (f == contenidos.end()) lanza(NumError::SinFichero);
    return std::make_unique<AbiertoEnMemoria>(f->second, legibles);
}

void FicherosMemoria::da_paso() {
    if (++pasos == paso_malo_) lanza_numero(numero_);
}

void FicherosMemoria::escribe_al_inicio(std::string_view nombre, const DaBytes& bytes) {
    comprueba_nombre(nombre);
    std::string todo;
    bytes([&todo](std::string_view pieza) { todo += pieza; });
    const auto viejo = contenidos.find(nombre);
    if (viejo != contenidos.end() && viejo->second.size() > todo.size())
        todo += std::string_view(viejo->second).substr(todo.size());
    const std::string nombre_temporal = std::string(nombre) + ".tmp";
    try {
        da_paso();
        std::string& temporal = contenidos[nombre_temporal];
        for (std::size_t i = 0; i < todo.size(); i += PIEZA) {
            da_paso();
            temporal += std::string_view(todo).substr(i, PIEZA);
        }
        da_paso();
    } catch (const Error&) {
        if (!corte_) contenidos.erase(nombre_temporal);
        throw;
    }
    contenidos.erase(nombre_temporal);
    contenidos.insert_or_assign(std::string(nombre), std::move(todo));
}

bool FicherosMemoria::es_carpeta(std::string_view nombre) const {
    return nombre == "/" || carpetas.find(nombre) != carpetas.end();
}

} // namespace Qlt4_Tabla
