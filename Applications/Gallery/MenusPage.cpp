#include "GalleryPage.h"

#include "Controls/VantraMenu.h"
#include "Controls/VantraMenuBar.h"
#include "DrawnIcons.h"
#include "Photograph.h"
#include "WidgetPicture.h"

#include <QtCore/QEvent>
#include <QtGui/QPainter>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QMenu>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QStyleOption>
#include <QtWidgets/QVBoxLayout>

namespace {
// A menu that can look as if one of its submenus were open.
class OpenableMenu : public VantraMenu
{
public:
    using VantraMenu::VantraMenu;

    QMenu *opened = nullptr;

protected:
    void initStyleOption(QStyleOptionMenuItem *ioOption, const QAction *inAction) const override
    {
        VantraMenu::initStyleOption(ioOption, inAction);
        if (opened != nullptr && inAction == opened->menuAction())
            ioOption->state |= QStyle::State_Selected;
    }
};

// Paints a menu that is never popped up, since a popup can't stand in a page. The menu is real, measured and
// painted by its own code.
class MenuPicture : public QWidget
{
    Q_OBJECT

public:
    enum Backdrop { Page, Photograph };

    // Takes the menu as its child.
    MenuPicture(QMenu *inMenu, Backdrop inBackdrop = Page) : mMenu(inMenu), mBackdrop(inBackdrop)
    {
        mMenu->setParent(this, mMenu->windowFlags());
        setAccessibleName(mMenu->title());
        // The submenu of an overlay menu stands open beside it.
        if (auto *openable = dynamic_cast<OpenableMenu *>(mMenu)) {
            mSubmenu = openable->findChild<QMenu *>(QString(), Qt::FindDirectChildrenOnly);
            openable->opened = mSubmenu;
            openable->setActiveAction(nullptr);
        }
    }

    QSize sizeHint() const override
    {
        mMenu->ensurePolished();
        QSize size = mMenu->sizeHint();
        if (mSubmenu != nullptr) {
            mSubmenu->ensurePolished();
            const QSize submenu = mSubmenu->sizeHint();
            size =
                QSize(size.width() + submenu.width(), qMax(size.height(), submenuTop() + submenu.height()));
        }
        return size.grownBy(margins());
    }
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        if (mBackdrop == Photograph)
            paintPhotograph(painter, rect());
        painter.drawImage(QPoint(margins().left(), margins().top()),
                          widgetPicture(mMenu, mMenu->sizeHint(), devicePixelRatioF()));
        if (mSubmenu != nullptr)
            painter.drawImage(QPoint(margins().left() + mMenu->width(), margins().top() + submenuTop()),
                              widgetPicture(mSubmenu, mSubmenu->sizeHint(), devicePixelRatioF()));
    }

    // A menu is a window, which a parent's state doesn't reach.
    void changeEvent(QEvent *inEvent) override
    {
        if (inEvent->type() == QEvent::EnabledChange)
            mMenu->setEnabled(isEnabled());
        QWidget::changeEvent(inEvent);
    }

private:
    QMargins margins() const { return mBackdrop == Photograph ? QMargins(24, 16, 24, 16) : QMargins(); }

    int submenuTop() const { return mMenu->actionGeometry(mSubmenu->menuAction()).top(); }

    QMenu *mMenu;
    QMenu *mSubmenu = nullptr;
    Backdrop mBackdrop;
};

QMenu *makePlainMenu()
{
    auto *menu = new QMenu(QStringLiteral("Plain"));
    menu->addAction(QStringLiteral("Open"));
    menu->setActiveAction(menu->addAction(QStringLiteral("Hovered")));
    menu->addAction(QStringLiteral("Disabled"))->setEnabled(false);
    menu->addSeparator();
    menu->addAction(QStringLiteral("Behind a line"));
    return menu;
}

QMenu *makeIconMenu()
{
    auto *menu = new QMenu(QStringLiteral("Icons"));
    menu->addAction(DrawnIcons::folder(), QStringLiteral("Open folder"));
    menu->setActiveAction(menu->addAction(DrawnIcons::picture(), QStringLiteral("Hovered")));
    menu->addAction(DrawnIcons::adjust(), QStringLiteral("Disabled"))->setEnabled(false);
    menu->addAction(QStringLiteral("Without an icon"));
    return menu;
}

QMenu *makeCheckMenu()
{
    auto *menu = new QMenu(QStringLiteral("Check marks"));
    const auto add = [menu](const QString &inText, bool inChecked, bool inEnabled,
                            const QIcon &inIcon = QIcon()) {
        QAction *action = menu->addAction(inIcon, inText);
        action->setCheckable(true);
        action->setChecked(inChecked);
        action->setEnabled(inEnabled);
        return action;
    };
    add(QStringLiteral("Off"), false, true);
    add(QStringLiteral("On"), true, true);
    menu->setActiveAction(add(QStringLiteral("On, hovered"), true, true));
    add(QStringLiteral("On, disabled"), true, false);
    menu->addSeparator();
    add(QStringLiteral("Off, with icon"), false, true, DrawnIcons::picture());
    add(QStringLiteral("On, with icon"), true, true, DrawnIcons::picture());
    return menu;
}

QMenu *makeShortcutMenu()
{
    auto *menu = new QMenu(QStringLiteral("Shortcuts"));
    menu->addAction(QStringLiteral("Undo"))->setShortcut(QKeySequence(QStringLiteral("Ctrl+Z")));
    menu->addAction(QStringLiteral("Redo"))->setShortcut(QKeySequence(QStringLiteral("Ctrl+Shift+Z")));
    QAction *disabled = menu->addAction(QStringLiteral("Paste"));
    disabled->setShortcut(QKeySequence(QStringLiteral("Ctrl+V")));
    disabled->setEnabled(false);
    menu->addSeparator();
    menu->addAction(QStringLiteral("A long text beside a shortcut"))
        ->setShortcut(QKeySequence(QStringLiteral("Ctrl+Alt+Shift+F12")));
    menu->addAction(QStringLiteral("&Mnemonic && ampersand"));
    return menu;
}

QMenu *makeSubMenus()
{
    auto *menu = new QMenu(QStringLiteral("Submenus"));
    menu->addMenu(QStringLiteral("Recent pictures"))->addAction(QStringLiteral("One"));
    QMenu *withIcon = menu->addMenu(DrawnIcons::folder(), QStringLiteral("With an icon"));
    withIcon->addAction(QStringLiteral("One"));
    QMenu *disabled = menu->addMenu(QStringLiteral("Disabled"));
    disabled->addAction(QStringLiteral("One"));
    disabled->menuAction()->setEnabled(false);
    menu->addSection(QStringLiteral("A section"));
    menu->addAction(QStringLiteral("An item of the section"));
    return menu;
}

void addOverlayItems(QMenu *ioMenu)
{
    ioMenu->addAction(DrawnIcons::picture(), QStringLiteral("Picture"));
    ioMenu->setActiveAction(ioMenu->addAction(QStringLiteral("Hovered")));
    ioMenu->addAction(QStringLiteral("Disabled"))->setEnabled(false);
    ioMenu->addSeparator();
    QAction *checked = ioMenu->addAction(QStringLiteral("Checked"));
    checked->setCheckable(true);
    checked->setChecked(true);
}

// Submenus of an overlay menu are overlay menus by their parent.
QMenu *makeOverlayMenu()
{
    auto *menu = new OpenableMenu(QStringLiteral("Overlay"));
    menu->setHudOverlay(true);
    addOverlayItems(menu);
    auto *submenu = new VantraMenu(QStringLiteral("Submenu"), menu);
    addOverlayItems(submenu);
    submenu->addMenu(DrawnIcons::folder(), QStringLiteral("And one more"))->addAction(QStringLiteral("One"));
    menu->addMenu(submenu);
    return menu;
}

// A click on a preset group applies its first preset; its submenu holds the others.
QMenu *makeTriggerMenu()
{
    auto *menu = new VantraMenu(QStringLiteral("Submenu triggers"));
    menu->setSubMenuTriggerEnabled(true);
    for (const char *title : {"Portraits", "Landscapes"}) {
        auto *submenu = new VantraMenu(QLatin1String(title), menu);
        submenu->addAction(QStringLiteral("Soft"));
        submenu->addAction(QStringLiteral("Strong"));
        menu->addMenu(submenu);
    }
    menu->addSeparator();
    menu->addAction(QStringLiteral("Without a submenu"));
    return menu;
}

class MenusPage : public GalleryPage
{
public:
    explicit MenusPage(QWidget *inParent) : GalleryPage(inParent)
    {
        QVBoxLayout *body =
            addSection(QStringLiteral("Live menus"),
                       QStringLiteral("A menu bar and a button that open the menus for real."));
        auto *bar = new VantraMenuBar;
        for (const auto make : {&makePlainMenu, &makeIconMenu, &makeCheckMenu, &makeShortcutMenu,
                                &makeSubMenus, &makeOverlayMenu, &makeTriggerMenu}) {
            QMenu *menu = make();
            menu->setParent(bar, menu->windowFlags());
            menu->setActiveAction(nullptr);
            bar->addMenu(menu);
        }
        body->addWidget(bar);
        auto *told =
            makeNote(QStringLiteral("Of submenu triggers, a click on an item with a submenu triggers it."));
        connect(bar, &QMenuBar::triggered, told, [told](QAction *inAction) {
            told->setText(QStringLiteral("Triggered: ") + inAction->text());
        });
        body->addWidget(told);
        auto *button = new QPushButton(QStringLiteral("Open a menu"));
        auto *menu = makeShortcutMenu();
        menu->setParent(button, menu->windowFlags());
        menu->setActiveAction(nullptr);
        connect(button, &QPushButton::clicked, menu,
                [button, menu] { menu->popup(button->mapToGlobal(QPoint(0, button->height()))); });
        body->addWidget(button, 0, Qt::AlignLeft);

        QVBoxLayout *pictures = addSection(QStringLiteral("Pictures of menus"),
                                           QStringLiteral("Each is a real menu, painted into the page."));
        SampleGrid grid(pictures, 4, Qt::AlignBottom);
        grid.add(QStringLiteral("plain"), new MenuPicture(makePlainMenu()));
        grid.add(QStringLiteral("icons"), new MenuPicture(makeIconMenu()));
        grid.add(QStringLiteral("check marks"), new MenuPicture(makeCheckMenu()));
        grid.add(QStringLiteral("submenus and a section"), new MenuPicture(makeSubMenus()));
        pictures->addSpacing(8);
        SampleGrid wide(pictures, 2, Qt::AlignTop);
        wide.add(QStringLiteral("shortcuts and long texts"), new MenuPicture(makeShortcutMenu()));
        wide.add(QStringLiteral("overlay menu with its submenu on a picture"),
                 new MenuPicture(makeOverlayMenu(), MenuPicture::Photograph));
    }

    void refresh() override
    {
        const auto pictures = findChildren<MenuPicture *>();
        for (MenuPicture *picture : pictures)
            picture->updateGeometry();
    }
};
} // namespace

GalleryPage *makeMenusPage(QWidget *inParent)
{
    return new MenusPage(inParent);
}

#include "MenusPage.moc"
