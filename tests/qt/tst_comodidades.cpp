// SPDX-License-Identifier: MIT
// The conveniences for hosts: columns by struct, columns of numbers, selected rows in and out.
#include "base/error.h"
#include "qt/comodidades.h"
#include "tests/qt/mesa_qt.h"

#include <QSignalSpy>
#include <QTest>

#include <vector>

using namespace Qlt4_Tabla;

namespace {

int error_de(const auto& llamada) {
    try {
        llamada();
    } catch (const Error& e) {
        return e.numero();
    }
    return 0;
}

void pon_tres(TablaWidget& w) {
    pon_columnas(w,
        {{.nombre = QStringLiteral("Nombre")},
            {.nombre = QStringLiteral("X"),
                .formato = T_formato::Real__,
                .decimales = 2,
                .alineacion = T_Alineacion::Drcha,
                .longitud = 14},
            {.nombre = QStringLiteral("Uso"),
                .formato = T_formato::ListaU,
                .bloqueada = true,
                .lista = {QStringLiteral("A"), QStringLiteral("B")}}});
}

} // namespace

class PruebaComodidades : public QObject {
    Q_OBJECT

private slots:
    void las_columnas_quedan_como_dice_la_lista();
    void lo_que_no_se_nombra_queda_como_en_una_tabla_nueva();
    void veintiseis_columnas_son_demasiadas();
    void un_ancho_que_no_cabe_no_cambia_nada();
    void una_columna_va_y_vuelve();
    void la_fila_de_mas_y_el_valor_de_mas_no_cuentan();
    void el_usuario_elige_filas_y_se_dice_una_vez();
    void lo_que_elige_el_anfitrion_no_se_le_dice();
    void dos_lados_conectados_no_se_contestan();
    void filas_que_no_existen_no_se_eligen();
    void un_eco_no_mueve_la_celda();
};

void PruebaComodidades::las_columnas_quedan_como_dice_la_lista() {
    TablaWidget w;
    pon_tres(w);
    const Tablero& t = w.tabla().tablero();
    QCOMPARE(t.Cols(), 4);
    QCOMPARE(t.TextMatrix(0, 2), std::string_view("X"));
    QCOMPARE(t.ColWidth(2), 14 * 120);
    QCOMPARE(static_cast<int>(t.ColAlignment(2)), 7);
    const auto& f = w.tabla().estado().Formatos;
    QVERIFY(f[2].Formato == 2 && f[2].Decimales == 2);
    QVERIFY(f[3].Bloqueada && !f[1].Bloqueada && !f[3].Invisible);
    w.tabla().TextMatrix(1, 2, "1,005");
    QCOMPARE(t.TextMatrix(1, 2), std::string_view("1.01"));
}

void PruebaComodidades::lo_que_no_se_nombra_queda_como_en_una_tabla_nueva() {
    TablaWidget w;
    pon_tres(w);
    const auto& f = w.tabla().estado().Formatos[1];
    QVERIFY(f.Formato == 4 && f.Alineacion == 0);
    QVERIFY(f.Accion == 0 && f.Longitud == 10 && f.Decimales == 0);
}

void PruebaComodidades::veintiseis_columnas_son_demasiadas() {
    TablaWidget w;
    QCOMPARE(error_de([&] { pon_columnas(w, std::vector<Columna>(26)); }), 9);
    QCOMPARE(w.Cols(), 5);
    QCOMPARE(error_de([&] { pon_columnas(w, std::vector<Columna>(25)); }), 0);
    QCOMPARE(w.Cols(), 26);
}

void PruebaComodidades::un_ancho_que_no_cabe_no_cambia_nada() {
    TablaWidget w;
    QCOMPARE(error_de([&] { pon_columnas(w, {{.nombre = QStringLiteral("a")}, {.longitud = 32768}}); }), 6);
    QCOMPARE(w.Cols(), 5);
    QVERIFY(w.tabla().tablero().TextMatrix(0, 1).empty());
}

void PruebaComodidades::una_columna_va_y_vuelve() {
    TablaWidget w;
    pon_tres(w);
    pon_columna(w, 2, std::vector<double>{1.5, -2, 1.0 / 3});
    QCOMPARE(w.tabla().tablero().TextMatrix(3, 2), std::string_view("0.33"));
    QCOMPARE(columna_de(w, 2), (std::vector<double>{1.5, -2, 0.33}));
    QCOMPARE(columna_qlist(w, 2), (QList<double>{1.5, -2, 0.33}));
    QCOMPARE(error_de([&] { static_cast<void>(columna_de(w, 26)); }), 9);
}

void PruebaComodidades::la_fila_de_mas_y_el_valor_de_mas_no_cuentan() {
    TablaWidget w;
    pon_tres(w); // three data rows
    pon_columna(w, 2, std::vector<double>{1, 2, 3, 4});
    pon_columna(w, 2, std::vector<double>{9});
    QCOMPARE(columna_de(w, 2), (std::vector<double>{9, 2, 3}));
}

void PruebaComodidades::el_usuario_elige_filas_y_se_dice_una_vez() {
    TablaWidget w;
    FilasElegidas filas(&w);
    QSignalSpy dicho(&filas, &FilasElegidas::cambiadas);
    w.tabla().mandos().elige_celda(1, 2); // the same row
    QCOMPARE(dicho.count(), 0);
    w.tabla().mandos().tecla_abajo(40, Modificadores());
    QCOMPARE(dicho.count(), 1);
    QCOMPARE(dicho.at(0), (QList<QVariant>{2, 2}));
    w.tabla().mandos().elige_bloque(3, 2, 1, 1);
    QCOMPARE(dicho.at(1), (QList<QVariant>{1, 3}));
}

void PruebaComodidades::lo_que_elige_el_anfitrion_no_se_le_dice() {
    TablaWidget w;
    FilasElegidas filas(&w);
    QSignalSpy dicho(&filas, &FilasElegidas::cambiadas);
    QSignalSpy sel(&w, &TablaWidget::SelChange);
    filas.elige(3, 2);
    QCOMPARE(dicho.count(), 0);
    QCOMPARE(sel.count(), 1);
    QVERIFY((filas.filas() == TramoFilas{2, 3}));
    QVERIFY((w.tabla().tablero().seleccion() == Bloque{2, 1, 3, 4}));
}

void PruebaComodidades::dos_lados_conectados_no_se_contestan() {
    TablaWidget una;
    TablaWidget otra;
    FilasElegidas a(&una);
    FilasElegidas b(&otra);
    QObject::connect(&a, &FilasElegidas::cambiadas, &b, &FilasElegidas::elige);
    QObject::connect(&b, &FilasElegidas::cambiadas, &a, &FilasElegidas::elige);
    QSignalSpy veces(&una, &TablaWidget::SelChange);
    una.tabla().mandos().elige_celda(3, 2);
    QCOMPARE(veces.count(), 1);
    QVERIFY((b.filas() == TramoFilas{3, 3}));
    otra.tabla().mandos().elige_celda(2, 1);
    QVERIFY((a.filas() == TramoFilas{2, 2}));
}

void PruebaComodidades::filas_que_no_existen_no_se_eligen() {
    TablaWidget w;
    FilasElegidas filas(&w);
    filas.elige(0, 2);
    filas.elige(2, 4); // four rows with the header: the last is 3
    QVERIFY((filas.filas() == TramoFilas{1, 1}));
}

void PruebaComodidades::un_eco_no_mueve_la_celda() {
    TablaWidget w;
    FilasElegidas filas(&w);
    w.tabla().mandos().elige_celda(2, 3);
    filas.elige(2, 2);
    QCOMPARE(w.tabla().tablero().Col(), 3);
}

QTEST_MAIN(PruebaComodidades)
#include "tst_comodidades.moc"
