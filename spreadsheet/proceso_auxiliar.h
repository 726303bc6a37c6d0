// SPDX-License-Identifier: MIT
// ProcesoAuxiliar: the helper program at the other end of a pair of pipes, and the time it is given. It never
// outlives its object, and neither it nor a signal of its end harms the host. POSIX; on other systems none
// can be started. Messages: spreadsheet/protocolo.h.
#pragma once

#include "spreadsheet/protocolo.h"

#include <chrono>
#include <filesystem>
#include <optional>
#include <string_view>

namespace Qlt4_Tabla {

class ProcesoAuxiliar {
public:
    using Plazo = std::chrono::steady_clock::time_point;

    /// Starts the program in a process group of its own. Error 429 where it cannot be started.
    explicit ProcesoAuxiliar(const std::filesystem::path& programa);
    /// Kills what still runs of the process group.
    ~ProcesoAuxiliar();
    ProcesoAuxiliar(const ProcesoAuxiliar&) = delete;
    ProcesoAuxiliar& operator=(const ProcesoAuxiliar&) = delete;

    /// False where the helper has gone or the time is over.
    [[nodiscard]] bool envia(std::string_view bytes, Plazo hasta);
    /// The next message; nothing where the helper has gone, speaks otherwise, or the time is over.
    [[nodiscard]] std::optional<Mensaje> recibe(Plazo hasta);
    /// Waits for the end of the helper, which has let go.
    void espera_el_fin(Plazo hasta);

private:
    /// Waits until the pipe can be read (or written); false when the time is over.
    [[nodiscard]] bool espera(short suceso, Plazo hasta) const;

    int fd_ = -1;
    int pid_ = -1;
    LectorMensajes lector_{1024};
};

/// Kills a session with all its processes, where the process that founded it is still its leader.
void mata_sesion(int lider) noexcept;

} // namespace Qlt4_Tabla
