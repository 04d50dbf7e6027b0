#pragma once

// Opens the rich tool tip of a tool button that has a toolTipImage, at Qt's own moment for tool tips, and
// closes it within a second after the pointer has left both the button and the tip. Keys, clicks and changes
// of focus don't close it, so that its link can be reached. A button without the image keeps Qt's plain tip.
//
//     button->installEventFilter(VantraToolTipFilter::sharedInstance());
//
// Every VantraToolButton does this by itself. At most one tip is on the screen. GUI thread only.

#include "VTWidgetsLiteExport.h"

#include <QtCore/QObject>
#include <QtCore/QPointer>
#include <QtCore/QRect>

class QHelpEvent;
class QTimer;
class VantraToolButton;
class VantraToolTip;

class VTWIDGETSLITE_EXPORT VantraToolTipFilter : public QObject
{
    Q_OBJECT

public:
    // Made at the first call; lives to the end of the process. Its tip goes with the application.
    static VantraToolTipFilter *sharedInstance();

    // The parent is ignored: a filter has none.
    explicit VantraToolTipFilter(QObject *inParent = nullptr);
    ~VantraToolTipFilter() override;

    bool eventFilter(QObject *object, QEvent *event) override;

private slots:
    void onToolTipTimeout();

private:
    void openToolTip(VantraToolButton *inButton, const QHelpEvent &inEvent);
    void dismissToolTip();

    QPointer<VantraToolTip> mToolTip;
    QTimer *const mTimer;
    QRect mButtonRect; // in global coordinates, taken when the tip opened
    QPointer<VantraToolButton> mCurrentButton;
};
