// SPDX-License-Identifier: MIT
// The dispatcher's one list joins each row of the member table with a member of the class. The code that
// takes the values apart is made by the compiler from the member's own type, which it also compares
// with the row: a wrong type, a missing or a doubled member does not compile.
#include "control/despacho.h"

#include "base/error.h"
#include "control/textos.h"

#include <array>
#include <cstddef>
#include <string>
#include <tuple>
#include <type_traits>
#include <utility>
#include <vector>

namespace Qlt4_Tabla {

namespace {

using Llamada = Variante (*)(_Tabla0&, std::span<Variante>);

enum NumErrorDespacho : int { MIEMBRO_DESCONOCIDO = 438, ARGUMENTOS_INCORRECTOS = 450 };

// --- A value as an argument of type A; an omitted one stands for 0, False or the empty text ---

template <class D>
D convierte(const Variante& v) {
    if constexpr (std::is_same_v<D, bool>)
        return v.a_booleano();
    else if constexpr (std::is_same_v<D, std::int16_t>)
        return v.a_entero16();
    else if constexpr (std::is_same_v<D, std::int32_t>)
        return v.a_entero32();
    else if constexpr (std::is_same_v<D, std::string>)
        return v.a_texto();
    else if constexpr (std::is_enum_v<D>)
        return static_cast<D>(v.a_entero32());
    else
        return v.imagen();
}

template <class T>
struct elemento_de_matriz {};

template <class T>
struct elemento_de_matriz<Matriz<T>> {
    using tipo = T;
};

template <class T>
concept EsMatriz = requires {
    typename elemento_de_matriz<T>::tipo;
};

template <class M, class V>
auto& matriz(V& v) {
    if constexpr (std::is_same_v<M, Matriz<double>>)
        return v.matriz_numeros();
    else
        return v.matriz_textos();
}

// By value, or by a reference that the member does not change.
template <class A>
class Paso {
public:
    using D = std::remove_cvref_t<A>;

    explicit Paso(const Variante& v) : valor_(v.es_omitido() ? D{} : convierte<D>(v)) {}

    const D& valor() const { return valor_; }

    void devuelve() const {}

private:
    D valor_;
};

// Any value, handed on as it is.
template <class A>
requires std::is_same_v<A, const Variante&>
class Paso<A> {
public:
    explicit Paso(const Variante& v) : v_(&v) {}

    const Variante& valor() const { return *v_; }

    void devuelve() const {}

private:
    const Variante* v_;
};

// Arrays, handed on without a copy.
template <class A>
requires EsMatriz<std::remove_cvref_t<A>>
class Paso<A> {
public:
    using D = std::remove_cvref_t<A>;

    explicit Paso(Variante& v) {
        if constexpr (!std::is_const_v<std::remove_reference_t<A>>)
            if (v.es_vacio()) v = D();
        matriz_ = &matriz<D>(v);
    }

    A valor() const { return *matriz_; }

    void devuelve() const {}

private:
    D* matriz_;
};

// A reference that the member may change.
template <class D>
requires(!std::is_const_v<D> && !EsMatriz<D>) class Paso<D&> {
public:
    explicit Paso(Variante& v) : v_(&v), antes_(convierte<D>(v)), valor_(antes_) {}

    D& valor() { return valor_; }

    void devuelve() {
        if (valor_ != antes_) *v_ = Variante(valor_);
    }

private:
    Variante* v_;
    D antes_;
    D valor_;
};

template <auto puntero, class R, class... A, std::size_t... I>
Variante llama(_Tabla0& tabla, std::span<Variante> v, R (_Tabla0::*)(A...), std::index_sequence<I...>) {
    [[maybe_unused]] Variante falta = Variante::omitido();
    std::tuple<Paso<A>...> pasos{Paso<A>(I < v.size() ? v[I] : falta)...};
    Variante resultado;
    if constexpr (std::is_void_v<R>)
        (tabla.*puntero)(std::get<I>(pasos).valor()...);
    else
        resultado = (tabla.*puntero)(std::get<I>(pasos).valor()...);
    (std::get<I>(pasos).devuelve(), ...);
    return resultado;
}

template <class R, class... A>
constexpr auto indices(R (_Tabla0::*)(A...)) {
    return std::index_sequence_for<A...>();
}

template <auto puntero>
Variante invoca_miembro(_Tabla0& tabla, std::span<Variante> v) {
    return llama<puntero>(tabla, v, puntero, indices(puntero));
}

// --- The types of a member of the class, compared with its row ---

template <class A>
consteval Tipo tipo_de() {
    using D = std::remove_cvref_t<A>;
    if constexpr (std::is_same_v<D, std::int16_t>)
        return Tipo::I2;
    else if constexpr (std::is_same_v<D, std::int32_t>)
        return Tipo::I4;
    else if constexpr (std::is_same_v<D, bool>)
        return Tipo::Bool;
    else if constexpr (std::is_same_v<D, std::string>)
        return Tipo::Str;
    else if constexpr (std::is_same_v<D, Variante>)
        return Tipo::Var;
    else if constexpr (std::is_same_v<D, std::shared_ptr<const Imagen>>)
        return Tipo::Obj;
    else if constexpr (std::is_same_v<D, T_colores>)
        return Tipo::Colores;
    else if constexpr (std::is_same_v<D, T_formato>)
        return Tipo::Formato;
    else if constexpr (std::is_same_v<D, T_Alineacion>)
        return Tipo::Alineacion;
    else if constexpr (std::is_same_v<D, T_Accion>)
        return Tipo::Accion;
    else if constexpr (std::is_same_v<D, Matriz<std::string>>)
        return Tipo::MatrizStr;
    else if constexpr (std::is_same_v<D, Matriz<double>>)
        return Tipo::MatrizR8;
    else {
        static_assert(std::is_void_v<D>, "a type that does not cross the boundary");
        return Tipo::Nada;
    }
}

template <class A>
inline constexpr bool puede_cambiar =
    std::is_lvalue_reference_v<A> && !std::is_const_v<std::remove_reference_t<A>>;

template <class A>
constexpr bool cuadra(const Argumento& a) {
    return tipo_de<A>() == a.tipo && (a.ref || !puede_cambiar<A>);
}

// The arguments of one access: of a put the value is the last.
constexpr std::size_t cuantos_argumentos(const Miembro& m, Acceso acceso) {
    return m.argumentos.size() + (acceso == Acceso::Pone ? 1 : 0);
}

constexpr const Argumento& argumento(const Miembro& m, std::size_t i) {
    return i < m.argumentos.size() ? m.argumentos[i] : m.valor;
}

template <class R, class... A>
constexpr bool cuadra(const Miembro& m, Acceso acceso, R (_Tabla0::*)(A...)) {
    const Tipo resultado = acceso == Acceso::Pone ? Tipo::Nada : m.valor.tipo;
    if (sizeof...(A) != cuantos_argumentos(m, acceso) || tipo_de<R>() != resultado) return false;
    std::size_t i = 0;
    return (true && ... && cuadra<A>(argumento(m, i++)));
}

// --- The list ---

struct Union {
    std::size_t fila = 0; // in MIEMBROS
    Acceso acceso = Acceso::Metodo;
    Llamada llamada = nullptr;
};

// `nombre` and `puntero` belong together.
template <auto puntero>
constexpr Union une(std::string_view nombre, Acceso acceso) {
    const Miembro& m = MIEMBROS.at(fila_de(nombre));
    if (!m.admite(acceso)) throw "the member has no such access";
    if (!cuadra(m, acceso, puntero)) throw "the member's types are not those of its row";
    return {static_cast<std::size_t>(m.lugar - 1), acceso, &invoca_miembro<puntero>};
}

template <auto puntero>
constexpr Union metodo(std::string_view nombre) {
    return une<puntero>(nombre, Acceso::Metodo);
}

// F picks one of the overloads of a property.
template <class F, F _Tabla0::*puntero>
constexpr Union lee(std::string_view nombre) {
    return une<puntero>(nombre, Acceso::Lee);
}

template <class F, F _Tabla0::*puntero>
constexpr Union pone(std::string_view nombre) {
    return une<puntero>(nombre, Acceso::Pone);
}

using i2 = std::int16_t;
using i4 = std::int32_t;
using str = std::string;

constexpr std::array UNIONES{
    metodo<&_Tabla0::A_Pon_Alto>("A_Pon_Alto"),
    metodo<&_Tabla0::A_Pon_Imagen>("A_Pon_Imagen"),
    metodo<&_Tabla0::A_fila_Activa>("A_fila_Activa"),
    metodo<&_Tabla0::A_Edicion_pon_Color>("A_Edicion_pon_Color"),
    metodo<&_Tabla0::A_Edicion_mn_Ratón_Off>("A_Edicion_mn_Ratón_Off"),
    metodo<&_Tabla0::A_Edicion_Columnas_Off>("A_Edicion_Columnas_Off"),
    metodo<&_Tabla0::A_Especial_puntos_ON>("A_Especial_puntos_ON"),
    metodo<&_Tabla0::m_Sumar_dos_ColumnasAyB>("m_Sumar_dos_ColumnasAyB"),
    metodo<&_Tabla0::m_Restar_dos_ColumnasA_B>("m_Restar_dos_ColumnasA_B"),
    metodo<&_Tabla0::m_Diferencia_Parcial_1Columna>("m_Diferencia_Parcial_1Columna"),
    metodo<&_Tabla0::Color_Columna>("Color_Columna"),
    metodo<&_Tabla0::crea_una_fila>("crea_una_fila"),
    metodo<&_Tabla0::Copiar_Todo>("Copiar_Todo"),
    metodo<&_Tabla0::Copiar_todo_Excel>("Copiar_todo_Excel"),
    metodo<&_Tabla0::Tablero_Lee_Formato_Win>("Tablero_Lee_Formato_Win"),
    metodo<&_Tabla0::Tablero_Graba_Formato_Win>("Tablero_Graba_Formato_Win"),
    metodo<&_Tabla0::Tablero_establece_Formato>("Tablero_establece_Formato"),
    metodo<&_Tabla0::Tablero_Leer>("Tablero_Leer"),
    metodo<&_Tabla0::Tablero_Grabar>("Tablero_Grabar"),
    pone<void(const Variante&), &_Tabla0::Width>("Width"),
    lee<Variante(), &_Tabla0::Width>("Width"),
    pone<void(const Variante&), &_Tabla0::Height>("Height"),
    lee<Variante(), &_Tabla0::Height>("Height"),
    pone<void(i4, i4, const str&), &_Tabla0::TextMatrix>("TextMatrix"),
    lee<str(i4, i4), &_Tabla0::TextMatrix>("TextMatrix"),
    pone<void(i4, i4, T_colores), &_Tabla0::ColMatrix>("ColMatrix"),
    pone<void(i4, i4, T_colores), &_Tabla0::Color_1Celda>("Color_1Celda"),
    pone<void(i4, i4, i4, T_colores), &_Tabla0::Color_Fila>("Color_Fila"),
    pone<void(bool), &_Tabla0::A_actualizaEditor>("A_actualizaEditor"),
    lee<str(), &_Tabla0::A_ExtensionFche>("A_ExtensionFche"),
    pone<void(const str&), &_Tabla0::A_ExtensionFche>("A_ExtensionFche"),
    lee<i4(), &_Tabla0::Rows>("Rows"),
    pone<void(i4), &_Tabla0::Rows>("Rows"),
    lee<i4(), &_Tabla0::Cols>("Cols"),
    pone<void(i4), &_Tabla0::Cols>("Cols"),
    metodo<&_Tabla0::Formatcol>("Formatcol"),
    metodo<&_Tabla0::FormatoColumnas>("FormatoColumnas"),
    metodo<&_Tabla0::Editor_Tabl_graba>("Editor_Tabl_graba"),
    metodo<&_Tabla0::Tablero_Nombres>("Tablero_Nombres"),
    metodo<&_Tabla0::Tablero_Formato_por_defecto>("Tablero_Formato_por_defecto"),
    metodo<&_Tabla0::Tablero_Fila_0_Off>("Tablero_Fila_0_Off"),
    metodo<&_Tabla0::Ficheros_en_menu>("Ficheros_en_menu"),
    lee<str(), &_Tabla0::A_GrabaRevoca>("A_GrabaRevoca"),
    pone<void(const str&), &_Tabla0::A_GrabaRevoca>("A_GrabaRevoca"),
    pone<void(i4), &_Tabla0::A_Col>("A_Col"),
    pone<void(i4), &_Tabla0::A_RowTop>("A_RowTop"),
    metodo<&_Tabla0::tablero_sin_color>("tablero_sin_color"),
    pone<void(bool), &_Tabla0::Redraw>("Redraw"),
    metodo<&_Tabla0::Lista>("Lista"),
    lee<bool(i2), &_Tabla0::MergeCol>("MergeCol"),
    pone<void(i2, bool), &_Tabla0::MergeCol>("MergeCol"),
    lee<i2(), &_Tabla0::MergeCells>("MergeCells"),
    pone<void(i2), &_Tabla0::MergeCells>("MergeCells"),
    metodo<&_Tabla0::Clear>("Clear"),
    metodo<&_Tabla0::m_Obten_Matriz_Numerica_de_columna>("m_Obten_Matriz_Numerica_de_columna"),
    metodo<&_Tabla0::m_Obten_Matriz_Alfanume_de_columna>("m_Obten_Matriz_Alfanume_de_columna"),
    metodo<&_Tabla0::m_Asigna_Matriz_Numerica_a_Columna>("m_Asigna_Matriz_Numerica_a_Columna"),
    metodo<&_Tabla0::m__Asigna_Matriz_Alfanume_a_Columna>("m__Asigna_Matriz_Alfanume_a_Columna"),
    metodo<&_Tabla0::Show_Eleige_Color>("Show_Eleige_Color"),
    metodo<&_Tabla0::Show_Elige_Color>("Show_Elige_Color"),
    pone<void(i4, i4, i4), &_Tabla0::Color_Matrix>("Color_Matrix"),
    lee<i4(i4, i4), &_Tabla0::Color_Matrix>("Color_Matrix"),
    lee<i4(i4, i4), &_Tabla0::Color_Matrix_en_VB>("Color_Matrix_en_VB"),
    pone<void(i4, i4, i4), &_Tabla0::Color_Matrix_en_Cad>("Color_Matrix_en_Cad"),
    pone<void(i4, i4, i2), &_Tabla0::Color_Matrix_de_Cad>("Color_Matrix_de_Cad"),
    pone<void(i4, i4, i4), &_Tabla0::Color_Matrix_en_Cad_dado_N_VB>("Color_Matrix_en_Cad_dado_N_VB"),
    pone<void(i4, i4, i2), &_Tabla0::Color_Matrix_en_Cad_dado_N_cad>("Color_Matrix_en_Cad_dado_N_cad"),
};

using Fila = std::array<Llamada, NUM_ACCESOS>;

// By row of the table and access; null where the member has no such access.
consteval std::array<Fila, MIEMBROS.size()> reparte() {
    std::array<Fila, MIEMBROS.size()> filas{};
    for (const Union& u : UNIONES) {
        Llamada& llamada = filas[u.fila][static_cast<std::size_t>(u.acceso)];
        if (llamada != nullptr) throw "an accessor stands twice in the list";
        llamada = u.llamada;
    }
    for (const Miembro& m : MIEMBROS)
        for (const Acceso acceso : m.accesos())
            if (filas[static_cast<std::size_t>(m.lugar - 1)][static_cast<std::size_t>(acceso)] == nullptr)
                throw "an accessor is missing in the list";
    return filas;
}

constexpr std::array<Fila, MIEMBROS.size()> LLAMADAS = reparte();

// Error 450 unless every argument is there that has to be, and none beyond.
void comprueba(const Miembro& m, Acceso acceso, std::span<const Variante> argumentos) {
    const std::size_t cuantos = cuantos_argumentos(m, acceso);
    bool bien = argumentos.size() <= cuantos;
    for (std::size_t i = 0; bien && i < cuantos; ++i)
        bien = argumento(m, i).opt || (i < argumentos.size() && !argumentos[i].es_omitido());
    if (!bien) throw Error(ARGUMENTOS_INCORRECTOS, std::string(textos::argumentos_incorrectos));
}

} // namespace

Variante Despacho::invoca(const Miembro* m, Acceso acceso, std::span<Variante> argumentos) {
    if (m == nullptr || !m->admite(acceso))
        throw Error(MIEMBRO_DESCONOCIDO, std::string(textos::miembro_desconocido));
    comprueba(*m, acceso, argumentos);
    const Fila& fila = LLAMADAS[static_cast<std::size_t>(m->lugar - 1)];
    return fila[static_cast<std::size_t>(acceso)](*tabla_, argumentos);
}

Variante Despacho::invoca(std::int32_t dispid, Acceso acceso, std::span<Variante> argumentos) {
    return invoca(busca_miembro(dispid), acceso, argumentos);
}

Variante Despacho::invoca(std::string_view nombre, Acceso acceso, std::span<Variante> argumentos) {
    return invoca(busca_miembro(nombre), acceso, argumentos);
}

Variante Despacho::invoca(std::int32_t dispid, Acceso acceso, std::initializer_list<Variante> argumentos) {
    std::vector<Variante> copia(argumentos);
    return invoca(busca_miembro(dispid), acceso, copia);
}

Variante Despacho::invoca(
    std::string_view nombre, Acceso acceso, std::initializer_list<Variante> argumentos) {
    std::vector<Variante> copia(argumentos);
    return invoca(busca_miembro(nombre), acceso, copia);
}

} // namespace Qlt4_Tabla
