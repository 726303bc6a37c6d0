// SPDX-License-Identifier: MIT
// The member table against the published text (interfaz.txt), the class and its function table.
#include "control/miembros.h"

#include "control/_tabla0.h"

#include <gtest/gtest.h>

#include <cctype>
#include <cstddef>
#include <cstring>
#include <fstream>
#include <memory>
#include <set>
#include <string>
#include <vector>

namespace {

using namespace Qlt4_Tabla;

// --- Against the published text ---

std::string nombre_tipo(Tipo tipo) {
    switch (tipo) {
    case Tipo::Nada: return "";
    case Tipo::I2: return "I2";
    case Tipo::I4: return "I4";
    case Tipo::R8: return "R8";
    case Tipo::Bool: return "Bool";
    case Tipo::Str: return "Str";
    case Tipo::Var: return "Var";
    case Tipo::Obj: return "Obj";
    case Tipo::Colores: return "T_colores";
    case Tipo::Formato: return "T_formato";
    case Tipo::Alineacion: return "T_Alineacion";
    case Tipo::Accion: return "T_Accion";
    case Tipo::MatrizStr: return "array Str";
    case Tipo::MatrizR8: return "array R8";
    }
    return "?";
}

std::string nombre_acceso(Acceso acceso) {
    return acceso == Acceso::Metodo ? "method" : acceso == Acceso::Lee ? "get" : "put";
}

std::string texto_tipo(const Argumento& a) {
    return (a.opt ? std::string("opt ") : "") + (a.ref ? "ref " : "") + nombre_tipo(a.tipo);
}

std::string en_hexadecimal(std::int32_t n) {
    std::string cifras(8, '0');
    for (std::size_t i = 8; i-- > 0; n >>= 4) cifras[i] = "0123456789abcdef"[n & 15];
    return cifras;
}

// A row as interfaz.txt has it.
std::string texto_fila(const Miembro& m) {
    std::string texto = std::to_string(m.lugar) + ' ' + std::string(m.nombre) + ' ';
    std::string accesos;
    for (const Acceso a : m.accesos()) accesos += (accesos.empty() ? "" : "/") + nombre_acceso(a);
    texto += accesos + ' ' + en_hexadecimal(m.dispid) + " (";
    for (std::size_t i = 0; i < m.argumentos.size(); ++i)
        texto +=
            (i == 0 ? "" : ", ") + texto_tipo(m.argumentos[i]) + ' ' + std::string(m.argumentos[i].nombre);
    texto += ')';
    return m.valor.tipo == Tipo::Nada ? texto : texto + ' ' + texto_tipo(m.valor);
}

TEST(TablaMiembros, IsThePublishedOne) {
    std::ifstream fichero(TABLA_DIR_PRUEBAS "/control/interfaz.txt");
    std::string linea;
    std::size_t i = 0;
    for (; std::getline(fichero, linea); ++i) {
        ASSERT_LT(i, MIEMBROS.size());
        EXPECT_EQ(texto_fila(MIEMBROS[i]), linea);
    }
    EXPECT_EQ(i, 57U);
}

TEST(TablaMiembros, PlacesNamesAndIdentifiersAreUnique) {
    std::set<std::string> nombres;
    std::set<std::int32_t> ids;
    for (std::size_t i = 0; i < MIEMBROS.size(); ++i) {
        EXPECT_EQ(MIEMBROS[i].lugar, static_cast<int>(i) + 1);
        std::string nombre(MIEMBROS[i].nombre);
        for (char& c : nombre) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
        EXPECT_TRUE(nombres.insert(nombre).second) << nombre;
        EXPECT_TRUE(ids.insert(MIEMBROS[i].dispid).second) << nombre;
    }
}

TEST(TablaMiembros, OnlyTheLastArgumentsAreOptional) {
    for (const Miembro& m : MIEMBROS) {
        bool opcional = false;
        for (const Argumento& a : m.argumentos) {
            EXPECT_TRUE(a.opt || !opcional) << m.nombre;
            opcional = a.opt;
        }
    }
}

TEST(TablaEventos, AreTheFourPublished) {
    const std::vector<std::string> nombres{"Salir", "SelChange", "CambiaCasilla", "ACambiadoValorCombo"};
    ASSERT_EQ(EVENTOS.size(), nombres.size());
    for (std::size_t i = 0; i < EVENTOS.size(); ++i) {
        EXPECT_EQ(EVENTOS[i].dispid, static_cast<std::int32_t>(i) + 1);
        EXPECT_EQ(EVENTOS[i].nombre, nombres[i]);
        EXPECT_EQ(EVENTOS[i].argumentos.size(), i == 3 ? 2U : 0U);
    }
    EXPECT_EQ(texto_tipo(EVENTOS[3].argumentos[0]), "ref I4");
    EXPECT_EQ(EVENTOS[3].argumentos[0].nombre, "Mouse_Row");
    EXPECT_EQ(texto_tipo(EVENTOS[3].argumentos[1]), "ref I4");
    EXPECT_EQ(EVENTOS[3].argumentos[1].nombre, "Mouse_Col");
}

TEST(BuscaMiembro, FindsEveryMemberByNameAndIdentifier) {
    for (const Miembro& m : MIEMBROS) {
        EXPECT_EQ(busca_miembro(m.nombre), &m);
        EXPECT_EQ(busca_miembro(m.dispid), &m);
    }
}

TEST(BuscaMiembro, AsciiLettersMayStandInEitherCase) {
    EXPECT_EQ(busca_miembro("textmatrix"), &miembro("TextMatrix"));
    EXPECT_EQ(busca_miembro("M__ASIGNA_MATRIZ_ALFANUME_A_COLUMNA"),
        &miembro("m__Asigna_Matriz_Alfanume_a_Columna"));
    EXPECT_EQ(busca_miembro("a_edicion_MN_ratón_off"), &miembro("A_Edicion_mn_Ratón_Off"));
    EXPECT_EQ(busca_miembro("A_EDICION_MN_RATÓN_OFF"), nullptr);
}

TEST(BuscaMiembro, OtherNamesAndIdentifiersAreNone) {
    for (const char* nombre : {"", "Row", "Rows ", "TextMatri", "TextMatrixx", "ZZZ", "_"})
        EXPECT_EQ(busca_miembro(nombre), nullptr) << nombre;
    for (const std::int32_t id : {0, 1, 0x60030015, 0x60030021, 0x6003008b, 0x68030016, 0x6802ffff, -1})
        EXPECT_EQ(busca_miembro(id), nullptr) << id;
}

// --- Against the class ---

using i2 = std::int16_t;
using i4 = std::int32_t;
using str = std::string;
using Obj = std::shared_ptr<const Imagen>;

struct Accesor {
    std::string nombre;
    Acceso acceso;
    std::ptrdiff_t hueco; // in the function table; -1 where the compiler does not tell it
};

// A pointer to a virtual member is, by the platform's rules for C++ programs that most compilers follow,
// the offset in the function table plus 1, or, on some processors, the offset beside a marked adjustment.
template <class F>
std::ptrdiff_t hueco(F _Tabla0::*puntero) {
#if defined(_MSC_VER)
    static_cast<void>(puntero);
    return -1;
#else
    struct {
        std::ptrdiff_t valor;
        std::ptrdiff_t ajuste;
    } partes{};
    static_assert(sizeof(puntero) == sizeof(partes));
    std::memcpy(&partes, &puntero, sizeof(partes));
    const std::ptrdiff_t bytes = (partes.valor & 1) != 0 ? partes.valor - 1 : partes.valor;
    return bytes / static_cast<std::ptrdiff_t>(sizeof(void*));
#endif
}

// F is the exact type of the member: another one does not compile.
template <class F>
Accesor accesor(const char* nombre, Acceso acceso, F _Tabla0::*puntero) {
    return {nombre, acceso, hueco(puntero)};
}

// In the order of the function table; NOLINTNEXTLINE(readability-function-size)
std::vector<Accesor> accesores() {
    // clang-format off
    return {
        accesor<void(i2, i2)>("A_Pon_Alto", Acceso::Metodo, &_Tabla0::A_Pon_Alto),
        accesor<void(i2, i2, const Obj&)>("A_Pon_Imagen", Acceso::Metodo, &_Tabla0::A_Pon_Imagen),
        accesor<i4()>("A_fila_Activa", Acceso::Metodo, &_Tabla0::A_fila_Activa),
        accesor<void()>("A_Edicion_pon_Color", Acceso::Metodo, &_Tabla0::A_Edicion_pon_Color),
        accesor<void()>("A_Edicion_mn_Ratón_Off", Acceso::Metodo, &_Tabla0::A_Edicion_mn_Ratón_Off),
        accesor<void()>("A_Edicion_Columnas_Off", Acceso::Metodo, &_Tabla0::A_Edicion_Columnas_Off),
        accesor<void()>("A_Especial_puntos_ON", Acceso::Metodo, &_Tabla0::A_Especial_puntos_ON),
        accesor<void(i4, i4, i4)>("m_Sumar_dos_ColumnasAyB", Acceso::Metodo, &_Tabla0::m_Sumar_dos_ColumnasAyB),
        accesor<void(i4, i4, i4)>("m_Restar_dos_ColumnasA_B", Acceso::Metodo, &_Tabla0::m_Restar_dos_ColumnasA_B),
        accesor<void(i4, i4, bool)>("m_Diferencia_Parcial_1Columna", Acceso::Metodo, &_Tabla0::m_Diferencia_Parcial_1Columna),
        accesor<void(i4, T_colores)>("Color_Columna", Acceso::Metodo, &_Tabla0::Color_Columna),
        accesor<void()>("crea_una_fila", Acceso::Metodo, &_Tabla0::crea_una_fila),
        accesor<void()>("Copiar_Todo", Acceso::Metodo, &_Tabla0::Copiar_Todo),
        accesor<void()>("Copiar_todo_Excel", Acceso::Metodo, &_Tabla0::Copiar_todo_Excel),
        accesor<void(const str&, const str&)>("Tablero_Lee_Formato_Win", Acceso::Metodo, &_Tabla0::Tablero_Lee_Formato_Win),
        accesor<void(const str&, const str&)>("Tablero_Graba_Formato_Win", Acceso::Metodo, &_Tabla0::Tablero_Graba_Formato_Win),
        accesor<void()>("Tablero_establece_Formato", Acceso::Metodo, &_Tabla0::Tablero_establece_Formato),
        accesor<void(const str&)>("Tablero_Leer", Acceso::Metodo, &_Tabla0::Tablero_Leer),
        accesor<void(const str&)>("Tablero_Grabar", Acceso::Metodo, &_Tabla0::Tablero_Grabar),
        accesor<void(const Variante&)>("Width", Acceso::Pone, &_Tabla0::Width),
        accesor<Variante()>("Width", Acceso::Lee, &_Tabla0::Width),
        accesor<void(const Variante&)>("Height", Acceso::Pone, &_Tabla0::Height),
        accesor<Variante()>("Height", Acceso::Lee, &_Tabla0::Height),
        accesor<void(i4, i4, const str&)>("TextMatrix", Acceso::Pone, &_Tabla0::TextMatrix),
        accesor<str(i4, i4)>("TextMatrix", Acceso::Lee, &_Tabla0::TextMatrix),
        accesor<void(i4, i4, T_colores)>("ColMatrix", Acceso::Pone, &_Tabla0::ColMatrix),
        accesor<void(i4, i4, T_colores)>("Color_1Celda", Acceso::Pone, &_Tabla0::Color_1Celda),
        accesor<void(i4, i4, i4, T_colores)>("Color_Fila", Acceso::Pone, &_Tabla0::Color_Fila),
        accesor<void(bool)>("A_actualizaEditor", Acceso::Pone, &_Tabla0::A_actualizaEditor),
        accesor<str()>("A_ExtensionFche", Acceso::Lee, &_Tabla0::A_ExtensionFche),
        accesor<void(const str&)>("A_ExtensionFche", Acceso::Pone, &_Tabla0::A_ExtensionFche),
        accesor<i4()>("Rows", Acceso::Lee, &_Tabla0::Rows),
        accesor<void(i4)>("Rows", Acceso::Pone, &_Tabla0::Rows),
        accesor<i4()>("Cols", Acceso::Lee, &_Tabla0::Cols),
        accesor<void(i4)>("Cols", Acceso::Pone, &_Tabla0::Cols),
        accesor<void(i2, const str&, const str&, i2, i2, i2, i2, const str&, i2)>("Formatcol", Acceso::Metodo, &_Tabla0::Formatcol),
        accesor<void(i2, bool, bool, T_formato, i2, T_Alineacion, T_Accion, i2, const str&)>("FormatoColumnas", Acceso::Metodo, &_Tabla0::FormatoColumnas),
        accesor<void()>("Editor_Tabl_graba", Acceso::Metodo, &_Tabla0::Editor_Tabl_graba),
        accesor<void(const str&, const str&, const str&)>("Tablero_Nombres", Acceso::Metodo, &_Tabla0::Tablero_Nombres),
        accesor<void()>("Tablero_Formato_por_defecto", Acceso::Metodo, &_Tabla0::Tablero_Formato_por_defecto),
        accesor<void()>("Tablero_Fila_0_Off", Acceso::Metodo, &_Tabla0::Tablero_Fila_0_Off),
        accesor<void(bool)>("Ficheros_en_menu", Acceso::Metodo, &_Tabla0::Ficheros_en_menu),
        accesor<str()>("A_GrabaRevoca", Acceso::Lee, &_Tabla0::A_GrabaRevoca),
        accesor<void(const str&)>("A_GrabaRevoca", Acceso::Pone, &_Tabla0::A_GrabaRevoca),
        accesor<void(i4)>("A_Col", Acceso::Pone, &_Tabla0::A_Col),
        accesor<void(i4)>("A_RowTop", Acceso::Pone, &_Tabla0::A_RowTop),
        accesor<void()>("tablero_sin_color", Acceso::Metodo, &_Tabla0::tablero_sin_color),
        accesor<void(bool)>("Redraw", Acceso::Pone, &_Tabla0::Redraw),
        accesor<void(i2, const Matriz<str>&)>("Lista", Acceso::Metodo, &_Tabla0::Lista),
        accesor<bool(i2)>("MergeCol", Acceso::Lee, &_Tabla0::MergeCol),
        accesor<void(i2, bool)>("MergeCol", Acceso::Pone, &_Tabla0::MergeCol),
        accesor<i2()>("MergeCells", Acceso::Lee, &_Tabla0::MergeCells),
        accesor<void(i2)>("MergeCells", Acceso::Pone, &_Tabla0::MergeCells),
        accesor<void()>("Clear", Acceso::Metodo, &_Tabla0::Clear),
        accesor<void(i4, Matriz<double>&)>("m_Obten_Matriz_Numerica_de_columna", Acceso::Metodo, &_Tabla0::m_Obten_Matriz_Numerica_de_columna),
        accesor<void(i4, Matriz<str>&)>("m_Obten_Matriz_Alfanume_de_columna", Acceso::Metodo, &_Tabla0::m_Obten_Matriz_Alfanume_de_columna),
        accesor<void(i4, const Matriz<double>&)>("m_Asigna_Matriz_Numerica_a_Columna", Acceso::Metodo, &_Tabla0::m_Asigna_Matriz_Numerica_a_Columna),
        accesor<void(i4, const Matriz<str>&)>("m__Asigna_Matriz_Alfanume_a_Columna", Acceso::Metodo, &_Tabla0::m__Asigna_Matriz_Alfanume_a_Columna),
        accesor<void(const str&, bool, i4, bool, i4&, i4&, str&)>("Show_Eleige_Color", Acceso::Metodo, &_Tabla0::Show_Eleige_Color),
        accesor<i4(i4)>("Show_Elige_Color", Acceso::Metodo, &_Tabla0::Show_Elige_Color),
        accesor<void(i4, i4, i4)>("Color_Matrix", Acceso::Pone, &_Tabla0::Color_Matrix),
        accesor<i4(i4, i4)>("Color_Matrix", Acceso::Lee, &_Tabla0::Color_Matrix),
        accesor<i4(i4, i4)>("Color_Matrix_en_VB", Acceso::Lee, &_Tabla0::Color_Matrix_en_VB),
        accesor<void(i4, i4, i4)>("Color_Matrix_en_Cad", Acceso::Pone, &_Tabla0::Color_Matrix_en_Cad),
        accesor<void(i4, i4, i2)>("Color_Matrix_de_Cad", Acceso::Pone, &_Tabla0::Color_Matrix_de_Cad),
        accesor<void(i4, i4, i4)>("Color_Matrix_en_Cad_dado_N_VB", Acceso::Pone, &_Tabla0::Color_Matrix_en_Cad_dado_N_VB),
        accesor<void(i4, i4, i2)>("Color_Matrix_en_Cad_dado_N_cad", Acceso::Pone, &_Tabla0::Color_Matrix_en_Cad_dado_N_cad),
    };
    // clang-format on
}

TEST(Clase, HasEveryAccessorOfTheTableInItsOrder) {
    const std::vector<Accesor> de_la_clase = accesores();
    std::size_t i = 0;
    for (const Miembro& m : MIEMBROS)
        for (const Acceso acceso : m.accesos()) {
            ASSERT_LT(i, de_la_clase.size());
            EXPECT_EQ(de_la_clase[i].nombre, m.nombre);
            EXPECT_EQ(de_la_clase[i].acceso, acceso) << m.nombre;
            ++i;
        }
    EXPECT_EQ(i, 67U);
    EXPECT_EQ(de_la_clase.size(), 67U);
}

// Only the Itanium ABI tells a member's place in a pointer to it; the other one also keeps overloads together.
#if !defined(_MSC_VER)
TEST(Clase, StandsInTheFunctionTableInTheOrderOfTheTable) {
    std::ptrdiff_t esperado = 2; // behind the two entries of the destructor
    for (const Accesor& a : accesores()) {
        EXPECT_EQ(a.hueco, esperado) << a.nombre;
        ++esperado;
    }
}
#endif

// A class with members of its own is no plain interface: hosts bound by position count on none.
TEST(Clase, HoldsNothingButItsFunctionTable) {
    EXPECT_EQ(sizeof(_Tabla0), sizeof(void*));
    EXPECT_TRUE(std::is_abstract_v<_Tabla0>);
}

} // namespace
