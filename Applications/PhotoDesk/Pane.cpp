#include "Pane.h"

#include "Theme/VantraFont.h"
#include "Theme/VantraStyleTheme.h"

#include <QtGui/QKeyEvent>
#include <QtGui/QPainter>
#include <QtWidgets/QStyleOption>
#include <QtWidgets/QVBoxLayout>

namespace {
constexpr int kMargin = 12;
constexpr int kArrowSize = 12;
constexpr int kHeaderPadding = 18;
} // namespace

PaneHeader::PaneHeader(const QString &inTitle, QWidget *inParent) : VantraFramePane(inParent), mTitle(inTitle)
{
    setPanePart(PanePartHeader);
    setFocusPolicy(Qt::TabFocus);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    setAccessibleName(inTitle);
}

QFont PaneHeader::titleFont() const
{
    QFont font = VantraFont::mainFont();
    VantraStyleTheme::instance().fontPalette().applyFont(VantraPalette::Normal, VantraPalette::PaneHeaderText,
                                                         font);
    return font;
}

QSize PaneHeader::sizeHint() const
{
    const QFontMetrics metrics(titleFont());
    return {metrics.horizontalAdvance(mTitle) + kArrowSize + 3 * kMargin, metrics.height() + kHeaderPadding};
}

void PaneHeader::paintEvent(QPaintEvent *inEvent)
{
    VantraFramePane::paintEvent(inEvent);
    QPainter painter(this);
    const VantraPalette::PaletteGroup group =
        paneHovered() || hasFocus() ? VantraPalette::Highlighted : VantraPalette::Normal;
    const QColor color =
        VantraStyleTheme::instance().colorPalette().color(group, VantraPalette::PaneHeaderText);
    painter.setFont(titleFont());
    painter.setPen(color);
    painter.drawText(rect().adjusted(kMargin, 0, -kMargin, 0), Qt::AlignLeft | Qt::AlignVCenter, mTitle);
    QStyleOption arrow;
    arrow.initFrom(this);
    arrow.palette.setColor(QPalette::ButtonText, color);
    arrow.rect = QRect(width() - kMargin - kArrowSize, (height() - kArrowSize) / 2, kArrowSize, kArrowSize);
    style()->drawPrimitive(paneExpanded() ? QStyle::PE_IndicatorArrowDown : QStyle::PE_IndicatorArrowRight,
                           &arrow, &painter, this);
    if (hasFocus()) {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(VantraStyleTheme::instance().accentColor(QPalette::Active));
        painter.drawRoundedRect(QRectF(rect()).adjusted(2.5, 2.5, -2.5, -2.5), 4, 4);
    }
}

void PaneHeader::mousePressEvent(QMouseEvent *inEvent)
{
    if (inEvent->button() == Qt::LeftButton)
        emit clicked();
}

void PaneHeader::keyPressEvent(QKeyEvent *inEvent)
{
    if (inEvent->key() == Qt::Key_Space)
        emit clicked();
    else
        VantraFramePane::keyPressEvent(inEvent);
}

Pane::Pane(const QString &inTitle, QWidget *inParent)
    : VantraFramePane(inParent), mHeader(new PaneHeader(inTitle, this)), mBody(new VantraFramePane(this)),
      mContents(new QVBoxLayout(mBody))
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(mHeader);
    layout->addWidget(mBody);
    mContents->setContentsMargins(kMargin, kSubPaneMarginTop / 2, kMargin, kSubPaneMarginBottom + 2);
    mContents->setSpacing(6);
    mBody->setPanePart(PanePartBody);
    setPaneBorderStyle(PaneBorderStyleStandard);
    for (VantraFramePane *part : {static_cast<VantraFramePane *>(mHeader), mBody}) {
        part->setPaneBorderStyle(PaneBorderStyleStandard);
        connect(this, &VantraFramePane::paneStateChanged, part, &VantraFramePane::setPaneState);
    }
    connect(this, &VantraFramePane::paneExpandedChanged, mBody, &QWidget::setVisible);
    connect(mHeader, &PaneHeader::clicked, this, [this] { setPaneExpanded(!paneExpanded()); });
}

void Pane::enterEvent(QEnterEvent *inEvent)
{
    VantraFramePane::enterEvent(inEvent);
    setPaneHovered(true);
}

void Pane::leaveEvent(QEvent *inEvent)
{
    VantraFramePane::leaveEvent(inEvent);
    setPaneHovered(false);
}
