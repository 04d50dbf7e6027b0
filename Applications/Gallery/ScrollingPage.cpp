#include "GalleryPage.h"

#include <QtGui/QPainter>
#include <QtGui/QPainterPath>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPlainTextEdit>
#include <QtWidgets/QScrollArea>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QTextBrowser>
#include <QtWidgets/QVBoxLayout>

#include <cmath>

namespace {
constexpr QSize kAreaSize(300, 190);
constexpr QSize kWideAreaSize(624, 260);

// A view over the hills at dusk, as large as a photograph, painted rather than kept.
class Landscape : public QWidget
{
public:
    explicit Landscape(const QSize &inSize)
    {
        setMinimumSize(inSize);
        resize(inSize);
        setAccessibleName(QStringLiteral("Hills at dusk"));
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        QLinearGradient sky(0, 0, 0, height());
        sky.setColorAt(0.0, QColor(30, 44, 84));
        sky.setColorAt(0.45, QColor(150, 110, 140));
        sky.setColorAt(0.7, QColor(240, 180, 120));
        painter.fillRect(rect(), sky);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor(255, 232, 170));
        painter.drawEllipse(QPointF(width() * 0.3, height() * 0.5), height() * 0.06, height() * 0.06);
        for (int ridge = 0; ridge < kRidges; ++ridge)
            paintRidge(painter, ridge);
    }

private:
    // The nearer, the lower, the darker and the steeper.
    void paintRidge(QPainter &ioPainter, int inRidge) const
    {
        const double near = double(inRidge + 1) / kRidges;
        const double base = height() * (0.5 + 0.42 * near);
        QPainterPath path(QPointF(0, height()));
        for (int x = 0; x <= width() + kStep; x += kStep)
            path.lineTo(x, base - height() * 0.05 *
                                      (std::sin(x * 0.006 / near + inRidge * 2.1) +
                                       0.4 * std::sin(x * 0.023 + inRidge)));
        path.lineTo(width() + kStep, height());
        ioPainter.setBrush(QColor::fromHsv(225, int(90 + 40 * near), int(120 - 90 * near)));
        ioPainter.drawPath(path);
    }

    static constexpr int kRidges = 5;
    static constexpr int kStep = 8;
};

QScrollArea *makeArea(QWidget *inContent, const QSize &inSize, const QString &inName)
{
    auto *area = new QScrollArea;
    area->setWidget(inContent);
    area->setFixedSize(inSize);
    area->setAccessibleName(inName);
    return area;
}

void scrollTo(QAbstractScrollArea *ioArea, double inAcross, double inDown)
{
    for (const auto &[bar, share] :
         {std::pair(ioArea->horizontalScrollBar(), inAcross), std::pair(ioArea->verticalScrollBar(), inDown)})
        bar->setValue(bar->minimum() + int((bar->maximum() - bar->minimum()) * share));
}

QString longText()
{
    QString text;
    for (int day = 1; day <= 60; ++day)
        text += QStringLiteral("Day %1. The light came late over the hills, stood on the water until noon "
                               "and left by the western window.\n\n")
                    .arg(day);
    return text.trimmed();
}

// An area within an area: the wheel moves the inner one to its end and then the outer one.
QScrollArea *makeNested()
{
    auto *content = new QWidget;
    auto *layout = new QVBoxLayout(content);
    layout->addWidget(new QLabel(QStringLiteral("Outer area")));
    for (int index = 1; index <= 3; ++index) {
        QScrollArea *inner =
            makeArea(new Landscape({400, 210}), QSize(250, 140), QStringLiteral("Inner area %1").arg(index));
        layout->addWidget(inner);
    }
    return makeArea(content, {kAreaSize.width(), kWideAreaSize.height()}, QStringLiteral("Outer area"));
}

QTextBrowser *makeBrowser()
{
    auto *browser = new QTextBrowser;
    browser->setPlainText(longText());
    browser->setFixedSize(kAreaSize);
    browser->setAccessibleName(QStringLiteral("Long text"));
    return browser;
}

// Far more lines than the thumb could show as a share of its track.
QPlainTextEdit *makeManyLines()
{
    QStringList lines;
    for (int line = 1; line <= 20000; ++line)
        lines << QStringLiteral("Line %1").arg(line);
    auto *edit = new QPlainTextEdit(lines.join(QLatin1Char('\n')));
    edit->setFixedSize(kAreaSize);
    edit->setAccessibleName(QStringLiteral("20,000 lines"));
    return edit;
}

QScrollArea *makeNothingToScroll(Qt::ScrollBarPolicy inPolicy)
{
    auto *label = new QLabel(QStringLiteral("All of it is in view."));
    label->setMargin(12);
    QScrollArea *area = makeArea(label, kAreaSize, QStringLiteral("Nothing to scroll"));
    area->setHorizontalScrollBarPolicy(inPolicy);
    area->setVerticalScrollBarPolicy(inPolicy);
    return area;
}

class ScrollingPage : public GalleryPage
{
public:
    explicit ScrollingPage(QWidget *inParent) : GalleryPage(inParent)
    {
        addPictures();
        addTexts();
        addSpecialCases();
    }

protected:
    void showEvent(QShowEvent *inEvent) override
    {
        GalleryPage::showEvent(inEvent);
        // Ranges are there only once the areas are laid out.
        if (!mIsPlaced) {
            mIsPlaced = true;
            for (QAbstractScrollArea *area : std::as_const(mMoved))
                scrollTo(area, 0.25, 0.6);
        }
    }

private:
    // Places a sample that is moved away from its start.
    void addMoved(SampleGrid &ioGrid, const QString &inCaption, QAbstractScrollArea *inArea)
    {
        ioGrid.add(inCaption, inArea);
        mMoved << inArea;
    }

    void addPictures()
    {
        QVBoxLayout *body = addSection(
            QStringLiteral("Pictures"),
            QStringLiteral("Drag a thumb, click beside it to move by a page, or use the wheel, with Alt for "
                           "sideways. The bars have no arrows and no visible track."));
        SampleGrid grid(body, 2, Qt::AlignTop);
        addMoved(grid, QStringLiteral("both bars"),
                 makeArea(new Landscape({2400, 1400}), kWideAreaSize, QStringLiteral("Large picture")));
        addMoved(grid, QStringLiteral("areas in an area"), makeNested());
    }

    void addTexts()
    {
        SampleGrid grid(addSection(QStringLiteral("Texts")), 3, Qt::AlignTop);
        addMoved(grid, QStringLiteral("a long text"), makeBrowser());
        addMoved(grid, QStringLiteral("20,000 lines, shortest thumb"), makeManyLines());
        auto *unwrapped = new QPlainTextEdit(longText());
        unwrapped->setLineWrapMode(QPlainTextEdit::NoWrap);
        unwrapped->setFixedSize(kAreaSize);
        addMoved(grid, QStringLiteral("without wrapping, both bars"), unwrapped);
    }

    void addSpecialCases()
    {
        SampleGrid grid(addSection(QStringLiteral("Special cases")), 3, Qt::AlignTop);
        grid.add(QStringLiteral("nothing to scroll, bars as needed"),
                 makeNothingToScroll(Qt::ScrollBarAsNeeded));
        grid.add(QStringLiteral("nothing to scroll, bars always there"),
                 makeNothingToScroll(Qt::ScrollBarAlwaysOn));
        QScrollArea *sideways = makeArea(new Landscape({1200, 1}), kAreaSize, QStringLiteral("Sideways"));
        sideways->setWidgetResizable(true);
        addMoved(grid, QStringLiteral("sideways only"), sideways);

        QScrollArea *mirrored =
            makeArea(new Landscape({1600, 900}), kAreaSize, QStringLiteral("Right to left"));
        mirrored->setLayoutDirection(Qt::RightToLeft);
        addMoved(grid, QStringLiteral("right to left"), mirrored);
        QTextBrowser *mirroredText = makeBrowser();
        mirroredText->setLayoutDirection(Qt::RightToLeft);
        addMoved(grid, QStringLiteral("long text, right to left"), mirroredText);
        QScrollArea *disabled = makeArea(new Landscape({1600, 900}), kAreaSize, QStringLiteral("Disabled"));
        disabled->setEnabled(false);
        addMoved(grid, QStringLiteral("disabled"), disabled);
    }

    QList<QAbstractScrollArea *> mMoved;
    bool mIsPlaced = false;
};
} // namespace

GalleryPage *makeScrollingPage(QWidget *inParent)
{
    return new ScrollingPage(inParent);
}
