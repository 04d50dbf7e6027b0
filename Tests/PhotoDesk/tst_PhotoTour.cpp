#include "CommandLine.h"
#include "Controls/VantraButton.h"
#include "Controls/VantraDoubleLineEdit.h"
#include "Controls/VantraToolButton.h"
#include "CropFrame.h"
#include "CurveEditor.h"
#include "Icons.h"
#include "Look.h"
#include "Photo.h"
#include "PhotoCanvas.h"
#include "PhotoListModel.h"
#include "PhotoWindow.h"
#include "Progress/VantraProgressBaseDlg.h"
#include "Progress/VantraProgressMgr.h"
#include "Support/Watchdog.h"
#include "ToolTips/VantraToolTip.h"
#include "Window/VantraMessageBox.h"

#include <QtTest/QtTest>
#include <QtWidgets/QtWidgets>

#include <functional>
#include <optional>

// A user's way through PhotoDesk, with real events. PHOTODESK_TOUR_PICTURES names a folder for a picture of
// each station.

namespace {
constexpr int kCopies = 24;        // of the samples, for the batch
constexpr int kLongestBlock = 100; // ms that the event loop may be late outside modal operations
constexpr QSize kLargePhoto(6000, 4000);

// Measures how late the event loop is while the user isn't kept waiting by a modal dialog.
class LatencyMeter : public QObject
{
public:
    LatencyMeter()
    {
        mClock.start();
        startTimer(kInterval, Qt::PreciseTimer);
    }
    void rest() { mLast = -1; }
    qint64 largest() const { return mLargest; }
    const QByteArray &where() const { return mWhere; }

protected:
    void timerEvent(QTimerEvent *) override
    {
        const qint64 now = mClock.elapsed();
        const bool modal = QApplication::activeModalWidget() != nullptr ||
                           VantraProgressMgr::sharedInstance()->progressRunning();
        if (mLast >= 0 && !modal && !mWasModal)
            note(now - mLast - kInterval);
        mWasModal = modal;
        mLast = now;
    }

private:
    void note(qint64 inLate)
    {
        if (inLate > mLargest) {
            mLargest = inLate;
            mWhere = QTest::currentTestFunction();
        }
    }
    static constexpr int kInterval = 5;
    QElapsedTimer mClock;
    qint64 mLast = -1;
    qint64 mLargest = 0;
    QByteArray mWhere;
    bool mWasModal = false;
};
} // namespace

class tst_PhotoTour : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup() { mWatchdog.reset(); }
    void opensPhotosAndTellsOfOthers();
    void slidersAndFieldsGoTogether();
    void undoTakesDragsBackWhole();
    void viewsShowTheSamePhoto();
    void toolsTellWhatTheyDo();
    void curveTakesPoints();
    void panesCollapse();
    void crops();
    void turnsTheCropAlong();
    void largePhotoFollowsTheSlider();
    void batchExportIsCanceledInTheMiddle();
    void exportsTheRest();
    void dropsFolders();
    void quitAsksForUnsavedChanges();
    void cleanupTestCase();

private:
    template <typename Widget>
    Widget *find(const QString &inName) const
    {
        auto *widget = mWindow->findChild<Widget *>(inName);
        return widget;
    }
    void picture(const QString &inName, QWidget *inWidget = nullptr);
    void drag(QWidget *inWidget, const QPoint &inFrom, const QPoint &inTo);
    // A button's key presses it for a moment before it clicks.
    void pressKey(int inKey)
    {
        QTest::keyClick(mWindow.get(), Qt::Key(inKey));
        QTest::qWait(150);
    }
    void click(QWidget *inWidget) { QTest::mouseClick(inWidget, Qt::LeftButton); }
    QPoint handleOf(QSlider *inSlider) const;
    void inDialog(std::function<bool(QWidget *)> inDo);
    void answerFolder(const QString &inFolder);
    Photo *photo() const { return mWindow->currentPhoto(); }

    QTemporaryDir mFolder;
    QString mPictures = qEnvironmentVariable("PHOTODESK_TOUR_PICTURES");
    std::unique_ptr<PhotoWindow> mWindow;
    std::unique_ptr<LatencyMeter> mLatency;
    std::optional<Watchdog> mWatchdog;
    int mNumber = 0;
};

void tst_PhotoTour::initTestCase()
{
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    QStandardPaths::setTestModeEnabled(true);
    QCoreApplication::setOrganizationName(QStringLiteral("VTWidgetsLite"));
    QCoreApplication::setApplicationName(QStringLiteral("PhotoDeskTour"));
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    QSettings().clear();
    Look::start();
    QDir(mFolder.path()).mkpath(QStringLiteral("in"));
    QDir(mFolder.path()).mkpath(QStringLiteral("out"));
    mWindow = std::make_unique<PhotoWindow>();
    mWindow->resize(1360, 860);
    mWindow->show();
    QVERIFY(QTest::qWaitForWindowActive(mWindow.get()));
    mLatency = std::make_unique<LatencyMeter>();
}

void tst_PhotoTour::init()
{
    mWatchdog.emplace(120);
    // A display without a window manager leaves nothing active behind a modal dialog.
    mWindow->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(mWindow.get()));
    mWindow->canvas()->setFocus();
}

void tst_PhotoTour::picture(const QString &inName, QWidget *inWidget)
{
    if (mPictures.isEmpty())
        return;
    QTest::qWait(60);
    QDir().mkpath(mPictures);
    QWidget *widget = inWidget != nullptr ? inWidget : mWindow.get();
    const QString path =
        QStringLiteral("%1/%2-%3.png").arg(mPictures).arg(++mNumber, 2, 10, QLatin1Char('0')).arg(inName);
    QVERIFY(widget->grab().save(path));
    mLatency->rest();
}

void tst_PhotoTour::drag(QWidget *inWidget, const QPoint &inFrom, const QPoint &inTo)
{
    QTest::mousePress(inWidget, Qt::LeftButton, {}, inFrom);
    for (int step = 1; step <= 8; ++step) {
        const QPoint position = inFrom + (inTo - inFrom) * step / 8;
        QMouseEvent move(QEvent::MouseMove, position, inWidget->mapToGlobal(position), Qt::NoButton,
                         Qt::LeftButton, {});
        QCoreApplication::sendEvent(inWidget, &move);
        QTest::qWait(5);
    }
    QTest::mouseRelease(inWidget, Qt::LeftButton, {}, inTo);
}

QPoint tst_PhotoTour::handleOf(QSlider *inSlider) const
{
    const double part =
        (inSlider->value() - inSlider->minimum()) / double(inSlider->maximum() - inSlider->minimum());
    return {7 + qRound(part * (inSlider->width() - 14)), inSlider->height() / 2};
}

// Tries again and again until a modal dialog is there that the function can do something with.
void tst_PhotoTour::inDialog(std::function<bool(QWidget *)> inDo)
{
    QTimer::singleShot(20, this, [this, inDo] {
        QWidget *dialog = QApplication::activeModalWidget();
        if (dialog == nullptr || !inDo(dialog))
            inDialog(inDo);
    });
}

void tst_PhotoTour::answerFolder(const QString &inFolder)
{
    inDialog([inFolder](QWidget *inDialog) {
        auto *dialog = qobject_cast<QFileDialog *>(inDialog);
        if (dialog == nullptr)
            return false;
        auto *name = dialog->findChild<QLineEdit *>(QStringLiteral("fileNameEdit"));
        name->setText(inFolder);
        QTest::keyClick(name, Qt::Key_Return);
        return true;
    });
}

void tst_PhotoTour::opensPhotosAndTellsOfOthers()
{
    QFile broken(mFolder.filePath(QStringLiteral("broken.jpg")));
    QVERIFY(broken.open(QIODevice::WriteOnly) && broken.write("no photo") > 0);
    broken.close();
    QString told;
    inDialog([&](QWidget *inDialog) {
        auto *box = qobject_cast<VantraMessageBox *>(inDialog);
        if (box == nullptr)
            return false;
        picture(QStringLiteral("unreadable"), box);
        told = box->informativeText();
        click(box->button(QMessageBox::Ok));
        return true;
    });
    mWindow->open({QStringLiteral(PHOTODESK_SAMPLES), broken.fileName()});
    QVERIFY(told.contains(QStringLiteral("broken.jpg")));
    QCOMPARE(mWindow->model()->rowCount(), 3);
    QCOMPARE(photo()->name(), QStringLiteral("fruit.jpg"));
    QTRY_VERIFY(!mWindow->canvas()->isLoading());
    QTRY_VERIFY(!mWindow->model()->photos().last()->thumbnail().isNull());
    picture(QStringLiteral("opened"));
}

void tst_PhotoTour::slidersAndFieldsGoTogether()
{
    auto *slider = find<QSlider>(QStringLiteral("exposureSlider"));
    auto *field = find<VantraDoubleLineEdit>(QStringLiteral("exposureField"));
    drag(slider, handleOf(slider), handleOf(slider) + QPoint(40, 0));
    QVERIFY(photo()->adjustments().exposure > 0.3);
    QCOMPARE(field->value(), photo()->adjustments().exposure);
    QCOMPARE(photo()->history()->count(), 1);
    auto *tint = find<VantraDoubleLineEdit>(QStringLiteral("temperatureField"));
    click(tint);
    QTest::keyClick(tint, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(tint, QStringLiteral("-35"));
    QTest::keyClick(tint, Qt::Key_Return);
    QCOMPARE(photo()->adjustments().temperature, -35.0);
    QCOMPARE(find<QSlider>(QStringLiteral("temperatureSlider"))->value(), -350);
    auto *saturation = find<QSlider>(QStringLiteral("saturationSlider"));
    saturation->setFocus();
    QTest::keyClick(saturation, Qt::Key_PageUp);
    QCOMPARE(photo()->adjustments().saturation, 10.0);
    QCOMPARE(photo()->history()->count(), 3);
    QCOMPARE(find<VantraButton>(QStringLiteral("export"))->notificationBadgeCount(), 1);
    picture(QStringLiteral("adjusted"));
}

void tst_PhotoTour::undoTakesDragsBackWhole()
{
    const PhotoAdjustments adjusted = photo()->adjustments();
    mWindow->canvas()->setFocus();
    for (int step = 0; step < 3; ++step)
        QTest::keyClick(mWindow.get(), Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(photo()->adjustments(), PhotoAdjustments());
    QCOMPARE(find<VantraDoubleLineEdit>(QStringLiteral("exposureField"))->value(), 0.0);
    for (int step = 0; step < 3; ++step)
        QTest::keyClick(mWindow.get(), Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(photo()->adjustments(), adjusted);
}

void tst_PhotoTour::viewsShowTheSamePhoto()
{
    PhotoCanvas *canvas = mWindow->canvas();
    pressKey(Qt::Key_B);
    picture(QStringLiteral("compared"));
    pressKey(Qt::Key_B);
    pressKey(Qt::Key_M);
    picture(QStringLiteral("inspected"));
    pressKey(Qt::Key_M);
    const double fitted = canvas->zoom();
    QTest::keyClick(mWindow.get(), Qt::Key_1, Qt::ControlModifier);
    QCOMPARE(canvas->zoom(), 1.0);
    canvas->setZoom(4.0);
    const QPoint middle = canvas->rect().center();
    const QPointF before = canvas->photoRect().topLeft();
    drag(canvas, middle, middle + QPoint(-60, -40));
    const QPointF way = canvas->photoRect().topLeft() - before;
    QVERIFY2((way - QPointF(-60, -40)).manhattanLength() < 3.0,
             qPrintable(QStringLiteral("%1 %2").arg(way.x()).arg(way.y())));
    QTest::mouseClick(find<VantraButton>(QStringLiteral("zoom")), Qt::LeftButton);
    QWidget *menu = nullptr;
    QTRY_VERIFY((menu = QApplication::activePopupWidget()) != nullptr);
    picture(QStringLiteral("zoom-menu"), menu);
    QTest::keyClick(menu, Qt::Key_Escape);
    QTest::keyClick(mWindow.get(), Qt::Key_0, Qt::ControlModifier);
    QCOMPARE(canvas->zoom(), fitted);
}

void tst_PhotoTour::toolsTellWhatTheyDo()
{
    for (const QString &name :
         {QStringLiteral("crop"), QStringLiteral("compare"), QStringLiteral("inspect")}) {
        auto *button = find<VantraToolButton>(name);
        const QPoint middle = button->rect().center();
        QHelpEvent hover(QEvent::ToolTip, middle, button->mapToGlobal(middle));
        QCoreApplication::sendEvent(button, &hover);
        VantraToolTip *tip = nullptr;
        const auto isOpen = [&tip] {
            for (QWidget *widget : QApplication::topLevelWidgets()) {
                if (widget->isVisible() && qobject_cast<VantraToolTip *>(widget) != nullptr)
                    tip = static_cast<VantraToolTip *>(widget);
            }
            return tip != nullptr;
        };
        QTRY_VERIFY(isOpen());
        QTest::qWait(200);
        picture(QStringLiteral("tip-") + name, tip);
        QTest::mouseMove(mWindow->canvas());
        QEvent leave(QEvent::Leave);
        QCoreApplication::sendEvent(button, &leave);
        tip->close();
    }
}

void tst_PhotoTour::curveTakesPoints()
{
    auto *curve = mWindow->findChild<CurveEditor *>();
    const QPoint middle = curve->rect().center();
    drag(curve, middle, middle + QPoint(-20, -24));
    QCOMPARE(photo()->adjustments().curve.size(), 3);
    QVERIFY(photo()->adjustments().curve[1].y() > photo()->adjustments().curve[1].x());
    auto *presets = find<QComboBox>(QStringLiteral("presets"));
    QCOMPARE(presets->currentIndex(), -1);
    presets->setFocus();
    QTest::keyClick(presets, Qt::Key_Down);
    presets->setCurrentIndex(presets->findText(QStringLiteral("Warm evening")));
    emit presets->activated(presets->currentIndex());
    QCOMPARE(photo()->adjustments().temperature, 35.0);
    picture(QStringLiteral("preset"));
}

void tst_PhotoTour::panesCollapse()
{
    QStringList names{QStringLiteral("lightPane"), QStringLiteral("colourPane")};
    for (const QString &name : names)
        click(find<QWidget>(name)->findChild<QWidget *>());
    QVERIFY(!find<QSlider>(QStringLiteral("exposureSlider"))->isVisible());
    picture(QStringLiteral("collapsed"));
    for (const QString &name : names)
        QTest::keyClick(find<QWidget>(name)->findChild<QWidget *>(), Qt::Key_Space);
    QVERIFY(find<QSlider>(QStringLiteral("exposureSlider"))->isVisible());
}

void tst_PhotoTour::crops()
{
    click(find<VantraToolButton>(QStringLiteral("crop")));
    auto *frame = mWindow->findChild<CropFrame *>();
    QVERIFY(frame->isVisible());
    const QRect whole = frame->frame().toRect();
    drag(frame, whole.topLeft(), whole.topLeft() + QPoint(whole.width() / 4, whole.height() / 5));
    drag(frame, frame->frame().center().toPoint(), frame->frame().center().toPoint() + QPoint(-30, 10));
    picture(QStringLiteral("cropping"));
    const QRectF crop = frame->crop();
    QTest::keyClick(frame, Qt::Key_Return);
    QVERIFY(!frame->isVisible());
    QCOMPARE(photo()->adjustments().crop, crop);
    QVERIFY(crop.width() < 0.8 && crop.height() < 0.85);
    QVERIFY(!find<VantraToolButton>(QStringLiteral("crop"))->isChecked());
    pressKey(Qt::Key_C);
    QTRY_VERIFY(frame->isVisible());
    QTest::keyClick(frame, Qt::Key_Escape);
    QCOMPARE(photo()->adjustments().crop, crop);
    picture(QStringLiteral("cropped"));
}

void tst_PhotoTour::turnsTheCropAlong()
{
    const QRectF crop = photo()->adjustments().crop;
    pressKey(Qt::Key_R);
    QTRY_COMPARE(photo()->adjustments().quarterTurns, 1);
    QVERIFY(qAbs(photo()->adjustments().crop.width() - crop.height()) < 1e-9);
    picture(QStringLiteral("turned"));
    pressKey(Qt::Key_L);
    QTRY_COMPARE(photo()->adjustments().quarterTurns, 0);
    QVERIFY(qAbs(photo()->adjustments().crop.left() - crop.left()) < 1e-9);
}

void tst_PhotoTour::largePhotoFollowsTheSlider()
{
    const QString path = mFolder.filePath(QStringLiteral("large.jpg"));
    QVERIFY(QImage(QStringLiteral(PHOTODESK_SAMPLES "/lake.jpg")).scaled(kLargePhoto).save(path, "jpg", 90));
    mLatency->rest();
    mWindow->open({path});
    QCOMPARE(photo()->size(), kLargePhoto);
    QTRY_VERIFY_WITH_TIMEOUT(!mWindow->canvas()->isLoading(), 20000);
    auto *slider = find<QSlider>(QStringLiteral("contrastSlider"));
    drag(slider, handleOf(slider), handleOf(slider) + QPoint(50, 0));
    pressKey(Qt::Key_R);
    drag(slider, handleOf(slider), handleOf(slider) + QPoint(-20, 0));
    QTest::qWait(50);
}

void tst_PhotoTour::batchExportIsCanceledInTheMiddle()
{
    QStringList copies;
    const QStringList samples{QStringLiteral("fruit"), QStringLiteral("harbour"), QStringLiteral("lake")};
    for (int copy = 0; copy < kCopies; ++copy) {
        copies << mFolder.filePath(QStringLiteral("in/IMG_%1.jpg").arg(copy + 1));
        QVERIFY(
            QFile::copy(QStringLiteral(PHOTODESK_SAMPLES "/%1.jpg").arg(samples[copy % 3]), copies.last()));
    }
    mLatency->rest();
    mWindow->open({mFolder.filePath(QStringLiteral("in"))});
    auto *list = find<QListView>(QStringLiteral("photos"));
    // As a person counts.
    QCOMPARE(list->model()->index(2, 0).data().toString(), QStringLiteral("IMG_1.jpg"));
    QCOMPARE(list->model()->index(3, 0).data().toString(), QStringLiteral("IMG_2.jpg"));
    for (Photo *each : mWindow->model()->photos()) {
        PhotoAdjustments adjustments = each->adjustments();
        adjustments.saturation = -100.0;
        each->change(QStringLiteral("Silver"), adjustments);
        each->endStep();
    }
    const int waiting = find<VantraButton>(QStringLiteral("export"))->notificationBadgeCount();
    QCOMPARE(waiting, kCopies + 4);
    picture(QStringLiteral("waiting"));
    const QString out = mFolder.filePath(QStringLiteral("out"));
    bool told = false;
    VantraProgressMgr::sharedInstance()->setDelayBeforeShowDialog(0);
    inDialog([&](QWidget *inDialog) {
        auto *dialog = qobject_cast<VantraProgressBaseDlg *>(inDialog);
        // A file that is being written has another name.
        if (dialog == nullptr || QDir(out).entryList({"*.jpg"}, QDir::Files).size() < kCopies / 2)
            return false;
        picture(QStringLiteral("exporting"), dialog);
        told = dialog->findChild<QProgressBar *>()->value() > 0;
        QTest::keyClick(dialog, Qt::Key_Escape);
        const auto buttons = dialog->findChildren<QAbstractButton *>();
        if (!buttons.isEmpty())
            click(buttons.first());
        return true;
    });
    answerFolder(out);
    click(find<VantraButton>(QStringLiteral("export")));
    const QStringList written = QDir(out).entryList(QDir::Files);
    QVERIFY(told);
    QVERIFY2(written.size() >= kCopies / 2 && written.size() < waiting,
             qPrintable(QString("%1 of %2 were written").arg(written.size()).arg(waiting)));
    for (const QString &name : written)
        QVERIFY2(!QImage(QDir(out).filePath(name)).isNull(), qPrintable(name));
    QCOMPARE(find<VantraButton>(QStringLiteral("export"))->notificationBadgeCount(),
             waiting - int(written.size()));
    picture(QStringLiteral("canceled"));
}

void tst_PhotoTour::exportsTheRest()
{
    const QString out = mFolder.filePath(QStringLiteral("out"));
    bool told = false;
    inDialog([&](QWidget *inDialog) {
        auto *box = qobject_cast<VantraMessageBox *>(inDialog);
        if (box == nullptr)
            return false;
        told = true;
        picture(QStringLiteral("exported"), box);
        click(box->findChild<QCheckBox *>());
        click(box->button(QMessageBox::Ok));
        return true;
    });
    answerFolder(out);
    QTest::keyClick(mWindow.get(), Qt::Key_E, Qt::ControlModifier | Qt::ShiftModifier);
    QVERIFY(told);
    QCOMPARE(find<VantraButton>(QStringLiteral("export"))->notificationBadgeCount(), 0);
    QCOMPARE(QDir(out).entryList(QDir::Files).size(), kCopies + 4);
    QVERIFY(QSettings().value(QStringLiteral("hideExported")).toBool());
    picture(QStringLiteral("all-exported"));
}

void tst_PhotoTour::dropsFolders()
{
    const int before = mWindow->model()->rowCount();
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(mFolder.filePath(QStringLiteral("out")))});
    QDragEnterEvent enter(QPoint(300, 300), Qt::CopyAction, &data, Qt::LeftButton, {});
    QCoreApplication::sendEvent(mWindow.get(), &enter);
    QVERIFY(enter.isAccepted());
    QDropEvent drop(QPointF(300, 300), Qt::CopyAction, &data, Qt::LeftButton, {});
    QCoreApplication::sendEvent(mWindow.get(), &drop);
    QTRY_COMPARE(mWindow->model()->rowCount(), before + kCopies + 4);
    mWindow->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(mWindow.get()));
    QTest::keyClick(mWindow.get(), Qt::Key_W, Qt::ControlModifier);
    QCOMPARE(mWindow->model()->rowCount(), before + kCopies + 3);
    QVERIFY(photo() != nullptr);
}

void tst_PhotoTour::quitAsksForUnsavedChanges()
{
    pressKey(Qt::Key_R);
    QTRY_VERIFY(photo()->waitsForExport());
    const auto answer = [this](const QString &inPicture, std::function<void(VantraMessageBox *)> inDo) {
        inDialog([this, inPicture, inDo](QWidget *inDialog) {
            auto *box = qobject_cast<VantraMessageBox *>(inDialog);
            if (box == nullptr)
                return false;
            picture(inPicture, box);
            inDo(box);
            return true;
        });
    };
    answer(QStringLiteral("quitting"),
           [](VantraMessageBox *inBox) { QTest::keyClick(inBox, Qt::Key_Escape); });
    QTest::keyClick(mWindow.get(), Qt::Key_Q, Qt::ControlModifier);
    QVERIFY(mWindow->isVisible());
    mWindow->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(mWindow.get()));
    Look::setTextSize(4);
    Look::setAccent(QStringLiteral("orange"));
    picture(QStringLiteral("large-text"));
    answer(QStringLiteral("quitting-large"), [](VantraMessageBox *inBox) {
        QTest::mouseClick(inBox->button(QMessageBox::Discard), Qt::LeftButton);
    });
    QTest::keyClick(mWindow.get(), Qt::Key_Q, Qt::ControlModifier);
    QVERIFY(!mWindow->isVisible());
    QVERIFY(!QSettings().value(QStringLiteral("geometry")).toByteArray().isEmpty());
}

void tst_PhotoTour::cleanupTestCase()
{
    const qint64 largest = mLatency->largest();
    qInfo("Largest latency of the event loop outside modal operations: %lld ms, in %s", largest,
          mLatency->where().constData());
    mLatency.reset();
    mWindow.reset();
#if defined(NDEBUG) && !defined(__SANITIZE_ADDRESS__)
    // Generous, as tests share the machine with others.
    QVERIFY(largest < 5 * kLongestBlock);
#endif
}

QTEST_MAIN(tst_PhotoTour)
#include "tst_PhotoTour.moc"
