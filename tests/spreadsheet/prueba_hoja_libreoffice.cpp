// SPDX-License-Identifier: MIT
// The adapter against a helper program that obeys, refuses, ends, is silent or talks nonsense; and what is left
// of the processes afterwards.
#include "spreadsheet/hoja_libreoffice.h"
#include "tests/spreadsheet/auxiliar_fingido.h"

#include <functional>
#include <iterator>
#include <optional>
#include <utility>
#include <vector>

namespace Qlt4_Tabla {

namespace {

using std::chrono::seconds;
using std::chrono::steady_clock;

struct Adaptador : MesaHoja {
    /// The error of an export with a helper that does something else at one message.
    int error_en(std::string_view nombre, std::string_view ordenes) {
        HojaLibreOffice h = hoja(nombre, ordenes);
        return error_de([&] { exporta(h); });
    }
};

/// A variable of the environment as long as the object lives; nothing: taken out.
class Variable {
public:
    Variable(const char* nombre, const char* valor) : nombre_(nombre) {
        if (const char* v = std::getenv(nombre)) antes_ = v;
        pon(valor);
    }

    ~Variable() { pon(antes_ ? antes_->c_str() : nullptr); }

    Variable(const Variable&) = delete;
    Variable& operator=(const Variable&) = delete;

private:
    void pon(const char* valor) {
        if (valor != nullptr)
            ::setenv(nombre_, valor, 1);
        else
            ::unsetenv(nombre_);
    }

    const char* nombre_;
    std::optional<std::string> antes_;
};

std::ptrdiff_t descriptores() {
    const std::filesystem::directory_iterator abiertos("/proc/self/fd");
    return std::distance(begin(abiertos), end(abiertos));
}

TEST_F(Adaptador, manda_los_pasos_en_su_orden_y_las_celdas_en_un_bloque) {
    opciones.perfil = "/un/perfil";
    opciones.tuberia = "una";
    HojaLibreOffice h = hoja();
    h.crea_aplicacion();
    h.anade_libro();
    h.toma_primera_hoja();
    h.escribe_celda(1, 1, "1.5");
    h.escribe_celda(1, 2, "a");
    h.escribe_celda(2, 2, "=x");
    h.muestra();
    h.suelta();
    EXPECT_EQ(fingido.registro(), "aplicacion\nlibro\nmuestra\nsuelta\n");
    EXPECT_EQ(fingido.contenido("aplicacion"), "sin_pantalla=1\nperfil=/un/perfil\ntuberia=una\n");
    EXPECT_EQ(fingido.contenido("muestra"), "1033\nHoja1\n1.5\ta\n\t\"=x\"");
    EXPECT_FALSE(fingido.vive("proceso"));
}

TEST_F(Adaptador, en_coma_la_lengua_es_el_espanol) {
    separador.coma = true;
    HojaLibreOffice h = hoja();
    exporta(h);
    EXPECT_EQ(fingido.contenido("muestra"), "3082\nHoja1\n1.5");
}

TEST_F(Adaptador, sin_celdas_se_muestra_un_libro_vacio) {
    HojaLibreOffice h = hoja();
    h.crea_aplicacion();
    h.anade_libro();
    h.toma_primera_hoja();
    h.muestra();
    EXPECT_EQ(fingido.contenido("muestra"), "1033\nHoja1\n");
}

TEST_F(Adaptador, una_segunda_exportacion_no_lleva_celdas_de_la_primera) {
    HojaLibreOffice h = hoja();
    exporta(h);
    exporta(h);
    EXPECT_EQ(fingido.contenido("muestra"), "1033\nHoja1\n1.5");
}

TEST_F(Adaptador, diez_megas_llegan_enteros) {
    HojaLibreOffice h = hoja();
    h.crea_aplicacion();
    h.toma_primera_hoja();
    const std::string larga(1000, 'x');
    for (int fila = 1; fila <= 10'000; ++fila) h.escribe_celda(fila, 1, larga);
    h.muestra();
    EXPECT_EQ(
        fingido.contenido("muestra").size(), std::string_view("1033\nHoja1\n").size() + 10'000U * 1001 - 1);
}

TEST_F(Adaptador, el_error_del_auxiliar_sale_con_la_descripcion_de_la_casa) {
    const std::vector<std::pair<std::string, int>> casos{
        {"429", 429}, {"462", 462}, {"1004", 1004}, {"7", 1004}, {"-1", 1004}, {"", 1004}, {"x", 1004}};
    for (const auto& [dicho, esperado] : casos) {
        HojaLibreOffice h =
            hoja("muestra", "printf 'error " + std::to_string(dicho.size()) + "\\n%s' '" + dicho + "'");
        try {
            exporta(h);
            ADD_FAILURE() << dicho;
        } catch (const Error& e) {
            EXPECT_EQ(e.numero(), esperado) << dicho;
            EXPECT_EQ(e.descripcion(), descripcion_error(esperado)) << dicho;
        }
    }
}

TEST_F(Adaptador, tras_un_error_se_puede_soltar) {
    HojaLibreOffice h = hoja("muestra", "printf 'error 4\\n1004'");
    EXPECT_EQ(error_de([&] { exporta(h); }), 1004);
    EXPECT_EQ(error_de([&] { h.suelta(); }), 0);
    EXPECT_EQ(fingido.registro(), "aplicacion\nlibro\nmuestra\nsuelta\n");
    EXPECT_FALSE(fingido.vive("proceso"));
}

TEST_F(Adaptador, si_el_auxiliar_acaba_no_hay_programa_y_despues_se_ha_perdido) {
    EXPECT_EQ(error_en("aplicacion", "exit 0"), 429);
    for (const char* cuando : {"libro", "muestra", "suelta"}) {
        EXPECT_EQ(error_en(cuando, "exit 1"), 462) << cuando;
        EXPECT_EQ(error_en(cuando, "kill -9 $$"), 462) << cuando;
    }
}

TEST_F(Adaptador, lo_que_no_entiende_cuenta_como_perdido) {
    for (const char* dice : {"echo hola", "echo bien -1", "echo bien 99999999", "echo otra 0",
             "head -c 100 /dev/zero", "printf 'bien 5\\nx'; exit 0"}) {
        EXPECT_EQ(error_en("aplicacion", dice), 429) << dice;
        EXPECT_EQ(error_en("libro", dice), 462) << dice;
    }
}

TEST_F(Adaptador, si_calla_se_le_mata_con_su_grupo_al_acabar_el_plazo) {
    impaciente();
    for (const char* cuando : {"aplicacion", "libro", "muestra", "suelta"}) {
        const auto antes = steady_clock::now();
        EXPECT_EQ(error_en(cuando, "duerme"), std::string_view(cuando) == "aplicacion" ? 429 : 462) << cuando;
        EXPECT_LT(steady_clock::now() - antes, seconds(5)) << cuando;
        EXPECT_GE(steady_clock::now() - antes, std::chrono::milliseconds(300)) << cuando;
        EXPECT_FALSE(fingido.vive("proceso")) << cuando;
        EXPECT_FALSE(fingido.vive("dormido")) << cuando;
    }
}

TEST_F(Adaptador, el_plazo_vale_tambien_mientras_se_escribe) {
    impaciente();
    HojaLibreOffice h = hoja("libro", "printf 'bien 0\\n'; duerme");
    h.crea_aplicacion();
    h.anade_libro();
    h.toma_primera_hoja();
    h.escribe_celda(1, 1, std::string(50'000'000, 'x'));
    EXPECT_EQ(error_de([&] { h.muestra(); }), 462);
    EXPECT_FALSE(fingido.vive("proceso"));
}

TEST_F(Adaptador, un_auxiliar_que_acaba_mientras_se_escribe_no_se_lleva_al_anfitrion) {
    HojaLibreOffice h = hoja("libro", "printf 'bien 0\\n'; exit 0");
    h.crea_aplicacion();
    h.anade_libro();
    h.toma_primera_hoja();
    h.escribe_celda(1, 1, std::string(50'000'000, 'x'));
    EXPECT_EQ(error_de([&] { h.muestra(); }), 462);
    EXPECT_EQ(error_de([&] { h.suelta(); }), 0);
}

TEST_F(Adaptador, la_oficina_que_nadie_vio_muere_con_el_plazo) {
    impaciente();
    EXPECT_EQ(error_en("aplicacion", "oficina; duerme"), 429);
    EXPECT_FALSE(fingido.vive("oficina"));
    EXPECT_EQ(error_en("aplicacion", "oficina; printf 'error 3\\n429'"), 429);
    EXPECT_FALSE(fingido.vive("oficina"));
}

TEST_F(Adaptador, la_oficina_ya_mostrada_queda_abierta_pase_lo_que_pase) {
    impaciente();
    HojaLibreOffice h =
        hoja("*", "case $nombre in aplicacion) oficina;; suelta) duerme;; esac; printf 'bien 0\\n'");
    EXPECT_EQ(error_de([&] { exporta(h); }), 462);
    EXPECT_FALSE(fingido.vive("proceso"));
    EXPECT_TRUE(fingido.vive("oficina"));
    fingido.mata("oficina");
}

TEST_F(Adaptador, un_proceso_que_no_funda_su_sesion_no_se_toca) {
    const std::string fichero = fingido.carpeta()("ajeno");
    ASSERT_EQ(std::system(("sleep 600 > /dev/null & echo $! > '" + fichero + "'").c_str()), 0);
    EXPECT_EQ(error_en("aplicacion",
                  "n=$(cat $aqui/ajeno); printf 'oficina %s\\n%s' ${#n} $n; printf 'error 3\\n429'"),
        429);
    EXPECT_TRUE(fingido.vive("ajeno"));
    fingido.mata("ajeno");
}

TEST_F(Adaptador, con_el_objeto_acaba_el_auxiliar) {
    {
        HojaLibreOffice h = hoja();
        h.crea_aplicacion();
        EXPECT_TRUE(fingido.vive("proceso"));
    }
    EXPECT_FALSE(fingido.vive("proceso"));
}

TEST_F(Adaptador, crear_de_nuevo_suelta_lo_empezado) {
    HojaLibreOffice h = hoja();
    h.crea_aplicacion();
    const std::string primero = fingido.contenido("proceso");
    h.crea_aplicacion();
    EXPECT_NE(fingido.contenido("proceso"), primero);
    EXPECT_NE(::kill(std::atoi(primero.c_str()), 0), 0);
}

TEST_F(Adaptador, no_deja_descriptores_abiertos) {
    const auto antes = descriptores();
    HojaLibreOffice h = hoja();
    exporta(h);
    EXPECT_EQ(error_en("aplicacion", "exit 0"), 429);
    opciones.auxiliar = "/no/existe";
    HojaLibreOffice sin(separador, opciones);
    EXPECT_EQ(error_de([&] { sin.crea_aplicacion(); }), 429);
    EXPECT_EQ(descriptores(), antes);
}

TEST_F(Adaptador, sin_auxiliar_lo_dice_en_el_acto) {
    const std::string carpeta = fingido.carpeta().ruta().string();
    const std::string sin_permiso = fingido.carpeta().pon("texto", "#!/bin/sh\n");
    for (const std::string& ruta : {std::string("/no/existe"), carpeta, sin_permiso}) {
        opciones.auxiliar = ruta;
        HojaLibreOffice h(separador, opciones);
        const auto antes = steady_clock::now();
        EXPECT_EQ(error_de([&] { h.crea_aplicacion(); }), 429) << ruta;
        EXPECT_LT(steady_clock::now() - antes, seconds(1)) << ruta;
    }
}

TEST_F(Adaptador, sin_pantalla_no_arranca_nada_salvo_que_se_le_diga) {
    const Variable x("DISPLAY", nullptr);
    const Variable wayland("WAYLAND_DISPLAY", "");
    opciones.sin_pantalla = false;
    HojaLibreOffice h = hoja();
    EXPECT_EQ(error_de([&] { exporta(h); }), 429);
    EXPECT_EQ(fingido.registro(), "");
    const Variable hay("DISPLAY", ":99");
    EXPECT_EQ(error_de([&] { exporta(h); }), 0);
    EXPECT_EQ(fingido.contenido("aplicacion"), "");
}

TEST_F(Adaptador, mas_filas_que_la_hoja_se_rechazan_antes_de_mandar_nada) {
    HojaLibreOffice h = hoja();
    h.crea_aplicacion();
    h.anade_libro();
    h.toma_primera_hoja();
    for (int fila = 1; fila <= 1'048'576; ++fila) h.escribe_celda(fila, 1, "1");
    EXPECT_EQ(error_de([&] { h.escribe_celda(1'048'577, 1, "1"); }), 1004);
    h.suelta();
    EXPECT_EQ(fingido.registro(), "aplicacion\nlibro\nsuelta\n");
}

TEST_F(Adaptador, sin_aplicacion_todo_esta_perdido_y_soltar_no_es_nada) {
    HojaLibreOffice h = hoja();
    EXPECT_EQ(error_de([&] { h.anade_libro(); }), 462);
    EXPECT_EQ(error_de([&] { h.toma_primera_hoja(); }), 462);
    EXPECT_EQ(error_de([&] { h.muestra(); }), 462);
    EXPECT_EQ(error_de([&] { h.suelta(); }), 0);
    EXPECT_EQ(fingido.registro(), "");
}

} // namespace

} // namespace Qlt4_Tabla
