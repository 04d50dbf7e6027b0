#pragma once

// PhotoDesk's window: the open photos at the left, the canvas in the middle, the adjustments at the right.

#include "Window/VantraMainWindow.h"

class AdjustmentColumn;
class Photo;
class PhotoCanvas;
class PhotoListModel;
class QListView;
class QSplitter;
class VantraButton;
class VantraFrame;
class VantraMenu;
class VantraMenuBar;
class VantraSortFilterProxyModel;
class VantraToolButton;

class PhotoWindow : public VantraMainWindow
{
    Q_OBJECT

public:
    explicit PhotoWindow(QWidget *inParent = nullptr);
    ~PhotoWindow() override;

    // Opens files and the photos of folders, and shows the first of them.
    void open(const QStringList &inPaths);

    // Asks for the folder. True when all of the photos were exported.
    bool exportPhotos(const QList<Photo *> &inPhotos);

    Photo *currentPhoto() const;
    PhotoListModel *model() const { return mModel; }
    PhotoCanvas *canvas() const { return mCanvas; }

protected:
    void closeEvent(QCloseEvent *inEvent) override;
    void dragEnterEvent(QDragEnterEvent *inEvent) override;
    void dropEvent(QDropEvent *inEvent) override;

private:
    // PhotoWindowActions.cpp
    void makeMenus();
    void makeFileMenu(VantraMenuBar *ioBar);
    void makeEditMenu(VantraMenuBar *ioBar);
    void makeViewMenu(VantraMenuBar *ioBar);
    void makeSettingsMenu(VantraMenuBar *ioBar);
    VantraMenu *addMenu(VantraMenuBar *ioBar, const QString &inTitle);
    VantraFrame *makeToolBar();
    VantraToolButton *addTool(VantraFrame *ioBar, const QString &inName, int inKey);
    VantraToolButton *addViewTool(VantraFrame *ioBar, const QString &inName, const char *inTip,
                                  const QString &inText, int inKey);
    void fillRecentMenu(VantraMenu *ioMenu);

    void makeList();
    void showCurrentPhoto();
    void updateBadge();
    void askForFiles();
    void askForFolder();
    void closePhoto();
    void turn(int inQuarterTurns);
    void remember(const QStringList &inPaths);
    void tellFailures(const QString &inText, const QStringList &inReasons);
    void tellExported(int inCount, const QString &inFolder);

    PhotoListModel *mModel;
    VantraSortFilterProxyModel *mProxy;
    QListView *mList;
    PhotoCanvas *mCanvas;
    AdjustmentColumn *mColumn;
    QSplitter *mSplitter;
    QList<VantraMenu *> mMenus;
    VantraButton *mExportButton = nullptr;
    VantraToolButton *mCropButton = nullptr;
};
