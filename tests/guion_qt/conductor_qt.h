// SPDX-License-Identifier: MIT
// ConductorQt: drives a table on a shown, active window with real events of the toolkit, sent to the window
// as the system sends them. Grid, editors, focus and clipboard are the widget's own; a message is shown in a
// real box, read and answered there. Whatever happens, the screen must show what a whole repaint would: a
// place that does not is a line of the record, "not repainted: x y". Files, settings, file dialog and colour picker are those of the
// platform in memory, so that a script sees the same world as without a window.
#pragma once

#include "headless/plataforma_memoria.h"
#include "qt/tabla_widget.h"
#include "tests/guion/conductor.h"
#include "tests/guion_qt/puertos_prueba.h"

#include <QLineEdit>
#include <QMenu>
#include <QWidget>

namespace Qlt4_Tabla {

class Casilla;
class ListaCelda;
class VistaRejilla;

class ConductorQt final : public Conductor {
public:
    ConductorQt();
    ConductorQt(const ConductorQt&) = delete;
    ConductorQt& operator=(const ConductorQt&) = delete;
    ~ConductorQt() override;

    void pulsa(const Pulsacion& tecla) override;
    void compone(std::string_view texto) override;
    void clic(Celda celda, Modificadores mods) override;
    void clic_derecho(Celda celda) override;
    void doble_clic(Celda celda) override;
    void arrastra(Celda desde, Celda hasta, Modificadores mods) override;
    void rueda(int signo) override;
    void barra(int fila) override;
    void boton(std::string_view clave) override;
    void elige_menu(std::string_view nombre) override;
    void elige_cambio(std::string_view titulo) override;
    void elige_entrada(std::string_view texto, bool con_raton) override;
    void pierde_foco(MotivoFoco motivo) override;
    void recupera_foco() override;
    void arrastra_borde(int col, int twips) override;
    void ventana(int ancho, int alto) override;

    [[nodiscard]] Tabla0& tabla() override { return widget_->tabla(); }

    void al_suceder(std::function<void(std::string_view)> hace) override;
    void pon_portapapeles(std::string_view texto) override;
    [[nodiscard]] std::string portapapeles() override;

    void cierra_portapapeles() override { portapapeles_.cierra(); }

    void responde(Respuesta respuesta) override { p_.mensajes.respuestas.push_back(respuesta); }

    void coma_decimal(bool coma) override { widget_->pon_coma_decimal(coma); }

    [[nodiscard]] FicherosMemoria& ficheros() override { return p_.ficheros; }

    void elige_fichero(std::string ruta) override { p_.dialogo_fichero.rutas.push_back(std::move(ruta)); }

    void prepara_color(UsuarioColor usuario) override {
        p_.dialogo_color.usuario.push_back(std::move(usuario));
    }

    [[nodiscard]] std::vector<std::string> recoge() override;
    [[nodiscard]] EditorVisto editor() override;
    [[nodiscard]] EtiquetasVistas etiquetas() override;
    [[nodiscard]] Foco foco() override;

private:
    [[nodiscard]] Plataforma sustituye(const Plataforma& suya);
    [[nodiscard]] const Tablero& tablero() const { return widget_->tabla().tablero(); }
    [[nodiscard]] QPoint punto_de(Celda celda) const; // a place on the cell, in pixels of the viewport
    [[nodiscard]] QPoint punto_pulsable(Celda celda) const; // the same; outside, really outside
    void escucha();
    void activa();
    [[nodiscard]] QMenu* menu_abierto() const;
    void deja_menu(); // Escape: a user who goes on closes it first
    void elige(QMenu& menu, QAction& accion);
    void comprueba_pintura();
    void atiende(); // what waits in the queue of events: paints, sizes, deferred calls

    PlataformaMemoria p_;
    MensajesReales mensajes_{p_.mensajes, p_.registro};
    PortapapelesCerrable portapapeles_;
    MarcoVisto marco_{p_.marco};
    QWidget ventana_;
    QLineEdit* otro_ = nullptr; // where the focus goes when it leaves the table
    TablaWidget* widget_ = nullptr;
    VistaRejilla* vista_ = nullptr;
    Casilla* casilla_ = nullptr;
    ListaCelda* lista_ = nullptr;
    QMenu menu_; // of the window, as a host's
    QLineEdit otra_ventana_;
    int en_suceso_ = 0; // the host acts inside an event: with code, not with the mouse
};

} // namespace Qlt4_Tabla
