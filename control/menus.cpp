// SPDX-License-Identifier: MIT
// Opening of menus and the choice in a column's menu: control/menus.h.
#include "control/menus.h"

#include "clipboard/pega.h"
#include "colours/menu_color.h"
#include "control/guarda.h"
#include "control/textos.h"
#include "editing/relleno.h"
#include "files/ordenes_ficheros.h"

#include <array>
#include <utility>

namespace Qlt4_Tabla {

/// The menu of one kind of column: made before it opens, obeyed when it has closed.
struct MenusTabla::Columna {
    T_formato formato;
    std::string_view lugar; // in the message of an error
    Bloque (*abre)(EstadoTabla&);
    void (*cierra)(EstadoTabla&, const Bloque&);
};

const MenusTabla::Columna* MenusTabla::de_columna(const T_FormatoColumna& formato) {
    static constexpr std::array<Columna, 3> MENUS{{
        {T_formato::Alfanm, textos::lugar_menu_alfanumerico, abre_menu_texto, cierra_menu_texto},
        {T_formato::ListaU, textos::lugar_menu_lista, abre_menu_lista, cierra_menu_lista},
        {T_formato::Color_, textos::lugar_menu_colores, abre_menu_color, cierra_menu_color},
    }};
    for (const Columna& menu : MENUS)
        if (es_formato(formato.Formato, menu.formato)) return &menu;
    if (es_texto(formato.Formato)) return MENUS.data(); // an unknown format counts as text
    return nullptr;
}

void MenusTabla::abre_raton(DondeMenu donde) {
    habilita_pegar(e_);
    pon_titulos_de_ficheros(e_);
    e_.plataforma.marco.abre_menu(Menu::mn_raton, donde);
}

void MenusTabla::abre_opciones() {
    if (e_.especialPuntos)
        e_.plataforma.marco.abre_menu(Menu::Mn_Especial_puntos, DondeMenu::BotonOpciones);
    else
        abre_raton(DondeMenu::BotonOpciones);
}

void MenusTabla::abre_de_columna() {
    const Tablero& t = e_.tablero;
    if (t.RowSel() == t.Row() || t.ColSel() != t.Col()) return;
    const Columna* const menu = de_columna(formato(e_, t.Col()));
    if (menu == nullptr) {
        if (!e_.ratonOff) e_.plataforma.marco.abre_menu(Menu::mn_raton3, DondeMenu::Raton);
        return;
    }
    guarda(e_.plataforma.mensajes, prefijo_miembro(menu->lugar), {}, [&] {
        abierto_.reset();
        const Bloque bloque = menu->abre(e_);
        if (e_.menu_cambio.elementos().size() == MenuCambio::FIJOS) return;
        abierto_ = {menu, bloque};
        e_.plataforma.marco.abre_menu(Menu::mn_cambio, DondeMenu::Raton);
    });
}

void MenusTabla::elige_cambio(std::size_t elemento) {
    const std::optional<Abierto> abierto = std::exchange(abierto_, std::nullopt);
    if (!abierto) return;
    const Bloque& b = abierto->bloque;
    if (b.fila2 >= e_.tablero.Rows() || b.col2 >= e_.tablero.Cols()) return;
    e_.menu_cambio.marca(elemento);
    guarda(e_.plataforma.mensajes, prefijo_miembro(abierto->menu->lugar), {}, [&] {
        termina_mensaje(e_);
        abierto->menu->cierra(e_, b);
    });
}

} // namespace Qlt4_Tabla
