#include "VantraDesignerPlugin.h"

#include "VantraDesignerControl.h"

VantraDesignerPlugin::VantraDesignerPlugin(QObject *inParent) : QObject(inParent)
{
    for (const VantraDesignerControl::Entry &entry : VantraDesignerControl::entries()) {
        mControls.push_back(std::make_unique<VantraDesignerControl>(entry));
    }
}

VantraDesignerPlugin::~VantraDesignerPlugin() = default;

QList<QDesignerCustomWidgetInterface *> VantraDesignerPlugin::customWidgets() const
{
    QList<QDesignerCustomWidgetInterface *> controls;
    for (const std::unique_ptr<VantraDesignerControl> &control : mControls) {
        controls << control.get();
    }
    return controls;
}
