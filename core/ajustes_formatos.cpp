// SPDX-License-Identifier: MIT
// The layout of the columns as texts: core/ajustes_formatos.h.
#include "core/ajustes_formatos.h"

#include "base/numeros.h"
#include "core/formatos.h"
#include "core/sin_errores.h"
#include "core/textos.h"

#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

namespace Qlt4_Tabla {

namespace {

constexpr std::string_view DATOS = "Datos";
constexpr std::string_view EXTENSION = "Extension";
constexpr int CAMPO_EXTENSION = 3; // of the names

// The flag under "Visible" tells that the column is hidden; kept so for the layouts that exist.
constexpr std::pair<std::string_view, char> NOMBRE{"Nombre", 'N'};
constexpr std::pair<std::string_view, char> INVISIBLE{"Visible", 'V'};
constexpr std::pair<std::string_view, char> BLOQUEADA{"Bloquea", 'B'};
constexpr std::pair<std::string_view, char> FORMATO{"Formato", 'F'};
constexpr std::pair<std::string_view, char> LONGITUD{"Longitud", 'L'};
constexpr std::pair<std::string_view, char> DECIMALES{"Decimales", 'D'};
constexpr std::pair<std::string_view, char> ALINEACION{"Alineac", 'A'};
constexpr std::pair<std::string_view, char> ACCION{"Accion", 'C'};

// What a column without a key is.
constexpr std::int16_t FORMATO_INICIAL = 4; // text
constexpr std::int16_t LONGITUD_INICIAL = 10;
constexpr std::int16_t DECIMALES_INICIALES = 3;

std::string clave(const std::pair<std::string_view, char>& campo, int col) {
    return clave_de_columna(campo.first, campo.second, col);
}

struct Par {
    std::string clave;
    std::string valor;
};

void junta_columna(const T_FormatoColumna& f, int col, std::vector<Par>& pares) {
    const auto texto = [](bool b) { return std::string(booleano_a_texto(b)); };
    pares.push_back({clave(NOMBRE, col), f.Nombre});
    pares.push_back({clave(INVISIBLE, col), texto(f.Invisible)});
    pares.push_back({clave(BLOQUEADA, col), texto(f.Bloqueada)});
    pares.push_back({clave(FORMATO, col), numero_a_texto(f.Formato)});
    pares.push_back({clave(DECIMALES, col), numero_a_texto(f.Decimales)});
    pares.push_back({clave(LONGITUD, col), numero_a_texto(f.Longitud)});
    pares.push_back({clave(ALINEACION, col), numero_a_texto(f.Alineacion)});
    pares.push_back({clave(ACCION, col), numero_a_texto(f.Accion)});
}

// One section of the store, read value by value; what does not convert leaves its field.
class Lector {
public:
    Lector(const Ajustes& ajustes, std::string_view aplicacion, std::string_view seccion)
        : ajustes_(ajustes), aplicacion_(aplicacion), seccion_(seccion) {}

    void toma(std::string_view clave, bool por_defecto, bool& campo) const {
        sin_errores([&] {
            const auto texto = ajustes_.lee(aplicacion_, seccion_, clave);
            campo = texto ? booleano_de_texto(*texto) : por_defecto;
        });
    }

    void toma(std::string_view clave, std::int16_t por_defecto, std::int16_t& campo) const {
        sin_errores([&] {
            const auto texto = ajustes_.lee(aplicacion_, seccion_, clave);
            campo = texto ? entero16_de_texto(*texto) : por_defecto;
        });
    }

    void toma(std::string_view clave, std::string_view por_defecto, std::string& campo) const {
        sin_errores([&] {
            auto texto = ajustes_.lee(aplicacion_, seccion_, clave);
            campo = texto ? std::move(*texto) : std::string(por_defecto);
        });
    }

private:
    const Ajustes& ajustes_;
    std::string_view aplicacion_;
    std::string_view seccion_;
};

void lee_columna(const Lector& lector, int col, T_FormatoColumna& f) {
    lector.toma(clave(NOMBRE, col), std::string(textos::columna_sin_nombre) + Str(col), f.Nombre);
    lector.toma(clave(INVISIBLE, col), false, f.Invisible);
    lector.toma(clave(BLOQUEADA, col), false, f.Bloqueada);
    lector.toma(clave(FORMATO, col), FORMATO_INICIAL, f.Formato);
    lector.toma(clave(LONGITUD, col), LONGITUD_INICIAL, f.Longitud);
    lector.toma(clave(DECIMALES, col), DECIMALES_INICIALES, f.Decimales);
    lector.toma(clave(ALINEACION, col), std::int16_t{0}, f.Alineacion);
    lector.toma(clave(ACCION, col), std::int16_t{0}, f.Accion);
}

void lee_formatos(EstadoTabla& e, const Lector& lector) {
    std::string extension;
    lector.toma(EXTENSION, textos::extension_de_ajustes, extension);
    e.nombres.Tablero_Pon_Nombre(CAMPO_EXTENSION, true, extension);
    for (int col = 0; col < MAX_COLUMNAS; ++col) lee_columna(lector, col, formato(e, col));
}

} // namespace

std::string clave_de_columna(std::string_view palabra, char letra, int col) {
    std::string clave(palabra);
    clave += letra;
    return clave += Str(col);
}

void Tablero_Graba_Formato_Win(EstadoTabla& e, std::string_view t_apli, std::string_view t_cap) {
    std::vector<Par> pares;
    pares.push_back({std::string(DATOS), std::string(booleano_a_texto(true))});
    pares.push_back({std::string(EXTENSION), e.nombres.extension()});
    for (int col = 0; col < MAX_COLUMNAS; ++col) junta_columna(formato(e, col), col, pares);
    std::vector<Ajuste> ajustes;
    ajustes.reserve(pares.size());
    for (const Par& par : pares) ajustes.push_back({par.clave, par.valor});
    e.plataforma.ajustes.escribe_todos(t_apli, t_cap, ajustes);
}

// Formatting that fails leaves redrawing off; here nobody hears of it, so the grid must be seen.
void Tablero_Lee_Formato_Win(EstadoTabla& e, std::string_view t_apli, std::string_view t_cap) {
    const Lector lector(e.plataforma.ajustes, t_apli, t_cap);
    bool hay_datos = false;
    lector.toma(DATOS, false, hay_datos);
    if (hay_datos) lee_formatos(e, lector);
    sin_errores([&] { Tablero_establece_Formato(e); });
    e.tablero.Redraw(true);
}

} // namespace Qlt4_Tabla
