// SPDX-License-Identifier: MIT
// ConductorMemoria: drives a table without a window: keys go to whoever has the focus in the platform in
// memory, as a front end would hand them over.
#pragma once

#include "headless/plataforma_memoria.h"
#include "tests/guion/conductor.h"

#include <string>
#include <utility>
#include <vector>

namespace Qlt4_Tabla {

class ConductorMemoria final : public Conductor {
public:
    ConductorMemoria();

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

    [[nodiscard]] Tabla0& tabla() override { return tabla_; }

    void al_suceder(std::function<void(std::string_view)> hace) override;
    void pon_portapapeles(std::string_view texto) override { p_.portapapeles.texto = texto; }

    [[nodiscard]] std::string portapapeles() override { return p_.portapapeles.texto; }

    void cierra_portapapeles() override;

    void responde(Respuesta respuesta) override { p_.mensajes.respuestas.push_back(respuesta); }

    void coma_decimal(bool coma) override { p_.separador.coma = coma; }

    [[nodiscard]] FicherosMemoria& ficheros() override { return p_.ficheros; }

    void elige_fichero(std::string ruta) override { p_.dialogo_fichero.rutas.push_back(std::move(ruta)); }

    void prepara_color(UsuarioColor usuario) override {
        p_.dialogo_color.usuario.push_back(std::move(usuario));
    }

    [[nodiscard]] std::vector<std::string> recoge() override;
    [[nodiscard]] EditorVisto editor() override;
    [[nodiscard]] EtiquetasVistas etiquetas() override;

    [[nodiscard]] Foco foco() override { return p_.foco.actual(); }

    [[nodiscard]] PlataformaMemoria& plataforma() { return p_; }

private:
    void pulsa_en_tablero(const Pulsacion& tecla);
    void pulsa_en_casilla(const Pulsacion& tecla);
    void pulsa_en_lista(const Pulsacion& tecla);
    void mueve_cursor(int KeyCode);
    void abajo(Celda celda, Modificadores mods);
    [[nodiscard]] Celda punto_de(Celda celda) const; // a place on the cell, in twips
    void obedece(); // what a view does with the notices of the grid

    PlataformaMemoria p_;
    Tabla0 tabla_{p_.plataforma(), p_.eventos};
    MotivoFoco motivo_ = MotivoFoco::Otro;
    Foco antes_ = Foco::Tablero;
};

} // namespace Qlt4_Tabla
