// SPDX-License-Identifier: MIT
// Qt's file dialog with our texts, checks and place: qt/dialogo_fichero_qt.h.
#include "qt/dialogo_fichero_qt.h"

#include "base/rutas.h"
#include "qt/caja_linea.h"
#include "qt/sitio_ventana.h"
#include "qt/texto_qt.h"
#include "qt/textos.h"
#include "qt/unidades.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QDateTime>
#include <QDir>
#include <QFileIconProvider>
#include <QFileInfo>
#include <QFileSystemModel>
#include <QHeaderView>
#include <QIdentityProxyModel>
#include <QKeyEvent>
#include <QLineEdit>
#include <QLocale>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QScrollBar>
#include <QToolButton>
#include <QTreeView>
#include <QUrl>

#include <algorithm>
#include <array>
#include <utility>

namespace Qlt4_Tabla {

namespace {

// Of the window's first size, in characters.
constexpr int NOMBRE_USUAL = 26;
constexpr int AIRE_COLUMNAS = 20; // beside the texts of the list
constexpr int LADO = 20; // the list of places

// The headers of the list in Spanish.
class ModeloConTitulos final : public QIdentityProxyModel {
public:
    using QIdentityProxyModel::QIdentityProxyModel;

    [[nodiscard]] QVariant headerData(int seccion, Qt::Orientation orientacion, int papel) const override {
        const auto i = static_cast<std::size_t>(seccion);
        if (orientacion == Qt::Horizontal && papel == Qt::DisplayRole &&
            i < textos::fichero::columnas_ficheros.size())
            return a_qstring(textos::fichero::columnas_ficheros[i]);
        return QIdentityProxyModel::headerData(seccion, orientacion, papel);
    }
};

// The kinds of files in Spanish.
class IconosConTipos final : public QFileIconProvider {
public:
    [[nodiscard]] QString type(const QFileInfo& info) const override {
        if (info.isDir()) return a_qstring(textos::fichero::carpeta);
        const QString sufijo = info.suffix();
        return sufijo.isEmpty() ? a_qstring(textos::fichero::archivo)
                                : a_qstring(textos::fichero::archivo) + QLatin1Char(' ') + sufijo;
    }
};

// "text|pattern|text|pattern" as Qt has it: "text (pattern)"; a text that names the pattern itself keeps it.
QStringList filtros(std::string_view filtro) {
    QStringList todos;
    const QStringList partes = a_qstring(filtro).split(QLatin1Char('|'));
    for (qsizetype i = 0; i + 1 < partes.size(); i += 2) {
        const QString entre = QLatin1Char('(') + partes[i + 1] + QLatin1Char(')');
        const bool lo_nombra = partes[i].endsWith(entre);
        todos << (lo_nombra ? partes[i] : partes[i] + QLatin1Char(' ') + entre);
    }
    return todos;
}

// A path as it is typed: "~" in front is the user's own folder.
QString sin_tilde(const QString& ruta) {
    const bool la_suya = ruta == QLatin1String("~") || ruta.startsWith(QLatin1String("~/"));
    return la_suya ? QDir::homePath() + ruta.mid(1) : ruta;
}

// Entries of the list of folders that stand for no folder: Qt names them in the program's language.
void nombra_entrada(QAbstractItemModel& modelo, const QModelIndex& entrada) {
    constexpr int PAPEL_URL = Qt::UserRole + 1;
    const QUrl url = entrada.data(PAPEL_URL).toUrl();
    if (!url.path().isEmpty()) return;
    const QString texto = a_qstring(url.isValid() ? textos::fichero::equipo : textos::fichero::recientes);
    if (entrada.data().toString() != texto) modelo.setData(entrada, texto);
}

} // namespace

VentanaFichero::VentanaFichero(
    const PeticionFichero& peticion, QAbstractFileIconProvider& iconos, QWidget* padre)
    : QFileDialog(padre), modo_(peticion.modo), extension_(peticion.extension) {
    setOption(QFileDialog::DontUseNativeDialog);
    setOption(QFileDialog::DontConfirmOverwrite); // asked here, about the name with its extension
    setWindowTitle(a_qstring(peticion.titulo));
    const bool abrir = modo_ == ModoFichero::Abrir;
    setAcceptMode(abrir ? QFileDialog::AcceptOpen : QFileDialog::AcceptSave);
    // AnyFile for both: whether it exists is looked at after the extension.
    setFileMode(QFileDialog::AnyFile);
    setIconProvider(&iconos);
    setProxyModel(new ModeloConTitulos(this));
    if (const QStringList todos = filtros(peticion.filtro); !todos.isEmpty()) setNameFilters(todos);
    setDirectory(peticion.carpeta.empty() ? QDir::homePath() : a_qstring(peticion.carpeta));
    if (!peticion.nombre.empty()) selectFile(a_qstring(peticion.nombre));
    setSidebarUrls({QUrl::fromLocalFile(QDir::homePath())});
    for (auto* const caja : findChildren<QLineEdit*>()) pon_menu_en_espanol(*caja);
    for (auto* const barra : findChildren<QScrollBar*>()) barra->setContextMenuPolicy(Qt::NoContextMenu);
    for (auto* const boton : findChildren<QPushButton*>()) boton->setIcon({}); // as in our other dialogs
    pon_textos();
    prepara_listas();
    conecta();
    resize(cabe_en_pantalla(*this, talla_inicial()));
}

VentanaFichero::~VentanaFichero() {
    if (detalle_ != nullptr) detalle_->header()->restoreState(cabecera_de_otros_);
}

QString VentanaFichero::texto_de_aceptar() const {
    return a_qstring(modo_ == ModoFichero::Abrir ? textos::fichero::abrir : textos::fichero::guardar);
}

void VentanaFichero::conecta() {
    // Over a folder Qt's button would say that it opens it, in the program's language.
    connect(
        this, &QFileDialog::currentChanged, this,
        [this] { setLabelText(QFileDialog::Accept, texto_de_aceptar()); }, Qt::QueuedConnection);
    // "*.*" is every file, also one whose name has no point.
    connect(
        this, &QFileDialog::filterSelected, this,
        [this](const QString& filtro) {
            auto* const modelo = findChild<QFileSystemModel*>();
            if (modelo != nullptr && filtro.endsWith(QStringLiteral("(*.*)"))) modelo->setNameFilters({});
        },
        Qt::QueuedConnection);
    auto* const carpetas = findChild<QComboBox*>(QStringLiteral("lookInCombo"));
    if (carpetas == nullptr) return;
    QAbstractItemModel* const modelo = carpetas->model();
    connect(modelo, &QAbstractItemModel::dataChanged, this,
        [modelo](const QModelIndex& desde, const QModelIndex& hasta) {
            for (int fila = desde.row(); fila <= hasta.row(); ++fila)
                nombra_entrada(*modelo, modelo->index(fila, 0));
        });
}

void VentanaFichero::pon_textos() {
    setLabelText(QFileDialog::LookIn, a_qstring(textos::fichero::buscar_en));
    setLabelText(QFileDialog::FileName, a_qstring(textos::fichero::nombre_fichero));
    setLabelText(QFileDialog::FileType, a_qstring(textos::fichero::tipo_fichero));
    setLabelText(QFileDialog::Accept, texto_de_aceptar());
    setLabelText(QFileDialog::Reject, a_qstring(textos::fichero::cancelar));
    static constexpr std::array<std::pair<const char*, std::string_view>, 5> BOTONES{
        {{"backButton", textos::fichero::atras}, {"forwardButton", textos::fichero::adelante},
            {"toParentButton", textos::fichero::subir}, {"listModeButton", textos::fichero::vista_lista},
            {"detailModeButton", textos::fichero::vista_detalle}}};
    for (const auto& [nombre, texto] : BOTONES) {
        auto* const boton = findChild<QToolButton*>(QLatin1String(nombre));
        if (boton == nullptr) continue;
        boton->setToolTip(a_qstring(texto));
        boton->setAccessibleName(a_qstring(texto));
        boton->setAccessibleDescription(a_qstring(texto));
    }
}

// Managing files is not this dialog's work: no menu and no keys for it.
void VentanaFichero::prepara_listas() {
    for (auto* const lista : findChildren<QAbstractItemView*>()) {
        lista->setContextMenuPolicy(Qt::NoContextMenu);
        lista->setEditTriggers(QAbstractItemView::NoEditTriggers);
        lista->installEventFilter(this);
    }
    if (auto* const boton = findChild<QToolButton*>(QStringLiteral("newFolderButton"))) boton->hide();
    detalle_ = findChild<QTreeView*>(QStringLiteral("treeView"));
    if (detalle_ == nullptr) return;
    QHeaderView& cabecera = *detalle_->header();
    cabecera_de_otros_ = cabecera.saveState();
    cabecera.setStretchLastSection(false);
    cabecera.setSectionResizeMode(QHeaderView::ResizeToContents);
    cabecera.setSectionResizeMode(0, QHeaderView::Stretch);
}

// Every column is seen whole, though the files are read only later: room for usual ones.
QSize VentanaFichero::talla_inicial() const {
    const QFontMetrics letra = fontMetrics();
    const QString fecha =
        QLocale().toString(QDateTime(QDate(2000, 12, 28), QTime(20, 58)), QLocale::ShortFormat);
    const QString muestra = QString(NOMBRE_USUAL, QLatin1Char('n')) + QStringLiteral("1023,99 KiB") +
        a_qstring(textos::fichero::archivo) + QStringLiteral(" tb0");
    const int fechas = std::max(letra.horizontalAdvance(fecha),
        letra.horizontalAdvance(a_qstring(textos::fichero::columnas_ficheros.back())));
    const int aire = (AIRE_COLUMNAS + LADO) * letra.averageCharWidth();
    return sizeHint().expandedTo({letra.horizontalAdvance(muestra) + fechas + aire, 24 * letra.height()});
}

bool VentanaFichero::eventFilter(QObject* de, QEvent* e) {
    if (e->type() == QEvent::KeyPress || e->type() == QEvent::ShortcutOverride) {
        const int tecla = static_cast<QKeyEvent*>(e)->key();
        if ((tecla == Qt::Key_Delete || tecla == Qt::Key_F2) &&
            qobject_cast<QAbstractItemView*>(de) != nullptr)
            return true;
    }
    return QFileDialog::eventFilter(de, e);
}

// What stands in the box, as a whole path.
QString VentanaFichero::escrito() const {
    const auto* const caja = findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
    const QString nombre = caja != nullptr ? sin_tilde(caja->text()) : QString();
    return nombre.isEmpty() ? nombre : QDir::cleanPath(directory().absoluteFilePath(nombre));
}

void VentanaFichero::avisa(std::string_view antes, const QString& nombre, std::string_view despues) {
    QMessageBox caja(this);
    caja.setTextFormat(Qt::PlainText);
    caja.setIcon(QMessageBox::Warning);
    caja.setWindowTitle(windowTitle());
    caja.setText(a_qstring(antes) + nombre + a_qstring(despues));
    caja.addButton(a_qstring(textos::aceptar), QMessageBox::AcceptRole);
    caja.exec();
}

bool VentanaFichero::pregunta_si_reemplaza(const QString& nombre) {
    QMessageBox caja(this);
    caja.setTextFormat(Qt::PlainText);
    caja.setIcon(QMessageBox::Warning);
    caja.setWindowTitle(windowTitle());
    caja.setText(
        a_qstring(textos::fichero::ya_existe_antes) + nombre + a_qstring(textos::fichero::ya_existe_despues));
    auto* const si = caja.addButton(a_qstring(textos::fichero::reemplazar), QMessageBox::AcceptRole);
    auto* const no = caja.addButton(a_qstring(textos::fichero::cancelar), QMessageBox::RejectRole);
    caja.setDefaultButton(no);
    caja.setEscapeButton(no);
    caja.exec();
    return caja.clickedButton() == si;
}

void VentanaFichero::accept() {
    QString ruta = escrito();
    if (ruta.isEmpty()) return;
    if (QFileInfo(ruta).isDir()) { // go there, as typing a folder's name does
        setDirectory(ruta);
        if (auto* const caja = findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))) caja->clear();
        return;
    }
    if (const QString carpeta = QFileInfo(ruta).path(); !QFileInfo(carpeta).isDir())
        return avisa(textos::fichero::no_hay_carpeta_antes, QDir::toNativeSeparators(carpeta),
            textos::fichero::no_hay_carpeta_despues);
    const bool abrir = modo_ == ModoFichero::Abrir;
    if (!(abrir && QFileInfo::exists(ruta)))
        ruta = QString::fromStdString(con_extension(ruta.toStdString(), extension_));
    const QString nombre = QFileInfo(ruta).fileName();
    if (abrir && !QFileInfo::exists(ruta))
        return avisa(textos::fichero::no_existe_antes, nombre, textos::fichero::no_existe_despues);
    if (!abrir && QFileInfo::exists(ruta) && !pregunta_si_reemplaza(nombre)) return;
    elegido_ = QDir::toNativeSeparators(ruta).toStdString();
    QDialog::accept(); // QFileDialog would check and ask again
}

RespuestaFichero DialogoFicheroQt::pide(const PeticionFichero& peticion) {
    IconosConTipos iconos; // longer than the window, whose reading of folders asks it
    const QPointer<VentanaFichero> ventana = new VentanaFichero(peticion, iconos, widget_.window());
    const Unidades u(*ventana);
    const QPoint sitio(u.px_x(twips_enteros(peticion.izquierda)), u.px_y(twips_enteros(peticion.arriba)));
    ventana->move(dentro_de_pantalla(*ventana, sitio));
    RespuestaFichero r{{}, peticion.izquierda, peticion.arriba};
    const QPoint antes = ventana->pos();
    const bool elegido = ventana->exec() == QDialog::Accepted;
    if (ventana.isNull()) return r; // the host's window went away meanwhile
    if (elegido) r.ruta = ventana->elegido();
    if (const QPoint p = ventana->pos();
        p != antes) { // the place stays as it was given until the user moves it
        r.izquierda = static_cast<float>(u.twips_x(p.x()));
        r.arriba = static_cast<float>(u.twips_y(p.y()));
    }
    delete ventana;
    return r;
}

} // namespace Qlt4_Tabla
