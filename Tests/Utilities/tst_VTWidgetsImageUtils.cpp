#include "Controls/VantraMenu.h"
#include "Support/FatalTest.h"
#include "Support/ThemeFixture.h"
#include "Theme/VantraFont.h"
#include "Utilities/VTWidgetsImageUtils.h"

#include <QtCore/QTemporaryDir>
#include <QtGui/QPainter>
#include <QtTest/QtTest>

namespace {

// A disc of half transparency on a clear ground.
QImage disc(int inSize = 24)
{
    return ThemeFixture::paint(QSize(inSize, inSize), [inSize](QPainter &painter) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor(200, 100, 50, 128));
        painter.drawEllipse(0, 0, inSize, inSize);
    });
}

QList<QPair<QIcon::Mode, QIcon::State>> ownForms(const QIcon &inIcon)
{
    QList<QPair<QIcon::Mode, QIcon::State>> forms;
    for (const QIcon::Mode mode : {QIcon::Normal, QIcon::Disabled, QIcon::Active, QIcon::Selected}) {
        for (const QIcon::State state : {QIcon::Off, QIcon::On}) {
            if (!inIcon.availableSizes(mode, state).isEmpty()) {
                forms << qMakePair(mode, state);
            }
        }
    }
    return forms;
}

} // namespace

FATAL_CASE(missingImage)
{
    VTWidgetsLoadImage(QStringLiteral(":/nothing.png"));
}

FATAL_CASE(missingPixmap)
{
    VTWidgetsLoadPixmap(QStringLiteral(":/nothing.png"));
}

class tst_VTWidgetsImageUtils : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void missingPicturesStopTheProcess();
    void maskTakesTheColourAndKeepsItsShape();
    void extremesOfTheMask();
    void iconFormsAreThoseAskedFor();
    void colouredIconKeepsItsSizes();
    void styledMenuReachesItsSubmenus();

private:
    QTemporaryDir mFolder;
    QString mPath;
};

void tst_VTWidgetsImageUtils::initTestCase()
{
    QVERIFY(ThemeFixture::load());
    mPath = mFolder.filePath(QStringLiteral("Disc.png"));
    QVERIFY(disc().save(mPath));
    QVERIFY(disc(48).save(mFolder.filePath(QStringLiteral("Disc@2x.png"))));
}

void tst_VTWidgetsImageUtils::missingPicturesStopTheProcess()
{
    QCOMPARE(FatalTest::assertionOf("missingImage"), QStringLiteral("test"));
    QCOMPARE(FatalTest::assertionOf("missingPixmap"), QStringLiteral("test"));
}

void tst_VTWidgetsImageUtils::maskTakesTheColourAndKeepsItsShape()
{
    const QImage image = VTWidgetsGenerateColorPixmap(disc(), QColor(10, 200, 30)).toImage();
    QCOMPARE(image.size(), QSize(24, 24));
    const QColor centre = image.pixelColor(12, 12);
    QVERIFY(qAbs(centre.alpha() - 128) <= 2);
    QVERIFY(qAbs(centre.red() - 10) <= 2 && qAbs(centre.green() - 200) <= 2 && qAbs(centre.blue() - 30) <= 2);
    QCOMPARE(image.pixelColor(0, 0).alpha(), 0);
}

void tst_VTWidgetsImageUtils::extremesOfTheMask()
{
    QImage image(4, 4, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    QCOMPARE(VTWidgetsGenerateColorPixmap(image, Qt::green).toImage().pixelColor(1, 1).alpha(), 0);
    image.fill(Qt::magenta);
    QCOMPARE(VTWidgetsGenerateColorPixmap(image, Qt::green).toImage().pixelColor(1, 1), QColor(Qt::green));
}

void tst_VTWidgetsImageUtils::iconFormsAreThoseAskedFor()
{
    using Forms = QList<QPair<QIcon::Mode, QIcon::State>>;
    const Forms normal{{QIcon::Normal, QIcon::Off}};
    QCOMPARE(ownForms(VTWidgetsLoadIcon(mPath)), normal);
    QCOMPARE(ownForms(VTWidgetsLoadIcon(mPath, Qt::green, QColor())), normal);
    QCOMPARE(ownForms(VTWidgetsLoadIcon(mPath, Qt::green, Qt::blue)),
             (Forms{{QIcon::Normal, QIcon::Off}, {QIcon::Selected, QIcon::Off}}));
    QCOMPARE(ownForms(VTWidgetsLoadIcon(mPath, Qt::green, QColor(), Qt::gray)),
             (Forms{{QIcon::Normal, QIcon::Off}, {QIcon::Disabled, QIcon::Off}}));
    QCOMPARE(ownForms(VTWidgetsLoadIcon(mPath, mPath)), (Forms{{QIcon::Normal, QIcon::Off},
                                                               {QIcon::Normal, QIcon::On},
                                                               {QIcon::Disabled, QIcon::Off},
                                                               {QIcon::Disabled, QIcon::On}}));
    QCOMPARE(ownForms(VTWidgetsLoadSelectableIcon(mPath, QColor())), normal);
}

void tst_VTWidgetsImageUtils::colouredIconKeepsItsSizes()
{
    QIcon icon;
    icon.addPixmap(QPixmap::fromImage(disc(16)));
    icon.addPixmap(QPixmap::fromImage(disc(32)));
    const QIcon coloured = VTWidgetsGenerateColorIcon(icon, Qt::cyan);
    QCOMPARE(coloured.availableSizes(), icon.availableSizes());
    QVERIFY(VTWidgetsGenerateColorIcon(QIcon(), Qt::cyan).isNull());

    VTWidgetsGenerateIconSelectedPixmaps(icon);
    QCOMPARE(icon.availableSizes(QIcon::Selected, QIcon::Off).size(), 2);
    QCOMPARE(icon.pixmap(16, QIcon::Selected).toImage(), icon.pixmap(16).toImage());
}

void tst_VTWidgetsImageUtils::styledMenuReachesItsSubmenus()
{
    QWidget parent;
    parent.setLayoutDirection(Qt::RightToLeft);
    QMenu *menu = VTWidgetsCreateStyledMenu(QStringLiteral("Presets"), &parent);
    QVERIFY(qobject_cast<VantraMenu *>(menu) != nullptr);
    QMenu *submenu = menu->addMenu(QStringLiteral("More"))->addMenu(QStringLiteral("Still more"));
    VTWidgetsInitStyledMenu(*menu);
    QCOMPARE(submenu->layoutDirection(), Qt::LeftToRight);
    QCOMPARE(submenu->font().family(), VantraFont::getFontFamily());
    QCOMPARE(menu->parentWidget(), &parent);
}

FATAL_TEST_MAIN(tst_VTWidgetsImageUtils)
#include "tst_VTWidgetsImageUtils.moc"
