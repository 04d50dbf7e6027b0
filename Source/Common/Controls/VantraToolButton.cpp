#include "Controls/VantraToolButton.h"

#include "Controls/VantraAccessible_p.h"
#include "StyleOptions/VantraStyleOptionToolButton.h"
#include "Theme/VantraFont.h"
#include "ToolTips/VantraToolTipFilter.h"
#include "Utilities/VTWidgetsImageUtils.h"
#include "VTQtPropertyNames.h"

#include <QtCore/QEvent>
#include <QtCore/QVariant>
#include <QtGui/QIcon>
#include <QtGui/QImage>
#include <QtGui/QKeySequence>
#include <QtGui/QShortcut>
#include <QtWidgets/QStylePainter>

namespace {

constexpr QSize kIconSize(24, 24);
constexpr QSize kIconButtonSize(32, 32);

struct NamedImage
{
    VantraToolButton::ButtonImage image;
    const char *path;
};

// Paths below ":/VTWidgets/".
constexpr NamedImage kNamedImages[] = {
    {VantraToolButton::DualModeImage, "ToolButtons/DualMode.png"},
    {VantraToolButton::SwapDimensions, "Print/Swap.png"},
    {VantraToolButton::PrintImage, "ToolButtons/Print.png"},
    {VantraToolButton::PrintToPrinter, "Print/PrintModePrint.png"},
    {VantraToolButton::PrintToPDF, "Print/PrintModePDF.png"},
    {VantraToolButton::PrintPortrait, "Print/PrintPortrait.png"},
    {VantraToolButton::PrintLandscape, "Print/PrintLandscape.png"},
    {VantraToolButton::Print4x5, "Print/Print4x5.png"},
    {VantraToolButton::Print5x7, "Print/Print5x7.png"},
    {VantraToolButton::Print8x10, "Print/Print8x10.png"},
    {VantraToolButton::PrintContact, "Print/PrintContact.png"},
    {VantraToolButton::PrintCustom, "Print/PrintCustom.png"},
    {VantraToolButton::PrintFill, "Print/PrintFill.png"},
    {VantraToolButton::PrintFit, "Print/PrintFit.png"},
    {VantraToolButton::PrintMore, "Print/PrintMore.png"},
    {VantraToolButton::PrintModeSingle, "Print/PrintModeSingle.png"},
    {VantraToolButton::PrintModeContact, "Print/PrintModeContact.png"},
    {VantraToolButton::PrintSinglePage, "Print/PrintSinglePage.png"},
    {VantraToolButton::PrintFacingPages, "Print/PrintFacingPages.png"},
    {VantraToolButton::PrintAllPages, "Print/PrintAllPages.png"},
    {VantraToolButton::AddColorFillLayer, "ToolButtons/LayerColorFill.png"},
    {VantraToolButton::AddTextLayer, "ToolButtons/LayerAddText.png"},
    {VantraToolButton::MaskInspectInvert, "ToolButtons/MaskInspectInvert.png"},
    {VantraToolButton::MaskInspectLumen, "ToolButtons/MaskInspectLumen.png"},
    {VantraToolButton::MaskInspectDepth, "ToolButtons/MaskInspectDepth.png"},
    {VantraToolButton::MaskInspectReset, "ToolButtons/MaskInspectReset.png"},
    {VantraToolButton::MaskInspectCopy, "ToolButtons/MaskInspectCopy.png"},
    {VantraToolButton::MaskInspectPaste, "ToolButtons/MaskInspectPaste.png"},
    {VantraToolButton::MaskInspectView, "ToolButtons/MaskInspectView.png"},
    {VantraToolButton::TextBold, "ToolButtons/BoldFont.png"},
    {VantraToolButton::TextItalics, "ToolButtons/ItalicsFont.png"},
    {VantraToolButton::TextUnderline, "ToolButtons/UnderlineFont.png"},
    {VantraToolButton::TextAlignLeft, "ToolButtons/AlignLeft.png"},
    {VantraToolButton::TextAlignCenter, "ToolButtons/AlignCenter.png"},
    {VantraToolButton::TextAlignRight, "ToolButtons/AlignRight.png"},
    {VantraToolButton::TextCapitalize, "ToolButtons/Capitalize.png"},
    {VantraToolButton::OverflowImage, "Buttons/Overflow.png"},
    {VantraToolButton::AddImage, "Buttons/Add.png"},
    {VantraToolButton::DeleteImage, "Buttons/Delete.png"},
    {VantraToolButton::SettingsImage, "ToolButtons/Settings.png"},
    {VantraToolButton::ResetImage, "ToolButtons/Reset.png"},
    {VantraToolButton::ModuleSaveApplyImage, "ToolButtons/ModuleSaveApply.png"},
};

} // namespace

QMap<VantraToolButton::ButtonImage, QString> VantraToolButton::sButtonImageToResourceUrlMap;

VantraToolButton::VantraToolButton(QWidget *inParent) : QToolButton(inParent)
{
    init(IconStyle);
}

VantraToolButton::VantraToolButton(const QImage &inImage, QWidget *inParent) : QToolButton(inParent)
{
    init(IconOnOffStyle);
    setIconOnOffPixmap(inImage, VantraIconPalette::IconTintingOnAlternateOffForeground);
}

VantraToolButton::VantraToolButton(const QIcon &inIcon, QWidget *inParent) : QToolButton(inParent)
{
    init(IconStyle);
    setIcon(inIcon);
    setIconSize(kIconSize);
    setFixedSize(kIconButtonSize);
}

VantraToolButton::~VantraToolButton()
{
    setShortcutActivatedEnabled(false);
}

void VantraToolButton::init(ButtonStyle inStyle)
{
    initButtonImageMap();
    VantraAccessible::install();
    setFont(VantraFont::mainFont());
    setCheckable(true);
    setButtonStyle(inStyle);
    setToolButtonStyle(Qt::ToolButtonIconOnly);
    installEventFilter(VantraToolTipFilter::sharedInstance());
}

void VantraToolButton::initButtonImageMap()
{
    if (!sButtonImageToResourceUrlMap.isEmpty()) {
        return;
    }
    for (const NamedImage &named : kNamedImages) {
        sButtonImageToResourceUrlMap.insert(named.image,
                                            QLatin1String(":/VTWidgets/") + QLatin1String(named.path));
    }
}

void VantraToolButton::setButtonImage(ButtonImage inImage)
{
    if (mButtonImage == inImage) {
        return;
    }
    mButtonImage = inImage;
    const QString path = sButtonImageToResourceUrlMap.value(inImage);
    if (!path.isEmpty()) {
        setIconOnOffPixmap(VTWidgetsLoadImage(path), VantraIconPalette::IconTintingOnAlternateOffForeground);
    }
    update();
}

void VantraToolButton::setButtonStyle(ButtonStyle inStyle)
{
    if (mButtonStyle == inStyle) {
        return;
    }
    mButtonStyle = inStyle;
    update();
}

void VantraToolButton::setBackgroundStyle(BackgroundStyle inStyle)
{
    if (mBackgroundStyle == inStyle) {
        return;
    }
    mBackgroundStyle = inStyle;
    emit backgroundStyleChanged(inStyle);
    update();
}

void VantraToolButton::setBackgroundButtonRole(VantraPalette::PaletteRole inRole)
{
    if (mBackgroundButtonRole == inRole) {
        return;
    }
    mBackgroundButtonRole = inRole;
    update();
}

void VantraToolButton::setIconTinting(VantraIconPalette::IconTintings inTinting)
{
    if (mIconTinting == inTinting) {
        return;
    }
    mIconTinting = inTinting;
    emit iconTintingChanged(inTinting);
    update();
}

void VantraToolButton::setFixedSize(const QSize &inSize)
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setMinimumSize(inSize);
    setMaximumSize(inSize);
}

void VantraToolButton::setShortcut(const QKeySequence &inKey)
{
    QAbstractButton::setShortcut(inKey);
    if (mToolName == QLatin1String("") || inKey.isEmpty()) {
        return;
    }
    setToolTip(tr("%1 (%2)").arg(mToolName, inKey.toString(QKeySequence::NativeText)));
}

bool VantraToolButton::supportNestedSetCurrentToolButton() const
{
    return true;
}

void VantraToolButton::setShortcutActivatedEnabled(bool inEnabled)
{
    if (inEnabled && mShortcut == nullptr) {
        startReporting();
    } else if (!inEnabled && mShortcut != nullptr) {
        stopReporting();
    }
}

void VantraToolButton::startReporting()
{
    const QKeySequence keySequence = QAbstractButton::shortcut();
    Q_ASSERT(!keySequence.isEmpty());
    setProperty(kToolButtonKeySequenceProperty, QVariant::fromValue(keySequence));
    setShortcut(QKeySequence());
    mShortcut = new QShortcut(keySequence, this, nullptr, nullptr, Qt::WindowShortcut);
    connect(mShortcut, &QShortcut::activated, this, [this] { emit shortcutActivated(this); });
    connect(mShortcut, &QShortcut::activatedAmbiguously, this,
            [this] { emit shortuctActivatedAmbiguously(this); });
}

void VantraToolButton::stopReporting()
{
    const auto keySequence = property(kToolButtonKeySequenceProperty).value<QKeySequence>();
    Q_ASSERT(!keySequence.isEmpty());
    setShortcut(keySequence);
    disconnect(mShortcut, &QShortcut::activated, this, nullptr);
    disconnect(mShortcut, &QShortcut::activatedAmbiguously, this, nullptr);
    delete mShortcut;
    mShortcut = nullptr;
}

void VantraToolButton::initOnOffStyle(const QImage &inImage, VantraIconPalette::IconTintings inTinting)
{
    initOnOffStyle(inImage, inImage, inTinting);
}

void VantraToolButton::initOnOffStyle(const QImage &inOnImage, const QImage &inOffImage,
                                      VantraIconPalette::IconTintings inTinting)
{
    setCheckable(true);
    setButtonStyle(IconOnOffStyle);
    setToolButtonStyle(Qt::ToolButtonIconOnly);
    setIconOnOffPixmap(inOnImage, inOffImage, inTinting);
}

void VantraToolButton::setIconOnOffPixmap(const QImage &inImage, VantraIconPalette::IconTintings inTinting)
{
    setIconOnOffPixmap(inImage, inImage, inTinting);
}

void VantraToolButton::setIconOnOffPixmap(const QImage &inOnImage, const QImage &inOffImage,
                                          VantraIconPalette::IconTintings inTinting)
{
    const QPixmap onPixmap = QPixmap::fromImage(inOnImage);
    const QPixmap offPixmap = QPixmap::fromImage(inOffImage);
    QIcon icon;
    for (const QIcon::Mode mode : {QIcon::Normal, QIcon::Active, QIcon::Disabled}) {
        icon.addPixmap(onPixmap, mode, QIcon::On);
        icon.addPixmap(offPixmap, mode, QIcon::Off);
    }
    setIcon(icon);
    setIconSize(kIconSize);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    setMinimumSize(onPixmap.size() / inOnImage.devicePixelRatio());
    setButtonStyle(IconOnOffStyle);
    setIconTinting(inTinting);
}

QPixmap VantraToolButton::generateColorPixmap(const QImage &inImage, const QColor &inColor) const
{
    return VTWidgetsGenerateColorPixmap(inImage, inColor);
}

QSize VantraToolButton::sizeHint() const
{
    VantraStyleOptionToolButton option;
    ensurePolished();
    initStyleOption(&option);
    return style()->sizeFromContents(QStyle::CT_ToolButton, &option, QSize(0, 0), this);
}

void VantraToolButton::initStyleOption(QStyleOptionToolButton *option) const
{
    QToolButton::initStyleOption(option);
    if (option == nullptr) {
        return;
    }
    option->text.replace(QLatin1Char('&'), QLatin1String("&&"));
    if (option->version >= VantraStyleOptionToolButton::Version &&
        option->type == VantraStyleOptionToolButton::Type) {
        auto *record = static_cast<VantraStyleOptionToolButton *>(option);
        record->buttonStyle = mButtonStyle;
        record->backgroundStyle = mBackgroundStyle;
        record->backgroundButtonRole = mBackgroundButtonRole;
        record->iconTinting = mIconTinting;
    }
}

void VantraToolButton::paintEvent(QPaintEvent *)
{
    QStylePainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    VantraStyleOptionToolButton option;
    initStyleOption(&option);
    painter.drawComplexControl(QStyle::CC_ToolButton, option);
}

void VantraToolButton::mousePressEvent(QMouseEvent *event)
{
    QToolButton::mousePressEvent(event);
}

void VantraToolButton::mouseDoubleClickEvent(QMouseEvent *)
{
    emit buttonDoubleClicked();
}

void VantraToolButton::changeEvent(QEvent *event)
{
    QToolButton::changeEvent(event);
    if (event->type() == QEvent::EnabledChange) {
        setAttribute(Qt::WA_TransparentForMouseEvents, !isEnabled());
    }
}
