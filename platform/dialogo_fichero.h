// SPDX-License-Identifier: MIT
// DialogoFichero: the platform's common dialog for choosing a file. It shows what it is asked and gives
// back what the user chose; the rules around it (texts, settings, names) are in files/.
#pragma once

#include "base/publico.h"

#include <string>

namespace Qlt4_Tabla {

enum class ModoFichero {
    Abrir, ///< only a file that exists can be chosen
    Guardar, ///< a file that exists is only chosen after the user agreed to replace it
};

struct PeticionFichero {
    ModoFichero modo = ModoFichero::Abrir;
    std::string titulo;
    std::string filtro; ///< "text|pattern|text|pattern"; the first one is chosen
    std::string carpeta; ///< shown first; it exists, or the text is empty and the platform chooses
    std::string nombre; ///< file name proposed; may be empty
    std::string extension; ///< without point: goes to a typed name that has none; empty: nothing does
    float izquierda = 0; ///< place of the dialog on the screen, in twips; kept within the screen
    float arriba = 0;
};

struct RespuestaFichero {
    std::string ruta; ///< the whole path chosen; empty when the user cancelled
    float izquierda = 0; ///< where the dialog was when it closed, in twips
    float arriba = 0;
};

class TABLA_API DialogoFichero {
public:
    virtual ~DialogoFichero() = default;

    /// Shows the dialog and waits until the user chose or cancelled.
    [[nodiscard]] virtual RespuestaFichero pide(const PeticionFichero& peticion) = 0;
};

/// Is cancelled at once.
class DialogoFicheroNulo final : public DialogoFichero {
public:
    [[nodiscard]] RespuestaFichero pide(const PeticionFichero& peticion) override {
        return {{}, peticion.izquierda, peticion.arriba};
    }
};

} // namespace Qlt4_Tabla
