// SPDX-License-Identifier: MIT
// ComplementoTabla: the table in the widget box of Qt Designer and for programs that load forms while they
// run. A form keeps the six design-time properties of TablaWidget, all of them always.
#pragma once

#include <QIcon>
#include <QObject>
#include <QString>
#include <QtUiPlugin/QDesignerCustomWidgetInterface>

namespace Qlt4_Tabla {

class ComplementoTabla final : public QObject, public QDesignerCustomWidgetInterface {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QDesignerCustomWidgetInterface_iid)
    Q_INTERFACES(QDesignerCustomWidgetInterface)

public:
    using QObject::QObject;

    [[nodiscard]] QString name() const override;
    [[nodiscard]] QString group() const override;
    [[nodiscard]] QString toolTip() const override;
    [[nodiscard]] QString whatsThis() const override;
    [[nodiscard]] QString includeFile() const override;
    [[nodiscard]] QIcon icon() const override;
    [[nodiscard]] bool isContainer() const override;
    [[nodiscard]] QString domXml() const override;
    QWidget* createWidget(QWidget* padre) override;
};

} // namespace Qlt4_Tabla
