// SPDX-License-Identifier: MIT
// The helper program of the spreadsheet adapter: obeys the messages of spreadsheet/protocolo.h that come from
// its standard input, and ends when they end. It alone links LibreOffice.
#include "base/error.h"
#include "spreadsheet/auxiliar/libro.h"
#include "spreadsheet/auxiliar/oficina.h"
#include "spreadsheet/auxiliar/tubo.h"

#include <com/sun/star/lang/DisposedException.hpp>
#include <cstdlib>
#include <optional>
#include <signal.h>

namespace {

using namespace Qlt4_Tabla;

constexpr std::size_t CUERPO_MAXIMO = 0x7FFFFFFF; // of a sequence of UNO

OpcionesOficina lee_opciones(std::string_view lineas) {
    OpcionesOficina o;
    while (!lineas.empty()) {
        const std::string_view linea = toma_linea(lineas);
        const std::size_t igual = linea.find('=');
        if (igual == std::string_view::npos) continue;
        const std::string_view que = linea.substr(0, igual);
        const std::string_view valor = linea.substr(igual + 1);
        if (que == clave::sin_pantalla) o.sin_pantalla = valor == "1";
        if (que == clave::perfil) o.perfil = valor;
        if (que == clave::tuberia) o.tuberia = valor;
    }
    return o;
}

class Auxiliar {
public:
    void obedece(const Mensaje& m) {
        if (m.nombre == mensaje::aplicacion) {
            oficina_.emplace(lee_opciones(m.cuerpo));
            if (!oficina_->tiene_calc()) lanza(NumError::SinComponente);
        } else if (!oficina_) {
            lanza(NumError::ServidorPerdido);
        } else if (m.nombre == mensaje::libro) {
            static_cast<void>(oficina_->escritorio()); // fails where the office has gone
        } else if (m.nombre == mensaje::muestra) {
            muestra(m.cuerpo);
        } else if (m.nombre == mensaje::suelta) {
            suelta();
        }
    }

    /// Closes what was never shown.
    void suelta() {
        if (oficina_ && !mostrado_) oficina_->cierra_si_sobra();
        oficina_.reset();
    }

private:
    void muestra(std::string_view cuerpo) {
        const std::string_view lengua = toma_linea(cuerpo);
        const std::string_view hoja = toma_linea(cuerpo);
        Libro libro(*oficina_, lengua, hoja, cuerpo);
        libro.muestra();
        mostrado_ = true;
    }

    std::optional<Oficina> oficina_;
    bool mostrado_ = false;
};

/// The number of the error in which the work ended; 0: none.
template <class Trabajo>
int error_de(Trabajo&& trabajo) {
    try {
        trabajo();
        return 0;
    } catch (const Error& e) {
        return e.numero();
    } catch (const css::lang::DisposedException&) {
        return static_cast<int>(NumError::ServidorPerdido);
    } catch (const css::uno::Exception&) {
        return static_cast<int>(NumError::ErrorAplicacion);
    } catch (const std::exception&) {
        return static_cast<int>(NumError::ErrorAplicacion);
    }
}

} // namespace

// No tidy end: the bridge to an office that has gone may hang or crash while it is taken down.
int main() {
    ::signal(SIGPIPE, SIG_IGN);
    LectorMensajes lector(CUERPO_MAXIMO);
    Auxiliar auxiliar;
    bool fin = false;
    const int perdido = error_de([&] {
        while (!fin) {
            const std::optional<Mensaje> m = pide(lector);
            if (!m) break;
            fin = m->nombre == mensaje::suelta;
            const int error = error_de([&] { auxiliar.obedece(*m); });
            if (error == 0)
                responde(mensaje::bien);
            else
                responde(mensaje::error, std::to_string(error));
        }
    });
    if (!fin) static_cast<void>(error_de([&] { auxiliar.suelta(); }));
    std::_Exit(perdido == 0 ? EXIT_SUCCESS : EXIT_FAILURE);
}
