// SPDX-License-Identifier: MIT
// Reading whole files and replacing them safely: headless/ficheros_disco.h.
#include "headless/ficheros_disco.h"

#include "headless/fichero_nativo.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdlib>
#include <optional>
#include <random>
#include <system_error>
#include <utility>

namespace Qlt4_Tabla {

namespace {

namespace fs = std::filesystem;

constexpr std::size_t PIEZA = std::size_t{1} << 20U;
constexpr int MAX_ENLACES = 40;
constexpr int MAX_INTENTOS = 100; // names for a temporary file

[[noreturn]] void falla(std::errc codigo) { throw std::system_error(std::make_error_code(codigo)); }

// A name is bytes of UTF-8; a zero byte would end it early.
fs::path ruta_de(std::string_view nombre) {
    if (nombre.empty() || nombre.find('\0') != std::string_view::npos) lanza(NumError::AccesoRuta);
    return {std::u8string(nombre.begin(), nombre.end())};
}

enum class Accion { Lee, Escribe };

NumError numero_de(const std::error_code& codigo, const fs::path& ruta, Accion accion) {
    static constexpr std::array<std::pair<std::errc, NumError>, 16> TABLA{{
        {std::errc::no_space_on_device, NumError::DiscoLleno},
        {std::errc::file_too_large, NumError::DiscoLleno},
        {std::errc::permission_denied, NumError::PermisoDenegado},
        {std::errc::operation_not_permitted, NumError::PermisoDenegado},
        {std::errc::text_file_busy, NumError::PermisoDenegado},
        {std::errc::device_or_resource_busy, NumError::PermisoDenegado},
        {std::errc::read_only_file_system, NumError::PermisoDenegado},
        {std::errc::is_a_directory, NumError::AccesoRuta},
        {std::errc::invalid_argument, NumError::AccesoRuta},
        {std::errc::filename_too_long, NumError::AccesoRuta},
        {std::errc::too_many_symbolic_link_levels, NumError::AccesoRuta},
        {std::errc::no_such_device_or_address, NumError::AccesoRuta},
        {std::errc::illegal_byte_sequence, NumError::AccesoRuta},
        {std::errc::not_a_directory, NumError::SinRuta},
        {std::errc::not_enough_memory, NumError::SinMemoria},
        {std::errc::value_too_large, NumError::SinMemoria},
    }};
    if (codigo == std::errc::no_such_file_or_directory) {
        std::error_code nada;
        const fs::path carpeta = ruta.parent_path();
        const bool hay_carpeta = carpeta.empty() || fs::is_directory(carpeta, nada);
        return accion == Accion::Lee && hay_carpeta ? NumError::SinFichero : NumError::SinRuta;
    }
    for (const auto& [suyo, numero] : TABLA)
        if (codigo == suyo) return numero;
    return NumError::ErrorES;
}

// Runs the work on a file and tells the system's failures by our numbers.
template <class Trabajo>
decltype(auto) con_numeros(const fs::path& ruta, Accion accion, Trabajo&& trabajo) {
    try {
        return trabajo();
    } catch (const std::system_error& e) {
        lanza(numero_de(e.code(), ruta, accion));
    }
}

class AbiertoDelDisco final : public FicheroAbierto {
public:
    explicit AbiertoDelDisco(const fs::path& ruta) : ruta_(ruta), fichero_(ruta, FicheroNativo::Modo::Lee) {}

    [[nodiscard]] std::uint64_t tamano() const override {
        return con_numeros(ruta_, Accion::Lee, [this] { return fichero_.tamano(); });
    }

    [[nodiscard]] std::size_t lee(std::uint64_t lugar, char* destino, std::size_t n) override {
        return con_numeros(ruta_, Accion::Lee, [&] { return fichero_.lee(lugar, destino, n); });
    }

private:
    fs::path ruta_;
    FicheroNativo fichero_;
};

/// The file behind a chain of links; the last one need not exist.
fs::path tras_enlaces(fs::path ruta) {
    for (int i = 0; i < MAX_ENLACES; ++i) {
        std::error_code nada;
        if (!fs::is_symlink(fs::symlink_status(ruta, nada))) return ruta;
        ruta = ruta.parent_path() / fs::read_symlink(ruta);
    }
    falla(std::errc::too_many_symbolic_link_levels);
}

/// False where nothing of that name exists; what is there must be a file.
bool existe_fichero(const fs::path& ruta) {
    const fs::file_status estado = fs::status(ruta);
    if (!fs::exists(estado)) return false;
    if (!fs::is_regular_file(estado)) falla(std::errc::is_a_directory);
    return true;
}

fs::path nombre_temporal(const fs::path& carpeta) {
    std::random_device azar;
    std::string nombre = ".tabla-";
    for (int i = 0; i < 8; ++i) nombre += static_cast<char>('a' + azar() % 26U);
    return carpeta / (nombre + ".tmp");
}

// A temporary file that is taken away unless it was put in its place.
class Temporal {
public:
    Temporal(const fs::path& carpeta, bool privado) {
        const auto modo = privado ? FicheroNativo::Modo::NuevoPrivado : FicheroNativo::Modo::Nuevo;
        for (int intento = 1;; ++intento) {
            ruta_ = nombre_temporal(carpeta);
            try {
                fichero_.emplace(ruta_, modo);
                return;
            } catch (const std::system_error& e) {
                if (e.code() != std::errc::file_exists || intento == MAX_INTENTOS) throw;
            }
        }
    }

    Temporal(const Temporal&) = delete;
    Temporal& operator=(const Temporal&) = delete;

    ~Temporal() {
        if (ruta_.empty()) return;
        fichero_.reset();
        std::error_code nada;
        fs::remove(ruta_, nada);
    }

    [[nodiscard]] FicheroNativo& fichero() { return *fichero_; }

    void renombra(const fs::path& destino) {
        fs::rename(ruta_, destino);
        ruta_.clear();
    }

private:
    fs::path ruta_;
    std::optional<FicheroNativo> fichero_;
};

/// Is this a reason to write in place: nothing new may be put into the folder?
bool impide_temporal(const std::error_code& codigo) {
    return codigo == std::errc::permission_denied || codigo == std::errc::operation_not_permitted ||
        codigo == std::errc::read_only_file_system || codigo == std::errc::device_or_resource_busy;
}

// Writes in pieces; `antes` is called before each.
template <class Antes>
void escribe_piezas(FicheroNativo& f, std::uint64_t lugar, std::string_view bytes, Antes&& antes) {
    for (std::size_t i = 0; i < bytes.size(); i += PIEZA) {
        antes();
        f.escribe(lugar + i, bytes.substr(i, PIEZA));
    }
}

} // namespace

std::unique_ptr<FicheroAbierto> FicherosDisco::abre(std::string_view nombre) const {
    const fs::path ruta = ruta_de(nombre);
    return con_numeros(ruta, Accion::Lee, [&] {
        if (!existe_fichero(ruta)) falla(std::errc::no_such_file_or_directory);
        return std::make_unique<AbiertoDelDisco>(ruta);
    });
}

void FicherosDisco::escribe_al_inicio(std::string_view nombre, const DaBytes& bytes) {
    const fs::path dada = ruta_de(nombre);
    con_numeros(dada, Accion::Escribe, [&] {
        const fs::path ruta = tras_enlaces(dada);
        const bool existe = existe_fichero(ruta);
        // A file that may not be written is not replaced either, though its folder would let us.
        if (existe && !se_puede_escribir(ruta)) falla(std::errc::permission_denied);
        if (!reemplaza(ruta, existe, bytes)) escribe_en_sitio(ruta, bytes);
    });
}

// False, and nothing changed, where it has to be written in place.
bool FicherosDisco::reemplaza(const fs::path& ruta, bool existe, const DaBytes& bytes) {
    std::optional<Temporal> temporal;
    try {
        paso(Paso::CreaTemporal);
        temporal.emplace(ruta.parent_path(), existe);
        paso(Paso::TomaPermisos);
        if (existe && !temporal->fichero().toma_permisos_de(ruta)) return false;
    } catch (const std::system_error& e) {
        if (!existe || !impide_temporal(e.code())) throw;
        return false;
    }
    FicheroNativo& nuevo = temporal->fichero();
    std::uint64_t escritos = 0;
    bytes([&](std::string_view seguidos) {
        escribe_piezas(nuevo, escritos, seguidos, [this] { paso(Paso::Escribe); });
        escritos += seguidos.size();
    });
    if (existe) {
        FicheroNativo viejo(ruta, FicheroNativo::Modo::Lee);
        Bytes pieza;
        for (std::uint64_t i = escritos, fin = viejo.tamano(); i < fin; i += pieza.size()) {
            pieza.resize(PIEZA);
            pieza.resize(viejo.lee(i, pieza.data(), PIEZA));
            if (pieza.size() == 0) break; // cut by another program meanwhile
            paso(Paso::Escribe);
            nuevo.escribe(i, pieza.vista());
        }
    }
    paso(Paso::Vacia);
    nuevo.vacia();
    nuevo.cierra();
    try {
        paso(Paso::Renombra);
        temporal->renombra(ruta);
    } catch (const std::system_error& e) {
        if (!existe || !impide_temporal(e.code())) throw;
        return false;
    }
    paso(Paso::VaciaCarpeta);
    vacia_carpeta(ruta.parent_path());
    return true;
}

// The bytes are there and the room is taken before anything is overwritten; after an error what stood there is put
// back.
void FicherosDisco::escribe_en_sitio(const fs::path& ruta, const DaBytes& da) {
    std::string todos;
    da([&todos](std::string_view seguidos) { todos += seguidos; });
    const std::string_view bytes = todos;
    FicheroNativo f(ruta, FicheroNativo::Modo::Cambia);
    const std::uint64_t tamano = f.tamano();
    Bytes viejos(static_cast<std::size_t>(std::min<std::uint64_t>(tamano, bytes.size())));
    viejos.resize(f.lee(0, viejos.data(), viejos.size()));
    const auto antes = [this] { paso(Paso::EscribeEnSitio); };
    try {
        if (bytes.size() > tamano) escribe_piezas(f, tamano, bytes.substr(tamano), antes);
        escribe_piezas(f, 0, bytes.substr(0, viejos.size()), antes);
        paso(Paso::VaciaEnSitio);
        f.vacia();
    } catch (const std::system_error&) {
        f.escribe(0, viejos.vista());
        f.pon_tamano(tamano);
        throw;
    }
    f.cierra();
}

bool FicherosDisco::es_carpeta(std::string_view nombre) const {
    std::error_code nada;
    return !nombre.empty() && fs::is_directory(std::u8string(nombre.begin(), nombre.end()), nada);
}

std::string FicherosDisco::carpeta_personal() const {
    for (const char* const variable : {"HOME", "USERPROFILE"}) {
        const char* const valor = std::getenv(variable);
        if (valor != nullptr && *valor != '\0') return valor;
    }
    return {};
}

} // namespace Qlt4_Tabla
