// SPDX-License-Identifier: MIT
// The palette as constant data: the table, the differences of its key list, and the key list itself,
// sorted by the compiler and searched by halves.
#include "colours/paleta.h"

#include "base/numeros.h"
#include "colours/textos.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace Qlt4_Tabla {

namespace {

constexpr std::int32_t BLANCO = 0xFFFFFF;

// Screen colour of each palette index; the index of a line's first entry stands behind it.
// clang-format off
constexpr std::array<std::int32_t, 256> PALETA{
    0x807C80, 0x0000FF, 0x00FFFF, 0x00FF00, 0xFFFF00, 0xFF0000, 0xFF00FF, 0xFFFFFF, // 0
    0x807C80, 0xC0BCC0, 0x0000FF, 0x807CFF, 0x0000D0, 0x6064C8, 0x000098, 0x484C98,
    0x000080, 0x383C78, 0x202448, 0x282450, 0x003CFF, 0x809CFF, 0x0034C8, 0x687CD0, // 16
    0x002498, 0x505C98, 0x001C80, 0x404C80, 0x001450, 0x282C48, 0x007CFF, 0x80BCFF,
    0x0064C8, 0x689CD0, 0x004C98, 0x5074A0, 0x003C80, 0x405C80, 0x002450, 0x283448, // 32
    0x00BCFF, 0x80DCFF, 0x0094C8, 0x68B4D0, 0x006C98, 0x508498, 0x005C80, 0x406C80,
    0x003C50, 0x283C48, 0x00FCFF, 0x80FCFF, 0x00CCD0, 0x60CCC8, 0x009498, 0x489498, // 48
    0x007C80, 0x407C80, 0x004C48, 0x284C50, 0x00FCC0, 0x80FCE0, 0x00CC98, 0x60CCB0,
    0x009470, 0x489480, 0x007C60, 0x387C68, 0x004C38, 0x284C40, 0x00FC78, 0x80FCC0, // 64
    0x00CC68, 0x60CC98, 0x009450, 0x489470, 0x007C40, 0x407C60, 0x004C20, 0x284C38,
    0x00FC40, 0x80FCA0, 0x00CC30, 0x68CC80, 0x009428, 0x509C60, 0x007C20, 0x407C50, // 80
    0x004C18, 0x284C30, 0x00FC00, 0x80FC80, 0x00CC00, 0x68CC68, 0x009400, 0x509C50,
    0x007C00, 0x407C40, 0x004C00, 0x284C28, 0x38FC00, 0xA0FC80, 0x30CC00, 0x80CC60, // 96
    0x289400, 0x589448, 0x207C00, 0x507C40, 0x104C00, 0x304C28, 0x80FC00, 0xC0FC80,
    0x68CC00, 0x98CC60, 0x509400, 0x709448, 0x407C00, 0x587C38, 0x204C00, 0x384C28, // 112
    0xB8FC00, 0xE0FC80, 0x98CC00, 0xB0CC60, 0x709400, 0x809448, 0x607C00, 0x707C40,
    0x384C00, 0x404C28, 0xFFFC00, 0xFFFC80, 0xC8CC00, 0xD0CC68, 0x989400, 0xA09C50, // 128
    0x807C00, 0x807C40, 0x504C00, 0x484C28, 0xFFBC00, 0xFFDC80, 0xC89400, 0xD0B468,
    0x986C00, 0x988450, 0x805C00, 0x806C40, 0x503C00, 0x483C28, 0xFF7C00, 0xFFBC80, // 144
    0xC86400, 0xD09C68, 0x984C00, 0xA07450, 0x803C00, 0x805C40, 0x502400, 0x483428,
    0xFF3C00, 0xFF9C80, 0xD03400, 0xC87C60, 0x982400, 0x985C48, 0x801C00, 0x784C38, // 160
    0x480C00, 0x502C28, 0xFF0000, 0xFF7C80, 0xD00000, 0xC86460, 0x980000, 0x984C48,
    0x800000, 0x803C40, 0x480000, 0x502428, 0xFF0040, 0xFF7CA0, 0xC80030, 0xD06480, // 176
    0x980028, 0xA04C60, 0x800020, 0x803C50, 0x500018, 0x482430, 0xFF0080, 0xFF7CC0,
    0xC80068, 0xD064A0, 0x980048, 0x984C78, 0x800040, 0x803C60, 0x500028, 0x482438, // 192
    0xFF00C0, 0xFF7CE0, 0xC80098, 0xD064B8, 0x980070, 0xA04C88, 0x800060, 0x803C70,
    0x500038, 0x482440, 0xFF00FF, 0xFF7CFF, 0xD000D0, 0xC864C8, 0x980098, 0x984C98, // 208
    0x800080, 0x783C78, 0x480048, 0x502450, 0xB800FF, 0xE07CFF, 0x9800D0, 0xB064C8,
    0x700098, 0x804C98, 0x600080, 0x703C80, 0x380048, 0x402450, 0x8000FF, 0xC07CFF, // 224
    0x6800D0, 0x9864C8, 0x500098, 0x704C98, 0x400080, 0x583C78, 0x200048, 0x382450,
    0x4000FF, 0xA07CFF, 0x3000C8, 0x8064D0, 0x280098, 0x604C98, 0x200080, 0x503C80, // 240
    0x180050, 0x302448, 0x303430, 0x605C60, 0x808480, 0xB0ACB0, 0xD8D4D8, 0xFFFFFF,
};
// clang-format on

struct Clave {
    std::int32_t color = 0;
    std::int16_t indice = 0;

    friend constexpr bool operator<(const Clave& a, const Clave& b) {
        return a.color != b.color ? a.color < b.color : a.indice < b.indice;
    }
};

struct Distinta {
    std::size_t indice = 0;
    std::int32_t color = 0;
};

// Where the key of an index is not its palette colour; intended, the conversions are published so.
// clang-format off
constexpr std::array DISTINTAS{std::to_array<Distinta>({
    {12, 0x0000C8}, {17, 0x403C80}, {18, 0x000050}, {22, 0x000548}, {28, 0x001448}, {32, 0x0064D0},
    {34, 0x004CA0}, {38, 0x002448}, {42, 0x009CD0}, {44, 0x007498}, {46, 0x000940}, {48, 0x003448},
    {51, 0x78FCFF}, {52, 0x00CCC8}, {54, 0x000EDC}, {58, 0x004C50}, {64, 0x000026}, {66, 0x000C70},
    {67, 0x407C70}, {71, 0x78FCB8}, {72, 0x001470}, {74, 0x000ED4}, {78, 0x004C28}, {82, 0x00146C},
    {84, 0x009C28}, {88, 0x004C10}, {94, 0x009C00}, {101, 0x98FC78}, {104, 0x209400}, {108, 0x184C00},
    {112, 0x60CC00}, {114, 0x489400}, {117, 0x607C40}, {118, 0x284C00}, {121, 0xD8FC78}, {132, 0xD0CC00},
    {134, 0xA09C00}, {138, 0x484C00}, {142, 0xD09C00}, {144, 0x987400}, {148, 0x483400}, {152, 0xD06400},
    {154, 0xA04C00}, {158, 0x482400}, {162, 0xC82C00}, {167, 0x804C40}, {168, 0x501400}, {171, 0xFF7C78},
    {172, 0xC80000}, {178, 0x500000}, {182, 0xD00038}, {184, 0xA00028}, {188, 0x480010}, {192, 0xD00068},
    {194, 0x980050}, {198, 0x480028}, {202, 0xD00098}, {204, 0xA00078}, {208, 0x480038}, {212, 0xC800C8},
    {217, 0x803C80}, {218, 0x500050}, {221, 0xD87CFF}, {222, 0x9800C8}, {228, 0x380050}, {232, 0x6000C8},
    {234, 0x480098}, {237, 0x603C80}, {238, 0x280050}, {242, 0x3800D0}, {248, 0x100048},
})};
// clang-format on

struct Claves {
    std::array<Clave, PALETA.size()> todas{};
    std::size_t cuantas = 0;
};

// Sorted by colour, one key a colour: the lowest index from 1 on.
consteval Claves crea_claves() {
    std::array<std::int32_t, PALETA.size()> colores = PALETA;
    for (const Distinta& d : DISTINTAS) colores[d.indice] = d.color;
    Claves claves;
    for (std::size_t i = 1; i < colores.size(); ++i)
        claves.todas[claves.cuantas++] = {colores[i], static_cast<std::int16_t>(i)};
    const auto fin = claves.todas.begin() + static_cast<std::ptrdiff_t>(claves.cuantas);
    std::sort(claves.todas.begin(), fin);
    const auto corte = std::unique(
        claves.todas.begin(), fin, [](const Clave& a, const Clave& b) { return a.color == b.color; });
    claves.cuantas = static_cast<std::size_t>(corte - claves.todas.begin());
    return claves;
}

constexpr Claves CLAVES = crea_claves();

// Indices whose names a screen colour is given by.
constexpr std::int16_t ULTIMO_CON_NOMBRE = 9;

const Clave* busca(std::int32_t color) noexcept {
    const Clave* fin = CLAVES.todas.data() + CLAVES.cuantas;
    const Clave* clave = std::lower_bound(CLAVES.todas.data(), fin, Clave{color, 0});
    return clave != fin && clave->color == color ? clave : nullptr;
}

} // namespace

std::int32_t paleta_a_pantalla(std::int32_t indice) noexcept {
    if (indice < 0 || indice > 254) return BLANCO;
    return PALETA[static_cast<std::size_t>(indice)];
}

std::int16_t pantalla_a_paleta(std::int32_t color) noexcept {
    const Clave* clave = busca(color);
    return clave == nullptr ? INDICE_BLANCO : clave->indice;
}

std::string nombre_a_numero(std::string_view nombre) {
    const auto& nombres = textos::nombres_color;
    const auto hallado = std::find(nombres.begin(), nombres.end(), nombre);
    if (hallado == nombres.end()) return std::string(nombre);
    return numero_a_texto(hallado - nombres.begin());
}

std::string numero_a_nombre(std::int32_t indice) {
    if (indice >= 0 && indice <= ULTIMO_CON_NOMBRE)
        return std::string(textos::nombres_color[static_cast<std::size_t>(indice)]);
    return Str(indice).substr(1);
}

std::string numero_a_nombre(std::int16_t indice) { return numero_a_nombre(std::int32_t{indice}); }

std::string pantalla_a_nombre(std::int32_t color) {
    const Clave* clave = busca(color);
    return clave == nullptr ? numero_a_texto(INDICE_BLANCO) : numero_a_nombre(clave->indice);
}

std::int32_t T_colores_a_pantalla(T_colores color) noexcept {
    constexpr std::array<std::int32_t, 8> colores{
        0x000000, 0x0000FF, 0x00FFFF, 0x00FF00, 0xFFFF00, 0xFF0000, 0xFF00FF, 0xFFFFFF};
    const auto n = static_cast<std::uint32_t>(color);
    return n < colores.size() ? colores[n] : 0;
}

} // namespace Qlt4_Tabla
