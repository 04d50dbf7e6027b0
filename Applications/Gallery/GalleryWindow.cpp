#include "GalleryWindow.h"

#include "AiryDelegate.h"
#include "DrawnIcons.h"
#include "GalleryLook.h"
#include "GalleryPage.h"
#include "GalleryPages.h"
#include "Theme/VantraStyleTheme.h"

#include <QtWidgets/QApplication>
#include <QtWidgets/QButtonGroup>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QScrollArea>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QStackedWidget>
#include <QtWidgets/QToolButton>

namespace {
constexpr int kSidebarWidth = 204;
constexpr int kStripMargin = 12;
constexpr int kDotSize = 18;
constexpr QSize kDefaultSize(1240, 820);

QFrame *makeLine(QFrame::Shape inShape)
{
    auto *line = new QFrame;
    line->setFrameShape(inShape);
    line->setFrameShadow(QFrame::Plain);
    return line;
}
} // namespace

GalleryWindow::GalleryWindow(GalleryLook *inLook, QWidget *inParent)
    : VantraMainWindow(inParent), mLook(inLook)
{
    setWindowTitle(tr("VTWidgetsLite gallery"));
    resize(kDefaultSize);

    mStack = new QStackedWidget;
    for (int index = 0; index < GalleryPages::count(); ++index) {
        auto *area = new QScrollArea;
        area->setFrameShape(QFrame::NoFrame);
        area->setWidgetResizable(true);
        mStack->addWidget(area);
        mAreas << area;
    }

    auto *right = new QVBoxLayout;
    right->setSpacing(0);
    right->addWidget(makeStrip());
    right->addWidget(makeLine(QFrame::HLine));
    right->addWidget(mStack, 1);
    mTrouble = new QLabel;
    mTrouble->setTextFormat(Qt::PlainText);
    mTrouble->setWordWrap(true);
    mTrouble->setMargin(kStripMargin);
    mTrouble->setTextInteractionFlags(Qt::TextSelectableByMouse);
    mTrouble->hide();
    right->addWidget(mTrouble);

    auto *layout = new QHBoxLayout(centralWidget());
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(makeSidebar());
    layout->addWidget(makeLine(QFrame::VLine));
    layout->addLayout(right, 1);

    connect(mLook, &GalleryLook::changed, this, &GalleryWindow::onLookChanged);
    connect(mLook, &GalleryLook::themeTroubled, this, &GalleryWindow::onThemeTroubled);
    paintAccentIcons();
    showPage(0);
}

QWidget *GalleryWindow::makeSidebar()
{
    mSidebar = new QListWidget;
    mSidebar->setFrameShape(QFrame::NoFrame);
    mSidebar->setFixedWidth(kSidebarWidth);
    mSidebar->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    mSidebar->setAccessibleName(tr("Pages"));
    mSidebar->setItemDelegate(new AiryDelegate(mSidebar));
    for (int index = 0; index < GalleryPages::count(); ++index)
        mSidebar->addItem(GalleryPages::title(index));
    connect(mSidebar, &QListWidget::currentRowChanged, this, &GalleryWindow::showPage);

    auto *frame = new QWidget;
    auto *layout = new QVBoxLayout(frame);
    layout->setContentsMargins(0, kStripMargin, 0, kStripMargin);
    layout->addWidget(mSidebar);
    return frame;
}

QWidget *GalleryWindow::makeStrip()
{
    auto *strip = new QWidget;
    auto *layout = new QHBoxLayout(strip);
    layout->setContentsMargins(GalleryPage::kMargin, kStripMargin, GalleryPage::kMargin, kStripMargin);
    layout->setSpacing(8);

    addAccentButtons(layout);
    layout->addSpacing(24);
    addTextSizes(layout);
    layout->addSpacing(24);
    addStyles(layout);
    layout->addSpacing(24);
    mEnabled = new QCheckBox(tr("Enabled"));
    mEnabled->setChecked(true);
    connect(mEnabled, &QCheckBox::toggled, this, &GalleryWindow::setPagesEnabled);
    layout->addWidget(mEnabled);
    layout->addStretch();
    return strip;
}

void GalleryWindow::addAccentButtons(QLayout *ioLayout)
{
    ioLayout->addWidget(new QLabel(tr("Accent")));
    mAccents = new QButtonGroup(this);
    for (int index = 0; index < static_cast<int>(GalleryLook::kAccents.size()); ++index) {
        const QString name = QLatin1String(GalleryLook::kAccents[index].name);
        auto *button = new QToolButton;
        button->setCheckable(true);
        button->setAutoRaise(true);
        button->setIconSize(QSize(kDotSize, kDotSize));
        const QString shownName =
            QCoreApplication::translate("GalleryLook", GalleryLook::kAccents[index].name);
        button->setToolTip(shownName);
        button->setAccessibleName(shownName);
        button->setChecked(name == mLook->accent() && !mLook->hasAccentFile());
        button->setEnabled(!mLook->hasAccentFile());
        mAccents->addButton(button, index);
        ioLayout->addWidget(button);
    }
    connect(mAccents, &QButtonGroup::idClicked, this,
            [this](int inIndex) { mLook->setAccent(QLatin1String(GalleryLook::kAccents[inIndex].name)); });
}

void GalleryWindow::addTextSizes(QLayout *ioLayout)
{
    auto *sizes = new QComboBox;
    sizes->setAccessibleName(tr("Text size"));
    for (const int size : GalleryLook::kTextSizes)
        sizes->addItem(size == 0 ? tr("Normal") : tr("+%1 points").arg(size), size);
    sizes->setCurrentIndex(sizes->findData(mLook->textSize()));
    connect(sizes, &QComboBox::activated, this,
            [this, sizes](int inIndex) { mLook->setTextSize(sizes->itemData(inIndex).toInt()); });
    ioLayout->addWidget(new QLabel(tr("Text size")));
    ioLayout->addWidget(sizes);
}

void GalleryWindow::addStyles(QLayout *ioLayout)
{
    auto *styles = new QComboBox;
    styles->setAccessibleName(tr("Style"));
    styles->addItem(tr("House style"), static_cast<int>(GalleryLook::Style::House));
    styles->addItem(QStringLiteral("Fusion"), static_cast<int>(GalleryLook::Style::Fusion));
    styles->setCurrentIndex(styles->findData(static_cast<int>(mLook->style())));
    // Queued: the combo box is still closing its list when it says so, which a style swapped under it would
    // not survive in all Qt versions.
    connect(
        styles, &QComboBox::activated, this,
        [this, styles](int inIndex) {
            mLook->setStyle(static_cast<GalleryLook::Style>(styles->itemData(inIndex).toInt()));
        },
        Qt::QueuedConnection);
    ioLayout->addWidget(new QLabel(tr("Style")));
    ioLayout->addWidget(styles);
}

void GalleryWindow::showPage(int inIndex)
{
    if (inIndex < 0)
        return;
    ensurePage(inIndex);
    mSidebar->setCurrentRow(inIndex);
    mStack->setCurrentIndex(inIndex);
}

void GalleryWindow::setPagesEnabled(bool inEnabled)
{
    mEnabled->setChecked(inEnabled);
    for (QScrollArea *area : std::as_const(mAreas)) {
        if (area->widget())
            area->widget()->setEnabled(inEnabled);
    }
}

void GalleryWindow::growToPage()
{
    QScrollArea *area = mAreas.at(mStack->currentIndex());
    // A page whose notes wrap tells its height only for a width, so that each step shows the next one's need.
    for (int pass = 0; pass < 4; ++pass) {
        QApplication::sendPostedEvents();
        const QSize missing(area->horizontalScrollBar()->maximum(), area->verticalScrollBar()->maximum());
        const int needed = area->widget()->hasHeightForWidth()
                               ? area->widget()->heightForWidth(area->viewport()->width())
                               : area->widget()->sizeHint().height();
        const int spare = area->viewport()->height() - needed;
        if (missing.isNull() && spare == 0)
            return;
        resize(width() + missing.width(), height() - (missing.height() > 0 ? -missing.height() : spare));
    }
}

void GalleryWindow::ensurePage(int inIndex)
{
    QScrollArea *area = mAreas.at(inIndex);
    if (area->widget())
        return;
    GalleryPage *page = GalleryPages::at(inIndex).make(area);
    page->setEnabled(mEnabled->isChecked());
    area->setWidget(page);
}

void GalleryWindow::onLookChanged()
{
    paintAccentIcons();
    for (QScrollArea *area : std::as_const(mAreas)) {
        if (auto *page = qobject_cast<GalleryPage *>(area->widget()))
            page->refresh();
    }
}

void GalleryWindow::onThemeTroubled(const QString &inReason)
{
    mTrouble->setText(tr("The last good theme is shown. %1").arg(inReason));
    mTrouble->setVisible(!inReason.isEmpty());
}

void GalleryWindow::paintAccentIcons()
{
    const VantraColorPalette &palette = VantraStyleTheme::instance().colorPalette();
    for (int index = 0; index < static_cast<int>(GalleryLook::kAccents.size()); ++index) {
        const QColor color = palette.color(VantraPalette::Normal, GalleryLook::kAccents[index].swatchRole);
        mAccents->button(index)->setIcon(DrawnIcons::dot(kDotSize, color));
    }
}
