#include "Utilities/VTWidgetUtils.h"
#include "Utilities/VantraSortFilterProxyModel.h"

#include <QtCore/QCollator>
#include <QtCore/QRandomGenerator>
#include <QtCore/QStringListModel>
#include <QtGui/QStandardItemModel>
#include <QtTest/QtTest>
#include <QtWidgets/QComboBox>
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
    void listIsSortedAsAPersonExpects_data();
    void listIsSortedAsAPersonExpects();
    void orderIsTheCollators_data();
    void orderIsTheCollators();
    void comboBoxStaysSorted();
    void comboBoxGetsItsModelBack();
    void treeIsSortedAtEachLevel();
    void changesDuringASortAreSeen();
};

void tst_VantraSortFilterProxyModel::listIsSortedAsAPersonExpects_data()
{
    QTest::addColumn<QStringList>("texts");
    QTest::addColumn<QStringList>("sorted");
    const auto add = [](const char *inName, const char *inTexts, const char *inSorted) {
        QTest::newRow(inName) << words(inTexts) << words(inSorted);
    };
    add("nothing", "", "");
    add("numbers and case", "a10 A2 a1", "a1 A2 a10");
    add("equal texts keep their order", "b B a A b a", "a A a b B b");
    add("numbers of many digits", "f20230101120000 f9 f100000", "f9 f100000 f20230101120000");
    add("leading zeros", "7 08 6 009", "6 7 08 009");
    add("accents", "Z zö Zo é e f", "e é f Z Zo zö");
}

void tst_VantraSortFilterProxyModel::listIsSortedAsAPersonExpects()
{
    QFETCH(QStringList, texts);
    VTWidgetsSortStringList(texts);
    QTEST(texts, "sorted");
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

void tst_VantraSortFilterProxyModel::treeIsSortedAtEachLevel()
{
    QTreeView tree;
    auto *items = new QStandardItemModel(&tree);
    items->appendRow(new QStandardItem(QStringLiteral("b")));
    items->appendRow(new QStandardItem(QStringLiteral("a")));
    for (const char *word : {"c10", "c9"}) {
        items->item(0)->appendRow(new QStandardItem(QLatin1String(word)));
    }
    tree.setModel(items);
    VantraSortFilterProxyModel::setModelAndSort(&tree);
    QCOMPARE(rowsOf(tree.model()), words("a b"));
    const QModelIndex parent = tree.model()->index(1, 0);
    QCOMPARE(tree.model()->index(0, 0, parent).data().toString(), QStringLiteral("c9"));
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
