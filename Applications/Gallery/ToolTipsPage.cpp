#include "GalleryPage.h"

#include "Controls/VantraToolButton.h"
#include "DrawnIcons.h"
#include "ToolTips/VantraToolTipContent.h"
#include "ToolTips/VantraToolTipContentFrame.h"
#include "Utilities/CommonTransition.h"

#include <QtCore/QMetaEnum>
#include <QtGui/QMovie>
#include <QtWidgets/QVBoxLayout>

namespace {
using Tool = VantraToolButton;

// A tool whose use is shown in a short animation of the gallery's own.
struct Lesson
{
    const char *title;
    const char *key;
    QIcon (*icon)(const QColor &);
    const char *movie;
    const char *text;
    const char *url;
    int tellingFrame; // one that says it all in a still picture
};

constexpr Lesson kLessons[] = {
    {"Mask brush", "B", &DrawnIcons::brush, ":/Gallery/ToolTips/brush.gif",
     "Paints where an adjustment acts. <b>Shift</b> draws straight lines, <b>Alt</b> takes paint away.",
     "https://doc.qt.io/qt-6/qpainter.html", 20},
    {"Crop", "C", &DrawnIcons::crop, ":/Gallery/ToolTips/crop.gif",
     "Cuts the picture to a frame. Drag a corner to size it; what lies outside stays and comes back with "
     "<b>Reset</b>.",
     "https://doc.qt.io/qt-6/qrect.html", 18},
};

Tool *makeTool(const Lesson &inLesson, Tool::ToolTipDirection inDirection)
{
    auto *button = new Tool(DrawnIcons::image(inLesson.icon(Qt::gray)));
    button->setFixedSize(QSize(32, 32));
    button->setToolName(QLatin1String(inLesson.title));
    button->setShortcut(QKeySequence(QStringLiteral("Alt+Shift+%1").arg(QLatin1String(inLesson.key))));
    button->setToolTipImage(QLatin1String(inLesson.movie));
    button->setToolTipDetailed(QLatin1String(inLesson.text));
    button->setToolTipUrl(QLatin1String(inLesson.url));
    button->setToolTipDirection(inDirection);
    return button;
}

// A tip as it opens over a tool bar, standing in the page.
QWidget *makeStandingTip(const Lesson &inLesson, QWidget *inParent)
{
    auto *frame = new VantraToolTipContentFrame;
    auto *content = new VantraToolTipContent(frame->body());
    content->setToolTip(
        QLatin1String(inLesson.movie),
        QStringLiteral("%1 (%2)").arg(QLatin1String(inLesson.title), QLatin1String(inLesson.key)),
        QLatin1String(inLesson.text), QLatin1String(inLesson.url));
    frame->setParent(inParent, Qt::Widget);
    frame->setFixedSize(frame->sizeHint());
    CommonTransition::addDropShadow(frame);
    const auto labels = frame->findChildren<QLabel *>();
    for (const QLabel *label : labels) {
        for (int index = 0; label->movie() != nullptr && index < inLesson.tellingFrame; ++index)
            label->movie()->jumpToNextFrame();
    }
    return frame;
}

class ToolTipsPage : public GalleryPage
{
public:
    explicit ToolTipsPage(QWidget *inParent) : GalleryPage(inParent)
    {
        addDirections();
        addEdges();
        QVBoxLayout *body =
            addSection(QStringLiteral("What a tip shows"),
                       QStringLiteral("The tips of the buttons above, standing in the page."));
        mTips = new QHBoxLayout;
        mTips->setSpacing(24);
        body->addLayout(mTips);
        addStandingTips();
    }

    // Labels take their font when they are made.
    void refresh() override
    {
        while (QLayoutItem *item = mTips->takeAt(0)) {
            delete item->widget();
            delete item;
        }
        addStandingTips();
    }

private:
    void addDirections()
    {
        SampleGrid grid(
            addSection(QStringLiteral("Directions"),
                       QStringLiteral("Rest on a button: its tip opens on the side it names, and stays while "
                                      "the pointer is on the button or on the tip, so that the link can be "
                                      "reached. A tip that doesn't fit into the window there stands in the "
                                      "top left corner of the screen; Auto looks for a side that fits.")),
            6);
        const QMetaEnum directions = QMetaEnum::fromType<Tool::ToolTipDirection>();
        for (const Lesson &lesson : kLessons) {
            for (int index = 0; index < directions.keyCount(); ++index)
                grid.add(
                    QString::fromLatin1(directions.key(index)).remove(QStringLiteral("ToolTipDirection")),
                    makeTool(lesson, Tool::ToolTipDirection(directions.value(index))));
            auto *plain = makeTool(lesson, Tool::ToolTipDirectionAuto);
            plain->setToolTipImage(QString());
            grid.add(QStringLiteral("without an image"), plain);
        }
    }

    void addEdges()
    {
        QVBoxLayout *body =
            addSection(QStringLiteral("At the edges"),
                       QStringLiteral("Neighbours in tool bars along the page's sides: one tip "
                                      "goes when the next one opens."));
        auto *row = new QHBoxLayout;
        row->setSpacing(2);
        for (int index = 0; index < 2; ++index) {
            if (index == 1)
                row->addStretch();
            for (const Lesson &lesson : kLessons)
                row->addWidget(makeTool(lesson, Tool::ToolTipDirectionAuto));
        }
        body->addLayout(row);
    }

    void addStandingTips()
    {
        for (const Lesson &lesson : kLessons)
            mTips->addWidget(makeStandingTip(lesson, this), 0, Qt::AlignTop);
        mTips->addStretch();
    }

    QHBoxLayout *mTips;
};
} // namespace

GalleryPage *makeToolTipsPage(QWidget *inParent)
{
    return new ToolTipsPage(inParent);
}
