#include "Support/FatalTest.h"
#include "Theme/VTTheme.h"

class tst_VTTheme : public QObject
{
    Q_OBJECT

private slots:
    void printsForStyleSheets()
    {
        QCOMPARE(VTTheme::toString(QColor(1, 2, 3, 4)), QString("rgba(1,2,3,4)"));
        QCOMPARE(VTTheme::toString(QColor()), QString("rgba(0,0,0,255)"));
        QCOMPARE(VTTheme::toString(QColor::fromHsv(0, 255, 255)), QString("rgba(255,0,0,255)"));
        QCOMPARE(VTTheme::toString(QMargins(1, 2, 3, 4)), QString("2 3 4 1"));
    }
};

FATAL_TEST_MAIN(tst_VTTheme)
#include "tst_VTTheme.moc"
