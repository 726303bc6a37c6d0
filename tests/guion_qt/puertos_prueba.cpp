// SPDX-License-Identifier: MIT
// Messages in real boxes, and a clipboard that can be closed.
#include "tests/guion_qt/puertos_prueba.h"

#include "qt/texto_qt.h"

namespace Qlt4_Tabla {

namespace {

QMessageBox::StandardButton boton_de(Respuesta respuesta) {
    switch (respuesta) {
    case Respuesta::Si: return QMessageBox::Yes;
    case Respuesta::No: return QMessageBox::No;
    case Respuesta::Aceptar: break;
    }
    return QMessageBox::Ok;
}

} // namespace

Respuesta MensajesReales::mensaje(std::string_view texto, EstiloMensaje estilo, std::string_view titulo) {
    const Respuesta esperada = memoria_.mensaje(texto, estilo, titulo);
    if (reales_ == nullptr) return esperada;
    QString visto;
    manos::Mensajero mensajero([&visto](const QString& m) { visto = m; });
    mensajero.respuestas.push_back(boton_de(esperada));
    const Respuesta dada = reales_->mensaje(texto, estilo, titulo);
    const QString cabecera = titulo.empty() ? QApplication::applicationDisplayName() : a_qstring(titulo);
    const QString debido = QStringLiteral("mensaje|%1|").arg(static_cast<int>(estilo)) + cabecera +
        QLatin1Char('|') + a_qstring(texto);
    if (visto != debido) registro_.push_back("box: " + visto.toStdString());
    if (dada != esperada) registro_.push_back("answer: " + std::to_string(static_cast<int>(dada)));
    if (al_cerrar) al_cerrar();
    return dada;
}

std::string PortapapelesCerrable::lee() {
    if (cerrado_ || real_ == nullptr) lanza(NumError::PortapapelesCerrado);
    return real_->lee();
}

void PortapapelesCerrable::escribe(std::string_view texto) {
    if (cerrado_ || real_ == nullptr) lanza(NumError::PortapapelesCerrado);
    real_->escribe(texto);
}

} // namespace Qlt4_Tabla
