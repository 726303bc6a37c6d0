// SPDX-License-Identifier: MIT
// IndiceTrozos: memory is always taken before anything changes; a join that finds none is left undone.
#include "core/indice_trozos.h"

#include <algorithm>
#include <iterator>
#include <new>
#include <utility>

namespace Qlt4_Tabla {

namespace {

template <class T>
auto en(std::vector<T>& v, std::size_t k) {
    return v.begin() + static_cast<std::ptrdiff_t>(k);
}

// Room for `mas` more, growing as push_back does.
template <class T>
void haz_sitio(std::vector<T>& v, std::size_t mas) {
    if (v.capacity() - v.size() < mas) v.reserve(std::max(v.size() + mas, v.size() * 2));
}

// Joining is only a matter of size: without memory it does not happen.
bool absorbe(Trozo& a, Trozo& b) noexcept {
    try {
        a.absorbe(b);
        return true;
    } catch (const std::bad_alloc&) {
        return false;
    }
}

// Where to cut a chunk that grew too heavy: before row `i`, which is being written, when hardly anything
// stands behind it (rows are being filled one after the other), else in the middle of its bytes.
int punto_de_corte(const Trozo& t, int i) {
    const auto bytes = [&t](int j) { return t.fila(j).size(); };
    std::size_t detras = 0;
    for (int j = i + 1; j < t.filas(); ++j) detras += bytes(j);
    if (i > 0 && detras <= 2 * static_cast<std::size_t>(t.filas() - i)) return i;
    int corte = 1;
    for (std::size_t suma = bytes(0); corte < t.filas() - 1 && suma < t.usados() / 2; ++corte)
        suma += bytes(corte);
    return corte;
}

// Removes rows of a chunk whose first row is `primera`, run by run from the last.
void borra_de(Trozo& t, int primera, std::span<const int> filas) {
    while (!filas.empty()) {
        std::size_t n = 1;
        const int ultima = filas.back();
        while (n < filas.size() && filas[filas.size() - n - 1] == ultima - static_cast<int>(n)) ++n;
        t.borra(ultima - primera - static_cast<int>(n) + 1, static_cast<int>(n));
        filas = filas.first(filas.size() - n);
    }
}

// Joined chunks stay well below the size at which they are cut again.
bool caben_juntos(const Trozo& a, const Trozo& b) {
    constexpr int FILAS = FILAS_POR_TROZO * 3 / 4;
    constexpr std::uint32_t BYTES = Trozo::BYTES_BUENOS / 2;
    if (a.vacio() && b.vacio() && a.numeradas() == b.numeradas()) return true;
    return a.filas() <= FILAS && b.filas() <= FILAS - a.filas() && a.usados() + b.usados() <= BYTES;
}

} // namespace

// The index of the chunk with row `fila`: the one after the last found, else by halving.
std::size_t IndiceTrozos::busca_trozo(int fila) const {
    std::size_t k = actual_.k + 1;
    if (k >= trozos_.size() || fila < primeras_[k] || fila >= primeras_[k + 1])
        k = static_cast<std::size_t>(
                std::upper_bound(primeras_.begin(), primeras_.end(), fila) - primeras_.begin()) -
            1;
    actual_ = {primeras_[k], primeras_[k + 1], &trozos_[k], k};
    return k;
}

// Changes of the index

// Room for so many chunks more.
void IndiceTrozos::reserva(std::size_t mas) {
    olvida();
    haz_sitio(primeras_, mas);
    haz_sitio(trozos_, mas);
}

// A chunk at index `k`; the first rows behind it stay as they are.
void IndiceTrozos::anade(std::size_t k, int primera, Trozo trozo) {
    reserva(1);
    primeras_.insert(en(primeras_, k), primera);
    trozos_.insert(en(trozos_, k), std::move(trozo));
}

// Chunks `k1` to `k2` - 1 leave; the first rows behind them stay as they are.
void IndiceTrozos::quita(std::size_t k1, std::size_t k2) {
    primeras_.erase(en(primeras_, k1), en(primeras_, k2));
    trozos_.erase(en(trozos_, k1), en(trozos_, k2));
    olvida();
}

// Chunk `k` and those behind it begin `n` rows later.
void IndiceTrozos::desplaza(std::size_t k, int n) {
    for (; k < primeras_.size(); ++k) primeras_[k] += n;
    olvida();
}

// Makes a chunk begin at `fila`; returns its index (the number of chunks at the end).
std::size_t IndiceTrozos::corta(int fila) {
    if (fila == filas()) return trozos_.size();
    const std::size_t k = busca_trozo(fila);
    if (primeras_[k] == fila) return k;
    reserva(1);
    anade(k + 1, fila, trozos_[k].separa(fila - primeras_[k]));
    return k + 1;
}

// Joins chunk `k` with the next one where they are small enough together.
bool IndiceTrozos::funde(std::size_t k) {
    if (k + 1 >= trozos_.size() || !caben_juntos(trozos_[k], trozos_[k + 1])) return false;
    if (!absorbe(trozos_[k], trozos_[k + 1])) return false;
    quita(k + 1, k + 2);
    return true;
}

LugarFila IndiceTrozos::prepara(int fila, std::size_t mas) {
    LugarFila l = busca(fila);
    if (l.trozo->sin_textos()) {
        if (l.trozo->filas() > FILAS_POR_TROZO) {
            const int desde = fila - l.i % FILAS_POR_TROZO;
            corta(std::min(desde + FILAS_POR_TROZO, fila - l.i + l.trozo->filas()));
            corta(desde);
            l = busca(fila);
        }
        l.trozo->empaqueta();
    }
    while (l.trozo->filas() > 1 && l.trozo->usados() + mas > Trozo::BYTES_BUENOS) {
        corta(fila - l.i + punto_de_corte(*l.trozo, l.i));
        l = busca(fila);
    }
    return l;
}

void IndiceTrozos::inserta(int fila, int n) {
    if (trozos_.empty()) {
        anade(0, 0, Trozo(n, false));
        primeras_.back() = n;
        return;
    }
    const std::size_t k = fila == filas() ? trozos_.size() - 1 : busca_trozo(fila);
    const int i = fila - primeras_[k];
    Trozo& t = trozos_[k];
    if ((t.vacio() && !t.numeradas()) || t.filas() + n <= FILAS_POR_TROZO) {
        if (t.sin_textos() && t.numeradas()) t.empaqueta();
        t.inserta(i, n);
        desplaza(k + 1, n);
    } else if (i == 0 || i == t.filas()) {
        const std::size_t nuevo = i == 0 ? k : k + 1;
        anade(nuevo, fila, Trozo(n, false));
        desplaza(nuevo + 1, n);
    } else {
        const bool a_medias = t.filas() <= FILAS_POR_TROZO && n <= FILAS_POR_TROZO / 2;
        corta(a_medias ? primeras_[k] + t.filas() / 2 : fila);
        inserta(fila, n);
    }
}

void IndiceTrozos::borra(int fila, int n) {
    const int hasta = fila + n;
    const std::size_t k1 = busca_trozo(fila);
    std::size_t k = k1;
    for (; k < trozos_.size() && primeras_[k] < hasta; ++k) {
        const int i1 = std::max(fila - primeras_[k], 0);
        const int i2 = std::min(hasta, primeras_[k + 1]) - primeras_[k];
        if (i2 - i1 != trozos_[k].filas()) trozos_[k].borra(i1, i2 - i1);
    }
    const std::size_t enteros1 = primeras_[k1] == fila ? k1 : k1 + 1;
    const std::size_t enteros2 = primeras_[k] <= hasta ? k : k - 1;
    quita(enteros1, std::max(enteros1, enteros2));
    if (primeras_[k1] > fila) primeras_[k1] = std::max(primeras_[k1] - n, fila);
    for (std::size_t j = k1 + 1; j < primeras_.size(); ++j) primeras_[j] = std::max(primeras_[j] - n, fila);
    while (funde(k1)) {
    }
    while (k1 > 0 && funde(k1 - 1)) {
    }
}

void IndiceTrozos::borra_varias(std::span<const int> filas) {
    if (filas.empty()) return;
    std::size_t destino = busca_trozo(filas.front());
    int primera = primeras_[destino];
    for (std::size_t k = destino; k < trozos_.size(); ++k) {
        const int base = primeras_[k];
        const auto hasta = std::lower_bound(filas.begin(), filas.end(), primeras_[k + 1]);
        const auto n = static_cast<std::size_t>(hasta - filas.begin());
        Trozo t = std::move(trozos_[k]);
        const auto suyas_borradas = filas.first(n);
        filas = filas.subspan(n);
        if (n == static_cast<std::size_t>(t.filas())) continue;
        borra_de(t, base, suyas_borradas);
        const int suyas = t.filas();
        const bool junto = n != 0 && destino > 0 && caben_juntos(trozos_[destino - 1], t) &&
            absorbe(trozos_[destino - 1], t);
        if (!junto) {
            primeras_[destino] = primera;
            trozos_[destino++] = std::move(t);
        }
        primera += suyas;
    }
    quita(destino, trozos_.size());
    primeras_.back() = primera;
}

void IndiceTrozos::reparte(int desde, int hasta) {
    if (busca(desde).trozo->filas() > FILAS_POR_TROZO) corta(desde);
    if (busca(hasta).trozo->filas() > FILAS_POR_TROZO) corta(hasta + 1);
    for (std::size_t k = busca_trozo(desde); k < trozos_.size() && primeras_[k] <= hasta; ++k) {
        const int filas = trozos_[k].filas();
        if (filas <= FILAS_POR_TROZO) continue;
        std::vector<int> primeras;
        std::vector<Trozo> trozos;
        for (int i = FILAS_POR_TROZO; i < filas; i += FILAS_POR_TROZO) {
            const int n = std::min(FILAS_POR_TROZO, filas - i);
            trozos.emplace_back(n, trozos_[k].numeradas());
            primeras.push_back(primeras_[k] + i);
        }
        reserva(primeras.size());
        trozos_[k].borra(FILAS_POR_TROZO, filas - FILAS_POR_TROZO);
        primeras_.insert(en(primeras_, k + 1), primeras.begin(), primeras.end());
        trozos_.insert(
            en(trozos_, k + 1), std::move_iterator(trozos.begin()), std::move_iterator(trozos.end()));
    }
}

void IndiceTrozos::junta_vacios(int desde, int hasta) {
    std::size_t k = busca_trozo(desde);
    if (k > 0) --k;
    while (k + 1 < trozos_.size() && primeras_[k] <= hasta) {
        const bool vacios = trozos_[k].vacio() && trozos_[k + 1].vacio();
        if (!vacios || !funde(k)) ++k;
    }
}

std::size_t IndiceTrozos::bytes() const {
    std::size_t bytes = primeras_.capacity() * sizeof(int) + trozos_.capacity() * sizeof(Trozo);
    for (const Trozo& t : trozos_) bytes += t.bytes();
    return bytes;
}

} // namespace Qlt4_Tabla
