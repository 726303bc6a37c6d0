// SPDX-License-Identifier: MIT
// Key codes of the key-down notices and the modifier keys held with them. Letters and digits have
// the code of their upper-case character. Main names: teclas::F2 and its like, Modificadores.
// Codes of typed characters: base/pagina1252.h.
#pragma once

namespace Qlt4_Tabla {

namespace teclas {

inline constexpr int NINGUNA = 0;
inline constexpr int RETROCESO = 8;
inline constexpr int TAB = 9;
inline constexpr int INTRO = 13;
inline constexpr int ESCAPE = 27;
inline constexpr int ESPACIO = 32;
inline constexpr int REPAG = 33;
inline constexpr int AVPAG = 34;
inline constexpr int FIN = 35;
inline constexpr int INICIO = 36;
inline constexpr int IZQUIERDA = 37;
inline constexpr int ARRIBA = 38;
inline constexpr int DERECHA = 39;
inline constexpr int ABAJO = 40;
inline constexpr int INSERTAR = 45;
inline constexpr int SUPR = 46;
inline constexpr int A = 65;
inline constexpr int C = 67;
inline constexpr int V = 86;
inline constexpr int X = 88;
inline constexpr int Y = 89;
inline constexpr int Z = 90;
inline constexpr int MENU = 93;
inline constexpr int F1 = 112;
inline constexpr int F2 = 113;
inline constexpr int F3 = 114;
inline constexpr int F4 = 115;
inline constexpr int F5 = 116;
inline constexpr int F6 = 117;
inline constexpr int F7 = 118;
inline constexpr int F8 = 119;
inline constexpr int F9 = 120;
inline constexpr int F10 = 121;
inline constexpr int F11 = 122;
inline constexpr int F12 = 123;

} // namespace teclas

// The modifier keys held while a key or a mouse button goes down. A set: join with |, ask with
// contiene.
class Modificadores {
public:
    constexpr Modificadores() noexcept = default;

    // The bits as the host's events carry them: 1, 2, 4. Other bits are dropped.
    static constexpr Modificadores de_bits(int bits) noexcept { return Modificadores(bits & 7); }

    constexpr int bits() const noexcept { return bits_; }

    constexpr bool vacio() const noexcept { return bits_ == 0; }

    constexpr bool contiene(Modificadores otros) const noexcept {
        return (bits_ & otros.bits_) == otros.bits_;
    }

    friend constexpr Modificadores operator|(Modificadores a, Modificadores b) noexcept {
        return Modificadores(a.bits_ | b.bits_);
    }

    friend constexpr bool operator==(Modificadores, Modificadores) noexcept = default;

private:
    explicit constexpr Modificadores(int bits) noexcept : bits_(bits) {}

    int bits_ = 0;
};

namespace teclas {

inline constexpr Modificadores MAYUSCULAS = Modificadores::de_bits(1);
inline constexpr Modificadores CONTROL = Modificadores::de_bits(2);
inline constexpr Modificadores ALT = Modificadores::de_bits(4);

} // namespace teclas

} // namespace Qlt4_Tabla
