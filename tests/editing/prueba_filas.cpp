// SPDX-License-Identifier: MIT
// The row commands where a script cannot look: order of the capture point, notices, errors before any
// change, large tables.
#include "editing/filas.h"
#include "tests/editing/mesa_edicion.h"

#include <cstddef>
#include <functional>
#include <utility>
#include <vector>

namespace Qlt4_Tabla {

namespace {

using testing::ElementsAre;

class PruebaFilas : public MesaEdicion {
protected:
    void accion(int col, T_Accion cual) {
        e.Formatos[static_cast<std::size_t>(col)].Accion = static_cast<std::int16_t>(cual);
    }

    void nombra(int filas) {
        for (int fila = 1; fila <= filas; ++fila) t().TextMatrix(fila, 1, "n" + std::to_string(fila));
    }
};

TEST_F(PruebaFilas, cada_orden_captura_antes_de_cambiar) {
    const std::vector<std::function<void()>> ordenes{[&] { crea_una_fila(e); }, [&] { mn_añadir_filas(e); },
        [&] { mn_insertar_filas(e); }, [&] { mn_eliminar_filas(e); }, [&] { mn_borrar_seleccion(e); }};
    for (const auto& orden : ordenes) {
        nombra(2);
        va(2, 1);
        int filas = 0;
        std::string texto;
        p.pasos.al_capturar = [&] {
            filas = t().Rows();
            texto = celda(2, 1);
        };
        const int antes = t().Rows();
        p.pasos.capturas = 0;
        orden();
        EXPECT_EQ(filas, antes);
        EXPECT_EQ(texto, "n2");
        EXPECT_EQ(p.pasos.capturas, 1);
    }
}

TEST_F(PruebaFilas, cada_orden_marca_la_tabla_como_modificada) {
    const std::vector<std::function<void()>> ordenes{[&] { crea_una_fila(e); }, [&] { mn_añadir_filas(e); },
        [&] { mn_insertar_filas(e); }, [&] { mn_eliminar_filas(e); }, [&] { mn_eliminar_vacias(e); },
        [&] { mn_borrar_seleccion(e); }, [&] { mn_cortar(e, [] { return true; }); }};
    for (const auto& orden : ordenes) {
        e.Modificado = 0;
        orden();
        EXPECT_EQ(e.Modificado, 1);
        t().Rows(5);
    }
}

TEST_F(PruebaFilas, insertar_y_eliminar_dan_avisos_juntos_y_un_suceso) {
    va(2, 1);
    p.vista.avisos.clear();
    mn_insertar_filas(e);
    mn_eliminar_filas(e);
    EXPECT_THAT(p.vista.avisos,
        ElementsAre("filas+ 2 1", testing::StartsWith("celdas 2 0 "), "filas- 2 1",
            testing::StartsWith("celdas 2 0 ")));
    EXPECT_THAT(p.registro, ElementsAre("captura", "SelChange", "captura", "SelChange"));
    EXPECT_TRUE(t().Redraw());
}

TEST_F(PruebaFilas, en_el_suceso_de_eliminar_la_seleccion_es_aun_la_de_antes) {
    nombra(4);
    t().selecciona(1, 1, 2, 3);
    Bloque en_el_suceso;
    p.eventos.al_suceder = [&](std::string_view) {
        en_el_suceso = {t().Row(), t().Col(), t().RowSel(), t().ColSel()};
    };
    mn_eliminar_filas(e);
    EXPECT_EQ(en_el_suceso, (Bloque{1, 1, 2, 3}));
    EXPECT_EQ(t().RowSel(), 1);
    EXPECT_EQ(t().ColSel(), 1);
}

TEST_F(PruebaFilas, Rellena_Fila_deja_la_fila_1_y_las_de_arriba) {
    accion(1, T_Accion::Repite);
    t().TextMatrix(0, 1, "cabecera");
    Rellena_Fila(e, 1);
    Rellena_Fila(e, 0);
    EXPECT_EQ(celda(1, 1), "");
}

TEST_F(PruebaFilas, Rellena_Fila_por_cada_accion) {
    accion(1, T_Accion::Increm);
    accion(2, T_Accion::Repite);
    accion(3, T_Accion::Decrem);
    accion(4, T_Accion::Nada__);
    for (int col = 1; col <= 4; ++col) t().TextMatrix(1, col, "7");
    t().TextMatrix(2, 3, "queda");
    Rellena_Fila(e, 2);
    EXPECT_EQ(celda(2, 1), "8");
    EXPECT_EQ(celda(2, 2), "7");
    EXPECT_EQ(celda(2, 3), "queda");
    EXPECT_EQ(celda(2, 4), "");
}

TEST_F(PruebaFilas, lo_incrementado_no_toma_los_decimales_de_la_columna) {
    accion(2, T_Accion::Increm);
    t().TextMatrix(1, 2, "12.90");
    Rellena_Fila(e, 2);
    EXPECT_EQ(celda(2, 2), "12.91");
    t().TextMatrix(1, 2, "12.9");
    Rellena_Fila(e, 2);
    EXPECT_EQ(celda(2, 2), "12.10");
}

TEST_F(PruebaFilas, una_accion_desconocida_no_rellena) {
    e.Formatos[1].Accion = 9;
    t().TextMatrix(1, 1, "7");
    Rellena_Fila(e, 2);
    EXPECT_EQ(celda(2, 1), "");
}

TEST_F(PruebaFilas, cortar_borra_solo_lo_que_se_copio) {
    t().TextMatrix(1, 1, "x");
    mn_cortar(e, [] { return false; });
    EXPECT_EQ(celda(1, 1), "x");
    EXPECT_EQ(e.Modificado, 0);
    EXPECT_THAT(p.registro, ElementsAre("captura"));
    p.registro.clear();
    mn_cortar(e, [&] { return celda(1, 1) == "x"; });
    EXPECT_EQ(celda(1, 1), "");
    EXPECT_EQ(e.Modificado, 1);
    EXPECT_THAT(p.registro, ElementsAre("captura", "captura"));
}

TEST_F(PruebaFilas, sin_sitio_para_otra_fila_no_cambia_nada) {
    t().Rows(5);
    t().Cols(26);
    t().Rows(static_cast<int>(MAX_CELDAS / 26));
    const int filas = t().Rows();
    va(filas - 1, 1);
    e.Modificado = 0;
    EXPECT_EQ(error_de([&] { crea_una_fila(e); }), 7);
    EXPECT_EQ(error_de([&] { mn_añadir_filas(e); }), 7);
    EXPECT_EQ(error_de([&] { mn_insertar_filas(e); }), 7);
    EXPECT_EQ(t().Rows(), filas);
    EXPECT_EQ(e.Modificado, 0);
    EXPECT_TRUE(t().Redraw());
}

TEST_F(PruebaFilas, eliminar_cien_mil_filas_es_un_solo_paso) {
    t().Rows(200001);
    t().numera_filas();
    t().TextMatrix(150001, 1, "queda");
    t().selecciona(1, 1, 100000, 2);
    p.vista.avisos.clear();
    mn_eliminar_filas(e);
    EXPECT_EQ(t().Rows(), 100001);
    EXPECT_EQ(celda(50001, 1), "queda");
    EXPECT_EQ(celda(50001, 0), "50001");
    EXPECT_LE(p.vista.avisos.size(), 3U); // rows, their numbers and selection, however many rows
}

TEST_F(PruebaFilas, eliminar_vacias_quita_muchas_de_una_vez) {
    t().Rows(100001);
    for (int fila = 2; fila <= 100000; fila += 2) t().TextMatrix(fila, 3, "x");
    mn_eliminar_vacias(e);
    EXPECT_EQ(t().Rows(), 50001);
    EXPECT_EQ(celda(50000, 3), "x");
    EXPECT_EQ(celda(50000, 0), "50000");
}

TEST_F(PruebaFilas, borrar_una_columna_larga) {
    t().Rows(100001);
    t().numera_filas();
    for (int fila = 1; fila <= 100000; ++fila) t().TextMatrix(fila, 2, "1.00");
    t().selecciona(1, 2, 100000, 2);
    mn_borrar_seleccion(e);
    EXPECT_EQ(celda(1, 2), "");
    EXPECT_EQ(celda(100000, 2), "");
    EXPECT_EQ(celda(100000, 0), "100000");
    EXPECT_EQ(t().RowSel(), 100000);
}

TEST_F(PruebaFilas, un_error_en_el_suceso_deja_el_dibujo_encendido) {
    p.eventos.al_suceder = [](std::string_view) { lanza(NumError::LlamadaNoValida); };
    EXPECT_EQ(error_de([&] { mn_insertar_filas(e); }), 5);
    EXPECT_TRUE(t().Redraw());
    EXPECT_EQ(error_de([&] { mn_eliminar_vacias(e); }), 5);
    EXPECT_TRUE(t().Redraw());
}

TEST_F(PruebaFilas, la_primera_fila_que_se_anade_o_inserta_se_puede_escribir) {
    for (const auto& orden : {std::function<void()>([&] { mn_añadir_filas(e); }),
             std::function<void()>([&] { mn_insertar_filas(e); })}) {
        t().Rows(1);
        EXPECT_EQ(t().Row(), 0);
        orden();
        EXPECT_EQ(t().Rows(), 2);
        EXPECT_EQ(t().Row(), 1);
    }
}

TEST_F(PruebaFilas, la_cuenta_de_filas_que_se_ve_sigue_a_cada_orden) {
    e.nombres.Tablero_Pon_Nombre(2, true, "Puntos");
    Tablero_Fila_0_Off(e);
    Tablero_establece_Formato(e);
    const std::string& cuenta = e.etiquetas.labNumeroFilas.texto;
    EXPECT_EQ(cuenta, "Puntos: Nº de filas = 4");
    va(4, 1);
    crea_una_fila(e);
    EXPECT_EQ(cuenta, "Puntos: Nº de filas = 5");
    mn_añadir_filas(e);
    EXPECT_EQ(cuenta, "Puntos: Nº de filas = 6");
    mn_insertar_filas(e);
    EXPECT_EQ(cuenta, "Puntos: Nº de filas = 7");
    mn_eliminar_filas(e);
    EXPECT_EQ(cuenta, "Puntos: Nº de filas = 6");
    mn_eliminar_vacias(e);
    EXPECT_EQ(cuenta, "Puntos: Nº de filas = 0");
}

TEST_F(PruebaFilas, la_celda_actual_se_ve_despues_de_borrar_filas) {
    t().Rows(201);
    t().selecciona(2, 1, 180, 1);
    t().TopRow(170);
    mn_eliminar_filas(e);
    EXPECT_EQ(t().Row(), 2);
    EXPECT_EQ(t().TopRow(), 2);
}

TEST_F(PruebaFilas, la_fila_que_sube_no_cuenta_como_la_del_clic_anterior) {
    e.ultimaFilaRaton = 2;
    e.ultimaColRaton = 4;
    va(2, 4);
    mn_eliminar_filas(e);
    EXPECT_EQ(e.ultimaFilaRaton, -1);
    EXPECT_EQ(e.ultimaColRaton, -1);
}

} // namespace

} // namespace Qlt4_Tabla
