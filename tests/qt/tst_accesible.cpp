// SPDX-License-Identifier: MIT
// What an assistive program sees and hears of the grid: roles, the table, names of cells (column, row, value,
// locked), the current cell as the focus, rows that come and go.
#include "qt/accesible.h"
#include "tests/qt/mesa_qt.h"

#include <QAccessible>

#include <utility>

using namespace Qlt4_Tabla;

namespace {

/// A notice as one line: "foco 17", "nombre 17" (with the place among the children), "entran 2 2", "salen 2 3"
/// (rows), "todo"; nothing for the others.
QString linea_de(const QAccessibleEvent& e) {
    if (e.type() == QAccessible::Focus) return QStringLiteral("foco %1").arg(e.child());
    if (e.type() == QAccessible::NameChanged) return QStringLiteral("nombre %1").arg(e.child());
    if (e.type() != QAccessible::TableModelChanged) return {};
    using M = QAccessibleTableModelChangeEvent;
    const auto& m = static_cast<const M&>(e);
    if (m.modelChangeType() == M::ModelReset) return QStringLiteral("todo");
    const bool entran = m.modelChangeType() == M::RowsInserted;
    return QStringLiteral("%1 %2 %3").arg(entran ? "entran" : "salen").arg(m.firstRow()).arg(m.lastRow());
}

/// A table that somebody listens to.
class MesaOida {
public:
    explicit MesaOida(int filas = 10) : m(filas) {
        m.vista->findChild<CeldasAccesibles*>()->pon_oyente([this](QAccessibleEvent& e) {
            if (const QString linea = linea_de(e); !linea.isEmpty()) oidos_ << linea;
        });
        recoge();
    }

    [[nodiscard]] QAccessibleInterface* rejilla() const {
        return QAccessible::queryAccessibleInterface(m.vista);
    }

    [[nodiscard]] QAccessibleTableInterface* cuadro() const { return rejilla()->tableInterface(); }

    [[nodiscard]] QAccessibleInterface* celda(int fila, int col) const { return cuadro()->cellAt(fila, col); }

    [[nodiscard]] QString nombre(int fila, int col) const {
        return celda(fila, col)->text(QAccessible::Name);
    }

    [[nodiscard]] int hijo(int fila, int col) const { return fila * COLUMNAS_MESA + col; }

    QString recoge() {
        QCoreApplication::processEvents();
        return std::exchange(oidos_, {}).join(QLatin1Char(','));
    }

private:
    QStringList oidos_; // outlives the table that speaks

public:
    MesaQt m;
};

QString foco_en(const MesaOida& o, int fila, int col) {
    return QStringLiteral("foco %1").arg(o.hijo(fila, col));
}

} // namespace

class TstAccesible : public QObject {
    Q_OBJECT

private slots:
    void init() { avisos_son_fallos(); }

    void la_rejilla_es_una_tabla_con_nombre();
    void filas_y_columnas_con_cabeceras();
    void cada_celda_tiene_su_papel();
    void los_nombres_dicen_columna_fila_valor_y_candado_data();
    void los_nombres_dicen_columna_fila_valor_y_candado();
    void el_valor_es_el_texto_de_la_celda();
    void las_columnas_y_filas_se_describen();
    void fuera_no_hay_celda();
    void los_hijos_van_fila_a_fila();
    void cabeceras_de_una_celda();
    void estado_de_la_celda_actual();
    void estado_de_bloqueada_invisible_y_fuera_de_vista();
    void bajo_un_punto_esta_su_celda();
    void el_foco_es_la_celda_actual();
    void el_foco_se_anuncia_al_entrar();
    void sin_foco_no_se_anuncia_el_cursor();
    void un_cambio_de_la_celda_actual_se_anuncia();
    void las_filas_nuevas_se_anuncian();
    void las_filas_borradas_se_anuncian_y_sus_celdas_acaban();
    void tras_una_orden_de_filas_los_nombres_son_los_nuevos();
    void una_celda_leida_sigue_a_su_fila();
    void vaciar_la_tabla_se_anuncia();
    void la_seleccion_se_lee();
    void la_seleccion_se_pone();
    void una_celda_toma_el_cursor();
    void los_editores_dicen_su_celda();
    void un_millon_de_filas_no_hace_celdas();
    void la_tabla_que_muere_deja_sin_celdas();
};

void TstAccesible::la_rejilla_es_una_tabla_con_nombre() {
    MesaOida o;
    QCOMPARE(o.rejilla()->role(), QAccessible::Table);
    QVERIFY(o.cuadro() != nullptr);
    QCOMPARE(o.rejilla()->text(QAccessible::Name), QStringLiteral("Tabla"));
    o.m.tabla().Tablero_Nombres("Replanteo", "Puntos", "*.tb0");
    QCOMPARE(o.rejilla()->text(QAccessible::Name), QStringLiteral("Replanteo"));
    o.m.widget->setAccessibleName(QStringLiteral("Estacas"));
    QCOMPARE(o.rejilla()->text(QAccessible::Name), QStringLiteral("Estacas"));
}

void TstAccesible::filas_y_columnas_con_cabeceras() {
    MesaOida o(10);
    QCOMPARE(o.cuadro()->rowCount(), 11);
    QCOMPARE(o.cuadro()->columnCount(), int(COLUMNAS_MESA));
    QCOMPARE(o.rejilla()->childCount(), 11 * COLUMNAS_MESA);
}

void TstAccesible::cada_celda_tiene_su_papel() {
    MesaOida o;
    QCOMPARE(o.celda(0, X)->role(), QAccessible::ColumnHeader);
    QCOMPARE(o.celda(3, 0)->role(), QAccessible::RowHeader);
    QCOMPARE(o.celda(3, X)->role(), QAccessible::Cell);
    QVERIFY(o.celda(3, X)->tableCellInterface() != nullptr);
    QCOMPARE(o.celda(3, X)->tableCellInterface()->rowIndex(), 3);
    QCOMPARE(o.celda(3, X)->tableCellInterface()->columnIndex(), int(X));
}

void TstAccesible::los_nombres_dicen_columna_fila_valor_y_candado_data() {
    QTest::addColumn<int>("fila");
    QTest::addColumn<int>("col");
    QTest::addColumn<QString>("nombre");
    const auto caso = [](const char* que, int fila, int col, const char* nombre) {
        QTest::newRow(que) << fila << col << QString::fromUtf8(nombre);
    };
    caso("value", 2, X, "X, fila 2, 12.500");
    caso("empty", 3, X, "X, fila 3, vacía");
    caso("locked", 2, FIJA, "Fija, fila 2, ancla, bloqueada");
    caso("locked and empty", 3, FIJA, "Fija, fila 3, vacía, bloqueada");
    caso("header", 0, X, "Columna X");
    caso("locked header", 0, FIJA, "Columna Fija, bloqueada");
    caso("row number", 4, 0, "fila 4");
    caso("corner", 0, 0, "Esquina");
}

void TstAccesible::los_nombres_dicen_columna_fila_valor_y_candado() {
    QFETCH(const int, fila);
    QFETCH(const int, col);
    MesaOida o;
    o.m.pon(2, X, "12.5");
    o.m.pon(2, FIJA, "ancla");
    QTEST(o.nombre(fila, col), "nombre");
}

void TstAccesible::el_valor_es_el_texto_de_la_celda() {
    MesaOida o;
    o.m.pon(2, NOMBRE, "año");
    QCOMPARE(o.celda(2, NOMBRE)->text(QAccessible::Value), QStringLiteral("año"));
    QCOMPARE(o.celda(3, NOMBRE)->text(QAccessible::Value), QString());
}

void TstAccesible::las_columnas_y_filas_se_describen() {
    MesaOida o;
    QCOMPARE(o.cuadro()->columnDescription(X), QStringLiteral("X"));
    QCOMPARE(o.cuadro()->rowDescription(3), QStringLiteral("3"));
    QCOMPARE(o.cuadro()->columnDescription(99), QString());
    QCOMPARE(o.cuadro()->rowDescription(-1), QString());
}

void TstAccesible::fuera_no_hay_celda() {
    MesaOida o(10);
    for (const auto& [fila, col] : {std::pair{-1, 1}, {11, 1}, {1, -1}, {1, int(COLUMNAS_MESA)}})
        QVERIFY(o.celda(fila, col) == nullptr);
    QVERIFY(o.rejilla()->child(-1) == nullptr);
    QVERIFY(o.rejilla()->child(11 * COLUMNAS_MESA) == nullptr);
}

void TstAccesible::los_hijos_van_fila_a_fila() {
    MesaOida o;
    QCOMPARE(o.rejilla()->child(o.hijo(4, N)), o.celda(4, N));
    QCOMPARE(o.rejilla()->indexOfChild(o.celda(4, N)), o.hijo(4, N));
    QCOMPARE(o.celda(4, N)->parent(), o.rejilla());
    QCOMPARE(o.celda(4, N)->childCount(), 0);
}

void TstAccesible::cabeceras_de_una_celda() {
    MesaOida o;
    const auto* celda = o.celda(4, N)->tableCellInterface();
    QCOMPARE(celda->columnHeaderCells(), QList<QAccessibleInterface*>{o.celda(0, N)});
    QCOMPARE(celda->rowHeaderCells(), QList<QAccessibleInterface*>{o.celda(4, 0)});
    QVERIFY(o.celda(0, N)->tableCellInterface()->columnHeaderCells().isEmpty());
    QCOMPARE(celda->table(), o.rejilla());
}

void TstAccesible::estado_de_la_celda_actual() {
    MesaOida o;
    o.m.actual(2, X);
    const QAccessible::State actual = o.celda(2, X)->state();
    const QAccessible::State otra = o.celda(3, X)->state();
    QVERIFY(actual.focused && actual.active && actual.selected && actual.editable && !actual.readOnly);
    QVERIFY(!otra.focused && !otra.active && !otra.selected && otra.focusable && otra.selectable);
    o.m.antes->setFocus();
    QVERIFY(!o.celda(2, X)->state().focused && o.celda(2, X)->state().active);
}

void TstAccesible::estado_de_bloqueada_invisible_y_fuera_de_vista() {
    MesaOida o(500);
    const QAccessible::State fija = o.celda(1, FIJA)->state();
    QVERIFY(fija.readOnly && !fija.editable);
    QVERIFY(o.celda(0, X)->state().readOnly && !o.celda(0, X)->state().focusable);
    QVERIFY(o.celda(1, OCULTA)->state().invisible && !o.celda(1, X)->state().invisible);
    QVERIFY(o.celda(400, X)->state().offscreen && !o.celda(1, X)->state().offscreen);
    QVERIFY(o.celda(400, X)->rect().isEmpty());
}

void TstAccesible::bajo_un_punto_esta_su_celda() {
    MesaOida o;
    const QPoint p = o.m.vista->viewport()->mapToGlobal(o.m.centro(3, X));
    QCOMPARE(o.rejilla()->childAt(p.x(), p.y()), o.celda(3, X));
    QVERIFY(o.celda(3, X)->rect().contains(p));
    QVERIFY(o.rejilla()->childAt(-5, -5) == nullptr);
}

void TstAccesible::el_foco_es_la_celda_actual() {
    MesaOida o;
    o.m.pulsa(Qt::Key_Down);
    QCOMPARE(o.recoge(), foco_en(o, 2, NOMBRE));
    QCOMPARE(o.rejilla()->focusChild(), o.celda(2, NOMBRE));
    o.m.clic(4, X);
    QCOMPARE(o.recoge(), foco_en(o, 4, X));
    QCOMPARE(o.rejilla()->focusChild(), o.celda(4, X));
}

void TstAccesible::el_foco_se_anuncia_al_entrar() {
    MesaOida o;
    o.m.antes->setFocus();
    o.recoge();
    o.m.vista->setFocus();
    QVERIFY(o.recoge().endsWith(foco_en(o, 1, NOMBRE)));
}

void TstAccesible::sin_foco_no_se_anuncia_el_cursor() {
    MesaOida o;
    o.m.antes->setFocus();
    o.recoge();
    o.m.tabla().mandos().elige_celda(3, X);
    QCOMPARE(o.recoge(), QString());
}

void TstAccesible::un_cambio_de_la_celda_actual_se_anuncia() {
    MesaOida o;
    o.m.pon(1, NOMBRE, "P1");
    QCOMPARE(o.recoge(), QStringLiteral("nombre %1").arg(o.hijo(1, NOMBRE)));
    QCOMPARE(o.nombre(1, NOMBRE), QStringLiteral("Nombre, fila 1, P1"));
    o.m.pon(2, NOMBRE, "P2"); // nobody reads that one now
    QCOMPARE(o.recoge(), QString());
}

void TstAccesible::las_filas_nuevas_se_anuncian() {
    MesaOida o(10);
    o.m.pon(5, NOMBRE, "quinta");
    const QAccessible::Id quinta = QAccessible::uniqueId(o.celda(5, NOMBRE));
    o.recoge();
    o.m.tabla().crea_una_fila();
    QCOMPARE(o.recoge(), QStringLiteral("entran 11 11"));
    QCOMPARE(o.cuadro()->rowCount(), 12);
    QCOMPARE(QAccessible::uniqueId(o.celda(5, NOMBRE)), quinta);
}

void TstAccesible::las_filas_borradas_se_anuncian_y_sus_celdas_acaban() {
    MesaOida o(10);
    const QAccessible::Id novena = QAccessible::uniqueId(o.celda(9, NOMBRE));
    const QAccessible::Id quinta = QAccessible::uniqueId(o.celda(5, NOMBRE));
    o.recoge();
    o.m.tabla().Rows(8);
    QCOMPARE(o.recoge(), QStringLiteral("salen 8 10"));
    QVERIFY(QAccessible::accessibleInterface(novena) == nullptr);
    QCOMPARE(QAccessible::accessibleInterface(quinta), o.celda(5, NOMBRE));
}

// Commands on rows work with redrawing off: what they did comes afterwards.
void TstAccesible::tras_una_orden_de_filas_los_nombres_son_los_nuevos() {
    MesaOida o(10);
    o.m.pon(5, NOMBRE, "quinta");
    o.m.actual(2, NOMBRE);
    QCOMPARE(o.nombre(5, NOMBRE), QStringLiteral("Nombre, fila 5, quinta"));
    o.recoge();
    o.m.tabla().mandos().orden(Opcion::mn_insertar_filas);
    QCOMPARE(o.recoge(), QStringLiteral("entran 2 2"));
    QCOMPARE(o.nombre(5, NOMBRE), QStringLiteral("Nombre, fila 5, vacía"));
    QCOMPARE(o.nombre(6, NOMBRE), QStringLiteral("Nombre, fila 6, quinta"));
}

// Rows that come or go above a cell take it with them: it stays the same cell for who reads it.
void TstAccesible::una_celda_leida_sigue_a_su_fila() {
    MesaOida o(20);
    auto* celdas = o.m.vista->findChild<CeldasAccesibles*>();
    QAccessibleInterface* quinta = o.celda(5, NOMBRE);
    const QAccessible::Id segunda = QAccessible::uniqueId(o.celda(2, NOMBRE));
    celdas->filas_insertadas(3, 4);
    QCOMPARE(quinta->tableCellInterface()->rowIndex(), 9);
    QCOMPARE(o.celda(9, NOMBRE), quinta);
    celdas->filas_borradas(1, 3);
    QCOMPARE(quinta->tableCellInterface()->rowIndex(), 6);
    QVERIFY(QAccessible::accessibleInterface(segunda) == nullptr);
    QCOMPARE(o.recoge(), QStringLiteral("entran 3 6,salen 1 3"));
}

void TstAccesible::vaciar_la_tabla_se_anuncia() {
    MesaOida o;
    const QAccessible::Id id = QAccessible::uniqueId(o.celda(5, NOMBRE));
    o.recoge();
    o.m.tabla().Clear();
    QVERIFY(o.recoge().startsWith(QStringLiteral("salen 1 10")));
    QVERIFY(QAccessible::accessibleInterface(id) == nullptr);
    QCOMPARE(o.cuadro()->rowCount(), 1);
}

void TstAccesible::la_seleccion_se_lee() {
    MesaOida o(10);
    o.m.tabla().mandos().elige_bloque(2, X, 4, N);
    QCOMPARE(o.cuadro()->selectedCellCount(), 6);
    QCOMPARE(o.cuadro()->selectedCells().size(), qsizetype(6));
    QVERIFY(o.cuadro()->selectedRows().isEmpty() && o.cuadro()->selectedColumns().isEmpty());
    o.m.tabla().mandos().elige_bloque(2, 1, 4, COLUMNAS_MESA - 1);
    QCOMPARE(o.cuadro()->selectedRows(), (QList<int>{2, 3, 4}));
    QVERIFY(o.cuadro()->isRowSelected(3) && !o.cuadro()->isRowSelected(5));
    o.m.clic(0, X);
    QCOMPARE(o.cuadro()->selectedColumns(), QList<int>{X});
}

void TstAccesible::la_seleccion_se_pone() {
    MesaOida o(10);
    QVERIFY(o.cuadro()->selectRow(3));
    QCOMPARE(o.m.seleccion(), QStringLiteral("3 1 3 %1").arg(COLUMNAS_MESA - 1));
    QVERIFY(o.cuadro()->unselectRow(3));
    QCOMPARE(o.m.seleccion(), QStringLiteral("3 1 3 1"));
    QVERIFY(o.cuadro()->selectColumn(X));
    QCOMPARE(o.m.seleccion(), QStringLiteral("1 2 10 2"));
    QVERIFY(!o.cuadro()->selectRow(0) && !o.cuadro()->selectRow(11) && !o.cuadro()->selectColumn(0));
    QCOMPARE(o.m.seleccion(), QStringLiteral("1 2 10 2"));
}

void TstAccesible::una_celda_toma_el_cursor() {
    MesaOida o;
    o.m.antes->setFocus();
    QAccessibleActionInterface* acciones = o.celda(4, N)->actionInterface();
    QCOMPARE(acciones->actionNames(), QStringList(QAccessibleActionInterface::setFocusAction()));
    acciones->doAction(QAccessibleActionInterface::setFocusAction());
    QCOMPARE(o.m.donde(), QStringLiteral("4 3"));
    QVERIFY(o.m.vista->hasFocus());
    QVERIFY(o.celda(0, N)->actionInterface()->actionNames().isEmpty());
}

void TstAccesible::los_editores_dicen_su_celda() {
    MesaOida o;
    o.m.actual(2, X);
    o.m.pulsa(Qt::Key_F2);
    QCOMPARE(o.m.casilla->accessibleName(), QStringLiteral("X, fila 2"));
    o.m.pulsa(Qt::Key_Escape);
    o.m.actual(3, USO);
    o.m.pulsa(Qt::Key_F2);
    QCOMPARE(o.m.lista->accessibleName(), QStringLiteral("Uso, fila 3"));
}

void TstAccesible::un_millon_de_filas_no_hace_celdas() {
    MesaOida o(1'000'000);
    const auto* hechas = o.m.vista->findChild<CeldasAccesibles*>();
    QCOMPARE(o.cuadro()->rowCount(), 1'000'001);
    const std::size_t antes = hechas->hechas();
    QCOMPARE(o.nombre(1'000'000, X), QStringLiteral("X, fila 1000000, vacía"));
    QCOMPARE(hechas->hechas(), antes + 1);
    o.m.clic(0, X);
    QCOMPARE(o.cuadro()->selectedCellCount(), 1'000'000);
    QVERIFY(o.cuadro()->selectedCells().size() < 100); // those in sight
}

void TstAccesible::la_tabla_que_muere_deja_sin_celdas() {
    QAccessible::Id id = 0;
    {
        MesaOida o;
        id = QAccessible::uniqueId(o.celda(5, NOMBRE));
        QVERIFY(QAccessible::accessibleInterface(id) != nullptr);
    }
    QVERIFY(QAccessible::accessibleInterface(id) == nullptr);
}

QTEST_MAIN(TstAccesible)
#include "tst_accesible.moc"
