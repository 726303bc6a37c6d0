// SPDX-License-Identifier: MIT
// Mensajes: message boxes, the beep, the screen's mouse pointer and how far a long command is. A message box blocks until the user
// answers; the seam exists so that rules that ask can be run and tested without a person.
#pragma once

#include "base/publico.h"

#include <string_view>

namespace Qlt4_Tabla {

/// Icon and buttons of a message box. The numbers are those of the style a message is quoted with.
enum class EstiloMensaje : int {
    Simple = 0, ///< no icon, OK
    Critico = 16, ///< critical icon, OK
    CriticoSiNo = 20, ///< critical icon, Yes and No
    Informacion = 64, ///< information icon, OK
};

/// What the user answered.
enum class Respuesta : int { Aceptar = 1, Si = 6, No = 7 };

/// The mouse pointer over the whole screen.
enum class Puntero : int { Normal = 0, RelojDeArena = 11 };

class TABLA_API Mensajes {
public:
    virtual ~Mensajes() = default;

    /// Shows `texto` under `titulo` (empty: the program's own name) and waits. Closing a Yes/No box
    /// without an answer gives No. Under the hourglass the user has the usual pointer until then, and the
    /// time it takes is not the command's.
    virtual Respuesta mensaje(std::string_view texto, EstiloMensaje estilo, std::string_view titulo) = 0;
    virtual void pitido() = 0;
    virtual void puntero(Puntero forma) = 0;
    /// What the command under the hourglass does ("Pegando") and how far it is, 0 to 100 per cent, at most
    /// once for each. Shown below the table where the hourglass has stood for a second, painted at once and
    /// without letting the user's events in; gone with the hourglass.
    virtual void avance(std::string_view que, int por_ciento) = 0;
};

/// Shows nothing and answers every question with No.
class MensajesNulos final : public Mensajes {
public:
    Respuesta mensaje(std::string_view, EstiloMensaje estilo, std::string_view) override {
        return estilo == EstiloMensaje::CriticoSiNo ? Respuesta::No : Respuesta::Aceptar;
    }

    void pitido() override {}

    void puntero(Puntero) override {}

    void avance(std::string_view, int) override {}
};

} // namespace Qlt4_Tabla
