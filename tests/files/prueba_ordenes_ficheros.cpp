// SPDX-License-Identifier: MIT
// What the open and save commands ask the user, what the file dialog is asked and what it remembers.
#include "core/formatos.h"
#include "core/superficie.h"
#include "files/f_archivo.h"
#include "files/ordenes_ficheros.h"
#include "tests/core/mesa.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

namespace Qlt4_Tabla {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class PruebaOrdenes : public testing::Test {
protected:
    PruebaOrdenes() { nombres("Obra", "Puntos"); }

    void nombres(std::string_view titulo, std::string_view subtitulo) {
        Tablero_Nombres(m.e, titulo, subtitulo, "*.tb0");
        m.p.registro.clear();
    }

    const PeticionFichero& pedido() { return m.p.dialogo_fichero.vistos.back(); }

    void ajuste(const char* clave, const char* valor) {
        m.p.ajustes.valores[{"Obra", "FicherosTabla", clave}] = valor;
    }

    std::string ajuste(const char* clave) { return m.p.ajustes.valores[{"Obra", "FicherosTabla", clave}]; }

    Mesa m;
};

TEST_F(PruebaOrdenes, sin_cambios_no_pregunta) {
    EXPECT_EQ(Aviso_Perder_Datos(m.e), "no");
    EXPECT_THAT(m.p.registro, IsEmpty());
}

TEST_F(PruebaOrdenes, con_cambios_pregunta_y_solo_si_deja_seguir) {
    m.e.Modificado = 1;
    m.p.mensajes.respuestas = {Respuesta::Si, Respuesta::No};
    EXPECT_EQ(Aviso_Perder_Datos(m.e), "no");
    EXPECT_EQ(Aviso_Perder_Datos(m.e), "si");
    EXPECT_EQ(Aviso_Perder_Datos(m.e), "si"); // closed without an answer
    EXPECT_EQ(m.p.registro.size(), 3U);
    EXPECT_EQ(m.p.registro.front(), "mensaje|20||Si no ha grabado los datos ,se perderan.  ¿QUIERES SEGUIR?");
    EXPECT_EQ(m.e.Modificado, 1);
}

TEST_F(PruebaOrdenes, lo_que_se_pide_al_dialogo_la_primera_vez) {
    EXPECT_EQ(elige_fichero_de_lectura(m.e), "");
    EXPECT_EQ(elige_fichero_de_grabacion(m.e), "");
    const std::string resto = "|Tabla (*.tb0)|*.tb0|Todos (*.*)|*.*|/casa||tb0";
    const std::string guarda = "ajuste Obra|FicherosTabla|Directorio y Nombre=C:\\Mis documentos";
    EXPECT_THAT(m.p.registro,
        ElementsAre("dialogo_fichero abrir|Abrir Tabla de Puntos..." + resto, guarda,
            "ajuste Obra|FicherosTabla|Left=1000", "ajuste Obra|FicherosTabla|Top=1000",
            "dialogo_fichero guardar|Guardar Tabla de Puntos como..." + resto, guarda,
            "ajuste Obra|FicherosTabla|Left=1000", "ajuste Obra|FicherosTabla|Top=1000"));
    EXPECT_EQ(pedido().izquierda, 1000.0F);
    EXPECT_EQ(pedido().arriba, 1000.0F);
}

TEST_F(PruebaOrdenes, los_nombres_que_faltan_se_suplen) {
    nombres("Obra", "");
    EXPECT_EQ(elige_fichero_de_lectura(m.e), "");
    EXPECT_EQ(pedido().titulo, "Abrir Tabla de Obra...");
    nombres("", "Puntos");
    EXPECT_EQ(elige_fichero_de_grabacion(m.e), "");
    EXPECT_EQ(pedido().titulo, "Guardar Tabla de Puntos como...");
    EXPECT_EQ(m.p.ajustes.valores.count({"Tabla", "FicherosTabla", "Left"}), 1U);
    pon_titulos_de_ficheros(m.e);
    EXPECT_EQ(m.e.menus[Opcion::Mnu_Tabla_Leer].titulo, "Abrir Tabla de Puntos...");
}

TEST_F(PruebaOrdenes, los_titulos_del_menu_nombran_la_tabla) {
    pon_titulos_de_ficheros(m.e);
    EXPECT_EQ(m.e.menus[Opcion::Mnu_Tabla_Leer].titulo, "Abrir Tabla de Obra...");
    EXPECT_EQ(m.e.menus[Opcion::Mnu_Tabla_Guardar_como].titulo, "Guardar Tabla de Obra como...");
    EXPECT_EQ(m.p.marco.veces_menus, 1);
}

TEST_F(PruebaOrdenes, la_y_comercial_de_un_nombre_no_marca_tecla_en_el_menu) {
    nombres("Agua & Gas", "");
    pon_titulos_de_ficheros(m.e);
    EXPECT_EQ(m.e.menus[Opcion::Mnu_Tabla_Leer].titulo, "Abrir Tabla de Agua && Gas...");
    EXPECT_EQ(m.e.menus[Opcion::Mnu_Tabla_Guardar_como].titulo, "Guardar Tabla de Agua && Gas como...");
    EXPECT_EQ(elige_fichero_de_lectura(m.e), "");
    EXPECT_EQ(pedido().titulo, "Abrir Tabla de Agua & Gas..."); // a window's title has no keys
}

TEST_F(PruebaOrdenes, lo_elegido_se_propone_la_proxima_vez) {
    m.p.ficheros.carpetas.insert("/casa/datos");
    m.p.dialogo_fichero.rutas = {"/casa/datos/p.tb0"};
    m.p.dialogo_fichero.movido_a = {250.5F, -40.0F};
    EXPECT_EQ(elige_fichero_de_grabacion(m.e), "/casa/datos/p.tb0");
    EXPECT_EQ(ajuste("Directorio y Nombre"), "/casa/datos/p.tb0");
    EXPECT_EQ(ajuste("Left"), "250.5");
    EXPECT_EQ(ajuste("Top"), "-40");
    m.p.dialogo_fichero.movido_a.reset();
    EXPECT_EQ(elige_fichero_de_lectura(m.e), "");
    EXPECT_EQ(pedido().carpeta, "/casa/datos");
    EXPECT_EQ(pedido().nombre, "p.tb0");
    EXPECT_EQ(pedido().izquierda, 250.5F);
    EXPECT_EQ(pedido().arriba, -40.0F);
    EXPECT_EQ(ajuste("Directorio y Nombre"), "/casa/datos/p.tb0"); // a cancel keeps it
}

TEST_F(PruebaOrdenes, una_carpeta_que_ya_no_esta_es_la_del_usuario) {
    ajuste("Directorio y Nombre", "/vieja/p.tb0");
    EXPECT_EQ(elige_fichero_de_lectura(m.e), "");
    EXPECT_EQ(pedido().carpeta, "/casa");
    EXPECT_EQ(pedido().nombre, "p.tb0");
}

TEST_F(PruebaOrdenes, una_carpeta_sola_no_propone_nombre) {
    ajuste("Directorio y Nombre", "/casa");
    EXPECT_EQ(elige_fichero_de_lectura(m.e), "");
    EXPECT_EQ(pedido().carpeta, "/casa");
    EXPECT_EQ(pedido().nombre, "");
}

TEST_F(PruebaOrdenes, la_carpeta_de_costumbre_se_usa_donde_la_hay) {
    m.p.ficheros.carpetas.insert("C:\\Mis documentos");
    EXPECT_EQ(elige_fichero_de_lectura(m.e), "");
    EXPECT_EQ(pedido().carpeta, "C:\\Mis documentos");
}

TEST_F(PruebaOrdenes, un_lugar_que_no_es_numero_es_el_primero) {
    for (const char* const malo : {"", "izquierda", "1e9", "1e999"}) {
        ajuste("Left", malo);
        ajuste("Top", "2,5");
        EXPECT_EQ(elige_fichero_de_lectura(m.e), "");
        EXPECT_EQ(pedido().izquierda, 1000.0F) << malo;
        EXPECT_EQ(pedido().arriba, 2.5F);
    }
}

TEST_F(PruebaOrdenes, un_almacen_que_no_se_deja_escribir_no_quita_lo_elegido) {
    m.p.ajustes.falla(75);
    m.p.dialogo_fichero.rutas = {"/casa/p.tb0"};
    EXPECT_EQ(elige_fichero_de_lectura(m.e), "/casa/p.tb0");
}

TEST_F(PruebaOrdenes, sin_un_patron_de_una_extension_no_se_anade_ninguna) {
    for (const char* const patron : {"*.*", "X", "*.t?"}) {
        Tablero_Nombres(m.e, "Obra", "Puntos", patron);
        EXPECT_EQ(elige_fichero_de_lectura(m.e), "");
        EXPECT_EQ(pedido().extension, "") << patron;
    }
    A_ExtensionFche(m.e, "*.dat");
    EXPECT_EQ(elige_fichero_de_lectura(m.e), "");
    EXPECT_EQ(pedido().extension, "dat");
    EXPECT_EQ(pedido().filtro, "Tabla (*.dat)|*.dat|Todos (*.*)|*.*");
}

TEST_F(PruebaOrdenes, el_formulario_parte_la_ruta) {
    F_Archivo f(m.e.plataforma);
    f.A_Aplicacion = "Obra";
    f.A_nombre_por_defecto = "propuesto.tb0";
    m.p.dialogo_fichero.rutas = {"C:\\datos/x\\p.tb0", "/casa/p.tb0", "p.tb0"};
    f.A_leer();
    EXPECT_EQ(pedido().nombre, "propuesto.tb0");
    EXPECT_EQ(f.A_Ruta_Fch(), "C:\\datos/x");
    EXPECT_EQ(f.A_Nombre_Fch(), "p.tb0");
    f.A_grabar();
    EXPECT_EQ(f.A_Ruta_Fch(), "/casa");
    f.A_leer();
    EXPECT_EQ(f.A_Ruta_Fch(), "");
    EXPECT_EQ(f.A_Nombre_Fch(), "p.tb0");
    f.A_leer();
    EXPECT_EQ(f.A_ruta_y_archivo(), "");
}

} // namespace

} // namespace Qlt4_Tabla
