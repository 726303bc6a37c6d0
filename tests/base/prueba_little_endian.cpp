// SPDX-License-Identifier: MIT
// Little-endian coding of whole numbers.
#include "base/little_endian.h"
#include "tests/base/error_de.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

using namespace Qlt4_Tabla;
using namespace std::string_literals;

TEST(LittleEndian, el_byte_bajo_va_primero) {
    std::string bytes;
    pon16(bytes, 0x1234);
    pon32(bytes, 0x89ABCDEF);
    EXPECT_EQ(bytes, "\x34\x12\xEF\xCD\xAB\x89"s);
}

TEST(LittleEndian, se_lee_lo_escrito) {
    std::vector<std::uint8_t> bytes;
    pon16(bytes, 0xFFFE);
    pon32(bytes, 0x80000000);
    EXPECT_EQ(lee16(bytes, 0), 0xFFFE);
    EXPECT_EQ(lee16_con_signo(bytes, 0), -2);
    EXPECT_EQ(lee32(bytes, 2), 0x80000000);
    EXPECT_EQ(lee32_con_signo(bytes, 2), INT32_MIN);
}

TEST(LittleEndian, sirve_cualquier_elemento_de_un_byte) {
    std::vector<std::byte> bytes;
    pon16(bytes, 0xC3A1);
    EXPECT_EQ(lee16(std::span<const std::byte>(bytes), 0), 0xC3A1);
    EXPECT_EQ(lee16(std::string_view("\xA1\xC3"), 0), 0xC3A1);
}

TEST(LittleEndian, leer_mas_alla_del_final_es_error_62) {
    const std::string bytes = "\1\2\3"s;
    EXPECT_EQ(lee16(bytes, 1), 0x0302);
    EXPECT_EQ(error_de([&] { lee16(bytes, 2); }), 62);
    EXPECT_EQ(error_de([&] { lee32(bytes, 0); }), 62);
    EXPECT_EQ(error_de([&] { lee16(bytes, 3); }), 62);
    EXPECT_EQ(error_de([&] { lee16(bytes, static_cast<std::size_t>(-1)); }), 62);
}

TEST(LittleEndian, cambiar_escribe_en_su_sitio) {
    std::string bytes(7, 'x');
    cambia16(bytes, 1, 0x4142);
    cambia32(bytes, 3, 0x43444546);
    EXPECT_EQ(bytes, "xBAFEDC");
}

TEST(LittleEndian, cambiar_fuera_es_error_9_y_no_escribe_nada) {
    std::string bytes = "abc";
    EXPECT_EQ(error_de([&] { cambia16(bytes, 2, 0); }), 9);
    EXPECT_EQ(error_de([&] { cambia32(bytes, 0, 0); }), 9);
    EXPECT_EQ(error_de([&] { cambia16(bytes, 99, 0); }), 9);
    EXPECT_EQ(bytes, "abc");
}
