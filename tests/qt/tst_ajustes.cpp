// SPDX-License-Identifier: MIT
// The settings store on a real file: any text and any name come back byte for byte, another program sees
// them, a store that cannot be written says so and keeps what it had.
#include "base/error.h"
#include "qt/ajustes_qt.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>

#include <array>
#include <memory>
#include <string>

using namespace Qlt4_Tabla;

class TstAjustes : public QObject {
    Q_OBJECT

private slots:
    void init() {
        carpeta_ = std::make_unique<QTemporaryDir>();
        fichero_ = carpeta_->filePath(QStringLiteral("a.ini"));
    }

    void lo_que_falta_no_tiene_valor();
    void cualquier_texto_vuelve_igual_data();
    void cualquier_texto_vuelve_igual();
    void cada_nombre_es_otro();
    void otro_programa_lo_ve();
    void sin_uso_no_hay_fichero();
    void un_fichero_imposible_es_un_error();
    void escribir_pone_otro_fichero_entero_en_su_sitio();

private:
    std::unique_ptr<QTemporaryDir> carpeta_;
    QString fichero_;
};

void TstAjustes::lo_que_falta_no_tiene_valor() {
    const AjustesQt a(fichero_);
    QVERIFY(!a.lee("P", "S", "k").has_value());
}

void TstAjustes::cualquier_texto_vuelve_igual_data() {
    QTest::addColumn<QByteArray>("valor");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("blanks") << QByteArray("  a  b ");
    QTest::newRow("lines") << QByteArray("a\r\nb\n\tc");
    QTest::newRow("zero byte") << QByteArray("a\0b", 3);
    QTest::newRow("signs of the file") << QByteArray("a=b;c,d\"e\\f%g[h]#i@");
    QTest::newRow("looks like a type") << QByteArray("@ByteArray(abc)");
    QTest::newRow("Spanish") << QByteArray("Configuración ñ €");
    QTest::newRow("beyond the first plane") << QByteArray("\xF0\x9F\x98\x80");
    QTest::newRow("byte order mark") << QByteArray("\xEF\xBB\xBFx");
    QTest::newRow("no UTF-8") << QByteArray("\xFF\xFE\x80z");
    QTest::newRow("a number") << QByteArray("007");
    QTest::newRow("True") << QByteArray("True");
}

void TstAjustes::cualquier_texto_vuelve_igual() {
    QFETCH(QByteArray, valor);
    {
        AjustesQt a(fichero_);
        a.escribe("Un programa", "Sección", "Nombre N 3", valor.toStdString());
    }
    const AjustesQt otra_vez(fichero_);
    const auto leido = otra_vez.lee("Un programa", "Sección", "Nombre N 3");
    QVERIFY(leido.has_value());
    QCOMPARE(QByteArray::fromStdString(*leido), valor);
}

void TstAjustes::cada_nombre_es_otro() {
    const std::array<std::array<const char*, 3>, 14> nombres{
        {{"P", "S", "k"}, {"P", "S", "K"}, {"p", "S", "k"}, {"P", "S", " k"}, {"P", "S", "k "},
            {"P", "S", "k/l"}, {"P", "S/k", "l"}, {"P", "S", ""}, {"", "", ""}, {"P", "", "S"},
            {"P", "S", "~"}, {"P", "S", "^k"}, {"General", "general", "ñ"}, {"P", "S", "a\\b=c%20"}}};
    {
        AjustesQt a(fichero_);
        for (std::size_t i = 0; i < nombres.size(); ++i)
            a.escribe(nombres[i][0], nombres[i][1], nombres[i][2], std::to_string(i));
    }
    const AjustesQt a(fichero_);
    for (std::size_t i = 0; i < nombres.size(); ++i) {
        const auto leido = a.lee(nombres[i][0], nombres[i][1], nombres[i][2]);
        QVERIFY(leido.has_value());
        QCOMPARE(QString::fromStdString(*leido), QString::number(i));
    }
}

void TstAjustes::otro_programa_lo_ve() {
    AjustesQt a(fichero_);
    AjustesQt b(fichero_);
    a.escribe("P", "S", "k", "1");
    QCOMPARE(*b.lee("P", "S", "k"), std::string("1"));
    b.escribe("P", "S", "k", "2");
    QCOMPARE(*a.lee("P", "S", "k"), std::string("2"));
}

void TstAjustes::sin_uso_no_hay_fichero() {
    { const AjustesQt a(fichero_); }
    QVERIFY(!QFileInfo::exists(fichero_));
}

// A folder stands where the file should be: nobody can write that, the administrator included.
void TstAjustes::un_fichero_imposible_es_un_error() {
    AjustesQt a(fichero_);
    a.escribe("P", "S", "k", "1");
    const QString sin_sitio = fichero_ + QStringLiteral("/dentro.ini");
    a.pon_fichero(sin_sitio);
    int numero = 0;
    try {
        a.escribe("P", "S", "k", "2");
    } catch (const Error& e) {
        numero = e.numero();
    }
    QCOMPARE(numero, 75);
    QVERIFY(!a.lee("P", "S", "k").has_value());
    a.pon_fichero(fichero_);
    QCOMPARE(*a.lee("P", "S", "k"), std::string("1"));
}

// The old file is never written into: who has it open reads it as it was, and a program that dies in the middle
// leaves it in its place.
void TstAjustes::escribir_pone_otro_fichero_entero_en_su_sitio() {
    AjustesQt a(fichero_);
    a.escribe("P", "S", "k", "1");
    QFile viejo(fichero_);
    QVERIFY(viejo.open(QIODevice::ReadOnly | QIODevice::Unbuffered));
    const QByteArray antes = viejo.readAll();
    a.escribe("P", "S", "k", std::string(5000, 'x'));
    viejo.seek(0);
    QCOMPARE(viejo.readAll(), antes);
    QVERIFY(QFileInfo(fichero_).size() > 5000);
    QCOMPARE(QDir(carpeta_->path()).entryList(QDir::Files).size(), 1); // nothing left over
}

QTEST_GUILESS_MAIN(TstAjustes)
#include "tst_ajustes.moc"
