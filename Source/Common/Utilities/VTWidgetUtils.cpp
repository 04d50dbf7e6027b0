#include "Utilities/VTWidgetUtils.h"

#include "Theme/VantraStyleTheme.h"
#include "Utilities/VTWidgetUtilsNative_p.h"
#include "Utilities/VantraSortFilterProxyModel.h"
#include "VTDpiUtils.h"
#include "VTPresetManager.h"

#include <QtCore/QFile>
#include <QtCore/QMetaEnum>
#include <QtCore/QRegularExpression>
#include <QtCore/QTextStream>
#include <QtGui/QColor>
#include <QtGui/QScreen>
#include <QtGui/QWindow>
#include <QtWidgets/QApplication>
#include <QtWidgets/QWidget>

const QString kBrowseFilterPaneStyleGroup = QStringLiteral("browse.filter.pane");
const QString kBrowseSearchStyleGroup = QStringLiteral("browse_search");
const QString kMetadataTemplateStyleGroup = QStringLiteral("metadata_template");
const QString kMetadataStyleGroup = QStringLiteral("Metadata");
const QString kMetadataStylesStyleGroup = QStringLiteral("metadata.styles");
const QString kSmartImportStylesStyleGroup = QStringLiteral("smart_import.styles");
const QString kSmartImportStyleGroup = QStringLiteral("smart_import");
const QString kExportStylesStyleGroup = QStringLiteral("export.styles");
const QString kExportStyleStyleGroup = QStringLiteral("export_style");
const QString kThumbviewStyleStyleGroup = QStringLiteral("thumbview_style");
const QString kThumbViewStylesStyleGroup = QStringLiteral("thumb.view.styles");
const QString kNewFileStyleStyleGroup = QStringLiteral("new_file_style");
const QString kNewFileStylesStyleGroup = QStringLiteral("new_file.styles");

const QList<int> VTWidgetUtils::kStandardBrushSizeValues = {
    1,    2,    3,    4,    5,    6,    7,    8,    9,    10,   15,   20,   25,   30,   35,   40,  45,  50,
    60,   70,   80,   90,   100,  125,  150,  175,  200,  250,  300,  350,  400,  500,  600,  700, 800, 900,
    1000, 1100, 1200, 1300, 1400, 1500, 1600, 1700, 1800, 1900, 2000, 2100, 2200, 2300, 2400, 2500};

namespace {

class BorderInFullScreenEventFilter : public QObject
{
public:
    using QObject::QObject;

    bool eventFilter(QObject *inObject, QEvent *inEvent) override
    {
        if (inEvent->type() == QEvent::WindowStateChange || inEvent->type() == QEvent::WinIdChange) {
            addBorderIn(qobject_cast<QWidget *>(inObject));
        }
        return false;
    }

private:
    static void addBorderIn(QWidget *inWidget)
    {
        const QWindow *window = inWidget != nullptr ? inWidget->windowHandle() : nullptr;
        if (window != nullptr && window->windowStates().testFlag(Qt::WindowFullScreen)) {
            VTWidgetUtilsNative::addBorder(window->winId());
        }
    }
};

class ThemeFrameEventFilter : public QObject
{
public:
    using QObject::QObject;

    bool eventFilter(QObject *inObject, QEvent *inEvent) override
    {
        switch (inEvent->type()) {
        case QEvent::WinIdChange:
        case QEvent::Show:
        case QEvent::PaletteChange:
        case QEvent::StyleChange:
        case QEvent::ThemeChange: // Qt then sets all frames by the desktop's setting
            matchFrameOf(qobject_cast<QWidget *>(inObject));
            break;
        default: break;
        }
        return false;
    }

    static void matchFrameOf(const QWidget *inWidget)
    {
        // Asking a widget for its native window would create one.
        if (inWidget != nullptr && inWidget->isWindow() && inWidget->internalWinId() != 0) {
            VTWidgetUtilsNative::setFrameDark(inWidget->internalWinId(), VTWidgetsIsThemeDark());
        }
    }
};

} // namespace

QImage VTWidgetsGetAppIconAsImage(int inSize, int inRatio)
{
    const float ratio = inRatio == -1 ? VTDpiUtils::devicePixelRatioF() : static_cast<float>(inRatio);
    const int pixels = static_cast<int>(static_cast<float>(inSize) * ratio);
    QImage image = VTWidgetUtilsNative::appIcon(pixels);
    image.setDevicePixelRatio(static_cast<qreal>(ratio));
    return image;
}

QString VTWidgetsGetString(const QString &inPath)
{
    QFile file(inPath);
    const bool test = file.open(QIODevice::ReadOnly);
    Q_ASSERT_X(test, "VTWidgetsGetString",
               qPrintable(QStringLiteral("Missing string resource: %1").arg(inPath)));
    Q_UNUSED(test);
    return QTextStream(&file).readAll();
}

void VTWidgetsSortStringList(QList<QString> &ioList)
{
    VantraSortFilterProxyModel::sortStringList(ioList);
}

void VTWidgetsActivateWindow(QWidget *inActivateWindow)
{
    Q_ASSERT(inActivateWindow != nullptr);
    Q_ASSERT(qApp != nullptr);
    if (QGuiApplication::applicationState() != Qt::ApplicationActive) {
        return;
    }
    inActivateWindow->activateWindow();
    inActivateWindow->raise();
    // Newer Qt would have us trust activateWindow alone, which on some systems comes into force too late.
    QT_WARNING_PUSH
    QT_WARNING_DISABLE_DEPRECATED
    QApplication::setActiveWindow(inActivateWindow);
    QT_WARNING_POP
}

bool VTWidgetsIsThemeDark()
{
    constexpr int kMiddleGray = 128;
    const QBrush &background = VantraStyleTheme::instance().colorPalette().brush(
        VantraPalette::Normal, VantraPalette::WindowBackground);
    return qGray(background.color().rgb()) < kMiddleGray;
}

void VTWidgetsMatchFrameToTheme(QWidget *inWindow)
{
    Q_ASSERT(inWindow != nullptr);
    inWindow->installEventFilter(new ThemeFrameEventFilter(inWindow));
    ThemeFrameEventFilter::matchFrameOf(inWindow);
}

void VTWidgetsSetHasBorderInFullScreen(QWidget *inWidget, bool inEnable)
{
    Q_ASSERT(inWidget != nullptr);
    if (inEnable) {
        inWidget->installEventFilter(new BorderInFullScreenEventFilter(inWidget));
    }
}

QString VTWidgetsScreenInfo(QWidget *inWidget)
{
    const QWindow *window = inWidget->windowHandle();
    QScreen *screen = window != nullptr ? window->screen() : nullptr;
    return VTWidgetsScreenInfo(screen != nullptr ? screen : QGuiApplication::primaryScreen());
}

QString VTWidgetsScreenInfo(QScreen *inScreen)
{
    if (inScreen == nullptr) {
        return QStringLiteral("Undefined");
    }
    static const QRegularExpression sUnwanted(QStringLiteral("[ /.]"));
    const QString name = inScreen->name().remove(sUnwanted);
    const QSize size = inScreen->size();
    // In one step, so that a "%2" in the name stays what it is.
    return QStringLiteral("%1-%2x%3@%4x")
        .arg(name, QString::number(size.width()), QString::number(size.height()),
             QString::number(inScreen->devicePixelRatio()));
}

QString VTWidgetsDumpStyleState(QStyle::State inState)
{
    const QMetaObject &meta = QStyle::staticMetaObject;
    const QMetaEnum flags = meta.enumerator(meta.indexOfEnumerator("StateFlag"));
    const int state = static_cast<int>(inState);
    QStringList names;
    for (int i = 0; i < flags.keyCount(); ++i) {
        const int flag = flags.value(i);
        if (flag != 0 ? (state & flag) == flag : state == 0) {
            names.append(QString::fromLatin1(flags.key(i)));
        }
    }
    return names.join(QLatin1Char(','));
}

void VTWidgetsCenterOnParent(QWidget *inWidgetToCenter, QWidget *inParentWidget)
{
    Q_ASSERT(inWidgetToCenter != nullptr);
    Q_ASSERT(inParentWidget != nullptr);
    const QRect area(inParentWidget->mapToGlobal(QPoint(0, 0)), inParentWidget->geometry().size());
    const QRect rectangle =
        QStyle::alignedRect(Qt::LeftToRight, Qt::AlignCenter, inWidgetToCenter->size(), area);
    inWidgetToCenter->move(rectangle.topLeft());
}

bool VTWidgetUtils::isAncestorWidget(QWidget *inWidget, QWidget *inAncestor)
{
    for (QWidget *widget = inWidget->parentWidget(); widget != nullptr; widget = widget->parentWidget()) {
        if (widget == inAncestor) {
            return true;
        }
    }
    return false;
}

void VTWidgetUtils::testCrashReport()
{
    // Volatile, so that no compiler sees what is to happen and saves itself the call.
    VTPresetManager *volatile noManager = nullptr;
    noManager->addCategory(VTString("<ignored>"));
}

#if !defined(Q_OS_MACOS)

void VTWidgetUtils::objcAddChildWindowToWindow(WId, WId)
{
    Q_ASSERT(false && "This call should be wrapped with VTQtSysInfo::isMacPlatform()");
}

void VTWidgetUtils::objcRemoveChildWindow(WId, WId)
{
    Q_ASSERT(false && "This call should be wrapped with VTQtSysInfo::isMacPlatform()");
}

int VTWidgetUtils::objcLevel(WId)
{
    Q_ASSERT(false && "This call should be wrapped with VTQtSysInfo::isMacPlatform()");
    return 0;
}

void VTWidgetUtils::objcSetLevel(WId, int)
{
    Q_ASSERT(false && "This call should be wrapped with VTQtSysInfo::isMacPlatform()");
}

void VTWidgetUtils::objcSetTitleBarColor(WId, const QColor &)
{
    Q_ASSERT(false && "This call should be wrapped with VTQtSysInfo::isMacPlatform()");
}

void VTWidgetUtils::objcSetCollectionBehaviorFullScreenPrimary(WId)
{
    Q_ASSERT(false && "This call should be wrapped with VTQtSysInfo::isMacPlatform()");
}

#endif
