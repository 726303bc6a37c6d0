// SPDX-License-Identifier: MIT
// The check in one pass from the first byte to the last, and the rows in a second: files/lector_tb0.h.
#include "files/lector_tb0.h"

#include "base/little_endian.h"
#include "files/texto_1252.h"

#include <utility>

namespace Qlt4_Tabla {

namespace {

// Goes through the bytes and keeps the place of the part it is at. A part that is wrong ends the check by
// throwing it.
class Examen {
public:
    explicit Examen(std::string_view bytes) : bytes_(bytes) {}

    [[nodiscard]] RegistroTb0 haz() {
        RegistroTb0 r;
        r.subtitulo = de_1252(texto(ParteTb0::Subtitulo));
        r.columnas = cuenta(ParteTb0::NCols, MAX_COLUMNAS) + 1;
        const std::int64_t filas = std::int64_t{cuenta(ParteTb0::NFilas, INT32_MAX)} + 1;
        matriz(ParteTb0::DimensionesFilas, filas);
        r.filas = static_cast<std::int32_t>(filas); // as many as the 32 bits of the elements say
        r.inicio_filas = pos_;
        caben_las_filas(r);
        for (fila_ = 0; fila_ < r.filas; ++fila_) fila(r.columnas);
        fila_ = -1;
        for (col_ = 0; col_ < static_cast<std::int32_t>(tb0::FORMATOS); ++col_)
            r.formatos[static_cast<std::size_t>(col_)] = formato();
        r.bytes = pos_;
        return r;
    }

private:
    [[noreturn]] void falla(ParteTb0 parte, DefectoTb0 defecto, std::size_t posicion,
        std::int64_t hallado = 0, std::int64_t esperado = 0) const {
        throw FalloTb0{parte, defecto, posicion, fila_, col_, hallado, esperado};
    }

    [[nodiscard]] std::size_t quedan() const { return bytes_.size() - pos_; }

    /// The place of `n` bytes, which are then passed.
    std::size_t toma(std::size_t n, ParteTb0 parte) {
        if (quedan() < n) falla(parte, DefectoTb0::Falta, pos_, static_cast<std::int64_t>(n));
        const std::size_t aqui = pos_;
        pos_ += n;
        return aqui;
    }

    std::string_view texto(ParteTb0 parte) {
        const std::size_t inicio = toma(tb0::BYTES_LONGITUD, parte);
        const std::size_t n = lee16(bytes_, inicio);
        if (quedan() < n)
            falla(parte, DefectoTb0::Falta, inicio, static_cast<std::int64_t>(tb0::BYTES_LONGITUD + n));
        return bytes_.substr(toma(n, parte), n);
    }

    /// The last index of something of which there may be `maximo`.
    std::int32_t cuenta(ParteTb0 parte, std::int32_t maximo) {
        const std::size_t aqui = toma(tb0::BYTES_CUENTA, parte);
        const std::int32_t n = lee32_con_signo(bytes_, aqui);
        if (n < 0) falla(parte, DefectoTb0::Negativo, aqui, n);
        if (n >= maximo) falla(parte, DefectoTb0::Demasiado, aqui, n, maximo - 1);
        return n;
    }

    void exige(ParteTb0 parte, std::size_t aqui, std::int64_t hallado, std::int64_t esperado) const {
        if (hallado != esperado) falla(parte, DefectoTb0::Distinto, aqui, hallado, esperado);
    }

    /// `parte` is the first of the three; the other two follow it.
    void matriz(ParteTb0 parte, std::int64_t elementos) {
        const auto otra = [parte](int k) { return static_cast<ParteTb0>(static_cast<int>(parte) + k); };
        std::size_t aqui = toma(2, parte);
        exige(parte, aqui, lee16_con_signo(bytes_, aqui), tb0::DIMENSIONES);
        aqui = toma(4, otra(1));
        exige(otra(1), aqui, lee32_con_signo(bytes_, aqui), elementos);
        aqui = toma(4, otra(2));
        exige(otra(2), aqui, lee32_con_signo(bytes_, aqui), tb0::LIMITE_INFERIOR);
    }

    void caben_las_filas(const RegistroTb0& r) const {
        const auto filas = static_cast<std::uint64_t>(r.filas);
        const std::uint64_t hacen_falta =
            filas * tb0::bytes_fila_minima(static_cast<std::size_t>(r.columnas)) +
            tb0::BYTES_FORMATOS_MINIMOS;
        if (hacen_falta > quedan())
            falla(ParteTb0::NFilas, DefectoTb0::SinBytes, pos_ - tb0::BYTES_MATRIZ - tb0::BYTES_CUENTA,
                r.filas - 1, static_cast<std::int64_t>(quedan()));
    }

    void fila(std::int32_t columnas) {
        matriz(ParteTb0::DimensionesFila, columnas);
        for (col_ = pasa_textos(columnas); col_ < columnas; ++col_) texto(ParteTb0::Celda);
        col_ = -1;
    }

    /// Passes so many texts, or those before the first one that is not whole; how many.
    std::int32_t pasa_textos(std::int32_t cuantos) {
        std::size_t pos = pos_;
        std::int32_t i = 0;
        for (; i < cuantos && bytes_.size() - pos >= tb0::BYTES_LONGITUD; ++i) {
            const std::size_t fin = pos + tb0::BYTES_LONGITUD + lee16(bytes_, pos);
            if (fin > bytes_.size()) break;
            pos = fin;
        }
        pos_ = pos;
        return i;
    }

    T_FormatoColumna formato() {
        T_FormatoColumna f;
        f.Nombre = de_1252(texto(ParteTb0::Formato));
        std::size_t aqui = toma(2 * tb0::CAMPOS_FORMATO, ParteTb0::Formato);
        const auto numero = [&] { return lee16_con_signo(bytes_, std::exchange(aqui, aqui + 2)); };
        f.Invisible = numero() != 0;
        f.Bloqueada = numero() != 0;
        f.Longitud = numero();
        f.Formato = numero();
        f.Decimales = numero();
        f.Alineacion = numero();
        f.Accion = numero();
        return f;
    }

    std::string_view bytes_;
    std::size_t pos_ = 0;
    std::int32_t fila_ = -1;
    std::int32_t col_ = -1;
};

} // namespace

std::variant<RegistroTb0, FalloTb0> examina_tb0(std::string_view bytes) {
    try {
        return Examen(bytes).haz();
    } catch (const FalloTb0& fallo) {
        return fallo;
    }
}

std::span<const std::string_view> FilasTb0::siguiente() {
    const std::size_t inicio = pos_;
    pos_ += tb0::BYTES_MATRIZ;
    for (std::size_t c = 0; c < columnas_; ++c) {
        const std::size_t n = lee16(bytes_, pos_);
        textos_[c] = bytes_.substr(pos_ + tb0::BYTES_LONGITUD, n);
        pos_ += tb0::BYTES_LONGITUD + n;
    }
    if (!es_ascii(bytes_.substr(inicio, pos_ - inicio))) convierte();
    return {textos_.data(), columnas_};
}

// The views are made when the text has its last place.
void FilasTb0::convierte() {
    std::array<std::size_t, MAX_COLUMNAS> finales{};
    convertidos_.clear();
    for (std::size_t c = 0; c < columnas_; ++c) {
        de_1252(textos_[c], convertidos_);
        finales[c] = convertidos_.size();
    }
    std::size_t desde = 0;
    for (std::size_t c = 0; c < columnas_; ++c) {
        textos_[c] = std::string_view(convertidos_).substr(desde, finales[c] - desde);
        desde = finales[c];
    }
}

} // namespace Qlt4_Tabla
