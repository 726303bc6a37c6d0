// SPDX-License-Identifier: MIT
// FicheroNativo: one open file of the operating system, closed when it goes. The only place that speaks to
// the system's own calls where the standard library has none (flushing to the disk, owner, permissions of
// a new file); elsewhere than on POSIX systems it makes do with the standard library.
// Every failure: std::system_error with the system's code. How files are replaced: headless/ficheros_disco.h.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <string_view>

namespace Qlt4_Tabla {

class FicheroNativo {
public:
    enum class Modo {
        Lee,
        Cambia, ///< read and write what exists; nothing is cut off
        Nuevo, ///< made; fails where the name exists; open to whom the system says new files are
        NuevoPrivado, ///< the same, open to nobody else
    };

    FicheroNativo(const std::filesystem::path& ruta, Modo modo);
    ~FicheroNativo();
    FicheroNativo(const FicheroNativo&) = delete;
    FicheroNativo& operator=(const FicheroNativo&) = delete;

    [[nodiscard]] std::uint64_t tamano() const;
    /// Reads from a place on, up to `n` bytes; fewer only at the end of the file.
    [[nodiscard]] std::size_t lee(std::uint64_t lugar, char* destino, std::size_t n);
    void escribe(std::uint64_t lugar, std::string_view bytes);
    /// Cuts the file, or fills it up with zeros.
    void pon_tamano(std::uint64_t n);
    /// Takes over owner, group and permissions of another file; false where the owner or the group cannot be
    /// given.
    [[nodiscard]] bool toma_permisos_de(const std::filesystem::path& otra);
    /// Everything written is on the disk afterwards.
    void vacia();
    /// Closes and tells a late error of the system.
    void cierra();

private:
#if defined(__unix__) || defined(__APPLE__)
    int fd_ = -1;
#else
    std::FILE* f_ = nullptr;
    std::filesystem::path ruta_;
#endif
};

/// The names in this folder are on the disk afterwards, as far as the system can do that.
void vacia_carpeta(const std::filesystem::path& carpeta) noexcept;

/// May this program write the file?
[[nodiscard]] bool se_puede_escribir(const std::filesystem::path& ruta) noexcept;

} // namespace Qlt4_Tabla
