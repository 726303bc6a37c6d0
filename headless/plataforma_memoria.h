// SPDX-License-Identifier: MIT
// PlataformaMemoria: every seam of a table in memory, recording. Events, messages, beeps, pointer, changed
// properties and capture points go into one list of lines, `registro`, in the order they happened, so that
// a test compares exact sequences:
//   "SelChange", "CambiaCasilla", "Salir", "ACambiadoValorCombo 2 3", "mensaje|16|titulo|texto", "pitido",
//   "puntero 11", "propiedad Rows", "captura", "restaura 1", "ajuste application|section|key=value",
//   "dialogo_fichero abrir|title|filter|folder|name|extension", "dialogo_color title",
//   "dialogo_columnas title", "hoja muestra", "avance Pegando 45", "menu mn_raton raton"
// Notices of view, labels, menus and sizes are kept or counted apart. Read on in vista_memoria.h and
// editores_memoria.h.
#pragma once

#include "base/imagen.h"
#include "base/publico.h"
#include "headless/ajustes_memoria.h"
#include "headless/dialogo_color_memoria.h"
#include "headless/dialogo_columnas_memoria.h"
#include "headless/dialogo_fichero_memoria.h"
#include "headless/editores_memoria.h"
#include "headless/ficheros_memoria.h"
#include "headless/foco_memoria.h"
#include "headless/hoja_calculo_memoria.h"
#include "headless/portapapeles_memoria.h"
#include "headless/registro.h"
#include "headless/vista_memoria.h"
#include "platform/bolsa_propiedades.h"
#include "platform/eventos.h"
#include "platform/plataforma.h"

#include <cstdint>
#include <deque>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace Qlt4_Tabla {

/// Message boxes as lines of the record; answers are taken from the queue, else the box is closed.
class TABLA_API MensajesMemoria final : public Mensajes {
public:
    struct Visto {
        std::string texto;
        EstiloMensaje estilo = EstiloMensaje::Simple;
        std::string titulo;
        friend bool operator==(const Visto&, const Visto&) = default;
    };

    explicit MensajesMemoria(Registro& registro) : registro_(&registro) {}

    std::vector<Visto> vistos;
    std::deque<Respuesta> respuestas;
    int pitidos = 0;
    Puntero forma = Puntero::Normal; ///< the pointer as it is now

    Respuesta mensaje(std::string_view texto, EstiloMensaje estilo, std::string_view titulo) override;
    void pitido() override;
    void puntero(Puntero nueva) override;
    void avance(std::string_view que, int por_ciento) override;

private:
    Registro* registro_;
};

class TABLA_API MarcoMemoria final : public Marco {
public:
    MarcoMemoria(Registro& registro, FocoMemoria& foco) : registro_(&registro), foco_(&foco) {}

    int veces_tamano = 0;
    int veces_etiquetas = 0;
    int veces_menus = 0;
    int veces_enfoca = 0;
    int veces_barra = 0;
    std::optional<std::pair<Menu, DondeMenu>> abierto; ///< the menu opened last; nothing closes it

    [[nodiscard]] float ancho() const override { return ancho_; }

    [[nodiscard]] float alto() const override { return alto_; }

    void pon_tamano(float ancho, float alto) override;

    void etiquetas_cambiadas() override { ++veces_etiquetas; }

    void menus_cambiados() override { ++veces_menus; }

    void abre_menu(Menu menu, DondeMenu donde) override;

    void enfoca_barra() override { ++veces_barra; }

    void propiedad_cambiada(std::string_view nombre) override;
    void enfoca_tablero() override;

private:
    Registro* registro_;
    FocoMemoria* foco_;
    float ancho_ = 4000;
    float alto_ = 2000;
};

class TABLA_API SeparadorMemoria final : public SeparadorDecimal {
public:
    bool coma = false;
    mutable int preguntas = 0; ///< how often it was asked

    [[nodiscard]] bool es_coma() const override {
        ++preguntas;
        return coma;
    }
};

/// Counts capture points; keeps no step.
class TABLA_API PasosMemoria final : public AlmacenPasos {
public:
    explicit PasosMemoria(Registro& registro) : registro_(&registro) {}

    int capturas = 0;
    std::function<void()> al_capturar; ///< looks at the table before the change

    void graba_paso() override;
    void restaura_paso(int paso) override;

private:
    Registro* registro_;
};

/// Values by key. `falla` makes every later access raise that error (0: none again), `falla_en` only the
/// accesses to one key.
class TABLA_API BolsaMemoria final : public BolsaPropiedades {
public:
    std::map<std::string, Variante, std::less<>> valores;
    mutable std::vector<std::string> claves; ///< keys in the order they were written or read

    void falla(int numero) { falla_en({}, numero); }

    void falla_en(std::string_view clave, int numero);
    void escribe(std::string_view clave, const Variante& valor) override;
    [[nodiscard]] Variante lee(std::string_view clave, const Variante& por_defecto) const override;

private:
    void anota(std::string_view clave) const;

    std::string clave_mala_; // empty: every key
    int numero_ = 0;
};

/// The host's event sink. `al_suceder` runs inside each event: a host that answers it at once.
class TABLA_API EventosMemoria final : public __Tabla0 {
public:
    explicit EventosMemoria(Registro& registro) : registro_(&registro) {}

    std::function<void(std::string_view evento)> al_suceder;

    void Salir() override { sucede("Salir"); }

    void SelChange() override { sucede("SelChange"); }

    void CambiaCasilla() override { sucede("CambiaCasilla"); }

    void ACambiadoValorCombo(std::int32_t& Mouse_Row, std::int32_t& Mouse_Col) override;

private:
    void sucede(const std::string& evento);

    Registro* registro_;
};

/// A picture that is only a name.
class TABLA_API ImagenMemoria final : public Imagen {
public:
    explicit ImagenMemoria(std::string nombre_imagen) : nombre(std::move(nombre_imagen)) {}

    std::string nombre;
};

/// One platform for one table; it stays where it is made, as its parts know one another.
struct TABLA_API PlataformaMemoria {
    PlataformaMemoria() = default;
    PlataformaMemoria(const PlataformaMemoria&) = delete;
    PlataformaMemoria& operator=(const PlataformaMemoria&) = delete;

    Registro registro;
    FocoMemoria foco;
    VistaMemoria vista;
    MarcoMemoria marco{registro, foco};
    CajaTextoMemoria casilla{foco};
    ListaMemoria lista{foco};
    MensajesMemoria mensajes{registro};
    SeparadorMemoria separador;
    PasosMemoria pasos{registro};
    AjustesMemoria ajustes{registro};
    FicherosMemoria ficheros;
    DialogoFicheroMemoria dialogo_fichero{registro};
    PortapapelesMemoria portapapeles;
    HojaCalculoMemoria hoja_calculo{registro};
    DialogoColorMemoria dialogo_color{registro};
    DialogoColumnasMemoria dialogo_columnas{registro};
    BolsaMemoria bolsa;
    EventosMemoria eventos{registro};

    /// The seams as a table takes them (the event sink is handed over apart: `eventos`).
    [[nodiscard]] Plataforma plataforma() { return plataforma(vista); }

    /// The same with another view, such as one that records nothing for a table of millions of cells.
    [[nodiscard]] Plataforma plataforma(VistaTablero& otra_vista);
    /// The lines so far, which are then forgotten.
    Registro recoge() { return std::exchange(registro, {}); }
};

} // namespace Qlt4_Tabla
