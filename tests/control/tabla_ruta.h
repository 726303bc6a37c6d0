// SPDX-License-Identifier: MIT
// TablaRuta: a _Tabla0 whose members all take one road: name, access and arguments as values. Tests of the
// members run through it by identifier and by name; a recorder tells which member was really called.
#pragma once

#include "control/_tabla0.h"
#include "control/miembros.h"

#include <functional>
#include <memory>
#include <span>
#include <string>
#include <utility>
#include <vector>

namespace prueba {

using namespace Qlt4_Tabla;

class TablaRuta : public _Tabla0 {
public:
    using Ruta = std::function<Variante(const Miembro&, Acceso, std::span<Variante>)>;

    explicit TablaRuta(Ruta ruta) : ruta_(std::move(ruta)) {}

    void A_Pon_Alto(std::int16_t Fil, std::int16_t Alto) override {
        llama(miembro("A_Pon_Alto"), Acceso::Metodo, Fil, Alto);
    }

    void A_Pon_Imagen(
        std::int16_t Fil, std::int16_t Col, const std::shared_ptr<const Imagen>& Imag) override {
        llama(miembro("A_Pon_Imagen"), Acceso::Metodo, Fil, Col, Imag);
    }

    std::int32_t A_fila_Activa() override {
        return llama(miembro("A_fila_Activa"), Acceso::Metodo).a_entero32();
    }

    void A_Edicion_pon_Color() override { llama(miembro("A_Edicion_pon_Color"), Acceso::Metodo); }

    void A_Edicion_mn_Ratón_Off() override { llama(miembro("A_Edicion_mn_Ratón_Off"), Acceso::Metodo); }

    void A_Edicion_Columnas_Off() override { llama(miembro("A_Edicion_Columnas_Off"), Acceso::Metodo); }

    void A_Especial_puntos_ON() override { llama(miembro("A_Especial_puntos_ON"), Acceso::Metodo); }

    void m_Sumar_dos_ColumnasAyB(std::int32_t colA, std::int32_t colB, std::int32_t colResul) override {
        llama(miembro("m_Sumar_dos_ColumnasAyB"), Acceso::Metodo, colA, colB, colResul);
    }

    void m_Restar_dos_ColumnasA_B(std::int32_t colA, std::int32_t colB, std::int32_t colResul) override {
        llama(miembro("m_Restar_dos_ColumnasA_B"), Acceso::Metodo, colA, colB, colResul);
    }

    void m_Diferencia_Parcial_1Columna(
        std::int32_t columna, std::int32_t colResul, bool ValNegativoColorRojo) override {
        llama(miembro("m_Diferencia_Parcial_1Columna"), Acceso::Metodo, columna, colResul,
            ValNegativoColorRojo);
    }

    void Color_Columna(std::int32_t columna, T_colores Color) override {
        llama(miembro("Color_Columna"), Acceso::Metodo, columna, Color);
    }

    void crea_una_fila() override { llama(miembro("crea_una_fila"), Acceso::Metodo); }

    void Copiar_Todo() override { llama(miembro("Copiar_Todo"), Acceso::Metodo); }

    void Copiar_todo_Excel() override { llama(miembro("Copiar_todo_Excel"), Acceso::Metodo); }

    void Tablero_Lee_Formato_Win(const std::string& t_apli, const std::string& t_cap) override {
        llama(miembro("Tablero_Lee_Formato_Win"), Acceso::Metodo, t_apli, t_cap);
    }

    void Tablero_Graba_Formato_Win(const std::string& t_apli, const std::string& t_cap) override {
        llama(miembro("Tablero_Graba_Formato_Win"), Acceso::Metodo, t_apli, t_cap);
    }

    void Tablero_establece_Formato() override { llama(miembro("Tablero_establece_Formato"), Acceso::Metodo); }

    void Tablero_Leer(const std::string& nombreFichero) override {
        llama(miembro("Tablero_Leer"), Acceso::Metodo, nombreFichero);
    }

    void Tablero_Grabar(const std::string& nombreFichero) override {
        llama(miembro("Tablero_Grabar"), Acceso::Metodo, nombreFichero);
    }

    void Width(const Variante& valor) override { llama(miembro("Width"), Acceso::Pone, valor); }

    Variante Width() override { return llama(miembro("Width"), Acceso::Lee); }

    void Height(const Variante& valor) override { llama(miembro("Height"), Acceso::Pone, valor); }

    Variante Height() override { return llama(miembro("Height"), Acceso::Lee); }

    void TextMatrix(std::int32_t fila, std::int32_t colm, const std::string& valor) override {
        llama(miembro("TextMatrix"), Acceso::Pone, fila, colm, valor);
    }

    std::string TextMatrix(std::int32_t fila, std::int32_t colm) override {
        return llama(miembro("TextMatrix"), Acceso::Lee, fila, colm).a_texto();
    }

    void ColMatrix(std::int32_t fila, std::int32_t colm, T_colores valor) override {
        llama(miembro("ColMatrix"), Acceso::Pone, fila, colm, valor);
    }

    void Color_1Celda(std::int32_t fila, std::int32_t colm, T_colores valor) override {
        llama(miembro("Color_1Celda"), Acceso::Pone, fila, colm, valor);
    }

    void Color_Fila(
        std::int32_t fila, std::int32_t columIni, std::int32_t colmFin, T_colores valor) override {
        llama(miembro("Color_Fila"), Acceso::Pone, fila, columIni, colmFin, valor);
    }

    void A_actualizaEditor(bool valor) override { llama(miembro("A_actualizaEditor"), Acceso::Pone, valor); }

    std::string A_ExtensionFche() override {
        return llama(miembro("A_ExtensionFche"), Acceso::Lee).a_texto();
    }

    void A_ExtensionFche(const std::string& valor) override {
        llama(miembro("A_ExtensionFche"), Acceso::Pone, valor);
    }

    std::int32_t Rows() override { return llama(miembro("Rows"), Acceso::Lee).a_entero32(); }

    void Rows(std::int32_t n) override { llama(miembro("Rows"), Acceso::Pone, n); }

    std::int32_t Cols() override { return llama(miembro("Cols"), Acceso::Lee).a_entero32(); }

    void Cols(std::int32_t n) override { llama(miembro("Cols"), Acceso::Pone, n); }

    void Formatcol(std::int16_t Col, const std::string& Visib, const std::string& Bloqu, std::int16_t Formt,
        std::int16_t decim, std::int16_t posic, std::int16_t Longi, const std::string& nomb,
        std::int16_t Accion) override {
        llama(miembro("Formatcol"), Acceso::Metodo, Col, Visib, Bloqu, Formt, decim, posic, Longi, nomb,
            Accion);
    }

    void FormatoColumnas(std::int16_t Col, bool Invisib, bool Bloqu, T_formato Formato, std::int16_t decim,
        T_Alineacion Alinea, T_Accion Accion, std::int16_t Longit, const std::string& nomb) override {
        llama(miembro("FormatoColumnas"), Acceso::Metodo, Col, Invisib, Bloqu, Formato, decim, Alinea, Accion,
            Longit, nomb);
    }

    void Editor_Tabl_graba() override { llama(miembro("Editor_Tabl_graba"), Acceso::Metodo); }

    void Tablero_Nombres(
        const std::string& Titulo, const std::string& subtitulo, const std::string& extens) override {
        llama(miembro("Tablero_Nombres"), Acceso::Metodo, Titulo, subtitulo, extens);
    }

    void Tablero_Formato_por_defecto() override {
        llama(miembro("Tablero_Formato_por_defecto"), Acceso::Metodo);
    }

    void Tablero_Fila_0_Off() override { llama(miembro("Tablero_Fila_0_Off"), Acceso::Metodo); }

    void Ficheros_en_menu(bool Nvalor) override {
        llama(miembro("Ficheros_en_menu"), Acceso::Metodo, Nvalor);
    }

    std::string A_GrabaRevoca() override { return llama(miembro("A_GrabaRevoca"), Acceso::Lee).a_texto(); }

    void A_GrabaRevoca(const std::string& valor) override {
        llama(miembro("A_GrabaRevoca"), Acceso::Pone, valor);
    }

    void A_Col(std::int32_t valor) override { llama(miembro("A_Col"), Acceso::Pone, valor); }

    void A_RowTop(std::int32_t valor) override { llama(miembro("A_RowTop"), Acceso::Pone, valor); }

    void tablero_sin_color() override { llama(miembro("tablero_sin_color"), Acceso::Metodo); }

    void Redraw(bool valor) override { llama(miembro("Redraw"), Acceso::Pone, valor); }

    void Lista(std::int16_t columna, const Matriz<std::string>& valores) override {
        llama(miembro("Lista"), Acceso::Metodo, columna, valores);
    }

    bool MergeCol(std::int16_t columna1) override {
        return llama(miembro("MergeCol"), Acceso::Lee, columna1).a_booleano();
    }

    void MergeCol(std::int16_t columna1, bool valor) override {
        llama(miembro("MergeCol"), Acceso::Pone, columna1, valor);
    }

    std::int16_t MergeCells() override { return llama(miembro("MergeCells"), Acceso::Lee).a_entero16(); }

    void MergeCells(std::int16_t valor) override { llama(miembro("MergeCells"), Acceso::Pone, valor); }

    void Clear() override { llama(miembro("Clear"), Acceso::Metodo); }

    void m_Obten_Matriz_Numerica_de_columna(std::int32_t columna, Matriz<double>& Matriz1) override {
        llama(miembro("m_Obten_Matriz_Numerica_de_columna"), Acceso::Metodo, columna, Matriz1);
    }

    void m_Obten_Matriz_Alfanume_de_columna(std::int32_t columna, Matriz<std::string>& Matriz1) override {
        llama(miembro("m_Obten_Matriz_Alfanume_de_columna"), Acceso::Metodo, columna, Matriz1);
    }

    void m_Asigna_Matriz_Numerica_a_Columna(std::int32_t columna, const Matriz<double>& Matriz1) override {
        llama(miembro("m_Asigna_Matriz_Numerica_a_Columna"), Acceso::Metodo, columna, Matriz1);
    }

    void m__Asigna_Matriz_Alfanume_a_Columna(
        std::int32_t columna, const Matriz<std::string>& Matriz1) override {
        llama(miembro("m__Asigna_Matriz_Alfanume_a_Columna"), Acceso::Metodo, columna, Matriz1);
    }

    void Show_Eleige_Color(const std::string& NumColorPreSeleccVb, bool PorCapa,
        std::int32_t NumColorPorCapaPreSeleccVb, bool Expandircolores, std::int32_t& NumColorElegiVB,
        std::int32_t& NumColorAutocad, std::string& NomColorAutocad) override {
        llama(miembro("Show_Eleige_Color"), Acceso::Metodo, NumColorPreSeleccVb, PorCapa,
            NumColorPorCapaPreSeleccVb, Expandircolores, NumColorElegiVB, NumColorAutocad, NomColorAutocad);
    }

    std::int32_t Show_Elige_Color(std::int32_t NumColorElegiVB) override {
        return llama(miembro("Show_Elige_Color"), Acceso::Metodo, NumColorElegiVB).a_entero32();
    }

    void Color_Matrix(std::int32_t fila, std::int32_t colm, std::int32_t valor) override {
        llama(miembro("Color_Matrix"), Acceso::Pone, fila, colm, valor);
    }

    std::int32_t Color_Matrix(std::int32_t fila, std::int32_t colm) override {
        return llama(miembro("Color_Matrix"), Acceso::Lee, fila, colm).a_entero32();
    }

    std::int32_t Color_Matrix_en_VB(std::int32_t fila, std::int32_t colm) override {
        return llama(miembro("Color_Matrix_en_VB"), Acceso::Lee, fila, colm).a_entero32();
    }

    void Color_Matrix_en_Cad(std::int32_t fila, std::int32_t colm, std::int32_t valor) override {
        llama(miembro("Color_Matrix_en_Cad"), Acceso::Pone, fila, colm, valor);
    }

    void Color_Matrix_de_Cad(std::int32_t fila, std::int32_t colm, std::int16_t valor) override {
        llama(miembro("Color_Matrix_de_Cad"), Acceso::Pone, fila, colm, valor);
    }

    void Color_Matrix_en_Cad_dado_N_VB(std::int32_t fila, std::int32_t colm, std::int32_t valor) override {
        llama(miembro("Color_Matrix_en_Cad_dado_N_VB"), Acceso::Pone, fila, colm, valor);
    }

    void Color_Matrix_en_Cad_dado_N_cad(std::int32_t fila, std::int32_t colm, std::int16_t valor) override {
        llama(miembro("Color_Matrix_en_Cad_dado_N_cad"), Acceso::Pone, fila, colm, valor);
    }

private:
    template <class T>
    static Variante valor(const T& dato) {
        if constexpr (std::is_enum_v<T>)
            return Variante(static_cast<std::int32_t>(dato));
        else if constexpr (std::is_same_v<T, std::shared_ptr<const Imagen>>)
            return Variante(std::const_pointer_cast<Imagen>(dato));
        else
            return Variante(dato);
    }

    // What came back into a reference that the member may change.
    template <class T>
    static void vuelve(const T&, const Variante&) {}

    static void vuelve(std::int32_t& destino, const Variante& v) { destino = v.a_entero32(); }

    static void vuelve(std::string& destino, const Variante& v) { destino = v.a_texto(); }

    static void vuelve(Matriz<double>& destino, const Variante& v) { destino = v.matriz_numeros(); }

    static void vuelve(Matriz<std::string>& destino, const Variante& v) { destino = v.matriz_textos(); }

    template <class... A>
    Variante llama(const Miembro& m, Acceso acceso, A&&... argumentos) {
        std::vector<Variante> valores{valor(argumentos)...};
        Variante resultado = ruta_(m, acceso, valores);
        std::size_t i = 0;
        (vuelve(argumentos, valores[i++]), ...);
        return resultado;
    }

    Ruta ruta_;
};

} // namespace prueba
