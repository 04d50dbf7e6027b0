// The window's menus and tool bar.

#include "PhotoWindow.h"

#include "Controls/VantraButton.h"
#include "Controls/VantraFrame.h"
#include "Controls/VantraLabel.h"
#include "Controls/VantraMenu.h"
#include "Controls/VantraMenuBar.h"
#include "Controls/VantraToolButton.h"
#include "Icons.h"
#include "Look.h"
#include "Photo.h"
#include "PhotoCanvas.h"
#include "PhotoListModel.h"
#include "Theme/VTTheme.h"
#include "Theme/VantraStyleTheme.h"
#include "Utilities/VTWidgetsImageUtils.h"

#include <QtCore/QFileInfo>
#include <QtCore/QSettings>
#include <QtGui/QActionGroup>
#include <QtWidgets/QHBoxLayout>

namespace {
constexpr QSize kToolSize(36, 32);
constexpr QSize kBadgeSize(22, 16);

// Ticks one of several entries of a menu.
template <typename Choose>
void addChoice(QActionGroup *ioGroup, QMenu *ioMenu, const QString &inText, bool inChosen, Choose inChoose)
{
    QAction *action = ioMenu->addAction(inText);
    action->setCheckable(true);
    action->setChecked(inChosen);
    ioGroup->addAction(action);
    QObject::connect(action, &QAction::triggered, ioMenu, inChoose);
}
// The badge is a bare label among the button's siblings. It gets a plate that stands out from every accent.
void styleBadge(QWidget *inParent)
{
    const QList<VantraLabel *> labels = inParent->findChildren<VantraLabel *>();
    for (VantraLabel *label : labels) {
        if (label->labelStyle() != VantraLabel::NotificationStyle)
            continue;
        const VantraColorPalette &colors = VantraStyleTheme::instance().colorPalette();
        const QColor plate = colors.color(VantraPalette::Normal, VantraPalette::AccentButtonText);
        const QColor text = colors.color(VantraPalette::Normal, VantraPalette::WindowBackground);
        label->setFixedSize(kBadgeSize);
        label->setStyleSheet(
            QStringLiteral("background: %1; color: %2; border-radius: %3px; font: bold 10px;")
                .arg(VTTheme::toString(plate), VTTheme::toString(text))
                .arg(kBadgeSize.height() / 2));
    }
}
} // namespace

void PhotoWindow::makeMenus()
{
    auto *bar = new VantraMenuBar(this);
    setMenuBar(bar);
    makeFileMenu(bar);
    makeEditMenu(bar);
    makeViewMenu(bar);
    makeSettingsMenu(bar);
    for (VantraMenu *menu : std::as_const(mMenus)) {
        VTWidgetsInitStyledMenu(*menu);
        registerAboutToTriggerShortcut(menu);
    }
}

VantraMenu *PhotoWindow::addMenu(VantraMenuBar *ioBar, const QString &inTitle)
{
    auto *menu = new VantraMenu(inTitle, this);
    ioBar->addMenu(menu);
    mMenus << menu;
    return menu;
}

void PhotoWindow::makeFileMenu(VantraMenuBar *ioBar)
{
    VantraMenu *menu = addMenu(ioBar, tr("File"));
    menu->addAction(tr("Open…"), QKeySequence::Open, this, &PhotoWindow::askForFiles);
    menu->addAction(tr("Open Folder…"), QKeySequence(tr("Ctrl+Shift+O")), this, &PhotoWindow::askForFolder);
    auto *recent = new VantraMenu(tr("Open Recent"), menu);
    menu->addMenu(recent);
    connect(recent, &QMenu::aboutToShow, this, [this, recent] { fillRecentMenu(recent); });
    menu->addSeparator();
    QAction *exportOne = menu->addAction(tr("Export Photo…"), QKeySequence(tr("Ctrl+E")), this,
                                         [this] { exportPhotos({currentPhoto()}); });
    QAction *exportAll = menu->addAction(tr("Export All Edited…"), QKeySequence(tr("Ctrl+Shift+E")), this,
                                         [this] { exportPhotos(mModel->photosToExport()); });
    menu->addSeparator();
    QAction *close =
        menu->addAction(tr("Close Photo"), QKeySequence(tr("Ctrl+W")), this, &PhotoWindow::closePhoto);
    menu->addAction(tr("Quit"), QKeySequence(tr("Ctrl+Q")), this, &QWidget::close);
    // Raised before a key triggers one of the actions, too.
    connect(menu, &QMenu::aboutToShow, this, [this, exportOne, exportAll, close] {
        exportOne->setEnabled(currentPhoto() != nullptr);
        close->setEnabled(currentPhoto() != nullptr);
        exportAll->setEnabled(!mModel->photosToExport().isEmpty());
    });
}

void PhotoWindow::fillRecentMenu(VantraMenu *ioMenu)
{
    ioMenu->clear();
    const QStringList recent = QSettings().value(QStringLiteral("recentFiles")).toStringList();
    for (const QString &path : recent)
        ioMenu->addAction(QFileInfo(path).fileName(), this, [this, path] { open({path}); });
    if (recent.isEmpty())
        ioMenu->addAction(tr("None Yet"))->setEnabled(false);
}

void PhotoWindow::makeEditMenu(VantraMenuBar *ioBar)
{
    VantraMenu *menu = addMenu(ioBar, tr("Edit"));
    QAction *undo =
        menu->addAction(tr("Undo"), QKeySequence::Undo, this, [this] { currentPhoto()->history()->undo(); });
    QAction *redo = menu->addAction(tr("Redo"), QKeySequence(tr("Ctrl+Shift+Z")), this,
                                    [this] { currentPhoto()->history()->redo(); });
    menu->addSeparator();
    QAction *reset = menu->addAction(tr("Reset All"), QKeySequence(tr("Ctrl+R")), this, [this] {
        currentPhoto()->change(tr("Reset"), PhotoAdjustments());
        currentPhoto()->endStep();
    });
    connect(menu, &QMenu::aboutToShow, this, [this, undo, redo, reset] {
        Photo *photo = currentPhoto();
        undo->setEnabled(photo != nullptr && photo->history()->canUndo());
        redo->setEnabled(photo != nullptr && photo->history()->canRedo());
        reset->setEnabled(photo != nullptr && photo->isEdited());
        undo->setText(undo->isEnabled() ? tr("Undo %1").arg(photo->history()->undoText()) : tr("Undo"));
        redo->setText(redo->isEnabled() ? tr("Redo %1").arg(photo->history()->redoText()) : tr("Redo"));
    });
}

void PhotoWindow::makeViewMenu(VantraMenuBar *ioBar)
{
    VantraMenu *menu = addMenu(ioBar, tr("View"));
    menu->addAction(tr("Zoom In"), QKeySequence(tr("Ctrl++")), mCanvas, &PhotoCanvas::zoomIn);
    menu->addAction(tr("Zoom Out"), QKeySequence(tr("Ctrl+-")), mCanvas, &PhotoCanvas::zoomOut);
    menu->addAction(tr("Fit"), QKeySequence(tr("Ctrl+0")), mCanvas, &PhotoCanvas::fit);
    menu->addAction(tr("Actual Pixels"), QKeySequence(tr("Ctrl+1")), mCanvas,
                    [this] { mCanvas->setZoom(1.0); });
    menu->addSeparator();
    menu->addAction(tr("Full Screen"), QKeySequence(tr("F11")), this, &PhotoWindow::toggleFullScreen);
}

void PhotoWindow::makeSettingsMenu(VantraMenuBar *ioBar)
{
    VantraMenu *menu = addMenu(ioBar, tr("Settings"));
    auto *accents = new VantraMenu(tr("Accent"), menu);
    menu->addMenu(accents);
    auto *accentGroup = new QActionGroup(accents);
    const QStringList names = Look::accents();
    for (const QString &accent : names) {
        addChoice(accentGroup, accents, accent.at(0).toUpper() + accent.mid(1), accent == Look::accent(),
                  [accent] { Look::setAccent(accent); });
    }
    auto *sizes = new VantraMenu(tr("Text Size"), menu);
    menu->addMenu(sizes);
    auto *sizeGroup = new QActionGroup(sizes);
    addChoice(sizeGroup, sizes, tr("Normal"), Look::textSize() == 0, [] { Look::setTextSize(0); });
    addChoice(sizeGroup, sizes, tr("Large"), Look::textSize() == 2, [] { Look::setTextSize(2); });
    addChoice(sizeGroup, sizes, tr("Largest"), Look::textSize() == 4, [] { Look::setTextSize(4); });
    menu->addSeparator();
    auto *formatGroup = new QActionGroup(menu);
    const QString format = QSettings().value(QStringLiteral("format"), QStringLiteral("jpg")).toString();
    for (const QString &suffix : {QStringLiteral("jpg"), QStringLiteral("png")}) {
        addChoice(formatGroup, menu,
                  suffix == QLatin1String("jpg") ? tr("Export as JPEG") : tr("Export as PNG"),
                  suffix == format, [suffix] { QSettings().setValue(QStringLiteral("format"), suffix); });
    }
}

VantraToolButton *PhotoWindow::addTool(VantraFrame *ioBar, const QString &inName, int inKey)
{
    auto *button = new VantraToolButton(ioBar);
    button->setToolName(inName);
    button->setAccessibleName(inName);
    if (inKey != 0)
        button->setShortcut(QKeySequence(inKey));
    else
        button->setToolTip(inName);
    ioBar->layout()->addWidget(button);
    return button;
}

// A tool that stays on, with a rich tip.
VantraToolButton *PhotoWindow::addViewTool(VantraFrame *ioBar, const QString &inName, const char *inTip,
                                           const QString &inText, int inKey)
{
    VantraToolButton *button = addTool(ioBar, inName, inKey);
    button->setObjectName(QLatin1String(inTip));
    button->setToolTipImage(QStringLiteral(":/PhotoDesk/ToolTips/%1.gif").arg(QLatin1String(inTip)));
    button->setToolTipDetailed(inText);
    button->setToolTipUrl(QStringLiteral("https://example.com/learn/photodesk"));
    button->setToolTipDirection(VantraToolButton::ToolTipDirectionBelow);
    return button;
}

VantraFrame *PhotoWindow::makeToolBar()
{
    auto *bar = new VantraFrame(this);
    bar->setFrameShape(QFrame::Panel);
    bar->setFrameShadow(QFrame::Raised);
    auto *layout = new QHBoxLayout(bar);
    layout->setContentsMargins(10, 8, 20, 8);
    layout->setSpacing(4);
    // Buttons that do something at once, and then those that stay on.
    const auto addDoing = [&](const QString &inName, const QImage &inImage, int inKey, auto inDo) {
        VantraToolButton *button = addTool(bar, inName, inKey);
        button->initOnOffStyle(inImage, VantraIconPalette::IconTintingForeground);
        button->setCheckable(false);
        button->setFixedSize(kToolSize);
        connect(button, &VantraToolButton::clicked, this, inDo);
    };
    addDoing(tr("Open photos"), VTWidgetsLoadImage(QStringLiteral(":/VTWidgets/Buttons/Add.png")), 0,
             [this] { askForFiles(); });
    layout->addSpacing(12);
    addDoing(tr("Rotate left"), Icons::turnLeft(), Qt::Key_L, [this] { turn(3); });
    addDoing(tr("Rotate right"), Icons::turnRight(), Qt::Key_R, [this] { turn(1); });
    layout->addSpacing(12);
    mCropButton =
        addViewTool(bar, tr("Crop"), "crop",
                    tr("Drag the frame's corners and sides. <b>Return</b> cuts the photo, <b>Escape</b> "
                       "leaves it as it was. What lies outside isn't lost."),
                    Qt::Key_C);
    mCropButton->initOnOffStyle(Icons::crop(), VantraIconPalette::IconTintingOnAlternateOffForeground);
    connect(mCropButton, &VantraToolButton::clicked, this,
            [this](bool inOn) { inOn ? mCanvas->beginCrop() : mCanvas->endCrop(true); });
    connect(mCanvas, &PhotoCanvas::croppingChanged, mCropButton, &QAbstractButton::setChecked);
    VantraToolButton *compare = addViewTool(
        bar, tr("Before and after"), "compare",
        tr("Shows the photo as it came beside what you have made of it. Drag the line."), Qt::Key_B);
    compare->setButtonImage(VantraToolButton::DualModeImage);
    connect(compare, &VantraToolButton::toggled, mCanvas, &PhotoCanvas::setBeforeAfter);
    VantraToolButton *inspect = addViewTool(
        bar, tr("Inspect clipping"), "inspect",
        tr("Marks what has lost its detail: <b>red</b> where highlights are all white, <b>blue</b> "
           "where shadows are all black."),
        Qt::Key_M);
    inspect->setButtonImage(VantraToolButton::MaskInspectView);
    connect(inspect, &VantraToolButton::toggled, mCanvas, &PhotoCanvas::setClippingShown);
    for (VantraToolButton *button : {mCropButton, compare, inspect})
        button->setFixedSize(kToolSize);
    layout->addStretch();
    mExportButton = new VantraButton(bar);
    mExportButton->setObjectName(QStringLiteral("export"));
    mExportButton->setButtonStyle(VantraButton::LeftAndRightCapButtonAccentStyle);
    mExportButton->setText(tr("Export"));
    mExportButton->setNotificationBadgeEnabled(true);
    styleBadge(bar);
    layout->addWidget(mExportButton);
    connect(mExportButton, &VantraButton::clicked, this, [this] {
        const QList<Photo *> waiting = mModel->photosToExport();
        if (!waiting.isEmpty())
            exportPhotos(waiting);
        else if (currentPhoto() != nullptr)
            exportPhotos({currentPhoto()});
    });
    return bar;
}
