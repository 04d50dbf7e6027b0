#include "Controls/VantraFramePane.h"
#include "StyleOptions/VantraStyleOptionFramePane.h"

#include <QtTest/QtTest>
#include <QtWidgets/QLabel>
#include <QtWidgets/QVBoxLayout>

#include <memory>

namespace {

using Pane = VantraFramePane;

// Gives its initStyleOption to the test.
class OpenPane : public VantraFramePane
{
public:
    using VantraFramePane::initStyleOption;
    using VantraFramePane::VantraFramePane;
};

// Notes the name of every signal of a pane as it comes, with its argument.
class SignalLog : public QObject
{
    Q_OBJECT

public:
    explicit SignalLog(VantraFramePane *inPane)
    {
        const QMetaMethod slot = metaObject()->method(metaObject()->indexOfSlot("note()"));
        const QMetaObject &meta = VantraFramePane::staticMetaObject;
        for (int i = VantraFrame::staticMetaObject.methodOffset(); i < meta.methodCount(); ++i) {
            if (meta.method(i).methodType() == QMetaMethod::Signal) {
                connect(inPane, meta.method(i), this, slot);
            }
        }
    }

    QStringList names;

public slots:
    void note() { names << sender()->metaObject()->method(senderSignalIndex()).name(); }
};

} // namespace

class tst_VantraFramePane : public QObject
{
    Q_OBJECT

private slots:
    void signalsComeInOrder_data();
    void signalsComeInOrder();
    void sameStateIsSilent();
    void lastSignalTellsTheStateAsItStands();
    void groupSettersLetStrayBitsThrough();
    void standardStyleRoundsTheCorners();
    void neighboursAreTold_data();
    void neighboursAreTold();
    void secondUpdateIsSilent();
    void slotMayDeleteANeighbour();
    void plainOptionIsNotWrittenBeyondItsEnd();
    void pointerIsAnnounced();
};

void tst_VantraFramePane::signalsComeInOrder_data()
{
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("to");
    QTest::addColumn<QStringList>("names");
    QTest::newRow("hovered") << 0x10 << 0x14 << QStringList{"paneHoveredChanged", "paneStateChanged"};
    QTest::newRow("expanded before") << 0x10 << 0x18
                                     << QStringList{"paneExpandedStateChanged", "paneStateChanged"};
    QTest::newRow("all") << 0x00 << 0xFF << QStringList{"paneSelectionStateChanged", "paneSelectedChanged",
                                                        "paneTargetedChanged",       "paneHoveredChanged",
                                                        "paneExpandedStateChanged",  "paneExpandedChanged",
                                                        "paneSequenceStateChanged",  "paneIsFirstChanged",
                                                        "paneIsLastChanged",         "paneStateChanged"};
}

void tst_VantraFramePane::signalsComeInOrder()
{
    QFETCH(const int, from);
    QFETCH(const int, to);
    QFETCH(const QStringList, names);
    Pane pane;
    pane.setPaneState(Pane::PaneStates(from));
    SignalLog log(&pane);
    pane.setPaneState(Pane::PaneStates(to));
    QCOMPARE(log.names, names);
}

void tst_VantraFramePane::sameStateIsSilent()
{
    Pane pane;
    SignalLog log(&pane);
    QVERIFY(pane.paneExpanded());
    pane.setPaneExpanded(true);
    pane.setPaneState(pane.paneState());
    pane.setPaneStyle(Pane::PaneStyleStandard);
    QCOMPARE(log.names, QStringList());
    QCOMPARE(pane.cornerShapes(), VantraFrame::CornerShapes(VantraFrame::CornerShapeNone));
}

void tst_VantraFramePane::lastSignalTellsTheStateAsItStands()
{
    Pane pane;
    QList<int> states;
    connect(&pane, &Pane::paneSelectedChanged, &pane, [&pane] { pane.setPaneHovered(true); });
    connect(&pane, &Pane::paneStateChanged, &pane,
            [&states](Pane::PaneStates state) { states << int(state); });
    pane.setPaneSelected(true);
    QCOMPARE(states, (QList<int>{0x15, 0x15}));
}

void tst_VantraFramePane::groupSettersLetStrayBitsThrough()
{
    Pane pane;
    pane.setPaneSelectionState(Pane::PaneStates(Pane::PaneStateTargeted | Pane::PaneStateLastPane));
    QCOMPARE(int(pane.paneState()), 0x92);
    pane.setProperty("paneExpandedState",
                     QVariant::fromValue(Pane::PaneStates(Pane::PaneStateExpandedAfter)));
    QCOMPARE(int(pane.paneState()), 0xA2);
}

void tst_VantraFramePane::standardStyleRoundsTheCorners()
{
    Pane pane;
    pane.setPaneStyle(Pane::PaneStyleList);
    SignalLog log(&pane);
    pane.setPaneStyle(Pane::PaneStyleStandard);
    QCOMPARE(log.names, (QStringList{"paneStyleChanged", "cornerShapesChanged"}));
    QCOMPARE(pane.cornerShapes(), VantraFrame::CornerShapes(VantraFrame::CornerShapeRoundFull));
    pane.setPaneStyle(Pane::PaneStyleSubPane);
    QCOMPARE(pane.cornerShapes(), VantraFrame::CornerShapes(VantraFrame::CornerShapeRoundFull));
}

// A column of letters: E an expanded pane, c a collapsed one, h a hidden expanded one, l a label, - a spacer.
void tst_VantraFramePane::neighboursAreTold_data()
{
    QTest::addColumn<QByteArray>("column");
    QTest::addColumn<QList<int>>("states");
    QTest::newRow("alone") << QByteArray("c") << QList<int>{0xC0};
    QTest::newRow("alone, expanded") << QByteArray("E") << QList<int>{0xD0};
    QTest::newRow("middle expanded") << QByteArray("cEc") << QList<int>{0x60, 0x10, 0x88};
    QTest::newRow("between two expanded") << QByteArray("EcE") << QList<int>{0x50, 0x28, 0x90};
    QTest::newRow("across others") << QByteArray("El-hc") << QList<int>{0x50, 0x10, 0x88};
    QTest::newRow("all hidden") << QByteArray("hh") << QList<int>{0x10, 0x10};
}

void tst_VantraFramePane::neighboursAreTold()
{
    QFETCH(const QByteArray, column);
    QFETCH(const QList<int>, states);
    QWidget window;
    auto *layout = new QVBoxLayout(&window);
    QList<Pane *> panes;
    for (const char letter : column) {
        if (letter == '-') {
            layout->addStretch();
        } else if (letter == 'l') {
            layout->addWidget(new QLabel(&window));
        } else {
            panes << new Pane(&window);
            panes.last()->setPaneExpanded(letter != 'c');
            panes.last()->setVisible(letter != 'h');
            layout->addWidget(panes.last());
        }
    }
    window.show();
    Pane::updatePaneStates(layout);
    QList<int> found;
    for (const Pane *pane : std::as_const(panes)) {
        found << int(pane->paneState());
    }
    QCOMPARE(found, states);
}

void tst_VantraFramePane::secondUpdateIsSilent()
{
    QWidget window;
    auto *layout = new QVBoxLayout(&window);
    auto *first = new Pane(&window);
    layout->addWidget(first);
    layout->addWidget(new Pane(&window));
    window.show();
    Pane::updatePaneStates(layout);
    SignalLog log(first);
    Pane::updatePaneStates(layout);
    QCOMPARE(log.names, QStringList());
}

void tst_VantraFramePane::slotMayDeleteANeighbour()
{
    QWidget window;
    auto *layout = new QVBoxLayout(&window);
    auto *first = new Pane(&window);
    auto *second = new Pane(&window);
    auto *third = new Pane(&window);
    for (Pane *pane : {first, second, third}) {
        layout->addWidget(pane);
    }
    window.show();
    connect(first, &Pane::paneStateChanged, second, [second] { delete second; });
    Pane::updatePaneStates(layout);
    QVERIFY(third->paneIsLast());
}

void tst_VantraFramePane::plainOptionIsNotWrittenBeyondItsEnd()
{
    OpenPane pane;
    pane.setPaneSelected(true);
    pane.setCornerRadius(7);
    struct
    {
        QStyleOptionFrame option;
        quint64 guard = 0x5A5A5A5A5A5A5A5A;
    } plain;
    pane.initStyleOption(&plain.option);
    QCOMPARE(plain.guard, quint64(0x5A5A5A5A5A5A5A5A));
    VantraStyleOptionFramePane record;
    pane.initStyleOption(&record);
    QCOMPARE(int(record.paneState), 0x11);
    QCOMPARE(record.cornerRadius, 7);
}

void tst_VantraFramePane::pointerIsAnnounced()
{
    VantraFrame frame;
    frame.resize(60, 40);
    QSignalSpy shown(&frame, &VantraFrame::showHelp);
    QSignalSpy hidden(&frame, &VantraFrame::hideHelp);
    QEnterEvent enter(QPointF(5, 5), QPointF(5, 5), QPointF(5, 5));
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(&frame, &enter);
    QCoreApplication::sendEvent(&frame, &leave);
    QCOMPARE(shown.count(), 1);
    QCOMPARE(hidden.count(), 1);
}

QTEST_MAIN(tst_VantraFramePane)
#include "tst_VantraFramePane.moc"
