#pragma once

// The overlay on the canvas: the zoom with a menu of zooms, and buttons to zoom by steps.

#include "Controls/VantraFrame.h"

class PhotoCanvas;
class VantraButton;
class VantraMenu;

class CanvasHud : public VantraFrame
{
    Q_OBJECT

public:
    // A child of the canvas, in the middle above its lower edge.
    explicit CanvasHud(PhotoCanvas *inCanvas);

private:
    void showZoom();

    PhotoCanvas *mCanvas;
    VantraMenu *mMenu;
    VantraButton *mZoom;
};
