#include "ToolTips/VantraToolTipContentFrame.h"

#include "StyleOptions/VantraStyleOptionFrame.h"

#include <QtCore/QCoreApplication>
#include <QtGui/QPainter>
#include <QtWidgets/QVBoxLayout>

namespace {
constexpr int kCornerRadius = 10;
} // namespace

struct VantraToolTipContentFrame::Ui
{
    QVBoxLayout *main_layout = nullptr;
    QWidget *frame = nullptr;
    QVBoxLayout *frame_layout = nullptr;
    QWidget *body = nullptr;

    void setupUi(QWidget *ioFrame)
    {
        if (ioFrame->objectName().isEmpty()) {
            ioFrame->setObjectName(QStringLiteral("VantraToolTipContentFrame"));
        }
        ioFrame->resize(200, 200);
        QSizePolicy policy(QSizePolicy::Maximum, QSizePolicy::Maximum);
        policy.setHorizontalStretch(1);
        policy.setVerticalStretch(0);
        policy.setHeightForWidth(ioFrame->sizePolicy().hasHeightForWidth());
        ioFrame->setSizePolicy(policy);
        ioFrame->setMinimumSize(200, 200);

        main_layout = new QVBoxLayout(ioFrame);
        main_layout->setObjectName(QStringLiteral("main_layout"));
        main_layout->setSpacing(0);
        main_layout->setContentsMargins(8, 8, 8, 8);
        frame = new QWidget(ioFrame);
        frame->setObjectName(QStringLiteral("frame"));
        frame_layout = new QVBoxLayout(frame);
        frame_layout->setObjectName(QStringLiteral("frame_layout"));
        frame_layout->setSpacing(0);
        frame_layout->setContentsMargins(2, 2, 2, 2);
        body = new QWidget(frame);
        body->setObjectName(QStringLiteral("body"));
        frame_layout->addWidget(body);
        main_layout->addWidget(frame);

        ioFrame->setWindowTitle(
            QCoreApplication::translate("VantraToolTipContentFrame", "Filter Style Preview"));
        QMetaObject::connectSlotsByName(ioFrame);
    }
};

VantraToolTipContentFrame::VantraToolTipContentFrame(QWidget *inParent)
    : VantraFrame(inParent, Qt::SplashScreen | Qt::FramelessWindowHint), mUi(std::make_unique<Ui>())
{
    mUi->setupUi(this);
    setFocusPolicy(Qt::NoFocus);
    setAttribute(Qt::WA_NoSystemBackground);
    setAttribute(Qt::WA_TranslucentBackground);
    setAttribute(Qt::WA_ShowWithoutActivating);
    setWindowModality(Qt::NonModal);
    setFrameShape(QFrame::Panel);
}

VantraToolTipContentFrame::~VantraToolTipContentFrame() = default;

QWidget *VantraToolTipContentFrame::body() const
{
    return mUi->body;
}

void VantraToolTipContentFrame::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    VantraStyleOptionFrame option;
    initStyleOption(&option);
    option.cornerShapes = CornerShapeRoundFull;
    option.cornerRadius = kCornerRadius;
    option.state |= QStyle::State_Raised;
    style()->drawControl(QStyle::CE_ShapedFrame, &option, &painter, this);
}
