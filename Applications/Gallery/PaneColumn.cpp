#include "PaneColumn.h"

#include "Theme/VantraFont.h"
#include "Theme/VantraStyleTheme.h"

#include <QtCore/QPropertyAnimation>
#include <QtGui/QKeyEvent>
#include <QtGui/QPainter>
#include <QtWidgets/QStyleOption>
#include <QtWidgets/QVBoxLayout>

namespace {
constexpr int kHeaderMargin = 10; // on the header's sides and between its parts, in pixels
constexpr int kArrowSize = 12;
constexpr double kTargetSize = 6.0;
constexpr int kDuration = 160; // of growing and shrinking, in ms

VantraPalette::PaletteRole headerRole(VantraFramePane::PaneStyle inStyle)
{
    switch (inStyle) {
    case VantraFramePane::PaneStyleStandard: return VantraPalette::PaneHeaderText;
    case VantraFramePane::PaneStyleList: return VantraPalette::ListPaneHeaderText;
    case VantraFramePane::PaneStyleSubPane: return VantraPalette::SubPaneHeaderText;
    }
    return VantraPalette::WindowText;
}

// The selected pane and the one under the pointer stand out.
VantraPalette::PaletteGroup headerGroup(const VantraFramePane &inPane)
{
    if (!inPane.isEnabled())
        return VantraPalette::Disabled;
    return inPane.paneSelected() || inPane.paneHovered() ? VantraPalette::Highlighted : VantraPalette::Normal;
}

QFont headerFont(const VantraFramePane &inPane)
{
    QFont font = VantraFont::mainFont();
    VantraStyleTheme::instance().fontPalette().applyFont(headerGroup(inPane), headerRole(inPane.paneStyle()),
                                                         font);
    return font;
}
} // namespace

PaneHeader::PaneHeader(const QString &inTitle, QWidget *inParent) : VantraFramePane(inParent), mTitle(inTitle)
{
    setPanePart(PanePartHeader);
    setFocusPolicy(Qt::TabFocus);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    setAccessibleName(inTitle);
}

QSize PaneHeader::sizeHint() const
{
    const QFontMetrics metrics(headerFont(*this));
    return QSize(metrics.horizontalAdvance(mTitle) + kArrowSize + 4 * kHeaderMargin, metrics.height() + 14);
}

void PaneHeader::paintEvent(QPaintEvent *inEvent)
{
    VantraFramePane::paintEvent(inEvent);
    const VantraColorPalette &colors = VantraStyleTheme::instance().colorPalette();
    QPainter painter(this);

    QStyleOption arrow;
    arrow.initFrom(this);
    arrow.palette.setColor(QPalette::ButtonText, colors.color(headerGroup(*this), headerRole(paneStyle())));
    arrow.rect = QRect(kHeaderMargin, (height() - kArrowSize) / 2, kArrowSize, kArrowSize);
    style()->drawPrimitive(paneExpanded() ? QStyle::PE_IndicatorArrowDown : QStyle::PE_IndicatorArrowRight,
                           &arrow, &painter, this);

    painter.setFont(headerFont(*this));
    painter.setPen(colors.color(headerGroup(*this), headerRole(paneStyle())));
    painter.drawText(rect().adjusted(2 * kHeaderMargin + kArrowSize, 0, -2 * kHeaderMargin, 0),
                     Qt::AlignLeft | Qt::AlignVCenter, mTitle);

    painter.setRenderHint(QPainter::Antialiasing);
    const QColor accent =
        colors.color(isEnabled() ? VantraPalette::Normal : VantraPalette::Disabled, VantraPalette::Accent);
    if (paneTargeted()) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(accent);
        painter.drawEllipse(QRectF(width() - kHeaderMargin - kTargetSize, (height() - kTargetSize) / 2,
                                   kTargetSize, kTargetSize));
    }
    if (hasFocus()) {
        painter.setPen(QPen(accent, 1.0));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(QRectF(rect()).adjusted(1.5, 1.5, -1.5, -1.5), 4, 4);
    }
}

void PaneHeader::mousePressEvent(QMouseEvent *inEvent)
{
    if (inEvent->button() == Qt::LeftButton)
        emit clicked(inEvent->modifiers() & Qt::ControlModifier);
}

void PaneHeader::keyPressEvent(QKeyEvent *inEvent)
{
    if (inEvent->key() == Qt::Key_Space)
        emit clicked(inEvent->modifiers() & Qt::ControlModifier);
    else
        VantraFramePane::keyPressEvent(inEvent);
}

PaneBody::PaneBody(QWidget *inContents, QWidget *inParent) : VantraFramePane(inParent), mContents(inContents)
{
    setPanePart(PanePartBody);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    mContents->setParent(this);
}

QSize PaneBody::sizeHint() const
{
    return mContents->sizeHint();
}

void PaneBody::resizeEvent(QResizeEvent *inEvent)
{
    // The contents keep their height, and come out from under the header.
    const int contentsHeight = qMax(mContents->sizeHint().height(), height());
    mContents->setGeometry(0, height() - contentsHeight, width(), contentsHeight);
    VantraFramePane::resizeEvent(inEvent);
}

ColumnPane::ColumnPane(const QString &inTitle, QWidget *inContents, PaneStyle inStyle, QWidget *inParent)
    : VantraFramePane(inParent), mHeader(new PaneHeader(inTitle, this)),
      mBody(new PaneBody(inContents, this)), mAnimation(new QPropertyAnimation(mBody, "maximumHeight", this))
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(mHeader);
    layout->addWidget(mBody);
    mAnimation->setDuration(kDuration);
    mAnimation->setEasingCurve(QEasingCurve::InOutSine);
    connect(mAnimation, &QPropertyAnimation::finished, this, &ColumnPane::finish);
    connect(mHeader, &PaneHeader::clicked, this, &ColumnPane::headerClicked);
    for (VantraFramePane *part :
         {static_cast<VantraFramePane *>(mHeader), static_cast<VantraFramePane *>(mBody)}) {
        part->setPaneStyle(inStyle);
        part->setPaneBorderStyle(PaneBorderStyleStandard);
        connect(this, &VantraFramePane::paneStateChanged, part, &VantraFramePane::setPaneState);
    }
    setPaneStyle(inStyle);
    setPaneBorderStyle(PaneBorderStyleStandard);
    setPaneExpanded(false);
    mBody->hide();
}

void ColumnPane::setExpanded(bool inExpanded, bool inAnimated)
{
    if (mWillBeExpanded == inExpanded)
        return;
    mWillBeExpanded = inExpanded;
    // A shrinking pane keeps its ground until it has shrunk.
    if (inExpanded) {
        setPaneExpanded(true);
        mBody->setMaximumHeight(mBody->isVisible() ? mBody->height() : 0);
        mBody->show();
        emit expansionChanged();
    }
    mAnimation->stop();
    mAnimation->setStartValue(inExpanded ? mBody->maximumHeight() : mBody->height());
    mAnimation->setEndValue(inExpanded ? mBody->sizeHint().height() : 0);
    if (inAnimated)
        mAnimation->start();
    else
        finish();
}

void ColumnPane::finish()
{
    mBody->setMaximumHeight(QWIDGETSIZE_MAX);
    if (!mWillBeExpanded) {
        mBody->hide();
        setPaneExpanded(false);
        emit expansionChanged();
    }
}

void ColumnPane::enterEvent(QEnterEvent *inEvent)
{
    VantraFramePane::enterEvent(inEvent);
    setPaneHovered(true);
}

void ColumnPane::leaveEvent(QEvent *inEvent)
{
    VantraFramePane::leaveEvent(inEvent);
    setPaneHovered(false);
}

PaneColumn::PaneColumn(VantraFramePane::PaneStyle inStyle, QWidget *inParent)
    : QWidget(inParent), mStyle(inStyle), mLayout(new QVBoxLayout(this))
{
    mLayout->setContentsMargins(0, 0, 0, 0);
    mLayout->setSpacing(inStyle == VantraFramePane::PaneStyleStandard ? 2 : 0);
    mLayout->addStretch();
}

ColumnPane *PaneColumn::addPane(const QString &inTitle, QWidget *inContents)
{
    auto *pane = new ColumnPane(inTitle, inContents, mStyle, this);
    mLayout->insertWidget(mLayout->count() - 1, pane);
    mPanes << pane;
    connect(pane, &ColumnPane::expansionChanged, this,
            [this] { VantraFramePane::updatePaneStates(mLayout); });
    connect(pane, &ColumnPane::headerClicked, this, [this, pane](bool inWithControl) {
        choose(pane, inWithControl);
        if (!inWithControl)
            pane->setExpanded(!pane->willBeExpanded());
    });
    return pane;
}

void PaneColumn::choose(ColumnPane *inPane, bool inAlso)
{
    for (ColumnPane *pane : std::as_const(mPanes)) {
        pane->setPaneTargeted(pane == inPane);
        pane->setPaneSelected(pane == inPane || (inAlso && pane->paneSelected()));
    }
}

void PaneColumn::showEvent(QShowEvent *inEvent)
{
    QWidget::showEvent(inEvent);
    // Only visible panes have neighbours.
    VantraFramePane::updatePaneStates(mLayout);
}
