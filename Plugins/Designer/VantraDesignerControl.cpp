#include "VantraDesignerControl.h"

#include "Controls/VantraButton.h"
#include "Controls/VantraCheckBox.h"
#include "Controls/VantraComboBox.h"
#include "Controls/VantraDoubleLineEdit.h"
#include "Controls/VantraFramePane.h"
#include "Controls/VantraGroupLabel.h"
#include "Controls/VantraLineEdit.h"
#include "Controls/VantraMenuBar.h"
#include "Controls/VantraPictureWidget.h"
#include "Controls/VantraTextEdit.h"
#include "Controls/VantraToolButton.h"
#include "Shared/VantraPluginStart.h"
#include "Utilities/VTWidgetsImageUtils.h"

#include <QtGui/QDoubleValidator>
#include <QtWidgets/QApplication>

namespace {

template <typename Control>
QWidget *make(QWidget *inParent)
{
    return new Control(inParent);
}

constexpr char kButtonText[] = R"(<property name="text"><string>Button</string></property>)";
constexpr char kCheckBoxText[] = R"(<property name="text"><string>Check box</string></property>)";
constexpr char kGroupText[] = R"(<property name="text"><string>Group</string></property>)";
constexpr char kToolButtonImage[] =
    R"(<property name="buttonImage"><enum>VantraToolButton::SettingsImage</enum></property>)";
constexpr char kFrameShape[] =
    R"(<property name="frameShape"><enum>QFrame::Panel</enum></property>)"
    R"(<property name="frameShadow"><enum>QFrame::Raised</enum></property>)"
    R"(<property name="cornerShapes"><set>VantraFrame::CornerShapeRoundFull</set></property>)"
    R"(<property name="cornerRadius"><number>5</number></property>)";
constexpr char kFieldBorder[] =
    R"(<property name="borderStyle"><enum>VantraLineEditBase::BorderHighlight</enum></property>)";
constexpr char kTextBorder[] =
    R"(<property name="borderStyle"><enum>VantraTextEdit::BorderHighlight</enum></property>)";

constexpr char kPlaceholderNote[] =
    R"(<stringpropertyspecification name="placeholderText" type="singleline"/>)";
constexpr char kToolTipNotes[] =
    R"(<stringpropertyspecification name="toolTipImage" type="singleline" notr="true"/>)"
    R"(<stringpropertyspecification name="toolTipDetailed" type="richtext"/>)"
    R"(<stringpropertyspecification name="toolTipUrl" type="url" notr="true"/>)";

// A limit that would pass the other takes it along.
void keepLimitsInOrder(QDoubleValidator *ioLimits)
{
    const auto follow = [ioLimits, bottom = ioLimits->bottom()]() mutable {
        const bool hasNewBottom = ioLimits->bottom() != bottom;
        bottom = ioLimits->bottom();
        if (ioLimits->top() < bottom && hasNewBottom) {
            ioLimits->setTop(bottom);
        } else if (ioLimits->top() < bottom) {
            ioLimits->setBottom(ioLimits->top());
        }
    };
    // Not the signals of the single limits: those come while the other one has still to be written.
    QObject::connect(ioLimits, &QValidator::changed, ioLimits, follow);
}

} // namespace

const QList<VantraDesignerControl::Entry> &VantraDesignerControl::entries()
{
    static const QList<Entry> kEntries = {
        {"VantraButton", "QPushButton", "Push button with caps, tab groups and a badge", "Buttons/Add",
         QSize(), kButtonText, "", false, &make<VantraButton>},
        {"VantraToolButton", "QToolButton", "Tool button with named pictures and rich tool tips",
         "ToolButtons/Settings", QSize(), kToolButtonImage, kToolTipNotes, false, &make<VantraToolButton>},
        {"VantraCheckBox", "QCheckBox", "Check box that can cut its text", "ToolButtons/ModuleSaveApply",
         QSize(), kCheckBoxText, "", false, &make<VantraCheckBox>},
        {"VantraComboBox", "QComboBox", "Combo box with a placeholder and thin separators",
         "Buttons/Overflow", QSize(), "", kPlaceholderNote, false, &make<VantraComboBox>},
        {"VantraLineEdit", "QLineEdit", "Field for a line of text", "ToolButtons/UnderlineFont",
         QSize(120, 24), kFieldBorder, "", false, &make<VantraLineEdit>},
        {"VantraDoubleLineEdit", "QLineEdit", "Field for a number, stepped by Up and Down", "Print/Print4x5",
         QSize(80, 24), kFieldBorder, "", false, &make<VantraDoubleLineEdit>},
        {"VantraTextEdit", "QTextEdit", "Box for plain text, in which Return ends the editing",
         "ToolButtons/AlignLeft", QSize(160, 72), kTextBorder, "", false, &make<VantraTextEdit>},
        // Without a text: that would stay when a picture is chosen, and replace it in the finished form.
        {"VantraLabel", "QLabel", "Label, badge, header or picture that tells of clicks",
         "ToolButtons/Capitalize", QSize(60, 20), "", "", false, &make<VantraLabel>},
        {"VantraGroupLabel", "QLabel", "Label for the name of a group of controls", "ToolButtons/BoldFont",
         QSize(), kGroupText, "", false, &make<VantraGroupLabel>},
        {"VantraFrame", "QFrame", "Panel with round corners", "Print/PrintSinglePage", QSize(160, 120),
         kFrameShape, "", true, &make<VantraFrame>},
        {"VantraFramePane", "QFrame", "Panel of a column of panes", "Print/PrintAllPages", QSize(200, 120),
         "", "", true, &make<VantraFramePane>},
        {"VantraPictureWidget", "QWidget", "A picture, stretched over the widget's area",
         "Print/PrintLandscape", QSize(160, 120), "", "", false, &make<VantraPictureWidget>},
        {"VantraMenuBar", "QMenuBar", "Menu bar inside its window on every system", "Print/PrintMore",
         QSize(240, 28), "", "", false, &make<VantraMenuBar>},
    };
    return kEntries;
}

VantraDesignerControl::VantraDesignerControl(const Entry &inEntry) : mEntry(inEntry)
{
}

QString VantraDesignerControl::name() const
{
    return QString::fromLatin1(mEntry.name);
}

QString VantraDesignerControl::group() const
{
    return QStringLiteral("VTWidgetsLite");
}

QString VantraDesignerControl::toolTip() const
{
    return QString::fromLatin1(mEntry.toolTip);
}

QString VantraDesignerControl::whatsThis() const
{
    return toolTip();
}

QString VantraDesignerControl::includeFile() const
{
    return QStringLiteral("Controls/%1.h").arg(name());
}

QIcon VantraDesignerControl::icon() const
{
    const QImage mask =
        VTWidgetsLoadImage(QStringLiteral(":/VTWidgets/%1.png").arg(QLatin1String(mEntry.picture)));
    return QIcon(VTWidgetsGenerateColorPixmap(mask, QApplication::palette().color(QPalette::WindowText)));
}

bool VantraDesignerControl::isContainer() const
{
    return mEntry.isContainer;
}

QString VantraDesignerControl::domXml() const
{
    QString objectName = name();
    objectName[0] = objectName.at(0).toLower();
    QString properties = QString::fromLatin1(mEntry.properties);
    if (mEntry.size.isValid()) {
        properties += QStringLiteral(R"(<property name="geometry"><rect><x>0</x><y>0</y>)"
                                     R"(<width>%1</width><height>%2</height></rect></property>)")
                          .arg(mEntry.size.width())
                          .arg(mEntry.size.height());
    }
    return QStringLiteral(R"(<ui language="c++"><widget class="%1" name="%2">%3</widget>)"
                          R"(<customwidgets><customwidget><class>%1</class><extends>%4</extends>)"
                          R"(<propertyspecifications>%5</propertyspecifications>)"
                          R"(</customwidget></customwidgets></ui>)")
        .arg(name(), objectName, properties, QLatin1String(mEntry.base), QLatin1String(mEntry.notes));
}

QWidget *VantraDesignerControl::createWidget(QWidget *inParent)
{
    VantraPluginStart::ensureFontsAndTheme();
    QWidget *widget = mEntry.make(inParent);
    if (mIsInDesigner) {
        if (auto *limits = widget->findChild<QDoubleValidator *>()) {
            keepLimitsInOrder(limits);
        }
    }
    return widget;
}

void VantraDesignerControl::initialize(QDesignerFormEditorInterface *)
{
    mIsInDesigner = true;
}
