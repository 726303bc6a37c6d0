// SPDX-License-Identifier: MIT
// Eight bytes at once beside the same said of each byte.
#include "base/ocho_bytes.h"

#include <gtest/gtest.h>

#include <array>
#include <random>

using namespace Qlt4_Tabla;

namespace {

template <class Es>
std::uint64_t una_a_una(const std::array<char, 8>& bytes, const Es& es) {
    std::uint64_t marcas = 0;
    for (std::size_t i = 0; i < bytes.size(); ++i)
        marcas |= std::uint64_t{es(static_cast<unsigned char>(bytes[i]))} << i;
    return marcas;
}

} // namespace

TEST(OchoBytes, el_primero_es_el_mas_bajo) {
    constexpr std::array<char, 8> bytes{'\x01', '\x02', '\x03', '\x04', '\x05', '\x06', '\x07', '\xF8'};
    EXPECT_EQ(lee_ocho(bytes.data()), 0xF807'0605'0403'0201U);
}

TEST(OchoBytes, las_marcas_son_las_de_cada_byte) {
    std::mt19937 azar(3);
    constexpr std::array<unsigned char, 8> CERCANOS{0x00, 0x0D, 0x0E, 0x2D, 0x2E, 0x2F, 0x80, 0xAE};
    for (int vez = 0; vez < 200'000; ++vez) {
        std::array<char, 8> bytes{};
        for (char& b : bytes) b = static_cast<char>(azar() % 2 == 0 ? CERCANOS[azar() % 8] : azar());
        const std::uint64_t w = lee_ocho(bytes.data());
        ASSERT_EQ(marcas_altas(w), una_a_una(bytes, [](unsigned char b) { return b >= 0x80; }));
        ASSERT_EQ(marcas_menores(w, 14), una_a_una(bytes, [](unsigned char b) { return b < 14; }));
        ASSERT_EQ(marcas_menores(w, 128), una_a_una(bytes, [](unsigned char b) { return b < 128; }));
        ASSERT_EQ(marcas_iguales(w, '.'), una_a_una(bytes, [](unsigned char b) { return b == '.'; }));
        ASSERT_EQ(marcas_iguales(w, '\0'), una_a_una(bytes, [](unsigned char b) { return b == 0; }));
        ASSERT_EQ(marcas_iguales(w, '\xAE'), una_a_una(bytes, [](unsigned char b) { return b == 0xAE; }));
    }
}
