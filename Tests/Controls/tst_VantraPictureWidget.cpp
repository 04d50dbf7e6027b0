#include "Controls/VantraPictureWidget.h"

#include "Support/ThemeFixture.h"
#include "Utilities/VTWidgetsImageUtils.h"

#include <QtGui/QPainter>
#include <QtTest/QtTest>

namespace {

QImage grabbed(VantraPictureWidget &ioWidget)
{
    return ThemeFixture::paint(ioWidget.size(), [&ioWidget](QPainter &ioPainter) {
        ioWidget.render(&ioPainter, QPoint(), QRegion(), QWidget::DrawChildren);
    });
}

} // namespace

class tst_VantraPictureWidget : public QObject
{
    Q_OBJECT

private slots:
    void pictureIsStretchedOverTheWholeWidget_data();
    void pictureIsStretchedOverTheWholeWidget();
    void nullPictureShowsNothing();
    void resourceIsLoaded();
    void pictureGivesNoSize();
};

void tst_VantraPictureWidget::pictureIsStretchedOverTheWholeWidget_data()
{
    QTest::addColumn<qreal>("ratio");
    QTest::newRow("plain") << 1.0;
    QTest::newRow("double resolution") << 2.0;
}

void tst_VantraPictureWidget::pictureIsStretchedOverTheWholeWidget()
{
    QFETCH(const qreal, ratio);
    QPixmap pixmap(100, 50);
    pixmap.fill(Qt::red);
    QPainter(&pixmap).fillRect(50, 0, 50, 50, Qt::blue);
    pixmap.setDevicePixelRatio(ratio);
    VantraPictureWidget widget;
    widget.resize(200, 200);
    widget.setPixmap(pixmap);
    const QImage image = grabbed(widget);
    QCOMPARE(image.pixelColor(0, 0), QColor(Qt::red));
    QCOMPARE(image.pixelColor(97, 199), QColor(Qt::red));
    QCOMPARE(image.pixelColor(102, 0), QColor(Qt::blue));
    QCOMPARE(image.pixelColor(199, 199), QColor(Qt::blue));
}

void tst_VantraPictureWidget::nullPictureShowsNothing()
{
    VantraPictureWidget widget;
    widget.resize(20, 20);
    QCOMPARE(ThemeFixture::ink(grabbed(widget)), 0.0);
}

void tst_VantraPictureWidget::resourceIsLoaded()
{
    const QString path = QStringLiteral(":/VTWidgets/Warning.png");
    const QSize size = VTWidgetsLoadPixmap(path).size();
    VantraPictureWidget widget;
    widget.resize(size);
    widget.setPixmap(path);
    QVERIFY(ThemeFixture::ink(grabbed(widget)) > 0.1 * size.width() * size.height());
}

void tst_VantraPictureWidget::pictureGivesNoSize()
{
    VantraPictureWidget widget;
    QPixmap pixmap(100, 50);
    pixmap.fill(Qt::red);
    widget.setPixmap(pixmap);
    QVERIFY(!widget.sizeHint().isValid());
    QVERIFY(!widget.minimumSizeHint().isValid());
}

QTEST_MAIN(tst_VantraPictureWidget)
#include "tst_VantraPictureWidget.moc"
