#include "Style/VantraStyle.h"
#include "StyleOptions/VantraStyleOptionSlider.h"
#include "StyleOptions/VantraStyleOptionViewItem.h"
#include "Support/DataRows.h"
#include "Support/FatalTest.h"
#include "Support/ThemeFixture.h"
#include "Theme/VantraFont.h"

#include <QtCore/QMetaEnum>
#include <QtWidgets/QtWidgets>

#include <cmath>
#include <memory>

namespace {

const QString kText("Wide");
constexpr int kArrow = 16;

QIcon icon()
{
    QPixmap pixmap(64, 64);
    pixmap.fill(Qt::white);
    return QIcon(pixmap);
}

QFontMetrics metrics(int inDesignSize, QFont::Weight inWeight = QFont::Black, QFont inBase = QFont())
{
    inBase.setPointSize(VantraFont::scaledPointSize(inDesignSize));
    inBase.setWeight(inWeight);
    return QFontMetrics(inBase);
}

// A text with the 4 pixels that each gets.
QSize padded(const QFontMetrics &inMetrics, const QString &inText = kText)
{
    return inMetrics.size(0, inText) + QSize(4, 0);
}

struct MetricRow
{
    const char *name;
    int answer;
};

constexpr MetricRow kMetrics[] = {
    {"PM_ButtonMargin", 0},
    {"PM_ButtonShiftHorizontal", 0},
    {"PM_ButtonShiftVertical", 0},
    {"PM_DefaultFrameWidth", 0},
    {"PM_TabBarBaseOverlap", 0},
    {"PM_FocusFrameVMargin", 0},
    {"PM_FocusFrameHMargin", 0},
    {"PM_ScrollView_ScrollBarSpacing", 0},
    {"PM_ScrollView_ScrollBarOverlap", 0},
    {"PM_SpinBoxFrameWidth", 16},
    {"PM_ScrollBarExtent", 8},
    {"PM_ScrollBarSliderMin", 32},
    {"PM_SliderThickness", 22},
    {"PM_SliderControlThickness", 4},
    {"PM_SliderLength", 100},
    {"PM_TabBarTabHSpace", 10},
    {"PM_ProgressBarChunkWidth", 9},
    {"PM_IndicatorWidth", 16},
    {"PM_IndicatorHeight", 16},
    {"PM_ExclusiveIndicatorWidth", 16},
    {"PM_ExclusiveIndicatorHeight", 16},
};

constexpr MetricRow kMenuMetrics[] = {
    {"PM_MenuHMargin", 0},    {"PM_MenuPanelWidth", 0}, {"PM_MenuDesktopFrameWidth", 0},
    {"PM_SubMenuOverlap", 0}, {"PM_MenuVMargin", 4},
};

QStyle::PixelMetric currentMetric()
{
    const int value = QMetaEnum::fromType<QStyle::PixelMetric>().keyToValue(QTest::currentDataTag());
    return static_cast<QStyle::PixelMetric>(value);
}

struct ViewItemRow
{
    const char *name;
    bool decorated;
    bool checkable;
    bool indented;
    QString text;
    QSize size;
    // In an item from (10, 20), 200 wide and 31 high.
    QRect decorationRect;
    QRect checkRect;
    int textLeft;
};

std::vector<ViewItemRow> viewItemRows()
{
    const QSize text = padded(metrics(11));
    const QSize all(22 + 4 + 16 + 4 + text.width(), qMax(16, text.height()) + 4);
    const QRect decoration(10, 29, 22, 12);
    return {
        {"nothing", false, false, false, "", {22, 4}, {}, {}, 10},
        {"text", false, false, false, kText, {text.width(), text.height() + 4}, {}, {}, 10},
        {"indented text", false, false, true, kText, {text.width(), text.height() + 4}, {}, {}, 20},
        {"decoration", true, false, true, "", {22, 16}, decoration, {}, 31 + 4},
        {"check", false, true, true, "", {16, 20}, {}, {10, 27, 16, 16}, 25 + 4},
        {"decoration and check", true, true, false, "", {42, 20}, decoration, {35, 27, 16, 16}, 50 + 4},
        {"all", true, true, false, kText, all, decoration, {35, 27, 16, 16}, 50 + 4},
    };
}

struct ProgressRow
{
    const char *name;
    QRect rect;
    int minimum;
    int maximum;
    int progress;
    QRect groove;
    QRect contents;
};

std::vector<ProgressRow> progressRows()
{
    const QRect rect(0, 0, 200, 31);
    const QRect groove(0, 11, 200, 8);
    const QRect low(0, 0, 100, 8);
    const QRect thin(10, 5, 100, 6);
    return {
        {"quarter", rect, 0, 100, 25, groove, {0, 11, 50, 8}},
        {"start", rect, 0, 100, 0, groove, {0, 11, 0, 8}},
        {"end", rect, 0, 100, 100, groove, groove},
        {"not begun", rect, 0, 100, -1, groove, {}},
        {"beyond", rect, 0, 100, 150, groove, {0, 11, 300, 8}},
        {"whole pixels", low, 0, 3, 1, low, {0, 0, 34, 8}},
        {"thin, elsewhere", thin, -50, 50, 0, thin, {10, 5, 50, 6}},
        {"large numbers", rect, INT_MIN, INT_MAX, 0, groove, {0, 11, 101, 8}},
    };
}

struct ScrollBarRow
{
    const char *name;
    int extent;
    int maximum;
    int page;
    int value;
    bool upsideDown;
    int position;
    int length;
};

constexpr ScrollBarRow kScrollBars[] = {
    {"half", 200, 100, 100, 50, false, 50, 100},
    {"at the end", 200, 100, 100, 100, false, 100, 100},
    {"upside down", 200, 100, 100, 25, true, 75, 100},
    {"shortest thumb", 200, 90, 10, 45, false, 84, 32},
    {"no page", 200, 90, 0, 0, false, 0, 32},
    {"nothing to scroll", 200, 0, 10, 0, false, 0, 200},
    {"shorter than a thumb", 20, 90, 10, 45, false, 0, 20},
    {"large numbers", 200, INT_MAX, INT_MAX, 0, false, 0, 100},
};

struct HandleRow
{
    const char *name;
    bool grows;
    QStyle::State state;
    bool upsideDown;
    QRect rect;
};

const HandleRow kHandles[] = {
    {"plain", true, QStyle::State_Enabled, false, {25, 5, 12, 12}},
    {"hovered", true, QStyle::State_Enabled | QStyle::State_MouseOver, false, {24, 3, 16, 16}},
    {"pressed", true, QStyle::State_Enabled | QStyle::State_On, false, {24, 3, 16, 16}},
    {"disabled", true, QStyle::State_MouseOver, false, {25, 5, 12, 12}},
    {"not growing", false, QStyle::State_Enabled | QStyle::State_MouseOver, false, {25, 5, 12, 12}},
    {"upside down", false, QStyle::State_Enabled, true, {75, 5, 12, 12}},
};

struct ComboBoxPartRow
{
    const char *name;
    QStyle::SubControl part;
    bool editable;
    QRect rect;
};

// An empty pill is 40 by 24 with ends of 12, whatever the option's own size.
const ComboBoxPartRow kComboBoxParts[] = {
    {"frame", QStyle::SC_ComboBoxFrame, true, {10, 20, 40, 24}},
    {"field without a text", QStyle::SC_ComboBoxEditField, true, {QPoint(22, 20), QPoint(309 - 28, 69)}},
    {"arrow", QStyle::SC_ComboBoxArrow, true, {QPoint(49 - 28, 20), QPoint(49, 43)}},
    {"fixed field", QStyle::SC_ComboBoxEditField, false, {10, 20, 40, 24}},
    {"fixed arrow", QStyle::SC_ComboBoxArrow, false, {10, 20, 40, 24}},
    {"popup", QStyle::SC_ComboBoxListBoxPopup, false, {10, 20, 300, 50}},
    {"other", QStyle::SC_None, false, {10, 20, 300, 50}},
};

// A further style over ours, with scroll bars that lie over the contents.
class TransientStyle : public QProxyStyle
{
public:
    TransientStyle() : QProxyStyle(new VantraStyle) {}
    int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                  QStyleHintReturn *data) const override
    {
        return hint == SH_ScrollBar_Transient ? 1 : QProxyStyle::styleHint(hint, option, widget, data);
    }
};

} // namespace

class tst_VantraStyleGeometry : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void metricsOfTheDesign_data() { DataRows::add(kMetrics); }
    void metricsOfTheDesign();
    void menuMetricsAreOfMenusAlone_data() { DataRows::add(kMenuMetrics); }
    void menuMetricsAreOfMenusAlone();
    void otherMetricsAreFusions();
    void overlapFollowsTheHintOfAFurtherStyle();

    void viewItem_data() { DataRows::add(viewItemRows()); }
    void viewItem();

    void buttonsAndSlidersUseAllTheirRect();
    void progressRects_data() { DataRows::add(progressRows()); }
    void progressRects();
    void busyProgressFollowsTheCosine();
    void scrollBarRects_data() { DataRows::add(kScrollBars); }
    void scrollBarRects();
    void sliderHandleRect_data() { DataRows::add(kHandles); }
    void sliderHandleRect();
    void spinButtonsMoveOffTheRoundEnd();
    void comboBoxRects_data() { DataRows::add(kComboBoxParts); }
    void comboBoxRects();
    void comboBoxFieldHoldsItsText();
    void comboBoxPopupHoldsTheWidestRow();

private:
    QSize sizeOf(QStyle::ContentsType inType, const QStyleOption &inOption, const QWidget *inWidget = nullptr)
    {
        return mStyle->sizeFromContents(inType, &inOption, QSize(500, 500), inWidget);
    }

    std::unique_ptr<QStyle> mFusion{QStyleFactory::create("Fusion")};
    std::unique_ptr<VantraStyle> mStyle;
};

void tst_VantraStyleGeometry::initTestCase()
{
    QVERIFY(ThemeFixture::load());
    mStyle = std::make_unique<VantraStyle>();
}

void tst_VantraStyleGeometry::metricsOfTheDesign()
{
    QCOMPARE(mStyle->pixelMetric(currentMetric()), DataRows::current(kMetrics).answer);
}

void tst_VantraStyleGeometry::menuMetricsAreOfMenusAlone()
{
    const QStyle::PixelMetric metric = currentMetric();
    QMenu menu;
    QMenuBar bar;
    QCOMPARE(mStyle->pixelMetric(metric, nullptr, &menu), DataRows::current(kMenuMetrics).answer);
    QCOMPARE(mStyle->pixelMetric(metric, nullptr, &bar), mFusion->pixelMetric(metric, nullptr, &bar));
    QCOMPARE(mStyle->pixelMetric(metric), mFusion->pixelMetric(metric));
}

void tst_VantraStyleGeometry::otherMetricsAreFusions()
{
    for (const QStyle::PixelMetric metric :
         {QStyle::PM_SmallIconSize, QStyle::PM_ToolBarItemSpacing, QStyle::PM_HeaderMargin,
          QStyle::PM_SplitterWidth, QStyle::PM_CheckBoxLabelSpacing, QStyle::PM_LayoutLeftMargin}) {
        QCOMPARE(mStyle->pixelMetric(metric), mFusion->pixelMetric(metric));
    }
}

void tst_VantraStyleGeometry::overlapFollowsTheHintOfAFurtherStyle()
{
    QCOMPARE(TransientStyle().pixelMetric(QStyle::PM_ScrollView_ScrollBarOverlap), 8);
}

void tst_VantraStyleGeometry::viewItem()
{
    const ViewItemRow row = DataRows::current(viewItemRows());
    VantraStyleOptionViewItem option;
    option.rect = QRect(10, 20, 200, 31);
    option.direction = Qt::RightToLeft; // the design has one direction alone
    option.decorationSize = QSize(16, 12);
    option.icon = row.decorated ? icon() : QIcon();
    option.features = QStyleOptionViewItem::HasDecoration; // which without an icon counts nothing
    option.features.setFlag(QStyleOptionViewItem::HasCheckIndicator, row.checkable);
    option.useIndent = row.indented;
    option.text = row.text;
    const auto rectOf = [&](QStyle::SubElement inPart) { return mStyle->subElementRect(inPart, &option); };
    QCOMPARE(sizeOf(QStyle::CT_ItemViewItem, option), row.size);
    QCOMPARE(rectOf(QStyle::SE_ItemViewItemDecoration), row.decorationRect);
    QCOMPARE(rectOf(QStyle::SE_ItemViewItemCheckIndicator), row.checkRect);
    QCOMPARE(rectOf(QStyle::SE_ItemViewItemText), QRect(QPoint(row.textLeft, 20), QPoint(209, 50)));
}

void tst_VantraStyleGeometry::buttonsAndSlidersUseAllTheirRect()
{
    const QRect rect(3, 4, 50, 20);
    QStyleOptionButton button;
    button.rect = rect;
    button.features = QStyleOptionButton::HasMenu | QStyleOptionButton::AutoDefaultButton;
    for (const QStyle::SubElement element : {QStyle::SE_PushButtonContents, QStyle::SE_PushButtonFocusRect,
                                             QStyle::SE_PushButtonLayoutItem, QStyle::SE_PushButtonBevel}) {
        QCOMPARE(mStyle->subElementRect(element, &button), rect);
    }
    QStyleOptionSlider slider;
    slider.rect = rect;
    QCOMPARE(mStyle->subElementRect(QStyle::SE_SliderFocusRect, &slider), rect);
    QCOMPARE(mStyle->subElementRect(QStyle::SE_SliderLayoutItem, &slider), rect);
    QCOMPARE(mStyle->subControlRect(QStyle::CC_Slider, &slider, QStyle::SC_SliderGroove), rect);
    QStyleOptionToolButton toolButton;
    toolButton.rect = rect;
    toolButton.features = QStyleOptionToolButton::MenuButtonPopup;
    QCOMPARE(mStyle->subControlRect(QStyle::CC_ToolButton, &toolButton, QStyle::SC_ToolButton), rect);
    QCOMPARE(mStyle->subControlRect(QStyle::CC_ToolButton, &toolButton, QStyle::SC_ToolButtonMenu), rect);
}

void tst_VantraStyleGeometry::progressRects()
{
    const ProgressRow row = DataRows::current(progressRows());
    QStyleOptionProgressBar option;
    option.rect = row.rect;
    option.minimum = row.minimum;
    option.maximum = row.maximum;
    option.progress = row.progress;
    QCOMPARE(mStyle->subElementRect(QStyle::SE_ProgressBarGroove, &option), row.groove);
    QCOMPARE(mStyle->subElementRect(QStyle::SE_ProgressBarContents, &option), row.contents);
    QCOMPARE(mStyle->subElementRect(QStyle::SE_ProgressBarLabel, &option), QRect());
}

void tst_VantraStyleGeometry::busyProgressFollowsTheCosine()
{
    QProgressBar bar;
    QStyleOptionProgressBar option;
    option.rect = QRect(0, 0, 400, 8);
    const auto edgeAt = [](double inSeconds) {
        return static_cast<int>((std::cos(inSeconds * M_PI - M_PI) + 1.0) * 0.5 * 400);
    };
    const auto secondsNow = [&] { return mStyle->animationTime(&bar).count() / 1000.0; };
    const auto contents = [&] {
        return mStyle->subElementRect(QStyle::SE_ProgressBarContents, &option, &bar);
    };
    QCOMPARE(contents(), QRect(QPoint(0, 0), QPoint(0, 7))); // which starts the clock

    bool grew = false;
    bool shrank = false;
    QElapsedTimer patience;
    patience.start();
    while (!(grew && shrank) && patience.elapsed() < 10000) {
        QTest::qWait(30);
        const double before = std::fmod(secondsNow(), 2.0);
        const QRect rect = contents();
        const double after = std::fmod(secondsNow(), 2.0);
        if (0.3 < before && before <= after && after < 1.0) {
            QCOMPARE(rect.left(), 0);
            QVERIFY(rect.right() >= edgeAt(before) - 1 && rect.right() <= edgeAt(after) + 1);
            grew = true;
        } else if (1.3 < before && before <= after) {
            QCOMPARE(rect.right(), 399);
            QVERIFY(rect.left() >= edgeAt(before - 1.0) - 1 && rect.left() <= edgeAt(after - 1.0) + 1);
            shrank = true;
        }
    }
    QVERIFY(grew && shrank);
}

void tst_VantraStyleGeometry::scrollBarRects()
{
    const ScrollBarRow row = DataRows::current(kScrollBars);
    for (const Qt::Orientation orientation : {Qt::Horizontal, Qt::Vertical}) {
        const bool upright = orientation == Qt::Vertical;
        const auto span = [upright](int inFrom, int inLength) {
            return upright ? QRect(0, inFrom, 8, inLength) : QRect(inFrom, 0, inLength, 8);
        };
        QStyleOptionSlider option;
        option.rect = span(0, row.extent).translated(30, 40); // the parts count from the bar's own origin
        option.orientation = orientation;
        option.maximum = row.maximum;
        option.pageStep = row.page;
        option.sliderPosition = row.value;
        option.upsideDown = row.upsideDown;
        const auto rectOf = [&](QStyle::SubControl inPart) {
            return mStyle->subControlRect(QStyle::CC_ScrollBar, &option, inPart);
        };
        const int end = row.position + row.length;
        QCOMPARE(rectOf(QStyle::SC_ScrollBarSlider), span(row.position, row.length));
        QCOMPARE(rectOf(QStyle::SC_ScrollBarSubPage), span(0, row.position));
        QCOMPARE(rectOf(QStyle::SC_ScrollBarAddPage), span(end, row.extent - end));
        QCOMPARE(rectOf(QStyle::SC_ScrollBarGroove), span(0, row.extent));
        for (const QStyle::SubControl part : {QStyle::SC_ScrollBarAddLine, QStyle::SC_ScrollBarSubLine,
                                              QStyle::SC_ScrollBarFirst, QStyle::SC_ScrollBarLast}) {
            QCOMPARE(rectOf(part), QRect());
        }
    }
}

void tst_VantraStyleGeometry::sliderHandleRect()
{
    const HandleRow row = DataRows::current(kHandles);
    VantraStyleOptionSlider option;
    option.rect = QRect(7, 9, 112, 22); // the handle counts from the slider's own origin
    option.maximum = 100;
    option.sliderValue = 25;
    option.enlargeHandle = row.grows;
    option.state = row.state;
    option.upsideDown = row.upsideDown;
    QCOMPARE(mStyle->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle), row.rect);
}

void tst_VantraStyleGeometry::spinButtonsMoveOffTheRoundEnd()
{
    QStyleOptionSpinBox option;
    option.rect = QRect(0, 0, 100, 24);
    option.frame = true;
    const auto moved = [&](QStyle::SubControl inPart) {
        return mStyle->subControlRect(QStyle::CC_SpinBox, &option, inPart).topLeft() -
               mFusion->subControlRect(QStyle::CC_SpinBox, &option, inPart).topLeft();
    };
    QCOMPARE(moved(QStyle::SC_SpinBoxUp), QPoint(-8, 0));
    QCOMPARE(moved(QStyle::SC_SpinBoxDown), QPoint(-8, 0));
    QCOMPARE(moved(QStyle::SC_SpinBoxEditField), QPoint(0, 0));
    QCOMPARE(moved(QStyle::SC_SpinBoxFrame), QPoint(0, 0));
}

void tst_VantraStyleGeometry::comboBoxRects()
{
    const ComboBoxPartRow row = DataRows::current(kComboBoxParts);
    QStyleOptionComboBox option;
    option.rect = QRect(10, 20, 300, 50);
    option.editable = row.editable;
    QCOMPARE(mStyle->subControlRect(QStyle::CC_ComboBox, &option, row.part), row.rect);
}

void tst_VantraStyleGeometry::comboBoxFieldHoldsItsText()
{
    QStyleOptionComboBox option;
    option.rect = QRect(10, 20, 300, 50);
    option.editable = true;
    option.currentText = QStringLiteral("Portrait");
    const QSize size = sizeOf(QStyle::CT_ComboBox, option);
    const int pill = size.height() / 2;
    QCOMPARE(mStyle->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField),
             QRect(10 + pill, 20, size.width() - 2 * pill - 16, size.height()));
}

void tst_VantraStyleGeometry::comboBoxPopupHoldsTheWidestRow()
{
    QComboBox comboBox;
    comboBox.setStyle(mStyle.get());
    comboBox.addItems({"a", QString(60, 'm'), "b"});
    QStyleOptionComboBox option;
    option.rect = QRect(5, 6, 50, 24);
    const auto popup = [&] {
        return mStyle->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxListBoxPopup,
                                      &comboBox);
    };
    const int text = comboBox.fontMetrics().boundingRect(QString(60, 'm')).width();
    const int bar = comboBox.view()->verticalScrollBar()->sizeHint().width();
    QCOMPARE(popup(), QRect(5, 6, bar + text, 24));

    comboBox.view()->setIconSize(QSize(30, 30));
    comboBox.setItemData(1, Qt::Checked, Qt::CheckStateRole);
    QCOMPARE(popup().width(), bar + text + 30 + 16);

    comboBox.setMinimumWidth(text * 2);
    QCOMPARE(popup().width(), text * 2);
    option.rect.setWidth(text * 3);
    QCOMPARE(popup().width(), text * 3);
}

FATAL_TEST_MAIN(tst_VantraStyleGeometry)

#include "tst_VantraStyleGeometry.moc"
