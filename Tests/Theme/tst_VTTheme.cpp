#include "Support/FatalTest.h"
#include "Theme/VTTheme.h"

class tst_VTTheme : public QObject
{
    Q_OBJECT

private slots:
    void printsForStyleSheets();
    void opacityIsTheSystems();
};

void tst_VTTheme::printsForStyleSheets()
{
    QCOMPARE(VTTheme::toString(QColor(1, 2, 3, 4)), QString("rgba(1,2,3,4)"));
    QCOMPARE(VTTheme::toString(QColor()), QString("rgba(0,0,0,255)"));
    QCOMPARE(VTTheme::toString(QColor::fromHsv(0, 255, 255)), QString("rgba(255,0,0,255)"));
    QCOMPARE(VTTheme::toString(QMargins(1, 2, 3, 4)), QString("2 3 4 1"));
}

void tst_VTTheme::opacityIsTheSystems()
{
#if defined(Q_OS_WIN)
    QCOMPARE(VTTheme::DISABLED_OPACITY, 0.5);
#else
    QCOMPARE(VTTheme::DISABLED_OPACITY, 0.75);
#endif
    QCOMPARE(VTTheme::toString(VTTheme::CURVES_GRID_PEN_COLOR), QString("rgba(30,30,30,128)"));
    QCOMPARE(VTTheme::toString(VTTheme::CURVES_COMPOSITE_PEN_COLOR), QString("rgba(255,255,255,255)"));
}

FATAL_TEST_MAIN(tst_VTTheme)
#include "tst_VTTheme.moc"
