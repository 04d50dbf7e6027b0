#include "Controls/VantraButton.h"
#include "Controls/VantraComboBox.h"
#include "Controls/VantraFramePane.h"
#include "Controls/VantraLabel.h"
#include "Controls/VantraLineEditBase.h"
#include "Controls/VantraTextEdit.h"
#include "Controls/VantraToolButton.h"
#include "Theme/VantraFont.h"
#include "Theme/VantraStyleTheme.h"
#include "ui_controls.h"

#include <QtCore/QPluginLoader>
#include <QtTest/QtTest>
#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>
#include <QtUiPlugin/QDesignerCustomWidgetInterface>
#include <QtUiTools/QUiLoader>
#include <QtWidgets/QApplication>

#include <memory>

namespace {

std::unique_ptr<QWidget> load(QIODevice *ioDevice)
{
    QUiLoader loader;
    loader.addPluginPath(QStringLiteral(PLUGIN_FOLDER "/designer"));
    std::unique_ptr<QWidget> form(loader.load(ioDevice));
    if (form == nullptr) {
        qWarning() << loader.errorString();
    }
    return form;
}

} // namespace

// The program stands for one that knows nothing of the library's start order: it loads neither fonts nor
// theme.
class tst_DesignerPlugin : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        mPlugin.setFileName(QStringLiteral(PLUGIN_FOLDER "/designer/vantradesigner"));
        const auto *collection = qobject_cast<QDesignerCustomWidgetCollectionInterface *>(mPlugin.instance());
        QVERIFY2(collection != nullptr, qPrintable(mPlugin.errorString()));
        mControls = collection->customWidgets();
        QFile file(QStringLiteral(FORM_FILE));
        QVERIFY(file.open(QIODevice::ReadOnly));
        mLoaded = load(&file);
        QVERIFY(mLoaded != nullptr);
        mCompiled = std::make_unique<QWidget>();
        Ui::ControlsForm().setupUi(mCompiled.get());
    }

    void firstControlBringsFontsAndTheme()
    {
        QCOMPARE(VantraFont::mainFont().family(), VantraFont::getFontFamily());
        QVERIFY(VantraStyleTheme::instance().colorPalette().contains(VantraPalette::Normal,
                                                                     VantraPalette::WindowBackground));
    }

    void everyControlIsMadeAndDropped_data()
    {
        QTest::addColumn<QDesignerCustomWidgetInterface *>("control");
        for (QDesignerCustomWidgetInterface *control : std::as_const(mControls)) {
            QTest::newRow(qPrintable(control->name())) << control;
        }
    }

    void everyControlIsMadeAndDropped()
    {
        QFETCH(QDesignerCustomWidgetInterface *, control);
        const std::unique_ptr<QWidget> widget(control->createWidget(nullptr));
        QCOMPARE(QLatin1String(widget->metaObject()->className()), control->name());
        QVERIFY(QFile::exists(QStringLiteral(HEADER_FOLDER "/") + control->includeFile()));
        QCOMPARE(control->group(), QStringLiteral("VTWidgetsLite"));
        QVERIFY(!control->icon().isNull());
        QVERIFY(!control->toolTip().isEmpty());
        QCOMPARE(control->isContainer(), qobject_cast<VantraFrame *>(widget.get()) != nullptr);

        QTest::failOnWarning(QRegularExpression(QStringLiteral(".*")));
        QByteArray xml = control->domXml().toUtf8();
        const QRegularExpression base(QStringLiteral("<extends>(\\w+)</extends>"));
        QVERIFY(widget->inherits(qPrintable(base.match(QString::fromUtf8(xml)).captured(1))));
        QBuffer buffer(&xml);
        const std::unique_ptr<QWidget> dropped = load(&buffer);
        QVERIFY(dropped != nullptr);
        QCOMPARE(QLatin1String(dropped->metaObject()->className()), control->name());
        QCOMPARE(dropped->objectName(), QLatin1Char('v') + control->name().mid(1));
    }

    void formHoldsEveryControl()
    {
        for (const QWidget *form : {mCompiled.get(), mLoaded.get()}) {
            QStringList classes;
            for (const QWidget *widget : form->findChildren<QWidget *>()) {
                classes << QLatin1String(widget->metaObject()->className());
            }
            for (const QDesignerCustomWidgetInterface *control : std::as_const(mControls)) {
                QVERIFY2(classes.contains(control->name()), qPrintable(control->name()));
            }
        }
    }

    void propertiesArrive_data()
    {
        QTest::addColumn<QString>("object");
        QTest::addColumn<QByteArray>("property");
        QTest::addColumn<QVariant>("value");
        const auto row = [](const char *inObject, const char *inProperty, const QVariant &inValue) {
            QTest::addRow("%s.%s", inObject, inProperty)
                << QString::fromLatin1(inObject) << QByteArray(inProperty) << inValue;
        };
        row("groupLabel", "text", "Export");
        row("button", "buttonStyle", int(VantraButton::LeftAndRightCapButtonAccentStyle));
        row("button", "notificationBadgeEnabled", true);
        row("button", "notificationBadgeCount", 3);
        row("button", "alignment", int(Qt::AlignLeft | Qt::AlignVCenter));
        row("button", "backgroundButtonRole", int(VantraPalette::GreenAccentButtonBackground));
        row("toolButton", "buttonImage", int(VantraToolButton::SettingsImage));
        row("toolButton", "buttonStyle", int(VantraToolButton::IconGroupModuleStyle));
        row("toolButton", "backgroundStyle", int(VantraToolButton::BackgroundStyleAlternateButton));
        row("toolButton", "iconTinting",
            int(VantraIconPalette::IconTintingOnForeground |
                VantraIconPalette::IconTintingOffNormalAlternate));
        row("toolButton", "toolTipDetailed", "Chooses format and size.");
        row("toolButton", "toolTipUrl", "https://www.example.com/export");
        row("toolButton", "toolTipDirection", int(VantraToolButton::ToolTipDirectionBelow));
        row("checkBox", "checked", true);
        row("checkBox", "elideTextEnabled", true);
        row("comboBox", "currentText", "Landscape");
        row("comboBox", "backgroundStyle", int(VantraComboBox::BackgroundTransparent));
        row("comboBox", "placeholderText", "Choose a preset");
        row("lineEdit", "text", "Holiday");
        row("lineEdit", "borderStyle", int(VantraLineEditBase::BorderStandard));
        row("lineEdit", "excludeLocaleGroupSeparator", false);
        row("doubleLineEdit", "minimum", 150.0);
        row("doubleLineEdit", "maximum", 400.0);
        row("doubleLineEdit", "decimals", 3);
        row("doubleLineEdit", "value", 250.125);
        row("label", "labelStyle", int(VantraLabel::HeaderStyle));
        row("label", "text", "Before");
        row("label", "elideMode", int(Qt::ElideMiddle));
        row("warning", "labelImage", int(VantraLabel::WarningImage));
        row("textEdit", "plainText", "Caption");
        row("textEdit", "borderStyle", int(VantraTextEdit::BorderHighlight));
        row("frame", "cornerShapes", int(VantraFrame::CornerShapeRoundLeft));
        row("frame", "cornerRadius", 7);
        row("frame", "hudOverlay", true);
        row("pane", "panePart", int(VantraFramePane::PanePartBody));
        row("pane", "paneStyle", int(VantraFramePane::PaneStyleSubPane));
        row("pane", "paneBorderStyle", int(VantraFramePane::PaneBorderStyleStandard));
        row("pane", "paneState", int(VantraFramePane::PaneStateTargeted));
    }

    void propertiesArrive()
    {
        QFETCH(QString, object);
        QFETCH(QByteArray, property);
        QFETCH(QVariant, value);
        for (const QWidget *form : {mCompiled.get(), mLoaded.get()}) {
            const auto *widget = form->findChild<QWidget *>(object);
            QVERIFY(widget != nullptr);
            QVariant found = widget->property(property);
            QVERIFY(found.isValid());
            // Enumerations and flags of the classes.
            if (value.typeId() == QMetaType::Int) {
                found = found.toInt();
            }
            QCOMPARE(found, value);
        }
    }

    // Designer keeps no property until it is changed, so that forms name all four only by chance.
    void valueIsDeclaredBehindWhatBoundsIt()
    {
        const QMetaObject *field = mLoaded->findChild<QWidget *>("doubleLineEdit")->metaObject();
        for (const char *bound : {"minimum", "maximum", "decimals"}) {
            QVERIFY(field->indexOfProperty(bound) < field->indexOfProperty("value"));
        }
    }

    void limitsOfANumberFieldCantCrossInDesigner()
    {
        const auto isNumberField = [](const auto *inControl) {
            return inControl->name() == QLatin1String("VantraDoubleLineEdit");
        };
        QDesignerCustomWidgetInterface *control =
            *std::find_if(mControls.cbegin(), mControls.cend(), isNumberField);
        QVERIFY(!control->isInitialized());
        control->initialize(nullptr);
        QVERIFY(control->isInitialized());

        const std::unique_ptr<QWidget> field(control->createWidget(nullptr));
        field->setProperty("minimum", 150.0);
        QCOMPARE(field->property("maximum").toDouble(), 150.0);
        field->setProperty("maximum", 400.0);
        QCOMPARE(field->property("minimum").toDouble(), 150.0);
        field->setProperty("value", 500.0);
        QCOMPARE(field->property("value").toDouble(), 400.0);
        field->setProperty("maximum", 20.0);
        QCOMPARE(field->property("minimum").toDouble(), 20.0);
    }

private:
    QPluginLoader mPlugin;
    QList<QDesignerCustomWidgetInterface *> mControls;
    std::unique_ptr<QWidget> mLoaded;
    std::unique_ptr<QWidget> mCompiled;
};

QTEST_MAIN(tst_DesignerPlugin)
#include "tst_DesignerPlugin.moc"
