// SPDX-License-Identifier: MIT
// Table files through the members and the menu commands: what is shown, what changes, what an open editor
// does meanwhile.
#include "base/teclas.h"
#include "tests/control/mesa.h"

#include <gmock/gmock.h>

using namespace Qlt4_Tabla;
using testing::ElementsAre;
using testing::IsEmpty;

namespace prueba {

class Ficheros0 : public Mesa {
protected:
    Ficheros0() {
        t.Tablero_Nombres("Obra", "Puntos", "*.tb0");
        for (std::int16_t col = 1; col < 5; ++col) da_formato(col, T_formato::Alfanm);
        t.Tablero_establece_Formato();
        t.TextMatrix(1, 1, "uno");
        t.Tablero_Grabar("t.tb0");
        p.registro.clear();
    }

    Mandos& m() { return tabla.mandos(); }

    void edita(const char* texto) {
        m().tecla_pulsada('x');
        p.casilla.pon_texto(texto);
        m().editor().tecla_casilla(teclas::INTRO);
        p.registro.clear();
    }

    /// The messages since the record was emptied.
    std::vector<std::string> mensajes() const {
        std::vector<std::string> lineas;
        for (const std::string& linea : p.registro)
            if (linea.starts_with("mensaje")) lineas.push_back(linea);
        return lineas;
    }

    std::string ajuste_directorio() {
        return p.ajustes.valores[{"Obra", "FicherosTabla", "Directorio y Nombre"}];
    }
};

TRES_VIAS(Ficheros0);

TEST_P(Ficheros0, lo_grabado_se_lee) {
    t.TextMatrix(1, 1, "dos");
    t.Rows(2);
    p.registro.clear();
    t.Tablero_Leer("t.tb0");
    EXPECT_EQ(celda(1, 1), "uno");
    EXPECT_EQ(t.Rows(), 4);
    EXPECT_THAT(p.registro, ElementsAre("puntero 11", "puntero 0"));
}

TEST_P(Ficheros0, los_errores_se_muestran_y_no_salen) {
    p.ficheros.contenidos["malo"] = "x";
    t.Tablero_Leer("malo");
    t.Tablero_Leer("nada.tb0");
    t.Tablero_Grabar("/otra/t.tb0");
    EXPECT_THAT(mensajes(),
        ElementsAre("mensaje|0||Error al leer la Tabla de Puntos\r\nError nº=62  "
                    "La entrada de datos ha sobrepasado el final del archivo",
            "mensaje|0||Error al leer la Tabla de Puntos\r\nError nº=53  No se ha encontrado el archivo",
            "mensaje|0||Error al guardar la Tabla de Puntos\r\nError nº=76  "
            "No se ha encontrado la ruta de acceso"));
    EXPECT_EQ(celda(1, 1), "uno");
}

TEST_P(Ficheros0, mas_de_26_columnas_no_se_graban) {
    tabla.A_FormatString(std::string(26, '|'));
    t.Tablero_Grabar("otro.tb0");
    EXPECT_THAT(mensajes(),
        ElementsAre(
            "mensaje|0||Error al guardar la Tabla de Puntos\r\nError nº=9  Subíndice fuera del intervalo"));
    EXPECT_EQ(p.ficheros.contenidos.count("otro.tb0"), 0U);
}

TEST_P(Ficheros0, una_lista_sin_valores_se_dice_y_lo_leido_queda) {
    da_formato(1, T_formato::ListaU);
    t.TextMatrix(1, 1, "dos");
    t.Tablero_Leer("t.tb0");
    EXPECT_THAT(mensajes(),
        ElementsAre(
            "mensaje|0||Error al leer la Tabla de Puntos\r\nError nº=9  Subíndice fuera del intervalo"));
    EXPECT_EQ(celda(1, 1), "uno");
    EXPECT_TRUE(g().Redraw());
}

TEST_P(Ficheros0, un_editor_abierto_no_escribe_en_la_tabla_leida) {
    m().elige_celda(1, 1);
    m().tecla_pulsada('x');
    t.Tablero_Leer("t.tb0");
    EXPECT_FALSE(m().editor().abierto());
    EXPECT_EQ(celda(1, 1), "uno");
}

TEST_P(Ficheros0, un_editor_abierto_sigue_si_no_se_lee_nada) {
    m().elige_celda(1, 1);
    m().tecla_pulsada('x');
    t.Tablero_Leer("nada.tb0");
    EXPECT_TRUE(m().editor().abierto());
}

TEST_P(Ficheros0, guardar_como_guarda_la_edicion_abierta) {
    m().elige_celda(1, 1);
    m().tecla_pulsada('x');
    p.dialogo_fichero.rutas = {"/casa/x.tb0"};
    EXPECT_TRUE(m().orden(Opcion::Mnu_Tabla_Guardar_como));
    EXPECT_EQ(tabla.estado().Modificado, 0);
    t.TextMatrix(1, 1, "otro");
    t.Tablero_Leer("/casa/x.tb0");
    EXPECT_EQ(celda(1, 1), "x");
    EXPECT_EQ(ajuste_directorio(), "/casa/x.tb0");
}

TEST_P(Ficheros0, cancelar_no_lee_ni_escribe) {
    m().orden(Opcion::Mnu_Tabla_Guardar_como);
    m().orden(Opcion::Mnu_Tabla_Leer);
    EXPECT_EQ(p.ficheros.contenidos.size(), 1U);
    EXPECT_THAT(mensajes(), IsEmpty());
    EXPECT_EQ(std::count(p.registro.begin(), p.registro.end(), "puntero 11"), 0);
}

TEST_P(Ficheros0, abrir_pregunta_antes_que_nada_si_hay_cambios) {
    m().elige_celda(1, 1);
    edita("dos");
    m().orden(Opcion::Mnu_Tabla_Leer); // the question is closed without an answer
    EXPECT_THAT(
        p.registro, ElementsAre("mensaje|20||Si no ha grabado los datos ,se perderan.  ¿QUIERES SEGUIR?"));
    p.mensajes.respuestas = {Respuesta::Si};
    p.dialogo_fichero.rutas = {"t.tb0"};
    m().orden(Opcion::Mnu_Tabla_Leer);
    EXPECT_EQ(celda(1, 1), "uno");
    EXPECT_EQ(tabla.estado().Modificado, 0);
}

TEST_P(Ficheros0, abrir_rechaza_el_fichero_de_otra_clase) {
    t.Tablero_Nombres("Obra", "Ejes", "*.tb0");
    p.dialogo_fichero.rutas = {"t.tb0"};
    m().orden(Opcion::Mnu_Tabla_Leer);
    EXPECT_THAT(mensajes(), ElementsAre("mensaje|0||El fichero t.tb0\r\nno es Ejes"));
}

TEST_P(Ficheros0, los_errores_de_las_ordenes_son_los_de_los_miembros) {
    p.ficheros.falla("t.tb0", 70);
    p.dialogo_fichero.rutas = {"t.tb0", "t.tb0"};
    m().orden(Opcion::Mnu_Tabla_Leer);
    m().orden(Opcion::Mnu_Tabla_Guardar_como);
    EXPECT_THAT(mensajes(),
        ElementsAre("mensaje|0||Error al leer la Tabla de Puntos\r\nError nº=70  Permiso denegado",
            "mensaje|0||Error al guardar la Tabla de Puntos\r\nError nº=70  Permiso denegado"));
}

} // namespace prueba
