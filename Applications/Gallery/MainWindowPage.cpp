#include "GalleryPage.h"

#include "AiryDelegate.h"
#include "Utilities/VTWidgetUtils.h"
#include "Window/VantraMainWindow.h"

#include <QtGui/QAction>
#include <QtGui/QShortcut>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QMenu>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QTableWidget>

namespace {
constexpr int kTableHeight = 236;
constexpr int kLogHeight = 180;

QKeySequence keys(const char *inText)
{
    return QKeySequence(QLatin1String(inText), QKeySequence::PortableText);
}

// The page works on the gallery's own window and shows what it has registered there. Nothing is unregistered
// at the end, as the page goes with the window.
class MainWindowPage : public GalleryPage
{
public:
    explicit MainWindowPage(QWidget *inParent)
        : GalleryPage(inParent), mWindow(qobject_cast<VantraMainWindow *>(VantraMainWindow::activeWindow()))
    {
        makeLog();
        makeOwners();
        addMap();
        addLog();
        addWindow();
        updateTable();
        connect(mWindow, &VantraMainWindow::aboutToTriggerShortcut, this, [this](const QKeySequence &inKeys) {
            log(QStringLiteral("aboutToTriggerShortcut(%1)").arg(inKeys.toString()));
        });
        mWindow->triggerActionOrShortcut(keys("Ctrl+Shift+V"));
    }

private:
    void makeLog()
    {
        mLog = new QListWidget;
        mLog->setItemDelegate(new AiryDelegate(mLog));
        mLog->setFixedHeight(kLogHeight);
        mLog->setAccessibleName(QStringLiteral("Log"));
    }

    void makeOwners()
    {
        mAdjust = makeMenu(QStringLiteral("Adjust"), this);
        mExposure = addActionTo(mAdjust, QStringLiteral("Exposure"), "Ctrl+Shift+E");
        addActionTo(mAdjust, QStringLiteral("Contrast"), "Ctrl+Shift+C");
        QMenu *presets = makeMenu(QStringLiteral("Presets"), mAdjust);
        mAdjust->addMenu(presets);
        addActionTo(presets, QStringLiteral("Vivid"), "Ctrl+Shift+V");
        mTools = makeMenu(QStringLiteral("Tools"), this);
        addActionTo(mTools, QStringLiteral("Heal"), "Ctrl+Shift+H");
        mShortcut = new QShortcut(keys("Ctrl+Shift+Z"), this);
        connect(mShortcut, &QShortcut::activated, this,
                [this] { log(QStringLiteral("QShortcut activated")); });
    }

    QMenu *makeMenu(const QString &inTitle, QWidget *inOwner)
    {
        auto *menu = new QMenu(inTitle, inOwner);
        connect(menu, &QMenu::aboutToShow, this,
                [this, inTitle] { log(QStringLiteral("%1: aboutToShow").arg(inTitle)); });
        return menu;
    }

    QAction *addActionTo(QMenu *ioMenu, const QString &inText, const char *inKeys)
    {
        QAction *action = ioMenu->addAction(inText);
        action->setShortcut(keys(inKeys));
        connect(action, &QAction::triggered, this,
                [this, inText] { log(QStringLiteral("%1: triggered").arg(inText)); });
        addAction(action); // so that its key works without a menu bar
        return action;
    }

    void addMap()
    {
        QVBoxLayout *body = addSection(
            QStringLiteral("Shortcut map of this window"),
            QStringLiteral(
                "Press one of the keys: the menu that owns it raises aboutToShow before its action "
                "is triggered. An action of a submenu has the menu above it raise the signal."));
        mTable = new QTableWidget(0, 3);
        mTable->setHorizontalHeaderLabels(
            {QStringLiteral("Key sequence"), QStringLiteral("Owner"), QStringLiteral("Triggers")});
        mTable->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
        mTable->verticalHeader()->hide();
        mTable->setEditTriggers(QAbstractItemView::NoEditTriggers);
        mTable->setSelectionBehavior(QAbstractItemView::SelectRows);
        mTable->setSelectionMode(QAbstractItemView::SingleSelection);
        mTable->setItemDelegate(new AiryDelegate(mTable));
        mTable->setFixedHeight(kTableHeight);
        mTable->setAccessibleName(QStringLiteral("Shortcut map"));
        body->addWidget(mTable);

        auto *row = new QHBoxLayout;
        addRegistration(row, mAdjust->title(), mAdjust);
        addRegistration(row, mTools->title(), mTools);
        addRegistration(row, QStringLiteral("QShortcut"), mShortcut);
        row->addSpacing(16);
        addButton(row, QStringLiteral("Remap Exposure"), [this] { remap(); });
        addButton(row, QStringLiteral("Trigger selected row"), [this] {
            if (const QTableWidgetItem *item = mTable->item(mTable->currentRow(), 0))
                mWindow->triggerActionOrShortcut(QKeySequence(item->text(), QKeySequence::PortableText));
        });
        row->addStretch();
        body->addLayout(row);
    }

    // A button that registers a menu or shortcut while it is down.
    template <typename Owner>
    void addRegistration(QHBoxLayout *ioRow, const QString &inTitle, Owner *inOwner)
    {
        auto *button = new QPushButton(inTitle);
        button->setCheckable(true);
        button->setToolTip(QStringLiteral("Register or unregister"));
        connect(button, &QPushButton::toggled, this, [this, inOwner](bool inRegistered) {
            if (inRegistered) {
                mWindow->registerAboutToTriggerShortcut(inOwner);
                mRegistered << inOwner;
            } else {
                mWindow->unregisterAboutToTriggerShortcut(inOwner);
                mRegistered.removeOne(inOwner);
            }
            updateTable();
        });
        button->setChecked(true);
        ioRow->addWidget(button);
    }

    template <typename Function>
    void addButton(QHBoxLayout *ioRow, const QString &inText, Function inFunction)
    {
        auto *button = new QPushButton(inText);
        connect(button, &QPushButton::clicked, this, inFunction);
        ioRow->addWidget(button);
    }

    void remap()
    {
        const QKeySequence earlier = mExposure->shortcut();
        const QKeySequence later =
            earlier == keys("Ctrl+Shift+E") ? keys("Ctrl+Alt+E") : keys("Ctrl+Shift+E");
        mExposure->setShortcut(later);
        mWindow->keySequenceChanged(earlier, later);
        updateTable();
    }

    void addLog()
    {
        QVBoxLayout *body = addSection(QStringLiteral("What happened"));
        body->addWidget(mLog);
        auto *row = new QHBoxLayout;
        addButton(row, QStringLiteral("Clear"), [this] { mLog->clear(); });
        row->addStretch();
        body->addLayout(row);
    }

    void addWindow()
    {
        QVBoxLayout *body = addSection(QStringLiteral("The window itself"),
                                       QStringLiteral("On the screen %1.").arg(VTWidgetsScreenInfo(mWindow)));
        auto *row = new QHBoxLayout;
        addButton(row, QStringLiteral("Toggle full screen"), [this] { mWindow->toggleFullScreen(); });
        addButton(row, QStringLiteral("Bring to front"), [this] { mWindow->bringToFront(); });
        row->addStretch();
        body->addLayout(row);
    }

    void addRowsOf(QObject *inOwner)
    {
        if (const auto *shortcut = qobject_cast<QShortcut *>(inOwner)) {
            addRow(shortcut->key(), QStringLiteral("none"), QStringLiteral("QShortcut"));
        } else if (const auto *menu = qobject_cast<QMenu *>(inOwner)) {
            const QList<QAction *> actions = menu->actions();
            for (const QAction *action : actions) {
                if (action->menu() != nullptr)
                    addRowsOf(action->menu());
                else
                    addRow(action->shortcut(), menu->title(), action->text());
            }
        }
    }

    void addRow(const QKeySequence &inKeys, const QString &inOwner, const QString &inTarget)
    {
        const int row = mTable->rowCount();
        mTable->insertRow(row);
        int column = 0;
        for (const QString &text : {inKeys.toString(), inOwner, inTarget})
            mTable->setItem(row, column++, new QTableWidgetItem(text));
    }

    void updateTable()
    {
        mTable->setRowCount(0);
        for (QObject *owner : std::as_const(mRegistered))
            addRowsOf(owner);
        mTable->sortItems(0);
    }

    void log(const QString &inLine)
    {
        mLog->addItem(inLine);
        mLog->scrollToBottom();
    }

    VantraMainWindow *mWindow;
    QMenu *mAdjust = nullptr;
    QMenu *mTools = nullptr;
    QAction *mExposure = nullptr;
    QShortcut *mShortcut = nullptr;
    QTableWidget *mTable = nullptr;
    QListWidget *mLog = nullptr;
    QList<QObject *> mRegistered;
};
} // namespace

GalleryPage *makeMainWindowPage(QWidget *inParent)
{
    return new MainWindowPage(inParent);
}
