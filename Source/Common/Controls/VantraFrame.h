#pragma once

// The library's plain panel: a QFrame that hands corner shapes, a corner radius and an overlay flag to the
// style, and tells when the pointer comes and goes.
//
//     auto *frame = new VantraFrame(parent);
//     frame->setFrameShape(QFrame::Panel);
//     frame->setFrameShadow(QFrame::Raised);
//     frame->setCornerShapes(VantraFrame::CornerShapeRoundFull);
//     frame->setCornerRadius(5);
//
// Shape and shadow are QFrame's own and choose what is painted. GUI thread only.

#include "VTWidgetsLiteExport.h"

#include <QtWidgets/QFrame>

#include <limits>

class VTWIDGETSLITE_EXPORT VantraFrame : public QFrame
{
    Q_OBJECT
    Q_PROPERTY(CornerShapes cornerShapes READ cornerShapes WRITE setCornerShapes NOTIFY cornerShapesChanged)
    Q_PROPERTY(int cornerRadius READ cornerRadius WRITE setCornerRadius NOTIFY cornerRadiusChanged)
    Q_PROPERTY(bool hudOverlay READ hudOverlay WRITE setHudOverlay NOTIFY hudOverlayChanged)

public:
    // Which corners are round. The sides and the full set are what the style paints; a single corner paints
    // square.
    enum CornerShape {
        CornerShapeNone = 0x0,
        CornerShapeRoundTopLeft = 0x1,
        CornerShapeRoundTopRight = 0x2,
        CornerShapeRoundBottomLeft = 0x4,
        CornerShapeRoundBottomRight = 0x8,
        CornerShapeRoundTop = 0x3,
        CornerShapeRoundBottom = 0xC,
        CornerShapeRoundLeft = 0x5,
        CornerShapeRoundRight = 0xA,
        CornerShapeRoundFull = 0xF,
    };
    Q_DECLARE_FLAGS(CornerShapes, CornerShape)
    Q_FLAG(CornerShapes)

    explicit VantraFrame(QWidget *inParent = nullptr, Qt::WindowFlags inFlags = {});
    ~VantraFrame() override;

    // Each setter does nothing for the value at hand; otherwise it stores, emits its signal and repaints.
    // None changes the geometry.

    // CornerShapeNone by default.
    CornerShapes cornerShapes() const { return mCornerShapes; }
    void setCornerShapes(CornerShapes inShapes);

    // Logical pixels. The default, the largest int, stands for the largest radius that fits.
    int cornerRadius() const { return mCornerRadius; }
    void setCornerRadius(int inRadius);

    // True for a frame that lies over the picture: it is painted translucent. False by default.
    bool hudOverlay() const { return mHudOverlay; }
    void setHudOverlay(bool inState);

signals:
    void cornerShapesChanged(VantraFrame::CornerShapes inShapes);
    void cornerRadiusChanged(int inRadius);
    void hudOverlayChanged(bool inState);

    // The pointer has come onto the frame, and has left it.
    void showHelp();
    void hideHelp();

protected:
    void enterEvent(QEnterEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void initStyleOption(QStyleOptionFrame *option) const override;

private:
    CornerShapes mCornerShapes = CornerShapeNone;
    int mCornerRadius = std::numeric_limits<int>::max();
    bool mHudOverlay = false;
};

Q_DECLARE_OPERATORS_FOR_FLAGS(VantraFrame::CornerShapes)
