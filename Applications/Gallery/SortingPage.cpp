#include "GalleryPage.h"

#include "AiryDelegate.h"
#include "Utilities/VTWidgetUtils.h"
#include "Utilities/VantraSortFilterProxyModel.h"

#include <QtCore/QStringListModel>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QListView>
#include <QtWidgets/QPushButton>

#include <algorithm>

namespace {
constexpr QSize kListSize(190, 328);

QStringList names()
{
    return {QStringLiteral("img_10.cr3"),   QStringLiteral("IMG_2.cr3"),  QStringLiteral("img_1.cr3"),
            QStringLiteral("Zürich 3"),     QStringLiteral("zürich 12"),  QStringLiteral("Äpfel"),
            QStringLiteral("Portrait 100"), QStringLiteral("portrait 9"), QStringLiteral("Apfel"),
            QStringLiteral("IMG_010.cr3")};
}

QListView *makeList(const QStringList &inTexts, const QString &inName)
{
    auto *list = new QListView;
    list->setModel(new QStringListModel(inTexts, list));
    list->setItemDelegate(new AiryDelegate(list));
    list->setFixedSize(kListSize);
    list->setAccessibleName(inName);
    return list;
}

class SortingPage : public GalleryPage
{
public:
    explicit SortingPage(QWidget *inParent) : GalleryPage(inParent)
    {
        addLists();
        addFilter();
        addComboBox();
    }

private:
    void addLists()
    {
        QVBoxLayout *body = addSection(
            QStringLiteral("The order that a person expects"),
            QStringLiteral("Without regard to case, and numbers by their value. The order of letters is that "
                           "of the default locale, here %1.")
                .arg(QLocale().name()));
        SampleGrid grid(body, 3);
        grid.add(QStringLiteral("as they come"), makeList(names(), QStringLiteral("As they come")));
        QStringList byCode = names();
        std::sort(byCode.begin(), byCode.end());
        grid.add(QStringLiteral("by their letters' numbers"), makeList(byCode, QStringLiteral("By code")));
        QListView *sorted = makeList(names(), QStringLiteral("Sorted"));
        VantraSortFilterProxyModel::setModelAndSort(sorted);
        grid.add(QStringLiteral("VantraSortFilterProxyModel"), sorted);
    }

    void addFilter()
    {
        QVBoxLayout *body = addSection(QStringLiteral("Filter and additions"),
                                       QStringLiteral("The filter doesn't regard case either. What is added "
                                                      "takes its place at once."));
        auto *source = new QStringListModel(names(), this);
        auto *proxy = new VantraSortFilterProxyModel(this);
        proxy->setSourceModel(source);
        proxy->sort(0);
        auto *list = new QListView;
        list->setModel(proxy);
        list->setItemDelegate(new AiryDelegate(list));
        list->setFixedSize(kListSize);
        list->setAccessibleName(QStringLiteral("Filtered names"));

        auto *filter = new QLineEdit;
        filter->setPlaceholderText(QStringLiteral("Filter"));
        filter->setAccessibleName(QStringLiteral("Filter"));
        connect(filter, &QLineEdit::textChanged, proxy, &QSortFilterProxyModel::setFilterFixedString);
        auto *addition = new QLineEdit;
        addition->setPlaceholderText(QStringLiteral("New name, then Return"));
        addition->setAccessibleName(QStringLiteral("New name"));
        connect(addition, &QLineEdit::returnPressed, this, [source, addition] {
            const int row = source->rowCount();
            source->insertRow(row);
            source->setData(source->index(row), addition->text());
            addition->clear();
        });

        auto *fields = new QVBoxLayout;
        fields->setSpacing(8);
        fields->addWidget(filter);
        fields->addWidget(addition);
        fields->addStretch();
        auto *row = new QHBoxLayout;
        row->setSpacing(24);
        row->addWidget(list);
        row->addLayout(fields);
        row->addStretch();
        body->addLayout(row);
    }

    void addComboBox()
    {
        QVBoxLayout *body = addSection(QStringLiteral("A combo box with and without"),
                                       QStringLiteral("Sorting lays a model between the combo box and its "
                                                      "own, detaching takes it away."));
        auto *comboBox = new QComboBox;
        QStringList sizes;
        for (const int size : VTWidgetUtils::kStandardBrushSizeValues) {
            if (size % 100 == 0 || size < 10)
                sizes.prepend(QStringLiteral("%1 px").arg(size));
        }
        comboBox->addItems(sizes);
        comboBox->setMinimumWidth(140);
        comboBox->setAccessibleName(QStringLiteral("Brush size"));
        auto *button = new QPushButton(QStringLiteral("Sorted"));
        button->setCheckable(true);
        connect(button, &QPushButton::toggled, comboBox, [comboBox](bool inSorted) {
            QAbstractItemModel *earlier = comboBox->model();
            if (inSorted) {
                VantraSortFilterProxyModel::setModelAndSort(comboBox);
            } else {
                VantraSortFilterProxyModel::detachSortFilterProxyModel(comboBox);
                earlier->deleteLater();
            }
        });
        auto *row = new QHBoxLayout;
        row->addWidget(comboBox);
        row->addWidget(button);
        row->addStretch();
        body->addLayout(row);
    }
};
} // namespace

GalleryPage *makeSortingPage(QWidget *inParent)
{
    return new SortingPage(inParent);
}
