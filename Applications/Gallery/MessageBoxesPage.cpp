#include "GalleryPage.h"

#include "Theme/VantraStyleTheme.h"
#include "WidgetPicture.h"
#include "Window/VantraMessageBox.h"

#include <QtCore/QEvent>
#include <QtGui/QPainter>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QPushButton>

#include <functional>
#include <memory>

namespace {
using MakeBox = std::function<VantraMessageBox *(QWidget *)>;

// Paints a message box that is never shown, since a modal dialog can't stand in a page. The box is real, laid
// out and painted by its own code.
class MessageBoxPicture : public QWidget
{
public:
    explicit MessageBoxPicture(MakeBox inMake) : mMake(std::move(inMake)) { remake(); }

    // The fonts of a message box are those of the moment when it is made.
    void remake()
    {
        mBox.reset(mMake(this));
        setAccessibleName(mBox->windowTitle());
        // A box takes its size when it shows, which it does here without a screen and without locking others.
        mBox->setWindowModality(Qt::NonModal);
        mBox->setAttribute(Qt::WA_DontShowOnScreen);
        mBox->setAttribute(Qt::WA_ShowWithoutActivating);
        mBox->setEnabled(isEnabled());
        mBox->show();
        mBox->hide();
        setFixedSize(mBox->size().grownBy(kOutline));
        update();
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        const VantraColorPalette &colors = VantraStyleTheme::instance().colorPalette();
        painter.fillRect(rect(), colors.color(VantraPalette::Normal, VantraPalette::FrameLine));
        painter.drawImage(QPoint(kOutline.left(), kOutline.top()),
                          widgetPicture(mBox.get(), mBox->size(), devicePixelRatioF()));
    }

    void changeEvent(QEvent *inEvent) override
    {
        if (inEvent->type() == QEvent::EnabledChange && mBox != nullptr)
            mBox->setEnabled(isEnabled());
        QWidget::changeEvent(inEvent);
    }

private:
    static constexpr QMargins kOutline{1, 1, 1, 1};

    MakeBox mMake;
    std::unique_ptr<VantraMessageBox> mBox;
};

struct Kind
{
    const char *title;
    const char *text;
    const char *informativeText;
    QMessageBox::StandardButtons buttons;
    bool checkBox;
};

const Kind kKinds[] = {
    {"One line", "The catalogue is in use.", "", QMessageBox::Ok, false},
    {"One line with the check box", "The catalogue is in use.", "", QMessageBox::Ok, true},
    {"A question", "Delete three pictures?", "They go to the trash, from where they can be brought back.",
     QMessageBox::Yes | QMessageBox::Cancel, false},
    {"A question with the check box", "Delete three pictures?",
     "They go to the trash, from where they can be brought back.", QMessageBox::Yes | QMessageBox::Cancel,
     true},
    {"Lines and a blank line", "The export has ended.\n\n12 pictures written\n1 picture left out",
     "The one that was left out lies on a disk that isn't there.", QMessageBox::Ok, false},
    {"Long texts",
     "Some of the pictures were changed by another program after they had been taken into the catalogue, "
     "and what you see here may not be what lies on the disk.",
     "Reading them again keeps your own changes and replaces everything else: the time of the picture, the "
     "camera, the place, and the preview. This may take some minutes for a folder of this size, and the "
     "pictures can't be worked on in the meantime.",
     QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel, true},
};

VantraMessageBox *makeBox(const Kind &inKind, QWidget *inParent)
{
    return new VantraMessageBox(QLatin1String(inKind.title), QLatin1String(inKind.text),
                                QLatin1String(inKind.informativeText), inKind.buttons, inParent,
                                inKind.checkBox);
}

class MessageBoxesPage : public GalleryPage
{
public:
    explicit MessageBoxesPage(QWidget *inParent) : GalleryPage(inParent)
    {
        addTry();
        QVBoxLayout *pictures =
            addSection(QStringLiteral("Pictures of message boxes"),
                       QStringLiteral("Each is a real message box, painted into the page."));
        for (const Kind &kind : kKinds) {
            pictures->addWidget(
                new MessageBoxPicture([&kind](QWidget *ioParent) { return makeBox(kind, ioParent); }));
            pictures->addWidget(makeCaption(QLatin1String(kind.title)));
            pictures->addSpacing(12);
        }
    }

    void refresh() override
    {
        const auto pictures = findChildren<QWidget *>();
        for (QWidget *widget : pictures) {
            if (auto *picture = dynamic_cast<MessageBoxPicture *>(widget))
                picture->remake();
        }
    }

private:
    void addTry()
    {
        QVBoxLayout *body = addSection(QStringLiteral("To try"));
        auto *row = new QHBoxLayout;
        mAnswer = makeCaption(QStringLiteral("No answer yet"));
        addTry(row, QStringLiteral("Warning"), [this] {
            return VantraMessageBox::warning(window(), QStringLiteral("Export"),
                                             QStringLiteral("The file exists.\n\nReplace it?"),
                                             QMessageBox::Yes, QMessageBox::No);
        });
        addTry(row, QStringLiteral("Critical, with a beep"), [this] {
            return VantraMessageBox::critical(window(), QStringLiteral("Export"),
                                              QStringLiteral("The disk is full."), QMessageBox::Ok,
                                              QMessageBox::NoButton);
        });
        addTry(row, QStringLiteral("A button that stays open"), [this] { return runWithCounter(); });
        row->addStretch();
        body->addLayout(row);
        body->addWidget(mAnswer);
    }

    void addTry(QHBoxLayout *ioRow, const QString &inText, const std::function<int()> &inRun)
    {
        auto *button = new QPushButton(inText);
        connect(button, &QPushButton::clicked, this, [this, inRun] {
            mAnswer->setText(QStringLiteral("Answer: 0x%1").arg(inRun(), 8, 16, QLatin1Char('0')));
        });
        ioRow->addWidget(button);
    }

    int runWithCounter()
    {
        VantraMessageBox box(QStringLiteral("Count"), QStringLiteral("Count as long as you like."),
                             QStringLiteral("Counted: 0"), QMessageBox::Ok, window(), true);
        QPushButton *counter =
            box.addButton(QStringLiteral("Count"), QMessageBox::ActionRole, nullptr, nullptr, false);
        connect(counter, &QPushButton::clicked, &box, [&box, count = 0]() mutable {
            box.setInformativeText(QStringLiteral("Counted: %1").arg(++count));
        });
        return box.exec();
    }

    HouseLabel *mAnswer = nullptr;
};
} // namespace

GalleryPage *makeMessageBoxesPage(QWidget *inParent)
{
    return new MessageBoxesPage(inParent);
}
