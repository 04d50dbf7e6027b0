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
     "https://example.com/learn/brush", 20},
    {"Crop", "C", &DrawnIcons::crop, ":/Gallery/ToolTips/crop.gif",
     "Cuts the picture to a frame. Drag a corner to size it; what lies outside stays and comes back with "
     "<b>Reset</b>.",
     "https://example.com/learn/crop", 18},
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

QList<QMovie *> standingMovies(const QWidget *inWidget)
{
    QList<QMovie *> movies;
    const auto labels = inWidget->findChildren<QLabel *>();
    for (const QLabel *label : labels) {
        if (label->movie() != nullptr)
            movies << label->movie();
    }
    return movies;
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
    const auto movies = standingMovies(frame);
    for (QMovie *movie : movies) {
        for (int index = 0; index < inLesson.tellingFrame; ++index)
            movie->jumpToNextFrame();
    }
    return frame;
}

// A button above the name of its direction.
QWidget *makeCaptioned(QWidget *inButton, const QString &inCaption)
{
    auto *widget = new QWidget;
    auto *layout = new QVBoxLayout(widget);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(4);
    layout->addWidget(inButton, 0, Qt::AlignHCenter);
    layout->addWidget(makeCaption(inCaption), 0, Qt::AlignHCenter);
    return widget;
}

class ToolTipsPage : public GalleryPage
{
public:
    explicit ToolTipsPage(QWidget *inParent) : GalleryPage(inParent)
    {
        addTop();
        QVBoxLayout *body = addSection(QStringLiteral("What a tip shows"),
                                       QStringLiteral("The same tips, standing in the page."));
        mTips = new QHBoxLayout;
        mTips->setSpacing(24);
        body->addLayout(mTips);
        addStandingTips();
        addBottom();
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

protected:
    void showEvent(QShowEvent *inEvent) override
    {
        setPaused(false);
        GalleryPage::showEvent(inEvent);
    }
    void hideEvent(QHideEvent *inEvent) override
    {
        setPaused(true);
        GalleryPage::hideEvent(inEvent);
    }

private:
    // Nobody sees the movies of a page that is not shown.
    void setPaused(bool inPaused)
    {
        const auto movies = standingMovies(this);
        for (QMovie *movie : movies)
            movie->setPaused(inPaused);
    }

    void addTop()
    {
        QHBoxLayout *row = addRow(
            QStringLiteral("Tips beside and below"),
            QStringLiteral("Rest on a button: its tip opens on the side that it names, and stays while the "
                           "pointer is on the button or on the tip, so that the link can be reached. Auto "
                           "takes the nearest side with room in the window."));
        add(row, kLessons[0], Tool::ToolTipDirectionRight);
        add(row, kLessons[1], Tool::ToolTipDirectionRight);
        add(row, kLessons[0], Tool::ToolTipDirectionAuto);
        add(row, kLessons[1], Tool::ToolTipDirectionAuto);
        add(row, kLessons[0], Tool::ToolTipDirectionBelow);
        add(row, kLessons[1], Tool::ToolTipDirectionBelow);
        auto *plain = makeTool(kLessons[0], Tool::ToolTipDirectionAuto);
        plain->setToolTipImage(QString());
        row->addWidget(makeCaptioned(plain, QStringLiteral("no image")));
        row->addStretch();
        add(row, kLessons[0], Tool::ToolTipDirectionAuto);
        add(row, kLessons[1], Tool::ToolTipDirectionLeft);
    }

    void addBottom()
    {
        QHBoxLayout *row =
            addRow(QStringLiteral("Tips above"),
                   QStringLiteral("A direction without room in the window takes the tip to the top left "
                                  "corner of the screen, as Below does here at the bottom."));
        add(row, kLessons[0], Tool::ToolTipDirectionRight);
        add(row, kLessons[0], Tool::ToolTipDirectionAbove);
        add(row, kLessons[1], Tool::ToolTipDirectionAbove);
        add(row, kLessons[1], Tool::ToolTipDirectionAuto);
        add(row, kLessons[0], Tool::ToolTipDirectionBelow);
        row->addStretch();
        add(row, kLessons[0], Tool::ToolTipDirectionAuto);
        add(row, kLessons[1], Tool::ToolTipDirectionAbove);
    }

    QHBoxLayout *addRow(const QString &inTitle, const QString &inNote)
    {
        auto *row = new QHBoxLayout;
        row->setSpacing(8);
        addSection(inTitle, inNote)->addLayout(row);
        return row;
    }

    static void add(QHBoxLayout *ioRow, const Lesson &inLesson, Tool::ToolTipDirection inDirection)
    {
        const char *name = QMetaEnum::fromType<Tool::ToolTipDirection>().valueToKey(inDirection);
        ioRow->addWidget(makeCaptioned(makeTool(inLesson, inDirection),
                                       QString::fromLatin1(name).remove(QStringLiteral("ToolTipDirection"))));
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
