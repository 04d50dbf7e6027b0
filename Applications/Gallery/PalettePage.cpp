#include "GalleryPage.h"

#include "Shared/ContrastTable.h"

#include "Theme/VantraFont.h"
#include "Theme/VantraStyleTheme.h"

#include <QtCore/QMetaEnum>
#include <QtGui/QPainter>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QVBoxLayout>

namespace {
// Shows one (group, role) pair, read from the theme at each paint: the colour, over a checkerboard where it
// is translucent, and its components in the words of the theme files.
class Swatch : public QWidget
{
public:
    Swatch(VantraPalette::PaletteGroup inGroup, VantraPalette::PaletteRole inRole, QWidget *inParent)
        : QWidget(inParent), mGroup(inGroup), mRole(inRole)
    {
        setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    }

    QSize sizeHint() const override
    {
        const QFontMetrics metrics(VantraFont::smallFontPlus());
        return QSize(kFieldWidth + kSpacing +
                         metrics.horizontalAdvance(QStringLiteral("255, 255, 255, alpha 255")),
                     qMax(kFieldHeight, metrics.height()));
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        const VantraColorPalette &theme = VantraStyleTheme::instance().colorPalette();
        const bool isHole = !theme.contains(mGroup, mRole);
        const QColor color = theme.color(mGroup, mRole);

        QPainter painter(this);
        const QRect field(0, (height() - kFieldHeight) / 2, kFieldWidth, kFieldHeight);
        if (color.alpha() < 255)
            drawCheckerboard(painter, field);
        painter.fillRect(field, color);
        // Tells a swatch in the window's own colour from the window.
        QColor line = palette().color(QPalette::WindowText);
        line.setAlpha(70);
        painter.setPen(line);
        painter.drawRect(QRectF(field).adjusted(0.5, 0.5, -0.5, -0.5));

        painter.setFont(VantraFont::smallFontPlus());
        painter.setPen(palette().color(QPalette::WindowText));
        painter.drawText(rect().adjusted(kFieldWidth + kSpacing, 0, 0, 0), Qt::AlignLeft | Qt::AlignVCenter,
                         isHole ? QStringLiteral("no entry, so red") : valueText(color));
    }

private:
    static QString valueText(const QColor &inColor)
    {
        QString text =
            QStringLiteral("%1, %2, %3").arg(inColor.red()).arg(inColor.green()).arg(inColor.blue());
        if (inColor.alpha() < 255)
            text += QStringLiteral(", alpha %1").arg(inColor.alpha());
        return text;
    }

    static void drawCheckerboard(QPainter &ioPainter, const QRect &inField)
    {
        ioPainter.save();
        ioPainter.setClipRect(inField);
        ioPainter.fillRect(inField, Qt::white);
        for (int y = 0; y * kCheck < inField.height(); ++y) {
            for (int x = y % 2; x * kCheck < inField.width(); x += 2)
                ioPainter.fillRect(inField.left() + x * kCheck, inField.top() + y * kCheck, kCheck, kCheck,
                                   Qt::lightGray);
        }
        ioPainter.restore();
    }

    static constexpr int kFieldWidth = 48;
    static constexpr int kFieldHeight = 20;
    static constexpr int kSpacing = 8;
    static constexpr int kCheck = 5;

    VantraPalette::PaletteGroup mGroup;
    VantraPalette::PaletteRole mRole;
};

// Shows one pair of roles in one group: a text on its ground, and the ratio of the two.
class ContrastSwatch : public QWidget
{
public:
    ContrastSwatch(const Contrast::Pair &inPair, VantraPalette::PaletteGroup inGroup)
        : mPair(inPair), mGroup(inGroup)
    {
        setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    }

    QSize sizeHint() const override
    {
        const QFontMetrics metrics(lowFont());
        return QSize(kFieldWidth + kSpacing + metrics.horizontalAdvance(captionOf(Contrast::kEnough - 0.1)),
                     metrics.height() + 6);
    }

    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent *) override
    {
        const auto colors = Contrast::colorsOf(mPair, mGroup);
        QPainter painter(this);
        painter.setFont(VantraFont::smallFontPlus());
        const QRect field(0, 0, kFieldWidth, height());
        if (colors) {
            painter.fillRect(field, colors->ground);
            painter.setPen(colors->text);
            painter.drawText(field, Qt::AlignCenter, QStringLiteral("Text"));
        }
        if (colors && colors->ratio() < Contrast::kEnough)
            painter.setFont(lowFont());
        painter.setPen(palette().color(QPalette::WindowText));
        painter.drawText(rect().adjusted(kFieldWidth + kSpacing, 0, 0, 0), Qt::AlignLeft | Qt::AlignVCenter,
                         colors ? captionOf(colors->ratio()) : QStringLiteral("no entry"));
    }

private:
    // Marks what is hard to read.
    static QFont lowFont()
    {
        QFont font = VantraFont::smallFontPlus();
        font.setWeight(QFont::Bold);
        return font;
    }

    static QString captionOf(double inRatio)
    {
        const QString text = QString::number(inRatio, 'f', 2);
        return inRatio < Contrast::kEnough ? text + QStringLiteral(", low") : text;
    }

    static constexpr int kFieldWidth = 48;
    static constexpr int kSpacing = 8;

    Contrast::Pair mPair;
    VantraPalette::PaletteGroup mGroup;
};

class PalettePage : public GalleryPage
{
public:
    explicit PalettePage(QWidget *inParent) : GalleryPage(inParent)
    {
        const QMetaEnum roles = QMetaEnum::fromType<VantraPalette::PaletteRole>();
        QVBoxLayout *body = addSection(
            QStringLiteral("Colours of the theme"),
            QStringLiteral(
                "%1 roles in %2 groups. A pair without an entry paints in red, which is how a hole in "
                "the theme shows itself; translucent colours lie over a checkerboard.")
                .arg(roles.keyCount())
                .arg(QMetaEnum::fromType<VantraPalette::PaletteGroup>().keyCount()));

        mFilter = new QLineEdit;
        mFilter->setPlaceholderText(QStringLiteral("Filter roles"));
        mFilter->setClearButtonEnabled(true);
        mFilter->setFixedWidth(260);
        connect(mFilter, &QLineEdit::textChanged, this, &PalettePage::applyFilter);
        body->addWidget(mFilter);
        body->addSpacing(8);

        mGrid = addGrid(body, QStringLiteral("Role"));
        for (int index = 0; index < roles.keyCount(); ++index)
            addRow(index + 1, static_cast<VantraPalette::PaletteRole>(roles.value(index)),
                   QLatin1String(roles.key(index)));
        addContrast();
    }

private:
    // A grid with a column of titles and one for each group, the heading in its first row.
    QGridLayout *addGrid(QVBoxLayout *ioLayout, const QString &inTitle)
    {
        const QMetaEnum groups = QMetaEnum::fromType<VantraPalette::PaletteGroup>();
        auto *grid = new QGridLayout;
        grid->setHorizontalSpacing(20);
        grid->setVerticalSpacing(6);
        ioLayout->addLayout(grid);
        grid->addWidget(new HouseLabel(inTitle, &VantraFont::mainFont, QFont::Bold), 0, 0);
        for (int index = 0; index < groups.keyCount(); ++index) {
            const QString title =
                QStringLiteral("%1 (%2)").arg(QLatin1String(groups.key(index))).arg(groups.value(index));
            grid->addWidget(new HouseLabel(title, &VantraFont::mainFont, QFont::Bold), 0, index + 1);
            grid->setColumnStretch(index + 1, 1);
        }
        return grid;
    }

    void addContrast()
    {
        const QMetaEnum groups = QMetaEnum::fromType<VantraPalette::PaletteGroup>();
        QGridLayout *grid =
            addGrid(addSection(QStringLiteral("Contrast"),
                               QStringLiteral(
                                   "How far each text stands out from its ground, from 1 to 21. Running text "
                                   "should reach %1; what is disabled need not. Overlay menus are taken over "
                                   "mid grey, other translucent grounds over the window.")
                                   .arg(Contrast::kEnough)),
                    QStringLiteral("Pair"));
        int row = 1;
        for (const Contrast::Pair &pair : Contrast::pairs()) {
            grid->addWidget(new HouseLabel(Contrast::nameOf(pair), &VantraFont::mainFont), row, 0);
            for (int index = 0; index < groups.keyCount(); ++index)
                grid->addWidget(
                    new ContrastSwatch(pair, static_cast<VantraPalette::PaletteGroup>(groups.value(index))),
                    row, index + 1);
            ++row;
        }
    }

    void addRow(int inRow, VantraPalette::PaletteRole inRole, const QString &inName)
    {
        const QMetaEnum groups = QMetaEnum::fromType<VantraPalette::PaletteGroup>();
        auto *label =
            new HouseLabel(QStringLiteral("%1  %2").arg(int(inRole), 2, 10, QChar(0x2007)).arg(inName),
                           &VantraFont::mainFont);
        mGrid->addWidget(label, inRow, 0);
        QList<QWidget *> row = {label};
        for (int index = 0; index < groups.keyCount(); ++index) {
            auto *swatch =
                new Swatch(static_cast<VantraPalette::PaletteGroup>(groups.value(index)), inRole, this);
            mGrid->addWidget(swatch, inRow, index + 1);
            row << swatch;
        }
        mRows.insert(inName, row);
    }

    void applyFilter(const QString &inText)
    {
        for (auto row = mRows.cbegin(); row != mRows.cend(); ++row) {
            for (QWidget *widget : row.value())
                widget->setVisible(row.key().contains(inText, Qt::CaseInsensitive));
        }
    }

    QLineEdit *mFilter;
    QGridLayout *mGrid;
    // By role name: the widgets of its row.
    QMap<QString, QList<QWidget *>> mRows;
};
} // namespace

GalleryPage *makePalettePage(QWidget *inParent)
{
    return new PalettePage(inParent);
}
