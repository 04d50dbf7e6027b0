#pragma once

// What a rich tool tip says: an animated picture, a title, a longer text and the link "Learn how".
//
//     auto *content = new VantraToolTipContent(frame->body());
//     content->setToolTip(":/Tips/brush.gif", tr("Brush"), tr("Paints the mask."),
//     "https://example.com/brush");
//
// The class is no widget: it lays its labels out on the widget that it is given. GUI thread only.

#include "VTWidgetsLiteExport.h"

#include <QtCore/QObject>
#include <QtCore/QString>

#include <memory>

class QMovie;
class QWidget;

class VTWIDGETSLITE_EXPORT VantraToolTipContent : public QObject
{
    Q_OBJECT

public:
    // The widget to fill, which must have no layout yet. It owns the content and takes its size from it.
    explicit VantraToolTipContent(QWidget *inParent);
    ~VantraToolTipContent() override;

    // The picture is a movie of any format that QMovie reads, played unscaled. Of "brush.gif" only the
    // double-resolution file "brush@2x.gif" is loaded; when it is missing, the rest is shown without a
    // picture. The detailed text may be HTML. The link is there also when the URL is empty; its colour is
    // the theme's at the time of the call.
    void setToolTip(const QString &inImage, const QString &inTitle, const QString &inDetailed,
                    const QString &inUrl);

private:
    struct Ui;

    void setToolTipImage(const QString &inImage);

    const std::unique_ptr<Ui> mUi;
    std::unique_ptr<QMovie> mMovie;
};
