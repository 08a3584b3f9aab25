#pragma once

/// The Qt Designer plugin: the controls in Designer's widget box, and for any QUiLoader.

#include <QObject>
#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>

#include <memory>
#include <vector>

namespace zor::designer {

class ControlEntry;

class Collection : public QObject, public QDesignerCustomWidgetCollectionInterface {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "org.qt-project.Qt.QDesignerCustomWidgetCollectionInterface")
    Q_INTERFACES(QDesignerCustomWidgetCollectionInterface)

public:
    Collection();
    ~Collection() override;

    [[nodiscard]] QList<QDesignerCustomWidgetInterface*> customWidgets() const override;

private:
    std::vector<std::unique_ptr<ControlEntry>> m_entries;
};

} // namespace zor::designer
