#include "Controls/VantraButton.h"
#include "Progress/VantraProgress.h"
#include "Progress/VantraProgressMgr.h"
#include "Support/ThemeFixture.h"
#include "ToolTips/VantraToolTipContent.h"
#include "Window/VantraMessageBox.h"

#include <QtCore/QTranslator>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>

namespace {

QString learnHow()
{
    QWidget widget;
    VantraToolTipContent content(&widget);
    content.setToolTip(QStringLiteral(":/missing.gif"), QStringLiteral("Brush"), QStringLiteral("Paints."),
                       QStringLiteral("url"));
    const QRegularExpression link(QStringLiteral("align=right>(.*)</a>"));
    return link.match(widget.findChild<QLabel *>(QStringLiteral("mContentLabel"))->text()).captured(1);
}

QString notifications()
{
    QWidget parent;
    VantraButton button(&parent);
    button.setNotificationBadgeEnabled(true);
    button.setNotificationBadgeCount(3);
    return button.accessibleDescription();
}

QString cancel()
{
    QWidget parent;
    const VantraProgress dialog(&parent);
    return dialog.findChild<QPushButton *>()->text();
}

QString checkBox()
{
    QWidget parent;
    const VantraMessageBox box(QStringLiteral("Export"), QStringLiteral("Done."), &parent, true);
    return box.findChild<QCheckBox *>()->text();
}

QString stage()
{
    return VantraProgressMgr::tr("%1 (%2 of %3)").arg(QStringLiteral("Export")).arg(2).arg(5);
}

QStringList texts()
{
    return {learnHow(), notifications(), checkBox(), cancel(), stage()};
}

} // namespace

class tst_Translations : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(ThemeFixture::load()); }

    void textsFollowTheTranslator()
    {
        const QStringList english = texts();
        QCOMPARE(english, QStringList({"Learn how", "Notifications: 3", "Don't show me this message again",
                                       "Cancel", "Export (2 of 5)"}));
        QTranslator translator;
        QVERIFY(translator.load(QLocale(QStringLiteral("de_AT")), QStringLiteral("VTWidgetsLite"),
                                QStringLiteral("_"), QStringLiteral(":/VTWidgets/Translations")));
        QVERIFY(QCoreApplication::installTranslator(&translator));
        QCOMPARE(texts(),
                 QStringList({QStringLiteral("So geht’s"), "Benachrichtigungen: 3",
                              "Diese Meldung nicht mehr anzeigen", "Abbrechen", "Export (2 von 5)"}));
        QVERIFY(QCoreApplication::removeTranslator(&translator));
        QCOMPARE(texts(), english);
    }
};

QTEST_MAIN(tst_Translations)
#include "tst_Translations.moc"
