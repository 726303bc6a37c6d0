// SPDX-License-Identifier: MIT
// DialogoFicheroQt: the common file dialog over the table's window, modal. Qt's own dialog is used and not
// the system's, because only it keeps to a place on the screen and speaks Spanish whatever translation the
// program has loaded. What is asked: platform/dialogo_fichero.h.
#pragma once

#include "platform/dialogo_fichero.h"

#include <QByteArray>
#include <QFileDialog>
#include <QString>

#include <string>
#include <string_view>

class QAbstractFileIconProvider;
class QTreeView;
class QWidget;

namespace Qlt4_Tabla {

/// The window. A name typed without extension gets it before anything is asked about the file.
class VentanaFichero final : public QFileDialog {
    Q_OBJECT

public:
    /// `iconos` outlives it.
    VentanaFichero(const PeticionFichero& peticion, QAbstractFileIconProvider& iconos, QWidget* padre);
    /// Qt keeps the columns of the list for the dialogs of every program: they stay as they were.
    ~VentanaFichero() override;
    VentanaFichero(const VentanaFichero&) = delete;
    VentanaFichero& operator=(const VentanaFichero&) = delete;

    /// The file chosen, after `exec` gave Accepted.
    [[nodiscard]] std::string elegido() const { return elegido_; }

    void accept() override;

protected:
    /// Keys that would rename or delete the user's files are kept from the list.
    bool eventFilter(QObject* de, QEvent* e) override;

private:
    [[nodiscard]] QString texto_de_aceptar() const;
    void pon_textos();
    void conecta();
    void prepara_listas();
    [[nodiscard]] QSize talla_inicial() const;
    [[nodiscard]] QString escrito() const;
    void avisa(std::string_view antes, const QString& nombre, std::string_view despues);
    [[nodiscard]] bool pregunta_si_reemplaza(const QString& nombre);

    QTreeView* detalle_ = nullptr;
    QByteArray cabecera_de_otros_;
    ModoFichero modo_;
    std::string extension_;
    std::string elegido_;
};

class DialogoFicheroQt final : public DialogoFichero {
public:
    explicit DialogoFicheroQt(QWidget& widget) : widget_(widget) {}

    [[nodiscard]] RespuestaFichero pide(const PeticionFichero& peticion) override;

private:
    QWidget& widget_;
};

} // namespace Qlt4_Tabla
