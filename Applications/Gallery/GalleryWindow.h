#pragma once

// The gallery's window: pages at the left, what they look like above, the page itself in the rest. Pages are
// made when they are first shown.

#include "Window/VantraMainWindow.h"

#include <QtCore/QList>

class GalleryLook;
class GalleryPage;
class QButtonGroup;
class QCheckBox;
class QComboBox;
class QLabel;
class QLayout;
class QListWidget;
class QScrollArea;
class QStackedWidget;

class GalleryWindow : public VantraMainWindow
{
    Q_OBJECT

public:
    // inLook outlives the window.
    explicit GalleryWindow(GalleryLook *inLook, QWidget *inParent = nullptr);

    void showPage(int inIndex);
    void setPagesEnabled(bool inEnabled);

    // Makes the window as large as the present page needs to be seen whole.
    void growToPage();

private:
    QWidget *makeSidebar();
    QWidget *makeStrip();
    void addAccentButtons(QLayout *ioLayout);
    void addTextSizes(QLayout *ioLayout);
    void addStyles(QLayout *ioLayout);
    void ensurePage(int inIndex);
    void onLookChanged();
    void onThemeTroubled(const QString &inReason);
    void paintAccentIcons();

    GalleryLook *mLook;
    QListWidget *mSidebar = nullptr;
    QButtonGroup *mAccents = nullptr;
    QCheckBox *mEnabled = nullptr;
    // Under the page: what is wrong with the theme files; hidden while nothing is.
    QLabel *mTrouble = nullptr;
    QStackedWidget *mStack = nullptr;
    // A scroll area for each page; its widget is missing until the page is shown.
    QList<QScrollArea *> mAreas;
};
