// SPDX-License-Identifier: MIT
// Every option is one row of a table: names, whether a value follows, the commands it belongs to.
#include "tools/tabla/opciones.h"

#include "tools/tabla/textos.h"

#include <array>
#include <initializer_list>
#include <string_view>
#include <utility>

namespace Qlt4_Tabla::herramienta {

namespace {

[[noreturn]] void falla(std::string_view que) { throw OrdenMalEscrita(std::string(que)); }

[[noreturn]] void falla_con(std::string_view antes, std::string_view que) {
    std::string texto(antes);
    texto += que;
    texto += textos::cierra;
    throw OrdenMalEscrita(texto);
}

Formato formato(std::string_view nombre) {
    constexpr std::array<std::pair<std::string_view, Formato>, 3> NOMBRES{
        {{"tsv", Formato::Tsv}, {"csv", Formato::Csv}, {"json", Formato::Json}}};
    for (const auto& [suyo, f] : NOMBRES)
        if (suyo == nombre) return f;
    falla_con(textos::formato_desconocido, nombre);
}

char separador(std::string_view signo) {
    if (signo == "\\t") return '\t';
    if (signo.size() != 1 || signo == "\"" || signo == "\n" || signo == "\r" ||
        static_cast<unsigned char>(signo.front()) >= 0x80)
        falla_con(textos::separador_malo, signo);
    return signo.front();
}

struct Opcion {
    char corta; // 0: none
    std::string_view larga;
    bool con_valor;
    std::initializer_list<Orden> ordenes; // whose it is; empty: of all
    void (*pon)(Opciones&, const std::string& valor);
};

const std::array<Opcion, 10>& opciones() {
    static const std::array<Opcion, 10> TODAS{{
        {'f', "formato", true, {Orden::ATexto, Orden::DeTexto},
            [](Opciones& o, const std::string& v) { o.formato = formato(v); }},
        {'d', "separador", true, {Orden::ATexto, Orden::DeTexto},
            [](Opciones& o, const std::string& v) { o.separador = separador(v); }},
        {'o', "salida", true, {Orden::DeTexto}, [](Opciones& o, const std::string& v) { o.salida = v; }},
        {'s', "subtitulo", true, {Orden::DeTexto},
            [](Opciones& o, const std::string& v) { o.subtitulo = v; }},
        {'\0', "sin-cabecera", false, {Orden::ATexto, Orden::DeTexto},
            [](Opciones& o, const std::string&) { o.sin_cabecera = true; }},
        {'\0', "numeros", false, {Orden::ATexto}, [](Opciones& o, const std::string&) { o.numeros = true; }},
        {'\0', "1252", false, {Orden::DeTexto}, [](Opciones& o, const std::string&) { o.en_1252 = true; }},
        {'q', "callado", false, {Orden::Comprueba},
            [](Opciones& o, const std::string&) { o.callado = true; }},
        {'h', "help", false, {}, [](Opciones& o, const std::string&) { o.orden = Orden::Ayuda; }},
        {'\0', "version", false, {}, [](Opciones& o, const std::string&) { o.orden = Orden::Version; }},
    }};
    return TODAS;
}

Orden orden(std::string_view nombre) {
    constexpr std::array<std::pair<std::string_view, Orden>, 4> NOMBRES{{{"info", Orden::Info},
        {"a-texto", Orden::ATexto}, {"de-texto", Orden::DeTexto}, {"comprueba", Orden::Comprueba}}};
    for (const auto& [suyo, o] : NOMBRES)
        if (suyo == nombre) return o;
    falla_con(textos::orden_desconocida, nombre);
}

class Lectura {
public:
    explicit Lectura(std::span<const std::string> argumentos) : quedan_(argumentos) {}

    Opciones haz() {
        while (!quedan_.empty()) {
            const std::string argumento = toma();
            if (solo_ficheros_ || argumento == "-" || !argumento.starts_with('-'))
                palabras_.push_back(argumento);
            else if (argumento == "--")
                solo_ficheros_ = true;
            else if (argumento.starts_with("--"))
                larga(argumento);
            else
                corta(argumento);
        }
        return acaba();
    }

private:
    std::string toma() {
        std::string primero = quedan_.front();
        quedan_ = quedan_.subspan(1);
        return primero;
    }

    std::string valor(const std::string& opcion) {
        if (quedan_.empty()) falla_con(textos::opcion_sin_valor, opcion);
        return toma();
    }

    void larga(const std::string& escrita) {
        const std::size_t igual = escrita.find('=');
        const std::string nombre = escrita.substr(0, igual);
        const bool trae_valor = igual != std::string::npos;
        for (const Opcion& o : opciones()) {
            if (std::string_view(nombre).substr(2) != o.larga) continue;
            if (trae_valor && !o.con_valor) falla_con(textos::opcion_con_valor, nombre);
            if (trae_valor)
                pon(o, nombre, escrita.substr(igual + 1));
            else
                pon(o, nombre, o.con_valor ? valor(nombre) : std::string());
            return;
        }
        falla_con(textos::opcion_desconocida, nombre);
    }

    // "-q", "-qf csv", "-fcsv"
    void corta(const std::string& escritas) {
        for (std::size_t i = 1; i < escritas.size(); ++i) {
            const std::string nombre{'-', escritas[i]};
            const Opcion* hallada = nullptr;
            for (const Opcion& o : opciones())
                if (o.corta == escritas[i]) hallada = &o;
            if (hallada == nullptr) falla_con(textos::opcion_desconocida, nombre);
            if (!hallada->con_valor) {
                pon(*hallada, nombre, {});
                continue;
            }
            pon(*hallada, nombre, i + 1 < escritas.size() ? escritas.substr(i + 1) : valor(nombre));
            return;
        }
    }

    void pon(const Opcion& o, const std::string& nombre, const std::string& valor) {
        o.pon(puestas_, valor);
        if (o.ordenes.size() == 0) informa_ = true;
        usadas_.emplace_back(&o, nombre);
    }

    // Help and version need no command.
    Opciones acaba() {
        if (informa_) return puestas_;
        if (palabras_.empty()) falla(textos::falta_orden);
        puestas_.orden = orden(palabras_.front());
        puestas_.ficheros.assign(palabras_.begin() + 1, palabras_.end());
        for (const auto& [opcion, nombre] : usadas_) {
            bool suya = false;
            for (const Orden de : opcion->ordenes) suya = suya || de == puestas_.orden;
            if (!suya) falla_con(textos::opcion_ajena, nombre);
        }
        comprueba_ficheros();
        return puestas_;
    }

    void comprueba_ficheros() {
        std::vector<std::string>& ficheros = puestas_.ficheros;
        if (puestas_.orden == Orden::DeTexto) {
            if (puestas_.formato == Formato::Json) falla(textos::json_no_se_lee);
            if (puestas_.salida.empty()) falla(textos::falta_salida);
            if (ficheros.empty()) ficheros.emplace_back("-");
        }
        if (ficheros.empty()) falla(textos::falta_fichero);
        if (ficheros.size() > 1 && puestas_.orden != Orden::Comprueba)
            falla_con(textos::sobra_fichero, ficheros[1]);
    }

    std::span<const std::string> quedan_;
    std::vector<std::string> palabras_;
    std::vector<std::pair<const Opcion*, std::string>> usadas_;
    Opciones puestas_;
    bool solo_ficheros_ = false;
    bool informa_ = false;
};

} // namespace

Opciones lee_opciones(std::span<const std::string> argumentos) { return Lectura(argumentos).haz(); }

} // namespace Qlt4_Tabla::herramienta
