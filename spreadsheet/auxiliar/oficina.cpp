// SPDX-License-Identifier: MIT
// Start of and connection to LibreOffice: spreadsheet/auxiliar/oficina.h. TABLA_OFICINA is its program folder.
#include "spreadsheet/auxiliar/oficina.h"

#include "base/error.h"
#include "spreadsheet/auxiliar/tubo.h"

#include <array>
#include <cerrno>
#include <com/sun/star/bridge/UnoUrlResolver.hpp>
#include <com/sun/star/bridge/XUnoUrlResolver.hpp>
#include <com/sun/star/connection/NoConnectException.hpp>
#include <com/sun/star/container/XNameAccess.hpp>
#include <com/sun/star/frame/Desktop.hpp>
#include <com/sun/star/lang/DisposedException.hpp>
#include <cppuhelper/bootstrap.hxx>
#include <fcntl.h>
#include <osl/file.hxx>
#include <poll.h>
#include <random>
#include <rtl/bootstrap.hxx>
#include <rtl/ustring.hxx>
#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace Qlt4_Tabla {

namespace {

using css::uno::Reference;

constexpr int REINTENTO_MS = 20;

rtl::OUString a_uno(const std::string& s) { return rtl::OStringToOUString(s.c_str(), RTL_TEXTENCODING_UTF8); }

rtl::OUString url_de(const std::string& ruta) {
    rtl::OUString url;
    osl::FileBase::getFileURLFromSystemPath(a_uno(ruta), url);
    return url;
}

std::string nombre_al_azar() {
    std::random_device azar;
    std::string nombre = "tabla";
    for (int i = 0; i < 4; ++i) nombre += '_' + std::to_string(azar());
    return nombre;
}

/// What this program itself needs to know of UNO. Without the types of the office it would crash.
Reference<css::bridge::XUnoUrlResolver> resolutor() {
    rtl::Bootstrap::set("URE_MORE_TYPES", url_de(TABLA_OFICINA "/types/offapi.rdb"));
    return css::bridge::UnoUrlResolver::create(cppu::defaultBootstrap_InitialComponentContext());
}

/// Waits a little; error 429 where the adapter has gone meanwhile.
void espera_un_poco() {
    pollfd f{STDIN_FILENO, 0, 0};
    if (::poll(&f, 1, REINTENTO_MS) > 0) lanza(NumError::SinComponente);
}

/// Its own session, nothing of our files: it outlives this program and the host.
pid_t lanza_aparte(std::vector<std::string> argumentos) {
    std::vector<char*> argv;
    for (std::string& a : argumentos) argv.push_back(a.data());
    argv.push_back(nullptr);
    posix_spawn_file_actions_t ficheros;
    ::posix_spawn_file_actions_init(&ficheros);
    for (int fd = STDIN_FILENO; fd <= STDERR_FILENO; ++fd)
        ::posix_spawn_file_actions_addopen(&ficheros, fd, "/dev/null", O_RDWR, 0);
#if defined(__GLIBC__)
#if __GLIBC_PREREQ(2, 34)
    ::posix_spawn_file_actions_addclosefrom_np(&ficheros, STDERR_FILENO + 1);
#endif
#endif
    posix_spawnattr_t atributos;
    ::posix_spawnattr_init(&atributos);
    ::posix_spawnattr_setflags(&atributos, POSIX_SPAWN_SETSID);
    pid_t pid = -1;
    const int fallo = ::posix_spawn(&pid, argv[0], &ficheros, &atributos, argv.data(), environ);
    ::posix_spawnattr_destroy(&atributos);
    ::posix_spawn_file_actions_destroy(&ficheros);
    if (fallo != 0) lanza(NumError::SinComponente);
    return pid;
}

} // namespace

Oficina::Oficina(const OpcionesOficina& opciones) {
    const std::string tuberia = opciones.tuberia.empty() ? nombre_al_azar() : opciones.tuberia;
    const rtl::OUString url = a_uno("uno:pipe,name=" + tuberia + ";urp;StarOffice.ComponentContext");
    const Reference<css::bridge::XUnoUrlResolver> resuelve = resolutor();
    for (;;) {
        try {
            contexto_.set(resuelve->resolve(url), css::uno::UNO_QUERY_THROW);
            return;
        } catch (const css::connection::NoConnectException&) {
            if (arrancada_ < 0)
                arranca(opciones, tuberia);
            else if (ha_fallado())
                lanza(NumError::SinComponente);
        }
        espera_un_poco();
    }
}

void Oficina::arranca(const OpcionesOficina& opciones, const std::string& tuberia) {
    std::vector<std::string> argumentos{TABLA_OFICINA "/soffice", "--norestore", "--nologo", "--nodefault",
        "--accept=pipe,name=" + tuberia + ";urp;StarOffice.ComponentContext"};
    if (opciones.sin_pantalla) argumentos.emplace_back("--headless");
    if (!opciones.perfil.empty()) {
        const rtl::OString url = rtl::OUStringToOString(url_de(opciones.perfil), RTL_TEXTENCODING_UTF8);
        argumentos.push_back("-env:UserInstallation=" + std::string(url.getStr()));
    }
    arrancada_ = lanza_aparte(std::move(argumentos));
    responde(mensaje::oficina, std::to_string(arrancada_));
}

// The ended process is left as it is: as long as it is not waited for nobody else gets its number.
bool Oficina::ha_fallado() const {
    siginfo_t info{};
    const int r = ::waitid(P_PID, static_cast<id_t>(arrancada_), &info, WEXITED | WNOHANG | WNOWAIT);
    if (r != 0 || info.si_pid == 0) return false;
    return info.si_code != CLD_EXITED || info.si_status != 0;
}

Reference<css::frame::XDesktop2> Oficina::escritorio() const {
    return css::frame::Desktop::create(contexto_);
}

bool Oficina::tiene_calc() const {
    const Reference<css::container::XNameAccess> filtros(
        contexto_->getServiceManager()->createInstanceWithContext(
            "com.sun.star.document.FilterFactory", contexto_),
        css::uno::UNO_QUERY_THROW);
    return filtros->hasByName("Text - txt - csv (StarCalc)");
}

void Oficina::cierra_si_sobra() {
    if (arrancada_ < 0) return;
    try {
        const Reference<css::frame::XDesktop2> e = escritorio();
        if (!e->getComponents()->createEnumeration()->hasMoreElements()) e->terminate();
    } catch (const css::lang::DisposedException&) {
        return; // it went by itself
    }
}

} // namespace Qlt4_Tabla
