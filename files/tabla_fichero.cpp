// SPDX-License-Identifier: MIT
// The road between the grid and the bytes of a file: files/tabla_fichero.h.
#include "files/tabla_fichero.h"

#include "base/utf8.h"
#include "core/avance.h"
#include "core/con_memoria.h"
#include "core/formatos.h"
#include "core/reloj_de_arena.h"
#include "core/superficie.h"
#include "files/escritor_tb0.h"
#include "files/lector_tb0.h"
#include "files/texto_1252.h"
#include "files/textos.h"

#include <algorithm>
#include <utility>

namespace Qlt4_Tabla {

namespace {

struct Leido {
    RegistroTb0 registro;
    AlmacenCeldas celdas;
};

/// Every row gets its own number, whatever stands in column 0 of the file.
void lee_celdas(LectorTb0& lector, const RegistroTb0& r, AlmacenCeldas& celdas, Avance avance) {
    celdas.pon_columnas(r.columnas);
    celdas.pon_filas(r.filas);
    celdas.numera();
    celdas.pon_fila(0, 0, lector.siguiente());
    celdas.pon_filas(1, r.filas - 1, 1, [&](int fila) {
        avance.hasta(fila - 1);
        return lector.siguiente().subspan(1);
    });
    avance.hasta(r.filas - 1);
}

/// The whole record, checked.
void lee_registro(const EstadoTabla& e, LectorTb0& lector, Leido& leido) {
    const RegistroTb0& r = lector.cabeza();
    const bool demasiadas = std::int64_t{r.filas} * r.columnas > MAX_CELDAS;
    if (demasiadas)
        for (int fila = 0; fila < r.filas; ++fila) static_cast<void>(lector.siguiente());
    else
        lee_celdas(lector, r, leido.celdas, {e.plataforma.mensajes, textos::leyendo, r.filas - 1});
    leido.registro = lector.final();
    if (demasiadas) lanza(NumError::SinMemoria);
}

Leido lee_y_examina(const EstadoTabla& e, std::string_view nombre) {
    const auto fichero = e.plataforma.ficheros.abre(nombre);
    LectorTb0 lector(*fichero);
    Leido leido;
    try {
        con_memoria([&] { lee_registro(e, lector, leido); });
    } catch (const FalloTb0& fallo) {
        lanza(fallo.numero());
    }
    return leido;
}

/// A name as it stands in a file, without blanks around it.
std::string en_fichero(std::string_view nombre) {
    return std::string(utf8::sin_blancos(de_1252(a_1252(nombre))));
}

// What the table looked like does not come back with it, so that these can be seen at all.
void da_formato_a_desconocidas(EstadoTabla& e) {
    static const T_FormatoColumna NUNCA_DADO;
    const int columnas = std::min(e.tablero.Cols(), MAX_COLUMNAS);
    for (int col = 1; col < columnas; ++col) {
        const auto i = static_cast<std::size_t>(col);
        if (e.Formatos[i] == NUNCA_DADO && e.Formatos_por_defecto[i] == NUNCA_DADO)
            da_formato_inicial(e, col);
    }
}

class Redibujo {
public:
    explicit Redibujo(Tablero& t) : tablero_(t) { tablero_.Redraw(false); }

    ~Redibujo() { tablero_.Redraw(true); }

    Redibujo(const Redibujo&) = delete;
    Redibujo& operator=(const Redibujo&) = delete;

private:
    Tablero& tablero_;
};

void pon_en_tabla(EstadoTabla& e, Leido& leido) {
    Tablero& t = e.tablero;
    const Redibujo redibujo(t);
    t.pon_celdas(std::move(leido.celdas));
    t.TopRow(1);
    e.Formatos[tb0::FORMATO_GUARDADO] = leido.registro.formatos[tb0::FORMATO_GUARDADO];
    da_formato_a_desconocidas(e);
    const int fila = std::min(1, t.Rows() - 1);
    const int col = std::min(1, t.Cols() - 1);
    t.selecciona(fila, col, fila, col);
    t.desplazamiento(0);
    olvida_clic(e);
    e.Modificado = 0;
    termina_mensaje(e);
    Tablero_establece_Formato(e);
}

std::string prefijo(const EstadoTabla& e, std::string_view que) {
    std::string texto(que);
    texto += e.nombres.subtitulo();
    texto += textos::fin_de_linea;
    texto += textos::numero_de_error;
    return texto;
}

} // namespace

void lee_tabla(EstadoTabla& e, std::string_view nombre, const std::function<void()>& al_cambiar) {
    const RelojDeArena reloj(e);
    Leido leido = lee_y_examina(e, nombre);
    al_cambiar();
    pon_en_tabla(e, leido);
}

void lee_tabla_propia(EstadoTabla& e, std::string_view nombre, const std::function<void()>& al_cambiar) {
    {
        const RelojDeArena reloj(e);
        Leido leido = lee_y_examina(e, nombre);
        // Compared as a file can hold it, so that a table always knows what it wrote itself.
        if (utf8::sin_blancos(leido.registro.subtitulo) == en_fichero(e.nombres.subtitulo())) {
            al_cambiar();
            return pon_en_tabla(e, leido);
        }
    }
    std::string texto(textos::el_fichero);
    texto += nombre;
    texto += textos::fin_de_linea;
    texto += textos::no_es;
    texto += e.nombres.subtitulo();
    e.plataforma.mensajes.mensaje(texto, EstiloMensaje::Simple, {});
}

void graba_tabla(EstadoTabla& e, std::string_view nombre) {
    const RelojDeArena reloj(e);
    exige_tb0(e.tablero);
    Avance avance(e.plataforma.mensajes, textos::guardando, e.tablero.Rows() - 1);
    e.plataforma.ficheros.escribe_al_inicio(nombre, [&](const TomaBytes& toma) {
        escribe_tb0(e.tablero, e.nombres.subtitulo(), e.Formatos[tb0::FORMATO_GUARDADO], toma, avance);
    });
    e.Modificado = 0;
}

std::string prefijo_al_leer(const EstadoTabla& e) { return prefijo(e, textos::error_al_leer); }

std::string prefijo_al_guardar(const EstadoTabla& e) { return prefijo(e, textos::error_al_guardar); }

} // namespace Qlt4_Tabla
