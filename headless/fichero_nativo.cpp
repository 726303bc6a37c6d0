// SPDX-License-Identifier: MIT
// The calls of POSIX systems, and below them those of the standard library for other systems.
#include "headless/fichero_nativo.h"

#include <cerrno>
#include <system_error>

#if defined(__unix__) || defined(__APPLE__)
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace Qlt4_Tabla {

namespace {

[[noreturn]] void falla(int codigo) {
#if defined(EDQUOT)
    if (codigo == EDQUOT) codigo = ENOSPC; // the user's share of the disk is full
#endif
    throw std::system_error(codigo, std::generic_category());
}

} // namespace

#if defined(__unix__) || defined(__APPLE__)

namespace {

/// Calls until no signal interrupts; -1 is a failure.
template <class Llamada>
auto insiste(Llamada&& llamada) {
    for (;;) {
        const auto r = llamada();
        if (r >= 0) return r;
        if (errno != EINTR) falla(errno);
    }
}

constexpr mode_t DE_TODOS = 0666; // less what the user's mask takes away
constexpr mode_t DE_UNO = 0600;
constexpr mode_t PERMISOS = 07777;

struct stat estado_de(const std::filesystem::path& ruta) {
    struct stat s {};
    if (::stat(ruta.c_str(), &s) != 0) falla(errno);
    return s;
}

} // namespace

FicheroNativo::FicheroNativo(const std::filesystem::path& ruta, Modo modo) {
    int como = O_CLOEXEC;
    switch (modo) {
    case Modo::Lee: como |= O_RDONLY; break;
    case Modo::Cambia: como |= O_RDWR; break;
    case Modo::Nuevo:
    case Modo::NuevoPrivado: como |= O_RDWR | O_CREAT | O_EXCL; break;
    }
    const mode_t permisos = modo == Modo::NuevoPrivado ? DE_UNO : DE_TODOS;
    fd_ = insiste([&] { return ::open(ruta.c_str(), como, permisos); });
}

FicheroNativo::~FicheroNativo() {
    if (fd_ >= 0) ::close(fd_);
}

std::uint64_t FicheroNativo::tamano() const {
    struct stat s {};
    if (::fstat(fd_, &s) != 0) falla(errno);
    return static_cast<std::uint64_t>(s.st_size);
}

std::size_t FicheroNativo::lee(std::uint64_t lugar, char* destino, std::size_t n) {
    std::size_t leidos = 0;
    while (leidos < n) {
        const auto k = insiste(
            [&] { return ::pread(fd_, destino + leidos, n - leidos, static_cast<off_t>(lugar + leidos)); });
        if (k == 0) break;
        leidos += static_cast<std::size_t>(k);
    }
    return leidos;
}

void FicheroNativo::escribe(std::uint64_t lugar, std::string_view bytes) {
    while (!bytes.empty()) {
        const auto k =
            insiste([&] { return ::pwrite(fd_, bytes.data(), bytes.size(), static_cast<off_t>(lugar)); });
        lugar += static_cast<std::uint64_t>(k);
        bytes.remove_prefix(static_cast<std::size_t>(k));
    }
}

void FicheroNativo::pon_tamano(std::uint64_t n) {
    insiste([&] { return ::ftruncate(fd_, static_cast<off_t>(n)); });
}

// The owner first: a change of owner takes some permissions away.
bool FicheroNativo::toma_permisos_de(const std::filesystem::path& otra) {
    const struct stat suyo = estado_de(otra);
    struct stat mio {};
    if (::fstat(fd_, &mio) != 0) falla(errno);
    const bool igual = suyo.st_uid == mio.st_uid && suyo.st_gid == mio.st_gid;
    if (!igual && ::fchown(fd_, suyo.st_uid, suyo.st_gid) != 0) return false;
    if (::fchmod(fd_, suyo.st_mode & PERMISOS) != 0) falla(errno);
    return true;
}

void FicheroNativo::vacia() {
    insiste([&] { return ::fsync(fd_); });
}

void FicheroNativo::cierra() {
    const int fd = fd_;
    fd_ = -1;
    if (::close(fd) != 0 && errno != EINTR) falla(errno);
}

// Some file systems cannot flush a folder; the rename itself is done all the same.
void vacia_carpeta(const std::filesystem::path& carpeta) noexcept {
    const char* const nombre = carpeta.empty() ? "." : carpeta.c_str();
    const int fd = ::open(nombre, O_RDONLY | O_CLOEXEC);
    if (fd < 0) return;
    static_cast<void>(::fsync(fd));
    ::close(fd);
}

bool se_puede_escribir(const std::filesystem::path& ruta) noexcept {
    return ::access(ruta.c_str(), W_OK) == 0;
}

#else

namespace {

constexpr std::uint64_t MAXIMO = 0x7FFFFFFF; // of std::fseek where long has 32 bits

void ve_a(std::FILE* f, std::uint64_t lugar) {
    if (lugar > MAXIMO) falla(EFBIG);
    if (std::fseek(f, static_cast<long>(lugar), SEEK_SET) != 0) falla(errno);
}

} // namespace

FicheroNativo::FicheroNativo(const std::filesystem::path& ruta, Modo modo) : ruta_(ruta) {
    const char* const como = modo == Modo::Lee ? "rb" : modo == Modo::Cambia ? "r+b" : "w+bx";
    f_ = std::fopen(ruta.string().c_str(), como);
    if (f_ == nullptr) falla(errno);
}

FicheroNativo::~FicheroNativo() {
    if (f_ != nullptr) std::fclose(f_);
}

std::uint64_t FicheroNativo::tamano() const { return std::filesystem::file_size(ruta_); }

std::size_t FicheroNativo::lee(std::uint64_t lugar, char* destino, std::size_t n) {
    ve_a(f_, lugar);
    const std::size_t leidos = std::fread(destino, 1, n, f_);
    if (leidos < n && std::ferror(f_) != 0) falla(errno);
    return leidos;
}

void FicheroNativo::escribe(std::uint64_t lugar, std::string_view bytes) {
    ve_a(f_, lugar);
    if (std::fwrite(bytes.data(), 1, bytes.size(), f_) != bytes.size()) falla(errno);
}

void FicheroNativo::pon_tamano(std::uint64_t n) {
    vacia();
    std::filesystem::resize_file(ruta_, n);
}

bool FicheroNativo::toma_permisos_de(const std::filesystem::path& otra) {
    std::filesystem::permissions(ruta_, std::filesystem::status(otra).permissions());
    return true;
}

void FicheroNativo::vacia() {
    if (std::fflush(f_) != 0) falla(errno);
}

void FicheroNativo::cierra() {
    std::FILE* const f = f_;
    f_ = nullptr;
    if (std::fclose(f) != 0) falla(errno);
}

void vacia_carpeta(const std::filesystem::path&) noexcept {}

bool se_puede_escribir(const std::filesystem::path& ruta) noexcept {
    std::error_code sin_estado;
    const auto permisos = std::filesystem::status(ruta, sin_estado).permissions();
    return (permisos & std::filesystem::perms::owner_write) != std::filesystem::perms::none;
}

#endif

} // namespace Qlt4_Tabla
