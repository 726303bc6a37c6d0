// SPDX-License-Identifier: MIT
// The hands of the scripts on a window: every key, click, move and notch goes to the window's handle.
#include "tests/guion_qt/conductor_qt.h"

#include "core/geometria.h"
#include "qt/casilla.h"
#include "qt/lista_celda.h"
#include "qt/texto_qt.h"
#include "qt/vista_rejilla.h"
#include "tests/guion/palabras.h"
#include "tests/qt/manos.h"
#include "tests/qt/pantalla.h"

#include <QAbstractItemView>
#include <QClipboard>
#include <QInputMethodEvent>
#include <QLabel>
#include <QScrollBar>
#include <QToolButton>

#include <array>
#include <cstdlib>
#include <utility>

namespace Qlt4_Tabla {

namespace {

constexpr int ANCHO_PRIMERO = 12000; // twips; what the driver without a window begins with
constexpr int ALTO_PRIMERO = 6000;
constexpr int MUESCA = 120;
constexpr int ALTO_OTRO_PX = 30;

constexpr std::array<std::pair<int, Qt::Key>, 19> TECLAS{{
    {teclas::RETROCESO, Qt::Key_Backspace},
    {teclas::TAB, Qt::Key_Tab},
    {teclas::INTRO, Qt::Key_Return},
    {teclas::ESCAPE, Qt::Key_Escape},
    {teclas::ESPACIO, Qt::Key_Space},
    {teclas::REPAG, Qt::Key_PageUp},
    {teclas::AVPAG, Qt::Key_PageDown},
    {teclas::FIN, Qt::Key_End},
    {teclas::INICIO, Qt::Key_Home},
    {teclas::IZQUIERDA, Qt::Key_Left},
    {teclas::ARRIBA, Qt::Key_Up},
    {teclas::DERECHA, Qt::Key_Right},
    {teclas::ABAJO, Qt::Key_Down},
    {teclas::SUPR, Qt::Key_Delete},
    {teclas::F2, Qt::Key_F2},
    {teclas::F5, Qt::Key_F5},
    {teclas::F1, Qt::Key_F1},
    {teclas::F10, Qt::Key_F10},
    {teclas::MENU, Qt::Key_Menu},
}};

// Letters and digits are their own codes on both sides; the rest goes by what it types.
Qt::Key tecla_qt(const Pulsacion& p) {
    for (const auto& [codigo, qt] : TECLAS)
        if (codigo == p.KeyCode) return qt;
    if (p.KeyCode != teclas::NINGUNA) return static_cast<Qt::Key>(p.KeyCode);
    const QString texto = QString::fromUcs4(&p.caracter, 1);
    return static_cast<Qt::Key>(texto.front().toUpper().unicode());
}

Qt::KeyboardModifiers modificadores_qt(Modificadores mods) {
    Qt::KeyboardModifiers qt;
    qt.setFlag(Qt::ShiftModifier, mods.contiene(teclas::MAYUSCULAS));
    qt.setFlag(Qt::ControlModifier, mods.contiene(teclas::CONTROL));
    qt.setFlag(Qt::AltModifier, mods.contiene(teclas::ALT));
    return qt;
}

int caracteres(const QString& texto) { return static_cast<int>(texto.toUcs4().size()); }

} // namespace

ConductorQt::ConductorQt() {
    otro_ = new QLineEdit(&ventana_);
    widget_ = new TablaWidget([this](const Plataforma& suya) { return sustituye(suya); }, &ventana_);
    vista_ = widget_->findChild<VistaRejilla*>();
    casilla_ = widget_->findChild<Casilla*>();
    lista_ = widget_->findChild<ListaCelda*>();
    mensajes_.al_cerrar = [this] { activa(); };
    menu_.addAction(QStringLiteral("x"));
    // Bars that come and go would change the room that a script gives the grid.
    vista_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    vista_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    widget_->pon_coma_decimal(false);
    QApplication::setCursorFlashTime(0);
    QApplication::clipboard()->clear();
    escucha();
    otro_->setGeometry(0, 0, 200, ALTO_OTRO_PX);
    widget_->setGeometry(0, ALTO_OTRO_PX, 400, 300);
    ventana_.show();
    activa();
    ventana(ANCHO_PRIMERO, ALTO_PRIMERO);
    vista_->setFocus();
    static_cast<void>(recoge());
}

ConductorQt::~ConductorQt() { menu_.close(); }

// The table of the widget works through these.
Plataforma ConductorQt::sustituye(const Plataforma& suya) {
    mensajes_.conecta(suya.mensajes);
    portapapeles_.conecta(suya.portapapeles);
    marco_.conecta(suya.marco);
    return {suya.vista, marco_, suya.casilla, suya.lista, mensajes_, suya.separador, p_.pasos, p_.ajustes,
        p_.ficheros, p_.dialogo_fichero, portapapeles_, p_.hoja_calculo, p_.dialogo_color,
        p_.dialogo_columnas};
}

// The signals as the lines that the events have in the record.
void ConductorQt::escucha() {
    const auto suceso = [this](auto&& sucede) {
        ++en_suceso_;
        sucede();
        --en_suceso_;
    };
    QObject::connect(widget_, &TablaWidget::Salir, [=, this] { suceso([this] { p_.eventos.Salir(); }); });
    QObject::connect(
        widget_, &TablaWidget::SelChange, [=, this] { suceso([this] { p_.eventos.SelChange(); }); });
    QObject::connect(
        widget_, &TablaWidget::CambiaCasilla, [=, this] { suceso([this] { p_.eventos.CambiaCasilla(); }); });
    QObject::connect(widget_, &TablaWidget::ACambiadoValorCombo, [=, this](int fila, int col) {
        std::int32_t f = fila;
        std::int32_t c = col;
        suceso([&] { p_.eventos.ACambiadoValorCombo(f, c); });
    });
    QObject::connect(widget_, &TablaWidget::propiedad_cambiada,
        [this](const QString& nombre) { p_.marco.propiedad_cambiada(nombre.toStdString()); });
}

void ConductorQt::activa() {
    ventana_.activateWindow();
    if (!QTest::qWaitForWindowActive(&ventana_)) p_.registro.emplace_back("the window does not get active");
}

void ConductorQt::atiende() { QCoreApplication::processEvents(); }

// --- The user ---

void ConductorQt::pulsa(const Pulsacion& tecla) {
    deja_menu();
    const Qt::KeyboardModifiers mods = modificadores_qt(tecla.mods);
    // Keys with a name type what the toolkit gives them.
    if (tecla.caracter < 32 || tecla.caracter == 127)
        manos::pulsa(*widget_, tecla_qt(tecla), mods);
    else
        manos::pulsa(*widget_, tecla_qt(tecla), QString::fromUcs4(&tecla.caracter, 1), mods);
    atiende();
}

void ConductorQt::compone(std::string_view texto) {
    deja_menu();
    QInputMethodEvent e;
    e.setCommitString(a_qstring(texto));
    if (QWidget* quien = QApplication::focusWidget()) QApplication::sendEvent(quien, &e);
    atiende();
}

QPoint ConductorQt::punto_de(Celda celda) const {
    const Tablero& t = tablero();
    const Unidades u = vista_->unidades();
    if (celda.fila < 0) return {vista_->viewport()->width() - 1, vista_->viewport()->height() - 1};
    const Rectangulo r = parte_visible(t, celda.fila, celda.col);
    if (r.ancho <= 0 || r.alto <= 0) throw FalloGuion("the cell is not seen");
    return {u.px_x(r.izquierda + r.ancho / 2), u.px_y(r.arriba + r.alto / 2)};
}

QPoint ConductorQt::punto_pulsable(Celda celda) const {
    const QPoint p = punto_de(celda);
    const Unidades u = vista_->unidades();
    const Celda ahi = celda_en(tablero(), u.twips_x(p.x()), u.twips_y(p.y()));
    if (celda.fila < 0 && ahi.fila >= 0 && ahi.col >= 0)
        throw FalloGuion("the window shows no place beyond the last cell");
    return p;
}

void ConductorQt::clic(Celda celda, Modificadores mods) {
    deja_menu();
    manos::clic(*vista_->viewport(), punto_pulsable(celda), modificadores_qt(mods));
    atiende();
}

void ConductorQt::clic_derecho(Celda celda) {
    deja_menu();
    manos::clic(*vista_->viewport(), punto_pulsable(celda), {}, Qt::RightButton);
    atiende();
}

void ConductorQt::doble_clic(Celda celda) {
    deja_menu();
    manos::doble_clic(*vista_->viewport(), punto_pulsable(celda));
    atiende();
}

// One move only: cells on the way would raise events of their own.
void ConductorQt::arrastra(Celda desde, Celda hasta, Modificadores mods) {
    deja_menu();
    QWidget& hoja = *vista_->viewport();
    const QPoint fin = punto_de(hasta);
    manos::aprieta(hoja, punto_pulsable(desde), modificadores_qt(mods));
    manos::mueve(hoja, fin);
    manos::suelta(hoja, fin, modificadores_qt(mods));
    atiende();
}

void ConductorQt::rueda(int signo) {
    deja_menu();
    manos::rueda(*vista_->viewport(), vista_->viewport()->rect().center(), {0, signo * MUESCA});
    atiende();
}

void ConductorQt::barra(int fila) {
    deja_menu();
    vista_->verticalScrollBar()->setSliderPosition(fila);
    atiende();
}

QMenu* ConductorQt::menu_abierto() const {
    for (QMenu* menu : vista_->findChildren<QMenu*>())
        if (menu->isVisible()) return menu;
    return nullptr;
}

void ConductorQt::deja_menu() {
    while (QMenu* menu = menu_abierto()) {
        manos::pulsa(*menu, Qt::Key_Escape);
        atiende();
        if (menu_abierto() == menu) menu->close();
    }
}

void ConductorQt::boton(std::string_view clave) {
    deja_menu();
    auto* boton = widget_->findChild<QToolButton*>(a_qstring(clave));
    if (boton == nullptr || !boton->isVisible()) throw FalloGuion("no such button: " + std::string(clave));
    manos::clic(*boton, boton->rect().center());
    atiende();
}

void ConductorQt::elige(QMenu& menu, QAction& accion) {
    if (!accion.isVisible() || !accion.isEnabled())
        throw FalloGuion("cannot be chosen: " + accion.text().toStdString());
    const QPoint sitio = menu.actionGeometry(&accion).center();
    manos::mueve(menu, sitio);
    manos::clic(menu, sitio);
    atiende();
}

void ConductorQt::elige_menu(std::string_view nombre) {
    QMenu* menu = menu_abierto();
    if (menu == nullptr) throw FalloGuion("no menu is open");
    auto* accion = menu->findChild<QAction*>(a_qstring(nombre));
    if (accion == nullptr) throw FalloGuion("no such item: " + std::string(nombre));
    auto* suyo = qobject_cast<QMenu*>(accion->parent());
    if (suyo != nullptr && suyo != menu) {
        elige(*menu, *suyo->menuAction());
        if (!suyo->isVisible()) throw FalloGuion("the submenu did not open");
        menu = suyo;
    }
    elige(*menu, *accion);
}

void ConductorQt::elige_cambio(std::string_view titulo) {
    QMenu* menu = menu_abierto();
    if (menu == nullptr) throw FalloGuion("no menu is open");
    for (QAction* accion : menu->actions())
        if (accion->text() == a_qstring(titulo)) return elige(*menu, *accion);
    throw FalloGuion("no such entry: " + std::string(titulo));
}

void ConductorQt::elige_entrada(std::string_view texto, bool con_raton) {
    deja_menu();
    if (!lista_->isVisible()) throw FalloGuion("the list is not open");
    const int indice = lista_->findText(a_qstring(texto), Qt::MatchExactly | Qt::MatchCaseSensitive);
    if (indice < 0) throw FalloGuion("no such entry: " + std::string(texto));
    if (!con_raton) {
        const int pasos = indice - lista_->currentIndex();
        for (int i = 0; i < std::abs(pasos); ++i)
            manos::pulsa(*widget_, pasos > 0 ? Qt::Key_Down : Qt::Key_Up);
        return atiende();
    }
    // The toolkit takes a quick click after the list has dropped for the end of the click that dropped it.
    lista_->showPopup();
    QAbstractItemView& entradas = *lista_->view();
    static_cast<void>(QTest::qWaitForWindowExposed(entradas.window()));
    QTest::qWait(QApplication::doubleClickInterval() + 50);
    const QPoint sitio = entradas.visualRect(lista_->model()->index(indice, 0)).center();
    manos::mueve(*entradas.viewport(), sitio);
    manos::clic(*entradas.viewport(), sitio);
    atiende();
}

void ConductorQt::pierde_foco(MotivoFoco motivo) {
    deja_menu();
    switch (motivo) {
    case MotivoFoco::Menu: menu_.popup(ventana_.mapToGlobal(QPoint(5, 5))); break;
    case MotivoFoco::Ventana:
        otra_ventana_.show();
        otra_ventana_.activateWindow();
        static_cast<void>(QTest::qWaitForWindowActive(&otra_ventana_));
        break;
    case MotivoFoco::Otro:
        if (en_suceso_ > 0)
            otro_->setFocus(Qt::OtherFocusReason);
        else
            manos::clic(*otro_, otro_->rect().center());
        break;
    }
    atiende();
}

void ConductorQt::recupera_foco() {
    menu_.close();
    otra_ventana_.hide();
    activa();
    if (otro_->hasFocus()) vista_->setFocus(Qt::OtherFocusReason);
    atiende();
}

void ConductorQt::arrastra_borde(int col, int twips) {
    deja_menu();
    QWidget& hoja = *vista_->viewport();
    const QRect cabecera = vista_->rect_celda(0, col);
    const QPoint borde(cabecera.right(), cabecera.center().y());
    const QPoint fin(borde.x() - cabecera.width() + vista_->unidades().px_x(twips), borde.y());
    manos::arrastra(hoja, borde, fin);
    atiende();
}

// The widget gets the size at which its viewport has just that room.
void ConductorQt::ventana(int ancho, int alto) {
    const Unidades u = vista_->unidades();
    const QSize sitio(u.px_x(ancho), u.px_y(alto));
    for (int i = 0; i < 4 && vista_->viewport()->size() != sitio; ++i) {
        widget_->resize(widget_->size() + sitio - vista_->viewport()->size());
        ventana_.resize(widget_->width(), widget_->height() + ALTO_OTRO_PX);
        atiende();
    }
    if (vista_->viewport()->size() != sitio) throw FalloGuion("the window cannot have this size");
}

// --- The host and the world ---

void ConductorQt::al_suceder(std::function<void(std::string_view)> hace) {
    p_.eventos.al_suceder = std::move(hace);
}

void ConductorQt::pon_portapapeles(std::string_view texto) {
    QApplication::clipboard()->setText(a_qstring(texto));
}

std::string ConductorQt::portapapeles() { return QApplication::clipboard()->text().toStdString(); }

// --- What is seen ---

std::vector<std::string> ConductorQt::recoge() {
    atiende();
    comprueba_pintura();
    std::vector<std::string> lineas = p_.recoge();
    std::erase_if(lineas, [](const std::string& linea) { return linea.starts_with("puntero "); });
    return lineas;
}

// What is on the screen is what a whole repaint gives. While redrawing is off it is to be older.
void ConductorQt::comprueba_pintura() {
    if (!tablero().Redraw()) return;
    if (const auto lugar = manos::lugar_sin_pintar(*vista_->viewport()))
        p_.registro.push_back(
            "not repainted: " + std::to_string(lugar->x()) + ' ' + std::to_string(lugar->y()));
}

EditorVisto ConductorQt::editor() {
    const Unidades u = vista_->unidades();
    const auto en_twips = [&u](const QRect& r) {
        return Rectangulo{u.twips_x(r.x()), u.twips_y(r.y()), u.twips_x(r.width()), u.twips_y(r.height())};
    };
    EditorVisto visto;
    visto.casilla = casilla_->isVisible();
    visto.lista = lista_->isVisible();
    if (visto.casilla) {
        const QString texto = casilla_->text();
        visto.texto = texto.toStdString();
        visto.cursor = caracteres(texto.left(casilla_->cursorPosition()));
        visto.marca_longitud = caracteres(casilla_->selectedText());
        if (casilla_->hasSelectedText())
            visto.marca_inicio = caracteres(texto.left(casilla_->selectionStart()));
        visto.sitio = en_twips(casilla_->geometry());
    } else if (visto.lista) {
        visto.texto = lista_->currentText().toStdString();
        for (int i = 0; i < lista_->count(); ++i) visto.entradas.push_back(lista_->itemText(i).toStdString());
        visto.sitio = en_twips(lista_->geometry());
    }
    return visto;
}

EtiquetasVistas ConductorQt::etiquetas() {
    const auto texto = [this](const char* nombre) {
        const auto* label = widget_->findChild<QLabel*>(QString::fromLatin1(nombre));
        return label != nullptr && label->isVisible() ? label->text().toStdString() : std::string();
    };
    return {texto("labNumeroFilas"), texto("labMensaje")};
}

Foco ConductorQt::foco() {
    if (casilla_->hasFocus()) return Foco::Casilla;
    if (lista_->hasFocus()) return Foco::Lista;
    return vista_->hasFocus() ? Foco::Tablero : Foco::Nadie;
}

} // namespace Qlt4_Tabla
