#include "PhotoWindow.h"

#include "AdjustmentColumn.h"
#include "CanvasHud.h"
#include "Controls/VantraButton.h"
#include "Controls/VantraFrame.h"
#include "Controls/VantraMenu.h"
#include "LongOperations.h"
#include "Photo.h"
#include "PhotoCanvas.h"
#include "PhotoListModel.h"
#include "Utilities/VantraSortFilterProxyModel.h"
#include "Window/VantraMessageBox.h"

#include <QtCore/QFileInfo>
#include <QtCore/QMimeData>
#include <QtCore/QSettings>
#include <QtCore/QTimer>
#include <QtGui/QCloseEvent>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QListView>
#include <QtWidgets/QSplitter>
#include <QtWidgets/QVBoxLayout>

namespace {
const QString kGeometryKey = QStringLiteral("geometry");
const QString kSplitterKey = QStringLiteral("splitter");
const QString kExportFolderKey = QStringLiteral("exportFolder");
const QString kFormatKey = QStringLiteral("format");
const QString kHideExportedKey = QStringLiteral("hideExported");
const QString kRecentKey = QStringLiteral("recentFiles");
constexpr int kMostRecent = 8;
constexpr int kMostReasons = 10; // that a message lists
} // namespace

PhotoWindow::PhotoWindow(QWidget *inParent)
    : VantraMainWindow(inParent), mModel(new PhotoListModel(this)),
      mProxy(new VantraSortFilterProxyModel(this)), mList(new QListView(this)),
      mCanvas(new PhotoCanvas(this)), mColumn(new AdjustmentColumn(this)), mSplitter(new QSplitter(this))
{
    setWindowTitle(QStringLiteral("PhotoDesk[*]"));
    setAcceptDrops(true);
    resize(1280, 800);
    makeMenus();
    makeList();
    new CanvasHud(mCanvas);
    mSplitter->addWidget(mList);
    mSplitter->addWidget(mCanvas);
    mSplitter->addWidget(mColumn);
    mSplitter->setStretchFactor(1, 1);
    mSplitter->setChildrenCollapsible(false);
    mSplitter->setSizes({250, 700, 320});
    auto *layout = new QVBoxLayout(centralWidget());
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(makeToolBar());
    layout->addWidget(mSplitter, 1);

    const QSettings settings;
    restoreGeometry(settings.value(kGeometryKey).toByteArray());
    mSplitter->restoreState(settings.value(kSplitterKey).toByteArray());
    updateBadge();
}

PhotoWindow::~PhotoWindow()
{
    for (VantraMenu *menu : std::as_const(mMenus))
        unregisterAboutToTriggerShortcut(menu);
    verifyUnregisteredAboutToTriggerShortcuts();
    // The children end after this and would still tell of it.
    mModel->disconnect(this);
    mList->selectionModel()->disconnect(this);
}

void PhotoWindow::makeList()
{
    mProxy->setSourceModel(mModel);
    mProxy->sort(0);
    mList->setObjectName(QStringLiteral("photos"));
    mList->setAccessibleName(tr("Photos"));
    mList->setModel(mProxy);
    mList->setItemDelegate(new PhotoDelegate(mList));
    mList->setUniformItemSizes(true);
    mList->setFrameShape(QFrame::NoFrame);
    mList->setMinimumWidth(180);
    connect(mList->selectionModel(), &QItemSelectionModel::currentChanged, this,
            &PhotoWindow::showCurrentPhoto);
    connect(mModel, &PhotoListModel::dataChanged, this, &PhotoWindow::updateBadge);
    connect(mModel, &PhotoListModel::rowsRemoved, this, &PhotoWindow::updateBadge);
}

Photo *PhotoWindow::currentPhoto() const
{
    return mModel->photo(mList->currentIndex());
}

void PhotoWindow::showCurrentPhoto()
{
    Photo *photo = currentPhoto();
    mCanvas->setPhoto(photo);
    mColumn->setPhoto(photo);
    setWindowTitle(photo == nullptr ? QStringLiteral("PhotoDesk[*]")
                                    : tr("%1[*] – PhotoDesk").arg(photo->name()));
}

void PhotoWindow::updateBadge()
{
    const int waiting = static_cast<int>(mModel->photosToExport().size());
    mExportButton->setNotificationBadgeCount(waiting);
    setWindowModified(waiting > 0);
}

void PhotoWindow::open(const QStringList &inPaths)
{
    Photo *first = nullptr;
    QStringList opened;
    QStringList reasons;
    const QVector<LongOperations::FoundPhoto> found = LongOperations::findPhotos(inPaths, this);
    for (const LongOperations::FoundPhoto &file : found) {
        if (file.size.isEmpty()) {
            reasons << tr("%1: %2").arg(QFileInfo(file.path).fileName(), file.reason);
            continue;
        }
        Photo *photo = mModel->add(file.path, file.size);
        opened << file.path;
        if (first == nullptr)
            first = photo;
    }
    if (first != nullptr)
        mList->setCurrentIndex(mProxy->mapFromSource(mModel->indexOf(first)));
    remember(opened);
    tellFailures(tr("Some files could not be opened."), reasons);
}

void PhotoWindow::askForFiles()
{
    const QStringList files = QFileDialog::getOpenFileNames(this, tr("Open Photos"));
    if (!files.isEmpty())
        open(files);
}

void PhotoWindow::askForFolder()
{
    const QString folder = QFileDialog::getExistingDirectory(this, tr("Open a Folder of Photos"));
    if (!folder.isEmpty())
        open({folder});
}

void PhotoWindow::closePhoto()
{
    Photo *photo = currentPhoto();
    if (photo == nullptr)
        return;
    if (photo->waitsForExport() &&
        VantraMessageBox::question(this, tr("Close Photo"),
                                   tr("Close %1 without exporting it?").arg(photo->name()),
                                   QMessageBox::Discard, QMessageBox::Cancel) != QMessageBox::Discard)
        return;
    // Nobody may hold it when it goes; the list's selection moves on by itself.
    mCanvas->setPhoto(nullptr);
    mColumn->setPhoto(nullptr);
    mModel->remove(photo);
    showCurrentPhoto();
}

void PhotoWindow::turn(int inQuarterTurns)
{
    Photo *photo = currentPhoto();
    if (photo == nullptr)
        return;
    PhotoAdjustments adjustments = photo->adjustments();
    adjustments.turn(inQuarterTurns);
    photo->change(inQuarterTurns == 1 ? tr("Rotate right") : tr("Rotate left"), adjustments);
    photo->endStep();
}

bool PhotoWindow::exportPhotos(const QList<Photo *> &inPhotos)
{
    if (inPhotos.isEmpty())
        return true;
    QSettings settings;
    const QString folder =
        QFileDialog::getExistingDirectory(this, tr("Export To"), settings.value(kExportFolderKey).toString());
    if (folder.isEmpty())
        return false;
    settings.setValue(kExportFolderKey, folder);
    const QString suffix = settings.value(kFormatKey, QStringLiteral("jpg")).toString();
    QVector<LongOperations::ExportJob> jobs;
    QStringList targets;
    for (Photo *photo : inPhotos) {
        targets << PhotoFile::targetPath(photo->path(), folder, suffix, targets);
        jobs.append({photo->path(), photo->adjustments(), targets.last()});
    }
    LongOperations::exportPhotos(jobs, this);
    QStringList reasons;
    int done = 0;
    for (int index = 0; index < jobs.size(); ++index) {
        const LongOperations::ExportJob &job = jobs[index];
        if (job.result.outcome == PhotoFile::Outcome::Done) {
            inPhotos[index]->setExported(job.adjustments);
            ++done;
        } else if (job.result.outcome == PhotoFile::Outcome::Failed) {
            reasons << tr("%1: %2").arg(inPhotos[index]->name(), job.result.reason);
        }
    }
    tellFailures(tr("Some photos could not be exported."), reasons);
    if (done == inPhotos.size())
        tellExported(done, folder);
    return done == inPhotos.size();
}

void PhotoWindow::tellFailures(const QString &inText, const QStringList &inReasons)
{
    if (inReasons.isEmpty())
        return;
    QStringList lines = inReasons.mid(0, kMostReasons);
    if (inReasons.size() > kMostReasons)
        lines << tr("and %1 more").arg(inReasons.size() - kMostReasons);
    VantraMessageBox box(QStringLiteral("PhotoDesk"), inText, lines.join(QLatin1Char('\n')), QMessageBox::Ok,
                         this, false);
    box.exec();
}

void PhotoWindow::tellExported(int inCount, const QString &inFolder)
{
    QSettings settings;
    if (settings.value(kHideExportedKey).toBool())
        return;
    VantraMessageBox box(QStringLiteral("PhotoDesk"),
                         inCount == 1 ? tr("The photo is exported.")
                                      : tr("%1 photos are exported.").arg(inCount),
                         inFolder, QMessageBox::Ok, this, true);
    box.exec();
    settings.setValue(kHideExportedKey, box.isDontShowMeThisAgainChecked());
}

void PhotoWindow::remember(const QStringList &inPaths)
{
    QSettings settings;
    QStringList recent = inPaths + settings.value(kRecentKey).toStringList();
    recent.removeDuplicates();
    settings.setValue(kRecentKey, recent.mid(0, kMostRecent));
}

void PhotoWindow::closeEvent(QCloseEvent *inEvent)
{
    const QList<Photo *> waiting = mModel->photosToExport();
    if (!waiting.isEmpty()) {
        VantraMessageBox box(QStringLiteral("PhotoDesk"),
                             waiting.size() == 1
                                 ? tr("One photo is changed and not exported.")
                                 : tr("%1 photos are changed and not exported.").arg(waiting.size()),
                             tr("The photos themselves are never changed: what isn't exported is lost."),
                             QMessageBox::Discard | QMessageBox::Cancel, this, false);
        QPushButton *exportButton =
            box.addButton(tr("Export…"), QMessageBox::AcceptRole, nullptr, nullptr, true);
        box.setDefaultButton(exportButton);
        box.exec();
        const bool leaves = box.clickedButton() == exportButton
                                ? exportPhotos(waiting)
                                : box.clickedButton() == box.button(QMessageBox::Discard);
        if (!leaves) {
            inEvent->ignore();
            return;
        }
    }
    QSettings settings;
    settings.setValue(kGeometryKey, saveGeometry());
    settings.setValue(kSplitterKey, mSplitter->saveState());
    VantraMainWindow::closeEvent(inEvent);
}

void PhotoWindow::dragEnterEvent(QDragEnterEvent *inEvent)
{
    if (inEvent->mimeData()->hasUrls())
        inEvent->acceptProposedAction();
}

void PhotoWindow::dropEvent(QDropEvent *inEvent)
{
    QStringList paths;
    const QList<QUrl> urls = inEvent->mimeData()->urls();
    for (const QUrl &url : urls) {
        if (url.isLocalFile())
            paths << url.toLocalFile();
    }
    inEvent->acceptProposedAction();
    // Not within the drag, which the program that it comes from waits for.
    if (!paths.isEmpty())
        QTimer::singleShot(0, this, [this, paths] { open(paths); });
}
