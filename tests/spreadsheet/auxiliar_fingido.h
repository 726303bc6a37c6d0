// SPDX-License-Identifier: MIT
// AuxiliarFingido: a helper program of a few lines of shell, which obeys all messages, records them with their
// bodies, and does something else at the one it is told: an error, an end, silence. Also the fixture of the
// adapter's tests. POSIX only.
#pragma once

#include "spreadsheet/hoja_libreoffice.h"
#include "tests/base/error_de.h"
#include "tests/headless/carpeta_de_prueba.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <signal.h>
#include <string>
#include <string_view>
#include <unistd.h>

namespace Qlt4_Tabla {

class AuxiliarFingido {
public:
    /// At the message of this name (each, where it is "*") the shell commands are run instead of the answer.
    /// $aqui is the own folder; what `duerme` starts never ends by itself.
    std::string pon(std::string_view nombre = {}, std::string_view ordenes = {}) {
        const std::string caso = nombre.empty() ? "ninguno" : std::string(nombre);
        const std::string ruta = carpeta_.pon("auxiliar",
            "#!/bin/sh\n"
            "aqui='" +
                carpeta_.ruta().string() +
                "'\n"
                "duerme() { sleep 600 & echo $! > \"$aqui/dormido\"; wait; }\n"
                "oficina() { rm -f \"$aqui/oficina\"; setsid sh -c 'echo $$ > \"$0/oficina\"; exec sleep "
                "600' \"$aqui\" < /dev/null > /dev/null &\n"
                "  while [ ! -s \"$aqui/oficina\" ]; do sleep 0.01; done\n"
                "  n=$(cat \"$aqui/oficina\"); printf 'oficina %s\\n%s' ${#n} \"$n\"; }\n"
                "echo $$ > \"$aqui/proceso\"\n"
                "while read -r nombre n; do\n"
                "  head -c \"$n\" > \"$aqui/$nombre\"\n"
                "  echo \"$nombre\" >> \"$aqui/registro\"\n"
                "  case $nombre in\n"
                "  " +
                caso + ") " + std::string(ordenes) +
                " ;;\n"
                "  *) printf 'bien 0\\n' ;;\n"
                "  esac\n"
                "done\n");
        std::filesystem::permissions(ruta, std::filesystem::perms::owner_all);
        return ruta;
    }

    [[nodiscard]] std::string contenido(std::string_view nombre) const { return carpeta_.contenido(nombre); }

    [[nodiscard]] std::string registro() const { return contenido("registro"); }

    /// Does the process live whose number the file holds? One that is on its way out gets a moment for it.
    [[nodiscard]] bool vive(std::string_view fichero) const {
        const int pid = std::atoi(contenido(fichero).c_str());
        if (pid <= 0) return false;
        for (int vez = 0; vez < 100 && corre(pid); ++vez) ::usleep(5'000);
        return corre(pid);
    }

    void mata(std::string_view fichero) const {
        if (const int pid = std::atoi(contenido(fichero).c_str()); pid > 0) ::kill(pid, SIGKILL);
    }

    [[nodiscard]] const CarpetaDePrueba& carpeta() const { return carpeta_; }

private:
    /// A process that has ended and that nobody has asked about yet counts as gone.
    static bool corre(int pid) {
        if (::kill(pid, 0) != 0) return false;
        std::ifstream f("/proc/" + std::to_string(pid) + "/stat");
        const std::string todo{std::istreambuf_iterator<char>(f), std::istreambuf_iterator<char>()};
        return !f.is_open() || todo.find(") Z") == std::string::npos;
    }

    CarpetaDePrueba carpeta_;
};

struct SeparadorFijo final : SeparadorDecimal {
    bool coma = false;

    [[nodiscard]] bool es_coma() const override { return coma; }
};

struct MesaHoja : testing::Test {
    AuxiliarFingido fingido;
    SeparadorFijo separador;
    OpcionesHoja opciones = rapidas();

    [[nodiscard]] static OpcionesHoja rapidas() {
        using std::chrono::seconds;
        OpcionesHoja o;
        o.sin_pantalla = true;
        o.para_conectar = o.por_operacion = seconds(20);
        return o;
    }

    [[nodiscard]] HojaLibreOffice hoja(std::string_view nombre = {}, std::string_view ordenes = {}) {
        opciones.auxiliar = fingido.pon(nombre, ordenes);
        return HojaLibreOffice(separador, opciones);
    }

    void impaciente() { opciones.para_conectar = opciones.por_operacion = std::chrono::milliseconds(300); }

    /// A block of one cell on its way, up to what the rule calls last.
    static void exporta(HojaCalculo& h) {
        h.crea_aplicacion();
        h.anade_libro();
        h.toma_primera_hoja();
        h.escribe_celda(1, 1, "1.5");
        h.muestra();
        h.suelta();
    }
};

} // namespace Qlt4_Tabla
