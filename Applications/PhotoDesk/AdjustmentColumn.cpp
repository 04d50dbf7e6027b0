#include "AdjustmentColumn.h"

#include "AdjustmentRow.h"
#include "Controls/VantraButton.h"
#include "Controls/VantraStyledItemDelegate.h"
#include "CurveEditor.h"
#include "Pane.h"
#include "Photo.h"
#include "PresetControls.h"
#include "StyleOptions/VantraStyleOptionViewItem.h"

#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QUndoView>

#include <algorithm>

namespace {
constexpr int kLeastWidth = 320;
constexpr int kHistoryHeight = 130;

const PhotoSliderInfo &infoOf(const char *inName)
{
    return *std::find_if(std::begin(kPhotoSliders), std::end(kPhotoSliders),
                         [&](const PhotoSliderInfo &inInfo) { return qstrcmp(inInfo.name, inName) == 0; });
}

// Rows whose text keeps away from the list's edge.
class StepDelegate : public VantraStyledItemDelegate
{
public:
    using VantraStyledItemDelegate::VantraStyledItemDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem *outOption, const QModelIndex &inIndex) const override
    {
        VantraStyledItemDelegate::initStyleOption(outOption, inIndex);
        if (outOption->version >= VantraStyleOptionViewItem::Version)
            static_cast<VantraStyleOptionViewItem *>(outOption)->useIndent = true;
    }
};
} // namespace

AdjustmentColumn::AdjustmentColumn(QWidget *inParent) : QScrollArea(inParent)
{
    auto *contents = new QWidget(this);
    mLayout = new QVBoxLayout(contents);
    mLayout->setContentsMargins(6, 6, 6, 6);
    mLayout->setSpacing(2);

    Pane *light = addPane(tr("Light"), "light");
    addRow(light, "exposure", tr("Exposure"));
    addRow(light, "contrast", tr("Contrast"));
    addRow(light, "highlights", tr("Highlights"));
    addRow(light, "shadows", tr("Shadows"));
    Pane *colour = addPane(tr("Colour"), "colour");
    addRow(colour, "temperature", tr("Temperature"),
           {{0.0, QColor(84, 132, 222)}, {0.5, QColor(200, 200, 200)}, {1.0, QColor(232, 184, 64)}});
    addRow(colour, "tint", tr("Tint"),
           {{0.0, QColor(88, 176, 96)}, {0.5, QColor(200, 200, 200)}, {1.0, QColor(204, 92, 190)}});
    addRow(colour, "saturation", tr("Saturation"));
    addCurve();
    addPresets();
    addHistory();
    mLayout->addStretch();

    setWidget(contents);
    setWidgetResizable(true);
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setPhoto(nullptr);
}

Pane *AdjustmentColumn::addPane(const QString &inTitle, const char *inName)
{
    auto *pane = new Pane(inTitle, this);
    pane->setObjectName(QLatin1String(inName) + QStringLiteral("Pane"));
    mLayout->addWidget(pane);
    connect(pane, &Pane::paneExpandedChanged, this, [this] { VantraFramePane::updatePaneStates(mLayout); });
    return pane;
}

void AdjustmentColumn::addRow(Pane *ioPane, const char *inKey, const QString &inName,
                              const QGradientStops &inStops)
{
    auto *row = new AdjustmentRow(infoOf(inKey), inName, inStops, ioPane);
    ioPane->contents()->addWidget(row);
    mRows << row;
    connect(row, &AdjustmentRow::valueChanged, this, [this, row](double inValue) {
        PhotoAdjustments adjustments = mPhoto->adjustments();
        adjustments.*row->info().value = inValue;
        mPhoto->change(row->name(), adjustments);
    });
    connect(row, &AdjustmentRow::finished, this, [this] { mPhoto->endStep(); });
}

void AdjustmentColumn::addCurve()
{
    mCurve = new CurveEditor(this);
    addPane(tr("Curves"), "curves")->contents()->addWidget(mCurve);
    connect(mCurve, &CurveEditor::pointsChanged, this, [this](const QVector<QPointF> &inPoints) {
        PhotoAdjustments adjustments = mPhoto->adjustments();
        adjustments.curve = inPoints;
        mPhoto->change(tr("Curve"), adjustments);
    });
    connect(mCurve, &CurveEditor::finished, this, [this] { mPhoto->endStep(); });
}

void AdjustmentColumn::addPresets()
{
    mPresets = new PresetControls(this);
    addPane(tr("Presets"), "presets")->contents()->addWidget(mPresets);
    connect(mPresets, &PresetControls::chosen, this,
            [this](const QString &inName, const QJsonObject &inLook) {
                PhotoAdjustments adjustments = mPhoto->adjustments();
                adjustments.setLook(inLook);
                mPhoto->change(tr("Preset \"%1\"").arg(inName), adjustments);
                mPhoto->endStep();
            });
}

void AdjustmentColumn::addHistory()
{
    Pane *pane = addPane(tr("History"), "history");
    mHistory = new QUndoView(pane);
    mHistory->setItemDelegate(new StepDelegate(mHistory));
    mHistory->setEmptyLabel(tr("As opened"));
    mHistory->setFixedHeight(kHistoryHeight);
    mHistory->setAccessibleName(tr("History"));
    auto *buttons = new QHBoxLayout;
    buttons->setSpacing(0);
    mUndo = new VantraButton(pane);
    mUndo->setText(tr("Undo"));
    mUndo->setButtonStyle(VantraButton::LeftCapButtonStyle);
    mRedo = new VantraButton(pane);
    mRedo->setText(tr("Redo"));
    mRedo->setButtonStyle(VantraButton::RightCapButtonStyle);
    buttons->addWidget(mUndo, 1);
    buttons->addWidget(mRedo, 1);
    pane->contents()->addWidget(mHistory);
    pane->contents()->addLayout(buttons);
    connect(mUndo, &VantraButton::clicked, this, [this] { mPhoto->history()->undo(); });
    connect(mRedo, &VantraButton::clicked, this, [this] { mPhoto->history()->redo(); });
}

void AdjustmentColumn::setPhoto(Photo *inPhoto)
{
    if (mPhoto != nullptr) {
        mPhoto->disconnect(this);
        mPhoto->history()->disconnect(this);
    }
    mPhoto = inPhoto;
    widget()->setEnabled(inPhoto != nullptr);
    mHistory->setStack(inPhoto == nullptr ? nullptr : inPhoto->history());
    if (inPhoto != nullptr) {
        connect(inPhoto, &Photo::adjustmentsChanged, this, &AdjustmentColumn::showAdjustments);
        connect(inPhoto, &Photo::changed, this, &AdjustmentColumn::showHistogram);
        connect(inPhoto->history(), &QUndoStack::indexChanged, this, &AdjustmentColumn::showAdjustments);
    }
    showAdjustments();
    showHistogram();
}

void AdjustmentColumn::showAdjustments()
{
    const PhotoAdjustments adjustments = mPhoto == nullptr ? PhotoAdjustments() : mPhoto->adjustments();
    for (AdjustmentRow *row : std::as_const(mRows))
        row->setValue(adjustments.*row->info().value);
    mCurve->setPoints(adjustments.curve);
    mPresets->setLook(adjustments.look());
    mUndo->setEnabled(mPhoto != nullptr && mPhoto->history()->canUndo());
    mRedo->setEnabled(mPhoto != nullptr && mPhoto->history()->canRedo());
}

void AdjustmentColumn::showHistogram()
{
    QVector<int> counts;
    if (mPhoto != nullptr && !mPhoto->thumbnail().isNull()) {
        counts.fill(0, 256);
        const QImage grey = mPhoto->thumbnail().convertToFormat(QImage::Format_Grayscale8);
        for (int row = 0; row < grey.height(); ++row) {
            for (int column = 0; column < grey.width(); ++column)
                ++counts[grey.constScanLine(row)[column]];
        }
    }
    mCurve->setHistogram(counts);
}

QSize AdjustmentColumn::minimumSizeHint() const
{
    const int width = widget()->minimumSizeHint().width() + verticalScrollBar()->sizeHint().width();
    return {std::max(kLeastWidth, width), QScrollArea::minimumSizeHint().height()};
}

void AdjustmentColumn::showEvent(QShowEvent *inEvent)
{
    QScrollArea::showEvent(inEvent);
    // Only visible panes have neighbours.
    VantraFramePane::updatePaneStates(mLayout);
}
