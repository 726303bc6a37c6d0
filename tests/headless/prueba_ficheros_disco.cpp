// SPDX-License-Identifier: MIT
// The files of the machine: what is read and written, which error each trouble gives, and what a full disk,
// a missing permission or a sudden end leave behind.
#include "headless/ficheros_disco.h"
#include "tests/base/error_de.h"
#include "tests/headless/carpeta_de_prueba.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <csignal>
#include <functional>
#include <string>
#include <sys/resource.h>
#include <sys/stat.h>
#include <system_error>

namespace Qlt4_Tabla {

namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;

constexpr std::size_t MEGA = std::size_t{1} << 20U;

/// Fails or ends the program at one step.
class DiscoConFallos final : public FicherosDisco {
public:
    int fallo_en = 0; ///< 1-based; 0: never
    std::errc fallo = std::errc::no_space_on_device;
    bool sin_temporal = false; ///< nothing new may be made in the folder
    bool muere = false;
    int dados = 0;

protected:
    void paso(Paso cual) override {
        if (cual == Paso::CreaTemporal && sin_temporal)
            throw std::system_error(std::make_error_code(std::errc::permission_denied));
        if (cual == Paso::VaciaCarpeta && !muere) return; // nothing can fail there any more
        if (++dados != fallo_en) return;
        if (muere) ::_exit(7);
        throw std::system_error(std::make_error_code(fallo));
    }
};

mode_t permisos(const std::string& ruta) {
    struct stat s {};
    EXPECT_EQ(::stat(ruta.c_str(), &s), 0);
    return s.st_mode & 07777U;
}

ino_t nodo(const std::string& ruta) {
    struct stat s {};
    EXPECT_EQ(::stat(ruta.c_str(), &s), 0);
    return s.st_ino;
}

class PruebaDisco : public testing::Test {
protected:
    int error_al_leer(const std::string& ruta) {
        return error_de([&] { static_cast<void>(disco.lee(ruta)); });
    }

    int error_al_escribir(const std::string& ruta, std::string_view bytes = "x") {
        return error_de([&] { disco.escribe_al_inicio(ruta, bytes); });
    }

    CarpetaDePrueba c;
    FicherosDisco disco;
};

TEST_F(PruebaDisco, escribe_un_fichero_nuevo_y_lo_lee) {
    const std::string bytes("a\0\xFF\r\n", 5);
    disco.escribe_al_inicio(c("t.tb0"), bytes);
    EXPECT_EQ(disco.lee(c("t.tb0")).vista(), bytes);
    EXPECT_THAT(c.nombres(), ElementsAre("t.tb0"));
}

TEST_F(PruebaDisco, un_fichero_vacio_se_lee_y_se_escribe) {
    disco.escribe_al_inicio(c("t"), "");
    EXPECT_EQ(disco.lee(c("t")).size(), 0U);
}

TEST_F(PruebaDisco, lo_que_un_fichero_mas_largo_tenia_detras_se_queda) {
    c.pon("t", "0123456789");
    disco.escribe_al_inicio(c("t"), "abcd");
    EXPECT_EQ(c.contenido("t"), "abcd456789");
    disco.escribe_al_inicio(c("t"), "ABCDEFGHIJK");
    EXPECT_EQ(c.contenido("t"), "ABCDEFGHIJK");
}

TEST_F(PruebaDisco, tambien_cuando_pasa_de_una_pieza) {
    std::string viejo(3 * MEGA + 17, 'v');
    viejo.back() = '!';
    const std::string nuevo(MEGA + 5, 'n');
    c.pon("t", viejo);
    disco.escribe_al_inicio(c("t"), nuevo);
    EXPECT_EQ(c.contenido("t"), nuevo + viejo.substr(nuevo.size()));
}

TEST_F(PruebaDisco, los_bytes_vienen_a_piezas_otra_vez_enteras_cuando_hay_que_escribir_en_sitio) {
    c.pon("t", "viejo y largo");
    int veces = 0;
    const auto da = [&veces](const TomaBytes& toma) {
        ++veces;
        toma("nu");
        toma("evo");
    };
    disco.escribe_al_inicio(c("t"), da);
    EXPECT_EQ(c.contenido("t"), "nuevo y largo");
    EXPECT_EQ(veces, 1);
    DiscoConFallos sin_renombrar;
    sin_renombrar.fallo_en = 6; // make, permissions, two pieces, flush, rename
    sin_renombrar.fallo = std::errc::permission_denied;
    c.pon("t", "viejo");
    sin_renombrar.escribe_al_inicio(c("t"), da);
    EXPECT_EQ(c.contenido("t"), "nuevo");
    EXPECT_EQ(veces, 3);
    EXPECT_THAT(c.nombres(), ElementsAre("t"));
}

TEST_F(PruebaDisco, lo_que_falta_a_medias_deja_el_viejo_o_nada) {
    c.pon("t", "viejo");
    const auto falta = [](const TomaBytes& toma) {
        toma(std::string(2 * MEGA, 'n'));
        lanza(NumError::LlamadaNoValida);
    };
    EXPECT_EQ(error_de([&] { disco.escribe_al_inicio(c("t"), falta); }), 5);
    EXPECT_EQ(error_de([&] { disco.escribe_al_inicio(c("otro"), falta); }), 5);
    EXPECT_EQ(c.contenido("t"), "viejo");
    EXPECT_THAT(c.nombres(), ElementsAre("t"));
}

TEST_F(PruebaDisco, los_nombres_son_UTF8) {
    disco.escribe_al_inicio(c("años €.tb0"), "x");
    EXPECT_EQ(c.contenido("años €.tb0"), "x");
}

TEST_F(PruebaDisco, cada_estorbo_al_leer_tiene_su_numero) {
    c.pon("f", "x");
    EXPECT_EQ(error_al_leer(c("nada")), 53);
    EXPECT_EQ(error_al_leer(c("nada/f")), 76);
    EXPECT_EQ(error_al_leer(c("f/dentro")), 76);
    EXPECT_EQ(error_al_leer(c.ruta().string()), 75);
    EXPECT_EQ(error_al_leer(""), 75);
    EXPECT_EQ(error_al_leer(c(std::string("f\0g", 3))), 75);
    EXPECT_EQ(error_al_leer(c(std::string(300, 'n'))), 75);
    EXPECT_THAT(c.nombres(), ElementsAre("f"));
}

TEST_F(PruebaDisco, cada_estorbo_al_escribir_tiene_su_numero) {
    c.pon("f", "x");
    EXPECT_EQ(error_al_escribir(c("nada/f")), 76);
    EXPECT_EQ(error_al_escribir(c("f/dentro")), 76);
    EXPECT_EQ(error_al_escribir(c.ruta().string()), 75);
    EXPECT_EQ(error_al_escribir(""), 75);
    EXPECT_EQ(error_al_escribir(c(std::string(300, 'n'))), 75);
    EXPECT_THAT(c.nombres(), ElementsAre("f"));
}

TEST_F(PruebaDisco, lo_que_no_es_un_fichero_no_bloquea) {
    ASSERT_EQ(::mkfifo(c("tubo").c_str(), 0666), 0);
    EXPECT_EQ(error_al_leer(c("tubo")), 75);
    EXPECT_EQ(error_al_escribir(c("tubo")), 75);
}

TEST_F(PruebaDisco, guarda_los_permisos_del_viejo) {
    c.pon("t", "viejo");
    ::chmod(c("t").c_str(), 0640);
    disco.escribe_al_inicio(c("t"), "nuevo");
    EXPECT_EQ(permisos(c("t")), 0640U);
}

TEST_F(PruebaDisco, uno_nuevo_tiene_los_permisos_de_costumbre) {
    const mode_t mascara = ::umask(027);
    disco.escribe_al_inicio(c("t"), "x");
    ::umask(mascara);
    EXPECT_EQ(permisos(c("t")), 0640U);
}

TEST_F(PruebaDisco, sigue_los_enlaces) {
    fs::create_directory(c("otra"));
    c.pon("otra/t", "viejo");
    fs::create_symlink("otra/t", c("uno"));
    fs::create_symlink(c("uno"), c("dos"));
    disco.escribe_al_inicio(c("dos"), "nuevo");
    EXPECT_TRUE(fs::is_symlink(c("dos")) && fs::is_symlink(c("uno")));
    EXPECT_EQ(c.contenido("otra/t"), "nuevo");
}

TEST_F(PruebaDisco, un_enlace_a_nada_hace_el_fichero_y_uno_a_si_mismo_no) {
    fs::create_symlink("falta", c("enlace"));
    fs::create_symlink("anillo", c("anillo"));
    disco.escribe_al_inicio(c("enlace"), "x");
    EXPECT_EQ(c.contenido("falta"), "x");
    EXPECT_EQ(error_al_escribir(c("anillo")), 75);
    EXPECT_EQ(error_al_leer(c("anillo")), 75);
}

TEST_F(PruebaDisco, sin_permiso_para_el_fichero_no_lo_cambia) {
    c.pon("solo_lee", "viejo");
    c.pon("cerrado", "viejo");
    ::chmod(c("solo_lee").c_str(), 0444);
    ::chmod(c("cerrado").c_str(), 0);
    EXPECT_EQ(sin_privilegios([&] { return error_al_escribir(c("solo_lee")); }), 70);
    EXPECT_EQ(sin_privilegios([&] { return error_al_leer(c("cerrado")); }), 70);
    EXPECT_EQ(c.contenido("solo_lee"), "viejo");
    EXPECT_THAT(c.nombres(), ElementsAre("cerrado", "solo_lee"));
}

TEST_F(PruebaDisco, en_una_carpeta_cerrada_escribe_en_sitio) {
    fs::create_directory(c("d"));
    c.pon("d/t", "viejo y largo");
    ::chmod(c("d/t").c_str(), 0666);
    ::chmod(c("d").c_str(), 0555);
    const ino_t antes = nodo(c("d/t"));
    EXPECT_EQ(sin_privilegios([&] { return error_al_escribir(c("d/t"), "nuevo"); }), 0);
    EXPECT_EQ(sin_privilegios([&] { return error_al_escribir(c("d/otro"), "nuevo"); }), 70);
    EXPECT_EQ(c.contenido("d/t"), "nuevo y largo");
    EXPECT_EQ(nodo(c("d/t")), antes);
}

TEST_F(PruebaDisco, el_fichero_de_otro_sigue_siendo_suyo) {
    c.pon("t", "viejo");
    ::chmod(c("t").c_str(), 0666);
    EXPECT_EQ(sin_privilegios([&] { return error_al_escribir(c("t"), "nuevo!"); }), 0);
    EXPECT_EQ(c.contenido("t"), "nuevo!");
    struct stat s {};
    ASSERT_EQ(::stat(c("t").c_str(), &s), 0);
    EXPECT_EQ(s.st_uid, ::geteuid()); // whoever wrote into it: as administrator, another user did
    EXPECT_THAT(c.nombres(), ElementsAre("t"));
}

/// The work with files of at most so many bytes, as on a full disk.
template <class Trabajo>
int con_tope(std::size_t bytes, Trabajo&& trabajo) {
    return sin_privilegios([&] {
        const rlimit tope{bytes, bytes};
        std::signal(SIGXFSZ, SIG_IGN);
        return ::setrlimit(RLIMIT_FSIZE, &tope) == 0 ? trabajo() : 98;
    });
}

TEST_F(PruebaDisco, sin_sitio_queda_el_viejo) {
    const std::string viejo(MEGA, 'v');
    c.pon("t", viejo);
    ::chmod(c("t").c_str(), 0666);
    const std::string nuevo(3 * MEGA, 'n');
    EXPECT_EQ(con_tope(2 * MEGA, [&] { return error_al_escribir(c("t"), nuevo); }), 61);
    EXPECT_EQ(c.contenido("t"), viejo);
    EXPECT_EQ(con_tope(2 * MEGA, [&] { return error_al_escribir(c("otro"), nuevo); }), 61);
    EXPECT_THAT(c.nombres(), ElementsAre("t"));
}

// Old and new with their own signs everywhere, each longer than some pieces; the new one is `largo` bytes.
class PruebaInterrumpe : public PruebaDisco, public testing::WithParamInterface<std::size_t> {
protected:
    PruebaInterrumpe() {
        for (std::size_t i = 0; i < viejo.size(); ++i) viejo[i] = static_cast<char>('a' + i % 23);
        for (std::size_t i = 0; i < nuevo.size(); ++i) nuevo[i] = static_cast<char>('A' + i % 23);
        entero = nuevo;
        if (viejo.size() > nuevo.size()) entero += viejo.substr(nuevo.size());
    }

    std::string viejo = std::string(2 * MEGA + 9, ' ');
    std::string nuevo = std::string(GetParam(), ' ');
    std::string entero;
};

TEST_P(PruebaInterrumpe, muerto_en_cualquier_paso_queda_el_viejo_o_el_nuevo) {
    int muertes = 0;
    for (int k = 1;; ++k) {
        c.pon("t", viejo);
        const int fin = en_otro_proceso([&] {
            DiscoConFallos roto;
            roto.muere = true;
            roto.fallo_en = k;
            roto.escribe_al_inicio(c("t"), nuevo);
            return 0;
        });
        const std::string queda = c.contenido("t");
        EXPECT_TRUE(queda == viejo || queda == entero) << "at step " << k;
        if (fin == 0) break;
        ++muertes;
    }
    EXPECT_GE(muertes, 7); // make, permissions, pieces, flush, rename, flush of the folder
    EXPECT_EQ(c.contenido("t"), entero);
}

TEST_P(PruebaInterrumpe, un_fallo_en_cualquier_paso_deja_el_viejo_y_nada_mas) {
    for (int k = 1;; ++k) {
        c.pon("t", viejo);
        DiscoConFallos roto;
        roto.fallo_en = k;
        const int numero = error_de([&] { roto.escribe_al_inicio(c("t"), nuevo); });
        if (numero == 0) break;
        EXPECT_EQ(numero, 61);
        EXPECT_EQ(c.contenido("t"), viejo) << "at step " << k;
        EXPECT_THAT(c.nombres(), ElementsAre("t"));
    }
    EXPECT_EQ(c.contenido("t"), entero);
}

TEST_P(PruebaInterrumpe, en_sitio_un_fallo_repone_lo_que_habia) {
    for (int k = 1;; ++k) {
        c.pon("t", viejo);
        DiscoConFallos roto;
        roto.sin_temporal = true;
        roto.fallo_en = k;
        roto.fallo = std::errc::io_error;
        const int numero = error_de([&] { roto.escribe_al_inicio(c("t"), nuevo); });
        if (numero == 0) break;
        EXPECT_EQ(numero, 57);
        EXPECT_EQ(c.contenido("t"), viejo) << "at step " << k;
    }
    EXPECT_EQ(c.contenido("t"), entero);
}

INSTANTIATE_TEST_SUITE_P(
    cortos_y_largos, PruebaInterrumpe, testing::Values(std::size_t{5}, MEGA + 7, 2 * MEGA + 9, 3 * MEGA + 1));

TEST_F(PruebaDisco, sabe_que_es_una_carpeta) {
    c.pon("f", "x");
    EXPECT_TRUE(disco.es_carpeta(c.ruta().string()));
    EXPECT_FALSE(disco.es_carpeta(c("f")));
    EXPECT_FALSE(disco.es_carpeta(c("nada")));
    EXPECT_FALSE(disco.es_carpeta(""));
}

TEST_F(PruebaDisco, la_carpeta_del_usuario) {
    const int fin = en_otro_proceso([&] {
        ::setenv("HOME", "/casa/ana", 1);
        return disco.carpeta_personal() == "/casa/ana" ? 0 : 1;
    });
    EXPECT_EQ(fin, 0);
}

} // namespace

} // namespace Qlt4_Tabla
