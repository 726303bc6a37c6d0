// SPDX-License-Identifier: MIT
// What the adapter and its helper program say to each other: messages of a name and a body. Main names:
// Mensaje, cabecera, LectorMensajes. Both sides use this file; the order of the messages is below.
//
//   adapter     "aplicacion" lines "key=value"       starts or finds the program; first of all
//               "libro"                              a new workbook is about to be filled
//               "muestra"    language, sheet, block  fills it and shows it: two lines, then a CSV text
//               "suelta"                             lets go; the helper ends
//   helper      "oficina"    process id              a program was started, in a session of its own; no answer
//               "bien"                               the answer where all went well
//               "error"      number                  the answer where it did not: 429, 462 or 1004
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace Qlt4_Tabla {

namespace mensaje {
inline constexpr std::string_view aplicacion = "aplicacion";
inline constexpr std::string_view libro = "libro";
inline constexpr std::string_view muestra = "muestra";
inline constexpr std::string_view suelta = "suelta";
inline constexpr std::string_view oficina = "oficina";
inline constexpr std::string_view bien = "bien";
inline constexpr std::string_view error = "error";
} // namespace mensaje

/// Keys of "aplicacion"; each may be left out.
namespace clave {
inline constexpr std::string_view sin_pantalla = "sin_pantalla"; ///< "1": without a window
inline constexpr std::string_view perfil = "perfil"; ///< folder of the program's user profile
inline constexpr std::string_view tuberia = "tuberia"; ///< name of the pipe; left out: a random one
} // namespace clave

/// A message as bytes: the line "name length", then the body, of that many bytes.
struct Mensaje {
    std::string nombre;
    std::string cuerpo;
};

/// The line before a body of so many bytes.
[[nodiscard]] std::string cabecera(std::string_view nombre, std::size_t longitud);

/// Makes messages of the bytes that come in, in pieces of any size.
class LectorMensajes {
public:
    /// A body longer than this is not one of ours.
    explicit LectorMensajes(std::size_t cuerpo_maximo) : maximo_(cuerpo_maximo) {}

    void anade(std::string_view bytes) { pendiente_.append(bytes); }

    /// The next message; nothing while it is not there whole. Error 462 where the bytes are no message.
    [[nodiscard]] std::optional<Mensaje> siguiente();

private:
    /// The name and the length of the body are in front, as a line; false while the line has no end yet.
    [[nodiscard]] bool lee_cabecera();

    std::size_t maximo_;
    std::string pendiente_;
    std::optional<Mensaje> empezado_; // its line was read; its body is still to come
    std::size_t falta_ = 0;
};

/// Takes the first line from the front of a text, without its end; all of the text where it has none.
[[nodiscard]] std::string_view toma_linea(std::string_view& texto);

} // namespace Qlt4_Tabla
