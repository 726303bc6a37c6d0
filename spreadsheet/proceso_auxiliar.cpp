// SPDX-License-Identifier: MIT
// The calls of POSIX systems, and below them what stands for other systems. The pipes are a pair of sockets:
// writing to one whose reader has gone is an error, where a pipe would send the host a signal.
#include "spreadsheet/proceso_auxiliar.h"

#include "base/error.h"

#include <algorithm>
#include <array>
#include <cerrno>

#if defined(__unix__) || defined(__APPLE__)
#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <spawn.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

extern "C" char** environ;
#endif

namespace Qlt4_Tabla {

#if defined(__unix__) || defined(__APPLE__)

namespace {

#if defined(MSG_NOSIGNAL)
constexpr int SIN_SENAL = MSG_NOSIGNAL;
#else
constexpr int SIN_SENAL = 0; // the socket has an option for it
#endif

struct Extremos {
    int nuestro = -1;
    int suyo = -1;
};

// No other program that the host starts may inherit them; ours never blocks, because time is watched.
Extremos par_de_extremos() {
    std::array<int, 2> fd{-1, -1};
#if defined(SOCK_CLOEXEC)
    constexpr int COMO = SOCK_STREAM | SOCK_CLOEXEC;
#else
    constexpr int COMO = SOCK_STREAM;
#endif
    if (::socketpair(AF_UNIX, COMO, 0, fd.data()) != 0) lanza(NumError::SinComponente);
    for (const int f : fd) static_cast<void>(::fcntl(f, F_SETFD, FD_CLOEXEC));
#if defined(SO_NOSIGPIPE)
    const int si = 1;
    static_cast<void>(::setsockopt(fd[0], SOL_SOCKET, SO_NOSIGPIPE, &si, sizeof si));
#endif
    static_cast<void>(::fcntl(fd[0], F_SETFL, O_NONBLOCK));
    return {fd[0], fd[1]};
}

/// How the helper is started: 0 and 1 are its end of the pipes, 2 is nowhere; signals are as a new program
/// expects them, whatever the host does with its own.
class Arranque {
public:
    explicit Arranque(int extremo) {
        ::posix_spawn_file_actions_init(&ficheros_);
        ::posix_spawn_file_actions_adddup2(&ficheros_, extremo, STDIN_FILENO);
        ::posix_spawn_file_actions_adddup2(&ficheros_, extremo, STDOUT_FILENO);
        ::posix_spawn_file_actions_addopen(&ficheros_, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
        ::posix_spawnattr_init(&atributos_);
        sigset_t senales;
        sigemptyset(&senales);
        ::posix_spawnattr_setsigmask(&atributos_, &senales);
        for (const int s : {SIGHUP, SIGINT, SIGQUIT, SIGPIPE, SIGTERM, SIGCHLD}) sigaddset(&senales, s);
        ::posix_spawnattr_setsigdefault(&atributos_, &senales);
        ::posix_spawnattr_setpgroup(&atributos_, 0);
        constexpr int COMO = POSIX_SPAWN_SETPGROUP | POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF;
        ::posix_spawnattr_setflags(&atributos_, static_cast<short>(COMO));
    }

    ~Arranque() {
        ::posix_spawnattr_destroy(&atributos_);
        ::posix_spawn_file_actions_destroy(&ficheros_);
    }

    Arranque(const Arranque&) = delete;
    Arranque& operator=(const Arranque&) = delete;

    /// The process, or -1.
    [[nodiscard]] pid_t arranca(std::string programa) const {
        const std::array<char*, 2> argumentos{programa.data(), nullptr};
        pid_t pid = -1;
        const int fallo =
            ::posix_spawn(&pid, programa.c_str(), &ficheros_, &atributos_, argumentos.data(), environ);
        return fallo == 0 ? pid : -1;
    }

private:
    posix_spawn_file_actions_t ficheros_{};
    posix_spawnattr_t atributos_{};
};

} // namespace

ProcesoAuxiliar::ProcesoAuxiliar(const std::filesystem::path& programa) {
    const Extremos extremos = par_de_extremos();
    pid_ = Arranque(extremos.suyo).arranca(programa.string());
    ::close(extremos.suyo);
    fd_ = extremos.nuestro;
    if (pid_ >= 0) return;
    ::close(fd_);
    lanza(NumError::SinComponente);
}

// The group is killed before its leader is waited for: until then nobody else can have its number.
ProcesoAuxiliar::~ProcesoAuxiliar() {
    ::close(fd_);
    ::kill(-pid_, SIGKILL);
    while (::waitpid(pid_, nullptr, 0) < 0 && errno == EINTR) {
    }
}

bool ProcesoAuxiliar::espera(short suceso, Plazo hasta) const {
    for (;;) {
        using std::chrono::milliseconds;
        const auto queda = std::chrono::ceil<milliseconds>(hasta - std::chrono::steady_clock::now()).count();
        if (queda <= 0) return false;
        pollfd f{fd_, suceso, 0};
        const int r = ::poll(&f, 1, static_cast<int>(std::min<long long>(queda, 60'000)));
        if (r > 0) return true;
        if (r < 0 && errno != EINTR) return false;
    }
}

bool ProcesoAuxiliar::envia(std::string_view bytes, Plazo hasta) {
    while (!bytes.empty()) {
        if (!espera(POLLOUT, hasta)) return false;
        const auto n = ::send(fd_, bytes.data(), bytes.size(), SIN_SENAL);
        if (n >= 0)
            bytes.remove_prefix(static_cast<std::size_t>(n));
        else if (errno != EINTR && errno != EAGAIN)
            return false;
    }
    return true;
}

std::optional<Mensaje> ProcesoAuxiliar::recibe(Plazo hasta) {
    try {
        for (;;) {
            if (auto entero = lector_.siguiente()) return entero;
            if (!espera(POLLIN, hasta)) return std::nullopt;
            std::array<char, 512> trozo{};
            const auto n = ::recv(fd_, trozo.data(), trozo.size(), 0);
            if (n == 0) return std::nullopt;
            if (n > 0)
                lector_.anade({trozo.data(), static_cast<std::size_t>(n)});
            else if (errno != EINTR && errno != EAGAIN)
                return std::nullopt;
        }
    } catch (const Error&) {
        return std::nullopt; // not our helper
    }
}

void ProcesoAuxiliar::espera_el_fin(Plazo hasta) {
    ::shutdown(fd_, SHUT_WR);
    while (recibe(hasta)) {
    }
}

void mata_sesion(int lider) noexcept {
    if (lider > 1 && ::getsid(lider) == lider) ::kill(-lider, SIGKILL);
}

#else

// Another system puts its own way of starting a program here.
ProcesoAuxiliar::ProcesoAuxiliar(const std::filesystem::path&) { lanza(NumError::SinComponente); }

ProcesoAuxiliar::~ProcesoAuxiliar() = default;

bool ProcesoAuxiliar::espera(short, Plazo) const { return false; }

bool ProcesoAuxiliar::envia(std::string_view, Plazo) { return false; }

std::optional<Mensaje> ProcesoAuxiliar::recibe(Plazo) { return std::nullopt; }

void ProcesoAuxiliar::espera_el_fin(Plazo) {}

void mata_sesion(int) noexcept {}

#endif

} // namespace Qlt4_Tabla
