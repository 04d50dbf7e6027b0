#pragma once

// A combo box in the house font that shows a placeholder while nothing is selected, tells when its popup
// opens and closes, draws separators as thin lines, and leaves the mouse wheel to what it stands on.
//
//     auto *comboBox = new VantraComboBox(parent);
//     comboBox->setPlaceholderText(tr("Choose a preset"));
//     comboBox->addItems(presetNames);
//     comboBox->setCurrentIndex(-1);
//
// A popup that is left without a choice emits highlighted once more, with the index that was current when it
// opened, so that a preview that follows highlighted goes back by itself. GUI thread only.

#include "VTWidgetsLiteExport.h"

#include <QtCore/QPersistentModelIndex>
#include <QtGui/QIcon>
#include <QtWidgets/QComboBox>

#include <functional>

class VTWIDGETSLITE_EXPORT VantraComboBoxBase : public QComboBox
{
    Q_OBJECT
    Q_PROPERTY(BackgroundStyle backgroundStyle READ backgroundStyle WRITE setBackgroundStyle NOTIFY
                   backgroundStyleChanged)
    Q_PROPERTY(QString placeholderText READ placeholderText WRITE setPlaceholderText)
    Q_PROPERTY(QIcon placeholderIcon READ placeholderIcon WRITE setPlaceholderIcon)

public:
    enum BackgroundStyle {
        BackgroundStyleNone = 0,     // no pill
        BackgroundStyleStandard = 1, // a filled pill
        BackgroundTransparent = 2,   // a transparent pill, with its room kept
    };
    Q_ENUM(BackgroundStyle)

    // The fonts must be loaded (VantraFont::loadApplicationFonts).
    explicit VantraComboBoxBase(QWidget *inParent = nullptr);
    ~VantraComboBoxBase() override;

    // BackgroundStyleStandard by default. A change emits backgroundStyleChanged and shows with the next
    // paint.
    BackgroundStyle backgroundStyle() const { return mBackgroundStyle; }
    void setBackgroundStyle(BackgroundStyle inStyle);

    // The text and the icon that are shown while the current index is -1. An empty text and a null icon, the
    // defaults, show nothing. A change shows with the next paint. These are not the
    // properties of the same names in QComboBox, which are not used.
    QString placeholderText() const { return mPlaceholderText; }
    void setPlaceholderText(const QString &inText) { mPlaceholderText = inText; }
    QIcon placeholderIcon() const { return mPlaceholderIcon; }
    void setPlaceholderIcon(const QIcon &inIcon) { mPlaceholderIcon = inIcon; }

    // setCurrentIndex without a word: currentIndexChanged isn't emitted.
    void setCurrentIndexAndBlockSignals(int inIndex);

    // Whether an item can be chosen. Both stop the process for a model other than a QStandardItemModel, such
    // as one behind a proxy. An index that isn't there is ignored, and is not enabled.
    void setItemEnabled(int inIndex, bool inEnabled);
    bool itemEnabled(int inIndex) const;

    // True for an item that insertSeparator has made. False for an invalid index.
    bool isSeparator(const QModelIndex &inIndex) const;

    // Makes the popup of a combo box at least as wide as this one's items ask for; showPopup does so for this
    // one. A null combo box stops the process.
    void adjustMinimumViewWidth(QComboBox *comboBox);

    // Also gives the line edit this widget's font. Hides QComboBox's, through which the line edit would keep
    // the application's.
    void setEditable(bool inEditable);

    // Called before each popup, ahead of aboutToShowPopup: the place to fill the list late. Empty by default.
    void setAboutToShowPopupFunc(const std::function<void(VantraComboBoxBase *)> &inFunc);

    bool event(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    void showPopup() override;
    void hidePopup() override;

public slots:
    // setCurrentIndex, as a slot.
    void setCurrentIndexTC(int index);

signals:
    void backgroundStyleChanged(VantraComboBoxBase::BackgroundStyle inBackgroundStyle);

    // Before the popup is measured and shown, and once it shows.
    void aboutToShowPopup();
    void showingPopup();

    // Before the popup closes. May come twice for one closing, and also without a popup.
    void hidingPopup();

protected:
    void wheelEvent(QWheelEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void changeEvent(QEvent *event) override;
    void initStyleOption(QStyleOptionComboBox *option) const override;

    // In logical pixels of this widget, as the style tells. Of the popup only left edge and width count.
    const QRect arrowRect() const;
    const QRect editFieldRect() const;
    const QRect popupRect() const;

private slots:
    void onPressed(const QModelIndex &index);
    void onHighlighted(int index);

private:
    void resetIndexes();
    void freezeHighlight();
    void highlightCurrentItem();

    int mHighlightedIndex = -1;
    int mPressedIndex = -1;
    int mPopupStartIndex = -1;              // until it has been restored, or a press makes it moot
    QPersistentModelIndex mClosedHighlight; // what the list showed when it was last closed
    QString mPlaceholderText;
    QIcon mPlaceholderIcon;
    std::function<void(VantraComboBoxBase *)> mAboutToShowPopupFunc;
    BackgroundStyle mBackgroundStyle = BackgroundStyleStandard;
};
