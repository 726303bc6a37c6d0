// SPDX-License-Identifier: MIT
// What becomes of an error at the boundary: its number is found, it goes on or it is shown.
#include "control/guarda.h"

#include "base/numeros.h"
#include "control/textos.h"

#include <exception>
#include <new>
#include <stdexcept>

namespace Qlt4_Tabla {

namespace {

// The exception being handled as a numbered error; one that is no standard exception is thrown on.
Error error_actual() {
    try {
        throw;
    } catch (const Error& e) {
        return e;
    } catch (const std::bad_alloc&) {
        return Error(NumError::SinMemoria);
    } catch (const std::length_error&) {
        return Error(NumError::SinMemoria); // a text or an array longer than any can be
    } catch (const std::exception&) {
        return Error(NumError::LlamadaNoValida);
    }
}

} // namespace

std::string prefijo_miembro(std::string_view miembro) {
    std::string prefijo(textos::antes_de_miembro);
    prefijo += miembro;
    prefijo += textos::antes_de_numero;
    return prefijo;
}

void trata_error(Mensajes& mensajes, const FormaMensaje& forma, const ErroresAlLlamador& pasan) {
    const Error error = error_actual();
    if (pasan.contiene(error.numero())) throw Error(error);
    std::string texto = forma.prefijo;
    texto += numero_a_texto(error.numero());
    texto += forma.antes_de_descripcion;
    texto += error.descripcion();
    texto += forma.al_final;
    mensajes.mensaje(texto, forma.estilo, {});
}

void trata_error(Mensajes& mensajes, std::string_view prefijo, const ErroresAlLlamador& pasan) {
    trata_error(mensajes,
        FormaMensaje{std::string(prefijo), textos::antes_de_descripcion, EstiloMensaje::Critico}, pasan);
}

} // namespace Qlt4_Tabla
