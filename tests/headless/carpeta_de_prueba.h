// SPDX-License-Identifier: MIT
// CarpetaDePrueba: an own folder for one test, open to every user, gone with all it holds afterwards; and
// work done in a process of its own, which may die in the middle or be another user. POSIX only.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace Qlt4_Tabla {

class CarpetaDePrueba {
public:
    CarpetaDePrueba() {
        std::string plantilla = (std::filesystem::temp_directory_path() / "tabla-XXXXXX").string();
        if (::mkdtemp(plantilla.data()) == nullptr) std::abort();
        ruta_ = plantilla;
        std::filesystem::permissions(ruta_, std::filesystem::perms::all);
    }

    CarpetaDePrueba(const CarpetaDePrueba&) = delete;
    CarpetaDePrueba& operator=(const CarpetaDePrueba&) = delete;

    ~CarpetaDePrueba() {
        std::error_code nada;
        std::filesystem::permissions(ruta_, std::filesystem::perms::all, nada);
        std::filesystem::remove_all(ruta_, nada);
    }

    [[nodiscard]] std::string operator()(std::string_view nombre) const {
        return (ruta_ / std::string(nombre)).string();
    }

    [[nodiscard]] const std::filesystem::path& ruta() const { return ruta_; }

    std::string pon(std::string_view nombre, std::string_view contenido) const {
        const std::string todo = (*this)(nombre);
        std::ofstream(todo, std::ios::binary) << contenido;
        return todo;
    }

    [[nodiscard]] std::string contenido(std::string_view nombre) const {
        std::ifstream f((*this)(nombre), std::ios::binary);
        return {std::istreambuf_iterator<char>(f), std::istreambuf_iterator<char>()};
    }

    /// The names in the folder, in order.
    [[nodiscard]] std::vector<std::string> nombres() const {
        std::vector<std::string> todos;
        for (const auto& f : std::filesystem::directory_iterator(ruta_))
            todos.push_back(f.path().filename().string());
        std::sort(todos.begin(), todos.end());
        return todos;
    }

private:
    std::filesystem::path ruta_;
};

/// Runs the work in a process of its own and gives its exit code, or -1 where it was killed.
template <class Trabajo>
int en_otro_proceso(Trabajo&& trabajo) {
    const pid_t hijo = ::fork();
    if (hijo == 0) ::_exit(trabajo());
    int estado = 0;
    ::waitpid(hijo, &estado, 0);
    return WIFEXITED(estado) ? WEXITSTATUS(estado) : -1;
}

/// The same as a user without special rights: the administrator turns into "nobody".
template <class Trabajo>
int sin_privilegios(Trabajo&& trabajo) {
    return en_otro_proceso([&] {
        constexpr unsigned NADIE = 65534;
        if (::geteuid() == 0 && (::setgid(NADIE) != 0 || ::setuid(NADIE) != 0)) return 99;
        return static_cast<int>(trabajo());
    });
}

} // namespace Qlt4_Tabla
