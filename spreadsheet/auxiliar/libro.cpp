// SPDX-License-Identifier: MIT
// A CSV text through Calc's own import: spreadsheet/auxiliar/libro.h.
#include "spreadsheet/auxiliar/libro.h"

#include <array>
#include <com/sun/star/awt/XTopWindow.hpp>
#include <com/sun/star/awt/XWindow.hpp>
#include <com/sun/star/beans/PropertyValue.hpp>
#include <com/sun/star/container/XIndexAccess.hpp>
#include <com/sun/star/container/XNamed.hpp>
#include <com/sun/star/frame/XController.hpp>
#include <com/sun/star/frame/XFrame.hpp>
#include <com/sun/star/frame/XModel.hpp>
#include <com/sun/star/io/SequenceInputStream.hpp>
#include <com/sun/star/io/XSeekableInputStream.hpp>
#include <com/sun/star/sheet/XSpreadsheetDocument.hpp>
#include <com/sun/star/sheet/XSpreadsheets.hpp>
#include <com/sun/star/util/XCloseable.hpp>
#include <com/sun/star/util/XModifiable.hpp>
#include <string>

namespace Qlt4_Tabla {

namespace {

using css::beans::PropertyValue;
using css::uno::Any;
using css::uno::Reference;
using css::uno::UNO_QUERY;
using css::uno::UNO_QUERY_THROW;

rtl::OUString a_uno(std::string_view s) {
    return {s.data(), static_cast<sal_Int32>(s.size()), RTL_TEXTENCODING_UTF8};
}

PropertyValue valor(const char* nombre, const Any& v) {
    PropertyValue p;
    p.Name = rtl::OUString::createFromAscii(nombre);
    p.Value = v;
    return p;
}

Reference<css::io::XInputStream> flujo(const Oficina& oficina, std::string_view bytes) {
    const css::uno::Sequence<sal_Int8> datos(
        reinterpret_cast<const sal_Int8*>(bytes.data()), static_cast<sal_Int32>(bytes.size()));
    return Reference<css::io::XInputStream>(
        css::io::SequenceInputStream::createStreamFromSequence(oficina.contexto(), datos), UNO_QUERY_THROW);
}

// TAB (9) between fields, quotes (34), UTF-8 (76), from row 1, no formats of columns, the language; a field in
// quotes stays text; special numbers (dates) as typed.
rtl::OUString opciones_csv(std::string_view lengua) {
    return a_uno("9,34,76,1,," + std::string(lengua) + ",true,true");
}

} // namespace

Libro::Libro(const Oficina& oficina, std::string_view lengua, std::string_view hoja, std::string_view csv) {
    const std::array como{
        valor("InputStream", Any(flujo(oficina, csv))),
        valor("FilterName", Any(rtl::OUString("Text - txt - csv (StarCalc)"))),
        valor("FilterOptions", Any(opciones_csv(lengua))),
        valor("Hidden", Any(true)),
        valor("AsTemplate", Any(true)),
    };
    documento_ = oficina.escritorio()->loadComponentFromURL("private:stream", "_blank", 0,
        css::uno::Sequence<PropertyValue>(como.data(), static_cast<sal_Int32>(como.size())));
    const Reference<css::sheet::XSpreadsheetDocument> libro(documento_, UNO_QUERY_THROW);
    const Reference<css::container::XIndexAccess> hojas(libro->getSheets(), UNO_QUERY_THROW);
    Reference<css::container::XNamed>(hojas->getByIndex(0), UNO_QUERY_THROW)->setName(a_uno(hoja));
    Reference<css::util::XModifiable>(documento_, UNO_QUERY_THROW)->setModified(true);
}

Libro::~Libro() {
    if (mostrado_ || !documento_.is()) return;
    try {
        Reference<css::util::XModifiable>(documento_, UNO_QUERY_THROW)->setModified(false);
        Reference<css::util::XCloseable>(documento_, UNO_QUERY_THROW)->close(true);
    } catch (const css::uno::Exception&) {
        return; // it went by itself
    }
}

void Libro::muestra() {
    const Reference<css::frame::XModel> modelo(documento_, UNO_QUERY_THROW);
    const Reference<css::frame::XFrame> marco = modelo->getCurrentController()->getFrame();
    const Reference<css::awt::XWindow> ventana = marco->getContainerWindow();
    ventana->setVisible(true);
    mostrado_ = true;
    if (const Reference<css::awt::XTopWindow> encima(ventana, UNO_QUERY); encima.is()) encima->toFront();
    marco->activate();
    ventana->setFocus();
}

} // namespace Qlt4_Tabla
