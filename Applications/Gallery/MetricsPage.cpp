#include "GalleryPage.h"

#include "DrawnIcons.h"
#include "Theme/VantraFont.h"
#include "WidgetPicture.h"

#include <QtCore/QMetaEnum>
#include <QtGui/QPainter>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMenu>
#include <QtWidgets/QProgressBar>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QSlider>
#include <QtWidgets/QSpinBox>
#include <QtWidgets/QStyleFactory>
#include <QtWidgets/QTabBar>
#include <QtWidgets/QToolButton>
#include <QtWidgets/QVBoxLayout>

#include <memory>

namespace {
// Shows a widget with each of its pixels as a square, between two rulers.
class Magnifier : public QWidget
{
public:
    // Takes the widget as its child; it is painted here and not shown.
    explicit Magnifier(QWidget *inSample) : mSample(inSample)
    {
        mSample->setParent(this);
        mSample->hide();
        setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    }

    QSize sizeHint() const override
    {
        const QSize size = sampleSize();
        return QSize(kRuler + size.width() * kZoom + kTail, kRuler + size.height() * kZoom + kTail / 2);
    }

    // Width and height in words.
    QString sizeText() const
    {
        const QSize size = sampleSize();
        return QStringLiteral("%1 x %2").arg(size.width()).arg(size.height());
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        const QSize size = sampleSize();
        QPainter painter(this);
        painter.translate(kRuler, kRuler);
        painter.drawImage(QRect(QPoint(), size * kZoom), widgetPicture(mSample, size, 1.0));
        paintGrid(painter, size);
        paintRuler(painter, size.width());
        paintSideRuler(painter, size.height());
    }

private:
    QSize sampleSize() const
    {
        mSample->ensurePolished();
        return mSample->sizeHint().expandedTo(mSample->minimumSize()).boundedTo(mSample->maximumSize());
    }

    QColor lineColor(int inAlpha) const
    {
        QColor color = palette().color(QPalette::WindowText);
        color.setAlpha(inAlpha);
        return color;
    }

    void paintGrid(QPainter &ioPainter, const QSize &inSize) const
    {
        for (int x = 0; x <= inSize.width(); ++x)
            ioPainter.fillRect(x * kZoom, 0, 1, inSize.height() * kZoom, lineColor(x % 10 == 0 ? 90 : 25));
        for (int y = 0; y <= inSize.height(); ++y)
            ioPainter.fillRect(0, y * kZoom, inSize.width() * kZoom, 1, lineColor(y % 10 == 0 ? 90 : 25));
    }

    static int tickLength(int inPixel) { return inPixel % 10 == 0 ? 8 : inPixel % 5 == 0 ? 5 : 3; }

    void paintRuler(QPainter &ioPainter, int inLength) const
    {
        ioPainter.setFont(VantraFont::extraSmallFontImmutable());
        ioPainter.setPen(lineColor(255));
        for (int x = 0; x <= inLength; ++x) {
            ioPainter.fillRect(x * kZoom, -tickLength(x) - 1, 1, tickLength(x), lineColor(160));
            if (x % 10 == 0)
                ioPainter.drawText(QRect(x * kZoom - 20, -kRuler, 40, kRuler - 10), Qt::AlignCenter,
                                   QString::number(x));
        }
    }

    void paintSideRuler(QPainter &ioPainter, int inLength) const
    {
        for (int y = 0; y <= inLength; ++y) {
            ioPainter.fillRect(-tickLength(y) - 1, y * kZoom, tickLength(y), 1, lineColor(160));
            if (y % 10 == 0)
                ioPainter.drawText(QRect(-kRuler, y * kZoom - 10, kRuler - 11, 20),
                                   Qt::AlignRight | Qt::AlignVCenter, QString::number(y));
        }
    }

    // Screen pixels for each pixel of the sample, the room for a ruler, and for its last number,
    // which stands across its end.
    static constexpr int kZoom = 4;
    static constexpr int kRuler = 28;
    static constexpr int kTail = 14;

    QWidget *mSample;
};

// A bar of as many pixels as a metric says.
class MetricBar : public QWidget
{
public:
    MetricBar() { setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed); }

    void setValue(int inValue)
    {
        mValue = inValue;
        update();
    }

    QSize sizeHint() const override { return QSize(kLongest, 8); }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        painter.fillRect(0, 0, qBound(0, mValue, kLongest), height(), palette().color(QPalette::WindowText));
    }

private:
    static constexpr int kLongest = 200;

    int mValue = 0;
};

// The metrics that have a meaning of their own in the house design.
constexpr QStyle::PixelMetric kMetrics[] = {
    QStyle::PM_ButtonMargin,
    QStyle::PM_ButtonShiftHorizontal,
    QStyle::PM_ButtonShiftVertical,
    QStyle::PM_DefaultFrameWidth,
    QStyle::PM_SpinBoxFrameWidth,
    QStyle::PM_ScrollBarExtent,
    QStyle::PM_ScrollBarSliderMin,
    QStyle::PM_SliderThickness,
    QStyle::PM_SliderControlThickness,
    QStyle::PM_SliderLength,
    QStyle::PM_TabBarTabHSpace,
    QStyle::PM_TabBarBaseOverlap,
    QStyle::PM_ProgressBarChunkWidth,
    QStyle::PM_MenuHMargin,
    QStyle::PM_MenuVMargin,
    QStyle::PM_MenuPanelWidth,
    QStyle::PM_MenuDesktopFrameWidth,
    QStyle::PM_SubMenuOverlap,
    QStyle::PM_IndicatorWidth,
    QStyle::PM_IndicatorHeight,
    QStyle::PM_ExclusiveIndicatorWidth,
    QStyle::PM_ExclusiveIndicatorHeight,
    QStyle::PM_FocusFrameVMargin,
    QStyle::PM_FocusFrameHMargin,
    QStyle::PM_ScrollView_ScrollBarSpacing,
    QStyle::PM_ScrollView_ScrollBarOverlap,
    QStyle::PM_SmallIconSize,
    QStyle::PM_ToolBarIconSize,
    QStyle::PM_LayoutLeftMargin,
    QStyle::PM_LayoutHorizontalSpacing,
    QStyle::PM_LayoutVerticalSpacing,
};

// Metrics that the house style answers for menus alone.
bool isOfMenus(QStyle::PixelMetric inMetric)
{
    switch (inMetric) {
    case QStyle::PM_MenuHMargin:
    case QStyle::PM_MenuVMargin:
    case QStyle::PM_MenuPanelWidth:
    case QStyle::PM_MenuDesktopFrameWidth:
    case QStyle::PM_SubMenuOverlap: return true;
    default: return false;
    }
}

class MetricsPage : public GalleryPage
{
public:
    explicit MetricsPage(QWidget *inParent)
        : GalleryPage(inParent), mFusion(QStyleFactory::create(QStringLiteral("Fusion"))),
          mMenu(new QMenu(this))
    {
        addMagnifiers();
        addMetrics();
        refresh();
    }

    void refresh() override
    {
        for (const Row &row : std::as_const(mRows)) {
            const QWidget *asker = isOfMenus(row.metric) ? static_cast<const QWidget *>(mMenu) : this;
            const int value = style()->pixelMetric(row.metric, nullptr, asker);
            row.value->setText(QString::number(value));
            row.fusionValue->setText(QString::number(mFusion->pixelMetric(row.metric, nullptr, asker)));
            row.bar->setValue(value);
        }
        for (const auto &[magnifier, name, caption] : std::as_const(mMagnifiers)) {
            caption->setText(QStringLiteral("%1, %2").arg(name, magnifier->sizeText()));
            magnifier->updateGeometry();
        }
    }

private:
    struct Row
    {
        QStyle::PixelMetric metric;
        QLabel *value;
        QLabel *fusionValue;
        MetricBar *bar;
    };

    struct Magnified
    {
        Magnifier *magnifier;
        QString name;
        QLabel *caption;
    };

    void magnify(QGridLayout *ioGrid, const QString &inName, QWidget *inSample)
    {
        const int index = mMagnifiers.size();
        auto *magnifier = new Magnifier(inSample);
        QLabel *caption = makeCaption(QString());
        ioGrid->addWidget(magnifier, index / 2 * 2, index % 2, Qt::AlignLeft | Qt::AlignTop);
        ioGrid->addWidget(caption, index / 2 * 2 + 1, index % 2, Qt::AlignTop);
        mMagnifiers.append({magnifier, inName, caption});
    }

    void addMagnifiers()
    {
        auto *grid = new QGridLayout;
        grid->setHorizontalSpacing(24);
        grid->setVerticalSpacing(8);
        grid->setColumnStretch(2, 1);
        addSection(QStringLiteral("Rulers"),
                   QStringLiteral("Each widget at the size it asks for, four times enlarged, in pixels."))
            ->addLayout(grid);

        magnify(grid, QStringLiteral("push button"), new QPushButton(QStringLiteral("Button")));
        auto *combo = new QComboBox;
        combo->addItem(QStringLiteral("Portrait"));
        magnify(grid, QStringLiteral("combo box"), combo);
        auto *check = new QCheckBox(QStringLiteral("Check"));
        check->setChecked(true);
        magnify(grid, QStringLiteral("check box"), check);
        auto *tool = new QToolButton;
        tool->setIcon(DrawnIcons::picture());
        tool->setIconSize(QSize(24, 24));
        tool->setCheckable(true);
        tool->setChecked(true);
        magnify(grid, QStringLiteral("tool button, checked"), tool);
        auto *edit = new QLineEdit(QStringLiteral("Text"));
        edit->setMaximumWidth(104);
        magnify(grid, QStringLiteral("line edit"), edit);
        auto *spin = new QSpinBox;
        spin->setValue(42);
        magnify(grid, QStringLiteral("spin box"), spin);
        auto *slider = new QSlider(Qt::Horizontal);
        slider->setValue(40);
        magnify(grid, QStringLiteral("slider"), slider);
        auto *scroll = new QScrollBar(Qt::Horizontal);
        scroll->setMinimumWidth(104);
        magnify(grid, QStringLiteral("scroll bar"), scroll);
        auto *progress = new QProgressBar;
        progress->setValue(40);
        magnify(grid, QStringLiteral("progress bar"), progress);
        auto *tabs = new QTabBar;
        tabs->addTab(QStringLiteral("One"));
        tabs->addTab(QStringLiteral("Two"));
        magnify(grid, QStringLiteral("tab bar"), tabs);
    }

    void addMetrics()
    {
        auto *grid = new QGridLayout;
        grid->setHorizontalSpacing(24);
        grid->setVerticalSpacing(4);
        grid->setColumnStretch(3, 1);
        addSection(QStringLiteral("Pixel metrics"),
                   QStringLiteral("As the present style answers them for an ordinary widget, those of menus "
                                  "for a menu, beside Fusion's own answer."))
            ->addLayout(grid);
        int column = 0;
        for (const char *header : {"Metric", "Value", "Fusion"})
            grid->addWidget(new HouseLabel(QLatin1String(header), &VantraFont::smallFontPlus, QFont::Bold), 0,
                            column++);
        const QMetaEnum names = QMetaEnum::fromType<QStyle::PixelMetric>();
        for (const QStyle::PixelMetric metric : kMetrics) {
            Row row = {metric, new QLabel, new QLabel, new MetricBar};
            const int gridRow = grid->rowCount();
            grid->addWidget(new QLabel(QLatin1String(names.valueToKey(metric))), gridRow, 0);
            grid->addWidget(row.value, gridRow, 1, Qt::AlignRight);
            grid->addWidget(row.fusionValue, gridRow, 2, Qt::AlignRight);
            grid->addWidget(row.bar, gridRow, 3);
            mRows << row;
        }
    }

    std::unique_ptr<QStyle> mFusion;
    // Never shown: it stands for all menus when their metrics are asked for.
    QMenu *mMenu;
    QList<Row> mRows;
    QList<Magnified> mMagnifiers;
};
} // namespace

GalleryPage *makeMetricsPage(QWidget *inParent)
{
    return new MetricsPage(inParent);
}
