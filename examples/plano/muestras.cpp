// SPDX-License-Identifier: MIT
// Reads the points line by line from the comma-separated resource.
#include "muestras.h"

#include <QFile>
#include <QStringList>
#include <QTextStream>

namespace plano {

std::vector<Muestra> lee_muestras() {
    QFile fichero(QStringLiteral(":/datos/meuse.csv"));
    if (!fichero.open(QIODevice::ReadOnly | QIODevice::Text)) return {};
    QTextStream lineas(&fichero);
    const QStringList cabecera = lineas.readLine().split(QLatin1Char(','));
    const auto lugar = [&](const char* nombre) { return cabecera.indexOf(QLatin1String(nombre)); };
    const qsizetype x = lugar("x"), y = lugar("y"), cota = lugar("elev"), zinc = lugar("zinc");
    const qsizetype uso = lugar("landuse"), inundacion = lugar("ffreq");
    for (const qsizetype columna : {x, y, cota, zinc, uso, inundacion})
        if (columna < 0) return {};

    std::vector<Muestra> muestras;
    for (QString linea; lineas.readLineInto(&linea);) {
        const QStringList campos = linea.split(QLatin1Char(','));
        if (campos.size() != cabecera.size()) continue;
        muestras.push_back({campos[x].toDouble(), campos[y].toDouble(), campos[cota].toStdString(),
            campos[zinc].toStdString(), campos[uso].toStdString(), campos[inundacion].toInt()});
    }
    return muestras;
}

} // namespace plano
