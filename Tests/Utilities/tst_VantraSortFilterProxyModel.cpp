#include "Support/DataRows.h"
#include "Utilities/VTWidgetUtils.h"
#include "Utilities/VantraSortFilterProxyModel.h"

#include <QtCore/QCollator>
#include <QtCore/QRandomGenerator>
#include <QtCore/QStringListModel>
#include <QtGui/QStandardItemModel>
#include <QtTest/QtTest>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QListView>
#include <QtWidgets/QTableView>
#include <QtWidgets/QTreeView>

#include <memory>

namespace {

QStringList words(const char *inText)
{
    return QString::fromUtf8(inText).split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

QStringList rowsOf(const QAbstractItemModel *inModel)
{
    QStringList rows;
    for (int row = 0; row < inModel->rowCount(); ++row) {
        rows << inModel->index(row, 0).data().toString();
    }
    return rows;
}

struct OrderRow
{
    const char *name;
    const char *texts;
    const char *sorted;
};

const std::vector<OrderRow> &orderRows()
{
    static const std::vector<OrderRow> sRows = {
        {"nothing", "", ""},
        {"numbers and case", "a10 A2 a1", "a1 A2 a10"},
        {"equal texts keep their order", "b B a A b a", "a A a b B b"},
        {"numbers of many digits", "f20230101120000 f9 f100000", "f9 f100000 f20230101120000"},
        {"leading zeros", "7 007 08 6", "6 7 007 08"},
        {"accents", "Z z\u00f6 Zo \u00e9 e f", "e \u00e9 f Z Zo z\u00f6"},
    };
    return sRows;
}

QString randomText()
{
    static const QString sLetters = QString::fromUtf8("aAbB\u00e4\u00c4\u00dfz 019.-_\u4e2d\u0431\u0411");
    QString text;
    for (int length = QRandomGenerator::global()->bounded(8); length > 0; --length) {
        text += sLetters.at(QRandomGenerator::global()->bounded(static_cast<int>(sLetters.size())));
    }
    return text;
}

} // namespace

class tst_VantraSortFilterProxyModel : public QObject
{
    Q_OBJECT

private slots:
    void init() { QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates)); }
    void listIsSortedAsAPersonExpects_data() { DataRows::add(orderRows()); }
    void listIsSortedAsAPersonExpects();
    void orderIsTheCollators_data();
    void orderIsTheCollators();
    void comboBoxStaysSorted();
    void comboBoxGetsItsModelBack();
    void viewsAreSorted();
    void numbersAreComparedAsText();
    void changesDuringASortAreSeen();
};

void tst_VantraSortFilterProxyModel::listIsSortedAsAPersonExpects()
{
    const OrderRow row = DataRows::current(orderRows());
    QStringList texts = words(row.texts);
    VTWidgetsSortStringList(texts);
    QCOMPARE(texts, words(row.sorted));
}

void tst_VantraSortFilterProxyModel::orderIsTheCollators_data()
{
    QTest::addColumn<QLocale>("locale");
    QTest::newRow("C") << QLocale::c();
    QTest::newRow("English") << QLocale(QLocale::English);
    QTest::newRow("Swedish") << QLocale(QLocale::Swedish);
    QTest::newRow("Japanese") << QLocale(QLocale::Japanese);
}

void tst_VantraSortFilterProxyModel::orderIsTheCollators()
{
    QFETCH(const QLocale, locale);
    QLocale::setDefault(locale);
    QStringList texts;
    for (int i = 0; i < 2000; ++i) {
        texts << randomText();
    }
    QCollator collator;
    collator.setNumericMode(true);
    collator.setCaseSensitivity(Qt::CaseInsensitive);
    QStringList expected = texts;
    std::stable_sort(expected.begin(), expected.end(), [&](const QString &inLeft, const QString &inRight) {
        return collator.compare(inLeft, inRight) < 0;
    });
    VantraSortFilterProxyModel::sortStringList(texts);
    QCOMPARE(texts, expected);
}

void tst_VantraSortFilterProxyModel::comboBoxStaysSorted()
{
    QComboBox comboBox;
    comboBox.addItems(words("i10 I2 i1"));
    auto *source = qobject_cast<QStandardItemModel *>(comboBox.model());
    VantraSortFilterProxyModel::setModelAndSort(&comboBox);
    QCOMPARE(rowsOf(comboBox.model()), words("i1 I2 i10"));
    QCOMPARE(source->parent(), comboBox.model());
    QCOMPARE(comboBox.model()->parent(), &comboBox);
    source->appendRow(new QStandardItem(QStringLiteral("i3")));
    source->item(2)->setText(QStringLiteral("i4")); // was i1
    QCOMPARE(rowsOf(comboBox.model()), words("I2 i3 i4 i10"));
}

void tst_VantraSortFilterProxyModel::comboBoxGetsItsModelBack()
{
    auto comboBox = std::make_unique<QComboBox>();
    comboBox->addItems(words("b a"));
    const QPointer<QAbstractItemModel> source(comboBox->model());
    VantraSortFilterProxyModel::detachSortFilterProxyModel(comboBox.get());
    QCOMPARE(comboBox->model(), source.data());
    VantraSortFilterProxyModel::setModelAndSort(comboBox.get());
    const std::unique_ptr<QAbstractItemModel> proxy(comboBox->model());
    VantraSortFilterProxyModel::detachSortFilterProxyModel(comboBox.get());
    QVERIFY(proxy->parent() == nullptr);
    QCOMPARE(comboBox->model(), source.data());
    QCOMPARE(source->parent(), comboBox.get());
    QCOMPARE(rowsOf(comboBox->model()), words("b a"));
    comboBox.reset();
    QVERIFY(source.isNull());
}

void tst_VantraSortFilterProxyModel::viewsAreSorted()
{
    QListView list;
    QTableView table;
    QTreeView tree;
    for (QAbstractItemView *view :
         {static_cast<QAbstractItemView *>(&list), static_cast<QAbstractItemView *>(&table)}) {
        view->setModel(new QStringListModel(words("b10 b2 a"), view));
    }
    auto *items = new QStandardItemModel(&tree);
    items->appendRow(new QStandardItem(QStringLiteral("b")));
    for (const QString &word : words("c10 c9")) {
        items->item(0)->appendRow(new QStandardItem(word));
    }
    items->appendRow(new QStandardItem(QStringLiteral("a")));
    tree.setModel(items);
    VantraSortFilterProxyModel::setModelAndSort(&list);
    VantraSortFilterProxyModel::setModelAndSort(&table);
    VantraSortFilterProxyModel::setModelAndSort(&tree);
    QCOMPARE(rowsOf(list.model()), words("a b2 b10"));
    QCOMPARE(rowsOf(table.model()), words("a b2 b10"));
    QCOMPARE(rowsOf(tree.model()), words("a b"));
    const QModelIndex parent = tree.model()->index(1, 0);
    QCOMPARE(tree.model()->index(0, 0, parent).data().toString(), QStringLiteral("c9"));
}

void tst_VantraSortFilterProxyModel::numbersAreComparedAsText()
{
    QStandardItemModel source(2, 1);
    source.setData(source.index(0, 0), -1); // by value it would come first
    source.setData(source.index(1, 0), 0);
    source.setData(source.index(0, 0), 2, Qt::UserRole);
    source.setData(source.index(1, 0), 1, Qt::UserRole);
    VantraSortFilterProxyModel proxy;
    proxy.setSortRole(Qt::UserRole);
    proxy.setSourceModel(&source);
    QStringList texts = rowsOf(&source);
    VantraSortFilterProxyModel::sortStringList(texts);
    proxy.sort(0);
    QCOMPARE(rowsOf(&proxy), texts);
    proxy.sort(0, Qt::DescendingOrder);
    std::reverse(texts.begin(), texts.end());
    QCOMPARE(rowsOf(&proxy), texts);
}

void tst_VantraSortFilterProxyModel::changesDuringASortAreSeen()
{
    QStringListModel source(words("d c b a"));
    VantraSortFilterProxyModel proxy;
    proxy.setSourceModel(&source);
    // A slot that hears of the sort changes a row, which sorts again within it.
    bool changed = false;
    connect(&proxy, &QAbstractItemModel::layoutChanged, this, [&] {
        if (!changed) {
            changed = true;
            source.setData(source.index(3), QStringLiteral("z"));
            proxy.sort(0, Qt::DescendingOrder);
            proxy.sort(0, Qt::AscendingOrder);
        }
    });
    proxy.sort(0);
    QVERIFY(changed);
    QCOMPARE(rowsOf(&proxy), words("b c d z"));
    source.setData(source.index(0), QStringLiteral("a"));
    QCOMPARE(rowsOf(&proxy), words("a b c z"));
}

QTEST_MAIN(tst_VantraSortFilterProxyModel)
#include "tst_VantraSortFilterProxyModel.moc"
