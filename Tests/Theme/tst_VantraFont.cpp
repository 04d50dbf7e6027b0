#include "Controls/VantraButton.h"
#include "Support/FatalTest.h"
#include "Support/ThemeFixture.h"
#include "Theme/VantraFont.h"

#include <QtGui/QFontDatabase>
#include <QtGui/QPainter>
#include <QtWidgets/QLabel>

namespace {

// Hides the system's fonts from this program, among which may be the same family: what is seen comes from the
// fonts that the library carries. Takes effect before QApplication looks for fonts.
const ThemeFixture::Files sFontSettings;
const bool sHidden = qputenv(
    "FONTCONFIG_FILE",
    sFontSettings
        .write("fonts.conf", "<fontconfig><cachedir prefix=\"relative\">cache</cachedir></fontconfig>")
        .toLocal8Bit());

// The type asks for the class by name, so that a local one will do.
class VantraGroupLabel : public QLabel
{
    Q_OBJECT

public:
    using QLabel::QLabel;
};

} // namespace

FATAL_CASE(fontBeforeLoading)
{
    VantraFont::mainFont();
}

FATAL_CASE(fontAfterUnloading)
{
    VantraFont::loadApplicationFonts();
    VantraFont::unloadApplicationFonts();
    VantraFont::smallFontImmutable();
}

FATAL_CASE(loadTwice)
{
    VantraFont::loadApplicationFonts();
    VantraFont::loadApplicationFonts();
}

FATAL_CASE(loadTwiceAfterPlugin)
{
    VantraFont::ensureApplicationFonts();
    VantraFont::loadApplicationFonts();
    VantraFont::ensureApplicationFonts();
    VantraFont::loadApplicationFonts();
}

FATAL_CASE(fontsThatCannotBeAdded)
{
    VantraFont::loadApplicationFonts();
}

FATAL_CASE(fontsThatAreGone)
{
    VantraFont::loadApplicationFonts();
    QFontDatabase::removeAllApplicationFonts();
    VantraFont::unloadApplicationFonts();
}

FATAL_CASE(modifierOf6)
{
    VantraFont::setUserSelectedFontPointSizeModifier(6);
}

FATAL_CASE(modifierBelow0)
{
    VantraFont::setUserSelectedFontPointSizeModifier(-2);
}

class tst_VantraFont : public QObject
{
    Q_OBJECT

private slots:
    void init() { QVERIFY(VantraFont::loadApplicationFonts()); }

    void cleanup()
    {
        VantraFont::setUserSelectedFontPointSizeModifier(0);
        VantraFont::unloadApplicationFonts();
    }

    void misuseStopsTheProcess_data()
    {
        QTest::addColumn<QString>("platform");
        QTest::addColumn<QString>("assertion");

        const QString same;
        const QString notLoaded = "kFontsInitialized && \"Fonts have not been initialized yet.\"";
        const QString twice =
            "sFontIDs.size() == 0 && \"VantraFont::loadApplicationFonts should only be called once.\"";
        const QString modifier =
            "VentraFont::setUserSelectedFontPointSizeModifier: User selected font modifier must "
            "be equivalent to one of the UserSelectedFontSize enumerations.";
        QTest::newRow("fontBeforeLoading") << same << notLoaded;
        QTest::newRow("fontAfterUnloading") << same << notLoaded;
        QTest::newRow("loadTwice") << same << twice;
        QTest::newRow("loadTwiceAfterPlugin") << same << twice;
        // The minimal platform knows no fonts.
        QTest::newRow("fontsThatCannotBeAdded")
            << QString("minimal") << QString("validFont && \"Failed to add all application fonts\"");
        QTest::newRow("fontsThatAreGone")
            << same << QString("result && \"Failed to remove application fonts\"");
        QTest::newRow("modifierOf6") << same << modifier;
        QTest::newRow("modifierBelow0") << same << modifier;
    }

    void misuseStopsTheProcess()
    {
        QFETCH(QString, platform);
        QTEST(FatalTest::assertionOf(QTest::currentDataTag(), platform), "assertion");
    }

    void scaleFollowsTheModifier()
    {
        for (const int modifier : {4, 2, 0}) {
            VantraFont::setUserSelectedFontPointSizeModifier(modifier);
            QCOMPARE(VantraFont::extraSmallFont().pointSize(), 8 + modifier);
            QCOMPARE(VantraFont::extraSmallFontSize(), 8 + modifier);
            QCOMPARE(VantraFont::extraSmallFontImmutable().pointSize(), 8);
            QCOMPARE(VantraFont::extraLargeFontSize(), 18 + modifier);
            QCOMPARE(VantraFont::extraLargeFontSizeImmutable(), 18);
            QCOMPARE(VantraFont::largeFontPlus().pointSize(), 14 + modifier);
            QCOMPARE(VantraFont::mainFont().weight(), QFont::Normal);
            QCOMPARE(VantraFont::mainFont().family(), QString("Roboto"));
            QCOMPARE(VantraFont().pointSize(), 11 + modifier);
            QCOMPARE(VantraFont("Courier", 20).pointSize(), 20 + modifier);
        }
    }

    void equalSizesShareOneFont()
    {
        const QFont *plain = &VantraFont::mainFont();
        VantraFont::setUserSelectedFontPointSizeModifier(2);
        QCOMPARE(&VantraFont::mainFont(), &VantraFont::largeFontImmutable());
        QCOMPARE(&VantraFont::smallFont(), plain);
        QCOMPARE(plain->pointSize(), 11);
    }

    void weightsAreReal()
    {
        double lighter = 1.0;
        for (const QFont::Weight weight : {QFont::Thin, QFont::Normal, QFont::Medium, QFont::Black}) {
            QFont font = VantraFont::extraLargeFont();
            font.setPointSize(48);
            font.setWeight(weight);
            const QImage image = ThemeFixture::paint(QSize(600, 100), [&](QPainter &ioPainter) {
                ioPainter.setFont(font);
                ioPainter.drawText(QRect(0, 0, 600, 100), Qt::AlignCenter, "Hamburgefonts");
            });
            const double ink = ThemeFixture::ink(image);
            QVERIFY2(ink > lighter * 1.08,
                     qPrintable(QString("%1: %2 after %3").arg(weight).arg(ink).arg(lighter)));
            lighter = ink;
        }
    }

    void carriesAllStylesAndAnIconFont()
    {
#if defined(Q_OS_LINUX)
        QStringList styles = QFontDatabase::styles("Roboto");
        styles.sort();
        QCOMPARE(styles.join(", "),
                 QString("Black, Black Italic, Bold, Bold Italic, Italic, Light, Light Italic, Medium, "
                         "Medium Italic, Regular, Thin, Thin Italic"));
        QStringList families = QFontDatabase::families();
        VantraFont::unloadApplicationFonts();
        const QStringList without = QFontDatabase::families();
        QVERIFY(!without.contains("Roboto"));
        families.removeIf([&](const QString &inFamily) {
            return without.contains(inFamily) || inFamily.startsWith("Roboto");
        });
        QCOMPARE(families.size(), 1); // the icon font, whatever its name
#else
        QSKIP("The system's own fonts can't be told from the carried ones.");
#endif
    }

    void pluginAndProgramLoadTogether()
    {
        QVERIFY(VantraFont::ensureApplicationFonts()); // the program was first
        VantraFont::unloadApplicationFonts();
        QVERIFY(VantraFont::ensureApplicationFonts()); // the plug-in was first
        const QFont *font = &VantraFont::mainFont();
        QVERIFY(VantraFont::loadApplicationFonts());
        QCOMPARE(&VantraFont::mainFont(), font);
    }

    void specialLabelsKeepTheirFont()
    {
        QWidget window;
        auto *panel = new QWidget(&window);
        auto *button = new VantraButton(panel);
        auto *textOnly = new VantraButton(panel);
        textOnly->setProperty("textOnlyButtonStyle", true);
        auto *groupLabel = new VantraGroupLabel(panel);
        for (QWidget *widget : std::initializer_list<QWidget *>{button, textOnly, groupLabel}) {
            widget->setFont(QFont("Courier", 7));
        }
        VantraFont::setFont(VantraFont::largeFont(), &window);
        QCOMPARE(window.font().pointSize(), 13);
        QCOMPARE(button->font().pointSize(), 13);
        QCOMPARE(textOnly->font().pointSize(), 7);
        QCOMPARE(groupLabel->font().pointSize(), 7);

        VantraFont::setFont(VantraFont::largeFont(), groupLabel); // named itself, it takes the font
        QCOMPARE(groupLabel->font().pointSize(), 13);
        VantraFont::setFont(VantraFont::smallFont(), QList<QWidget *>{groupLabel, panel});
        QCOMPARE(groupLabel->font().pointSize(), 13);
        QCOMPARE(panel->font().pointSize(), 9);
    }
};

FATAL_TEST_MAIN(tst_VantraFont)
#include "tst_VantraFont.moc"
