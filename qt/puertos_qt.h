// SPDX-License-Identifier: MIT
// PuertosQt: the seams of the platform served by Qt widgets, for one table. It is made before the table
// and the widgets, because the table asks for its seams at construction; until `conecta` names the
// widgets, what would be shown is dropped (the widgets draw the whole state when they appear).
#pragma once

#include "headless/ficheros_disco.h"
#include "platform/hoja_del_equipo.h"
#include "platform/plataforma.h"
#include "qt/ajustes_qt.h"
#include "qt/dialogo_color.h"
#include "qt/dialogo_columnas.h"
#include "qt/dialogo_fichero_qt.h"
#include "qt/portapapeles_qt.h"

#include <QDeadlineTimer>
#include <QLocale>
#include <QPointer>

#include <memory>
#include <optional>

namespace Qlt4_Tabla {

class Casilla;
class ListaCelda;
class TablaWidget;
class VistaRejilla;

class PuertosQt final : public VistaTablero,
                        public Marco,
                        public CajaTexto,
                        public Mensajes,
                        public SeparadorDecimal {
public:
    explicit PuertosQt(TablaWidget& widget);
    ~PuertosQt() override;

    [[nodiscard]] Plataforma plataforma();
    void conecta(VistaRejilla& vista, Casilla& casilla, ListaCelda& lista);

    [[nodiscard]] AjustesQt& ajustes() { return ajustes_; }

    /// The host's own answer for the decimal sign; nothing: the user's locale.
    void pon_coma_decimal(std::optional<bool> coma) { coma_ = coma; }

    // VistaTablero
    void celdas_cambiadas(int fila1, int col1, int fila2, int col2) override;
    void filas_insertadas(int fila, int n) override;
    void filas_borradas(int fila, int n) override;
    void columnas_cambiadas() override;
    void seleccion_cambiada() override;
    void vista_desplazada() override;
    void ancho_cambiado(int col) override;
    void alto_cambiado(int fila) override;
    void fusion_cambiada() override;
    void todo_cambiado() override;

    // Marco
    [[nodiscard]] float ancho() const override;
    [[nodiscard]] float alto() const override;
    void pon_tamano(float ancho, float alto) override;
    void etiquetas_cambiadas() override;
    void menus_cambiados() override;
    void abre_menu(Menu menu, DondeMenu donde) override;
    void enfoca_barra() override;
    void propiedad_cambiada(std::string_view nombre) override;
    void enfoca_tablero() override;

    // CajaTexto
    void muestra(const Rectangulo& celda, std::string_view texto) override;
    void oculta() override;
    void mueve(const Rectangulo& celda) override;
    [[nodiscard]] std::string texto() const override;
    void pon_texto(std::string_view texto) override;
    [[nodiscard]] int cursor() const override;
    void selecciona(int inicio, int longitud) override;

    // Mensajes
    Respuesta mensaje(std::string_view texto, EstiloMensaje estilo, std::string_view titulo) override;
    void pitido() override;
    void puntero(Puntero forma) override;
    void avance(std::string_view que, int por_ciento) override;

    // SeparadorDecimal
    [[nodiscard]] bool es_coma() const override;

private:
    // The drop-down's seam has members of the same names as the box's: a class of its own.
    class Lista final : public ListaDesplegable {
    public:
        explicit Lista(PuertosQt& p) : p_(p) {}

        void muestra(const Rectangulo& celda, std::span<const std::string> entradas, int elegida) override;
        void oculta() override;
        void mueve(const Rectangulo& celda) override;
        [[nodiscard]] std::string texto() const override;
        [[nodiscard]] int elegida() const override;

    private:
        PuertosQt& p_;
    };

    class SinReloj;

    [[nodiscard]] QRect px(const Rectangulo& r) const;

    TablaWidget& widget_;
    std::optional<float> ancho_dado_; // twips, as the host gave them
    std::optional<float> alto_dado_;
    QPointer<VistaRejilla> vista_;
    QPointer<Casilla> casilla_;
    QPointer<ListaCelda> cob_lista_;
    Lista lista_{*this};
    AlmacenPasosNulo pasos_;
    AjustesQt ajustes_;
    FicherosDisco ficheros_;
    DialogoFicheroQt dialogo_;
    PortapapelesQt portapapeles_;
    std::unique_ptr<HojaCalculo> hoja_ = hoja_del_equipo(*this);
    DialogoColorQt dialogo_color_;
    DialogoColumnasQt dialogo_columnas_;
    std::optional<bool> coma_;
    bool reloj_ = false;
    QDeadlineTimer paciencia_; // until a command says how far it is; stands still while a message asks
};

} // namespace Qlt4_Tabla
