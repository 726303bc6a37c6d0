// SPDX-License-Identifier: MIT
// The text is read whole, made into a grid row by row, and the grid into the record that a table saves.
#include "tools/tabla/de_texto.h"

#include "base/pagina1252.h"
#include "base/utf8.h"
#include "core/tablero.h"
#include "files/escritor_tb0.h"
#include "files/formato_tb0.h"
#include "files/texto_1252.h"
#include "tools/tabla/falla.h"
#include "tools/tabla/progreso.h"
#include "tools/tabla/texto_tabla.h"
#include "tools/tabla/textos.h"

#include <algorithm>
#include <iterator>
#include <string_view>
#include <utility>
#include <vector>

namespace Qlt4_Tabla::herramienta {

namespace {

constexpr int FILAS_POR_VEZ = 4096; // rows that the grid grows by; also between two looks at the clock
constexpr std::size_t MAX_SUBTITULO = 30; // characters of the name that a table can have

class Conversion {
public:
    Conversion(Entorno& entorno, const Opciones& o)
        : entorno_(entorno),
          opciones_(o),
          nombre_(o.ficheros.front() == "-" ? std::string(textos::entrada_estandar) : o.ficheros.front()),
          separador_(es_csv(o) ? o.separador : '\t') {}

    void haz() {
        lee_texto();
        comprueba_subtitulo();
        llena();
        const std::string bytes = bytes_tb0(tablero_, opciones_.subtitulo, {});
        escribe_fichero(entorno_.ficheros, opciones_.salida, bytes);
        if (sin_codigo_ != 0)
            entorno_.errores << textos::antes_de_fallo << textos::aviso << sin_codigo_
                             << textos::aviso_no_caben;
    }

private:
    static bool es_csv(const Opciones& o) {
        return o.formato ? *o.formato == Formato::Csv : o.ficheros.front().ends_with(".csv");
    }

    [[noreturn]] void falla(const std::string& que) const { throw Falla(Salida::Mal, nombre_ + que); }

    [[noreturn]] void falla_en_linea(std::size_t linea, std::string_view que) const {
        falla(std::string(textos::en_linea) + std::to_string(linea) + std::string(textos::dos_puntos) +
            std::string(que));
    }

    void lee_texto() {
        if (opciones_.ficheros.front() == "-") {
            texto_.assign(std::istreambuf_iterator<char>(entorno_.entrada), {});
            if (entorno_.entrada.bad())
                throw Falla(Salida::SinFichero, nombre_ + std::string(textos::no_se_leyo));
        } else {
            texto_ = lee_fichero(entorno_.ficheros, opciones_.ficheros.front()).vista();
        }
        if (opciones_.en_1252) {
            texto_ = de_1252(texto_);
            return;
        }
        constexpr std::string_view MARCA_DE_ORDEN = "\xEF\xBB\xBF";
        if (texto_.starts_with(MARCA_DE_ORDEN)) texto_.erase(0, MARCA_DE_ORDEN.size());
        comprueba_utf8();
    }

    void comprueba_utf8() const {
        if (utf8::es_valido(texto_)) return;
        std::size_t pos = 0;
        while (utf8::decodifica(texto_, pos).valido) pos = utf8::siguiente(texto_, pos);
        falla(std::string(textos::no_es_utf8) + std::to_string(pos) + std::string(textos::pista_1252));
    }

    void comprueba_subtitulo() {
        const std::string& s = opciones_.subtitulo;
        if (a_1252(s).size() > tb0::MAX_TEXTO) throw Falla(Salida::Mal, std::string(textos::subtitulo_largo));
        if (utf8::longitud(utf8::sin_blancos(s)) > MAX_SUBTITULO)
            entorno_.errores << textos::antes_de_fallo << textos::aviso << textos::aviso_subtitulo_cortado;
        cuenta_sin_codigo(s);
    }

    // Row 0 is the header; without one it is empty and the first line is row 1.
    void llena() {
        tablero_.Redraw(false);
        tablero_.Cols(1);
        LectorTexto lector(texto_, separador_);
        Progreso progreso(entorno_.terminal, nombre_);
        std::vector<std::string_view> celdas;
        int fila = opciones_.sin_cabecera ? 1 : 0;
        while (lector.siguiente(celdas)) {
            comprueba(lector, celdas);
            if (fila >= tablero_.Rows()) tablero_.Rows(fila + FILAS_POR_VEZ);
            const int columnas = static_cast<int>(celdas.size()) + 1;
            if (columnas > tablero_.Cols()) tablero_.Cols(columnas);
            tablero_.pon_fila(fila++, 1, celdas);
            if (fila % FILAS_POR_VEZ == 0) progreso.va_por(lector.posicion(), texto_.size());
        }
        if (lector.linea() == 0) falla(std::string(textos::sin_lineas));
        tablero_.Rows(fila);
        tablero_.numera_filas();
    }

    void comprueba(const LectorTexto& lector, const std::vector<std::string_view>& celdas) {
        constexpr std::size_t MAXIMO = MAX_COLUMNAS - 1;
        if (lector.comillas_abiertas()) falla_en_linea(lector.linea(), textos::comillas_abiertas);
        if (celdas.size() > MAXIMO)
            falla_en_linea(
                lector.linea(), std::to_string(celdas.size()) + std::string(textos::demasiadas_columnas));
        for (const std::string_view celda : celdas) {
            if (celda.size() > tb0::MAX_TEXTO && a_1252(celda).size() > tb0::MAX_TEXTO)
                falla_en_linea(lector.linea(), textos::texto_largo);
            cuenta_sin_codigo(celda);
        }
    }

    void cuenta_sin_codigo(std::string_view texto) {
        if (es_ascii(texto)) return;
        for (std::size_t pos = 0; pos < texto.size();) {
            const utf8::Caracter c = utf8::decodifica(texto, pos);
            if (!codigo_1252(c.punto)) ++sin_codigo_;
            pos += c.bytes;
        }
    }

    Entorno& entorno_;
    const Opciones& opciones_;
    std::string nombre_;
    char separador_;
    std::string texto_;
    VistaNula vista_;
    Tablero tablero_{vista_};
    std::size_t sin_codigo_ = 0;
};

} // namespace

void de_texto(Entorno& entorno, const Opciones& o) { Conversion(entorno, o).haz(); }

} // namespace Qlt4_Tabla::herramienta
