#pragma once

// The library's controls in the widget box of Qt Designer, and for forms that a program loads by QUiLoader.
// Nothing of the usual start order is asked of either: the first control loads the fonts and, unless a theme
// is loaded already, the base theme with the accent "blue". What the controls look like is up to the style of
// the program; QT_STYLE_OVERRIDE=Vantra gives Designer the style of the house.

#include <QtCore/QObject>
#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>

#include <memory>
#include <vector>

class VantraDesignerControl;

class VantraDesignerPlugin final : public QObject, public QDesignerCustomWidgetCollectionInterface
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QDesignerCustomWidgetCollectionInterface_iid)
    Q_INTERFACES(QDesignerCustomWidgetCollectionInterface)

public:
    explicit VantraDesignerPlugin(QObject *inParent = nullptr);
    ~VantraDesignerPlugin() override;

    // The plugin keeps them.
    QList<QDesignerCustomWidgetInterface *> customWidgets() const override;

private:
    std::vector<std::unique_ptr<VantraDesignerControl>> mControls;
};
