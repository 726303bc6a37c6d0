// SPDX-License-Identifier: MIT
// Reading of scripts. Running them: ejecucion.cpp.
#include "tests/guion/guion.h"

#include "tests/guion/palabras.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <utility>

namespace Qlt4_Tabla {

namespace {

// A "#" at the beginning or after a blank begins a comment, outside quotes.
std::string_view sin_comentario(std::string_view texto) {
    bool comillas = false;
    for (std::size_t i = 0; i < texto.size(); ++i) {
        if (texto[i] == '\\' && comillas)
            ++i;
        else if (texto[i] == '"')
            comillas = !comillas;
        else if (texto[i] == '#' && !comillas && (i == 0 || texto[i - 1] == ' '))
            return texto.substr(0, i);
    }
    return texto;
}

std::string con_turno(const std::string& texto, int turno) {
    std::string escrito;
    std::size_t i = 0;
    for (std::size_t llave = texto.find("{i"); llave != std::string::npos; llave = texto.find("{i", i)) {
        const std::size_t fin = texto.find('}', llave);
        if (fin == std::string::npos) throw FalloGuion("{i is not closed");
        escrito += texto.substr(i, llave - i);
        std::string mas = texto.substr(llave + 2, fin - llave - 2);
        if (!mas.empty() && mas.front() == '+') mas.erase(0, 1);
        escrito += std::to_string(turno + (mas.empty() ? 0 : Palabras(mas).entero()));
        i = fin + 1;
    }
    return escrito + texto.substr(i);
}

class Lector {
public:
    Lector(std::istream& entrada, std::string fichero) : entrada_(entrada) {
        guion_.fichero = std::move(fichero);
    }

    Guion lee() {
        try {
            std::string texto;
            while (std::getline(entrada_, texto)) {
                ++linea_;
                const std::string_view paso = sin_margen(sin_comentario(texto));
                if (!paso.empty()) toma({linea_, std::string(paso)});
            }
            if (repeticiones_ > 0) throw FalloGuion("repite without fin");
            if (guion_.escenas.empty()) throw FalloGuion("no scene");
        } catch (const FalloGuion& fallo) {
            throw std::runtime_error(guion_.fichero + ":" + std::to_string(linea_) + ": " + fallo.what());
        }
        return std::move(guion_);
    }

private:
    std::vector<Paso>& pasos() { return guion_.escenas.empty() ? guion_.comun : guion_.escenas.back().pasos; }

    void toma(Paso paso) {
        Palabras palabras(paso.texto.front() == '>' ? std::string_view() : std::string_view(paso.texto));
        if (palabras.toma("escena")) {
            if (repeticiones_ > 0) throw FalloGuion("a scene inside repite");
            guion_.escenas.push_back({palabras.resto(), paso.linea, {}});
        } else if (palabras.toma("repite")) {
            if (repeticiones_ > 0) throw FalloGuion("repite inside repite");
            repeticiones_ = palabras.entero();
            if (repeticiones_ < 1) throw FalloGuion("repite at least once");
            primero_ = pasos().size();
        } else if (palabras.toma("fin")) {
            escribe_repeticion();
        } else {
            pasos().push_back(std::move(paso));
        }
    }

    void escribe_repeticion() {
        if (repeticiones_ == 0) throw FalloGuion("fin without repite");
        std::vector<Paso>& todos = pasos();
        const auto desde = todos.begin() + static_cast<std::ptrdiff_t>(primero_);
        const std::vector<Paso> cuerpo(desde, todos.end());
        todos.erase(desde, todos.end());
        for (int turno = 1; turno <= repeticiones_; ++turno)
            for (const Paso& paso : cuerpo) todos.push_back({paso.linea, con_turno(paso.texto, turno)});
        repeticiones_ = 0;
    }

    std::istream& entrada_;
    Guion guion_;
    int linea_ = 0;
    int repeticiones_ = 0;
    std::size_t primero_ = 0;
};

} // namespace

Guion lee_guion(std::istream& entrada, std::string fichero) {
    return Lector(entrada, std::move(fichero)).lee();
}

Guion lee_guion(const std::string& ruta) {
    std::ifstream entrada(ruta);
    if (!entrada) throw std::runtime_error(ruta + ":0: the file cannot be read");
    return lee_guion(entrada, ruta);
}

GuionesLeidos lee_carpeta(const std::string& carpeta) {
    GuionesLeidos leidos;
    std::vector<std::string> rutas;
    std::error_code sin_carpeta;
    for (const auto& f : std::filesystem::directory_iterator(carpeta, sin_carpeta))
        if (f.path().extension() == ".guion") rutas.push_back(f.path().string());
    std::sort(rutas.begin(), rutas.end());
    for (const std::string& ruta : rutas) {
        try {
            leidos.guiones.push_back(lee_guion(ruta));
        } catch (const std::runtime_error& e) {
            leidos.fallos.emplace_back(e.what());
        }
    }
    return leidos;
}

} // namespace Qlt4_Tabla
