#include "Progress/VantraProgress.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QEvent>
#include <QtGui/QKeyEvent>
#include <QtGui/QWindow>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QProgressBar>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QSpacerItem>
#include <QtWidgets/QVBoxLayout>

struct VantraProgress::Form
{
    void setupUi(VantraProgress *ioDialog);

    QVBoxLayout *verticalLayout = nullptr;
    QLabel *labelOperation = nullptr;
    QProgressBar *progressBar = nullptr;
    QLabel *labelStage = nullptr;
    QWidget *widget = nullptr;
    QHBoxLayout *horizontalLayout = nullptr;
    QSpacerItem *horizontalSpacer = nullptr;
    QPushButton *buttonCancel = nullptr;

private:
    void addTextsAndBar(VantraProgress *ioDialog);
    void addButtonRow(VantraProgress *ioDialog);
    void retranslateUi(VantraProgress *ioDialog);
};

void VantraProgress::Form::setupUi(VantraProgress *ioDialog)
{
    if (ioDialog->objectName().isEmpty()) {
        ioDialog->setObjectName(QStringLiteral("VantraProgress"));
    }
    ioDialog->setWindowModality(Qt::ApplicationModal);
    ioDialog->resize(350, 130);
    ioDialog->setModal(true);
    addTextsAndBar(ioDialog);
    addButtonRow(ioDialog);
    retranslateUi(ioDialog);
    QMetaObject::connectSlotsByName(ioDialog);
}

void VantraProgress::Form::addTextsAndBar(VantraProgress *ioDialog)
{
    constexpr int kMargin = 12;
    constexpr QSize kMinimumTextSize(320, 0);
    verticalLayout = new QVBoxLayout(ioDialog);
    verticalLayout->setObjectName(QStringLiteral("verticalLayout"));
    verticalLayout->setSizeConstraint(QLayout::SetFixedSize);
    verticalLayout->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    labelOperation = new QLabel(ioDialog);
    labelOperation->setObjectName(QStringLiteral("labelOperation"));
    labelOperation->setMinimumSize(kMinimumTextSize);
    verticalLayout->addWidget(labelOperation);
    progressBar = new QProgressBar(ioDialog);
    progressBar->setObjectName(QStringLiteral("progressBar"));
    progressBar->setValue(100);
    verticalLayout->addWidget(progressBar);
    labelStage = new QLabel(ioDialog);
    labelStage->setObjectName(QStringLiteral("labelStage"));
    labelStage->setMinimumSize(kMinimumTextSize);
    verticalLayout->addWidget(labelStage);
}

void VantraProgress::Form::addButtonRow(VantraProgress *ioDialog)
{
    widget = new QWidget(ioDialog);
    widget->setObjectName(QStringLiteral("widget"));
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    policy.setHorizontalStretch(0);
    policy.setVerticalStretch(0);
    policy.setHeightForWidth(widget->sizePolicy().hasHeightForWidth());
    widget->setSizePolicy(policy);
    horizontalLayout = new QHBoxLayout(widget);
    horizontalLayout->setObjectName(QStringLiteral("horizontalLayout"));
    horizontalLayout->setSpacing(0);
    horizontalLayout->setContentsMargins(0, 0, 0, 0);
    horizontalSpacer = new QSpacerItem(40, 20, QSizePolicy::Expanding, QSizePolicy::Minimum);
    horizontalLayout->addItem(horizontalSpacer);
    buttonCancel = new QPushButton(widget);
    buttonCancel->setObjectName(QStringLiteral("buttonCancel"));
    horizontalLayout->addWidget(buttonCancel);
    verticalLayout->addWidget(widget);
}

void VantraProgress::Form::retranslateUi(VantraProgress *ioDialog)
{
    ioDialog->setWindowTitle(QCoreApplication::translate("VantraProgress", "Progress"));
    ioDialog->setOperationText(QCoreApplication::translate("VantraProgress", "Loading..."));
    labelStage->setText(QString());
    buttonCancel->setText(QCoreApplication::translate("VantraProgress", "Cancel"));
}

VantraProgress::VantraProgress(QWidget *inParent)
    : VantraProgressBaseDlg(inParent, DEFAULT_WINDOW_FLAGS), mUi(std::make_unique<Form>())
{
    const QWidget *parent = inParent;
    Q_ASSERT(parent != NULL && "parent should not be NULL, see bug #13294");
    mKeyUsedToCancel = 0;
    mUi->setupUi(this);
    connect(mUi->buttonCancel, &QPushButton::clicked, this, &VantraProgress::reject);
}

VantraProgress::~VantraProgress() = default;

void VantraProgress::setCancelKeys(const QList<int> &inKeys)
{
    mCancelKeys = inKeys;
}

void VantraProgress::startProgress()
{
}

void VantraProgress::endProgress()
{
}

void VantraProgress::setOperationText(const QString &inText)
{
    mUi->labelOperation->setText(inText);
    mUi->progressBar->setAccessibleName(inText);
}

void VantraProgress::setStageText(const QString &inText)
{
    mUi->labelStage->setText(inText);
}

void VantraProgress::setRange(int inMinimum, int inMaximum)
{
    mUi->progressBar->setRange(inMinimum, inMaximum);
}

void VantraProgress::setValue(int inValue)
{
    mUi->progressBar->setValue(inValue);
}

void VantraProgress::setCancelEnabled(bool inEnabled)
{
    mUi->buttonCancel->setEnabled(inEnabled);
}

void VantraProgress::setCancelVisible(bool inVisible)
{
    mUi->buttonCancel->setVisible(inVisible);
    Qt::WindowFlags flags = NO_TITLE_BAR_BUTTONS_WINDOW_FLAGS;
    flags.setFlag(Qt::WindowCloseButtonHint, inVisible);
    if (QWindow *window = isVisible() ? windowHandle() : nullptr) {
        // QWidget::setWindowFlags hides the dialog, which would end its exec().
        overrideWindowFlags(flags);
        window->setFlags(flags);
    } else {
        setWindowFlags(flags);
    }
}

void VantraProgress::reject()
{
    if (mUi->buttonCancel->isVisible() && mUi->buttonCancel->isEnabled()) {
        setCanceled(true);
    }
}

bool VantraProgress::event(QEvent *event)
{
    if (event->type() == QEvent::ShortcutOverride) {
        event->accept();
        return true;
    }
    // Past QDialog, which has nothing of its own here.
    return QWidget::event(event);
}

void VantraProgress::keyPressEvent(QKeyEvent *event)
{
    if (mCancelKeys.contains(event->key())) {
        setCanceled(true);
        // Only now: who listens to the signal still reads no key.
        mKeyUsedToCancel = event->key();
    }
}
