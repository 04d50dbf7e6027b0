#include "GalleryScreenshot.h"

#include "GalleryOptions.h"
#include "GalleryPage.h"
#include "GalleryPages.h"
#include "GalleryWindow.h"
#include "WidgetPicture.h"

#include <QtCore/QDir>
#include <QtCore/QProcess>
#include <QtCore/QSaveFile>
#include <QtCore/QTimer>
#include <QtWidgets/QApplication>
#include <QtWidgets/QProgressBar>

#include <algorithm>
#include <cstdio>
#include <memory>

namespace {
// Long enough for a busy bar to be well on its way, in milliseconds.
constexpr int kBusyTime = 700;

// Where a busy bar stands in the picture of a section, in percent.
constexpr int kStoppedBusyValue = 60;

// Of a page without a window around it, in pixels.
constexpr int kPageWidth = 980;

// Around a section, in pixels.
constexpr int kSectionMargin = 16;

// How long one picture may take on a slow machine, in milliseconds.
constexpr int kPictureTimeout = 120000;

QString cannotWrite(const QSaveFile &inFile)
{
    return QStringLiteral("can't write \"%1\": %2").arg(inFile.fileName(), inFile.errorString());
}

QString save(const QImage &inImage, const QString &inFile)
{
    QSaveFile file(inFile);
    if (!file.open(QIODevice::WriteOnly) ||
        !inImage.convertToFormat(QImage::Format_RGB32).save(&file, "PNG") || !file.commit())
        return cannotWrite(file);
    return QString();
}

void waitForBusyBars(QWidget *ioWindow)
{
    const auto bars = ioWindow->findChildren<QProgressBar *>();
    if (std::none_of(bars.begin(), bars.end(),
                     [](const QProgressBar *inBar) { return inBar->minimum() == inBar->maximum(); }))
        return;
    // The first picture starts the bars' clocks.
    widgetPicture(ioWindow, ioWindow->size(), 1.0);
    QEventLoop loop;
    QTimer::singleShot(kBusyTime, &loop, &QEventLoop::quit);
    loop.exec();
}

// A busy bar moves with the clock. Pictures of sections are to be the same each time, so theirs stand still.
void stopBusyBars(QWidget *ioWindow)
{
    const auto bars = ioWindow->findChildren<QProgressBar *>();
    for (QProgressBar *bar : bars) {
        if (bar->minimum() == bar->maximum()) {
            bar->setRange(0, 100);
            bar->setValue(kStoppedBusyValue);
        }
    }
}

// The gallery's window as large as its page needs it, hidden.
void prepare(GalleryWindow *ioWindow, const GalleryOptions &inOptions)
{
    ioWindow->setAttribute(Qt::WA_DontShowOnScreen);
    ioWindow->setPagesEnabled(inOptions.enabled);
    ioWindow->showPage(inOptions.page);
    ioWindow->show();
    ioWindow->growToPage();
    QApplication::processEvents();
    ioWindow->growToPage();
    if (inOptions.section.isEmpty())
        waitForBusyBars(ioWindow);
    else
        stopBusyBars(ioWindow);
}

// The only one that shows.
const GalleryPage *pageOf(const GalleryWindow &inWindow)
{
    const auto pages = inWindow.findChildren<GalleryPage *>();
    return *std::find_if(pages.begin(), pages.end(),
                         [](const GalleryPage *inPage) { return inPage->isVisible(); });
}

// The columns of pixels at the left that hold more than the ground at the top right.
int usedWidth(const QImage &inImage)
{
    const QRgb ground = inImage.pixel(inImage.width() - 1, 0);
    for (int x = inImage.width() - 1; x > 0; --x) {
        for (int y = 0; y < inImage.height(); ++y) {
            if (inImage.pixel(x, y) != ground)
                return x + 1;
        }
    }
    return inImage.width();
}

// The command line that takes one of all pictures.
QStringList argumentsForOne(const GalleryOptions &inOptions, const QString &inPage, int inScale,
                            const QString &inFile)
{
    QStringList arguments = {QStringLiteral("--page"),
                             inPage,
                             QStringLiteral("--scale"),
                             QString::number(inScale),
                             QStringLiteral("--text-size"),
                             QString::number(inOptions.textSize),
                             QStringLiteral("--style"),
                             inOptions.style == GalleryLook::Style::House ? QStringLiteral("house")
                                                                          : QStringLiteral("fusion"),
                             QStringLiteral("--language"),
                             inOptions.language,
                             QStringLiteral("--screenshot"),
                             inFile};
    if (!inOptions.enabled)
        arguments << QStringLiteral("--disabled");
    if (inOptions.accentFile.isEmpty())
        arguments << QStringLiteral("--accent") << inOptions.accent;
    if (!inOptions.themeFile.isEmpty())
        arguments << QStringLiteral("--theme") << inOptions.themeFile;
    if (!inOptions.accentFile.isEmpty())
        arguments << QStringLiteral("--accent-file") << inOptions.accentFile;
    return arguments;
}
} // namespace

QString GalleryScreenshot::check(const QString &inFile)
{
    QSaveFile file(inFile);
    if (!file.open(QIODevice::WriteOnly))
        return cannotWrite(file);
    file.cancelWriting();
    return QString();
}

QString GalleryScreenshot::write(GalleryLook *inLook, const GalleryOptions &inOptions)
{
    GalleryWindow window(inLook);
    prepare(&window, inOptions);
    const QImage whole = widgetPicture(&window, window.size(), inOptions.scale);
    if (inOptions.section.isEmpty())
        return save(whole, inOptions.target);

    const GalleryPage *page = pageOf(window);
    const QRect section = page->sectionRect(inOptions.section);
    if (section.isNull())
        return QStringLiteral("no section of the page is called \"%1\"; the sections are %2")
            .arg(inOptions.section, page->sectionTitles().join(QStringLiteral(", ")));
    const QRect area = section.translated(page->mapTo(&window, QPoint()))
                           .adjusted(-kSectionMargin, -kSectionMargin, kSectionMargin, kSectionMargin);
    const double ratio = inOptions.scale;
    QImage image = whole.copy(QRect((QPointF(area.topLeft()) * ratio).toPoint(), area.size() * ratio));
    const int width = usedWidth(image) + qRound(kSectionMargin * ratio);
    return save(image.copy(0, 0, qMin(width, image.width()), image.height()), inOptions.target);
}

QString GalleryScreenshot::writePage(int inPage, const QString &inFile)
{
    const std::unique_ptr<GalleryPage> page(GalleryPages::at(inPage).make(nullptr));
    page->setAttribute(Qt::WA_DontShowOnScreen);
    page->resize(page->sizeHint().expandedTo(QSize(kPageWidth, 0)));
    page->show();
    QApplication::processEvents();
    if (page->hasHeightForWidth())
        page->resize(page->width(), page->heightForWidth(page->width()));
    waitForBusyBars(page.get());
    return save(widgetPicture(page.get(), page->size(), page->devicePixelRatioF()), inFile);
}

QString GalleryScreenshot::writeAll(const GalleryOptions &inOptions)
{
    if (!QDir().mkpath(inOptions.target))
        return QStringLiteral("can't make the folder \"%1\"").arg(inOptions.target);
    const QDir folder(inOptions.target);
    for (int index = 0; index < GalleryPages::count(); ++index) {
        const QString page = QLatin1String(GalleryPages::at(index).name);
        for (const int scale : {1, 2}) {
            const QString file =
                folder.filePath(scale == 1 ? page + QLatin1String(".png") : page + QLatin1String("@2x.png"));
            const QString refusal = check(file);
            if (!refusal.isEmpty())
                return refusal;
            QProcess process;
            process.start(QCoreApplication::applicationFilePath(),
                          argumentsForOne(inOptions, page, scale, file));
            if (!process.waitForFinished(kPictureTimeout) || process.exitStatus() != QProcess::NormalExit ||
                process.exitCode() != 0)
                return QStringLiteral("can't take the picture \"%1\": %2")
                    .arg(file, QString::fromLocal8Bit(process.readAllStandardError()).simplified());
            std::puts(qPrintable(QDir::toNativeSeparators(file)));
            std::fflush(stdout);
        }
    }
    return QString();
}
