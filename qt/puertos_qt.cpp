// SPDX-License-Identifier: MIT
// Each seam forwards to its widget once there is one.
#include "qt/puertos_qt.h"

#include "base/utf8.h"
#include "qt/casilla.h"
#include "qt/lista_celda.h"
#include "qt/tabla_widget.h"
#include "qt/texto_qt.h"
#include "qt/textos.h"
#include "qt/vista_rejilla.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>

#include <algorithm>
#include <utility>

namespace Qlt4_Tabla {

namespace {

constexpr int PACIENCIA_MS = 1000; // how long a command may take without saying how far it is

// Characters of the core are code points; QLineEdit counts UTF-16 units.
int a_unidades(const QString& texto, int caracteres) {
    qsizetype i = 0;
    for (; caracteres > 0 && i < texto.size(); --caracteres) {
        const bool par =
            texto.at(i).isHighSurrogate() && i + 1 < texto.size() && texto.at(i + 1).isLowSurrogate();
        i += par ? 2 : 1;
    }
    return static_cast<int>(i);
}

} // namespace

PuertosQt::PuertosQt(TablaWidget& widget)
    : widget_(widget), dialogo_(widget), dialogo_color_(widget), dialogo_columnas_(widget) {}

PuertosQt::~PuertosQt() {
    if (reloj_) QApplication::restoreOverrideCursor();
}

Plataforma PuertosQt::plataforma() {
    return {*this, *this, *this, lista_, *this, *this, pasos_, ajustes_, ficheros_, dialogo_, portapapeles_,
        *hoja_, dialogo_color_, dialogo_columnas_};
}

void PuertosQt::conecta(VistaRejilla& vista, Casilla& casilla, ListaCelda& lista) {
    vista_ = &vista;
    casilla_ = &casilla;
    cob_lista_ = &lista;
}

QRect PuertosQt::px(const Rectangulo& r) const {
    const Unidades u = vista_->unidades();
    const int x = u.px_x(r.izquierda);
    const int y = u.px_y(r.arriba);
    return {x, y, u.px_x(r.derecha()) - x, u.px_y(r.abajo()) - y};
}

// --- VistaTablero ---

void PuertosQt::celdas_cambiadas(int fila1, int col1, int fila2, int col2) {
    if (vista_) vista_->celdas_cambiadas(fila1, col1, fila2, col2);
    if (vista_) emit widget_.celdas_cambiadas(fila1, col1, fila2, col2);
}

void PuertosQt::filas_insertadas(int fila, int n) {
    if (vista_) vista_->filas_movidas(fila, n);
    if (vista_) emit widget_.filas_insertadas(fila, n);
}

void PuertosQt::filas_borradas(int fila, int n) {
    if (vista_) vista_->filas_movidas(fila, -n);
    if (vista_) emit widget_.filas_borradas(fila, n);
}

void PuertosQt::columnas_cambiadas() {
    if (vista_) vista_->todo_cambiado();
    if (vista_) emit widget_.contenido_cambiado();
}

void PuertosQt::seleccion_cambiada() {
    if (vista_) vista_->seleccion_cambiada();
}

void PuertosQt::vista_desplazada() {
    if (vista_) vista_->vista_desplazada();
}

void PuertosQt::ancho_cambiado(int /*col*/) {
    if (vista_) vista_->todo_cambiado();
}

void PuertosQt::alto_cambiado(int /*fila*/) {
    if (vista_) vista_->todo_cambiado();
}

void PuertosQt::fusion_cambiada() {
    if (vista_) vista_->todo_cambiado();
}

void PuertosQt::todo_cambiado() {
    if (vista_) vista_->todo_cambiado();
    if (vista_) emit widget_.contenido_cambiado();
}

// --- Marco ---

// A size given in twips comes back as given while the window still has the pixels it became: 5000 must not
// become 4995 in a host's form.
float PuertosQt::ancho() const {
    const Unidades u(widget_);
    if (ancho_dado_ && u.px_x(static_cast<int>(*ancho_dado_)) == widget_.width()) return *ancho_dado_;
    return static_cast<float>(u.twips_x(widget_.width()));
}

float PuertosQt::alto() const {
    const Unidades u(widget_);
    if (alto_dado_ && u.px_y(static_cast<int>(*alto_dado_)) == widget_.height()) return *alto_dado_;
    return static_cast<float>(u.twips_y(widget_.height()));
}

void PuertosQt::pon_tamano(float ancho, float alto) {
    constexpr float MAXIMO = 1.0e7F; // far beyond any window; keeps the conversion in range
    const Unidades u(widget_);
    ancho_dado_ = std::clamp(ancho, 0.0F, MAXIMO);
    alto_dado_ = std::clamp(alto, 0.0F, MAXIMO);
    widget_.resize(u.px_x(static_cast<int>(*ancho_dado_)), u.px_y(static_cast<int>(*alto_dado_)));
}

void PuertosQt::etiquetas_cambiadas() {
    if (vista_) widget_.refresca_etiquetas();
}

void PuertosQt::menus_cambiados() {
    if (vista_) widget_.refresca_barra();
}

void PuertosQt::abre_menu(Menu menu, DondeMenu donde) {
    if (vista_) widget_.abre_menu(menu, donde);
}

void PuertosQt::enfoca_barra() {
    if (vista_) widget_.enfoca_barra();
}

void PuertosQt::propiedad_cambiada(std::string_view nombre) {
    if (vista_) emit widget_.propiedad_cambiada(a_qstring(nombre));
}

void PuertosQt::enfoca_tablero() {
    if (vista_) vista_->setFocus(Qt::OtherFocusReason);
}

// --- CajaTexto ---

void PuertosQt::muestra(const Rectangulo& celda, std::string_view texto) {
    if (casilla_) casilla_->muestra(px(celda), texto);
}

// Hiding a widget that has the focus gives it to the next one of the form; the grid takes it before.
void PuertosQt::oculta() {
    if (!casilla_) return;
    if (casilla_->hasFocus()) enfoca_tablero();
    casilla_->hide();
}

void PuertosQt::mueve(const Rectangulo& celda) {
    if (casilla_) casilla_->mueve(px(celda));
}

std::string PuertosQt::texto() const { return casilla_ ? casilla_->dado() : std::string(); }

void PuertosQt::pon_texto(std::string_view texto) {
    if (casilla_) casilla_->pon(texto);
}

int PuertosQt::cursor() const {
    if (!casilla_) return 0;
    return static_cast<int>(casilla_->text().left(casilla_->cursorPosition()).toUcs4().size());
}

void PuertosQt::selecciona(int inicio, int longitud) {
    if (!casilla_) return;
    const QString s = casilla_->text();
    const int desde = a_unidades(s, inicio);
    const int hasta = a_unidades(s, inicio + longitud);
    casilla_->deselect();
    casilla_->setCursorPosition(desde);
    if (hasta > desde) casilla_->setSelection(desde, hasta - desde);
}

// --- ListaDesplegable ---

void PuertosQt::Lista::muestra(const Rectangulo& celda, std::span<const std::string> entradas, int elegida) {
    if (!p_.cob_lista_) return;
    QStringList textos;
    for (const std::string& s : entradas) textos << a_qstring(s);
    p_.cob_lista_->muestra(p_.px(celda), textos, elegida);
}

void PuertosQt::Lista::oculta() {
    if (!p_.cob_lista_) return;
    if (p_.cob_lista_->hasFocus()) p_.enfoca_tablero();
    p_.cob_lista_->oculta();
}

void PuertosQt::Lista::mueve(const Rectangulo& celda) {
    if (p_.cob_lista_) p_.cob_lista_->mueve(p_.px(celda));
}

int PuertosQt::Lista::elegida() const { return p_.cob_lista_ ? p_.cob_lista_->currentIndex() : -1; }

std::string PuertosQt::Lista::texto() const {
    return p_.cob_lista_ ? p_.cob_lista_->currentText().toStdString() : std::string();
}

// --- Mensajes ---

// The pointer of somebody who is asked, while it lives; how long the answer takes is not the command's time.
class PuertosQt::SinReloj {
public:
    explicit SinReloj(PuertosQt& p) : p_(p), habia_(std::exchange(p.reloj_, false)) {
        if (habia_) QApplication::restoreOverrideCursor();
    }

    ~SinReloj() {
        if (!habia_) return;
        p_.reloj_ = true;
        p_.paciencia_.setRemainingTime(falta_ms_);
        QApplication::setOverrideCursor(Qt::WaitCursor);
    }

    SinReloj(const SinReloj&) = delete;
    SinReloj& operator=(const SinReloj&) = delete;

private:
    PuertosQt& p_;
    bool habia_;
    qint64 falta_ms_ = p_.paciencia_.remainingTime();
};

Respuesta PuertosQt::mensaje(std::string_view texto, EstiloMensaje estilo, std::string_view titulo) {
    const SinReloj sin_reloj(*this);
    // Over the dialog of the table that is open, which would cover it otherwise.
    QWidget* const dialogo = QApplication::activeModalWidget();
    QMessageBox caja(dialogo != nullptr ? dialogo : widget_.window());
    caja.setTextFormat(Qt::PlainText);
    caja.setText(a_qstring(texto));
    caja.setWindowTitle(titulo.empty() ? QApplication::applicationDisplayName() : a_qstring(titulo));
    const bool critico = estilo == EstiloMensaje::Critico || estilo == EstiloMensaje::CriticoSiNo;
    if (critico) caja.setIcon(QMessageBox::Critical);
    if (estilo == EstiloMensaje::Informacion) caja.setIcon(QMessageBox::Information);
    // Qt would name the buttons in the language of the system, or in English, and draw pictures on them.
    const auto nombra = [&caja](QMessageBox::StandardButton cual, std::string_view nombre) {
        QPushButton* const boton = caja.addButton(cual);
        boton->setText(a_qstring(nombre));
        boton->setIcon({});
    };
    if (estilo != EstiloMensaje::CriticoSiNo) {
        nombra(QMessageBox::Ok, textos::aceptar);
        caja.exec();
        return Respuesta::Aceptar;
    }
    nombra(QMessageBox::Yes, textos::si);
    nombra(QMessageBox::No, textos::no);
    caja.setEscapeButton(QMessageBox::No);
    return caja.exec() == QMessageBox::Yes ? Respuesta::Si : Respuesta::No;
}

void PuertosQt::pitido() { QApplication::beep(); }

void PuertosQt::puntero(Puntero forma) {
    const bool reloj = forma == Puntero::RelojDeArena;
    if (reloj == reloj_) return;
    reloj_ = reloj;
    if (reloj) {
        paciencia_.setRemainingTime(PACIENCIA_MS);
        QApplication::setOverrideCursor(Qt::WaitCursor);
    } else {
        QApplication::restoreOverrideCursor();
        widget_.oculta_avance();
    }
}

void PuertosQt::avance(std::string_view que, int por_ciento) {
    if (reloj_ && paciencia_.hasExpired()) widget_.muestra_avance(a_qstring(que), por_ciento);
}

// --- SeparadorDecimal ---

bool PuertosQt::es_coma() const {
    return coma_.value_or(widget_.locale().decimalPoint() == QStringLiteral(","));
}

} // namespace Qlt4_Tabla
