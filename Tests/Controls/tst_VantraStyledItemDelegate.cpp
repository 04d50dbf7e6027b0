#include "Controls/VantraStyledItemDelegate.h"
#include "Style/VantraStyle.h"
#include "StyleOptions/VantraStyleOptionViewItem.h"
#include "Support/FatalTest.h"
#include "Support/ThemeFixture.h"

#include <QtWidgets/QtWidgets>

#include <memory>
#include <optional>

namespace {

// Keeps the last record that it is asked to paint, and counts.
class RecordingStyle : public QProxyStyle
{
public:
    RecordingStyle() : QProxyStyle(new VantraStyle) {}

    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget) const override
    {
        if (element == CE_ItemViewItem) {
            ++items;
            paintedFor = widget;
            if (option->version >= VantraStyleOptionViewItem::Version) {
                record = *static_cast<const VantraStyleOptionViewItem *>(option);
            }
        }
        QProxyStyle::drawControl(element, option, painter, widget);
    }

    mutable int items = 0;
    mutable const QWidget *paintedFor = nullptr;
    mutable std::optional<VantraStyleOptionViewItem> record;
};

class TintingDelegate : public VantraStyledItemDelegate
{
public:
    using VantraStyledItemDelegate::copyStyleOption;

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override
    {
        VantraStyledItemDelegate::initStyleOption(option, index);
        if (option->version >= VantraStyleOptionViewItem::Version) {
            auto *record = static_cast<VantraStyleOptionViewItem *>(option);
            record->iconTinting = VantraIconPalette::IconTintingForeground;
            record->useIndent = true;
        }
    }
};

} // namespace

class tst_VantraStyledItemDelegate : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void paintsThroughTheStyleOfTheWidget_data();
    void paintsThroughTheStyleOfTheWidget();
    void fieldsOfASubclassReachTheStyle();
    void copiesRecordsWhole();
    void copiesPlainOptionsWithDefaults();
    void leavesTheRecordForOtherTypes();
    void hugeListPaintsWhatIsSeen();

private:
    RecordingStyle *mApplicationStyle = new RecordingStyle; // the application's, which owns it
    QStandardItemModel mModel;
};

void tst_VantraStyledItemDelegate::initTestCase()
{
    QVERIFY(ThemeFixture::load());
    QApplication::setStyle(mApplicationStyle);
    mModel.appendRow(new QStandardItem("Row"));
}

void tst_VantraStyledItemDelegate::paintsThroughTheStyleOfTheWidget_data()
{
    QTest::addColumn<bool>("hasWidget");
    QTest::newRow("style of the widget") << true;
    QTest::newRow("no widget: style of the application") << false;
}

void tst_VantraStyledItemDelegate::paintsThroughTheStyleOfTheWidget()
{
    QFETCH(const bool, hasWidget);
    RecordingStyle own;
    QWidget widget;
    widget.setStyle(&own);
    mApplicationStyle->items = 0;

    QStyleOptionViewItem option;
    option.rect = QRect(0, 0, 80, 24);
    option.widget = hasWidget ? &widget : nullptr;
    const VantraStyledItemDelegate delegate;
    const QImage image = ThemeFixture::paint(option.rect.size(), [&](QPainter &ioPainter) {
        delegate.paint(&ioPainter, option, mModel.index(0, 0));
    });
    QVERIFY(ThemeFixture::ink(image) > 0.0);
    QCOMPARE(own.items, hasWidget ? 1 : 0);
    QCOMPARE(own.paintedFor, option.widget);
    QCOMPARE(mApplicationStyle->items, hasWidget ? 0 : 1);
}

void tst_VantraStyledItemDelegate::fieldsOfASubclassReachTheStyle()
{
    const TintingDelegate delegate;
    QStyleOptionViewItem option; // as a view hands it over
    option.rect = QRect(0, 0, 80, 24);
    mApplicationStyle->record.reset();
    ThemeFixture::paint(option.rect.size(),
                        [&](QPainter &ioPainter) { delegate.paint(&ioPainter, option, mModel.index(0, 0)); });
    QVERIFY(mApplicationStyle->record.has_value());
    QCOMPARE(mApplicationStyle->record->text, QStringLiteral("Row"));
    QCOMPARE(mApplicationStyle->record->iconTinting, VantraIconPalette::IconTintingForeground);
    QVERIFY(mApplicationStyle->record->useIndent);
    // Sizes come with plain options, which have no room for these fields.
    QVERIFY(delegate.sizeHint(option, mModel.index(0, 0)).isValid());
}

void tst_VantraStyledItemDelegate::copiesRecordsWhole()
{
    VantraStyleOptionViewItem source;
    source.text = "Text";
    source.useIndent = true;
    source.iconTinting = VantraIconPalette::IconTintingForeground;
    VantraStyleOptionViewItem target;
    TintingDelegate().copyStyleOption(target, source);
    QCOMPARE(target.text, QStringLiteral("Text"));
    QVERIFY(target.useIndent);
    QCOMPARE(target.iconTinting, VantraIconPalette::IconTintingForeground);
}

void tst_VantraStyledItemDelegate::copiesPlainOptionsWithDefaults()
{
    QStyleOptionViewItem source;
    source.text = "Text";
    VantraStyleOptionViewItem target;
    target.useIndent = true;
    target.iconTinting = VantraIconPalette::IconTintingForeground;
    TintingDelegate().copyStyleOption(target, source);
    QCOMPARE(target.text, QStringLiteral("Text"));
    QVERIFY(!target.useIndent);
    QCOMPARE(target.iconTinting, VantraIconPalette::IconTintingNone);
    QCOMPARE(target.version, static_cast<int>(VantraStyleOptionViewItem::Version));
}

void tst_VantraStyledItemDelegate::leavesTheRecordForOtherTypes()
{
    QStyleOptionViewItem source;
    source.type = QStyleOption::SO_Button;
    source.text = "Text";
    VantraStyleOptionViewItem target;
    target.text = "Kept";
    target.useIndent = true;
    TintingDelegate().copyStyleOption(target, source);
    QCOMPARE(target.text, QStringLiteral("Kept"));
    QVERIFY(target.useIndent);
}

void tst_VantraStyledItemDelegate::hugeListPaintsWhatIsSeen()
{
    QStringList rows;
    for (int row = 0; row < 100000; ++row) {
        rows << QString::number(row);
    }
    QStringListModel model(rows);
    QListView view;
    view.setUniformItemSizes(true);
    view.setModel(&model);
    VantraStyledItemDelegate delegate;
    view.setItemDelegate(&delegate);
    view.resize(200, 300);
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));

    const int height = view.visualRect(model.index(0, 0)).height();
    QVERIFY(height > 0);
    const int visible = view.viewport()->height() / height;
    for (const int row : {0, 50000, 99999}) {
        view.scrollTo(model.index(row, 0), QAbstractItemView::PositionAtCenter);
        mApplicationStyle->items = 0;
        view.viewport()->grab();
        QVERIFY(mApplicationStyle->items >= visible);
        QVERIFY(mApplicationStyle->items <= visible + 2);
    }
}

FATAL_TEST_MAIN(tst_VantraStyledItemDelegate)
#include "tst_VantraStyledItemDelegate.moc"
