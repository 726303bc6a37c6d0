// SPDX-License-Identifier: MIT
// The office of the tests: tests/spreadsheet/oficina/oficina_de_prueba.h.
#include "tests/spreadsheet/oficina/oficina_de_prueba.h"

#include <com/sun/star/bridge/UnoUrlResolver.hpp>
#include <com/sun/star/bridge/XUnoUrlResolver.hpp>
#include <com/sun/star/container/XIndexAccess.hpp>
#include <com/sun/star/frame/Desktop.hpp>
#include <com/sun/star/table/XCell.hpp>
#include <com/sun/star/text/XText.hpp>
#include <com/sun/star/util/XCloseable.hpp>
#include <com/sun/star/util/XModifiable.hpp>
#include <cppuhelper/bootstrap.hxx>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <rtl/bootstrap.hxx>
#include <signal.h>
#include <unistd.h>

namespace Qlt4_Tabla {

namespace {

using namespace css::uno;

std::string de_uno(const rtl::OUString& s) {
    return rtl::OUStringToOString(s, RTL_TEXTENCODING_UTF8).getStr();
}

/// The context of this program, once for all tests.
const Reference<css::bridge::XUnoUrlResolver>& resolutor() {
    static const Reference<css::bridge::XUnoUrlResolver> unico = [] {
        rtl::Bootstrap::set("URE_MORE_TYPES", "file://" TABLA_OFICINA "/types/offapi.rdb");
        return css::bridge::UnoUrlResolver::create(cppu::defaultBootstrap_InitialComponentContext());
    }();
    return unico;
}

/// The processes in whose arguments the text stands.
std::vector<int> procesos_con(const std::string& texto) {
    std::vector<int> hallados;
    for (const auto& p : std::filesystem::directory_iterator("/proc")) {
        std::ifstream f(p.path() / "cmdline", std::ios::binary);
        const std::string todo{std::istreambuf_iterator<char>(f), std::istreambuf_iterator<char>()};
        const int pid = std::atoi(p.path().filename().c_str());
        if (pid > 0 && pid != ::getpid() && todo.find(texto) != std::string::npos) hallados.push_back(pid);
    }
    return hallados;
}

} // namespace

OficinaDePrueba::OficinaDePrueba() {
    std::string plantilla = (std::filesystem::temp_directory_path() / "tabla-oficina-XXXXXX").string();
    if (::mkdtemp(plantilla.data()) == nullptr) std::abort();
    carpeta_ = plantilla;
    tuberia_ = std::filesystem::path(plantilla).filename().string();
}

// The end is asked for and then made sure of: a test that failed must not leave an office behind.
OficinaDePrueba::~OficinaDePrueba() {
    try {
        for (const auto& libro : libros()) {
            Reference<css::util::XModifiable>(libro, UNO_QUERY_THROW)->setModified(false);
            Reference<css::util::XCloseable>(libro, UNO_QUERY_THROW)->close(true);
        }
        escritorio()->terminate();
    } catch (const Exception&) {
        muere();
    }
    constexpr int PACIENCIA = 500;
    for (int vez = 0; vez < PACIENCIA && !procesos_con(carpeta_).empty(); ++vez) ::usleep(20'000);
    muere();
    std::error_code nada;
    std::filesystem::remove_all(carpeta_, nada);
}

OpcionesHoja OficinaDePrueba::opciones() const {
    OpcionesHoja o;
    o.auxiliar = TABLA_AUXILIAR;
    o.perfil = carpeta_;
    o.tuberia = tuberia_;
    o.sin_pantalla = true;
    return o;
}

Reference<css::frame::XDesktop2> OficinaDePrueba::escritorio() const {
    const std::string url = "uno:pipe,name=" + tuberia_ + ";urp;StarOffice.ComponentContext";
    const Reference<XComponentContext> contexto(
        resolutor()->resolve(rtl::OUString::createFromAscii(url.c_str())), UNO_QUERY_THROW);
    return css::frame::Desktop::create(contexto);
}

std::vector<Reference<css::sheet::XSpreadsheetDocument>> OficinaDePrueba::libros() const {
    std::vector<Reference<css::sheet::XSpreadsheetDocument>> todos;
    const auto abiertos = escritorio()->getComponents()->createEnumeration();
    while (abiertos->hasMoreElements()) {
        const Reference<css::sheet::XSpreadsheetDocument> libro(abiertos->nextElement(), UNO_QUERY);
        if (libro.is()) todos.push_back(libro);
    }
    return todos;
}

Reference<css::sheet::XSpreadsheet> OficinaDePrueba::hoja(
    const Reference<css::sheet::XSpreadsheetDocument>& libro) {
    const Reference<css::container::XIndexAccess> hojas(libro->getSheets(), UNO_QUERY_THROW);
    return {hojas->getByIndex(0), UNO_QUERY_THROW};
}

CeldaLeida OficinaDePrueba::celda(
    const Reference<css::sheet::XSpreadsheetDocument>& libro, int fila, int col) {
    const Reference<css::table::XCell> c = hoja(libro)->getCellByPosition(col - 1, fila - 1);
    return {
        c->getType(), c->getValue(), de_uno(Reference<css::text::XText>(c, UNO_QUERY_THROW)->getString())};
}

bool OficinaDePrueba::responde() const {
    try {
        return escritorio().is();
    } catch (const Exception&) {
        return false;
    }
}

void OficinaDePrueba::muere() const {
    for (const int pid : procesos_con(carpeta_)) ::kill(pid, SIGKILL);
}

void OficinaDePrueba::se_cuelga() const {
    for (const int pid : procesos_con(carpeta_)) ::kill(pid, SIGSTOP);
}

bool OficinaDePrueba::tiene_procesos() const { return !procesos_con(carpeta_).empty(); }

} // namespace Qlt4_Tabla
