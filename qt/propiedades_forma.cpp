// SPDX-License-Identifier: MIT
// The design-time properties one by one, through the component's own writing and reading of all of them.
#include "qt/propiedades_forma.h"

#include "base/error.h"
#include "platform/bolsa_propiedades.h"
#include "qt/tabla_widget.h"
#include "qt/texto_qt.h"

#include <cmath>
#include <functional>
#include <map>
#include <string>

namespace Qlt4_Tabla {

namespace {

class Bolsa final : public BolsaPropiedades {
public:
    std::map<std::string, Variante, std::less<>> valores;

    void escribe(std::string_view clave, const Variante& valor) override {
        valores.insert_or_assign(std::string(clave), valor);
    }

    [[nodiscard]] Variante lee(std::string_view clave, const Variante& por_defecto) const override {
        const auto hallado = valores.find(clave);
        return hallado == valores.end() ? por_defecto : hallado->second;
    }
};

constexpr std::string_view FORMATO = "A_FormatString";

std::string con_titulo(const Tabla0& tabla, std::string_view clave) {
    return tabla.estado().nombres.titulo() + std::string(clave);
}

int entero(const Variante& valor) { return static_cast<int>(std::lround(valor.a_simple())); }

} // namespace

Variante propiedad_de_forma(const Tabla0& tabla, std::string_view clave) {
    Bolsa bolsa;
    tabla.escribe_propiedades(bolsa);
    return bolsa.lee(con_titulo(tabla, clave), {});
}

// A header string that is not being set is left out: read again it would undo what was written to the header
// since.
void pon_propiedad_de_forma(Tabla0& tabla, std::string_view clave, const Variante& valor) {
    Bolsa bolsa;
    tabla.escribe_propiedades(bolsa);
    bolsa.valores.erase(con_titulo(tabla, FORMATO));
    bolsa.escribe(con_titulo(tabla, clave), valor);
    try {
        tabla.lee_propiedades(bolsa);
    } catch (const Error&) { // refused before anything changed
    }
}

// --- The widget's properties ---

int TablaWidget::Cols() const { return propiedad_de_forma(tabla(), "Cols").a_entero32(); }

int TablaWidget::Rows() const { return propiedad_de_forma(tabla(), "Rows").a_entero32(); }

int TablaWidget::Widht() const { return entero(propiedad_de_forma(tabla(), "Widht")); }

int TablaWidget::Height() const { return entero(propiedad_de_forma(tabla(), "Height")); }

QString TablaWidget::A_FormatString() const {
    return a_qstring(propiedad_de_forma(tabla(), FORMATO).a_texto());
}

QString TablaWidget::A_ExtensionFche() const {
    return a_qstring(propiedad_de_forma(tabla(), "A_ExtensionFche").a_texto());
}

void TablaWidget::setCols(int n) { pon_propiedad_de_forma(tabla(), "Cols", std::int32_t{n}); }

void TablaWidget::setRows(int n) { pon_propiedad_de_forma(tabla(), "Rows", std::int32_t{n}); }

void TablaWidget::setWidht(int twips) { pon_propiedad_de_forma(tabla(), "Widht", std::int32_t{twips}); }

void TablaWidget::setHeight(int twips) { pon_propiedad_de_forma(tabla(), "Height", std::int32_t{twips}); }

void TablaWidget::setA_FormatString(const QString& cadena) {
    pon_propiedad_de_forma(tabla(), FORMATO, cadena.toStdString());
}

void TablaWidget::olvida_extension(const QString& /*extension*/) {}

} // namespace Qlt4_Tabla
