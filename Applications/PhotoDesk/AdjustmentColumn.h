#pragma once

// The column of panes at the window's right, for one photo at a time.

#include <QtCore/QPointer>
#include <QtWidgets/QScrollArea>

class AdjustmentRow;
class CurveEditor;
class Pane;
class Photo;
class PresetControls;
class QUndoView;
class QVBoxLayout;
class VantraButton;

class AdjustmentColumn : public QScrollArea
{
    Q_OBJECT

public:
    explicit AdjustmentColumn(QWidget *inParent = nullptr);

    // Null for none, which disables the column.
    void setPhoto(Photo *inPhoto);

    // As wide as the panes are in the present text size.
    QSize sizeHint() const override { return minimumSizeHint(); }
    QSize minimumSizeHint() const override;

protected:
    void showEvent(QShowEvent *inEvent) override;

private:
    Pane *addPane(const QString &inTitle, const char *inName);
    void addRow(Pane *ioPane, const char *inKey, const QString &inName, const QGradientStops &inStops = {});
    void addCurve();
    void addPresets();
    void addHistory();
    void showAdjustments();
    void showHistogram();

    QPointer<Photo> mPhoto;
    QVBoxLayout *mLayout;
    QVector<AdjustmentRow *> mRows;
    CurveEditor *mCurve = nullptr;
    PresetControls *mPresets = nullptr;
    QUndoView *mHistory = nullptr;
    VantraButton *mUndo = nullptr;
    VantraButton *mRedo = nullptr;
};
