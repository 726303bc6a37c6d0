// SPDX-License-Identifier: MIT
// TablaMedida: this table without a window, through its published members and commands. Nothing records:
// a list of notices would be measured too.
#pragma once

#include "control/tabla0.h"
#include "datos.h"
#include "headless/fichero_nativo.h"
#include "headless/ficheros_disco.h"
#include "headless/plataforma_memoria.h"
#include "medidor.h"

#include <array>
#include <filesystem>
#include <span>
#include <string>
#include <string_view>

namespace Qlt4_Tabla::medida {

/// The files of the machine, without waiting for the disk.
class FicherosSinVaciar final : public Ficheros {
public:
    [[nodiscard]] std::unique_ptr<FicheroAbierto> abre(std::string_view nombre) const override {
        return disco_.abre(nombre);
    }

    void escribe_al_inicio(std::string_view nombre, const DaBytes& bytes) override {
        const std::filesystem::path ruta(nombre);
        const bool existe = std::filesystem::exists(ruta);
        FicheroNativo f(ruta, existe ? FicheroNativo::Modo::Cambia : FicheroNativo::Modo::Nuevo);
        std::uint64_t escritos = 0;
        bytes([&](std::string_view seguidos) {
            f.escribe(escritos, seguidos);
            escritos += seguidos.size();
        });
        f.cierra();
    }

    [[nodiscard]] bool es_carpeta(std::string_view nombre) const override {
        return disco_.es_carpeta(nombre);
    }

    [[nodiscard]] std::string carpeta_personal() const override { return disco_.carpeta_personal(); }

private:
    FicherosDisco disco_;
};

/// Gives the block that is to be pasted and looks at what is copied; keeps neither.
class PortapapelesMedida final : public Portapapeles {
public:
    const std::string* bloque = nullptr;
    std::size_t copiados = 0;

    [[nodiscard]] std::string lee() override { return bloque ? *bloque : std::string(); }

    void escribe(std::string_view texto) override {
        usa(texto);
        copiados = texto.size();
    }
};

/// Formats of the columns of the input; the lists are texts, as a list's values are all alike once formatted.
inline void da_formatos(Tabla0& t, bool con_numeros, std::int16_t decimales = 3) {
    constexpr std::array CLASES{
        T_formato::Entero, T_formato::Real__, T_formato::Alfanm, T_formato::Alfanm, T_formato::Alfanm};
    for (std::int16_t c = 1; c <= COLUMNAS; ++c) {
        const T_formato clase = CLASES[static_cast<std::size_t>(c - 1) % 5];
        t.FormatoColumnas(c, false, false, con_numeros ? clase : T_formato::Alfanm,
            c == COL_REAL + 1 ? decimales : std::int16_t{3}, T_Alineacion::Drcha,
            c == 3 ? T_Accion::Increm : T_Accion::Nada__, 10, "Columna");
    }
    t.Tablero_establece_Formato();
}

template <bool CON_NUMEROS>
class TablaMedidaDe {
public:
    TablaMedidaDe() {
        tabla_.Tablero_Nombres("Medida", "Puntos", "*.tb0");
        tabla_.Cols(COLUMNAS + 1);
        da_formatos(tabla_, CON_NUMEROS);
    }

    void filas(int n) { tabla_.Rows(n + 1); }

    void pon(int f, int c, const std::string& s) { tabla_.TextMatrix(f + 1, c + 1, s); }

    [[nodiscard]] std::size_t lee(int f, int c) const {
        const std::string_view s = std::as_const(tabla_).tablero().TextMatrix(f + 1, c + 1);
        usa(s);
        return s.size();
    }

    void pega(const std::string& bloque) {
        portapapeles_.bloque = &bloque;
        tabla_.mandos().elige_celda(1, 1);
        tabla_.mandos().orden(Opcion::mn_Pegar);
    }

    [[nodiscard]] std::size_t copia() {
        elige_todo();
        tabla_.mandos().orden(Opcion::mn_copiar);
        return portapapeles_.copiados;
    }

    [[nodiscard]] std::size_t copia_con_comas() {
        p_.separador.coma = true;
        const std::size_t bytes = copia();
        p_.separador.coma = false;
        return bytes;
    }

    void elige_todo() { tabla_.mandos().elige_bloque(1, 1, tabla_.Rows() - 1, COLUMNAS); }

    // As Enter on the last row does.
    void anade() { tabla_.crea_una_fila(); }

    void inserta(int f) {
        tabla_.mandos().elige_celda(f + 1, 1);
        tabla_.mandos().orden(Opcion::mn_insertar_filas);
        p_.registro.clear();
    }

    void borra(int f) {
        tabla_.mandos().elige_celda(f + 1, 1);
        tabla_.mandos().orden(Opcion::mn_eliminar_filas);
        p_.registro.clear();
    }

    void graba(const std::string& ruta) { tabla_.Tablero_Grabar(ruta); }

    void carga(const std::string& ruta) { tabla_.Tablero_Leer(ruta); }

    void suma(int a, int b, int r) {
        columna_de_reales(r);
        tabla_.m_Sumar_dos_ColumnasAyB(a + 1, b + 1, r + 1);
    }

    void resta(int a, int b, int r) {
        columna_de_reales(r);
        tabla_.m_Restar_dos_ColumnasA_B(a + 1, b + 1, r + 1);
    }

    void parcial(int a, int r) {
        columna_de_reales(r);
        tabla_.m_Diferencia_Parcial_1Columna(a + 1, r + 1);
    }

    [[nodiscard]] Matriz<double> numeros(int a) {
        Matriz<double> m;
        tabla_.m_Obten_Matriz_Numerica_de_columna(a + 1, m);
        return m;
    }

    void pon_numeros(int a, std::span<const double> numeros) {
        columna_de_reales(a);
        tabla_.m_Asigna_Matriz_Numerica_a_Columna(a + 1, numeros);
    }

    void colorea(int c) { tabla_.Color_Columna(c + 1, T_colores::Rojo); }

    // As a user does: a key opens the box, the rest of the text, Enter writes and advances.
    void escribe_como_usuario(int f, int c, const std::string& s) {
        tabla_.mandos().elige_celda(f + 1, c + 1);
        tabla_.mandos().tecla_pulsada('1');
        p_.casilla.pon_texto(s);
        tabla_.mandos().tecla_casilla(13);
        p_.registro.clear();
    }

    [[nodiscard]] Tabla0& tabla() { return tabla_; }

    [[nodiscard]] bool sin_mensajes() const { return p_.mensajes.vistos.empty(); }

private:
    void columna_de_reales(int c) {
        tabla_.FormatoColumnas(static_cast<std::int16_t>(c + 1), false, false, T_formato::Real__, 3,
            T_Alineacion::Drcha, T_Accion::Nada__, 10, "Suma");
    }

    VistaNula vista_;
    FicherosSinVaciar ficheros_;
    PortapapelesMedida portapapeles_;
    PlataformaMemoria p_;
    Tabla0 tabla_{plataforma(), p_.eventos};

    Plataforma plataforma() {
        const Plataforma p = p_.plataforma();
        return {vista_, p.marco, p.casilla, p.lista, p.mensajes, p.separador, p.pasos, p.ajustes, ficheros_,
            p.dialogo_fichero, portapapeles_, p.hoja_calculo, p.dialogo_color, p.dialogo_columnas};
    }
};

using TablaMedida = TablaMedidaDe<true>;
using TablaDeTextos = TablaMedidaDe<false>;

} // namespace Qlt4_Tabla::medida
