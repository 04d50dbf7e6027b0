#include "GalleryPage.h"

#include "Controls/VantraGroupLabel.h"
#include "Controls/VantraLabel.h"
#include "Controls/VantraPictureWidget.h"
#include "Theme/VantraFont.h"

#include <QtCore/QMetaEnum>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QVBoxLayout>

namespace {
const QString kLongText = QStringLiteral("A path that is a good deal longer than its label is wide");

VantraLabel *makeLabel(const QString &inText, VantraLabel::LabelStyle inStyle = VantraLabel::StandardStyle)
{
    auto *label = new VantraLabel;
    label->setLabelStyle(inStyle);
    label->setText(inText);
    return label;
}

void addStyles(QVBoxLayout *ioLayout)
{
    SampleGrid grid(ioLayout, 5, Qt::AlignBottom);
    grid.add(QStringLiteral("standard"), makeLabel(QStringLiteral("Standard")));
    grid.add(QStringLiteral("notification"),
             makeLabel(QStringLiteral("128"), VantraLabel::NotificationStyle));
    grid.add(QStringLiteral("header"), makeLabel(QStringLiteral("Header"), VantraLabel::HeaderStyle));
    auto *group = new VantraGroupLabel;
    group->setText(QStringLiteral("Group label"));
    grid.add(QStringLiteral("group label"), group);
    VantraLabel *disabled = makeLabel(QStringLiteral("Disabled"));
    disabled->setEnabled(false);
    grid.add(QStringLiteral("disabled"), disabled);
}

// Every named picture but the wide background, which has a row of its own.
void addPictures(QVBoxLayout *ioLayout)
{
    SampleGrid grid(ioLayout, 5, Qt::AlignBottom);
    const QMetaEnum images = QMetaEnum::fromType<VantraLabel::LabelImage>();
    const auto add = [&images](SampleGrid &ioGrid, VantraLabel::LabelImage inImage) {
        auto *label = new VantraLabel;
        label->setLabelImage(inImage);
        label->setAccessibleName(QLatin1String(images.valueToKey(inImage)));
        ioGrid.add(label->accessibleName(), label);
    };
    for (int index = 0; index < images.keyCount(); ++index) {
        const auto image = static_cast<VantraLabel::LabelImage>(images.value(index));
        if (image != VantraLabel::NoImage && image != VantraLabel::LearnMoreOrbitBackgroundImage)
            add(grid, image);
    }
    SampleGrid wide(ioLayout, 1);
    add(wide, VantraLabel::LearnMoreOrbitBackgroundImage);
}

void addPictureWidgets(QVBoxLayout *ioLayout)
{
    SampleGrid grid(ioLayout, 3, Qt::AlignBottom);
    for (const QSize size : {QSize(96, 96), QSize(240, 60), QSize(40, 120)}) {
        auto *picture = new VantraPictureWidget;
        picture->setPixmap(QStringLiteral(":/VTWidgets/GettingStarted/GS_Browse.png"));
        picture->setFixedSize(size);
        grid.add(QStringLiteral("%1 x %2").arg(size.width()).arg(size.height()), picture);
    }
}

// The last few lines of what a label told.
class EventLog : public HouseLabel
{
public:
    EventLog() : HouseLabel(QString(), &VantraFont::smallFont)
    {
        setAlignment(Qt::AlignTop | Qt::AlignLeft);
        setMinimumSize(260, kLines * fontMetrics().lineSpacing());
        setAccessibleName(QStringLiteral("Events"));
        append(QStringLiteral("Nothing yet"));
    }

    void append(const QString &inLine)
    {
        mLines.append(inLine);
        if (mLines.size() > kLines)
            mLines.removeFirst();
        setText(mLines.join(QLatin1Char('\n')));
    }

private:
    static constexpr int kLines = 6;
    QStringList mLines;
};

void addClicks(QVBoxLayout *ioLayout)
{
    auto *row = new QHBoxLayout;
    row->setSpacing(48);
    ioLayout->addLayout(row);
    auto *targets = new QVBoxLayout;
    targets->setSpacing(8);
    row->addLayout(targets);
    auto *log = new EventLog;
    row->addWidget(log);
    row->addStretch();
    const auto add = [&](const QString &inText, bool inHold, bool inEnabled) {
        VantraLabel *label = makeLabel(inText);
        label->setEnabled(inEnabled);
        label->setToolTip(QStringLiteral("Shows at once when the pointer enters"));
        if (inHold)
            label->enableHoldMousePress();
        const auto note = [=](const char *inEvent) {
            return [=] { log->append(QStringLiteral("%1: %2").arg(inText, QLatin1String(inEvent))); };
        };
        QObject::connect(label, &VantraLabel::clicked, log, note("clicked"));
        QObject::connect(label, &VantraLabel::doubleClicked, log, note("double-clicked"));
        QObject::connect(label, &VantraLabel::holdLabelPressed, log, note("held"));
        QObject::connect(label, &VantraLabel::holdLabelReleased, log, note("hold released"));
        targets->addWidget(label, 0, Qt::AlignLeft);
    };
    add(QStringLiteral("Click"), false, true);
    add(QStringLiteral("Press and hold"), true, true);
    add(QStringLiteral("Disabled"), true, false);
    targets->addStretch();
}

class LabelsPage : public GalleryPage
{
public:
    explicit LabelsPage(QWidget *inParent) : GalleryPage(inParent)
    {
        addStyles(addSection(QStringLiteral("Styles")));
        addClicks(addSection(QStringLiteral("Clicks and holds"),
                             QStringLiteral("Click, double-click or hold the labels for half a second.")));
        addElideModes(addSection(QStringLiteral("Elided texts"),
                                 QStringLiteral("Fitted to the width; the tool tip has the full text.")));
        addPictures(addSection(QStringLiteral("Named pictures")));
        addPictureWidgets(addSection(QStringLiteral("Picture widget"),
                                     QStringLiteral("Stretches its picture over whatever size it has.")));
    }

    // Labels keep the font that they were made with.
    void refresh() override
    {
        const auto labels = findChildren<VantraLabel *>();
        for (VantraLabel *label : labels) {
            const VantraLabel::LabelStyle style = label->labelStyle();
            if (qobject_cast<VantraGroupLabel *>(label) != nullptr) {
                label->setFont(VantraFont::largeFont());
            } else if (style == VantraLabel::StandardStyle) {
                label->setFont(VantraFont::mainFont());
            } else if (style == VantraLabel::HeaderStyle) {
                label->setLabelStyle(VantraLabel::StandardStyle);
                label->setLabelStyle(VantraLabel::HeaderStyle);
            }
        }
        for (const auto &[label, mode] : std::as_const(mElided))
            VantraLabel::setElidedText(label, kLongText, mode);
    }

private:
    void addElideModes(QVBoxLayout *ioLayout)
    {
        SampleGrid grid(ioLayout, 4);
        for (const auto &[mode, name] :
             {std::pair(Qt::ElideLeft, "left"), std::pair(Qt::ElideMiddle, "middle"),
              std::pair(Qt::ElideRight, "right"), std::pair(Qt::ElideNone, "none, cut")}) {
            VantraLabel *label = makeLabel(QString());
            label->setFixedWidth(150);
            VantraLabel::setElidedText(label, kLongText, mode);
            mElided.append({label, mode});
            grid.add(QLatin1String(name), label);
        }
    }

    QList<std::pair<VantraLabel *, Qt::TextElideMode>> mElided;
};
} // namespace

GalleryPage *makeLabelsPage(QWidget *inParent)
{
    return new LabelsPage(inParent);
}
