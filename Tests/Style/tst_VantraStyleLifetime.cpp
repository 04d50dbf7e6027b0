#include "Style/VantraStyle.h"
#include "Support/FatalTest.h"
#include "Support/ThemeFixture.h"

#include <QtWidgets/QtWidgets>

#include <memory>

// Styles, themes and windows come and go in any order. Most of what can go wrong here shows under the address
// sanitizer alone.

namespace {

const char *const kExitVariable = "VTWIDGETS_EXIT_CASE";
const QColor kBlue(4, 122, 255);
const QColor kRed(234, 71, 68);

class OpenStyle : public VantraStyle
{
public:
    using VantraStyle::mAnimationTimer;
};

QWidget *controls()
{
    auto *page = new QWidget;
    auto *layout = new QGridLayout(page);
    auto *busy = new QProgressBar;
    busy->setRange(0, 0);
    auto *comboBox = new QComboBox;
    comboBox->addItems({"one", "two"});
    comboBox->setEditable(true);
    auto *toolButton = new QToolButton;
    toolButton->setMenu(new QMenu(toolButton));
    auto *splitter = new QSplitter;
    splitter->addWidget(new QListWidget);
    splitter->addWidget(new QTreeWidget);
    auto *group = new QGroupBox("Group");
    (new QVBoxLayout(group))->addWidget(new QRadioButton("Radio"));
    const auto widgets = QList<QWidget *>{busy, comboBox, toolButton, splitter, group}
                         << new QPushButton("Push") << new QCheckBox("Check") << new QSlider(Qt::Horizontal)
                         << new QSpinBox << new QScrollBar << new QLineEdit("Line") << new QTextEdit("Text")
                         << new QTableWidget(2, 2) << new QDial << new QToolBox << new QCalendarWidget;
    for (qsizetype index = 0; index < widgets.size(); ++index) {
        layout->addWidget(widgets.at(index), static_cast<int>(index / 4), static_cast<int>(index % 4));
    }
    return page;
}

// A window with every stock widget, and a menu that stands open over it.
class FullWindow : public QMainWindow
{
public:
    FullWindow()
    {
        auto *tabs = new QTabWidget;
        tabs->addTab(controls(), "Controls");
        tabs->addTab(new QMdiArea, "Windows");
        setCentralWidget(tabs);
        mMenu = menuBar()->addMenu("Menu");
        mMenu->addAction("Item")->setCheckable(true);
        mMenu->addSeparator();
        mMenu->addMenu("More")->addAction("Deep");
        addToolBar("Tools")->addAction("Tool");
        addDockWidget(Qt::LeftDockWidgetArea, new QDockWidget("Dock"));
        statusBar()->showMessage("Status");
        resize(900, 700);
        show();
    }

    void openMenu() { mMenu->popup(mapToGlobal(QPoint(10, 10))); }
    QMenu *menu() const { return mMenu; }

private:
    QMenu *mMenu;
};

QColor ground(const QWidget &inWidget)
{
    return inWidget.palette().color(QPalette::Window);
}

int countOf(const QColor &inColor, QWidget &ioWidget)
{
    return ThemeFixture::countOf(inColor, ioWidget.grab().toImage());
}

std::unique_ptr<QProgressBar> bar(QStyle *inStyle, int inMaximum)
{
    auto widget = std::make_unique<QProgressBar>();
    widget->setStyle(inStyle);
    widget->setRange(0, inMaximum);
    widget->setValue(inMaximum);
    widget->resize(200, 8);
    widget->show();
    return widget;
}

} // namespace

class tst_VantraStyleLifetime : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(ThemeFixture::load()); }

    void applicationSwapsStyles()
    {
        FullWindow window;
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        const QColor ours(36, 36, 36);
        for (int turn = 0; turn < 6; ++turn) {
            window.openMenu();
            QTRY_VERIFY(window.menu()->isVisible());
            auto *style = new OpenStyle;
            QApplication::setStyle(style);
            QTRY_COMPARE(ground(window), ours);
            QTRY_VERIFY(countOf(ours, window) > 50000);
            window.menu()->hide();

            window.openMenu();
            QTRY_VERIFY(window.menu()->isVisible());
            QVERIFY(QSignalSpy(&style->mAnimationTimer, &QTimer::timeout).wait()); // with the busy bar on it
            QApplication::setStyle(QStyleFactory::create("Fusion"));
            QTRY_VERIFY(ground(window) != ours);
            QTRY_VERIFY(countOf(ground(window), window) > 50000);
            window.menu()->hide();
        }
    }

    void widgetsSwapStyles()
    {
        FullWindow window;
        auto style = std::make_unique<VantraStyle>();
        const QList<QWidget *> widgets = window.findChildren<QWidget *>();
        QVERIFY(widgets.size() > 50);
        for (QWidget *widget : widgets) {
            widget->setStyle(style.get());
        }
        QVERIFY(!window.grab().isNull());
        for (QWidget *widget : widgets) {
            widget->setStyle(nullptr);
            QCOMPARE(widget->style(), QApplication::style());
        }
        style.reset();
        QVERIFY(!window.grab().isNull());
    }

    void styleGoesBeforeItsWidgets()
    {
        auto style = std::make_unique<VantraStyle>();
        const auto busy = bar(style.get(), 0);
        const auto still = bar(style.get(), 10);
        QVERIFY(countOf(kBlue, *still) > 1000);
        QVERIFY(!busy->grab().isNull());
        style.reset();
        QCOMPARE(still->style(), QApplication::style());
        QCOMPARE(countOf(kBlue, *still), 0);
        QVERIFY(!busy->grab().isNull());
    }

    void styleGoesAfterItsWidgets()
    {
        OpenStyle style;
        {
            FullWindow full;
            const QList<QWidget *> widgets = full.findChildren<QWidget *>();
            for (QWidget *widget : widgets) {
                widget->setStyle(&style);
            }
            QVERIFY(!full.grab().isNull());
        }
        QVERIFY(QSignalSpy(&style.mAnimationTimer, &QTimer::timeout).wait()); // meets no widget that is gone
    }

    void clockStopsWithItsStyle()
    {
        // A widget that the style has animated without being its style hears no more of it.
        QWidget widget;
        auto style = std::make_unique<VantraStyle>();
        style->animationTime(&widget);
        style.reset();
        QEvent event(QEvent::User);
        QCoreApplication::sendEvent(&widget, &event);
        VantraStyle next;
        QCOMPARE(next.animationTime(&widget).count(), 0);
    }

    void twoStylesStandSideBySide()
    {
        auto first = std::make_unique<VantraStyle>();
        VantraStyle second;
        const auto left = bar(first.get(), 10);
        const auto right = bar(&second, 10);
        QCOMPARE(left->grab().toImage(), right->grab().toImage());
        first->animationTime(left.get());
        QTRY_VERIFY(first->animationTime(left.get()).count() >= 3);
        QCOMPARE(second.animationTime(left.get()).count(), 0); // each has a clock of its own
        first.reset();
        QVERIFY(countOf(kBlue, *right) > 1000);
    }

    void laterThemeShowsAtTheNextPaint()
    {
        QApplication::setStyle(new VantraStyle);
        FullWindow window;
        const auto still = bar(nullptr, 10);
        QVERIFY(countOf(kBlue, *still) > 1000);
        QVERIFY(ThemeFixture::load("red"));
        QCOMPARE(countOf(kBlue, *still), 0);
        QVERIFY(countOf(kRed, *still) > 1000);
        QVERIFY(!window.grab().isNull());
        QVERIFY(ThemeFixture::load("blue"));
        QVERIFY(countOf(kBlue, *still) > 1000);
        QApplication::setStyle(QStyleFactory::create("Fusion"));
    }

    void processEndsWhileAnimated()
    {
        // The early ones are made before the application object, or even set before it.
        for (const char *styleOwner :
             {"application", "outside", "proxy", "early application", "early outside", "set early"}) {
            QProcess child;
            QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
            environment.insert(kExitVariable, styleOwner);
            child.setProcessEnvironment(environment);
            child.setProcessChannelMode(QProcess::MergedChannels);
            child.start(QCoreApplication::applicationFilePath(), {});
            QVERIFY(child.waitForFinished(60000));
            const QByteArray output = child.readAll();
            QVERIFY2(child.exitStatus() == QProcess::NormalExit && child.exitCode() == 0, output.constData());
            QVERIFY2(output.contains("in motion"), output.constData());
        }
    }
};

namespace {

// Quits the application at the repaint of a widget that only an animation can cause.
class QuitWhenMoving : public QObject
{
public:
    bool eventFilter(QObject *, QEvent *inEvent) override
    {
        constexpr int kRepaints = 5; // showing a window takes one or two
        if (inEvent->type() == QEvent::Paint && ++mPaints == kRepaints) {
            fputs("in motion\n", stderr);
            QCoreApplication::quit();
        }
        return false;
    }

private:
    int mPaints = 0;
};

// A program whose busy bar is still moving when it ends.
int runAnimated(int inCount, char **inArguments)
{
    const QByteArray owner = qgetenv(kExitVariable);
    std::unique_ptr<VantraStyle> outside;
    if (owner.startsWith("early")) {
        outside = std::make_unique<VantraStyle>();
    } else if (owner == "set early") {
        QApplication::setStyle(new VantraStyle);
    }
    int result = 1;
    {
        QApplication application(inCount, inArguments);
        if (!ThemeFixture::load()) {
            return 2;
        }
        if (owner == "early application") {
            QApplication::setStyle(outside.release());
        } else if (owner == "outside") {
            outside = std::make_unique<VantraStyle>();
        } else if (owner == "proxy") {
            QApplication::setStyle(new QProxyStyle(new VantraStyle));
        } else if (owner == "application") {
            QApplication::setStyle(new VantraStyle);
        }
        FullWindow window;
        const auto busy = bar(outside.get(), 0);
        QuitWhenMoving filter;
        busy->installEventFilter(&filter);
        window.openMenu();
        QTimer::singleShot(10000, &application, &QApplication::quit);
        result = QApplication::exec();
    }
    return result;
}

} // namespace

int main(int inCount, char **inArguments)
{
    FatalTest::prepareProcess();
    if (qEnvironmentVariableIsSet(kExitVariable)) {
        return runAnimated(inCount, inArguments);
    }
    return FatalTest::main<tst_VantraStyleLifetime>(inCount, inArguments);
}

#include "tst_VantraStyleLifetime.moc"
