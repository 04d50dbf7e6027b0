#pragma once

// Shows one picture stretched over its whole area; the aspect ratio is not kept.
//
//     auto *picture = new VantraPictureWidget(parent);
//     picture->setPixmap(":/Help/Welcome.png");
//     picture->resize(300, 200);
//
// The picture gives the widget no size. GUI thread only.

#include "VTWidgetsLiteExport.h"

#include <QtGui/QPixmap>
#include <QtWidgets/QWidget>

class VTWIDGETSLITE_EXPORT VantraPictureWidget : public QWidget
{
    Q_OBJECT

public:
    explicit VantraPictureWidget(QWidget *inParent = nullptr);
    ~VantraPictureWidget() override;

    // The next paint shows the picture; neither form asks for one. A null pixmap shows nothing. A resource
    // that can't be loaded stops the process, as with VTWidgetsLoadPixmap.
    void setPixmap(const QString &inResource);
    void setPixmap(const QPixmap &inPixmap);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QPixmap mPixmap;
};
