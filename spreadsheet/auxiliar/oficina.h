// SPDX-License-Identifier: MIT
// Oficina: the connection of the helper program to LibreOffice by a pipe, and the start of LibreOffice where
// nobody answers there. Failures: Error 429; the exceptions of UNO go on.
#pragma once

#include <com/sun/star/frame/XDesktop2.hpp>
#include <com/sun/star/uno/XComponentContext.hpp>
#include <string>
#include <sys/types.h>

namespace Qlt4_Tabla {

struct OpcionesOficina {
    std::string perfil; ///< folder of the user profile; empty: the user's own
    std::string tuberia; ///< empty: a random name
    bool sin_pantalla = false;
};

class Oficina {
public:
    /// Connects, for as long as it takes and the adapter is there. A process that was started is told to the
    /// adapter at once.
    explicit Oficina(const OpcionesOficina& opciones);

    [[nodiscard]] const css::uno::Reference<css::uno::XComponentContext>& contexto() const {
        return contexto_;
    }

    /// Its windows and documents.
    [[nodiscard]] css::uno::Reference<css::frame::XDesktop2> escritorio() const;
    /// Can it read texts into sheets? It cannot where only its other programs are installed.
    [[nodiscard]] bool tiene_calc() const;
    /// Ends a program that was started here and shows nothing.
    void cierra_si_sobra();

private:
    void arranca(const OpcionesOficina& opciones, const std::string& tuberia);
    /// Has the process that was started ended with a failure? One that ended well handed the work to an office
    /// that was running already.
    [[nodiscard]] bool ha_fallado() const;

    css::uno::Reference<css::uno::XComponentContext> contexto_;
    pid_t arrancada_ = -1;
};

} // namespace Qlt4_Tabla
