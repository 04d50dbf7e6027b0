#include "Style/VantraStyle.h"
#include "Theme/VantraFont.h"
#include "Theme/VantraStyleTheme.h"

#include <QtGui/QFontDatabase>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QStyleFactory>

#include <memory>

namespace {

bool isVantra(const QStyle *inStyle)
{
    return qobject_cast<const VantraStyle *>(inStyle) != nullptr;
}

QColor accent()
{
    return VantraStyleTheme::instance().accentColor(QPalette::Active);
}

} // namespace

// The program stands for one that knows nothing of the library: it is started with the style by the
// environment.
class tst_VantraStylePlugin : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { mFontAtStart = QApplication::font(); }

    void programStartedWithTheStyleLooksRight()
    {
        QVERIFY(isVantra(QApplication::style()));
        const VantraStyleTheme &theme = VantraStyleTheme::instance();
        QVERIFY(theme.colorPalette().contains(VantraPalette::Normal, VantraPalette::WindowBackground));
        QCOMPARE(QApplication::palette().color(QPalette::Window),
                 theme.windowBackgroundColor(QPalette::Active));
        QCOMPARE(mFontAtStart, VantraFont::mainFont());
        QCOMPARE(QPushButton().font().family(), QString("Roboto"));
    }

    void keyIsFoundInAnyCase()
    {
        QVERIFY(QStyleFactory::keys().contains("Vantra"));
        for (const char *key : {"Vantra", "vantra", "VANTRA"}) {
            const std::unique_ptr<QStyle> style(QStyleFactory::create(key));
            QVERIFY(isVantra(style.get()) && style.get() != QApplication::style());
        }
    }

    void loadedThemeStays()
    {
        const QColor blue = accent();
        VantraStyleTheme::loadGlobalConfig("base", "red");
        const QColor red = accent();
        QVERIFY(red != blue);
        const std::unique_ptr<QStyle> style(QStyleFactory::create("Vantra"));
        QCOMPARE(accent(), red);
        VantraStyleTheme::loadGlobalConfig("base", "blue");
    }

    void fontSetLaterWins()
    {
        QApplication::setStyle("Vantra");
        QCOMPARE(QApplication::font(), VantraFont::mainFont());
        const QFont chosen("Roboto", 20);
        QApplication::setFont(chosen);
        QCoreApplication::processEvents();
        QCOMPARE(QApplication::font(), chosen);

        QApplication::setStyle("Fusion");
        QCOMPARE(QApplication::font(), chosen);
    }

    void fontSetEarlierStays()
    {
        QApplication::setStyle("Fusion");
        const QFont chosen("Roboto", 20);
        QApplication::setFont(chosen);
        QApplication::setStyle("Vantra");
        QCoreApplication::processEvents();
        QCOMPARE(QApplication::font(), chosen);
    }

    void systemFontComesBackWithAnotherStyle()
    {
        const QFont systemFont = QFontDatabase::systemFont(QFontDatabase::GeneralFont);
        QApplication::setFont(systemFont);
        QApplication::setStyle("Vantra");
        QVERIFY(QApplication::font() != systemFont);
        QApplication::setStyle("Fusion");
        QCOMPARE(QApplication::font(), systemFont);
    }

    void styleOfOneWidgetLeavesTheApplicationsFont()
    {
        QApplication::setStyle("Fusion");
        const QFont before = QApplication::font();
        const std::unique_ptr<QStyle> style(QStyleFactory::create("Vantra"));
        QPushButton button("Text");
        button.setStyle(style.get());
        button.show();
        QVERIFY(QTest::qWaitForWindowExposed(&button));
        QCOMPARE(QApplication::font(), before);
    }

private:
    QFont mFontAtStart;
};

int main(int argc, char **argv)
{
    qputenv("QT_PLUGIN_PATH", PLUGIN_FOLDER);
    qputenv("QT_STYLE_OVERRIDE", "Vantra");
    QApplication application(argc, argv);
    tst_VantraStylePlugin test;
    QTEST_SET_MAIN_SOURCE_PATH
    return QTest::qExec(&test, argc, argv);
}

#include "tst_VantraStylePlugin.moc"
