#include "Style/VantraStyle.h"
#include "Support/FatalTest.h"
#include "Support/StyleSamples.h"
#include "Support/ThemeFixture.h"

#include <QtGui/QPainter>

namespace {

const char *const kDecorationWords =
    "VantraStyleHelperItemView: We currently only support the decoration on the left";

VantraStyleOptionViewItem rightDecorated()
{
    VantraStyleOptionViewItem option;
    option.rect = QRect(0, 0, 60, 20);
    option.decorationPosition = QStyleOptionViewItem::Right;
    return option;
}

void paintItem(QStyle::ControlElement inElement)
{
    ThemeFixture::load();
    ThemeFixture::paintControl(VantraStyle(), inElement, rightDecorated());
}

void paintItem(QStyle::PrimitiveElement inElement)
{
    ThemeFixture::load();
    ThemeFixture::paintPrimitive(VantraStyle(), inElement, rightDecorated());
}

void paintSlider(const QRect &inRect, int inWidgetHeight)
{
    ThemeFixture::load();
    VantraStyleOptionSlider option;
    option.rect = inRect;
    option.maximum = 10;
    option.subControls = QStyle::SC_SliderGroove | QStyle::SC_SliderHandle;
    QWidget widget;
    widget.resize(20, inWidgetHeight);
    ThemeFixture::paintComplex(VantraStyle(), QStyle::CC_Slider, option, &widget);
}

} // namespace

FATAL_CASE(itemDecoratedOnTheRight)
{
    paintItem(QStyle::CE_ItemViewItem);
}

FATAL_CASE(branchDecoratedOnTheRight)
{
    paintItem(QStyle::PE_IndicatorBranch);
}

FATAL_CASE(itemPanelDecoratedOnTheRight)
{
    paintItem(QStyle::PE_PanelItemViewItem);
}

FATAL_CASE(rowPanelDecoratedOnTheRight)
{
    paintItem(QStyle::PE_PanelItemViewRow);
}

FATAL_CASE(textRectDecoratedOnTheRight)
{
    ThemeFixture::load();
    const VantraStyleOptionViewItem option = rightDecorated();
    VantraStyle().subElementRect(QStyle::SE_ItemViewItemText, &option);
}

FATAL_CASE(sizeDecoratedOnTheRight)
{
    ThemeFixture::load();
    const VantraStyleOptionViewItem option = rightDecorated();
    VantraStyle().sizeFromContents(QStyle::CT_ItemViewItem, &option, QSize());
}

FATAL_CASE(sliderWithoutRect)
{
    paintSlider(QRect(), 20);
}

FATAL_CASE(sliderOfOneColumn)
{
    paintSlider(QRect(0, 0, 1, 20), 20);
}

FATAL_CASE(sliderInAMuchTallerWidget)
{
    paintSlider(QRect(0, 0, 60, 20), 40);
}

FATAL_CASE(sliderThatFits)
{
    paintSlider(QRect(0, 0, 60, 20), 20);
}

class tst_VantraStyleFatal : public QObject
{
    Q_OBJECT

private slots:
    // The handle's two conditions hold for every option, since its size comes from the theme alone; and no
    // option asks for corners that the rounded fill doesn't know.
    void stopsWithItsWords_data()
    {
        QTest::addColumn<QString>("words");
        for (const char *name :
             {"itemDecoratedOnTheRight", "branchDecoratedOnTheRight", "itemPanelDecoratedOnTheRight",
              "rowPanelDecoratedOnTheRight", "textRectDecoratedOnTheRight", "sizeDecoratedOnTheRight"}) {
            QTest::newRow(name) << QString(kDecorationWords);
        }
        QTest::newRow("sliderWithoutRect") << "(option != nullptr) && grooveRect.isValid()";
        QTest::newRow("sliderOfOneColumn") << "adjRect.isValid() && !adjRect.isNull()";
        QTest::newRow("sliderInAMuchTallerWidget") << "adjRect.isValid() && !adjRect.isNull()";
    }

    void stopsWithItsWords() { QTEST(FatalTest::assertionOf(QTest::currentDataTag()), "words"); }

    void goesOnWhereNothingIsWrong()
    {
        const FatalTest::Outcome outcome = FatalTest::run("sliderThatFits");
        QVERIFY2(!outcome.aborted, qPrintable(outcome.output));
    }
};

FATAL_TEST_MAIN(tst_VantraStyleFatal)
#include "tst_VantraStyleFatal.moc"
