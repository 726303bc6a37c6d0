// SPDX-License-Identifier: MIT
// The commands and their faults: tools/tabla/ordenes.h. Texts into tables: tools/tabla/de_texto.h.
#include "tools/tabla/ordenes.h"

#include "files/lector_tb0.h"
#include "tools/tabla/de_texto.h"
#include "tools/tabla/falla.h"
#include "tools/tabla/opciones.h"
#include "tools/tabla/progreso.h"
#include "tools/tabla/texto_tabla.h"
#include "tools/tabla/textos.h"

#include <algorithm>
#include <array>
#include <new>
#include <utility>
#include <variant>

namespace Qlt4_Tabla::herramienta {

namespace {

constexpr std::size_t PIEZA = std::size_t{1} << 20U;
constexpr int FILAS_POR_MIRADA = 4096; // between two looks at the clock

// --- What is wrong with a record, in words ---

std::string nombre_de_parte(const FalloTb0& fallo) {
    std::string texto(textos::partes[static_cast<std::size_t>(fallo.parte)]);
    if (fallo.parte == ParteTb0::Formato)
        return texto + std::string(textos::numero) + std::to_string(fallo.col);
    if (fallo.parte == ParteTb0::Celda)
        texto += textos::de_la_fila;
    else if (fallo.fila >= 0)
        texto += textos::numero;
    if (fallo.fila >= 0) texto += std::to_string(fallo.fila);
    if (fallo.parte == ParteTb0::Celda) texto += std::string(textos::columna) + std::to_string(fallo.col);
    return texto;
}

std::string en_palabras(const FalloTb0& fallo, std::size_t bytes) {
    const std::string hallado = std::to_string(fallo.hallado);
    const std::string esperado = std::to_string(fallo.esperado);
    std::string texto = nombre_de_parte(fallo);
    const auto sigue = [&](std::string_view a, const std::string& b, std::string_view c = {},
                           const std::string& d = {}) { ((texto += a) += b) += c, texto += d; };
    switch (fallo.defecto) {
    case DefectoTb0::Falta:
        sigue(textos::necesita, hallado, textos::y_quedan, std::to_string(bytes - fallo.posicion));
        break;
    case DefectoTb0::Negativo: sigue(textos::es, hallado, textos::y_no_puede_ser_negativo); break;
    case DefectoTb0::Demasiado: sigue(textos::es, hallado, textos::y_no_puede_pasar_de, esperado); break;
    case DefectoTb0::Distinto: sigue(textos::es, hallado, textos::y_debe_ser, esperado); break;
    case DefectoTb0::SinBytes: sigue(textos::es, hallado, textos::y_no_cabe, esperado); break;
    }
    return texto;
}

std::string mal(const std::string& fichero, const FalloTb0& fallo, std::size_t bytes) {
    return fichero + std::string(textos::mal_en_byte) + std::to_string(fallo.posicion) +
        std::string(textos::dos_puntos) + en_palabras(fallo, bytes);
}

// --- Reading ---

struct TablaLeida {
    Bytes bytes;
    RegistroTb0 registro;
};

TablaLeida lee(const Entorno& entorno, const std::string& fichero) {
    TablaLeida tabla;
    tabla.bytes = lee_fichero(entorno.ficheros, fichero);
    auto examen = examina_tb0(tabla.bytes.vista());
    if (const auto* const fallo = std::get_if<FalloTb0>(&examen))
        throw Falla(Salida::Mal, mal(fichero, *fallo, tabla.bytes.size()));
    tabla.registro = std::get<RegistroTb0>(std::move(examen));
    return tabla;
}

// --- info ---

void info(Entorno& entorno, const Opciones& o) {
    const std::string& fichero = o.ficheros.front();
    const TablaLeida tabla = lee(entorno, fichero);
    const RegistroTb0& r = tabla.registro;
    const auto linea = [&](std::string_view que, std::string_view valor, std::string_view detras = {}) {
        entorno.salida << que << valor << detras << '\n';
    };
    linea(textos::info_fichero, fichero);
    linea(textos::info_subtitulo, r.subtitulo);
    linea(textos::info_filas, std::to_string(r.filas - 1));
    linea(textos::info_columnas, std::to_string(r.columnas - 1));
    BytesAbiertos abierto(tabla.bytes.vista());
    LectorTb0 filas(abierto);
    filas.cabeza();
    int col = 0;
    for (const std::string_view nombre : filas.siguiente().subspan(1)) {
        const std::string numero = std::to_string(++col);
        entorno.salida << std::string(12 + 2 - std::min<std::size_t>(numero.size(), 2), ' ') << numero << ' '
                       << nombre << '\n';
    }
    linea(textos::info_registro, std::to_string(r.bytes), textos::bytes);
    const std::size_t detras = tabla.bytes.size() - r.bytes;
    linea(textos::info_detras, std::to_string(detras), detras == 0 ? textos::bytes : textos::de_otro_fichero);
    std::string con_formato;
    for (std::size_t i = 0; i < r.formatos.size(); ++i)
        if (r.formatos[i] != T_FormatoColumna{})
            con_formato +=
                (con_formato.empty() ? std::string(textos::de_la_columna) : ", ") + std::to_string(i);
    linea(
        textos::info_formatos, con_formato.empty() ? textos::ningun_formato : std::string_view(con_formato));
}

// --- a-texto ---

// Goes to the standard output in pieces.
class Destino {
public:
    explicit Destino(std::ostream& salida) : salida_(salida) {}

    std::string texto;

    void vuelca_si_es_mucho() {
        if (texto.size() >= PIEZA) vuelca();
    }

    void acaba() {
        vuelca();
        if (!salida_.flush())
            throw Falla(Salida::SinFichero,
                std::string(textos::salida_estandar) + std::string(textos::no_se_escribio));
    }

private:
    void vuelca() {
        salida_.write(texto.data(), static_cast<std::streamsize>(texto.size()));
        texto.clear();
    }

    std::ostream& salida_;
};

void a_texto(Entorno& entorno, const Opciones& o) {
    const std::string& fichero = o.ficheros.front();
    const TablaLeida tabla = lee(entorno, fichero);
    const Formato formato = o.formato.value_or(Formato::Tsv);
    const char separador = formato == Formato::Csv ? o.separador : '\t';
    const std::size_t primera_col = o.numeros ? 0 : 1;
    BytesAbiertos abierto(tabla.bytes.vista());
    LectorTb0 filas(abierto);
    filas.cabeza();
    Progreso progreso(entorno.terminal, fichero);
    Destino destino(entorno.salida);
    std::string& texto = destino.texto;
    const auto cabecera = filas.siguiente().subspan(primera_col);
    if (formato == Formato::Json) {
        texto += "{\"subtitulo\":";
        anade_json(tabla.registro.subtitulo, texto);
        if (!o.sin_cabecera) anade_json(cabecera, texto += ",\n\"columnas\":");
        texto += ",\n\"filas\":[";
    } else if (!o.sin_cabecera) {
        anade_linea(cabecera, separador, texto);
    }
    for (int fila = 1; fila < tabla.registro.filas; ++fila) {
        const auto celdas = filas.siguiente().subspan(primera_col);
        if (formato == Formato::Json)
            anade_json(celdas, texto += fila == 1 ? "\n" : ",\n");
        else
            anade_linea(celdas, separador, texto);
        if (fila % FILAS_POR_MIRADA == 0) progreso.va_por(filas.posicion(), tabla.registro.bytes);
        destino.vuelca_si_es_mucho();
    }
    if (formato == Formato::Json) texto += "]}\n";
    destino.acaba();
}

// --- comprueba ---

Salida comprueba_uno(Entorno& entorno, const Opciones& o, const std::string& fichero) {
    const TablaLeida tabla = lee(entorno, fichero);
    if (o.callado) return Salida::Bien;
    entorno.salida << fichero << textos::bien << tabla.registro.filas - 1 << textos::filas
                   << tabla.registro.columnas - 1 << textos::columnas;
    const std::size_t detras = tabla.bytes.size() - tabla.registro.bytes;
    if (detras != 0) entorno.salida << textos::y_detras << detras << textos::de_otro_fichero;
    entorno.salida << '\n';
    return Salida::Bien;
}

/// What is wrong with a file is the result of this command; a file that cannot be read is a fault.
Salida comprueba(Entorno& entorno, const Opciones& o) {
    Salida peor = Salida::Bien;
    std::size_t hechos = 0;
    for (const std::string& fichero : o.ficheros) {
        Progreso progreso(entorno.terminal, fichero);
        progreso.va_por(hechos++, o.ficheros.size());
        try {
            peor = std::max(peor, comprueba_uno(entorno, o, fichero));
        } catch (const Falla& falla) {
            if (falla.salida == Salida::Mal)
                entorno.salida << falla.what() << '\n';
            else
                entorno.errores << textos::antes_de_fallo << falla.what() << '\n';
            peor = std::max(peor, falla.salida);
        }
    }
    return peor;
}

Salida cumple(Entorno& entorno, const Opciones& o) {
    switch (o.orden) {
    case Orden::Ayuda: entorno.salida << textos::ayuda; break;
    case Orden::Version: entorno.salida << textos::programa << TABLA_VERSION << '\n'; break;
    case Orden::Info: info(entorno, o); break;
    case Orden::ATexto: a_texto(entorno, o); break;
    case Orden::DeTexto: de_texto(entorno, o); break;
    case Orden::Comprueba: return comprueba(entorno, o);
    }
    return Salida::Bien;
}

Salida di(Entorno& entorno, std::string_view que, Salida salida) {
    entorno.errores << textos::antes_de_fallo << que << '\n';
    return salida;
}

} // namespace

Salida ejecuta(Entorno& entorno, std::span<const std::string> argumentos) {
    try {
        return cumple(entorno, lee_opciones(argumentos));
    } catch (const OrdenMalEscrita& e) {
        di(entorno, e.what(), Salida::MalEscrita);
        entorno.errores << textos::pista_ayuda;
        return Salida::MalEscrita;
    } catch (const Falla& e) {
        return di(entorno, e.what(), e.salida);
    } catch (const std::bad_alloc&) {
        return di(entorno, descripcion_error(static_cast<int>(NumError::SinMemoria)), Salida::SinFichero);
    } catch (const Error& e) {
        return di(entorno, e.descripcion(), Salida::SinFichero);
    }
}

} // namespace Qlt4_Tabla::herramienta
