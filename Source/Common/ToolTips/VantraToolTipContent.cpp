#include "ToolTips/VantraToolTipContent.h"

#include "Controls/VantraLabel.h"
#include "Theme/VantraColorPalette.h"
#include "Theme/VantraStyleTheme.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QFileInfo>
#include <QtGui/QMovie>
#include <QtWidgets/QVBoxLayout>

namespace {

// Newer Qt takes the line break after the inner element for a line of its own, which would end the tip with
// an empty line. Inside the element it gives the same lines as before.
#if QT_VERSION < QT_VERSION_CHECK(6, 5, 0)
const QString kTemplate =
    QStringLiteral("<div>\n\t<div>\n\t%1\n\t</div>\n\n\t<div align=\"right\">\n\t\t"
                   "<a style=\"color: %2\" href=\"%3\" align=right>%4</a>\n\t</div>\n\t<br>\n</div>");
#else
const QString kTemplate =
    QStringLiteral("<div>\n\t<div>\n\t%1\n\t</div>\n\n\t<div align=\"right\">\n\t\t"
                   "<a style=\"color: %2\" href=\"%3\" align=right>%4</a>\n\t<br>\n\t</div>\n</div>");
#endif

} // namespace

struct VantraToolTipContent::Ui
{
    QVBoxLayout *verticalLayout = nullptr;
    VantraLabel *mMovieLabel = nullptr;
    VantraLabel *mTitleLabel = nullptr;
    VantraLabel *mContentLabel = nullptr;

    void setupUi(QWidget *ioWidget)
    {
        if (ioWidget->objectName().isEmpty()) {
            ioWidget->setObjectName(QStringLiteral("VantraToolTipContent"));
        }
        ioWidget->resize(160, 140);
        verticalLayout = new QVBoxLayout(ioWidget);
        verticalLayout->setObjectName(QStringLiteral("verticalLayout"));
        verticalLayout->setSizeConstraint(QLayout::SetFixedSize);
        mMovieLabel = addLabel(ioWidget, QStringLiteral("mMovieLabel"));
        mTitleLabel = addLabel(ioWidget, QStringLiteral("mTitleLabel"));
        mContentLabel = addLabel(ioWidget, QStringLiteral("mContentLabel"));
        verticalLayout->setStretch(1, 100);

        ioWidget->setWindowTitle(QCoreApplication::translate("VantraToolTipContent", "Form"));
        for (VantraLabel *label : {mMovieLabel, mTitleLabel, mContentLabel}) {
            label->setText(QCoreApplication::translate("VantraToolTipContent", "Label"));
        }
        QMetaObject::connectSlotsByName(ioWidget);
    }

    VantraLabel *addLabel(QWidget *ioWidget, const QString &inName)
    {
        auto *label = new VantraLabel(ioWidget);
        label->setObjectName(inName);
        verticalLayout->addWidget(label);
        return label;
    }
};

VantraToolTipContent::VantraToolTipContent(QWidget *inParent) : QObject(inParent), mUi(std::make_unique<Ui>())
{
    mUi->setupUi(inParent);
    mUi->mContentLabel->setWordWrap(true);
    mUi->mContentLabel->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::LinksAccessibleByMouse |
                                                Qt::LinksAccessibleByKeyboard);
    mUi->mContentLabel->setOpenExternalLinks(true);
    mUi->mContentLabel->setFocusPolicy(Qt::NoFocus);
    mUi->mMovieLabel->setScaledContents(false);
}

VantraToolTipContent::~VantraToolTipContent() = default;

void VantraToolTipContent::setToolTip(const QString &inImage, const QString &inTitle,
                                      const QString &inDetailed, const QString &inUrl)
{
    const QColor linkColor =
        VantraStyleTheme::instance().colorPalette().color(VantraPalette::Normal, VantraPalette::WindowText);
    // In one call, so that a percent sign in a text is no place to fill.
    const QString html = kTemplate.arg(inDetailed, linkColor.name(), inUrl, tr("Learn how"));
    mUi->mTitleLabel->setText(inTitle);
    mUi->mContentLabel->setText(html);
    setToolTipImage(inImage);
}

void VantraToolTipContent::setToolTipImage(const QString &inImage)
{
    const QString suffix = QFileInfo(inImage).suffix();
    const QString path = QString(inImage).replace(QLatin1Char('.') + suffix, QLatin1String("@2x.") + suffix);
    if (mMovie != nullptr && mMovie->fileName() == path) {
        return;
    }
    mMovie = std::make_unique<QMovie>(path);
    mUi->mMovieLabel->setMovie(mMovie.get());
    mMovie->start();
}
